// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Keyboard.h"
#include "services/api/ClipboardKeysService.h"

#include <mutex>

namespace services::x11 {

/// Ctrl+C and Ctrl+V as from the keyboard, through the XTEST extension. Any thread.
class CopyPasteKeys : public ClipboardKeysService
{
public:
    CopyPasteKeys(std::shared_ptr<Connection> connection, std::shared_ptr<Keyboard> keyboard);

    void copy() override { stroke(Qt::Key_C); }
    void paste() override { stroke(Qt::Key_V); }

private:
    void stroke(Qt::Key key);
    void fake(xcb_keycode_t code, bool pressed) const;
    QList<xcb_keycode_t> heldModifiers() const;

    const std::shared_ptr<Connection> m_connection;
    const std::shared_ptr<Keyboard> m_keyboard;
    std::mutex m_stroking; ///< The keys of two strokes do not mix.
};

} // namespace services::x11
