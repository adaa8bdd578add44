// SPDX-License-Identifier: Apache-2.0
#include "KeyGrabs.h"

#include <QDebug>
#include <QKeySequence>

namespace services::x11 {

namespace {

/// Caps Lock and Num Lock do not make another combination.
constexpr std::uint16_t locks[] = {0, XCB_MOD_MASK_LOCK, XCB_MOD_MASK_2, XCB_MOD_MASK_LOCK | XCB_MOD_MASK_2};

} // namespace

KeyGrabs::KeyGrabs(EventSource& events, std::shared_ptr<Keyboard> keyboard)
    : m_events(events), m_keyboard(std::move(keyboard))
{
}

KeyGrabs::~KeyGrabs()
{
    set({});
}

void KeyGrabs::set(const QSet<QKeyCombination>& keys)
{
    if (keys != m_keys)
        replace(keys);
}

void KeyGrabs::renew()
{
    if (!m_keys.isEmpty())
        replace(QSet<QKeyCombination>(m_keys));
}

void KeyGrabs::replace(const QSet<QKeyCombination>& keys)
{
    const Connection& connection = m_events.connection();
    if (!m_keys.isEmpty())
        xcb_ungrab_key(connection, XCB_GRAB_ANY, connection.root(), XCB_MOD_MASK_ANY);
    m_keys = keys;
    for (const QKeyCombination each : keys)
        grab(each);
    // Who is given keys back may type them the next moment.
    connection.sync();
}

void KeyGrabs::grab(QKeyCombination keys)
{
    const Connection& connection = m_events.connection();
    const std::uint16_t state = Keyboard::stateOf(keys.keyboardModifiers());
    // Without a modifier the key would be lost to every program.
    if (state == 0)
        return;
    QList<xcb_void_cookie_t> cookies;
    const QList<xcb_keycode_t> codes = m_keyboard->codesOf(keys.key());
    for (const xcb_keycode_t code : codes) {
        for (const std::uint16_t lock : locks)
            cookies.append(xcb_grab_key_checked(connection, 0, connection.root(), std::uint16_t(state | lock),
                                                code, XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC));
    }
    bool taken = false;
    for (const xcb_void_cookie_t cookie : std::as_const(cookies))
        taken = Owned<xcb_generic_error_t>(xcb_request_check(connection, cookie)) || taken;
    if (taken)
        qInfo().noquote() << "[X11] another program keeps the shortcut"
                          << QKeySequence(keys).toString(QKeySequence::PortableText) << "for itself, too";
}

} // namespace services::x11
