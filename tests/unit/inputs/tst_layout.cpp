// SPDX-License-Identifier: Apache-2.0
#include "InputsBed.h"

#include <lushared/LuHostOptions.h>
#include <lushared/LuModelHost.h>

#include <QRegularExpression>
#include <QTest>

#include <atomic>

using namespace Qt::StringLiterals;

namespace {

constexpr const char* Module = "LuPipPbp";
constexpr int LayoutCode = 0x7D;

constexpr int Pip = 1;
constexpr int Pbp = 2;
constexpr int Pbp4 = 5;
constexpr int Modes[] = {Pip, Pbp, Pbp4, 6, 7, 8};

bool isFamily(int mode)
{
    return mode == 2 || (mode >= 5 && mode <= 8);
}

/// What is written to the layout code and the closing of the window selection.
QStringList layoutWrites(SimulatedBed& bed)
{
    QStringList result;
    const QStringList writes = writesIn(bed.wire());
    for (const QString& write : writes) {
        if (write.startsWith(u"0x7D") || write == u"0xA5 0")
            result.append(write);
    }
    return result;
}

/// Brings the module into a state as a user does.
bool bring(SimulatedBed& bed, bool on, int mode)
{
    bed.set(Module, "mode", mode);
    bed.set(Module, "state", on);
    if (!bed.idle() || !bed.sync(Module))
        return false;
    bed.forget();
    return bed.get(Module, "mode").toInt() == mode && bed.get(Module, "state").toBool() == on;
}

using Rows = QList<SchemaOverride::Row>;

} // namespace

/// On, off and the choice of the layout.
class TestLayout : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void layoutsComeFromTheSchema_data();
    void layoutsComeFromTheSchema();
    void theFirstLayoutIsTheDefault_data();
    void theFirstLayoutIsTheDefault();
    void transitions_data();
    void transitions();
    void aReadingIsTakenAsItIs_data();
    void aReadingIsTakenAsItIs();
    void turningOnAndOffTellsInOrder();
    void theMonitorIsToldAfterTheAnnouncement();
    void choosingAModeTellsInOrder_data();
    void choosingAModeTellsInOrder();
    void withoutAutoSyncNothingIsReadBack();
    void openingByForceFromPip();
    void openingByForceDuringAReadBackIsNotLost();
    void theLocksOfEcoArePausedWhileOn();
    void aFailedReadAbandonsTheReadBack();
    void eventsOfTheReadBack_data();
    void eventsOfTheReadBack();
    void theFirstConnectionReportsAnOpenLayout();
    void theFirstConnectionIsSilentAboutAClosedLayout();
    void aPageVisitGivesOneEvent_data();
    void aPageVisitGivesOneEvent();
    void parametersAreWords_data();
    void parametersAreWords();
    void theExitReportsAnOpenLayout();
    void theLaunchClosesAClosedLayout();
    void settingsAreFoundAgain();
    void modelsWithoutLayoutsSendNothing_data();
    void modelsWithoutLayoutsSendNothing();
};

void TestLayout::layoutsComeFromTheSchema_data()
{
    QTest::addColumn<QStringList>("enabled");
    const QStringList none;
    QTest::newRow("TK10") << none;
    QTest::newRow("TK20") << none;
    QTest::newRow("TK30") << none;
    QTest::newRow("TK30X") << none;
    QTest::newRow("TK30Z") << QStringList{u"pipEnable"_s,    u"pbpEnable"_s,           u"pbp3_1Enable"_s,
                                          u"pbp2_1Enable"_s, u"atLeastOnePbpEnable"_s, u"swapPipPbpEnable"_s};
    const QStringList tk40{u"pipEnable"_s, u"pbpEnable"_s, u"pbp3_1Enable"_s, u"atLeastOnePbpEnable"_s,
                           u"swapPipPbpEnable"_s};
    QTest::newRow("TK40") << tk40;
    QTest::newRow("TK40X") << tk40;
}

void TestLayout::layoutsComeFromTheSchema()
{
    QFETCH(QStringList, enabled);
    SimulatedBed bed(QString::fromLatin1(QTest::currentDataTag()));
    bed.launch();
    for (const char* name :
         {"pipEnable", "pbpEnable", "pbp5_9Enable", "pbp4Enable", "pbp3_1Enable", "pbp2_1Enable",
          "atLeastOnePbpEnable", "pbpAudioSourceEnable", "swapPipPbpEnable"})
        QVERIFY2(bed.get(Module, name).toBool() == enabled.contains(QLatin1String(name)), name);
    QVERIFY(bed.idle());
}

void TestLayout::theFirstLayoutIsTheDefault_data()
{
    QTest::addColumn<QStringList>("on");
    QTest::addColumn<int>("mode");
    const QStringList all{u"PIP"_s, u"PBP"_s, u"PBPx4"_s, u"PBP 5:9"_s, u"PBP 3:1"_s, u"PBP 2:1"_s};
    const int modes[] = {1, 2, 5, 6, 7, 8};
    for (int i = 0; i < all.size(); ++i)
        QTest::addRow("from %s on", qPrintable(all[i])) << all.mid(i) << modes[i];
    QTest::newRow("none") << QStringList() << 1;
}

void TestLayout::theFirstLayoutIsTheDefault()
{
    QFETCH(QStringList, on);
    QFETCH(int, mode);
    Rows rows;
    for (const QString& type : {u"PIP"_s, u"PBP"_s, u"PBPx4"_s, u"PBP 5:9"_s, u"PBP 3:1"_s, u"PBP 2:1"_s})
        rows.append({u"PIP PBP AB"_s, type, on.contains(type) ? u"on"_s : u"off"_s});
    const SchemaOverride schema(u"TK30Z"_s, rows);
    SimulatedBed bed;
    bed.launch();
    QCOMPARE(bed.get(Module, "mode").toInt(), mode);
    QVERIFY(bed.idle());
}

void TestLayout::transitions_data()
{
    QTest::addColumn<bool>("on");
    QTest::addColumn<int>("mode");
    QTest::addColumn<QString>("event"); ///< "state", "mode", "force" or "sync"
    QTest::addColumn<int>("value");
    QTest::addColumn<bool>("onAfter");
    QTest::addColumn<int>("modeAfter");
    QTest::addColumn<QStringList>("writes");
    const auto text = [](int value) { return u"0x7D %1"_s.arg(value); };
    for (const int m : Modes) {
        QTest::addRow("off %d, on", m) << false << m << u"state"_s << 1 << true << m << QStringList{text(m)};
        QTest::addRow("on %d, off", m)
            << true << m << u"state"_s << 0 << false << m << QStringList{u"0x7D 0"_s, u"0xA5 0"_s};
        QTest::addRow("off %d, off", m) << false << m << u"state"_s << 0 << false << m << QStringList();
        QTest::addRow("on %d, on", m) << true << m << u"state"_s << 1 << true << m << QStringList();
        const int forced = isFamily(m) ? m : Pbp;
        QTest::addRow("off %d, forced", m)
            << false << m << u"force"_s << 0 << true << forced << QStringList{text(forced)};
        QTest::addRow("on %d, forced", m) << true << m << u"force"_s << 0 << true << forced
                                          << (isFamily(m) ? QStringList() : QStringList{text(Pbp)});
        QTest::addRow("off %d, reads 0", m) << false << m << u"sync"_s << 0 << false << m << QStringList();
        QTest::addRow("on %d, reads 0", m) << true << m << u"sync"_s << 0 << false << m << QStringList();
        for (const int n : Modes) {
            QTest::addRow("off %d, choose %d", m, n)
                << false << m << u"mode"_s << n << false << n << QStringList();
            QTest::addRow("on %d, choose %d", m, n) << true << m << u"mode"_s << n << true << n
                                                    << (m == n ? QStringList() : QStringList{text(n)});
            QTest::addRow("off %d, reads %d", m, n)
                << false << m << u"sync"_s << n << true << n << QStringList();
            QTest::addRow("on %d, reads %d", m, n)
                << true << m << u"sync"_s << n << true << n << QStringList();
        }
    }
}

void TestLayout::transitions()
{
    QFETCH(bool, on);
    QFETCH(int, mode);
    QFETCH(QString, event);
    QFETCH(int, value);
    QFETCH(bool, onAfter);
    QFETCH(int, modeAfter);
    QFETCH(QStringList, writes);
    SimulatedBed bed;
    QVERIFY(launchAndForget(bed));
    QVERIFY(bring(bed, on, mode));
    if (event == u"state") {
        bed.set(Module, "state", value != 0);
    } else if (event == u"mode") {
        bed.set(Module, "mode", value);
    } else if (event == u"force") {
        QVERIFY(QMetaObject::invokeMethod(bed.module(Module), "forceOpenPbp"));
    } else {
        QVERIFY(bed.monitor().setByMenu(LayoutCode, value));
        QVERIFY(bed.sync(Module));
    }
    QVERIFY(bed.idle());
    QCOMPARE(layoutWrites(bed), writes);
    QCOMPARE(bed.get(Module, "state").toBool(), onAfter);
    QCOMPARE(bed.get(Module, "mode").toInt(), modeAfter);
    QCOMPARE(bed.get(Module, "isPbpMode").toBool(), isFamily(modeAfter));
    QCOMPARE(int(*bed.monitor().value(LayoutCode)), onAfter ? modeAfter : 0);
    QCOMPARE(bed.setting(u"LuPipPbp/mode"_s).isValid() ? bed.setting(u"LuPipPbp/mode"_s).toInt() : Pip,
             modeAfter);
    QCOMPARE(bed.setting(u"LuPipPbp/state"_s).toBool(), onAfter);
}

void TestLayout::aReadingIsTakenAsItIs_data()
{
    QTest::addColumn<int>("reading");
    QTest::addColumn<bool>("family");
    QTest::newRow("3") << 3 << false;
    QTest::newRow("4") << 4 << false;
    QTest::newRow("9") << 9 << false;
    QTest::newRow("far out") << 65535 << false;
    QTest::newRow("two") << 2 << true;
    QTest::newRow("two to one") << 8 << true;
}

void TestLayout::aReadingIsTakenAsItIs()
{
    QFETCH(int, reading);
    QFETCH(bool, family);
    SimulatedBed bed;
    QVERIFY(launchAndForget(bed));
    QVERIFY(bed.monitor().setByMenu(LayoutCode, reading));
    SignalRecorder recorder(bed.module(Module));
    QVERIFY(bed.sync(Module));
    QCOMPARE(bed.get(Module, "mode").toInt(), reading);
    QCOMPARE(bed.get(Module, "isPbpMode").toBool(), family);
    QVERIFY(bed.get(Module, "state").toBool());
    const QStringList wire = bed.wire();
    QCOMPARE(wire.first(), u"get 0x7D %1"_s.arg(reading));
    QStringList expected{u"modeChanged"_s, u"stateChanged"_s};
    if (family) {
        // Its window is read before the mode is told: what is told together holds together.
        QCOMPARE(wire.mid(1), (QStringList{u"set 0xA5 512"_s, u"get 0x7E 17"_s}));
        expected = QStringList{reading == 2 ? u"pbpSourceChanged"_s : u"pbp2_1SourceChanged"_s,
                               u"modeChanged"_s, u"isPbpModeChanged"_s, u"stateChanged"_s};
    } else {
        QCOMPARE(wire.size(), 1);
    }
    QCOMPARE(recorder.take(), expected);
    // A launch writes the layout and no window of it.
    bed.forget();
    QVERIFY(bed.apply());
    const QStringList writes = writesIn(bed.wire()).filter(QRegularExpression(u"^0x(7D|7E|80|A5)"_s));
    if (!family)
        QCOMPARE(writes, QStringList{u"0x7D %1"_s.arg(reading)});
    else
        QCOMPARE(writes.first(), u"0x7D %1"_s.arg(reading));
}

void TestLayout::turningOnAndOffTellsInOrder()
{
    SimulatedBed bed;
    QVERIFY(launchAndForget(bed));
    SignalRecorder recorder(bed.module(Module));
    bed.set(Module, "state", true);
    QVERIFY(bed.idle());
    QCOMPARE(recorder.take().mid(0, 2), (QStringList{u"stateAboutToBeChanged"_s, u"stateChanged"_s}));
    // What the layout shows is asked for at once.
    QCOMPARE(bed.wire(), (QStringList{u"set 0x7D 1"_s, u"get 0x7D 1"_s, u"set 0xA5 512"_s, u"get 0x7E 17"_s,
                                      u"get 0x80 512"_s}));
    QCOMPARE(bed.events(), QStringList{u"LuPipPbp 8 on 0 [pip,S,TL]"_s});
    QVERIFY(bed.log().contains(u"[LuPipPbp] setState: true"_s));
    QCOMPARE(bed.setting(u"LuPipPbp/state"_s).toBool(), true);
    bed.set(Module, "state", false);
    QVERIFY(bed.idle());
    QCOMPARE(recorder.take(), (QStringList{u"stateAboutToBeChanged"_s, u"stateChanged"_s}));
    QCOMPARE(bed.wire(), (QStringList{u"set 0x7D 0"_s, u"set 0xA5 0"_s}));
    QCOMPARE(bed.events(), QStringList{u"LuPipPbp 8 off 0 []"_s});
    QCOMPARE(bed.setting(u"LuPipPbp/state"_s).toBool(), false);
}

void TestLayout::theMonitorIsToldAfterTheAnnouncement()
{
    SimulatedBed bed;
    QVERIFY(launchAndForget(bed));
    LuModelModuleInterface* module = bed.module(Module);
    std::atomic<int> holds{-1};
    std::atomic<int> member{-1};
    SignalRecorder recorder(module, [&](const QString& name) {
        if (name != u"stateAboutToBeChanged")
            return;
        holds = int(*bed.monitor().value(LayoutCode));
        member = module->property("state").toBool();
    });
    bed.set(Module, "state", true);
    QVERIFY(bed.idle());
    QCOMPARE(holds.load(), 0);
    QCOMPARE(member.load(), 1);
    QCOMPARE(int(*bed.monitor().value(LayoutCode)), 1);
}

void TestLayout::choosingAModeTellsInOrder_data()
{
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("to");
    QTest::addColumn<bool>("crosses");
    QTest::newRow("into the family") << 1 << 2 << true;
    QTest::newRow("within the family") << 2 << 8 << false;
    QTest::newRow("out of the family") << 7 << 1 << true;
}

void TestLayout::choosingAModeTellsInOrder()
{
    QFETCH(int, from);
    QFETCH(int, to);
    QFETCH(bool, crosses);
    SimulatedBed bed;
    QVERIFY(launchAndForget(bed));
    QVERIFY(bring(bed, false, from));
    SignalRecorder recorder(bed.module(Module));
    bed.set(Module, "mode", to);
    QVERIFY(bed.idle());
    QStringList expected{u"modeAboutToBeChanged"_s, u"modeChanged"_s};
    if (crosses)
        expected.append(u"isPbpModeChanged"_s);
    QCOMPARE(recorder.take(), expected);
    QCOMPARE(bed.wire(), QStringList());
    QCOMPARE(bed.events(), QStringList());
    QVERIFY(!bed.log().filter(u"[LuPipPbp] setMode:"_s).isEmpty());
    QCOMPARE(bed.setting(u"LuPipPbp/mode"_s).toInt(), to);
}

void TestLayout::withoutAutoSyncNothingIsReadBack()
{
    LuHostOptions::instance().autoSync = false;
    SimulatedBed bed;
    bed.launch();
    QVERIFY(bed.idle());
    bed.forget();
    bed.set(Module, "state", true);
    bed.set(Module, "mode", 2);
    QVERIFY(bed.idle());
    const QStringList wire = bed.wire();
    LuHostOptions::instance().autoSync = true;
    QVERIFY2(wire.filter(u"get"_s).isEmpty(), qPrintable(wire.join(u", "_s)));
    QCOMPARE(wire.last(), u"set 0x7D 2"_s);
    QVERIFY(QMetaObject::invokeMethod(bed.module(Module), "swapPipPbp"));
    QVERIFY(bed.idle());
}

void TestLayout::openingByForceFromPip()
{
    SimulatedBed bed;
    QVERIFY(launchAndForget(bed));
    QObject* module = bed.module(Module);
    std::atomic<int> modeAtState{0};
    SignalRecorder recorder(module, [&](const QString& name) {
        if (name == u"stateChanged")
            modeAtState = module->property("mode").toInt();
    });
    QVERIFY(QMetaObject::invokeMethod(module, "forceOpenPbp"));
    // The mode holds at once; the layout comes up on the monitor's queue.
    QCOMPARE(bed.get(Module, "mode").toInt(), Pbp);
    QCOMPARE(bed.setting(u"LuPipPbp/mode"_s).toInt(), Pbp);
    QVERIFY(bed.idle());
    QCOMPARE(modeAtState.load(), Pbp);
    const QStringList names = recorder.take();
    QCOMPARE(names.first(), u"modeAboutToBeChanged"_s);
    QCOMPARE(names.count(u"modeChanged"_s), 1);
    QCOMPARE(names.count(u"isPbpModeChanged"_s), 1);
    QCOMPARE(names.count(u"stateChanged"_s), 1);
    QCOMPARE(layoutWrites(bed), QStringList{u"0x7D 2"_s});
    QCOMPARE(bed.events(), QStringList{u"LuPipPbp 8 on 0 [pbp2,n/a,n/a]"_s});
}

void TestLayout::openingByForceDuringAReadBackIsNotLost()
{
    SimulatedBed bed;
    QVERIFY(launchAndForget(bed));
    // The small picture is opened at the monitor, and the read-back that finds it hangs at its window.
    QVERIFY(bed.monitor().setByMenu(LayoutCode, Pip));
    sim::Fault fault;
    fault.kind = sim::FaultKind::Timeout;
    fault.code = 0x7E;
    fault.count = 1;
    bed.monitor().armFault(fault);
    LuModelModuleInterface* module = bed.module(Module);
    const quint64 before = bed.monitor().traffic().last().seq;
    SignalRecorder recorder(module);
    module->forceSyncHardwareState(false);
    QTRY_VERIFY(bed.monitor().traffic(before).size() >= 2);
    QVERIFY(QMetaObject::invokeMethod(module, "forceOpenPbp"));
    QVERIFY(bed.idle());
    QCOMPARE(bed.get(Module, "mode").toInt(), Pbp);
    QVERIFY(bed.get(Module, "state").toBool());
    QCOMPARE(int(*bed.monitor().value(LayoutCode)), Pbp);
    // Nobody who needs the divided screen saw it go again.
    QCOMPARE(recorder.take().count(u"isPbpModeChanged"_s), 1);
}

void TestLayout::theLocksOfEcoArePausedWhileOn()
{
    SimulatedBed bed;
    QVERIFY(launchAndForget(bed));
    const auto paused = [&bed] { return bed.model().property("ecoLockingPaused").toBool(); };
    QVERIFY(!paused());
    bed.set(Module, "state", true);
    QVERIFY(bed.idle());
    QVERIFY(paused());
    bed.set(Module, "state", false);
    QVERIFY(bed.idle());
    QVERIFY(!paused());
    QVERIFY(bed.monitor().setByMenu(LayoutCode, 2));
    QVERIFY(bed.sync(Module));
    QVERIFY(paused());
    bed.relaunch();
    QVERIFY(paused());
    QVERIFY(bed.idle());
    QVERIFY(bed.monitor().setByMenu(LayoutCode, 0));
    QVERIFY(bed.sync(Module));
    QVERIFY(!paused());
}

void TestLayout::aFailedReadAbandonsTheReadBack()
{
    SimulatedBed bed;
    QVERIFY(launchAndForget(bed));
    QVERIFY(bed.monitor().setByMenu(LayoutCode, 2));
    sim::Fault fault;
    fault.code = LayoutCode;
    bed.monitor().armFault(fault);
    SignalRecorder recorder(bed.module(Module));
    QVERIFY(bed.sync(Module));
    QVERIFY(!bed.get(Module, "state").toBool());
    QCOMPARE(bed.get(Module, "mode").toInt(), Pip);
    QCOMPARE(recorder.take(), QStringList());
    QCOMPARE(bed.wire().filter(u"0x7E"_s), QStringList());
    QVERIFY(bed.log().contains(u"[LuPipPbp] sync: \"TK30Z\""_s));
}

void TestLayout::eventsOfTheReadBack_data()
{
    QTest::addColumn<bool>("on");
    QTest::addColumn<int>("mode");
    QTest::addColumn<int>("reading");
    QTest::addColumn<int>("sizeAndPosition");
    QTest::addColumn<QStringList>("events");
    QTest::newRow("opened") << false << 1 << 1 << 0x0302 << QStringList{u"LuPipPbp 8 on 1 [pip,L,BL]"_s};
    QTest::newRow("opened in another mode")
        << false << 1 << 7 << -1 << QStringList{u"LuPipPbp 8 on 1 [pbp3:1,n/a,n/a]"_s};
    QTest::newRow("closed") << true << 1 << 0 << -1 << QStringList{u"LuPipPbp 8 off 1 []"_s};
    QTest::newRow("another mode") << true << 1 << 2 << -1
                                  << QStringList{u"LuPipPbp 8 on_update_setting 1 [pbp2,n/a,n/a]"_s};
    QTest::newRow("another size") << true << 1 << 1 << 0x0201
                                  << QStringList{u"LuPipPbp 8 on_update_setting 1 [pip,M,TL]"_s};
    QTest::newRow("another place") << true << 1 << 1 << 0x0100
                                   << QStringList{u"LuPipPbp 8 on_update_setting 1 [pip,S,BR]"_s};
    QTest::newRow("nothing") << true << 1 << 1 << -1 << QStringList();
    QTest::newRow("still closed") << false << 1 << 0 << -1 << QStringList();
    QTest::newRow("no layout that has a name")
        << true << 1 << 3 << -1 << QStringList{u"LuPipPbp 8 on_update_setting 1 [,n/a,n/a]"_s};
}

void TestLayout::eventsOfTheReadBack()
{
    QFETCH(bool, on);
    QFETCH(int, mode);
    QFETCH(int, reading);
    QFETCH(int, sizeAndPosition);
    QFETCH(QStringList, events);
    SimulatedBed bed;
    QVERIFY(launchAndForget(bed));
    QVERIFY(bring(bed, on, mode));
    QVERIFY(bed.monitor().setByMenu(LayoutCode, reading));
    if (sizeAndPosition >= 0)
        QVERIFY(bed.monitor().setByMenu(0x80, sizeAndPosition));
    QVERIFY(bed.sync(Module));
    QCOMPARE(bed.events().filter(u"LuPipPbp"_s), events);
    QVERIFY(bed.sync(Module));
    QCOMPARE(bed.events(), QStringList());
}

void TestLayout::theFirstConnectionReportsAnOpenLayout()
{
    SimulatedBed bed;
    QVERIFY(bed.monitor().setByMenu(LayoutCode, 2));
    bed.launch();
    QVERIFY(bed.idle());
    QCOMPARE(bed.events().filter(u"LuPipPbp"_s), QStringList{u"LuPipPbp 8 on 5 [pbp2,n/a,n/a]"_s});
}

void TestLayout::theFirstConnectionIsSilentAboutAClosedLayout()
{
    SimulatedBed bed;
    bed.launch();
    QVERIFY(bed.idle());
    QCOMPARE(bed.events().filter(u"LuPipPbp"_s), QStringList());
    // A stored state that the monitor contradicts is told all the same.
    SimulatedBed other;
    other.storeSetting(u"LuPipPbp/state"_s, true);
    other.launch();
    QVERIFY(other.idle());
    QCOMPARE(other.events().filter(u"LuPipPbp"_s), QStringList{u"LuPipPbp 8 off 1 []"_s});
}

void TestLayout::aPageVisitGivesOneEvent_data()
{
    QTest::addColumn<bool>("on");
    QTest::addColumn<int>("mode");
    QTest::addColumn<QString>("property");
    QTest::addColumn<int>("value");
    QTest::addColumn<QStringList>("events");
    const QStringList none;
    QTest::newRow("mode") << true << 1 << u"mode"_s << 2
                          << QStringList{u"LuPipPbp 8 on_update_setting 0 [pbp2,n/a,n/a]"_s};
    QTest::newRow("size") << true << 1 << u"pipSize"_s << 2
                          << QStringList{u"LuPipPbp 8 on_update_setting 0 [pip,L,TL]"_s};
    QTest::newRow("position") << true << 1 << u"pipPosition"_s << 0
                              << QStringList{u"LuPipPbp 8 on_update_setting 0 [pip,S,TR]"_s};
    QTest::newRow("size outside of PiP") << true << 2 << u"pipSize"_s << 2 << none;
    QTest::newRow("mode while off") << false << 1 << u"mode"_s << 2 << none;
    QTest::newRow("nothing") << true << 1 << u"mode"_s << 1 << none;
}

void TestLayout::aPageVisitGivesOneEvent()
{
    QFETCH(bool, on);
    QFETCH(int, mode);
    QFETCH(QString, property);
    QFETCH(int, value);
    QFETCH(QStringList, events);
    SimulatedBed bed;
    QVERIFY(launchAndForget(bed));
    QVERIFY(bring(bed, on, mode));
    bed.module(Module)->takePropertySnapshot();
    bed.set(Module, qPrintable(property), value);
    QVERIFY(bed.idle());
    bed.module(Module)->fireUpdateSettingEvent();
    QCOMPARE(bed.events(), events);
}

void TestLayout::parametersAreWords_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<int>("sizeAndPosition");
    QTest::addColumn<QStringList>("words");
    QTest::newRow("pip, small, upper right") << 1 << 0x0000 << QStringList{u"pip"_s, u"S"_s, u"TR"_s};
    QTest::newRow("pip, medium, lower right") << 1 << 0x0101 << QStringList{u"pip"_s, u"M"_s, u"BR"_s};
    QTest::newRow("pip, large, upper left") << 1 << 0x0202 << QStringList{u"pip"_s, u"L"_s, u"TL"_s};
    QTest::newRow("pip, small, lower left") << 1 << 0x0300 << QStringList{u"pip"_s, u"S"_s, u"BL"_s};
    QTest::newRow("pip, unknown") << 1 << 0x0707 << QStringList{u"pip"_s, QString(), QString()};
    QTest::newRow("pbp") << 2 << 0 << QStringList{u"pbp2"_s, u"n/a"_s, u"n/a"_s};
    QTest::newRow("four") << 5 << 0 << QStringList{u"pbp4"_s, u"n/a"_s, u"n/a"_s};
    QTest::newRow("5:9") << 6 << 0 << QStringList{u"pbp5:9"_s, u"n/a"_s, u"n/a"_s};
    QTest::newRow("3:1") << 7 << 0 << QStringList{u"pbp3:1"_s, u"n/a"_s, u"n/a"_s};
    QTest::newRow("2:1") << 8 << 0 << QStringList{u"pbp2:1"_s, u"n/a"_s, u"n/a"_s};
    QTest::newRow("unknown") << 4 << 0 << QStringList{QString(), u"n/a"_s, u"n/a"_s};
}

void TestLayout::parametersAreWords()
{
    QFETCH(int, mode);
    QFETCH(int, sizeAndPosition);
    QFETCH(QStringList, words);
    SimulatedBed bed;
    QVERIFY(launchAndForget(bed));
    QVERIFY(bed.monitor().setByMenu(LayoutCode, mode));
    QVERIFY(bed.monitor().setByMenu(0x80, sizeAndPosition));
    QVERIFY(bed.sync(Module));
    QCOMPARE(bed.module(Module)->parametersStrings(), words);
}

void TestLayout::theExitReportsAnOpenLayout()
{
    SimulatedBed bed;
    QVERIFY(launchAndForget(bed));
    LuModelHost::fireExitEvents(&bed.model());
    QCOMPARE(bed.events().filter(u"LuPipPbp"_s), QStringList());
    QVERIFY(bring(bed, true, 1));
    LuModelHost::fireExitEvents(&bed.model());
    QCOMPARE(bed.events().filter(u"LuPipPbp"_s), QStringList{u"LuPipPbp 8 off 2 []"_s});
}

void TestLayout::theLaunchClosesAClosedLayout()
{
    SimulatedBed bed;
    QVERIFY(launchAndForget(bed));
    SignalRecorder recorder(bed.module(Module));
    QVERIFY(bed.apply());
    QCOMPARE(recorder.take(), (QStringList{u"stateAboutToBeChanged"_s, u"stateChanged"_s}));
    QCOMPARE(layoutWrites(bed), (QStringList{u"0x7D 0"_s, u"0xA5 0"_s}));
    QCOMPARE(bed.events().filter(u"LuPipPbp"_s), QStringList{u"LuPipPbp 8 off 3 []"_s});
    QVERIFY(bed.log().contains(u"[LuPipPbp] apply state: false"_s));
}

void TestLayout::settingsAreFoundAgain()
{
    SimulatedBed bed;
    QVERIFY(launchAndForget(bed));
    const QVariantMap values{{u"state"_s, true},
                             {u"mode"_s, 8},
                             {u"pipSource"_s, u"HDMI"_s},
                             {u"pipSize"_s, 1},
                             {u"pipPosition"_s, 3},
                             {u"pbpSource"_s, u"DisplayPort"_s},
                             {u"pbp5_9Source"_s, u"HDMI"_s},
                             {u"pbp3_1Source"_s, u"USB-C"_s},
                             {u"pbp2_1Source"_s, u"HDMI"_s},
                             {u"pbp4SourceList"_s, QStringList{u"HDMI"_s, {}, u"USB-C"_s}},
                             {u"pbpAudioSource"_s, 5}};
    for (auto it = values.begin(); it != values.end(); ++it)
        bed.storeSetting(u"LuPipPbp/"_s + it.key(), it.value());
    bed.destroy();
    // A monitor that says nothing contradicts nothing.
    bed.monitor().armFault(sim::Fault());
    bed.hotplug();
    for (auto it = values.begin(); it != values.end(); ++it) {
        const QVariant found = bed.get(Module, qPrintable(it.key()));
        if (it.value().typeId() == QMetaType::Int)
            QCOMPARE(found.toInt(), it.value().toInt());
        else
            QCOMPARE(found, it.value());
    }
    QVERIFY(bed.idle());
    // A list of another length is none.
    bed.storeSetting(u"LuPipPbp/pbp4SourceList"_s, QStringList{u"HDMI"_s, u"HDMI"_s});
    bed.hotplug();
    QCOMPARE(bed.get(Module, "pbp4SourceList").toStringList().size(), 3);
    QVERIFY(bed.idle());
}

void TestLayout::modelsWithoutLayoutsSendNothing_data()
{
    QTest::addColumn<QString>("model");
    for (const char* model : {"TK10", "TK20", "TK30", "TK30X", "unsupported"})
        QTest::newRow(model) << QString::fromLatin1(model);
}

void TestLayout::modelsWithoutLayoutsSendNothing()
{
    SimulatedBed bed(QString::fromLatin1(QTest::currentDataTag()));
    bed.storeSetting(u"LuPipPbp/state"_s, true);
    QVERIFY(launchAndForget(bed));
    LuModelModuleInterface* module = bed.module(Module);
    QVERIFY(!bed.get(Module, "state").toBool());
    QVERIFY(!bed.model().property("ecoLockingPaused").toBool());
    bed.set(Module, "state", true);
    bed.set(Module, "mode", 2);
    for (const char* source : {"pipSource", "pbpSource", "pbp5_9Source", "pbp3_1Source", "pbp2_1Source"})
        bed.set(Module, source, u"HDMI"_s);
    bed.set(Module, "pipSize", 2);
    bed.set(Module, "pipPosition", 0);
    bed.set(Module, "pbpAudioSource", 5);
    QVERIFY(QMetaObject::invokeMethod(module, "forceOpenPbp"));
    QVERIFY(QMetaObject::invokeMethod(module, "swapPipPbp"));
    QVERIFY(bed.sync(Module));
    QVERIFY(bed.apply());
    LuModelHost::fireExitEvents(&bed.model());
    QCOMPARE(LuModelHost::syncTaskCount(module), std::nullopt);
    QCOMPARE(bed.wire().filter(QRegularExpression(u"0x(7D|7E|7F|80|A5|F5)"_s)), QStringList());
    QCOMPARE(bed.events().filter(u"LuPipPbp"_s), QStringList());
    QCOMPARE(bed.get(Module, "mode").toInt(), Pip);
}

QTEST_MAIN(TestLayout)
#include "tst_layout.moc"
