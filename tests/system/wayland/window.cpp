// SPDX-License-Identifier: Apache-2.0
// An application with one window, which it tells the sizes of.
#include <QGuiApplication>
#include <QPainter>
#include <QRasterWindow>
#include <QResizeEvent>

#include <cstdio>

namespace {

class Window : public QRasterWindow
{
protected:
    void paintEvent(QPaintEvent*) override { QPainter(this).fillRect(QRect(QPoint(), size()), Qt::white); }
    void resizeEvent(QResizeEvent* event) override
    {
        QRasterWindow::resizeEvent(event);
        std::printf("%dx%d\n", event->size().width(), event->size().height());
        std::fflush(stdout);
    }
};

} // namespace

int main(int argc, char** argv)
{
    QGuiApplication application(argc, argv);
    Window window;
    window.resize(300, 200);
    window.show();
    return QGuiApplication::exec();
}
