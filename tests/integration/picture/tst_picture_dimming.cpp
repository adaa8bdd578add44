// SPDX-License-Identifier: Apache-2.0
#include "PictureDesk.h"

#include <QtTest>

using namespace Qt::StringLiterals;

namespace {

constexpr int Brightness = 0x10;

} // namespace

/// Brightness below the lowest of the monitor: what the overlay and the back-light share, told from outside.
class TestPictureDimming : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void overlayAndBacklightShareTheBrightness_data();
    void overlayAndBacklightShareTheBrightness();
    void readingFindsTheBrightness_data();
    void readingFindsTheBrightness();
    void switchingOffWritesTheBrightnessItself();
    void theOverlayIsAWindowThatTakesNothing();
    void theOldKeyIsTakenOver();
    void theChoiceAndTheOverlayComeBackAfterARestart();
    void anUnsupportedMonitorIsNotDimmed();
    void whatIsNotThereIsTold();

private:
    PictureDesk& desk() { return *m_desk; }
    std::unique_ptr<PictureDesk> m_desk;
};

void TestPictureDimming::init()
{
    m_desk = std::make_unique<PictureDesk>();
    QVERIFY2(desk().startWith(u"TK30Z"_s), qPrintable(desk().errors()));
}

void TestPictureDimming::cleanup()
{
    m_desk.reset();
}

void TestPictureDimming::overlayAndBacklightShareTheBrightness_data()
{
    QTest::addColumn<int>("brightness");
    QTest::addColumn<int>("hardware");
    QTest::addColumn<double>("alpha");
    QTest::newRow("0") << 0 << 0 << 0.85;
    QTest::newRow("10") << 10 << 0 << 0.7;
    QTest::newRow("29") << 29 << 0 << 0.05;
    QTest::newRow("30") << 30 << 0 << 0.0;
    QTest::newRow("31") << 31 << 1 << 0.0;
    QTest::newRow("64") << 64 << 49 << 0.0;
    QTest::newRow("100") << 100 << 100 << 0.0;
}

void TestPictureDimming::overlayAndBacklightShareTheBrightness()
{
    QFETCH(int, brightness);
    QFETCH(int, hardware);
    QFETCH(double, alpha);
    QVERIFY(desk().set(u"brightness.displayBrightness"_s, 15));
    QVERIFY(desk().set(u"brightness.displayBrightness"_s, brightness));
    QCOMPARE(desk().held(Brightness), hardware);
    QTRY_COMPARE(desk().overlay().value(u"alpha"_s).toDouble(), alpha);
    QTRY_COMPARE(desk().overlay().value(u"visible"_s).toBool(), alpha > 0);
}

void TestPictureDimming::readingFindsTheBrightness_data()
{
    QTest::addColumn<int>("before");
    QTest::addColumn<int>("hardware");
    QTest::addColumn<int>("brightness");
    QTest::newRow("hardware 0 under 0.5") << 15 << 0 << 16;
    QTest::newRow("hardware 0 under 0.85") << 2 << 0 << 5;
    QTest::newRow("hardware 2") << 80 << 2 << 31;
    QTest::newRow("hardware 0 without an overlay") << 80 << 0 << 30;
    QTest::newRow("hardware 100 under an overlay") << 10 << 100 << 100;
}

void TestPictureDimming::readingFindsTheBrightness()
{
    QFETCH(int, before);
    QFETCH(int, hardware);
    QFETCH(int, brightness);
    QVERIFY(desk().set(u"brightness.displayBrightness"_s, before));
    QVERIFY(desk().menu(Brightness, hardware));
    QVERIFY(desk().sync());
    QCOMPARE(desk().get(u"brightness.displayBrightness"_s), QJsonValue(brightness));
    // The overlay shows that brightness, and the next round finds nothing new.
    QVERIFY(desk().sync());
    QCOMPARE(desk().get(u"brightness.displayBrightness"_s), QJsonValue(brightness));
}

void TestPictureDimming::switchingOffWritesTheBrightnessItself()
{
    QVERIFY(desk().set(u"brightness.displayBrightness"_s, 10));
    QTRY_VERIFY(desk().overlay().value(u"visible"_s).toBool());
    desk().forget();
    QVERIFY(desk().set(u"brightness.softwareDimming.state"_s, false));
    QCOMPARE(desk().writes(), QStringList{u"10=10"_s});
    QTRY_VERIFY(!desk().overlay().value(u"visible"_s).toBool());
    QCOMPARE(desk().setting(u"LuBrightness/softwareDimming"_s), QJsonValue(false));
    QCOMPARE(desk().events(), QStringList{u"24 off 0 []"_s});
    QVERIFY(desk().logs().contains(u"[LuSoftwareDimming] set state: false"_s));
    QVERIFY(desk().set(u"brightness.softwareDimming.state"_s, true));
    QCOMPARE(desk().held(Brightness), 0);
    QTRY_COMPARE(desk().overlay().value(u"alpha"_s).toDouble(), 0.7);
    QTRY_VERIFY(desk().overlay().value(u"visible"_s).toBool());
    // While it is forbidden the overlay is closed, and nothing is written or stored.
    desk().forget();
    QVERIFY(desk().set(u"brightness.softwareDimming.enabled"_s, false));
    QTRY_VERIFY(!desk().overlay().value(u"visible"_s).toBool());
    QCOMPARE(desk().writes(), QStringList());
    QCOMPARE(desk().get(u"brightness.softwareDimming.active"_s), QJsonValue(false));
    QCOMPARE(desk().setting(u"LuBrightness/softwareDimming"_s), QJsonValue(true));
}

void TestPictureDimming::theOverlayIsAWindowThatTakesNothing()
{
    QVERIFY(desk().set(u"brightness.displayBrightness"_s, 5));
    QTRY_VERIFY(desk().overlay().value(u"visible"_s).toBool());
    const QJsonObject overlay = desk().overlay();
    // Input goes through it, it has no frame and stays on top.
    QCOMPARE(overlay.value(u"flags"_s).toInt() & 0xC0800, 0xC0800);
    QVERIFY(!overlay.value(u"screen"_s).toString().isEmpty());
}

void TestPictureDimming::theOldKeyIsTakenOver()
{
    QVERIFY(desk().set(u"brightness.displayBrightness"_s, 50));
    QVERIFY(desk()
                .client()
                .call(u"settings.remove"_s,
                      {{u"monitor"_s, u"TK30Z"_s}, {u"key"_s, u"LuBrightness/softwareDimming"_s}})
                .ok());
    QVERIFY(
        desk()
            .client()
            .call(u"settings.set"_s,
                  {{u"monitor"_s, u"TK30Z"_s}, {u"key"_s, u"SoftwareDimming/state"_s}, {u"value"_s, false}})
            .ok());
    QCOMPARE(desk().stop(), 0);
    QVERIFY2(desk().startWith(u"TK30Z"_s), qPrintable(desk().errors()));
    QCOMPARE(desk().get(u"brightness.softwareDimming.state"_s), QJsonValue(false));
    QCOMPARE(desk().setting(u"LuBrightness/softwareDimming"_s), QJsonValue(false));
    QVERIFY(desk().setting(u"SoftwareDimming/state"_s).isUndefined());
}

void TestPictureDimming::theChoiceAndTheOverlayComeBackAfterARestart()
{
    QVERIFY(desk().set(u"brightness.displayBrightness"_s, 8));
    QCOMPARE(desk().stop(), 0);
    QVERIFY2(desk().startWith(u"TK30Z"_s), qPrintable(desk().errors()));
    QCOMPARE(desk().get(u"brightness.softwareDimming.state"_s), QJsonValue(true));
    QTRY_COMPARE(desk().overlay().value(u"alpha"_s).toDouble(), 0.75);
    QTRY_VERIFY(desk().overlay().value(u"visible"_s).toBool());
    QCOMPARE(desk().held(Brightness), 0);
}

void TestPictureDimming::anUnsupportedMonitorIsNotDimmed()
{
    QCOMPARE(desk().stop(), 0);
    QVERIFY2(desk().startWith(u"ACME24,builtin"_s), qPrintable(desk().errors()));
    for (const char* monitor : {"ACME24", "builtin"}) {
        const QString id = QString::fromLatin1(monitor);
        QVERIFY(desk().set(u"brightness.displayBrightness"_s, 5, id));
        QCOMPARE(desk().get(u"brightness.softwareDimming.active"_s, id), QJsonValue(false));
        QVERIFY(!desk().overlay(id).value(u"visible"_s).toBool());
    }
}

void TestPictureDimming::whatIsNotThereIsTold()
{
    const ControlClient::Answer answer = desk().client().call(u"sim.overlay"_s, {{u"monitor"_s, u"TK99"_s}});
    QCOMPARE(answer.code, 1);
    QVERIFY(answer.message.contains(u"TK99"_s));
}

QTEST_GUILESS_MAIN(TestPictureDimming)
#include "tst_picture_dimming.moc"
