// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QPointer>

class QQuickWindow;

/// Measures how smoothly the windows move: the longest turn of the GUI thread, drawing included, and the
/// number of frames. GUI thread. It costs nothing until it is started.
class LuFrameWatch : public QObject
{
    Q_OBJECT

public:
    struct Measured
    {
        int frames = 0;       ///< Pictures that the window drew.
        double longestMs = 0; ///< The longest time from an event's arrival until the thread was free again.
        double longestFrameMs = 0; ///< The longest drawing of one picture.
    };

    using QObject::QObject;

    /// Begins to measure @p window, or goes on; what was measured so far is forgotten.
    void start(QQuickWindow* window);
    Measured measured() const { return m_measured; }

private:
    QPointer<QQuickWindow> m_window;
    QElapsedTimer m_turn;
    QElapsedTimer m_frame;
    Measured m_measured;
    bool m_running = false;
};
