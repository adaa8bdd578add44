// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "ActiveApplication.h"
#include "DragWatch.h"
#include "KeyGrabs.h"
#include "KeyRecorder.h"
#include "KeyRepeats.h"
#include "Placement.h"
#include "ScreenWatch.h"
#include "services/api/ApplicationWindows.h"
#include "services/api/DesktopEvents.h"

#include <QObject>

namespace services::x11 {

/// Keys, foreground and dragged windows of an X11 desktop, and the windows of its applications.
///
/// The keys come from the RECORD extension. Without it those that are grabbed for the program's own actions
/// still come.
class Events : public QObject, public DesktopEvents, public ApplicationWindows
{
public:
    Events(std::shared_ptr<EventSource> events, std::shared_ptr<Connection> requests,
           std::shared_ptr<Keyboard> keyboard, std::shared_ptr<RawInput> input);
    ~Events() override;

    void setKeyHandler(KeyHandler handler) override { m_handler = std::move(handler); }
    void setActionKeys(const QSet<QKeyCombination>& keys) override;
    bool hearsEveryKey() const override { return m_recorder != nullptr; }
    void start() override;
    void stop() override;

    QStringList applicationNames(unsigned long pid) const override { return m_windows.classesOf(pid); }
    void setGeometry(unsigned long pid, const QRectF& geometry) override;

private:
    void handle(const xcb_generic_event_t& event);
    void take(const KeyRecorder::Stroke& stroke);
    void raise(Qt::KeyboardModifiers modifiers, Qt::Key key, bool repeated);

    const std::shared_ptr<EventSource> m_events;
    const std::shared_ptr<Keyboard> m_keyboard;
    const std::shared_ptr<RawInput> m_input;
    const WindowList m_windows;
    ScreenWatch m_screens;
    Placement m_placement;
    KeyGrabs m_grabs;
    KeyHandler m_handler;
    QSet<QKeyCombination> m_actionKeys;
    KeyRepeats m_repeats;
    EventSource::Id m_listener = 0;
    bool m_started = false;
    std::unique_ptr<KeyRecorder> m_recorder;
    std::unique_ptr<ActiveApplication> m_active;
    std::unique_ptr<DragWatch> m_drags;
};

} // namespace services::x11
