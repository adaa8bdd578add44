// SPDX-License-Identifier: Apache-2.0
#include "zrcore/MainQueue.h"

#include "zrcore/IdleHub.h"
#include "zrcore/JobQueue.h"
#include "zrcore/QueueList.h"

#include <QCoreApplication>
#include <QEvent>
#include <QEventLoop>
#include <QTimerEvent>

#include <algorithm>
#include <mutex>
#include <thread>
#include <utility>

namespace zr {

namespace {

// Below every priority that events have in practice.
constexpr int ProbePriority = -1000;

struct Main
{
    std::mutex mutex; // keeps the driver alive; taken last, around calls of Qt only
    MainDriver* driver = nullptr;
    std::thread::id thread;
};

Main& mainState()
{
    static auto* instance = new Main;
    return *instance;
}

class ProbeEvent : public QEvent
{
public:
    ProbeEvent(quint64 number, bool second) : QEvent(eventType()), m_number(number), m_second(second) {}
    static Type eventType()
    {
        static const int type = registerEventType();
        return static_cast<Type>(type);
    }
    quint64 number() const { return m_number; }
    bool isSecond() const { return m_second; }

private:
    quint64 m_number;
    bool m_second;
};

void detach()
{
    MainDriver* driver = nullptr;
    {
        const std::lock_guard lock(mainState().mutex);
        driver = std::exchange(mainState().driver, nullptr);
        mainState().thread = {};
    }
    delete driver;
    mainJobs()->drop();
}

void attach()
{
    {
        const std::lock_guard lock(mainState().mutex);
        mainState().driver = new MainDriver;
        mainState().thread = std::this_thread::get_id();
    }
    qAddPostRoutine(detach);
    wakeMain();
}

Q_COREAPP_STARTUP_FUNCTION(attach)

} // namespace

const std::shared_ptr<JobQueue>& mainJobs()
{
    static const auto* const jobs = [] {
        auto* created =
            new std::shared_ptr<JobQueue>(std::make_shared<JobQueue>(QStringLiteral("main"), wakeMain));
        enlist(*created);
        return created;
    }();
    return *jobs;
}

bool onMainThread()
{
    const std::lock_guard lock(mainState().mutex);
    return mainState().thread == std::this_thread::get_id();
}

bool hasApplication()
{
    const std::lock_guard lock(mainState().mutex);
    return mainState().driver != nullptr;
}

void processMainEvents(qint64 maxMs)
{
    class Alarm : public QObject
    {
    protected:
        void timerEvent(QTimerEvent*) override {}
    };
    Alarm alarm;
    if (maxMs >= 0)
        alarm.startTimer(static_cast<int>(std::min<qint64>(maxMs, 1'000'000)), Qt::PreciseTimer);
    QEventLoop loop;
    loop.processEvents(QEventLoop::WaitForMoreEvents);
}

void wakeMain()
{
    const std::lock_guard lock(mainState().mutex);
    if (mainState().driver)
        mainState().driver->requestWake();
}

void probeMain(quint64 number)
{
    const std::lock_guard lock(mainState().mutex);
    if (mainState().driver)
        mainState().driver->probe(number);
}

MainDriver::MainDriver() = default;

MainDriver::~MainDriver() = default;

void MainDriver::requestWake()
{
    // By name: Qt makes the event, and nothing that this thread wrote is read on the other without a lock.
    if (!m_wakePosted.exchange(true))
        QMetaObject::invokeMethod(this, "wake", Qt::QueuedConnection);
}

void MainDriver::probe(quint64 number)
{
    // From the first wait on the delivered events are counted.
    if (!std::exchange(m_counting, true))
        QCoreApplication::instance()->installEventFilter(this);
    QCoreApplication::postEvent(this, new ProbeEvent(number, false), ProbePriority);
}

bool MainDriver::event(QEvent* event)
{
    if (event->type() != ProbeEvent::eventType())
        return QObject::event(event);
    const auto* const arrived = static_cast<ProbeEvent*>(event);
    const quint64 number = arrived->number();
    if (IdleHub::instance().probed(number, arrived->isSecond()))
        QCoreApplication::postEvent(this, new ProbeEvent(number, true), ProbePriority);
    return true;
}

bool MainDriver::eventFilter(QObject* receiver, QEvent* event)
{
    if (receiver == this)
        return false;
    const QEvent::Type type = event->type();
    if (type == QEvent::MetaCall || type == QEvent::DeferredDelete || type >= QEvent::User)
        IdleHub::instance().delivered();
    return false;
}

void MainDriver::timerEvent(QTimerEvent* event)
{
    if (event->timerId() == m_timer.timerId())
        wake();
}

void MainDriver::wake()
{
    m_wakePosted = false;
    // One job for each pass of the event loop, so that a long queue does not hold up input and painting.
    mainJobs()->runOne();
    IdleHub::instance().look();
    rearm();
}

void MainDriver::rearm()
{
    m_timer.stop();
    const auto ms = mainJobs()->msUntilReady();
    if (!ms || JobQueue::current() == mainJobs().get())
        return;
    if (*ms == 0)
        requestWake();
    else
        m_timer.start(static_cast<int>(std::min<qint64>(*ms, 1'000'000)), Qt::PreciseTimer, this);
}

} // namespace zr
