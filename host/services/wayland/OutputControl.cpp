// SPDX-License-Identifier: Apache-2.0
#include "services/wayland/OutputControl.h"

#include <QDBusPendingCallWatcher>

#include <algorithm>
#include <cmath>
#include <utility>

namespace services::wayland {

const OutputMode* Output::mode(const QString& id) const
{
    const auto found =
        std::find_if(modes.begin(), modes.end(), [&](const OutputMode& each) { return each.id == id; });
    return id.isEmpty() || found == modes.end() ? nullptr : &*found;
}

bool Output::has(const OutputChange& change) const
{
    // Compositors round fractions of a scale.
    return modeId == change.modeId.value_or(modeId) && degrees == change.degrees.value_or(degrees) &&
           std::abs(scale - change.scale.value_or(scale)) < 0.01;
}

void Output::apply(const OutputChange& change)
{
    modeId = change.modeId.value_or(modeId);
    degrees = change.degrees.value_or(degrees);
    scale = change.scale.value_or(scale);
}

void OutputChange::merge(const OutputChange& later)
{
    if (later.modeId)
        modeId = later.modeId;
    if (later.degrees)
        degrees = later.degrees;
    if (later.scale)
        scale = later.scale;
    // Another mode says for itself whether it lasts.
    permanent = later.permanent || (permanent && !later.modeId);
}

void sendLater(QObject* owner, const QDBusConnection& bus, const QDBusMessage& message,
               std::function<void(const QDBusMessage& reply)> next)
{
    auto* const watcher = new QDBusPendingCallWatcher(bus.asyncCall(message), owner);
    QObject::connect(watcher, &QDBusPendingCallWatcher::finished, owner, [watcher, next = std::move(next)] {
        watcher->deleteLater();
        next(watcher->reply());
    });
}

QList<QRect> arranged(QList<QRect> rectangles, qsizetype changed, const QSize& newSize)
{
    const QRect before = rectangles[changed];
    const int right = before.x() + before.width();
    const int bottom = before.y() + before.height();
    for (qsizetype i = 0; i < rectangles.size(); ++i) {
        QRect& each = rectangles[i];
        if (i == changed)
            each.setSize(newSize);
        else if (each.x() >= right)
            each.translate(newSize.width() - before.width(), 0);
        else if (each.y() >= bottom)
            each.translate(0, newSize.height() - before.height());
    }
    return rectangles;
}

} // namespace services::wayland
