// SPDX-License-Identifier: Apache-2.0
#include "LumenQml.h"

#include "LuComputers.h"
#include "LuContext.h"
#include "LuDiagnostics.h"
#include "LuFlowActions.h"
#include "LuIconProvider.h"
#include "LuLottieItem.h"
#include "LuPlace.h"
#include "LuPreferences.h"
#include "LuProgramIcons.h"

#ifdef LUMEN_QML_SHARED_TYPES
#include <LuShared/LuDataCollection.h>
#include <LuShared/LuModelModuleInterface.h>
#include <LuShared/LuMonitorModel.h>
#include <LuShared/LuShortcutAction.h>
#include <LuShared/LuVCPNode.h>
#endif

#include <QQmlEngine>
#include <QQuickWindow>
#include <QUrl>
#include <QtQml>

using namespace Qt::StringLiterals;

// Q_INIT_RESOURCE declares a function and must stand outside any namespace.
static void initResources()
{
    Q_INIT_RESOURCE(lumenqml);
    Q_INIT_RESOURCE(lumenqml_fallback);
    Q_INIT_RESOURCE(lumenqml_shaders);
    Q_INIT_RESOURCE(lumenqml_translations);
}

namespace {
void registerTypes()
{
    static bool done = false;
    if (done)
        return;
    done = true;
    qmlRegisterSingletonType<LuContext>("LumenDesk", 1, 0, "LuContext",
                                        [](QQmlEngine*, QJSEngine*) -> QObject* {
                                            LuContext* context = LuContext::instance();
                                            QJSEngine::setObjectOwnership(context, QJSEngine::CppOwnership);
                                            return context;
                                        });
    qmlRegisterSingletonType<LuComputers>(
        "LumenDesk", 1, 0, "LuComputers", [](QQmlEngine*, QJSEngine*) -> QObject* {
            LuComputers* computers = LuComputers::instance();
            QJSEngine::setObjectOwnership(computers, QJSEngine::CppOwnership);
            return computers;
        });
    qmlRegisterSingletonType<LuDiagnostics>(
        "LumenDesk", 1, 0, "LuDiagnostics", [](QQmlEngine*, QJSEngine*) -> QObject* {
            LuDiagnostics* diagnostics = LuDiagnostics::instance();
            QJSEngine::setObjectOwnership(diagnostics, QJSEngine::CppOwnership);
            return diagnostics;
        });
    qmlRegisterSingletonType<LuPlace>("LumenDesk", 1, 0, "LuPlace", [](QQmlEngine*, QJSEngine*) -> QObject* {
        LuPlace* place = LuPlace::instance();
        QJSEngine::setObjectOwnership(place, QJSEngine::CppOwnership);
        return place;
    });
    qmlRegisterSingletonType<LuPreferences>(
        "LumenDesk", 1, 0, "LuPreferences", [](QQmlEngine*, QJSEngine*) -> QObject* {
            LuPreferences* preferences = LuPreferences::instance();
            QJSEngine::setObjectOwnership(preferences, QJSEngine::CppOwnership);
            return preferences;
        });
    qmlRegisterSingletonType<LuFlowActions>(
        "LumenDesk", 1, 0, "LuFlowActions",
        [](QQmlEngine*, QJSEngine*) -> QObject* { return new LuFlowActions; });
    qmlRegisterType<LuLottieItem>("LumenDesk", 1, 0, "LuLottieItem");
#ifdef LUMEN_QML_SHARED_TYPES
    const QString reason = u"Owned by the monitor"_s;
    qmlRegisterUncreatableType<LuMonitorModel>("LumenDesk", 1, 0, "LuMonitorModel", reason);
    qmlRegisterUncreatableType<LuModelModuleInterface>("LumenDesk", 1, 0, "LuModelModuleInterface", reason);
    qmlRegisterUncreatableType<LuVCPNode>("LumenDesk", 1, 0, "LuVCPNode", reason);
    qmlRegisterUncreatableType<LuActionInterface>("LumenDesk", 1, 0, "LuActionInterface", reason);
    qmlRegisterUncreatableType<LuShortcutAction>("LumenDesk", 1, 0, "LuShortcutAction", reason);
    qmlRegisterUncreatableType<LuDataCollection>("LumenDesk", 1, 0, "LuDataCollection",
                                                 u"Only enumerations"_s);
#endif
}
} // namespace

void lumenQmlResources()
{
    initResources();
}

void lumenQmlInit(QQmlEngine* engine, const QStringList& packages)
{
    initResources();
    registerTypes();
    // Own modules first; stand-ins for modules that an older Qt lacks last, so that the real ones win.
    // addImportPath() would prepend each.
    QStringList paths = engine->importPathList();
    // A package's files import their module by the relative path "..". That import gets the module's name,
    // and with it the C++ types, only from an import path that begins as the file's own path does. The engine
    // turns ":/" into "qrc:/" unless it comes as a file's address.
    for (const QString& package : packages) {
        paths.prepend(QUrl::fromLocalFile(u":/%1/qml"_s.arg(package)).toString());
        paths.prepend(u"qrc:/%1/qml"_s.arg(package));
    }
    LuContext::instance()->setPackages(packages);
    paths.prepend(u"qrc:/lumendesk/qml"_s);
    paths.append(u"qrc:/lumendesk/fallback"_s);
    engine->setImportPathList(paths);
    engine->addImageProvider(u"lumen"_s, new LuIconProvider);
    engine->addImageProvider(u"programicon"_s, new LuProgramIcons);
}

void lumenQmlRelease()
{
    // Items on their way out still hold their pictures.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QQuickWindow last;
    last.resize(1, 1);
    last.releaseResources();
    // What was released is deleted with the next drawing.
    last.grabWindow();
}

QUrl lumenMainWindowUrl()
{
    return QUrl(u"qrc:/lumendesk/qml/LumenDesk/MainWindow.qml"_s);
}
