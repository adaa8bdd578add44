// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QBasicTimer>
#include <QObject>

#include <atomic>
#include <memory>

namespace zr {

class JobQueue;

/// The jobs of ZrDispatch::main().
const std::shared_ptr<JobQueue>& mainJobs();

/// The caller runs on the thread of the present application. False without an application.
bool onMainThread();
bool hasApplication();

/// Waits on the main thread for events, a wake of the main queue among them, and processes them; at most @p
/// maxMs milliseconds, under 0 without limit.
void processMainEvents(qint64 maxMs);

/// Brings the main thread's event loop round to the main queue and to those who wait for rest. Any thread;
/// nothing happens without an application.
void wakeMain();

/// Lives on the application's thread, from the application's start to its end, and runs the main queue there.
class MainDriver : public QObject
{
    Q_OBJECT

public:
    MainDriver();
    ~MainDriver() override;

    /// Any thread, under the lock that keeps the driver alive.
    void requestWake();
    /// Calls IdleHub::probed() with @p number when no posted event is left. Main thread.
    void probe(quint64 number);

protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* receiver, QEvent* event) override;
    void timerEvent(QTimerEvent* event) override;

private:
    Q_INVOKABLE void wake();
    void rearm();

    std::atomic<bool> m_wakePosted = false;
    bool m_counting = false;
    QBasicTimer m_timer;
};

/// See MainDriver::probe(); main thread.
void probeMain(quint64 number);

} // namespace zr
