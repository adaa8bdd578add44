// SPDX-License-Identifier: Apache-2.0
#include "services/wayland/OutputKeeper.h"

#include <LuShared/LuPlatformNotifications.h>
#include <ZrCore/ZrDispatch.h>

#include <QDebug>
#include <QPointer>
#include <QThread>

#include <algorithm>
#include <utility>

namespace services::wayland {

namespace {

using namespace std::chrono_literals;

/// Longest wait for the first answer on the GUI thread, in ms.
constexpr int FirstMs = 150;
/// As long from the start on for everybody else.
constexpr auto Patience = 3s;
/// A compositor tells one change in several signals.
constexpr int SettleMs = 100;
/// One that did not answer is asked again after this, and after twice as long each time.
constexpr int RetryMs = 1000;
constexpr int MostRetryMs = 60'000;
/// A compositor may answer before it has carried a change out: looks at its outputs until that counts as
/// refused.
constexpr int MostLooks = 30;

} // namespace

OutputKeeper::OutputKeeper(std::shared_ptr<OutputControl> control)
    : m_control(std::move(control)), m_patience(std::chrono::system_clock::now() + Patience)
{
    m_settle.setSingleShot(true);
    connect(&m_settle, &QTimer::timeout, this, &OutputKeeper::ask);
    m_control->setListener([self = QPointer(this)] {
        if (self)
            self->m_settle.start(SettleMs);
    });
    m_known = m_control->outputsWithin(FirstMs);
    if (!m_known)
        ask();
}

QList<Output> OutputKeeper::outputs() const
{
    std::unique_lock lock(m_mutex);
    if (!m_known && thread() != QThread::currentThread())
        m_first.wait_until(lock, m_patience, [this] { return m_known.has_value(); });
    QList<Output> result = m_known.value_or(QList<Output>());
    for (Output& output : result) {
        if (m_flight && m_flight->name == output.name && !m_flight->refused)
            output.apply(m_flight->change);
        if (const auto waiting = m_waiting.constFind(output.name); waiting != m_waiting.constEnd())
            output.apply(*waiting);
    }
    return result;
}

void OutputKeeper::change(const QString& name, const OutputChange& change)
{
    {
        const std::lock_guard lock(m_mutex);
        m_waiting[name].merge(change);
    }
    ZrDispatch::main()->post(this, [this] { send(); });
}

void OutputKeeper::send()
{
    Flight flight;
    {
        const std::lock_guard lock(m_mutex);
        if (m_flight || m_waiting.isEmpty())
            return;
        flight.name = m_waiting.firstKey();
        flight.change = m_waiting.take(flight.name);
        m_flight = flight;
    }
    m_control->change(flight.name, flight.change, [self = QPointer(this)](const QString& problem) {
        if (self)
            self->finish(problem);
    });
}

void OutputKeeper::finish(const QString& problem)
{
    {
        const std::lock_guard lock(m_mutex);
        m_flight->answered = true;
        m_flight->refused = !problem.isEmpty();
    }
    // An automatic change may be tried again and again.
    if (!problem.isEmpty() && problem != m_problem)
        qWarning().noquote() << "[LuPlatform] the compositor refuses:" << problem;
    m_problem = problem;
    // Also where the compositor tells nothing of what it was asked for.
    m_settle.start(SettleMs);
}

void OutputKeeper::ask()
{
    if (m_asking) {
        m_askAgain = true;
        return;
    }
    m_asking = true;
    m_control->outputs([self = QPointer(this)](const std::optional<QList<Output>>& outputs) {
        if (self)
            self->take(outputs);
    });
}

void OutputKeeper::take(const std::optional<QList<Output>>& outputs)
{
    m_asking = false;
    if (!outputs && m_retryMs == 0)
        qWarning() << "[LuPlatform] the compositor does not tell its monitors";
    m_retryMs = outputs ? 0 : std::clamp(m_retryMs * 2, RetryMs, MostRetryMs);
    bool different = false;
    {
        const std::lock_guard lock(m_mutex);
        const QList<Output> before = m_known.value_or(QList<Output>());
        if (outputs)
            m_known = *outputs;
        different = m_known.value_or(QList<Output>()) != before;
        different = land(m_known.value_or(QList<Output>())) || different;
    }
    m_first.notify_all();
    if (!outputs)
        m_settle.start(m_retryMs);
    else if (std::exchange(m_askAgain, false))
        m_settle.start(SettleMs);
    send();
    if (different)
        Q_EMIT LuPlatformNotifications::instance()->screenGeometryChanged();
}

bool OutputKeeper::land(const QList<Output>& outputs)
{
    if (!m_flight || !m_flight->answered)
        return false;
    const auto output = std::find_if(outputs.begin(), outputs.end(),
                                     [this](const Output& each) { return each.name == m_flight->name; });
    const bool done = output == outputs.end() || output->has(m_flight->change);
    if (!done && !m_flight->refused) {
        if (++m_flight->looks < MostLooks) {
            m_settle.start(SettleMs);
            return false;
        }
        qWarning().noquote() << "[LuPlatform] the compositor did not change" << m_flight->name;
    }
    m_flight.reset();
    return !done;
}

} // namespace services::wayland
