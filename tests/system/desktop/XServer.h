// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <sys/types.h>
#include <vector>

/// An Xorg of a test's own with three screens that exist in memory only, a keyboard and a pointer. It needs
/// no Qt, since it has to stand before the application object does.
class XServer
{
public:
    struct Options
    {
        std::vector<std::string> arguments = {}; ///< More of the server's.
    };

    XServer() = default;
    ~XServer();
    XServer(const XServer&) = delete;
    XServer& operator=(const XServer&) = delete;

    /// Starts it on a free display number and sets DISPLAY. False with the reason in error().
    bool start(const Options& options);
    bool start() { return start(Options()); }
    void stop();

    const std::string& error() const { return m_error; }
    const std::string& display() const { return m_display; }
    /// A folder for the test's files; gone with the server.
    const std::string& folder() const { return m_folder; }

    /// DUMMY0, DUMMY1, DUMMY2 side by side from the left, unrotated, at 1920x1080, 1280x1024, 1024x768.
    bool resetScreens();

    /// Keys by X key codes, which are those of evdev plus 8.
    void key(int code, bool pressed);
    void tap(int code);
    /// Puts the pointer to a place on the desktop, or moves the mouse by steps (which the server
    /// accelerates).
    void moveTo(int x, int y);
    void moveBy(int x, int y);
    void button(int number, bool pressed);

private:
    bool prepare();
    bool waitForNumber(int descriptor);
    bool connectDevice(const std::string& name, int* descriptor);
    void send(int descriptor, const void* data, unsigned size);
    void move(int x, int y, bool absolute);
    bool fail(const std::string& why);

    pid_t m_process = -1;
    int m_keyboard = -1;
    int m_pointer = -1;
    std::string m_display;
    std::string m_folder;
    std::string m_error;
};

/// What a shell command writes on standard output.
std::string outputOf(const std::string& command);
