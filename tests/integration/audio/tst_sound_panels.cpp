// SPDX-License-Identifier: Apache-2.0
#include "AccessibleTree.h"
#include "SoundDesk.h"

#include <QtTest>

using namespace Qt::StringLiterals;

namespace {

const QString Widget = u"LuVolumeWidget"_s;

} // namespace

/// The row of the volume, its page, and the feedback on the monitor, pressed and read through the accessible
/// tree.
class TestSoundPanels : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_desk = std::make_unique<SoundDesk>(); }
    void cleanup();
    void theRowShowsWhatTheModelHas_data();
    void theRowShowsWhatTheModelHas();
    void theRowSetsTheVolume();
    void thePageSetsWhatItShows();
    void aVisitIsOneEvent();
    void theShortcutsPageListsTheSound();
    void aStepShowsTheVolumeOnTheMonitor();
    void noStepNoFeedback();
    void theEditorIsLiveAndLeavingItRestores();

private:
    SoundDesk& desk() { return *m_desk; }
    ControlClient& client() { return m_desk->client(); }
    void startOn(const QString& monitors)
    {
        QVERIFY2(desk().startSound(monitors, true), qPrintable(desk().errors()));
    }
    QJsonObject find(const QString& role, const QString& name, const QString& widget = {})
    {
        return findInTree(
            client()
                .call(u"ui.tree"_s, widget.isEmpty() ? QJsonObject() : QJsonObject{{u"widget"_s, widget}})
                .result,
            role, name);
    }
    bool setTo(const QString& name, const QJsonValue& value, const QString& within = {})
    {
        QJsonObject parameters{{u"name"_s, name}, {u"value"_s, value}};
        if (!within.isEmpty())
            parameters.insert(u"within"_s, within);
        const auto answer = client().call(u"ui.setValue"_s, parameters);
        return desk().idle() && answer.ok();
    }
    QJsonObject row()
    {
        const QJsonArray rows = client().call(u"ui.widgets"_s).result.toArray();
        for (const QJsonValue& each : rows) {
            if (each.toObject().value(u"widget"_s).toString() == Widget)
                return each.toObject();
        }
        return {};
    }
    /// Presses a key: the feedback stands there then. A slow machine may look when it has gone again; try
    /// anew.
    bool showsAfter(const QString& key) { return desk().press(u"Ctrl+Shift"_s, key) && feedback(); }
    /// A window of the size of the feedback shows, and is that of the volume.
    bool feedback()
    {
        const QJsonArray windows = client().call(u"ui.windows"_s).result.toArray();
        for (const QJsonValue& each : windows) {
            const QJsonObject window = each.toObject();
            const QJsonObject rect = window.value(u"rect"_s).toObject();
            if (window.value(u"visible"_s).toBool() && rect.value(u"width"_s).toInt() == 172 &&
                rect.value(u"height"_s).toInt() == 177)
                return window.value(u"name"_s).toString() == u"Volume"_s;
        }
        return false;
    }

    std::unique_ptr<SoundDesk> m_desk;
};

void TestSoundPanels::cleanup()
{
    if (m_desk->isRunning()) {
        QCOMPARE(client().call(u"ui.warnings"_s).result.toArray(), QJsonArray());
        QCOMPARE(m_desk->stop(), 0);
    }
    m_desk.reset();
}

void TestSoundPanels::theRowShowsWhatTheModelHas_data()
{
    QTest::addColumn<bool>("shown");
    QTest::newRow("TK30Z") << true;
    QTest::newRow("TK10") << true;
    QTest::newRow("ACME24") << false;
}

void TestSoundPanels::theRowShowsWhatTheModelHas()
{
    QFETCH(bool, shown);
    startOn(QLatin1String(QTest::currentDataTag()));
    QCOMPARE(row().value(u"shown"_s).toBool(), shown);
    QCOMPARE(row().value(u"text"_s).toString(), u"Audio"_s);
    QCOMPARE(find(u"slider"_s, u"Audio"_s).isEmpty(), !shown);
}

void TestSoundPanels::theRowSetsTheVolume()
{
    startOn(u"TK30Z"_s);
    QCOMPARE(find(u"slider"_s, u"Audio"_s).value(u"enabled"_s), QJsonValue(false));
    QVERIFY(!setTo(u"Audio"_s, 30));
    QVERIFY(desk().playThrough(u"TK30Z"_s));
    QTRY_COMPARE(find(u"slider"_s, u"Audio"_s).value(u"enabled"_s), QJsonValue(true));
    desk().forget();
    QVERIFY(setTo(u"Audio"_s, 30));
    QCOMPARE(desk().held(0x62), 30);
    QCOMPARE(desk().told({u"37"_s}), QStringList{u"37 \"\" 0 [30,50]"_s});
    QVERIFY(!setTo(u"Audio"_s, 51));
    // A change at the monitor's own menu reaches the row.
    QVERIFY(desk().menu(0x62, 7));
    QVERIFY(desk().sync(u"LuVolume"_s));
    QTRY_COMPARE_WITH_TIMEOUT(find(u"slider"_s, u"Audio"_s).value(u"value"_s).toInt(), 7, 20'000);
    QVERIFY(desk().set(u"volume.mute"_s, true));
    QTRY_COMPARE(find(u"slider"_s, u"Audio"_s).value(u"value"_s).toInt(), 0);
}

void TestSoundPanels::thePageSetsWhatItShows()
{
    startOn(u"TK20"_s);
    QVERIFY(client().call(u"ui.open"_s, {{u"widget"_s, Widget}}).ok());
    QVERIFY(find(u"slider"_s, u"TK20"_s, Widget).isEmpty());
    QVERIFY(desk().outputs({u"TK20"_s}));
    QVERIFY(setTo(u"Output"_s, u"TK20 DisplayPort"_s, Widget));
    QTRY_COMPARE(desk().get(u"volume.isCurrentAudioOutput"_s), QJsonValue(true));
    QTRY_VERIFY(!find(u"slider"_s, u"TK20"_s, Widget).isEmpty());
    QVERIFY(setTo(u"TK20"_s, 44, Widget));
    QCOMPARE(desk().held(0x62), 44);
    QVERIFY(setTo(u"System's volume"_s, 61, Widget));
    QCOMPARE(desk().session(u"systemVolume"_s), QJsonValue(61));
    QVERIFY(setTo(u"Audio Mode"_s, u"Dialogue"_s, Widget));
    QCOMPARE(desk().held(0x94), 2);
    QVERIFY(setTo(u"Output"_s, u"Sound Settings"_s, Widget));
    QTRY_VERIFY(desk().session(u"opened"_s).toArray().contains(u"settings:sound"_s));
    // No mode of the series has an equaliser.
    QVERIFY(find(u"button"_s, u"RESET"_s, Widget).isEmpty());
}

void TestSoundPanels::aVisitIsOneEvent()
{
    startOn(u"TK30Z"_s);
    QVERIFY(desk().playThrough(u"TK30Z"_s));
    desk().forget();
    QVERIFY(client().call(u"ui.open"_s, {{u"widget"_s, Widget}}).ok());
    QTRY_VERIFY(!find(u"slider"_s, u"TK30Z"_s, Widget).isEmpty());
    for (const int volume : {5, 25, 35})
        QVERIFY(setTo(u"TK30Z"_s, volume, Widget));
    QVERIFY(setTo(u"Audio Mode"_s, u"Music"_s, Widget));
    QVERIFY(client().call(u"ui.close"_s, {{u"widget"_s, Widget}}).ok());
    QStringList told;
    QTRY_COMPARE(told += desk().told({u"37"_s, u"38"_s}),
                 (QStringList{u"37 \"\" 0 [35,50]"_s, u"38 \"Music\" 0 []"_s}));
}

void TestSoundPanels::theShortcutsPageListsTheSound()
{
    startOn(u"TK30Z"_s);
    const QString page = u"LuShortcutsWidget"_s;
    QVERIFY(client().call(u"ui.open"_s, {{u"widget"_s, page}}).ok());
    for (const QString& text : {u"Mute"_s, u"Loop all speaker output"_s, u"Loop all Audio Mode"_s})
        QVERIFY2(!find(u"button"_s, text, page).isEmpty(), qPrintable(text));
}

void TestSoundPanels::aStepShowsTheVolumeOnTheMonitor()
{
    startOn(u"TK30Z"_s);
    QVERIFY(desk().set(u"shortcuts.active"_s, true));
    QVERIFY(desk().playThrough(u"TK30Z"_s));
    QTRY_VERIFY(showsAfter(u"F3"_s));
    // It goes by itself.
    QTRY_VERIFY_WITH_TIMEOUT(!feedback(), 20'000);
    // Also without the window, and for each of the keys.
    QVERIFY(client().call(u"ui.hide"_s).ok());
    for (const QString& key : {u"F2"_s, u"F1"_s})
        QTRY_VERIFY(showsAfter(key));
    // The feedback of another key takes its place.
    QTRY_VERIFY(showsAfter(u"F3"_s));
    QVERIFY(desk().press(u"Ctrl+Shift"_s, u"F5"_s));
    QVERIFY(!feedback());
}

void TestSoundPanels::noStepNoFeedback()
{
    startOn(u"TK30Z"_s);
    QVERIFY(desk().set(u"shortcuts.active"_s, true));
    for (const QString& key : {u"F1"_s, u"F2"_s, u"F3"_s})
        QVERIFY(!desk().press(u"Ctrl+Shift"_s, key));
    QVERIFY(!feedback());
    // That the feedback would have come by now.
    QVERIFY(desk().playThrough(u"TK30Z"_s));
    QTRY_VERIFY(showsAfter(u"F3"_s));
}

void TestSoundPanels::theEditorIsLiveAndLeavingItRestores()
{
    startOn(u"TK30Z"_s);
    QVERIFY(desk().playThrough(u"TK30Z"_s));
    QVERIFY(client().call(u"ui.show"_s).ok());
    QVERIFY(client().call(u"ui.open"_s, {{u"popup"_s, u"LuPopupVolumeAction"_s}}).ok());
    QTRY_VERIFY(!find(u"slider"_s, u"Volume"_s).isEmpty());
    QVERIFY(setTo(u"Volume"_s, 41));
    QVERIFY(setTo(u"Audio Mode :"_s, u"Music"_s));
    QCOMPARE(desk().held(0x62), 41);
    QCOMPARE(desk().held(0x94), 3);
    QVERIFY(client().call(u"ui.press"_s, {{u"name"_s, u"Cancel"_s}, {u"role"_s, u"button"_s}}).ok());
    QVERIFY(desk().idle());
    QTRY_COMPARE(desk().held(0x62), 20);
    QTRY_COMPARE(desk().held(0x94), 1);
}

QTEST_GUILESS_MAIN(TestSoundPanels)
#include "tst_sound_panels.moc"
