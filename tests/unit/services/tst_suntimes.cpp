// SPDX-License-Identifier: Apache-2.0
#include <ZrCore/ZrClock.h>
#include <ZrCore/ZrNetworkCall.h>

#include "services/sun/SunForecast.h"
#include "services/sun/SunTimes.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QTest>
#include <QThread>

#include <optional>

using namespace Qt::StringLiterals;
using services::SunDay;

namespace {

/// A row of an almanac, in local time of a fixed offset.
struct Entry
{
    const char* place;
    double latitude;
    double longitude;
    double offsetHours;
    const char* date;
    const char* rise;
    const char* set;
};

// U.S. Naval Observatory, Astronomical Applications Department: "Complete Sun and Moon Data for One Day" of
// 2026-04-14, and "Rise and Set for the Sun" of San Francisco (2012) and Fredonia, Arizona (2023), which
// cover the seasons. Whole minutes.
constexpr Entry Almanac[] = {
    {"Mayapur", 23.4242, 88.3888, 5.5, "2026-04-14", "05:17", "17:57"},
    {"Vrindavan", 27.5806, 77.7006, 5.5, "2026-04-14", "05:56", "18:43"},
    {"Delhi", 28.6139, 77.209, 5.5, "2026-04-14", "05:57", "18:46"},
    {"Mumbai", 19.076, 72.8777, 5.5, "2026-04-14", "06:22", "18:56"},
    {"London", 51.5074, -0.1278, 1, "2026-04-14", "06:07", "19:55"},
    {"New York", 40.7128, -74.006, -4, "2026-04-14", "06:19", "19:34"},
    {"Auckland", -36.8485, 174.7633, 12, "2026-04-14", "06:45", "17:57"},
    {"Moscow", 55.7558, 37.6173, 3, "2026-04-14", "05:28", "19:33"},
    {"Sao Paulo", -23.5505, -46.6333, -3, "2026-04-14", "06:20", "17:53"},
    {"Sydney", -33.8688, 151.2093, 10, "2026-04-14", "06:17", "17:34"},
    {"San Francisco in winter", 37.7667, -122.4333, -8, "2012-01-01", "07:25", "17:01"},
    {"San Francisco in spring", 37.7667, -122.4333, -8, "2012-03-20", "06:12", "18:22"},
    {"San Francisco in summer", 37.7667, -122.4333, -8, "2012-06-21", "04:48", "19:35"},
    {"San Francisco in autumn", 37.7667, -122.4333, -8, "2012-09-22", "05:58", "18:06"},
    {"San Francisco at the year's end", 37.7667, -122.4333, -8, "2012-12-31", "07:25", "17:01"},
    {"Fredonia in winter", 36.95, -112.5167, -7, "2023-02-15", "07:19", "18:10"},
    {"Fredonia in spring", 36.95, -112.5167, -7, "2023-05-15", "05:22", "19:31"},
    {"Fredonia in summer", 36.95, -112.5167, -7, "2023-08-15", "05:47", "19:22"},
    {"Fredonia in autumn", 36.95, -112.5167, -7, "2023-11-15", "07:08", "17:21"},
};

// The same source: "continuously above" or "below the horizon".
constexpr Entry Polar[] = {
    {"Longyearbyen, midnight sun", 78.2232, 15.6469, 2, "2026-06-21", nullptr, nullptr},
    {"Longyearbyen, polar night", 78.2232, 15.6469, 1, "2026-12-21", nullptr, nullptr},
    {"McMurdo, midnight sun", -77.8419, 166.6863, 13, "2026-12-21", nullptr, nullptr},
    {"McMurdo, polar night", -77.8419, 166.6863, 12, "2026-06-21", nullptr, nullptr},
};

template <class Entries>
void addRows(const Entries& entries)
{
    QTest::addColumn<Entry>("entry");
    for (const Entry& entry : entries)
        QTest::newRow(entry.place) << entry;
}

QTimeZone zoneOf(const Entry& entry)
{
    return QTimeZone(int(entry.offsetHours * 3600));
}

QDate dateOf(const Entry& entry)
{
    return QDate::fromString(QLatin1String(entry.date), Qt::ISODate);
}

SunDay sunOf(const Entry& entry)
{
    return services::sunDay(dateOf(entry), zoneOf(entry), entry.latitude, entry.longitude);
}

/// Seconds between a moment and an almanac's minute of a date.
qint64 distance(const QDateTime& moment, const Entry& entry, const char* minute)
{
    const QTime time = QTime::fromString(QLatin1String(minute), u"hh:mm"_s);
    return qAbs(QDateTime(dateOf(entry), time, zoneOf(entry)).secsTo(moment));
}

class Call : public ZrNetworkCall
{
public:
    explicit Call(const QUrl& url, QObject* parent = nullptr) : ZrNetworkCall(url, u"GET"_s, parent) {}
};

} // namespace

Q_DECLARE_METATYPE(Entry)

class tst_suntimes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void timesAreTheAlmanacs_data() { addRows(Almanac); }
    void timesAreTheAlmanacs();
    void polarDaysHaveNone_data() { addRows(Polar); }
    void polarDaysHaveNone();
    void bothPolesArePolar();
    void polarSeasonsBeginAndEndOnce();
    void everyDayHasItsOwnSunrise_data();
    void everyDayHasItsOwnSunrise();
    void forecastHasTheServicesForm();
    void forecastOfPolarDaysIsZero();
    void forecastCountsDays_data();
    void forecastCountsDays();
    void wrongOptionsAreRefused_data();
    void wrongOptionsAreRefused();
    void addressIsAnsweredWithTheProgramsClock();
    void otherAddressesAreUnknown();
    void requestMayBeMadeOnAQueuesThread();
};

void tst_suntimes::timesAreTheAlmanacs()
{
    QFETCH(Entry, entry);
    const SunDay sun = sunOf(entry);
    QVERIFY(!sun.isPolar());
    // Half a minute is the almanac's rounding; the rest is the short series'.
    constexpr qint64 Tolerance = 45;
    QVERIFY2(distance(sun.rise, entry, entry.rise) <= Tolerance, qPrintable(sun.rise.toString(Qt::ISODate)));
    QVERIFY2(distance(sun.set, entry, entry.set) <= Tolerance, qPrintable(sun.set.toString(Qt::ISODate)));
}

void tst_suntimes::polarDaysHaveNone()
{
    QFETCH(Entry, entry);
    const SunDay sun = sunOf(entry);
    QVERIFY(sun.isPolar());
    QVERIFY(!sun.set.isValid());
}

void tst_suntimes::bothPolesArePolar()
{
    for (const double latitude : {90.0, -90.0}) {
        QVERIFY(services::sunDay(QDate(2026, 6, 21), QTimeZone::utc(), latitude, 0).isPolar());
        QVERIFY(services::sunDay(QDate(2026, 12, 21), QTimeZone::utc(), latitude, 0).isPolar());
    }
}

void tst_suntimes::polarSeasonsBeginAndEndOnce()
{
    const QTimeZone zone(3600);
    int changes = 0;
    bool polar = true;
    for (QDate date(2026, 1, 1); date.year() == 2026; date = date.addDays(1)) {
        const SunDay sun = services::sunDay(date, zone, 78.2232, 15.6469);
        if (sun.isPolar() != polar) {
            polar = !polar;
            ++changes;
        }
        if (!polar)
            QVERIFY2(sun.rise < sun.set && sun.rise.secsTo(sun.set) < 86400 + 1200,
                     qPrintable(date.toString(Qt::ISODate)));
    }
    QCOMPARE(changes, 4);
    QVERIFY(polar);
}

void tst_suntimes::everyDayHasItsOwnSunrise_data()
{
    QTest::addColumn<double>("latitude");
    QTest::addColumn<double>("longitude");
    QTest::addColumn<QByteArray>("zone");
    QTest::newRow("Berlin") << 52.5 << 13.4 << QByteArray("Europe/Berlin");
    QTest::newRow("at the date line") << -13.8 << -171.8 << QByteArray("Pacific/Apia");
    QTest::newRow("clock of the other side of the world") << 35.7 << 139.7 << QByteArray("America/New_York");
    QTest::newRow("Tokyo by UTC") << 35.7 << 139.7 << QByteArray("UTC");
    QTest::newRow("sunrise at midnight") << 0.0 << 90.0 << QByteArray("UTC");
}

void tst_suntimes::everyDayHasItsOwnSunrise()
{
    QFETCH(double, latitude);
    QFETCH(double, longitude);
    QFETCH(QByteArray, zone);
    const QTimeZone local(zone);
    QVERIFY(local.isValid());
    int own = 0;
    for (QDate date(2026, 1, 1); date.year() == 2026; date = date.addDays(1)) {
        const SunDay sun = services::sunDay(date, local, latitude, longitude);
        QVERIFY(!sun.isPolar());
        QVERIFY(sun.rise < sun.set && sun.rise.secsTo(sun.set) < 86400);
        own += sun.rise.toTimeZone(local).date() == date;
    }
    // Where the sun rises around midnight a day may pass without a sunrise, which then has just been.
    QVERIFY2(own >= 360, qPrintable(QString::number(own)));
}

void tst_suntimes::forecastHasTheServicesForm()
{
    const QTimeZone zone("Europe/London");
    const QDateTime now(QDate(2026, 4, 14), QTime(23, 59), zone);
    const QJsonObject reply = services::sunForecast({{u"lat"_s, 51.5074},
                                                     {u"lon"_s, -0.1278},
                                                     {u"cnt"_s, u"16"_s},
                                                     {u"mode"_s, u"json"_s},
                                                     {u"APPID"_s, u"k"_s}},
                                                    now);
    QCOMPARE(reply[u"cod"], QJsonValue(u"200"_s));
    QCOMPARE(reply[u"cnt"].toInt(), 16);
    QCOMPARE(reply[u"city"][u"coord"][u"lat"].toDouble(), 51.5074);
    QCOMPARE(reply[u"city"][u"coord"][u"lon"].toDouble(), -0.1278);
    QCOMPARE(reply[u"city"][u"timezone"].toInt(), 3600);
    const QJsonArray list = reply[u"list"].toArray();
    QCOMPARE(list.size(), 16);
    for (int day = 0; day < list.size(); ++day) {
        const QDate date = QDate(2026, 4, 14).addDays(day);
        for (const QString& key : {u"dt"_s, u"sunrise"_s, u"sunset"_s}) {
            QVERIFY(list[day][key].isDouble());
            // The reader takes whole numbers.
            const auto moment = QDateTime::fromSecsSinceEpoch(list[day][key].toInt(), zone);
            QCOMPARE(moment.date(), date);
        }
    }
    QCOMPARE(QDateTime::fromSecsSinceEpoch(list[0][u"sunrise"].toInt(), zone).toString(u"hh:mm"_s),
             u"06:07"_s);
}

void tst_suntimes::forecastOfPolarDaysIsZero()
{
    const QDateTime now(QDate(2026, 6, 21), QTime(12, 0), QTimeZone(7200));
    const QJsonArray list =
        services::sunForecast({{u"lat"_s, 78.2232}, {u"lon"_s, 15.6469}, {u"cnt"_s, 16}}, now)[u"list"]
            .toArray();
    QCOMPARE(list.size(), 16);
    for (const QJsonValue& day : list) {
        QCOMPARE(day[u"sunrise"], QJsonValue(0));
        QCOMPARE(day[u"sunset"], QJsonValue(0));
    }
}

void tst_suntimes::forecastCountsDays_data()
{
    QTest::addColumn<QJsonValue>("count");
    QTest::addColumn<int>("days");
    QTest::newRow("none given") << QJsonValue(QJsonValue::Undefined) << 7;
    QTest::newRow("one") << QJsonValue(1) << 1;
    QTest::newRow("text") << QJsonValue(u"3"_s) << 3;
    QTest::newRow("all") << QJsonValue(16) << 16;
}

void tst_suntimes::forecastCountsDays()
{
    QFETCH(QJsonValue, count);
    QFETCH(int, days);
    QJsonObject options{{u"lat"_s, u"10.5"_s}, {u"lon"_s, u"20"_s}};
    if (!count.isUndefined())
        options[u"cnt"] = count;
    const QJsonObject reply = services::sunForecast(options, QDateTime::currentDateTime());
    QCOMPARE(reply[u"list"].toArray().size(), days);
}

void tst_suntimes::wrongOptionsAreRefused_data()
{
    QTest::addColumn<QJsonObject>("options");
    QTest::newRow("none") << QJsonObject();
    QTest::newRow("no longitude") << QJsonObject{{u"lat"_s, 1}};
    QTest::newRow("latitude over 90") << QJsonObject{{u"lat"_s, 90.1}, {u"lon"_s, 0}};
    QTest::newRow("longitude under -180") << QJsonObject{{u"lat"_s, 0}, {u"lon"_s, -181}};
    QTest::newRow("latitude as a word") << QJsonObject{{u"lat"_s, u"north"_s}, {u"lon"_s, 0}};
    QTest::newRow("latitude that is no number") << QJsonObject{{u"lat"_s, u"nan"_s}, {u"lon"_s, 0}};
    QTest::newRow("no days") << QJsonObject{{u"lat"_s, 0}, {u"lon"_s, 0}, {u"cnt"_s, 0}};
    QTest::newRow("a month") << QJsonObject{{u"lat"_s, 0}, {u"lon"_s, 0}, {u"cnt"_s, 30}};
    QTest::newRow("half a day") << QJsonObject{{u"lat"_s, 0}, {u"lon"_s, 0}, {u"cnt"_s, 1.5}};
    QTest::newRow("days as a list") << QJsonObject{{u"lat"_s, 0}, {u"lon"_s, 0}, {u"cnt"_s, QJsonArray{1}}};
}

void tst_suntimes::wrongOptionsAreRefused()
{
    QFETCH(QJsonObject, options);
    const QJsonObject reply = services::sunForecast(options, QDateTime::currentDateTime());
    QCOMPARE(reply[u"cod"], QJsonValue(u"400"_s));
    QVERIFY(!reply[u"message"].toString().isEmpty());
    QVERIFY(!reply.contains(u"list"));
}

void tst_suntimes::addressIsAnsweredWithTheProgramsClock()
{
    services::answerSunForecasts();
    ZrClock::instance().set(QDateTime(QDate(2030, 3, 4), QTime(8, 0)));
    std::optional<QJsonObject> reply;
    Call call(QUrl(u"lumen-sun://local/forecast"_s));
    call.setOption(u"lat"_s, 52.5);
    call.setOption(u"lon"_s, 13.4);
    call.setOption(u"cnt"_s, u"16"_s);
    call.execute([&](int code, const QString&, const QJsonObject& object) {
        if (code == 0)
            reply = object;
    });
    QTRY_VERIFY(reply);
    ZrClock::instance().release();
    const auto noon = QDateTime::fromSecsSinceEpoch((*reply)[u"list"][0][u"dt"].toInt());
    QCOMPARE(noon.date(), QDate(2030, 3, 4));
}

void tst_suntimes::otherAddressesAreUnknown()
{
    services::answerSunForecasts();
    for (const QString& address : {u"lumen-sun://local/other"_s, u"lumen-sun://elsewhere/forecast"_s}) {
        std::optional<QJsonObject> reply;
        Call call{QUrl(address)};
        call.execute([&](int, const QString&, const QJsonObject& object) { reply = object; });
        QTRY_VERIFY(reply);
        QCOMPARE((*reply)[u"cod"], QJsonValue(u"404"_s));
    }
}

void tst_suntimes::requestMayBeMadeOnAQueuesThread()
{
    services::answerSunForecasts();
    QObject parent;
    std::atomic<QThread*> answeredOn = nullptr;
    std::shared_ptr<Call> call;
    // A thread without an event loop, as a queue's is.
    const std::unique_ptr<QThread> maker(QThread::create([&] {
        call = std::make_shared<Call>(QUrl(u"lumen-sun://local/forecast"_s), &parent);
        call->setOption(u"lat"_s, 1);
        call->setOption(u"lon"_s, 1);
        call->execute(
            [&](int, const QString&, const QJsonObject&) { answeredOn = QThread::currentThread(); });
    }));
    maker->start();
    QVERIFY(maker->wait());
    QTRY_COMPARE(answeredOn.load(), thread());
}

QTEST_GUILESS_MAIN(tst_suntimes)
#include "tst_suntimes.moc"
