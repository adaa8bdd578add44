// SPDX-License-Identifier: Apache-2.0
#include "DeskProcess.h"

#include <QtTest>

using namespace Qt::StringLiterals;

/// The page "Location" of the whole program, with the place as this computer finds it.
class tst_desk_places : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup();
    void thePlaceComesFromWhereThePageSays();
    void thePanelLeadsToThePage();
    void aChoiceLasts();

private:
    QString shown()
    {
        const QJsonValue tree = m_desk->client().call(u"ui.tree"_s).result;
        return QString::fromUtf8(QJsonDocument(QJsonArray{tree}).toJson());
    }
    bool press(const QString& name, const QString& role)
    {
        return m_desk->client().call(u"ui.press"_s, {{u"name"_s, name}, {u"role"_s, role}}).ok();
    }
    bool begin()
    {
        return m_desk->start({u"--simulate"_s, u"TK30Z"_s, u"--ddc-timing"_s, u"fast"_s, u"--services"_s,
                              u"native"_s}) &&
               m_desk->client().call(u"idle"_s).ok();
    }
    bool openPage() { return m_desk->client().call(u"ui.open"_s, {{u"section"_s, u"location"_s}}).ok(); }

    std::unique_ptr<DeskProcess> m_desk;
};

void tst_desk_places::initTestCase()
{
    // No bus and no location service: the zone's city remains.
    qputenv("TZ", "Europe/Berlin");
    qputenv("DBUS_SYSTEM_BUS_ADDRESS", "unix:path=/nonexistent/bus");
}

void tst_desk_places::cleanup()
{
    if (m_desk && m_desk->isRunning()) {
        QCOMPARE(m_desk->client().call(u"ui.warnings"_s).result.toArray(), QJsonArray());
        QCOMPARE(m_desk->stop(), 0);
    }
    m_desk.reset();
}

void tst_desk_places::thePlaceComesFromWhereThePageSays()
{
    m_desk = std::make_unique<DeskProcess>();
    QVERIFY2(begin(), qPrintable(m_desk->errors()));
    QVERIFY(openPage());
    const QString berlin = u"52.50° N, 13.37° E"_s;
    QTRY_VERIFY_WITH_TIMEOUT(shown().contains(berlin), 30'000);
    QVERIFY(shown().contains(u"sent to nobody"_s));
    QVERIFY(press(u"Off"_s, u"radio"_s));
    QTRY_VERIFY_WITH_TIMEOUT(!shown().contains(berlin), 30'000);
    QVERIFY(press(u"City of the time zone"_s, u"radio"_s));
    QTRY_VERIFY_WITH_TIMEOUT(shown().contains(berlin), 30'000);
    QVERIFY(press(u"A place that I choose"_s, u"radio"_s));
    QVERIFY(m_desk->client().call(u"ui.setValue"_s, {{u"name"_s, u"City"_s}, {u"value"_s, u"sydn"_s}}).ok());
    QVERIFY(QTest::qWaitFor([&] { return press(u"Sydney"_s, u"listItem"_s); }, 30'000));
    QTRY_VERIFY_WITH_TIMEOUT(shown().contains(u"33.87° S, 151.22° E"_s), 30'000);
    const QJsonObject stored =
        m_desk->client().call(u"settings"_s).result.toObject()[u"application"].toObject();
    QCOMPARE(stored[u"location/source"].toString(), u"place"_s);
    QCOMPARE(stored[u"location/name"].toString(), u"Sydney"_s);
}

void tst_desk_places::thePanelLeadsToThePage()
{
    m_desk = std::make_unique<DeskProcess>();
    QVERIFY2(begin(), qPrintable(m_desk->errors()));
    QVERIFY(m_desk->client()
                .call(u"settings.set"_s, {{u"key"_s, u"location/source"_s}, {u"value"_s, u"off"_s}})
                .ok());
    QVERIFY(m_desk->client().set(u"lowBlueLight.circadianState"_s, true).ok());
    QVERIFY(m_desk->client().call(u"ui.open"_s, {{u"widget"_s, u"LuLowBlueLightWidget"_s}}).ok());
    QVERIFY(QTest::qWaitFor([&] { return press(u"Set your location"_s, u"link"_s); }, 30'000));
    QTRY_VERIFY(shown().contains(u"need to know roughly where you are"_s));
    // With a place again there is nothing to be set.
    QVERIFY(press(u"City of the time zone"_s, u"radio"_s));
    QTRY_VERIFY_WITH_TIMEOUT(!shown().contains(u"Set your location"_s), 30'000);
}

void tst_desk_places::aChoiceLasts()
{
    m_desk = std::make_unique<DeskProcess>();
    QVERIFY2(begin(), qPrintable(m_desk->errors()));
    QVERIFY(openPage());
    QVERIFY(press(u"Off"_s, u"radio"_s));
    QCOMPARE(m_desk->stop(), 0);
    QVERIFY2(begin(), qPrintable(m_desk->errors()));
    QVERIFY(openPage());
    QTRY_VERIFY(shown().contains(u"Position in use: None"_s));
}

QTEST_GUILESS_MAIN(tst_desk_places)
#include "tst_desk_places.moc"
