// SPDX-License-Identifier: Apache-2.0
#include "zrcore/Asker.h"

#include "zrcore/MainQueue.h"

#include <atomic>
#include <chrono>

namespace {

using SteadyClock = std::chrono::steady_clock;

/// How long an input counts. A person lives in real time, whatever the program's clock shows.
constexpr std::chrono::milliseconds InputLasts{1000};

/// The job that a person asked for, what it asks for, and what that asks for.
constexpr int Generations = 3;

constexpr int NotSaid = -1;

thread_local int t_asking = NotSaid; ///< A ZrAsker::Kind of the innermost scope.
thread_local int t_running = 0;      ///< Generations of the job that runs here.

std::atomic<SteadyClock::rep> g_inputUntil{0};

} // namespace

void ZrAsker::noteInput()
{
    g_inputUntil = (SteadyClock::now() + InputLasts).time_since_epoch().count();
}

bool ZrAsker::isAsking()
{
    if (t_asking != NotSaid)
        return t_asking == Person;
    return SteadyClock::now().time_since_epoch().count() < g_inputUntil && zr::onMainThread();
}

bool ZrAsker::isAskedFor()
{
    return isAsking() || (t_asking == NotSaid && t_running > 0);
}

ZrAsker::Scope::Scope(Kind kind) : m_outer(t_asking)
{
    t_asking = kind;
}

ZrAsker::Scope::~Scope()
{
    t_asking = m_outer;
}

int zr::generationsAsked()
{
    if (ZrAsker::isAsking())
        return Generations;
    return t_asking == NotSaid && t_running > 0 ? t_running - 1 : 0;
}

zr::RunningFor::RunningFor(int generations) : m_outerRunning(t_running), m_outerAsking(t_asking)
{
    t_running = generations;
    t_asking = NotSaid;
}

zr::RunningFor::~RunningFor()
{
    t_running = m_outerRunning;
    t_asking = m_outerAsking;
}
