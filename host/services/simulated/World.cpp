// SPDX-License-Identifier: Apache-2.0
#include "services/simulated/World.h"

#include <QCoreApplication>
#include <QEvent>
#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>

namespace services {

namespace {

constexpr PathRow rows[] = {
    // clang-format off
    {path::pivot,              Kind::Rotation,       true,  Signal::ScreenGeometry},
    {path::resolution,         Kind::Size,           true,  Signal::ScreenGeometry},
    {path::resolutions,        Kind::SizeList,       true,  Signal::ScreenGeometry},
    {path::dpiScaling,         Kind::Percentage,     true,  Signal::ScreenGeometry},
    {path::dpiScalings,        Kind::PercentageList, true,  Signal::ScreenGeometry},
    {path::hiDpi,              Kind::Bool,           true,  Signal::ScreenGeometry},
    {path::hiDpiRefused,       Kind::Bool,           true,  Signal::None},
    {path::systemBrightness,   Kind::Fraction,       false, Signal::SystemBrightness},
    {path::openRefused,        Kind::TextList,       false, Signal::None},
    {path::applicationsReady,  Kind::Bool,           false, Signal::AppList},
    {path::applications,       Kind::Applications,   false, Signal::None},
    {path::windows,            Kind::Windows,        false, Signal::None},
    {path::activePid,          Kind::ProcessId,      false, Signal::ActiveApp},
    {path::audioOutputs,       Kind::AudioDevices,   false, Signal::AudioOutputs},
    {path::defaultAudioOutput, Kind::AudioDevice,    false, Signal::AudioOutputs},
    {path::systemVolume,       Kind::Volume,         false, Signal::SystemVolume},
    {path::location,           Kind::Location,       false, Signal::Location},
    {path::selection,          Kind::Content,        false, Signal::None},
    {path::pasted,             Kind::ContentList,    false, Signal::None},
    {path::clipboard,          Kind::Content,        false, Signal::None},
    {path::kvm,                Kind::Kvm,            false, Signal::KvmChanged},
    {path::screens,            Kind::Screens,        false, Signal::ScreenGeometry},
    {path::deviceModel,        Kind::Text,           false, Signal::None},
    {path::opened,             Kind::TextList,       false, Signal::None},
    // clang-format on
};

// A notebook's worth of defaults. "clipboard", "screens" and "deviceModel" are the real ones until they are
// set, and "pasted" is kept apart.
constexpr char defaults[] = R"({
    "pivot": 0,
    "resolution": {"width": 3840, "height": 2160},
    "resolutions": [{"width": 1280, "height": 720},  {"width": 1600, "height": 900},
                    {"width": 1920, "height": 1080}, {"width": 1920, "height": 1200},
                    {"width": 2560, "height": 1440}, {"width": 3200, "height": 1800},
                    {"width": 3840, "height": 2160}],
    "dpiScaling": 100,
    "dpiScalings": [100, 125, 150, 175, 200],
    "hiDpi": false,
    "hiDpiRefused": false,
    "systemBrightness": 0.5,
    "openRefused": [],
    "applicationsReady": true,
    "applications": [],
    "windows": {},
    "activePid": 0,
    "audioOutputs": [{"id": "BuiltInSpeakerDevice", "name": "Built-in Speakers"}],
    "defaultAudioOutput": "BuiltInSpeakerDevice",
    "systemVolume": 50,
    "location": {"latitude": 0, "longitude": 0, "status": 0},
    "selection": {},
    "kvm": {"active": false, "type": 0, "rect": {"x": 0, "y": 0, "width": 0, "height": 0}, "location": 0,
            "connected": false, "driverInstalled": false, "calls": []},
    "screens": null,
    "deviceModel": null,
    "opened": []
})";

QString modelOf(const QString& monitor)
{
    return monitor.section(u'@', 0, 0);
}

} // namespace

World::World()
{
    const QJsonObject values = QJsonDocument::fromJson(defaults).object();
    for (auto it = values.begin(); it != values.end(); ++it)
        m_shared[it.key()] = it.value();
}

const PathRow* World::find(const QString& path)
{
    const auto* const row = std::find_if(std::begin(rows), std::end(rows),
                                         [&](const PathRow& each) { return path == each.name; });
    return row == std::end(rows) ? nullptr : row;
}

QList<QString> World::paths()
{
    QList<QString> names;
    for (const PathRow& row : rows)
        names.append(row.name);
    return names;
}

QJsonValue World::value(QLatin1String path) const
{
    const std::lock_guard lock(m_mutex);
    const auto latest = m_latest.constFind(path);
    return latest == m_latest.constEnd() ? m_shared.value(path) : *latest;
}

QJsonValue World::value(QLatin1String path, const QString& monitor) const
{
    const std::lock_guard lock(m_mutex);
    return ofMonitor(path, monitor);
}

QJsonValue World::ofMonitor(QLatin1String path, const QString& monitor) const
{
    const auto own = m_perMonitor.constFind(path);
    if (own != m_perMonitor.constEnd()) {
        if (const auto it = own->constFind(monitor); it != own->constEnd())
            return *it;
        if (const auto it = own->constFind(modelOf(monitor)); it != own->constEnd())
            return *it;
    }
    return m_shared.value(path);
}

bool World::setValue(QLatin1String path, const QJsonValue& value)
{
    const std::lock_guard lock(m_mutex);
    QJsonValue& stored = m_shared[path];
    const bool differs = stored != value || m_perMonitor.contains(path);
    stored = value;
    m_perMonitor.remove(path);
    m_latest.remove(path);
    return differs;
}

bool World::setValue(QLatin1String path, const QString& monitor, const QJsonValue& value)
{
    const std::lock_guard lock(m_mutex);
    const QJsonValue before = ofMonitor(path, monitor);
    auto& own = m_perMonitor[path];
    // A model's name means all of its monitors.
    if (!monitor.contains(u'@'))
        own.removeIf([&](const auto& entry) { return modelOf(entry.key()) == monitor; });
    own[monitor] = value;
    m_latest[path] = value;
    return before != value;
}

bool World::change(QLatin1String path, const std::function<QJsonValue(const QJsonValue&)>& step)
{
    const std::lock_guard lock(m_mutex);
    QJsonValue& stored = m_shared[path];
    const QJsonValue after = step(stored);
    const bool differs = after != stored;
    stored = after;
    return differs;
}

void World::raiseLater(Signal signal)
{
    const std::lock_guard lock(m_mutex);
    if (!m_receiver)
        return;
    m_pending.append(signal);
    QCoreApplication::postEvent(m_receiver, new QEvent(QEvent::User));
}

void World::setReceiver(QObject* receiver)
{
    const std::lock_guard lock(m_mutex);
    m_receiver = receiver;
    if (!receiver)
        m_pending.clear();
}

QList<Signal> World::takePending()
{
    const std::lock_guard lock(m_mutex);
    return std::exchange(m_pending, {});
}

void World::setClipboard(const ClipboardContent& content)
{
    const std::lock_guard lock(m_mutex);
    m_clipboard = content;
}

void World::paste()
{
    const std::lock_guard lock(m_mutex);
    m_pasted.append(m_clipboard);
}

QJsonValue World::pasted() const
{
    const std::lock_guard lock(m_mutex);
    QJsonArray list;
    for (const ClipboardContent& content : m_pasted)
        list.append(content.toJson());
    return list;
}

void World::setPasted(const QJsonValue& list)
{
    QList<ClipboardContent> contents;
    const QJsonArray entries = list.toArray();
    for (const QJsonValue& entry : entries)
        contents.append(ClipboardContent::fromJson(entry));
    const std::lock_guard lock(m_mutex);
    m_pasted = contents;
}

} // namespace services
