// SPDX-License-Identifier: Apache-2.0
#include "UnixSignals.h"

#include <QDebug>
#include <QSocketNotifier>

#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace {

/// A signal handler may do nothing but write a byte here.
int signalPipe[2] = {-1, -1};

void writeByte(int)
{
    const char byte = 1;
    const ssize_t written = ::write(signalPipe[1], &byte, sizeof byte);
    (void)written; // a full pipe has woken the loop already
}

} // namespace

UnixSignals::UnixSignals(std::function<void()> action, QObject* parent)
    : QObject(parent), m_action(std::move(action))
{
    if (::pipe2(signalPipe, O_CLOEXEC | O_NONBLOCK) != 0) {
        qWarning() << "[UnixSignals] no pipe: signals end the program at once";
        return;
    }
    m_notifier = new QSocketNotifier(signalPipe[0], QSocketNotifier::Read, this);
    connect(m_notifier, &QSocketNotifier::activated, this, [this] {
        char bytes[16];
        while (::read(signalPipe[0], bytes, sizeof bytes) > 0) {
        }
        m_action();
    });
    struct sigaction handler = {};
    handler.sa_handler = writeByte;
    handler.sa_flags = SA_RESTART;
    sigemptyset(&handler.sa_mask);
    ::sigaction(SIGTERM, &handler, nullptr);
    ::sigaction(SIGINT, &handler, nullptr);
    std::signal(SIGPIPE, SIG_IGN);
}

UnixSignals::~UnixSignals()
{
    std::signal(SIGTERM, SIG_DFL);
    std::signal(SIGINT, SIG_DFL);
    for (int& end : signalPipe) {
        if (end >= 0)
            ::close(end);
        end = -1;
    }
}
