// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Connection.h"

#include <QKeyCombination>
#include <QList>

#include <mutex>

struct xkb_keymap;

namespace services::x11 {

/// What the keys of the keyboard stand for in its present layouts. Any thread.
class Keyboard
{
public:
    /// A key as an action names it.
    struct Meaning
    {
        Qt::Key key = Qt::Key_unknown;             ///< Unknown for a modifier key, too.
        Qt::KeyboardModifier own = Qt::NoModifier; ///< The modifier that the key itself is.
    };

    explicit Keyboard(std::shared_ptr<Connection> connection);
    ~Keyboard();
    Keyboard(const Keyboard&) = delete;
    Keyboard& operator=(const Keyboard&) = delete;

    /// Asks the server anew, after its keyboard changed.
    void reload();

    /// @p state is that of a key event; only its layout counts, not its modifiers: "Shift+1" is the key 1.
    Meaning meaningOf(xcb_keycode_t code, std::uint16_t state = 0) const;

    /// Keys that mean a Qt key in the first layout that has it.
    QList<xcb_keycode_t> codesOf(Qt::Key key) const;

    /// Keys that hold a modifier, as the server has them.
    QList<xcb_keycode_t> modifierCodes() const;

    static Qt::KeyboardModifiers modifiersOf(std::uint16_t state);
    static std::uint16_t stateOf(Qt::KeyboardModifiers modifiers);

private:
    Meaning meaningIn(xcb_keycode_t code, unsigned layout) const; // with the lock held

    const std::shared_ptr<Connection> m_connection;
    mutable std::mutex m_mutex;
    xkb_keymap* m_keymap = nullptr;
};

} // namespace services::x11
