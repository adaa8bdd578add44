// SPDX-License-Identifier: Apache-2.0
#include "AccessibleTree.h"
#include "PictureDesk.h"

#include <QtTest>

using namespace Qt::StringLiterals;

/// The panels of eye care and ambient light, pressed and read through the accessible tree.
class TestEyeCarePanels : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void tilesShowWhatTheModelHas_data();
    void tilesShowWhatTheModelHas();
    void theOptimizersPageSetsWhatItShows();
    void theOptimizersPageIsOffWithIt();
    void theHintExplainsTheOptimizer();
    void aForbiddingModeOpensTheWarning_data();
    void aForbiddingModeOpensTheWarning();
    void anotherMonitorsSensorLeads();
    void theOlderFormsPage();
    void aVisitToTheOptimizerIsOneEvent();
    void theRearLightsPage();
    void theRearLightsSensorNeedsTheOlderForm();
    void presenceOnItsPage();
    void aTimeThatIsNotOfferedShowsNoSelection();
    void presenceWithoutARearLight();
    void anEditorIsLiveAndLeavingItRestores_data();
    void anEditorIsLiveAndLeavingItRestores();

private:
    PictureDesk& desk() { return *m_desk; }
    ControlClient& client() { return m_desk->client(); }
    void startOn(const QString& monitors)
    {
        QVERIFY2(desk().startWindow(monitors), qPrintable(desk().errors()));
    }
    bool open(const QString& widget)
    {
        m_page = widget;
        return client().call(u"ui.open"_s, {{u"widget"_s, widget}}).ok();
    }
    bool close() { return client().call(u"ui.close"_s, {{u"widget"_s, m_page}}).ok() && desk().idle(); }
    bool press(const QString& name, const QString& role)
    {
        const auto answer =
            client().call(u"ui.press"_s, {{u"name"_s, name}, {u"role"_s, role}, {u"within"_s, m_page}});
        return desk().idle() && answer.ok();
    }
    bool setTo(const QString& name, const QJsonValue& value)
    {
        const auto answer =
            client().call(u"ui.setValue"_s, {{u"name"_s, name}, {u"value"_s, value}, {u"within"_s, m_page}});
        return desk().idle() && answer.ok();
    }
    QJsonObject find(const QString& role, const QString& name)
    {
        return findInTree(client().call(u"ui.tree"_s, {{u"widget"_s, m_page}}).result, role, name);
    }
    QJsonObject row(const QString& widget)
    {
        const QJsonArray rows = client().call(u"ui.widgets"_s).result.toArray();
        for (const QJsonValue& each : rows) {
            if (each.toObject().value(u"widget"_s).toString() == widget)
                return each.toObject();
        }
        return {};
    }

    std::unique_ptr<PictureDesk> m_desk;
    QString m_page;
};

void TestEyeCarePanels::init()
{
    m_desk = std::make_unique<PictureDesk>();
}

void TestEyeCarePanels::cleanup()
{
    if (m_desk && m_desk->isRunning()) {
        QCOMPARE(client().call(u"ui.warnings"_s).result.toArray(), QJsonArray());
        QCOMPARE(m_desk->stop(), 0);
    }
    m_desk.reset();
}

void TestEyeCarePanels::tilesShowWhatTheModelHas_data()
{
    QTest::addColumn<QString>("monitor");
    QTest::addColumn<QStringList>("shown");
    const QString plus = u"LuABPlusWidget: Visual Optimizer"_s;
    const QString older = u"LuABSettingWidget: A.B. Gen2"_s;
    const QString rear = u"LuBackLightWidget: BackGlow"_s;
    const QString eco = u"LuEcoPrivacyWidget: EcoPrivacy"_s;
    QTest::newRow("TK30Z") << u"TK30Z"_s << QStringList{rear, plus, eco};
    QTest::newRow("TK20") << u"TK20"_s << QStringList{plus};
    QTest::newRow("TK40X") << u"TK40X"_s << QStringList{rear, older, eco};
    QTest::newRow("TK10") << u"TK10"_s << QStringList{older, eco};
    QTest::newRow("another make") << u"ACME24"_s << QStringList();
}

void TestEyeCarePanels::tilesShowWhatTheModelHas()
{
    QFETCH(QString, monitor);
    QFETCH(QStringList, shown);
    startOn(monitor);
    QStringList present;
    for (const char* name :
         {"LuBackLightWidget", "LuABPlusWidget", "LuABSettingWidget", "LuEcoPrivacyWidget"}) {
        const QJsonObject tile = row(QString::fromLatin1(name));
        QVERIFY2(!tile.isEmpty(), name);
        QCOMPARE(tile.value(u"active"_s).toBool(), false);
        if (tile.value(u"shown"_s).toBool())
            present.append(QLatin1String(name) + u": "_s + tile.value(u"text"_s).toString());
    }
    QCOMPARE(present, shown);
}

void TestEyeCarePanels::theOptimizersPageSetsWhatItShows()
{
    startOn(u"TK30Z"_s);
    QVERIFY(open(u"LuABPlusWidget"_s));
    QVERIFY(press(u"Visual Optimizer"_s, u"switch"_s));
    QCOMPARE(desk().held(0x81), 1);
    QTRY_VERIFY(row(u"LuABPlusWidget"_s).value(u"active"_s).toBool());
    QTRY_VERIFY(press(u"Brightness"_s, u"radio"_s));
    QCOMPARE(desk().held(0x81), 2);
    QVERIFY(press(u"Brightness + Color Temperature"_s, u"radio"_s));
    QCOMPARE(desk().held(0x81), 1);
    QVERIFY(press(u"Light Meter"_s, u"switch"_s));
    QCOMPARE(desk().held(0xE3), 1);
    QVERIFY(setTo(u"Sensor Sensitivity"_s, 10));
    QCOMPARE(desk().held(0xE5), 10);
    QVERIFY(setTo(u"Sensor Sensitivity"_s, 0));
    QCOMPARE(desk().held(0xE5), 0);
    QVERIFY(!setTo(u"Sensor Sensitivity"_s, 11));
}

void TestEyeCarePanels::theOptimizersPageIsOffWithIt()
{
    startOn(u"TK20"_s);
    QVERIFY(desk().set(u"abPlus.sensitivity"_s, 7));
    QVERIFY(open(u"LuABPlusWidget"_s));
    const QJsonObject slider = find(u"slider"_s, u"Sensor Sensitivity"_s);
    QCOMPARE(slider.value(u"enabled"_s).toBool(), false);
    QCOMPARE(slider.value(u"value"_s).toInt(), 0);
    QVERIFY(qAbs(slider.value(u"opacity"_s).toDouble() - 0.3) < 0.01);
    QVERIFY(!find(u"label"_s, u"-"_s).isEmpty());
    QVERIFY(qAbs(find(u"switch"_s, u"Light Meter"_s).value(u"opacity"_s).toDouble() - 0.5) < 0.01);
    QVERIFY(qAbs(find(u"radio"_s, u"Brightness"_s).value(u"opacity"_s).toDouble() - 0.3) < 0.01);
    QVERIFY(!press(u"Brightness"_s, u"radio"_s));
    QVERIFY(!press(u"Light Meter"_s, u"switch"_s));
    QVERIFY(desk().set(u"abPlus.state"_s, true));
    QTRY_COMPARE(find(u"slider"_s, u"Sensor Sensitivity"_s).value(u"value"_s).toInt(), 7);
    QTRY_VERIFY(find(u"slider"_s, u"Sensor Sensitivity"_s).value(u"enabled"_s).toBool());
}

void TestEyeCarePanels::theHintExplainsTheOptimizer()
{
    startOn(u"TK30Z"_s);
    QVERIFY(open(u"LuABPlusWidget"_s));
    QVERIFY(press(u"Help"_s, u"button"_s));
    const auto hint = [this] {
        const QJsonArray windows = client().call(u"ui.windows"_s).result.toArray();
        for (const QJsonValue& window : windows) {
            if (window.toObject().value(u"name"_s).toString().contains(u"hint"_s, Qt::CaseInsensitive) ||
                window.toObject().value(u"name"_s).toString() == u"About Visual Optimizer"_s)
                return window.toObject().value(u"visible"_s).toBool();
        }
        return false;
    };
    QTRY_VERIFY(hint());
    const QJsonValue tree = client().call(u"ui.tree"_s).result;
    QVERIFY(!findInTree(tree, u"label"_s, u"About Visual Optimizer"_s).isEmpty());
    QVERIFY(press(u"Help"_s, u"button"_s));
    QTRY_VERIFY(!hint());
}

void TestEyeCarePanels::aForbiddingModeOpensTheWarning_data()
{
    QTest::addColumn<QString>("monitor");
    QTest::addColumn<QString>("widget");
    QTest::addColumn<QString>("mode");
    QTest::newRow("AB Plus") << u"TK30Z"_s << u"LuABPlusWidget"_s << u"sRGB"_s;
    QTest::newRow("AB Plus in HDR") << u"TK30Z"_s << u"LuABPlusWidget"_s << u"HDR"_s;
    QTest::newRow("AB setting") << u"TK40X"_s << u"LuABSettingWidget"_s << u"HDR"_s;
}

void TestEyeCarePanels::aForbiddingModeOpensTheWarning()
{
    QFETCH(QString, monitor);
    QFETCH(QString, widget);
    QFETCH(QString, mode);
    startOn(monitor);
    QVERIFY(!row(widget).value(u"popup"_s).toBool());
    QVERIFY(desk().mode(mode));
    QTRY_VERIFY(row(widget).value(u"popup"_s).toBool());
    QVERIFY(open(widget));
    QTRY_VERIFY(find(u"slider"_s, u"Sensor Sensitivity"_s).isEmpty());
    QVERIFY(close());
    QVERIFY(desk().mode(u"User"_s));
    QTRY_VERIFY(!row(widget).value(u"popup"_s).toBool());
}

void TestEyeCarePanels::anotherMonitorsSensorLeads()
{
    startOn(u"TK30Z,TK20"_s);
    const QString widget = u"LuABPlusWidget"_s;
    QVERIFY(desk().set(u"abPlus.state"_s, true, u"TK20"_s));
    QVERIFY(client().call(u"select"_s, {{u"monitor"_s, u"TK30Z"_s}}).ok());
    QVERIFY(!row(widget).value(u"popup"_s).toBool());
    QVERIFY(desk().set(u"context.brightnessSync.state"_s, true));
    QTRY_VERIFY(row(widget).value(u"popup"_s).toBool());
    // The monitor that leads keeps its page.
    QVERIFY(client().call(u"select"_s, {{u"monitor"_s, u"TK20"_s}}).ok());
    QTRY_VERIFY(!row(widget).value(u"popup"_s).toBool());
}

void TestEyeCarePanels::theOlderFormsPage()
{
    startOn(u"TK40X"_s);
    QVERIFY(open(u"LuABSettingWidget"_s));
    QCOMPARE(find(u"slider"_s, u"Sensor Sensitivity"_s).value(u"enabled"_s).toBool(), false);
    // The monitor does not follow while the function is off, so the switch falls back.
    QVERIFY(press(u"Light Meter"_s, u"switch"_s));
    QCOMPARE(desk().held(0xE3), 0);
    QTRY_VERIFY(!find(u"switch"_s, u"Light Meter"_s).value(u"checked"_s).toBool());
    QVERIFY(press(u"A.B. Gen2"_s, u"switch"_s));
    QCOMPARE(desk().held(0xE2), 255);
    QTRY_VERIFY(row(u"LuABSettingWidget"_s).value(u"active"_s).toBool());
    QVERIFY(press(u"Light Meter"_s, u"switch"_s));
    QCOMPARE(desk().held(0xE3), 1);
    QTRY_VERIFY(setTo(u"Sensor Sensitivity"_s, 9));
    QCOMPARE(desk().held(0xE5), 9);
    desk().forget();
    QVERIFY(close());
    QCOMPARE(desk().events(), QStringList());
}

void TestEyeCarePanels::aVisitToTheOptimizerIsOneEvent()
{
    startOn(u"TK30Z"_s);
    QVERIFY(desk().set(u"abPlus.state"_s, true));
    QVERIFY(desk().sync(u"LuABPlus"_s));
    desk().forget();
    QVERIFY(open(u"LuABPlusWidget"_s));
    for (const int step : {2, 6, 9})
        QTRY_VERIFY(setTo(u"Sensor Sensitivity"_s, step));
    QVERIFY(close());
    QCOMPARE(desk().events(), QStringList{u"39 \"on_update_setting\" 0 [brightness_colorTemp,9]"_s});
    QVERIFY(open(u"LuABPlusWidget"_s));
    QVERIFY(close());
    QCOMPARE(desk().events(), QStringList());
}

void TestEyeCarePanels::theRearLightsPage()
{
    startOn(u"TK30Z"_s);
    QVERIFY(open(u"LuBackLightWidget"_s));
    const auto brightness = [this] { return find(u"slider"_s, u"Brightness"_s); };
    QCOMPARE(brightness().value(u"enabled"_s).toBool(), false);
    QVERIFY(press(u"On"_s, u"radio"_s));
    QCOMPARE(desk().held(0xD7), 0x0120);
    QTRY_VERIFY(brightness().value(u"enabled"_s).toBool());
    QTRY_COMPARE(brightness().value(u"value"_s).toInt(), 5);
    QVERIFY(setTo(u"Brightness"_s, 10));
    QVERIFY(setTo(u"Color Temperature"_s, 7));
    QCOMPARE(desk().held(0xD9), 0x070A);
    QVERIFY(press(u"360°"_s, u"radio"_s));
    QVERIFY(press(u"Non-stop Mode"_s, u"switch"_s));
    QCOMPARE(desk().held(0xD7), 0x0221);
    // The sensor takes the brightness, and nothing else.
    QVERIFY(press(u"Auto Dimming"_s, u"radio"_s));
    QCOMPARE(desk().held(0xD7), 0x0231);
    QTRY_VERIFY(!brightness().value(u"enabled"_s).toBool());
    QTRY_COMPARE(brightness().value(u"value"_s).toInt(), 0);
    QVERIFY(find(u"slider"_s, u"Color Temperature"_s).value(u"enabled"_s).toBool());
    QVERIFY(find(u"label"_s, u"Bundling of Color Mode"_s).isEmpty());
}

void TestEyeCarePanels::theRearLightsSensorNeedsTheOlderForm()
{
    startOn(u"TK40X"_s);
    QVERIFY(open(u"LuBackLightWidget"_s));
    QVERIFY(!find(u"label"_s, u"Bundling of Color Mode"_s).isEmpty());
    QVERIFY(!press(u"Auto Dimming"_s, u"radio"_s));
    QVERIFY(desk().set(u"abSetting.currentAB"_s, true));
    QTRY_VERIFY(press(u"Auto Dimming"_s, u"radio"_s));
    QCOMPARE(desk().held(0xD7), 0x0130);
}

void TestEyeCarePanels::presenceOnItsPage()
{
    startOn(u"TK30Z"_s);
    const QString time = u"Dim your monitor after a period of inactivity."_s;
    QVERIFY(open(u"LuEcoPrivacyWidget"_s));
    QVERIFY(!setTo(time, u"5 sec."_s));
    QVERIFY(press(u"EcoPrivacy"_s, u"switch"_s));
    QCOMPARE(desk().held(0xE7), 10);
    QTRY_VERIFY(row(u"LuEcoPrivacyWidget"_s).value(u"active"_s).toBool());
    for (const auto& [text, value] : {std::pair{"5 sec.", 5},
                                      {"20 sec.", 20},
                                      {"30 sec.", 30},
                                      {"60 sec.", 60},
                                      {"5 min.", 80},
                                      {"10 min.", 160},
                                      {"10 sec.", 10}}) {
        QTRY_VERIFY(setTo(time, QString::fromLatin1(text)));
        QCOMPARE(desk().held(0xE7), value);
    }
    QVERIFY(press(u"Display + BackGlow"_s, u"radio"_s));
    QCOMPARE(desk().held(0xE8), 1);
    QVERIFY(press(u"Display"_s, u"radio"_s));
    QCOMPARE(desk().held(0xE8), 2);
    QVERIFY(press(u"Far"_s, u"radio"_s));
    QCOMPARE(desk().held(0xE9), 3);
    QVERIFY(press(u"Near"_s, u"radio"_s));
    QCOMPARE(desk().held(0xE9), 1);
}

void TestEyeCarePanels::aTimeThatIsNotOfferedShowsNoSelection()
{
    startOn(u"TK30Z"_s);
    QVERIFY(desk().menu(0xE7, 15));
    QVERIFY(desk().sync(u"LuEcoPrivacy"_s));
    QVERIFY(open(u"LuEcoPrivacyWidget"_s));
    QCOMPARE(
        find(u"comboBox"_s, u"Dim your monitor after a period of inactivity."_s).value(u"value"_s).toString(),
        QString());
    QCOMPARE(desk().get(u"ecoPrivacy.activeTime"_s), QJsonValue(15));
}

void TestEyeCarePanels::presenceWithoutARearLight()
{
    startOn(u"TK10"_s);
    QVERIFY(desk().set(u"ecoPrivacy.state"_s, true));
    QVERIFY(open(u"LuEcoPrivacyWidget"_s));
    QVERIFY(find(u"radio"_s, u"Display + BackGlow"_s).isEmpty());
    QVERIFY(!find(u"radio"_s, u"Middle"_s).isEmpty());
    QVERIFY(!setTo(u"Dim your monitor after a period of inactivity."_s, u"10 min."_s));
    QVERIFY(setTo(u"Dim your monitor after a period of inactivity."_s, u"60 sec."_s));
    QCOMPARE(desk().held(0xE7), 60);
}

void TestEyeCarePanels::anEditorIsLiveAndLeavingItRestores_data()
{
    QTest::addColumn<QString>("monitor");
    QTest::addColumn<QString>("popup");
    QTest::addColumn<QString>("role");
    QTest::addColumn<QString>("choice");
    QTest::addColumn<int>("code");
    QTest::addColumn<int>("value");
    QTest::newRow("AB Plus") << u"TK30Z"_s << u"LuPopupABPlusAction"_s << u"switch"_s << u"Visual Optimizer"_s
                             << 0x81 << 1;
    QTest::newRow("AB setting") << u"TK40X"_s << u"LuPopupABAction"_s << u"switch"_s << u"A.B. Gen2"_s << 0xE2
                                << 255;
    QTest::newRow("back light") << u"TK30Z"_s << u"LuPopupBackLightAction"_s << u"radio"_s
                                << u"Auto Dimming"_s << 0xD7 << 0x0130;
    QTest::newRow("eco privacy") << u"TK30Z"_s << u"LuPopupEcoPrivacyAction"_s << u"switch"_s
                                 << u"EcoPrivacy"_s << 0xE7 << 10;
    QTest::newRow("night protection")
        << u"TK30Z"_s << u"LuPopupNightHoursProtectionAction"_s << u"radio"_s << u"On"_s << 0xD1 << 1;
}

void TestEyeCarePanels::anEditorIsLiveAndLeavingItRestores()
{
    QFETCH(QString, monitor);
    QFETCH(QString, role);
    QFETCH(QString, choice);
    QFETCH(int, code);
    QFETCH(int, value);
    startOn(monitor);
    QFETCH(QString, popup);
    m_page = popup;
    const int before = desk().held(code);
    QVERIFY(client().call(u"ui.show"_s).ok());
    QVERIFY(client().call(u"ui.open"_s, {{u"popup"_s, popup}}).ok());
    QVERIFY(press(choice, role));
    QCOMPARE(desk().held(code), value);
    QVERIFY(press(u"Cancel"_s, u"button"_s));
    QCOMPARE(desk().held(code), before);
    QTRY_VERIFY(!press(u"Cancel"_s, u"button"_s));
}

QTEST_GUILESS_MAIN(TestEyeCarePanels)
#include "tst_eyecare_panels.moc"
