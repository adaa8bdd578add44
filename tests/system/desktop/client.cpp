// SPDX-License-Identifier: Apache-2.0
// Another application's window: client NAME X Y WIDTH HEIGHT [LEFT RIGHT TOP BOTTOM]
// The last four are the shadow that it draws itself, in place of a frame.
// It tells on standard output what reaches it, one line each:
//   window ID                        once it is on the screen
//   press CODE STATE, release CODE STATE, button NUMBER, rect X Y WIDTH HEIGHT
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <unistd.h>
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

void tell(const xcb_generic_event_t& event, xcb_window_t window)
{
    switch (event.response_type & ~0x80) {
    case XCB_MAP_NOTIFY:
        std::printf("window %u\n", window);
        break;
    case XCB_KEY_PRESS:
    case XCB_KEY_RELEASE: {
        const auto& key = reinterpret_cast<const xcb_key_press_event_t&>(event);
        const bool pressed = (event.response_type & ~0x80) == XCB_KEY_PRESS;
        std::printf("%s %u %u\n", pressed ? "press" : "release", key.detail, key.state);
        break;
    }
    case XCB_BUTTON_PRESS:
        std::printf("button %u\n", reinterpret_cast<const xcb_button_press_event_t&>(event).detail);
        break;
    case XCB_CONFIGURE_NOTIFY: {
        const auto& place = reinterpret_cast<const xcb_configure_notify_event_t&>(event);
        std::printf("rect %d %d %u %u\n", place.x, place.y, place.width, place.height);
        break;
    }
    default:
        break;
    }
}

// No frame of the window manager's, and a shadow of that size within the window.
void drawOwnFrame(xcb_connection_t* connection, xcb_window_t window, char** shadow)
{
    std::uint32_t edges[4] = {};
    for (int i = 0; i < 4; ++i)
        edges[i] = std::uint32_t(std::atoi(shadow[i]));
    if (!(edges[0] | edges[1] | edges[2] | edges[3]))
        return;
    const xcb_atom_t motif = atom(connection, "_MOTIF_WM_HINTS");
    const std::uint32_t undecorated[5] = {2, 0, 0, 0, 0};
    xcb_change_property(connection, XCB_PROP_MODE_REPLACE, window, motif, motif, 32, 5, undecorated);
    xcb_change_property(connection, XCB_PROP_MODE_REPLACE, window, atom(connection, "_GTK_FRAME_EXTENTS"),
                        XCB_ATOM_CARDINAL, 32, 4, edges);
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 6 && argc != 10)
        return 2;
    std::setvbuf(stdout, nullptr, _IOLBF, 0);
    xcb_connection_t* connection = xcb_connect(nullptr, nullptr);
    if (xcb_connection_has_error(connection))
        return 1;
    const xcb_screen_t* screen = xcb_setup_roots_iterator(xcb_get_setup(connection)).data;
    const xcb_window_t window = xcb_generate_id(connection);
    const std::uint32_t values[] = {screen->white_pixel,
                                    XCB_EVENT_MASK_KEY_PRESS | XCB_EVENT_MASK_KEY_RELEASE |
                                        XCB_EVENT_MASK_BUTTON_PRESS | XCB_EVENT_MASK_STRUCTURE_NOTIFY};
    const int x = std::atoi(argv[2]);
    const int y = std::atoi(argv[3]);
    const int width = std::atoi(argv[4]);
    const int height = std::atoi(argv[5]);
    xcb_create_window(connection, XCB_COPY_FROM_PARENT, window, screen->root, std::int16_t(x),
                      std::int16_t(y), std::uint16_t(width), std::uint16_t(height), 0,
                      XCB_WINDOW_CLASS_INPUT_OUTPUT, screen->root_visual,
                      XCB_CW_BACK_PIXEL | XCB_CW_EVENT_MASK, values);

    const std::size_t length = std::strlen(argv[1]);
    xcb_change_property(connection, XCB_PROP_MODE_REPLACE, window, XCB_ATOM_WM_NAME, XCB_ATOM_STRING, 8,
                        std::uint32_t(length), argv[1]);
    // "name\0Name\0" with the same text twice.
    const std::unique_ptr<char[]> both(new char[2 * (length + 1)]);
    std::memcpy(both.get(), argv[1], length + 1);
    std::memcpy(both.get() + length + 1, argv[1], length + 1);
    xcb_change_property(connection, XCB_PROP_MODE_REPLACE, window, XCB_ATOM_WM_CLASS, XCB_ATOM_STRING, 8,
                        std::uint32_t(2 * (length + 1)), both.get());
    // The person's own place: a window manager keeps it.
    const std::uint32_t hints[18] = {1 | 2, std::uint32_t(x), std::uint32_t(y), std::uint32_t(width),
                                     std::uint32_t(height)};
    xcb_change_property(connection, XCB_PROP_MODE_REPLACE, window, XCB_ATOM_WM_NORMAL_HINTS,
                        XCB_ATOM_WM_SIZE_HINTS, 32, 18, hints);
    const std::uint32_t pid = std::uint32_t(getpid());
    xcb_change_property(connection, XCB_PROP_MODE_REPLACE, window, atom(connection, "_NET_WM_PID"),
                        XCB_ATOM_CARDINAL, 32, 1, &pid);
    if (argc == 10)
        drawOwnFrame(connection, window, argv + 6);
    xcb_map_window(connection, window);
    xcb_flush(connection);
    while (xcb_generic_event_t* event = xcb_wait_for_event(connection)) {
        tell(*event, window);
        std::free(event);
    }
    return 0;
}
