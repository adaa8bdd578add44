// SPDX-License-Identifier: Apache-2.0
// Lines of a client, newline by newline, through the parser, the dispatcher, paths and values on a small
// object tree.
#include "../../unit/control/TestObjects.h"

#include <control/Dispatcher.h>
#include <control/ObjectAccess.h>
#include <control/Watches.h>

#include <QCoreApplication>
#include <QJsonDocument>

#include <cstdint>
#include <cstdlib>

using namespace Qt::StringLiterals;
using namespace control;

namespace {

/// Counts what it is given: every line must end in exactly one finish().
class CountingClient : public Client
{
public:
    void notify(const QJsonObject& message) override { (void)QJsonDocument(message).toJson(); }
    void finish(const QJsonObject& answer) override
    {
        ++finished;
        (void)QJsonDocument(answer).toJson();
    }
    int finished = 0;
};

void addMethods(Dispatcher& dispatcher, Model& model)
{
    const auto access = [&model] { return ObjectAccess(&model, &model); };
    dispatcher.addMethod(u"get"_s, {u"path"_s}, [access](const Request& r) {
        return QJsonValue(access().get(r.parameters.text(u"path"_s)));
    });
    dispatcher.addMethod(u"set"_s, {u"path"_s, u"value"_s}, [access](const Request& r) {
        access().set(r.parameters.text(u"path"_s), r.parameters.value(u"value"_s));
        return QJsonValue(QJsonObject());
    });
    dispatcher.addMethod(u"call"_s, {u"path"_s, u"args"_s}, [access](const Request& r) {
        return QJsonValue(access().call(r.parameters.text(u"path"_s), r.parameters.array(u"args"_s)));
    });
    dispatcher.addMethod(u"describe"_s, {u"path"_s}, [access](const Request& r) {
        return QJsonValue(access().describe(r.parameters.text(u"path"_s)));
    });
    dispatcher.addMethod(u"watch"_s, {u"paths"_s}, [&model](const Request& r) {
        Watches::of(r.client)->add(u"m"_s, PathResolver(&model, &model), r.parameters.texts(u"paths"_s));
        return QJsonValue(QJsonObject());
    });
    dispatcher.addMethod(u"code"_s, {u"code"_s, u"count"_s}, [](const Request& r) {
        return QJsonValue(r.parameters.code(u"code"_s, 0, 255) +
                          r.parameters.optionalInteger(u"count"_s, 0, 10).value_or(0));
    });
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static int argc = 1;
    static char name[] = "fuzz";
    static char* argv[] = {name, nullptr};
    static QCoreApplication application(argc, argv);

    Model model;
    Dispatcher dispatcher;
    addMethods(dispatcher, model);
    CountingClient client;
    const QByteArray input(reinterpret_cast<const char*>(data), qsizetype(size));
    const QList<QByteArray> lines = input.split('\n');
    for (const QByteArray& line : lines)
        dispatcher.handleLine(&client, line);
    if (client.finished != lines.size())
        std::abort();
    return 0;
}
