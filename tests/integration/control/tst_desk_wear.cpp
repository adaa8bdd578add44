// SPDX-License-Identifier: Apache-2.0
#include "DeskProcess.h"

#include <QDir>
#include <QtTest>

using namespace Qt::StringLiterals;

/// What the program writes to a monitor is counted and bounded, and the numbers last.
class TestDeskWear : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void statisticsSurviveARestart();
    void statisticsSurviveAKill();
    void damagedStatisticsAreKeptAside();
    void aCircleOfFunctionsIsStopped_data();
    void aCircleOfFunctionsIsStopped();
    void theBreakerOpensAndCloses();
    void aPersonsSliderIsNotLimited();
    void aPersonIsNotHeldUpByTheBreaker();
    void aHangingMonitorDoesNotDelayAnothersRest();
    void theProgramEndsWhileABusHangs();
    void theReportHoldsNothingPersonal();

private:
    static qsizetype writes(ControlClient& client, int code);
    static QJsonObject stats(ControlClient& client) { return client.call(u"stats"_s).result.toObject(); }
    static bool stopClock(ControlClient& client)
    {
        return client.call(u"clock.set"_s, {{u"time"_s, u"2026-03-02T10:00:00"_s}}).ok();
    }
    /// One round of a fault: another function changes a value, again and again.
    static bool trigger(ControlClient& client, int round);
};

qsizetype TestDeskWear::writes(ControlClient& client, int code)
{
    qsizetype count = 0;
    const QJsonArray traffic = client.call(u"sim.traffic"_s).result.toArray();
    for (const QJsonValue& entry : traffic)
        count += entry["op"_L1].toString() == "set"_L1 && entry["code"_L1].toInt() == code;
    return count;
}

bool TestDeskWear::trigger(ControlClient& client, int round)
{
    return client
               .call(u"trigger"_s, {{u"module"_s, u"LuAiContrast"_s},
                                    {u"properties"_s, QJsonObject{{u"state"_s, round % 2 == 0}}}})
               .ok() &&
           client.call(u"idle"_s).ok();
}

void TestDeskWear::statisticsSurviveARestart()
{
    DeskProcess desk;
    QVERIFY2(desk.start(), qPrintable(desk.errors()));
    QVERIFY(desk.client().call(u"idle"_s).ok());
    for (int value : {11, 22, 33}) {
        QVERIFY(desk.client().set(u"brightness.displayContrast"_s, value).ok());
        QVERIFY(desk.client().call(u"idle"_s).ok());
    }
    const QJsonObject before = stats(desk.client());
    QCOMPARE(before["writes"_L1]["0x12"_L1]["today"_L1].toInt(), 3);
    QCOMPARE(desk.stop(), 0);

    QVERIFY2(desk.start(DeskProcess::usualOptions() << u"--restore"_s << u"off"_s), qPrintable(desk.errors()));
    QVERIFY(desk.client().call(u"idle"_s).ok());
    const QJsonObject after = stats(desk.client());
    QCOMPARE(after["writes"_L1]["0x12"_L1]["total"_L1].toInt(), 3);
    QVERIFY(after["transfers"_L1].toInteger() > before["transfers"_L1].toInteger());
    QCOMPARE(after["transfers"_L1].toInteger() - after["thisRun"_L1]["transfers"_L1].toInteger(),
             before["transfers"_L1].toInteger());
    QCOMPARE(desk.client().get(u"statistics.sets"_s), QJsonValue(after["sets"_L1].toInteger()));
}

void TestDeskWear::statisticsSurviveAKill()
{
    DeskProcess desk;
    QVERIFY2(desk.start(), qPrintable(desk.errors()));
    QVERIFY(desk.client().set(u"brightness.displayContrast"_s, 11).ok());
    QVERIFY(desk.client().call(u"idle"_s).ok());
    const qint64 transfers = stats(desk.client())["transfers"_L1].toInteger();
    QCOMPARE(desk.stop(), 0);
    QVERIFY(desk.start());
    desk.process().kill();
    QVERIFY(desk.waitForEnd());
    QVERIFY2(desk.start(), qPrintable(desk.errors()));
    QVERIFY(stats(desk.client())["transfers"_L1].toInteger() >= transfers);
    QVERIFY(!desk.errors().contains(u"is damaged"_s));
}

void TestDeskWear::damagedStatisticsAreKeptAside()
{
    DeskProcess desk;
    QVERIFY2(desk.start(), qPrintable(desk.errors()));
    QCOMPARE(desk.stop(), 0);
    const QDir folder(desk.filePath(u"data/statistics"_s));
    const QStringList files = folder.entryList({u"*.json"_s}, QDir::Files);
    QCOMPARE(files.size(), 1);
    QFile file(folder.filePath(files.first()));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("{\"transfers\": ");
    file.close();
    QVERIFY2(desk.start(), qPrintable(desk.errors()));
    QVERIFY(desk.client().call(u"idle"_s).ok());
    QCOMPARE(folder.entryList({u"*.damaged-*"_s}, QDir::Files).size(), 1);
    QTRY_VERIFY(desk.errors().contains(u"is damaged"_s));
}

void TestDeskWear::aCircleOfFunctionsIsStopped_data()
{
    QTest::addColumn<bool>("byTrigger");
    QTest::addColumn<int>("code");
    QTest::newRow("another function") << true << 0xF3;
    QTest::newRow("stored values") << false << 0x10;
}

void TestDeskWear::aCircleOfFunctionsIsStopped()
{
    QFETCH(bool, byTrigger);
    QFETCH(int, code);
    DeskProcess desk;
    QVERIFY2(desk.start(), qPrintable(desk.errors()));
    ControlClient& client = desk.client();
    QVERIFY(stopClock(client));
    QVERIFY(client.call(u"idle"_s).ok());
    const qsizetype before = writes(client, code);
    for (int i = 0; i < 60; ++i)
        QVERIFY(byTrigger ? trigger(client, i) : client.call(u"apply"_s).ok());
    QCOMPARE(writes(client, code) - before, 40);
    const QJsonObject breaker = stats(client)["breaker"_L1].toObject();
    QVERIFY(breaker["trips"_L1].toInt() >= 1);
    QVERIFY(!breaker["closed"_L1].toArray().isEmpty());
    QTRY_VERIFY(desk.errors().contains(u"without a person asking"_s));
}

void TestDeskWear::theBreakerOpensAndCloses()
{
    DeskProcess desk;
    QVERIFY2(desk.start(), qPrintable(desk.errors()));
    ControlClient& client = desk.client();
    QVERIFY(stopClock(client));
    for (int i = 0; i < 45; ++i)
        QVERIFY(trigger(client, i));
    QCOMPARE(writes(client, 0xF3), 40);
    QVERIFY(client.call(u"clock.advance"_s, {{u"ms"_s, 9999}}).ok());
    QVERIFY(trigger(client, 0) && trigger(client, 1));
    QCOMPARE(writes(client, 0xF3), 40);
    QVERIFY(client.call(u"clock.advance"_s, {{u"ms"_s, 1}}).ok());
    QVERIFY(trigger(client, 0) && trigger(client, 1));
    QVERIFY(writes(client, 0xF3) > 40);
    QVERIFY(stats(client)["breaker"_L1]["closed"_L1].toArray().isEmpty());
    QTRY_VERIFY(desk.errors().contains(u"takes writes of 0xF3 again"_s));
}

void TestDeskWear::aPersonsSliderIsNotLimited()
{
    DeskProcess desk;
    QVERIFY2(desk.start(), qPrintable(desk.errors()));
    ControlClient& client = desk.client();
    QVERIFY(stopClock(client));
    QVERIFY(client.call(u"idle"_s).ok());
    const qsizetype before = writes(client, 0x12);
    for (int i = 0; i < 120; ++i) {
        QVERIFY(client.set(u"brightness.displayContrast"_s, i % 2 ? i % 100 : 100 - i % 100).ok());
        QVERIFY(client.call(u"idle"_s).ok());
    }
    QVERIFY(writes(client, 0x12) - before >= 115); // equal neighbours are one
    QCOMPARE(stats(client)["breaker"_L1]["trips"_L1].toInt(), 0);
    QCOMPARE(client.value(u"sim.get"_s, {{u"code"_s, 0x12}}).toInt(),
             client.get(u"brightness.displayContrast"_s).toInt());
}

void TestDeskWear::aPersonIsNotHeldUpByTheBreaker()
{
    DeskProcess desk;
    QVERIFY2(desk.start(), qPrintable(desk.errors()));
    ControlClient& client = desk.client();
    QVERIFY(stopClock(client));
    for (int i = 0; i < 45; ++i)
        QVERIFY(trigger(client, i));
    QCOMPARE(writes(client, 0xF3), 40);
    const bool state = client.get(u"aiContrast.state"_s).toBool();
    QVERIFY(client.set(u"aiContrast.state"_s, !state).ok());
    QVERIFY(client.call(u"idle"_s).ok());
    QCOMPARE(writes(client, 0xF3), 41);
    QCOMPARE(client.value(u"sim.get"_s, {{u"code"_s, 0xF3}}).toInt(), int(!state));
}

void TestDeskWear::aHangingMonitorDoesNotDelayAnothersRest()
{
    DeskProcess desk;
    QVERIFY2(desk.start({u"--headless"_s, u"--simulate"_s, u"TK30Z@A,TK20@B"_s, u"--ddc-timing"_s, u"fast"_s}),
             qPrintable(desk.errors()));
    ControlClient& client = desk.client();
    const auto on = [](const QString& monitor) { return QJsonObject{{u"monitor"_s, monitor}}; };
    QVERIFY(client.call(u"idle"_s, on(u"TK30Z@A"_s)).ok());
    QVERIFY(client.call(u"idle"_s, on(u"TK20@B"_s)).ok());
    QVERIFY(client.call(u"sim.fault"_s, {{u"monitor"_s, u"TK30Z@A"_s}, {u"kind"_s, u"timeout"_s}}).ok());
    const int reading = client.send(u"sync"_s, on(u"TK30Z@A"_s));
    QVERIFY(client.call(u"idle"_s, on(u"TK20@B"_s)).ok());
    QVERIFY(client.wait(reading, 1).timedOut);
    QVERIFY(client.call(u"sim.unplug"_s, on(u"TK30Z@A"_s)).ok());
    QVERIFY(!client.wait(reading).timedOut);
    QVERIFY(client.call(u"idle"_s, on(u"TK20@B"_s)).ok());
}

void TestDeskWear::theProgramEndsWhileABusHangs()
{
    DeskProcess desk;
    QVERIFY2(desk.start(), qPrintable(desk.errors()));
    QVERIFY(desk.client().call(u"idle"_s).ok());
    QVERIFY(desk.client().call(u"sim.fault"_s, {{u"kind"_s, u"timeout"_s}}).ok());
    desk.client().send(u"sync"_s);
    QCOMPARE(desk.stop(), 0);
    QVERIFY(!desk.errors().contains(u"ERROR:"_s));
}

void TestDeskWear::theReportHoldsNothingPersonal()
{
    DeskProcess desk;
    QVERIFY2(desk.start({u"--headless"_s, u"--simulate"_s, u"TK30Z@SN4711X"_s, u"--ddc-timing"_s, u"fast"_s}),
             qPrintable(desk.errors()));
    ControlClient& client = desk.client();
    QVERIFY(client.set(u"nickName"_s, u"Grandmother's"_s).ok());
    QVERIFY(client.call(u"idle"_s).ok());
    const QString report = client.call(u"report"_s).result.toObject()["text"_L1].toString();
    QVERIFY(report.contains(u"Monitor 1: TK30Z"_s));
    QVERIFY(report.contains(u"Transfers:"_s));
    QVERIFY(report.contains(u"[LuMonitorRegistry]"_s));
    QVERIFY2(!report.contains(u"SN4711X"_s), qPrintable(report));
    QVERIFY2(!report.contains(u"Grandmother"_s), qPrintable(report));
    QVERIFY2(!report.contains(QDir::homePath() + u'/'), qPrintable(report));
    QVERIFY2(!report.contains(QSysInfo::machineHostName()), qPrintable(report));
}

QTEST_GUILESS_MAIN(TestDeskWear)
#include "tst_desk_wear.moc"
