// SPDX-License-Identifier: Apache-2.0
#include "Shell.h"

#include <QDir>
#include <QDirIterator>
#include <QImageReader>
#include <QQuickImageProvider>
#include <QRegularExpression>
#include <QTest>

#include <optional>

using namespace Qt::StringLiterals;

/// The pictures: each that panels name is there in each of its forms, drawn by the rules of the family.
class TestIcons : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();

    void aNamedPictureIsThereInAllForms_data();
    void aNamedPictureIsThereInAllForms();
    void everyDrawingIsListed();
    void aDrawingKeepsTheRulesOfTheFamily_data();
    void aDrawingKeepsTheRulesOfTheFamily();
    void everyPictureThatAPanelNamesExists();
    void everyGlyphThatAFileNamesExists();
    void aPictureTakesTheInkOfATint();

private:
    struct Row
    {
        QString name;
        QSize grid;
        bool plain = false;
    };
    static QList<Row> rows();
    static QStringList lines(const QString& path);

    std::optional<Shell> m_shell;
};

void TestIcons::initTestCase()
{
    m_shell.emplace(QList<FakeMonitor*>());
}

void TestIcons::cleanupTestCase()
{
    m_shell.reset();
    QCOMPARE(Shell::takeWarnings(), QStringList());
}

QStringList TestIcons::lines(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return QString::fromUtf8(file.readAll()).split(u'\n');
}

QList<TestIcons::Row> TestIcons::rows()
{
    QList<Row> all;
    const QStringList table = lines(QStringLiteral(LUMEN_IMAGE_SOURCES "/names.txt"));
    for (const QString& line : table) {
        const QStringList words = line.split(u' ', Qt::SkipEmptyParts);
        if (words.size() < 3 || line.startsWith(u'#'))
            continue;
        const QStringList size = words.at(1).split(u'x');
        all.append({words.at(0), {size.value(0).toInt(), size.value(1).toInt()}, words.at(2) == u"plain"_s});
    }
    return all;
}

void TestIcons::aNamedPictureIsThereInAllForms_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("scheme");
    QTest::addColumn<QSize>("grid");
    QVERIFY(rows().size() > 100);
    for (const Row& row : rows()) {
        QStringList forms{QString()};
        if (!row.plain)
            forms << u"_active"_s << u"_hover"_s << u"_disabled"_s;
        for (const QString& form : std::as_const(forms)) {
            for (const QString& scheme : {u"light"_s, u"dark"_s}) {
                const QString file = row.name + form + u".svg"_s;
                QTest::addRow("%s, %s", qPrintable(file), qPrintable(scheme)) << file << scheme << row.grid;
            }
        }
    }
}

void TestIcons::aNamedPictureIsThereInAllForms()
{
    QFETCH(QString, file);
    QFETCH(QString, scheme);
    QFETCH(QSize, grid);
    const QUrl url =
        m_shell->context.resolvedResourceUrl(QUrl(u"qrc:/images/packages/"_s + file), nullptr, scheme);
    QVERIFY(!url.isEmpty());
    QImageReader reader(u':' + url.path(), "svg");
    QCOMPARE(reader.size(), grid);
    const QImage image = reader.read();
    QVERIFY2(!image.isNull(), qPrintable(reader.errorString()));
    int drawn = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            drawn += image.pixelColor(x, y).alpha() > 0;
    }
    QVERIFY2(drawn > 8, "the picture is empty");
    // Each colour scheme has a drawing of its own, but for pictures in their own colours.
    QCOMPARE(url.path().contains(u"/+dark/"_s), scheme == u"dark"_s && !file.startsWith(u"resize_"_s));
}

void TestIcons::everyDrawingIsListed()
{
    QSet<QString> listed;
    for (const Row& row : rows())
        listed.insert(row.name);
    for (const QString& folder : {u"icons"_s, u"plain"_s}) {
        const QStringList files =
            QDir(QStringLiteral(LUMEN_IMAGE_SOURCES "/") + folder).entryList({u"*.svg"_s});
        QVERIFY(!files.isEmpty());
        for (const QString& file : files)
            QVERIFY2(listed.contains(file.chopped(4)), qPrintable(file + u" is not in names.txt"_s));
    }
}

void TestIcons::aDrawingKeepsTheRulesOfTheFamily_data()
{
    QTest::addColumn<QString>("path");
    for (const char* folder : {LUMEN_IMAGE_SOURCES "/icons", LUMEN_GLYPH_SOURCES}) {
        const QFileInfoList files = QDir(QString::fromLatin1(folder)).entryInfoList({u"*.svg"_s});
        for (const QFileInfo& file : files)
            QTest::newRow(qPrintable(file.completeBaseName())) << file.filePath();
    }
}

void TestIcons::aDrawingKeepsTheRulesOfTheFamily()
{
    QFETCH(QString, path);
    const QString text = lines(path).join(u'\n');
    QVERIFY(!text.isEmpty());
    static const QRegularExpression weight(u"<g [^>]*stroke-width=\"([0-9.]+)\""_s);
    static const QRegularExpression grid(u"viewBox=\"0 0 ([0-9]+) ([0-9]+)\""_s);
    const bool small = grid.match(text).captured(1) == u"24"_s;
    const double width = weight.match(text).captured(1).toDouble();
    if (small)
        QCOMPARE(width, 1.7);
    else
        QVERIFY2(width == 2.0 || width == 2.6, qPrintable(QString::number(width)));
    QVERIFY(text.contains(u"stroke-linecap=\"round\" stroke-linejoin=\"round\""_s));
    static const QRegularExpression ink(u"(?:stroke|fill)=\"([^\"]*)\""_s);
    static const QStringList words{u"none"_s,         u"currentColor"_s,  u"currentFill"_s,
                                   u"currentFill2"_s, u"currentAccent"_s, u"currentOn"_s};
    for (auto match = ink.globalMatch(text); match.hasNext();) {
        const QString word = match.next().captured(1);
        QVERIFY2(words.contains(word), qPrintable(word));
    }
    static const QRegularExpression foreign(
        u"<(text|style|image|linearGradient|radialGradient|filter|use|defs)|transform=|opacity="_s);
    QVERIFY(!foreign.match(text).hasMatch());
}

void TestIcons::everyPictureThatAPanelNamesExists()
{
    QSet<QString> have;
    QDirIterator files(u":/TKPackage/images/packages"_s, QDirIterator::Subdirectories);
    while (files.hasNext())
        have.insert(QFileInfo(files.next()).fileName());
    // A name may have parts that are put in at run time: each may then be anything.
    static const QRegularExpression named(
        u"\"(?:qrc:/images/packages/)?((?:btn_|ic_|ico48_|ico96_|img_|kvm_0|slider-ico_|resize_)[A-Za-z0-9_%-]*)(?:\\.svg)?\""_s);
    int found = 0;
    QDirIterator panels(u":/TKPackage/qml"_s, {u"*.qml"_s}, QDir::Files, QDirIterator::Subdirectories);
    while (panels.hasNext()) {
        const QString path = panels.next();
        const QString text = lines(path).join(u'\n');
        for (auto match = named.globalMatch(text); match.hasNext();) {
            QString name = match.next().captured(1);
            name.replace(QRegularExpression(u"%[0-9]"_s), u".*"_s);
            const QRegularExpression wanted(
                QRegularExpression::anchoredPattern(name + u"[A-Za-z0-9_-]*\\.svg"_s));
            const bool there = std::any_of(have.cbegin(), have.cend(), [&](const QString& file) {
                return wanted.match(file).hasMatch();
            });
            QVERIFY2(there, qPrintable(path + u" names "_s + name));
            ++found;
        }
    }
    QVERIFY(found > 8);
}

void TestIcons::everyGlyphThatAFileNamesExists()
{
    static const QRegularExpression named(u"(?:iconName|picture|\\bname): \"([a-z-]+)\""_s);
    int found = 0;
    for (const QString& root : {u":/lumendesk/qml/LumenDesk"_s, u":/TKPackage/qml"_s}) {
        QDirIterator files(root, {u"*.qml"_s}, QDir::Files, QDirIterator::Subdirectories);
        while (files.hasNext()) {
            const QString path = files.next();
            const QString text = lines(path).join(u'\n');
            for (auto match = named.globalMatch(text); match.hasNext();) {
                const QString name = match.next().captured(1);
                QVERIFY2(QFile::exists(u":/lumendesk/qml/LumenDesk/icons/%1.svg"_s.arg(name)),
                         qPrintable(path + u" names "_s + name));
                ++found;
            }
        }
    }
    QVERIFY(found > 10);
}

void TestIcons::aPictureTakesTheInkOfATint()
{
    auto* provider = static_cast<QQuickImageProvider*>(m_shell->engine.imageProvider(u"lumen"_s));
    const QString address =
        QString::fromUtf8(QUrl::toPercentEncoding(u"qrc:/TKPackage/images/packages/ico48_dp_01.svg"_s));
    const QImage image = provider->requestImage(u"0/ffff0000/"_s + address, nullptr, {96, 96});
    QCOMPARE(image.size(), QSize(96, 96));
    bool drawn = false;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor color = image.pixelColor(x, y);
            if (color.alpha() < 128)
                continue;
            drawn = true;
            QVERIFY(color.red() > 250 && color.green() < 5);
        }
    }
    QVERIFY(drawn);
    QVERIFY(provider->requestImage(u"0/ffff0000/qrc%3A%2Fnothing.svg"_s, nullptr, {96, 96}).isNull());
}

QTEST_MAIN(TestIcons)
#include "tst_qml_icons.moc"
