// SPDX-License-Identifier: Apache-2.0
// The settings daemon of a desktop, as far as other programs see it: manager SCALE
// It owns the selection that such a daemon owns, tells how many times larger windows are, and says "ready".
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <xcb/xcb.h>

namespace {

xcb_atom_t atom(xcb_connection_t* connection, const char* name)
{
    xcb_intern_atom_reply_t* reply = xcb_intern_atom_reply(
        connection, xcb_intern_atom(connection, 0, std::uint16_t(std::strlen(name)), name), nullptr);
    const xcb_atom_t result = reply->atom;
    std::free(reply);
    return result;
}

template <class Number>
void add(std::string* text, Number number)
{
    for (std::size_t i = 0; i < sizeof number; ++i)
        text->push_back(char(number >> (8 * i)));
}

// Lowest byte first, one integer.
std::string settings(std::uint32_t scale)
{
    const std::string name = "Gdk/WindowScalingFactor"; // one short of whole words
    std::string text(4, '\0');
    add(&text, std::uint32_t(1));
    add(&text, std::uint32_t(1));
    add(&text, std::uint16_t(0));
    add(&text, std::uint16_t(name.size()));
    text += name + '\0';
    add(&text, std::uint32_t(1));
    add(&text, scale);
    return text;
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 2)
        return 2;
    xcb_connection_t* connection = xcb_connect(nullptr, nullptr);
    if (xcb_connection_has_error(connection))
        return 1;
    const xcb_screen_t* screen = xcb_setup_roots_iterator(xcb_get_setup(connection)).data;
    const xcb_window_t window = xcb_generate_id(connection);
    xcb_create_window(connection, XCB_COPY_FROM_PARENT, window, screen->root, -1, -1, 1, 1, 0,
                      XCB_WINDOW_CLASS_INPUT_OUTPUT, screen->root_visual, 0, nullptr);
    const std::string text = settings(std::uint32_t(std::atoi(argv[1])));
    const xcb_atom_t property = atom(connection, "_XSETTINGS_SETTINGS");
    xcb_change_property(connection, XCB_PROP_MODE_REPLACE, window, property, property, 8,
                        std::uint32_t(text.size()), text.data());
    const xcb_atom_t selection = atom(connection, "_XSETTINGS_S0");
    xcb_set_selection_owner(connection, window, selection, XCB_CURRENT_TIME);
    xcb_get_selection_owner_reply_t* owner =
        xcb_get_selection_owner_reply(connection, xcb_get_selection_owner(connection, selection), nullptr);
    if (!owner || owner->owner != window)
        return 1;
    std::free(owner);
    std::puts("ready");
    std::fflush(stdout);
    while (xcb_generic_event_t* event = xcb_wait_for_event(connection))
        std::free(event);
    return 0;
}
