// SPDX-License-Identifier: Apache-2.0
#include "weather_bed.h"

#include <QLoggingCategory>

#include <cmath>
#include <mutex>

using namespace Qt::StringLiterals;
using namespace weather_bed;

namespace {

/// A plain model of a place's sun, for numbers that change from day to day: the daylight swings around twelve
/// hours with the latitude, noon is given by the longitude.
std::pair<QDateTime, QDateTime> sunOf(QDate day, double latitude, double longitude)
{
    const double swing = 6.0 * std::tan(latitude * M_PI / 180.0) * 0.43;
    const double hours = 12 + swing * std::cos(2 * M_PI * (day.dayOfYear() - 172) / 365.0);
    const QDateTime noon =
        QDateTime(day, QTime(12, 0), Qt::UTC).addSecs(qint64(-longitude * 240 + 3600 * 0.3)).toLocalTime();
    const qint64 half = qint64(hours * 1800) + day.dayOfYear() % 7;
    return {noon.addSecs(-half), noon.addSecs(half)};
}

/// The level that the curve of a day gives, from the fractions of night and daylight; nothing within two
/// seconds of a step.
std::optional<int> curveLevel(const QDateTime& now, const std::pair<QDateTime, QDateTime>& sun,
                              const std::pair<QDateTime, QDateTime>& before)
{
    static constexpr int ByNight[] = {3, 4, 5, 4, 3};
    static constexpr int ByDay[] = {2, 1, 0, 1, 2};
    const auto pick = [](const int(&levels)[5], double fifths, double span) -> std::optional<int> {
        const double nearest = std::round(fifths);
        if (fifths < 0 || fifths >= 5)
            return std::nullopt; // the second in which one day's table takes over from the other's
        if (std::abs(fifths - nearest) * span / 5 < 2)
            return std::nullopt;
        return levels[int(fifths)];
    };
    const double daylight = double(sun.first.secsTo(sun.second));
    const double night = 86400 - daylight;
    const double lastNight = 86400 - double(before.first.secsTo(before.second));
    if (now < sun.first) {
        const double fifths = 5 - 5.0 * double(now.secsTo(sun.first)) / lastNight;
        return fifths < 2 ? std::nullopt : pick(ByNight, fifths, lastNight);
    }
    if (now < sun.second)
        return pick(ByDay, 5.0 * double(sun.first.secsTo(now)) / daylight, daylight);
    return pick(ByNight, 5.0 * double(sun.second.secsTo(now)) / night, night);
}

/// The suns of a place's days.
class Almanac
{
public:
    Almanac(QDate first, int days, double latitude, double longitude) : m_first(first)
    {
        for (int day = 0; day < days; ++day)
            m_suns.append(sunOf(first.addDays(day), latitude, longitude));
    }

    /// What the monitor must be told at a moment: the table of a day rules until a day after its sunrise.
    std::optional<int> levelAt(const QDateTime& now) const
    {
        qsizetype day = m_first.daysTo(now.date());
        if (now < m_suns[day - 1].first.addSecs(86400 + 3))
            --day;
        return curveLevel(now, m_suns[day], m_suns[day - 1]);
    }

private:
    QDate m_first;
    QList<std::pair<QDateTime, QDateTime>> m_suns;
};

} // namespace

/// Carries a signal of an object whose class the test does not know.
class Relay : public QObject
{
    Q_OBJECT

Q_SIGNALS:
    void heard();
};

class TestCircadianYear : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { forgetWeather(); }
    void cleanup() { programClock().release(); }
    void levelEqualsTheCurveThroughAYear_data();
    void levelEqualsTheCurveThroughAYear();

private:
    Relay m_relay;
};

void TestCircadianYear::levelEqualsTheCurveThroughAYear_data()
{
    QTest::addColumn<double>("latitude");
    QTest::addColumn<double>("longitude");
    QTest::newRow("Berlin") << 52.52 << 13.40;
    QTest::newRow("Quito") << -0.18 << 20.0;
    QTest::newRow("Cape Town") << -33.92 << 18.42;
    QTest::newRow("Reykjavik") << 60.0 << -5.0;
    QTest::newRow("Lisbon") << 38.72 << -9.14;
    QTest::newRow("Athens") << 37.98 << 23.73;
    QTest::newRow("Oslo") << 59.91 << 10.75;
    QTest::newRow("Lagos") << 6.52 << 3.38;
    QTest::newRow("Cairo") << 30.04 << 31.24;
    QTest::newRow("far south") << -58.0 << 10.0;
}

void TestCircadianYear::levelEqualsTheCurveThroughAYear()
{
    QFETCH(double, latitude);
    QFETCH(double, longitude);
    Service service([=](const QUrl&, const QJsonObject&) {
        QJsonArray list;
        for (int i = 0; i < 16; ++i) {
            const auto [rise, set] = sunOf(programClock().now().date().addDays(i), latitude, longitude);
            list.append(dayEntry(rise, set));
        }
        return QJsonObject{{u"cod"_s, 200}, {u"list"_s, list}};
    });
    const QDateTime begin = at("2026-01-01T12:00:00");
    programClock().set(begin);
    setPlace(latitude, longitude);
    Bed bed;
    bed.begin();
    bed.turnOn(Auto);
    QTRY_COMPARE(bed.status(), Success);
    QVERIFY(bed.idle());

    // What reached the monitor, each with the program's time.
    struct Told
    {
        QDateTime time;
        int level;
    };
    QList<Told> told{{begin, bed.monitor().value(0x19).value_or(99)}};
    std::mutex mutex;
    connect(bed.module(Module), SIGNAL(levelChanged()), &m_relay, SIGNAL(heard()), Qt::DirectConnection);
    const auto connection = connect(
        &m_relay, &Relay::heard, this,
        [&] {
            const std::lock_guard lock(mutex);
            told.append({programClock().now(), bed.monitor().value(0x19).value_or(99)});
        },
        Qt::DirectConnection);
    const auto stop = qScopeGuard([&] { disconnect(connection); });
    for (int day = 0; day < 365; ++day)
        programClock().advance(DayMs);
    QVERIFY(bed.idle());

    const Almanac almanac(begin.date().addDays(-3), 370, latitude, longitude);
    int wrong = 0;
    int compared = 0;
    qsizetype row = 0;
    const std::lock_guard lock(mutex);
    for (QDateTime now = begin.addSecs(30); now < begin.addDays(365); now = now.addSecs(60)) {
        while (row + 1 < told.size() && told[row + 1].time <= now)
            ++row;
        const std::optional<int> expected = almanac.levelAt(now);
        if (!expected)
            continue;
        ++compared;
        if (*expected != told[row].level && ++wrong < 10)
            qWarning() << now << "expected" << *expected << "told" << told[row].level;
    }
    QCOMPARE(wrong, 0);
    QVERIFY2(compared > 500'000, qPrintable(QString::number(compared)));
    QVERIFY2(service.requests < 40, qPrintable(QString::number(service.requests)));
}

int main(int argc, char** argv)
{
    // A zone with daylight saving, whatever the machine's.
    qputenv("TZ", "Europe/Berlin");
    tzset();
    QGuiApplication application(argc, argv);
    // Ten years of log lines tell nothing here.
    QLoggingCategory::setFilterRules(u"*.info=false"_s);
    TestCircadianYear test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_circadianyear.moc"
