// SPDX-License-Identifier: Apache-2.0
#include "AudioBed.h"
#include "flow_editor.h"

#include <QQmlContext>
#include <QQmlFileSelector>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QString Folder = u"qrc:///TKPackage/qml/TKPackage/"_s;

/// The keys of a system that has some for the volume.
class SystemKeys : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool state MEMBER state NOTIFY stateChanged)

public:
    bool state = false;

Q_SIGNALS:
    void stateChanged();
    void triggered(const QVariantList& monitors);
};

/// The row of the volume over a simulated monitor, with its page beside it.
class Panel
{
public:
    /// @param variant of the files, such as "osx"; empty for this platform's own.
    explicit Panel(AudioBed& bed, const QString& variant = {})
    {
        if (!variant.isEmpty()) {
            m_selector = std::make_unique<QQmlFileSelector>(&m_engine);
            m_selector->setExtraSelectors({variant});
        }
        lumenQmlInit(&m_engine, {u"TKPackage"_s});
        QQmlComponent window(&m_engine);
        window.setData("import QtQuick\nWindow { width: 640; height: 600; visible: true }", QUrl());
        m_window.reset(qobject_cast<QQuickWindow*>(window.create()));
        m_engine.singletonInstance<QObject*>(qmlTypeId("LumenDesk", 1, 0, "LuContext"))
            ->setProperty("mainWindow", QVariant::fromValue(m_window.get()));
        QQmlComponent component(&m_engine, QUrl(Folder + u"Widgets/LuVolumeWidget.qml"_s));
        if (!component.isReady())
            qFatal("%s", qPrintable(component.errorString()));
        m_widget.reset(qobject_cast<QQuickItem*>(component.createWithInitialProperties(
            {{u"monitor"_s, QVariant::fromValue<QObject*>(&bed.model())},
             {u"mainWindow"_s, QVariant::fromValue(m_window.get())},
             {u"width"_s, 308},
             {u"parent"_s, QVariant::fromValue(m_window->contentItem())}})));
        if (!m_widget)
            qFatal("%s", qPrintable(component.errorString()));
        m_page = make("page");
        m_page->setX(330);
        m_page->setWidth(238);
    }
    ~Panel() { m_page.reset(); }

    QQuickItem* widget() const { return m_widget.get(); }
    /// The slider of the row.
    QQuickItem* slider() const { return m_widget->findChild<QQuickItem*>(u"volumeSlider"_s); }
    /// The control of that type and text on the page, where it shows.
    QQuickItem* onPage(const QByteArray& type, const QString& text) const
    {
        QQuickItem* found = findControl(m_page.get(), type, text);
        return found && found->isVisible() ? found : nullptr;
    }
    QQuickItem* named(const QString& name) const { return m_page->findChild<QQuickItem*>(name); }
    /// The glyph that tells how loud it is.
    QString glyph() const
    {
        const auto* title =
            m_widget->findChild<QObject*>(m_widget->property("widgetName").toString() + u".button"_s);
        return title ? title->property("iconName").toString() : QString();
    }
    /// Leaves the page.
    void leavePage() { m_page.reset(); }

    /// One of the widget's inline components, made.
    std::unique_ptr<QQuickItem> make(const char* property)
    {
        auto* component = m_widget->property(property).value<QQmlComponent*>();
        std::unique_ptr<QQuickItem> item(
            qobject_cast<QQuickItem*>(component->create(component->creationContext())));
        if (!item)
            qFatal("%s", qPrintable(component->errorString()));
        item->setParentItem(m_window->contentItem());
        return item;
    }

private:
    QQmlEngine m_engine;
    std::unique_ptr<QQuickWindow> m_window;
    std::unique_ptr<QQmlFileSelector> m_selector;
    std::unique_ptr<QQuickItem> m_widget;
    std::unique_ptr<QQuickItem> m_page;
};

/// As a person or assistive software sets a control.
bool setTo(QQuickItem* control, const QVariant& value)
{
    return control && control->isEnabled() &&
           QMetaObject::invokeMethod(control, "assistiveSet", Q_ARG(QVariant, value));
}

bool press(QQuickItem* control)
{
    return control && control->isEnabled() && QMetaObject::invokeMethod(control, "assistivePress");
}

/// The texts of a combo box's list.
QStringList choices(QQuickItem* box)
{
    QStringList result;
    for (int i = 0; i < box->property("count").toInt(); ++i) {
        QString text;
        QMetaObject::invokeMethod(box, "labelAt", Q_RETURN_ARG(QString, text), Q_ARG(int, i));
        result.append(text);
    }
    return result;
}

} // namespace

/// What a person sees and moves of the monitor's sound.
class TestAudioPanel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanupTestCase() { lumenQmlRelease(); }
    void initTestCase() { QmlWarnings::watch(); }
    void cleanup() { QCOMPARE(QmlWarnings::take(), QStringList()); }
    void theRowShowsWhereTheFeatureIs_data();
    void theRowShowsWhereTheFeatureIs();
    void theRowsSliderSetsTheVolume();
    void aMutedMonitorShowsSilence();
    void theGlyphFollowsTheVolume_data();
    void theGlyphFollowsTheVolume();
    void thePageSetsBothVolumes();
    void thePageSetsTheAudioMode();
    void theEqualiserShowsInEditableModes();
    void theEqualiserSetsTheGains();
    void theOutputIsChosen();
    void soundSettingsAreOpened();
    void aVisitIsOneEvent();
    void theOtherPlatformsVariant();
    void systemKeysShowTheVolumeOnEachMonitor();
    void theFeedbackShowsSixteenLevels_data();
    void theFeedbackShowsSixteenLevels();
    void theEditorIsHeardAndSaved_data();
    void theEditorIsHeardAndSaved();
    void theEditorAppliesWhatIsStored();
    void leavingTheEditorRestores_data();
    void leavingTheEditorRestores();
    void theEditorKeepsTheVolumeOfAMutedMonitor();
};

void TestAudioPanel::theRowShowsWhereTheFeatureIs_data()
{
    QTest::addColumn<bool>("shown");
    for (const char* model : {"TK10", "TK20", "TK30", "TK30X", "TK30Z", "TK40", "TK40X"})
        QTest::newRow(model) << true;
    QTest::newRow("ACME24") << false;
}

void TestAudioPanel::theRowShowsWhereTheFeatureIs()
{
    QFETCH(bool, shown);
    AudioBed bed(QLatin1String(QTest::currentDataTag()));
    bed.beginPlaying();
    const Panel panel(bed);
    QCOMPARE(panel.widget()->property("functionSupported").toBool(), shown);
    QCOMPARE(panel.widget()->isVisible(), shown);
    QCOMPARE(panel.widget()->property("text").toString(), u"Audio"_s);
    QCOMPARE(panel.widget()->property("targetWidth").toInt(), 308);
    QCOMPARE(panel.widget()->property("targetHeight").toInt(), 48);
    QCOMPARE(panel.widget()->property("widgetHidable").toBool(), true);
}

void TestAudioPanel::theRowsSliderSetsTheVolume()
{
    AudioBed bed;
    bed.beginWith({});
    const Panel panel(bed);
    // The system plays elsewhere.
    QCOMPARE(panel.slider()->property("value").toInt(), 20);
    QCOMPARE(panel.slider()->property("to").toInt(), 50);
    QVERIFY(!panel.slider()->isEnabled());
    AudioBed::play("dp-0");
    QTRY_VERIFY(panel.slider()->isEnabled());
    bed.forget();
    QVERIFY(setTo(panel.slider(), 31));
    QVERIFY(bed.idle());
    QCOMPARE(bed.wire(), QStringList{u"set 0x62 31"_s});
    QCOMPARE(bed.told(), QStringList{u"LuVolume 37  0 [31,50]"_s});
    // Left where it was: nothing to tell.
    QVERIFY(setTo(panel.slider(), 31));
    QVERIFY(bed.idle());
    QCOMPARE(bed.told(), QStringList());
    // A change at the monitor's own menu.
    QVERIFY(bed.monitor().setByMenu(AudioBed::Volume, 44));
    QVERIFY(bed.syncModule());
    QTRY_COMPARE_WITH_TIMEOUT(panel.slider()->property("value").toInt(), 44, 20'000);
}

void TestAudioPanel::aMutedMonitorShowsSilence()
{
    AudioBed bed;
    bed.beginPlaying({{"displayVolume", 25}, {"mute", true}});
    const Panel panel(bed);
    QCOMPARE(panel.slider()->property("value").toInt(), 0);
    QCOMPARE(panel.glyph(), u"volume-off"_s);
    // Also the volume that the mute hides can be asked for.
    QVERIFY(setTo(panel.slider(), 25));
    QVERIFY(bed.idle());
    QCOMPARE(bed.flag("mute"), false);
    QCOMPARE(bed.wire(), QStringList{u"set 0x8D 2"_s});
    bed.put("mute", true);
    QVERIFY(bed.idle());
    bed.forget();
    QVERIFY(setTo(panel.slider(), 30));
    QVERIFY(bed.idle());
    QCOMPARE(bed.wire(), (QStringList{u"set 0x62 30"_s, u"set 0x8D 2"_s}));
}

void TestAudioPanel::theGlyphFollowsTheVolume_data()
{
    QTest::addColumn<int>("volume");
    QTest::addColumn<QString>("glyph");
    QTest::newRow("full") << 50 << u"volume"_s;
    QTest::newRow("seven tenths") << 35 << u"volume"_s;
    QTest::newRow("below") << 34 << u"volume-middle"_s;
    QTest::newRow("above 0.41") << 21 << u"volume-middle"_s;
    QTest::newRow("below 0.41") << 20 << u"volume-low"_s;
    QTest::newRow("lowest") << 1 << u"volume-low"_s;
    QTest::newRow("silence") << 0 << u"volume-off"_s;
}

void TestAudioPanel::theGlyphFollowsTheVolume()
{
    QFETCH(int, volume);
    QFETCH(QString, glyph);
    AudioBed bed;
    bed.beginPlaying({{"displayVolume", volume}});
    const Panel panel(bed);
    QCOMPARE(panel.glyph(), glyph);
}

void TestAudioPanel::thePageSetsBothVolumes()
{
    AudioBed bed;
    bed.beginWith({});
    const Panel panel(bed);
    QVERIFY(!panel.onPage("LuSlider", u"TK30Z"_s));
    QVERIFY(panel.onPage("LuLabel",
                         u"The volume of this monitor can be set while the system plays through it."_s));
    QVERIFY(setTo(panel.onPage("LuSlider", u"System's volume"_s), 64));
    QCOMPARE(AudioBed::desktop("systemVolume"), QJsonValue(64));
    QVERIFY(AudioBed::session("systemVolume", 12));
    QTRY_COMPARE_WITH_TIMEOUT(panel.onPage("LuSlider", u"System's volume"_s)->property("value").toInt(), 12,
                              20'000);
    AudioBed::play("dp-0");
    QTRY_VERIFY(panel.onPage("LuSlider", u"TK30Z"_s));
    QVERIFY(!panel.onPage("LuLabel",
                          u"The volume of this monitor can be set while the system plays through it."_s));
    bed.forget();
    QVERIFY(setTo(panel.onPage("LuSlider", u"TK30Z"_s), 7));
    QVERIFY(bed.idle());
    QCOMPARE(bed.wire(), QStringList{u"set 0x62 7"_s});
}

void TestAudioPanel::thePageSetsTheAudioMode()
{
    AudioBed bed;
    bed.beginWith({});
    const Panel panel(bed);
    QQuickItem* const box = panel.onPage("AudioModeChoice", u"Audio Mode"_s);
    QVERIFY(box);
    QCOMPARE(choices(box), (QStringList{u"Standard"_s, u"Dialogue"_s, u"Music"_s}));
    QCOMPARE(box->property("displayText").toString(), u"Standard"_s);
    QVERIFY(setTo(box, u"Music"_s));
    QVERIFY(bed.idle());
    QCOMPARE(bed.wire(), QStringList{u"set 0x94 3"_s});
    AudioBed without(u"TK10"_s);
    without.begin();
    const Panel other(without);
    QVERIFY(!other.onPage("AudioModeChoice", u"Audio Mode"_s));
}

void TestAudioPanel::theEqualiserShowsInEditableModes()
{
    AudioBed bed;
    bed.begin();
    bed.allowEqualiser();
    const Panel panel(bed);
    QVERIFY(!panel.onPage("LuButton", u"RESET"_s));
    bed.put("audioMode", u"User"_s);
    QVERIFY(bed.idle());
    QTRY_VERIFY(panel.onPage("LuButton", u"RESET"_s));
    for (const QString& text : {u"+6db"_s, u"0db"_s, u"-6db"_s, u"Equalizer Setting"_s})
        QVERIFY2(panel.onPage("LuLabel", text), qPrintable(text));
    qreal left = 0;
    for (const QString& text : {u"100"_s, u"300"_s, u"1K"_s, u"3K"_s, u"10K"_s}) {
        QQuickItem* const slider = panel.onPage("LuSlider", text);
        QVERIFY2(slider, qPrintable(text));
        QCOMPARE(slider->property("from").toInt(), -6);
        QCOMPARE(slider->property("to").toInt(), 6);
        const qreal x = slider->mapToScene({}).x();
        QVERIFY(x > left);
        left = x;
    }
    bed.put("audioMode", u"Standard"_s);
    QVERIFY(bed.idle());
    QTRY_VERIFY(!panel.onPage("LuButton", u"RESET"_s));
}

void TestAudioPanel::theEqualiserSetsTheGains()
{
    AudioBed bed;
    QVERIFY(bed.monitor().setByMenu(AudioBed::Mode, 7));
    bed.begin();
    bed.allowEqualiser();
    const Panel panel(bed);
    bed.forget();
    for (const auto& [text, band] :
         {std::pair{u"100"_s, 1}, {u"300"_s, 3}, {u"1K"_s, 10}, {u"3K"_s, 30}, {u"10K"_s, 100}}) {
        QVERIFY(setTo(panel.onPage("LuSlider", text), -3));
        QVERIFY(bed.idle());
        QCOMPARE(bed.wire(), QStringList{u"set 0x99 %1"_s.arg(band << 8 | 0x13)});
        QCOMPARE(bed.gain(band), -3);
    }
    QVERIFY(press(panel.onPage("LuButton", u"RESET"_s)));
    QVERIFY(bed.idle());
    QCOMPARE(bed.gains(), (QList<int>{0, 0, 0, 0, 0}));
    QTRY_COMPARE_WITH_TIMEOUT(panel.onPage("LuSlider", u"1K"_s)->property("value").toInt(), 0, 20'000);
    // The monitor's own menu moves them, too.
    QVERIFY(bed.monitor().setByMenu(AudioBed::Gain, 0x05, 10));
    QVERIFY(bed.syncModule());
    QTRY_COMPARE_WITH_TIMEOUT(panel.onPage("LuSlider", u"1K"_s)->property("value").toInt(), 5, 20'000);
}

void TestAudioPanel::theOutputIsChosen()
{
    AudioBed bed;
    bed.beginWith({});
    const Panel panel(bed);
    QQuickItem* const box = panel.onPage("OutputChoice", u"Output"_s);
    QVERIFY(box);
    QCOMPARE(choices(box), (QStringList{u"Built-in Speakers"_s, u"TK30Z DisplayPort"_s, u"Headset"_s,
                                        u"Sound Settings"_s}));
    QCOMPARE(box->property("displayText").toString(), u"Built-in Speakers"_s);
    QVERIFY(setTo(box, u"TK30Z DisplayPort"_s));
    QTRY_VERIFY(bed.flag("isCurrentAudioOutput"));
    QCOMPARE(AudioBed::desktop("defaultAudioOutput"), QJsonValue(u"dp-0"_s));
    QCOMPARE(bed.told(), QStringList{u"LuVolume 9 monitor_speaker 0 []"_s});
    QTRY_COMPARE(box->property("displayText").toString(), u"TK30Z DisplayPort"_s);
    // Somebody else's choice, and another list.
    AudioBed::outputs({{u"usb-0"_s, u"Headset"_s}});
    AudioBed::play("usb-0");
    QTRY_COMPARE(choices(box), (QStringList{u"Headset"_s, u"Sound Settings"_s}));
    QTRY_COMPARE(box->property("displayText").toString(), u"Headset"_s);
}

void TestAudioPanel::soundSettingsAreOpened()
{
    AudioBed bed;
    bed.beginWith({});
    const Panel panel(bed);
    QVERIFY(AudioBed::session("opened", QJsonArray()));
    QQuickItem* const box = panel.onPage("OutputChoice", u"Output"_s);
    QVERIFY(setTo(box, u"Sound Settings"_s));
    QCOMPARE(AudioBed::desktop("opened"), QJsonValue(QJsonArray{u"settings:sound"_s}));
    QTRY_COMPARE(box->property("displayText").toString(), u"Built-in Speakers"_s);
    QCOMPARE(AudioBed::desktop("defaultAudioOutput"), QJsonValue(u"BuiltInSpeakerDevice"_s));
    QCOMPARE(bed.told(), QStringList());
}

void TestAudioPanel::aVisitIsOneEvent()
{
    AudioBed bed;
    bed.beginPlaying({{"displayVolume", 10}});
    Panel panel(bed);
    for (const int volume : {11, 15, 19}) {
        QVERIFY(setTo(panel.onPage("LuSlider", u"TK30Z"_s), volume));
        QVERIFY(bed.idle());
    }
    QVERIFY(setTo(panel.onPage("LuSlider", u"System's volume"_s), 33));
    QTRY_COMPARE(bed.number("systemVolume"), 33);
    QVERIFY(setTo(panel.onPage("AudioModeChoice", u"Audio Mode"_s), u"Dialogue"_s));
    QVERIFY(bed.idle());
    QCOMPARE(bed.told(), QStringList());
    panel.leavePage();
    QCOMPARE(bed.told(), (QStringList{u"LuVolume 37  0 [19,33]"_s, u"LuVolume 38 Dialogue 0 []"_s}));
}

void TestAudioPanel::theOtherPlatformsVariant()
{
    AudioBed bed;
    bed.beginPlaying({{"displayVolume", 10}});
    Panel panel(bed, u"osx"_s);
    QVERIFY(!panel.onPage("LuSlider", u"System's volume"_s));
    QVERIFY(!panel.onPage("LuSlider", u"TK30Z"_s));
    QVERIFY(panel.onPage("LuSlider", u"Volume"_s));
    QVERIFY(setTo(panel.slider(), 30));
    QVERIFY(bed.idle());
    QCOMPARE(bed.told(), QStringList{u"LuVolume 37  0 [30,n/a]"_s});
    const std::unique_ptr<QQuickItem> settings = panel.make("settingsInnerPage");
    QCOMPARE(settings->property("title").toString(), u"Audio"_s);
    QVERIFY(
        findControl(settings.get(), "LuLabel",
                    u"Volume can be adjusted in main page at anytime. You can also expand the menu to choose "
                    "the audio source."_s));
    QQuickItem* const row = findControl(settings.get(), "LuPageRow", u"iKeyboard Control"_s);
    QVERIFY(row);
    QCOMPARE(row->property("description").toString(), u"Enable iKeyboard Control to use the F11/F12 volume "
                                                      u"keys on Mac keyboard to adjust the volume of the "
                                                      "selected audio output."_s);
    // A session may have no such keys.
    QQuickItem* const box = findControl(settings.get(), "LuSwitch", u"iKeyboard Control"_s);
    QVERIFY(!press(box));
    SystemKeys keys;
    panel.widget()->setProperty("keyboard", QVariant::fromValue<QObject*>(&keys));
    QTRY_VERIFY(box->isEnabled());
    QVERIFY(press(box));
    QCOMPARE(keys.state, true);
    // The slider stays on the page while the system plays elsewhere.
    AudioBed::play("usb-0");
    QTRY_VERIFY(!panel.slider()->isEnabled());
    QVERIFY(panel.onPage("LuSlider", u"Volume"_s));
}

void TestAudioPanel::systemKeysShowTheVolumeOnEachMonitor()
{
    AudioBed first(u"TK30Z"_s);
    AudioBed second(u"TK20"_s);
    first.begin();
    second.begin();
    const auto shown = [] {
        QStringList pictures;
        const QWindowList windows = QGuiApplication::topLevelWindows();
        for (const QWindow* window : windows) {
            if (window->isVisible() && window->property("levels").toInt() == 16)
                pictures.append(window->property("picture").toString());
        }
        return pictures;
    };
    {
        const Panel panel(first, u"osx"_s);
        SystemKeys keys;
        panel.widget()->setProperty("keyboard", QVariant::fromValue<QObject*>(&keys));
        const QVariantList both{QVariant::fromValue<QObject*>(&first.model()),
                                QVariant::fromValue<QObject*>(&second.model())};
        QVERIFY(panel.widget()->property("inMainWindow").toBool());
        // Again: the same two windows.
        for (int i = 0; i < 2; ++i)
            QTRY_COMPARE((Q_EMIT keys.triggered(both), shown()),
                         (QStringList{u"ico48_volume"_s, u"ico48_volume"_s}));
        second.put("mute", true);
        QVERIFY(second.idle());
        QTRY_COMPARE((Q_EMIT keys.triggered(both), shown().contains(u"ico48_mute"_s)), true);
    }
    QTRY_COMPARE(shown(), QStringList());
}

void TestAudioPanel::theFeedbackShowsSixteenLevels_data()
{
    QTest::addColumn<int>("volume");
    QTest::addColumn<bool>("mute");
    QTest::addColumn<int>("level");
    QTest::newRow("full") << 50 << false << 16;
    QTest::newRow("half") << 25 << false << 8;
    QTest::newRow("rounded up") << 28 << false << 9;   // 8.96
    QTest::newRow("rounded down") << 20 << false << 6; // 6.4
    QTest::newRow("lowest with a level") << 2 << false << 1;
    QTest::newRow("below a level") << 1 << false << 0;
    QTest::newRow("silence") << 0 << false << 0;
    QTest::newRow("muted") << 50 << true << 0;
}

void TestAudioPanel::theFeedbackShowsSixteenLevels()
{
    QFETCH(int, volume);
    QFETCH(bool, mute);
    QFETCH(int, level);
    AudioBed bed;
    bed.beginPlaying({{"displayVolume", volume}, {"mute", mute}});
    QQmlEngine engine;
    lumenQmlInit(&engine, {u"TKPackage"_s});
    QQmlComponent component(&engine, QUrl(Folder + u"Popups/LuPopupVolumeShortcut.qml"_s));
    QVERIFY2(component.isReady(), qPrintable(component.errorString()));
    const std::unique_ptr<QQuickWindow> window(
        qobject_cast<QQuickWindow*>(component.createWithInitialProperties(
            {{u"monitor"_s, QVariant::fromValue<QObject*>(&bed.model())}})));
    QVERIFY2(window, qPrintable(component.errorString()));
    QCOMPARE(window->size(), QSize(172, 177));
    QCOMPARE(window->property("levels").toInt(), 16);
    QCOMPARE(window->property("level").toInt(), level);
    QCOMPARE(window->property("value").toInt(), mute ? 0 : volume);
    QCOMPARE(window->property("picture").toString(), level > 0 ? u"ico48_volume"_s : u"ico48_mute"_s);
    QVERIFY(window->flags().testFlag(Qt::WindowDoesNotAcceptFocus));
    QVERIFY(window->flags().testFlag(Qt::WindowTransparentForInput));
    // The next step shows in the same window.
    bed.put("displayVolume", 40);
    QVERIFY(bed.idle());
    QTRY_COMPARE(window->property("level").toInt(), 13);
}

void TestAudioPanel::theEditorIsHeardAndSaved_data()
{
    QTest::addColumn<bool>("modes");
    QTest::newRow("TK30Z") << true;
    QTest::newRow("TK10") << false;
}

void TestAudioPanel::theEditorIsHeardAndSaved()
{
    QFETCH(bool, modes);
    AudioBed bed(QLatin1String(QTest::currentDataTag()));
    bed.beginPlaying({{"displayVolume", 10}});
    FlowEditor editor(bed, u"LuPopupVolumeAction"_s, {});
    QCOMPARE(editor.title(), u"Audio"_s);
    QVERIFY(editor.setTo("LuSlider", u"Volume"_s, 42));
    QQuickItem* const box = editor.control("AudioModeChoice", u"Audio Mode :"_s);
    QCOMPARE(box && box->isVisible(), modes);
    if (modes)
        QVERIFY(editor.setTo("AudioModeChoice", u"Audio Mode :"_s, u"Music"_s));
    QVERIFY(bed.idle());
    QCOMPARE(bed.number("displayVolume"), 42);
    QVERIFY(editor.press("LuButton", u"Save"_s));
    QCOMPARE(editor.acceptedCount(), 1);
    QCOMPARE(editor.acceptedModule(), bed.module());
    QVariantMap wanted{{u"displayVolume"_s, 42}};
    if (modes)
        wanted.insert(u"audioMode"_s, u"Music"_s);
    QCOMPARE(editor.accepted(), wanted);
    QVERIFY(bed.idle());
    QCOMPARE(bed.number("displayVolume"), 42);
}

void TestAudioPanel::theEditorAppliesWhatIsStored()
{
    AudioBed bed;
    bed.beginPlaying({{"displayVolume", 10}});
    FlowEditor editor(bed, u"LuPopupVolumeAction"_s,
                      {{u"displayVolume"_s, 33}, {u"audioMode"_s, u"Dialogue"_s}});
    QVERIFY(bed.idle());
    QCOMPARE(bed.number("displayVolume"), 33);
    QCOMPARE(bed.get("LuVolume", "audioMode").toString(), u"Dialogue"_s);
    QTRY_COMPARE(editor.control("LuSlider", u"Volume"_s)->property("value").toInt(), 33);
    QTRY_COMPARE(editor.control("AudioModeChoice", u"Audio Mode :"_s)->property("displayText").toString(),
                 u"Dialogue"_s);
    QVERIFY(editor.press("LuButton", u"Save"_s));
    QCOMPARE(editor.accepted(), (QVariantMap{{u"displayVolume"_s, 33}, {u"audioMode"_s, u"Dialogue"_s}}));
}

void TestAudioPanel::leavingTheEditorRestores_data()
{
    QTest::addColumn<bool>("muted");
    QTest::newRow("heard") << false;
    QTest::newRow("muted") << true;
}

void TestAudioPanel::leavingTheEditorRestores()
{
    QFETCH(bool, muted);
    AudioBed bed;
    bed.beginPlaying({{"displayVolume", 10}, {"mute", muted}});
    FlowEditor editor(bed, u"LuPopupVolumeAction"_s, {});
    QVERIFY(editor.setTo("LuSlider", u"Volume"_s, 42));
    QVERIFY(editor.setTo("AudioModeChoice", u"Audio Mode :"_s, u"Music"_s));
    QVERIFY(bed.idle());
    QCOMPARE(bed.number("displayVolume"), 42);
    QCOMPARE(bed.flag("mute"), false);
    QVERIFY(editor.press("LuButton", u"Cancel"_s));
    QVERIFY(bed.idle());
    QCOMPARE(bed.number("displayVolume"), 10);
    QCOMPARE(bed.flag("mute"), muted);
    QCOMPARE(bed.get("LuVolume", "audioMode").toString(), u"Standard"_s);
    QCOMPARE(editor.acceptedCount(), 0);
}

void TestAudioPanel::theEditorKeepsTheVolumeOfAMutedMonitor()
{
    AudioBed bed;
    bed.beginPlaying({{"displayVolume", 10}, {"mute", true}});
    FlowEditor editor(bed, u"LuPopupVolumeAction"_s, {});
    QCOMPARE(editor.control("LuSlider", u"Volume"_s)->property("value").toInt(), 10);
    QVERIFY(editor.press("LuButton", u"Save"_s));
    QCOMPARE(editor.accepted().value(u"displayVolume"_s).toInt(), 10);
}

QTEST_MAIN(TestAudioPanel)
#include "tst_audio_panel.moc"
