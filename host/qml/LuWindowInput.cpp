// SPDX-License-Identifier: Apache-2.0
#include "LuContext.h"
#include "LuWindowBridge.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QImage>
#include <QKeyEvent>
#include <QKeySequence>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QPointer>
#include <QQuickItem>
#include <QQuickWindow>
#include <QSaveFile>
#include <QScopeGuard>

using namespace Qt::StringLiterals;

// Input that scripts send to the windows, and pictures that they take of them.

namespace {

// As LuStyle.radiusWindow.
constexpr double CornerRadius = 14;

// A picture of the window as it is once its layout has settled: a first drawing lays out, which may change
// the window's size, and a window that has just been made learns its size from an event that is still on its
// way.
QImage settledImage(QQuickWindow* window)
{
    constexpr int Rounds = 4;
    QImage image;
    for (int round = 0; round < Rounds; ++round) {
        const QSize before = window->size();
        window->contentItem()->setSize(before);
        image = window->grabWindow();
        if (round > 0 && window->size() == before)
            break;
    }
    image.setDevicePixelRatio(window->width() > 0 ? double(image.width()) / window->width() : 1);
    return image;
}

// The corners that a window shows are see-through; a drawing without alpha has them black.
QImage withRoundCorners(const QImage& image, double radius)
{
    if (image.hasAlphaChannel() || radius <= 0)
        return image;
    QImage result(image.size(), QImage::Format_ARGB32_Premultiplied);
    result.fill(Qt::transparent);
    QPainter painter(&result);
    painter.setRenderHint(QPainter::Antialiasing);
    QPainterPath outline;
    outline.addRoundedRect(result.rect(), radius * image.devicePixelRatio(),
                           radius * image.devicePixelRatio());
    QImage opaque = image;
    opaque.setDevicePixelRatio(1);
    painter.fillPath(outline, QBrush(opaque));
    painter.end();
    result.setDevicePixelRatio(image.devicePixelRatio());
    return result;
}

// As the window does it for the item that has the focus, so that it also works while the desktop has the
// focus elsewhere.
void deliverKey(QQuickItem* item, QKeyEvent* event)
{
    event->accept();
    QCoreApplication::sendEvent(item, event);
    while (!event->isAccepted() && (item = item->parentItem())) {
        event->accept();
        QCoreApplication::sendEvent(item, event);
    }
}

} // namespace

LuWindowBridge::Result LuWindowBridge::key(const QString& name, const QString& key, const QString& role,
                                           const QString& within)
{
    const QKeySequence sequence = QKeySequence::fromString(key, QKeySequence::PortableText);
    if (sequence.count() != 1 || sequence[0].key() == Qt::Key_unknown)
        return failure(WrongValue, u"no such key: %1"_s.arg(key));
    QQuickItem* item = nullptr;
    if (name.isEmpty()) {
        auto* focused = qobject_cast<QQuickWindow*>(QGuiApplication::focusWindow());
        QQuickWindow* target = focused ? focused : window();
        if (!target)
            return noWindow();
        item = target->activeFocusItem() ? target->activeFocusItem() : target->contentItem();
    } else {
        const Found found = find(name, role, within);
        if (!found.item)
            return found.error;
        item = found.item;
        item->forceActiveFocus(Qt::TabFocusReason);
    }
    const QKeyCombination combination = sequence[0];
    const bool printable =
        combination.key() < Qt::Key_Escape && !(combination.keyboardModifiers() & Qt::ControlModifier);
    const QString text = printable ? QString(QChar(char16_t(combination.key()))).toLower() : QString();
    const QPointer<QQuickItem> target = item;
    QKeyEvent down(QEvent::KeyPress, combination.key(), combination.keyboardModifiers(), text);
    deliverKey(item, &down);
    if (target) {
        QKeyEvent up(QEvent::KeyRelease, combination.key(), combination.keyboardModifiers(), text);
        deliverKey(target, &up);
    }
    return {};
}

LuWindowBridge::Result LuWindowBridge::mouse(const QString& name, const QString& kind,
                                             const QPointF& position)
{
    QWindow* target = nullptr;
    const QList<QWindow*> all = QGuiApplication::topLevelWindows();
    for (QWindow* one : all) {
        if (windowName(one) == name || one->title() == name)
            target = one;
    }
    if (!target)
        return failure(NoSuchThing, u"no such window: %1"_s.arg(name));
    const auto send = [&](QEvent::Type type, Qt::MouseButton button, Qt::MouseButtons buttons) {
        m_buttons = buttons;
        QMouseEvent event(type, position, target->mapToGlobal(position), button, buttons, Qt::NoModifier);
        QCoreApplication::sendEvent(target, &event);
    };
    if (kind != "press"_L1 && kind != "move"_L1 && kind != "release"_L1 && kind != "click"_L1)
        return failure(WrongValue, u"no such kind of pointer input: %1"_s.arg(kind));
    if (kind == "move"_L1)
        send(QEvent::MouseMove, Qt::NoButton, m_buttons);
    if (kind == "press"_L1 || kind == "click"_L1)
        send(QEvent::MouseButtonPress, Qt::LeftButton, Qt::LeftButton);
    if (kind == "release"_L1 || kind == "click"_L1)
        send(QEvent::MouseButtonRelease, Qt::LeftButton, Qt::NoButton);
    return {};
}

LuWindowBridge::Result LuWindowBridge::screenshot(const QString& file, const QString& widget,
                                                  const QString& theme)
{
    LuContext* context = LuContext::instance();
    if (!window())
        return noWindow();
    if (!theme.isEmpty() && theme != "light"_L1 && theme != "dark"_L1)
        return failure(WrongValue, u"no such theme: %1"_s.arg(theme));
    // A picture shows the end of every transition.
    const bool motion = context->reducedMotion();
    const QString before = context->theme();
    context->setReducedMotion(true);
    if (!theme.isEmpty())
        context->setTheme(theme);
    bool opened = false;
    const auto restore = qScopeGuard([&] {
        if (opened)
            close(widget);
        context->setTheme(before);
        context->setReducedMotion(motion);
    });
    QQuickWindow* target = window();
    QRectF part;
    if (!widget.isEmpty()) {
        const QQuickItem* item = widgetItem(widget);
        if (!item || !item->property("pageOpen").toBool()) {
            if (const Result result = openPage(widget); !result.ok())
                return result;
            opened = true;
        }
        if (QQuickItem* panel = openPagePanel()) {
            target = panel->window();
            part = panel->mapRectToScene(QRectF(0, 0, panel->width(), panel->height()));
        }
    }
    QImage image = settledImage(target);
    if (image.isNull())
        return failure(NoWindow, u"the window cannot be drawn"_s);
    if (part.isValid() && target == window()) {
        const double ratio = image.devicePixelRatio();
        image = image.copy(QRectF(part.topLeft() * ratio, part.size() * ratio).toRect());
        image.setDevicePixelRatio(ratio);
    }
    if (target->color().alpha() < 255)
        image = withRoundCorners(image, CornerRadius);
    QSaveFile out(file);
    if (!out.open(QIODevice::WriteOnly) || !image.save(&out, "PNG") || !out.commit())
        return failure(WrongValue, u"cannot write %1: %2"_s.arg(file, out.errorString()));
    return {};
}
