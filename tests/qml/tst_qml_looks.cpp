// SPDX-License-Identifier: Apache-2.0
#include "LuContrast.h"
#include "LuTextAudit.h"
#include "Shell.h"

#include <QJsonObject>
#include <QQuickItem>
#include <QTest>

#include <optional>

using namespace Qt::StringLiterals;

/// What can be told of a picture: whether it is seen well, and whether what is off looks so and no longer.
class TestLooks : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void contrastFollowsTheFormula_data();
    void contrastFollowsTheFormula();
    void whatIsHardToSeeIsTold_data();
    void whatIsHardToSeeIsTold();
    void aGroupThatIsOffFadesAndComesBack();
    void windowsHoldAllTheyHaveForAPicture();

private:
    QStringList problems();

    std::optional<Shell> m_shell;
    QPointer<QQuickWindow> m_window;
};

void TestLooks::init()
{
    m_shell.emplace(QList<FakeMonitor*>());
    m_shell->context.setReducedMotion(true);
    m_shell->context.setTheme(u"light"_s);
    m_shell->engine.load(QUrl(u"qrc:/tests/Looks.qml"_s));
    m_window = qobject_cast<QQuickWindow*>(m_shell->engine.rootObjects().constLast());
    QVERIFY(m_window);
    QVERIFY(QTest::qWaitForWindowExposed(m_window));
}

void TestLooks::cleanup()
{
    m_shell.reset();
    QCOMPARE(Shell::takeWarnings(), QStringList());
}

QStringList TestLooks::problems()
{
    QImage image = m_window->grabWindow();
    image.setDevicePixelRatio(double(image.width()) / m_window->width());
    QStringList list;
    const QJsonArray found = LuTextAudit::problemsOf(m_window, image);
    for (const QJsonValue& each : found)
        list << each[u"item"_s].toString() + u": "_s + each[u"problem"_s].toString().section(u' ', 0, 0);
    return list;
}

void TestLooks::contrastFollowsTheFormula_data()
{
    QTest::addColumn<QColor>("first");
    QTest::addColumn<QColor>("second");
    QTest::addColumn<double>("ratio");
    QTest::newRow("black on white") << QColor(Qt::black) << QColor(Qt::white) << 21.0;
    QTest::newRow("white on black") << QColor(Qt::white) << QColor(Qt::black) << 21.0;
    QTest::newRow("alike") << QColor(u"#345"_s) << QColor(u"#345"_s) << 1.0;
    QTest::newRow("the grey that is just enough") << QColor(u"#767676"_s) << QColor(Qt::white) << 4.54;
    QTest::newRow("pure blue") << QColor(u"#0000ff"_s) << QColor(Qt::white) << 8.59;
}

void TestLooks::contrastFollowsTheFormula()
{
    QFETCH(QColor, first);
    QFETCH(QColor, second);
    QFETCH(double, ratio);
    QVERIFY(qAbs(LuContrast::ratio(first, second) - ratio) < 0.01);
}

void TestLooks::whatIsHardToSeeIsTold_data()
{
    QTest::addColumn<QByteArray>("property");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QColor>("ink");
    QTest::addColumn<QStringList>("told");
    const QString text = u"text: contrast"_s;
    const QString icon = u"icon: contrast"_s;
    const QByteArray size("inkSize");
    QTest::newRow("black") << size << QVariant(13) << QColor(Qt::black) << QStringList();
    QTest::newRow("just enough") << size << QVariant(13) << QColor(u"#767676"_s) << QStringList();
    QTest::newRow("not quite") << size << QVariant(13) << QColor(u"#7c7c7c"_s) << QStringList{text};
    QTest::newRow("large, so enough") << size << QVariant(24) << QColor(u"#7c7c7c"_s) << QStringList();
    QTest::newRow("pale") << size << QVariant(24) << QColor(u"#c0c0c0"_s) << QStringList{text, icon};
    QTest::newRow("see-through") << size << QVariant(13) << QColor(u"#80000000"_s) << QStringList{text};
    QTest::newRow("pale and off") << QByteArray("inkEnabled") << QVariant(false) << QColor(u"#7c7c7c"_s)
                                  << QStringList();
    QTest::newRow("covered") << QByteArray("covered") << QVariant(true) << QColor(u"#5a5a5a"_s)
                             << QStringList();
}

void TestLooks::whatIsHardToSeeIsTold()
{
    QFETCH(QByteArray, property);
    QFETCH(QVariant, value);
    QFETCH(QColor, ink);
    QFETCH(QStringList, told);
    m_window->setProperty(property, value);
    m_window->setProperty("ink", ink);
    QTRY_COMPARE(problems(), told);
}

void TestLooks::aGroupThatIsOffFadesAndComesBack()
{
    const auto colors = [this] {
        const QImage image = m_window->grabWindow();
        const double scale = double(image.width()) / m_window->width();
        QStringList list;
        for (const int y : {160, 182, 204})
            list << image.pixelColor(int(150 * scale), int(y * scale)).name();
        return list;
    };
    const QStringList on = colors();
    QCOMPARE(on.at(0), u"#102030"_s);
    QCOMPARE(on.at(2), u"#203040"_s);
    for (int time = 0; time < 3; ++time) {
        m_window->setProperty("groupOn", false);
        QTRY_VERIFY(colors() != on);
        // Faded once, whatever lies in what: 0.3 of the colour on white.
        const auto isFaded = [&](int place, int before) {
            return qAbs(QColor(colors().at(place)).red() - (before * 0.3 + 255 * 0.7)) < 4;
        };
        QTRY_VERIFY(isFaded(0, 0x10));
        QVERIFY2(isFaded(2, 0x20), qPrintable(colors().at(2)));
        m_window->setProperty("groupOn", true);
        QTRY_COMPARE(colors(), on);
    }
}

void TestLooks::windowsHoldAllTheyHaveForAPicture()
{
    const QRectF screen = m_shell->context.availableGeometry(m_window);
    m_shell->context.setEndlessRoom(true);
    QVERIFY(m_shell->context.availableGeometry(m_window).height() > 10 * screen.height());
    m_shell->context.setEndlessRoom(false);
    QCOMPARE(m_shell->context.availableGeometry(m_window), screen);
}

QTEST_MAIN(TestLooks)
#include "tst_qml_looks.moc"
