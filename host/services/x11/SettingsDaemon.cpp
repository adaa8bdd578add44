// SPDX-License-Identifier: Apache-2.0
#include "SettingsDaemon.h"

#include "Xsettings.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>
#include <QDebug>
#include <QFile>

#include <algorithm>

namespace services::x11 {

namespace {

/// Where a desktop keeps the size of its texts.
struct Daemon
{
    const char* process; ///< As the system names it, which is 15 characters at most.
    const char* schema;  ///< Of gsettings; null for xfconf.
    const char* key;
    double unit; ///< In dots per inch, on a screen whose windows are not scaled.
    double least;
    double most;
};

constexpr Daemon daemons[] = {
    {"gsd-xsettings", "org.gnome.desktop.interface", "text-scaling-factor", 96, 0.5, 3},
    {"csd-xsettings", "org.cinnamon.desktop.interface", "text-scaling-factor", 96, 0.5, 3},
    {"mate-settings-d", "org.mate.font-rendering", "dpi", 1, 50, 500},
    {"xfsettingsd", nullptr, nullptr, 1, 0, 0},
};

constexpr int EndMs = 2000;

QByteArray nameOf(unsigned long pid)
{
    QFile file(QStringLiteral("/proc/%1/comm").arg(pid));
    return pid && file.open(QIODevice::ReadOnly) ? file.readAll().trimmed() : QByteArray();
}

} // namespace

SettingsDaemon::SettingsDaemon(std::shared_ptr<Connection> requests)
    : m_requests(std::move(requests)), m_windows(m_requests)
{
    m_gsettings.setProcessChannelMode(QProcess::MergedChannels);
    m_gsettings.setProgram(QStringLiteral("gsettings"));
    const auto next = [this] {
        if (!m_next.isEmpty())
            runGsettings(std::exchange(m_next, {}));
    };
    connect(&m_gsettings, &QProcess::finished, this, [this, next](int code) {
        const QByteArray output = m_gsettings.readAll().trimmed();
        if (code != 0)
            qWarning().noquote() << "[X11] the desktop's size of texts could not be set:" << output;
        next();
    });
    connect(&m_gsettings, &QProcess::errorOccurred, this, [this, next](QProcess::ProcessError error) {
        if (error != QProcess::FailedToStart)
            return;
        qWarning().noquote() << "[X11] the desktop's size of texts could not be set:"
                             << m_gsettings.errorString();
        next();
    });
}

SettingsDaemon::~SettingsDaemon()
{
    m_next.clear();
    m_gsettings.disconnect(this);
    if (m_gsettings.state() != QProcess::NotRunning)
        m_gsettings.waitForFinished(EndMs);
}

void SettingsDaemon::setDpi(int dpi)
{
    const Owned<xcb_get_selection_owner_reply_t> owner(xcb_get_selection_owner_reply(
        *m_requests, xcb_get_selection_owner(*m_requests, m_requests->atom(XsettingsSelection)), nullptr));
    if (!owner || owner->owner == XCB_WINDOW_NONE)
        return;
    const QByteArray process = nameOf(m_windows.pidOf(owner->owner));
    const auto daemon = std::find_if(std::begin(daemons), std::end(daemons),
                                     [&](const Daemon& each) { return process == each.process; });
    if (daemon == std::end(daemons))
        return;
    if (!daemon->schema) {
        QMetaObject::invokeMethod(this, [this, dpi] { tellXfconf(dpi); });
        return;
    }
    // These multiply the size of texts with that of windows.
    const int scale =
        std::max(1, xsettingsInteger(m_requests->bytes(owner->owner, m_requests->atom(XsettingsSettings)),
                                     QByteArrayLiteral("Gdk/WindowScalingFactor"))
                        .value_or(1));
    const double value = std::clamp(dpi / daemon->unit / scale, daemon->least, daemon->most);
    const QStringList arguments = {QStringLiteral("set"), QLatin1String(daemon->schema),
                                   QLatin1String(daemon->key), QString::number(value)};
    QMetaObject::invokeMethod(this, [this, arguments] { runGsettings(arguments); });
}

void SettingsDaemon::tellXfconf(int dpi)
{
    const QString name = QStringLiteral("org.xfce.Xfconf");
    QDBusMessage message = QDBusMessage::createMethodCall(name, QStringLiteral("/org/xfce/Xfconf"), name,
                                                          QStringLiteral("SetProperty"));
    message.setArguments(
        {QStringLiteral("xsettings"), QStringLiteral("/Xft/DPI"), QVariant::fromValue(QDBusVariant(dpi))});
    auto* watcher = new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(message), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [watcher] {
        const QDBusPendingReply<> reply = *watcher;
        if (reply.isError())
            qWarning().noquote() << "[X11] the desktop's size of texts could not be set:"
                                 << reply.error().message();
        watcher->deleteLater();
    });
}

void SettingsDaemon::runGsettings(const QStringList& arguments)
{
    if (m_gsettings.state() != QProcess::NotRunning) {
        m_next = arguments;
        return;
    }
    m_gsettings.setArguments(arguments);
    m_gsettings.start();
}

} // namespace services::x11
