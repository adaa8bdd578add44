// SPDX-License-Identifier: Apache-2.0
#include "LuFrameWatch.h"

#include <QAbstractEventDispatcher>
#include <QQuickWindow>

#include <algorithm>

namespace {

double milliseconds(const QElapsedTimer& timer)
{
    return double(timer.nsecsElapsed()) / 1e6;
}

} // namespace

void LuFrameWatch::start(QQuickWindow* window)
{
    m_measured = {};
    if (window != m_window) {
        if (m_window)
            m_window->disconnect(this);
        m_window = window;
        // Direct: where pictures are drawn on a thread of their own, only the part on this thread counts.
        connect(window, &QQuickWindow::afterAnimating, this, [this] { m_frame.start(); });
        connect(window, &QQuickWindow::frameSwapped, this, [this] {
            ++m_measured.frames;
            if (m_frame.isValid())
                m_measured.longestFrameMs = std::max(m_measured.longestFrameMs, milliseconds(m_frame));
        });
    }
    if (m_running)
        return;
    m_running = true;
    QAbstractEventDispatcher* dispatcher = QAbstractEventDispatcher::instance();
    connect(dispatcher, &QAbstractEventDispatcher::awake, this, [this] { m_turn.start(); });
    connect(dispatcher, &QAbstractEventDispatcher::aboutToBlock, this, [this] {
        if (m_turn.isValid())
            m_measured.longestMs = std::max(m_measured.longestMs, milliseconds(m_turn));
        m_turn.invalidate();
    });
}
