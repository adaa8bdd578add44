// SPDX-License-Identifier: Apache-2.0
#include "Shell.h"

#include <QDeadlineTimer>
#include <QProcess>
#include <QQmlComponent>
#include <QScreen>
#include <QTest>

#include <optional>

using namespace Qt::StringLiterals;

namespace {

QString outputOf(const QString& program, const QStringList& arguments)
{
    QProcess process;
    process.start(program, arguments);
    process.waitForFinished(20000);
    return QString::fromLocal8Bit(process.readAllStandardOutput()).trimmed();
}

} // namespace

/// Feedback on the screen of a real X server with a window manager, which gives and takes the focus.
class TestFeedbackX11 : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void feedbackTakesNoFocusAndNoClick();

private:
    std::unique_ptr<QQuickWindow> make(Shell& shell);
};

std::unique_ptr<QQuickWindow> TestFeedbackX11::make(Shell& shell)
{
    QQmlComponent component(&shell.engine);
    component.setData(
        "import QtQuick\nimport LumenDesk\nLuWindow { width: 250; height: 76; timeout: 0; text: 'FloW' }\n",
        QUrl(u"qrc:/tests/Feedback.qml"_s));
    return std::unique_ptr<QQuickWindow>(qobject_cast<QQuickWindow*>(component.create()));
}

void TestFeedbackX11::feedbackTakesNoFocusAndNoClick()
{
    FakeMonitor monitor(u"TK30Z"_s);
    Shell shell({&monitor});
    QVERIFY(shell.bridge->show().ok());
    QVERIFY(QTest::qWaitForWindowActive(shell.window(), PatienceMs));
    const QString active = QString::number(shell.window()->winId());
    QTRY_COMPARE(outputOf(u"xdotool"_s, {u"getactivewindow"_s}), active);

    const std::unique_ptr<QQuickWindow> feedback = make(shell);
    QVERIFY(feedback);
    feedback->setProperty("verticalShare", 0.9);
    QMetaObject::invokeMethod(feedback.get(), "open");
    QVERIFY(QTest::qWaitForWindowExposed(feedback.get(), PatienceMs));
    // The window manager left it where it was put.
    const QRect screen = QGuiApplication::primaryScreen()->geometry();
    const QPoint wanted(screen.x() + (screen.width() - 250) / 2,
                        screen.y() + qRound((screen.height() - 76) * 0.9));
    QTRY_VERIFY(outputOf(u"xdotool"_s, {u"getwindowgeometry"_s, QString::number(feedback->winId())})
                    .contains(u"Position: %1,%2"_s.arg(wanted.x()).arg(wanted.y())));
    QCOMPARE(outputOf(u"xdotool"_s, {u"getactivewindow"_s}), active);
    QVERIFY(shell.window()->isActive());
    // A click goes through it, and leaves it where it is.
    QCOMPARE(QProcess::execute(u"xdotool"_s, {u"mousemove"_s, QString::number(wanted.x() + 50),
                                              QString::number(wanted.y() + 30), u"click"_s, u"1"_s}),
             0);
    const QString under = outputOf(u"xdotool"_s, {u"getmouselocation"_s, u"--shell"_s});
    QVERIFY2(!under.contains(u"WINDOW=%1"_s.arg(feedback->winId())), qPrintable(under));
    QVERIFY(feedback->isVisible());
    feedback->hide();
    QCOMPARE(Shell::takeWarnings(), QStringList());
}

int main(int argc, char** argv)
{
    // The server and the window manager stand before the application object asks for them.
    QProcess server;
    server.start(u"Xvfb"_s, {u"-noreset"_s, u"-displayfd"_s, u"1"_s, u"-screen"_s, u"0"_s, u"1280x900x24"_s,
                             u"-nolisten"_s, u"tcp"_s, u"-noreset"_s});
    QByteArray number;
    while (!number.endsWith('\n')) {
        if (!server.waitForReadyRead(20000)) {
            qCritical("no X server: %s", qPrintable(server.errorString()));
            return 1;
        }
        number += server.readAllStandardOutput();
    }
    qputenv("DISPLAY", ":" + number.trimmed());
    qputenv("QT_QPA_PLATFORM", "xcb");
    qputenv("QT_QUICK_BACKEND", "software");
    QProcess manager;
    manager.start(u"openbox"_s, QStringList());
    int result = 1;
    // It takes over the windows that are there, but gives the focus only to those that come later.
    const auto manages = [] {
        return outputOf(u"xprop"_s, {u"-root"_s, u"_NET_SUPPORTING_WM_CHECK"_s}).contains(u"window id"_s);
    };
    QDeadlineTimer limit(PatienceMs);
    bool ready = manager.waitForStarted(20000);
    while (ready && !manages())
        ready = !limit.hasExpired();
    if (ready) {
        QGuiApplication application(argc, argv);
        TestFeedbackX11 test;
        result = QTest::qExec(&test, argc, argv);
    }
    manager.terminate();
    manager.waitForFinished();
    server.terminate();
    server.waitForFinished();
    return result;
}

#include "tst_qml_feedback_x11.moc"
