// SPDX-License-Identifier: Apache-2.0
#include "LuFrameWatch.h"

#include <QQuickWindow>

#include <algorithm>

namespace {

constexpr int BeatMs = 2;
/// Nobody asks any more: the beat is not worth its wake-ups.
constexpr int LongestWatchMs = 60'000;

double milliseconds(const QElapsedTimer& timer)
{
    return double(timer.nsecsElapsed()) / 1e6;
}

} // namespace

LuFrameWatch::LuFrameWatch(QObject* parent) : QObject(parent)
{
    m_beat.setTimerType(Qt::PreciseTimer);
    m_beat.setInterval(BeatMs);
    connect(&m_beat, &QTimer::timeout, this, [this] {
        m_measured.longestMs = std::max(m_measured.longestMs, milliseconds(m_sinceBeat) - BeatMs);
        m_sinceBeat.start();
        if (m_sinceStart.elapsed() > LongestWatchMs)
            m_beat.stop();
    });
}

void LuFrameWatch::start(QQuickWindow* window)
{
    m_measured = {};
    m_sinceStart.start();
    m_sinceBeat.start();
    m_beat.start();
    if (window == m_window)
        return;
    if (m_window)
        m_window->disconnect(this);
    m_window = window;
    connect(window, &QQuickWindow::afterAnimating, this, [this] { m_frame.start(); });
    connect(window, &QQuickWindow::frameSwapped, this, [this] {
        ++m_measured.frames;
        if (m_frame.isValid())
            m_measured.longestFrameMs = std::max(m_measured.longestFrameMs, milliseconds(m_frame));
    });
}

LuFrameWatch::Measured LuFrameWatch::measured() const
{
    Measured result = m_measured;
    // A turn that is not over yet counts as far as it has come.
    if (m_beat.isActive())
        result.longestMs = std::max(result.longestMs, milliseconds(m_sinceBeat) - BeatMs);
    return result;
}
