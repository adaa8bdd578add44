// SPDX-License-Identifier: Apache-2.0
#include "Shell.h"

#include <QCommandLineParser>
#include <QDir>
#include <QGuiApplication>
#include <QJsonDocument>
#include <QTest>

using namespace Qt::StringLiterals;

/// Draws the shell on doubles into PNG files, light and dark; QT_SCALE_FACTOR gives the scale.
int main(int argc, char** argv)
{
    QGuiApplication app(argc, argv);
    QCommandLineParser parser;
    parser.addHelpOption();
    parser.addPositionalArgument(u"folder"_s, u"Where the pictures go"_s);
    parser.process(app);
    const QDir folder(parser.positionalArguments().value(0, u"."_s));
    const QString suffix = app.devicePixelRatio() > 1 ? u"-%1x"_s.arg(app.devicePixelRatio()) : QString();

    FakeMonitor first(u"TK30Z"_s);
    FakeMonitor second(u"TK20"_s);
    second.pivot.autoPivotEnable = false;
    second.pivot.setCurrentPivot(90);
    first.contrast.setState(true);
    Shell shell({&first, &second});
    shell.bridge->show();
    const auto shoot = [&](const QString& name, const QString& widget = {}) {
        for (const QString& theme : {u"light"_s, u"dark"_s}) {
            const QString file = folder.filePath(name + u'-' + theme + suffix + u".png"_s);
            if (const auto result = shell.bridge->screenshot(file, widget, theme); !result.ok())
                qCritical().noquote() << result.message;
        }
    };
    if (qEnvironmentVariableIsSet("DUMP"))
        qInfo().noquote() << QJsonDocument(shell.bridge->tree().value.toObject()).toJson();
    shoot(u"main"_s);
    shoot(u"page-pivot"_s, u"LuAutoPivotWidget"_s);
    first.pivot.setState(true);
    shoot(u"page-pivot-auto"_s, u"LuAutoPivotWidget"_s);
    first.setColorMode(&first.forbidding);
    shell.bridge->openPopup(u"LuAiContrastWidget"_s);
    shoot(u"warning"_s);
    shell.bridge->close(u"LuAiContrastWidget"_s);
    shell.context.setCurrentMonitor(&second);
    shoot(u"second"_s);
    shoot(u"second-page"_s, u"LuPivotWidget"_s);
    shell.context.setMonitors({});
    shoot(u"empty"_s);

    shell.engine.load(QUrl(u"qrc:/tests/Controls.qml"_s));
    auto* controls = qobject_cast<QQuickWindow*>(shell.engine.rootObjects().constLast());
    controls->setProperty("confirmed", 55);
    for (const QString& theme : {u"light"_s, u"dark"_s}) {
        shell.context.setTheme(theme);
        if (!QTest::qWaitForWindowExposed(controls, PatienceMs) ||
            !controls->grabWindow().save(folder.filePath(u"controls-"_s + theme + suffix + u".png"_s)))
            qCritical("cannot draw the controls");
    }
    return Shell::takeWarnings().isEmpty() ? 0 : 1;
}
