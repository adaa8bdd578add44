// SPDX-License-Identifier: Apache-2.0
#include "ClockMethods.h"

#include <ZrCore/ZrClock.h>

#include <control/Server.h>

#include <QCoreApplication>
#include <QDateTime>
#include <QElapsedTimer>

#include <condition_variable>
#include <deque>
#include <memory>
#include <mutex>
#include <thread>

using namespace Qt::StringLiterals;
using namespace control;

namespace {

/// A hundred years: no further than the calendar of a schedule can go.
constexpr qint64 MaximumAdvanceMs = qint64(100) * 366 * 24 * 3600 * 1000;

/// Moves the clock on a thread of its own, since the GUI thread has to run what falls due; one move after the
/// other.
class ClockMover : public QObject
{
public:
    explicit ClockMover(QObject* parent) : QObject(parent), m_state(std::make_shared<State>())
    {
        m_thread = std::thread([state = m_state] { run(*state); });
    }

    ~ClockMover() override
    {
        {
            const std::lock_guard lock(m_state->mutex);
            m_state->ending = true;
            m_state->moves.clear();
        }
        m_state->changed.notify_all();
        // A move that goes on waits for this thread's events.
        QElapsedTimer elapsed;
        elapsed.start();
        while (!hasEnded() && elapsed.elapsed() < EndLimitMs)
            QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
        if (hasEnded())
            m_thread.join();
        else
            m_thread.detach();
    }

    void advance(qint64 ms, const Reply& reply)
    {
        {
            const std::lock_guard lock(m_state->mutex);
            m_state->moves.push_back({ms, reply});
        }
        m_state->changed.notify_all();
    }

private:
    static constexpr qint64 EndLimitMs = 2000;

    struct Move
    {
        qint64 ms;
        Reply reply;
    };

    struct State
    {
        std::mutex mutex;
        std::condition_variable changed;
        std::deque<Move> moves;
        bool ending = false;
        bool ended = false;
    };

    static void run(State& state)
    {
        std::unique_lock lock(state.mutex);
        while (!state.ending) {
            if (state.moves.empty()) {
                state.changed.wait(lock);
                continue;
            }
            const Move move = state.moves.front();
            state.moves.pop_front();
            lock.unlock();
            ZrClock::instance().advance(move.ms);
            move.reply.done();
            lock.lock();
        }
        state.ended = true;
    }

    bool hasEnded() const
    {
        const std::lock_guard lock(m_state->mutex);
        return m_state->ended;
    }

    const std::shared_ptr<State> m_state;
    std::thread m_thread;
};

void needSimulation(bool simulated)
{
    if (!simulated)
        throw RequestError(NotSimulated, u"the clock is the system's: services are not simulated"_s);
}

QJsonValue setTime(const Request& request)
{
    const QString text = request.parameters.text(u"time"_s);
    const QDateTime time = QDateTime::fromString(text, Qt::ISODateWithMs);
    if (!time.isValid())
        throw RequestError(
            InvalidParameters,
            u"parameter \"time\" must be a date and time as in ISO 8601, not \"%1\""_s.arg(text.left(100)));
    ZrClock::instance().set(time);
    return QJsonObject();
}

} // namespace

void addClockMethods(Server* server, bool simulated)
{
    Dispatcher& dispatcher = server->dispatcher();
    ClockMover* const mover = simulated ? new ClockMover(server) : nullptr;
    dispatcher.addMethod(u"clock.get"_s, {}, [simulated](const Request&) {
        needSimulation(simulated);
        return QJsonValue(QJsonObject{{u"time"_s, ZrClock::instance().now().toString(Qt::ISODateWithMs)}});
    });
    dispatcher.addMethod(u"clock.set"_s, {u"time"_s}, [simulated](const Request& request) {
        needSimulation(simulated);
        return setTime(request);
    });
    dispatcher.addAsyncMethod(u"clock.advance"_s, {u"ms"_s}, [simulated, mover](const Request& request) {
        needSimulation(simulated);
        mover->advance(request.parameters.integer(u"ms"_s, 0, MaximumAdvanceMs), request.reply);
    });
}
