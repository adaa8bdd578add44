// SPDX-License-Identifier: Apache-2.0
#include "MonitorAccess.h"

#include "ValueReader.h"
#include "Watches.h"

#include <LuShared/LuMediaDevices.h>
#include <LuShared/LuMonitorModel.h>

#include "lushared/LuMonitorRegistry.h"

using namespace Qt::StringLiterals;

namespace control {

namespace {

/// The session knows of outputs that Qt's own list does not follow, or does not have at all.
QAudioDevice audioOutput(const QString& id)
{
    const QList<QAudioDevice> outputs = LuMediaDevices::audioOutputs();
    for (const QAudioDevice& device : outputs) {
        if (QString::fromUtf8(device.id()) == id)
            return device;
    }
    return {};
}

} // namespace

MonitorAccess::MonitorAccess(Server* server, Backend backend) : QObject(server), m_backend(std::move(backend))
{
    ValueReader::setAudioLookup(audioOutput);
    LuMonitorRegistry* const registry = m_backend.registry;
    server->dispatcher().setBusy([registry] { return registry->isBusy(); });
    // Posted, so that a method never runs inside the registry's own work.
    connect(registry, &LuMonitorRegistry::settled, &server->dispatcher(), &Dispatcher::resume,
            Qt::QueuedConnection);
    connect(registry, &LuMonitorRegistry::monitorAboutToBeRemoved, this, [server](LuMonitorModel* model) {
        const QList<Watches*> all = server->findChildren<Watches*>();
        for (Watches* watches : all)
            watches->removeMonitor(model->id());
    });
}

LuMonitorModel* MonitorAccess::monitor(const QString& address) const
{
    LuMonitorModel* const model = m_backend.registry->find(address);
    if (!model)
        throw RequestError(
            NoSuchMonitor,
            address.isEmpty()
                ? u"no monitor is connected"_s
                : u"no such monitor \"%1\", or not the only one of that name"_s.arg(address.left(100)));
    return model;
}

LuMonitorModel* MonitorAccess::monitor(const Request& request) const
{
    return monitor(request.parameters.optionalText(u"monitor"_s).value_or(QString()));
}

LuModelModuleInterface* MonitorAccess::module(LuMonitorModel* model, const QString& className) const
{
    LuModelModuleInterface* const module = model->moduleByClassName(className);
    if (!module)
        throw RequestError(NoSuchPath, u"%1 has no module \"%2\""_s.arg(model->id(), className.left(100)));
    return module;
}

QObject* MonitorAccess::context() const
{
    return m_backend.context ? m_backend.context() : nullptr;
}

ObjectAccess MonitorAccess::objects(const Request& request, const QString& path) const
{
    const bool ofContext = path == "context"_L1 || path.startsWith("context."_L1);
    if (ofContext && !request.parameters.contains(u"monitor"_s))
        return {m_backend.registry->current(), context()};
    return {monitor(request), context()};
}

MonitorAccess* addAllMethods(Server* server, const Backend& backend)
{
    auto* const access = new MonitorAccess(server, backend);
    addProgramMethods(server, access);
    addModelMethods(server, access);
    addStoreMethods(server, access);
    addFlowMethods(server, access);
    return access;
}

} // namespace control
