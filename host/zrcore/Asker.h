// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "ZrCore/ZrAsker.h"

/// The queues' side of ZrAsker.
namespace zr {

/// What a job that is posted now is to carry: how many generations of jobs are a person's from it on, 0 for
/// none.
int generationsAsked();

/// A job runs for the life of this object that was posted with @p generations.
class RunningFor
{
public:
    explicit RunningFor(int generations);
    ~RunningFor();
    RunningFor(const RunningFor&) = delete;
    RunningFor& operator=(const RunningFor&) = delete;

private:
    const int m_outerRunning;
    const int m_outerAsking;
};

} // namespace zr
