// SPDX-License-Identifier: Apache-2.0
#include "InputsBed.h"

#include <ZrCore/ZrEnvironment.h>
#include <lushared/LuModelHost.h>

#include <QFile>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

constexpr const char* Module = "LuDaisyChain";
constexpr int ChainCode = 0xE6;

/// Says in the environment whether the feature may be used.
void allow(bool allowed)
{
    static QTemporaryDir directory;
    static int layer = 0;
    QFile file(directory.filePath(u"environment%1.json"_s.arg(++layer)));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(allowed ? R"({"using": {"daisy-chain": true}})" : R"({"using": {"daisy-chain": false}})");
    file.close();
    QString problem;
    QVERIFY2(ZrEnvironment::addLayer(file.fileName(), &problem), qPrintable(problem));
}

} // namespace

class TestDaisyChain : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void schemaDecides_data();
    void schemaDecides();
    void theEnvironmentForbids();
    void switchingWritesStoresEmitsAndReports();
    void aRefusedWriteChangesNothing();
    void onlyOneMeansOn_data();
    void onlyOneMeansOn();
    void aFailedReadChangesNothing();
    void theFirstConnectionReportsOn();
    void theLaunchWritesTheStoredState_data();
    void theLaunchWritesTheStoredState();
    void theExitReportsAnActiveChain();
    void withoutItNothingIsSent();
};

void TestDaisyChain::schemaDecides_data()
{
    QTest::addColumn<bool>("enabled");
    for (const char* model : {"TK10", "TK30", "TK30X", "TK30Z", "TK40", "TK40X"})
        QTest::newRow(model) << true;
    QTest::newRow("TK20") << false;
    QTest::newRow("unsupported") << false;
}

void TestDaisyChain::schemaDecides()
{
    QFETCH(bool, enabled);
    SimulatedBed bed(QString::fromLatin1(QTest::currentDataTag()));
    bed.launch();
    QCOMPARE(bed.get(Module, "daisyChainEnable").toBool(), enabled);
    QVERIFY(bed.idle());
}

void TestDaisyChain::theEnvironmentForbids()
{
    allow(false);
    SimulatedBed bed;
    bed.launch();
    const bool enabled = bed.get(Module, "daisyChainEnable").toBool();
    QVERIFY(bed.idle());
    bed.set(Module, "state", true);
    QVERIFY(bed.sync(Module));
    QVERIFY(bed.apply());
    allow(true);
    QVERIFY(!enabled);
    QCOMPARE(bed.wire().filter(u"0xE6"_s), QStringList());
    QCOMPARE(bed.events().filter(u"LuDaisyChain"_s), QStringList());
    QVERIFY(!bed.get(Module, "state").toBool());
}

void TestDaisyChain::switchingWritesStoresEmitsAndReports()
{
    SimulatedBed bed;
    QVERIFY(launchAndForget(bed));
    QSignalSpy changes(bed.module(Module), SIGNAL(stateChanged()));
    bed.set(Module, "state", true);
    QVERIFY(bed.idle());
    QCOMPARE(bed.wire(), QStringList{u"set 0xE6 1"_s});
    QCOMPARE(changes.count(), 1);
    QCOMPARE(bed.setting(u"LuDaisyChain/state"_s).toBool(), true);
    QCOMPARE(bed.events(), QStringList{u"LuDaisyChain 31 on 0 []"_s});
    QVERIFY(bed.log().contains(u"[LuDaisyChain] set DaisyChain state:  true"_s));
    bed.set(Module, "state", true);
    QVERIFY(bed.idle());
    QCOMPARE(bed.wire(), QStringList());
    bed.set(Module, "state", false);
    QVERIFY(bed.idle());
    QCOMPARE(bed.wire(), QStringList{u"set 0xE6 0"_s});
    QCOMPARE(bed.events(), QStringList{u"LuDaisyChain 31 off 0 []"_s});
}

void TestDaisyChain::aRefusedWriteChangesNothing()
{
    SimulatedBed bed;
    QVERIFY(launchAndForget(bed));
    sim::Fault fault;
    fault.code = ChainCode;
    fault.op = sim::Op::Set;
    bed.monitor().armFault(fault);
    QSignalSpy changes(bed.module(Module), SIGNAL(stateChanged()));
    bed.set(Module, "state", true);
    QVERIFY(bed.idle());
    QVERIFY(!bed.get(Module, "state").toBool());
    QCOMPARE(changes.count(), 0);
    QVERIFY(!bed.setting(u"LuDaisyChain/state"_s).isValid());
    QCOMPARE(bed.events(), QStringList());
    QCOMPARE(bed.log().filter(u"set DaisyChain state"_s), QStringList());
}

void TestDaisyChain::onlyOneMeansOn_data()
{
    QTest::addColumn<int>("reading");
    QTest::addColumn<bool>("on");
    QTest::newRow("0") << 0 << false;
    QTest::newRow("1") << 1 << true;
    QTest::newRow("2") << 2 << false;
    QTest::newRow("257") << 257 << false;
}

void TestDaisyChain::onlyOneMeansOn()
{
    QFETCH(int, reading);
    QFETCH(bool, on);
    SimulatedBed bed;
    QVERIFY(launchAndForget(bed));
    bed.set(Module, "state", !on);
    QVERIFY(bed.idle());
    QVERIFY(bed.monitor().setByMenu(ChainCode, reading));
    bed.forget();
    QVERIFY(bed.sync(Module));
    QCOMPARE(bed.get(Module, "state").toBool(), on);
    QCOMPARE(bed.setting(u"LuDaisyChain/state"_s).toBool(), on);
    QCOMPARE(bed.wire(), QStringList{u"get 0xE6 %1"_s.arg(reading)});
    QCOMPARE(bed.events(), QStringList{u"LuDaisyChain 31 %1 1 []"_s.arg(on ? u"on"_s : u"off"_s)});
    const QStringList log = bed.log();
    QVERIFY(log.contains(u"[LuDaisyChain] sync: \"TK30Z\""_s));
    QVERIFY(log.contains(
        u"[LuDaisyChain] sync LuDaisyChain state changed: %1"_s.arg(on ? u"true"_s : u"false"_s)));
    QVERIFY(bed.sync(Module));
    QCOMPARE(bed.events(), QStringList());
}

void TestDaisyChain::aFailedReadChangesNothing()
{
    SimulatedBed bed;
    QVERIFY(launchAndForget(bed));
    QVERIFY(bed.monitor().setByMenu(ChainCode, 1));
    sim::Fault fault;
    fault.code = ChainCode;
    bed.monitor().armFault(fault);
    QVERIFY(bed.sync(Module));
    QVERIFY(!bed.get(Module, "state").toBool());
}

void TestDaisyChain::theFirstConnectionReportsOn()
{
    SimulatedBed bed;
    QVERIFY(bed.monitor().setByMenu(ChainCode, 1));
    bed.launch();
    QVERIFY(bed.idle());
    QCOMPARE(bed.events().filter(u"LuDaisyChain"_s), QStringList{u"LuDaisyChain 31 on 5 []"_s});
    SimulatedBed off;
    off.launch();
    QVERIFY(off.idle());
    QCOMPARE(off.events().filter(u"LuDaisyChain"_s), QStringList());
}

void TestDaisyChain::theLaunchWritesTheStoredState_data()
{
    QTest::addColumn<bool>("on");
    QTest::newRow("on") << true;
    QTest::newRow("off") << false;
}

void TestDaisyChain::theLaunchWritesTheStoredState()
{
    QFETCH(bool, on);
    SimulatedBed bed;
    QVERIFY(launchAndForget(bed));
    bed.storeSetting(u"LuDaisyChain/state"_s, on);
    bed.destroy();
    bed.forget();
    bed.launch();
    QCOMPARE(bed.get(Module, "state").toBool(), on);
    QVERIFY(bed.idle());
    QCOMPARE(writesOf(u"0xE6"_s, bed.wire()), QStringList{u"0xE6 %1"_s.arg(int(on))});
    QCOMPARE(bed.events().filter(u"LuDaisyChain"_s),
             QStringList{u"LuDaisyChain 31 %1 3 []"_s.arg(on ? u"on"_s : u"off"_s)});
    QVERIFY(bed.log().contains(
        u"[LuDaisyChain] apply LuDaisyChain state: %1"_s.arg(on ? u"true"_s : u"false"_s)));
}

void TestDaisyChain::theExitReportsAnActiveChain()
{
    SimulatedBed bed;
    QVERIFY(launchAndForget(bed));
    LuModelHost::fireExitEvents(&bed.model());
    QCOMPARE(bed.events().filter(u"LuDaisyChain"_s), QStringList());
    bed.set(Module, "state", true);
    QVERIFY(bed.idle());
    bed.forget();
    LuModelHost::fireExitEvents(&bed.model());
    QCOMPARE(bed.events().filter(u"LuDaisyChain"_s), QStringList{u"LuDaisyChain 31 off 2 []"_s});
}

void TestDaisyChain::withoutItNothingIsSent()
{
    SimulatedBed bed(u"TK20"_s);
    bed.storeSetting(u"LuDaisyChain/state"_s, true);
    QVERIFY(launchAndForget(bed));
    QVERIFY(!bed.get(Module, "state").toBool());
    bed.set(Module, "state", true);
    QVERIFY(bed.sync(Module));
    QVERIFY(bed.apply());
    QCOMPARE(LuModelHost::syncTaskCount(bed.module(Module)), std::nullopt);
    QCOMPARE(bed.wire().filter(u"0xE6"_s), QStringList());
    QCOMPARE(bed.events().filter(u"LuDaisyChain"_s), QStringList());
}

QTEST_MAIN(TestDaisyChain)
#include "tst_daisychain.moc"
