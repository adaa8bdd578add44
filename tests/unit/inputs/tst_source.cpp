// SPDX-License-Identifier: Apache-2.0
#include "InputsBed.h"

#include <lushared/LuModelHost.h>

#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

constexpr const char* Module = "LuInputSource";
constexpr int InputCode = 0x60;

} // namespace

class TestInputSource : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void connectorsComeFromTheSchema_data();
    void connectorsComeFromTheSchema();
    void aNameGoesOutAsItsValue_data();
    void aNameGoesOutAsItsValue();
    void aReadingIsNamedAsTheModelDoes_data();
    void aReadingIsNamedAsTheModelDoes();
    void choosingWritesStoresEmitsAndReports();
    void thePresentSourceDoesNothing();
    void aBurstWritesTheLastChoice();
    void theMonitorsMenuIsTakenWithoutAWrite();
    void anUnchangedReadingReportsNothing();
    void aFailedReadChangesNothing();
    void aRefusedWriteIsCorrectedByTheNextReading();
    void theFirstConnectionReportsItsSource();
    void theLaunchWritesTheStoredSource();
    void anUnknownSourceIsNotWrittenAtLaunch();
    void shortcutsExistForTheConnectors_data();
    void shortcutsExistForTheConnectors();
    void aShortcutSwitchesOnceAndNotByRepeat();
    void withoutConnectorsNothingIsSent();
};

void TestInputSource::connectorsComeFromTheSchema_data()
{
    QTest::addColumn<QStringList>("connectors");
    const QStringList hdmiFirst{u"HDMI"_s, u"DisplayPort"_s, u"USB-C"_s};
    const QStringList displayPortFirst{u"DisplayPort"_s, u"HDMI"_s, u"USB-C"_s};
    const QStringList four{u"USB-C"_s, u"HDMI1"_s, u"HDMI2"_s, u"DisplayPort"_s};
    QTest::newRow("TK10") << hdmiFirst;
    QTest::newRow("TK30") << hdmiFirst;
    QTest::newRow("TK30X") << hdmiFirst;
    QTest::newRow("TK20") << displayPortFirst;
    QTest::newRow("TK30Z") << displayPortFirst;
    QTest::newRow("TK40") << four;
    QTest::newRow("TK40X") << four;
}

void TestInputSource::connectorsComeFromTheSchema()
{
    QFETCH(QStringList, connectors);
    SimulatedBed bed(QString::fromLatin1(QTest::currentDataTag()));
    bed.launch();
    QCOMPARE(bed.get(Module, "inputSourceList").toStringList(), connectors);
    QVERIFY(bed.idle());
}

void TestInputSource::aNameGoesOutAsItsValue_data()
{
    QTest::addColumn<int>("value");
    QTest::newRow("D-Sub") << 1;
    QTest::newRow("DVI") << 3;
    QTest::newRow("DisplayPort") << 15;
    QTest::newRow("MiniDisplayPort") << 16;
    QTest::newRow("HDMI") << 17;
    QTest::newRow("HDMI1") << 17;
    QTest::newRow("HDMI2") << 18;
    QTest::newRow("USB-C") << 19;
    QTest::newRow("USB-C1") << 19;
    QTest::newRow("USB-C2") << 20;
    QTest::newRow("Thunderbolt3") << 21;
    QTest::newRow("Thunderbolt4") << 21;
    QTest::newRow("HDMI3") << 22;
    QTest::newRow("VGA") << 0;
    QTest::newRow("hdmi") << 0;
}

void TestInputSource::aNameGoesOutAsItsValue()
{
    QFETCH(int, value);
    SimulatedBed bed;
    QVERIFY(bed.monitor().setByMenu(InputCode, 99));
    QVERIFY(launchAndForget(bed));
    bed.set(Module, "currentMainInputSource", QString::fromLatin1(QTest::currentDataTag()));
    QVERIFY(bed.idle());
    QCOMPARE(bed.wire(), QStringList{u"set 0x60 %1"_s.arg(value)});
}

void TestInputSource::aReadingIsNamedAsTheModelDoes_data()
{
    QTest::addColumn<QString>("model");
    QTest::addColumn<int>("value");
    QTest::addColumn<QString>("name");
    QTest::newRow("HDMI") << u"TK30Z"_s << 17 << u"HDMI"_s;
    QTest::newRow("DisplayPort") << u"TK30Z"_s << 15 << u"DisplayPort"_s;
    QTest::newRow("second HDMI of a model with one") << u"TK30Z"_s << 18 << QString();
    QTest::newRow("unknown") << u"TK30Z"_s << 77 << QString();
    QTest::newRow("first HDMI of a model with two") << u"TK40"_s << 17 << u"HDMI1"_s;
    QTest::newRow("second HDMI of a model with two") << u"TK40"_s << 18 << u"HDMI2"_s;
    QTest::newRow("switched off in the schema") << u"TK10"_s << 3 << QString();
}

void TestInputSource::aReadingIsNamedAsTheModelDoes()
{
    QFETCH(QString, model);
    QFETCH(int, value);
    QFETCH(QString, name);
    SimulatedBed bed(model);
    QVERIFY(launchAndForget(bed));
    QCOMPARE(bed.get(Module, "currentMainInputSource").toString(), u"USB-C"_s);
    QSignalSpy changes(bed.module(Module), SIGNAL(currentMainInputSourceChanged()));
    QVERIFY(bed.monitor().setByMenu(InputCode, value));
    QVERIFY(bed.sync(Module));
    QCOMPARE(bed.get(Module, "currentMainInputSource").toString(), name);
    QCOMPARE(bed.setting(u"LuInputSource/source"_s).toString(), name);
    QCOMPARE(changes.count(), 1);
    QCOMPARE(bed.events().filter(u"LuInputSource"_s), QStringList{u"LuInputSource 11 %1 1 []"_s.arg(name)});
}

void TestInputSource::choosingWritesStoresEmitsAndReports()
{
    SimulatedBed bed;
    QVERIFY(launchAndForget(bed));
    QSignalSpy changes(bed.module(Module), SIGNAL(currentMainInputSourceChanged()));
    bed.set(Module, "currentMainInputSource", u"HDMI"_s);
    QVERIFY(bed.idle());
    QCOMPARE(bed.wire(), QStringList{u"set 0x60 17"_s});
    QCOMPARE(changes.count(), 1);
    QCOMPARE(bed.get(Module, "currentMainInputSource").toString(), u"HDMI"_s);
    QCOMPARE(bed.setting(u"LuInputSource/source"_s).toString(), u"HDMI"_s);
    QCOMPARE(bed.events(), QStringList{u"LuInputSource 11 HDMI 0 []"_s});
    QVERIFY(bed.log().contains(u"[LuInputSource] setCurrentMainInputSource: \"HDMI\""_s));
    QCOMPARE(int(*bed.monitor().value(InputCode)), 17);
}

void TestInputSource::thePresentSourceDoesNothing()
{
    SimulatedBed bed;
    QVERIFY(launchAndForget(bed));
    QSignalSpy changes(bed.module(Module), SIGNAL(currentMainInputSourceChanged()));
    bed.set(Module, "currentMainInputSource", u"USB-C"_s);
    QVERIFY(bed.idle());
    QCOMPARE(bed.wire(), QStringList());
    QCOMPARE(bed.events(), QStringList());
    QCOMPARE(changes.count(), 0);
}

void TestInputSource::aBurstWritesTheLastChoice()
{
    SimulatedBed bed;
    QVERIFY(launchAndForget(bed));
    // The queue's thread may take the first one at once: what lies between is dropped in any case.
    for (int i = 0; i < 20; ++i)
        bed.set(Module, "currentMainInputSource", i % 2 ? u"HDMI"_s : u"DisplayPort"_s);
    bed.set(Module, "currentMainInputSource", u"HDMI"_s);
    QVERIFY(bed.idle());
    const QStringList wire = bed.wire();
    QVERIFY2(!wire.isEmpty() && wire.size() <= 21, qPrintable(wire.join(u' ')));
    QCOMPARE(wire.last(), u"set 0x60 17"_s);
    QCOMPARE(bed.get(Module, "currentMainInputSource").toString(), u"HDMI"_s);
}

void TestInputSource::theMonitorsMenuIsTakenWithoutAWrite()
{
    SimulatedBed bed;
    QVERIFY(launchAndForget(bed));
    QVERIFY(bed.monitor().setByMenu(InputCode, 15));
    QVERIFY(bed.sync(Module));
    QCOMPARE(bed.wire(), QStringList{u"get 0x60 15"_s});
    const QStringList log = bed.log();
    QVERIFY(log.contains(u"[LuInputSource] sync: \"TK30Z\""_s));
    QVERIFY(log.contains(u"[LuInputSource] sync input source changed: \"DisplayPort\""_s));
}

void TestInputSource::anUnchangedReadingReportsNothing()
{
    SimulatedBed bed;
    QVERIFY(launchAndForget(bed));
    QVERIFY(bed.sync(Module));
    QCOMPARE(bed.wire(), QStringList{u"get 0x60 19"_s});
    QCOMPARE(bed.events(), QStringList());
}

void TestInputSource::aFailedReadChangesNothing()
{
    SimulatedBed bed;
    QVERIFY(launchAndForget(bed));
    QVERIFY(bed.monitor().setByMenu(InputCode, 15));
    sim::Fault fault;
    fault.code = InputCode;
    bed.monitor().armFault(fault);
    QVERIFY(bed.sync(Module));
    QCOMPARE(bed.get(Module, "currentMainInputSource").toString(), u"USB-C"_s);
    QCOMPARE(bed.events(), QStringList());
}

void TestInputSource::aRefusedWriteIsCorrectedByTheNextReading()
{
    SimulatedBed bed;
    QVERIFY(launchAndForget(bed));
    sim::Fault fault;
    fault.code = InputCode;
    fault.op = sim::Op::Set;
    bed.monitor().armFault(fault);
    bed.set(Module, "currentMainInputSource", u"HDMI"_s);
    QVERIFY(bed.idle());
    // The result of the write is not looked at.
    QCOMPARE(bed.get(Module, "currentMainInputSource").toString(), u"HDMI"_s);
    QCOMPARE(bed.setting(u"LuInputSource/source"_s).toString(), u"HDMI"_s);
    QCOMPARE(bed.events(), QStringList{u"LuInputSource 11 HDMI 0 []"_s});
    QVERIFY(bed.sync(Module));
    QCOMPARE(bed.get(Module, "currentMainInputSource").toString(), u"USB-C"_s);
}

void TestInputSource::theFirstConnectionReportsItsSource()
{
    SimulatedBed bed;
    bed.launch();
    QVERIFY(bed.idle());
    QCOMPARE(bed.events().filter(u"LuInputSource"_s), QStringList{u"LuInputSource 11 USB-C 5 []"_s});
    bed.hotplug();
    QVERIFY(bed.idle());
    QCOMPARE(bed.events().filter(u"LuInputSource"_s), QStringList());
}

void TestInputSource::theLaunchWritesTheStoredSource()
{
    SimulatedBed bed;
    QVERIFY(launchAndForget(bed));
    bed.set(Module, "currentMainInputSource", u"HDMI"_s);
    QVERIFY(bed.idle());
    bed.destroy();
    QVERIFY(bed.monitor().setByMenu(InputCode, 15));
    bed.forget();
    bed.launch();
    QCOMPARE(bed.get(Module, "currentMainInputSource").toString(), u"HDMI"_s);
    QVERIFY(bed.idle());
    QCOMPARE(writesOf(u"0x60"_s, bed.wire()), QStringList{u"0x60 17"_s});
    QVERIFY(bed.log().contains(u"[LuInputSource] apply input source: \"HDMI\""_s));
    QCOMPARE(bed.events().filter(u"LuInputSource"_s), QStringList{u"LuInputSource 11 HDMI 3 []"_s});
    QSignalSpy changes(bed.module(Module), SIGNAL(currentMainInputSourceChanged()));
    QVERIFY(bed.apply());
    QCOMPARE(changes.count(), 1);
}

void TestInputSource::anUnknownSourceIsNotWrittenAtLaunch()
{
    SimulatedBed bed;
    QVERIFY(launchAndForget(bed));
    QVERIFY(bed.monitor().setByMenu(InputCode, 18));
    QVERIFY(bed.sync(Module));
    bed.destroy();
    bed.forget();
    bed.launch();
    QVERIFY(bed.idle());
    QCOMPARE(writesOf(u"0x60"_s, bed.wire()), QStringList());
    QCOMPARE(int(*bed.monitor().value(InputCode)), 18);
}

void TestInputSource::shortcutsExistForTheConnectors_data()
{
    QTest::addColumn<QList<int>>("actions");
    QTest::newRow("TK30Z") << QList<int>{0, 1, 2};
    QTest::newRow("TK40") << QList<int>{0, 1, 3, 4};
    QTest::newRow("unsupported") << QList<int>();
}

void TestInputSource::shortcutsExistForTheConnectors()
{
    QFETCH(QList<int>, actions);
    SimulatedBed bed(QString::fromLatin1(QTest::currentDataTag()));
    bed.launch();
    QList<int> found;
    const QList<LuShortcutAction*> all = bed.model().shortcutActions();
    for (const LuShortcutAction* action : all) {
        if (action->title() == LuActionInterface::Input)
            found.append(action->name());
    }
    std::sort(found.begin(), found.end());
    QCOMPARE(found, actions);
    QVERIFY(bed.idle());
}

void TestInputSource::aShortcutSwitchesOnceAndNotByRepeat()
{
    SimulatedBed bed;
    QVERIFY(launchAndForget(bed));
    bed.module(Module)->registerShortcutKeys(LuShortcutAction::Input_SwitchtoHDMI,
                                             {Qt::CTRL | Qt::SHIFT | Qt::Key_3});
    const QList<LuShortcutAction*> all = bed.model().shortcutActions();
    for (LuShortcutAction* action : all)
        action->setActive(true);
    const auto press = [&bed](bool repeated) {
        return LuModelHost::handleKey(&bed.model(), Qt::ControlModifier | Qt::ShiftModifier, Qt::Key_3,
                                      repeated);
    };
    QVERIFY(!press(true));
    QVERIFY(bed.idle());
    QCOMPARE(bed.wire(), QStringList());
    QVERIFY(press(false));
    QVERIFY(bed.idle());
    QCOMPARE(bed.wire(), QStringList{u"set 0x60 17"_s});
    QCOMPARE(bed.events(), QStringList{u"LuInputSource 11 HDMI 0 []"_s});
    // The source that is on screen already: taken, nothing to do.
    QVERIFY(press(false));
    QVERIFY(bed.idle());
    QCOMPARE(bed.wire(), QStringList());
}

void TestInputSource::withoutConnectorsNothingIsSent()
{
    SimulatedBed bed(u"unsupported"_s);
    QVERIFY(launchAndForget(bed));
    bed.set(Module, "currentMainInputSource", u"HDMI"_s);
    QVERIFY(bed.sync(Module));
    QVERIFY(bed.apply());
    QCOMPARE(bed.wire().filter(u"0x60"_s), QStringList());
    QCOMPARE(bed.get(Module, "currentMainInputSource").toString(), QString());
    QCOMPARE(bed.events().filter(u"LuInputSource"_s), QStringList());
}

QTEST_MAIN(TestInputSource)
#include "tst_source.moc"
