// SPDX-License-Identifier: Apache-2.0
#include "InputsBed.h"

#include <lushared/LuModelHost.h>

#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

constexpr const char* Module = "LuKvmSwitch";
constexpr int UpstreamCode = 0xE4;

bool press(SimulatedBed& bed, bool repeated)
{
    bed.module(Module)->registerShortcutKeys(LuShortcutAction::Kvm_LoopAllKvmSwitch,
                                             {Qt::CTRL | Qt::ALT | Qt::Key_K});
    const QList<LuShortcutAction*> all = bed.model().shortcutActions();
    for (LuShortcutAction* action : all)
        action->setActive(true);
    return LuModelHost::handleKey(&bed.model(), Qt::ControlModifier | Qt::AltModifier, Qt::Key_K, repeated);
}

} // namespace

class TestKvmSwitch : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void choicesComeFromTheSchema_data();
    void choicesComeFromTheSchema();
    void choosingWritesStoresAndEmits();
    void thePresentChoiceDoesNothing();
    void theMonitorsValueIsTaken_data();
    void theMonitorsValueIsTaken();
    void aFailedReadChangesNothing();
    void aFailedWriteIsNoticedByTheNextReading();
    void theLaunchWritesTheStoredPort();
    void theShortcutLoops();
    void theShortcutIgnoresRepeats();
    void theShortcutIgnoresAPortOutsideOfTheList();
    void aListOfOneIsTakenAndChangesNothing();
    void theDelayHoldsTheNextAccessBack();
    void otherModelsSendNothing_data();
    void otherModelsSendNothing();
};

void TestKvmSwitch::choicesComeFromTheSchema_data()
{
    QTest::addColumn<QList<SchemaOverride::Row>>("rows");
    QTest::addColumn<QList<int>>("choices");
    QTest::newRow("shipped") << QList<SchemaOverride::Row>() << QList<int>{4, 3, 2};
    QTest::newRow("in the order of the file") << QList<SchemaOverride::Row>{{u"Kvm"_s, u"Auto"_s, {}},
                                                                            {u"Kvm"_s, u"TBT"_s, u"on"_s},
                                                                            {u"Kvm"_s, u"Auto"_s, u"on"_s}}
                                              << QList<int>{3, 2, 1, 4};
    QTest::newRow("switched off") << QList<SchemaOverride::Row>{{u"Kvm"_s, u"TypeB"_s, u"off"_s}}
                                  << QList<int>{4, 3};
    QTest::newRow("unknown and misspelt types")
        << QList<SchemaOverride::Row>{{u"Kvm"_s, u"TypeX"_s, u"on"_s}, {u"Kvm"_s, u"auto"_s, u"on"_s}}
        << QList<int>{4, 3, 2};
    QTest::newRow("none") << QList<SchemaOverride::Row>{{u"Kvm"_s, u"TypeB"_s, {}},
                                                        {u"Kvm"_s, u"TypeC"_s, {}},
                                                        {u"Kvm"_s, u"Auto"_s, {}}}
                          << QList<int>();
}

void TestKvmSwitch::choicesComeFromTheSchema()
{
    QFETCH(QList<SchemaOverride::Row>, rows);
    QFETCH(QList<int>, choices);
    const SchemaOverride schema(u"TK30Z"_s, rows);
    SimulatedBed bed;
    bed.launch();
    QCOMPARE(bed.get(Module, "kvmSwitchList").value<QList<int>>(), choices);
    QCOMPARE(bed.get(Module, "enabled").toBool(), !choices.isEmpty());
    QVERIFY(bed.idle());
}

void TestKvmSwitch::choosingWritesStoresAndEmits()
{
    SimulatedBed bed;
    QVERIFY(launchAndForget(bed));
    QSignalSpy changes(bed.module(Module), SIGNAL(kvmSwitchChanged()));
    bed.set(Module, "kvmSwitch", 2);
    QVERIFY(bed.idle());
    QCOMPARE(bed.wire(), QStringList{u"set 0xE4 2"_s});
    QCOMPARE(changes.count(), 1);
    QCOMPARE(bed.setting(u"LuKvmSwitch/KvmSwitch"_s).toInt(), 2);
    QCOMPARE(bed.events(), QStringList());
    QVERIFY(bed.log().contains(u"[LuKvmSwitch] set switch mode:  LuKvmSwitch::TypeB"_s));
}

void TestKvmSwitch::thePresentChoiceDoesNothing()
{
    SimulatedBed bed;
    QVERIFY(launchAndForget(bed));
    QSignalSpy changes(bed.module(Module), SIGNAL(kvmSwitchChanged()));
    bed.set(Module, "kvmSwitch", 4);
    QVERIFY(bed.idle());
    QCOMPARE(bed.wire(), QStringList());
    QCOMPARE(changes.count(), 0);
}

void TestKvmSwitch::theMonitorsValueIsTaken_data()
{
    QTest::addColumn<int>("value");
    QTest::newRow("in the list") << 3;
    QTest::newRow("not in the list") << 1;
    QTest::newRow("unknown") << 9;
}

void TestKvmSwitch::theMonitorsValueIsTaken()
{
    QFETCH(int, value);
    SimulatedBed bed;
    QVERIFY(launchAndForget(bed));
    QVERIFY(bed.monitor().setByMenu(UpstreamCode, value));
    QVERIFY(bed.sync(Module));
    QCOMPARE(bed.wire(), QStringList{u"get 0xE4 %1"_s.arg(value)});
    QCOMPARE(bed.get(Module, "kvmSwitch").toInt(), value);
    QCOMPARE(bed.setting(u"LuKvmSwitch/KvmSwitch"_s).toInt(), value);
    QVERIFY(!bed.log().filter(u"[LuKvmSwitch] sync KVM switch changed:"_s).isEmpty());
    QCOMPARE(bed.events(), QStringList());
}

void TestKvmSwitch::aFailedReadChangesNothing()
{
    SimulatedBed bed;
    QVERIFY(launchAndForget(bed));
    QVERIFY(bed.monitor().setByMenu(UpstreamCode, 3));
    sim::Fault fault;
    fault.code = UpstreamCode;
    bed.monitor().armFault(fault);
    QVERIFY(bed.sync(Module));
    QCOMPARE(bed.get(Module, "kvmSwitch").toInt(), 4);
}

void TestKvmSwitch::aFailedWriteIsNoticedByTheNextReading()
{
    SimulatedBed bed;
    QVERIFY(launchAndForget(bed));
    sim::Fault fault;
    fault.code = UpstreamCode;
    fault.op = sim::Op::Set;
    bed.monitor().armFault(fault);
    bed.set(Module, "kvmSwitch", 3);
    QVERIFY(bed.idle());
    QCOMPARE(bed.get(Module, "kvmSwitch").toInt(), 3);
    QVERIFY(bed.sync(Module));
    QCOMPARE(bed.get(Module, "kvmSwitch").toInt(), 4);
}

void TestKvmSwitch::theLaunchWritesTheStoredPort()
{
    SimulatedBed bed;
    QVERIFY(launchAndForget(bed));
    bed.storeSetting(u"LuKvmSwitch/KvmSwitch"_s, 2);
    // The pointer feature would bring the hub back to its automatic.
    bed.destroy();
    bed.forget();
    bed.launch();
    QVERIFY(bed.idle());
    QCOMPARE(writesOf(u"0xE4"_s, bed.wire()).first(), u"0xE4 2"_s);
    QVERIFY(bed.log().contains(u"[LuKvmSwitch] apply KVM Switch: LuKvmSwitch::TypeB"_s));
}

void TestKvmSwitch::theShortcutLoops()
{
    SimulatedBed bed;
    QVERIFY(launchAndForget(bed));
    for (const int next : {3, 2, 4, 3}) {
        QVERIFY(press(bed, false));
        QVERIFY(bed.idle());
        QCOMPARE(bed.get(Module, "kvmSwitch").toInt(), next);
        QCOMPARE(bed.wire(), QStringList{u"set 0xE4 %1"_s.arg(next)});
    }
}

void TestKvmSwitch::theShortcutIgnoresRepeats()
{
    SimulatedBed bed;
    QVERIFY(launchAndForget(bed));
    QVERIFY(!press(bed, true));
    QVERIFY(bed.idle());
    QCOMPARE(bed.wire(), QStringList());
}

void TestKvmSwitch::theShortcutIgnoresAPortOutsideOfTheList()
{
    SimulatedBed bed;
    QVERIFY(launchAndForget(bed));
    QVERIFY(bed.monitor().setByMenu(UpstreamCode, 1));
    QVERIFY(bed.sync(Module));
    bed.forget();
    QVERIFY(!press(bed, false));
    QVERIFY(bed.idle());
    QCOMPARE(bed.wire(), QStringList());
    QVERIFY(bed.monitor().setByMenu(UpstreamCode, 2));
    QVERIFY(bed.sync(Module));
    bed.forget();
    QVERIFY(press(bed, false));
    QVERIFY(bed.idle());
    QCOMPARE(bed.wire(), QStringList{u"set 0xE4 4"_s});
}

void TestKvmSwitch::aListOfOneIsTakenAndChangesNothing()
{
    const SchemaOverride schema(u"TK30Z"_s, {{u"Kvm"_s, u"TypeB"_s, {}}, {u"Kvm"_s, u"TypeC"_s, {}}});
    SimulatedBed bed;
    QVERIFY(launchAndForget(bed));
    QVERIFY(press(bed, false));
    QVERIFY(bed.idle());
    QCOMPARE(bed.wire(), QStringList());
}

void TestKvmSwitch::theDelayHoldsTheNextAccessBack()
{
    SimulatedBed bed(u"TK30Z"_s, SimulatedBed::Timing::Real);
    bed.launch();
    QVERIFY(bed.idle());
    const quint64 before = bed.monitor().traffic().last().seq;
    bed.set(Module, "kvmSwitch", 3);
    QVERIFY(bed.idle());
    QVERIFY(bed.sync(Module));
    const QList<sim::TrafficEntry> traffic = bed.monitor().traffic(before);
    QCOMPARE(traffic.size(), 2);
    QVERIFY2(traffic[1].ms - traffic[0].ms >= 999,
             qPrintable(QString::number(traffic[1].ms - traffic[0].ms)));
    QCOMPARE(bed.monitor().violations().total(), 0U);
}

void TestKvmSwitch::otherModelsSendNothing_data()
{
    QTest::addColumn<QString>("model");
    for (const char* model : {"TK10", "TK20", "TK30", "TK30X", "TK40", "TK40X", "unsupported"})
        QTest::newRow(model) << QString::fromLatin1(model);
}

void TestKvmSwitch::otherModelsSendNothing()
{
    SimulatedBed bed(QString::fromLatin1(QTest::currentDataTag()));
    QVERIFY(launchAndForget(bed));
    QVERIFY(!bed.get(Module, "enabled").toBool());
    bed.set(Module, "kvmSwitch", 3);
    QVERIFY(bed.sync(Module));
    QVERIFY(bed.apply());
    QCOMPARE(bed.wire().filter(u"0xE4"_s), QStringList());
    QCOMPARE(bed.get(Module, "kvmSwitch").toInt(), 4);
    QVERIFY(!bed.setting(u"LuKvmSwitch/KvmSwitch"_s).isValid());
    const QList<LuShortcutAction*> all = bed.model().shortcutActions();
    QVERIFY(std::none_of(all.begin(), all.end(), [](const LuShortcutAction* action) {
        return action->name() == LuShortcutAction::Kvm_LoopAllKvmSwitch;
    }));
}

QTEST_MAIN(TestKvmSwitch)
#include "tst_kvmswitch.moc"
