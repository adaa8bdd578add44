// SPDX-License-Identifier: Apache-2.0
#include "Shell.h"

#include <QQuickItem>
#include <QTest>

#include <optional>

using namespace Qt::StringLiterals;

/// The controls as assistive software, the keyboard and the pointer use them, and the colours that they are
/// drawn in.
class TestControls : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void aPressIsAClick_data();
    void aPressIsAClick();
    void aKeyIsAClick_data();
    void aKeyIsAClick();
    void aDisabledControlTakesNothing();
    void aSliderIsSetAsByADrag();
    void aSliderKeepsItsStepAndRange();
    void aSliderShowsWhatTheMonitorConfirmed();
    void arrowKeysMoveASlider();
    void aComboBoxTakesTheTextOfAnEntry();
    void aTextFieldTakesText();
    void rolesAndValues_data();
    void rolesAndValues();
    void aKeyboardUserSeesWhereTheyAre();
    void textHasEnoughContrast_data();
    void textHasEnoughContrast();
    void reducedMotionStopsEveryTransition();
    void theTypeGrowsWithTheDesktopsFont();

private:
    QStringList log() const { return m_window->property("log").toStringList(); }
    QJsonObject node(const QString& name) const;

    std::optional<Shell> m_shell;
    QPointer<QQuickWindow> m_window;
};

void TestControls::init()
{
    m_shell.emplace(QList<FakeMonitor*>());
    m_shell->engine.load(QUrl(u"qrc:/tests/Controls.qml"_s));
    m_window = qobject_cast<QQuickWindow*>(m_shell->engine.rootObjects().constLast());
    QVERIFY(m_window);
    QVERIFY(QTest::qWaitForWindowExposed(m_window, PatienceMs));
}

void TestControls::cleanup()
{
    m_shell->context.setFontScale(1);
    m_shell->context.setHighContrast(false);
    m_shell.reset();
    QCOMPARE(Shell::takeWarnings(), QStringList());
}

QJsonObject TestControls::node(const QString& name) const
{
    const QJsonArray windows = m_shell->bridge->tree().value[u"children"_s].toArray();
    for (const QJsonValue& window : windows) {
        const QJsonArray children = window[u"children"_s].toArray();
        for (const QJsonValue& child : children) {
            if (child[u"name"_s].toString() == name && child[u"role"_s].toString() != u"label"_s)
                return child.toObject();
        }
    }
    return {};
}

void TestControls::aPressIsAClick_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("entry");
    QTest::newRow("button") << u"Normal"_s << u"normal"_s;
    QTest::newRow("highlighted") << u"Highlighted"_s << u"highlighted"_s;
    QTest::newRow("caution") << u"Caution"_s << u"caution"_s;
    QTest::newRow("link") << u"Link"_s << u"link"_s;
    QTest::newRow("icon") << u"Gear"_s << u"gear"_s;
    QTest::newRow("switch") << u"First switch"_s << u"switch true"_s;
    QTest::newRow("radio") << u"Radio two"_s << u"radio two"_s;
    QTest::newRow("check") << u"Check"_s << u"check true"_s;
}

void TestControls::aPressIsAClick()
{
    QFETCH(QString, name);
    QFETCH(QString, entry);
    QVERIFY(m_shell->bridge->press(name).ok());
    QCOMPARE(log(), QStringList{entry});
}

void TestControls::aKeyIsAClick_data()
{
    aPressIsAClick_data();
}

void TestControls::aKeyIsAClick()
{
    QFETCH(QString, name);
    QFETCH(QString, entry);
    QVERIFY(m_shell->bridge->key(name, u"Space"_s).ok());
    QCOMPARE(log(), QStringList{entry});
}

void TestControls::aDisabledControlTakesNothing()
{
    QCOMPARE(m_shell->bridge->press(u"Disabled"_s).code, int(LuWindowBridge::NotWritable));
    QCOMPARE(m_shell->bridge->setValue(u"Disabled level"_s, 5).code, int(LuWindowBridge::NotWritable));
    QCOMPARE(m_shell->bridge->key(u"Disabled"_s, u"Space"_s).code, int(LuWindowBridge::NotWritable));
    QCOMPARE(log(), QStringList());
    QCOMPARE(node(u"Disabled"_s)[u"enabled"_s].toBool(), false);
}

void TestControls::aSliderIsSetAsByADrag()
{
    QVERIFY(m_shell->bridge->setValue(u"Level"_s, 40).ok());
    QCOMPARE(log(), (QStringList{u"moved 40"_s, u"released 40"_s, u"settled 40"_s}));
}

void TestControls::aSliderKeepsItsStepAndRange()
{
    QVERIFY(m_shell->bridge->setValue(u"Level"_s, 40.4).ok());
    QCOMPARE(node(u"Level"_s)[u"value"_s].toDouble(), 40.0);
    QCOMPARE(m_shell->bridge->setValue(u"Level"_s, 101).code, int(LuWindowBridge::WrongValue));
    QCOMPARE(m_shell->bridge->setValue(u"Level"_s, u"much"_s).code, int(LuWindowBridge::WrongValue));
    QCOMPARE(node(u"Level"_s)[u"value"_s].toDouble(), 40.0);
}

void TestControls::aSliderShowsWhatTheMonitorConfirmed()
{
    const auto accentColumns = [this] {
        const QImage image = m_window->grabWindow();
        const QJsonObject rect = node(u"Level"_s)[u"rect"_s].toObject();
        // Just above the line, where only the tick and the handle are drawn.
        const int y = int(rect[u"y"_s].toDouble()) + 6;
        int columns = 0;
        for (int x = int(rect[u"x"_s].toDouble());
             x < int(rect[u"x"_s].toDouble() + rect[u"width"_s].toDouble()); ++x) {
            const QColor color = image.pixelColor(x, y);
            columns += color.blue() > 150 && color.red() < 120;
        }
        return columns;
    };
    m_window->setProperty("confirmed", 20);
    QCOMPARE(node(u"Level"_s)[u"value"_s].toDouble(), 20.0);
    QVERIFY(m_shell->bridge->setValue(u"Level"_s, 62).ok());
    const int waiting = accentColumns();
    m_window->setProperty("confirmed", 62);
    const int confirmed = accentColumns();
    QVERIFY2(waiting > confirmed, qPrintable(u"%1 and %2"_s.arg(waiting).arg(confirmed)));
    QCOMPARE(node(u"Level"_s)[u"value"_s].toDouble(), 62.0);
}

void TestControls::arrowKeysMoveASlider()
{
    QVERIFY(m_shell->bridge->key(u"Level"_s, u"Right"_s).ok());
    QVERIFY(log().contains(u"moved 63"_s));
}

void TestControls::aComboBoxTakesTheTextOfAnEntry()
{
    QVERIFY(m_shell->bridge->setValue(u"Mode"_s, u"Game"_s).ok());
    QCOMPARE(log(), QStringList{u"combo 2"_s});
    QCOMPARE(node(u"Mode"_s)[u"value"_s].toString(), u"Game"_s);
    QCOMPARE(m_shell->bridge->setValue(u"Mode"_s, u"Paint"_s).code, int(LuWindowBridge::WrongValue));
}

void TestControls::aTextFieldTakesText()
{
    QVERIFY(m_shell->bridge->setValue(u"Search"_s, u"a+b %"_s).ok());
    QCOMPARE(log(), QStringList{u"edited a+b %"_s});
    QCOMPARE(node(u"Search"_s)[u"value"_s].toString(), u"a+b %"_s);
}

void TestControls::rolesAndValues_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("role");
    QTest::newRow("button") << u"Normal"_s << u"button"_s;
    QTest::newRow("link") << u"Link"_s << u"link"_s;
    QTest::newRow("switch") << u"First switch"_s << u"switch"_s;
    QTest::newRow("check") << u"Check"_s << u"checkBox"_s;
    QTest::newRow("radio") << u"Radio one"_s << u"radio"_s;
    QTest::newRow("image radio") << u"Chosen"_s << u"radio"_s;
    QTest::newRow("slider") << u"Level"_s << u"slider"_s;
    QTest::newRow("combo") << u"Mode"_s << u"comboBox"_s;
    QTest::newRow("text") << u"Search"_s << u"textField"_s;
}

void TestControls::rolesAndValues()
{
    QFETCH(QString, name);
    QFETCH(QString, role);
    QCOMPARE(node(name)[u"role"_s].toString(), role);
}

void TestControls::aKeyboardUserSeesWhereTheyAre()
{
    m_window->requestActivate();
    QVERIFY(QTest::qWaitForWindowActive(m_window, PatienceMs));
    const QImage before = m_window->grabWindow();
    QTest::keyClick(m_window, Qt::Key_Tab);
    QTRY_VERIFY(m_window->activeFocusItem());
    QTRY_VERIFY(m_window->grabWindow() != before);
}

void TestControls::textHasEnoughContrast_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("surface");
    QTest::addColumn<double>("atLeast");
    const struct
    {
        const char* text;
        const char* surface;
        double atLeast;
    } rows[] = {
        {"text", "background", 4.5},
        {"text", "card", 4.5},
        {"text", "raised", 4.5},
        {"text", "field", 4.5},
        {"text", "fieldHover", 4.5},
        {"textDim", "background", 4.5},
        {"textDim", "card", 4.5},
        {"textDim", "raised", 4.5},
        {"accentText", "background", 4.5},
        {"accentText", "card", 4.5},
        {"accentText", "raised", 4.5},
        {"accentInk", "accentFill", 4.5},
        {"accentInk", "cautionFill", 4.5},
        {"textDim", "field", 4.5},
        {"text", "fieldPress", 4.5},
        {"caution", "card", 4.5},
        {"notice", "background", 4.5},
        {"notice", "card", 4.5},
        {"notice", "raised", 4.5},
        {"warningInk", "warningFill", 4.5},
        {"accentInk", "accentFillHover", 4.5},
        {"accentInk", "cautionFillHover", 4.5},
        {"accentInk", "accent", 3.0},
        {"outline", "card", 3.0},
        {"outline", "background", 3.0},
        {"focus", "background", 3.0},
        {"focus", "card", 3.0},
        {"accent", "card", 3.0},
        {"accentInk", "accentHover", 3.0},
        {"accentText", "field", 4.5},
    };
    for (const auto& row : rows)
        QTest::addRow("%s on %s", row.text, row.surface)
            << QString::fromLatin1(row.text) << QString::fromLatin1(row.surface) << row.atLeast;
}

void TestControls::textHasEnoughContrast()
{
    QFETCH(QString, text);
    QFETCH(QString, surface);
    QFETCH(double, atLeast);
    const auto* style = m_window->property("style").value<QObject*>();
    QVERIFY(style);
    for (const bool high : {false, true}) {
        m_shell->context.setHighContrast(high);
        for (const QString& theme : {u"light"_s, u"dark"_s}) {
            m_shell->context.setTheme(theme);
            const double ratio =
                m_shell->context.contrastRatio(style->property(qPrintable(text)).value<QColor>(),
                                               style->property(qPrintable(surface)).value<QColor>());
            QVERIFY2(ratio >= atLeast,
                     qPrintable(u"%1, high contrast %2: %3"_s.arg(theme).arg(high).arg(ratio)));
        }
    }
}

void TestControls::reducedMotionStopsEveryTransition()
{
    const auto* style = m_window->property("style").value<QObject*>();
    QCOMPARE(style->property("motion").toInt(), 0);
    m_shell->context.setReducedMotion(false);
    QCOMPARE(style->property("motion").toInt(), 150);
}

void TestControls::theTypeGrowsWithTheDesktopsFont()
{
    const auto* style = m_window->property("style").value<QObject*>();
    QCOMPARE(style->property("fontBody").toInt(), 13);
    m_shell->context.setFontScale(2);
    QCOMPARE(style->property("fontBody").toInt(), 26);
    QCOMPARE(style->property("windowWidth").toInt(), 680);
}

QTEST_MAIN(TestControls)
#include "tst_qml_controls.moc"
