// SPDX-License-Identifier: Apache-2.0
#include "Commands.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QList>

using namespace Qt::StringLiterals;

namespace {

// clang-format off
constexpr Command Table[] = {
    {"monitors", "monitors", "", false, "list the monitors"},
    {"select", "select", "monitor:text", false, "make a monitor the current one"},
    {"get", "get", "path:text", true, "print a property"},
    {"set", "set", "path:text value:json", true, "set a property"},
    {"call", "call", "path:text args:json?*", true, "call an operation"},
    {"watch", "watch", "paths:text*", true, "print changes and signals until interrupted"},
    {"describe", "describe", "path:text?", true, "list properties, operations and signals"},
    {"events", "events", "since:json? run:json?", false, "list usage events"},
    {"idle", "idle", "", true, "wait until nothing is left to be done"},
    {"sync", "sync", "module:text?", true, "read the monitor back"},
    {"apply", "apply", "", true, "write the stored values to the monitor"},
    {"settings set", "settings.set", "key:text value:json", true, "write a setting"},
    {"settings remove", "settings.remove", "key:text", true, "remove a setting"},
    {"settings", "settings", "", true, "list the settings"},
    {"snapshot", "snapshot", "module:text", true, "record a module's properties, as a page opens"},
    {"fireUpdate", "fireUpdate", "module:text", true, "report a module's changes, as a page closes"},
    {"model", "model", "", true, "print facts on the monitor's model"},
    {"stats", "stats", "", true, "print statistics of the monitor's bus"},
    {"actions", "actions", "", true, "list the shortcut actions"},
    {"trigger", "trigger", "module:text properties:object", true, "set a module's properties as a flow does"},
    {"flowActions list", "flowActions.list", "flow:text?", true, "list the actions of a flow"},
    {"flowActions register", "flowActions.register", "flow:text title:json properties:object", true, "add an action to a flow"},
    {"flowActions unregister", "flowActions.unregister", "flow:text title:json", true, "remove an action of a flow"},
    {"queue", "queue", "", true, "list the jobs that wait"},
    {"forgetFirstConnection", "forgetFirstConnection", "", true, "meet the monitor anew at the next launch"},
    {"version", "version", "", false, "print the versions of the running program"},
    {"package", "package", "", false, "list the feature packages"},
    {"report", "report", "", false, "print a report for a bug ticket, without personal data"},
    {"log", "log", "since:json?", false, "print the log"},
    {"quit", "quit", "", false, "end the program"},
    {"sim get", "sim.get", "code:json window:json?", true, "read a value at the simulated monitor"},
    {"sim set", "sim.set", "code:json value:json window:json?", true, "change a value at the simulated monitor's menu"},
    {"sim traffic", "sim.traffic", "since:json?", true, "list what went over the wire"},
    {"sim fault", "sim.fault", "kind:text? code:json? op:text? count:json? probability:json?", true, "arm a fault, or clear all"},
    {"sim plug", "sim.plug", "monitor:text vcp:object?", false, "plug in a simulated monitor"},
    {"sim unplug", "sim.unplug", "", true, "unplug a simulated monitor"},
    {"sim overlay", "sim.overlay", "", true, "tell of the overlay that darkens the monitor"},
    {"sim room", "sim.room", "ambientLight:json? presence:json?", true, "change the simulated room, print the monitor's light"},
    {"sim reset", "sim.reset", "", true, "put factory values back"},
    {"services get", "services.get", "path:text", false, "read the simulated session"},
    {"services set", "services.set", "path:text value:json", false, "change the simulated session"},
    {"services emit", "services.emit", "signal:text args:json?", false, "raise a signal of the simulated session"},
    {"clock get", "clock.get", "", false, "print the program's time"},
    {"clock set", "clock.set", "time:text", false, "stop the clock at a time"},
    {"clock advance", "clock.advance", "ms:json", false, "move the clock by milliseconds"},
    {"ui widgets", "ui.widgets", "", false, "list the panels' widgets"},
    {"ui show", "ui.show", "", false, "show the main window"},
    {"ui hide", "ui.hide", "", false, "hide the main window"},
    {"ui open", "ui.open", "widget:text? section:text? popup:text?", false, "open a page, a section or a popup"},
    {"ui close", "ui.close", "widget:text? section:text? popup:text?", false, "close a page, a section or a popup"},
    {"ui tree", "ui.tree", "widget:text?", false, "print the accessible tree"},
    {"ui windows", "ui.windows", "", false, "list the windows"},
    {"ui mouse", "ui.mouse", "window:text kind:text x:json y:json", false, "pointer input to a window"},
    {"ui press", "ui.press", "name:text role:text? within:text?", false, "press a control"},
    {"ui setValue", "ui.setValue", "name:text value:json role:text? within:text?", false, "set a control's value"},
    {"ui key", "ui.key", "name:text key:text role:text? within:text?", false, "press a key on a control"},
    {"ui screenshot", "ui.screenshot", "file:text widget:text? theme:text?", false, "write a picture of the window"},
    {"ui warnings", "ui.warnings", "", false, "print the warnings of the panels"},
    {"raw", "", "method:text params:object?", false, "call any method of the protocol"},
};
// clang-format on

struct Parameter
{
    QString name;
    QString kind;
    bool optional = false;
    bool many = false;
};

QList<Parameter> parametersOf(const Command& command)
{
    QList<Parameter> result;
    const QStringList entries = QString::fromLatin1(command.parameters).split(u' ', Qt::SkipEmptyParts);
    for (QString entry : entries) {
        Parameter parameter;
        parameter.many = entry.endsWith(u'*');
        if (parameter.many)
            entry.chop(1);
        parameter.optional = entry.endsWith(u'?');
        if (parameter.optional)
            entry.chop(1);
        parameter.name = entry.section(u':', 0, 0);
        parameter.kind = entry.section(u':', 1);
        result.append(parameter);
    }
    return result;
}

QJsonValue jsonOrText(const QString& text)
{
    const QJsonDocument document = QJsonDocument::fromJson('[' + text.toUtf8() + ']');
    const QJsonArray array = document.array();
    return array.size() == 1 ? array.first() : QJsonValue(text);
}

bool convert(const Parameter& parameter, const QString& text, QJsonValue* value, QString* error)
{
    *value = parameter.kind == "text"_L1 ? QJsonValue(text) : jsonOrText(text);
    if (parameter.kind == "object"_L1 && !value->isObject()) {
        *error = u"%1 must be a JSON object"_s.arg(parameter.name.toUpper());
        return false;
    }
    return true;
}

} // namespace

std::span<const Command> commands()
{
    return Table;
}

const Command* takeCommand(QStringList* arguments)
{
    // "settings set" stands in front of "settings".
    for (const Command& command : Table) {
        const QStringList words = QString::fromLatin1(command.words).split(u' ');
        if (arguments->mid(0, words.size()) == words) {
            arguments->remove(0, words.size());
            return &command;
        }
    }
    return nullptr;
}

bool readArguments(const Command& command, const QStringList& arguments, QJsonObject* parameters,
                   QString* error)
{
    const QList<Parameter> wanted = parametersOf(command);
    QStringList positional;
    for (const QString& argument : arguments) {
        const qsizetype equals = argument.indexOf(u'=');
        const auto named = std::find_if(wanted.begin(), wanted.end(), [&](const Parameter& parameter) {
            return equals > 0 && !parameter.many && parameter.name == argument.left(equals);
        });
        if (named == wanted.end()) {
            positional.append(argument);
            continue;
        }
        QJsonValue value;
        if (!convert(*named, argument.mid(equals + 1), &value, error))
            return false;
        parameters->insert(named->name, value);
    }
    for (const Parameter& parameter : wanted) {
        if (parameters->contains(parameter.name))
            continue;
        if (positional.isEmpty() && !parameter.optional) {
            *error = u"%1 is missing"_s.arg(parameter.name.toUpper());
            return false;
        }
        QJsonArray list;
        while (!positional.isEmpty() && (parameter.many || list.isEmpty())) {
            QJsonValue value;
            if (!convert(parameter, positional.takeFirst(), &value, error))
                return false;
            list.append(value);
        }
        if (parameter.many)
            parameters->insert(parameter.name, list);
        else if (!list.isEmpty())
            parameters->insert(parameter.name, list.first());
    }
    if (!positional.isEmpty()) {
        *error = u"\"%1\" is one argument too many"_s.arg(positional.first());
        return false;
    }
    return true;
}

QString usageOf(const Command& command)
{
    QString usage = QString::fromLatin1(command.words);
    const QList<Parameter> wanted = parametersOf(command);
    for (const Parameter& parameter : wanted) {
        QString name = parameter.name.toUpper();
        if (parameter.many)
            name = (name.endsWith(u'S') ? name.chopped(1) : name) + u"..."_s;
        usage += parameter.optional ? u" [%1]"_s.arg(name) : u" %1"_s.arg(name);
    }
    return usage;
}
