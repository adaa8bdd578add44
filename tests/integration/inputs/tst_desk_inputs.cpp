// SPDX-License-Identifier: Apache-2.0
#include "InputsDesk.h"

#include <QtTest>

using namespace Qt::StringLiterals;

/// Inputs, layouts, dual view, KVM and daisy chain through the control socket.
class TestDeskInputs : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aConnectorThatTheModelLacksIsEmpty();
    void aReadingIsNamedAsTheModelDoes();
    void theStoredSourceIsNotSelectedAgain();
    void actionsExistForTheConnectorsOnly();
    void aLayoutWithoutWindowsIsKept();
    void aModeChosenWhileOffStaysHere();
    void forcedOpeningWritesOnce();
    void aClosedLayoutIsNoNewsAtTheFirstConnection();
    void aWrongWindowIsRefused();
    void aSwapWhileOffDoesNothing();
    void sizeAndPositionShareACode();
    void aSubSourceIsWrittenWhileOff();
    void theLaunchWritesTheWindows();
    void aSecondModeThatTheModelLacksLeavesTheNode();
    void aStoredModeThatIsGoneGivesTheFirst();
    void noSecondModeIsNotWritten();
    void aPortOutsideOfTheListIsShown();
    void aListOfOnePort();
    void smartKvmFromEdgeToEdge();
    void smartKvmGoesWithTheLayout();
    void aDaisyChainOfTwoIsOff();
    void theEnvironmentForbidsTheDaisyChain();
    void modelsWithoutTheFeaturesSendNothing_data();
    void modelsWithoutTheFeaturesSendNothing();
    void theExitIsReported();
};

void TestDeskInputs::aConnectorThatTheModelLacksIsEmpty()
{
    InputsDesk desk;
    QVERIFY2(desk.start(u"TK30Z"_s), qPrintable(desk.errors()));
    QVERIFY(desk.menu(0x60, 18));
    QVERIFY(desk.sync(u"LuInputSource"_s));
    QCOMPARE(desk.get(u"inputSource.currentMainInputSource"_s), QJsonValue(u""_s));
    QCOMPARE(desk.setting(u"LuInputSource/source"_s), QJsonValue(u""_s));
    QCOMPARE(desk.held(0x60), 18);
}

void TestDeskInputs::aReadingIsNamedAsTheModelDoes()
{
    InputsDesk desk;
    QVERIFY2(desk.start(u"TK40"_s), qPrintable(desk.errors()));
    QCOMPARE(desk.get(u"inputSource.inputSourceList"_s),
             QJsonValue(QJsonArray{u"USB-C"_s, u"HDMI1"_s, u"HDMI2"_s, u"DisplayPort"_s}));
    QVERIFY(desk.menu(0x60, 17));
    QVERIFY(desk.sync(u"LuInputSource"_s));
    QCOMPARE(desk.get(u"inputSource.currentMainInputSource"_s), QJsonValue(u"HDMI1"_s));
    // The writing way too.
    QVERIFY(desk.set(u"inputSource.currentMainInputSource"_s, u"HDMI2"_s));
    QCOMPARE(desk.held(0x60), 18);
}

void TestDeskInputs::theStoredSourceIsNotSelectedAgain()
{
    InputsDesk desk;
    QVERIFY2(desk.start(u"TK30Z"_s), qPrintable(desk.errors()));
    QVERIFY(desk.set(u"inputSource.currentMainInputSource"_s, u"HDMI"_s));
    QCOMPARE(desk.wire().filter(u"set"_s), QStringList{u"set 0x60 17"_s});
    QCOMPARE(desk.events().last(), u"LuInputSource 11 HDMI 0 []"_s);
    QVERIFY(desk.set(u"inputSource.currentMainInputSource"_s, u"HDMI"_s));
    QCOMPARE(desk.wire(), QStringList());
    QCOMPARE(desk.events(), QStringList());
}

void TestDeskInputs::actionsExistForTheConnectorsOnly()
{
    InputsDesk desk;
    QVERIFY2(desk.start(u"TK40"_s), qPrintable(desk.errors()));
    QSet<int> names;
    const QJsonArray actions = desk.client().call(u"actions"_s).result.toArray();
    for (const QJsonValue& action : actions) {
        if (action[u"title"_s].toInt() == 1)
            names.insert(action[u"name"_s].toInt());
    }
    QCOMPARE(names, (QSet<int>{0, 1, 3, 4}));
}

void TestDeskInputs::aLayoutWithoutWindowsIsKept()
{
    InputsDesk desk;
    QVERIFY2(desk.start(u"TK30Z"_s), qPrintable(desk.errors()));
    QVERIFY(desk.menu(0x7D, 3));
    desk.forget();
    QVERIFY(desk.sync(u"LuPipPbp"_s));
    QCOMPARE(desk.wire(), QStringList{u"get 0x7D 3"_s});
    QCOMPARE(desk.get(u"pipPbp.mode"_s), QJsonValue(3));
    QCOMPARE(desk.get(u"pipPbp.isPbpMode"_s), QJsonValue(false));
    QCOMPARE(desk.get(u"pipPbp.state"_s), QJsonValue(true));
    QVERIFY(desk.apply());
    QCOMPARE(desk.wire().filter(QRegularExpression(u"^set 0x(7D|7E|A5|80)"_s)), QStringList{u"set 0x7D 3"_s});
}

void TestDeskInputs::aModeChosenWhileOffStaysHere()
{
    InputsDesk desk;
    QVERIFY2(desk.start(u"TK30Z"_s), qPrintable(desk.errors()));
    desk.forget();
    QVERIFY(desk.client().call(u"watch"_s, {{u"paths"_s, QJsonArray{u"pipPbp.mode"_s}}}).ok());
    QVERIFY(desk.set(u"pipPbp.mode"_s, u"PBP3_1"_s));
    QCOMPARE(desk.wire(), QStringList());
    QCOMPARE(desk.setting(u"LuPipPbp/mode"_s), QJsonValue(7));
    QCOMPARE(desk.client().nextMessage()[u"params"_s][u"value"_s], QJsonValue(7));
}

void TestDeskInputs::forcedOpeningWritesOnce()
{
    InputsDesk desk;
    QVERIFY2(desk.start(u"TK30Z"_s), qPrintable(desk.errors()));
    desk.forget();
    QVERIFY(desk.call(u"pipPbp.forceOpenPbp"_s));
    QCOMPARE(desk.wire().filter(u"set 0x7D"_s), QStringList{u"set 0x7D 2"_s});
    QCOMPARE(desk.get(u"pipPbp.mode"_s), QJsonValue(2));
    QCOMPARE(desk.get(u"pipPbp.state"_s), QJsonValue(true));
    QCOMPARE(desk.get(u"ecoLockingPaused"_s), QJsonValue(true));
    QCOMPARE(desk.events().filter(u"LuPipPbp"_s), QStringList{u"LuPipPbp 8 on 0 [pbp2,n/a,n/a]"_s});
    QVERIFY(desk.call(u"pipPbp.forceOpenPbp"_s));
    QCOMPARE(desk.wire(), QStringList());
}

void TestDeskInputs::aClosedLayoutIsNoNewsAtTheFirstConnection()
{
    InputsDesk desk;
    QVERIFY2(desk.start(u"TK30Z"_s), qPrintable(desk.errors()));
    const QStringList events = desk.events();
    QCOMPARE(events.filter(u"LuPipPbp"_s), QStringList());
    QCOMPARE(events.filter(u"LuInputSource"_s), QStringList{u"LuInputSource 11 USB-C 5 []"_s});
}

void TestDeskInputs::aWrongWindowIsRefused()
{
    InputsDesk desk;
    QVERIFY2(desk.start(u"TK30Z"_s), qPrintable(desk.errors()));
    desk.forget();
    for (const int window : {0, 256}) {
        QVERIFY(desk.call(u"pipPbp.setPbp4Source"_s, {window, u"HDMI"_s}));
        QVERIFY(desk.log().contains(u"[LuPipPbp] setPbp4Source WindowSelect error."_s));
    }
    QCOMPARE(desk.wire(), QStringList());
    QVERIFY(desk.call(u"pipPbp.setPbp4Source"_s, {u"WindowSelectPBP3"_s, u"HDMI"_s}));
    QCOMPARE(desk.wire(), (QStringList{u"set 0xA5 1024"_s, u"set 0x7E 17"_s}));
    QCOMPARE(desk.get(u"pipPbp.pbp4SourceList"_s), QJsonValue(QJsonArray{u""_s, u"HDMI"_s, u""_s}));
}

void TestDeskInputs::aSwapWhileOffDoesNothing()
{
    InputsDesk desk;
    QVERIFY2(desk.start(u"TK30Z"_s), qPrintable(desk.errors()));
    desk.forget();
    QVERIFY(desk.call(u"pipPbp.swapPipPbp"_s));
    QCOMPARE(desk.wire(), QStringList());
    QCOMPARE(desk.log().filter(u"swap"_s), QStringList());
    QVERIFY(desk.set(u"pipPbp.pbpSource"_s, u"HDMI"_s));
    QVERIFY(desk.call(u"pipPbp.forceOpenPbp"_s));
    desk.forget();
    QVERIFY(desk.call(u"pipPbp.swapPipPbp"_s));
    QCOMPARE(desk.wire().first(), u"set 0x7F 1"_s);
    QCOMPARE(desk.get(u"inputSource.currentMainInputSource"_s), QJsonValue(u"HDMI"_s));
    QCOMPARE(desk.get(u"pipPbp.pbpSource"_s), QJsonValue(u"USB-C"_s));
}

void TestDeskInputs::sizeAndPositionShareACode()
{
    InputsDesk desk;
    QVERIFY2(desk.start(u"TK30Z"_s), qPrintable(desk.errors()));
    QVERIFY(desk.set(u"pipPbp.pipSize"_s, u"PIPLarge"_s));
    desk.forget();
    QVERIFY(desk.set(u"pipPbp.pipPosition"_s, u"PIPLowerLeft"_s));
    QCOMPARE(desk.wire(), QStringList{u"set 0x80 %1"_s.arg(0x302)});
    QVERIFY(desk.set(u"pipPbp.state"_s, true));
    QVERIFY(desk.menu(0x80, 0x0101));
    QVERIFY(desk.sync(u"LuPipPbp"_s));
    QCOMPARE(desk.get(u"pipPbp.pipSize"_s), QJsonValue(1));
    QCOMPARE(desk.get(u"pipPbp.pipPosition"_s), QJsonValue(1));
}

void TestDeskInputs::aSubSourceIsWrittenWhileOff()
{
    InputsDesk desk;
    QVERIFY2(desk.start(u"TK30Z"_s), qPrintable(desk.errors()));
    desk.forget();
    QVERIFY(desk.set(u"pipPbp.pbp3_1Source"_s, u"DisplayPort"_s));
    QCOMPARE(desk.wire(), (QStringList{u"set 0xA5 512"_s, u"set 0x7E 15"_s}));
}

void TestDeskInputs::theLaunchWritesTheWindows()
{
    InputsDesk desk;
    QVERIFY2(desk.start(u"TK30Z"_s), qPrintable(desk.errors()));
    QVERIFY(desk.set(u"pipPbp.pbp2_1Source"_s, u"HDMI"_s));
    QVERIFY(desk.call(u"pipPbp.setPbp4Source"_s, {2048, u"USB-C"_s}));
    QVERIFY(desk.set(u"pipPbp.mode"_s, u"PBP2_1"_s));
    QVERIFY(desk.set(u"pipPbp.state"_s, true));
    // What the window shows now, and not what another layout last wrote to it.
    QVERIFY(desk.menu(0x7E, 17, 512));
    QVERIFY(desk.sync(u"LuPipPbp"_s));
    QCOMPARE(desk.stop(), 0);
    QVERIFY2(desk.start(u"TK30Z"_s), qPrintable(desk.errors()));
    const QStringList writes = desk.wire().filter(QRegularExpression(u"^set 0x(7D|7E|A5|80)"_s));
    QCOMPARE(writes.mid(0, 9), (QStringList{u"set 0x7D 8"_s, u"set 0xA5 512"_s, u"set 0x7E 17"_s,
                                            u"set 0xA5 512"_s, u"set 0x7E 0"_s, u"set 0xA5 1024"_s,
                                            u"set 0x7E 0"_s, u"set 0xA5 2048"_s, u"set 0x7E 19"_s}));
    QVERIFY(desk.events().contains(u"LuPipPbp 8 on 3 [pbp2:1,n/a,n/a]"_s));
}

void TestDeskInputs::aSecondModeThatTheModelLacksLeavesTheNode()
{
    InputsDesk desk;
    QVERIFY2(desk.start(u"TK30Z"_s), qPrintable(desk.errors()));
    QVERIFY(desk.set(u"dualView.currentDualMode"_s, u"Cinema"_s));
    QVERIFY(desk.menu(0xF4, 0x7701));
    QVERIFY(desk.sync(u"LuDualView"_s));
    QCOMPARE(desk.get(u"dualView.state"_s), QJsonValue(true));
    QCOMPARE(desk.get(u"dualView.currentDualMode"_s), QJsonValue(u"Cinema"_s));
}

void TestDeskInputs::aStoredModeThatIsGoneGivesTheFirst()
{
    InputsDesk desk;
    QVERIFY2(desk.start(u"TK30Z"_s), qPrintable(desk.errors()));
    QVERIFY(desk.storeSetting(u"LuDualView/mode"_s, u"Rec.709"_s));
    QCOMPARE(desk.stop(), 0);
    QVERIFY2(desk.start(u"TK30Z"_s), qPrintable(desk.errors()));
    QCOMPARE(desk.get(u"dualView.currentDualMode"_s), QJsonValue(u"Coding - Light Theme"_s));
}

void TestDeskInputs::noSecondModeIsNotWritten()
{
    InputsDesk desk;
    QVERIFY2(desk.start(u"TK30Z"_s), qPrintable(desk.errors()));
    desk.forget();
    QVERIFY(desk.client().call(u"watch"_s, {{u"paths"_s, QJsonArray{u"dualView.currentDualMode"_s}}}).ok());
    QVERIFY(desk.set(u"dualView.currentDualMode"_s, QJsonValue::Null));
    QCOMPARE(desk.wire(), QStringList());
    QVERIFY(desk.client().nextMessage()[u"params"_s][u"value"_s].isNull());
    QVERIFY(desk.set(u"dualView.state"_s, true));
    QCOMPARE(desk.wire(), QStringList());
    QCOMPARE(desk.get(u"dualView.state"_s), QJsonValue(false));
    QVERIFY(desk.log().contains(u"[LuDualView] m_currentDualMode is null in setState"_s));
}

void TestDeskInputs::aPortOutsideOfTheListIsShown()
{
    InputsDesk desk;
    QVERIFY2(desk.start(u"TK30Z"_s), qPrintable(desk.errors()));
    QCOMPARE(desk.get(u"kvmSwitch.kvmSwitchList"_s), QJsonValue(QJsonArray{4, 3, 2}));
    QVERIFY(desk.menu(0xE4, 1));
    QVERIFY(desk.sync(u"LuKvmSwitch"_s));
    QCOMPARE(desk.get(u"kvmSwitch.kvmSwitch"_s), QJsonValue(1));
    desk.forget();
    QVERIFY(desk.set(u"kvmSwitch.kvmSwitch"_s, u"Auto"_s));
    QCOMPARE(desk.wire(), QStringList{u"set 0xE4 4"_s});
    QVERIFY(desk.set(u"kvmSwitch.kvmSwitch"_s, u"Auto"_s));
    QCOMPARE(desk.wire(), QStringList());
}

void TestDeskInputs::aListOfOnePort()
{
    InputsDesk desk;
    QDir().mkpath(desk.process().filePath(u"schema"_s));
    QFile schema(desk.process().filePath(u"schema/TK30Z_ext.xml"_s));
    QVERIFY(schema.open(QIODevice::WriteOnly));
    schema.write("<?xml version=\"1.0\"?><VCPTree><VCPList>"
                 "<VCPcode Type=\"Auto\" Name=\"Auto\" Category=\"Kvm\" Value=\"on\"/>"
                 "<VCPcode Type=\"X\" Name=\"X\" Category=\"Kvm\" Value=\"on\"/></VCPList></VCPTree>");
    schema.close();
    QVERIFY2(desk.start(DeskProcess::usualOptions() +
                        QStringList{u"--schema-dir"_s, desk.process().filePath(u"schema"_s)}),
             qPrintable(desk.errors()));
    QCOMPARE(desk.get(u"kvmSwitch.kvmSwitchList"_s), QJsonValue(QJsonArray{4}));
    QCOMPARE(desk.get(u"kvmSwitch.enabled"_s), QJsonValue(true));
    QCOMPARE(desk.get(u"smartKvmBasic.smartKvmBasicEnable"_s), QJsonValue(false));
}

void TestDeskInputs::smartKvmFromEdgeToEdge()
{
    InputsDesk desk;
    QVERIFY2(desk.start(u"TK30Z"_s), qPrintable(desk.errors()));
    ControlClient& client = desk.client();
    const auto calls = [&client] {
        const QJsonValue kvm = client.value(u"services.get"_s, {{u"path"_s, u"kvm"_s}});
        return kvm[u"calls"_s].toArray();
    };
    const auto cross = [&] {
        return client.call(u"services.emit"_s, {{u"signal"_s, u"kvmChanged"_s}}).ok() && desk.idle();
    };
    QVERIFY(desk.set(u"pipPbp.pbpSource"_s, u"HDMI"_s));
    QVERIFY(desk.call(u"pipPbp.forceOpenPbp"_s));
    QVERIFY(desk.set(u"smartKvmBasic.basicState"_s, true));
    desk.forget();
    const int before = int(calls().size());
    // This computer is on USB-C, on the left: the other one's port is USB-B.
    QVERIFY(cross());
    QCOMPARE(desk.wire(), (QStringList{u"set 0xE4 2"_s, u"get 0xE4 2"_s}));
    QCOMPARE(desk.get(u"kvmSwitch.kvmSwitch"_s), QJsonValue(2));
    QJsonArray made = calls();
    for (int i = 0; i < before; ++i)
        made.removeFirst();
    QCOMPARE(made, (QJsonArray{u"deactivate"_s, u"setScreenRect"_s, u"activate"_s}));
    // The computers change sides: the target is computed anew and nothing is written before the next
    // crossing.
    QVERIFY(desk.call(u"pipPbp.swapPipPbp"_s));
    QCOMPARE(desk.get(u"smartKvmBasic.deviceLocation"_s), QJsonValue(1));
    QCOMPARE(desk.wire().filter(u"0xE4"_s), QStringList());
    QVERIFY(cross());
    QCOMPARE(desk.wire().filter(u"set 0xE4"_s), QStringList{u"set 0xE4 2"_s});
    // Main HDMI on the left: USB-C.
    QVERIFY(desk.set(u"smartKvmBasic.deviceLocation"_s, u"LeftLocation"_s));
    QVERIFY(cross());
    QCOMPARE(desk.wire().filter(u"set 0xE4"_s), QStringList{u"set 0xE4 3"_s});
}

void TestDeskInputs::smartKvmGoesWithTheLayout()
{
    InputsDesk desk;
    QVERIFY2(desk.start(u"TK30Z"_s), qPrintable(desk.errors()));
    QVERIFY(desk.call(u"pipPbp.forceOpenPbp"_s));
    QVERIFY(desk.set(u"smartKvmBasic.basicState"_s, true));
    QVERIFY(desk.set(u"kvmSwitch.kvmSwitch"_s, u"TypeC"_s));
    // Four windows, from the monitor's menu: on, with the warning.
    QVERIFY(desk.menu(0x7D, 5));
    QVERIFY(desk.sync(u"LuPipPbp"_s));
    QCOMPARE(desk.get(u"smartKvmBasic.basicState"_s), QJsonValue(true));
    QVERIFY(!desk.log().filter(u"[LuSmartKvmBasic] can't mapping Pbp mode"_s).isEmpty());
    QVERIFY(desk.set(u"pipPbp.state"_s, false));
    QCOMPARE(desk.get(u"smartKvmBasic.basicState"_s), QJsonValue(false));
    QCOMPARE(desk.held(0xE4), 4);
    QCOMPARE(desk.client().value(u"services.get"_s, {{u"path"_s, u"kvm"_s}})[u"active"_s], QJsonValue(false));
}

void TestDeskInputs::aDaisyChainOfTwoIsOff()
{
    InputsDesk desk;
    QVERIFY2(desk.start(u"TK10"_s), qPrintable(desk.errors()));
    QVERIFY(desk.set(u"daisyChain.state"_s, true));
    QCOMPARE(desk.held(0xE6), 1);
    QVERIFY(desk.menu(0xE6, 2));
    QVERIFY(desk.sync(u"LuDaisyChain"_s));
    QCOMPARE(desk.get(u"daisyChain.state"_s), QJsonValue(false));
}

void TestDeskInputs::theEnvironmentForbidsTheDaisyChain()
{
    InputsDesk desk;
    QFile file(desk.process().filePath(u"environment.json"_s));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(R"({"using": {"daisy-chain": false}})");
    file.close();
    QVERIFY2(desk.start(DeskProcess::usualOptions() + QStringList{u"--environment"_s, file.fileName()}),
             qPrintable(desk.errors()));
    QCOMPARE(desk.get(u"daisyChain.daisyChainEnable"_s), QJsonValue(false));
    QVERIFY(desk.set(u"daisyChain.state"_s, true));
    QVERIFY(desk.apply());
    QCOMPARE(desk.wire().filter(u"0xE6"_s), QStringList());
}

void TestDeskInputs::modelsWithoutTheFeaturesSendNothing_data()
{
    QTest::addColumn<QString>("codes");
    const QString layouts = u"0x(7D|7E|7F|80|A5|F5|F4|E4|6F)"_s;
    QTest::newRow("TK10") << layouts;
    QTest::newRow("TK20") << u"0x(7D|7E|7F|80|A5|F5|F4|E4|6F|E6)"_s;
    QTest::newRow("TK30") << layouts;
}

void TestDeskInputs::modelsWithoutTheFeaturesSendNothing()
{
    QFETCH(QString, codes);
    InputsDesk desk;
    QVERIFY2(desk.start(QString::fromLatin1(QTest::currentDataTag())), qPrintable(desk.errors()));
    QVERIFY(desk.set(u"pipPbp.state"_s, true));
    QVERIFY(desk.set(u"pipPbp.mode"_s, 2));
    QVERIFY(desk.set(u"pipPbp.pipSource"_s, u"HDMI"_s));
    QVERIFY(desk.set(u"pipPbp.pipSize"_s, 2));
    QVERIFY(desk.set(u"pipPbp.pbpAudioSource"_s, 5));
    QVERIFY(desk.call(u"pipPbp.setPbp4Source"_s, {512, u"HDMI"_s}));
    QVERIFY(desk.call(u"pipPbp.swapPipPbp"_s));
    QVERIFY(desk.call(u"pipPbp.forceOpenPbp"_s));
    QVERIFY(desk.set(u"dualView.currentDualMode"_s, u"Cinema"_s));
    QVERIFY(desk.set(u"dualView.state"_s, true));
    QVERIFY(desk.set(u"kvmSwitch.kvmSwitch"_s, 3));
    QVERIFY(desk.set(u"smartKvmBasic.basicState"_s, true));
    if (codes.contains(u"E6"))
        QVERIFY(desk.set(u"daisyChain.state"_s, true));
    QVERIFY(desk.client().call(u"services.emit"_s, {{u"signal"_s, u"kvmChanged"_s}}).ok());
    QVERIFY(desk.client().call(u"sync"_s).ok());
    QVERIFY(desk.apply());
    QCOMPARE(desk.wire().filter(QRegularExpression(codes)), QStringList());
    QCOMPARE(desk.get(u"pipPbp.state"_s), QJsonValue(false));
}

void TestDeskInputs::theExitIsReported()
{
    InputsDesk desk;
    QVERIFY2(desk.start(u"TK30Z"_s), qPrintable(desk.errors()));
    QVERIFY(desk.set(u"daisyChain.state"_s, true));
    QVERIFY(desk.set(u"pipPbp.state"_s, true));
    QVERIFY(desk.set(u"dualView.state"_s, true));
    QCOMPARE(desk.stop(), 0);
    QVERIFY2(desk.start(u"TK30Z"_s), qPrintable(desk.errors()));
    QStringList exits;
    const QJsonArray events = desk.client().call(u"events"_s, {{u"run"_s, -1}}).result.toArray();
    for (const QJsonValue& event : events) {
        if (event[u"source"_s].toInt() == 2)
            exits.append(event[u"module"_s].toString());
    }
    QVERIFY(exits.contains(u"LuDaisyChain"_s));
    QVERIFY(exits.contains(u"LuPipPbp"_s));
    // The plus variant of the dual view reports no exit.
    QVERIFY(!exits.contains(u"LuDualView"_s));
}

QTEST_GUILESS_MAIN(TestDeskInputs)
#include "tst_desk_inputs.moc"
