// SPDX-License-Identifier: Apache-2.0
#include "XServer.h"

#include <xorg-server.h>

#include <xf86-input-inputtest-protocol.h>

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <poll.h>
#include <sstream>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

/// Not the wrapper of /usr/bin, which insists on a console.
constexpr const char* Program = "/usr/lib/xorg/Xorg";

/// In ms: a computer that compiles at the same time is slow.
constexpr int StartMs = 60'000;

std::string replaced(std::string text, const std::string& mark, const std::string& value)
{
    for (std::size_t at = 0; (at = text.find(mark, at)) != std::string::npos; at += value.size())
        text.replace(at, mark.size(), value);
    return text;
}

std::string contentOf(const std::string& file)
{
    std::ifstream stream(file);
    std::stringstream content;
    content << stream.rdbuf();
    return content.str();
}

std::string lastLines(const std::string& text, int count)
{
    std::size_t at = text.size();
    while (count-- > 0 && at != std::string::npos && at > 0)
        at = text.rfind('\n', at - 1);
    return at == std::string::npos ? text : text.substr(at);
}

} // namespace

std::string outputOf(const std::string& command)
{
    std::string output;
    FILE* pipe = popen(command.c_str(), "r");
    char buffer[4096];
    while (pipe && std::fgets(buffer, sizeof buffer, pipe))
        output += buffer;
    if (pipe)
        pclose(pipe);
    return output;
}

bool XServer::fail(const std::string& why)
{
    m_error = "Xorg with the dummy driver does not start: " + why + "\n" +
              lastLines(m_folder.empty() ? std::string() : contentOf(m_folder + "/out"), 15);
    return false;
}

bool XServer::prepare()
{
    std::string pattern = (std::filesystem::temp_directory_path() / "lumen-x-XXXXXX").string();
    if (!mkdtemp(pattern.data()))
        return fail("no temporary folder");
    m_folder = pattern;
    for (const char* needed : {"drivers/dummy_drv.so", "input/inputtest_drv.so"}) {
        if (!std::filesystem::exists(std::string("/usr/lib/xorg/modules/") + needed))
            return fail(std::string("there is no /usr/lib/xorg/modules/") + needed +
                        " (packages xserver-xorg-core, xserver-xorg-video-dummy)");
    }
    std::string text = contentOf(XORG_CONFIGURATION);
    text = replaced(text, "@MODULES@", XORG_MODULES);
    text = replaced(text, "@FOLDER@", m_folder);
    std::ofstream(m_folder + "/xorg.conf") << text;
    return true;
}

bool XServer::start(const Options& options)
{
    if (!prepare())
        return false;
    int number[2];
    if (pipe(number) != 0)
        return fail(std::strerror(errno));
    std::vector<std::string> arguments = {Program,
                                          "-displayfd",
                                          std::to_string(number[1]),
                                          "-config",
                                          m_folder + "/xorg.conf",
                                          "-logfile",
                                          m_folder + "/Xorg.log",
                                          "-nolisten",
                                          "tcp",
                                          "-noreset",
                                          "-novtswitch",
                                          "-sharevts"};
    arguments.insert(arguments.end(), options.arguments.begin(), options.arguments.end());
    std::vector<char*> argv;
    for (std::string& argument : arguments)
        argv.push_back(argument.data());
    argv.push_back(nullptr);
    const std::string out = m_folder + "/out";
    m_process = fork();
    if (m_process == 0) {
        // A test that is killed takes its server along.
        prctl(PR_SET_PDEATHSIG, SIGTERM);
        const int file = open(out.c_str(), O_WRONLY | O_CREAT, 0600);
        dup2(file, STDOUT_FILENO);
        dup2(file, STDERR_FILENO);
        close(number[0]);
        execv(Program, argv.data());
        _exit(127);
    }
    close(number[1]);
    const bool came = waitForNumber(number[0]);
    close(number[0]);
    if (!came)
        return fail(std::string(Program) + " gave no display number");
    setenv("DISPLAY", m_display.c_str(), 1);
    unsetenv("WAYLAND_DISPLAY");
    unsetenv("XAUTHORITY");
    if (!connectDevice("keyboard", &m_keyboard) || !connectDevice("pointer", &m_pointer))
        return fail("its input devices do not answer");
    // A key that a busy computer releases late must not count twice.
    if (std::system("xset r off") != 0)
        return fail("xset cannot switch off the repetition of keys");
    return resetScreens() || fail("xrandr cannot place its screens");
}

bool XServer::waitForNumber(int descriptor)
{
    std::string text;
    for (char c = 0; c != '\n';) {
        pollfd waiting = {descriptor, POLLIN, 0};
        if (poll(&waiting, 1, StartMs) <= 0 || read(descriptor, &c, 1) != 1)
            return false;
        text += c;
    }
    m_display = ":" + text.substr(0, text.size() - 1);
    return true;
}

void XServer::stop()
{
    for (int* device : {&m_keyboard, &m_pointer}) {
        if (*device >= 0)
            close(*device);
        *device = -1;
    }
    if (m_process > 0) {
        kill(m_process, SIGTERM);
        waitpid(m_process, nullptr, 0);
    }
    m_process = -1;
    if (!m_folder.empty())
        std::filesystem::remove_all(m_folder);
    m_folder.clear();
}

XServer::~XServer()
{
    stop();
}

bool XServer::resetScreens()
{
    static constexpr const char* modes[] = {"1920x1080", "1280x1024", "1024x768", "1280x720"};
    std::string command;
    for (const char* output : {"DUMMY1", "DUMMY2"}) {
        for (const char* mode : modes)
            command += std::string("xrandr --addmode ") + output + " " + mode + " && ";
    }
    command +=
        "xrandr --fb 4224x2160 --output DUMMY0 --mode 1920x1080 --rotate normal --scale 1x1 --pos 0x0 "
        "--primary "
        "--output DUMMY1 --mode 1280x1024 --rotate normal --scale 1x1 --pos 1920x0 "
        "--output DUMMY2 --mode 1024x768 --rotate normal --scale 1x1 --pos 3200x0 && xrandr --fb 4224x1080";
    return std::system(command.c_str()) == 0;
}

bool XServer::connectDevice(const std::string& name, int* descriptor)
{
    sockaddr_un address = {};
    address.sun_family = AF_UNIX;
    std::strncpy(address.sun_path, (m_folder + "/" + name).c_str(), sizeof address.sun_path - 1);
    *descriptor = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    if (connect(*descriptor, reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0)
        return false;
    const xf86ITEventClientVersion hello = {{sizeof hello, XF86IT_EVENT_CLIENT_VERSION},
                                            XF86IT_PROTOCOL_VERSION_MAJOR,
                                            XF86IT_PROTOCOL_VERSION_MINOR};
    xf86ITResponseServerVersion answer;
    return write(*descriptor, &hello, sizeof hello) == ssize_t(sizeof hello) &&
           read(*descriptor, &answer, sizeof answer) == ssize_t(sizeof answer);
}

// Returns when the server has taken the event into account.
void XServer::send(int descriptor, const void* data, unsigned size)
{
    const xf86ITEventWaitForSync wait = {{sizeof wait, XF86IT_EVENT_WAIT_FOR_SYNC}};
    xf86ITResponseSyncFinished finished;
    if (write(descriptor, data, size) != ssize_t(size) ||
        write(descriptor, &wait, sizeof wait) != ssize_t(sizeof wait) ||
        read(descriptor, &finished, sizeof finished) != ssize_t(sizeof finished))
        std::perror("XServer");
}

void XServer::key(int code, bool pressed)
{
    const xf86ITEventKey event = {{sizeof event, XF86IT_EVENT_KEY}, code, pressed};
    send(m_keyboard, &event, sizeof event);
}

void XServer::tap(int code)
{
    key(code, true);
    key(code, false);
}

void XServer::move(int x, int y, bool absolute)
{
    xf86ITEventMotion event = {};
    event.header.length = sizeof event;
    event.header.type = XF86IT_EVENT_MOTION;
    event.is_absolute = absolute;
    event.valuators.mask[0] = 3;
    event.valuators.valuators[0] = x;
    event.valuators.valuators[1] = y;
    send(m_pointer, &event, sizeof event);
}

void XServer::moveTo(int x, int y)
{
    move(x, y, true);
}

void XServer::moveBy(int x, int y)
{
    move(x, y, false);
}

void XServer::button(int number, bool pressed)
{
    xf86ITEventButton event = {};
    event.header.length = sizeof event;
    event.header.type = XF86IT_EVENT_BUTTON;
    event.button = number;
    event.is_press = pressed;
    send(m_pointer, &event, sizeof event);
}
