// SPDX-License-Identifier: Apache-2.0
// Another application with something selected: editor NAME CONTENT
// Ctrl+C puts its selection on the clipboard; with the content "nothing" it has none. It tells on standard
// output, one line each:
//   window ID            once it is on the screen
//   copied               the selection is on the clipboard
//   pasted TEXT          what Ctrl+V fetched, see describe()
//   key TEXT             any other key with Ctrl
#include "Content.h"

#include <QClipboard>
#include <QExposeEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QKeySequence>
#include <QRasterWindow>

#include <cstdio>

namespace {

class Editor : public QRasterWindow
{
public:
    explicit Editor(const QString& content) : m_content(content) {}

protected:
    void exposeEvent(QExposeEvent* event) override
    {
        QRasterWindow::exposeEvent(event);
        if (isExposed() && !m_told)
            std::printf("window %lu\n", static_cast<unsigned long>(winId()));
        m_told = m_told || isExposed();
    }

    void keyPressEvent(QKeyEvent* event) override
    {
        QClipboard* const clipboard = QGuiApplication::clipboard();
        if (event->matches(QKeySequence::Copy)) {
            if (QMimeData* selection = contentOf(m_content)) {
                clipboard->setMimeData(selection);
                std::printf("copied\n");
            }
        } else if (event->matches(QKeySequence::Paste)) {
            std::printf("pasted %s\n", qPrintable(describe(clipboard->mimeData())));
        } else if (event->modifiers() & Qt::ControlModifier && event->key() < Qt::Key_Escape) {
            std::printf("key %s\n", qPrintable(QKeySequence(event->keyCombination()).toString()));
        }
    }

private:
    const QString m_content;
    bool m_told = false;
};

} // namespace

int main(int argc, char** argv)
{
    std::setvbuf(stdout, nullptr, _IOLBF, 0);
    QGuiApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 3)
        return 2;
    Editor editor(arguments[2]);
    editor.setTitle(arguments[1]);
    editor.setGeometry(100, 100, 300, 200);
    editor.show();
    return QGuiApplication::exec();
}
