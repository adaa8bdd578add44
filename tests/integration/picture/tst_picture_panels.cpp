// SPDX-License-Identifier: Apache-2.0
#include "AccessibleTree.h"
#include "PictureDesk.h"

#include <QDir>
#include <QtTest>

using namespace Qt::StringLiterals;

/// The panels of the picture, pressed and read through the accessible tree.
class TestPicturePanels : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void theRowMovesTheBrightness();
    void theDimmingSliderStandsBesideItWhileDimmingWorks();
    void theRowChoosesTheColourMode();
    void thePageShowsWhatTheModeHas_data();
    void thePageShowsWhatTheModeHas();
    void thePageSetsWhatItShows();
    void gainsShowWithTheUsersTemperature();
    void sixAxesShowAsSliders();
    void hdrLocksBrightnessUnlessBacklightControlAllows();
    void theLightSensorTakesDimmingAway();
    void resetColorAsksTheMonitor();
    void anUnsupportedMonitorHasItsBrightnessAlone();
    void theBuiltInPanelHasARow();
    void theSyncIsSwitchedOnThePage();
    void colourWeaknessGoesFromRedToGreen();
    void aVisitToColourWeaknessIsOneEvent();
    void colourWeaknessWarnsWhereTheModeForbidsIt();
    void hdrSwitchesAndReports();
    void readBackRunsOnlyWhileTheWindowShows();

private:
    PictureDesk& desk() { return *m_desk; }
    ControlClient& client() { return m_desk->client(); }
    void startOn(const QString& monitors, const QStringList& more = {});
    ControlClient::Answer setTo(const QString& name, const QJsonValue& value, const QString& within = {});
    ControlClient::Answer press(const QString& name, const QString& role = {}, const QString& within = {});
    QJsonObject find(const QString& role, const QString& name, const QString& widget = {});
    QJsonObject row(const QString& widget);
    bool open(const QString& widget) { return client().call(u"ui.open"_s, {{u"widget"_s, widget}}).ok(); }

    std::unique_ptr<PictureDesk> m_desk;
};

void TestPicturePanels::init()
{
    m_desk = std::make_unique<PictureDesk>();
}

void TestPicturePanels::cleanup()
{
    if (m_desk && m_desk->isRunning()) {
        QCOMPARE(client().call(u"ui.warnings"_s).result.toArray(), QJsonArray());
        QCOMPARE(m_desk->stop(), 0);
    }
    m_desk.reset();
}

void TestPicturePanels::startOn(const QString& monitors, const QStringList& more)
{
    QVERIFY2(desk().startWindow(monitors, more), qPrintable(desk().errors()));
}

ControlClient::Answer TestPicturePanels::setTo(const QString& name, const QJsonValue& value,
                                               const QString& within)
{
    QJsonObject parameters{{u"name"_s, name}, {u"value"_s, value}};
    if (!within.isEmpty())
        parameters.insert(u"within"_s, within);
    const ControlClient::Answer answer = client().call(u"ui.setValue"_s, parameters);
    desk().idle();
    return answer;
}

ControlClient::Answer TestPicturePanels::press(const QString& name, const QString& role,
                                               const QString& within)
{
    QJsonObject parameters{{u"name"_s, name}};
    if (!role.isEmpty())
        parameters.insert(u"role"_s, role);
    if (!within.isEmpty())
        parameters.insert(u"within"_s, within);
    const ControlClient::Answer answer = client().call(u"ui.press"_s, parameters);
    desk().idle();
    return answer;
}

QJsonObject TestPicturePanels::find(const QString& role, const QString& name, const QString& widget)
{
    QJsonObject parameters;
    if (!widget.isEmpty())
        parameters.insert(u"widget"_s, widget);
    return findInTree(client().call(u"ui.tree"_s, parameters).result, role, name);
}

QJsonObject TestPicturePanels::row(const QString& widget)
{
    const QJsonArray rows = client().call(u"ui.widgets"_s).result.toArray();
    for (const QJsonValue& each : rows) {
        if (each.toObject().value(u"widget"_s).toString() == widget)
            return each.toObject();
    }
    return {};
}

void TestPicturePanels::theRowMovesTheBrightness()
{
    startOn(u"TK30Z"_s);
    QCOMPARE(row(u"LuBrightnessWidget"_s).value(u"text"_s).toString(), u"Brightness"_s);
    QVERIFY(row(u"LuBrightnessWidget"_s).value(u"shown"_s).toBool());
    const QJsonObject slider = find(u"slider"_s, u"Brightness"_s);
    QCOMPARE(slider.value(u"minimum"_s).toDouble(), 0);
    QCOMPARE(slider.value(u"maximum"_s).toDouble(), 100);
    QCOMPARE(slider.value(u"step"_s).toDouble(), 1);
    QVERIFY(setTo(u"Brightness"_s, 42).ok());
    QCOMPARE(desk().held(0x10), 17);
    QCOMPARE(desk().get(u"brightness.displayBrightness"_s), QJsonValue(42));
    // And the other way.
    QVERIFY(desk().menu(0x10, 100));
    QTRY_COMPARE_WITH_TIMEOUT(find(u"slider"_s, u"Brightness"_s).value(u"value"_s).toDouble(), 100.0, 20000);
}

void TestPicturePanels::theDimmingSliderStandsBesideItWhileDimmingWorks()
{
    startOn(u"TK30Z"_s);
    const QJsonObject slider = find(u"slider"_s, u"Software Dimming"_s);
    QCOMPARE(slider.value(u"minimum"_s).toDouble(), 0);
    QCOMPARE(slider.value(u"maximum"_s).toDouble(), 30);
    QVERIFY(setTo(u"Software Dimming"_s, 10).ok());
    QCOMPARE(desk().get(u"brightness.displayBrightness"_s), QJsonValue(10));
    QTRY_COMPARE(desk().overlay().value(u"alpha"_s).toDouble(), 0.7);
    QTRY_COMPARE(find(u"slider"_s, u"Brightness"_s).value(u"value"_s).toDouble(), 10.0);
    QVERIFY(desk().set(u"brightness.softwareDimming.state"_s, false));
    QTRY_VERIFY(find(u"slider"_s, u"Software Dimming"_s).isEmpty());
    QVERIFY(!find(u"slider"_s, u"Brightness"_s).isEmpty());
}

void TestPicturePanels::theRowChoosesTheColourMode()
{
    startOn(u"TK30Z"_s);
    QCOMPARE(find(u"comboBox"_s, u"Color Mode"_s).value(u"value"_s).toString(), u"User"_s);
    QVERIFY(setTo(u"Color Mode"_s, u"Cinema"_s).ok());
    QCOMPARE(desk().held(0xDC), 0x32);
    QTRY_COMPARE(find(u"comboBox"_s, u"Color Mode"_s).value(u"value"_s).toString(), u"Cinema"_s);
    // A change at the monitor's menu is seen, since the window reads the mode back.
    QVERIFY(desk().menu(0xDC, 0x28));
    QTRY_COMPARE_WITH_TIMEOUT(find(u"comboBox"_s, u"Color Mode"_s).value(u"value"_s).toString(), u"Game"_s,
                              20000);
    QVERIFY(!setTo(u"Color Mode"_s, u"No such mode"_s).ok());
}

void TestPicturePanels::thePageShowsWhatTheModeHas_data()
{
    QTest::addColumn<QString>("mode");
    QTest::addColumn<QStringList>("shown");
    QTest::newRow("User") << u"User"_s
                          << QStringList{u"Contrast"_s, u"Sharpness"_s, u"Saturation"_s,
                                         u"Color Temperature"_s, u"Gamma"_s};
    QTest::newRow("M-book") << u"M-book"_s
                            << QStringList{u"Contrast"_s, u"Sharpness"_s, u"Color Temperature"_s};
    QTest::newRow("Cinema") << u"Cinema"_s << QStringList{u"Contrast"_s, u"Sharpness"_s};
    QTest::newRow("HDR") << u"HDR"_s << QStringList{u"Sharpness"_s};
}

void TestPicturePanels::thePageShowsWhatTheModeHas()
{
    QFETCH(QString, mode);
    QFETCH(QStringList, shown);
    startOn(u"TK30Z"_s);
    QVERIFY(desk().mode(mode));
    QVERIFY(open(u"LuBrightnessWidget"_s));
    const auto present = [this](const QString& name) {
        return !find(u"slider"_s, name).isEmpty() || !find(u"comboBox"_s, name).isEmpty() ||
               !find(u"switch"_s, name).isEmpty();
    };
    for (const char* name : {"Contrast", "Sharpness", "Hue", "Saturation", "Color Temperature", "Gamma",
                             "Color Gamut", "Uniformity"}) {
        const QString text = QString::fromLatin1(name);
        QTRY_VERIFY2(present(text) == shown.contains(text), name);
    }
    QVERIFY(present(u"Color Mode"_s) && present(u"Brightness"_s));
}

void TestPicturePanels::thePageSetsWhatItShows()
{
    startOn(u"TK30Z"_s);
    QVERIFY(open(u"LuBrightnessWidget"_s));
    const QString page = u"LuBrightnessWidget"_s;
    QVERIFY(setTo(u"Contrast"_s, 71, page).ok());
    QVERIFY(setTo(u"Sharpness"_s, 10, page).ok());
    QVERIFY(setTo(u"Saturation"_s, 1, page).ok());
    // The words of the monitor's own menu.
    QVERIFY(setTo(u"Color Temperature"_s, u"Bluish"_s, page).ok());
    QVERIFY(setTo(u"Gamma"_s, u"5"_s, page).ok());
    QCOMPARE(desk().held(0x12), 71);
    QCOMPARE(desk().held(0x87), 10);
    QCOMPARE(desk().held(0x8A), 1);
    QCOMPARE(desk().held(0x14), 8);
    QCOMPARE(desk().held(0x72), 160);
    for (const auto& [name, from, to] :
         {std::tuple{"Contrast", 0, 100}, {"Sharpness", 1, 10}, {"Saturation", 1, 10}}) {
        const QJsonObject slider = find(u"slider"_s, QString::fromLatin1(name));
        QCOMPARE(slider.value(u"minimum"_s).toInt(), from);
        QCOMPARE(slider.value(u"maximum"_s).toInt(), to);
    }
    QVERIFY(press(u"Software Dimming"_s, u"switch"_s).ok());
    QCOMPARE(desk().get(u"brightness.softwareDimming.state"_s), QJsonValue(false));
}

void TestPicturePanels::gainsShowWithTheUsersTemperature()
{
    startOn(u"TK30Z"_s);
    QVERIFY(open(u"LuBrightnessWidget"_s));
    QVERIFY(find(u"slider"_s, u"Red"_s).isEmpty());
    QVERIFY(desk().set(u"brightness.displayColorTemperature"_s, u"ColorTemperature_UserDefine"_s));
    QTRY_VERIFY(!find(u"slider"_s, u"Red"_s).isEmpty());
    QVERIFY(setTo(u"Green"_s, 55).ok());
    QCOMPARE(desk().held(0x18), 55);
}

void TestPicturePanels::sixAxesShowAsSliders()
{
    QFile features(QDir(QStringLiteral(LUMEN_SCHEMAS)).filePath(u"TK30Z_ext.xml"_s));
    QVERIFY(features.open(QIODevice::ReadOnly));
    const QString file =
        desk().write(u"TK30Z_ext.xml"_s, features.readAll().replace("Category=\"SixAxis\" Value=\"off\"",
                                                                    "Category=\"SixAxis\" Value=\"on\""));
    startOn(u"TK30Z"_s, {u"--schema-dir"_s, QFileInfo(file).path()});
    QVERIFY(open(u"LuBrightnessWidget"_s));
    QTRY_VERIFY(!find(u"slider"_s, u"Saturation: Magenta"_s).isEmpty());
    QVERIFY(find(u"slider"_s, u"Saturation"_s).isEmpty());
    QVERIFY(setTo(u"Saturation: Cyan"_s, 4).ok());
    QCOMPARE(desk().held(0x5C), 4);
}

void TestPicturePanels::hdrLocksBrightnessUnlessBacklightControlAllows()
{
    startOn(u"TK30Z"_s);
    QVERIFY(desk().mode(u"HDR"_s));
    QTRY_VERIFY(!find(u"slider"_s, u"Brightness"_s).value(u"enabled"_s).toBool());
    QTRY_COMPARE(desk().get(u"brightness.hardwareBrightnessEnable"_s), QJsonValue(false));
    QTRY_COMPARE(desk().get(u"brightness.backlightControlEnabled"_s), QJsonValue(true));
    QCOMPARE(setTo(u"Brightness"_s, 50).code, 3);
    // The dimming part still moves, and nothing goes to the monitor.
    desk().forget();
    QVERIFY(setTo(u"Software Dimming"_s, 12).ok());
    QTRY_VERIFY(desk().overlay().value(u"alpha"_s).toDouble() > 0.5);
    QVERIFY(!desk().writes().join(u' ').contains(u"10="_s));
    // The monitor's back-light control takes the dimming away, too.
    QVERIFY(desk().menu(0x13, 1));
    QTRY_COMPARE_WITH_TIMEOUT(desk().get(u"brightness.softwareDimming.enabled"_s), QJsonValue(false), 20000);
    QTRY_VERIFY(!desk().overlay().value(u"visible"_s).toBool());
    QVERIFY(desk().mode(u"User"_s));
    QTRY_COMPARE(desk().get(u"brightness.hardwareBrightnessEnable"_s), QJsonValue(true));
    QTRY_COMPARE(desk().get(u"brightness.softwareDimming.enabled"_s), QJsonValue(true));
    QTRY_COMPARE(desk().get(u"brightness.backlightControlEnabled"_s), QJsonValue(false));
}

void TestPicturePanels::theLightSensorTakesDimmingAway()
{
    startOn(u"TK30Z"_s);
    QVERIFY(desk().set(u"brightness.displayBrightness"_s, 10));
    QTRY_VERIFY(desk().overlay().value(u"visible"_s).toBool());
    QVERIFY(desk().set(u"abPlus.state"_s, true));
    QTRY_COMPARE(desk().get(u"brightness.softwareDimming.enabled"_s), QJsonValue(false));
    QTRY_VERIFY(!desk().overlay().value(u"visible"_s).toBool());
    QTRY_VERIFY(find(u"slider"_s, u"Software Dimming"_s).isEmpty());
    // The mode lets the brightness be moved beside the sensor.
    QCOMPARE(desk().get(u"brightness.hardwareBrightnessEnable"_s), QJsonValue(true));
    QVERIFY(open(u"LuBrightnessWidget"_s));
    // The plus form leaves no colour temperature in this series, the plain one does.
    QTRY_VERIFY(!find(u"comboBox"_s, u"Color Temperature"_s).value(u"enabled"_s).toBool());
    QVERIFY(desk().set(u"abPlus.mode"_s, u"ModeAB"_s));
    QTRY_VERIFY(find(u"comboBox"_s, u"Color Temperature"_s).value(u"enabled"_s).toBool());
    QVERIFY(desk().set(u"abPlus.state"_s, false));
    QTRY_COMPARE(desk().get(u"brightness.softwareDimming.enabled"_s), QJsonValue(true));
}

void TestPicturePanels::resetColorAsksTheMonitor()
{
    startOn(u"TK30Z"_s);
    QVERIFY(desk().set(u"brightness.displayContrast"_s, 3));
    QVERIFY(open(u"LuBrightnessWidget"_s));
    QVERIFY(press(u"Reset Color"_s, u"button"_s).ok());
    QCOMPARE(desk().held(0x12), 50);
    QTRY_COMPARE(find(u"slider"_s, u"Contrast"_s).value(u"value"_s).toInt(), 50);
}

void TestPicturePanels::anUnsupportedMonitorHasItsBrightnessAlone()
{
    startOn(u"ACME24"_s);
    QVERIFY(row(u"LuBrightnessWidget"_s).value(u"shown"_s).toBool());
    QVERIFY(find(u"comboBox"_s, u"Color Mode"_s).isEmpty());
    QVERIFY(find(u"slider"_s, u"Software Dimming"_s).isEmpty());
    QVERIFY(!row(u"LuColorWeaknessWidget"_s).value(u"shown"_s).toBool());
    QVERIFY(setTo(u"Brightness"_s, 42).ok());
    QCOMPARE(desk().setting(u"LuBrightness/Unsupported/displayBrightness"_s), QJsonValue(42));
    // The slider follows the monitor's own menu.
    QVERIFY(client().call(u"sim.set"_s, {{u"code"_s, 0x10}, {u"value"_s, 77}}).ok());
    QTRY_COMPARE_WITH_TIMEOUT(find(u"slider"_s, u"Brightness"_s).value(u"value"_s).toInt(), 77, 30'000);
}

void TestPicturePanels::theBuiltInPanelHasARow()
{
    startOn(u"TK30Z,builtin"_s);
    QVERIFY(client().call(u"select"_s, {{u"monitor"_s, u"TK30Z"_s}}).ok());
    QTRY_VERIFY(row(u"LuBuiltInBrightnessWidget"_s).value(u"shown"_s).toBool());
    QCOMPARE(row(u"LuBuiltInBrightnessWidget"_s).value(u"text"_s).toString(), u"Built-in brightness"_s);
    QVERIFY(setTo(u"Built-in brightness"_s, 20).ok());
    QCOMPARE(client().value(u"services.get"_s, {{u"path"_s, u"systemBrightness"_s}}).toDouble(), 0.2);
    QVERIFY(client().call(u"services.set"_s, {{u"path"_s, u"systemBrightness"_s}, {u"value"_s, 0.9}}).ok());
    QTRY_COMPARE(find(u"slider"_s, u"Built-in brightness"_s).value(u"value"_s).toInt(), 90);
    // The panel itself has its own row, and not this one.
    QVERIFY(client().call(u"select"_s, {{u"monitor"_s, u"builtin"_s}}).ok());
    QTRY_VERIFY(!row(u"LuBuiltInBrightnessWidget"_s).value(u"shown"_s).toBool());
    QVERIFY(setTo(u"Brightness"_s, 35).ok());
    QCOMPARE(client().value(u"services.get"_s, {{u"path"_s, u"systemBrightness"_s}}).toDouble(), 0.35);
    QVERIFY(client().call(u"sim.unplug"_s, {{u"monitor"_s, u"builtin"_s}}).ok());
    QTRY_COMPARE(client().call(u"monitors"_s).result.toArray().size(), 1);
    QTRY_VERIFY(!row(u"LuBuiltInBrightnessWidget"_s).value(u"shown"_s).toBool());
}

void TestPicturePanels::theSyncIsSwitchedOnThePage()
{
    startOn(u"TK30Z,TK20"_s);
    QVERIFY(open(u"LuBrightnessWidget"_s));
    QVERIFY(press(u"Brightness Sync"_s, u"switch"_s).ok());
    QCOMPARE(desk().get(u"context.brightnessSync.active"_s), QJsonValue(true));
    const int other = desk().get(u"brightness.displayBrightness"_s, u"TK20"_s).toInt();
    const int own = desk().get(u"brightness.displayBrightness"_s, u"TK30Z"_s).toInt();
    QVERIFY(setTo(u"Brightness"_s, own - 15).ok());
    QTRY_COMPARE(desk().get(u"brightness.displayBrightness"_s, u"TK20"_s).toInt(), other - 15);
    // Dimming on the shown monitor is the choice for all.
    QVERIFY(press(u"Software Dimming"_s, u"switch"_s).ok());
    QTRY_COMPARE(desk().get(u"brightness.softwareDimming.state"_s, u"TK20"_s), QJsonValue(false));
}

void TestPicturePanels::colourWeaknessGoesFromRedToGreen()
{
    startOn(u"TK30Z"_s);
    QVERIFY(desk().set(u"colorWeakness.weakness"_s, 7));
    QTRY_VERIFY(row(u"LuColorWeaknessWidget"_s).value(u"active"_s).toBool());
    QVERIFY(open(u"LuColorWeaknessWidget"_s));
    const QJsonObject slider = find(u"slider"_s, u"Color Weakness"_s);
    QCOMPARE(slider.value(u"minimum"_s).toInt(), -10);
    QCOMPARE(slider.value(u"maximum"_s).toInt(), 10);
    desk().forget();
    QVERIFY(setTo(u"Color Weakness"_s, -3).ok());
    QCOMPARE(desk().writes(), (QStringList{u"fd=%1"_s.arg(0x0703), u"fd=%1"_s.arg(0x0303)}));
    QTRY_VERIFY(!find(u"label"_s, u"Red: 3"_s).isEmpty());
    QTRY_VERIFY(!find(u"label"_s, u"Green: 0"_s).isEmpty());
    QVERIFY(setTo(u"Color Weakness"_s, 6).ok());
    QCOMPARE(desk().held(0xFD), 0x0604);
    QTRY_VERIFY(!find(u"label"_s, u"Green: 6"_s).isEmpty());
    QVERIFY(setTo(u"Color Weakness"_s, 0).ok());
    QCOMPARE(desk().held(0xFD), 0);
    // A filter without strength counts as on in events, and not as active here.
    QVERIFY(desk().menu(0xFD, 4));
    QVERIFY(desk().sync(u"LuColorWeakness"_s));
    QVERIFY(desk().events().contains(u"25 on 1 [g0]"_s));
    QVERIFY(!row(u"LuColorWeaknessWidget"_s).value(u"active"_s).toBool());
}

void TestPicturePanels::aVisitToColourWeaknessIsOneEvent()
{
    startOn(u"TK30Z"_s);
    desk().forget();
    QVERIFY(open(u"LuColorWeaknessWidget"_s));
    for (const int level : {2, 5, 8})
        QVERIFY(setTo(u"Color Weakness"_s, level).ok());
    QVERIFY(client().call(u"ui.close"_s, {{u"widget"_s, u"LuColorWeaknessWidget"_s}}).ok());
    QVERIFY(desk().idle());
    QCOMPARE(desk().events(), (QStringList{u"25 on 0 [g8]"_s, u"25 \"on_update_setting\" 0 [g8]"_s}));
    QVERIFY(open(u"LuColorWeaknessWidget"_s));
    QVERIFY(setTo(u"Color Weakness"_s, 9).ok());
    QVERIFY(client().call(u"ui.close"_s, {{u"widget"_s, u"LuColorWeaknessWidget"_s}}).ok());
    QVERIFY(desk().idle());
    QCOMPARE(desk().events(), (QStringList{u"25 \"on_update_setting\" 0 [g9]"_s}));
    // A visit without a change is none.
    QVERIFY(open(u"LuColorWeaknessWidget"_s));
    QVERIFY(client().call(u"ui.close"_s, {{u"widget"_s, u"LuColorWeaknessWidget"_s}}).ok());
    QCOMPARE(desk().events(), QStringList());
}

void TestPicturePanels::colourWeaknessWarnsWhereTheModeForbidsIt()
{
    startOn(u"TK30Z"_s);
    QVERIFY(!row(u"LuColorWeaknessWidget"_s).value(u"popup"_s).toBool());
    QVERIFY(desk().mode(u"M-book"_s));
    QTRY_VERIFY(row(u"LuColorWeaknessWidget"_s).value(u"popup"_s).toBool());
    QVERIFY(press(u"Color Weakness"_s, u"button"_s).ok());
    QTRY_VERIFY(find(u"slider"_s, u"Color Weakness"_s).isEmpty());
    QVERIFY(desk().mode(u"Cinema"_s));
    QTRY_VERIFY(!row(u"LuColorWeaknessWidget"_s).value(u"popup"_s).toBool());
}

void TestPicturePanels::hdrSwitchesAndReports()
{
    startOn(u"TK30Z"_s);
    QVERIFY(row(u"LuHDRWidget"_s).value(u"shown"_s).toBool());
    QVERIFY(!row(u"LuHDRWidget"_s).value(u"active"_s).toBool());
    desk().forget();
    QVERIFY(press(u"HDR"_s, u"button"_s).ok());
    QCOMPARE(desk().held(0xDC), 0x23);
    QTRY_VERIFY(row(u"LuHDRWidget"_s).value(u"active"_s).toBool());
    QStringList events = desk().events();
    QCOMPARE(events.filter(QRegularExpression(u" (on|off) 0 "_s)).size(), 1);
    QCOMPARE(events.filter(QRegularExpression(u" on 1 "_s)), QStringList());
    // From the monitor's own menu it is told with its own source.
    QVERIFY(desk().menu(0xDC, 0x12));
    QTRY_VERIFY_WITH_TIMEOUT(!row(u"LuHDRWidget"_s).value(u"active"_s).toBool(), 20000);
    // The round tells it when it has told the window.
    QStringList told;
    const auto offByMenu = [&told] { return told.filter(QRegularExpression(u" off 1 "_s)).size(); };
    QTRY_VERIFY((told += desk().events(), offByMenu() > 0));
    QVERIFY(client().call(u"sync"_s).ok() && desk().idle());
    told += desk().events();
    QCOMPARE(offByMenu(), 1);
}

void TestPicturePanels::readBackRunsOnlyWhileTheWindowShows()
{
    startOn(u"TK30Z,TK20"_s);
    QVERIFY(client().call(u"select"_s, {{u"monitor"_s, u"TK30Z"_s}}).ok());
    const auto state = [this](const char* path, const QString& monitor) {
        return desk().get(QString::fromLatin1(path), monitor).toBool();
    };
    QTRY_VERIFY(state("brightness.syncEnable", u"TK30Z"_s) && state("colorWeakness.syncEnable", u"TK30Z"_s));
    QTRY_VERIFY(state("syncCurrentColorMode", u"TK30Z"_s));
    QVERIFY(!state("brightness.syncEnable", u"TK20"_s));
    QVERIFY(client().call(u"ui.hide"_s).ok());
    QTRY_VERIFY(!state("brightness.syncEnable", u"TK30Z"_s) &&
                !state("colorWeakness.syncEnable", u"TK30Z"_s));
    QTRY_VERIFY(!state("syncCurrentColorMode", u"TK30Z"_s));
}

QTEST_GUILESS_MAIN(TestPicturePanels)
#include "tst_picture_panels.moc"
