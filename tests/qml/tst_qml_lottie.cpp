// SPDX-License-Identifier: Apache-2.0
#include "LuLottieFile.h"
#include "LuLottieItem.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QPainter>
#include <QRegularExpression>
#include <QtTest>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

QImage pictureOf(const LuLottieFile& file, double frame)
{
    QImage image(file.size().toSize(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    file.paint(&painter, frame);
    return image;
}

QByteArray contentsOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

int differing(const QImage& a, const QImage& b)
{
    int count = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x)
            count += a.pixel(x, y) != b.pixel(x, y);
    }
    return count;
}

} // namespace

/// Animations of the introductions.
class TestLottie : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyCarriedAnimationMoves_data();
    void everyCarriedAnimationMoves();
    void aShapeIsWhereItsKeyframesSay_data();
    void aShapeIsWhereItsKeyframesSay();
    void anEasingStartsAndEndsSlowly();
    void aLayerShowsInItsTimeOnly();
    void theFirstLayerLiesOnTop();
    void whatIsNotSupportedIsRefused_data();
    void whatIsNotSupportedIsRefused();
    void theItemShowsAFrame();
    void aMissingFileIsTold();

private:
    static QJsonObject square();
    static QByteArray text(const QJsonObject& root) { return QJsonDocument(root).toJson(); }
};

QJsonObject TestLottie::square()
{
    return QJsonDocument::fromJson(contentsOf(u":/tests/package/move.json"_s)).object();
}

void TestLottie::everyCarriedAnimationMoves_data()
{
    QTest::addColumn<QString>("path");
    const QDir folder(QStringLiteral(LOTTIE_FOLDER));
    const QStringList files = folder.entryList({u"*.json"_s});
    QVERIFY(files.size() >= 3);
    for (const QString& file : files)
        QTest::newRow(qPrintable(file)) << folder.filePath(file);
}

void TestLottie::everyCarriedAnimationMoves()
{
    QFETCH(QString, path);
    QString problem;
    const auto file = LuLottieFile::read(contentsOf(path), &problem);
    QVERIFY2(file, qPrintable(problem));
    QCOMPARE(file->size(), QSizeF(480, 300));
    const double middle = (file->firstFrame() + file->lastFrame()) / 2;
    const QImage first = pictureOf(*file, file->firstFrame());
    QVERIFY(differing(first, pictureOf(*file, middle)) > 1000);
    QImage empty = first;
    empty.fill(Qt::white);
    QVERIFY(differing(first, empty) > 1000);
    // Kept for a person to see it move.
    constexpr int Steps = 6;
    QImage strip(Steps * first.width() / 2, first.height() / 2, QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&strip);
    painter.scale(0.5, 0.5);
    for (int step = 0; step < Steps; ++step) {
        const double frame =
            file->firstFrame() + (file->lastFrame() - file->firstFrame()) * step / double(Steps - 1);
        painter.drawImage(step * first.width(), 0,
                          pictureOf(*file, std::min(frame, file->lastFrame() - 0.5)));
    }
    painter.end();
    QVERIFY(QDir().mkpath(QStringLiteral(GALLERY_FOLDER)));
    const QString name =
        u"%1/animation-%2.png"_s.arg(QStringLiteral(GALLERY_FOLDER), QFileInfo(path).baseName());
    QVERIFY(strip.save(name));
}

void TestLottie::aShapeIsWhereItsKeyframesSay_data()
{
    QTest::addColumn<double>("frame");
    QTest::addColumn<int>("x");
    QTest::newRow("before the first keyframe") << -5.0 << 10;
    QTest::newRow("at the first") << 0.0 << 10;
    QTest::newRow("half-way") << 5.0 << 50;
    QTest::newRow("at the last") << 10.0 << 90;
    QTest::newRow("after the last") << 19.0 << 90;
}

void TestLottie::aShapeIsWhereItsKeyframesSay()
{
    QFETCH(double, frame);
    QFETCH(int, x);
    QJsonObject root = square();
    QJsonArray layers = root[u"layers"_s].toArray();
    QJsonObject layer = layers[0].toObject();
    layer[u"ip"_s] = -10;
    layers[0] = layer;
    root[u"layers"_s] = layers;
    const auto file = LuLottieFile::read(text(root));
    QVERIFY(file);
    const QImage image = pictureOf(*file, frame);
    QCOMPARE(image.pixelColor(x, 25), QColor(Qt::red));
    QCOMPARE(image.pixelColor(x - 8, 25), QColor(Qt::white));
    QCOMPARE(image.pixelColor(std::min(99, x + 8), 25), QColor(Qt::white));
}

void TestLottie::anEasingStartsAndEndsSlowly()
{
    QJsonObject root = square();
    QJsonArray layers = root[u"layers"_s].toArray();
    QJsonObject layer = layers[0].toObject();
    QJsonObject ks = layer[u"ks"_s].toObject();
    ks[u"p"_s] = QJsonDocument::fromJson(R"({"a":1,"k":[{"t":0,"s":[10,25,0],"i":{"x":[0.4],"y":[1]},)"
                                         R"("o":{"x":[0.6],"y":[0]}},{"t":10,"s":[90,25,0]}]})")
                     .object();
    layer[u"ks"_s] = ks;
    layers[0] = layer;
    root[u"layers"_s] = layers;
    const auto file = LuLottieFile::read(text(root));
    QVERIFY(file);
    // A tenth of the way in time is far less than a tenth of the way in space; the middle is the middle.
    QCOMPARE(pictureOf(*file, 1).pixelColor(7, 25), QColor(Qt::red));
    QCOMPARE(pictureOf(*file, 5).pixelColor(50, 25), QColor(Qt::red));
    QCOMPARE(pictureOf(*file, 9).pixelColor(92, 25), QColor(Qt::red));
}

void TestLottie::aLayerShowsInItsTimeOnly()
{
    QJsonObject root = square();
    QJsonArray layers = root[u"layers"_s].toArray();
    QJsonObject layer = layers[0].toObject();
    layer[u"ip"_s] = 5;
    layer[u"op"_s] = 8;
    layers[0] = layer;
    root[u"layers"_s] = layers;
    const auto file = LuLottieFile::read(text(root));
    QVERIFY(file);
    QImage empty = pictureOf(*file, 2);
    QCOMPARE(empty.pixelColor(26, 25), QColor(Qt::white));
    QVERIFY(differing(empty, pictureOf(*file, 6)) > 50);
    QCOMPARE(differing(empty, pictureOf(*file, 9)), 0);
}

void TestLottie::theFirstLayerLiesOnTop()
{
    QJsonObject root = square();
    QJsonArray layers = root[u"layers"_s].toArray();
    QByteArray below = QJsonDocument(layers[0].toObject()).toJson(QJsonDocument::Compact);
    QVERIFY(below.contains("[1,0,0,1]"));
    below.replace("[1,0,0,1]", "[0,0,1,1]");
    layers.append(QJsonDocument::fromJson(below).object());
    root[u"layers"_s] = layers;
    const auto file = LuLottieFile::read(text(root));
    QVERIFY(file);
    QCOMPARE(pictureOf(*file, 0).pixelColor(10, 25), QColor(Qt::red));
}

void TestLottie::whatIsNotSupportedIsRefused_data()
{
    QTest::addColumn<QByteArray>("data");
    QTest::addColumn<QString>("problem");
    QTest::newRow("no JSON") << QByteArray("{") << u"unterminated"_s;
    QTest::newRow("a list") << QByteArray("[]") << u"not an object"_s;
    QTest::newRow("no size") << QByteArray("{}") << u"size"_s;
    QTest::newRow("huge") << QByteArray(R"({"w":1e9,"h":10,"fr":30,"ip":0,"op":10})") << u"size"_s;
    QTest::newRow("no length") << QByteArray(R"({"w":10,"h":10,"fr":30,"ip":9,"op":9})") << u"length"_s;
    QTest::newRow("endless") << QByteArray(R"({"w":10,"h":10,"fr":30,"ip":0,"op":1e12})") << u"length"_s;
    const QByteArray head = R"({"w":10,"h":10,"fr":30,"ip":0,"op":10,"layers":[)";
    QTest::newRow("a picture layer") << QByteArray(head + R"({"ty":2}]})") << u"type 2"_s;
    QTest::newRow("a path") << QByteArray(head + R"({"ty":4,"shapes":[{"ty":"gr","it":[{"ty":"sh"}]}]}]})")
                            << u"\"sh\""_s;
    QTest::newRow("a loose shape") << QByteArray(head + R"({"ty":4,"shapes":[{"ty":"rc"}]}]})")
                                   << u"outside a group"_s;
    QTest::newRow("a parent") << QByteArray(head + R"({"ty":4,"parent":1}]})") << u"depend"_s;
}

void TestLottie::whatIsNotSupportedIsRefused()
{
    QFETCH(QByteArray, data);
    QFETCH(QString, problem);
    QString told;
    QVERIFY(!LuLottieFile::read(data, &told));
    QVERIFY2(told.contains(problem), qPrintable(told));
}

void TestLottie::theItemShowsAFrame()
{
    LuLottieItem item;
    item.setSource(QUrl(u"qrc:/tests/package/move.json"_s));
    QVERIFY(item.isReady());
    QCOMPARE(item.duration(), 2000);
    QCOMPARE(item.implicitWidth(), 100);
    item.setSize(QSizeF(200, 100));
    item.setFrame(10);
    QImage image(200, 100, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    QPainter painter(&image);
    item.paint(&painter);
    painter.end();
    QCOMPARE(image.pixelColor(180, 50), QColor(Qt::red));
    QCOMPARE(image.pixelColor(20, 50), QColor(Qt::white));
    item.setSource({});
    QVERIFY(!item.isReady());
    QCOMPARE(item.duration(), 0);
}

void TestLottie::aMissingFileIsTold()
{
    LuLottieItem item;
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"nowhere.json"_s));
    item.setSource(QUrl(u"qrc:/nowhere.json"_s));
    QVERIFY(!item.isReady());
}

QTEST_MAIN(TestLottie)
#include "tst_qml_lottie.moc"
