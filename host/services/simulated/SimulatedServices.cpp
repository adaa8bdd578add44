// SPDX-License-Identifier: Apache-2.0
#include "services/simulated/SimulatedServices.h"

#include <ZrCore/ZrPlatform.h>

#include "services/simulated/Backends.h"
#include "services/simulated/Signals.h"

#include <QClipboard>
#include <QDesktopServices>
#include <QEvent>
#include <QGuiApplication>
#include <QJsonArray>
#include <QMimeData>

namespace services {

namespace {

const QString addressSchemes[] = {QStringLiteral("http"), QStringLiteral("https"), QStringLiteral("file")};

void report(Error* target, const Error& error)
{
    if (target)
        *target = error;
}

} // namespace

// A path of the protocol in its two parts.
struct SimulatedServices::Address
{
    const PathRow* row = nullptr;
    QString monitor; // empty for all
};

SimulatedServices::SimulatedServices(QObject* parent) : QObject(parent), m_world(std::make_shared<World>())
{
    m_world->setReceiver(this);
    QClipboard* const clipboard = QGuiApplication::clipboard();
    const auto look = [world = m_world.get(), clipboard] {
        world->setClipboard(ClipboardContent::fromMimeData(clipboard->mimeData()));
    };
    connect(clipboard, &QClipboard::dataChanged, this, look);
    look();
}

SimulatedServices::~SimulatedServices()
{
    m_world->setReceiver(nullptr);
    m_world->keyHandler = nullptr;
    m_screens.restore();
    if (!m_installed)
        return;
    Registry::install({});
    ZrPlatform::setDeviceModel(QString());
    for (const QString& scheme : addressSchemes)
        QDesktopServices::unsetUrlHandler(scheme);
}

void SimulatedServices::install()
{
    m_installed = true;
    Registry::install(servicesOf(m_world));
    m_screens.nameAll();
    for (const QString& scheme : addressSchemes)
        QDesktopServices::setUrlHandler(scheme, this, "openAddress");
}

void SimulatedServices::setMonitors(Monitors monitors)
{
    m_monitors = std::move(monitors);
}

void SimulatedServices::setKeyHandler(DesktopEvents::KeyHandler handler)
{
    m_world->keyHandler = std::move(handler);
}

QJsonValue SimulatedServices::get(const QString& path, Error* error) const
{
    Error problem;
    const auto address = parse(path, problem);
    report(error, problem);
    if (!address)
        return QJsonValue(QJsonValue::Undefined);

    const QLatin1String name = address->row->name;
    if (name == path::clipboard)
        return ClipboardContent::fromMimeData(QGuiApplication::clipboard()->mimeData()).toJson();
    if (name == path::pasted)
        return m_world->pasted();
    if (name == path::deviceModel)
        return ZrPlatform::deviceModel();
    if (name == path::screens) {
        const QJsonValue screens = m_world->value(name);
        return screens.isNull() ? OffscreenScreens::present() : screens;
    }
    QString monitor = address->monitor;
    if (monitor.isEmpty() && address->row->isPerMonitor && m_monitors.current)
        monitor = m_monitors.current();
    return monitor.isEmpty() ? m_world->value(name) : m_world->value(name, monitor);
}

bool SimulatedServices::set(const QString& path, const QJsonValue& value, Error* error)
{
    Error problem;
    const auto address = parse(path, problem);
    if (!address) {
        report(error, problem);
        return false;
    }
    const PathRow& row = *address->row;
    const QJsonValue before = m_world->value(row.name);
    const auto normal = normalised(row.kind, value, before, problem);
    if (!normal) {
        problem.message.prepend(path + QLatin1String(": "));
        report(error, problem);
        return false;
    }
    if (!address->monitor.isEmpty()) {
        m_world->setValue(row.name, address->monitor, *normal);
        raise(row.signal, *m_world);
    } else if (const auto failed = apply(row, *normal, value)) {
        report(error, *failed);
        return false;
    }
    report(error, {});
    return true;
}

// Stores a value of the whole session and does what it stands for. @p given tells which members a client
// named.
std::optional<Error> SimulatedServices::apply(const PathRow& row, const QJsonValue& value,
                                              const QJsonValue& given)
{
    if (row.name == path::clipboard) {
        QGuiApplication::clipboard()->setMimeData(ClipboardContent::fromJson(value).toMimeData());
        return std::nullopt;
    }
    if (row.name == path::pasted) {
        m_world->setPasted(value);
        return std::nullopt;
    }
    if (row.name == path::deviceModel) {
        ZrPlatform::setDeviceModel(value.toString());
        return std::nullopt;
    }
    if (row.name == path::defaultAudioOutput) {
        const QJsonArray outputs = m_world->value(path::audioOutputs).toArray();
        const auto isDevice = [&](const QJsonValue& output) { return output[u"id"] == value; };
        if (!value.toString().isEmpty() && std::none_of(outputs.begin(), outputs.end(), isDevice))
            return Error{Error::WrongType, QStringLiteral("no audio output \"%1\"").arg(value.toString())};
    }

    m_world->setValue(row.name, value);
    if (row.name == path::audioOutputs)
        keepDefaultOutput();
    if (row.name == path::screens) {
        if (value.isNull())
            m_screens.restore();
        else
            m_screens.apply(value.toArray());
        if (m_monitors.screensChanged)
            m_monitors.screensChanged();
    }
    if (row.name == path::kvm) {
        // The driver tells of itself and of the side separately; the rest is what the program told the
        // driver.
        if (!given[u"location"].isUndefined())
            raise(Signal::KvmLocation, *m_world);
        if (given[u"connected"].isUndefined() && given[u"driverInstalled"].isUndefined())
            return std::nullopt;
    }
    raise(row.signal, *m_world);
    return std::nullopt;
}

// As a real session does: without its default output the first one takes its place.
void SimulatedServices::keepDefaultOutput()
{
    const QJsonArray outputs = m_world->value(path::audioOutputs).toArray();
    m_world->change(path::defaultAudioOutput, [&](const QJsonValue& id) -> QJsonValue {
        const auto isDevice = [&](const QJsonValue& output) { return output[u"id"] == id; };
        if (std::any_of(outputs.begin(), outputs.end(), isDevice))
            return id;
        return outputs.isEmpty() ? QJsonValue(QString()) : outputs.first()[u"id"];
    });
}

QJsonObject SimulatedServices::emitSignal(const QString& name, const QJsonValue& arguments, Error* error)
{
    Error problem;
    const QJsonObject answer = raiseByName(name, arguments, *m_world, problem);
    report(error, problem);
    return answer;
}

bool SimulatedServices::loadState(const QJsonObject& values, Error* error)
{
    // What is meant for all monitors replaces what single ones have, so it goes first.
    for (const bool isForOne : {false, true}) {
        for (auto it = values.begin(); it != values.end(); ++it) {
            if (it.key().contains(u'/') == isForOne && !set(it.key(), it.value(), error))
                return false;
        }
    }
    report(error, {});
    return true;
}

QString SimulatedServices::screenOf(const QString& monitor) const
{
    const QJsonArray screens = m_world->value(path::screens).toArray();
    for (const QJsonValue& screen : screens) {
        const QString owner = screen[u"monitor"].toString();
        if (!owner.isEmpty() && (owner == monitor || owner == monitor.section(u'@', 0, 0)))
            return screen[u"name"].toString();
    }
    return {};
}

bool SimulatedServices::event(QEvent* event)
{
    if (event->type() != QEvent::User)
        return QObject::event(event);
    const QList<Signal> pending = m_world->takePending();
    for (const Signal signal : pending)
        raise(signal, *m_world);
    return true;
}

void SimulatedServices::openAddress(const QUrl& address)
{
    m_world->change(path::opened, [&](const QJsonValue& opened) -> QJsonValue {
        QJsonArray list = opened.toArray();
        list.append(QString::fromUtf8(address.toEncoded()));
        return list;
    });
}

std::optional<SimulatedServices::Address> SimulatedServices::parse(const QString& path, Error& error) const
{
    // A model's name may hold a slash, a path does not.
    const qsizetype slash = path.lastIndexOf(u'/');
    Address address;
    address.row = World::find(path.mid(slash + 1));
    if (!address.row || (slash >= 0 && (!address.row->isPerMonitor || slash == 0))) {
        error = {Error::NoSuchPath, QStringLiteral("no service path \"%1\"").arg(path)};
        return std::nullopt;
    }
    if (slash < 0)
        return address;
    address.monitor = path.left(slash);
    if (m_monitors.resolve) {
        const auto id = m_monitors.resolve(address.monitor);
        if (!id) {
            error = {Error::NoSuchMonitor, QStringLiteral("no monitor \"%1\"").arg(address.monitor)};
            return std::nullopt;
        }
        address.monitor = *id;
    }
    return address;
}

} // namespace services
