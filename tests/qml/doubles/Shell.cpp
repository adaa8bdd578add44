// SPDX-License-Identifier: Apache-2.0
#include "Shell.h"

#include "LumenQml.h"

#include <QGuiApplication>
#include <QMutex>
#include <QQuickItem>
#include <QTest>
#include <QtQml/qqmlmoduleregistration.h>
#include <QtQml>

using namespace Qt::StringLiterals;

static void initResources()
{
    Q_INIT_RESOURCE(package_qml);
    Q_INIT_RESOURCE(package_images);
    Q_INIT_RESOURCE(test_data);
}

// As the package's library registers its types.
static void registerPackageTypes()
{
    qmlRegisterUncreatableType<FakeAiContrast>("TKPackage", 1, 0, "LuAiContrast", u"double"_s);
    qmlRegisterModule("TKPackage", 1, 0);
}
static const QQmlModuleRegistration packageRegistration("TKPackage", registerPackageTypes);

namespace {
const QStringList UsualWidgets{u"LuAbsentWidget"_s, u"LuAutoPivotWidget"_s, u"LuPivotWidget"_s,
                               u"LuAiContrastWidget"_s};
QStringList logged;
QtMessageHandler previous = nullptr;

void keepWarnings(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    if (type != QtDebugMsg && type != QtInfoMsg)
        logged << text;
    if (previous)
        previous(type, context, text);
}

QQuickItem* itemBelow(QQuickItem* item, const QString& name)
{
    if (!item->isVisible())
        return nullptr;
    if (item->objectName() == name)
        return item;
    const QList<QQuickItem*> children = item->childItems();
    for (QQuickItem* child : children) {
        if (QQuickItem* found = itemBelow(child, name))
            return found;
    }
    return nullptr;
}
} // namespace

Shell::Shell(const QList<FakeMonitor*>& monitors)
    : Shell(QList<QObject*>(monitors.begin(), monitors.end()), UsualWidgets)
{
}

Shell::Shell(const QList<QObject*>& monitors, const QStringList& widgets) : context(*LuContext::instance())
{
    initResources();
    if (!previous)
        previous = qInstallMessageHandler(keepWarnings);
    lumenQmlInit(&engine, {QStringLiteral("TKPackage")});
    static const bool registered = [] {
        if (qmlTypeId("LumenDesk", 1, 0, "LuVCPNode") < 0)
            qmlRegisterUncreatableType<FakeMode>("LumenDesk", 1, 0, "LuVCPNode", u"double"_s);
        return true;
    }();
    Q_UNUSED(registered)
    bridge = std::make_unique<LuWindowBridge>(&engine);
    context.setReducedMotion(true);
    context.setTheme(u"light"_s);
    context.setWidgetUrlSource([widgets](QObject*) { return widgetUrls(widgets); });
    QObject::connect(&context, &LuContext::currentMonitorChanged, &engine, [this] {
        const QList<QObject*> all = context.monitors();
        for (QObject* monitor : all)
            monitor->setProperty("isCurrentModel", monitor == context.currentMonitor());
    });
    context.setMonitors(monitors);
    engine.load(lumenMainWindowUrl());
}

Shell::PictureCache::~PictureCache()
{
    lumenQmlRelease();
}

Shell::~Shell()
{
    if (window())
        window()->hide();
    context.setMonitors({});
}

QQuickWindow* Shell::window() const
{
    return context.mainWindow();
}

QQuickItem* Shell::widget(const char* name) const
{
    return item(QString::fromLatin1(name));
}

QQuickItem* Shell::item(const QString& objectName) const
{
    const QList<QWindow*> windows = QGuiApplication::topLevelWindows();
    for (QWindow* one : windows) {
        auto* quick = qobject_cast<QQuickWindow*>(one);
        if (!quick || !quick->isVisible())
            continue;
        if (QQuickItem* found = itemBelow(quick->contentItem(), objectName))
            return found;
    }
    return nullptr;
}

QQuickWindow* Shell::openSettings(const QString& section)
{
    if (!bridge->show().ok() || !bridge->openSection(section).ok())
        return nullptr;
    auto* settings = window()->property("settingsWindow").value<QQuickWindow*>();
    return settings && QTest::qWaitForWindowExposed(settings, PatienceMs) ? settings : nullptr;
}

bool Shell::shows(const QQuickWindow* window, const QString& part)
{
    QList<QQuickItem*> items{window->contentItem()};
    while (!items.isEmpty()) {
        const QQuickItem* each = items.takeFirst();
        if (!each->isVisible())
            continue;
        if (each->property("text").toString().contains(part))
            return true;
        items.append(each->childItems());
    }
    return false;
}

QStringList Shell::takeWarnings()
{
    return std::exchange(logged, {});
}

QList<QUrl> Shell::widgetUrls()
{
    return widgetUrls(UsualWidgets);
}

QList<QUrl> Shell::widgetUrls(const QStringList& names)
{
    QList<QUrl> urls;
    for (const QString& name : names)
        urls << QUrl(u"qrc:///TKPackage/qml/TKPackage/Widgets/%1.qml"_s.arg(name));
    return urls;
}
