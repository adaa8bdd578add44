// SPDX-License-Identifier: Apache-2.0
#include "Shell.h"

#include <QQuickItem>
#include <QSignalSpy>
#include <QTest>

#include <optional>

using namespace Qt::StringLiterals;

/// The package's panels in the shell, by real clicks and keys, on a double of a monitor.
class TestPanels : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void aClickOnTheTileTogglesTheFeature();
    void theTileFollowsTheMonitor();
    void aForbiddenModeOpensTheWarningInstead();
    void escapeClosesTheWarning();
    void theTileIsNotActiveInAForbiddenMode();
    void theTextNamesTheKind_data();
    void theTextNamesTheKind();
    void anUnsupportedFeatureShowsNoTile();
    void thePageTakesASnapshotAndReportsOnce();
    void aClickOnTheTileAgainClosesThePage();
    void thePageRotatesTheDesktop();
    void theRadiosAreDisabledWhileTheSensorDecides();
    void theSwitchFallsBackWhenTheMonitorDoesNotFollow();
    void bindingsHoldWhileTheWidgetLives();
    void onlyThePivotReadsBackWhileTheWindowIsHidden();
    void theOtherMonitorGetsItsOwnWidgets();
    void thePictureFollowsTheStateAndTheScheme();
    void aModelWithoutSensorHasThePlainPivot();

private:
    void start(bool secondWithoutSensor = false);
    void click(const QString& item);

    std::optional<FakeMonitor> m_first;
    std::optional<FakeMonitor> m_second;
    std::optional<Shell> m_shell;
};

void TestPanels::init()
{
    m_first.emplace(u"TK30Z"_s);
    m_second.emplace(u"TK20"_s);
    m_second->pivot.autoPivotEnable = false;
}

void TestPanels::cleanup()
{
    m_shell.reset();
    m_second.reset();
    m_first.reset();
    QCOMPARE(Shell::takeWarnings(), QStringList());
}

void TestPanels::start(bool secondWithoutSensor)
{
    m_shell.emplace(secondWithoutSensor ? QList<FakeMonitor*>{&*m_second}
                                        : QList<FakeMonitor*>{&*m_first, &*m_second});
    QVERIFY(m_shell->window());
    m_shell->window()->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_shell->window(), PatienceMs));
}

void TestPanels::click(const QString& name)
{
    QQuickItem* item = nullptr;
    QTRY_VERIFY((item = m_shell->item(name)));
    QTRY_VERIFY(item->width() > 0 && item->height() > 0);
    QVERIFY(QTest::qWaitForWindowExposed(item->window(), PatienceMs));
    // Layout is due with the next frame; a click must not land where the item was before it.
    QVERIFY(!item->window()->grabWindow().isNull());
    const QPointF centre = item->mapToScene(QPointF(item->width() / 2, item->height() / 2));
    QTest::mouseClick(item->window(), Qt::LeftButton, Qt::NoModifier, centre.toPoint());
}

void TestPanels::aClickOnTheTileTogglesTheFeature()
{
    start();
    QSignalSpy changes(&m_first->contrast, &FakeAiContrast::stateChanged);
    click(u"LuAiContrastWidget.button"_s);
    QCOMPARE(changes.count(), 1);
    QVERIFY(m_first->contrast.state());
    click(u"LuAiContrastWidget.button"_s);
    QCOMPARE(changes.count(), 2);
    QVERIFY(!m_first->contrast.state());
}

void TestPanels::theTileFollowsTheMonitor()
{
    start();
    QQuickItem* tile = m_shell->widget("LuAiContrastWidget");
    QVERIFY(tile);
    QVERIFY(!tile->property("active").toBool());
    m_first->contrast.setState(true);
    QVERIFY(tile->property("active").toBool());
}

void TestPanels::aForbiddenModeOpensTheWarningInstead()
{
    start();
    m_first->setColorMode(&m_first->forbidding);
    click(u"LuAiContrastWidget.button"_s);
    QVERIFY(!m_first->contrast.state());
    QQuickItem* warning = m_shell->item(u"warningWindow"_s);
    QVERIFY(warning);
    QCOMPARE(warning->property("text").toString(), u"Local Contrast"_s);
    click(u"warningConfirm"_s);
    QTRY_VERIFY(!m_shell->item(u"warningWindow"_s));
    m_first->setColorMode(&m_first->allowing);
    click(u"LuAiContrastWidget.button"_s);
    QVERIFY(m_first->contrast.state());
}

void TestPanels::escapeClosesTheWarning()
{
    start();
    m_first->setColorMode(&m_first->forbidding);
    click(u"LuAiContrastWidget.button"_s);
    QVERIFY(m_shell->item(u"warningWindow"_s));
    QTRY_VERIFY(m_shell->item(u"warningConfirm"_s)->hasActiveFocus());
    QTest::keyClick(m_shell->window(), Qt::Key_Escape);
    QTRY_VERIFY(!m_shell->item(u"warningWindow"_s));
}

void TestPanels::theTileIsNotActiveInAForbiddenMode()
{
    start();
    m_first->contrast.setState(true);
    QQuickItem* tile = m_shell->widget("LuAiContrastWidget");
    QVERIFY(tile->property("active").toBool());
    m_first->setColorMode(&m_first->forbidding);
    QVERIFY(!tile->property("active").toBool());
    m_first->setColorMode(nullptr);
    QVERIFY(!tile->property("active").toBool());
}

void TestPanels::theTextNamesTheKind_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("text");
    QTest::newRow("local") << int(FakeAiContrast::NameLocalContrast) << u"Local Contrast"_s;
    QTest::newRow("ai") << int(FakeAiContrast::NameAiContrast) << u"AI Contrast"_s;
}

void TestPanels::theTextNamesTheKind()
{
    QFETCH(int, type);
    QFETCH(QString, text);
    m_first->contrast.displayNameType = type;
    start();
    QCOMPARE(m_shell->widget("LuAiContrastWidget")->property("text").toString(), text);
}

void TestPanels::anUnsupportedFeatureShowsNoTile()
{
    m_first->contrast.aiContrastEnable = false;
    start();
    QVERIFY(!m_shell->widget("LuAiContrastWidget"));
    QVERIFY(m_shell->widget("LuAutoPivotWidget"));
    QVERIFY(!m_shell->widget("LuPivotWidget"));
}

void TestPanels::thePageTakesASnapshotAndReportsOnce()
{
    start();
    click(u"LuAutoPivotWidget.button"_s);
    QTRY_VERIFY(m_shell->item(u"pagePanel"_s));
    QCOMPARE(m_first->pivot.snapshots, 1);
    QCOMPARE(m_first->pivot.updates, 0);
    click(u"pageClose"_s);
    QTRY_COMPARE(m_first->pivot.updates, 1);
    QCOMPARE(m_first->pivot.snapshots, 1);
    QVERIFY(!m_shell->item(u"pagePanel"_s));
    // Hiding the window is an end of the visit, too.
    click(u"LuAutoPivotWidget.button"_s);
    QTRY_COMPARE(m_first->pivot.snapshots, 2);
    m_shell->window()->hide();
    QTRY_COMPARE(m_first->pivot.updates, 2);
}

void TestPanels::aClickOnTheTileAgainClosesThePage()
{
    start();
    click(u"LuAutoPivotWidget.button"_s);
    QTRY_VERIFY(m_shell->item(u"pagePanel"_s));
    click(u"LuAutoPivotWidget.button"_s);
    QTRY_VERIFY(!m_shell->item(u"pagePanel"_s));
    QVERIFY(!m_first->pivot.state());
}

void TestPanels::thePageRotatesTheDesktop()
{
    start();
    QVERIFY(m_shell->bridge->openPage(u"LuAutoPivotWidget"_s).ok());
    for (const int degrees : {90, 180, 270, 0}) {
        const QString name = u"%1°"_s.arg(degrees);
        QVERIFY(m_shell->bridge->press(name, u"radio"_s, u"LuAutoPivotWidget"_s).ok());
        QCOMPARE(m_first->pivot.currentPivot(), degrees);
    }
}

void TestPanels::theRadiosAreDisabledWhileTheSensorDecides()
{
    start();
    QVERIFY(m_shell->bridge->openPage(u"LuAutoPivotWidget"_s).ok());
    click(u"autoPivotSwitch"_s);
    QVERIFY(m_first->pivot.state());
    const auto result = m_shell->bridge->press(u"90°"_s, u"radio"_s);
    QCOMPARE(result.code, int(LuWindowBridge::NotWritable));
    QVERIFY(result.message.contains(u"90°"_s));
    QCOMPARE(m_first->pivot.currentPivot(), 0);
}

void TestPanels::theSwitchFallsBackWhenTheMonitorDoesNotFollow()
{
    m_first->pivot.follows = false;
    start();
    QVERIFY(m_shell->bridge->openPage(u"LuAutoPivotWidget"_s).ok());
    click(u"autoPivotSwitch"_s);
    QQuickItem* control = m_shell->item(u"autoPivotSwitch"_s);
    QVERIFY(control->property("checked").toBool());
    QTRY_VERIFY_WITH_TIMEOUT(!control->property("checked").toBool(), 10000);
    // And it follows again afterwards.
    m_first->pivot.follows = true;
    m_first->pivot.setState(true);
    QVERIFY(control->property("checked").toBool());
}

void TestPanels::bindingsHoldWhileTheWidgetLives()
{
    start();
    QTRY_VERIFY(m_first->contrast.syncEnable);
    QVERIFY(!m_second->contrast.syncEnable);
    m_shell->window()->hide();
    QTRY_VERIFY(!m_first->contrast.syncEnable);
    m_shell->window()->show();
    QTRY_VERIFY(m_first->contrast.syncEnable);
    m_shell.reset();
    QVERIFY(!m_first->contrast.syncEnable);
    QVERIFY(!m_first->pivot.syncEnable);
}

void TestPanels::onlyThePivotReadsBackWhileTheWindowIsHidden()
{
    start();
    QTRY_VERIFY(m_first->contrast.syncEnable);
    m_shell->window()->hide();
    QTRY_VERIFY(!m_first->contrast.syncEnable);
    QVERIFY(m_first->pivot.syncEnable);
}

void TestPanels::theOtherMonitorGetsItsOwnWidgets()
{
    start();
    m_shell->context.setCurrentMonitor(&*m_second);
    QTRY_VERIFY(m_shell->widget("LuPivotWidget"));
    QTRY_VERIFY(!m_first->contrast.syncEnable);
    QTRY_VERIFY(!m_first->pivot.syncEnable);
    QTRY_VERIFY(m_second->contrast.syncEnable);
    click(u"LuAiContrastWidget.button"_s);
    QVERIFY(m_second->contrast.state());
    QVERIFY(!m_first->contrast.state());
}

void TestPanels::thePictureFollowsTheStateAndTheScheme()
{
    start();
    QQuickItem* tile = m_shell->widget("LuAiContrastWidget");
    const auto image = [tile] { return tile->property("currentImage").toUrl().toString(); };
    QCOMPARE(image(), u"qrc:/TKPackage/images/packages/btn_aicontrast.svg"_s);
    m_first->contrast.setState(true);
    QCOMPARE(image(), u"qrc:/TKPackage/images/packages/btn_aicontrast_active.svg"_s);
    m_shell->context.setTheme(u"dark"_s);
    QCOMPARE(image(), u"qrc:/TKPackage/images/packages/+dark/btn_aicontrast_active.svg"_s);
}

void TestPanels::aModelWithoutSensorHasThePlainPivot()
{
    start(true);
    QQuickItem* tile = m_shell->widget("LuPivotWidget");
    QVERIFY(tile);
    QVERIFY(!m_shell->widget("LuAutoPivotWidget"));
    QVERIFY(!tile->property("active").toBool());
    QVERIFY(m_shell->bridge->openPage(u"LuPivotWidget"_s).ok());
    QVERIFY(m_shell->bridge->press(u"270°"_s).ok());
    QCOMPARE(m_second->pivot.currentPivot(), 270);
    QVERIFY(tile->property("active").toBool());
    QVERIFY(tile->property("currentImage").toUrl().toString().endsWith(u"btn_pivot_270_active.svg"_s));
}

QTEST_MAIN(TestPanels)
#include "tst_qml_panels.moc"
