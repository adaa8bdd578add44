// SPDX-License-Identifier: Apache-2.0
#include "Shell.h"

#include <QDir>
#include <QPainter>
#include <QQuickItem>
#include <QTest>

#include <optional>

using namespace Qt::StringLiterals;

/// Every control in every state, in every look: each state is seen, and a sheet of all is kept for a person.
class TestStates : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void everyStateIsSeen_data();
    void everyStateIsSeen();
    void everyLookIsDrawn_data();
    void everyLookIsDrawn();
    void aControlHasANameAndARole_data();
    void aControlHasANameAndARole();
    void aDisabledGroupIsFadedOnce();
    void whatIsDisabledIsDrawn_data();
    void whatIsDisabledIsDrawn();
    void nothingIsCutInALargerFont();
    void theTabKeyReachesEveryControl();

private:
    QQuickItem* item(const QString& name) const { return m_shell->item(name); }
    QRectF place(QQuickItem* item) const;
    QImage picture(QQuickItem* item) const;
    QStringList unseenStates(const QString& name);
    static QStringList interactive();

    std::optional<Shell> m_shell;
    QPointer<QQuickWindow> m_window;
};

void TestStates::init()
{
    m_shell.emplace(QList<FakeMonitor*>());
    m_shell->engine.load(QUrl(u"qrc:/tests/States.qml"_s));
    m_window = qobject_cast<QQuickWindow*>(m_shell->engine.rootObjects().constLast());
    QVERIFY(m_window);
    m_window->requestActivate();
    QVERIFY(QTest::qWaitForWindowActive(m_window, PatienceMs));
}

void TestStates::cleanup()
{
    m_shell->context.setFontScale(1);
    m_shell->context.setHighContrast(false);
    m_shell.reset();
    QCOMPARE(Shell::takeWarnings(), QStringList());
}

QStringList TestStates::interactive()
{
    return {u"button"_s,       u"highlighted"_s, u"caution"_s,  u"link"_s,     u"iconButton"_s,
            u"help"_s,         u"imageButton"_s, u"switch"_s,   u"switchOn"_s, u"asking"_s,
            u"check"_s,        u"checkOn"_s,     u"radio"_s,    u"radioOn"_s,  u"imageRadio"_s,
            u"imageRadioOn"_s, u"layout"_s,      u"layoutOn"_s, u"swatch"_s,   u"swatchOn"_s,
            u"combo"_s,        u"comboEmpty"_s,  u"field"_s,    u"time"_s,     u"keys"_s,
            u"slider"_s,       u"sliderUp"_s};
}

// With room for a focus ring.
QRectF TestStates::place(QQuickItem* item) const
{
    return item->mapRectToScene(QRectF(0, 0, item->width(), item->height())).adjusted(-6, -6, 6, 6);
}

QImage TestStates::picture(QQuickItem* item) const
{
    const QImage all = m_window->grabWindow();
    // The picture does not always tell its own ratio.
    const qreal ratio = qreal(all.width()) / m_window->width();
    const QRectF rect = place(item);
    return all.copy(QRectF(rect.topLeft() * ratio, rect.size() * ratio).toAlignedRect());
}

void TestStates::everyStateIsSeen_data()
{
    QTest::addColumn<QString>("theme");
    QTest::addColumn<bool>("highContrast");
    QTest::newRow("light") << u"light"_s << false;
    QTest::newRow("dark") << u"dark"_s << false;
    QTest::newRow("high contrast, light") << u"light"_s << true;
    QTest::newRow("high contrast, dark") << u"dark"_s << true;
}

void TestStates::everyStateIsSeen()
{
    QFETCH(QString, theme);
    QFETCH(bool, highContrast);
    m_shell->context.setTheme(theme);
    m_shell->context.setHighContrast(highContrast);
    QStringList unseen;
    for (const QString& name : interactive()) {
        for (const QString& state : unseenStates(name))
            unseen << name + u": "_s + state;
    }
    QCOMPARE(unseen, QStringList());
}

QStringList TestStates::unseenStates(const QString& name)
{
    QStringList unseen;
    QQuickItem* control = item(name);
    if (!control)
        return {u"no such control"_s};
    const QPoint away(2, 2);
    const QPoint centre = place(control).center().toPoint();
    const QImage normal = picture(control);
    QTest::mouseMove(m_window, centre);
    const QImage hovered = picture(control);
    if (hovered == normal)
        unseen << u"hovered"_s;
    if (name != u"field"_s) {
        QTest::mousePress(m_window, Qt::LeftButton, {}, centre);
        if (picture(control) == hovered)
            unseen << u"pressed"_s;
        // Released outside: nothing is chosen.
        QTest::mouseMove(m_window, away);
        QTest::mouseRelease(m_window, Qt::LeftButton, {}, away);
    }
    QTest::mouseMove(m_window, away);
    control->setFocus(false);
    const QImage before = picture(control);
    control->forceActiveFocus(Qt::TabFocusReason);
    if (picture(control) == before)
        unseen << u"focused"_s;
    control->setFocus(false);
    control->setEnabled(false);
    if (picture(control) == before)
        unseen << u"disabled"_s;
    return unseen;
}

void TestStates::everyLookIsDrawn_data()
{
    QTest::addColumn<QString>("theme");
    QTest::addColumn<bool>("highContrast");
    QTest::addColumn<bool>("mirrored");
    QTest::addColumn<double>("fontScale");
    const struct
    {
        const char* name;
        bool highContrast;
        bool mirrored;
        double fontScale;
    } looks[] = {
        {"plain", false, false, 1},
        {"contrast", true, false, 1},
        {"mirrored", false, true, 1},
        {"largefont", false, false, 2},
    };
    for (const auto& look : looks) {
        for (const QString& theme : {u"light"_s, u"dark"_s})
            QTest::addRow("%s-%s", look.name, qPrintable(theme))
                << theme << look.highContrast << look.mirrored << look.fontScale;
    }
}

void TestStates::everyLookIsDrawn()
{
    QFETCH(QString, theme);
    QFETCH(bool, highContrast);
    QFETCH(bool, mirrored);
    QFETCH(double, fontScale);
    m_shell->context.setTheme(theme);
    m_shell->context.setHighContrast(highContrast);
    m_shell->context.setFontScale(fontScale);
    m_window->setProperty("mirrored", mirrored);
    const QImage image = m_window->grabWindow();
    QVERIFY(!image.isNull());
    const QDir folder(QDir::current().filePath(u"gallery"_s));
    QVERIFY(folder.mkpath(u"."_s));
    const QString scale = qFuzzyCompare(m_window->effectiveDevicePixelRatio(), 1.0)
                              ? QString()
                              : u"-%1x"_s.arg(m_window->effectiveDevicePixelRatio());
    const QString file = u"controls-%1%2.png"_s.arg(QString::fromLatin1(QTest::currentDataTag()), scale);
    QVERIFY(image.save(folder.filePath(file)));
    // Mirrored, the text field keeps its width and the first control changes its side.
    if (mirrored)
        QVERIFY(place(item(u"button"_s)).left() > m_window->width() / 2);
}

void TestStates::aControlHasANameAndARole_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("role");
    const struct
    {
        const char* name;
        const char* role;
    } rows[] = {
        {"Normal", "button"},        {"Link", "link"},          {"Settings", "button"},
        {"Help", "button"},          {"Upper right", "button"}, {"Off", "switch"},
        {"Check", "checkBox"},       {"Radio", "radio"},        {"90°", "radio"},
        {"Quarters", "radio"},       {"Red", "radio"},          {"Manual", "radio"},
        {"Circadian mode", "group"}, {"Mode", "comboBox"},      {"Search", "textField"},
        {"Sunrise", "button"},       {"Hours", "slider"},       {"Level", "slider"},
        {"100", "slider"},           {"Brightness", "slider"},  {"Flows", "list"},
        {"Work", "listItem"},        {"Advanced", "button"},
    };
    for (const auto& row : rows)
        QTest::newRow(row.name) << QString::fromUtf8(row.name) << QString::fromLatin1(row.role);
}

void TestStates::aControlHasANameAndARole()
{
    QFETCH(QString, name);
    QFETCH(QString, role);
    const QString text = QString::fromUtf8(
        QJsonDocument(m_shell->bridge->tree().value.toObject()).toJson(QJsonDocument::Compact));
    QStringList roles;
    const std::function<void(const QJsonObject&)> walk = [&](const QJsonObject& node) {
        if (node[u"name"_s].toString() == name)
            roles << node[u"role"_s].toString();
        const QJsonArray children = node[u"children"_s].toArray();
        for (const QJsonValue& child : children)
            walk(child.toObject());
    };
    walk(m_shell->bridge->tree().value.toObject());
    QVERIFY2(roles.contains(role), qPrintable(roles.join(u", "_s) + u" in "_s + text.left(2000)));
}

void TestStates::aDisabledGroupIsFadedOnce()
{
    const auto opacity = [this](const QString& name) {
        double product = 1;
        for (const QQuickItem* one = item(name); one; one = one->parentItem())
            product *= one->opacity();
        return product;
    };
    QCOMPARE(opacity(u"grouped"_s), 0.3);
    QCOMPARE(opacity(u"groupedSlider"_s), 0.3);
    item(u"button"_s)->setEnabled(false);
    QCOMPARE(opacity(u"button"_s), 0.3);
    // A group that its panel fades by another measure is not faded further by what it holds.
    item(u"group"_s)->setOpacity(0.5);
    QTRY_COMPARE(opacity(u"grouped"_s), 0.5);
    item(u"group"_s)->setOpacity(1);
    QTRY_COMPARE(opacity(u"grouped"_s), 0.3);
    item(u"group"_s)->setEnabled(true);
    QTRY_COMPARE(opacity(u"grouped"_s), 1.0);
}

void TestStates::whatIsDisabledIsDrawn_data()
{
    QTest::addColumn<QString>("name");
    for (const char* name : {"switch", "switchOn", "slider", "sliderUp", "button", "combo", "radioOn",
                             "check", "grouped", "groupedSlider"})
        QTest::newRow(name) << QString::fromLatin1(name);
}

void TestStates::whatIsDisabledIsDrawn()
{
    QFETCH(QString, name);
    QQuickItem* control = item(name);
    QVERIFY(control);
    if (!name.startsWith(u"grouped"_s))
        control->setEnabled(false);
    // A first drawing makes what the second one shows.
    (void)picture(control);
    const QImage drawn = picture(control);
    QImage empty = drawn;
    empty.fill(m_window->color());
    QVERIFY(drawn.convertToFormat(QImage::Format_RGB32) != empty.convertToFormat(QImage::Format_RGB32));
    // Nor does it lie beside its place: its own middle line is not empty.
    const QImage middle = drawn.copy(0, drawn.height() / 2, drawn.width(), 1);
    QVERIFY(middle.convertToFormat(QImage::Format_RGB32) !=
            empty.copy(middle.rect()).convertToFormat(QImage::Format_RGB32));
}

void TestStates::nothingIsCutInALargerFont()
{
    for (const double scale : {1.0, 1.5, 2.0}) {
        m_shell->context.setFontScale(scale);
        m_window->grabWindow();
        int seen = 0;
        const std::function<void(QQuickItem*)> walk = [&](QQuickItem* one) {
            if (!one->isVisible() || one->objectName() == u"marquee"_s)
                return;
            if (const QVariant cut = one->property("truncated"); cut.isValid()) {
                ++seen;
                QVERIFY2(!cut.toBool(),
                         qPrintable(u"cut at %1: %2"_s.arg(scale).arg(one->property("text").toString())));
            }
            const QList<QQuickItem*> children = one->childItems();
            for (QQuickItem* child : children)
                walk(child);
        };
        walk(m_window->contentItem());
        QVERIFY(seen > 30);
    }
}

void TestStates::theTabKeyReachesEveryControl()
{
    m_window->contentItem()->forceActiveFocus();
    QSet<QString> reached;
    for (int i = 0; i < 80; ++i) {
        QTest::keyClick(m_window, Qt::Key_Tab);
        for (QQuickItem* one = m_window->activeFocusItem(); one; one = one->parentItem())
            reached.insert(one->objectName());
    }
    QStringList missing;
    // Of a group of radio buttons each is a stop of its own.
    for (const QString& name :
         interactive() + QStringList{u"segmented"_s, u"spin"_s, u"labeled"_s, u"list"_s, u"tabs"_s}) {
        if (!reached.contains(name))
            missing << name;
    }
    QCOMPARE(missing, QStringList());
}

QTEST_MAIN(TestStates)
#include "tst_qml_states.moc"
