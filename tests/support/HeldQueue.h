// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <LuShared/LuMonitorModel.h>
#include <ZrCore/ZrDispatch.h>

#include <QSemaphore>

#include <memory>

/// Holds a model's queue for the life of the object: what is asked for meanwhile waits.
class HeldQueue
{
public:
    explicit HeldQueue(LuMonitorModel& model)
    {
        model.dispatch()->post(nullptr, [state = m_state] {
            state->started.release();
            state->gate.acquire();
        });
        m_state->started.acquire();
    }
    ~HeldQueue() { m_state->gate.release(); }

private:
    struct State
    {
        QSemaphore started;
        QSemaphore gate;
    };
    std::shared_ptr<State> m_state = std::make_shared<State>();
};
