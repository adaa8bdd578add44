// SPDX-License-Identifier: Apache-2.0
#include "LuPreferences.h"
#include "Shell.h"

#include <QJsonArray>
#include <QQuickItem>
#include <QRegularExpression>
#include <QTest>
#include <QVariantMap>

#include <optional>

using namespace Qt::StringLiterals;

/// What a user chooses for the program itself: the settings window, the arrangement of widgets, the
/// introduction.
class TestSettings : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void everyChoiceIsStored();
    void aLanguageIsChosenInItsOwnWords();
    void anUnknownLanguageIsRefused();
    void loginStartFallsBackWhereItIsRefused();
    void highContrastIsATheme();
    void aSectionOpensWhileItsRequirementsHold();
    void aSectionThatHidesItselfIsNotOffered();
    void sectionsBelongToTheCurrentMonitor();
    void anUnknownSectionOpensNothing();
    void theLinkOfAPanelOpensTheSettings();
    void aboutNamesEveryNotice();
    void everyControlOfTheSettingsHasANameAndARole();
    void theKeyboardWalksThePages();

    void arrangedKeepsThePackagesOrder_data();
    void arrangedKeepsThePackagesOrder();
    void aMoveStaysInItsGroup();
    void aMoveThatIsNoneIsRefused();
    void theWindowFollowsTheArrangement();
    void aHiddenWidgetIsGoneAndSwitchedOff();
    void aWidgetThatMustStayCannotBeHidden();
    void everyWidgetHiddenSaysSo();
    void arrangingIsBesideTheWindow();
    void theKeyboardKeepsTheMovedEntry();

    void theIntroductionShowsThePagesOfThisSystem();
    void theIntroductionIsShownOnce();
    void closingTheWindowEndsOnlyWhereItIsTold();
    void troubleIsToldWhereThereIsNoMonitor();
    void aMirroredWindowHasItsHeaderMirrored();

private:
    void start(const QList<FakeMonitor*>& monitors);
    static QList<QUrl> testUrls();
    QStringList namesIn(const QString& page) const;
    QStringList tileOrder() const;
    QStringList labels(QQuickWindow* window) const;
    QQuickWindow* settings() const { return windowOf("settingsWindow"); }
    QQuickWindow* windowOf(const char* property) const
    {
        return m_shell->window()->property(property).value<QQuickWindow*>();
    }

    QVariantMap m_store;
    std::optional<FakeMonitor> m_first;
    std::optional<FakeMonitor> m_second;
    std::optional<Shell> m_shell;
};

QList<QUrl> TestSettings::testUrls()
{
    QList<QUrl> urls;
    for (const char* name :
         {"LuFirstWidget", "LuOneWidget", "LuTwoWidget", "LuSecondWidget", "LuThreeWidget"})
        urls << QUrl(u"qrc:///tests/package/Widgets/%1.qml"_s.arg(QLatin1StringView(name)));
    return urls;
}

void TestSettings::init()
{
    m_store.clear();
    m_first.emplace(u"TK30Z"_s);
    m_second.emplace(u"TK20"_s);
    LuPreferences* preferences = LuPreferences::instance();
    preferences->setStore(
        [this](const QString& key, const QVariant& fallback) { return m_store.value(key, fallback); },
        [this](const QString& key, const QVariant& value) { m_store.insert(key, value); });
    preferences->setLoginStart({}, {});
    preferences->setTrayVisible(false);
    start({&*m_first, &*m_second});
}

void TestSettings::cleanup()
{
    m_shell.reset();
    LuPreferences::instance()->setStore({}, {});
    QGuiApplication::setLayoutDirection(Qt::LayoutDirectionAuto);
    m_second.reset();
    m_first.reset();
    QCOMPARE(Shell::takeWarnings(), QStringList());
}

void TestSettings::start(const QList<FakeMonitor*>& monitors)
{
    m_shell.emplace(monitors);
    m_shell->context.setWidgetUrlSource([](QObject*) { return testUrls(); });
    QVERIFY(m_shell->window());
    QVERIFY(m_shell->bridge->show().ok());
    QVERIFY(QTest::qWaitForWindowExposed(m_shell->window(), PatienceMs));
}

QStringList TestSettings::labels(QQuickWindow* window) const
{
    QStringList texts;
    QList<QQuickItem*> waiting{window->contentItem()};
    while (!waiting.isEmpty()) {
        QQuickItem* item = waiting.takeFirst();
        if (!item->isVisible())
            continue;
        if (const QVariant text = item->property("text"); item->inherits("QQuickText") && text.isValid())
            texts << text.toString();
        waiting << item->childItems();
    }
    return texts;
}

QStringList TestSettings::tileOrder() const
{
    QList<QPair<double, QString>> places;
    for (const char* name : {"LuOneWidget", "LuTwoWidget", "LuThreeWidget"}) {
        if (const QQuickItem* item = m_shell->widget(name))
            places.append({item->mapToScene(QPointF()).x(), QString::fromLatin1(name)});
    }
    std::sort(places.begin(), places.end());
    QStringList names;
    for (const auto& place : std::as_const(places))
        names << place.second;
    return names;
}

void TestSettings::everyChoiceIsStored()
{
    QVERIFY(m_shell->bridge->openSection(u"general"_s).ok());
    LuPreferences* preferences = LuPreferences::instance();
    QVERIFY(preferences->closeToTray());
    QVERIFY(preferences->restoreAtStart());
    QVERIFY(m_shell->bridge->press(u"Keep running when the window is closed"_s, u"switch"_s).ok());
    QVERIFY(m_shell->bridge->press(u"Restore my settings at start"_s, u"switch"_s).ok());
    QCOMPARE(m_store.value(u"closeToTray"_s), QVariant(false));
    QCOMPARE(m_store.value(u"restoreAtStart"_s), QVariant(false));
    QVERIFY(!preferences->closeToTray());
    QVERIFY(m_shell->bridge->press(u"Restore my settings at start"_s, u"switch"_s).ok());
    QCOMPARE(m_store.value(u"restoreAtStart"_s), QVariant(true));
}

void TestSettings::aLanguageIsChosenInItsOwnWords()
{
    LuPreferences* preferences = LuPreferences::instance();
    QCOMPARE(preferences->languages().size(), 19);
    QVERIFY(m_shell->bridge->openSection(u"general"_s).ok());
    int changes = 0;
    connect(preferences, &LuPreferences::languageChanged, this, [&changes] { ++changes; });
    QVERIFY(m_shell->bridge->setValue(u"Language"_s, u"Deutsch"_s, u"comboBox"_s).ok());
    QCOMPARE(preferences->language(), u"de"_s);
    QCOMPARE(m_store.value(u"language"_s), QVariant(u"de"_s));
    QVERIFY(m_shell->bridge->setValue(u"Language"_s, u"As the desktop"_s, u"comboBox"_s).ok());
    QCOMPARE(preferences->language(), QString());
    QCOMPARE(changes, 2);
    preferences->disconnect(this);
}

void TestSettings::anUnknownLanguageIsRefused()
{
    LuPreferences* preferences = LuPreferences::instance();
    preferences->setLanguage(u"tlh"_s);
    QCOMPARE(preferences->language(), QString());
    QCOMPARE(Shell::takeWarnings().size(), 1);
    m_store.insert(u"language"_s, u"nonsense"_s);
    preferences->setStore(
        [this](const QString& key, const QVariant& fallback) { return m_store.value(key, fallback); }, {});
    QCOMPARE(preferences->language(), QString());
}

void TestSettings::loginStartFallsBackWhereItIsRefused()
{
    LuPreferences* preferences = LuPreferences::instance();
    bool state = false;
    bool allowed = false;
    preferences->setLoginStart([&state] { return state; },
                               [&](bool on) {
                                   if (allowed)
                                       state = on;
                                   return allowed;
                               });
    QVERIFY(m_shell->bridge->openSection(u"general"_s).ok());
    QVERIFY(m_shell->bridge->press(u"Start at login"_s, u"switch"_s).ok());
    QVERIFY(!preferences->startAtLogin());
    QCOMPARE(Shell::takeWarnings().size(), 1);
    allowed = true;
    QVERIFY(m_shell->bridge->setValue(u"Start at login"_s, true, u"switch"_s).ok());
    QTRY_VERIFY(preferences->startAtLogin());
    preferences->setLoginStart({}, {});
}

void TestSettings::highContrastIsATheme()
{
    QVERIFY(m_shell->bridge->openSection(u"general"_s).ok());
    QVERIFY(m_shell->bridge->press(u"High contrast"_s, u"radio"_s).ok());
    QVERIFY(m_shell->context.highContrast());
    QCOMPARE(m_shell->context.theme(), u"contrast"_s);
    QVERIFY(m_shell->bridge->press(u"Light"_s, u"radio"_s).ok());
    QVERIFY(!m_shell->context.highContrast());
}

void TestSettings::aSectionOpensWhileItsRequirementsHold()
{
    QCOMPARE(m_shell->bridge->openSection(u"SectionShown"_s).code, int(LuWindowBridge::NoSuchThing));
    QVERIFY(!settings());
    m_first->contrast.setState(true);
    QVERIFY(m_shell->bridge->openSection(u"SectionShown"_s).ok());
    QVERIFY(m_shell->bridge->press(u"Section switch"_s, u"switch"_s, u"SectionShown"_s).ok());
    QVERIFY(labels(settings()).contains(u"It is there while the contrast may be switched."_s));
    // It may go while it is open.
    m_first->contrast.setState(false);
    QTRY_VERIFY(!labels(settings()).contains(u"Shown section"_s));
    m_first->contrast.setState(true);
    QVERIFY(m_shell->bridge->openSection(u"SectionShown"_s).ok());
    QVERIFY(m_shell->bridge->close(u"SectionShown"_s).ok());
    QVERIFY(!settings());
}

void TestSettings::aSectionThatHidesItselfIsNotOffered()
{
    m_first->pivot.setState(true);
    QCOMPARE(m_shell->bridge->openSection(u"SectionVisible"_s).code, int(LuWindowBridge::NoSuchThing));
    m_first->pivot.setState(false);
    QVERIFY(m_shell->bridge->openSection(u"SectionVisible"_s).ok());
    QVERIFY(labels(settings()).contains(u"Second body"_s));
    // Another page takes it from the window, and it stays on offer.
    QVERIFY(m_shell->bridge->openSection(u"about"_s).ok());
    QVERIFY(!labels(settings()).contains(u"Second body"_s));
    QVERIFY(m_shell->bridge->press(u"Second section"_s, u"listItem"_s).ok());
    QVERIFY(labels(settings()).contains(u"Second body"_s));
}

void TestSettings::sectionsBelongToTheCurrentMonitor()
{
    m_first->contrast.setState(true);
    QVERIFY(m_shell->bridge->openSection(u"SectionShown"_s).ok());
    m_shell->context.setCurrentMonitor(&*m_second);
    QTRY_COMPARE(settings()->property("page").toString(), u"general"_s);
    QVERIFY(!labels(settings()).contains(u"Shown section"_s));
    QVERIFY(m_shell->bridge->openSection(u"SectionVisible"_s).ok());
    m_shell->context.setMonitors({});
    QTRY_COMPARE(settings()->property("page").toString(), u"general"_s);
}

void TestSettings::anUnknownSectionOpensNothing()
{
    QCOMPARE(m_shell->bridge->openSection(u"SectionNowhere"_s).code, int(LuWindowBridge::NoSuchThing));
    QVERIFY(!settings());
}

void TestSettings::theLinkOfAPanelOpensTheSettings()
{
    m_first->contrast.setState(true);
    m_shell->context.openSettings(u"SectionShown"_s);
    QVERIFY(settings());
    QCOMPARE(settings()->property("page").toString(), u"SectionShown"_s);
    // One that is not there leaves the user at the settings, not before nothing.
    m_shell->context.openSettings(u"SectionNowhere"_s);
    QVERIFY(settings()->isVisible());
}

void TestSettings::aboutNamesEveryNotice()
{
    QVERIFY(m_shell->bridge->openSection(u"about"_s).ok());
    const QStringList texts = labels(settings());
    QVERIFY(texts.contains(u"Lumen Desk"_s));
    QVERIFY(!texts.filter(u"LGPL-3.0-only"_s).isEmpty());
}

void TestSettings::everyControlOfTheSettingsHasANameAndARole()
{
    m_first->contrast.setState(true);
    for (const char* page : {"general", "widgets", "about", "SectionShown", "SectionVisible"}) {
        QVERIFY(m_shell->bridge->openSection(QString::fromLatin1(page)).ok());
        const QJsonObject tree = m_shell->bridge->tree().value.toObject();
        QList<QJsonObject> waiting{tree};
        while (!waiting.isEmpty()) {
            const QJsonObject node = waiting.takeFirst();
            QVERIFY2(!node[u"name"_s].toString().isEmpty(), qPrintable(node[u"role"_s].toString()));
            for (const QJsonValue& child : node[u"children"_s].toArray())
                waiting << child.toObject();
        }
    }
}

void TestSettings::theKeyboardWalksThePages()
{
    QVERIFY(m_shell->bridge->openSection(u"general"_s).ok());
    QVERIFY(m_shell->bridge->key(u"General"_s, u"Down"_s, u"listItem"_s).ok());
    const QQuickItem* next = m_shell->item(u"tab.widgets"_s);
    QVERIFY(next && next->hasFocus());
    QVERIFY(m_shell->bridge->key(u"Widgets"_s, u"Return"_s, u"listItem"_s).ok());
    QCOMPARE(settings()->property("page").toString(), u"widgets"_s);
}

void TestSettings::arrangedKeepsThePackagesOrder_data()
{
    QTest::addColumn<QStringList>("stored");
    QTest::addColumn<QStringList>("names");
    QTest::addColumn<QStringList>("expected");
    const QStringList abc{u"a"_s, u"b"_s, u"c"_s};
    QTest::newRow("nothing stored") << QStringList() << abc << abc;
    QTest::newRow("reversed") << QStringList{u"c"_s, u"b"_s, u"a"_s} << abc
                              << QStringList{u"c"_s, u"b"_s, u"a"_s};
    QTest::newRow("a new one stands behind its predecessor")
        << QStringList{u"c"_s, u"a"_s} << abc << QStringList{u"c"_s, u"a"_s, u"b"_s};
    QTest::newRow("a new first one stands first")
        << QStringList{u"c"_s, u"b"_s} << abc << QStringList{u"a"_s, u"c"_s, u"b"_s};
    QTest::newRow("one that is not there is passed over")
        << QStringList{u"x"_s, u"b"_s, u"x"_s} << QStringList{u"a"_s, u"b"_s} << QStringList{u"a"_s, u"b"_s};
    QTest::newRow("one that is named twice stands once")
        << QStringList{u"b"_s, u"b"_s, u"a"_s} << QStringList{u"a"_s, u"b"_s} << QStringList{u"b"_s, u"a"_s};
}

void TestSettings::arrangedKeepsThePackagesOrder()
{
    QFETCH(QStringList, stored);
    QFETCH(QStringList, names);
    QFETCH(QStringList, expected);
    m_store.insert(u"window/widgetOrder"_s, stored);
    LuPreferences::instance()->setStore(
        [this](const QString& key, const QVariant& fallback) { return m_store.value(key, fallback); }, {});
    QCOMPARE(LuPreferences::instance()->arranged(names), expected);
}

void TestSettings::aMoveStaysInItsGroup()
{
    LuPreferences* preferences = LuPreferences::instance();
    const QStringList all{u"row1"_s, u"tile1"_s, u"row2"_s, u"tile2"_s, u"tile3"_s};
    QVERIFY(preferences->moveWidget(u"tile3"_s, 0, {u"tile1"_s, u"tile2"_s, u"tile3"_s}, all));
    QCOMPARE(preferences->arranged(all),
             (QStringList{u"row1"_s, u"tile3"_s, u"row2"_s, u"tile1"_s, u"tile2"_s}));
    QCOMPARE(m_store.value(u"window/widgetOrder"_s).toStringList(), preferences->arranged(all));
    // What another package's monitor has keeps its place.
    const QStringList others{u"other1"_s, u"other2"_s};
    QVERIFY(preferences->moveWidget(u"other2"_s, 0, others, others));
    QCOMPARE(preferences->arranged(others), (QStringList{u"other2"_s, u"other1"_s}));
    QCOMPARE(preferences->arranged(all).mid(1, 1), QStringList{u"tile3"_s});
    preferences->resetArrangement();
    QCOMPARE(preferences->arranged(all), all);
}

void TestSettings::aMoveThatIsNoneIsRefused()
{
    LuPreferences* preferences = LuPreferences::instance();
    const QStringList all{u"a"_s, u"b"_s};
    QVERIFY(!preferences->moveWidget(u"a"_s, 2, all, all));
    QVERIFY(!preferences->moveWidget(u"a"_s, -1, all, all));
    QVERIFY(!preferences->moveWidget(u"x"_s, 0, all, all));
    QVERIFY(preferences->widgetOrder().isEmpty());
}

void TestSettings::theWindowFollowsTheArrangement()
{
    QTRY_COMPARE(tileOrder(), (QStringList{u"LuOneWidget"_s, u"LuTwoWidget"_s, u"LuThreeWidget"_s}));
    QVERIFY(m_shell->bridge->openSection(u"widgets"_s).ok());
    QVERIFY(m_shell->bridge->press(u"Move Tile Three forward"_s).ok());
    QTRY_COMPARE(tileOrder(), (QStringList{u"LuOneWidget"_s, u"LuThreeWidget"_s, u"LuTwoWidget"_s}));
    QVERIFY(m_shell->bridge->press(u"Move Second row forward"_s).ok());
    QTRY_VERIFY(m_shell->widget("LuSecondWidget")->mapToScene(QPointF()).y() <
                m_shell->widget("LuFirstWidget")->mapToScene(QPointF()).y());
    // Scripts keep the package's order.
    const QJsonArray infos = m_shell->bridge->widgetInfos().value.toArray();
    QCOMPARE(infos[1][u"widget"_s].toString(), u"LuOneWidget"_s);
    // The other monitor's window and the next session's are arranged the same way.
    m_shell->context.setCurrentMonitor(&*m_second);
    QTRY_COMPARE(tileOrder(), (QStringList{u"LuOneWidget"_s, u"LuThreeWidget"_s, u"LuTwoWidget"_s}));
    QVERIFY(m_shell->bridge->press(u"Reset to the original order"_s).ok());
    QTRY_COMPARE(tileOrder(), (QStringList{u"LuOneWidget"_s, u"LuTwoWidget"_s, u"LuThreeWidget"_s}));
}

void TestSettings::aHiddenWidgetIsGoneAndSwitchedOff()
{
    QQuickItem* one = m_shell->widget("LuOneWidget");
    QVERIFY(one && one->property("active").toBool());
    QVERIFY(m_shell->bridge->openPage(u"LuOneWidget"_s).ok());
    QVERIFY(m_shell->bridge->openSection(u"widgets"_s).ok());
    QVERIFY(m_shell->bridge->openPage(u"LuOneWidget"_s).ok());
    QVERIFY(m_shell->bridge->press(u"Tile One"_s, u"switch"_s).ok());
    QTRY_COMPARE(tileOrder(), (QStringList{u"LuTwoWidget"_s, u"LuThreeWidget"_s}));
    QTRY_VERIFY(!m_shell->item(u"pagePanel"_s));
    QVERIFY(!one->property("active").toBool());
    QCOMPARE(one->property("removals").toInt(), 1);
    QCOMPARE(m_store.value(u"window/hiddenWidgets"_s).toStringList(), QStringList{u"LuOneWidget"_s});
    const QJsonObject info = m_shell->bridge->widgetInfos().value.toArray()[1].toObject();
    QCOMPARE(info[u"supported"_s].toBool(), true);
    QCOMPARE(info[u"shown"_s].toBool(), false);
    QVERIFY(m_shell->bridge->press(u"Tile One"_s, u"switch"_s).ok());
    QTRY_COMPARE(tileOrder().size(), 3);
    QVERIFY(!one->property("active").toBool());
}

void TestSettings::aWidgetThatMustStayCannotBeHidden()
{
    QVERIFY(m_shell->bridge->openSection(u"widgets"_s).ok());
    QCOMPARE(m_shell->bridge->press(u"Second row"_s, u"switch"_s).code, int(LuWindowBridge::NotWritable));
}

void TestSettings::everyWidgetHiddenSaysSo()
{
    for (const QUrl& url : testUrls())
        LuPreferences::instance()->setWidgetHidden(url.fileName().chopped(4), true);
    QTRY_VERIFY(labels(m_shell->window()).contains(u"Every widget is hidden"_s));
    QVERIFY(m_shell->bridge->press(u"Arrange"_s, u"button"_s).ok());
    QVERIFY(m_shell->item(u"arrangePage"_s));
    QVERIFY(m_shell->bridge->press(u"Tile Two"_s, u"switch"_s).ok());
    QTRY_COMPARE(tileOrder(), QStringList{u"LuTwoWidget"_s});
}

void TestSettings::arrangingIsBesideTheWindow()
{
    QMetaObject::invokeMethod(m_shell->window(), "openArrangement");
    QVERIFY(m_shell->item(u"arrangePage"_s));
    QVERIFY(m_shell->bridge->press(u"Move Tile One back"_s).ok());
    QTRY_COMPARE(tileOrder(), (QStringList{u"LuTwoWidget"_s, u"LuOneWidget"_s, u"LuThreeWidget"_s}));
    // The page of another monitor's widgets is none of this one's.
    m_shell->context.setCurrentMonitor(&*m_second);
    QTRY_VERIFY(!m_shell->item(u"arrangePage"_s));
}

void TestSettings::theKeyboardKeepsTheMovedEntry()
{
    QVERIFY(m_shell->bridge->openSection(u"widgets"_s).ok());
    QVERIFY(m_shell->bridge->key(u"Move Tile Three forward"_s, u"Return"_s).ok());
    QTRY_COMPARE(tileOrder(), (QStringList{u"LuOneWidget"_s, u"LuThreeWidget"_s, u"LuTwoWidget"_s}));
    const QQuickItem* button = m_shell->item(u"LuThreeWidget.up"_s);
    QVERIFY(button);
    QTRY_VERIFY(m_shell->item(u"LuThreeWidget.up"_s)->hasFocus());
}

void TestSettings::theIntroductionShowsThePagesOfThisSystem()
{
    bool opened = false;
    QMetaObject::invokeMethod(m_shell->window(), "openWalkthrough", Q_RETURN_ARG(bool, opened));
    QVERIFY(opened);
    QQuickWindow* window = windowOf("walkthroughWindow");
    QVERIFY(window && window->isVisible());
    QVERIFY(labels(window).contains(u"For all"_s));
    QVERIFY(!labels(window).contains(u"Try it"_s));
    QVERIFY(m_shell->bridge->press(u"Next"_s).ok());
    QTRY_VERIFY(labels(window).contains(u"For Linux"_s));
    QVERIFY(labels(window).contains(u"Try it"_s));
    QVERIFY(m_shell->bridge->press(u"Back"_s).ok());
    QTRY_VERIFY(labels(window).contains(u"For all"_s));
}

void TestSettings::theIntroductionIsShownOnce()
{
    QVERIFY(!LuPreferences::instance()->introductionSeen());
    QMetaObject::invokeMethod(m_shell->window(), "openWalkthrough");
    QVERIFY(m_shell->bridge->press(u"Next"_s).ok());
    QVERIFY(m_shell->bridge->press(u"Done"_s).ok());
    QTRY_VERIFY(!windowOf("walkthroughWindow"));
    QVERIFY(LuPreferences::instance()->introductionSeen());
    QCOMPARE(m_store.value(u"introductionSeen"_s), QVariant(true));
    // It can be seen again.
    QVERIFY(m_shell->bridge->openSection(u"about"_s).ok());
    QVERIFY(m_shell->bridge->press(u"Show the introduction"_s).ok());
    QVERIFY(windowOf("walkthroughWindow"));
}

void TestSettings::closingTheWindowEndsOnlyWhereItIsTold()
{
    int asked = 0;
    connect(&m_shell->context, &LuContext::quitRequested, this, [&asked] { ++asked; });
    QVERIFY(m_shell->bridge->press(u"Close"_s).ok());
    QVERIFY(!m_shell->window()->isVisible());
    QCOMPARE(asked, 0);
    QVERIFY(m_shell->bridge->show().ok());
    LuPreferences::instance()->setCloseToTray(false);
    QVERIFY(m_shell->bridge->press(u"Close"_s).ok());
    QCOMPARE(asked, 1);
    m_shell->context.disconnect(this);
}

void TestSettings::troubleIsToldWhereThereIsNoMonitor()
{
    m_shell->context.setMonitors({});
    m_shell->context.setDiscovering(true);
    QTRY_VERIFY(labels(m_shell->window()).contains(u"Looking for monitors…"_s));
    m_shell->context.setDiscovering(false);
    m_shell->context.setNotices({u"No access to /dev/i2c-4."_s});
    QTRY_VERIFY(labels(m_shell->window()).contains(u"No access to /dev/i2c-4."_s));
    QVERIFY(labels(m_shell->window()).contains(u"No supported monitor found"_s));
    int searches = 0;
    int demonstrations = 0;
    connect(&m_shell->context, &LuContext::searchRequested, this, [&searches] { ++searches; });
    connect(&m_shell->context, &LuContext::simulationRequested, this, [&] { ++demonstrations; });
    QCOMPARE(m_shell->bridge->press(u"Try it with a simulated monitor"_s).code,
             int(LuWindowBridge::NoSuchThing));
    m_shell->context.setCanSimulate(true);
    QVERIFY(m_shell->bridge->press(u"Look again"_s).ok());
    QVERIFY(m_shell->bridge->press(u"Try it with a simulated monitor"_s).ok());
    QCOMPARE(searches, 1);
    QCOMPARE(demonstrations, 1);
    m_shell->context.disconnect(this);
    m_shell->context.setNotices({});
    m_shell->context.setCanSimulate(false);
}

void TestSettings::aMirroredWindowHasItsHeaderMirrored()
{
    const auto x = [this](const char* name) {
        const QQuickItem* item = m_shell->item(QString::fromLatin1(name));
        return item ? item->mapToScene(QPointF()).x() : -1;
    };
    QVERIFY(x("closeButton") > 200);
    QGuiApplication::setLayoutDirection(Qt::RightToLeft);
    QTRY_VERIFY(x("closeButton") < 60);
    QTRY_VERIFY(x("monitorSwitcher") > 60);
    QTRY_COMPARE(tileOrder(), (QStringList{u"LuThreeWidget"_s, u"LuTwoWidget"_s, u"LuOneWidget"_s}));
}

QTEST_MAIN(TestSettings)
#include "tst_qml_settings.moc"
