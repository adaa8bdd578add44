// SPDX-License-Identifier: Apache-2.0
#include "Dispatcher.h"

#include <QJsonDocument>

#include <optional>

using namespace Qt::StringLiterals;

namespace control {

namespace {

/// Whether the line is JSON, only no object and no list: a document of Qt is one of the two.
bool isScalar(const QByteArray& line)
{
    const QJsonDocument wrapped = QJsonDocument::fromJson('[' + line + ']');
    return wrapped.isArray() && wrapped.array().size() == 1;
}

QJsonObject readRequest(const QByteArray& line)
{
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(line, &error);
    if (error.error != QJsonParseError::NoError) {
        if (isScalar(line))
            throw RequestError(InvalidRequest, u"a request must be an object"_s);
        throw RequestError(ParseError,
                           u"the line is no JSON: %1 (byte %2)"_s.arg(error.errorString()).arg(error.offset));
    }
    if (document.isArray())
        throw RequestError(InvalidRequest, u"requests in a batch are not served: send one object a line"_s);
    return document.object();
}

/// The id for the answer; nothing for a request that wants none.
std::optional<QJsonValue> readId(const QJsonObject& object)
{
    const auto found = object.constFind("id"_L1);
    if (found == object.constEnd())
        return std::nullopt;
    if (!found->isString() && !found->isDouble() && !found->isNull())
        throw RequestError(InvalidRequest, u"\"id\" must be a string, a number or null"_s);
    return *found;
}

} // namespace

Dispatcher::Dispatcher(QObject* parent) : QObject(parent) {}

void Dispatcher::addMethod(const QString& name, const QStringList& parameters, Method method, When when)
{
    addAsyncMethod(
        name, parameters,
        [method = std::move(method)](const Request& request) { request.reply.done(method(request)); }, when);
}

void Dispatcher::addAsyncMethod(const QString& name, const QStringList& parameters, AsyncMethod method,
                                When when)
{
    Q_ASSERT(!m_methods.contains(name));
    m_methods.insert(name, {parameters, std::move(method), when});
}

QStringList Dispatcher::methods() const
{
    QStringList names = m_methods.keys();
    names.sort();
    return names;
}

void Dispatcher::setBusy(std::function<bool()> busy)
{
    m_busy = std::move(busy);
}

void Dispatcher::handleLine(Client* client, const QByteArray& line)
{
    try {
        dispatch(client, readRequest(line));
    } catch (const RequestError& error) {
        // The id is unknown, or not to be trusted.
        client->finish(Reply::errorMessage(QJsonValue(), error));
    }
}

void Dispatcher::dispatch(Client* client, const QJsonObject& object)
{
    const std::optional<QJsonValue> id = readId(object);
    Request request{client, {}, Reply(client->outlet(), id)};
    QString name;
    try {
        if (object.value("jsonrpc"_L1) != "2.0"_L1)
            throw RequestError(InvalidRequest, u"\"jsonrpc\" must be \"2.0\""_s);
        if (!object.value("method"_L1).isString())
            throw RequestError(InvalidRequest, u"\"method\" must be a string"_s);
        name = object.value("method"_L1).toString();
        const QJsonValue parameters = object.value("params"_L1);
        if (!parameters.isUndefined() && !parameters.isObject() && !parameters.isArray())
            throw RequestError(InvalidRequest, u"\"params\" must be an object"_s);
        const auto entry = m_methods.constFind(name);
        if (entry == m_methods.constEnd())
            throw RequestError(UnknownMethod, u"unknown method \"%1\""_s.arg(name));
        if (parameters.isArray())
            throw RequestError(InvalidParameters, u"parameters are given by name, in an object"_s);
        request.parameters = Parameters(parameters.toObject());
        request.parameters.refuseOthersThan(entry->parameters);
        if (entry->when == When::Settled && (isBusy() || !m_held.isEmpty())) {
            m_held.append({name, request});
            return;
        }
    } catch (const RequestError& error) {
        request.reply.fail(error);
        return;
    }
    run(m_methods[name], request);
}

void Dispatcher::run(const Entry& entry, const Request& request)
{
    try {
        entry.method(request);
    } catch (const RequestError& error) {
        request.reply.fail(error);
    } catch (const std::exception& error) {
        request.reply.fail(RequestError(InternalError, QString::fromUtf8(error.what())));
    }
}

void Dispatcher::resume()
{
    if (m_resuming)
        return;
    m_resuming = true;
    while (!m_held.isEmpty() && !isBusy()) {
        const Held next = m_held.takeFirst();
        run(m_methods[next.name], next.request);
    }
    m_resuming = false;
}

} // namespace control
