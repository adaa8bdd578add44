// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QPoint>
#include <QPointF>

#include <functional>

namespace services {

/// The pointer, whichever window it is over. For KvmService: a pointer that pushes on at the edge of the
/// desktop no longer changes its position, but still moves. GUI thread only.
class PointerService
{
public:
    /// Called for each movement of the person's hand.
    /// @p position where the pointer is now, in native coordinates (DisplayService::nativeScreenRect()).
    /// @p motion how far the device moved, in its own unaccelerated steps; also where the position stays.
    using Observer = std::function<void(QPoint position, QPointF motion)>;

    virtual ~PointerService() = default;

    /// Begins to watch, or with an empty function ends it; only the latest observer is called. False, and
    /// nothing is watched, if the session does not tell.
    virtual bool watch(Observer observer) = 0;

    /// Present position in native coordinates.
    virtual QPoint position() const = 0;

    /// Puts the pointer there, without a call of the observer for it.
    virtual void moveTo(QPoint position) = 0;
};

} // namespace services
