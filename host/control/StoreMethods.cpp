// SPDX-License-Identifier: Apache-2.0
#include "MonitorAccess.h"
#include "ValueReader.h"
#include "ValueWriter.h"

#include <LuShared/LuMonitorModel.h>

#include "lushared/LuEventLog.h"
#include "lushared/LuModelHost.h"
#include "lushared/LuSettings.h"

#include <QJsonArray>

using namespace Qt::StringLiterals;

namespace control {

namespace {

QJsonArray events(const Parameters& parameters)
{
    const auto since = quint64(parameters.optionalInteger(u"since"_s, 0).value_or(0));
    const auto run =
        int(parameters.optionalInteger(u"run"_s, std::numeric_limits<int>::min(), 0).value_or(0));
    QJsonArray list;
    const QList<LuEvent> found = LuEventLog::instance().events(since, run);
    for (const LuEvent& event : found) {
        QJsonObject entry{
            {u"seq"_s, qint64(event.seq)},
            {u"run"_s, event.run},
            {u"time"_s, event.time.toLocalTime().toString(Qt::ISODateWithMs)},
            {u"monitor"_s, event.monitor},
            {u"module"_s, event.module},
            {u"action"_s, event.action},
            {u"kind"_s, event.onOff ? u"onOff"_s : u"custom"_s},
            {u"source"_s, event.source},
            {u"parameters"_s, QJsonArray::fromStringList(event.parameters)},
        };
        if (event.onOff)
            entry.insert(u"on"_s, event.on);
        else
            entry.insert(u"event"_s, event.event);
        list.append(entry);
    }
    return list;
}

QString prefixOf(const LuMonitorModel* model)
{
    return LuModelHost::monitorSection(model) + u'/';
}

/// A stored value in JSON; null where it has no such form.
QJsonValue storedValue(const QString& key)
{
    try {
        return toJson(LuSettings::instance().value(key));
    } catch (const RequestError&) {
        return {};
    }
}

QJsonObject settings(const LuMonitorModel* model)
{
    const QString prefix = prefixOf(model);
    QJsonObject ofMonitor;
    QJsonObject ofApplication;
    const QStringList keys = LuSettings::instance().allKeys();
    for (const QString& key : keys) {
        if (key.startsWith(prefix))
            ofMonitor.insert(key.mid(prefix.size()), storedValue(key));
        else
            ofApplication.insert(key, storedValue(key));
    }
    return {{u"monitor"_s, ofMonitor}, {u"application"_s, ofApplication}};
}

/// The key in the store of the one that the request names.
QString storeKey(const MonitorAccess& access, const Request& request)
{
    const QString key = request.parameters.text(u"key"_s);
    if (key.isEmpty() || key.startsWith(u'/') || key.endsWith(u'/') || key.contains("//"_L1) ||
        key.contains(u'\0'))
        throw RequestError(InvalidParameters, u"\"%1\" is no key of a setting"_s.arg(key.left(100)));
    return request.parameters.contains(u"monitor"_s) ? prefixOf(access.monitor(request)) + key : key;
}

} // namespace

void addStoreMethods(Server* server, MonitorAccess* access)
{
    Dispatcher& dispatcher = server->dispatcher();
    dispatcher.addMethod(u"events"_s, {u"since"_s, u"run"_s},
                         [](const Request& request) { return QJsonValue(events(request.parameters)); });
    dispatcher.addMethod(u"settings"_s, {u"monitor"_s}, [access](const Request& request) {
        return QJsonValue(settings(access->monitor(request)));
    });
    dispatcher.addMethod(
        u"settings.set"_s, {u"monitor"_s, u"key"_s, u"value"_s}, [access](const Request& request) {
            const QString key = storeKey(*access, request);
            LuSettings::instance().setValue(key, ValueReader::readAny(request.parameters.value(u"value"_s)));
            return QJsonValue(QJsonObject());
        });
    dispatcher.addMethod(u"settings.remove"_s, {u"monitor"_s, u"key"_s}, [access](const Request& request) {
        LuSettings::instance().remove(storeKey(*access, request));
        return QJsonValue(QJsonObject());
    });
}

} // namespace control
