// SPDX-License-Identifier: Apache-2.0
#include "InputsBed.h"

#include <lushared/LuModelHost.h>

#include <QRegularExpression>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

constexpr const char* Module = "LuPipPbp";
constexpr int LayoutCode = 0x7D;
constexpr int SourceCode = 0x7E;
constexpr int SizeCode = 0x80;
constexpr int AudioCode = 0xF5;

using Rows = QList<SchemaOverride::Row>;

const Rows AllLayouts{{u"PIP PBP AB"_s, u"PBPx4"_s, u"on"_s},
                      {u"PIP PBP AB"_s, u"PBP 5:9"_s, u"on"_s},
                      {u"PbpAudioSourceEnable"_s, u"PbpAudioSourceEnable"_s, u"on"_s}};

void setPbp4Source(SimulatedBed& bed, int window, const QString& source)
{
    LuModelModuleInterface* module = bed.module(Module);
    const QMetaObject* meta = module->metaObject();
    const QMetaMethod method =
        meta->method(meta->indexOfMethod("setPbp4Source(LuPipPbp::WindowSelect,QString)"));
    const QByteArray type = method.parameterTypeName(0);
    QVERIFY(method.invoke(module, Qt::DirectConnection,
                          QGenericArgument(type.constData(), static_cast<const void*>(&window)),
                          Q_ARG(QString, source)));
}

/// Layout, windows, size and sound: what the launch writes for a layout.
QStringList windowWrites(SimulatedBed& bed)
{
    return writesIn(bed.wire()).filter(QRegularExpression(u"^0x(7D|7E|80|A5|F5)"_s));
}

} // namespace

/// What each window of a layout shows.
class TestWindows : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aSourceIsWrittenToItsWindow_data();
    void aSourceIsWrittenToItsWindow();
    void aSourceIsWrittenWhileTheLayoutIsOff();
    void thePresentSourceDoesNothing();
    void oneOfFourWindowsIsWritten_data();
    void oneOfFourWindowsIsWritten();
    void aWrongWindowIsRefused_data();
    void aWrongWindowIsRefused();
    void theSameSourceOfFourWritesNothing();
    void sizeAndPositionTravelTogether();
    void theSoundsWindowIsWritten();
    void theLaunchWritesTheWindowsOfTheLayout_data();
    void theLaunchWritesTheWindowsOfTheLayout();
    void theLaunchTellsTheSound();
    void windowsAreReadByTheReading_data();
    void windowsAreReadByTheReading();
    void aSourceThatTheModelLacksIsEmpty();
    void sizeAndPositionAreTakenApart();
    void fourWindowsAreRead();
    void aFailedWindowOfFourKeepsItsEntry_data();
    void aFailedWindowOfFourKeepsItsEntry();
    void aFailedSourceReadLeavesTheSource();
    void theSoundIsReadInTheFamilyOnly();
    void aSwapExchangesAndReadsBack();
    void aSwapIsIgnored_data();
    void aSwapIsIgnored();
};

void TestWindows::aSourceIsWrittenToItsWindow_data()
{
    QTest::addColumn<QString>("signal");
    for (const char* name : {"pipSource", "pbpSource", "pbp5_9Source", "pbp3_1Source", "pbp2_1Source"})
        QTest::newRow(name) << QString::fromLatin1(name) + u"Changed"_s;
}

void TestWindows::aSourceIsWrittenToItsWindow()
{
    QFETCH(QString, signal);
    const QByteArray name = QTest::currentDataTag();
    SimulatedBed bed;
    QVERIFY(launchAndForget(bed));
    SignalRecorder recorder(bed.module(Module));
    bed.set(Module, name, u"DisplayPort"_s);
    QVERIFY(bed.idle());
    QCOMPARE(bed.wire(), (QStringList{u"set 0xA5 512"_s, u"set 0x7E 15"_s}));
    QCOMPARE(bed.get(Module, name).toString(), u"DisplayPort"_s);
    QCOMPARE(bed.setting(u"LuPipPbp/"_s + QString::fromLatin1(name)).toString(), u"DisplayPort"_s);
    QCOMPARE(recorder.take(), QStringList{signal});
    QString setter = QString::fromLatin1(name);
    setter[0] = setter[0].toUpper();
    QVERIFY(bed.log().contains(u"[LuPipPbp] set%1: \"DisplayPort\""_s.arg(setter)));
    QCOMPARE(bed.events(), QStringList());
}

void TestWindows::aSourceIsWrittenWhileTheLayoutIsOff()
{
    SimulatedBed bed;
    QVERIFY(launchAndForget(bed));
    QVERIFY(!bed.get(Module, "state").toBool());
    bed.set(Module, "pbp2_1Source", u"HDMI"_s);
    QVERIFY(bed.idle());
    QCOMPARE(bed.wire(), (QStringList{u"set 0xA5 512"_s, u"set 0x7E 17"_s}));
}

void TestWindows::thePresentSourceDoesNothing()
{
    SimulatedBed bed;
    QVERIFY(launchAndForget(bed));
    bed.set(Module, "pipSource", u"HDMI"_s);
    QVERIFY(bed.idle());
    bed.forget();
    bed.set(Module, "pipSource", u"HDMI"_s);
    QVERIFY(bed.idle());
    QCOMPARE(bed.wire(), QStringList());
}

void TestWindows::oneOfFourWindowsIsWritten_data()
{
    QTest::addColumn<int>("window");
    QTest::addColumn<int>("entry");
    QTest::newRow("upper right") << 512 << 0;
    QTest::newRow("lower left") << 1024 << 1;
    QTest::newRow("lower right") << 2048 << 2;
}

void TestWindows::oneOfFourWindowsIsWritten()
{
    QFETCH(int, window);
    QFETCH(int, entry);
    SimulatedBed bed;
    QVERIFY(launchAndForget(bed));
    SignalRecorder recorder(bed.module(Module));
    setPbp4Source(bed, window, u"DisplayPort"_s);
    QVERIFY(bed.idle());
    QCOMPARE(bed.wire(), (QStringList{u"set 0xA5 %1"_s.arg(window), u"set 0x7E 15"_s}));
    QStringList list(3, QString());
    list[entry] = u"DisplayPort"_s;
    QCOMPARE(bed.get(Module, "pbp4SourceList").toStringList(), list);
    QCOMPARE(bed.setting(u"LuPipPbp/pbp4SourceList"_s).toStringList(), list);
    QCOMPARE(recorder.take(), QStringList{u"pbp4SourceListChanged"_s});
    QCOMPARE(int(*bed.monitor().value(SourceCode, window)), 15);
    QVERIFY(!bed.log().filter(u"[LuPipPbp] setPbp4Source:"_s).isEmpty());
}

void TestWindows::aWrongWindowIsRefused_data()
{
    QTest::addColumn<int>("window");
    QTest::newRow("none") << 0;
    QTest::newRow("second of two") << 256;
    QTest::newRow("unknown") << 4096;
}

void TestWindows::aWrongWindowIsRefused()
{
    QFETCH(int, window);
    SimulatedBed bed;
    QVERIFY(launchAndForget(bed));
    SignalRecorder recorder(bed.module(Module));
    setPbp4Source(bed, window, u"HDMI"_s);
    QVERIFY(bed.idle());
    QCOMPARE(bed.wire(), QStringList());
    QCOMPARE(recorder.take(), QStringList());
    QVERIFY(bed.log().contains(u"[LuPipPbp] setPbp4Source WindowSelect error."_s));
}

void TestWindows::theSameSourceOfFourWritesNothing()
{
    SimulatedBed bed;
    QVERIFY(launchAndForget(bed));
    setPbp4Source(bed, 1024, u"HDMI"_s);
    QVERIFY(bed.idle());
    bed.forget();
    setPbp4Source(bed, 1024, u"HDMI"_s);
    QVERIFY(bed.idle());
    QCOMPARE(bed.wire(), QStringList());
}

void TestWindows::sizeAndPositionTravelTogether()
{
    SimulatedBed bed;
    QVERIFY(launchAndForget(bed));
    SignalRecorder recorder(bed.module(Module));
    bed.set(Module, "pipSize", 2);
    QVERIFY(bed.idle());
    QCOMPARE(bed.wire(), QStringList{u"set 0x80 %1"_s.arg(0x0202)});
    QCOMPARE(bed.setting(u"LuPipPbp/pipSize"_s).toInt(), 2);
    bed.set(Module, "pipPosition", 3);
    QVERIFY(bed.idle());
    QCOMPARE(bed.wire(), QStringList{u"set 0x80 %1"_s.arg(0x0302)});
    QCOMPARE(bed.setting(u"LuPipPbp/pipPosition"_s).toInt(), 3);
    QCOMPARE(recorder.take(), (QStringList{u"pipSizeChanged"_s, u"pipPositionChanged"_s}));
    const QStringList log = bed.log();
    QVERIFY(!log.filter(u"[LuPipPbp] setPipSize:"_s).isEmpty());
    QVERIFY(!log.filter(u"[LuPipPbp] setPipPosition:"_s).isEmpty());
}

void TestWindows::theSoundsWindowIsWritten()
{
    SimulatedBed bed;
    QVERIFY(launchAndForget(bed));
    SignalRecorder recorder(bed.module(Module));
    bed.set(Module, "pbpAudioSource", 5);
    QVERIFY(bed.idle());
    QCOMPARE(bed.wire(), QStringList{u"set 0xF5 5"_s});
    QCOMPARE(bed.setting(u"LuPipPbp/pbpAudioSource"_s).toInt(), 5);
    QCOMPARE(recorder.take(), QStringList{u"pbpAudioSourceChanged"_s});
}

void TestWindows::theLaunchWritesTheWindowsOfTheLayout_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<QStringList>("writes");
    QTest::addColumn<QStringList>("told");
    const QStringList four{u"0xA5 512"_s, u"0x7E 15"_s,   u"0xA5 1024"_s,
                           u"0x7E 17"_s,  u"0xA5 2048"_s, u"0x7E 0"_s};
    const QStringList two{u"0xA5 512"_s, u"0x7E 19"_s};
    const QString list = u"pbp4SourceListChanged"_s;
    QTest::newRow("PIP") << 1 << QStringList{u"0x7D 1"_s, u"0xA5 512"_s, u"0x7E 17"_s, u"0x80 769"_s}
                         << QStringList{u"pipSourceChanged"_s, u"pipSizeChanged"_s, u"pipPositionChanged"_s};
    QTest::newRow("PBP") << 2 << QStringList{u"0x7D 2"_s, u"0xA5 512"_s, u"0x7E 15"_s}
                         << QStringList{u"pbpSourceChanged"_s};
    QTest::newRow("PBP 5:9") << 6 << QStringList{u"0x7D 6"_s, u"0xA5 512"_s, u"0x7E 17"_s}
                             << QStringList{u"pbp5_9SourceChanged"_s};
    // Each of the two runs on into what follows.
    QTest::newRow("PBP 3:1") << 7 << QStringList{u"0x7D 7"_s, u"0xA5 512"_s, u"0x7E 15"_s} + two + four
                             << QStringList{u"pbp3_1SourceChanged"_s, u"pbp2_1SourceChanged"_s, list};
    QTest::newRow("PBP 2:1") << 8 << QStringList{u"0x7D 8"_s} + two + four
                             << QStringList{u"pbp2_1SourceChanged"_s, list};
    QTest::newRow("PBP x4") << 5 << QStringList{u"0x7D 5"_s} + four << QStringList{list};
    QTest::newRow("3") << 3 << QStringList{u"0x7D 3"_s} << QStringList();
    QTest::newRow("4") << 4 << QStringList{u"0x7D 4"_s} << QStringList();
}

void TestWindows::theLaunchWritesTheWindowsOfTheLayout()
{
    QFETCH(int, mode);
    QFETCH(QStringList, writes);
    QFETCH(QStringList, told);
    SimulatedBed bed;
    QVERIFY(launchAndForget(bed));
    const QVariantMap stored{{u"state"_s, true},
                             {u"mode"_s, mode},
                             {u"pipSource"_s, u"HDMI"_s},
                             {u"pipSize"_s, 1},
                             {u"pipPosition"_s, 3},
                             {u"pbpSource"_s, u"DisplayPort"_s},
                             {u"pbp5_9Source"_s, u"HDMI"_s},
                             {u"pbp3_1Source"_s, u"DisplayPort"_s},
                             {u"pbp2_1Source"_s, u"USB-C"_s},
                             {u"pbp4SourceList"_s, QStringList{u"DisplayPort"_s, u"HDMI"_s, u"nothing"_s}}};
    for (auto it = stored.begin(); it != stored.end(); ++it)
        bed.storeSetting(u"LuPipPbp/"_s + it.key(), it.value());
    // Without a launch's own writes: what applyValues() does is asked for alone.
    bed.hotplug();
    QVERIFY(bed.idle());
    for (auto it = stored.begin(); it != stored.end(); ++it)
        bed.storeSetting(u"LuPipPbp/"_s + it.key(), it.value());
    bed.destroy();
    bed.forget();
    bed.launch();
    QVERIFY(bed.idle());
    QStringList all = windowWrites(bed);
    // The first round selects the windows that it reads.
    QVERIFY2(all.size() >= writes.size(), qPrintable(all.join(u", "_s)));
    QCOMPARE(all.mid(0, writes.size()), writes);
    QVERIFY2(all.mid(writes.size()).filter(QRegularExpression(u"^0x(7D|7E|80|F5)"_s)).isEmpty(),
             qPrintable(all.join(u", "_s)));
    QVERIFY(bed.events().filter(u"LuPipPbp 8 on 3"_s).size() == 1);
    QVERIFY(!bed.log().filter(u"[LuPipPbp] apply mode:"_s).isEmpty());

    // The signals, with the members as the launch left them.
    if (bed.get(Module, "mode").toInt() != mode || !bed.get(Module, "state").toBool()) {
        QVERIFY(bed.monitor().setByMenu(LayoutCode, mode));
        QVERIFY(bed.sync(Module));
    }
    SignalRecorder recorder(bed.module(Module));
    QVERIFY(bed.apply());
    const QStringList around{u"modeChanged"_s, u"isPbpModeChanged"_s, u"stateChanged"_s};
    QCOMPARE(recorder.take(), QStringList{u"stateAboutToBeChanged"_s} + told + around);
}

void TestWindows::theLaunchTellsTheSound()
{
    const SchemaOverride schema(u"TK30Z"_s, AllLayouts);
    SimulatedBed bed;
    QVERIFY(launchAndForget(bed));
    bed.set(Module, "mode", 2);
    bed.set(Module, "state", true);
    bed.set(Module, "pbpAudioSource", 5);
    QVERIFY(bed.idle());
    bed.forget();
    SignalRecorder recorder(bed.module(Module));
    QVERIFY(bed.apply());
    QCOMPARE(windowWrites(bed).last(), u"0xF5 5"_s);
    QVERIFY(recorder.take().contains(u"pbpAudioSourceChanged"_s));
    QVERIFY(!bed.log().filter(u"[LuPipPbp] apply pbp audio source:"_s).isEmpty());
    // Not with a small window over the picture.
    bed.set(Module, "mode", 1);
    QVERIFY(bed.idle());
    bed.forget();
    QVERIFY(bed.apply());
    QCOMPARE(windowWrites(bed).filter(u"0xF5"_s), QStringList());
}

void TestWindows::windowsAreReadByTheReading_data()
{
    QTest::addColumn<int>("reading");
    QTest::addColumn<QByteArray>("property");
    QTest::addColumn<QString>("text");
    QTest::newRow("PIP") << 1 << QByteArray("pipSource") << u"sync pip source changed:"_s;
    QTest::newRow("PBP") << 2 << QByteArray("pbpSource") << u"sync pbp source changed:"_s;
    QTest::newRow("PBP 5:9") << 6 << QByteArray("pbp5_9Source") << u"sync pbp5_9 source changed:"_s;
    QTest::newRow("PBP 3:1") << 7 << QByteArray("pbp3_1Source") << u"sync pbp3_1 source changed:"_s;
    QTest::newRow("PBP 2:1") << 8 << QByteArray("pbp2_1Source") << u"sync pbp2_1 source changed:"_s;
}

void TestWindows::windowsAreReadByTheReading()
{
    QFETCH(int, reading);
    QFETCH(QByteArray, property);
    QFETCH(QString, text);
    SimulatedBed bed;
    QVERIFY(launchAndForget(bed));
    QVERIFY(bed.monitor().setByMenu(LayoutCode, reading));
    QVERIFY(bed.monitor().setByMenu(SourceCode, 15, 512));
    QVERIFY(bed.sync(Module));
    QCOMPARE(bed.get(Module, property).toString(), u"DisplayPort"_s);
    QCOMPARE(bed.setting(u"LuPipPbp/"_s + QString::fromLatin1(property)).toString(), u"DisplayPort"_s);
    const QStringList wire = bed.wire();
    QCOMPARE(wire.mid(0, 3),
             (QStringList{u"get 0x7D %1"_s.arg(reading), u"set 0xA5 512"_s, u"get 0x7E 15"_s}));
    QCOMPARE(wire.size(), reading == 1 ? 4 : 3);
    QVERIFY(bed.log().contains(u"[LuPipPbp] %1 \"DisplayPort\""_s.arg(text)));
}

void TestWindows::aSourceThatTheModelLacksIsEmpty()
{
    SimulatedBed bed;
    QVERIFY(launchAndForget(bed));
    QVERIFY(bed.monitor().setByMenu(LayoutCode, 2));
    QVERIFY(bed.monitor().setByMenu(SourceCode, 15, 512));
    QVERIFY(bed.sync(Module));
    QVERIFY(bed.monitor().setByMenu(SourceCode, 22, 512));
    SignalRecorder recorder(bed.module(Module));
    QVERIFY(bed.sync(Module));
    QCOMPARE(bed.get(Module, "pbpSource").toString(), QString());
    QCOMPARE(bed.setting(u"LuPipPbp/pbpSource"_s).toString(), QString());
    QCOMPARE(recorder.take(), QStringList{u"pbpSourceChanged"_s});
}

void TestWindows::sizeAndPositionAreTakenApart()
{
    SimulatedBed bed;
    QVERIFY(launchAndForget(bed));
    QVERIFY(bed.monitor().setByMenu(LayoutCode, 1));
    QVERIFY(bed.monitor().setByMenu(SizeCode, 0x0302));
    QVERIFY(bed.sync(Module));
    QCOMPARE(bed.get(Module, "pipSize").toInt(), 2);
    QCOMPARE(bed.get(Module, "pipPosition").toInt(), 3);
    QCOMPARE(bed.setting(u"LuPipPbp/pipSize"_s).toInt(), 2);
    QCOMPARE(bed.setting(u"LuPipPbp/pipPosition"_s).toInt(), 3);
    const QStringList log = bed.log();
    QVERIFY(!log.filter(u"[LuPipPbp] sync pip size changed:"_s).isEmpty());
    QVERIFY(!log.filter(u"[LuPipPbp] sync pip position changed:"_s).isEmpty());
}

void TestWindows::fourWindowsAreRead()
{
    SimulatedBed bed;
    QVERIFY(launchAndForget(bed));
    QVERIFY(bed.monitor().setByMenu(LayoutCode, 5));
    QVERIFY(bed.monitor().setByMenu(SourceCode, 15, 512));
    QVERIFY(bed.monitor().setByMenu(SourceCode, 17, 1024));
    QVERIFY(bed.monitor().setByMenu(SourceCode, 19, 2048));
    QVERIFY(bed.sync(Module));
    const QStringList list{u"DisplayPort"_s, u"HDMI"_s, u"USB-C"_s};
    QCOMPARE(bed.get(Module, "pbp4SourceList").toStringList(), list);
    QCOMPARE(bed.setting(u"LuPipPbp/pbp4SourceList"_s).toStringList(), list);
    QCOMPARE(bed.wire(),
             (QStringList{u"get 0x7D 5"_s, u"set 0xA5 512"_s, u"get 0x7E 15"_s, u"set 0xA5 1024"_s,
                          u"get 0x7E 17"_s, u"set 0xA5 2048"_s, u"get 0x7E 19"_s}));
    QVERIFY(!bed.log().filter(u"[LuPipPbp] sync pbp4 sources changed:"_s).isEmpty());
}

void TestWindows::aFailedWindowOfFourKeepsItsEntry_data()
{
    QTest::addColumn<int>("entry");
    QTest::newRow("first") << 0;
    QTest::newRow("second") << 1;
    QTest::newRow("third") << 2;
}

void TestWindows::aFailedWindowOfFourKeepsItsEntry()
{
    QFETCH(int, entry);
    SimulatedBed bed;
    QVERIFY(launchAndForget(bed));
    QVERIFY(bed.monitor().setByMenu(LayoutCode, 5));
    const int windows[] = {512, 1024, 2048};
    for (const int window : windows)
        QVERIFY(bed.monitor().setByMenu(SourceCode, 17, window));
    QVERIFY(bed.sync(Module));
    for (const int window : windows)
        QVERIFY(bed.monitor().setByMenu(SourceCode, 15, window));
    // The reads of the windows before it succeed, each a transaction that an earlier fault would meet: so the
    // fault is armed for the one read that follows the selection of its window.
    SignalRecorder recorder(bed.module(Module));
    bed.forget();
    sim::Fault fault;
    fault.code = SourceCode;
    fault.count = 1;
    if (entry == 0) {
        bed.monitor().armFault(fault);
        QVERIFY(bed.sync(Module));
        QCOMPARE(bed.get(Module, "pbp4SourceList").toStringList(),
                 (QStringList{u"HDMI"_s, u"DisplayPort"_s, u"DisplayPort"_s}));
    } else {
        // Two reads in a row fail: the first windows' entries stay, the last one follows.
        fault.count = entry + 1;
        bed.monitor().armFault(fault);
        QVERIFY(bed.sync(Module));
        QStringList expected(3, u"HDMI"_s);
        for (int i = entry + 1; i < 3; ++i)
            expected[i] = u"DisplayPort"_s;
        QCOMPARE(bed.get(Module, "pbp4SourceList").toStringList(), expected);
    }
    QCOMPARE(recorder.take(), entry == 2 ? QStringList() : QStringList{u"pbp4SourceListChanged"_s});
}

void TestWindows::aFailedSourceReadLeavesTheSource()
{
    SimulatedBed bed;
    QVERIFY(launchAndForget(bed));
    QVERIFY(bed.monitor().setByMenu(LayoutCode, 2));
    QVERIFY(bed.monitor().setByMenu(SourceCode, 17, 512));
    QVERIFY(bed.sync(Module));
    QVERIFY(bed.monitor().setByMenu(SourceCode, 15, 512));
    sim::Fault fault;
    fault.code = SourceCode;
    bed.monitor().armFault(fault);
    QVERIFY(bed.sync(Module));
    QCOMPARE(bed.get(Module, "pbpSource").toString(), u"HDMI"_s);
    QVERIFY(bed.get(Module, "state").toBool());
}

void TestWindows::theSoundIsReadInTheFamilyOnly()
{
    const SchemaOverride schema(u"TK30Z"_s, AllLayouts);
    SimulatedBed bed;
    QVERIFY(launchAndForget(bed));
    QVERIFY(bed.monitor().setByMenu(LayoutCode, 2));
    QVERIFY(bed.monitor().setByMenu(AudioCode, 77));
    QVERIFY(bed.sync(Module));
    // Taken as it is.
    QCOMPARE(bed.get(Module, "pbpAudioSource").toInt(), 77);
    QCOMPARE(bed.wire().last(), u"get 0xF5 77"_s);
    QVERIFY(!bed.log().filter(u"[LuPipPbp] sync pbp audio source changed:"_s).isEmpty());
    QVERIFY(bed.monitor().setByMenu(LayoutCode, 1));
    QVERIFY(bed.sync(Module));
    QCOMPARE(bed.wire().filter(u"0xF5"_s), QStringList());
    // Nor on a model without the row.
    SimulatedBed plain(u"TK40"_s);
    QVERIFY(launchAndForget(plain));
    QVERIFY(plain.monitor().setByMenu(LayoutCode, 2));
    QVERIFY(plain.sync(Module));
    QCOMPARE(plain.wire().filter(u"0xF5"_s), QStringList());
}

void TestWindows::aSwapExchangesAndReadsBack()
{
    SimulatedBed bed;
    QVERIFY(launchAndForget(bed));
    bed.set(Module, "mode", 2);
    bed.set(Module, "state", true);
    bed.set(Module, "pbpSource", u"DisplayPort"_s);
    QVERIFY(bed.idle());
    bed.forget();
    SignalRecorder recorder(bed.module(Module));
    QVERIFY(QMetaObject::invokeMethod(bed.module(Module), "swapPipPbp"));
    QVERIFY(bed.idle());
    const QStringList wire = bed.wire();
    QCOMPARE(wire.first(), u"set 0x7F 1"_s);
    QVERIFY(wire.contains(u"get 0x60 15"_s));
    QVERIFY(wire.contains(u"get 0x7E 19"_s));
    QCOMPARE(writesOf(u"0x7E"_s, wire), QStringList());
    QCOMPARE(bed.get(Module, "pbpSource").toString(), u"USB-C"_s);
    QCOMPARE(bed.get("LuInputSource", "currentMainInputSource").toString(), u"DisplayPort"_s);
    QCOMPARE(recorder.take(), (QStringList{u"swapped"_s, u"pbpSourceChanged"_s}));
    QVERIFY(bed.log().contains(u"[LuPipPbp] swapPipPbp"_s));
}

void TestWindows::aSwapIsIgnored_data()
{
    QTest::addColumn<bool>("on");
    QTest::addColumn<bool>("has");
    QTest::newRow("while off") << false << true;
    QTest::newRow("on a model without it") << true << false;
}

void TestWindows::aSwapIsIgnored()
{
    QFETCH(bool, on);
    QFETCH(bool, has);
    const SchemaOverride schema(u"TK30Z"_s,
                                {{u"SwapPipPbpEnable"_s, u"SwapPipPbpEnable"_s, has ? u"on"_s : QString()}});
    SimulatedBed bed;
    QVERIFY(launchAndForget(bed));
    bed.set(Module, "state", on);
    QVERIFY(bed.idle());
    bed.forget();
    SignalRecorder recorder(bed.module(Module));
    QVERIFY(QMetaObject::invokeMethod(bed.module(Module), "swapPipPbp"));
    QVERIFY(bed.idle());
    QCOMPARE(bed.wire(), QStringList());
    QCOMPARE(bed.log().filter(u"swap"_s), QStringList());
    QCOMPARE(recorder.take(), QStringList());
}

QTEST_MAIN(TestWindows)
#include "tst_windows.moc"
