// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Connection.h"

#include <QObject>

#include <functional>
#include <mutex>
#include <thread>
#include <vector>

namespace services::x11 {

/// Hears the keys of the keyboard, whichever window has the focus, through the RECORD extension on a thread
/// of its own. GUI thread.
class KeyRecorder : public QObject
{
public:
    struct Stroke
    {
        bool pressed = false;
        xcb_keycode_t code = 0;
        std::uint16_t state = 0; ///< Modifiers and layout before the stroke.
        std::uint32_t time = 0;
    };
    /// Called on the GUI thread with each stroke. Strokes are kept nowhere.
    using Receiver = std::function<void(const Stroke& stroke)>;

    /// Null, with a line in the log, if the server does not offer it.
    static std::unique_ptr<KeyRecorder> start(Receiver receiver);
    ~KeyRecorder() override;

protected:
    bool event(QEvent* event) override;

private:
    explicit KeyRecorder(Receiver receiver) : m_receiver(std::move(receiver)) {}
    bool begin();
    void record();
    void take(const std::uint8_t* data, int length);

    const Receiver m_receiver;
    std::shared_ptr<Connection> m_control;
    std::shared_ptr<Connection> m_data; ///< The server answers on it as long as the recording goes on.
    std::uint32_t m_context = 0;
    std::thread m_thread;
    std::mutex m_mutex;
    std::vector<Stroke> m_strokes; ///< On their way to the GUI thread.
};

} // namespace services::x11
