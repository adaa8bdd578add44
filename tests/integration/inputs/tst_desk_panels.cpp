// SPDX-License-Identifier: Apache-2.0
#include "InputsDesk.h"

#include <QtTest>

using namespace Qt::StringLiterals;

namespace {

QStringList windowOptions(const QString& model)
{
    return {u"--simulate"_s, model,          u"--ddc-timing"_s, u"fast"_s,
            u"--services"_s, u"simulated"_s, u"--theme"_s,      u"light"_s};
}

/// All nodes of a tree in their order.
void flatten(const QJsonValue& node, QList<QJsonObject>& into)
{
    if (node.isArray()) {
        const QJsonArray list = node.toArray();
        for (const QJsonValue& each : list)
            flatten(each, into);
        return;
    }
    if (!node.isObject())
        return;
    into.append(node.toObject());
    flatten(node[u"children"_s], into);
}

} // namespace

/// The panels of inputs and layouts in the window, as assistive software finds them.
class TestDeskPanels : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void theInputIsChosenInItsRow();
    void anInputThatTheModelLacksShowsNoRow();
    void aDisplayWithoutAListOfInputsOffersNoChoice();
    void leavingTheOnlyInputIsExplained();
    void nothingIsExplainedWhileTheLayoutIsOpen();
    void theLayoutIsOpenedAndChosen();
    void eachLayoutHasItsRows_data();
    void eachLayoutHasItsRows();
    void aLayoutWithoutRowsShowsThoseOfPip();
    void sizeAndPlaceOfTheSmallWindow();
    void theWindowsAreSwapped();
    void closingTheLayoutAsksForTheKvm();
    void aLayoutChangedByAPanelIsReadAgain();
    void theSecondModeIsChosen();
    void hdrModesGoTogether();
    void thePictureFollowsTheLayout_data();
    void thePictureFollowsTheLayout();
    void theHubIsChosen();
    void theHubRestsWhileThePointerDecides();
    void theDaisyChainIsSwitched();
    void panelsExistForTheirModels_data();
    void panelsExistForTheirModels();
    void everyLayoutIsDrawnInEveryLanguage_data();
    void everyLayoutIsDrawnInEveryLanguage();

private:
    bool start(const QStringList& options)
    {
        m_desk = std::make_unique<InputsDesk>();
        return m_desk->start(options);
    }
    bool start(const QString& model = u"TK30Z"_s) { return start(windowOptions(model)); }
    ControlClient& client() { return m_desk->client(); }
    bool open(const QString& widget)
    {
        m_within = widget;
        return client().call(u"ui.open"_s, {{u"widget"_s, widget}}).ok();
    }
    ControlClient::Answer press(const QString& name, const QString& role = {})
    {
        QJsonObject parameters{{u"name"_s, name}};
        if (!role.isEmpty())
            parameters.insert(u"role"_s, role);
        if (!m_within.isEmpty())
            parameters.insert(u"within"_s, m_within);
        const auto answer = client().call(u"ui.press"_s, parameters);
        m_desk->idle();
        return answer;
    }
    ControlClient::Answer choose(const QString& name, const QString& value)
    {
        const auto answer = client().call(
            u"ui.setValue"_s,
            {{u"name"_s, name}, {u"value"_s, value}, {u"within"_s, m_within}, {u"role"_s, u"comboBox"_s}});
        m_desk->idle();
        return answer;
    }
    QList<QJsonObject> nodes(const QString& widget = {})
    {
        QList<QJsonObject> result;
        QJsonObject parameters;
        if (!widget.isEmpty())
            parameters.insert(u"widget"_s, widget);
        flatten(client().call(u"ui.tree"_s, parameters).result, result);
        return result;
    }
    /// The control of that role and name in the widget's tile and page; empty if there is none.
    QJsonObject control(const QString& role, const QString& name)
    {
        for (const QJsonObject& node : nodes(m_within)) {
            if (node[u"role"_s].toString() == role && node[u"name"_s].toString() == name)
                return node;
        }
        return {};
    }
    QStringList names(const QString& role)
    {
        QStringList result;
        for (const QJsonObject& node : nodes(m_within)) {
            if (node[u"role"_s].toString() == role)
                result.append(node[u"name"_s].toString());
        }
        return result;
    }
    bool shows(const QString& text)
    {
        for (const QJsonObject& node : nodes()) {
            if (node[u"name"_s].toString().contains(text))
                return true;
        }
        return false;
    }
    QStringList pictures()
    {
        QStringList result;
        for (const QJsonObject& node : nodes(m_within)) {
            if (const QString image = node[u"image"_s].toString(); !image.isEmpty())
                result.append(image);
        }
        return result;
    }
    QJsonObject tile(const QString& widget)
    {
        const QJsonArray rows = client().call(u"ui.widgets"_s).result.toArray();
        for (const QJsonValue& row : rows) {
            if (row[u"widget"_s].toString() == widget)
                return row.toObject();
        }
        return {};
    }

    std::unique_ptr<InputsDesk> m_desk;
    QString m_within;
};

void TestDeskPanels::cleanup()
{
    if (m_desk && m_desk->process().isRunning()) {
        QCOMPARE(client().call(u"ui.warnings"_s).result.toArray(), QJsonArray());
        QCOMPARE(m_desk->stop(), 0);
    }
    m_desk.reset();
    m_within.clear();
}

void TestDeskPanels::theInputIsChosenInItsRow()
{
    QVERIFY2(start(), qPrintable(m_desk->errors()));
    m_within = u"LuInputSourceWidget"_s;
    QTRY_COMPARE(control(u"comboBox"_s, u"Input"_s)[u"value"_s].toString(), u"USB-C"_s);
    m_desk->forget();
    QVERIFY(choose(u"Input"_s, u"HDMI"_s).ok());
    QVERIFY(m_desk->wire().contains(u"set 0x60 17"_s));
    QCOMPARE(m_desk->get(u"inputSource.currentMainInputSource"_s), QJsonValue(u"HDMI"_s));
    // The monitor is read back while the row can be seen, and not otherwise.
    QTRY_COMPARE(m_desk->get(u"inputSource.syncEnable"_s), QJsonValue(true));
    QVERIFY(client().call(u"ui.hide"_s).ok());
    QTRY_COMPARE(m_desk->get(u"inputSource.syncEnable"_s), QJsonValue(false));
}

void TestDeskPanels::anInputThatTheModelLacksShowsNoRow()
{
    QVERIFY2(start(), qPrintable(m_desk->errors()));
    m_within = u"LuInputSourceWidget"_s;
    QVERIFY(m_desk->menu(0x60, 18));
    QVERIFY(m_desk->sync(u"LuInputSource"_s));
    QTRY_COMPARE(control(u"comboBox"_s, u"Input"_s)[u"value"_s].toString(), QString());
}

void TestDeskPanels::aDisplayWithoutAListOfInputsOffersNoChoice()
{
    QVERIFY2(start(u"builtin"_s), qPrintable(m_desk->errors()));
    m_within = u"LuInputSourceWidget"_s;
    const QStringList builtIn{u"Input"_s, u"Built-in"_s};
    QTRY_COMPARE(names(u"label"_s), builtIn);
    QCOMPARE(control(u"comboBox"_s, u"Input"_s), QJsonObject());
    QCOMPARE(m_desk->stop(), 0);
    QVERIFY2(start(u"Alpha27Q"_s), qPrintable(m_desk->errors()));
    const QStringList unknown{u"Input"_s, u"Unknown"_s};
    QTRY_COMPARE(names(u"label"_s), unknown);
    QCOMPARE(control(u"comboBox"_s, u"Input"_s), QJsonObject());
}

void TestDeskPanels::leavingTheOnlyInputIsExplained()
{
    QVERIFY2(start(), qPrintable(m_desk->errors()));
    m_within = u"LuInputSourceWidget"_s;
    const QString explanation = u"picture goes away"_s;
    QTRY_COMPARE(control(u"comboBox"_s, u"Input"_s)[u"value"_s].toString(), u"USB-C"_s);
    QVERIFY(!shows(explanation));
    QVERIFY(choose(u"Input"_s, u"HDMI"_s).ok());
    QTRY_VERIFY(shows(explanation));
    // It stays over further changes, and goes when the first input is back.
    QVERIFY(choose(u"Input"_s, u"DisplayPort"_s).ok());
    QVERIFY(shows(explanation));
    QVERIFY(press(u"Back to USB-C"_s).ok());
    QCOMPARE(m_desk->held(0x60), 19);
    QTRY_VERIFY(!shows(explanation));
    // The monitor's own menu is no choice of the user here.
    QVERIFY(m_desk->menu(0x60, 17));
    QVERIFY(m_desk->sync(u"LuInputSource"_s));
    QTRY_COMPARE(control(u"comboBox"_s, u"Input"_s)[u"value"_s].toString(), u"HDMI"_s);
    QVERIFY(!shows(explanation));
}

void TestDeskPanels::nothingIsExplainedWhileTheLayoutIsOpen()
{
    QVERIFY2(start(), qPrintable(m_desk->errors()));
    m_within = u"LuInputSourceWidget"_s;
    QVERIFY(m_desk->call(u"pipPbp.forceOpenPbp"_s));
    QVERIFY(choose(u"Input"_s, u"HDMI"_s).ok());
    QTRY_COMPARE(control(u"comboBox"_s, u"Input"_s)[u"value"_s].toString(), u"HDMI"_s);
    QVERIFY(!shows(u"picture goes away"_s));
}

void TestDeskPanels::theLayoutIsOpenedAndChosen()
{
    QVERIFY2(start(), qPrintable(m_desk->errors()));
    QCOMPARE(tile(u"LuPIPPBPWidget"_s)[u"text"_s].toString(), u"PIP / PBP"_s);
    QVERIFY(open(u"LuPIPPBPWidget"_s));
    QCOMPARE(names(u"radio"_s),
             (QStringList{u"Picture in picture"_s, u"Half and half"_s, u"Two to one"_s, u"Three to one"_s}));
    QVERIFY(names(u"comboBox"_s).isEmpty());
    m_desk->forget();
    // Chosen while off: a preference.
    QVERIFY(press(u"Half and half"_s, u"radio"_s).ok());
    QCOMPARE(m_desk->get(u"pipPbp.mode"_s), QJsonValue(2));
    QCOMPARE(m_desk->wire().filter(u"set 0x7D"_s), QStringList());
    QVERIFY(press(u"PIP / PBP"_s, u"switch"_s).ok());
    QCOMPARE(m_desk->wire().filter(u"set 0x7D"_s), QStringList{u"set 0x7D 2"_s});
    QTRY_VERIFY(control(u"switch"_s, u"PIP / PBP"_s)[u"checked"_s].toBool());
    QTRY_VERIFY(tile(u"LuPIPPBPWidget"_s)[u"active"_s].toBool());
    QTRY_VERIFY(tile(u"LuPIPPBPWidget"_s)[u"image"_s].toString().contains(u"btn_pbp_a_active"_s));
    QVERIFY(press(u"Three to one"_s, u"radio"_s).ok());
    QCOMPARE(m_desk->wire().filter(u"set 0x7D"_s), QStringList{u"set 0x7D 7"_s});
    QTRY_VERIFY(tile(u"LuPIPPBPWidget"_s)[u"image"_s].toString().contains(u"btn_pbp_d_active"_s));
    // One visit, one event.
    m_desk->events();
    QVERIFY(client().call(u"ui.close"_s, {{u"widget"_s, u"LuPIPPBPWidget"_s}}).ok());
    QStringList events;
    QTRY_VERIFY(!(events += m_desk->events()).isEmpty());
    QCOMPARE(events, QStringList{u"LuPipPbp 8 on_update_setting 0 [pbp3:1,n/a,n/a]"_s});
}

void TestDeskPanels::eachLayoutHasItsRows_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<QStringList>("rows");
    QTest::addColumn<QString>("property");
    QTest::newRow("PIP") << 1 << QStringList{u"Main"_s, u"Sub"_s} << u"pipSource"_s;
    QTest::newRow("PBP") << 2 << QStringList{u"Main"_s, u"Sub"_s} << u"pbpSource"_s;
    QTest::newRow("PBP 5:9") << 6 << QStringList{u"16 : 9"_s, u"9 : 5"_s} << u"pbp5_9Source"_s;
    QTest::newRow("PBP 3:1") << 7 << QStringList{u"Left"_s, u"Right"_s} << u"pbp3_1Source"_s;
    QTest::newRow("PBP 2:1") << 8 << QStringList{u"Left"_s, u"Right"_s} << u"pbp2_1Source"_s;
    QTest::newRow("PBP x4") << 5
                            << QStringList{u"Upper left"_s, u"Upper right"_s, u"Lower left"_s,
                                           u"Lower right"_s}
                            << QString();
}

void TestDeskPanels::eachLayoutHasItsRows()
{
    QFETCH(int, mode);
    QFETCH(QStringList, rows);
    QFETCH(QString, property);
    QVERIFY2(start(), qPrintable(m_desk->errors()));
    QVERIFY(m_desk->menu(0x7D, mode));
    QVERIFY(m_desk->sync(u"LuPipPbp"_s));
    QVERIFY(open(u"LuPIPPBPWidget"_s));
    QTRY_COMPARE(names(u"comboBox"_s), rows);
    QTRY_COMPARE(control(u"comboBox"_s, rows.first())[u"value"_s].toString(), u"USB-C"_s);
    m_desk->forget();
    QVERIFY(choose(rows.first(), u"HDMI"_s).ok());
    QVERIFY(m_desk->wire().contains(u"set 0x60 17"_s));
    QVERIFY(choose(rows.last(), u"DisplayPort"_s).ok());
    const QString window = property.isEmpty() ? u"2048"_s : u"512"_s;
    // A read-back meanwhile selects windows, too, and never between these two.
    const QStringList sets = m_desk->wire().filter(QRegularExpression(u"^set 0x(A5|7E)"_s));
    const qsizetype source = sets.indexOf(u"set 0x7E 15"_s);
    QVERIFY2(source > 0, qPrintable(sets.join(u'\n')));
    QCOMPARE(sets.at(source - 1), u"set 0xA5 "_s + window);
    if (!property.isEmpty())
        QCOMPARE(m_desk->get(u"pipPbp."_s + property), QJsonValue(u"DisplayPort"_s));
    else
        QCOMPARE(m_desk->get(u"pipPbp.pbp4SourceList[2]"_s), QJsonValue(u"DisplayPort"_s));
}

void TestDeskPanels::aLayoutWithoutRowsShowsThoseOfPip()
{
    QVERIFY2(start(), qPrintable(m_desk->errors()));
    QVERIFY(m_desk->menu(0x7D, 3));
    QVERIFY(m_desk->sync(u"LuPipPbp"_s));
    QVERIFY(open(u"LuPIPPBPWidget"_s));
    QTRY_COMPARE(names(u"comboBox"_s), (QStringList{u"Main"_s, u"Sub"_s}));
    QTRY_VERIFY(tile(u"LuPIPPBPWidget"_s)[u"image"_s].toString().contains(u"btn_pip_RT_active"_s));
    // Size and place belong to the small window alone.
    QVERIFY(!names(u"radio"_s).contains(u"Small"_s));
}

void TestDeskPanels::sizeAndPlaceOfTheSmallWindow()
{
    QVERIFY2(start(), qPrintable(m_desk->errors()));
    QVERIFY(m_desk->set(u"pipPbp.state"_s, true));
    QVERIFY(open(u"LuPIPPBPWidget"_s));
    QTRY_VERIFY(names(u"radio"_s).contains(u"Small"_s));
    QCOMPARE(names(u"radio"_s).mid(4), (QStringList{u"Small"_s, u"Medium"_s, u"Large"_s, u"Upper right"_s,
                                                    u"Upper left"_s, u"Lower right"_s, u"Lower left"_s}));
    QVERIFY(press(u"Large"_s, u"radio"_s).ok());
    QVERIFY(press(u"Lower left"_s, u"radio"_s).ok());
    QCOMPARE(m_desk->held(0x80), 0x302);
}

void TestDeskPanels::theWindowsAreSwapped()
{
    QVERIFY2(start(), qPrintable(m_desk->errors()));
    QVERIFY(m_desk->call(u"pipPbp.forceOpenPbp"_s));
    QVERIFY(open(u"LuPIPPBPWidget"_s));
    m_desk->forget();
    QVERIFY(press(u"Swap"_s, u"button"_s).ok());
    QVERIFY(m_desk->wire().contains(u"set 0x7F 1"_s));
    QTRY_COMPARE(control(u"comboBox"_s, u"Main"_s)[u"value"_s].toString(), u"HDMI"_s);
    QTRY_COMPARE(control(u"comboBox"_s, u"Sub"_s)[u"value"_s].toString(), u"USB-C"_s);
    // Closed, there is nothing to exchange.
    QVERIFY(m_desk->set(u"pipPbp.state"_s, false));
    QTRY_VERIFY(!names(u"button"_s).contains(u"Swap"_s));
}

void TestDeskPanels::closingTheLayoutAsksForTheKvm()
{
    QVERIFY2(start(), qPrintable(m_desk->errors()));
    QVERIFY(m_desk->call(u"pipPbp.forceOpenPbp"_s));
    QVERIFY(m_desk->set(u"smartKvmBasic.basicState"_s, true));
    QVERIFY(open(u"LuPIPPBPWidget"_s));
    const QString title = u"Do you want to turn off PBP Mode and Smart KVM Basic?"_s;
    QVERIFY(press(u"PIP / PBP"_s, u"switch"_s).ok());
    QTRY_VERIFY(shows(title));
    QTRY_VERIFY(control(u"switch"_s, u"PIP / PBP"_s)[u"checked"_s].toBool());
    QCOMPARE(m_desk->get(u"pipPbp.state"_s), QJsonValue(true));
    const QString page = m_within;
    m_within.clear();
    QVERIFY(press(u"Cancel"_s, u"button"_s).ok());
    QTRY_VERIFY(!shows(title));
    QCOMPARE(m_desk->get(u"pipPbp.state"_s), QJsonValue(true));
    m_within = page;
    QVERIFY(press(u"PIP / PBP"_s, u"switch"_s).ok());
    QTRY_VERIFY(shows(title));
    m_within.clear();
    QVERIFY(press(u"OK"_s, u"button"_s).ok());
    QTRY_COMPARE(m_desk->get(u"pipPbp.state"_s), QJsonValue(false));
    QTRY_COMPARE(m_desk->get(u"smartKvmBasic.basicState"_s), QJsonValue(false));
}

void TestDeskPanels::aLayoutChangedByAPanelIsReadAgain()
{
    // A monitor that leaves its bus while it lays the picture out anew, and rounds that are far apart.
    QVERIFY2(start({u"--simulate"_s, u"TK30Z"_s, u"--ddc-timing"_s, u"real"_s, u"--services"_s,
                    u"simulated"_s, u"--sync-period"_s, u"600000"_s}),
             qPrintable(m_desk->errors()));
    QVERIFY(m_desk->menu(0x7E, 15, 512));
    m_desk->forget();
    // A script asks nobody to look: what is read at once finds no monitor.
    QVERIFY(m_desk->set(u"pipPbp.state"_s, true));
    QVERIFY(!m_desk->wire().filter(u"get 0x7D 0 failed"_s).isEmpty());
    QCOMPARE(m_desk->get(u"pipPbp.pipSource"_s), QJsonValue(u""_s));
    QTRY_VERIFY_WITH_TIMEOUT(m_desk->sync(u"LuDaisyChain"_s) &&
                                 m_desk->wire().filter(u"get 0xE6 0"_s).filter(u"failed"_s).isEmpty(),
                             20'000);
    QVERIFY(m_desk->set(u"pipPbp.state"_s, false));
    QTRY_VERIFY_WITH_TIMEOUT(m_desk->sync(u"LuDaisyChain"_s) &&
                                 m_desk->wire().filter(u"get 0xE6 0"_s).filter(u"failed"_s).isEmpty(),
                             20'000);
    QCOMPARE(m_desk->get(u"pipPbp.pipSource"_s), QJsonValue(u""_s));
    // The panel asks, and what the window shows is known as soon as the monitor is back.
    QVERIFY(open(u"LuPIPPBPWidget"_s));
    QVERIFY(press(u"PIP / PBP"_s, u"switch"_s).ok());
    QTRY_COMPARE_WITH_TIMEOUT(m_desk->get(u"pipPbp.pipSource"_s), QJsonValue(u"DisplayPort"_s), 20'000);
}

void TestDeskPanels::theSecondModeIsChosen()
{
    QVERIFY2(start(), qPrintable(m_desk->errors()));
    QVERIFY(open(u"LuDualViewPlusWidget"_s));
    // Off: the choices rest.
    QCOMPARE(names(u"comboBox"_s), (QStringList{u"Main"_s, u"Sub"_s}));
    QCOMPARE(choose(u"Sub"_s, u"Cinema"_s).code, 3);
    QVERIFY(press(u"DualView Plus"_s, u"switch"_s).ok());
    QCOMPARE(m_desk->get(u"dualView.state"_s), QJsonValue(true));
    QTRY_VERIFY(control(u"comboBox"_s, u"Sub"_s)[u"enabled"_s].toBool());
    QVERIFY(choose(u"Sub"_s, u"Cinema"_s).ok());
    QCOMPARE(m_desk->held(0xF4), 0x3201);
    QVERIFY(choose(u"Main"_s, u"ePaper"_s).ok());
    QCOMPARE(m_desk->held(0xDC), 0x1F);
    // Outside of PiP the parts are the left and the right one.
    QVERIFY(m_desk->set(u"pipPbp.mode"_s, 2));
    QTRY_COMPARE(names(u"comboBox"_s), (QStringList{u"Left"_s, u"Right"_s}));
}

void TestDeskPanels::hdrModesGoTogether()
{
    QVERIFY2(start(), qPrintable(m_desk->errors()));
    QVERIFY(m_desk->set(u"dualView.state"_s, true));
    QVERIFY(open(u"LuDualViewPlusWidget"_s));
    // One input: what has another dynamic range than the current mode cannot be chosen.
    QVERIFY(!choose(u"Sub"_s, u"HDR"_s).ok());
    QVERIFY(choose(u"Sub"_s, u"Game"_s).ok());
    QCOMPARE(m_desk->held(0xF4), 0x2801);
    // Several inputs: the second part follows what it shows itself.
    QVERIFY(m_desk->set(u"pipPbp.state"_s, true));
    QVERIFY(m_desk->menu(0xF4, 0x2301));
    QVERIFY(m_desk->sync(u"LuDualView"_s));
    QTRY_COMPARE(control(u"comboBox"_s, u"Sub"_s)[u"value"_s].toString(), u"HDR"_s);
    QVERIFY(!choose(u"Sub"_s, u"Game"_s).ok());
}

void TestDeskPanels::thePictureFollowsTheLayout_data()
{
    QTest::addColumn<int>("layout");
    QTest::addColumn<int>("place");
    QTest::addColumn<QString>("picture");
    QTest::newRow("single") << 0 << 2 << u"ico96_dv_05"_s;
    QTest::newRow("half") << 2 << 2 << u"ico96_dv_08"_s;
    QTest::newRow("two to one") << 8 << 2 << u"ico96_dv_11"_s;
    QTest::newRow("three to one") << 7 << 2 << u"ico96_dv_11"_s;
    QTest::newRow("upper left") << 1 << 2 << u"ico96_dv_14"_s;
    QTest::newRow("lower left") << 1 << 3 << u"ico96_dv_17"_s;
    QTest::newRow("upper right") << 1 << 0 << u"ico96_dv_20"_s;
    QTest::newRow("lower right") << 1 << 1 << u"ico96_dv_23"_s;
}

void TestDeskPanels::thePictureFollowsTheLayout()
{
    QFETCH(int, layout);
    QFETCH(int, place);
    QFETCH(QString, picture);
    QVERIFY2(start(), qPrintable(m_desk->errors()));
    QVERIFY(m_desk->menu(0x80, place << 8));
    QVERIFY(m_desk->menu(0x7D, layout));
    QVERIFY(m_desk->sync(u"LuPipPbp"_s));
    QVERIFY(open(u"LuDualViewPlusWidget"_s));
    QTRY_VERIFY2(!pictures().filter(picture).isEmpty(), qPrintable(pictures().join(u' ')));
}

void TestDeskPanels::theHubIsChosen()
{
    QVERIFY2(start(), qPrintable(m_desk->errors()));
    QVERIFY(open(u"LuSmartKvmBasicWidget"_s));
    QCOMPARE(names(u"radio"_s), (QStringList{u"Auto Switch"_s, u"USB-C Upstream"_s, u"USB-B Upstream"_s,
                                             u"Left"_s, u"Right"_s}));
    QVERIFY(press(u"USB-B Upstream"_s, u"radio"_s).ok());
    QCOMPARE(m_desk->held(0xE4), 2);
    QVERIFY(choose(u"KVM"_s, u"USB-C Upstream"_s).ok());
    QCOMPARE(m_desk->held(0xE4), 3);
    // A port that nobody offers: no row is shown.
    QVERIFY(m_desk->menu(0xE4, 1));
    QVERIFY(m_desk->sync(u"LuKvmSwitch"_s));
    QTRY_COMPARE(control(u"comboBox"_s, u"KVM"_s)[u"value"_s].toString(), QString());
    // The side is chosen while the feature is on.
    QVERIFY(!control(u"radio"_s, u"Right"_s)[u"enabled"_s].toBool());
}

void TestDeskPanels::theHubRestsWhileThePointerDecides()
{
    QVERIFY2(start(), qPrintable(m_desk->errors()));
    QVERIFY(m_desk->call(u"pipPbp.forceOpenPbp"_s));
    QVERIFY(m_desk->set(u"smartKvmBasic.basicState"_s, true));
    QVERIFY(open(u"LuSmartKvmBasicWidget"_s));
    QTRY_VERIFY(shows(u"Smart KVM Basic is enabled"_s));
    QCOMPARE(press(u"USB-B Upstream"_s, u"radio"_s).code, 3);
    QTRY_COMPARE(control(u"radio"_s, u"USB-B Upstream"_s)[u"opacity"_s].toDouble(), 0.5);
    QVERIFY(press(u"Right"_s, u"radio"_s).ok());
    QCOMPARE(m_desk->get(u"smartKvmBasic.deviceLocation"_s), QJsonValue(1));
    // The switch is not shown on this system.
    QVERIFY(names(u"switch"_s).isEmpty());
}

void TestDeskPanels::theDaisyChainIsSwitched()
{
    QTemporaryDir directory;
    QFile environment(directory.filePath(u"environment.json"_s));
    QVERIFY(environment.open(QIODevice::WriteOnly));
    environment.write(R"({"knowledge": {"daisyChain.api": "https://example.org/chain"}})");
    environment.close();
    QVERIFY2(start(windowOptions(u"TK10"_s) + QStringList{u"--environment"_s, environment.fileName()}),
             qPrintable(m_desk->errors()));
    QVERIFY(open(u"LuDaisyChainWidget"_s));
    QVERIFY(!pictures().filter(u"img_dv_defaul"_s).isEmpty());
    QVERIFY(shows(u"One cable to easily connect all your monitors."_s));
    QVERIFY(press(u"Daisy Chain (MST)"_s, u"switch"_s).ok());
    QCOMPARE(m_desk->held(0xE6), 1);
    QTRY_VERIFY(tile(u"LuDaisyChainWidget"_s)[u"active"_s].toBool());
    QTRY_VERIFY(tile(u"LuDaisyChainWidget"_s)[u"image"_s].toString().contains(u"btn_DC_active"_s));
    QTRY_VERIFY(!pictures().filter(u"img_dv_action"_s).isEmpty());
    QVERIFY(press(u"About Daisy Chain (MST)"_s, u"link"_s).ok());
    QTRY_COMPARE(client().value(u"services.get"_s, {{u"path"_s, u"opened"_s}}),
                 QJsonValue(QJsonArray{u"https://example.org/chain"_s}));
}

void TestDeskPanels::panelsExistForTheirModels_data()
{
    QTest::addColumn<QStringList>("supported");
    const QString input = u"LuInputSourceWidget"_s;
    const QString chain = u"LuDaisyChainWidget"_s;
    QTest::newRow("TK10") << QStringList{chain, input};
    QTest::newRow("TK20") << QStringList{input};
    QTest::newRow("TK30Z") << QStringList{chain, u"LuDualViewPlusWidget"_s, input, u"LuPIPPBPWidget"_s,
                                          u"LuSmartKvmBasicWidget"_s};
    QTest::newRow("TK40") << QStringList{chain, u"LuDualViewPlusWidget"_s, input, u"LuPIPPBPWidget"_s};
}

void TestDeskPanels::panelsExistForTheirModels()
{
    QFETCH(QStringList, supported);
    QVERIFY2(start(QString::fromLatin1(QTest::currentDataTag())), qPrintable(m_desk->errors()));
    for (const QString& widget :
         {u"LuDaisyChainWidget"_s, u"LuDualViewPlusWidget"_s, u"LuDualViewWidget"_s, u"LuInputSourceWidget"_s,
          u"LuPIPPBPWidget"_s, u"LuSmartKvmBasicWidget"_s, u"LuSmartKvmWidget"_s}) {
        // Two of them serve other series: the package does not list them.
        const QJsonObject row = tile(widget);
        QVERIFY2(row[u"supported"_s].toBool() == supported.contains(widget), qPrintable(widget));
    }
}

void TestDeskPanels::everyLayoutIsDrawnInEveryLanguage_data()
{
    QTest::addColumn<QString>("language");
    for (const char* language : {"cs", "de", "en", "es", "fr", "hr", "hu", "it", "ja", "ko", "nl", "pl", "pt",
                                 "ro", "ru", "sv", "zh", "zh_TW"})
        QTest::newRow(language) << QString::fromLatin1(language);
}

void TestDeskPanels::everyLayoutIsDrawnInEveryLanguage()
{
    QFETCH(QString, language);
    QVERIFY2(start(), qPrintable(m_desk->errors()));
    QVERIFY(client().call(u"settings.set"_s, {{u"key"_s, u"language"_s}, {u"value"_s, language}}).ok());
    QCOMPARE(m_desk->stop(), 0);
    QVERIFY2(m_desk->start(windowOptions(u"TK30Z"_s)), qPrintable(m_desk->errors()));
    QStringList found;
    const auto look = [&](const QString& widget, const QString& what) {
        if (!open(widget))
            found += u"%1 does not open"_s.arg(widget);
        // A page that has just opened finds its size with the next frames.
        QStringList problems;
        QElapsedTimer elapsed;
        elapsed.start();
        do {
            problems.clear();
            const QJsonArray told = client().call(u"ui.problems"_s).result.toArray();
            for (const QJsonValue& problem : told) {
                // Tiles are looked at with the whole window, elsewhere.
                if (!problem[u"item"_s].toString().endsWith(u".button"))
                    problems += u"%1, %2: %3 \"%4\" in %5"_s.arg(
                        widget, what, problem[u"problem"_s].toString(), problem[u"text"_s].toString(),
                        problem[u"item"_s].toString());
            }
        } while (!problems.isEmpty() && elapsed.elapsed() < PatienceMs);
        found += problems;
    };
    QVERIFY(m_desk->set(u"dualView.state"_s, true));
    for (const int mode : {1, 2, 5, 6, 7, 8}) {
        QVERIFY(m_desk->menu(0x7D, mode));
        QVERIFY(m_desk->sync(u"LuPipPbp"_s));
        look(u"LuPIPPBPWidget"_s, u"layout %1"_s.arg(mode));
        look(u"LuDualViewPlusWidget"_s, u"layout %1"_s.arg(mode));
    }
    QVERIFY(m_desk->set(u"smartKvmBasic.basicState"_s, true));
    look(u"LuSmartKvmBasicWidget"_s, u"on"_s);
    look(u"LuDaisyChainWidget"_s, u"off"_s);
    QVERIFY(m_desk->set(u"pipPbp.state"_s, false));
    QVERIFY(client().call(u"ui.close"_s, {{u"widget"_s, u"LuDaisyChainWidget"_s}}).ok());
    m_within = u"LuInputSourceWidget"_s;
    QCOMPARE(names(u"comboBox"_s).size(), 1);
    QVERIFY(choose(names(u"comboBox"_s).first(), u"HDMI"_s).ok());
    QVERIFY(m_desk->idle());
    look(u"LuDaisyChainWidget"_s, u"note"_s);
    found.removeDuplicates();
    QVERIFY2(found.isEmpty(), qPrintable(u'\n' + found.join(u'\n')));
}

QTEST_GUILESS_MAIN(TestDeskPanels)
#include "tst_desk_panels.moc"
