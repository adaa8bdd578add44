// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "services/pulse/PulseState.h"

#include <functional>
#include <memory>

namespace services {

/// The connection to the sound server (PulseAudio, or PipeWire's counterpart of it), on a thread of its own.
///
/// It connects, and connects again after the server has gone: after 0.1 s, 0.2 s ... up to 5 s. No server is
/// started. Every operation may be called from any thread and returns without waiting for the server.
class PulseConnection
{
public:
    /// Called on the connection's thread with each state that differs from the one before; the empty state
    /// while there is no server.
    using Listener = std::function<void(const PulseState& state)>;

    explicit PulseConnection(Listener listener);
    /// Ends the thread; the listener is not called any more once it returns.
    ~PulseConnection();

    /// Makes an output the default; an unknown name changes nothing.
    void setDefault(const QString& name);

    /// Sets an output's volume in percent, its loudest channel to that and the others in proportion, and
    /// lifts its mute unless the percentage is 0. Values for the same output replace each other on the way.
    void setVolume(const QString& name, int percent);

private:
    class Private;
    std::unique_ptr<Private> d;
};

} // namespace services
