// SPDX-License-Identifier: Apache-2.0
#include "ZrCore/ZrCoreLineShape.h"
#include "ZrCore/ZrCoreRectShape.h"

#include <QGuiApplication>
#include <QImage>
#include <QQuickWindow>
#include <QSignalSpy>
#include <QTest>

#include <memory>
#include <vector>

using namespace Qt::StringLiterals;

/// Drawn with the software renderer, the poorest of Qt Quick's; with the argument "--gpu" by the shaders.
class tst_shapes : public QObject
{
    Q_OBJECT

public:
    bool gpu = false;

private Q_SLOTS:
    void init();
    void rectIsFilledInsideItsBorder();
    void translucentColoursDoNotAddUp();
    void joinStyleShapesTheCorners_data();
    void joinStyleShapesTheCorners();
    void borderChangesShow();
    void propertiesNotifyOnce();
    void lineSetsTheGeometry_data();
    void lineSetsTheGeometry();
    void movingTheItemMovesTheLine();
    void lineIsDrawnCentred();
    void obliqueLineIsDrawn();
    void edgesOffThePixelsAreSoft();
    void hairlinesAreSeen();
    void opacityCounts();
    void manyShapesKeepTheirOrder();

private:
    QImage grab()
    {
        m_window->show();
        if (!QTest::qWaitForWindowExposed(m_window.get()))
            qFatal("the window does not show");
        return m_window->grabWindow();
    }
    std::unique_ptr<QQuickWindow> m_window;
};

void tst_shapes::init()
{
    m_window = std::make_unique<QQuickWindow>();
    m_window->setColor(Qt::white);
    m_window->resize(100, 100);
}

void tst_shapes::rectIsFilledInsideItsBorder()
{
    ZrCoreRectShape rect(m_window->contentItem());
    rect.setPosition({10, 20});
    rect.setSize({50, 40});
    rect.setColor(Qt::red);
    rect.border()->setColor(Qt::blue);
    rect.border()->setWidth(4);
    const QImage image = grab();
    QCOMPARE(image.pixelColor(9, 40), QColor(Qt::white));
    QCOMPARE(image.pixelColor(10, 20), QColor(Qt::blue));
    QCOMPARE(image.pixelColor(13, 40), QColor(Qt::blue));
    QCOMPARE(image.pixelColor(14, 40), QColor(Qt::red));
    QCOMPARE(image.pixelColor(55, 55), QColor(Qt::red));
    QCOMPARE(image.pixelColor(56, 40), QColor(Qt::blue));
    QCOMPARE(image.pixelColor(59, 59), QColor(Qt::blue));
    QCOMPARE(image.pixelColor(60, 40), QColor(Qt::white));
    QVERIFY(rect.contains(QPointF(1, 1)) && !rect.contains(QPointF(51, 1)));
}

void tst_shapes::translucentColoursDoNotAddUp()
{
    ZrCoreRectShape rect(m_window->contentItem());
    rect.setSize({100, 100});
    rect.setColor(QColor(0, 0, 0, 128));
    rect.border()->setColor(QColor(0, 0, 0, 128));
    rect.border()->setWidth(10);
    const QImage image = grab();
    const QColor inside = image.pixelColor(50, 50);
    QVERIFY(qAbs(inside.red() - 127) <= 1);
    for (const QPoint point : {QPoint(1, 1), QPoint(50, 1), QPoint(1, 50), QPoint(98, 98), QPoint(50, 98)})
        QCOMPARE(image.pixelColor(point), inside);
}

void tst_shapes::joinStyleShapesTheCorners_data()
{
    QTest::addColumn<int>("style");
    QTest::addColumn<bool>("tip");    // the outermost pixel of the corner
    QTest::addColumn<bool>("middle"); // inside a circle's quarter, outside a cut
    QTest::newRow("miter") << int(Qt::MiterJoin) << true << true;
    QTest::newRow("round") << int(Qt::RoundJoin) << false << true;
    QTest::newRow("bevel") << int(Qt::BevelJoin) << false << false;
    QTest::newRow("unknown") << int(Qt::SvgMiterJoin) << true << true;
}

void tst_shapes::joinStyleShapesTheCorners()
{
    QFETCH(int, style);
    QFETCH(bool, tip);
    QFETCH(bool, middle);
    ZrCoreRectShape rect(m_window->contentItem());
    rect.setSize({100, 100});
    rect.setColor(Qt::transparent);
    rect.border()->setColor(Qt::blue);
    rect.border()->setWidth(20);
    rect.setJoinStyle(static_cast<Qt::PenJoinStyle>(style));
    const QImage image = grab();
    const auto drawn = [&](int x, int y) { return image.pixelColor(x, y) == QColor(Qt::blue); };
    const auto corners = [](int at) {
        return QList<QPoint>{{at, at}, {99 - at, at}, {at, 99 - at}, {99 - at, 99 - at}};
    };
    for (const QPoint point : corners(0))
        QCOMPARE(drawn(point.x(), point.y()), tip);
    for (const QPoint point : corners(8))
        QCOMPARE(drawn(point.x(), point.y()), middle);
    for (const QPoint point : corners(15))
        QVERIFY(drawn(point.x(), point.y()));
    QVERIFY(drawn(50, 1) && drawn(1, 50) && !drawn(50, 50));
}

void tst_shapes::borderChangesShow()
{
    ZrCoreRectShape rect(m_window->contentItem());
    rect.setSize({100, 100});
    rect.setColor(Qt::red);
    QCOMPARE(grab().pixelColor(0, 0), QColor(Qt::red));
    rect.border()->setWidth(2);
    QCOMPARE(grab().pixelColor(0, 0), QColor(Qt::black));
    rect.border()->setColor(Qt::green);
    QCOMPARE(grab().pixelColor(0, 0), QColor(Qt::green));
    rect.border()->setWidth(500); // wider than the item
    QCOMPARE(grab().pixelColor(50, 50), QColor(Qt::green));
    rect.setSize({0, 0});
    QCOMPARE(grab().pixelColor(0, 0), QColor(Qt::white));
}

void tst_shapes::propertiesNotifyOnce()
{
    ZrCoreRectShape rect;
    QSignalSpy color(&rect, &ZrCoreSolidShape::colorChanged);
    QSignalSpy join(&rect, &ZrCoreRectShape::joinStyleChanged);
    QSignalSpy width(rect.border(), &ZrCoreSolidShapeBorder::widthChanged);
    for (int i = 0; i < 2; ++i) {
        rect.setColor(Qt::red);
        rect.setJoinStyle(Qt::RoundJoin);
        rect.border()->setWidth(3);
    }
    QCOMPARE(color.size() + join.size() + width.size(), 3);
    rect.border()->setWidth(-1);
    QCOMPARE(rect.border()->width(), 0.0);
}

void tst_shapes::lineSetsTheGeometry_data()
{
    QTest::addColumn<QPointF>("start");
    QTest::addColumn<QPointF>("end");
    QTest::addColumn<QRectF>("geometry");
    QTest::newRow("vertical") << QPointF(30, 10) << QPointF(30, 80) << QRectF(30, 10, 0, 70);
    QTest::newRow("upwards") << QPointF(30, 80) << QPointF(30, 10) << QRectF(30, 10, 0, 70);
    QTest::newRow("horizontal") << QPointF(5, 40) << QPointF(95, 40) << QRectF(5, 40, 90, 0);
    QTest::newRow("oblique") << QPointF(50, 10) << QPointF(20, 40) << QRectF(20, 10, 30, 30);
}

void tst_shapes::lineSetsTheGeometry()
{
    QFETCH(QPointF, start);
    QFETCH(QPointF, end);
    QFETCH(QRectF, geometry);
    ZrCoreLineShape line;
    QSignalSpy changed(&line, &ZrCoreLineShape::lineChanged);
    line.setStartPoint(start);
    line.setEndPoint(end);
    QCOMPARE(QRectF(line.position(), line.size()), geometry);
    QCOMPARE(line.line(), QLineF(start, end));
    QCOMPARE(changed.size(), 2);
    line.setEndPoint(end);
    QCOMPARE(changed.size(), 2);
}

void tst_shapes::movingTheItemMovesTheLine()
{
    ZrCoreLineShape line;
    line.setLine({30, 10}, {30, 80});
    QSignalSpy changed(&line, &ZrCoreLineShape::lineChanged);
    line.setX(55);
    QCOMPARE(line.line(), QLineF(55, 10, 55, 80));
    QCOMPARE(line.height(), 70.0);
    QCOMPARE(changed.size(), 1);
}

void tst_shapes::lineIsDrawnCentred()
{
    ZrCoreLineShape line(m_window->contentItem());
    line.setLine({30, 10}, {30, 80});
    line.setStrokeColor(Qt::red);
    line.setStrokeWidth(6);
    QImage image = grab();
    QCOMPARE(image.pixelColor(26, 40), QColor(Qt::white));
    QCOMPARE(image.pixelColor(27, 40), QColor(Qt::red));
    QCOMPARE(image.pixelColor(32, 40), QColor(Qt::red));
    QCOMPARE(image.pixelColor(33, 40), QColor(Qt::white));
    QCOMPARE(image.pixelColor(30, 81), QColor(Qt::white));
    line.setX(60);
    image = grab();
    QCOMPARE(image.pixelColor(30, 40), QColor(Qt::white));
    QCOMPARE(image.pixelColor(60, 40), QColor(Qt::red));
    line.setStrokeWidth(0);
    QCOMPARE(grab().pixelColor(60, 40), QColor(Qt::white));
}

void tst_shapes::obliqueLineIsDrawn()
{
    ZrCoreLineShape line(m_window->contentItem());
    line.setLine({80, 10}, {10, 80});
    line.setStrokeColor(Qt::red);
    line.setStrokeWidth(8);
    const QImage image = grab();
    QCOMPARE(image.pixelColor(45, 45), QColor(Qt::red));
    QCOMPARE(image.pixelColor(20, 70), QColor(Qt::red));
    QCOMPARE(image.pixelColor(20, 20), QColor(Qt::white));
    QCOMPARE(image.pixelColor(55, 55), QColor(Qt::white));
}

// On a graphics processor that is the shaders' work: without them an edge covers a pixel or leaves it.
void tst_shapes::edgesOffThePixelsAreSoft()
{
    ZrCoreRectShape rect(m_window->contentItem());
    rect.setPosition({10.5, 20.5});
    rect.setSize({50, 40});
    rect.setColor(Qt::black);
    ZrCoreRectShape framed(m_window->contentItem());
    framed.setPosition({70.5, 20});
    framed.setSize({20, 40});
    framed.setColor(Qt::black);
    framed.border()->setColor(Qt::black);
    framed.border()->setWidth(4);
    const QImage image = grab();
    QCOMPARE(image.pixelColor(30, 40), QColor(Qt::black));
    QCOMPARE(image.pixelColor(9, 40), QColor(Qt::white));
    QCOMPARE(image.pixelColor(61, 40), QColor(Qt::white));
    for (const QPoint point :
         {QPoint(10, 40), QPoint(60, 40), QPoint(30, 20), QPoint(30, 60), QPoint(70, 40)}) {
        const int level = image.pixelColor(point).red();
        QVERIFY2(qAbs(level - 128) <= 2, qPrintable(QString::number(level)));
    }
    // No seam between the fill and the border, wherever their common edge lies; where each is a rectangle of
    // its own a seam shows.
    for (int x = 71; gpu && x < 90; ++x)
        QCOMPARE(image.pixelColor(x, 40), QColor(Qt::black));
}

void tst_shapes::hairlinesAreSeen()
{
    ZrCoreLineShape line(m_window->contentItem());
    line.setLine({10.5, 10}, {10.5, 90});
    line.setStrokeColor(Qt::black);
    line.setStrokeWidth(1);
    QCOMPARE(grab().pixelColor(10, 50), QColor(Qt::black));
    line.setStrokeWidth(0.5);
    const int level = grab().pixelColor(10, 50).red();
    QVERIFY2(level < 160, qPrintable(QString::number(level)));
}

void tst_shapes::opacityCounts()
{
    ZrCoreRectShape rect(m_window->contentItem());
    rect.setSize({100, 100});
    rect.setColor(QColor(0, 0, 0, 128));
    rect.setOpacity(0.5);
    QVERIFY(qAbs(grab().pixelColor(50, 50).red() - 191) <= 2);
    rect.setOpacity(1);
    QVERIFY(qAbs(grab().pixelColor(50, 50).red() - 127) <= 2);
}

// Shapes of one material are drawn at once, and still one over the other.
void tst_shapes::manyShapesKeepTheirOrder()
{
    std::vector<std::unique_ptr<ZrCoreRectShape>> shapes;
    for (int i = 0; i < 30; ++i) {
        shapes.push_back(std::make_unique<ZrCoreRectShape>(m_window->contentItem()));
        shapes.back()->setPosition(QPointF(i, i));
        shapes.back()->setSize({60, 60});
        shapes.back()->setColor(QColor::fromHsv(i * 12, 255, 255));
    }
    shapes[5]->setZ(100);
    const QImage image = grab();
    for (const int i : {0, 3, 4, 20, 28})
        QCOMPARE(image.pixelColor(i, i), shapes[std::size_t(i < 5 ? i : 5)]->color().toRgb());
    QCOMPARE(image.pixelColor(80, 80), shapes[29]->color().toRgb());
    QCOMPARE(image.pixelColor(70, 80), shapes[29]->color().toRgb());
}

int main(int argc, char** argv)
{
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments.append(QString::fromLocal8Bit(argv[i]));
    const bool gpu = arguments.removeAll(u"--gpu"_s) > 0;
    QQuickWindow::setGraphicsApi(gpu ? QSGRendererInterface::OpenGL : QSGRendererInterface::Software);
    QGuiApplication application(argc, argv);
    tst_shapes test;
    test.gpu = gpu;
    return QTest::qExec(&test, arguments);
}
#include "tst_shapes.moc"
