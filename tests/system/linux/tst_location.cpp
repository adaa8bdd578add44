// SPDX-License-Identifier: Apache-2.0
#include <LuShared/LuServerLocation.h>

#include "MockService.h"
#include "PrivateBus.h"
#include "lushared/LuSettings.h"
#include "lushared/services/ServiceRegistry.h"
#include "services/linux/Location.h"
#include "services/linux/ZoneCity.h"

#include <QDBusInterface>
#include <QDBusVariant>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>

using namespace Qt::StringLiterals;
using services::GeoPosition;

namespace {

const QString GeoClueName = u"org.freedesktop.GeoClue2"_s;

LuServerLocation& place()
{
    return *LuServerLocation::instance();
}

/// What the location service knows of its client.
QVariant clientProperty(const QString& name)
{
    QDBusInterface client(GeoClueName, u"/org/freedesktop/GeoClue2/Client/1"_s,
                          u"org.freedesktop.DBus.Properties"_s, QDBusConnection::systemBus());
    const QDBusMessage reply = client.call(u"Get"_s, u"org.freedesktop.GeoClue2.Client"_s, name);
    return reply.arguments().value(0).value<QDBusVariant>().variant();
}

} // namespace

class tst_location : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void positionsAreRead_data();
    void positionsAreRead();
    void citiesAreFound_data();
    void citiesAreFound();
    void tablesMayBeMissing();

    void settingComesFirst();
    void halfASettingIsNone_data();
    void halfASettingIsNone();
    void changedSettingIsFollowed();
    void serviceIsAskedForTheCity();
    void movesAreFollowed();
    void jitterIsNoMove();
    void refusalLeavesTheZonesCity();
    void silenceLeavesTheZonesCity();
    void lateAnswerCounts();
    void absentServiceLeavesTheZonesCity();
    void serviceThatEndsLeavesTheZonesCity();
    void serviceMayBeForbidden();
    void sourceIsAsTheSettingSays_data();
    void sourceIsAsTheSettingSays();
    void sourceMayChangeToAndFro();
    void everyCityIsListed();
    void zoneWithoutACityFails();
    void whoListensLateIsToldToo();
    void whoListensOnAnotherThreadIsToldToo();

private:
    /// What went wrong; empty on success.
    QString startService(const QJsonObject& parameters = {{u"latitude"_s, 48.137}, {u"longitude"_s, 11.575}})
    {
        return m_geoClue->start(QStringLiteral(MOCKS) + u"/geoclue.py"_s, GeoClueName, parameters);
    }
    void locate(int serviceWaitMs = 30'000)
    {
        services::LocationSources sources;
        sources.serviceWaitMs = serviceWaitMs;
        services::ServiceSet set;
        set.location = services::makeLinuxLocation(sources);
        services::Registry::install(set);
    }

    QTemporaryDir m_folder;
    PrivateBus m_bus;
    std::unique_ptr<MockService> m_geoClue;
};

#define COMPARE_PLACE(expectedLatitude, expectedLongitude)                                                   \
    QTRY_COMPARE_WITH_TIMEOUT(place().status(), int(LuServerLocation::Known), 30'000);                       \
    QTRY_COMPARE(place().latitude(), expectedLatitude);                                                      \
    QCOMPARE(place().longitude(), expectedLongitude)

void tst_location::initTestCase()
{
    const QString problem = m_bus.start();
    QVERIFY2(problem.isEmpty(), qPrintable(problem));
    qputenv("DBUS_SYSTEM_BUS_ADDRESS", m_bus.address().toUtf8());
    QVERIFY(QDBusConnection::systemBus().isConnected());
    QCoreApplication::setOrganizationName(u"lumen-desk"_s);
    QVERIFY(LuSettings::instance().open(m_folder.path()));
}

void tst_location::init()
{
    qputenv("TZ", "Europe/Berlin");
    m_geoClue = std::make_unique<MockService>();
}

void tst_location::cleanup()
{
    services::Registry::install({});
    m_geoClue.reset();
    QTRY_VERIFY(!QDBusConnection::systemBus().interface()->isServiceRegistered(GeoClueName));
    for (const QString& key :
         {u"location/latitude"_s, u"location/longitude"_s, u"location/service"_s, u"location/source"_s})
        LuSettings::instance().remove(key);
    QVERIFY(LuSettings::instance().flush());
}

void tst_location::positionsAreRead_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<bool>("valid");
    QTest::addColumn<double>("latitude");
    QTest::addColumn<double>("longitude");
    const auto row = [](const char* text, bool valid, double latitude = 0, double longitude = 0) {
        QTest::newRow(text) << QByteArray(text) << valid << latitude << longitude;
    };
    row("+5230+01322", true, 52.5, 13 + 22 / 60.0);
    row("-2332-04637", true, -(23 + 32 / 60.0), -(46 + 37 / 60.0));
    row("-690022+0393524", true, -(69 + 22 / 3600.0), 39 + 35 / 60.0 + 24 / 3600.0);
    row("+9000+18000", true, 90, 180);
    row("", false);
    row("5230+01322", false);
    row("+5230", false);
    row("+5230+1322", false);
    row("+9001+00000", false);
    row("+0000+18001", false);
    row("+0060+00000", false);
    row("+00a0+00000", false);
    row("+5230+01322+000", false);
}

void tst_location::positionsAreRead()
{
    QFETCH(QByteArray, text);
    QFETCH(bool, valid);
    QFETCH(double, latitude);
    QFETCH(double, longitude);
    const auto position = services::parsePosition(text);
    QCOMPARE(position.has_value(), valid);
    if (valid) {
        QCOMPARE(position->latitude, latitude);
        QCOMPARE(position->longitude, longitude);
    }
}

void tst_location::citiesAreFound_data()
{
    QTest::addColumn<QByteArray>("zone");
    QTest::addColumn<double>("latitude"); // 0 in both: none
    QTest::addColumn<double>("longitude");
    QTest::newRow("in the first table") << QByteArray("America/Sao_Paulo") << -23.5333 << -46.6167;
    QTest::newRow("in the second table only") << QByteArray("Europe/Stockholm") << 59.3333 << 18.05;
    QTest::newRow("by another name") << QByteArray("Asia/Calcutta") << 22.5333 << 88.3667;
    QTest::newRow("without a city") << QByteArray("Etc/UTC") << 0.0 << 0.0;
    QTest::newRow("unknown") << QByteArray("Mars/Olympus") << 0.0 << 0.0;
    QTest::newRow("empty") << QByteArray() << 0.0 << 0.0;
}

void tst_location::citiesAreFound()
{
    QFETCH(QByteArray, zone);
    QFETCH(double, latitude);
    QFETCH(double, longitude);
    const auto city = services::zoneCity(zone);
    QCOMPARE(city.has_value(), latitude != 0);
    if (city) {
        QVERIFY2(qAbs(city->latitude - latitude) < 0.01, qPrintable(QString::number(city->latitude)));
        QVERIFY2(qAbs(city->longitude - longitude) < 0.01, qPrintable(QString::number(city->longitude)));
    }
}

void tst_location::tablesMayBeMissing()
{
    QVERIFY(!services::zoneCity("Europe/Berlin", m_folder.path()));
    // Lines that are no entries are passed over.
    QFile table(m_folder.filePath(u"zone.tab"_s));
    QVERIFY(table.open(QIODevice::WriteOnly));
    table.write("# comment\nDE\nDE\tnonsense\tEurope/Berlin\n");
    table.close();
    QVERIFY(!services::zoneCity("Europe/Berlin", m_folder.path()));
}

void tst_location::settingComesFirst()
{
    QCOMPARE(startService(), QString());
    LuSettings::instance().setValue(u"location/latitude"_s, -33.87);
    LuSettings::instance().setValue(u"location/longitude"_s, u"151.21"_s);
    locate();
    COMPARE_PLACE(-33.87, 151.21);
    // Nobody was asked.
    QDBusInterface mock(GeoClueName, u"/org/freedesktop/GeoClue2/Manager"_s, u"org.freedesktop.DBus.Mock"_s,
                        QDBusConnection::systemBus());
    const QDBusMessage calls = mock.call(u"GetMethodCalls"_s, u"GetClient"_s);
    QCOMPARE(calls.type(), QDBusMessage::ReplyMessage);
    QCOMPARE(calls.signature(), u"a(tav)"_s);
    const auto list = calls.arguments().first().value<QDBusArgument>();
    list.beginArray();
    QVERIFY(list.atEnd());
    list.endArray();
}

void tst_location::halfASettingIsNone_data()
{
    QTest::addColumn<QVariant>("latitude");
    QTest::addColumn<QVariant>("longitude");
    QTest::newRow("no longitude") << QVariant(10.0) << QVariant();
    QTest::newRow("a word") << QVariant(u"north"_s) << QVariant(10.0);
    QTest::newRow("too far north") << QVariant(91.0) << QVariant(10.0);
    QTest::newRow("no number") << QVariant(u"nan"_s) << QVariant(10.0);
}

void tst_location::halfASettingIsNone()
{
    QFETCH(QVariant, latitude);
    QFETCH(QVariant, longitude);
    LuSettings::instance().setValue(u"location/latitude"_s, latitude);
    if (longitude.isValid())
        LuSettings::instance().setValue(u"location/longitude"_s, longitude);
    locate();
    COMPARE_PLACE(52.5, 13.37);
}

void tst_location::changedSettingIsFollowed()
{
    locate();
    COMPARE_PLACE(52.5, 13.37);
    QSignalSpy changed(&place(), &LuServerLocation::locationStatusChanged);
    QTRY_COMPARE(changed.count(), 1); // for who listens late
    LuSettings::instance().setValue(u"location/latitude"_s, 1.5);
    LuSettings::instance().setValue(u"location/longitude"_s, 2.5);
    COMPARE_PLACE(1.5, 2.5);
    QTRY_COMPARE(changed.count(), 2);
    LuSettings::instance().remove(u"location/latitude"_s);
    COMPARE_PLACE(52.5, 13.37);
}

void tst_location::serviceIsAskedForTheCity()
{
    QCOMPARE(startService(), QString());
    QSignalSpy changed(&place(), &LuServerLocation::locationStatusChanged);
    locate();
    QCOMPARE(place().status(), int(LuServerLocation::Unknown));
    COMPARE_PLACE(48.14, 11.58);
    QTRY_COMPARE(changed.count(), 1);
    QCOMPARE(clientProperty(u"DesktopId"_s).toString(), u"lumen-desk"_s);
    QCOMPARE(clientProperty(u"RequestedAccuracyLevel"_s).toUInt(), 4U);
    QVERIFY(clientProperty(u"Active"_s).toBool());
    services::Registry::install({});
    QTRY_VERIFY(!clientProperty(u"Active"_s).toBool());
}

void tst_location::movesAreFollowed()
{
    QCOMPARE(startService(), QString());
    locate();
    COMPARE_PLACE(48.14, 11.58);
    QDBusInterface mock(GeoClueName, u"/org/freedesktop/GeoClue2/Manager"_s, u"org.freedesktop.DBus.Mock"_s,
                        QDBusConnection::systemBus());
    mock.call(u"Move"_s, -10.5, 20.25);
    COMPARE_PLACE(-10.5, 20.25);
}

void tst_location::jitterIsNoMove()
{
    QCOMPARE(startService(), QString());
    locate();
    COMPARE_PLACE(48.14, 11.58);
    QSignalSpy changed(&place(), &LuServerLocation::locationStatusChanged);
    QTRY_COMPARE(changed.count(), 1);
    QDBusInterface mock(GeoClueName, u"/org/freedesktop/GeoClue2/Manager"_s, u"org.freedesktop.DBus.Mock"_s,
                        QDBusConnection::systemBus());
    mock.call(u"Move"_s, 48.1401, 11.5762);
    mock.call(u"Move"_s, 1.0, 1.0);
    COMPARE_PLACE(1.0, 1.0);
    QTRY_COMPARE(changed.count(), 2);
}

void tst_location::refusalLeavesTheZonesCity()
{
    QCOMPARE(startService({{u"refuse"_s, true}}), QString());
    locate();
    COMPARE_PLACE(52.5, 13.37);
}

void tst_location::silenceLeavesTheZonesCity()
{
    QCOMPARE(startService({{u"silent"_s, true}}), QString());
    locate(300);
    COMPARE_PLACE(52.5, 13.37);
}

void tst_location::lateAnswerCounts()
{
    QCOMPARE(startService({{u"silent"_s, true}}), QString());
    locate(100);
    COMPARE_PLACE(52.5, 13.37);
    QDBusInterface mock(GeoClueName, u"/org/freedesktop/GeoClue2/Manager"_s, u"org.freedesktop.DBus.Mock"_s,
                        QDBusConnection::systemBus());
    // Over again where the request was not yet through.
    QTRY_VERIFY(mock.call(u"Move"_s, 5.0, 6.0).type() == QDBusMessage::ReplyMessage &&
                place().latitude() == 5.0);
    COMPARE_PLACE(5.0, 6.0);
}

void tst_location::absentServiceLeavesTheZonesCity()
{
    locate();
    COMPARE_PLACE(52.5, 13.37);
}

void tst_location::serviceThatEndsLeavesTheZonesCity()
{
    QCOMPARE(startService(), QString());
    locate();
    COMPARE_PLACE(48.14, 11.58);
    m_geoClue->stop();
    COMPARE_PLACE(52.5, 13.37);
}

void tst_location::serviceMayBeForbidden()
{
    QCOMPARE(startService(), QString());
    LuSettings::instance().setValue(u"location/service"_s, false);
    locate();
    COMPARE_PLACE(52.5, 13.37);
}

void tst_location::sourceIsAsTheSettingSays_data()
{
    QTest::addColumn<QString>("source");
    QTest::addColumn<bool>("numbers"); // a chosen place is there
    QTest::addColumn<int>("status");
    QTest::addColumn<double>("latitude");
    QTest::newRow("off") << u"off"_s << true << int(LuServerLocation::Failed) << 0.0;
    QTest::newRow("place") << u"place"_s << true << int(LuServerLocation::Known) << 1.5;
    QTest::newRow("place without numbers") << u"place"_s << false << int(LuServerLocation::Failed) << 0.0;
    QTest::newRow("zone") << u"zone"_s << true << int(LuServerLocation::Known) << 52.5;
    QTest::newRow("service") << u"service"_s << true << int(LuServerLocation::Known) << 48.14;
    QTest::newRow("an unknown word, with numbers")
        << u"moon"_s << true << int(LuServerLocation::Known) << 1.5;
    QTest::newRow("an unknown word") << u"moon"_s << false << int(LuServerLocation::Known) << 48.14;
}

void tst_location::sourceIsAsTheSettingSays()
{
    QFETCH(QString, source);
    QFETCH(bool, numbers);
    QFETCH(int, status);
    QCOMPARE(startService(), QString());
    LuSettings::instance().setValue(u"location/source"_s, source);
    if (numbers) {
        LuSettings::instance().setValue(u"location/latitude"_s, 1.5);
        LuSettings::instance().setValue(u"location/longitude"_s, 2.5);
    }
    locate();
    QTRY_COMPARE_WITH_TIMEOUT(place().status(), status, 30'000);
    QTEST(place().latitude(), "latitude");
}

void tst_location::sourceMayChangeToAndFro()
{
    QCOMPARE(startService(), QString());
    const auto choose = [](const QString& source) {
        LuSettings::instance().setValue(u"location/source"_s, source);
        return LuSettings::instance().flush();
    };
    QVERIFY(choose(u"zone"_s));
    locate();
    COMPARE_PLACE(52.5, 13.37);
    QVERIFY(choose(u"off"_s));
    QTRY_COMPARE_WITH_TIMEOUT(place().status(), int(LuServerLocation::Failed), 30'000);
    QVERIFY(choose(u"service"_s));
    COMPARE_PLACE(48.14, 11.58);
    QVERIFY(choose(u"zone"_s));
    COMPARE_PLACE(52.5, 13.37);
    QVERIFY(choose(u"service"_s));
    COMPARE_PLACE(48.14, 11.58);
}

void tst_location::everyCityIsListed()
{
    const QList<services::ZonePlace> places = services::zonePlaces();
    QVERIFY2(places.size() > 300, qPrintable(QString::number(places.size())));
    const auto found = std::find_if(places.begin(), places.end(),
                                    [](const auto& each) { return each.name == "New York"_L1; });
    QVERIFY(found != places.end());
    QCOMPARE(found->country, u"United States"_s);
    QVERIFY(qAbs(found->position.latitude - 40.7142) < 0.01);
    QVERIFY(services::zonePlaces(m_folder.filePath(u"nowhere"_s)).isEmpty());
}

void tst_location::zoneWithoutACityFails()
{
    qputenv("TZ", "Etc/UTC");
    locate();
    QTRY_COMPARE(place().status(), int(LuServerLocation::Failed));
}

void tst_location::whoListensLateIsToldToo()
{
    locate();
    COMPARE_PLACE(52.5, 13.37);
    QSignalSpy first(&place(), &LuServerLocation::locationStatusChanged);
    QTRY_COMPARE(first.count(), 1);
    int told = 0;
    connect(&place(), &LuServerLocation::locationStatusChanged, this, [&] { ++told; });
    QTRY_COMPARE(told, 1);
    disconnect(&place(), nullptr, this, nullptr);
}

void tst_location::whoListensOnAnotherThreadIsToldToo()
{
    locate();
    COMPARE_PLACE(52.5, 13.37);
    QObject receiver;
    int told = 0;
    const std::unique_ptr<QThread> other(QThread::create(
        [&] { connect(&place(), &LuServerLocation::locationStatusChanged, &receiver, [&] { ++told; }); }));
    other->start();
    QVERIFY(other->wait());
    QTRY_COMPARE(told, 1);
}

QTEST_GUILESS_MAIN(tst_location)
#include "tst_location.moc"
