// SPDX-License-Identifier: Apache-2.0
#include "AccessibleTree.h"
#include "DeskProcess.h"

#include <QtTest>

using namespace Qt::StringLiterals;

namespace {

/// An X server of the test's own, without a screen.
class XServer
{
public:
    ~XServer()
    {
        m_process.terminate();
        m_process.waitForFinished();
    }

    /// Starts it on a free display number; false with the reason in errors().
    bool start()
    {
        m_process.start(u"Xvfb"_s, {u"-noreset"_s, u"-displayfd"_s, u"1"_s, u"-screen"_s, u"0"_s,
                                    u"1280x900x24"_s, u"-nolisten"_s, u"tcp"_s, u"-noreset"_s});
        QByteArray number;
        while (!number.endsWith('\n')) {
            if (!m_process.waitForReadyRead(20000))
                return false;
            number += m_process.readAllStandardOutput();
        }
        m_display = u":"_s + QString::fromLatin1(number.trimmed());
        return true;
    }

    QString display() const { return m_display; }
    QString errors()
    {
        return m_process.errorString() + QString::fromLocal8Bit(m_process.readAllStandardError());
    }

private:
    QProcess m_process;
    QString m_display;
};

} // namespace

/// The window on a real X server, with a pointer that is moved and pressed there.
class TestWindowX11 : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();
    void realClickSwitchesTheMonitor();
    void realKeySwitchesTheMonitor();

private:
    bool xdotool(const QStringList& arguments);
    QString focused();
    QPoint centreOf(const QString& name);
    QJsonValue state() { return m_desk->client().get(u"aiContrast.state"_s); }

    XServer m_server;
    std::unique_ptr<DeskProcess> m_desk;
};

void TestWindowX11::initTestCase()
{
    QVERIFY2(m_server.start(), qPrintable(m_server.errors()));
    // For the program and for xdotool; this test has no window of its own.
    qputenv("DISPLAY", m_server.display().toLatin1());
    qputenv("QT_QPA_PLATFORM", "xcb");
    qputenv("QT_QUICK_BACKEND", "software");
    m_desk = std::make_unique<DeskProcess>();
    QVERIFY2(m_desk->start({u"--simulate"_s, u"TK30Z"_s, u"--ddc-timing"_s, u"fast"_s}),
             qPrintable(m_desk->errors()));
    QVERIFY(m_desk->client().call(u"idle"_s).ok());
}

void TestWindowX11::cleanupTestCase()
{
    if (!m_desk)
        return;
    QCOMPARE(m_desk->client().call(u"ui.warnings"_s).result.toArray(), QJsonArray());
    QCOMPARE(m_desk->stop(), 0);
}

bool TestWindowX11::xdotool(const QStringList& arguments)
{
    return QProcess::execute(u"xdotool"_s, arguments) == 0;
}

// Role, name and place of the control that has the focus.
QString TestWindowX11::focused()
{
    QList<QJsonValue> waiting{m_desk->client().call(u"ui.tree"_s).result};
    while (!waiting.isEmpty()) {
        const QJsonValue node = waiting.takeFirst();
        if (node[u"focused"_s].toBool() && node[u"role"_s].toString() != u"window"_s)
            return u"%1 %2 %3,%4"_s.arg(node[u"role"_s].toString(), node[u"name"_s].toString())
                .arg(node[u"rect"_s][u"x"_s].toDouble())
                .arg(node[u"rect"_s][u"y"_s].toDouble());
        for (const QJsonValue& child : node.isArray() ? node.toArray() : node[u"children"_s].toArray())
            waiting.append(child);
    }
    return {};
}

QPoint TestWindowX11::centreOf(const QString& name)
{
    const QJsonValue tree = m_desk->client().call(u"ui.tree"_s).result;
    const QJsonObject rect = findInTree(tree, u"button"_s, name).value(u"rect"_s).toObject();
    QJsonObject window;
    for (const QJsonValue& each : m_desk->client().call(u"ui.windows"_s).result.toArray()) {
        if (window.isEmpty() && each.toObject().value(u"visible"_s).toBool())
            window = each.toObject().value(u"rect"_s).toObject();
    }
    const auto number = [](const QJsonObject& object, const QString& key) {
        return object.value(key).toDouble();
    };
    return QPointF(number(window, u"x"_s) + number(rect, u"x"_s) + number(rect, u"width"_s) / 2,
                   number(window, u"y"_s) + number(rect, u"y"_s) + number(rect, u"height"_s) / 2)
        .toPoint();
}

void TestWindowX11::realClickSwitchesTheMonitor()
{
    // It is on the screen, drawn, and has come to its place.
    QVERIFY(xdotool({u"search"_s, u"--sync"_s, u"--onlyvisible"_s, u"--class"_s, u"lumen-desk"_s}));
    QVERIFY(m_desk->client().call(u"ui.screenshot"_s, {{u"file"_s, m_desk->filePath(u"first.png"_s)}}).ok());
    QPoint point;
    const auto stands = [&] {
        const QPoint before = point;
        point = centreOf(u"Local Contrast"_s);
        return point == before && !point.isNull();
    };
    QTRY_VERIFY(stands());
    QCOMPARE(state(), QJsonValue(false));
    QVERIFY(xdotool(
        {u"mousemove"_s, QString::number(point.x()), QString::number(point.y()), u"click"_s, u"1"_s}));
    QTRY_COMPARE(state(), QJsonValue(true));
    QCOMPARE(m_desk->client().value(u"sim.get"_s, {{u"code"_s, 0xF3}}), QJsonValue(1));
    QVERIFY(xdotool({u"click"_s, u"1"_s}));
    QTRY_COMPARE(state(), QJsonValue(false));
}

void TestWindowX11::realKeySwitchesTheMonitor()
{
    // Without a window manager nobody gives the focus: the pointer lies over the window from the click
    // before.
    QVERIFY(xdotool(
        {u"search"_s, u"--onlyvisible"_s, u"--class"_s, u"lumen-desk"_s, u"windowfocus"_s, u"--sync"_s}));
    // The key reaches the program some time after it was sent: each is awaited before the next.
    for (int i = 0; i < 30 && !focused().startsWith(u"button Local Contrast "_s); ++i) {
        const QString before = focused();
        QVERIFY(xdotool({u"key"_s, u"Tab"_s}));
        QTRY_VERIFY(focused() != before);
    }
    QVERIFY(focused().startsWith(u"button Local Contrast "_s));
    QVERIFY(xdotool({u"key"_s, u"space"_s}));
    QTRY_COMPARE(state(), QJsonValue(true));
}

QTEST_GUILESS_MAIN(TestWindowX11)
#include "tst_window_x11.moc"
