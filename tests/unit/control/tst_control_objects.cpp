// SPDX-License-Identifier: Apache-2.0
#include "TestObjects.h"

#include <control/ObjectAccess.h>
#include <control/RequestError.h>
#include <control/Watches.h>

#include <QJsonArray>
#include <QtTest>

#include <thread>

using namespace Qt::StringLiterals;
using namespace control;

namespace {

template <class Function>
int codeOf(Function function)
{
    try {
        function();
    } catch (const RequestError& error) {
        return error.message().isEmpty() ? 999 : error.code();
    }
    return 0;
}

class RecordingClient : public Client
{
public:
    void notify(const QJsonObject& message) override { messages.append(message); }
    void finish(const QJsonObject&) override {}
    QList<QJsonObject> messages;
};

QStringList namesOf(const QJsonValue& list)
{
    QStringList names;
    const QJsonArray array = list.toArray();
    for (const QJsonValue& entry : array)
        names.append(entry.toObject().value("name"_L1).toString());
    return names;
}

QJsonObject named(const QJsonValue& list, const QString& name)
{
    const QJsonArray array = list.toArray();
    for (const QJsonValue& entry : array) {
        if (entry.toObject().value("name"_L1) == name)
            return entry.toObject();
    }
    return {};
}

} // namespace

/// Paths, operations, descriptions and watches.
class TestControlObjects : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aPathLeadsToItsValue_data();
    void aPathLeadsToItsValue();
    void aPathThatLeadsNowhereIsNamed_data();
    void aPathThatLeadsNowhereIsNamed();
    void whatCannotBeWrittenIsRefused_data();
    void whatCannotBeWrittenIsRefused();
    void anOperationReturnsItsValue_data();
    void anOperationReturnsItsValue();
    void aCallThatDoesNotFitIsRefused_data();
    void aCallThatDoesNotFitIsRefused();
    void nothingOfQObjectItselfCanBeReached();
    void describeTellsEverythingInOrder();
    void describeNamesTheKeysOfEnumerations();
    void eachEmissionGivesOneNotification();
    void aSignalComesWithItsArguments();
    void watchingTwiceIsWatchingOnce();
    void unwatchedPathsAreSilent();
    void aWrongPathWatchesNoneOfItsRequest();
    void emissionsOfOtherThreadsNeitherBlockNorGetLost();
    void aWatchEndsWithItsMonitorItsObjectOrItsClient();
};

void TestControlObjects::aPathLeadsToItsValue_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QJsonValue>("value");
    QTest::newRow("property") << "name" << QJsonValue(u"model"_s);
    QTest::newRow("nested") << "module.fixed" << QJsonValue(42);
    QTest::newRow("inherited") << "module.syncEnable" << QJsonValue(false);
    QTest::newRow("entry") << "module.flows[1].name" << QJsonValue(u"Play"_s);
    QTest::newRow("node") << "colorModeList[0]" << QJsonValue(u"Standard"_s);
    QTest::newRow("property of a node") << "colorModeList[1].contrastEnable" << QJsonValue(1);
    QTest::newRow("property of the derived class") << "colorMode.contrastEnable" << QJsonValue(1);
    QTest::newRow("through itself") << "module.self.self.fixed" << QJsonValue(42);
    QTest::newRow("string entry") << "module.names[1]" << QJsonValue(u"b"_s);
    QTest::newRow("member of a value") << "module.size.width" << QJsonValue(3);
    QTest::newRow("member of a gadget") << "module.gadget.depth" << QJsonValue(3);
    QTest::newRow("member of a map") << "module.map.outer.inner[1]" << QJsonValue(2);
    QTest::newRow("object in a map") << "module.map.flow.name" << QJsonValue(u"Work"_s);
    QTest::newRow("list in json") << "module.json.list[0]" << QJsonValue(5);
    QTest::newRow("context") << "context.name" << QJsonValue(u"context"_s);
    QTest::newRow("in the context") << "context.module.level" << QJsonValue(0);
}

void TestControlObjects::aPathLeadsToItsValue()
{
    QFETCH(QString, path);
    QFETCH(QJsonValue, value);
    Model model;
    Model context;
    context.name = u"context"_s;
    Module& module = *model.module();
    module.names = {u"a"_s, u"b"_s};
    module.size = {3, 4};
    module.map = {{u"outer"_s, QVariantMap{{u"inner"_s, QVariantList{1, 2}}}},
                  {u"flow"_s, QVariant::fromValue(module.flows[0])}};
    module.json = {{u"list"_s, QJsonArray{5}}};
    QCOMPARE(ObjectAccess(&model, &context).get(path), value);
}

void TestControlObjects::aPathThatLeadsNowhereIsNamed_data()
{
    QTest::addColumn<QString>("path");
    for (const char* path : {"",
                             ".",
                             "name.",
                             ".name",
                             "nope",
                             "module.nope",
                             "module.nothing.x",
                             "module.level.x",
                             "module.flows[2]",
                             "module.flows[-1]",
                             "module.flows[]",
                             "module.flows[0",
                             "module.flows[0]x",
                             "module.flows[a]",
                             "name[0]",
                             "module.size.depth",
                             "[0]",
                             "context",
                             "context.name",
                             "module..level",
                             "module.flows[99999999999999999999]",
                             "Module.level",
                             "module level",
                             "module.add",
                             "objectName",
                             "module.map.x"})
        QTest::newRow(path) << QString::fromLatin1(path);
}

void TestControlObjects::aPathThatLeadsNowhereIsNamed()
{
    QFETCH(QString, path);
    Model model;
    QCOMPARE(codeOf([&] { ObjectAccess(&model, nullptr).get(path); }), int(NoSuchPath));
    QCOMPARE(codeOf([&] { ObjectAccess(&model, nullptr).set(path, 1); }), int(NoSuchPath));
}

void TestControlObjects::whatCannotBeWrittenIsRefused_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("constant") << "module.fixed";
    QTest::newRow("entry of a list") << "module.numbers[0]";
    QTest::newRow("member of a value") << "module.size.width";
    QTest::newRow("constant of an entry") << "module.flows[0].id";
}

void TestControlObjects::whatCannotBeWrittenIsRefused()
{
    QFETCH(QString, path);
    Model model;
    model.module()->numbers = {1};
    QCOMPARE(codeOf([&] { ObjectAccess(&model, nullptr).set(path, 5); }), int(NotWritable));
    QCOMPARE(model.module()->numbers, QList<int>{1});
}

void TestControlObjects::anOperationReturnsItsValue_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QJsonArray>("arguments");
    QTest::addColumn<QJsonValue>("value");
    QTest::newRow("of the model") << "touch" << QJsonArray() << QJsonValue();
    QTest::newRow("two numbers") << "module.add" << QJsonArray{2, 3} << QJsonValue(5);
    QTest::newRow("inherited") << "module.baseOperation" << QJsonArray() << QJsonValue(1);
    QTest::newRow("one argument") << "module.join" << QJsonArray{u"a"_s} << QJsonValue(u"a"_s);
    QTest::newRow("two arguments") << "module.join" << QJsonArray{u"a"_s, u"b"_s} << QJsonValue(u"ab"_s);
    QTest::newRow("the number's overload") << "module.either" << QJsonArray{1} << QJsonValue(u"number"_s);
    QTest::newRow("the text's overload") << "module.either" << QJsonArray{u"1"_s} << QJsonValue(u"text"_s);
    QTest::newRow("default left out") << "module.withDefault" << QJsonArray{1} << QJsonValue(11);
    QTest::newRow("default given") << "module.withDefault" << QJsonArray{1, 2} << QJsonValue(3);
    QTest::newRow("anything") << "module.echo" << QJsonArray{QJsonObject{{u"a"_s, 1}}}
                              << QJsonValue(QJsonObject{{u"a"_s, 1}});
    QTest::newRow("slot") << "module.slotOperation" << QJsonArray() << QJsonValue();
    QTest::newRow("of the context") << "context.touch" << QJsonArray() << QJsonValue();
}

void TestControlObjects::anOperationReturnsItsValue()
{
    QFETCH(QString, path);
    QFETCH(QJsonArray, arguments);
    QFETCH(QJsonValue, value);
    Model model;
    Model context;
    QCOMPARE(ObjectAccess(&model, &context).call(path, arguments), value);
    QCOMPARE(model.touched, path == "touch"_L1 ? 1 : 0);
    QCOMPARE(context.touched, path == "context.touch"_L1 ? 1 : 0);
}

void TestControlObjects::aCallThatDoesNotFitIsRefused_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QJsonArray>("arguments");
    QTest::addColumn<int>("code");
    QTest::newRow("unknown") << "module.fly" << QJsonArray() << int(NoSuchPath);
    QTest::newRow("no name") << "module." << QJsonArray() << int(NoSuchPath);
    QTest::newRow("property") << "module.level" << QJsonArray() << int(NoSuchPath);
    QTest::newRow("signal") << "module.levelChanged" << QJsonArray() << int(NoSuchPath);
    QTest::newRow("private slot") << "module.secret" << QJsonArray() << int(NoSuchPath);
    QTest::newRow("plain function") << "module.notInvokable" << QJsonArray() << int(NoSuchPath);
    QTest::newRow("of null") << "module.nothing.x" << QJsonArray() << int(NoSuchPath);
    QTest::newRow("of a value") << "module.level.x" << QJsonArray() << int(NoSuchPath);
    QTest::newRow("too few") << "module.add" << QJsonArray{1} << int(InvalidParameters);
    QTest::newRow("too many") << "module.add" << QJsonArray{1, 2, 3} << int(InvalidParameters);
    QTest::newRow("wrong type") << "module.add" << QJsonArray{1, u"2"_s} << int(WrongValue);
    QTest::newRow("unknown name") << "module.setMode" << QJsonArray{u"Sideways"_s} << int(WrongValue);
}

void TestControlObjects::aCallThatDoesNotFitIsRefused()
{
    QFETCH(QString, path);
    QFETCH(QJsonArray, arguments);
    QFETCH(int, code);
    Model model;
    QCOMPARE(codeOf([&] { ObjectAccess(&model, nullptr).call(path, arguments); }), code);
}

void TestControlObjects::nothingOfQObjectItselfCanBeReached()
{
    Model model;
    QPointer<Module> module = model.module();
    const ObjectAccess access(&model, nullptr);
    QCOMPARE(codeOf([&] { access.call(u"module.deleteLater"_s, {}); }), int(NoSuchPath));
    QCOMPARE(codeOf([&] { access.set(u"module.objectName"_s, u"x"_s); }), int(NoSuchPath));
    QCOMPARE(codeOf([&] {
                 RecordingClient client;
                 Watches(&client).add(u"m"_s, access.resolver(), {u"module.destroyed()"_s});
             }),
             int(NoSuchPath));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(module);
}

void TestControlObjects::describeTellsEverythingInOrder()
{
    Model model;
    const QJsonObject told = ObjectAccess(&model, nullptr).describe(u"module"_s);
    QCOMPARE(told.value("class"_L1), QJsonValue(u"Module"_s));
    const QStringList properties = namesOf(told.value("properties"_L1));
    QCOMPARE(properties.mid(0, 4), (QStringList{u"syncEnable"_s, u"level"_s, u"state"_s, u"ratio"_s}));
    QCOMPARE(properties.last(), u"self"_s);
    QCOMPARE(namesOf(told.value("operations"_L1)),
             (QStringList{u"baseOperation"_s, u"slotOperation"_s, u"add"_s, u"join"_s, u"join"_s, u"either"_s,
                          u"either"_s, u"withDefault"_s, u"setMode"_s, u"nameOf"_s, u"codeOf"_s, u"echo"_s,
                          u"fireHappened"_s}));
    QCOMPARE(namesOf(told.value("signals"_L1)),
             (QStringList{u"syncEnableChanged"_s, u"levelChanged"_s, u"stateChanged"_s, u"activeChanged"_s,
                          u"happened"_s}));
    QCOMPARE(named(told.value("properties"_L1), u"level"_s), (QJsonObject{{u"name"_s, u"level"_s},
                                                                          {u"type"_s, u"int"_s},
                                                                          {u"readable"_s, true},
                                                                          {u"writable"_s, true},
                                                                          {u"constant"_s, false},
                                                                          {u"notify"_s, u"levelChanged"_s}}));
    const QJsonObject fixed = named(told.value("properties"_L1), u"fixed"_s);
    QCOMPARE(fixed.value("constant"_L1), QJsonValue(true));
    QCOMPARE(fixed.value("writable"_L1), QJsonValue(false));
    QVERIFY(!fixed.contains("notify"_L1));
    QCOMPARE(named(told.value("operations"_L1), u"add"_s),
             (QJsonObject{{u"name"_s, u"add"_s},
                          {u"parameters"_s, QJsonArray{u"int"_s, u"int"_s}},
                          {u"returns"_s, u"int"_s}}));
    QCOMPARE(
        named(told.value("signals"_L1), u"happened"_s),
        (QJsonObject{{u"name"_s, u"happened"_s}, {u"parameters"_s, QJsonArray{u"int"_s, u"QString"_s}}}));
    QCOMPARE(ObjectAccess(&model, nullptr).describe({}).value("class"_L1), QJsonValue(u"Model"_s));
    QCOMPARE(codeOf([&] { ObjectAccess(&model, nullptr).describe(u"module.level"_s); }), int(NoSuchPath));
    QCOMPARE(codeOf([&] { ObjectAccess(&model, nullptr).describe(u"module.nothing"_s); }), int(NoSuchPath));
}

void TestControlObjects::describeNamesTheKeysOfEnumerations()
{
    Model model;
    const QJsonObject told = ObjectAccess(&model, nullptr).describe(u"module"_s);
    QCOMPARE(named(told.value("properties"_L1), u"mode"_s).value("keys"_L1).toObject(),
             (QJsonObject{{u"Off"_s, 0}, {u"On"_s, 1}, {u"Auto"_s, 7}}));
    QCOMPARE(named(told.value("properties"_L1), u"options"_s).value("keys"_L1).toObject(),
             (QJsonObject{{u"A"_s, 1}, {u"B"_s, 2}, {u"C"_s, 4}}));
    QVERIFY(!named(told.value("properties"_L1), u"level"_s).contains("keys"_L1));
}

void TestControlObjects::eachEmissionGivesOneNotification()
{
    Model model;
    RecordingClient client;
    Watches::of(&client)->add(u"m"_s, PathResolver(&model, nullptr), {u"module.level"_s});
    QVERIFY(client.messages.isEmpty());
    model.module()->setLevel(5);
    model.module()->setLevel(5);
    QCOMPARE(client.messages.size(), 2);
    QCOMPARE(client.messages[0].value("method"_L1), QJsonValue(u"changed"_s));
    QVERIFY(!client.messages[0].contains("id"_L1));
    QCOMPARE(client.messages[1].value("params"_L1).toObject(),
             (QJsonObject{{u"monitor"_s, u"m"_s}, {u"path"_s, u"module.level"_s}, {u"value"_s, 5}}));
}

void TestControlObjects::aSignalComesWithItsArguments()
{
    Model model;
    RecordingClient client;
    Watches::of(&client)->add(u"m"_s, PathResolver(&model, nullptr),
                              {u"module.happened()"_s, u"module.happened(int, QString)"_s});
    model.module()->fireHappened(3, u"x"_s);
    QCOMPARE(client.messages.size(), 2);
    QCOMPARE(client.messages[0].value("method"_L1), QJsonValue(u"signal"_s));
    QCOMPARE(client.messages[0].value("params"_L1).toObject(),
             (QJsonObject{{u"monitor"_s, u"m"_s},
                          {u"path"_s, u"module.happened()"_s},
                          {u"args"_s, QJsonArray{3, u"x"_s}}}));
}

void TestControlObjects::watchingTwiceIsWatchingOnce()
{
    Model model;
    RecordingClient client;
    const PathResolver resolver(&model, nullptr);
    Watches::of(&client)->add(u"m"_s, resolver, {u"module.level"_s, u"module.level"_s});
    Watches::of(&client)->add(u"m"_s, resolver, {u"module.level"_s});
    model.module()->setLevel(1);
    QCOMPARE(client.messages.size(), 1);
}

void TestControlObjects::unwatchedPathsAreSilent()
{
    Model model;
    RecordingClient client;
    const PathResolver resolver(&model, nullptr);
    Watches::of(&client)->add(u"m"_s, resolver, {u"module.level"_s, u"name"_s});
    Watches::of(&client)->remove(u"m"_s, {u"module.level"_s, u"never.watched"_s});
    model.module()->setLevel(1);
    Q_EMIT model.nameChanged();
    QCOMPARE(client.messages.size(), 1);
    Watches::of(&client)->add(u"m"_s, resolver, {u"module.level"_s});
    model.module()->setLevel(2);
    QCOMPARE(client.messages.size(), 2);
}

void TestControlObjects::aWrongPathWatchesNoneOfItsRequest()
{
    Model model;
    RecordingClient client;
    const PathResolver resolver(&model, nullptr);
    for (const QString& wrong : {u"module.fixed"_s, u"module.nope"_s, u"module.nope()"_s, u"()"_s, u""_s,
                                 u"module.happened(bool)"_s, u"module.add()"_s}) {
        QCOMPARE(codeOf([&] {
                     Watches::of(&client)->add(u"m"_s, resolver, {u"module.level"_s, wrong});
                 }),
                 int(NoSuchPath));
    }
    model.module()->setLevel(1);
    QVERIFY(client.messages.isEmpty());
}

void TestControlObjects::emissionsOfOtherThreadsNeitherBlockNorGetLost()
{
    Model model;
    RecordingClient client;
    Watches::of(&client)->add(u"m"_s, PathResolver(&model, nullptr),
                              {u"module.happened()"_s, u"module.state"_s});
    constexpr int Count = 5000;
    std::thread emitter([&model] {
        for (int i = 0; i < Count; ++i) {
            model.module()->fireHappened(i, u"x"_s);
            Q_EMIT model.module()->stateChanged();
        }
    });
    emitter.join(); // while nobody reads events: the emissions have not waited
    QTRY_COMPARE(client.messages.size(), 2 * Count);
    int expected = 0;
    for (const QJsonObject& message : std::as_const(client.messages)) {
        if (message.value("method"_L1) == "signal"_L1) {
            const QJsonArray args = message.value("params"_L1).toObject().value("args"_L1).toArray();
            QCOMPARE(args[0].toInt(), expected++);
        }
    }
    QCOMPARE(expected, Count);
}

void TestControlObjects::aWatchEndsWithItsMonitorItsObjectOrItsClient()
{
    Model model;
    RecordingClient client;
    auto passing = std::make_unique<RecordingClient>();
    const PathResolver resolver(&model, nullptr);
    Watches::of(passing.get())->add(u"m"_s, resolver, {u"module.level"_s});
    Watches::of(&client)->add(u"m"_s, resolver, {u"module.level"_s, u"module.flows[0].name"_s});
    Watches::of(&client)->add(u"other"_s, resolver, {u"name"_s});
    passing.reset();
    delete model.module()->flows.takeFirst();
    Watches::of(&client)->removeMonitor(u"m"_s);
    model.module()->setLevel(1);
    QVERIFY(client.messages.isEmpty());
    Q_EMIT model.nameChanged();
    QCOMPARE(client.messages.size(), 1);

    // What is posted already when the client goes does no harm.
    auto late = std::make_unique<RecordingClient>();
    Watches::of(late.get())->add(u"m"_s, resolver, {u"module.level"_s});
    std::thread([&model] { model.module()->setLevel(2); }).join();
    late.reset();
    QCoreApplication::processEvents();
}

QTEST_GUILESS_MAIN(TestControlObjects)
#include "tst_control_objects.moc"
