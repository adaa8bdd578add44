// SPDX-License-Identifier: Apache-2.0
#include "AccessibleTree.h"
#include "DeskProcess.h"

#include <QDir>
#include <QtTest>

#include <utility>

#include <functional>

using namespace Qt::StringLiterals;

namespace {

constexpr const char* Models[] = {"TK30Z", "TK20", "TK40X"};

/// One stop of the tabulator.
QString stopOf(const QJsonValue& focus)
{
    const QJsonValue rect = focus[u"rect"_s];
    return u"%1 \"%2\" at %3, %4"_s.arg(focus[u"role"_s].toString(), focus[u"name"_s].toString())
        .arg(rect[u"x"_s].toDouble())
        .arg(rect[u"width"_s].toDouble());
}

QString nameOf(const QJsonValue& node)
{
    return u"%1 \"%2\""_s.arg(node[u"role"_s].toString(), node[u"name"_s].toString());
}

/// Whether a person has to be able to come to a control of that role; entries of lists are reached with their
/// list.
bool takesFocus(const QString& role)
{
    static const QStringList roles{u"button"_s, u"link"_s,     u"switch"_s,    u"checkBox"_s,
                                   u"radio"_s,  u"comboBox"_s, u"textField"_s, u"slider"_s};
    return roles.contains(role);
}

QStringList controlsIn(const QJsonValue& node)
{
    QStringList names;
    if (takesFocus(node[u"role"_s].toString()) && node[u"enabled"_s].toBool())
        names << nameOf(node);
    for (const QJsonValue& child : node[u"children"_s].toArray())
        names << controlsIn(child);
    return names;
}

/// The first object of a role, depth first; null if there is none.
QJsonValue firstOf(const QJsonValue& tree, const QString& role)
{
    if (tree[u"role"_s].toString() == role)
        return tree;
    for (const QJsonValue& child : tree[u"children"_s].toArray()) {
        if (const QJsonValue found = firstOf(child, role); !found.isNull())
            return found;
    }
    return QJsonValue();
}

} // namespace

/// Everything is reached, seen and used with the keyboard alone.
class TestKeyboard : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void theTabKeyWalksEverything_data();
    void theTabKeyWalksEverything();
    void theTabKeyStaysOnAPageThatCoversTheWindow();
    void whatTheKeyboardReachesIsScrolledIntoSight();

private:
    ControlClient& client() { return m_desk.client(); }
    void start(const QString& model);
    QJsonValue focus() { return client().call(u"ui.focus"_s).result; }
    bool press(const QString& key) { return client().call(u"ui.key"_s, {{u"key"_s, key}}).ok(); }
    /// Goes once round with the tabulator and back again. @p place returns what has to be reached.
    void walk(const QString& where, const std::function<QJsonValue()>& place, QStringList& found);
    QJsonValue windowTree(const QString& name);

    DeskProcess m_desk;
};

void TestKeyboard::cleanup()
{
    if (m_desk.isRunning()) {
        QCOMPARE(client().call(u"ui.warnings"_s).result.toArray(), QJsonArray());
        QCOMPARE(m_desk.stop(), 0);
    }
}

void TestKeyboard::start(const QString& model)
{
    QVERIFY2(
        m_desk.start({u"--simulate"_s, model, u"--ddc-timing"_s, u"fast"_s, u"--services"_s, u"simulated"_s}),
        qPrintable(m_desk.errors()));
    QVERIFY(client().call(u"idle"_s).ok());
    QVERIFY(client().call(u"set"_s, {{u"path"_s, u"context.reducedMotion"_s}, {u"value"_s, true}}).ok());
    QVERIFY(client().call(u"ui.show"_s).ok());
}

QJsonValue TestKeyboard::windowTree(const QString& name)
{
    for (const QJsonValue& window : client().call(u"ui.tree"_s).result[u"children"_s].toArray()) {
        if (window[u"name"_s].toString() == name)
            return window;
    }
    return QJsonValue();
}

void TestKeyboard::walk(const QString& where, const std::function<QJsonValue()>& place, QStringList& found)
{
    constexpr int MostStops = 150;
    QStringList stops;
    QStringList reached;
    while (stops.size() < MostStops) {
        if (!press(u"Tab"_s)) {
            found << where + u": no window takes the key"_s;
            return;
        }
        const QJsonValue now = focus();
        const QString stop = stopOf(now);
        if (now[u"name"_s].toString().isEmpty()) {
            found << where + u": something without a name after "_s +
                         (stops.isEmpty() ? u"the start"_s : stops.last());
            return;
        }
        if (!stops.isEmpty() && stop == stops.first())
            break;
        if (!now[u"marked"_s].toBool())
            found << where + u": no focus ring at "_s + stop;
        if (!now[u"seen"_s].toBool())
            found << where + u": out of sight: "_s + stop;
        stops << stop;
        reached << nameOf(now);
    }
    if (stops.size() >= MostStops)
        found << where + u": no end"_s;
    QStringList controls = controlsIn(place());
    controls.removeDuplicates();
    for (const QString& control : std::as_const(controls)) {
        if (!reached.contains(control))
            found << where + u": not reached: "_s + control;
    }
    // The way back is the same one. The first stop has the focus now.
    for (auto stop = stops.crbegin(); stop != stops.crend(); ++stop) {
        // The way out of a sub-page is there only while that is shown.
        if (stop->startsWith(u"button \"Back\""_s))
            continue;
        if (!press(u"Shift+Tab"_s) || stopOf(focus()) != *stop) {
            found << where + u": the way back leads to "_s + stopOf(focus()) + u", not to "_s + *stop;
            return;
        }
    }
}

void TestKeyboard::theTabKeyWalksEverything_data()
{
    QTest::addColumn<QString>("model");
    for (const char* model : Models)
        QTest::newRow(model) << QString::fromLatin1(model);
}

void TestKeyboard::theTabKeyWalksEverything()
{
    QFETCH(QString, model);
    start(model);
    // What is off keeps its controls from the keyboard.
    for (const char* path :
         {"ecoPrivacy.state", "abPlus.state", "abSetting.state", "shortcuts.active", "pipPbp.state"})
        (void)client().call(u"set"_s, {{u"path"_s, QString::fromLatin1(path)}, {u"value"_s, true}});
    QVERIFY(client().call(u"sync"_s).ok());
    QVERIFY(client().call(u"idle"_s).ok());
    // What the features show or hide on the window has come to rest.
    QJsonValue last;
    int same = 0;
    const auto isAtRest = [&] {
        const QJsonValue now = client().call(u"ui.tree"_s).result;
        same = now == std::exchange(last, now) ? same + 1 : 0;
        return same >= 10;
    };
    QTRY_VERIFY_WITH_TIMEOUT(isAtRest(), 30'000);
    QStringList found;
    walk(
        u"window"_s, [this] { return windowTree(u"Lumen Desk"_s); }, found);
    int pages = 0;
    for (const QJsonValue& row : client().call(u"ui.widgets"_s).result.toArray()) {
        const QString widget = row[u"widget"_s].toString();
        const QJsonValue before = focus();
        if (!row[u"shown"_s].toBool() || row[u"popup"_s].toBool() ||
            !client().call(u"ui.open"_s, {{u"widget"_s, widget}}).ok())
            continue;
        ++pages;
        walk(
            widget, [this] { return firstOf(client().call(u"ui.tree"_s).result, u"page"_s); }, found);
        // Escape leads back to where the page was opened.
        for (int more = 0; more < 2 && !firstOf(client().call(u"ui.tree"_s).result, u"page"_s).isNull();
             ++more)
            QVERIFY(press(u"Escape"_s));
        if (!firstOf(client().call(u"ui.tree"_s).result, u"page"_s).isNull())
            found << widget + u": Escape does not close it"_s;
        QTRY_COMPARE(focus()[u"window"_s].toString(), u"mainWindow"_s);
        const QJsonValue after = focus();
        if (stopOf(after) != stopOf(before) || !after[u"marked"_s].toBool())
            found << u"%1: back at %2, not at %3"_s.arg(widget, stopOf(after), stopOf(before));
    }
    QVERIFY(pages >= 5);
    for (const char* section : {"general", "widgets", "location", "computers", "diagnostics", "about"}) {
        const QString name = QString::fromLatin1(section);
        QVERIFY(client().call(u"ui.open"_s, {{u"section"_s, name}}).ok());
        QTRY_COMPARE(focus()[u"window"_s].toString(), u"settingsWindow"_s);
        walk(
            name, [this] { return windowTree(u"Settings"_s); }, found);
        QVERIFY(client().call(u"ui.close"_s, {{u"section"_s, name}}).ok());
    }
    for (const QString& line : std::as_const(found))
        qWarning().noquote() << line;
    QVERIFY2(found.isEmpty(), qPrintable(QString::number(found.size())));
}

void TestKeyboard::theTabKeyStaysOnAPageThatCoversTheWindow()
{
    // At twice the size there is no room beside the window.
    qputenv("QT_SCALE_FACTOR", "2");
    start(u"TK30Z"_s);
    qunsetenv("QT_SCALE_FACTOR");
    QVERIFY(client().call(u"ui.open"_s, {{u"widget"_s, u"LuAutoPivotWidget"_s}}).ok());
    QCOMPARE(focus()[u"window"_s].toString(), u"mainWindow"_s);
    const QStringList controls = controlsIn(firstOf(client().call(u"ui.tree"_s).result, u"page"_s));
    QVERIFY(controls.size() > 3);
    for (qsizetype i = 0; i < 2 * controls.size(); ++i) {
        QVERIFY(press(u"Tab"_s));
        QVERIFY2(controls.contains(nameOf(focus())), qPrintable(stopOf(focus())));
    }
}

void TestKeyboard::whatTheKeyboardReachesIsScrolledIntoSight()
{
    // Twice the size leaves half of the screen for a window.
    qputenv("QT_SCALE_FACTOR", "2");
    start(u"TK30Z"_s);
    qunsetenv("QT_SCALE_FACTOR");
    QStringList found;
    walk(
        u"window"_s, [this] { return windowTree(u"Lumen Desk"_s); }, found);
    QVERIFY(client().call(u"ui.open"_s, {{u"widget"_s, u"LuBrightnessWidget"_s}}).ok());
    walk(
        u"brightness"_s, [this] { return firstOf(client().call(u"ui.tree"_s).result, u"page"_s); }, found);
    for (const QString& line : std::as_const(found))
        qWarning().noquote() << line;
    QVERIFY2(found.isEmpty(), qPrintable(QString::number(found.size())));
}

QTEST_GUILESS_MAIN(TestKeyboard)
#include "tst_window_keyboard.moc"
