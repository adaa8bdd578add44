// SPDX-License-Identifier: Apache-2.0
#include "DeskProcess.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QtTest>

#include <algorithm>
#include <cmath>
#include <functional>

using namespace Qt::StringLiterals;

// Tells of all that was found, also where it is more than a failure's text has room for.
#define VERIFY_NONE(list)                                                                                    \
    do {                                                                                                     \
        for (const QString& line : std::as_const(list))                                                      \
            qWarning().noquote() << line;                                                                    \
        QVERIFY2((list).isEmpty(), qPrintable(u"%1 problems"_s.arg((list).size())));                         \
    } while (false)

namespace {

constexpr const char* Models[] = {"TK30Z", "TK20", "TK40X", "builtin"};
constexpr const char* Languages[] = {"cs", "de", "en", "es", "fr", "hr", "hu", "it", "ja",
                                     "ko", "nl", "pl", "pt", "ro", "ru", "sv", "zh", "zh_TW"};

/// How the windows may look beside light and dark.
enum class Look { Plain, HighContrast, Mirrored };

/// What the picture of a part is called, and how scripts call the part.
struct Part
{
    QString name;
    bool isWidget = false;
};

/// A window that a button of a page opens.
struct Dialog
{
    const char* widget;
    const char* button;
    /// The type of its own window; empty where it lies over the main window.
    const char* window;
};
constexpr Dialog Dialogs[] = {
    {"LuShortcutsWidget", "Reset All Shortcuts", ""},
    {"LuABPlusWidget", "Help", "LuHintWindow"},
};

/// Where a control or text stands in its window.
struct Place
{
    QString what;
    double left = 0;
    double width = 0;
    double windowWidth = 0;
};

/// What names a side of the screen or the desk, and its opposite: it stays there on a mirrored page.
struct Sides
{
    const char* role;
    const char* left;
    const char* right;
};
constexpr Sides SidePairs[] = {
    {"radio", "Left", "Right"},
    {"comboBox", "Left", "Right"},
    {"comboBox", "Main", "Sub"},
    {"comboBox", "Upper left", "Upper right"},
    {"comboBox", "Lower left", "Lower right"},
    {"image", "Left", "Right"},
    {"image", "Main", "Sub"},
    {"image", "Upper left", "Upper right"},
    {"image", "Lower left", "Lower right"},
    {"label", "Left: ", "Right: "},
    {"label", "Left:", "Right:"},
    {"label", "Main: ", "Sub: "},
    {"label", "Main:", "Sub:"},
};

QString textOf(const char* role, const char* name)
{
    return u"%1 \"%2\""_s.arg(QString::fromUtf8(role), QString::fromUtf8(name));
}

/// Takes the sides out of @p places. @return those that lie the wrong way round.
QStringList takeSides(QList<Place>& places)
{
    QStringList wrong;
    for (const Sides& pair : SidePairs) {
        const auto take = [&places](const QString& what) {
            QList<double> lefts;
            places.removeIf([&](const Place& place) {
                if (place.what == what)
                    lefts << place.left;
                return place.what == what;
            });
            return lefts;
        };
        const QList<double> lefts = take(textOf(pair.role, pair.left));
        const QList<double> rights = take(textOf(pair.role, pair.right));
        if (lefts.size() != rights.size() ||
            !std::equal(lefts.cbegin(), lefts.cend(), rights.cbegin(), std::less_equal()))
            wrong << textOf(pair.role, pair.left);
    }
    return wrong;
}

void addPlaces(const QJsonValue& node, double windowWidth, QList<Place>& places)
{
    const QJsonValue rect = node[u"rect"_s];
    const QString role = node[u"role"_s].toString();
    if (role == "window"_L1 && rect.isObject())
        windowWidth = rect[u"width"_s].toDouble();
    else if (rect.isObject())
        places.append({u"%1 \"%2\""_s.arg(role, node[u"name"_s].toString()), rect[u"x"_s].toDouble(),
                       rect[u"width"_s].toDouble(), windowWidth});
    for (const QJsonValue& child : node[u"children"_s].toArray())
        addPlaces(child, windowWidth, places);
}

QImage blocksOf(const QImage& image)
{
    return image.convertToFormat(QImage::Format_RGB32)
        .scaled(std::max(1, image.width() / 16), std::max(1, image.height() / 16), Qt::IgnoreAspectRatio,
                Qt::SmoothTransformation);
}

/// The largest difference of a colour part between two pictures, each a sixteenth of its size: fonts that are
/// drawn otherwise change little there, another layout or colour much.
int differenceOf(const QImage& a, const QImage& b)
{
    const QImage first = blocksOf(a);
    const QImage second = blocksOf(b).scaled(first.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    int worst = 0;
    for (int y = 0; y < first.height(); ++y) {
        for (int x = 0; x < first.width(); ++x) {
            const QRgb one = first.pixel(x, y);
            const QRgb other = second.pixel(x, y);
            worst = std::max({worst, std::abs(qRed(one) - qRed(other)), std::abs(qGreen(one) - qGreen(other)),
                              std::abs(qBlue(one) - qBlue(other))});
        }
    }
    return worst;
}

} // namespace

/// Pictures of everything that the windows show, in every look, kept for a person in the build folder; and
/// the checks of them that a machine can make.
class TestGallery : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup();
    void cleanupTestCase();

    void everythingIsDrawn_data();
    void everythingIsDrawn();
    void everyLookIsReadable_data();
    void everyLookIsReadable();
    void everyPageIsMirrored_data();
    void everyPageIsMirrored();
    void sidesOfTheScreenStayWhereTheyAre_data();
    void sidesOfTheScreenStayWhereTheyAre();
    void aPageGrowsWithTheFontOnce();
    void noTextIsCut_data();
    void noTextIsCut();
    void theAuditFindsWhatIsWrong();
    void stablePartsLookAsBefore_data();
    void stablePartsLookAsBefore();

private:
    ControlClient& client() { return m_desk.client(); }
    void start(const QString& model, const QByteArray& scale = {});
    QList<Part> parts();
    void setLook(Look look, const QString& theme = {});
    QStringList popups(const QString& model) const;
    QList<Place> places();
    void compareMirrored(const QString& where, QStringList& found);
    void checkProblems(const QString& where, QStringList& found);
    /// Opens one after the other all that can be opened, and lets @p look at each.
    void openEverything(const QString& model, const std::function<void(const QString&)>& look,
                        QStringList& found);
    QStringList problemsEverywhere(const QString& model);
    void writeSheet(const QDir& folder) const;

    DeskProcess m_desk;
    QDir m_folder;
    QStringList m_pictures;
};

void TestGallery::initTestCase()
{
    QVERIFY(QDir().mkpath(QStringLiteral(GALLERY_FOLDER)));
    m_folder.setPath(QStringLiteral(GALLERY_FOLDER));
}

void TestGallery::cleanup()
{
    // The next test speaks the language of the machine and has its theme.
    if (m_desk.isRunning()) {
        for (const QString& key : {u"language"_s, u"theme"_s})
            (void)client().call(u"settings.remove"_s, {{u"key"_s, key}});
    }
    qunsetenv("QT_SCALE_FACTOR");
    if (m_desk.isRunning())
        QCOMPARE(m_desk.stop(), 0);
}

void TestGallery::start(const QString& model, const QByteArray& scale)
{
    if (scale.isEmpty())
        qunsetenv("QT_SCALE_FACTOR");
    else
        qputenv("QT_SCALE_FACTOR", scale);
    QVERIFY2(m_desk.start({u"--simulate"_s, model == "builtin"_L1 ? u"TK30Z,builtin"_s : model,
                           u"--ddc-timing"_s, u"fast"_s, u"--services"_s, u"simulated"_s}),
             qPrintable(m_desk.errors()));
    QVERIFY(client().call(u"idle"_s).ok());
    if (model == "builtin"_L1) {
        for (const QJsonValue& monitor : client().call(u"monitors"_s).result.toArray()) {
            if (monitor[u"builtIn"_s].toBool())
                QVERIFY(client().call(u"select"_s, {{u"monitor"_s, monitor[u"id"_s]}}).ok());
        }
    }
    QVERIFY(client().call(u"sync"_s).ok());
    // Pictures show the end of every transition.
    QVERIFY(client().call(u"set"_s, {{u"path"_s, u"context.reducedMotion"_s}, {u"value"_s, true}}).ok());
}

QList<Part> TestGallery::parts()
{
    QList<Part> list;
    const QJsonArray widgets = client().call(u"ui.widgets"_s).result.toArray();
    for (const QJsonValue& row : widgets) {
        if (row[u"shown"_s].toBool() && !row[u"popup"_s].toBool())
            list.append({row[u"widget"_s].toString(), true});
    }
    for (const char* page :
         {"arrange", "general", "widgets", "location", "computers", "about", "diagnostics"})
        list.append({QString::fromLatin1(page), false});
    const QStringList sections = QDir(QStringLiteral(SECTION_FOLDER)).entryList({u"Section*.qml"_s});
    for (const QString& file : sections)
        list.append({file.chopped(4), false});
    return list;
}

void TestGallery::setLook(Look look, const QString& theme)
{
    const auto set = [this](const QString& path, const QJsonValue& value) {
        return client().call(u"set"_s, {{u"path"_s, path}, {u"value"_s, value}}).ok();
    };
    QVERIFY(set(u"context.highContrast"_s, look == Look::HighContrast));
    QVERIFY(set(u"context.rightToLeft"_s, look == Look::Mirrored));
    if (!theme.isEmpty())
        QVERIFY(set(u"context.theme"_s, theme));
}

QStringList TestGallery::popups(const QString& model) const
{
    // The editors belong to features that a foreign panel has not.
    if (model == "builtin"_L1)
        return {};
    QStringList names;
    const QStringList files = QDir(QStringLiteral(POPUP_FOLDER)).entryList({u"LuPopup*.qml"_s});
    for (const QString& file : files)
        names << file.chopped(4);
    // Those that the program brings for all packages.
    return names << u"LuNamePopup"_s << u"LuSchedulePopup"_s << u"LuActionSelectionPopup"_s;
}

void TestGallery::everythingIsDrawn_data()
{
    QTest::addColumn<QString>("model");
    QTest::addColumn<QByteArray>("scale");
    QTest::addColumn<Look>("look");
    for (const char* name : Models) {
        const QString model = QString::fromLatin1(name);
        QTest::addRow("%s, 100 %%", name) << model << QByteArray() << Look::Plain;
        QTest::addRow("%s, 200 %%", name) << model << QByteArray("2") << Look::Plain;
        QTest::addRow("%s, high contrast", name) << model << QByteArray() << Look::HighContrast;
        QTest::addRow("%s, mirrored", name) << model << QByteArray() << Look::Mirrored;
    }
}

void TestGallery::everythingIsDrawn()
{
    QFETCH(QString, model);
    QFETCH(QByteArray, scale);
    QFETCH(Look, look);
    start(model, scale);
    setLook(look);
    const QString kind = look == Look::HighContrast ? u"-contrast"_s
                         : look == Look::Mirrored   ? u"-mirrored"_s
                                                    : QString();
    const int factor = scale.isEmpty() ? 1 : scale.toInt();
    int pages = 0;
    for (const QString& theme : {u"light"_s, u"dark"_s}) {
        const auto picture = [&](const QString& name, const QString& part) {
            const QString file = u"%1-%2-%3%4-%5x.png"_s.arg(model, name, theme, kind).arg(factor);
            const auto answer = client().call(
                u"ui.screenshot"_s,
                {{u"file"_s, m_folder.absoluteFilePath(file)}, {u"widget"_s, part}, {u"theme"_s, theme}});
            if (!answer.ok())
                return false;
            const QImage image(m_folder.absoluteFilePath(file));
            if (!image.isNull() && image.width() >= 100 * factor)
                m_pictures << file;
            return !image.isNull() && image.width() >= 100 * factor;
        };
        QVERIFY(picture(u"window"_s, {}));
        const QList<Part> list = parts();
        for (const Part& part : list) {
            // A tile need not have a page, nor a monitor every section.
            if (picture(part.name, part.name))
                ++pages;
        }
        const auto drawn = [&](const QString& name) {
            return QImage(
                m_folder.absoluteFilePath(u"%1-%2-%3%4-%5x.png"_s.arg(model, name, theme, kind).arg(factor)));
        };
        for (const QString& name : popups(model)) {
            QVERIFY2(picture(name, name), qPrintable(name));
            const QImage with = drawn(name);
            const QImage without = drawn(u"window"_s);
            QVERIFY2(with.size() != without.size() || differenceOf(without, with) > 10, qPrintable(name));
        }
        for (const Dialog& dialog : Dialogs) {
            // The pages behind them are drawn at twice the size anyway.
            if (factor > 1)
                break;
            const QString widget = QString::fromUtf8(dialog.widget);
            const QString button = QString::fromUtf8(dialog.button);
            const bool isThere = std::any_of(list.cbegin(), list.cend(),
                                             [&](const Part& part) { return part.name == widget; });
            if (!isThere)
                continue; // not every model has each
            QVERIFY(client().call(u"ui.open"_s, {{u"widget"_s, widget}}).ok());
            QVERIFY(client().call(u"ui.press"_s, {{u"name"_s, button}, {u"within"_s, widget}}).ok());
            QVERIFY2(picture(widget + u"-dialog"_s, QString::fromUtf8(dialog.window)), qPrintable(button));
            const bool answered =
                client().call(u"ui.press"_s, {{u"name"_s, u"Cancel"_s}}).ok() ||
                client().call(u"ui.press"_s, {{u"name"_s, button}, {u"within"_s, widget}}).ok();
            QVERIFY2(answered, qPrintable(button));
            QVERIFY(client().call(u"ui.close"_s, {{u"widget"_s, widget}}).ok());
        }
        const QJsonArray widgets = client().call(u"ui.widgets"_s).result.toArray();
        for (const QJsonValue& row : widgets) {
            const QString widget = row[u"widget"_s].toString();
            if (!row[u"shown"_s].toBool() || !row[u"popup"_s].toBool())
                continue;
            QVERIFY(client().call(u"ui.open"_s, {{u"popup"_s, widget}}).ok());
            QVERIFY(picture(widget + u"-popup"_s, {}));
            QVERIFY(client().call(u"ui.close"_s, {{u"popup"_s, widget}}).ok());
        }
    }
    QVERIFY(pages >= 8);
    QCOMPARE(client().call(u"ui.warnings"_s).result.toArray(), QJsonArray());
    QStringList missing;
    for (const QJsonValue& line : client().call(u"log"_s).result.toArray()) {
        if (line[u"text"_s].toString().contains(u"image missing"_s))
            missing << line[u"text"_s].toString();
    }
    QCOMPARE(missing, QStringList());
}

void TestGallery::checkProblems(const QString& where, QStringList& found)
{
    for (const QJsonValue& problem : client().call(u"ui.problems"_s).result.toArray()) {
        found << u"%1: %2 \"%3\" in %4"_s.arg(where, problem[u"problem"_s].toString(),
                                              problem[u"text"_s].toString(), problem[u"item"_s].toString());
    }
}

void TestGallery::openEverything(const QString& model, const std::function<void(const QString&)>& look,
                                 QStringList& found)
{
    const auto lookAt = [&](const QString& kind, const QString& name) {
        const QJsonObject target{{kind, name}};
        if (!client().call(u"ui.open"_s, target).ok())
            return false; // not every tile has a page, nor every monitor all sections
        look(name);
        // The settings are one window for all their pages. Feedback may have gone by itself.
        if (kind != "section"_L1 || name == "arrange"_L1 || name == "walkthrough"_L1)
            (void)client().call(u"ui.close"_s, target);
        return true;
    };
    int opened = 0;
    const QList<Part> list = parts();
    for (const Part& part : list)
        opened += lookAt(part.isWidget ? u"widget"_s : u"section"_s, part.name);
    // A foreign panel has little beside the program's own pages.
    if (opened < 6)
        found << u"only %1 parts could be looked at"_s.arg(opened);
    (void)client().call(u"ui.close"_s, {{u"section"_s, list.last().name}});
    if (model != "builtin"_L1 && !lookAt(u"section"_s, u"walkthrough"_s))
        found << u"the introduction could not be looked at"_s;
    for (const QString& name : popups(model)) {
        if (!lookAt(u"popup"_s, name))
            found << u"%1 could not be looked at"_s.arg(name);
    }
}

QStringList TestGallery::problemsEverywhere(const QString& model)
{
    QStringList found;
    // What has just opened finds its size with the next frames.
    const auto look = [&](const QString& name) {
        QStringList problems;
        const QDeadlineTimer limit(5000);
        do {
            problems.clear();
            checkProblems(name, problems);
        } while (!problems.isEmpty() && !limit.hasExpired());
        found += problems;
    };
    look(u"window"_s);
    openEverything(model, look, found);
    found.removeDuplicates();
    return found;
}

void TestGallery::everyLookIsReadable_data()
{
    QTest::addColumn<QString>("model");
    QTest::addColumn<QString>("theme");
    QTest::addColumn<Look>("look");
    for (const char* name : Models) {
        const QString model = QString::fromLatin1(name);
        QTest::addRow("%s, light", name) << model << u"light"_s << Look::Plain;
        QTest::addRow("%s, dark", name) << model << u"dark"_s << Look::Plain;
        QTest::addRow("%s, high contrast, light", name) << model << u"light"_s << Look::HighContrast;
        QTest::addRow("%s, high contrast, dark", name) << model << u"dark"_s << Look::HighContrast;
        QTest::addRow("%s, mirrored", name) << model << u"light"_s << Look::Mirrored;
    }
}

void TestGallery::everyLookIsReadable()
{
    QFETCH(QString, model);
    QFETCH(QString, theme);
    QFETCH(Look, look);
    start(model);
    setLook(look, theme);
    const QStringList found = problemsEverywhere(model);
    VERIFY_NONE(found);
    QCOMPARE(client().call(u"ui.warnings"_s).result.toArray(), QJsonArray());
}

QList<Place> TestGallery::places()
{
    // Positions are final once a picture has been drawn.
    (void)client().call(u"ui.problems"_s);
    QList<Place> list;
    addPlaces(client().call(u"ui.tree"_s).result, 0, list);
    return list;
}

void TestGallery::compareMirrored(const QString& where, QStringList& found)
{
    constexpr double Tolerance = 2;
    setLook(Look::Plain);
    QList<Place> plain = places();
    setLook(Look::Mirrored);
    QList<Place> mirrored = places();
    setLook(Look::Plain);
    for (QList<Place>* list : {&plain, &mirrored}) {
        for (const QString& wrong : takeSides(*list))
            found << u"%1: %2 is not on the left"_s.arg(where, wrong);
    }
    if (plain.size() != mirrored.size()) {
        found << u"%1: %2 parts became %3"_s.arg(where).arg(plain.size()).arg(mirrored.size());
        return;
    }
    for (qsizetype i = 0; i < plain.size(); ++i) {
        const double wanted = plain[i].windowWidth - plain[i].left - plain[i].width;
        if (plain[i].what != mirrored[i].what || std::abs(mirrored[i].left - wanted) > Tolerance)
            found << u"%1: %2 from %3 to %4, not to %5"_s.arg(where, plain[i].what)
                         .arg(plain[i].left)
                         .arg(mirrored[i].left)
                         .arg(wanted);
    }
}

void TestGallery::everyPageIsMirrored_data()
{
    QTest::addColumn<QString>("model");
    for (const char* model : Models)
        QTest::addRow("%s", model) << QString::fromLatin1(model);
}

void TestGallery::everyPageIsMirrored()
{
    QFETCH(QString, model);
    start(model);
    QStringList found;
    compareMirrored(u"window"_s, found);
    openEverything(
        model, [&](const QString& name) { compareMirrored(name, found); }, found);
    found.removeDuplicates();
    VERIFY_NONE(found);
}

void TestGallery::sidesOfTheScreenStayWhereTheyAre_data()
{
    QTest::addColumn<QString>("model");
    for (const char* model : {"TK30Z", "TK40X"})
        QTest::newRow(model) << QString::fromLatin1(model);
}

void TestGallery::sidesOfTheScreenStayWhereTheyAre()
{
    QFETCH(QString, model);
    start(model);
    const auto open = [this](const char* widget) {
        return client().call(u"ui.open"_s, {{u"widget"_s, QString::fromLatin1(widget)}}).ok();
    };
    const auto set = [this](const QString& path, const QJsonValue& value) {
        return client().call(u"set"_s, {{u"path"_s, path}, {u"value"_s, value}}).ok() &&
               client().call(u"idle"_s).ok();
    };
    QStringList found;
    QVERIFY(set(u"pipPbp.state"_s, true));
    QVERIFY(open("LuPIPPBPWidget"));
    int layouts = 0;
    for (const char* layout : {"Half and half", "Four windows", "16 : 9 and 9 : 5", "Two to one",
                               "Three to one", "Picture in picture"}) {
        const QString name = QString::fromUtf8(layout);
        if (!client().call(u"ui.press"_s, {{u"name"_s, name}, {u"role"_s, u"radio"_s}}).ok())
            continue; // not every model has each
        ++layouts;
        QVERIFY(client().call(u"idle"_s).ok());
        compareMirrored(name, found);
    }
    QVERIFY2(layouts >= 3, qPrintable(QString::number(layouts)));
    for (const char* widget : {"LuSmartKvmBasicWidget", "LuDualViewWidget", "LuDualViewPlusWidget"}) {
        if (open(widget))
            compareMirrored(QString::fromLatin1(widget), found);
    }
    VERIFY_NONE(found);
}

void TestGallery::aPageGrowsWithTheFontOnce()
{
    constexpr double Scale = 1.5;
    start(u"TK30Z"_s);
    const auto width = [this](const QString& widget, double scale) {
        const QString file = m_folder.absoluteFilePath(u"fontscale.png"_s);
        (void)client().call(u"set"_s, {{u"path"_s, u"context.fontScale"_s}, {u"value"_s, scale}});
        const bool drawn = client().call(u"ui.screenshot"_s, {{u"file"_s, file}, {u"widget"_s, widget}}).ok();
        const int result = drawn ? QImage(file).width() : 0;
        (void)QFile::remove(file);
        return result;
    };
    QStringList found;
    int pages = 0;
    for (const Part& part : parts()) {
        const int plain = part.isWidget || part.name == "arrange"_L1 ? width(part.name, 1) : 0;
        if (plain == 0)
            continue; // a tile without a page, or a page of the settings
        ++pages;
        const int large = width(part.name, Scale);
        if (std::abs(large - plain * Scale) > 2)
            found << u"%1: %2 becomes %3"_s.arg(part.name).arg(plain).arg(large);
    }
    QVERIFY(pages > 8);
    VERIFY_NONE(found);
}

void TestGallery::noTextIsCut_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("model");
    for (const char* language : Languages) {
        for (const char* model : {"TK30Z", "TK20"})
            QTest::addRow("%s, %s", language, model)
                << QString::fromLatin1(language) << QString::fromLatin1(model);
    }
}

void TestGallery::noTextIsCut()
{
    QFETCH(QString, language);
    QFETCH(QString, model);
    start(model);
    QVERIFY(client().call(u"settings.set"_s, {{u"key"_s, u"language"_s}, {u"value"_s, language}}).ok());
    QCOMPARE(m_desk.stop(), 0);
    start(model);
    const QStringList found = problemsEverywhere(model);
    VERIFY_NONE(found);
    QCOMPARE(client().call(u"ui.warnings"_s).result.toArray(), QJsonArray());
}

void TestGallery::theAuditFindsWhatIsWrong()
{
    start(u"TK30Z"_s);
    // A name that no window has room for.
    QVERIFY(client().call(u"set"_s, {{u"path"_s, u"nickName"_s}, {u"value"_s, QString(120, u'W')}}).ok());
    QVERIFY(client().call(u"idle"_s).ok());
    QStringList found;
    QTRY_VERIFY((checkProblems(u"window"_s, found), !found.filter(u"cut \"WWW"_s).isEmpty()));
    // The folders are those of the other tests, too.
    QVERIFY(client().call(u"set"_s, {{u"path"_s, u"nickName"_s}, {u"value"_s, u"TK30Z"_s}}).ok());
    QVERIFY(client().call(u"idle"_s).ok());
}

void TestGallery::stablePartsLookAsBefore_data()
{
    QTest::addColumn<QString>("part");
    QTest::addColumn<QString>("theme");
    for (const char* part : {"general", "about", "walkthrough"}) {
        for (const char* theme : {"light", "dark"})
            QTest::addRow("%s, %s", part, theme) << QString::fromLatin1(part) << QString::fromLatin1(theme);
    }
}

void TestGallery::stablePartsLookAsBefore()
{
    QFETCH(QString, part);
    QFETCH(QString, theme);
    constexpr int Tolerance = 40;
    start(u"TK30Z"_s);
    const QString name = u"%1-%2.png"_s.arg(part, theme);
    const QString file = m_folder.absoluteFilePath(u"stable-"_s + name);
    QVERIFY(client()
                .call(u"ui.screenshot"_s, {{u"file"_s, file}, {u"widget"_s, part}, {u"theme"_s, theme}})
                .ok());
    const QString reference = QStringLiteral(REFERENCE_FOLDER) + u'/' + name;
    if (qEnvironmentVariableIsSet("LUMEN_RECORD")) {
        QVERIFY(!QFile::exists(reference) || QFile::remove(reference));
        QVERIFY(QFile::copy(file, reference));
    }
    const QImage now(file);
    const QImage before(reference);
    QVERIFY2(!before.isNull(), qPrintable(reference));
    QVERIFY2(std::abs(now.width() - before.width()) <= 2 && std::abs(now.height() - before.height()) <= 24,
             qPrintable(u"%1x%2"_s.arg(now.width()).arg(now.height())));
    const QImage common =
        now.copy(0, 0, std::min(now.width(), before.width()), std::min(now.height(), before.height()));
    const int difference = differenceOf(before.copy(common.rect()), common);
    QVERIFY2(difference <= Tolerance, qPrintable(QString::number(difference)));
    // The measure sees what it is to see: the other theme is another picture.
    QImage inverted = common;
    inverted.invertPixels();
    QVERIFY(differenceOf(common, inverted) > Tolerance);
}

void TestGallery::writeSheet(const QDir& folder) const
{
    QFile sheet(folder.absoluteFilePath(u"index.html"_s));
    if (!sheet.open(QIODevice::WriteOnly))
        return;
    sheet.write(
        "<!doctype html><meta charset=\"utf-8\"><title>Lumen Desk: gallery</title>\n<style>body{font:14px "
        "sans-serif;background:#c9d1dc;margin:24px}figure{display:inline-block;margin:8px;vertical-align:top}"
        "figcaption{margin-top:4px}img{max-width:380px}</style>\n<h1>Gallery</h1>\n");
    QStringList names = m_pictures;
    names.removeDuplicates();
    names.sort();
    for (const QString& name : std::as_const(names))
        sheet.write(
            u"<figure><img src=\"%1\" alt=\"\"><figcaption>%1</figcaption></figure>\n"_s.arg(name).toUtf8());
}

void TestGallery::cleanupTestCase()
{
    if (!m_pictures.isEmpty())
        writeSheet(m_folder);
}

QTEST_GUILESS_MAIN(TestGallery)
#include "tst_window_gallery.moc"
