// SPDX-License-Identifier: Apache-2.0
#include "Shell.h"

#include <QQuickItem>
#include <QTest>

#include <optional>

using namespace Qt::StringLiterals;

/// What the library does for panels: values on their way, lists, times, popups, and what a widget has for
/// free.
class TestLibrary : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void aSliderFollowsTheMonitor();
    void aSliderKeepsTheUsersValueUntilItIsTaken();
    void aSliderFallsBackWhenTheMonitorDoesNotFollow();
    void aSliderSettlesOnlyOnAnotherValue();
    void anUprightSliderTakesKeysAndGain();
    void aKeyMovesASliderOfStopsByOne();
    void keysMoveASliderAsFarAsTheySay_data();
    void keysMoveASliderAsFarAsTheySay();
    void aLongLineHasLongPages();
    void aCombinationIsAButtonWithItsKeys();
    void aRowsTitleOpensWhatARowHas();
    void aComboBoxFollowsTheMonitor();
    void aComboBoxFallsBackWhenTheMonitorDoesNotFollow();
    void aComboBoxShowsAndTakesTheTextsForPeople();
    void aComboBoxRefusesAForbiddenEntry();
    void aComboBoxShowsNothingOfTheList();
    void keysChooseInAComboBoxOnlyWhatMayBeChosen();
    void theOpenListGivesNoForbiddenEntry();
    void arrowKeysChooseTheNextRadioButton();
    void aSegmentIsChosenByPressAndArrow();
    void aSegmentFallsBackWhenTheMonitorDoesNotFollow();
    void aTimeIsShownOutsideItsRange();
    void aTimeIsTakenWithinItsRange();
    void aTimeIsPickedWithTheKeyboard();
    void aNumberGoesRoundWithinItsRange();
    void aListIsUsedWithTheKeyboard();
    void anEmptyListSaysWhatItIsFor();
    void aSwitchThatAsksKeepsItsState();
    void aSelectionIsAnsweredByItsButtons();
    void escapeCancelsASelection();
    void focusStaysInsideASelection();
    void aWarningTellsWhatItIsGiven();
    void aForbiddenTileWarns();
    void aHintOpensAndClosesByItsButton();
    void aWidgetReadsBackWhileItsMonitorShows();
    void aPageIsOneVisit();
    void aWidgetHasTheWordsOfItsValues();
    void aTileShowsThePointersPicture();

private:
    QStringList log() const { return m_window->property("log").toStringList(); }
    QQuickItem* item(const char* name) const { return m_shell->item(QString::fromLatin1(name)); }
    QObject* object(const char* name) const
    {
        return m_window->findChild<QObject*>(QString::fromLatin1(name));
    }
    void call(const char* function) { QVERIFY(QMetaObject::invokeMethod(m_window, function)); }
    LuWindowBridge& bridge() { return *m_shell->bridge; }

    FakeMonitor m_monitor{u"TK30Z"_s};
    std::optional<Shell> m_shell;
    QPointer<QQuickWindow> m_window;
};

void TestLibrary::init()
{
    m_shell.emplace(QList<FakeMonitor*>{&m_monitor});
    m_shell->engine.load(QUrl(u"qrc:/tests/Library.qml"_s));
    m_window = qobject_cast<QQuickWindow*>(m_shell->engine.rootObjects().constLast());
    QVERIFY(m_window);
    m_window->requestActivate();
    QVERIFY(QTest::qWaitForWindowActive(m_window, PatienceMs));
}

void TestLibrary::cleanup()
{
    m_shell.reset();
    QCOMPARE(Shell::takeWarnings(), QStringList());
}

void TestLibrary::aSliderFollowsTheMonitor()
{
    QCOMPARE(item("slider")->property("value").toDouble(), 3.0);
    m_window->setProperty("held", 7);
    QCOMPARE(item("slider")->property("value").toDouble(), 7.0);
    QCOMPARE(log(), QStringList());
}

void TestLibrary::aSliderKeepsTheUsersValueUntilItIsTaken()
{
    QVERIFY(bridge().setValue(u"Level"_s, 8).ok());
    QCOMPARE(item("slider")->property("value").toDouble(), 8.0);
    // An older value arrives first: the handle stays where the user put it.
    m_window->setProperty("held", 5);
    QCOMPARE(item("slider")->property("value").toDouble(), 8.0);
    m_window->setProperty("held", 8);
    QCOMPARE(item("slider")->property("waiting").toBool(), false);
    m_window->setProperty("held", 2);
    QCOMPARE(item("slider")->property("value").toDouble(), 2.0);
}

void TestLibrary::aSliderFallsBackWhenTheMonitorDoesNotFollow()
{
    QVERIFY(bridge().setValue(u"Level"_s, 8).ok());
    QCOMPARE(item("slider")->property("waiting").toBool(), true);
    QTRY_COMPARE_WITH_TIMEOUT(item("slider")->property("value").toDouble(), 3.0, 20000);
}

void TestLibrary::aSliderSettlesOnlyOnAnotherValue()
{
    QVERIFY(bridge().setValue(u"Level"_s, 3).ok());
    QCOMPARE(log(), QStringList{u"moved 3"_s});
    QVERIFY(bridge().setValue(u"Level"_s, 4).ok());
    QCOMPARE(log(), (QStringList{u"moved 3"_s, u"moved 4"_s, u"settled 4"_s}));
}

void TestLibrary::anUprightSliderTakesKeysAndGain()
{
    QCOMPARE(item("gain")->property("value").toDouble(), -2.0);
    QVERIFY(bridge().key(u"1K"_s, u"Up"_s).ok());
    QCOMPARE(log(), QStringList{u"gain -1"_s});
    QVERIFY(bridge().setValue(u"1K"_s, -6).ok());
    QCOMPARE(bridge().setValue(u"1K"_s, 7).code, int(LuWindowBridge::WrongValue));
}

void TestLibrary::aKeyMovesASliderOfStopsByOne()
{
    QVERIFY(bridge().key(u"Resolution"_s, u"Right"_s).ok());
    QVERIFY(bridge().key(u"Resolution"_s, u"Right"_s).ok());
    QVERIFY(bridge().key(u"Resolution"_s, u"Left"_s).ok());
    QCOMPARE(log(), (QStringList{u"stop 2.5"_s, u"stop 3.5"_s, u"stop 2.5"_s}));
}

void TestLibrary::keysMoveASliderAsFarAsTheySay_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<double>("value");
    QTest::newRow("right") << u"Right"_s << 4.0;
    QTest::newRow("left") << u"Left"_s << 2.0;
    QTest::newRow("up") << u"Up"_s << 4.0;
    QTest::newRow("down") << u"Down"_s << 2.0;
    QTest::newRow("home") << u"Home"_s << 0.0;
    QTest::newRow("end") << u"End"_s << 10.0;
    QTest::newRow("page up") << u"PgUp"_s << 4.0;
    QTest::newRow("page down") << u"PgDown"_s << 2.0;
}

void TestLibrary::keysMoveASliderAsFarAsTheySay()
{
    QFETCH(QString, key);
    QFETCH(double, value);
    QVERIFY(bridge().key(u"Level"_s, key).ok());
    QCOMPARE(item("slider")->property("value").toDouble(), value);
    QCOMPARE(log(), (QStringList{u"moved %1"_s.arg(value), u"settled %1"_s.arg(value)}));
}

void TestLibrary::aLongLineHasLongPages()
{
    item("slider")->setProperty("to", 100);
    m_window->setProperty("held", 50);
    QCOMPARE(item("slider")->property("value").toDouble(), 50.0);
    QVERIFY(bridge().key(u"Level"_s, u"PgUp"_s).ok());
    QCOMPARE(item("slider")->property("value").toDouble(), 60.0);
    QVERIFY(bridge().key(u"Level"_s, u"PgDown"_s).ok());
    QCOMPARE(item("slider")->property("value").toDouble(), 50.0);
}

void TestLibrary::aCombinationIsAButtonWithItsKeys()
{
    QVERIFY(bridge().press(u"Switch to HDMI"_s, u"button"_s).ok());
    QCOMPARE(log(), QStringList{u"keys"_s});
}

void TestLibrary::aRowsTitleOpensWhatARowHas()
{
    bridge().show();
    QQuickItem* title = item("rowTitle");
    QVERIFY(title);
    QCOMPARE(title->property("opens").toBool(), true);
    QMetaObject::invokeMethod(title, "assistivePress");
    QTRY_VERIFY(item("warningWindow"));
    QVERIFY(bridge().press(u"OK"_s, u"button"_s).ok());
    // Without a page and a warning it is a name and no button.
    item("tile")->setProperty("colorModeAllowed", true);
    QTRY_COMPARE(title->property("opens").toBool(), false);
    QMetaObject::invokeMethod(title, "assistivePress");
    QCOMPARE(log(), QStringList());
}

void TestLibrary::aComboBoxFollowsTheMonitor()
{
    QCOMPARE(item("combo")->property("currentIndex").toInt(), 1);
    m_window->setProperty("heldChoice", 0);
    QCOMPARE(item("combo")->property("currentIndex").toInt(), 0);
}

void TestLibrary::aComboBoxFallsBackWhenTheMonitorDoesNotFollow()
{
    QVERIFY(bridge().setValue(u"Mode"_s, u"A"_s).ok());
    QCOMPARE(item("combo")->property("currentIndex").toInt(), 0);
    QCOMPARE(log(), QStringList{u"combo 0"_s});
    QTRY_COMPARE_WITH_TIMEOUT(item("combo")->property("currentIndex").toInt(), 1, 20000);
    m_window->setProperty("heldChoice", 0);
    QCOMPARE(item("combo")->property("currentIndex").toInt(), 0);
}

void TestLibrary::aComboBoxShowsAndTakesTheTextsForPeople()
{
    QCOMPARE(item("combo")->property("displayText").toString(), u"B"_s);
    QCOMPARE(bridge().setValue(u"Mode"_s, u"a"_s).code, int(LuWindowBridge::WrongValue));
    QVERIFY(bridge().setValue(u"Mode"_s, u"A"_s).ok());
}

void TestLibrary::aComboBoxRefusesAForbiddenEntry()
{
    QCOMPARE(bridge().setValue(u"Mode"_s, u"C"_s).code, int(LuWindowBridge::WrongValue));
    QCOMPARE(log(), QStringList());
}

void TestLibrary::aComboBoxShowsNothingOfTheList()
{
    m_window->setProperty("heldChoice", -1);
    QCOMPARE(item("combo")->property("currentIndex").toInt(), -1);
    QCOMPARE(item("combo")->property("displayText").toString(), QString());
}

void TestLibrary::keysChooseInAComboBoxOnlyWhatMayBeChosen()
{
    // The last entry is forbidden, and the second one is held.
    for (const QString& key : {u"Down"_s, u"End"_s, u"C"_s, u"X"_s}) {
        QVERIFY(bridge().key(u"Mode"_s, key).ok());
        QCOMPARE(item("combo")->property("currentIndex").toInt(), 1);
    }
    QCOMPARE(log(), QStringList());
    QVERIFY(bridge().key(u"Mode"_s, u"Up"_s).ok());
    QVERIFY(bridge().key(u"Mode"_s, u"B"_s).ok());
    QVERIFY(bridge().key(u"Mode"_s, u"Home"_s).ok());
    QVERIFY(bridge().key(u"Mode"_s, u"End"_s).ok());
    QCOMPARE(log(), (QStringList{u"combo 0"_s, u"combo 1"_s, u"combo 0"_s, u"combo 1"_s}));
}

void TestLibrary::theOpenListGivesNoForbiddenEntry()
{
    QVERIFY(bridge().key(u"Mode"_s, u"Space"_s).ok());
    QTRY_VERIFY(item("combo")->property("opened").toBool());
    QVERIFY(bridge().key(u"Mode"_s, u"Down"_s).ok());
    QCOMPARE(item("combo")->property("highlightedIndex").toInt(), 2);
    for (const QString& key : {u"Return"_s, u"Space"_s}) {
        QVERIFY(bridge().key(u"Mode"_s, key).ok());
        QVERIFY(item("combo")->property("opened").toBool());
        QCOMPARE(log(), QStringList());
    }
    QVERIFY(bridge().key(u"Mode"_s, u"Up"_s).ok());
    QVERIFY(bridge().key(u"Mode"_s, u"Up"_s).ok());
    QVERIFY(bridge().key(u"Mode"_s, u"Return"_s).ok());
    QTRY_VERIFY(!item("combo")->property("opened").toBool());
    QCOMPARE(log(), QStringList{u"combo 0"_s});
}

void TestLibrary::arrowKeysChooseTheNextRadioButton()
{
    QVERIFY(bridge().key(u"Near"_s, u"Right"_s, u"radio"_s).ok());
    QCOMPARE(log(), QStringList{u"far"_s});
    QVERIFY(item("far")->hasActiveFocus() && item("far")->property("checked").toBool());
    QVERIFY(!item("near")->property("checked").toBool());
    // The last one has no neighbour.
    QVERIFY(bridge().key(u"Far"_s, u"Down"_s, u"radio"_s).ok());
    QVERIFY(item("far")->hasActiveFocus());
    QVERIFY(bridge().key(u"Far"_s, u"Up"_s, u"radio"_s).ok());
    QCOMPARE(log(), (QStringList{u"far"_s, u"near"_s}));
    // Where texts run from the right, the next one stands on the left.
    m_window->setProperty("mirrored", true);
    QVERIFY(bridge().key(u"Near"_s, u"Left"_s, u"radio"_s).ok());
    QCOMPARE(log().last(), u"far"_s);
}

void TestLibrary::aSegmentIsChosenByPressAndArrow()
{
    QVERIFY(bridge().press(u"Large"_s, u"radio"_s).ok());
    QCOMPARE(log(), QStringList{u"segment 2"_s});
    QVERIFY(bridge().key(u"Large"_s, u"Left"_s, u"radio"_s).ok());
    QCOMPARE(log().last(), u"segment 1"_s);
    QVERIFY(bridge().key(u"Small"_s, u"Left"_s, u"radio"_s).ok());
    QCOMPARE(log().size(), 2);
}

void TestLibrary::aSegmentFallsBackWhenTheMonitorDoesNotFollow()
{
    const auto chosen = [this] {
        QStringList names;
        const std::function<void(QQuickItem*)> walk = [&](QQuickItem* one) {
            if (one->property("checked").toBool())
                names << one->property("text").toString();
            const QList<QQuickItem*> children = one->childItems();
            for (QQuickItem* child : children)
                walk(child);
        };
        walk(item("segmented"));
        return names;
    };
    QCOMPARE(chosen(), QStringList{u"Medium"_s});
    QVERIFY(bridge().press(u"Large"_s, u"radio"_s).ok());
    QCOMPARE(chosen(), QStringList{u"Large"_s});
    QTRY_COMPARE_WITH_TIMEOUT(chosen(), QStringList{u"Medium"_s}, 20000);
}

void TestLibrary::aTimeIsShownOutsideItsRange()
{
    QCOMPARE(item("time")->property("displayText").toString(), u"06:30"_s);
    QCOMPARE(bridge().setValue(u"Sunset"_s, u"11:00"_s).code, int(LuWindowBridge::WrongValue));
    QCOMPARE(bridge().setValue(u"Sunset"_s, u"18:60"_s).code, int(LuWindowBridge::WrongValue));
    QCOMPARE(bridge().setValue(u"Sunset"_s, u"late"_s).code, int(LuWindowBridge::WrongValue));
    QCOMPARE(log(), QStringList());
}

void TestLibrary::aTimeIsTakenWithinItsRange()
{
    QVERIFY(bridge().setValue(u"Sunset"_s, u"18:05"_s).ok());
    QCOMPARE(log(), (QStringList{u"hour 18"_s, u"minute 5"_s}));
    QCOMPARE(item("time")->property("displayText").toString(), u"18:05"_s);
}

void TestLibrary::aTimeIsPickedWithTheKeyboard()
{
    QVERIFY(bridge().key(u"Sunset"_s, u"Space"_s).ok());
    QTRY_VERIFY(item("time")->property("opened").toBool());
    // The first step from an hour that is not allowed goes into the range.
    QTRY_VERIFY(m_window->activeFocusItem() && m_window->activeFocusItem()->inherits("QQuickTextInput"));
    QTest::keyClick(m_window, Qt::Key_Up);
    QTRY_COMPARE(log(), QStringList{u"hour 12"_s});
    QTest::keyClick(m_window, Qt::Key_Tab);
    QTest::keyClick(m_window, Qt::Key_Down);
    QTRY_COMPARE(log().last(), u"minute 29"_s);
    QTest::keyClick(m_window, Qt::Key_Escape);
    QTRY_VERIFY(!item("time")->property("opened").toBool());
}

void TestLibrary::aNumberGoesRoundWithinItsRange()
{
    QVERIFY(bridge().key(u"Hours"_s, u"Up"_s).ok());
    QCOMPARE(log(), QStringList{u"spin 0"_s});
    QVERIFY(bridge().key(u"Hours"_s, u"Down"_s).ok());
    QCOMPARE(log().last(), u"spin 11"_s);
    QVERIFY(bridge().setValue(u"Hours"_s, 4).ok());
    QCOMPARE(bridge().setValue(u"Hours"_s, 12).code, int(LuWindowBridge::WrongValue));
    QCOMPARE(log().last(), u"spin 4"_s);
}

void TestLibrary::aListIsUsedWithTheKeyboard()
{
    QVERIFY(bridge().press(u"Film"_s, u"listItem"_s).ok());
    QCOMPARE(item("list")->property("currentIndex").toInt(), 1);
    QVERIFY(bridge().key(u"Flows"_s, u"Down"_s, u"list"_s).ok());
    QCOMPARE(item("list")->property("currentIndex").toInt(), 2);
    QVERIFY(bridge().key(u"Flows"_s, u"Return"_s, u"list"_s).ok());
    QVERIFY(bridge().key(u"Flows"_s, u"Del"_s, u"list"_s).ok());
    QCOMPARE(log(), (QStringList{u"activated 2"_s, u"remove 2"_s}));
    QCOMPARE(item("list")->property("hasSelection").toBool(), true);
}

void TestLibrary::anEmptyListSaysWhatItIsFor()
{
    item("list")->setProperty("model", QStringList());
    QTRY_COMPARE(item("list")->property("count").toInt(), 0);
    QCOMPARE(item("list")->property("hasSelection").toBool(), false);
    QCOMPARE(bridge().press(u"Nothing here"_s, u"listItem"_s).code, int(LuWindowBridge::NotWritable));
}

void TestLibrary::aSwitchThatAsksKeepsItsState()
{
    QVERIFY(bridge().press(u"Asking"_s).ok());
    QVERIFY(bridge().key(u"Asking"_s, u"Space"_s).ok());
    QCOMPARE(log(), (QStringList{u"asked"_s, u"asked"_s}));
    QCOMPARE(item("asking")->property("checked").toBool(), false);
}

void TestLibrary::aSelectionIsAnsweredByItsButtons()
{
    bridge().show();
    call("ask");
    QTRY_VERIFY(item("selectionWindow"));
    QVERIFY(bridge().press(u"Reset"_s, u"button"_s).ok());
    QCOMPARE(log(), QStringList{u"confirmed"_s});
    QTRY_VERIFY(!item("selectionWindow"));
    call("ask");
    QTRY_VERIFY(item("selectionWindow"));
    QVERIFY(bridge().press(u"Cancel"_s, u"button"_s).ok());
    QCOMPARE(log(), (QStringList{u"confirmed"_s, u"canceled"_s}));
    QTRY_VERIFY(!item("selectionWindow"));
}

void TestLibrary::escapeCancelsASelection()
{
    bridge().show();
    m_shell->window()->requestActivate();
    QVERIFY(QTest::qWaitForWindowActive(m_shell->window(), PatienceMs));
    call("ask");
    QTRY_VERIFY(item("selectionWindow"));
    QTest::keyClick(m_shell->window(), Qt::Key_Escape);
    QTRY_COMPARE(log(), QStringList{u"canceled"_s});
    QTRY_VERIFY(!item("selectionWindow"));
}

void TestLibrary::focusStaysInsideASelection()
{
    bridge().show();
    m_shell->window()->requestActivate();
    QVERIFY(QTest::qWaitForWindowActive(m_shell->window(), PatienceMs));
    call("ask");
    QTRY_VERIFY(item("selectionConfirm") && item("selectionConfirm")->hasActiveFocus());
    QTest::keyClick(m_shell->window(), Qt::Key_Tab);
    QTRY_VERIFY(item("selectionCancel")->hasActiveFocus());
    QTest::keyClick(m_shell->window(), Qt::Key_Tab);
    QTRY_VERIFY(item("selectionConfirm")->hasActiveFocus());
    QTest::keyClick(m_shell->window(), Qt::Key_Backtab);
    QTRY_VERIFY(item("selectionCancel")->hasActiveFocus());
}

void TestLibrary::aWarningTellsWhatItIsGiven()
{
    bridge().show();
    call("warn");
    QTRY_VERIFY(item("warningWindow"));
    QCOMPARE(item("warningWindow")->property("title").toString(), u"Low DPI"_s);
    QCOMPARE(item("warningWindow")->property("message").toString(), u"Only HiDPI here."_s);
    QVERIFY(bridge().press(u"OK"_s, u"button"_s).ok());
    QTRY_VERIFY(!item("warningWindow"));
}

void TestLibrary::aForbiddenTileWarns()
{
    bridge().show();
    QVERIFY(bridge().press(u"Tile"_s, u"button"_s).ok());
    QTRY_VERIFY(item("warningWindow"));
    QCOMPARE(item("warningWindow")->property("title").toString(), u"Tile"_s);
    QCOMPARE(log(), QStringList());
    QVERIFY(bridge().press(u"OK"_s, u"button"_s).ok());
    item("tile")->setProperty("colorModeAllowed", true);
    QVERIFY(bridge().press(u"Tile"_s, u"button"_s).ok());
    QCOMPARE(log(), QStringList{u"set true"_s});
}

void TestLibrary::aHintOpensAndClosesByItsButton()
{
    bridge().show();
    const auto hint = [] {
        const QList<QWindow*> windows = QGuiApplication::topLevelWindows();
        for (QWindow* one : windows) {
            if (one->objectName() == u"hintWindow"_s && one->isVisible())
                return one;
        }
        return static_cast<QWindow*>(nullptr);
    };
    call("toggleHint");
    QTRY_VERIFY(hint());
    // Left of the main window and level with its lower edge.
    const QRect main = m_shell->window()->geometry();
    QVERIFY(hint()->geometry().right() < main.left());
    QCOMPARE(hint()->geometry().bottom(), main.bottom());
    call("toggleHint");
    QTRY_VERIFY(!hint());
    call("toggleHint");
    QTRY_VERIFY(hint());
    QVERIFY(QTest::qWaitForWindowActive(hint(), PatienceMs));
    QTest::keyClick(hint(), Qt::Key_Escape);
    QTRY_VERIFY(!hint());
}

void TestLibrary::aWidgetReadsBackWhileItsMonitorShows()
{
    QObject* feature = object("feature");
    QCOMPARE(feature->property("syncEnable").toBool(), false);
    m_window->setProperty("monitor", QVariant::fromValue<QObject*>(&m_monitor));
    bridge().show();
    QTRY_COMPARE(feature->property("syncEnable").toBool(), true);
    bridge().hide();
    QTRY_COMPARE(feature->property("syncEnable").toBool(), false);
    bridge().show();
    QTRY_COMPARE(feature->property("syncEnable").toBool(), true);
    m_monitor.setIsCurrentModel(false);
    QTRY_COMPARE(feature->property("syncEnable").toBool(), false);
    m_monitor.setIsCurrentModel(true);
}

void TestLibrary::aPageIsOneVisit()
{
    QObject* feature = object("feature");
    QCOMPARE(feature->property("snapshots").toInt(), 1);
    QCOMPARE(feature->property("updates").toInt(), 0);
    m_window->setProperty("pageAlive", false);
    QTRY_COMPARE(feature->property("updates").toInt(), 1);
    QCOMPARE(feature->property("snapshots").toInt(), 1);
}

void TestLibrary::aWidgetHasTheWordsOfItsValues()
{
    QString words;
    QVERIFY(QMetaObject::invokeMethod(m_window, "word", Q_RETURN_ARG(QString, words),
                                      Q_ARG(QString, u"Cinema"_s)));
    QCOMPARE(words.section(u',', 0, 1), u"Cinema,HDMI1"_s);
}

void TestLibrary::aTileShowsThePointersPicture()
{
    QQuickItem* tile = item("tile");
    QVERIFY(tile->property("currentImage").toString().endsWith(u"/btn_dp_a.svg"_s));
    QTest::mouseMove(m_window, tile->mapToScene(QPointF(tile->width() / 2, 20)).toPoint());
    QTRY_VERIFY(tile->property("currentImage").toString().endsWith(u"/btn_dp_a_hover.svg"_s));
    tile->setProperty("active", true);
    QTRY_VERIFY(tile->property("currentImage").toString().endsWith(u"/btn_dp_a_active.svg"_s));
}

QTEST_MAIN(TestLibrary)
#include "tst_qml_library.moc"
