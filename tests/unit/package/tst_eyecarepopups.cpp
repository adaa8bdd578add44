// SPDX-License-Identifier: Apache-2.0
#include "flow_editor.h"

#include <QTest>

using namespace Qt::StringLiterals;

/// The editors of the eye-care functions, as a flow's actions, on the package's own modules.
class TestEyeCarePopups : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QmlWarnings::watch(); }
    void cleanup();
    void aChoiceIsLiveAndSaved_data();
    void aChoiceIsLiveAndSaved();
    void aStoredChoiceIsAppliedAtOpening_data() { aChoiceIsLiveAndSaved_data(); }
    void aStoredChoiceIsAppliedAtOpening();
    void leavingRestores_data() { aChoiceIsLiveAndSaved_data(); }
    void leavingRestores();
    void presentValuesAreShown_data();
    void presentValuesAreShown();
    void autoDimmingNeedsTheSensorFunction();
};

void TestEyeCarePopups::cleanup()
{
    QCOMPARE(QmlWarnings::take(), QStringList());
}

void TestEyeCarePopups::aChoiceIsLiveAndSaved_data()
{
    QTest::addColumn<QString>("popup");
    QTest::addColumn<QString>("monitor");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QByteArray>("module");
    QTest::addColumn<QByteArray>("property");
    QTest::addColumn<QByteArray>("control");
    QTest::addColumn<QString>("choice");
    QTest::addColumn<int>("before");
    QTest::addColumn<int>("after");
    QTest::newRow("AB Plus") << u"LuPopupABPlusAction"_s << u"TK30Z"_s << u"Visual Optimizer"_s
                             << QByteArray("LuABPlus") << QByteArray("state") << QByteArray("LuSwitch")
                             << u"Visual Optimizer"_s << 0 << 1;
    QTest::newRow("AB setting") << u"LuPopupABAction"_s << u"TK40X"_s << u"A.B. Gen2"_s
                                << QByteArray("LuABSetting") << QByteArray("currentAB")
                                << QByteArray("LuSwitch") << u"A.B. Gen2"_s << 0 << 1;
    QTest::newRow("back light on") << u"LuPopupBackLightAction"_s << u"TK30Z"_s << u"BackGlow"_s
                                   << QByteArray("LuBackLight") << QByteArray("state")
                                   << QByteArray("LuRadio") << u"On"_s << 16 << 32;
    QTest::newRow("back light by the sensor")
        << u"LuPopupBackLightAction"_s << u"TK30Z"_s << u"BackGlow"_s << QByteArray("LuBackLight")
        << QByteArray("state") << QByteArray("LuRadio") << u"Auto Dimming"_s << 16 << 48;
    QTest::newRow("night hours protection")
        << u"LuPopupNightHoursProtectionAction"_s << u"TK30Z"_s << u"Night Hours Protection"_s
        << QByteArray("LuNightProtection") << QByteArray("state") << QByteArray("LuRadio") << u"On"_s << 2
        << 1;
    QTest::newRow("eco privacy") << u"LuPopupEcoPrivacyAction"_s << u"TK30Z"_s << u"EcoPrivacy"_s
                                 << QByteArray("LuEcoPrivacy") << QByteArray("state")
                                 << QByteArray("LuSwitch") << u"EcoPrivacy"_s << 0 << 1;
}

void TestEyeCarePopups::aChoiceIsLiveAndSaved()
{
    QFETCH(QString, popup);
    QFETCH(QString, monitor);
    QFETCH(QByteArray, module);
    QFETCH(QByteArray, property);
    QFETCH(QByteArray, control);
    QFETCH(QString, choice);
    QFETCH(int, before);
    QFETCH(int, after);
    SimulatedBed bed(monitor);
    bed.launch();
    QVERIFY(bed.idle());
    FlowEditor editor(bed, popup, {});
    QTEST(editor.title(), "title");
    QCOMPARE(bed.get(module, property).toInt(), before);
    QVERIFY(editor.press(control, choice));
    QVERIFY(bed.idle());
    QCOMPARE(bed.get(module, property).toInt(), after);
    QVERIFY(editor.press("LuButton", u"Save"_s));
    QCOMPARE(editor.acceptedCount(), 1);
    QCOMPARE(editor.acceptedModule(), bed.module(module));
    QCOMPARE(editor.accepted().keys(), QStringList{QString::fromLatin1(property)});
    QCOMPARE(editor.accepted().value(QString::fromLatin1(property)).toInt(), after);
    QCOMPARE(bed.get(module, property).toInt(), after);
}

void TestEyeCarePopups::aStoredChoiceIsAppliedAtOpening()
{
    QFETCH(QString, popup);
    QFETCH(QString, monitor);
    QFETCH(QByteArray, module);
    QFETCH(QByteArray, property);
    QFETCH(int, after);
    SimulatedBed bed(monitor);
    bed.launch();
    QVERIFY(bed.idle());
    FlowEditor editor(bed, popup, {{QString::fromLatin1(property), after}});
    QVERIFY(bed.idle());
    QCOMPARE(bed.get(module, property).toInt(), after);
    QTRY_VERIFY(editor.press("LuButton", u"Save"_s) &&
                editor.accepted().value(QString::fromLatin1(property)).toInt() == after);
}

void TestEyeCarePopups::leavingRestores()
{
    QFETCH(QString, popup);
    QFETCH(QString, monitor);
    QFETCH(QByteArray, module);
    QFETCH(QByteArray, property);
    QFETCH(QByteArray, control);
    QFETCH(QString, choice);
    QFETCH(int, before);
    SimulatedBed bed(monitor);
    bed.launch();
    QVERIFY(bed.idle());
    FlowEditor editor(bed, popup, {});
    QVERIFY(editor.press(control, choice));
    QVERIFY(bed.idle());
    QVERIFY(editor.press("LuButton", u"Cancel"_s));
    QVERIFY(bed.idle());
    QCOMPARE(bed.get(module, property).toInt(), before);
    QCOMPARE(editor.acceptedCount(), 0);
}

void TestEyeCarePopups::presentValuesAreShown_data()
{
    using Values = QList<std::pair<QByteArray, int>>;
    QTest::addColumn<QString>("popup");
    QTest::addColumn<QString>("monitor");
    QTest::addColumn<QByteArray>("module");
    QTest::addColumn<Values>("values");
    QTest::addColumn<QStringList>("shown");
    QTest::newRow("AB Plus") << u"LuPopupABPlusAction"_s << u"TK20"_s << QByteArray("LuABPlus")
                             << Values{{"sensitivity", 7}} << QStringList{u"Sensor Sensitivity=7"_s};
    QTest::newRow("AB setting, meter off")
        << u"LuPopupABAction"_s << u"TK10"_s << QByteArray("LuABSetting") << Values{{"sensitivity", 3}}
        << QStringList{u"Light Meter=Off"_s, u"Sensor Sensitivity=3"_s};
    QTest::newRow("AB setting, meter on")
        << u"LuPopupABAction"_s << u"TK40"_s << QByteArray("LuABSetting")
        << Values{{"currentAB", 1}, {"lightMeterState", 1}, {"sensitivity", 8}}
        << QStringList{u"Light Meter=On"_s, u"Sensor Sensitivity=8"_s};
    QTest::newRow("back light") << u"LuPopupBackLightAction"_s << u"TK30Z"_s << QByteArray("LuBackLight")
                                << Values{{"brightness", 9}, {"colorTemperature", 2}, {"angle", 2}}
                                << QStringList{u"Brightness=9"_s, u"Color Temperature=2"_s,
                                               u"Light Mode=360°"_s};
    QTest::newRow("eco privacy") << u"LuPopupEcoPrivacyAction"_s << u"TK30Z"_s << QByteArray("LuEcoPrivacy")
                                 << Values{{"activeTime", 160}, {"sensorSensitivity", 3}}
                                 << QStringList{u"Dim your monitor after 10 min.="_s,
                                                u"Sensor Sensitivity=Far"_s};
}

void TestEyeCarePopups::presentValuesAreShown()
{
    using Values = QList<std::pair<QByteArray, int>>;
    QFETCH(QString, popup);
    QFETCH(QString, monitor);
    QFETCH(QByteArray, module);
    QFETCH(Values, values);
    QFETCH(QStringList, shown);
    SimulatedBed bed(monitor);
    bed.launch();
    QVERIFY(bed.idle());
    for (const auto& [name, value] : values) {
        bed.set(module, name, value);
        QVERIFY(bed.idle());
    }
    const FlowEditor editor(bed, popup, {});
    QTRY_COMPARE(editor.info(), shown);
}

void TestEyeCarePopups::autoDimmingNeedsTheSensorFunction()
{
    SimulatedBed bed(u"TK40X"_s);
    bed.launch();
    QVERIFY(bed.idle());
    FlowEditor editor(bed, u"LuPopupBackLightAction"_s, {});
    QVERIFY(!editor.press("LuRadio", u"Auto Dimming"_s));
    QVERIFY(editor.press("LuRadio", u"On"_s));
    bed.set("LuABSetting", "currentAB", true);
    QVERIFY(bed.idle());
    QTRY_VERIFY(editor.press("LuRadio", u"Auto Dimming"_s));
    QVERIFY(bed.idle());
    QCOMPARE(bed.get("LuBackLight", "state").toInt(), 48);
}

QTEST_MAIN(TestEyeCarePopups)
#include "tst_eyecarepopups.moc"
