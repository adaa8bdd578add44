// SPDX-License-Identifier: Apache-2.0
#include "PictureDesk.h"

#include <QtTest>

using namespace Qt::StringLiterals;

/// Eye care and ambient light through the control socket alone: what a session leaves behind and finds again,
/// colour modes, other functions, the room, and a day of the filter.
class TestEyeCareValues : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void aRestartBringsTheValuesBack();
    void theRunBeforeEndsWithItsExits();
    void aColourModeHasItsOwnValues();
    void aTriggeredChangeTellsItsSource_data();
    void aTriggeredChangeTellsItsSource();
    void directSettersNeedNoQueue();
    void switchingTheSensorReadsTheBrightness_data();
    void switchingTheSensorReadsTheBrightness();
    void theSensorMovesTheBrightnessStepByStep();
    void anAbsentUserDimsDisplayAndRearLight();
    void theFilterFollowsADay_data();
    void theFilterFollowsADay();

private:
    PictureDesk& desk() { return *m_desk; }
    void startOn(const QString& monitors, const QStringList& more = {})
    {
        QVERIFY2(desk().startWith(monitors, more), qPrintable(desk().errors()));
    }
    QJsonObject room(const QJsonObject& changes)
    {
        return desk().client().call(u"sim.room"_s, changes).result.toObject();
    }
    bool advance(qint64 ms) { return desk().client().call(u"clock.advance"_s, {{u"ms"_s, ms}}).ok(); }
    bool setClock(const QString& time)
    {
        return desk().client().call(u"clock.set"_s, {{u"time"_s, time}}).ok();
    }

    std::unique_ptr<PictureDesk> m_desk;
};

void TestEyeCareValues::init()
{
    m_desk = std::make_unique<PictureDesk>();
}

void TestEyeCareValues::cleanup()
{
    if (m_desk->isRunning())
        QCOMPARE(m_desk->stop(), 0);
    m_desk.reset();
}

void TestEyeCareValues::aRestartBringsTheValuesBack()
{
    startOn(u"TK30Z@EYE"_s);
    for (const auto& [path, value] : {std::pair{"abPlus.mode", 2},
                                      {"abPlus.sensitivity", 8},
                                      {"backLight.brightness", 9},
                                      {"backLight.angle", 2},
                                      {"ecoPrivacy.activeTime", 80},
                                      {"nightProtection.level", 3}})
        QVERIFY(desk().set(QString::fromLatin1(path), value));
    QVERIFY(desk().set(u"abPlus.state"_s, true));
    QVERIFY(desk().set(u"backLight.state"_s, u"On"_s));
    QVERIFY(desk().set(u"ecoPrivacy.state"_s, true));
    QVERIFY(desk().set(u"nightProtection.state"_s, u"On"_s));
    QCOMPARE(desk().stop(), 0);
    // Meanwhile somebody turned all of it off at the monitor.
    const QString world = desk().write(
        u"world.json"_s, R"({"vcp": {"TK30Z@EYE": {"0x81": 0, "0xE5": 1, "0xD7": 272, "0xD9": 257,
                             "0xE7": 0, "0xD1": 0, "0xD0": 9}}})");
    startOn(u"TK30Z@EYE"_s, {u"--state"_s, world});
    QCOMPARE(desk().held(0x81), 2);
    QCOMPARE(desk().held(0xE5), 8);
    QCOMPARE(desk().held(0xD7), 0x0220);
    QCOMPARE(desk().held(0xD9) & 0xFF, 9);
    QCOMPARE(desk().held(0xE7), 80);
    QCOMPARE(desk().held(0xD1), 1);
    QCOMPARE(desk().held(0xD0), 3);
    const QStringList events = desk().events();
    for (const QString& event : {u"39 on 3 [brightness_only,8]"_s, u"43 on 3 [360_degree]"_s,
                                 u"44 \"off\" 3 []"_s, u"16 on 3 []"_s, u"13 on 3 [3]"_s})
        QVERIFY2(events.contains(event), qPrintable(event));
}

void TestEyeCareValues::theRunBeforeEndsWithItsExits()
{
    startOn(u"TK30Z@EYE"_s);
    QVERIFY(desk().set(u"abPlus.state"_s, true));
    QVERIFY(desk().set(u"backLight.state"_s, u"Auto"_s));
    QCOMPARE(desk().stop(), 0);
    startOn(u"TK30Z@EYE"_s);
    const QJsonArray rows = desk().client().call(u"events"_s, {{u"run"_s, -1}}).result.toArray();
    QStringList exits;
    for (const QJsonValue& row : rows) {
        const QJsonObject event = row.toObject();
        if (event.value(u"source"_s).toInt() == 2)
            exits.append(u"%1 %2 %3"_s.arg(event.value(u"action"_s).toInt())
                             .arg(event.value(u"on"_s).toBool())
                             .arg(event.value(u"parameters"_s).toArray().size()));
    }
    QVERIFY(exits.contains(u"39 0 0"_s));
    QVERIFY(exits.contains(u"43 0 0"_s));
    // What was off says nothing.
    QCOMPARE(exits.filter(QRegularExpression(u"^(13|14|15|16|44) "_s)), QStringList());
}

void TestEyeCareValues::aColourModeHasItsOwnValues()
{
    startOn(u"TK30Z"_s);
    QVERIFY(desk().set(u"abPlus.state"_s, true));
    QVERIFY(desk().set(u"backLight.brightness"_s, 10));
    QVERIFY(desk().set(u"backLight.state"_s, u"On"_s));
    QVERIFY(desk().set(u"ecoPrivacy.state"_s, true));
    QVERIFY(desk().mode(u"Cinema"_s));
    QCOMPARE(desk().get(u"abPlus.state"_s), QJsonValue(false));
    QCOMPARE(desk().get(u"backLight.state"_s), QJsonValue(16));
    QCOMPARE(desk().get(u"backLight.brightness"_s), QJsonValue(5));
    // Presence is the room's affair and not the picture's.
    QCOMPARE(desk().get(u"ecoPrivacy.state"_s), QJsonValue(true));
    QVERIFY(desk().mode(u"User"_s));
    QCOMPARE(desk().get(u"abPlus.state"_s), QJsonValue(true));
    QCOMPARE(desk().get(u"backLight.state"_s), QJsonValue(32));
    QCOMPARE(desk().get(u"backLight.brightness"_s), QJsonValue(10));
    QCOMPARE(desk().setting(u"LuBackLight/User/brightness"_s), QJsonValue(10));
    QCOMPARE(desk().setting(u"LuBackLight/Cinema/brightness"_s), QJsonValue(5));
    QCOMPARE(desk().setting(u"LuEcoPrivacy/state"_s), QJsonValue(true));
}

void TestEyeCareValues::aTriggeredChangeTellsItsSource_data()
{
    QTest::addColumn<QString>("monitor");
    QTest::addColumn<QString>("module");
    QTest::addColumn<QJsonObject>("properties");
    QTest::addColumn<QString>("event");
    QTest::newRow("AB Plus") << u"TK30Z"_s << u"LuABPlus"_s << QJsonObject{{u"state"_s, true}}
                             << u"39 on 4 [brightness_colorTemp,0]"_s;
    QTest::newRow("AB setting") << u"TK40X"_s << u"LuABSetting"_s << QJsonObject{{u"currentAB"_s, true}}
                                << u"14 on 4 []"_s;
    QTest::newRow("back light") << u"TK30Z"_s << u"LuBackLight"_s << QJsonObject{{u"state"_s, u"On"_s}}
                                << u"43 on 4 [270_degree]"_s;
    QTest::newRow("back light by the sensor")
        << u"TK30Z"_s << u"LuBackLight"_s << QJsonObject{{u"state"_s, u"Auto"_s}}
        << u"43 \"auto_dimming\" 4 [270_degree]"_s;
    QTest::newRow("eco privacy") << u"TK30Z"_s << u"LuEcoPrivacy"_s << QJsonObject{{u"state"_s, true}}
                                 << u"16 on 4 []"_s;
    QTest::newRow("night protection") << u"TK30Z"_s << u"LuNightProtection"_s
                                      << QJsonObject{{u"state"_s, u"Auto"_s}} << u"13 \"auto_switch\" 4 []"_s;
}

void TestEyeCareValues::aTriggeredChangeTellsItsSource()
{
    QFETCH(QString, monitor);
    QFETCH(QString, module);
    QFETCH(QJsonObject, properties);
    QFETCH(QString, event);
    startOn(monitor);
    desk().forget();
    QVERIFY(desk().client().call(u"trigger"_s, {{u"module"_s, module}, {u"properties"_s, properties}}).ok());
    QVERIFY(desk().idle());
    QCOMPARE(desk().events(), QStringList{event});
}

void TestEyeCareValues::directSettersNeedNoQueue()
{
    startOn(u"TK30Z"_s);
    const auto put = [this](const QString& path, int value) {
        return desk().client().call(u"set"_s, {{u"path"_s, path}, {u"value"_s, value}}).ok();
    };
    QVERIFY(put(u"backLight.state"_s, 48));
    QCOMPARE(desk().held(0xD7), 0x0130);
    // While the feature is off, its time turns it on at the monitor.
    QVERIFY(put(u"ecoPrivacy.activeTime"_s, 160));
    QCOMPARE(desk().held(0xE7), 160);
    QCOMPARE(desk().get(u"ecoPrivacy.state"_s), QJsonValue(false));
    QVERIFY(desk().sync(u"LuEcoPrivacy"_s));
    QCOMPARE(desk().get(u"ecoPrivacy.state"_s), QJsonValue(true));
}

void TestEyeCareValues::switchingTheSensorReadsTheBrightness_data()
{
    QTest::addColumn<QString>("monitor");
    QTest::addColumn<QString>("path");
    QTest::newRow("AB Plus") << u"TK20"_s << u"abPlus.state"_s;
    QTest::newRow("AB setting") << u"TK10"_s << u"abSetting.currentAB"_s;
}

void TestEyeCareValues::switchingTheSensorReadsTheBrightness()
{
    QFETCH(QString, monitor);
    QFETCH(QString, path);
    startOn(monitor);
    for (const bool state : {true, false}) {
        desk().forget();
        QVERIFY(desk().set(path, state));
        QVERIFY(desk().reads().contains(u"10"_s));
    }
}

void TestEyeCareValues::theSensorMovesTheBrightnessStepByStep()
{
    startOn(u"TK30Z"_s);
    QVERIFY(setClock(u"2026-03-02T12:00:00"_s));
    room({{u"ambientLight"_s, 0}});
    QVERIFY(desk().set(u"abPlus.state"_s, true));
    QCOMPARE(desk().held(0x10), 50);
    QVERIFY(advance(500));
    QCOMPARE(desk().held(0x10), 45);
    QVERIFY(desk().sync());
    QVERIFY(advance(60'000));
    const int end = desk().held(0x10);
    QVERIFY(end < 40);
    QVERIFY(desk().set(u"abPlus.state"_s, false));
    QCOMPARE(desk().held(0x10), 50);
}

void TestEyeCareValues::anAbsentUserDimsDisplayAndRearLight()
{
    startOn(u"TK30Z"_s);
    QVERIFY(setClock(u"2026-03-02T12:00:00"_s));
    QVERIFY(desk().set(u"backLight.state"_s, u"On"_s));
    QVERIFY(desk().set(u"ecoPrivacy.mode"_s, u"DisplayAndBackGlow"_s));
    QVERIFY(desk().set(u"ecoPrivacy.state"_s, true));
    const QJsonObject bright{{u"light"_s, 50}, {u"rearLight"_s, 50}};
    const QJsonObject dimmed{{u"light"_s, 10}, {u"rearLight"_s, 10}};
    QCOMPARE(room({{u"presence"_s, false}}), bright);
    QVERIFY(advance(9'999));
    QCOMPARE(room({}), bright);
    QVERIFY(advance(1));
    QCOMPARE(room({}), dimmed);
    // The values stay, so nothing is read as changed.
    desk().forget();
    QVERIFY(desk().sync(u"LuEcoPrivacy"_s));
    QVERIFY(desk().sync(u"LuBackLight"_s));
    QCOMPARE(desk().events(), QStringList());
    QCOMPARE(room({{u"presence"_s, true}}), bright);
    QVERIFY(!desk().client().call(u"sim.room"_s, {{u"presence"_s, 1}}).ok());
    QVERIFY(!desk().client().call(u"sim.room"_s, {{u"ambientLight"_s, 1001}}).ok());
}

void TestEyeCareValues::theFilterFollowsADay_data()
{
    QTest::addColumn<bool>("manual");
    QTest::newRow("the user's times") << true;
    QTest::newRow("the sun of the place") << false;
}

void TestEyeCareValues::theFilterFollowsADay()
{
    QFETCH(bool, manual);
    startOn(u"TK30Z"_s);
    QVERIFY(setClock(u"2026-03-20T00:30:00"_s));
    // Near the equator in March a day has twelve hours.
    QVERIFY(
        desk()
            .client()
            .call(u"services.set"_s,
                  {{u"path"_s, u"location"_s},
                   {u"value"_s, QJsonObject{{u"latitude"_s, 0.5}, {u"longitude"_s, 0.5}, {u"status"_s, 1}}}})
            .ok());
    if (manual)
        QVERIFY(desk().set(u"lowBlueLight.weather.circadianMode"_s, u"Manual"_s));
    QVERIFY(desk().set(u"lowBlueLight.circadianState"_s, true));
    QTRY_VERIFY(desk().get(u"lowBlueLight.level"_s).toInt() == 5);
    desk().forget();
    constexpr qint64 QuarterHour = 15 * 60 * 1000;
    for (int quarter = 0; quarter < 96; ++quarter)
        QVERIFY(advance(QuarterHour));
    QVERIFY(desk().idle());
    QStringList levels;
    const QStringList writes = desk().writes();
    for (const QString& write : writes) {
        if (write.startsWith(u"19="_s) && (levels.isEmpty() || levels.last() != write))
            levels.append(write);
    }
    QCOMPARE(levels, (QStringList{u"19=4"_s, u"19=3"_s, u"19=2"_s, u"19=1"_s, u"19=0"_s, u"19=1"_s, u"19=2"_s,
                                  u"19=3"_s, u"19=4"_s, u"19=5"_s}));
}

QTEST_GUILESS_MAIN(TestEyeCareValues)
#include "tst_eyecare_values.moc"
