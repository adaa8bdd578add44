// SPDX-License-Identifier: Apache-2.0
#include "services/simulated/Backends.h"

#include <PanelCore/MonitorInfo.h>

#include "services/api/AudioService.h"
#include "services/api/BacklightService.h"
#include "services/api/ClipboardKeysService.h"
#include "services/api/DisplayService.h"
#include "services/api/KvmService.h"
#include "services/api/LocationService.h"
#include "services/api/ProgramService.h"
#include "services/api/WindowService.h"
#include "services/audiodevice/MadeAudioDevice.h"

#include <QClipboard>
#include <QFileInfo>
#include <QGuiApplication>
#include <QJsonArray>
#include <QJsonObject>
#include <QMimeData>
#include <QQuickWindow>
#include <QThread>

namespace services {

namespace {

using WorldPtr = std::shared_ptr<World>;

QJsonValue appended(const QJsonValue& list, const QString& entry)
{
    QJsonArray result = list.toArray();
    result.append(entry);
    return result;
}

class Display : public DisplayService
{
public:
    explicit Display(WorldPtr world) : m_world(std::move(world)) {}

    int pivot(const MonitorInfo& monitor) const override { return get(path::pivot, monitor).toInt(); }
    void setPivot(const MonitorInfo& monitor, int degrees) override { set(path::pivot, monitor, degrees); }

    QList<int> dpiScalings(const MonitorInfo& monitor) const override
    {
        QList<int> percentages;
        const QJsonArray values = get(path::dpiScalings, monitor).toArray();
        for (const QJsonValue& value : values)
            percentages.append(value.toInt());
        return percentages;
    }

    int dpiScaling(const MonitorInfo& monitor) const override
    {
        return get(path::dpiScaling, monitor).toInt();
    }

    void setDpiScaling(const MonitorInfo& monitor, int percent) override
    {
        if (percent > 0)
            set(path::dpiScaling, monitor, percent);
    }

    bool hiDpi(const MonitorInfo& monitor) const override { return get(path::hiDpi, monitor).toBool(); }

    bool setHiDpi(const MonitorInfo& monitor, bool enabled) override
    {
        if (get(path::hiDpiRefused, monitor).toBool())
            return false;
        set(path::hiDpi, monitor, enabled);
        return true;
    }

    QList<QSize> resolutions(const MonitorInfo& monitor, int) const override
    {
        QList<QSize> sizes;
        const QJsonArray values = get(path::resolutions, monitor).toArray();
        for (const QJsonValue& value : values)
            sizes.append(toSize(value));
        return sizes;
    }

    QSize resolution(const MonitorInfo& monitor) const override
    {
        return toSize(get(path::resolution, monitor));
    }

    // Any size is taken: the list of sizes is what the session offers, not all that it can do.
    bool setResolution(const MonitorInfo& monitor, const QSize& size, int, bool, int) override
    {
        set(path::resolution, monitor, toJson(size));
        return true;
    }

    QRect nativeScreenRect(const QString& nativeHandle) const override
    {
        const QJsonArray screens = m_world->value(path::screens).toArray();
        for (const QJsonValue& screen : screens) {
            if (screen[u"name"].toString() == nativeHandle || screen[u"monitor"].toString() == nativeHandle)
                return toRect(screen[u"rect"]).toRect();
        }
        return {};
    }

private:
    QJsonValue get(QLatin1String path, const MonitorInfo& monitor) const
    {
        return m_world->value(path, monitor.id());
    }

    void set(QLatin1String path, const MonitorInfo& monitor, const QJsonValue& value)
    {
        if (m_world->setValue(path, monitor.id(), value))
            m_world->raiseLater(Signal::ScreenGeometry);
    }

    WorldPtr m_world;
};

class Backlight : public BacklightService
{
public:
    explicit Backlight(WorldPtr world) : m_world(std::move(world)) {}

    double brightness(const MonitorInfo&) const override
    {
        return m_world->value(path::systemBrightness).toDouble();
    }

    void setBrightness(const MonitorInfo&, double brightness) override
    {
        if (m_world->setValue(path::systemBrightness, brightness))
            m_world->raiseLater(Signal::SystemBrightness);
    }

    // Changes are told in any case.
    void watch(const MonitorInfo&) override {}

private:
    WorldPtr m_world;
};

class Events : public DesktopEvents
{
public:
    explicit Events(WorldPtr world) : m_world(std::move(world)) {}

    void setKeyHandler(KeyHandler handler) override { m_world->keyHandler = std::move(handler); }

    // Nothing happens in this session by itself.
    void start() override {}
    void stop() override {}

private:
    WorldPtr m_world;
};

class Programs : public ProgramService
{
public:
    explicit Programs(WorldPtr world) : m_world(std::move(world)) {}

    bool isListReady() const override { return m_world->value(path::applicationsReady).toBool(); }

    QString appId(unsigned long pid) const override
    {
        if (pid == 0)
            return {};
        return find([&](const QJsonValue& application) {
                   return application[u"pid"].toDouble() == double(pid);
               })[u"id"]
            .toString();
    }

    // A file that is no listed application is one of its own, known by its path.
    QString appId(const QUrl& url) const override
    {
        const QString id =
            find([&](const QJsonValue& application) { return urlOf(application) == url; })[u"id"].toString();
        return id.isEmpty() ? url.toLocalFile() : id;
    }

    QString displayName(const QString& appId) const override
    {
        const QString name = byId(appId)[u"name"].toString();
        return name.isEmpty() ? QFileInfo(appId).fileName() : name;
    }

    QUrl url(const QString& appId) const override
    {
        const QJsonValue application = byId(appId);
        if (application.isObject())
            return urlOf(application);
        return QFileInfo(appId).isAbsolute() ? QUrl::fromLocalFile(appId) : QUrl();
    }

    bool open(const QString& path) override
    {
        if (m_world->value(path::openRefused).toArray().contains(path))
            return false;
        m_world->change(path::opened, [&](const QJsonValue& opened) { return appended(opened, path); });
        return true;
    }

    void setGeometry(unsigned long pid, const QRectF& geometry) override
    {
        m_world->change(path::windows, [&](const QJsonValue& windows) -> QJsonValue {
            QJsonObject result = windows.toObject();
            result[QString::number(pid)] = toJson(geometry);
            return result;
        });
    }

private:
    static QUrl urlOf(const QJsonValue& application)
    {
        const QString text = application[u"url"].toString();
        return QFileInfo(text).isAbsolute() ? QUrl::fromLocalFile(text) : QUrl(text);
    }

    template <typename Condition>
    QJsonValue find(Condition condition) const
    {
        const QJsonArray applications = m_world->value(path::applications).toArray();
        for (const QJsonValue& application : applications) {
            if (condition(application))
                return application;
        }
        return {};
    }

    QJsonValue byId(const QString& id) const
    {
        return find([&](const QJsonValue& application) { return application[u"id"].toString() == id; });
    }

    WorldPtr m_world;
};

class Audio : public AudioService
{
public:
    explicit Audio(WorldPtr world) : m_world(std::move(world)) {}

    QList<QAudioDevice> outputs() const override
    {
        const QString defaultId = m_world->value(path::defaultAudioOutput).toString();
        QList<QAudioDevice> devices;
        const QJsonArray outputs = m_world->value(path::audioOutputs).toArray();
        for (const QJsonValue& output : outputs) {
            const QString id = output[u"id"].toString();
            devices.append(madeAudioDevice(id, output[u"name"].toString(), id == defaultId));
        }
        return devices;
    }

    QAudioDevice defaultOutput() const override
    {
        const QList<QAudioDevice> devices = outputs();
        for (const QAudioDevice& device : devices) {
            if (device.isDefault())
                return device;
        }
        return {};
    }

    void setDefaultOutput(const QAudioDevice& device) override
    {
        const QString id = QString::fromUtf8(device.id());
        const QJsonArray outputs = m_world->value(path::audioOutputs).toArray();
        const auto isDevice = [&](const QJsonValue& output) { return output[u"id"].toString() == id; };
        if (std::none_of(outputs.begin(), outputs.end(), isDevice))
            return;
        if (m_world->setValue(path::defaultAudioOutput, id))
            m_world->raiseLater(Signal::AudioOutputs);
    }

    QString displayName(const QAudioDevice& device) const override { return device.description(); }

    int volume() const override { return m_world->value(path::systemVolume).toInt(); }

    void setVolume(int percent) override
    {
        if (m_world->setValue(path::systemVolume, percent))
            m_world->raiseLater(Signal::SystemVolume);
    }

    void openSettings() override
    {
        m_world->change(path::opened, [](const QJsonValue& opened) {
            return appended(opened, QStringLiteral("settings:sound"));
        });
    }

private:
    WorldPtr m_world;
};

class Place : public LocationService
{
public:
    explicit Place(WorldPtr world) : m_world(std::move(world)) {}

    Location location() const override
    {
        const QJsonValue value = m_world->value(path::location);
        return {value[u"latitude"].toDouble(), value[u"longitude"].toDouble(), value[u"status"].toInt()};
    }

private:
    WorldPtr m_world;
};

class Kvm : public KvmService
{
public:
    explicit Kvm(WorldPtr world) : m_world(std::move(world)) {}

    bool isDriverInstalled() const override { return member(u"driverInstalled").toBool(); }
    bool isConnected() const override { return member(u"connected").toBool(); }

    void installDriver() override
    {
        if (call(QStringLiteral("installDriver"), QStringLiteral("driverInstalled"), true))
            m_world->raiseLater(Signal::KvmChanged);
    }

    void activate() override { call(QStringLiteral("activate"), QStringLiteral("active"), true); }
    void deactivate() override { call(QStringLiteral("deactivate"), QStringLiteral("active"), false); }

    void setScreenRect(const QRect& rect) override
    {
        call(QStringLiteral("setScreenRect"), QStringLiteral("rect"), toJson(rect));
    }

    void setType(int type) override { call(QStringLiteral("setKvmType"), QStringLiteral("type"), type); }

    int deviceLocation() const override { return member(u"location").toInt(); }

    void setDeviceLocation(int location) override
    {
        if (call(QStringLiteral("setKvmDeviceLocation"), QStringLiteral("location"), location))
            m_world->raiseLater(Signal::KvmLocation);
    }

private:
    QJsonValue member(QStringView name) const { return m_world->value(path::kvm)[name]; }

    // Notes a call and stores what it brought; true if the member differs from before.
    bool call(const QString& operation, const QString& name, const QJsonValue& value)
    {
        bool differs = false;
        m_world->change(path::kvm, [&](const QJsonValue& kvm) -> QJsonValue {
            QJsonObject result = kvm.toObject();
            differs = result[name] != value;
            result[name] = value;
            result[u"calls"] = appended(result[u"calls"], operation);
            return result;
        });
        return differs;
    }

    WorldPtr m_world;
};

class Windows : public WindowService
{
public:
    // Kept on the window, where whoever describes it finds them.
    void setLayer(QQuickWindow* window, int layer) override { window->setProperty("windowLayer", layer); }
    void setJoinActiveSpaces(QQuickWindow* window, bool join) override
    {
        window->setProperty("joinActiveSpaces", join);
    }
};

class ClipboardKeys : public ClipboardKeysService
{
public:
    explicit ClipboardKeys(WorldPtr world) : m_world(std::move(world)) {}

    void copy() override
    {
        if (QThread::currentThread() == qApp->thread())
            copySelection(*m_world);
        else
            m_world->raiseLater(Signal::Copy);
    }

    void paste() override { m_world->paste(); }

private:
    WorldPtr m_world;
};

} // namespace

ServiceSet servicesOf(const WorldPtr& world)
{
    ServiceSet set;
    set.name = QStringLiteral("simulated");
    set.display = std::make_shared<Display>(world);
    set.backlight = std::make_shared<Backlight>(world);
    set.events = std::make_shared<Events>(world);
    set.programs = std::make_shared<Programs>(world);
    set.audio = std::make_shared<Audio>(world);
    set.location = std::make_shared<Place>(world);
    set.kvm = std::make_shared<Kvm>(world);
    set.windows = std::make_shared<Windows>();
    set.clipboardKeys = std::make_shared<ClipboardKeys>(world);
    return set;
}

void copySelection(const World& world)
{
    const QJsonValue selection = world.value(path::selection);
    if (!selection.toObject().isEmpty())
        QGuiApplication::clipboard()->setMimeData(ClipboardContent::fromJson(selection).toMimeData());
}

} // namespace services
