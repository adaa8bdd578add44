// SPDX-License-Identifier: Apache-2.0
#include "LuPlace.h"
#include "Shell.h"

#include <QDir>
#include <QJsonArray>
#include <QQuickItem>
#include <QTest>

#include <optional>

using namespace Qt::StringLiterals;

/// The page "Location", and what it keeps.
class TestPlaces : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void theSourceIsThatOfTheSettings_data();
    void theSourceIsThatOfTheSettings();
    void aSourceIsChosen_data();
    void aSourceIsChosen();
    void aPlaceIsTyped_data();
    void aPlaceIsTyped();
    void citiesAreFound_data();
    void citiesAreFound();
    void aCityIsChosenOnThePage();
    void numbersThatAreNoneAreRefusedOnThePage();
    void thePositionInUseIsShown_data();
    void thePositionInUseIsShown();
    void whoGetsThePositionIsTold_data();
    void whoGetsThePositionIsTold();
    void thePageIsDrawn();

private:
    bool open()
    {
        m_window = m_shell->openSettings(u"location"_s);
        return m_window != nullptr;
    }
    QQuickItem* item(const char* name) const { return m_shell->item(QLatin1String(name)); }
    bool shows(const QString& part) const { return Shell::shows(m_window, part); }
    bool type(const char* field, const QString& text)
    {
        bool done = false;
        return item(field) &&
               QMetaObject::invokeMethod(item(field), "assistiveSet", Q_RETURN_ARG(bool, done),
                                         Q_ARG(QVariant, text)) &&
               done;
    }

    QVariantMap m_store;
    std::optional<LuPlace::Position> m_present;
    QString m_weather;
    std::optional<Shell> m_shell;
    QQuickWindow* m_window = nullptr;
};

void TestPlaces::init()
{
    m_store.clear();
    m_present.reset();
    m_weather = u"lumen-sun://local/forecast"_s;
    LuPlace* place = LuPlace::instance();
    place->setStore([this](const QString& key) { return m_store.value(key); },
                    [this](const QString& key, const QVariant& value) { m_store.insert(key, value); });
    place->setPresent([this] { return m_present; });
    place->setCities(
        [] {
            return QList<LuPlace::City>{{u"Berlin"_s, u"Germany"_s, {52.5, 13.366667}},
                                        {u"Busingen"_s, u"Germany"_s, {47.7, 8.683333}},
                                        {u"New York"_s, u"United States"_s, {40.714167, -74.006389}},
                                        {u"Sao Paulo"_s, u"Brazil"_s, {-23.533333, -46.616667}},
                                        {u"York Sound"_s, u"Nowhere"_s, {1, 1}}};
        },
        [] { return u"Berlin"_s; });
    m_shell.emplace(QList<FakeMonitor*>());
    m_shell->context.setEnvironment(
        [this](const QString& key) { return key == "openweather.api"_L1 ? QVariant(m_weather) : QVariant(); },
        [](const QString&) { return QVariant(); });
}

void TestPlaces::cleanup()
{
    m_window = nullptr;
    m_shell.reset();
    LuContext::instance()->setEnvironment({}, {});
    LuPlace::instance()->setStore({}, {});
    LuPlace::instance()->setPresent({});
    LuPlace::instance()->setCities({}, {});
    QCOMPARE(Shell::takeWarnings(), QStringList());
}

void TestPlaces::theSourceIsThatOfTheSettings_data()
{
    QTest::addColumn<QVariantMap>("settings");
    QTest::addColumn<QString>("source");
    const QVariantMap numbers{{u"location/latitude"_s, u"1.5"_s}, {u"location/longitude"_s, 2.5}};
    const auto with = [&](const QString& source) {
        QVariantMap all = numbers;
        all.insert(u"location/source"_s, source);
        return all;
    };
    QTest::newRow("nothing") << QVariantMap() << u"service"_s;
    QTest::newRow("numbers alone") << numbers << u"place"_s;
    QTest::newRow("half a place") << QVariantMap{{u"location/latitude"_s, 1.5}} << u"service"_s;
    QTest::newRow("no service") << QVariantMap{{u"location/service"_s, false}} << u"zone"_s;
    QTest::newRow("no service, as a file has it")
        << QVariantMap{{u"location/service"_s, u"false"_s}} << u"zone"_s;
    QTest::newRow("off") << with(u"off"_s) << u"off"_s;
    QTest::newRow("zone") << with(u"zone"_s) << u"zone"_s;
    QTest::newRow("service") << with(u"service"_s) << u"service"_s;
    QTest::newRow("an unknown word") << with(u"moon"_s) << u"place"_s;
}

void TestPlaces::theSourceIsThatOfTheSettings()
{
    QFETCH(QVariantMap, settings);
    m_store = settings;
    QTEST(LuPlace::instance()->source(), "source");
}

void TestPlaces::aSourceIsChosen_data()
{
    QTest::addColumn<QString>("source");
    for (const char* source : {"zone", "place", "off", "service"})
        QTest::newRow(source) << QString::fromLatin1(source);
}

void TestPlaces::aSourceIsChosen()
{
    QFETCH(QString, source);
    m_store = {{u"location/latitude"_s, 1.5}, {u"location/longitude"_s, 2.5}};
    if (source == "place"_L1)
        m_store.insert(u"location/source"_s, u"off"_s);
    QVERIFY(open());
    const QByteArray name = "source." + source.toLatin1();
    QVERIFY(QMetaObject::invokeMethod(item(name.constData()), "assistivePress"));
    QCOMPARE(m_store.value(u"location/source"_s).toString(), source);
    // A place that was chosen stays for another time.
    QCOMPARE(m_store.value(u"location/latitude"_s).toDouble(), 1.5);
    QTRY_COMPARE(item("citySearch") != nullptr, source == "place"_L1);
    LuPlace::instance()->setSource(u"moon"_s);
    QCOMPARE(m_store.value(u"location/source"_s).toString(), source);
    QCOMPARE(Shell::takeWarnings().size(), 1);
}

void TestPlaces::aPlaceIsTyped_data()
{
    QTest::addColumn<QString>("latitude");
    QTest::addColumn<QString>("longitude");
    QTest::addColumn<bool>("taken");
    QTest::newRow("points") << u"52.52"_s << u"13.41"_s << true;
    QTest::newRow("commas") << u"52,52"_s << u"13,41"_s << true;
    QTest::newRow("degrees and blanks") << u" 52.52° "_s << u"13.41 °"_s << true;
    QTest::newRow("the ends") << u"-90"_s << u"180"_s << true;
    QTest::newRow("a minus as print has it") << u"\u221233.87"_s << u"151.21"_s << true;
    QTest::newRow("too far north") << u"90.01"_s << u"13"_s << false;
    QTest::newRow("too far west") << u"52"_s << u"-180.5"_s << false;
    QTest::newRow("a word") << u"north"_s << u"13"_s << false;
    QTest::newRow("not a number") << u"nan"_s << u"13"_s << false;
    QTest::newRow("endless") << u"inf"_s << u"13"_s << false;
    QTest::newRow("nothing") << QString() << u"13"_s << false;
}

void TestPlaces::aPlaceIsTyped()
{
    QFETCH(QString, latitude);
    QFETCH(QString, longitude);
    QFETCH(bool, taken);
    m_store = {{u"location/source"_s, u"off"_s}};
    QCOMPARE(LuPlace::instance()->choose(latitude, longitude), taken);
    QCOMPARE(m_store.value(u"location/source"_s).toString(), taken ? u"place"_s : u"off"_s);
    QCOMPARE(m_store.contains(u"location/latitude"_s), taken);
    QCOMPARE(LuPlace::instance()->latitude().isEmpty(), !taken);
}

void TestPlaces::citiesAreFound_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QStringList>("found");
    QTest::newRow("a beginning") << u"ber"_s << QStringList{u"Berlin"_s};
    QTest::newRow("another word of the name") << u"york"_s << QStringList{u"New York"_s, u"York Sound"_s};
    QTest::newRow("with marks") << u"São P"_s << QStringList{u"Sao Paulo"_s};
    QTest::newRow("a country") << u"germany"_s << QStringList{u"Berlin"_s, u"Busingen"_s};
    QTest::newRow("the middle of a word") << u"erlin"_s << QStringList();
    QTest::newRow("nothing") << u" "_s << QStringList();
}

void TestPlaces::citiesAreFound()
{
    QFETCH(QString, typed);
    QStringList names;
    for (const QVariant& each : LuPlace::instance()->search(typed))
        names.append(each.toMap().value(u"name"_s).toString());
    QTEST(names, "found");
}

void TestPlaces::aCityIsChosenOnThePage()
{
    m_store = {{u"location/source"_s, u"place"_s}};
    QVERIFY(open());
    QVERIFY(type("citySearch", u"new"_s));
    QTRY_VERIFY(shows(u"United States"_s));
    QVERIFY(m_shell->bridge->press(u"New York"_s, u"listItem"_s).ok());
    QCOMPARE(m_store.value(u"location/name"_s).toString(), u"New York"_s);
    QCOMPARE(m_store.value(u"location/latitude"_s).toDouble(), 40.714167);
    QCOMPARE(m_store.value(u"location/longitude"_s).toDouble(), -74.006389);
    QTRY_VERIFY(shows(u"Chosen place: New York"_s) && !shows(u"United States"_s));
    QCOMPARE(item("latitudeField")->property("text").toString(), u"40.714167"_s);
    // Other numbers are another place: the name goes.
    QVERIFY(type("latitudeField", u"41"_s));
    QVERIFY(QMetaObject::invokeMethod(item("latitudeField"), "editingFinished"));
    QCOMPARE(m_store.value(u"location/latitude"_s).toDouble(), 41.0);
    QTRY_VERIFY(!shows(u"New York"_s));
}

void TestPlaces::numbersThatAreNoneAreRefusedOnThePage()
{
    m_store = {
        {u"location/source"_s, u"place"_s}, {u"location/latitude"_s, 1.5}, {u"location/longitude"_s, 2.5}};
    QVERIFY(open());
    QVERIFY(type("latitudeField", u"100"_s));
    QVERIFY(QMetaObject::invokeMethod(item("latitudeField"), "editingFinished"));
    QTRY_VERIFY(item("placeRefused"));
    QCOMPARE(m_store.value(u"location/latitude"_s).toDouble(), 1.5);
    QVERIFY(type("latitudeField", u"10"_s));
    QVERIFY(QMetaObject::invokeMethod(item("latitudeField"), "editingFinished"));
    QTRY_VERIFY(!item("placeRefused"));
    QCOMPARE(m_store.value(u"location/latitude"_s).toDouble(), 10.0);
}

void TestPlaces::thePositionInUseIsShown_data()
{
    QTest::addColumn<double>("latitude");
    QTest::addColumn<double>("longitude");
    QTest::addColumn<QString>("shown");
    QTest::newRow("north and east") << 52.52 << 13.41 << u"52.52° N, 13.41° E"_s;
    QTest::newRow("south and west") << -23.533 << -46.617 << u"23.53° S, 46.62° W"_s;
}

void TestPlaces::thePositionInUseIsShown()
{
    QFETCH(double, latitude);
    QFETCH(double, longitude);
    QFETCH(QString, shown);
    const QLocale before;
    QLocale::setDefault(QLocale::c());
    const auto restore = qScopeGuard([&] { QLocale::setDefault(before); });
    QVERIFY(open());
    QCOMPARE(item("presentPosition")->property("text").toString(), u"None"_s);
    m_present = LuPlace::Position{latitude, longitude};
    LuPlace::instance()->refresh();
    QTRY_COMPARE(item("presentPosition")->property("text").toString(), shown);
}

void TestPlaces::whoGetsThePositionIsTold_data()
{
    QTest::addColumn<QString>("address");
    QTest::addColumn<QString>("part");
    QTest::newRow("nobody") << u"lumen-sun://local/forecast"_s << u"sent to nobody"_s;
    QTest::newRow("a service") << u"https://api.example.org/data/2.5/forecast"_s
                               << u", to api.example.org for"_s;
    QTest::newRow("a service on a port")
        << u"http://api.example.org:8080/x"_s << u", to api.example.org for"_s;
}

void TestPlaces::whoGetsThePositionIsTold()
{
    QFETCH(QString, address);
    QFETCH(QString, part);
    m_weather = address;
    QVERIFY(open());
    QVERIFY(shows(part));
}

void TestPlaces::thePageIsDrawn()
{
    m_store = {{u"location/source"_s, u"place"_s},
               {u"location/latitude"_s, 52.52},
               {u"location/longitude"_s, 13.41},
               {u"location/name"_s, u"Berlin"_s}};
    m_present = LuPlace::Position{52.52, 13.41};
    QVERIFY(open());
    QCOMPARE(m_shell->bridge->problems().value.toArray(), QJsonArray());
    m_window->setHeight(900);
    const QDir folder(qEnvironmentVariable("LUMEN_PICTURES", QDir::tempPath()));
    for (const QString& theme : {u"light"_s, u"dark"_s, u"contrast"_s}) {
        m_shell->context.setTheme(theme);
        const QImage picture = m_window->grabWindow();
        QVERIFY(!picture.isNull());
        if (qEnvironmentVariableIsSet("LUMEN_PICTURES"))
            QVERIFY(picture.save(folder.filePath(u"location-%1.png"_s.arg(theme))));
    }
    m_shell->context.setTheme(u"system"_s);
}

QTEST_MAIN(TestPlaces)
#include "tst_qml_places.moc"
