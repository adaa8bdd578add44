// SPDX-License-Identifier: Apache-2.0
#include "WindowMethods.h"

#include <ZrCore/ZrAsker.h>
#include <control/Server.h>
#include <control/ValueReader.h>
#include <qml/LuWindowBridge.h>

#include <QJsonArray>
#include <QPointF>

using namespace Qt::StringLiterals;
using namespace control;

namespace {

using Bridge = std::function<LuWindowBridge*()>;

constexpr double FarthestPixel = 1e6;

LuWindowBridge& needed(const Bridge& bridge)
{
    LuWindowBridge* const windows = bridge ? bridge() : nullptr;
    if (!windows)
        throw RequestError(NoWindow, u"the program runs without a window"_s);
    return *windows;
}

/// For a request that acts on a window as a person does.
LuWindowBridge& acted(const Bridge& bridge)
{
    ZrAsker::noteInput();
    return needed(bridge);
}

QJsonValue valueOf(const LuWindowBridge::Result& result)
{
    if (!result.ok())
        throw RequestError(result.code, result.message);
    return result.value;
}

QString optional(const Request& request, const QString& name)
{
    return request.parameters.optionalText(name).value_or(QString());
}

/// The one of "widget", "section" and "popup" that a request names.
QString targetKind(const Request& request)
{
    QStringList given;
    for (const QString& name : {u"widget"_s, u"section"_s, u"popup"_s}) {
        if (request.parameters.contains(name))
            given.append(name);
    }
    if (given.size() != 1)
        throw RequestError(InvalidParameters,
                           u"one of the parameters \"widget\", \"section\" and \"popup\" is needed"_s);
    return given.first();
}

QJsonValue open(LuWindowBridge& windows, const Request& request)
{
    const QString kind = targetKind(request);
    const QString name = request.parameters.text(kind);
    if (kind == "widget"_L1)
        return valueOf(windows.openPage(name));
    return valueOf(kind == "section"_L1 ? windows.openSection(name) : windows.openPopup(name));
}

QJsonValue mouse(LuWindowBridge& windows, const Request& request)
{
    const Parameters& parameters = request.parameters;
    const QString kind = parameters.text(u"kind"_s);
    if (!QStringList{u"press"_s, u"move"_s, u"release"_s, u"click"_s}.contains(kind))
        throw RequestError(InvalidParameters,
                           u"parameter \"kind\" must be \"press\", \"move\", \"release\" or \"click\""_s);
    const QPointF position(parameters.number(u"x"_s, -FarthestPixel, FarthestPixel),
                           parameters.number(u"y"_s, -FarthestPixel, FarthestPixel));
    return valueOf(windows.mouse(parameters.text(u"window"_s), kind, position));
}

void addViewMethods(Dispatcher& dispatcher, const Bridge& bridge)
{
    dispatcher.addMethod(u"ui.widgets"_s, {},
                         [bridge](const Request&) { return valueOf(needed(bridge).widgetInfos()); });
    dispatcher.addMethod(u"ui.windows"_s, {},
                         [bridge](const Request&) { return valueOf(needed(bridge).windows()); });
    dispatcher.addMethod(u"ui.focus"_s, {},
                         [bridge](const Request&) { return valueOf(needed(bridge).focus()); });
    dispatcher.addMethod(u"ui.frames"_s, {},
                         [bridge](const Request&) { return valueOf(needed(bridge).frames()); });
    dispatcher.addMethod(u"ui.problems"_s, {},
                         [bridge](const Request&) { return valueOf(needed(bridge).problems()); });
    dispatcher.addMethod(u"ui.warnings"_s, {}, [bridge](const Request&) {
        return QJsonValue(QJsonArray::fromStringList(needed(bridge).warnings()));
    });
    dispatcher.addMethod(u"ui.tree"_s, {u"widget"_s}, [bridge](const Request& request) {
        return valueOf(needed(bridge).tree(optional(request, u"widget"_s)));
    });
    dispatcher.addMethod(u"ui.screenshot"_s, {u"file"_s, u"widget"_s, u"theme"_s},
                         [bridge](const Request& request) {
                             return valueOf(needed(bridge).screenshot(request.parameters.text(u"file"_s),
                                                                      optional(request, u"widget"_s),
                                                                      optional(request, u"theme"_s)));
                         });
}

void addControlMethods(Dispatcher& dispatcher, const Bridge& bridge)
{
    const QString name = u"name"_s;
    const QString role = u"role"_s;
    const QString within = u"within"_s;
    dispatcher.addMethod(
        u"ui.press"_s, {name, role, within}, [bridge, name, role, within](const Request& request) {
            return valueOf(acted(bridge).press(request.parameters.text(name), optional(request, role),
                                               optional(request, within)));
        });
    dispatcher.addMethod(
        u"ui.setValue"_s, {name, role, within, u"value"_s},
        [bridge, name, role, within](const Request& request) {
            const QVariant value = ValueReader::readAny(request.parameters.value(u"value"_s));
            return valueOf(acted(bridge).setValue(request.parameters.text(name), value,
                                                  optional(request, role), optional(request, within)));
        });
    dispatcher.addMethod(
        u"ui.key"_s, {name, role, within, u"key"_s}, [bridge, name, role, within](const Request& request) {
            return valueOf(acted(bridge).key(optional(request, name), request.parameters.text(u"key"_s),
                                             optional(request, role), optional(request, within)));
        });
}

} // namespace

void addWindowMethods(Server* server, Bridge bridge)
{
    Dispatcher& dispatcher = server->dispatcher();
    // A second instance asks for it, whatever else is going on.
    dispatcher.addMethod(
        u"ui.show"_s, {}, [bridge](const Request&) { return valueOf(needed(bridge).show()); },
        Dispatcher::When::Always);
    dispatcher.addMethod(u"ui.hide"_s, {},
                         [bridge](const Request&) { return valueOf(needed(bridge).hide()); });
    dispatcher.addMethod(u"ui.open"_s, {u"widget"_s, u"section"_s, u"popup"_s},
                         [bridge](const Request& request) { return open(needed(bridge), request); });
    dispatcher.addMethod(
        u"ui.close"_s, {u"widget"_s, u"section"_s, u"popup"_s}, [bridge](const Request& request) {
            return valueOf(needed(bridge).close(request.parameters.text(targetKind(request))));
        });
    dispatcher.addMethod(u"ui.mouse"_s, {u"window"_s, u"kind"_s, u"x"_s, u"y"_s},
                         [bridge](const Request& request) { return mouse(acted(bridge), request); });
    addViewMethods(dispatcher, bridge);
    addControlMethods(dispatcher, bridge);
}
