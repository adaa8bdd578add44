// SPDX-License-Identifier: Apache-2.0
#include "LuWindowBridge.h"

#include "LuAccessibleTree.h"
#include "LuContext.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QQmlEngine>
#include <QQmlError>
#include <QQuickItem>
#include <QQuickWindow>
#include <QScopeGuard>

using namespace Qt::StringLiterals;

namespace {

QJsonObject toJson(const QRect& rect)
{
    return {{u"x"_s, rect.x()}, {u"y"_s, rect.y()}, {u"width"_s, rect.width()}, {u"height"_s, rect.height()}};
}

bool isTypeOf(const QObject* object, const QString& type)
{
    const QString name = QString::fromLatin1(object->metaObject()->className());
    return object->objectName() == type || name == type || name.startsWith(type + "_QML"_L1);
}

} // namespace

LuWindowBridge::LuWindowBridge(QQmlEngine* engine, QObject* parent) : QObject(parent)
{
    connect(engine, &QQmlEngine::warnings, this, [this](const QList<QQmlError>& errors) {
        for (const QQmlError& error : errors)
            m_warnings << error.toString();
    });
}

LuWindowBridge::~LuWindowBridge() = default;

LuWindowBridge::Result LuWindowBridge::failure(int code, const QString& message)
{
    return {code, message, {}};
}

LuWindowBridge::Result LuWindowBridge::noWindow()
{
    return failure(NoWindow, u"there is no window"_s);
}

QString LuWindowBridge::windowName(const QWindow* window)
{
    return window->objectName().isEmpty() ? window->title() : window->objectName();
}

QQuickWindow* LuWindowBridge::window() const
{
    return LuContext::instance()->mainWindow();
}

QQuickItem* LuWindowBridge::widgetItem(const QString& name) const
{
    QQuickItem* item = nullptr;
    if (QQuickWindow* main = window())
        QMetaObject::invokeMethod(main, "widgetItem", Q_RETURN_ARG(QQuickItem*, item), Q_ARG(QString, name));
    return item;
}

QQuickItem* LuWindowBridge::openPagePanel() const
{
    return window() ? window()->property("pagePanel").value<QQuickItem*>() : nullptr;
}

LuWindowBridge::Result LuWindowBridge::show()
{
    if (!window())
        return noWindow();
    window()->show();
    // The off-screen platform has no order of windows and says so each time.
    if (QGuiApplication::platformName() != "offscreen"_L1)
        window()->raise();
    window()->requestActivate();
    return {};
}

LuWindowBridge::Result LuWindowBridge::hide()
{
    if (!window())
        return noWindow();
    window()->hide();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    return {};
}

LuWindowBridge::Result LuWindowBridge::widgetInfos() const
{
    if (!window())
        return noWindow();
    QVariant items;
    QMetaObject::invokeMethod(window(), "widgetItems", Q_RETURN_ARG(QVariant, items));
    QJsonArray infos;
    const QVariantList list = items.toList();
    for (const QVariant& entry : list) {
        const auto* item = entry.value<QQuickItem*>();
        if (!item)
            continue;
        const bool supported = item->property("functionSupported").toBool();
        infos.append(QJsonObject{
            {u"widget"_s, item->property("widgetName").toString()},
            {u"text"_s, item->property("text").toString()},
            {u"supported"_s, supported},
            {u"active"_s, item->property("active").toBool()},
            {u"enabled"_s, item->isEnabled()},
            {u"shown"_s, supported && item->isVisible() && window()->isVisible()},
            {u"image"_s, item->property("currentImage").toUrl().toString()},
            {u"popup"_s, item->property("popupWindow").value<QObject*>() != nullptr},
        });
    }
    return {NoError, {}, infos};
}

LuWindowBridge::Result LuWindowBridge::openPage(const QString& widget)
{
    if (!window())
        return noWindow();
    QQuickItem* item = widgetItem(widget);
    if (!item)
        return failure(NoSuchThing, u"no such widget: %1"_s.arg(widget));
    if (!item->isEnabled())
        return failure(NotWritable, u"the widget is disabled: %1"_s.arg(widget));
    if (item->property("popupWindow").value<QObject*>())
        return openPopup(widget);
    // A page can only be seen with its window, and hiding the window closes it.
    const bool has = item->property("page").value<QObject*>() != nullptr;
    if (has && !window()->isVisible())
        show();
    bool opened = false;
    QMetaObject::invokeMethod(window(), "openPage", Q_RETURN_ARG(bool, opened), Q_ARG(QString, widget));
    return opened ? Result() : failure(NoSuchThing, u"the widget has no page: %1"_s.arg(widget));
}

LuWindowBridge::Result LuWindowBridge::openSection(const QString& section)
{
    if (!window())
        return noWindow();
    if (section == "arrange"_L1) {
        if (!window()->isVisible())
            show();
        QMetaObject::invokeMethod(window(), "openArrangement");
        return {};
    }
    bool opened = false;
    if (section == "walkthrough"_L1) {
        QMetaObject::invokeMethod(window(), "openWalkthrough", Q_RETURN_ARG(bool, opened));
        return opened ? Result() : failure(NoSuchThing, u"the package has no introduction"_s);
    }
    QMetaObject::invokeMethod(window(), "openSettings", Q_RETURN_ARG(bool, opened), Q_ARG(QString, section));
    if (!opened)
        return failure(NoSuchThing, u"no such section: %1"_s.arg(section));
    return {};
}

QQuickItem* LuWindowBridge::sectionItem(const QString& name) const
{
    auto* settings = window() ? window()->property("settingsWindow").value<QQuickWindow*>() : nullptr;
    auto* section = settings ? settings->property("section").value<QQuickItem*>() : nullptr;
    return section && section->property("sectionName").toString() == name ? section : nullptr;
}

LuWindowBridge::Result LuWindowBridge::openPopup(const QString& widget)
{
    if (!window())
        return noWindow();
    QQuickItem* item = widgetItem(widget);
    auto* popup = item ? item->property("popupWindow").value<QObject*>() : nullptr;
    bool named = false;
    if (!popup)
        QMetaObject::invokeMethod(window(), "openPopup", Q_RETURN_ARG(bool, named), Q_ARG(QString, widget));
    if (!popup && !named)
        return failure(NoSuchThing, u"no such popup: %1"_s.arg(widget));
    if (!window()->isVisible())
        show();
    if (popup)
        QMetaObject::invokeMethod(popup, "open");
    return {};
}

QQuickItem* LuWindowBridge::popupItem(const QString& type) const
{
    QList<QQuickItem*> places{window()->contentItem()};
    if (auto* settings = window()->property("settingsWindow").value<QQuickWindow*>())
        places.prepend(settings->contentItem());
    for (const QQuickItem* place : std::as_const(places)) {
        const QList<QQuickItem*> children = place->childItems();
        for (QQuickItem* child : children) {
            if (isTypeOf(child, type))
                return child;
        }
    }
    return nullptr;
}

QQuickWindow* LuWindowBridge::windowOfType(const QString& type) const
{
    const QList<QWindow*> all = QGuiApplication::topLevelWindows();
    for (QWindow* one : all) {
        if (one != window() && one->isVisible() && isTypeOf(one, type))
            return qobject_cast<QQuickWindow*>(one);
    }
    return nullptr;
}

LuWindowBridge::Result LuWindowBridge::close(const QString& name)
{
    if (!window())
        return noWindow();
    // What closes is deleted when the control returns to the event loop; the caller wants it gone now.
    const auto flush =
        qScopeGuard([] { QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); });
    const auto* open = window()->property("openWidget").value<QQuickItem*>();
    const bool arranging = !open && window()->property("pageOpen").toBool();
    if (name.isEmpty() || (name == "arrange"_L1 && arranging) ||
        (open && open->property("widgetName").toString() == name)) {
        QMetaObject::invokeMethod(window(), "closePage");
        return {};
    }
    if (QQuickItem* item = widgetItem(name)) {
        if (auto* popup = item->property("popupWindow").value<QObject*>())
            QMetaObject::invokeMethod(popup, "close");
        return {};
    }
    if (QQuickWindow* feedback = windowOfType(name)) {
        feedback->close();
        return {};
    }
    if (name == "walkthrough"_L1 && window()->property("walkthroughWindow").value<QQuickWindow*>()) {
        QMetaObject::invokeMethod(window(), "closeWalkthrough");
        return {};
    }
    const auto* settings = window()->property("settingsWindow").value<QQuickWindow*>();
    if (settings && settings->property("page").toString() == name) {
        QMetaObject::invokeMethod(window(), "closeSettings");
        return {};
    }
    if (QQuickItem* popup = popupItem(name)) {
        // A popup of a choice is left without one.
        const bool cancels = popup->metaObject()->indexOfMethod("cancel()") >= 0;
        QMetaObject::invokeMethod(popup, cancels ? "cancel" : "close");
        return {};
    }
    return failure(NoSuchThing, u"nothing of that name is open: %1"_s.arg(name));
}

LuWindowBridge::Result LuWindowBridge::tree(const QString& widget) const
{
    if (!window())
        return noWindow();
    QJsonObject root{
        {u"role"_s, u"group"_s}, {u"name"_s, window()->title()}, {u"enabled"_s, true}, {u"focused"_s, false}};
    QJsonArray children;
    if (widget.isEmpty()) {
        const QList<QWindow*> all = QGuiApplication::topLevelWindows();
        for (QWindow* one : all) {
            auto* quick = qobject_cast<QQuickWindow*>(one);
            if (quick && quick->isVisible())
                children.append(LuAccessibleTree::ofWindow(quick));
        }
    } else {
        QQuickItem* item = widgetItem(widget);
        if (!item)
            return failure(NoSuchThing, u"no such widget: %1"_s.arg(widget));
        root.insert(u"name"_s, item->property("text").toString());
        children = LuAccessibleTree::ofItem(item);
        if (item->property("pageOpen").toBool() && openPagePanel()) {
            const QJsonArray page = LuAccessibleTree::ofItem(openPagePanel());
            for (const QJsonValue& node : page)
                children.append(node);
        }
    }
    root.insert(u"children"_s, children);
    return {NoError, {}, root};
}

QList<QObject*> LuWindowBridge::scopes(const QString& within) const
{
    QList<QObject*> result;
    if (within.isEmpty()) {
        const QList<QWindow*> all = QGuiApplication::topLevelWindows();
        for (QWindow* one : all) {
            if (qobject_cast<QQuickWindow*>(one) && one->isVisible())
                result << one;
        }
        return result;
    }
    if (QQuickItem* item = widgetItem(within)) {
        // What stands on the page comes before a tile of the same name.
        if (item->property("pageOpen").toBool() && openPagePanel())
            result << openPagePanel();
        result << item;
        return result;
    }
    if (QQuickItem* popup = popupItem(within))
        return {popup};
    if (QQuickItem* section = sectionItem(within))
        return {section};
    const QList<QWindow*> all = QGuiApplication::topLevelWindows();
    for (QWindow* one : all) {
        if (isTypeOf(one, within))
            result << one;
    }
    return result;
}

LuWindowBridge::Found LuWindowBridge::find(const QString& name, const QString& role, const QString& within,
                                           const std::function<bool(const QQuickItem*)>& accepts) const
{
    if (!window())
        return {nullptr, {}, noWindow()};
    const QList<QObject*> roots = scopes(within);
    if (roots.isEmpty() && within.isEmpty())
        return {nullptr, {}, failure(NoSuchThing, u"no window is shown, so no such control: %1"_s.arg(name))};
    if (roots.isEmpty())
        return {nullptr, {}, failure(NoSuchThing, u"nothing of that name is open: %1"_s.arg(within))};
    Found label;
    for (QObject* root : roots) {
        const QList<LuAccessibleTree::Node> nodes = LuAccessibleTree::nodesBelow(root);
        for (const LuAccessibleTree::Node& node : nodes) {
            if (node.name != name || (!role.isEmpty() && node.role != role))
                continue;
            if (role.isEmpty() && accepts && !accepts(node.item))
                continue;
            if (!node.item->isEnabled()) {
                label = {nullptr, node.role,
                         failure(NotWritable, u"the control is disabled: %1"_s.arg(name))};
                continue;
            }
            // Without a role a control is meant, not the text or page of the same name.
            if (role.isEmpty() && (node.role == "label"_L1 || node.role == "page"_L1 ||
                                   node.role == "group"_L1 || node.role == "window"_L1))
                continue;
            return {node.item, node.role, {}};
        }
    }
    if (!label.error.ok())
        return label;
    return {nullptr, {}, failure(NoSuchThing, u"no such control: %1"_s.arg(name))};
}

LuWindowBridge::Result LuWindowBridge::press(const QString& name, const QString& role, const QString& within)
{
    const Found found = find(name, role, within);
    if (!found.item)
        return found.error;
    if (found.item->metaObject()->indexOfMethod("assistivePress()") < 0)
        return failure(NotWritable, u"the control cannot be pressed: %1"_s.arg(name));
    QMetaObject::invokeMethod(found.item, "assistivePress");
    return {};
}

LuWindowBridge::Result LuWindowBridge::setValue(const QString& name, const QVariant& value,
                                                const QString& role, const QString& within)
{
    const bool isChoice = value.typeId() == QMetaType::Bool;
    const auto hasValue = [](const QQuickItem* item) {
        return item->metaObject()->indexOfMethod("assistiveSet(QVariant)") >= 0;
    };
    // A button may have the name of the slider that it leads to.
    Found found = find(name, role, within, [&](const QQuickItem* item) {
        return hasValue(item) || (isChoice && item->property("checked").isValid());
    });
    if (!found.item && found.error.code == NoSuchThing)
        found = find(name, role, within);
    if (!found.item)
        return found.error;
    if (isChoice && found.item->property("checked").isValid()) {
        if (found.item->property("checked") != value)
            QMetaObject::invokeMethod(found.item, "assistivePress");
        return {};
    }
    if (!hasValue(found.item))
        return failure(NotWritable, u"the control has no value: %1"_s.arg(name));
    bool taken = false;
    QMetaObject::invokeMethod(found.item, "assistiveSet", Q_RETURN_ARG(bool, taken), Q_ARG(QVariant, value));
    return taken ? Result()
                 : failure(WrongValue, u"\"%1\" takes no such value: %2"_s.arg(name, value.toString()));
}

LuWindowBridge::Result LuWindowBridge::windows() const
{
    QJsonArray list;
    const QList<QWindow*> all = QGuiApplication::topLevelWindows();
    for (const QWindow* one : all) {
        const auto* quick = qobject_cast<const QQuickWindow*>(one);
        list.append(QJsonObject{
            {u"name"_s, windowName(one)},
            {u"visible"_s, one->isVisible()},
            {u"rect"_s, toJson(one->geometry())},
            {u"color"_s, quick ? quick->color().name(QColor::HexArgb) : QString()},
            {u"flags"_s, int(one->flags())},
        });
    }
    return {NoError, {}, list};
}
