// SPDX-License-Identifier: Apache-2.0
#include "Watches.h"

#include "MetaTypes.h"
#include "RequestError.h"
#include "ValueWriter.h"

#include <QJsonArray>
#include <QMetaMethod>

#include <vector>

using namespace Qt::StringLiterals;

namespace control {

namespace {

QJsonObject message(const QString& method, const QString& monitor, const QString& path, const QString& member,
                    const QJsonValue& content)
{
    return {{u"jsonrpc"_s, u"2.0"_s},
            {u"method"_s, method},
            {u"params"_s, QJsonObject{{u"monitor"_s, monitor}, {u"path"_s, path}, {member, content}}}};
}

/// Null where the value has no form: an emission is told in any case.
QJsonValue toJsonOrNull(const QVariant& value)
{
    try {
        return toJson(value);
    } catch (const RequestError&) {
        return {};
    }
}

class PropertyRelay final : public SignalRelay
{
public:
    PropertyRelay(Client* client, QString monitor, QString path, Location location)
        : SignalRelay(client), m_client(client), m_monitor(std::move(monitor)), m_path(std::move(path)),
          m_location(std::move(location))
    {
    }

protected:
    void emitted(void**) override
    {
        m_client->notify(message(u"changed"_s, m_monitor, m_path, u"value"_s,
                                 toJsonOrNull(PathResolver::read(m_location))));
    }

private:
    Client* const m_client;
    const QString m_monitor;
    const QString m_path;
    const Location m_location;
};

class EventRelay final : public SignalRelay
{
public:
    EventRelay(Client* client, QString monitor, QString path, const QMetaMethod& signal)
        : SignalRelay(client), m_client(client), m_monitor(std::move(monitor)), m_path(std::move(path)),
          m_signal(signal)
    {
    }

protected:
    void emitted(void** arguments) override
    {
        QJsonArray values;
        for (int i = 0; i < m_signal.parameterCount(); ++i) {
            const QMetaType type = m_signal.parameterMetaType(i);
            const QVariant value = type.id() == QMetaType::QVariant
                                       ? *static_cast<QVariant*>(arguments[i + 1])
                                       : QVariant(type, arguments[i + 1]);
            values.append(toJsonOrNull(value));
        }
        m_client->notify(message(u"signal"_s, m_monitor, m_path, u"args"_s, values));
    }

private:
    Client* const m_client;
    const QString m_monitor;
    const QString m_path;
    const QMetaMethod m_signal;
};

/// "name()" is the first signal of that name, "name(int)" the one with these arguments.
QMetaMethod findSignal(QObject* object, const QString& text, const QString& path)
{
    const QMetaObject* const metaObject = object->metaObject();
    const QByteArray signature = QMetaObject::normalizedSignature(text.toUtf8().constData());
    const QByteArray name = signature.left(signature.indexOf('('));
    for (int i = QObject::staticMetaObject.methodCount(); i < metaObject->methodCount(); ++i) {
        const QMetaMethod method = metaObject->method(i);
        if (method.methodType() != QMetaMethod::Signal || (method.attributes() & QMetaMethod::Cloned))
            continue;
        if (method.methodSignature() == signature || (signature.endsWith("()") && method.name() == name))
            return method;
    }
    throw RequestError(NoSuchPath, u"no such path \"%1\": %2 has no signal \"%3\""_s.arg(
                                       path, QLatin1String(metaObject->className()), text));
}

} // namespace

bool SignalRelay::attach(QObject* sender, const QMetaMethod& signal)
{
    for (int i = 0; i < signal.parameterCount(); ++i) {
        if (!signal.parameterMetaType(i).isValid() ||
            signal.parameterMetaType(i).id() == QMetaType::UnknownType)
            return false;
    }
    const int slot = QObject::staticMetaObject.methodCount();
    return bool(QMetaObject::connect(sender, signal.methodIndex(), this, slot, Qt::AutoConnection));
}

int SignalRelay::qt_metacall(QMetaObject::Call call, int id, void** arguments)
{
    id = QObject::qt_metacall(call, id, arguments);
    if (id == 0 && call == QMetaObject::InvokeMetaMethod && !m_stopped)
        emitted(arguments);
    return id < 0 ? id : id - 1;
}

Watches* Watches::of(Client* client)
{
    if (auto* const found = client->findChild<Watches*>(QString(), Qt::FindDirectChildrenOnly))
        return found;
    return new Watches(client);
}

std::unique_ptr<SignalRelay> Watches::makeRelay(const QString& monitor, const PathResolver& resolver,
                                                const QString& path)
{
    std::unique_ptr<SignalRelay> relay;
    QObject* sender = nullptr;
    QMetaMethod signal;
    const qsizetype parenthesis = path.indexOf(u'(');
    if (parenthesis >= 0) {
        QString front;
        QString name;
        PathResolver::splitLast(path.left(parenthesis), &front, &name);
        sender = resolver.object(front);
        signal = findSignal(sender, name + path.mid(parenthesis), path);
        relay = std::make_unique<EventRelay>(m_client, monitor, path, signal);
    } else {
        const Location location = resolver.resolve(path);
        if (!location.property.isValid() || !location.property.hasNotifySignal())
            throw RequestError(NoSuchPath, u"\"%1\" has no signal that tells of changes"_s.arg(path));
        sender = location.object;
        signal = location.property.notifySignal();
        relay = std::make_unique<PropertyRelay>(m_client, monitor, path, location);
    }
    if (!relay->attach(sender, signal))
        throw RequestError(NoSuchPath, u"the signal of \"%1\" cannot be watched"_s.arg(path));
    return relay;
}

void Watches::add(const QString& monitor, const PathResolver& resolver, const QStringList& paths)
{
    std::vector<std::pair<Key, std::unique_ptr<SignalRelay>>> added;
    for (const QString& path : paths) {
        const Key key(monitor, path);
        if (!m_relays.contains(key))
            added.emplace_back(key, makeRelay(monitor, resolver, path));
    }
    for (auto& [key, relay] : added) {
        if (!m_relays.contains(key)) // the same path twice in one request
            m_relays.insert(key, relay.release());
    }
}

void Watches::remove(const QString& monitor, const QStringList& paths)
{
    for (const QString& path : paths) {
        // It may be in the middle of an emission.
        if (SignalRelay* const relay = m_relays.take(Key(monitor, path))) {
            relay->stop();
            relay->deleteLater();
        }
    }
}

void Watches::removeMonitor(const QString& monitor)
{
    QStringList paths;
    for (auto entry = m_relays.constBegin(); entry != m_relays.constEnd(); ++entry) {
        if (entry.key().first == monitor)
            paths.append(entry.key().second);
    }
    remove(monitor, paths);
}

} // namespace control
