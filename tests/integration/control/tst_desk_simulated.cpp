// SPDX-License-Identifier: Apache-2.0
#include "DeskProcess.h"

#include <QDateTime>
#include <QtTest>

#include <map>

using namespace Qt::StringLiterals;

/// The simulated world from outside: monitors, faults, hot-plug, session and clock.
class TestDeskSimulated : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void valuesAreReadAndChangedAtTheMonitor();
    void wrongCodesAndValuesAreTold_data();
    void wrongCodesAndValuesAreTold();
    void trafficIsToldInOrder();
    void aFaultMeetsAsManyTransactionsAsAsked();
    void faultsStayUntilTheyAreCleared();
    void aMonitorIsPluggedAndUnplugged();
    void twoMonitorsAreToldApart();
    void requestsWaitForAMonitorThatAppears();
    void aMonitorKeepsItsValuesAcrossRuns();
    void theSessionIsReadAndChanged();
    void aKeyTellsWhetherItWasTaken();
    void theClockStandsAndMoves();
    void advancingHoldsUpNobody();
    void withoutSimulationItsMethodsSaySo_data();
    void withoutSimulationItsMethodsSaySo();
    void cleanupTestCase();

private:
    /// A program that the rows of a test share, started by the first.
    DeskProcess& shared(const QStringList& options);
    std::map<QStringList, DeskProcess> m_shared;
};

DeskProcess& TestDeskSimulated::shared(const QStringList& options)
{
    const auto [entry, isNew] = m_shared.try_emplace(options);
    if (isNew)
        entry->second.start(options);
    return entry->second;
}

void TestDeskSimulated::cleanupTestCase()
{
    m_shared.clear();
}

void TestDeskSimulated::valuesAreReadAndChangedAtTheMonitor()
{
    DeskProcess desk;
    QVERIFY2(desk.start(), qPrintable(desk.errors()));
    QVERIFY(desk.client().call(u"sim.set"_s, {{u"code"_s, u"0x12"_s}, {u"value"_s, 41}}).ok());
    QCOMPARE(desk.client().value(u"sim.get"_s, {{u"code"_s, 0x12}}), QJsonValue(41));
    QVERIFY(desk.client().call(u"sim.set"_s, {{u"code"_s, 0x12}, {u"value"_s, 65535}}).ok());
    QVERIFY(desk.client().call(u"sim.reset"_s).ok());
    QVERIFY(desk.client().value(u"sim.get"_s, {{u"code"_s, 0x12}}) != QJsonValue(41));
}

void TestDeskSimulated::wrongCodesAndValuesAreTold_data()
{
    QTest::addColumn<QString>("method");
    QTest::addColumn<QJsonObject>("parameters");
    QTest::addColumn<int>("code");
    const auto code = [](const QJsonValue& value) { return QJsonObject{{u"code"_s, value}}; };
    QTest::newRow("no such code") << "sim.get" << code(0x01) << 2;
    QTest::newRow("no code") << "sim.get" << QJsonObject() << -32602;
    QTest::newRow("code beyond a byte") << "sim.get" << code(256) << -32602;
    QTest::newRow("code in words") << "sim.get" << code(u"brightness"_s) << -32602;
    QTest::newRow("value beyond 16 bits")
        << "sim.set" << QJsonObject{{u"code"_s, 0x12}, {u"value"_s, 65536}} << -32602;
    QTest::newRow("negative value") << "sim.set" << QJsonObject{{u"code"_s, 0x12}, {u"value"_s, -1}}
                                    << -32602;
    QTest::newRow("no such monitor") << "sim.get" << QJsonObject{{u"monitor"_s, u"X"_s}, {u"code"_s, 0x12}}
                                     << 1;
    QTest::newRow("fault") << "sim.fault" << QJsonObject{{u"kind"_s, u"fire"_s}} << -32602;
    QTest::newRow("direction") << "sim.fault" << QJsonObject{{u"kind"_s, u"nack"_s}, {u"op"_s, u"both"_s}}
                               << -32602;
    QTest::newRow("count") << "sim.fault" << QJsonObject{{u"kind"_s, u"nack"_s}, {u"count"_s, 0}} << -32602;
    QTest::newRow("probability") << "sim.fault" << QJsonObject{{u"kind"_s, u"nack"_s}, {u"probability"_s, 2}}
                                 << -32602;
    QTest::newRow("plug without a name") << "sim.plug" << QJsonObject() << -32602;
    QTest::newRow("name that fits no EDID")
        << "sim.plug" << QJsonObject{{u"monitor"_s, QString(40, u'x')}} << -32602;
    QTest::newRow("wrong value at plugging")
        << "sim.plug" << QJsonObject{{u"monitor"_s, u"TK20"_s}, {u"vcp"_s, QJsonObject{{u"x"_s, 1}}}}
        << -32602;
    QTest::newRow("unplug nobody") << "sim.unplug" << QJsonObject{{u"monitor"_s, u"TK20"_s}} << 1;
}

void TestDeskSimulated::wrongCodesAndValuesAreTold()
{
    QFETCH(QString, method);
    QFETCH(QJsonObject, parameters);
    QFETCH(int, code);
    // One program for all rows: a refused request changes nothing.
    DeskProcess& desk = shared(DeskProcess::usualOptions());
    QVERIFY2(desk.isRunning(), qPrintable(desk.errors()));
    const auto answer = desk.client().call(method, parameters);
    QCOMPARE(answer.code, code);
    QVERIFY(!answer.message.isEmpty());
    QCOMPARE(desk.client().call(u"monitors"_s).result.toArray().size(), 1);
}

void TestDeskSimulated::trafficIsToldInOrder()
{
    DeskProcess desk;
    QVERIFY2(desk.start(), qPrintable(desk.errors()));
    // The first round reads other codes until then.
    QVERIFY(desk.client().call(u"idle"_s).ok());
    QVERIFY(desk.client().call(u"sync"_s, {{u"module"_s, u"LuAiContrast"_s}}).ok());
    const QJsonArray traffic = desk.client().call(u"sim.traffic"_s).result.toArray();
    QVERIFY(!traffic.isEmpty());
    qint64 before = 0;
    for (const QJsonValue& entry : traffic) {
        const QJsonObject row = entry.toObject();
        QVERIFY(row.value("seq"_L1).toInteger() > before);
        before = row.value("seq"_L1).toInteger();
        QVERIFY(row.value("op"_L1) == "get"_L1 || row.value("op"_L1) == "set"_L1);
        QVERIFY(row.value("ok"_L1).isBool() && row.value("ms"_L1).isDouble() &&
                row.value("code"_L1).isDouble());
    }
    QCOMPARE(traffic.last().toObject().value("code"_L1), QJsonValue(0xF3));
    QCOMPARE(desk.client().call(u"sim.traffic"_s, {{u"since"_s, before}}).result, QJsonValue(QJsonArray()));
}

void TestDeskSimulated::aFaultMeetsAsManyTransactionsAsAsked()
{
    DeskProcess desk;
    QVERIFY2(desk.start(), qPrintable(desk.errors()));
    QVERIFY(desk.client().call(u"idle"_s).ok());
    const bool before = desk.client().get(u"aiContrast.state"_s).toBool();
    QVERIFY(desk.client()
                .call(u"sim.fault"_s,
                      {{u"kind"_s, u"nack"_s}, {u"code"_s, 0xF3}, {u"op"_s, u"set"_s}, {u"count"_s, 1}})
                .ok());
    QVERIFY(desk.client().set(u"aiContrast.state"_s, !before).ok());
    QVERIFY(desk.client().call(u"idle"_s).ok());
    QCOMPARE(desk.client().get(u"aiContrast.state"_s),
             QJsonValue(before)); // the write failed, with all its retries
    QVERIFY(desk.client().set(u"aiContrast.state"_s, !before).ok());
    QVERIFY(desk.client().call(u"idle"_s).ok());
    QCOMPARE(desk.client().get(u"aiContrast.state"_s), QJsonValue(!before));
}

void TestDeskSimulated::faultsStayUntilTheyAreCleared()
{
    DeskProcess desk;
    QVERIFY2(desk.start(), qPrintable(desk.errors()));
    QVERIFY(desk.client().call(u"idle"_s).ok());
    const bool before = desk.client().get(u"aiContrast.state"_s).toBool();
    QVERIFY(desk.client().call(u"sim.fault"_s, {{u"kind"_s, u"checksum"_s}, {u"code"_s, 0xF3}}).ok());
    QVERIFY(desk.client().call(u"sim.set"_s, {{u"code"_s, 0xF3}, {u"value"_s, int(!before)}}).ok());
    for (int i = 0; i < 2; ++i) {
        QVERIFY(desk.client().call(u"sync"_s, {{u"module"_s, u"LuAiContrast"_s}}).ok());
        QCOMPARE(desk.client().get(u"aiContrast.state"_s), QJsonValue(before));
    }
    QVERIFY(desk.client().call(u"sim.fault"_s).ok());
    QVERIFY(desk.client().call(u"sync"_s, {{u"module"_s, u"LuAiContrast"_s}}).ok());
    QCOMPARE(desk.client().get(u"aiContrast.state"_s), QJsonValue(!before));
}

void TestDeskSimulated::aMonitorIsPluggedAndUnplugged()
{
    DeskProcess desk;
    QVERIFY2(desk.start(), qPrintable(desk.errors()));
    const QJsonObject plug{{u"monitor"_s, u"TK40X@P1"_s}, {u"vcp"_s, QJsonObject{{u"0x12"_s, 33}}}};
    const auto plugged = desk.client().call(u"sim.plug"_s, plug);
    QVERIFY2(plugged.ok(), qPrintable(plugged.message));
    const QJsonObject at{{u"monitor"_s, u"TK40X@P1"_s}, {u"path"_s, u"aiContrast.state"_s}};
    QVERIFY(desk.client().call(u"idle"_s, {{u"monitor"_s, u"TK40X@P1"_s}}).ok());
    QCOMPARE(desk.client().call(u"monitors"_s).result.toArray().size(), 2);
    QVERIFY(desk.client()
                .call(u"watch"_s,
                      {{u"monitor"_s, u"TK40X@P1"_s}, {u"paths"_s, QJsonArray{u"aiContrast.state"_s}}})
                .ok());
    QVERIFY(desk.client().call(u"sim.unplug"_s, {{u"monitor"_s, u"TK40X@P1"_s}}).ok());
    QCOMPARE(desk.client().call(u"monitors"_s).result.toArray().size(), 1);
    QCOMPARE(desk.client().call(u"get"_s, at).code, 1);
    QCOMPARE(desk.client().call(u"sim.unplug"_s, {{u"monitor"_s, u"TK40X@P1"_s}}).code, 1);
    // The monitor itself is still there, with its values, and comes back.
    QCOMPARE(desk.client().value(u"sim.get"_s, {{u"monitor"_s, u"TK40X@P1"_s}, {u"code"_s, 0x12}}),
             QJsonValue(33));
    QVERIFY(desk.client().call(u"sim.plug"_s, {{u"monitor"_s, u"TK40X@P1"_s}}).ok());
    QVERIFY(desk.client().call(u"get"_s, at).ok());
    QCOMPARE(desk.stop(), 0);
}

void TestDeskSimulated::twoMonitorsAreToldApart()
{
    DeskProcess desk;
    QVERIFY2(desk.start({u"--headless"_s, u"--simulate"_s, u"TK30Z@A,TK30Z@B,builtin,XX99"_s,
                         u"--ddc-timing"_s, u"fast"_s}),
             qPrintable(desk.errors()));
    const QJsonArray monitors = desk.client().call(u"monitors"_s).result.toArray();
    QCOMPARE(monitors.size(), 4);
    QCOMPARE(monitors[0].toObject().value("id"_L1), QJsonValue(u"TK30Z@A"_s));
    QCOMPARE(monitors[1].toObject().value("id"_L1), QJsonValue(u"TK30Z@B"_s));
    QCOMPARE(monitors[2].toObject().value("builtIn"_L1), QJsonValue(true));
    QCOMPARE(monitors[3].toObject().value("supported"_L1), QJsonValue(false));
    QCOMPARE(desk.client().call(u"get"_s, {{u"monitor"_s, u"TK30Z"_s}, {u"path"_s, u"id"_s}}).code, 1);
    QVERIFY(
        desk.client()
            .call(u"set"_s, {{u"monitor"_s, u"TK30Z@B"_s}, {u"path"_s, u"nickName"_s}, {u"value"_s, u"B"_s}})
            .ok());
    QCOMPARE(desk.client().value(u"get"_s, {{u"monitor"_s, u"TK30Z@A"_s}, {u"path"_s, u"nickName"_s}}),
             QJsonValue(u"TK30Z"_s));
    QCOMPARE(desk.stop(), 0);
}

void TestDeskSimulated::requestsWaitForAMonitorThatAppears()
{
    DeskProcess desk;
    QVERIFY2(desk.start({u"--headless"_s, u"--simulate"_s, u"TK30Z"_s}),
             qPrintable(desk.errors())); // with real waits
    const int plug = desk.client().send(u"sim.plug"_s, {{u"monitor"_s, u"TK20@LATE"_s}});
    const int get =
        desk.client().send(u"get"_s, {{u"monitor"_s, u"TK20@LATE"_s}, {u"path"_s, u"modelName"_s}});
    const int version = desk.client().send(u"version"_s);
    QVERIFY(desk.client().wait(version).ok());
    QVERIFY(desk.client().wait(plug).ok());
    QCOMPARE(desk.client().wait(get).result.toObject().value("value"_L1), QJsonValue(u"TK20"_s));
}

void TestDeskSimulated::aMonitorKeepsItsValuesAcrossRuns()
{
    DeskProcess desk;
    QVERIFY2(desk.start(), qPrintable(desk.errors()));
    QVERIFY(desk.client().call(u"sim.set"_s, {{u"code"_s, 0x12}, {u"value"_s, 41}}).ok());
    const QJsonArray arguments{6, u"on"_s, 0, QJsonArray()};
    QVERIFY(desk.client()
                .call(u"call"_s, {{u"path"_s, u"autoPivot.fireCustomEvent"_s}, {u"args"_s, arguments}})
                .ok());
    QCOMPARE(desk.stop(), 0);
    // The program would write back what it had stored of this value.
    QVERIFY2(desk.start(DeskProcess::usualOptions() + QStringList{u"--restore"_s, u"off"_s}),
             qPrintable(desk.errors()));
    QCOMPARE(desk.client().value(u"sim.get"_s, {{u"code"_s, 0x12}}), QJsonValue(41));
    bool found = false;
    const QJsonArray events = desk.client().call(u"events"_s, {{u"run"_s, -1}}).result.toArray();
    for (const QJsonValue& event : events)
        found |=
            event.toObject().value("event"_L1) == "on"_L1 && event.toObject().value("run"_L1).toInt() == -1;
    QVERIFY(found);
}

void TestDeskSimulated::theSessionIsReadAndChanged()
{
    DeskProcess desk;
    QVERIFY2(desk.start(), qPrintable(desk.errors()));
    QVERIFY(desk.client().call(u"services.set"_s, {{u"path"_s, u"pivot"_s}, {u"value"_s, 90}}).ok());
    QCOMPARE(desk.client().value(u"services.get"_s, {{u"path"_s, u"pivot"_s}}), QJsonValue(90));
    QVERIFY(desk.client().call(u"idle"_s).ok());
    QCOMPARE(desk.client().get(u"autoPivot.currentPivot"_s).isDouble(), true);
    QCOMPARE(desk.client().call(u"services.set"_s, {{u"path"_s, u"pivot"_s}, {u"value"_s, u"up"_s}}).code, 4);
    QCOMPARE(desk.client().call(u"services.get"_s, {{u"path"_s, u"weather"_s}}).code, 2);
    QCOMPARE(desk.client().call(u"services.get"_s, {{u"path"_s, u"TK99/pivot"_s}}).code, 1);
    QCOMPARE(desk.client().call(u"services.emit"_s, {{u"signal"_s, u"nothing"_s}}).code, 2);
    QVERIFY(desk.client().call(u"services.emit"_s, {{u"signal"_s, u"screenGeometryChanged"_s}}).ok());
    QCOMPARE(desk.client().call(u"services.emit"_s, {{u"signal"_s, u"kvmChanged"_s}, {u"args"_s, 1}}).code,
             -32602);
}

void TestDeskSimulated::aKeyTellsWhetherItWasTaken()
{
    DeskProcess desk;
    QVERIFY2(desk.start(), qPrintable(desk.errors()));
    const QJsonObject key{
        {u"modifiers"_s, u"Ctrl+Alt+Shift"_s}, {u"key"_s, u"F12"_s}, {u"repeated"_s, false}};
    const auto answer =
        desk.client().call(u"services.emit"_s, {{u"signal"_s, u"activeKeyEvent"_s}, {u"args"_s, key}});
    QVERIFY2(answer.ok(), qPrintable(answer.message));
    QCOMPARE(answer.result.toObject(), (QJsonObject{{u"handled"_s, false}}));
}

void TestDeskSimulated::theClockStandsAndMoves()
{
    DeskProcess desk;
    QVERIFY2(desk.start(), qPrintable(desk.errors()));
    const auto time = [&desk] {
        return QDateTime::fromString(
            desk.client().call(u"clock.get"_s).result.toObject().value("time"_L1).toString(),
            Qt::ISODateWithMs);
    };
    QVERIFY(qAbs(time().msecsTo(QDateTime::currentDateTime())) < 60'000);
    const QDateTime start(QDate(2024, 3, 4), QTime(7, 30));
    QVERIFY(desk.client().call(u"clock.set"_s, {{u"time"_s, u"2024-03-04T07:30:00"_s}}).ok());
    QCOMPARE(time(), start);
    QVERIFY(desk.client().call(u"clock.advance"_s, {{u"ms"_s, 3'600'000}}).ok());
    QCOMPARE(time(), start.addSecs(3600));
    QVERIFY(desk.client().call(u"clock.advance"_s, {{u"ms"_s, 0}}).ok());
    QCOMPARE(time(), start.addSecs(3600));
    QVERIFY(desk.client().call(u"clock.set"_s, {{u"time"_s, u"2024-03-01T00:00:00"_s}}).ok());
    QCOMPARE(time(), QDateTime(QDate(2024, 3, 1), QTime(0, 0)));
    QCOMPARE(desk.client().call(u"clock.set"_s, {{u"time"_s, u"tomorrow"_s}}).code, -32602);
    QCOMPARE(desk.client().call(u"clock.advance"_s, {{u"ms"_s, -1}}).code, -32602);
    QCOMPARE(desk.client().call(u"clock.advance"_s).code, -32602);
    QCOMPARE(desk.stop(), 0);
}

void TestDeskSimulated::advancingHoldsUpNobody()
{
    DeskProcess desk;
    QVERIFY2(desk.start(), qPrintable(desk.errors()));
    ControlClient other;
    QVERIFY(other.connectTo(desk.socketPath()));
    QList<int> advances;
    for (int i = 0; i < 10; ++i) {
        advances.append(desk.client().send(u"clock.advance"_s, {{u"ms"_s, 86'400'000}}));
        QVERIFY(other.call(u"monitors"_s).ok());
    }
    for (const int id : std::as_const(advances))
        QVERIFY(desk.client().wait(id).ok());
    QCOMPARE(desk.stop(), 0);
}

void TestDeskSimulated::withoutSimulationItsMethodsSaySo_data()
{
    QTest::addColumn<QString>("method");
    QTest::addColumn<QJsonObject>("parameters");
    QTest::newRow("sim.plug") << "sim.plug" << QJsonObject{{u"monitor"_s, u"TK20"_s}};
    QTest::newRow("services.get") << "services.get" << QJsonObject{{u"path"_s, u"pivot"_s}};
    QTest::newRow("services.set") << "services.set" << QJsonObject{{u"path"_s, u"pivot"_s}, {u"value"_s, 90}};
    QTest::newRow("services.emit") << "services.emit" << QJsonObject{{u"signal"_s, u"kvmChanged"_s}};
    QTest::newRow("clock.get") << "clock.get" << QJsonObject();
    QTest::newRow("clock.set") << "clock.set" << QJsonObject{{u"time"_s, u"2024-03-04T07:30:00"_s}};
    QTest::newRow("clock.advance") << "clock.advance" << QJsonObject{{u"ms"_s, 1}};
}

void TestDeskSimulated::withoutSimulationItsMethodsSaySo()
{
    QFETCH(QString, method);
    QFETCH(QJsonObject, parameters);
    DeskProcess& desk = shared({u"--headless"_s, u"--services"_s, u"native"_s});
    QVERIFY2(desk.isRunning(), qPrintable(desk.errors()));
    QCOMPARE(desk.client().call(method, parameters).code, 5);
}

QTEST_GUILESS_MAIN(TestDeskSimulated)
#include "tst_desk_simulated.moc"
