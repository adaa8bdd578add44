// SPDX-License-Identifier: Apache-2.0
#include "LuContext.h"
#include "LuTextAudit.h"
#include "LuWindowBridge.h"

#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <QQuickItem>
#include <QQuickWindow>
#include <QSaveFile>
#include <QScopeGuard>

using namespace Qt::StringLiterals;

// Pictures that scripts take of the windows.

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

} // namespace

LuWindowBridge::Result LuWindowBridge::openForPicture(const QString& name, Picture* picture)
{
    const auto take = [&](const char* property) {
        picture->window = window()->property(property).value<QQuickWindow*>();
    };
    const auto panel = [&] {
        if (QQuickItem* item = openPagePanel()) {
            picture->window = item->window();
            picture->part = item->mapRectToScene(QRectF(0, 0, item->width(), item->height()));
        }
    };
    picture->window = window();
    if (name.isEmpty())
        return {};
    if (const QQuickItem* item = widgetItem(name)) {
        if (!item->property("pageOpen").toBool()) {
            if (const Result result = openPage(name); !result.ok())
                return result;
            picture->close = [this, name] { close(name); };
        }
        panel();
        return {};
    }
    if (name == "arrange"_L1) {
        (void)openSection(name);
        picture->close = [this] { close(); };
        panel();
        return {};
    }
    // What a person has opened, such as a hint.
    if (QQuickWindow* open = windowOfType(name)) {
        picture->window = open;
        return {};
    }
    if (name.startsWith("LuPopup"_L1) || name.endsWith("Popup"_L1)) {
        if (const Result result = openPopup(name); !result.ok())
            return result;
        picture->close = [this, name] { close(name); };
        // Feedback has a window of its own, an editor lies over the main window.
        if (QQuickWindow* own = windowOfType(name))
            picture->window = own;
        return {};
    }
    if (!openSection(name).ok())
        return failure(NoSuchThing, u"no such widget, section or page: %1"_s.arg(name));
    take(name == "walkthrough"_L1 ? "walkthroughWindow" : "settingsWindow");
    picture->close = [this, name] { close(name); };
    return {};
}

LuWindowBridge::Result LuWindowBridge::screenshot(const QString& file, const QString& name,
                                                  const QString& theme)
{
    LuContext* context = LuContext::instance();
    if (!window())
        return noWindow();
    if (!theme.isEmpty() && theme != "light"_L1 && theme != "dark"_L1)
        return failure(WrongValue, u"no such theme: %1"_s.arg(theme));
    // A picture shows the end of every transition.
    const bool motion = context->reducedMotion();
    const bool room = context->hasEndlessRoom();
    const QString before = context->theme();
    context->setReducedMotion(true);
    // ... and all that a window holds, however small the screen is.
    context->setEndlessRoom(true);
    if (!theme.isEmpty())
        context->setTheme(theme);
    Picture picture;
    const auto restore = qScopeGuard([&] {
        if (picture.close)
            picture.close();
        context->setTheme(before);
        context->setReducedMotion(motion);
        context->setEndlessRoom(room);
    });
    if (const Result result = openForPicture(name, &picture); !result.ok())
        return result;
    QImage image = picture.window ? settledImage(picture.window) : QImage();
    if (image.isNull())
        return failure(NoWindow, u"the window cannot be drawn"_s);
    if (picture.part.isValid() && picture.window == window()) {
        const double ratio = image.devicePixelRatio();
        image = image.copy(QRectF(picture.part.topLeft() * ratio, picture.part.size() * ratio).toRect());
        image.setDevicePixelRatio(ratio);
    }
    if (picture.window->color().alpha() < 255)
        image = withRoundCorners(image, CornerRadius);
    QSaveFile out(file);
    if (!out.open(QIODevice::WriteOnly) || !image.save(&out, "PNG") || !out.commit())
        return failure(WrongValue, u"cannot write %1: %2"_s.arg(file, out.errorString()));
    return {};
}

LuWindowBridge::Result LuWindowBridge::problems() const
{
    if (!window())
        return noWindow();
    QJsonArray list;
    const QList<QWindow*> all = QGuiApplication::topLevelWindows();
    for (QWindow* one : all) {
        auto* quick = qobject_cast<QQuickWindow*>(one);
        if (!quick || !quick->isVisible())
            continue;
        const QImage image = settledImage(quick);
        const QJsonArray found = LuTextAudit::problemsOf(quick, image);
        for (const QJsonValue& problem : found)
            list.append(problem);
    }
    return {NoError, {}, list};
}

LuWindowBridge::Result LuWindowBridge::frames()
{
    if (!window())
        return noWindow();
    const LuFrameWatch::Measured measured = m_frames.measured();
    m_frames.start(window());
    return {NoError,
            {},
            QJsonObject{{u"frames"_s, measured.frames},
                        {u"longestMs"_s, measured.longestMs},
                        {u"longestFrameMs"_s, measured.longestFrameMs}}};
}
