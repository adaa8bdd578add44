// SPDX-License-Identifier: Apache-2.0
#include <control/Dispatcher.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QtTest>

#include <thread>

using namespace Qt::StringLiterals;
using namespace control;

namespace {

class RecordingClient : public Client
{
public:
    void notify(const QJsonObject& message) override { answers.append(message); }
    void finish(const QJsonObject& answer) override
    {
        ++finished;
        if (!answer.isEmpty())
            answers.append(answer);
    }
    QList<QJsonObject> answers;
    int finished = 0;
};

int errorOf(const QJsonObject& answer)
{
    return answer.value("error"_L1).toObject().value("code"_L1).toInt();
}

QByteArray request(const QByteArray& method, const QByteArray& parameters = "{}", const QByteArray& id = "1")
{
    return R"({"jsonrpc":"2.0","id":)" + id + R"(,"method":")" + method + R"(","params":)" + parameters + '}';
}

} // namespace

/// Requests: their form, their ids, their errors, and when they run.
class TestControlRequests : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void aRequestIsAnsweredOnceWithItsId_data();
    void aRequestIsAnsweredOnceWithItsId();
    void aWrongRequestGetsItsError_data();
    void aWrongRequestGetsItsError();
    void aNotificationGetsNoAnswer_data();
    void aNotificationGetsNoAnswer();
    void aParameterThatDoesNotFitIsNamed_data();
    void aParameterThatDoesNotFitIsNamed();
    void anAnswerMayComeLaterAndFromAnyThread();
    void aForgottenRequestFails();
    void theFirstAnswerCounts();
    void anAnswerToOneWhoHasGoneIsDropped();
    void requestsWaitInOrderWhileTheProgramIsBusy();
    void anExceptionOfAMethodIsAnError();

private:
    std::unique_ptr<Dispatcher> m_dispatcher;
    std::unique_ptr<RecordingClient> m_client;
    QList<Reply> m_kept;
};

void TestControlRequests::init()
{
    m_kept.clear();
    m_client = std::make_unique<RecordingClient>();
    m_dispatcher = std::make_unique<Dispatcher>();
    m_dispatcher->addMethod(u"echo"_s, {u"value"_s},
                            [](const Request& r) { return QJsonValue(r.parameters.value(u"value"_s)); });
    m_dispatcher->addMethod(u"wrong"_s, {},
                            [](const Request&) -> QJsonValue { throw RequestError(NotWritable, u"no"_s); });
    m_dispatcher->addMethod(u"throws"_s, {},
                            [](const Request&) -> QJsonValue { throw std::runtime_error("broken"); });
    m_dispatcher->addAsyncMethod(u"later"_s, {}, [this](const Request& r) { m_kept.append(r.reply); });
    m_dispatcher->addMethod(
        u"read"_s, {u"text"_s, u"maybe"_s, u"whole"_s, u"list"_s, u"object"_s, u"code"_s, u"real"_s},
        [](const Request& r) {
            const Parameters& p = r.parameters;
            return QJsonValue(
                QJsonArray{p.text(u"text"_s), p.optionalText(u"maybe"_s).value_or(u"-"_s),
                           p.integer(u"whole"_s, 0, 10), QJsonArray::fromStringList(p.texts(u"list"_s)),
                           p.object(u"object"_s), p.code(u"code"_s, 0, 255), p.number(u"real"_s, 0, 1)});
        });
    m_dispatcher->addMethod(
        u"always"_s, {}, [](const Request&) { return QJsonValue(true); }, Dispatcher::When::Always);
}

void TestControlRequests::aRequestIsAnsweredOnceWithItsId_data()
{
    QTest::addColumn<QByteArray>("id");
    for (const char* id : {"0", "-7", "1.5", "9007199254740993", "\"a\"", "\"\"", "null", "\"\\u00e9\""})
        QTest::newRow(id) << QByteArray(id);
}

void TestControlRequests::aRequestIsAnsweredOnceWithItsId()
{
    QFETCH(QByteArray, id);
    m_dispatcher->handleLine(m_client.get(), request("echo", R"({"value":[1]})", id) + "\r");
    QCOMPARE(m_client->finished, 1);
    QCOMPARE(m_client->answers.size(), 1);
    const QJsonValue expected = QJsonDocument::fromJson('[' + id + ']').array().first();
    QCOMPARE(m_client->answers.first(),
             (QJsonObject{{u"jsonrpc"_s, u"2.0"_s}, {u"id"_s, expected}, {u"result"_s, QJsonArray{1}}}));
}

void TestControlRequests::aWrongRequestGetsItsError_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<int>("code");
    QTest::addColumn<QJsonValue>("id");
    const QJsonValue none(QJsonValue::Null);
    QTest::newRow("empty line") << QByteArray() << int(ParseError) << none;
    QTest::newRow("garbage") << QByteArray("garbage") << int(ParseError) << none;
    QTest::newRow("half an object") << QByteArray("{\"jsonrpc\":") << int(ParseError) << none;
    QTest::newRow("invalid UTF-8") << QByteArray("{\"jsonrpc\":\"2.0\",\"id\":1,\"method\":\"\xff\xfe\"}")
                                   << int(ParseError) << none;
    QTest::newRow("two objects") << QByteArray("{}{}") << int(ParseError) << none;
    QTest::newRow("two values") << QByteArray("1,2") << int(ParseError) << none;
    QTest::newRow("nested beyond reason") << QByteArray(100'000, '[') << int(ParseError) << none;
    QTest::newRow("zero bytes") << QByteArray(10, '\0') << int(ParseError) << none;
    QTest::newRow("batch") << QByteArray("[" + request("always") + "]") << int(InvalidRequest) << none;
    QTest::newRow("empty batch") << QByteArray("[]") << int(InvalidRequest) << none;
    QTest::newRow("number") << QByteArray("5") << int(InvalidRequest) << none;
    QTest::newRow("string") << QByteArray("\"x\"") << int(InvalidRequest) << none;
    QTest::newRow("null") << QByteArray("null") << int(InvalidRequest) << none;
    QTest::newRow("bool as id") << request("always", "{}", "true") << int(InvalidRequest) << none;
    QTest::newRow("list as id") << request("always", "{}", "[1]") << int(InvalidRequest) << none;
    QTest::newRow("object as id") << request("always", "{}", "{}") << int(InvalidRequest) << none;
    QTest::newRow("no version") << QByteArray(R"({"id":3,"method":"always"})") << int(InvalidRequest)
                                << QJsonValue(3);
    QTest::newRow("other version") << QByteArray(R"({"jsonrpc":"1.0","id":3,"method":"always"})")
                                   << int(InvalidRequest) << QJsonValue(3);
    QTest::newRow("no method") << QByteArray(R"({"jsonrpc":"2.0","id":3})") << int(InvalidRequest)
                               << QJsonValue(3);
    QTest::newRow("number as method")
        << QByteArray(R"({"jsonrpc":"2.0","id":3,"method":5})") << int(InvalidRequest) << QJsonValue(3);
    QTest::newRow("text as parameters")
        << request("always", "\"x\"", "3") << int(InvalidRequest) << QJsonValue(3);
    QTest::newRow("list as parameters")
        << request("always", "[1]", "3") << int(InvalidParameters) << QJsonValue(3);
    QTest::newRow("unknown method") << request("nope", "{}", "3") << int(UnknownMethod) << QJsonValue(3);
    QTest::newRow("unknown parameter")
        << request("always", R"({"x":1})", "3") << int(InvalidParameters) << QJsonValue(3);
    QTest::newRow("missing parameter")
        << request("echo", "{}", "3") << int(InvalidParameters) << QJsonValue(3);
    QTest::newRow("error of a method") << request("wrong", "{}", "3") << int(NotWritable) << QJsonValue(3);
}

void TestControlRequests::aWrongRequestGetsItsError()
{
    QFETCH(QByteArray, line);
    QFETCH(int, code);
    QFETCH(QJsonValue, id);
    m_dispatcher->handleLine(m_client.get(), line);
    QCOMPARE(m_client->finished, 1);
    QCOMPARE(m_client->answers.size(), 1);
    const QJsonObject answer = m_client->answers.first();
    QCOMPARE(errorOf(answer), code);
    QVERIFY(answer.contains("id"_L1));
    QCOMPARE(answer.value("id"_L1), id);
    QCOMPARE(answer.value("jsonrpc"_L1), QJsonValue(u"2.0"_s));
    QVERIFY(!answer.value("error"_L1).toObject().value("message"_L1).toString().isEmpty());
}

void TestControlRequests::aNotificationGetsNoAnswer_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::newRow("right") << QByteArray(R"({"jsonrpc":"2.0","method":"always"})");
    QTest::newRow("unknown method") << QByteArray(R"({"jsonrpc":"2.0","method":"nope"})");
    QTest::newRow("wrong parameters") << QByteArray(R"({"jsonrpc":"2.0","method":"echo","params":{"a":1}})");
    QTest::newRow("error") << QByteArray(R"({"jsonrpc":"2.0","method":"wrong"})");
}

void TestControlRequests::aNotificationGetsNoAnswer()
{
    QFETCH(QByteArray, line);
    m_dispatcher->handleLine(m_client.get(), line);
    QCOMPARE(m_client->finished, 1);
    QVERIFY(m_client->answers.isEmpty());
}

void TestControlRequests::aParameterThatDoesNotFitIsNamed_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QJsonValue>("value");
    QTest::newRow("number for text") << "text" << QJsonValue(1);
    QTest::newRow("null for optional text") << "maybe" << QJsonValue();
    QTest::newRow("fraction for whole") << "whole" << QJsonValue(0.5);
    QTest::newRow("text for whole") << "whole" << QJsonValue(u"1"_s);
    QTest::newRow("below") << "whole" << QJsonValue(-1);
    QTest::newRow("above") << "whole" << QJsonValue(11);
    QTest::newRow("huge") << "whole" << QJsonValue(1e300);
    QTest::newRow("text for list") << "list" << QJsonValue(u"a"_s);
    QTest::newRow("number in list") << "list" << QJsonValue(QJsonArray{u"a"_s, 1});
    QTest::newRow("list for object") << "object" << QJsonValue(QJsonArray());
    QTest::newRow("no number for code") << "code" << QJsonValue(u"0xZZ"_s);
    QTest::newRow("empty code") << "code" << QJsonValue(u""_s);
    QTest::newRow("only the prefix") << "code" << QJsonValue(u"0x"_s);
    QTest::newRow("code too large") << "code" << QJsonValue(u"0x100"_s);
    QTest::newRow("number above") << "real" << QJsonValue(1.1);
    QTest::newRow("text for number") << "real" << QJsonValue(u"1"_s);
}

void TestControlRequests::aParameterThatDoesNotFitIsNamed()
{
    QFETCH(QString, name);
    QFETCH(QJsonValue, value);
    QJsonObject parameters{
        {u"text"_s, u"t"_s},          {u"whole"_s, 10},       {u"list"_s, QJsonArray{u"a"_s}},
        {u"object"_s, QJsonObject()}, {u"code"_s, u"0xf3"_s}, {u"real"_s, 0.5}};
    const auto send = [&] {
        m_client->answers.clear();
        m_dispatcher->handleLine(m_client.get(),
                                 request("read", QJsonDocument(parameters).toJson(QJsonDocument::Compact)));
        return m_client->answers.value(0);
    };
    QCOMPARE(send().value("result"_L1),
             QJsonValue(QJsonArray{u"t"_s, u"-"_s, 10, QJsonArray{u"a"_s}, QJsonObject(), 0xF3, 0.5}));
    parameters.insert(name, value);
    const QJsonObject answer = send();
    QCOMPARE(errorOf(answer), int(InvalidParameters));
    QVERIFY(answer.value("error"_L1).toObject().value("message"_L1).toString().contains(u'"' + name + u'"'));
}

void TestControlRequests::anAnswerMayComeLaterAndFromAnyThread()
{
    m_dispatcher->handleLine(m_client.get(), request("later", "{}", "1"));
    m_dispatcher->handleLine(m_client.get(), request("later", "{}", "2"));
    m_dispatcher->handleLine(m_client.get(), request("always", "{}", "3"));
    QCOMPARE(m_client->answers.size(), 1);
    const Reply second = m_kept.takeLast();
    std::thread([second] { second.done(u"b"_s); }).join();
    QTRY_COMPARE(m_client->answers.size(), 2);
    m_kept.takeLast().done(u"a"_s);
    QCOMPARE(m_client->answers.size(), 3);
    QList<int> ids;
    for (const QJsonObject& answer : std::as_const(m_client->answers))
        ids.append(answer.value("id"_L1).toInt());
    QCOMPARE(ids, (QList<int>{3, 2, 1}));
}

void TestControlRequests::aForgottenRequestFails()
{
    m_dispatcher->handleLine(m_client.get(), request("later", "{}", "1"));
    m_dispatcher->handleLine(m_client.get(), request("later", "{}", "2"));
    m_kept.last().setAbandoned(RequestError(NoSuchMonitor, u"gone"_s));
    m_kept.clear();
    QCOMPARE(m_client->answers.size(), 2);
    QCOMPARE(m_client->finished, 2);
    QCOMPARE(errorOf(m_client->answers[0]), int(InternalError));
    QCOMPARE(errorOf(m_client->answers[1]), int(NoSuchMonitor));
}

void TestControlRequests::theFirstAnswerCounts()
{
    m_dispatcher->handleLine(m_client.get(), request("later"));
    const Reply reply = m_kept.takeFirst();
    reply.done(1);
    reply.done(2);
    reply.fail(RequestError(InternalError, u"x"_s));
    QCOMPARE(m_client->answers.size(), 1);
    QCOMPARE(m_client->finished, 1);
    QCOMPARE(m_client->answers.first().value("result"_L1), QJsonValue(1));
}

void TestControlRequests::anAnswerToOneWhoHasGoneIsDropped()
{
    m_dispatcher->handleLine(m_client.get(), request("later"));
    m_dispatcher->handleLine(m_client.get(), request("later"));
    const Reply posted = m_kept.takeFirst();
    std::thread([posted] { posted.done(); }).join();
    m_client.reset();
    m_kept.takeFirst().done();
    QCoreApplication::processEvents();
}

void TestControlRequests::requestsWaitInOrderWhileTheProgramIsBusy()
{
    bool busy = true;
    m_dispatcher->setBusy([&busy] { return busy; });
    for (const char* id : {"1", "2"})
        m_dispatcher->handleLine(m_client.get(), request("echo", R"({"value":0})", id));
    m_dispatcher->handleLine(m_client.get(), request("nope", "{}", "3"));
    m_dispatcher->handleLine(m_client.get(), request("always", "{}", "4"));
    const auto ids = [this] {
        QList<int> list;
        for (const QJsonObject& answer : std::as_const(m_client->answers))
            list.append(answer.value("id"_L1).toInt());
        return list;
    };
    QCOMPARE(ids(), (QList<int>{3, 4}));
    m_dispatcher->resume();
    QCOMPARE(ids(), (QList<int>{3, 4}));
    busy = false;
    // One that comes before resume() does not overtake.
    m_dispatcher->handleLine(m_client.get(), request("echo", R"({"value":0})", "5"));
    m_dispatcher->resume();
    QCOMPARE(ids(), (QList<int>{3, 4, 1, 2, 5}));

    // A request that makes the program busy holds those behind it.
    m_dispatcher->addMethod(u"plug"_s, {}, [&busy](const Request&) {
        busy = true;
        return QJsonValue();
    });
    busy = true;
    m_dispatcher->handleLine(m_client.get(), request("plug", "{}", "6"));
    m_dispatcher->handleLine(m_client.get(), request("echo", R"({"value":0})", "7"));
    busy = false;
    m_dispatcher->resume();
    QCOMPARE(ids(), (QList<int>{3, 4, 1, 2, 5, 6}));
    busy = false;
    m_dispatcher->resume();
    QCOMPARE(ids(), (QList<int>{3, 4, 1, 2, 5, 6, 7}));
}

void TestControlRequests::anExceptionOfAMethodIsAnError()
{
    m_dispatcher->handleLine(m_client.get(), request("throws"));
    QCOMPARE(errorOf(m_client->answers.value(0)), int(InternalError));
}

QTEST_GUILESS_MAIN(TestControlRequests)
#include "tst_control_requests.moc"
