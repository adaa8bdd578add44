// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "EventSource.h"
#include "Keyboard.h"

#include <QSet>

namespace services::x11 {

/// Keeps key combinations from the application with the focus. GUI thread.
class KeyGrabs
{
public:
    KeyGrabs(EventSource& events, std::shared_ptr<Keyboard> keyboard);
    ~KeyGrabs();

    /// Grabs these and no others; the server has taken it into account on return. A combination that another
    /// program has grabbed stays with that program.
    void set(const QSet<QKeyCombination>& keys);

    /// Grabs them anew, after the keyboard's layout changed.
    void renew();

private:
    void replace(const QSet<QKeyCombination>& keys);
    void grab(QKeyCombination keys);

    EventSource& m_events;
    const std::shared_ptr<Keyboard> m_keyboard;
    QSet<QKeyCombination> m_keys;
};

} // namespace services::x11
