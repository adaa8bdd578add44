// SPDX-License-Identifier: Apache-2.0
#include "Keyboard.h"

#include <QChar>
#include <QDebug>

#include <algorithm>
#include <xkbcommon/xkbcommon-keysyms.h>
#include <xkbcommon/xkbcommon-x11.h>

namespace services::x11 {

namespace {

struct NamedKey
{
    xkb_keysym_t symbol;
    Qt::Key key;
};

constexpr NamedKey namedKeys[] = {
    // clang-format off
    {XKB_KEY_space,        Qt::Key_Space},
    {XKB_KEY_Left,         Qt::Key_Left},
    {XKB_KEY_Up,           Qt::Key_Up},
    {XKB_KEY_Right,        Qt::Key_Right},
    {XKB_KEY_Down,         Qt::Key_Down},
    {XKB_KEY_Escape,       Qt::Key_Escape},
    {XKB_KEY_Tab,          Qt::Key_Tab},
    {XKB_KEY_ISO_Left_Tab, Qt::Key_Backtab},
    {XKB_KEY_BackSpace,    Qt::Key_Backspace},
    {XKB_KEY_Return,       Qt::Key_Return},
    {XKB_KEY_KP_Enter,     Qt::Key_Enter},
    {XKB_KEY_Insert,       Qt::Key_Insert},
    {XKB_KEY_Delete,       Qt::Key_Delete},
    {XKB_KEY_Home,         Qt::Key_Home},
    {XKB_KEY_End,          Qt::Key_End},
    {XKB_KEY_Page_Up,      Qt::Key_PageUp},
    {XKB_KEY_Page_Down,    Qt::Key_PageDown},
    {XKB_KEY_Pause,        Qt::Key_Pause},
    {XKB_KEY_Print,        Qt::Key_Print},
    {XKB_KEY_Menu,         Qt::Key_Menu},
    {XKB_KEY_Caps_Lock,    Qt::Key_CapsLock},
    {XKB_KEY_Num_Lock,     Qt::Key_NumLock},
    {XKB_KEY_Scroll_Lock,  Qt::Key_ScrollLock},
    {XKB_KEY_XF86AudioRaiseVolume,   Qt::Key_VolumeUp},
    {XKB_KEY_XF86AudioLowerVolume,   Qt::Key_VolumeDown},
    {XKB_KEY_XF86AudioMute,          Qt::Key_VolumeMute},
    {XKB_KEY_XF86MonBrightnessUp,    Qt::Key_MonBrightnessUp},
    {XKB_KEY_XF86MonBrightnessDown,  Qt::Key_MonBrightnessDown},
    // clang-format on
};

struct ModifierKey
{
    xkb_keysym_t symbol;
    Qt::KeyboardModifier modifier;
};

constexpr ModifierKey modifierKeys[] = {
    // clang-format off
    {XKB_KEY_Shift_L,   Qt::ShiftModifier},   {XKB_KEY_Shift_R,   Qt::ShiftModifier},
    {XKB_KEY_Control_L, Qt::ControlModifier}, {XKB_KEY_Control_R, Qt::ControlModifier},
    {XKB_KEY_Alt_L,     Qt::AltModifier},     {XKB_KEY_Alt_R,     Qt::AltModifier},
    {XKB_KEY_Meta_L,    Qt::MetaModifier},    {XKB_KEY_Meta_R,    Qt::MetaModifier},
    {XKB_KEY_Super_L,   Qt::MetaModifier},    {XKB_KEY_Super_R,   Qt::MetaModifier},
    {XKB_KEY_ISO_Level3_Shift, Qt::GroupSwitchModifier},
    // clang-format on
};

struct StateBit
{
    std::uint16_t mask;
    Qt::KeyboardModifier modifier;
};

constexpr StateBit stateBits[] = {
    {XCB_MOD_MASK_SHIFT, Qt::ShiftModifier},
    {XCB_MOD_MASK_CONTROL, Qt::ControlModifier},
    {XCB_MOD_MASK_1, Qt::AltModifier},
    {XCB_MOD_MASK_4, Qt::MetaModifier},
};

constexpr int GroupShift = 13;

Qt::Key keyOf(xkb_keysym_t symbol)
{
    if (symbol >= XKB_KEY_F1 && symbol <= XKB_KEY_F35)
        return Qt::Key(Qt::Key_F1 + int(symbol - XKB_KEY_F1));
    if (symbol >= XKB_KEY_KP_0 && symbol <= XKB_KEY_KP_9)
        return Qt::Key(Qt::Key_0 + int(symbol - XKB_KEY_KP_0));
    for (const NamedKey& named : namedKeys) {
        if (named.symbol == symbol)
            return named.key;
    }
    // Latin-1 is the same in both.
    if (symbol > XKB_KEY_space && symbol <= 0xff)
        return Qt::Key(QChar(char16_t(symbol)).toUpper().unicode());
    return Qt::Key_unknown;
}

bool isDigit(Qt::Key key)
{
    return key >= Qt::Key_0 && key <= Qt::Key_9;
}

bool isLetter(Qt::Key key)
{
    return key >= Qt::Key_A && key <= Qt::Key_Z;
}

} // namespace

Keyboard::Keyboard(std::shared_ptr<Connection> connection) : m_connection(std::move(connection))
{
    reload();
}

Keyboard::~Keyboard()
{
    xkb_keymap_unref(m_keymap);
}

void Keyboard::reload()
{
    const std::lock_guard lock(m_mutex);
    const std::unique_ptr<xkb_context, decltype(&xkb_context_unref)> context(
        xkb_context_new(XKB_CONTEXT_NO_FLAGS), &xkb_context_unref);
    xkb_keymap* keymap = nullptr;
    if (context && xkb_x11_setup_xkb_extension(
                       *m_connection, XKB_X11_MIN_MAJOR_XKB_VERSION, XKB_X11_MIN_MINOR_XKB_VERSION,
                       XKB_X11_SETUP_XKB_EXTENSION_NO_FLAGS, nullptr, nullptr, nullptr, nullptr)) {
        keymap = xkb_x11_keymap_new_from_device(context.get(), *m_connection,
                                                xkb_x11_get_core_keyboard_device_id(*m_connection),
                                                XKB_KEYMAP_COMPILE_NO_FLAGS);
    }
    if (!keymap) {
        qWarning() << "[X11] the X server tells no keyboard layout: no keys";
        return;
    }
    xkb_keymap_unref(m_keymap);
    m_keymap = keymap;
}

Keyboard::Meaning Keyboard::meaningIn(xcb_keycode_t code, unsigned layout) const
{
    const auto symbolAt = [&](unsigned level) {
        const xkb_keysym_t* symbols = nullptr;
        const int count = xkb_keymap_key_get_syms_by_level(m_keymap, code, layout, level, &symbols);
        return count > 0 ? symbols[0] : xkb_keysym_t(XKB_KEY_NoSymbol);
    };
    const xkb_keysym_t symbol = symbolAt(0);
    for (const ModifierKey& each : modifierKeys) {
        if (each.symbol == symbol)
            return {Qt::Key_unknown, each.modifier};
    }
    const Qt::Key key = keyOf(symbol);
    // Layouts with the digits above, such as the French one, and the digits of the number pad.
    if (const Qt::Key above = keyOf(symbolAt(1)); isDigit(above) && !isLetter(key) && key != Qt::Key_Space)
        return {above, Qt::NoModifier};
    return {key, Qt::NoModifier};
}

Keyboard::Meaning Keyboard::meaningOf(xcb_keycode_t code, std::uint16_t state) const
{
    const std::lock_guard lock(m_mutex);
    if (!m_keymap)
        return {};
    const unsigned count = xkb_keymap_num_layouts_for_key(m_keymap, code);
    if (count == 0)
        return {};
    const unsigned present = std::min<unsigned>((state >> GroupShift) & 3, count - 1);
    Meaning meaning = meaningIn(code, present);
    // A layout without Latin letters: the key's Latin letter is in another one.
    for (unsigned layout = 0; layout < count && meaning.key == Qt::Key_unknown && !meaning.own; ++layout)
        meaning = meaningIn(code, layout);
    return meaning;
}

QList<xcb_keycode_t> Keyboard::codesOf(Qt::Key key) const
{
    const std::lock_guard lock(m_mutex);
    QList<xcb_keycode_t> codes;
    if (!m_keymap || key == Qt::Key_unknown)
        return codes;
    for (unsigned layout = 0; codes.isEmpty() && layout < xkb_keymap_num_layouts(m_keymap); ++layout) {
        for (xkb_keycode_t code = xkb_keymap_min_keycode(m_keymap);
             code <= std::min<xkb_keycode_t>(xkb_keymap_max_keycode(m_keymap), 255); ++code) {
            if (layout < xkb_keymap_num_layouts_for_key(m_keymap, code) &&
                meaningIn(xcb_keycode_t(code), layout).key == key)
                codes.append(xcb_keycode_t(code));
        }
    }
    return codes;
}

QList<xcb_keycode_t> Keyboard::modifierCodes() const
{
    const Owned<xcb_get_modifier_mapping_reply_t> reply(
        xcb_get_modifier_mapping_reply(*m_connection, xcb_get_modifier_mapping(*m_connection), nullptr));
    QList<xcb_keycode_t> codes;
    if (!reply)
        return codes;
    const xcb_keycode_t* all = xcb_get_modifier_mapping_keycodes(reply.get());
    for (int i = 0; i < xcb_get_modifier_mapping_keycodes_length(reply.get()); ++i) {
        // Caps Lock and Num Lock are switched, not held.
        const Meaning meaning = all[i] ? meaningOf(all[i]) : Meaning();
        if (meaning.own && !codes.contains(all[i]))
            codes.append(all[i]);
    }
    return codes;
}

Qt::KeyboardModifiers Keyboard::modifiersOf(std::uint16_t state)
{
    Qt::KeyboardModifiers modifiers;
    for (const StateBit& bit : stateBits) {
        if (state & bit.mask)
            modifiers |= bit.modifier;
    }
    return modifiers;
}

std::uint16_t Keyboard::stateOf(Qt::KeyboardModifiers modifiers)
{
    std::uint16_t state = 0;
    for (const StateBit& bit : stateBits) {
        if (modifiers & bit.modifier)
            state |= bit.mask;
    }
    return state;
}

} // namespace services::x11
