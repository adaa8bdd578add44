// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QPointer>
#include <QTimer>

class QQuickWindow;

/// Measures how smoothly the windows move: the longest turn of the GUI thread, drawing included, and the
/// number of frames. GUI thread. It costs nothing until it is started.
class LuFrameWatch : public QObject
{
    Q_OBJECT

public:
    struct Measured
    {
        int frames = 0;            ///< Pictures that the window drew.
        double longestMs = 0;      ///< The longest time for which the thread was at one thing.
        double longestFrameMs = 0; ///< The longest drawing of one picture.
    };

    explicit LuFrameWatch(QObject* parent = nullptr);

    /// Begins to measure @p window, or goes on; what was measured so far is forgotten.
    void start(QQuickWindow* window);
    Measured measured() const;

private:
    QPointer<QQuickWindow> m_window;
    QTimer m_beat;
    QElapsedTimer m_sinceBeat;
    QElapsedTimer m_sinceStart;
    QElapsedTimer m_frame;
    Measured m_measured;
};
