// SPDX-License-Identifier: Apache-2.0
#include "ControlClient.h"
#include "TestObjects.h"

#include <control/ObjectAccess.h>
#include <control/Server.h>
#include <control/Watches.h>

#include <QSocketNotifier>
#include <QTemporaryDir>
#include <QTimer>
#include <QtTest>

#include <sys/stat.h>
#include <sys/un.h>
#include <thread>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace control;

namespace {

int modeOf(const QString& path)
{
    struct stat status = {};
    ::lstat(QFile::encodeName(path).constData(), &status);
    return int(status.st_mode & 07777);
}

QByteArray requestOf(int bytes)
{
    QByteArray line = R"({"jsonrpc":"2.0","id":7,"method":"size","params":{"text":""}})";
    line.insert(line.indexOf("\"\"}}") + 1, QByteArray(bytes - int(line.size()), 'x'));
    return line;
}

constexpr int Mebi = 1024 * 1024;

} // namespace

/// The socket: who may use it, its limits, and that no client disturbs another.
class TestControlServer : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void theSocketIsForTheUserAlone();
    void aFolderThatOthersMayWriteIsRefused();
    void aStickyFolderIsTaken();
    void aPathThatCannotBeServedIsRefused_data();
    void aPathThatCannotBeServedIsRefused();
    void theLongestPathWorksAndOneByteMoreIsRefused();
    void aFileInTheWayIsKept();
    void aStaleSocketIsReplaced();
    void aSecondServerFindsTheFirst();
    void ofManyThatStartAtOnceOneServes();
    void requestsOfOneClientAreAnsweredInOrder();
    void aLineMayComeInPieces();
    void aLineOfOneMebibyteIsTheLongest();
    void aClientThatKeepsSendingStillReadsItsError();
    void halfALineAndSilenceEndsTheConnection();
    void aSlowButSteadyClientIsServed();
    void answersThatPileUpEndTheConnection();
    void oneLargeAnswerIsDelivered();
    void waitingRequestsHoldBackFurtherReading();
    void aFloodDoesNotBlockOthers();
    void garbageHarmsNobody();
    void aRequestIsServedThoughItsSenderHasGone();
    void sixtyFourClientsGetTheirOwnAnswers();
    void watchersOfADisconnectedClientAreGone();
    void theEndFlushesAndRemovesTheSocket();
    void aMethodMayEndTheServer();
    void aClientThatIsTakenAlreadyDoesNotEndTheServer();

private:
    QString path() const { return m_directory->filePath(u"c.sock"_s); }
    std::unique_ptr<QTemporaryDir> m_directory;
    std::unique_ptr<Server> m_server;
    std::unique_ptr<Model> m_model;
    QList<Reply> m_kept;
    int m_touched = 0;
};

void TestControlServer::init()
{
    m_kept.clear();
    m_touched = 0;
    m_directory = std::make_unique<QTemporaryDir>();
    m_model = std::make_unique<Model>();
    m_server = std::make_unique<Server>();
    m_server->addMethod(u"size"_s, {u"text"_s}, [](const Request& r) {
        return QJsonValue(QJsonObject{{u"size"_s, r.parameters.text(u"text"_s).size()}});
    });
    m_server->addMethod(u"fill"_s, {u"bytes"_s}, [](const Request& r) {
        return QJsonValue(QString(qsizetype(r.parameters.integer(u"bytes"_s, 0, 64 * Mebi)), u'x'));
    });
    m_server->addMethod(u"touch"_s, {}, [this](const Request&) {
        ++m_touched;
        return QJsonValue(m_touched);
    });
    m_server->addMethod(u"watch"_s, {u"paths"_s}, [this](const Request& r) {
        Watches::of(r.client)->add(u"m"_s, PathResolver(m_model.get(), nullptr),
                                   r.parameters.texts(u"paths"_s));
        return QJsonValue(QJsonObject());
    });
    m_server->addAsyncMethod(u"later"_s, {}, [this](const Request& r) { m_kept.append(r.reply); });
    QCOMPARE(m_server->listen(path()), Server::Result::Listening);
}

void TestControlServer::cleanup()
{
    m_kept.clear();
    m_server.reset();
    m_model.reset();
    m_directory.reset();
}

void TestControlServer::theSocketIsForTheUserAlone()
{
    QCOMPARE(modeOf(path()), 0600);
    Server other;
    const QString nested = m_directory->filePath(u"made/for/it/c.sock"_s);
    QCOMPARE(other.listen(nested), Server::Result::Listening);
    QCOMPARE(modeOf(nested), 0600);
    QCOMPARE(modeOf(m_directory->filePath(u"made/for/it"_s)), 0700);
}

void TestControlServer::aFolderThatOthersMayWriteIsRefused()
{
    for (const int mode : {0770, 0707, 0777}) {
        const QString folder = m_directory->filePath(u"open%1"_s.arg(mode));
        QVERIFY(QDir().mkpath(folder));
        QCOMPARE(::chmod(QFile::encodeName(folder).constData(), mode_t(mode)), 0);
        Server other;
        QCOMPARE(other.listen(folder + u"/c.sock"_s), Server::Result::Failed);
        QVERIFY2(other.errorString().contains(folder), qPrintable(other.errorString()));
        QVERIFY(!QFileInfo::exists(folder + u"/c.sock"_s));
    }
}

void TestControlServer::aStickyFolderIsTaken()
{
    const QString folder = m_directory->filePath(u"sticky"_s);
    QVERIFY(QDir().mkpath(folder));
    QCOMPARE(::chmod(QFile::encodeName(folder).constData(), mode_t(01777)), 0);
    Server other;
    QCOMPARE(other.listen(folder + u"/c.sock"_s), Server::Result::Listening);
    QCOMPARE(modeOf(folder + u"/c.sock"_s), 0600);
}

void TestControlServer::aPathThatCannotBeServedIsRefused_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("empty") << QString();
    QTest::newRow("folder") << u"/proc/"_s;
    QTest::newRow("folder that cannot be made") << u"/proc/lumen/c.sock"_s;
    QTest::newRow("file that cannot be made") << u"/proc/self/c.sock"_s;
}

void TestControlServer::aPathThatCannotBeServedIsRefused()
{
    QFETCH(QString, path);
    Server other;
    QCOMPARE(other.listen(path), Server::Result::Failed);
    QVERIFY2(other.errorString().contains("control socket"_L1), qPrintable(other.errorString()));
}

void TestControlServer::theLongestPathWorksAndOneByteMoreIsRefused()
{
    const qsizetype longest = qsizetype(sizeof(sockaddr_un::sun_path)) - 2;
    const QString fits = m_directory->path() + u'/' + QString(longest - m_directory->path().size() - 1, u'x');
    Server other;
    QCOMPARE(other.listen(fits), Server::Result::Listening);
    ControlClient client;
    QVERIFY2(client.connectTo(fits), qPrintable(client.socket().errorString()));
    Server third;
    QCOMPARE(third.listen(fits + u'x'), Server::Result::Failed);
    QVERIFY2(third.errorString().contains("too long"_L1), qPrintable(third.errorString()));
    QVERIFY(!anotherInstanceRuns(fits + u'x'));
}

void TestControlServer::aFileInTheWayIsKept()
{
    const QString name = m_directory->filePath(u"precious"_s);
    QFile file(name);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write("data") == 4);
    file.close();
    Server other;
    QCOMPARE(other.listen(name), Server::Result::Failed);
    QVERIFY2(other.errorString().contains(name), qPrintable(other.errorString()));
    QCOMPARE(QFileInfo(name).size(), 4);
}

void TestControlServer::aStaleSocketIsReplaced()
{
    const QString stale = m_directory->filePath(u"stale.sock"_s);
    const SocketClaim dead = claimSocket(stale);
    QVERIFY(dead.descriptor >= 0);
    ::close(dead.descriptor);
    QVERIFY(QFileInfo::exists(stale));
    QVERIFY(!anotherInstanceRuns(stale));
    Server other;
    QCOMPARE(other.listen(stale), Server::Result::Listening);
    QVERIFY(anotherInstanceRuns(stale));
}

void TestControlServer::aSecondServerFindsTheFirst()
{
    int shown = 0;
    m_server->addMethod(u"ui.show"_s, {}, [&shown](const Request&) {
        ++shown;
        return QJsonValue(QJsonObject());
    });
    Server other;
    QCOMPARE(other.listen(path()), Server::Result::OtherRuns);
    QVERIFY(anotherInstanceRuns(path()));
    std::atomic<int> raised = -1;
    std::thread second([&raised, name = path()] { raised = raiseOther(name); });
    QTRY_VERIFY(raised >= 0);
    second.join();
    QCOMPARE(raised.load(), 1);
    QCOMPARE(shown, 1);
    QVERIFY(!raiseOther(m_directory->filePath(u"nobody.sock"_s), 100));
    ControlClient client;
    QVERIFY(client.connectTo(path()));
    QVERIFY(client.call(u"touch"_s).ok());
}

void TestControlServer::ofManyThatStartAtOnceOneServes()
{
    const QString stale = m_directory->filePath(u"race.sock"_s);
    for (int round = 0; round < 20; ++round) {
        std::atomic<int> served = 0;
        std::atomic<int> refused = 0;
        std::vector<std::thread> starters;
        std::vector<SocketClaim> claims(8);
        for (SocketClaim& claim : claims) {
            starters.emplace_back([&claim, &served, &refused, stale] {
                claim = claimSocket(stale);
                (claim.descriptor >= 0 ? served : refused) += 1;
            });
        }
        for (std::thread& starter : starters)
            starter.join();
        QCOMPARE(served.load(), 1);
        for (const SocketClaim& claim : claims) {
            QVERIFY(claim.descriptor >= 0 || claim.otherRuns);
            if (claim.descriptor >= 0)
                ::close(claim.descriptor); // the file stays, stale
        }
    }
}

void TestControlServer::requestsOfOneClientAreAnsweredInOrder()
{
    ControlClient client;
    QVERIFY(client.connectTo(path()));
    constexpr int Count = 1000;
    for (int i = 0; i < Count; ++i)
        client.send(u"touch"_s);
    for (int i = 1; i <= Count; ++i)
        QCOMPARE(client.nextMessage().value("id"_L1).toInt(), i);
    QCOMPARE(m_touched, Count);
}

void TestControlServer::aLineMayComeInPieces()
{
    ControlClient client;
    QVERIFY(client.connectTo(path()));
    const QByteArray line = "{\"jsonrpc\":\"2.0\",\"id\":7,\"method\":\"touch\"}\n";
    for (const char byte : line) {
        client.socket().write(&byte, 1);
        client.socket().flush();
        QCoreApplication::processEvents();
    }
    QCOMPARE(client.nextMessage().value("result"_L1), QJsonValue(1));
}

void TestControlServer::aLineOfOneMebibyteIsTheLongest()
{
    ControlClient client;
    QVERIFY(client.connectTo(path()));
    client.sendLine(requestOf(Mebi - 1));
    QVERIFY(client.nextMessage().value("result"_L1).toObject().value("size"_L1).toInt() > Mebi - 100);
    client.sendLine(requestOf(Mebi));
    const QJsonObject answer = client.nextMessage();
    QCOMPARE(answer.value("error"_L1).toObject().value("code"_L1).toInt(), int(InvalidRequest));
    QVERIFY(answer.value("id"_L1).isNull());
    QVERIFY(client.waitForEnd());
}

void TestControlServer::aClientThatKeepsSendingStillReadsItsError()
{
    ControlClient client;
    QVERIFY(client.connectTo(path()));
    client.socket().write(QByteArray(4 * Mebi, 'x')); // no newline at all
    const QJsonObject answer = client.nextMessage();
    QCOMPARE(answer.value("error"_L1).toObject().value("code"_L1).toInt(), int(InvalidRequest));
    QVERIFY(client.waitForEnd());
    QTRY_COMPARE(m_server->clientCount(), 0);
}

void TestControlServer::halfALineAndSilenceEndsTheConnection()
{
    Limits limits;
    limits.halfLineMs = 50;
    m_server->setLimits(limits);
    ControlClient silent;
    ControlClient idle;
    QVERIFY(silent.connectTo(path()) && idle.connectTo(path()));
    QVERIFY(idle.call(u"touch"_s).ok());
    silent.socket().write("{\"jsonrpc\"");
    QVERIFY(silent.waitForEnd());
    QCOMPARE(silent.messages().size(), 1);
    // One who waits between whole lines may do so for as long as it likes.
    QVERIFY(idle.isConnected());
    QVERIFY(idle.call(u"touch"_s).ok());
}

void TestControlServer::aSlowButSteadyClientIsServed()
{
    Limits limits;
    limits.halfLineMs = 200;
    m_server->setLimits(limits);
    ControlClient client;
    QVERIFY(client.connectTo(path()));
    const QByteArray line = "{\"jsonrpc\":\"2.0\",\"id\":7,\"method\":\"touch\"}\n";
    // Each byte comes well within the limit, the whole line takes several times as long.
    qsizetype sent = 0;
    QTimer drip;
    connect(&drip, &QTimer::timeout, &drip, [&] {
        if (sent < line.size())
            client.socket().write(line.constData() + sent++, 1);
    });
    drip.start(15);
    QCOMPARE(client.nextMessage().value("result"_L1), QJsonValue(1));
}

void TestControlServer::answersThatPileUpEndTheConnection()
{
    ControlClient slow;
    ControlClient other;
    QVERIFY(slow.connectTo(path()) && other.connectTo(path()));
    slow.socket().setReadBufferSize(1024); // and it never reads
    QTest::ignoreMessage(QtWarningMsg, "[Control] A client lets its answers pile up: its connection ends.");
    for (int i = 0; i < 40; ++i) {
        slow.socket().write(
            "{\"jsonrpc\":\"2.0\",\"id\":7,\"method\":\"fill\",\"params\":{\"bytes\":500000}}\n");
        slow.socket().flush();
        QVERIFY(other.call(u"touch"_s).ok());
    }
    QTRY_COMPARE(m_server->clientCount(), 1);
    QVERIFY(other.call(u"touch"_s).ok());
}

void TestControlServer::oneLargeAnswerIsDelivered()
{
    ControlClient client;
    QVERIFY(client.connectTo(path()));
    QCOMPARE(client.call(u"fill"_s, {{u"bytes"_s, 10 * Mebi}}).result.toString().size(), 10 * Mebi);
    QVERIFY(client.call(u"touch"_s).ok());
}

void TestControlServer::waitingRequestsHoldBackFurtherReading()
{
    ControlClient client;
    QVERIFY(client.connectTo(path()));
    constexpr int Count = 3000;
    for (int i = 0; i < Count; ++i)
        client.send(u"later"_s);
    QTRY_COMPARE(m_kept.size(), 1024);
    ControlClient other;
    QVERIFY(other.connectTo(path()));
    QVERIFY(other.call(u"touch"_s).ok());
    QCOMPARE(m_kept.size(), 1024);
    for (int answered = 0; answered < Count;) {
        QTRY_VERIFY(!m_kept.isEmpty());
        answered += int(m_kept.size());
        for (const Reply& reply : std::exchange(m_kept, {}))
            reply.done();
    }
    QTRY_COMPARE(client.messages().size(), Count);
}

void TestControlServer::aFloodDoesNotBlockOthers()
{
    std::atomic<bool> stop = false;
    std::thread flood([&stop, name = path()] {
        QLocalSocket socket;
        socket.connectToServer(name);
        if (!socket.waitForConnected())
            return;
        const QByteArray lines = QByteArray("{\"jsonrpc\":\"2.0\",\"method\":\"touch\"}\n").repeated(2000);
        while (!stop && socket.state() == QLocalSocket::ConnectedState) {
            socket.write(lines);
            while (!stop && socket.bytesToWrite() > 0)
                socket.waitForBytesWritten(10);
        }
    });
    QTRY_VERIFY(m_touched > 1000);
    ControlClient client;
    QVERIFY(client.connectTo(path()));
    for (int i = 0; i < 50; ++i) {
        QElapsedTimer elapsed;
        elapsed.start();
        QVERIFY(client.call(u"size"_s, {{u"text"_s, u"x"_s}}).ok());
        QVERIFY2(elapsed.elapsed() < 10'000, qPrintable(QString::number(elapsed.elapsed())));
    }
    stop = true;
    flood.join();
}

void TestControlServer::garbageHarmsNobody()
{
    ControlClient honest;
    QVERIFY(honest.connectTo(path()));
    quint32 seed = 12345;
    for (int round = 0; round < 50; ++round) {
        ControlClient hostile;
        QVERIFY(hostile.connectTo(path()));
        QByteArray bytes(5000, Qt::Uninitialized);
        for (char& byte : bytes) {
            seed = seed * 1664525 + 1013904223;
            byte = char(seed >> 24);
        }
        hostile.socket().write(bytes);
        hostile.socket().flush();
        QVERIFY(honest.call(u"touch"_s).ok());
    }
    QTRY_COMPARE(m_server->clientCount(), 1);
}

void TestControlServer::aRequestIsServedThoughItsSenderHasGone()
{
    {
        QLocalSocket socket;
        socket.connectToServer(path());
        QVERIFY(socket.waitForConnected());
        socket.write(QByteArray("{\"jsonrpc\":\"2.0\",\"id\":1,\"method\":\"touch\"}\n").repeated(200));
        socket.flush();
        QCOMPARE(socket.bytesToWrite(), 0);
    }
    QTRY_COMPARE(m_touched, 200);
    QTRY_COMPARE(m_server->clientCount(), 0);
}

void TestControlServer::sixtyFourClientsGetTheirOwnAnswers()
{
    std::vector<std::unique_ptr<ControlClient>> clients;
    for (int i = 0; i < 64; ++i) {
        clients.push_back(std::make_unique<ControlClient>());
        QVERIFY(clients.back()->connectTo(path()));
    }
    std::vector<int> ids;
    for (int i = 0; i < 64; ++i)
        ids.push_back(clients[size_t(i)]->send(u"size"_s, {{u"text"_s, QString(i, u'x')}}));
    for (int i = 0; i < 64; ++i) {
        const auto answer = clients[size_t(i)]->wait(ids[size_t(i)]);
        QCOMPARE(answer.result.toObject().value("size"_L1).toInt(), i);
        QVERIFY(clients[size_t(i)]->messages().isEmpty());
    }
}

void TestControlServer::watchersOfADisconnectedClientAreGone()
{
    {
        ControlClient client;
        QVERIFY(client.connectTo(path()));
        QVERIFY(client.call(u"watch"_s, {{u"paths"_s, QJsonArray{u"module.level"_s}}}).ok());
        m_model->module()->setLevel(3);
        const QJsonObject message = client.nextMessage();
        QCOMPARE(message.value("params"_L1).toObject().value("value"_L1), QJsonValue(3));
    }
    QTRY_COMPARE(m_server->clientCount(), 0);
    QCOMPARE(m_server->findChildren<Watches*>().size(), 0);
    m_model->module()->setLevel(4);
}

void TestControlServer::theEndFlushesAndRemovesTheSocket()
{
    ControlClient client;
    QVERIFY(client.connectTo(path()));
    const int id = client.send(u"touch"_s);
    QTRY_COMPARE(m_touched, 1);
    const QString name = path();
    m_server->close();
    QVERIFY(!QFileInfo::exists(name));
    QVERIFY(client.wait(id).ok());
    QVERIFY(client.waitForEnd());
    QVERIFY(!anotherInstanceRuns(name));
    QCOMPARE(m_server->listen(name), Server::Result::Listening);
}

void TestControlServer::aMethodMayEndTheServer()
{
    m_server->addMethod(u"end"_s, {}, [this](const Request&) {
        m_server->close();
        return QJsonValue(true);
    });
    ControlClient client;
    QVERIFY(client.connectTo(path()));
    client.send(u"end"_s);
    client.send(u"touch"_s);
    QVERIFY(client.waitForEnd());
    QCOMPARE(m_touched, 0);
    QCOMPARE(m_server->clientCount(), 0);
}

void TestControlServer::aClientThatIsTakenAlreadyDoesNotEndTheServer()
{
    // As after a nested event loop that has taken whom the outer one was told of.
    auto* const notifier = m_server->findChild<QSocketNotifier*>();
    QVERIFY(notifier);
    QEvent told(QEvent::SockAct);
    QCoreApplication::sendEvent(notifier, &told);
    ControlClient client;
    QVERIFY(client.connectTo(path()));
    QVERIFY(client.call(u"size"_s, {{u"text"_s, u"four"_s}}).ok());
}

QTEST_GUILESS_MAIN(TestControlServer)
#include "tst_control_server.moc"
