// SPDX-License-Identifier: Apache-2.0
#include "CopyPasteKeys.h"

#include <QDebug>

#include <xcb/xtest.h>

namespace services::x11 {

CopyPasteKeys::CopyPasteKeys(std::shared_ptr<Connection> connection, std::shared_ptr<Keyboard> keyboard)
    : m_connection(std::move(connection)), m_keyboard(std::move(keyboard))
{
}

void CopyPasteKeys::fake(xcb_keycode_t code, bool pressed) const
{
    xcb_test_fake_input(*m_connection, pressed ? XCB_KEY_PRESS : XCB_KEY_RELEASE, code, XCB_CURRENT_TIME,
                        XCB_WINDOW_NONE, 0, 0, 0);
}

QList<xcb_keycode_t> CopyPasteKeys::heldModifiers() const
{
    const Owned<xcb_query_keymap_reply_t> down(
        xcb_query_keymap_reply(*m_connection, xcb_query_keymap(*m_connection), nullptr));
    QList<xcb_keycode_t> held;
    if (!down)
        return held;
    const QList<xcb_keycode_t> all = m_keyboard->modifierCodes();
    for (const xcb_keycode_t code : all) {
        if (down->keys[code / 8] & (1 << (code % 8)))
            held.append(code);
    }
    return held;
}

void CopyPasteKeys::stroke(Qt::Key key)
{
    const std::lock_guard lock(m_stroking);
    QList<xcb_keycode_t> control;
    const QList<xcb_keycode_t> modifiers = m_keyboard->modifierCodes();
    for (const xcb_keycode_t code : modifiers) {
        if (m_keyboard->meaningOf(code).own == Qt::ControlModifier)
            control.append(code);
    }
    const QList<xcb_keycode_t> codes = m_keyboard->codesOf(key);
    if (!m_connection->opcode(&xcb_test_id) || control.isEmpty() || codes.isEmpty()) {
        qWarning() << "[X11] copy and paste keys cannot be sent on this X server";
        return;
    }
    // The keys of the shortcut that led here may still be held: with them it would be another stroke.
    const QList<xcb_keycode_t> held = heldModifiers();
    for (const xcb_keycode_t code : held)
        fake(code, false);
    // What was pressed for the person at an earlier stroke is still down for XTEST, whose next press of it
    // would be dropped as a repetition.
    fake(control.first(), false);
    fake(control.first(), true);
    fake(codes.first(), true);
    fake(codes.first(), false);
    fake(control.first(), false);
    for (const xcb_keycode_t code : held)
        fake(code, true);
    m_connection->sync();
}

} // namespace services::x11
