// SPDX-License-Identifier: Apache-2.0
#include "ServiceMethods.h"

#include <ZrCore/ZrAsker.h>
#include <control/Server.h>
#include <services/simulated/SimulatedServices.h>

using namespace Qt::StringLiterals;
using namespace control;

namespace {

services::SimulatedServices& needed(services::SimulatedServices* session)
{
    if (!session)
        throw RequestError(NotSimulated, u"the services are not simulated"_s);
    return *session;
}

void check(const services::Error& error)
{
    if (error)
        throw RequestError(error.code, error.message);
}

QJsonValue getState(services::SimulatedServices* session, const Request& request)
{
    services::Error error;
    const QJsonValue value = needed(session).get(request.parameters.text(u"path"_s), &error);
    check(error);
    return QJsonObject{{u"value"_s, value}};
}

QJsonValue setState(services::SimulatedServices* session, const Request& request)
{
    services::Error error;
    // The desktop changes by itself.
    const ZrAsker::Scope asker(ZrAsker::Program);
    needed(session).set(request.parameters.text(u"path"_s), request.parameters.value(u"value"_s), &error);
    check(error);
    return QJsonObject();
}

QJsonValue emitSignal(services::SimulatedServices* session, const Request& request)
{
    const QJsonValue arguments = request.parameters.contains(u"args"_s) ? request.parameters.value(u"args"_s)
                                                                        : QJsonValue(QJsonObject());
    if (!arguments.isObject() && !arguments.isArray())
        throw RequestError(InvalidParameters, u"parameter \"args\" must be an object or a list"_s);
    services::Error error;
    const QString signal = request.parameters.text(u"signal"_s);
    // A key is pressed by a person; all else the desktop does by itself.
    const ZrAsker::Scope asker(signal == "activeKeyEvent"_L1 ? ZrAsker::Person : ZrAsker::Program);
    const QJsonObject answer =
        needed(session).emitSignal(signal, arguments, &error);
    check(error);
    return answer;
}

} // namespace

void addServiceMethods(Server* server, services::SimulatedServices* session)
{
    Dispatcher& dispatcher = server->dispatcher();
    dispatcher.addMethod(u"services.get"_s, {u"path"_s},
                         [session](const Request& request) { return getState(session, request); });
    dispatcher.addMethod(u"services.set"_s, {u"path"_s, u"value"_s},
                         [session](const Request& request) { return setState(session, request); });
    dispatcher.addMethod(u"services.emit"_s, {u"signal"_s, u"args"_s},
                         [session](const Request& request) { return emitSignal(session, request); });
}
