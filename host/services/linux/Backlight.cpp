// SPDX-License-Identifier: Apache-2.0
#include "services/linux/Backlight.h"

#include <LuShared/LuPlatformNotifications.h>
#include <PanelCore/MonitorInfo.h>
#include <ZrCore/ZrDispatch.h>

#include "services/linux/SysfsBacklight.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDebug>
#include <QHash>
#include <QObject>
#include <QSocketNotifier>
#include <QThread>

#include <cmath>
#include <libudev.h>
#include <mutex>

namespace services {

namespace {

struct Release
{
    void operator()(udev* context) const { udev_unref(context); }
    void operator()(udev_monitor* monitor) const { udev_monitor_unref(monitor); }
    void operator()(udev_device* device) const { udev_device_unref(device); }
};

class LinuxBacklight : public QObject, public BacklightService
{
    Q_OBJECT

public:
    explicit LinuxBacklight(const QDBusConnection& bus) : m_bus(bus) {}

    double brightness(const MonitorInfo& panel) const override;
    void setBrightness(const MonitorInfo& panel, double brightness) override;
    void watch(const MonitorInfo& panel) override;

private:
    struct Request
    {
        SysfsBacklight device;
        int value = 0;
    };

    void send();
    void finish(const QDBusMessage& reply, const Request& request);
    void watchConnector(const QString& connector);
    void startUdev();
    void readUdev();
    void look(const QString& connector);

    QDBusConnection m_bus;
    mutable std::mutex m_mutex;
    // What is asked for and not yet done, by the driver's name.
    QHash<QString, Request> m_wanted;
    // GUI thread only from here on.
    bool m_sending = false;
    bool m_warned = false;
    QHash<QString, int> m_seen; ///< Last step seen, by the panel's connector.
    std::unique_ptr<udev, Release> m_udev;
    std::unique_ptr<udev_monitor, Release> m_monitor;
    std::unique_ptr<QSocketNotifier> m_notifier;
};

double LinuxBacklight::brightness(const MonitorInfo& panel) const
{
    const auto device = findBacklight(panel.nativeHandle());
    if (!device)
        return 0;
    {
        const std::lock_guard lock(m_mutex);
        if (const auto wanted = m_wanted.constFind(device->name); wanted != m_wanted.constEnd())
            return double(wanted->value) / device->maximum;
    }
    return double(qMin(device->value().value_or(0), device->maximum)) / device->maximum;
}

void LinuxBacklight::setBrightness(const MonitorInfo& panel, double brightness)
{
    const auto device = findBacklight(panel.nativeHandle());
    if (!device)
        return;
    const int value = qBound(1, int(std::lround(brightness * device->maximum)), device->maximum);
    {
        const std::lock_guard lock(m_mutex);
        m_wanted.insert(device->name, Request{*device, value});
    }
    ZrDispatch::main()->post(this, [this] { send(); });
}

// One request at a time: a slider's values on the way replace each other.
void LinuxBacklight::send()
{
    if (m_sending)
        return;
    Request request;
    {
        const std::lock_guard lock(m_mutex);
        if (m_wanted.isEmpty())
            return;
        request = *m_wanted.constBegin();
    }
    m_sending = true;
    // A call on a bus that is not there never ends.
    if (!m_bus.isConnected()) {
        finish(QDBusMessage::createError(QDBusError::Disconnected, QStringLiteral("no system bus")), request);
        return;
    }
    QDBusMessage message = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.login1"), QStringLiteral("/org/freedesktop/login1/session/auto"),
        QStringLiteral("org.freedesktop.login1.Session"), QStringLiteral("SetBrightness"));
    message << QStringLiteral("backlight") << request.device.name << uint(request.value);
    auto* watcher = new QDBusPendingCallWatcher(m_bus.asyncCall(message), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher, request] {
        watcher->deleteLater();
        finish(watcher->reply(), request);
    });
}

void LinuxBacklight::finish(const QDBusMessage& reply, const Request& request)
{
    m_sending = false;
    const bool failed = reply.type() == QDBusMessage::ErrorMessage && !request.device.write(request.value);
    if (failed && !m_warned) {
        m_warned = true;
        qWarning().noquote() << "[LuPlatform] the back-light" << request.device.name
                             << "cannot be set:" << reply.errorMessage();
    }
    {
        const std::lock_guard lock(m_mutex);
        if (m_wanted.value(request.device.name).value == request.value)
            m_wanted.remove(request.device.name);
    }
    // Who was answered what is asked for has to hear that it did not come.
    if (failed)
        Q_EMIT LuPlatformNotifications::instance()->systemBrightnessChanged();
    send();
}

void LinuxBacklight::watch(const MonitorInfo& panel)
{
    const QString connector = panel.nativeHandle();
    if (QThread::currentThread() == thread())
        watchConnector(connector);
    else
        ZrDispatch::main()->post(this, [this, connector] { watchConnector(connector); });
}

void LinuxBacklight::watchConnector(const QString& connector)
{
    if (m_seen.contains(connector))
        return;
    startUdev();
    const auto device = findBacklight(connector);
    m_seen.insert(connector, device ? device->value().value_or(-1) : -1);
}

void LinuxBacklight::startUdev()
{
    if (m_udev)
        return;
    m_udev.reset(udev_new());
    m_monitor.reset(m_udev ? udev_monitor_new_from_netlink(m_udev.get(), "udev") : nullptr);
    if (!m_monitor ||
        udev_monitor_filter_add_match_subsystem_devtype(m_monitor.get(), "backlight", nullptr) < 0 ||
        udev_monitor_enable_receiving(m_monitor.get()) < 0) {
        qWarning() << "[LuPlatform] changes of the back-light cannot be seen: no udev";
        return;
    }
    m_notifier =
        std::make_unique<QSocketNotifier>(udev_monitor_get_fd(m_monitor.get()), QSocketNotifier::Read);
    connect(m_notifier.get(), &QSocketNotifier::activated, this, [this] { readUdev(); });
}

void LinuxBacklight::readUdev()
{
    while (const std::unique_ptr<udev_device, Release> device{udev_monitor_receive_device(m_monitor.get())}) {
    }
    const QStringList connectors = m_seen.keys();
    for (const QString& connector : connectors)
        look(connector);
}

void LinuxBacklight::look(const QString& connector)
{
    const auto device = findBacklight(connector);
    const int value = device ? device->value().value_or(-1) : -1;
    if (std::exchange(m_seen[connector], value) != value && value >= 0)
        Q_EMIT LuPlatformNotifications::instance()->systemBrightnessChanged();
}

} // namespace

std::shared_ptr<BacklightService> makeLinuxBacklight(const QDBusConnection& systemBus)
{
    return std::make_shared<LinuxBacklight>(systemBus);
}

} // namespace services

#include "Backlight.moc"
