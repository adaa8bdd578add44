// SPDX-License-Identifier: Apache-2.0
#include "DisplayServer.h"

#include <QByteArray>
#include <QString>

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <cstring>

namespace {

bool answers(const QByteArray& socketPath)
{
    sockaddr_un address = {};
    if (socketPath.isEmpty() || size_t(socketPath.size()) >= sizeof address.sun_path)
        return false;
    address.sun_family = AF_UNIX;
    std::memcpy(address.sun_path, socketPath.constData(), size_t(socketPath.size()));
    const int descriptor = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    if (descriptor < 0)
        return false;
    const bool connected =
        ::connect(descriptor, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0;
    ::close(descriptor);
    return connected;
}

bool waylandAnswers()
{
    const QByteArray display = qgetenv("WAYLAND_DISPLAY");
    if (display.isEmpty())
        return false;
    return answers(display.startsWith('/') ? display : qgetenv("XDG_RUNTIME_DIR") + '/' + display);
}

bool x11Answers()
{
    const QByteArray display = qgetenv("DISPLAY");
    const qsizetype colon = display.lastIndexOf(':');
    if (colon < 0)
        return false;
    if (colon > 0 && !display.startsWith("unix:"))
        return true; // on another computer: only the connection itself can tell
    QByteArray number = display.mid(colon + 1);
    number.truncate(number.indexOf('.') < 0 ? number.size() : number.indexOf('.'));
    // A server may listen in the file system or, on Linux, only under the abstract name of the same path.
    const QByteArray path = "/tmp/.X11-unix/X" + number;
    return answers(path);
}

} // namespace

bool displayServerAnswers()
{
    return waylandAnswers() || x11Answers();
}
