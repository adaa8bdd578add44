// SPDX-License-Identifier: Apache-2.0
#include <LuShared/LuUtils.h>

#include <QClipboard>
#include <QColor>
#include <QGuiApplication>
#include <QImage>
#include <QMimeData>
#include <QPixmap>
#include <QTest>
#include <QUrl>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

/// Clipboard data as a platform gives it: made when it is asked for, and gone with the clipboard's next
/// owner.
class LazyData : public QMimeData
{
public:
    QHash<QString, QVariant> values;
    QStringList order;

    void put(const QString& format, const QVariant& value)
    {
        values.insert(format, value);
        order.append(format);
    }
    bool hasFormat(const QString& format) const override { return values.contains(format); }
    QStringList formats() const override { return order; }

protected:
    QVariant retrieveData(const QString& format, QMetaType) const override { return values.value(format); }
};

QImage picture()
{
    QImage image(20, 10, QImage::Format_ARGB32);
    image.fill(QColor(10, 200, 30, 128));
    image.setPixelColor(3, 4, Qt::red);
    return image;
}

std::unique_ptr<QMimeData> copyOf(const QMimeData& source)
{
    return std::unique_ptr<QMimeData>(LuUtils::copyMimeData(&source));
}

} // namespace

class tst_mimedata : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nothingGivesNothing();
    void emptyDataStaysEmpty();
    void formatsKeepTheirOrder();
    void nothingIsAdded();
    void valuesSurviveTheirSource();
    void imageIsItsOwn();
    void pixmapIsAnImage();
    void colourStaysAColour();
    void customFormatsKeepTheirBytes_data();
    void customFormatsKeepTheirBytes();
    void lazyDataIsTakenAtOnce();
    void imageIsNotCopiedInEachOfItsCodings();
    void copyOfACopyIsTheSame();
    void clipboardTakesACopyAndGivesItBack();
};

void tst_mimedata::nothingGivesNothing()
{
    QVERIFY(!LuUtils::copyMimeData(nullptr));
}

void tst_mimedata::emptyDataStaysEmpty()
{
    QVERIFY(copyOf(QMimeData())->formats().isEmpty());
}

void tst_mimedata::formatsKeepTheirOrder()
{
    QMimeData source;
    source.setData(u"application/x-first"_s, "1");
    source.setHtml(u"<b>x</b>"_s);
    source.setText(u"x"_s);
    source.setData(u"application/x-last"_s, "2");
    QCOMPARE(copyOf(source)->formats(), source.formats());
}

void tst_mimedata::nothingIsAdded()
{
    QMimeData files;
    files.setUrls({QUrl(u"file:///a"_s), QUrl(u"file:///b c"_s)});
    // Qt answers for a text where there are files only.
    QVERIFY(files.hasText());
    QCOMPARE(copyOf(files)->formats(), QStringList{u"text/uri-list"_s});
    QMimeData html;
    html.setHtml(u"<i>y</i>"_s);
    QCOMPARE(copyOf(html)->formats(), QStringList{u"text/html"_s});
}

void tst_mimedata::valuesSurviveTheirSource()
{
    auto source = std::make_unique<QMimeData>();
    source->setText(u"Grüße \U0001F600"_s);
    source->setHtml(u"<p>ü</p>"_s);
    const QList<QUrl> urls{QUrl(u"file:///tmp/ä b.txt"_s), QUrl(u"https://example.org/?q=1&r=2"_s)};
    source->setUrls(urls);
    const auto copy = copyOf(*source);
    source.reset();
    QCOMPARE(copy->text(), u"Grüße \U0001F600"_s);
    QCOMPARE(copy->html(), u"<p>ü</p>"_s);
    QCOMPARE(copy->urls(), urls);
}

void tst_mimedata::imageIsItsOwn()
{
    // Pixels of memory that goes away.
    auto pixels = std::make_unique<QImage>(picture());
    const QImage expected = picture();
    QMimeData source;
    source.setImageData(
        QImage(std::as_const(*pixels).constBits(), 20, 10, pixels->bytesPerLine(), QImage::Format_ARGB32));
    const auto copy = copyOf(source);
    pixels->fill(Qt::black);
    pixels.reset();
    QVERIFY(copy->hasImage());
    QCOMPARE(copy->imageData().value<QImage>(), expected);
}

void tst_mimedata::pixmapIsAnImage()
{
    QMimeData source;
    source.setImageData(QPixmap::fromImage(picture()));
    const auto copy = copyOf(source);
    QVERIFY(copy->hasImage());
    QCOMPARE(copy->imageData().value<QImage>().pixelColor(3, 4), QColor(Qt::red));
}

void tst_mimedata::colourStaysAColour()
{
    QMimeData source;
    source.setColorData(QColor(1, 2, 3, 4));
    const auto copy = copyOf(source);
    QVERIFY(copy->hasColor());
    QCOMPARE(copy->colorData().value<QColor>(), QColor(1, 2, 3, 4));
    QCOMPARE(copy->formats(), source.formats());
}

void tst_mimedata::customFormatsKeepTheirBytes_data()
{
    QTest::addColumn<QString>("format");
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("zeros") << u"application/x-own"_s << QByteArray("a\0b\xff", 4);
    QTest::newRow("empty mark") << u"application/x-mark"_s << QByteArray("");
    QTest::newRow("cut files") << u"x-special/gnome-copied-files"_s << QByteArray("cut\nfile:///a");
    QTest::newRow("text in another coding")
        << u"text/plain;charset=utf-16"_s << QByteArray("\xff\xfe\x41\0", 4);
    QTest::newRow("encoded picture") << u"image/png"_s << QByteArray("\x89PNG no picture");
    QTest::newRow("large") << u"application/x-large"_s << QByteArray(8'000'000, 'x');
}

void tst_mimedata::customFormatsKeepTheirBytes()
{
    QFETCH(QString, format);
    QFETCH(QByteArray, bytes);
    QMimeData source;
    source.setData(format, bytes);
    const auto copy = copyOf(source);
    QCOMPARE(copy->formats(), QStringList{format});
    QCOMPARE(copy->data(format), bytes);
}

void tst_mimedata::lazyDataIsTakenAtOnce()
{
    LazyData source;
    source.put(u"text/plain"_s, u"lazy"_s);
    source.put(u"application/x-qt-image"_s, picture());
    source.put(u"text/uri-list"_s, QByteArray("file:///a\r\nfile:///b\r\n"));
    source.put(u"application/x-own"_s, QByteArray("bytes"));
    const auto copy = copyOf(source);
    source.values.clear();
    QCOMPARE(copy->text(), u"lazy"_s);
    QCOMPARE(copy->imageData().value<QImage>(), picture());
    QCOMPARE(copy->urls(), QList<QUrl>({QUrl(u"file:///a"_s), QUrl(u"file:///b"_s)}));
    QCOMPARE(copy->data(u"application/x-own"_s), QByteArray("bytes"));
    QCOMPARE(copy->formats(), source.formats());
}

void tst_mimedata::imageIsNotCopiedInEachOfItsCodings()
{
    LazyData source;
    source.put(u"application/x-qt-image"_s, picture());
    source.put(u"image/png"_s, QByteArray("the owner's own"));
    source.put(u"image/bmp"_s, QByteArray("large"));
    source.put(u"image/svg+xml"_s, QByteArray("<svg/>"));
    const auto copy = copyOf(source);
    QCOMPARE(copy->formats(), QStringList({u"application/x-qt-image"_s, u"image/png"_s, u"image/svg+xml"_s}));
    QCOMPARE(copy->data(u"image/png"_s), QByteArray("the owner's own"));
}

void tst_mimedata::copyOfACopyIsTheSame()
{
    QMimeData source;
    source.setImageData(picture());
    source.setColorData(QColor(Qt::blue));
    source.setText(u"t"_s);
    const auto second = copyOf(*copyOf(source));
    QCOMPARE(second->formats(), source.formats());
    QCOMPARE(second->imageData().value<QImage>(), picture());
    QCOMPARE(second->colorData().value<QColor>(), QColor(Qt::blue));
}

void tst_mimedata::clipboardTakesACopyAndGivesItBack()
{
    QMimeData source;
    source.setText(u"t"_s);
    source.setImageData(picture());
    source.setData(u"application/x-own"_s, "bytes");
    QClipboard& clipboard = *QGuiApplication::clipboard();
    clipboard.setMimeData(LuUtils::copyMimeData(&source));
    const auto backup = copyOf(*clipboard.mimeData());
    clipboard.setText(u"other"_s);
    clipboard.setMimeData(LuUtils::copyMimeData(backup.get()));
    QCOMPARE(clipboard.text(), u"t"_s);
    QCOMPARE(clipboard.image(), picture());
    QCOMPARE(clipboard.mimeData()->data(u"application/x-own"_s), QByteArray("bytes"));
}

QTEST_MAIN(tst_mimedata)
#include "tst_mimedata.moc"
