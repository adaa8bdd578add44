// SPDX-License-Identifier: Apache-2.0
#include "LuAbsences.h"
#include "LuProgramIcons.h"
#include "LumenQml.h"
#include "Shell.h"

#include <QDir>
#include <QFile>
#include <QIcon>
#include <QImage>
#include <QPainter>
#include <QQuickImageProvider>
#include <QQuickItem>
#include <QTemporaryDir>
#include <QTest>
#include <QTranslator>

#include <optional>

using namespace Qt::StringLiterals;

namespace {

constexpr const char* Abilities[] = {
    "displayModes",          "rotation",           "scaling",       "globalShortcuts",
    "foregroundApplication", "windowPlacing",      "copyPasteKeys", "pointerEdge",
    "soundOutputs",          "translucentWindows", "overlayOnTop"};

QImage square(const QColor& color, int side)
{
    QImage image(side, side, QImage::Format_ARGB32);
    image.fill(color);
    return image;
}

} // namespace

/// What a session cannot do, as panels tell it, and the icons of applications.
class TestAbsences : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void everyAbsenceIsTold_data();
    void everyAbsenceIsTold();
    void anUnknownAbsenceHasNoText();
    void everyLanguageTellsThem_data();
    void everyLanguageTellsThem();
    void theContextTellsWhatIsAbsentNow();
    void aNoteTellsWhatIsMissing();

    void anIconIsFound_data();
    void anIconIsFound();
    void anIconFitsTheAskedSize();
    void theControlShowsAnIcon();

private:
    std::optional<Shell> m_shell;
};

void TestAbsences::cleanup()
{
    m_shell.reset();
    LuContext::instance()->setAbsenceSource({}, true, false);
    LuContext::instance()->setNotices({});
    LuProgramIcons::setLookup({});
    QCOMPARE(Shell::takeWarnings(), QStringList());
}

void TestAbsences::everyAbsenceIsTold_data()
{
    QTest::addColumn<QString>("ability");
    QTest::addColumn<bool>("ofTheDesktop");
    for (const char* name : Abilities) {
        const QString ability = QString::fromLatin1(name);
        QTest::newRow(name) << ability
                            << (ability != "soundOutputs"_L1 && ability != "translucentWindows"_L1);
    }
}

void TestAbsences::everyAbsenceIsTold()
{
    QFETCH(QString, ability);
    QFETCH(bool, ofTheDesktop);
    const QString text = LuAbsences::text(ability, true, false);
    QVERIFY(text.endsWith(u'.'));
    const QString wayland = LuAbsences::text(ability, true, true);
    QCOMPARE(wayland, ofTheDesktop ? text + u" In an X11 session it works."_s : text);
    QCOMPARE(LuAbsences::text(ability, false, false),
             ofTheDesktop ? u"There is no desktop session."_s : text);
}

void TestAbsences::anUnknownAbsenceHasNoText()
{
    QCOMPARE(LuAbsences::text(u"telepathy"_s, true, false), QString());
}

void TestAbsences::everyLanguageTellsThem_data()
{
    QTest::addColumn<QString>("language");
    for (const char* language : {"cs", "de", "en", "es", "fr", "hr", "hu", "it", "ja", "ko", "nl", "pl", "pt",
                                 "ro", "ru", "sv", "zh", "zh_TW"})
        QTest::newRow(language) << QString::fromLatin1(language);
}

void TestAbsences::everyLanguageTellsThem()
{
    QFETCH(QString, language);
    QStringList english;
    for (const char* name : Abilities)
        english.append(LuAbsences::text(QString::fromLatin1(name), true, true));
    lumenQmlResources();
    QTranslator translator;
    QVERIFY(translator.load(u":/lumendesk/translations/lumen-desk_%1.qm"_s.arg(language)));
    QCoreApplication::installTranslator(&translator);
    const auto remove = qScopeGuard([&] { QCoreApplication::removeTranslator(&translator); });
    for (int i = 0; i < english.size(); ++i) {
        const QString text = LuAbsences::text(QString::fromLatin1(Abilities[i]), true, true);
        QCOMPARE(text == english[i], language == "en"_L1);
        QVERIFY(!text.contains(u"session it works"_s) || language == "en"_L1);
    }
}

void TestAbsences::theContextTellsWhatIsAbsentNow()
{
    LuContext* context = LuContext::instance();
    QStringList absent{u"rotation"_s};
    context->setAbsenceSource([&] { return absent; }, true, false);
    QCOMPARE(context->absences().keys(), absent);
    QCOMPARE(context->absences().value(u"rotation"_s).toString(),
             LuAbsences::text(u"rotation"_s, true, false));
    absent = {u"pointerEdge"_s, u"scaling"_s};
    QCOMPARE(context->absences().keys(), absent);
    context->setNotices({u"The group i2c may use the buses."_s, u"You are not in it."_s});
    QCOMPARE(context->absences().value(u"monitorControl"_s).toString(),
             u"The group i2c may use the buses.\nYou are not in it."_s);
}

void TestAbsences::aNoteTellsWhatIsMissing()
{
    LuContext* context = LuContext::instance();
    QStringList absent;
    context->setAbsenceSource([&] { return absent; }, true, false);
    m_shell.emplace(QList<FakeMonitor*>());
    m_shell->engine.load(QUrl(u"qrc:/tests/Absences.qml"_s));
    const auto* window = qobject_cast<QQuickWindow*>(m_shell->engine.rootObjects().constLast());
    QVERIFY(window);
    auto* note = window->findChild<QQuickItem*>(u"note"_s);
    QVERIFY(note && !note->isVisible());
    QCOMPARE(note->property("text").toString(), QString());
    absent = {u"overlayOnTop"_s, u"translucentWindows"_s, u"rotation"_s};
    context->touchAbsences();
    QTRY_VERIFY(note->isVisible());
    const QString top = LuAbsences::text(u"overlayOnTop"_s, true, false);
    QCOMPARE(note->property("text").toString(),
             LuAbsences::text(u"translucentWindows"_s, true, false) + u'\n' + top);
    absent = {u"overlayOnTop"_s};
    context->touchAbsences();
    QTRY_COMPARE(note->property("text").toString(), top);
    // One reason for several is told once.
    note->setProperty("needs", QStringList{u"rotation"_s, u"scaling"_s});
    absent = {u"rotation"_s, u"scaling"_s};
    context->setAbsenceSource([&] { return absent; }, false, false);
    QTRY_COMPARE(note->property("text").toString(), u"There is no desktop session."_s);
}

void TestAbsences::anIconIsFound_data()
{
    QTest::addColumn<QString>("icon");
    QTest::addColumn<QColor>("color"); // invalid: the generic one
    QTest::newRow("of the theme") << u"themed"_s << QColor(Qt::red);
    QTest::newRow("of the theme, with a suffix") << u"themed.png"_s << QColor(Qt::red);
    QTest::newRow("a file") << u"FOLDER/one file.png"_s << QColor(Qt::green);
    QTest::newRow("of no theme") << u"lonely"_s << QColor(Qt::blue);
    QTest::newRow("not installed") << u"no-such-icon"_s << QColor();
    QTest::newRow("a file that is gone") << u"FOLDER/gone.png"_s << QColor();
    QTest::newRow("a file that is none") << u"FOLDER/text.png"_s << QColor();
    QTest::newRow("a way out of the folders") << u"../lonely"_s << QColor();
    QTest::newRow("not known") << QString() << QColor();
}

void TestAbsences::anIconIsFound()
{
    QFETCH(QString, icon);
    QFETCH(QColor, color);
    const QTemporaryDir folder;
    QVERIFY(QDir(folder.path()).mkpath(u"icons/hicolor/48x48/apps"_s));
    QVERIFY(QDir(folder.path()).mkpath(u"pixmaps"_s));
    QFile index(folder.filePath(u"icons/hicolor/index.theme"_s));
    QVERIFY(index.open(QIODevice::WriteOnly));
    index.write("[Icon Theme]\nName=Hicolor\nDirectories=48x48/apps\n[48x48/apps]\nSize=48\n");
    index.close();
    QVERIFY(square(Qt::red, 48).save(folder.filePath(u"icons/hicolor/48x48/apps/themed.png"_s)));
    QVERIFY(square(Qt::green, 96).save(folder.filePath(u"one file.png"_s)));
    QVERIFY(square(Qt::blue, 20).save(folder.filePath(u"pixmaps/lonely.png"_s)));
    QFile text(folder.filePath(u"text.png"_s));
    QVERIFY(text.open(QIODevice::WriteOnly));
    text.write("no picture");
    text.close();
    const QByteArray home = qgetenv("XDG_DATA_HOME");
    qputenv("XDG_DATA_HOME", folder.path().toUtf8());
    QIcon::setThemeSearchPaths({folder.filePath(u"icons"_s)});
    QIcon::setThemeName(u"hicolor"_s);

    // The program's id is a path with what addresses take for their own.
    const QString id = u"/opt/my app/100%#run?"_s;
    icon.replace(u"FOLDER"_s, folder.path());
    LuProgramIcons::setLookup([&](const QString& asked) { return asked == id ? icon : u"wrong"_s; });
    LuProgramIcons provider;
    QSize size;
    const QPixmap picture =
        provider.requestPixmap(QString::fromLatin1(QUrl::toPercentEncoding(id)), &size, QSize(32, 32));
    QIcon::setThemeSearchPaths({});
    home.isNull() ? qunsetenv("XDG_DATA_HOME") : qputenv("XDG_DATA_HOME", home);

    QVERIFY(!picture.isNull());
    QCOMPARE(size, picture.size());
    const QColor middle = picture.toImage().pixelColor(picture.width() / 2, picture.height() / 2);
    if (color.isValid()) {
        QCOMPARE(middle.rgb(), color.rgb());
        return;
    }
    const QPixmap generic = LuProgramIcons().requestPixmap(u"unknown"_s, nullptr, QSize(32, 32));
    QCOMPARE(picture.toImage(), generic.toImage());
}

void TestAbsences::anIconFitsTheAskedSize()
{
    const QTemporaryDir folder;
    QImage wide(400, 100, QImage::Format_ARGB32);
    wide.fill(Qt::yellow);
    QVERIFY(wide.save(folder.filePath(u"wide.png"_s)));
    LuProgramIcons::setLookup([&](const QString&) { return folder.filePath(u"wide.png"_s); });
    LuProgramIcons provider;
    QCOMPARE(provider.requestPixmap(u"a"_s, nullptr, QSize(64, 64)).size(), QSize(64, 16));
    QCOMPARE(provider.requestPixmap(u"a"_s, nullptr, QSize()).size(), QSize(48, 12));
    QCOMPARE(provider.requestPixmap(u"a"_s, nullptr, QSize(100'000, 100'000)).size(), QSize(512, 128));
}

void TestAbsences::theControlShowsAnIcon()
{
    m_shell.emplace(QList<FakeMonitor*>());
    QStringList asked;
    LuProgramIcons::setLookup([&](const QString& appId) {
        asked.append(appId);
        return QString();
    });
    m_shell->engine.load(QUrl(u"qrc:/tests/Absences.qml"_s));
    const auto* window = qobject_cast<QQuickWindow*>(m_shell->engine.rootObjects().constLast());
    const auto* icon = window->findChild<QQuickItem*>(u"icon"_s);
    QVERIFY(icon);
    QTRY_COMPARE(asked, QStringList{u"/opt/my app/100%#run?"_s});
    QTRY_VERIFY(icon->property("implicitWidth").toInt() > 0);
}

QTEST_MAIN(TestAbsences)
#include "tst_qml_absences.moc"
