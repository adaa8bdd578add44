// SPDX-License-Identifier: Apache-2.0
// An application with one window, or two, which it tells the sizes, the keys and the lost focus of. Its upper
// part is a title bar of its own.
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QRasterWindow>
#include <QResizeEvent>

#include <cstdio>

namespace {

constexpr int TitleBar = 40;

class Window : public QRasterWindow
{
protected:
    void paintEvent(QPaintEvent*) override { QPainter(this).fillRect(QRect(QPoint(), size()), Qt::white); }
    void resizeEvent(QResizeEvent* event) override
    {
        QRasterWindow::resizeEvent(event);
        std::printf("size %dx%d\n", event->size().width(), event->size().height());
        std::fflush(stdout);
    }
    void mousePressEvent(QMouseEvent* event) override
    {
        if (event->position().y() < TitleBar)
            startSystemMove();
    }
    void keyPressEvent(QKeyEvent* event) override
    {
        const QKeySequence keys(event->keyCombination());
        std::printf("key %s\n", keys.toString(QKeySequence::PortableText).toUtf8().constData());
        std::fflush(stdout);
    }
    void focusOutEvent(QFocusEvent*) override
    {
        std::printf("focus lost\n");
        std::fflush(stdout);
    }
};

} // namespace

int main(int argc, char** argv)
{
    QGuiApplication application(argc, argv);
    Window windows[2];
    const int count = QGuiApplication::arguments().contains(QStringLiteral("--two")) ? 2 : 1;
    for (int i = 0; i < count; ++i) {
        // KWin's own frame would stand above the title bar.
        windows[i].setFlag(Qt::FramelessWindowHint);
        windows[i].resize(300, 200);
        windows[i].show();
    }
    return QGuiApplication::exec();
}
