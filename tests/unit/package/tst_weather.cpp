// SPDX-License-Identifier: Apache-2.0
#include "weather_bed.h"

using namespace Qt::StringLiterals;
using namespace weather_bed;

namespace {

void setZone(const char* name)
{
    qputenv("TZ", name);
    tzset();
}

} // namespace

class TestWeather : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void theCurveHasFourteenRows_data();
    void theCurveHasFourteenRows();
    void firstDefaultsRunWithoutAnyTimes();
    void locationReportStartsTheSchedule();
    void aKnownPlaceStartsALaterMonitorsSchedule();
    void placeThatCannotBeHadIsNoInternet();
    void requestCarriesItsOptionsInOrder();
    void everyRowWritesItsLevelOneSecondLater();
    void levelZeroOfTheScheduleKeepsTheStateOn();
    void startInTheNightUsesTheLastNightsLength();
    void savedYesterdayGivesTheLastNight();
    void sameTimesChangeNothing();
    void equalTimesAreIgnored();
    void savedDaysAreUsedAgain();
    void aDayThatIsMissingAsksAgain();
    void anotherPlaceAsksAgain();
    void pruningKeepsYesterdayAndDropsOlderDays();
    void polarDayIsEternal();
    void polarDayAmongTheSavedDaysIsEternal();
    void failures_data();
    void failures();
    void rateLimitComesBackByItself();
    void rateLimitDoesNotReplaceManualTimes();
    void lateReplyDoesNotReplaceManualTimes();
    void manualTimesAreTheUsers();
    void manualTimesOfNoDayAreRefused();
    void switchingToManualStartsFromTheSun();
    void applyWithTheSameTimesOnlyChecks();
    void offStopsTheSchedule();
    void midnightBringsTheNextDay();
    void suspendOverSeveralRowsTakesThePresentOne();
    void clockSetBackWaitsForTheFirstRow();
    void clockSetBackIsNoticedByItself_data();
    void clockSetBackIsNoticedByItself();
    void anotherTimeZoneIsNoticedByItself();
    void forecastOfOtherDaysIsNotAskedForInALoop();
    void daylightSavingKeepsTheRealSpans();
    void serviceKeyIsSentAndNeverTold();
    void realServiceOverTheWeb();
};

void TestWeather::init()
{
    programClock().set(at("2026-03-10T12:00:00"));
    forgetWeather();
    setPlace(0, 0, LuServerLocation::Unknown);
}

void TestWeather::cleanup()
{
    programClock().release();
    ZrNetworkCall::setLocalResponder(u"lumen-sun"_s, {});
}

void TestWeather::theCurveHasFourteenRows_data()
{
    QTest::addColumn<QString>("from");
    QTest::addColumn<int>("level");
    const std::pair<const char*, int> rows[] = {
        {"2026-03-09T22:48:00", 5}, {"2026-03-10T01:12:00", 4}, {"2026-03-10T03:36:00", 3},
        {"2026-03-10T06:00:00", 2}, {"2026-03-10T08:24:00", 1}, {"2026-03-10T10:48:00", 0},
        {"2026-03-10T13:12:00", 1}, {"2026-03-10T15:36:00", 2}, {"2026-03-10T18:00:00", 3},
        {"2026-03-10T20:24:00", 4}, {"2026-03-10T22:48:00", 5}, {"2026-03-11T01:12:00", 4},
        {"2026-03-11T03:36:00", 3}, {"2026-03-11T06:00:00", 2},
    };
    for (const auto& [from, level] : rows)
        QTest::newRow(from) << QString::fromLatin1(from) << level;
}

void TestWeather::theCurveHasFourteenRows()
{
    QFETCH(QString, from);
    QFETCH(int, level);
    const QDateTime boundary = QDateTime::fromString(from, Qt::ISODate);
    // The schedule is started in the second after the boundary, on the day of the table.
    programClock().set(boundary.addSecs(1));
    Bed bed;
    bed.begin();
    bed.turnOn(Manual);
    QVERIFY(bed.idle());
    QCOMPARE(bed.level(), level);
}

void TestWeather::firstDefaultsRunWithoutAnyTimes()
{
    Bed bed;
    bed.begin();
    QCOMPARE(bed.weather("manualSunRiseHour").toInt(), 6);
    QCOMPARE(bed.weather("manualSunRiseMinute").toInt(), 0);
    QCOMPARE(bed.weather("manualSunSetHour").toInt(), 18);
    QCOMPARE(bed.weather("manualSunSetMinute").toInt(), 0);
    QCOMPARE(bed.weather("circadianMode").toInt(), Auto);
    QCOMPARE(bed.weather("circadianState").toBool(), false);
    QCOMPARE(bed.status(), NoInternet);
    QCOMPARE(bed.weather("autoSunRise").toString(), QString());
    QSignalSpy statusSpy(bed.weather(), SIGNAL(statusChanged()));
    bed.forget();
    bed.turnOn(Manual);
    QVERIFY(bed.idle());
    const QStringList log = bed.log().filter(u"[LuWeather]"_s);
    QVERIFY(log.first().startsWith(u"[LuWeather] manual set sunrise: QDateTime(2026-03-10 06:00"_s));
    QVERIFY(log.first().contains(u" and sunset: "_s));
    QCOMPARE(log.value(1), u"[LuWeather] calaulate current Low Blue Light value and next trigger time"_s);
    QVERIFY(log.value(2).startsWith(
        u"[LuWeather] change current Low Blue Light value to  0 next trigger time at "_s));
    QCOMPARE(bed.level(), 0);
    QCOMPARE(stored("circadianState").toBool(), true);
    QCOMPARE(stored("circadianMode").toInt(), Manual);
    // Manual times leave the status of the sun's alone.
    QCOMPARE(statusSpy.count(), 0);
    QCOMPARE(bed.status(), NoInternet);
}

void TestWeather::locationReportStartsTheSchedule()
{
    Service service(forecast("07:10", "19:20"));
    Bed bed;
    bed.begin();
    QVERIFY(bed.idle());
    bed.turnOn(Auto);
    QVERIFY(bed.idle());
    QCOMPARE(service.requests, 0);
    QCOMPARE(bed.status(), NoInternet);
    bed.forget();
    setPlace(52.5, 13.4);
    QTRY_COMPARE(bed.status(), Success);
    QVERIFY(bed.idle());
    QCOMPARE(service.requests, 1);
    QCOMPARE(bed.weather("autoSunRise").toString(), u"07:10"_s);
    QCOMPARE(bed.weather("autoSunSet").toString(), u"19:20"_s);
    QCOMPARE(bed.weather("manualSunRiseHour").toInt(), 7);
    QCOMPARE(bed.weather("manualSunSetMinute").toInt(), 20);
    QVERIFY(
        !bed.log().filter(u"[LuWeather] OpenWeather set sunrise: QDateTime(2026-03-10 07:10"_s).isEmpty());
    QCOMPARE(stored("sunLat").toDouble(), 52.5);
    QCOMPARE(stored("sunLon").toDouble(), 13.4);
    QCOMPARE(stored("manualSunrise").toDateTime(), at("2026-03-10T07:10:00"));
    QCOMPARE(stored("manualSunset").toDateTime(), at("2026-03-10T19:20:00"));
    const QVariantMap days = stored("sunriseSunsetMap").toMap();
    QCOMPARE(days.size(), 16);
    QCOMPARE(days.value(u"2026-03-25"_s).toMap().value(u"sunrise"_s).toLongLong(),
             at("2026-03-25T07:10:00").toSecsSinceEpoch());
}

void TestWeather::aKnownPlaceStartsALaterMonitorsSchedule()
{
    Service service(forecast());
    setPlace(52.5, 13.4);
    Bed first;
    first.begin();
    first.turnOn(Auto);
    QTRY_COMPARE(first.status(), Success);
    Bed second;
    second.launch();
    QTRY_COMPARE(second.status(), Success);
    QVERIFY(second.idle());
    QCOMPARE(service.requests, 1);
    QCOMPARE(second.level(), first.level());
}

void TestWeather::placeThatCannotBeHadIsNoInternet()
{
    Service service(forecast());
    Bed bed;
    bed.begin();
    bed.turnOn(Auto);
    QSignalSpy spy(bed.weather(), SIGNAL(statusChanged()));
    setPlace(0, 0, LuServerLocation::Failed);
    QVERIFY(bed.idle());
    QCOMPARE(spy.count(), 2); // the request step begins and finds no place
    QCOMPARE(bed.status(), NoInternet);
    QCOMPARE(service.requests, 0);
}

void TestWeather::requestCarriesItsOptionsInOrder()
{
    WebServer server;
    server.answers = {WebServer::answer(forecast())};
    Environment environment(
        {{u"openweather.api"_s, u"http://127.0.0.1:%1/data/2.5/forecast/daily"_s.arg(server.serverPort())}});
    setPlace(-33.87, 151.21);
    Bed bed;
    bed.begin();
    bed.turnOn(Auto);
    QTRY_COMPARE(bed.status(), Success);
    QCOMPARE(server.requests.size(), 1);
    const QByteArray line = server.requests.first().left(server.requests.first().indexOf("\r\n"));
    QVERIFY2(line.startsWith("GET /data/2.5/forecast/daily?lat=-33.87&lon=151.21&cnt=16&mode=json&APPID="),
             line.constData());
}

void TestWeather::everyRowWritesItsLevelOneSecondLater()
{
    programClock().set(at("2026-03-10T00:00:00"));
    Bed bed;
    bed.begin();
    bed.turnOn(Manual);
    QVERIFY(bed.idle());
    QCOMPARE(bed.level(), 5);
    const std::pair<const char*, int> rows[] = {
        {"01:12:00", 4}, {"03:36:00", 3}, {"06:00:00", 2}, {"08:24:00", 1}, {"10:48:00", 0},
        {"13:12:00", 1}, {"15:36:00", 2}, {"18:00:00", 3}, {"20:24:00", 4}, {"22:48:00", 5},
    };
    bed.forget();
    for (const auto& [time, level] : rows) {
        const int before = bed.level();
        const QDateTime boundary(QDate(2026, 3, 10),
                                 QTime::fromString(QString::fromLatin1(time), u"hh:mm:ss"_s));
        programClock().advance(programClock().now().msecsTo(boundary.addSecs(1)));
        QVERIFY(bed.idle());
        QCOMPARE(bed.level(), before);
        QCOMPARE(bed.wire(), QStringList());
        // A job for a time of the wall clock runs one millisecond after it.
        programClock().advance(1);
        QVERIFY(bed.idle());
        QCOMPARE(bed.level(), level);
        QCOMPARE(bed.wire(), QStringList{u"set 0x19 %1"_s.arg(level)});
    }
    programClock().advance(8 * HourMs);
    QVERIFY(bed.idle());
    QCOMPARE(bed.level(), 2);
}

void TestWeather::levelZeroOfTheScheduleKeepsTheStateOn()
{
    Bed bed;
    bed.begin();
    bed.turnOn(Manual);
    QVERIFY(bed.idle());
    QCOMPARE(bed.level(), 0);
    QCOMPARE(bed.get(Module, "state").toBool(), true);
}

void TestWeather::startInTheNightUsesTheLastNightsLength()
{
    programClock().set(at("2026-03-10T02:00:00"));
    Service service(forecast());
    setPlace(1, 2);
    Bed bed;
    bed.begin();
    bed.turnOn(Auto);
    QTRY_COMPARE(bed.status(), Success);
    QVERIFY(bed.idle());
    QCOMPARE(bed.level(), 4);
    QCOMPARE(bed.due(), at("2026-03-10T03:36:01"));
}

void TestWeather::savedYesterdayGivesTheLastNight()
{
    // Yesterday's daylight was 4 hours, its night 20 hours: row 3 begins 4 hours before the sunrise.
    LuSettings& settings = LuSettings::instance();
    QVariantMap days;
    days.insert(u"2026-03-09"_s,
                dayEntry(at("2026-03-09T10:00:00"), at("2026-03-09T14:00:00")).toVariantMap());
    days.insert(u"2026-03-10"_s,
                dayEntry(at("2026-03-10T06:00:00"), at("2026-03-10T18:00:00")).toVariantMap());
    settings.setValue(u"weather/sunriseSunsetMap"_s, days);
    settings.setValue(u"weather/sunLat"_s, 1.0);
    settings.setValue(u"weather/sunLon"_s, 2.0);
    programClock().set(at("2026-03-10T02:30:00"));
    Service service(forecast());
    setPlace(1, 2);
    Bed bed;
    bed.begin();
    bed.forget();
    bed.turnOn(Auto);
    QVERIFY(bed.idle());
    QCOMPARE(service.requests, 0);
    QCOMPARE(bed.status(), Success);
    QCOMPARE(bed.level(), 3);
    const QString line = bed.log().filter(u"[LuWeather] load sunrise: QDateTime(2026-03-10 06:00"_s).value(0);
    QVERIFY(line.contains(u" and sunset:  QDateTime(2026-03-10 18:00"_s));
    QVERIFY(line.contains(u"yesterday sunrise:  QDateTime(2026-03-09 10:00"_s));
    QVERIFY(line.contains(u"and sunset:  QDateTime(2026-03-09 14:00"_s));
}

void TestWeather::sameTimesChangeNothing()
{
    Service service(forecast());
    setPlace(1, 2);
    Bed bed;
    bed.begin();
    bed.turnOn(Auto);
    QTRY_COMPARE(bed.status(), Success);
    QVERIFY(bed.idle());
    QSignalSpy rise(bed.weather(), SIGNAL(autoSunRiseChanged()));
    QSignalSpy manual(bed.weather(), SIGNAL(manualSunRiseHourChanged()));
    QSignalSpy level(bed.weather(), SIGNAL(lowBlueLightLevelChanged()));
    bed.restart();
    QVERIFY(bed.idle());
    QCOMPARE(rise.count(), 0);
    QCOMPARE(manual.count(), 0);
    // The check runs all the same and tells its level.
    QCOMPARE(level.count(), 1);
}

void TestWeather::equalTimesAreIgnored()
{
    Service service(forecast("12:00", "12:00"));
    setPlace(1, 2);
    Bed bed;
    bed.begin();
    QSignalSpy rise(bed.weather(), SIGNAL(autoSunRiseChanged()));
    bed.turnOn(Auto);
    QTRY_COMPARE(bed.status(), Success);
    QVERIFY(bed.idle());
    QCOMPARE(rise.count(), 0);
    QCOMPARE(bed.weather("autoSunRise").toString(), QString());
    QCOMPARE(bed.wire().filter(u"set 0x19"_s), QStringList());
}

void TestWeather::savedDaysAreUsedAgain()
{
    Service service(forecast());
    setPlace(1, 2);
    Bed bed;
    bed.begin();
    bed.turnOn(Auto);
    QTRY_COMPARE(bed.status(), Success);
    bed.set(Module, "circadianState", false);
    bed.set(Module, "circadianState", true);
    QVERIFY(bed.idle());
    QCOMPARE(service.requests, 1);
    bed.relaunch();
    QTRY_COMPARE(bed.status(), Success);
    QVERIFY(bed.idle());
    QCOMPARE(service.requests, 1);
    QCOMPARE(bed.weather("autoSunRise").toString(), u"06:00"_s);
}

void TestWeather::aDayThatIsMissingAsksAgain()
{
    Service service([](const QUrl&, const QJsonObject&) { return forecast("06:00", "18:00", 2); });
    setPlace(1, 2);
    Bed bed;
    bed.begin();
    bed.turnOn(Auto);
    QTRY_COMPARE(service.requests, 1);
    programClock().advance(DayMs);
    QVERIFY(bed.idle());
    QCOMPARE(service.requests, 1);
    programClock().advance(DayMs);
    QTRY_COMPARE(service.requests, 2);
    QTRY_COMPARE(stored("sunriseSunsetMap").toMap().keys(), (QStringList{u"2026-03-12"_s, u"2026-03-13"_s}));
}

void TestWeather::anotherPlaceAsksAgain()
{
    Service service(forecast());
    setPlace(1, 2);
    Bed bed;
    bed.begin();
    bed.turnOn(Auto);
    QTRY_COMPARE(service.requests, 1);
    setPlace(1.0000001, 2);
    QTRY_COMPARE(service.requests, 2);
    QTRY_COMPARE(stored("sunLat").toDouble(), 1.0000001);
}

void TestWeather::pruningKeepsYesterdayAndDropsOlderDays()
{
    Service service(forecast());
    setPlace(1, 2);
    Bed bed;
    bed.begin();
    bed.turnOn(Auto);
    QTRY_COMPARE(bed.status(), Success);
    programClock().advance(3 * DayMs);
    QVERIFY(bed.idle());
    bed.restart();
    QVERIFY(bed.idle());
    const QStringList days = stored("sunriseSunsetMap").toMap().keys();
    QCOMPARE(days.first(), u"2026-03-12"_s);
    QCOMPARE(days.last(), u"2026-03-25"_s);
}

void TestWeather::polarDayIsEternal()
{
    QJsonObject reply = forecast();
    QJsonArray list = reply.value(u"list"_s).toArray();
    list[0] = QJsonObject{{u"sunrise"_s, 0}, {u"sunset"_s, 0}};
    reply[u"list"_s] = list;
    Service service(reply);
    setPlace(70, 20);
    Bed bed;
    bed.begin();
    bed.turnOn(Auto);
    QTRY_COMPARE(bed.status(), EternalCycle);
    QVERIFY(bed.idle());
    QCOMPARE(bed.wire().filter(u"set 0x19"_s), QStringList());
    // What was kept are the other days, and the one of the numbers without a sun.
    QVERIFY(stored("sunriseSunsetMap").toMap().contains(u"1970-01-01"_s));
}

void TestWeather::polarDayAmongTheSavedDaysIsEternal()
{
    QVariantMap days;
    days.insert(u"2026-03-10"_s, QVariantMap{{u"sunrise"_s, 0}, {u"sunset"_s, 12}});
    LuSettings& settings = LuSettings::instance();
    settings.setValue(u"weather/sunriseSunsetMap"_s, days);
    settings.setValue(u"weather/sunLat"_s, 70.0);
    settings.setValue(u"weather/sunLon"_s, 20.0);
    Service service(forecast());
    setPlace(70, 20);
    Bed bed;
    bed.begin();
    bed.forget();
    bed.turnOn(Auto);
    QVERIFY(bed.idle());
    QCOMPARE(bed.status(), EternalCycle);
    QCOMPARE(service.requests, 0);
    QVERIFY(bed.log().contains(u"[LuWeather] load data is EternalCycle"_s));
}

void TestWeather::failures_data()
{
    QTest::addColumn<QByteArray>("answer");
    QTest::addColumn<QString>("logged");
    const auto json = [](const char* text) { return WebServer::answer("200 OK", text); };
    QTest::newRow("empty body") << json("") << u"[LuWeather] get error code:  7 , error:"_s;
    QTest::newRow("no JSON") << json("<html>") << u"[LuWeather] get error code:  7 , error:"_s;
    QTest::newRow("an array") << json("[1]") << u"[LuWeather] get error code:  7 , error:"_s;
    QTest::newRow("server error") << WebServer::answer("500 Oops", "no")
                                  << u"[LuWeather] get error code:  6"_s;
    QTest::newRow("not authorised, with a body")
        << WebServer::answer("401 Unauthorized", R"({"cod":401,"message":"Invalid API key"})")
        << u"[LuWeather] get error code:  401  message:"_s;
    QTest::newRow("wrong city as text") << WebServer::answer("404 Not Found", R"({"cod":"404"})")
                                        << u"[LuWeather] get error code:  404  message:"_s;
    QTest::newRow("no code") << json(R"({"list":[]})") << u"[LuWeather] get error code:  -1  message:"_s;
    QTest::newRow("no list") << json(R"({"cod":200})")
                             << u"[LuWeather][recordSunInformation] can't find list data"_s;
    QTest::newRow("empty list") << json(R"({"cod":"200","list":[]})")
                                << u"[LuWeather][recordSunInformation] can't find list data"_s;
    QTest::newRow("null sunrise") << json(R"({"cod":200,"list":[{"sunrise":null,"sunset":5}]})")
                                  << u"[LuWeather][recordSunInformation] can't find sunrise or sunset data"_s;
    QTest::newRow("null sunset") << json(R"({"cod":200,"list":[{"sunrise":5,"sunset":null}]})")
                                 << u"[LuWeather][recordSunInformation] can't find sunrise or sunset data"_s;
    const QString noDay = u"[LuWeather][recordSunInformation] sunrise and sunset are no day:"_s;
    QTest::newRow("sunset before sunrise")
        << json(R"({"cod":200,"list":[{"sunrise":1773165600,"sunset":1773122400}]})") << noDay;
    QTest::newRow("daylight of months")
        << json(R"({"cod":200,"list":[{"sunrise":1763122400,"sunset":1773165600}]})") << noDay;
    QTest::newRow("beyond all calendars")
        << json(R"({"cod":200,"list":[{"sunrise":1773122400,"sunset":9e18}]})") << noDay;
    QTest::newRow("no sunset") << json(R"({"cod":200,"list":[{"sunrise":1773122400}]})") << noDay;
    QTest::newRow("too large") << WebServer::answer("200 OK", QByteArray(2 * 1024 * 1024, ' '))
                               << u"[LuWeather] get error code:  4"_s;
    QTest::newRow("redirect without end")
        << WebServer::answer("302 Found", "", "Location: /again\r\n") << u"[LuWeather] get error code:  5"_s;
}

void TestWeather::failures()
{
    QFETCH(QByteArray, answer);
    QFETCH(QString, logged);
    WebServer server;
    server.answers = {answer};
    Environment environment({{u"openweather.api"_s, u"http://127.0.0.1:%1/f"_s.arg(server.serverPort())}});
    setPlace(1, 2);
    Bed bed;
    bed.begin();
    bed.forget();
    bed.turnOn(Auto);
    QCOMPARE(bed.status(), Requesting);
    QTRY_COMPARE(bed.status(), NoInternet);
    QVERIFY(bed.idle());
    const QStringList log = bed.log();
    QVERIFY2(!log.filter(logged).isEmpty(), qPrintable(log.join(u'\n')));
    QVERIFY(stored("sunriseSunsetMap").toMap().isEmpty());
    QVERIFY(!stored("manualSunset").isValid());
    QCOMPARE(bed.weather("manualSunSetHour").toInt(), 18);
    QCOMPARE(bed.wire().filter(u"set 0x19"_s), QStringList());
}

void TestWeather::rateLimitComesBackByItself()
{
    bool limited = true;
    Service service([&](const QUrl&, const QJsonObject&) {
        return limited ? QJsonObject{{u"cod"_s, 429}} : forecast();
    });
    setPlace(1, 2);
    Bed bed;
    bed.begin();
    bed.turnOn(Auto);
    QTRY_COMPARE(bed.status(), ApiLimit);
    QCOMPARE(service.requests, 1);
    programClock().advance(MinuteMs - 1);
    QVERIFY(bed.idle());
    QCOMPARE(service.requests, 1);
    limited = false;
    programClock().advance(9 * MinuteMs + 1);
    QTRY_COMPARE(bed.status(), Success);
    QCOMPARE(service.requests, 2);
}

void TestWeather::rateLimitDoesNotReplaceManualTimes()
{
    Service service(QJsonObject{{u"cod"_s, u"429"_s}});
    setPlace(1, 2);
    Bed bed;
    bed.begin();
    bed.turnOn(Auto);
    QTRY_COMPARE(bed.status(), ApiLimit);
    bed.setMode(Manual);
    programClock().advance(10 * MinuteMs);
    QVERIFY(bed.idle());
    QCOMPARE(service.requests, 1);
    QCOMPARE(bed.weather("manualSunRiseHour").toInt(), 6);
}

void TestWeather::lateReplyDoesNotReplaceManualTimes()
{
    WebServer server;
    server.answers = {WebServer::answer(forecast("05:00", "21:00"))};
    Environment environment({{u"openweather.api"_s, u"http://127.0.0.1:%1/f"_s.arg(server.serverPort())}});
    setPlace(1, 2);
    Bed bed;
    bed.begin();
    bed.turnOn(Auto);
    QCOMPARE(bed.status(), Requesting);
    // Tired of waiting, the user chooses times of their own.
    bed.setMode(Manual);
    bed.weather()->setProperty("manualSunRiseHour", 8);
    bed.weather()->setProperty("manualSunSetHour", 20);
    bed.restart();
    QTRY_COMPARE(bed.status(), Success);
    QVERIFY(bed.idle());
    QCOMPARE(bed.weather("manualSunRiseHour").toInt(), 8);
    QCOMPARE(stored("manualSunset").toDateTime(), at("2026-03-10T20:00:00"));
    QCOMPARE(bed.level(), 1);
    QCOMPARE(bed.due(), at("2026-03-10T12:48:01"));
    // What the service told serves the other mode.
    bed.setMode(Auto);
    QVERIFY(bed.idle());
    QCOMPARE(server.requests.size(), 1);
    QCOMPARE(bed.weather("autoSunRise").toString(), u"05:00"_s);
}

void TestWeather::manualTimesAreTheUsers()
{
    Bed bed;
    bed.begin();
    bed.turnOn(Manual);
    QVERIFY(bed.idle());
    QSignalSpy hour(bed.weather(), SIGNAL(manualSunRiseHourChanged()));
    bed.weather()->setProperty("manualSunRiseHour", 8);
    bed.weather()->setProperty("manualSunRiseHour", 8);
    bed.weather()->setProperty("manualSunRiseMinute", 30);
    bed.weather()->setProperty("manualSunSetHour", 20);
    bed.weather()->setProperty("manualSunSetMinute", 30);
    QCOMPARE(hour.count(), 1);
    QVERIFY(bed.idle());
    QVERIFY(!stored("manualSunrise").isValid());
    QCOMPARE(bed.level(), 0);
    bed.restart();
    QVERIFY(bed.idle());
    QCOMPARE(stored("manualSunrise").toDateTime(), at("2026-03-10T08:30:00"));
    QCOMPARE(stored("manualSunset").toDateTime(), at("2026-03-10T20:30:00"));
    QCOMPARE(bed.level(), 1);
    bed.relaunch();
    QCOMPARE(bed.weather("manualSunRiseHour").toInt(), 8);
    QCOMPARE(bed.weather("manualSunSetMinute").toInt(), 30);
}

void TestWeather::manualTimesOfNoDayAreRefused()
{
    Bed bed;
    bed.begin();
    bed.turnOn(Manual);
    QVERIFY(bed.idle());
    bed.forget();
    bed.weather()->setProperty("manualSunRiseHour", 30);
    bed.restart();
    QVERIFY(bed.idle());
    QVERIFY(bed.log().contains(u"[LuWeather] manual times are no times of a day: 30 0 18 0"_s));
    QVERIFY(!stored("manualSunrise").isValid());
}

void TestWeather::switchingToManualStartsFromTheSun()
{
    Service service(forecast("05:00", "21:00"));
    setPlace(1, 2);
    Bed bed;
    bed.begin();
    bed.turnOn(Auto);
    QTRY_COMPARE(bed.status(), Success);
    bed.weather()->setProperty("manualSunRiseHour", 11);
    bed.setMode(Manual);
    QVERIFY(bed.idle());
    QCOMPARE(bed.weather("manualSunRiseHour").toInt(), 5);
    QCOMPARE(bed.weather("manualSunSetHour").toInt(), 21);
    QCOMPARE(bed.level(), 0);
    QCOMPARE(service.requests, 1);
}

void TestWeather::applyWithTheSameTimesOnlyChecks()
{
    Bed bed;
    bed.begin();
    bed.turnOn(Manual);
    bed.restart();
    QVERIFY(bed.idle());
    QSignalSpy hour(bed.weather(), SIGNAL(manualSunRiseHourChanged()));
    bed.forget();
    bed.restart();
    QVERIFY(bed.idle());
    QCOMPARE(hour.count(), 0);
    QCOMPARE(bed.log().filter(u"calaulate"_s).size(), 1);
}

void TestWeather::offStopsTheSchedule()
{
    Bed bed;
    bed.begin();
    bed.turnOn(Manual);
    programClock().advance(2 * HourMs);
    QVERIFY(bed.idle());
    QCOMPARE(bed.level(), 1);
    bed.set(Module, "circadianState", false);
    QVERIFY(bed.idle());
    bed.forget();
    programClock().advance(DayMs);
    QVERIFY(bed.idle());
    QCOMPARE(bed.level(), 1);
    QCOMPARE(bed.wire().filter(u"set"_s), QStringList());
    QCOMPARE(bed.log().filter(u"[LuWeather]"_s), QStringList());
}

void TestWeather::midnightBringsTheNextDay()
{
    Bed bed;
    bed.begin();
    bed.turnOn(Manual);
    QVERIFY(bed.idle());
    programClock().advance(DayMs);
    QVERIFY(bed.idle());
    QCOMPARE(stored("manualSunrise").toDateTime(), at("2026-03-11T06:00:00"));
    QCOMPARE(bed.level(), 0);
    QCOMPARE(bed.due(), at("2026-03-11T13:12:01"));
}

void TestWeather::suspendOverSeveralRowsTakesThePresentOne()
{
    Bed bed;
    bed.begin();
    bed.turnOn(Manual);
    QVERIFY(bed.idle());
    bed.forget();
    // Asleep from noon to nine in the evening: the clock jumps.
    programClock().set(at("2026-03-10T21:00:00"));
    programClock().advance(0);
    QVERIFY(bed.idle());
    QCOMPARE(bed.level(), 4);
    QCOMPARE(bed.wire(), QStringList{u"set 0x19 4"_s});
}

void TestWeather::clockSetBackWaitsForTheFirstRow()
{
    Bed bed;
    bed.begin();
    bed.turnOn(Manual);
    programClock().advance(4 * HourMs);
    QVERIFY(bed.idle());
    QCOMPARE(bed.level(), 2);
    programClock().set(at("2026-03-08T12:00:00"));
    bed.forget();
    bed.setMode(Auto);
    bed.setMode(Manual);
    QVERIFY(bed.idle());
    // Today is another day: the manual times make a table of it.
    QCOMPARE(bed.level(), 0);
    QCOMPARE(bed.due(), at("2026-03-08T13:12:01"));
}

void TestWeather::clockSetBackIsNoticedByItself_data()
{
    QTest::addColumn<QDateTime>("to");
    QTest::addColumn<int>("level");
    QTest::addColumn<QDateTime>("due");
    QTest::newRow("by hours") << at("2026-03-10T09:00:00") << 1 << at("2026-03-10T10:48:01");
    QTest::newRow("by days") << at("2026-03-06T16:00:00") << 2 << at("2026-03-06T18:00:01");
}

void TestWeather::clockSetBackIsNoticedByItself()
{
    QFETCH(QDateTime, to);
    QFETCH(int, level);
    programClock().setBackgroundMoves(true);
    const auto still = qScopeGuard([] { programClock().setBackgroundMoves(false); });
    Bed bed;
    bed.begin();
    bed.turnOn(Manual);
    QVERIFY(bed.idle());
    QCOMPARE(bed.level(), 0);
    programClock().set(to);
    programClock().advance(5 * MinuteMs + 1);
    QVERIFY(bed.idle());
    QTRY_COMPARE(bed.level(), level);
    QTEST(bed.due().value_or(QDateTime()), "due");
    // Nothing more is told while the clock goes on as it should.
    bed.forget();
    programClock().advance(HourMs);
    QVERIFY(bed.idle());
    QCOMPARE(bed.log().filter(u"[LuWeather]"_s), QStringList());
}

void TestWeather::anotherTimeZoneIsNoticedByItself()
{
    programClock().setBackgroundMoves(true);
    const auto home = qScopeGuard([] {
        programClock().setBackgroundMoves(false);
        setZone("Europe/Berlin");
    });
    Bed bed;
    bed.begin();
    bed.turnOn(Manual);
    QVERIFY(bed.idle());
    QCOMPARE(bed.level(), 0);
    // Noon of Berlin is seven in the morning there, and the user's times are those of the clock on the wall.
    setZone("America/New_York");
    programClock().advance(5 * MinuteMs + 1);
    QVERIFY(bed.idle());
    QTRY_COMPARE(bed.level(), 2);
    QCOMPARE(bed.due(), at("2026-03-10T08:24:01"));
}

void TestWeather::forecastOfOtherDaysIsNotAskedForInALoop()
{
    QJsonArray list{dayEntry(at("2026-03-01T06:00:00"), at("2026-03-01T18:00:00"))};
    Service service(QJsonObject{{u"cod"_s, 200}, {u"list"_s, list}});
    setPlace(1, 2);
    Bed bed;
    bed.begin();
    bed.turnOn(Auto);
    QTRY_COMPARE(service.requests, 2);
    QVERIFY(bed.idle());
    for (int turn = 0; turn < 20; ++turn)
        QCoreApplication::processEvents();
    QVERIFY(bed.idle());
    QCOMPARE(service.requests, 2);
    programClock().advance(10 * MinuteMs + 1);
    QTRY_COMPARE(service.requests, 3);
}

void TestWeather::daylightSavingKeepsTheRealSpans()
{
    // In the night of 29 March the clock goes from 02:00 to 03:00: the daylight of 07:00 to 19:00 begins an
    // hour later in real time.
    if (QTimeZone::systemTimeZone().offsetFromUtc(at("2026-03-29T12:00:00")) ==
        QTimeZone::systemTimeZone().offsetFromUtc(at("2026-03-28T12:00:00")))
        QFAIL("the test's time zone has no daylight saving");
    programClock().set(at("2026-03-28T23:59:00"));
    Bed bed;
    bed.begin();
    bed.weather()->setProperty("manualSunRiseHour", 7);
    bed.weather()->setProperty("manualSunSetHour", 19);
    bed.turnOn(Manual);
    QVERIFY(bed.idle());
    // Night of the 28th: 12 h from 19:00; its last fifth begins 9 h 36 min after the sunset, which the clock
    // shows as 05:36.
    QCOMPARE(bed.level(), 5);
    bed.forget();
    programClock().advance(at("2026-03-28T23:59:00").msecsTo(at("2026-03-29T05:36:02")));
    QVERIFY(bed.idle());
    QCOMPARE(bed.level(), 3);
    QCOMPARE(bed.wire(), (QStringList{u"set 0x19 4"_s, u"set 0x19 3"_s}));
}

void TestWeather::serviceKeyIsSentAndNeverTold()
{
    // "secret+key/1" as the configuration keeps it.
    WebServer server;
    server.answers = {WebServer::answer("401 Unauthorized", R"({"cod":401})"),
                      WebServer::answer("500 Oops", ""),
                      WebServer::answer("302 Found", "", "Location: /again\r\n")};
    Environment environment(
        {{u"openweather.api"_s, u"http://127.0.0.1:%1/f"_s.arg(server.serverPort())},
         {u"openweather.key"_s, QString::fromLatin1(QByteArray("secret+key/1").toBase64())}});
    setPlace(1, 2);
    Bed bed;
    bed.begin();
    bed.forget();
    bed.turnOn(Auto);
    for (int answered = 1; answered <= 3; ++answered) {
        QTRY_VERIFY(server.requests.size() >= answered && bed.status() != Requesting);
        bed.restart();
    }
    server.close();
    QTRY_VERIFY(bed.status() != Requesting);
    bed.restart();
    QTRY_VERIFY(bed.status() != Requesting);
    QVERIFY(bed.idle());
    const QString log = bed.log().join(u'\n');
    QVERIFY(log.contains(u"get error code"_s));
    for (const QString& form :
         {u"secret"_s, u"APPID"_s, QString::fromLatin1(QByteArray("secret+key/1").toBase64())})
        QVERIFY2(!log.contains(form), qPrintable(log));
}

void TestWeather::realServiceOverTheWeb()
{
    WebServer server;
    QJsonObject reply = forecast("06:30", "18:30");
    reply[u"city"_s] = QJsonObject{{u"name"_s, u"Somewhere"_s}};
    server.answers = {WebServer::answer("302 Found", "", "Location: /moved\r\n"), WebServer::answer(reply)};
    Environment environment({{u"openweather.api"_s, u"http://127.0.0.1:%1/f"_s.arg(server.serverPort())}});
    setPlace(1, 2);
    Bed bed;
    bed.begin();
    bed.turnOn(Auto);
    QTRY_COMPARE(bed.status(), Success);
    QCOMPARE(bed.weather("autoSunRise").toString(), u"06:30"_s);
    QCOMPARE(server.requests.size(), 2);
}

int main(int argc, char** argv)
{
    // A zone with daylight saving, whatever the machine's.
    setZone("Europe/Berlin");
    QGuiApplication application(argc, argv);
    TestWeather test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_weather.moc"
