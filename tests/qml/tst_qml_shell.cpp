// SPDX-License-Identifier: Apache-2.0
#include "Shell.h"

#include <QFile>
#include <QImage>
#include <QJsonDocument>
#include <QMetaMethod>
#include <QQuickItem>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

#include <optional>

using namespace Qt::StringLiterals;

/// The window itself and what scripts see of it.
class TestShell : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void widgetsAreToldInThePackagesOrder();
    void aMissingWidgetFileIsLeftOutQuietly();
    void withoutAMonitorTheWindowSaysWhatToCheck();
    void aMonitorThatIsDeletedLeavesTheWindow();
    void aMonitorThatGoesIsNotWrittenToAnyMore();
    void theWindowIsNarrowAndStandsAtTheLowerRightCorner();
    void thePageStandsBesideTheWindow();
    void thePageLiesOverTheWindowWhereThereIsNoRoom();
    void openingAPageShowsTheWindow();
    void whatIsHiddenCannotBePressed();
    void tilesAreButtonsOfTheirName();
    void everyControlHasANameAndARole();
    void theTreeOfAWidgetHoldsItsPage();
    void theKeyboardReachesEveryTile();
    void theReturnKeyPressesATile();
    void unknownThingsAreErrorTwo_data();
    void unknownThingsAreErrorTwo();
    void aValueThatDoesNotFitIsErrorFour();
    void theSwitcherChoosesAnotherMonitor();
    void aPointerClickReachesATile();
    void aPictureIsWrittenInTheThemeAskedFor();
    void aPictureOfAPageLeavesItClosed();
    void windowsAreListed();
    void qmlWarningsAreKept();
    void theSettingsPageSwitchesTheTheme();
    void aMissingImageWarnsOnce();
    void theTypeFileMatchesTheContext();

private:
    void start(const QList<FakeMonitor*>& monitors);
    static QJsonObject node(const QJsonObject& tree, const QString& name, const QString& role = {});
    static void check(const QJsonObject& tree, QStringList& nameless);

    std::optional<FakeMonitor> m_first;
    std::optional<FakeMonitor> m_second;
    std::optional<Shell> m_shell;
    QStringList m_expectedWarnings;
};

void TestShell::init()
{
    m_first.emplace(u"TK30Z"_s);
    m_second.emplace(u"TK20"_s);
    m_expectedWarnings.clear();
}

void TestShell::cleanup()
{
    m_shell.reset();
    m_second.reset();
    m_first.reset();
    QCOMPARE(Shell::takeWarnings(), m_expectedWarnings);
}

void TestShell::start(const QList<FakeMonitor*>& monitors)
{
    m_shell.emplace(monitors);
    QVERIFY(m_shell->window());
    QVERIFY(m_shell->bridge->show().ok());
    QVERIFY(QTest::qWaitForWindowExposed(m_shell->window(), PatienceMs));
}

QJsonObject TestShell::node(const QJsonObject& tree, const QString& name, const QString& role)
{
    if (tree[u"name"_s].toString() == name && (role.isEmpty() || tree[u"role"_s].toString() == role))
        return tree;
    const QJsonArray children = tree[u"children"_s].toArray();
    for (const QJsonValue& child : children) {
        if (const QJsonObject found = node(child.toObject(), name, role); !found.isEmpty())
            return found;
    }
    return {};
}

void TestShell::check(const QJsonObject& tree, QStringList& nameless)
{
    if (tree[u"name"_s].toString().isEmpty())
        nameless << tree[u"role"_s].toString();
    const QJsonArray children = tree[u"children"_s].toArray();
    for (const QJsonValue& child : children)
        check(child.toObject(), nameless);
}

void TestShell::widgetsAreToldInThePackagesOrder()
{
    start({&*m_first});
    m_first->contrast.setState(true);
    const QJsonArray infos = m_shell->bridge->widgetInfos().value.toArray();
    QCOMPARE(infos.size(), 3);
    QCOMPARE(infos[0][u"widget"_s].toString(), u"LuAutoPivotWidget"_s);
    QCOMPARE(infos[1][u"widget"_s].toString(), u"LuPivotWidget"_s);
    QCOMPARE(infos[1][u"supported"_s].toBool(), false);
    QCOMPARE(infos[1][u"shown"_s].toBool(), false);
    const QJsonObject contrast = infos[2].toObject();
    QCOMPARE(contrast[u"widget"_s].toString(), u"LuAiContrastWidget"_s);
    QCOMPARE(contrast[u"text"_s].toString(), u"Local Contrast"_s);
    QCOMPARE(contrast[u"supported"_s].toBool(), true);
    QCOMPARE(contrast[u"active"_s].toBool(), true);
    QCOMPARE(contrast[u"enabled"_s].toBool(), true);
    QCOMPARE(contrast[u"shown"_s].toBool(), true);
    QCOMPARE(contrast[u"popup"_s].toBool(), false);
    QVERIFY(contrast[u"image"_s].toString().endsWith(u"btn_aicontrast_active.svg"_s));
    m_first->setColorMode(&m_first->forbidding);
    QCOMPARE(m_shell->bridge->widgetInfos().value.toArray()[2][u"popup"_s].toBool(), true);
}

void TestShell::aMissingWidgetFileIsLeftOutQuietly()
{
    start({&*m_first});
    QVERIFY(m_shell->context.widgetUrls()[0].toString().contains(u"LuAbsentWidget"_s));
    QVERIFY(!m_shell->context.exists(m_shell->context.widgetUrls()[0]));
    QCOMPARE(m_shell->bridge->warnings(), QStringList());
}

void TestShell::withoutAMonitorTheWindowSaysWhatToCheck()
{
    start({});
    const QJsonObject tree = m_shell->bridge->tree().value.toObject();
    QVERIFY(!node(tree, u"No supported monitor found"_s).isEmpty());
    QVERIFY(!node(tree, u"DDC/CI is switched on in the monitor's own menu."_s).isEmpty());
    m_shell->context.setMonitors({&*m_first});
    QTRY_VERIFY(m_shell->widget("LuAiContrastWidget"));
    QTRY_VERIFY(node(m_shell->bridge->tree().value.toObject(), u"No supported monitor found"_s).isEmpty());
}

void TestShell::aMonitorThatIsDeletedLeavesTheWindow()
{
    start({&*m_first, &*m_second});
    m_first->contrast.setState(true);
    m_first.reset();
    QCOMPARE(m_shell->context.currentMonitor(), &*m_second);
    QCOMPARE(m_shell->context.monitors().size(), 1);
    QTRY_VERIFY(m_shell->widget("LuAiContrastWidget"));
    QVERIFY(!m_shell->widget("LuAiContrastWidget")->property("active").toBool());
    m_second.reset();
    QTRY_VERIFY(!m_shell->widget("LuAiContrastWidget"));
    QTRY_VERIFY(m_shell->window()->property("empty").toBool());
}

void TestShell::aMonitorThatGoesIsNotWrittenToAnyMore()
{
    start({&*m_first});
    m_shell->bridge->show();
    QTRY_VERIFY(m_first->contrast.syncEnable);
    // The widgets go with the next turn of the event loop, maybe after the monitor: their bindings go at
    // once.
    m_shell->context.setMonitors({});
    QVERIFY(!m_first->contrast.syncEnable);
    m_first->setIsCurrentModel(false);
    m_first->setIsCurrentModel(true);
    QVERIFY(!m_first->contrast.syncEnable);
}

void TestShell::theWindowIsNarrowAndStandsAtTheLowerRightCorner()
{
    start({&*m_first});
    const QRect free = m_shell->context.availableGeometry(m_shell->window()).toRect();
    QTRY_COMPARE(m_shell->window()->width(), 340);
    QTRY_COMPARE(m_shell->window()->geometry().bottomRight(), free.bottomRight() - QPoint(12, 12));
}

void TestShell::thePageStandsBesideTheWindow()
{
    start({&*m_first});
    QTRY_VERIFY(m_shell->window()->x() > 300);
    QVERIFY(m_shell->bridge->openPage(u"LuAutoPivotWidget"_s).ok());
    auto* page = m_shell->window()->property("pageWindow").value<QQuickWindow*>();
    QVERIFY(page);
    QTRY_COMPARE(page->x() + page->width() + 8, m_shell->window()->x());
    QTRY_COMPARE(page->geometry().bottom(), m_shell->window()->geometry().bottom());
    QCOMPARE(page->width(), 270);
    QVERIFY(m_shell->bridge->close().ok());
    QVERIFY(!m_shell->window()->property("pageWindow").value<QQuickWindow*>());
}

void TestShell::thePageLiesOverTheWindowWhereThereIsNoRoom()
{
    start({&*m_first});
    m_shell->window()->setProperty("movedByUser", true);
    m_shell->window()->setX(40);
    QTRY_COMPARE(m_shell->window()->x(), 40);
    QVERIFY(m_shell->bridge->openPage(u"LuAutoPivotWidget"_s).ok());
    QVERIFY(!m_shell->window()->property("pageWindow").value<QQuickWindow*>());
    QQuickItem* panel = m_shell->item(u"pagePanel"_s);
    QVERIFY(panel);
    QCOMPARE(panel->window(), m_shell->window());
    QVERIFY(m_shell->bridge->press(u"180°"_s).ok());
    QCOMPARE(m_first->pivot.currentPivot(), 180);
    m_shell->window()->requestActivate();
    QTRY_VERIFY(panel->hasActiveFocus() || m_shell->window()->activeFocusItem());
    QTest::keyClick(m_shell->window(), Qt::Key_Escape);
    QTRY_VERIFY(!m_shell->item(u"pagePanel"_s));
}

void TestShell::openingAPageShowsTheWindow()
{
    start({&*m_first});
    QVERIFY(m_shell->bridge->hide().ok());
    QVERIFY(!m_shell->window()->isVisible());
    QVERIFY(m_shell->bridge->openPage(u"LuAutoPivotWidget"_s).ok());
    QVERIFY(m_shell->window()->isVisible());
    QVERIFY(m_shell->bridge->press(u"90°"_s).ok());
    QCOMPARE(m_first->pivot.currentPivot(), 90);
}

void TestShell::whatIsHiddenCannotBePressed()
{
    start({&*m_first});
    QVERIFY(m_shell->bridge->hide().ok());
    const auto result = m_shell->bridge->press(u"Local Contrast"_s);
    QCOMPARE(result.code, int(LuWindowBridge::NoSuchThing));
    QVERIFY(!m_first->contrast.state());
}

void TestShell::tilesAreButtonsOfTheirName()
{
    start({&*m_first});
    const QJsonObject tile = node(m_shell->bridge->tree().value.toObject(), u"Local Contrast"_s);
    QCOMPARE(tile[u"role"_s].toString(), u"button"_s);
    QCOMPARE(tile[u"checked"_s].toBool(), false);
    QCOMPARE(tile[u"enabled"_s].toBool(), true);
    QVERIFY(tile[u"image"_s].toString().endsWith(u"btn_aicontrast.svg"_s));
    QVERIFY(m_shell->bridge->press(u"Local Contrast"_s).ok());
    QVERIFY(m_first->contrast.state());
    QCOMPARE(node(m_shell->bridge->tree().value.toObject(), u"Local Contrast"_s)[u"checked"_s].toBool(),
             true);
}

void TestShell::everyControlHasANameAndARole()
{
    start({&*m_first, &*m_second});
    QVERIFY(m_shell->bridge->openPage(u"LuAutoPivotWidget"_s).ok());
    const QJsonObject tree = m_shell->bridge->tree().value.toObject();
    QStringList nameless;
    check(tree, nameless);
    QCOMPARE(nameless, QStringList());
    QVERIFY(!node(tree, u"Settings"_s, u"button"_s).isEmpty());
    QVERIFY(!node(tree, u"Close"_s, u"button"_s).isEmpty());
    QCOMPARE(node(tree, u"Monitor"_s, u"comboBox"_s)[u"value"_s].toString(), u"TK30Z"_s);
}

void TestShell::theTreeOfAWidgetHoldsItsPage()
{
    start({&*m_first});
    QVERIFY(m_shell->bridge->openPage(u"LuAutoPivotWidget"_s).ok());
    const QJsonObject tree = m_shell->bridge->tree(u"LuAutoPivotWidget"_s).value.toObject();
    QVERIFY(node(tree, u"Local Contrast"_s).isEmpty());
    const QJsonObject page = node(tree, u"Screen pivot"_s, u"page"_s);
    QVERIFY(!page.isEmpty());
    QVERIFY(!node(page, u"Auto Pivot"_s, u"switch"_s).isEmpty());
    for (const QString& name : {u"0°"_s, u"90°"_s, u"180°"_s, u"270°"_s})
        QCOMPARE(node(page, name, u"radio"_s)[u"checked"_s].toBool(), name == u"0°"_s);
}

void TestShell::theKeyboardReachesEveryTile()
{
    start({&*m_first});
    m_shell->window()->requestActivate();
    QVERIFY(QTest::qWaitForWindowActive(m_shell->window(), PatienceMs));
    QStringList reached;
    for (int step = 0; step < 12; ++step) {
        QTest::keyClick(m_shell->window(), Qt::Key_Tab);
        if (const QQuickItem* item = m_shell->window()->activeFocusItem())
            reached << item->objectName();
    }
    for (const QString& name : {u"settingsButton"_s, u"closeButton"_s, u"LuAutoPivotWidget.button"_s,
                                u"LuAiContrastWidget.button"_s})
        QVERIFY2(reached.contains(name), qPrintable(name + u" not in "_s + reached.join(u' ')));
}

void TestShell::theReturnKeyPressesATile()
{
    start({&*m_first});
    QVERIFY(m_shell->bridge->key(u"Local Contrast"_s, u"Return"_s).ok());
    QVERIFY(m_first->contrast.state());
    QVERIFY(m_shell->bridge->key(u"Local Contrast"_s, u"Space"_s).ok());
    QVERIFY(!m_first->contrast.state());
}

void TestShell::unknownThingsAreErrorTwo_data()
{
    QTest::addColumn<int>("what");
    QTest::newRow("press") << 0;
    QTest::newRow("press within a widget that is not there") << 1;
    QTest::newRow("wrong role") << 2;
    QTest::newRow("open a widget") << 3;
    QTest::newRow("open a widget without page") << 4;
    QTest::newRow("open a section") << 5;
    QTest::newRow("open a popup") << 6;
    QTest::newRow("close") << 7;
    QTest::newRow("tree") << 8;
    QTest::newRow("mouse") << 9;
    QTest::newRow("picture") << 10;
}

void TestShell::unknownThingsAreErrorTwo()
{
    QFETCH(int, what);
    start({&*m_first});
    LuWindowBridge& bridge = *m_shell->bridge;
    LuWindowBridge::Result result;
    switch (what) {
    case 0:
        result = bridge.press(u"Nothing"_s);
        break;
    case 1:
        result = bridge.press(u"Local Contrast"_s, {}, u"LuNothingWidget"_s);
        break;
    case 2:
        result = bridge.press(u"Local Contrast"_s, u"slider"_s);
        break;
    case 3:
        result = bridge.openPage(u"LuNothingWidget"_s);
        break;
    case 4:
        result = bridge.openPage(u"LuAiContrastWidget"_s);
        break;
    case 5:
        result = bridge.openSection(u"SectionNothing"_s);
        break;
    case 6:
        result = bridge.openPopup(u"LuAiContrastWidget"_s);
        break;
    case 7:
        result = bridge.close(u"LuNothingWidget"_s);
        break;
    case 8:
        result = bridge.tree(u"LuNothingWidget"_s);
        break;
    case 9:
        result = bridge.mouse(u"nothing"_s, u"click"_s, {});
        break;
    case 10:
        result = bridge.screenshot(u"/tmp/never.png"_s, u"LuNothingWidget"_s);
        break;
    }
    QCOMPARE(result.code, int(LuWindowBridge::NoSuchThing));
    QVERIFY(!result.message.isEmpty());
}

void TestShell::aValueThatDoesNotFitIsErrorFour()
{
    start({&*m_first, &*m_second});
    LuWindowBridge& bridge = *m_shell->bridge;
    QCOMPARE(bridge.setValue(u"Monitor"_s, u"TK99"_s).code, int(LuWindowBridge::WrongValue));
    QCOMPARE(bridge.key(u"Local Contrast"_s, u"NoKey"_s).code, int(LuWindowBridge::WrongValue));
    QCOMPARE(bridge.mouse(u"mainWindow"_s, u"stroke"_s, {}).code, int(LuWindowBridge::WrongValue));
    QCOMPARE(bridge.screenshot(u"/tmp/never.png"_s, {}, u"pink"_s).code, int(LuWindowBridge::WrongValue));
    QCOMPARE(bridge.screenshot(u"/nowhere/never.png"_s).code, int(LuWindowBridge::WrongValue));
    QCOMPARE(bridge.setValue(u"Local Contrast"_s, 3).code, int(LuWindowBridge::NotWritable));
}

void TestShell::theSwitcherChoosesAnotherMonitor()
{
    start({&*m_first, &*m_second});
    QVERIFY(m_shell->bridge->setValue(u"Monitor"_s, u"TK20"_s).ok());
    QCOMPARE(m_shell->context.currentMonitor(), &*m_second);
    QVERIFY(m_second->isCurrentModel());
    QVERIFY(!m_first->isCurrentModel());
}

void TestShell::aPointerClickReachesATile()
{
    start({&*m_first});
    QVERIFY(!m_shell->window()->grabWindow().isNull());
    const QJsonObject rect =
        node(m_shell->bridge->tree().value.toObject(), u"Local Contrast"_s)[u"rect"_s].toObject();
    const QPointF centre(rect[u"x"_s].toDouble() + rect[u"width"_s].toDouble() / 2,
                         rect[u"y"_s].toDouble() + rect[u"height"_s].toDouble() / 2);
    QVERIFY(m_shell->bridge->mouse(u"mainWindow"_s, u"click"_s, centre).ok());
    QVERIFY(m_first->contrast.state());
}

void TestShell::aPictureIsWrittenInTheThemeAskedFor()
{
    start({&*m_first});
    QTemporaryDir folder;
    const auto lightness = [&](const QString& theme) {
        const QString file = folder.filePath(theme + u".png"_s);
        if (!m_shell->bridge->screenshot(file, {}, theme).ok())
            return -1;
        const QImage image(file);
        return image.width() == 340 ? image.pixelColor(image.width() / 2, image.height() - 6).lightness()
                                    : -1;
    };
    QVERIFY(lightness(u"light"_s) > 200);
    const int dark = lightness(u"dark"_s);
    QVERIFY(dark >= 0 && dark < 60);
    QCOMPARE(m_shell->context.theme(), u"light"_s);
}

void TestShell::aPictureOfAPageLeavesItClosed()
{
    start({&*m_first});
    QTemporaryDir folder;
    const QString file = folder.filePath(u"page.png"_s);
    QVERIFY(m_shell->bridge->screenshot(file, u"LuAutoPivotWidget"_s).ok());
    QCOMPARE(QImage(file).width(), 270);
    QVERIFY(!m_shell->item(u"pagePanel"_s));
    QCOMPARE(m_first->pivot.updates, 1);
}

void TestShell::windowsAreListed()
{
    start({&*m_first});
    const QJsonArray list = m_shell->bridge->windows().value.toArray();
    bool found = false;
    for (const QJsonValue& one : list) {
        if (one[u"name"_s].toString() != u"mainWindow"_s)
            continue;
        found = true;
        QCOMPARE(one[u"visible"_s].toBool(), true);
        QCOMPARE(one[u"rect"_s][u"width"_s].toInt(), 340);
        QVERIFY(one[u"flags"_s].toInt() & Qt::FramelessWindowHint);
    }
    QVERIFY(found);
}

void TestShell::qmlWarningsAreKept()
{
    start({&*m_first});
    QQmlComponent component(&m_shell->engine);
    component.setData("import QtQuick\nItem { property int one: nowhere.two }", QUrl(u"qrc:/broken.qml"_s));
    const std::unique_ptr<QObject> object(component.create());
    QCOMPARE(m_shell->bridge->warnings().size(), 1);
    QVERIFY(m_shell->bridge->warnings().first().contains(u"nowhere"_s));
    m_expectedWarnings << m_shell->bridge->warnings().first();
}

void TestShell::theSettingsPageSwitchesTheTheme()
{
    start({&*m_first});
    QVERIFY(m_shell->bridge->press(u"Settings"_s).ok());
    QVERIFY(m_shell->item(u"generalPage"_s));
    QVERIFY(m_shell->bridge->press(u"Dark"_s, u"radio"_s).ok());
    QCOMPARE(m_shell->context.colorScheme(), u"dark"_s);
    QVERIFY(m_shell->bridge->press(u"Light"_s, u"radio"_s).ok());
    QCOMPARE(m_shell->context.colorScheme(), u"light"_s);
}

void TestShell::aMissingImageWarnsOnce()
{
    start({&*m_first});
    const QUrl url(u"qrc:/images/packages/btn_nothing.svg"_s);
    QVERIFY(m_shell->context.resolvedResourceUrl(url, nullptr, u"dark"_s).isEmpty());
    QVERIFY(m_shell->context.resolvedResourceUrl(url, nullptr, u"light"_s).isEmpty());
    m_expectedWarnings << u"image missing: btn_nothing.svg"_s;
}

void TestShell::theTypeFileMatchesTheContext()
{
    QFile file(u":/lumendesk/qml/LumenDesk/lumendesk.qmltypes"_s);
    start({});
    QVERIFY(file.open(QIODevice::ReadOnly));
    QString text = QString::fromUtf8(file.readAll());
    text = text.left(text.indexOf(u"name: \"LuVCPNode\""_s));
    const auto names = [&text](const QString& kind) {
        QSet<QString> result;
        const QRegularExpression pattern(kind + u" \\{\\s*name: \"(\\w+)\""_s);
        for (auto match = pattern.globalMatch(text); match.hasNext();)
            result << match.next().captured(1);
        return result;
    };
    const QMetaObject& meta = LuContext::staticMetaObject;
    QSet<QString> properties;
    for (int index = meta.propertyOffset(); index < meta.propertyCount(); ++index)
        properties << QString::fromLatin1(meta.property(index).name());
    QSet<QString> methods;
    QSet<QString> notifiers;
    for (int index = meta.methodOffset(); index < meta.methodCount(); ++index) {
        const QMetaMethod method = meta.method(index);
        (method.methodType() == QMetaMethod::Signal ? notifiers : methods)
            << QString::fromLatin1(method.name());
    }
    QCOMPARE(names(u"Property"_s), properties);
    QCOMPARE(names(u"Signal"_s), notifiers);
    QCOMPARE(names(u"Method"_s), methods);
}

QTEST_MAIN(TestShell)
#include "tst_qml_shell.moc"
