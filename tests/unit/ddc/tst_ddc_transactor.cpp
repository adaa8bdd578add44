// SPDX-License-Identifier: Apache-2.0
#include "FakeWire.h"

#include <QTest>

using ddc::BusStatus;
using ddc::Error;
using namespace std::string_literals;

namespace {

/// One thing that goes wrong on the wire: at the request's write, or at the reply's read.
struct Fault
{
    BusStatus write = BusStatus::Ok;
    Wire::Reply read = {BusStatus::Ok, {}};
};

Fault onWrite(BusStatus status)
{
    return {status, {}};
}

Fault onRead(Wire::Reply reply)
{
    return {BusStatus::Ok, std::move(reply)};
}

void lay(Wire& wire, const Fault& fault)
{
    wire.writeResults.push_back(fault.write);
    if (fault.write == BusStatus::Ok)
        wire.replies.push_back(fault.read);
}

} // namespace

Q_DECLARE_METATYPE(Fault)
Q_DECLARE_METATYPE(ddc::Error)
Q_DECLARE_METATYPE(ddc::BusStatus)

class TestDdcTransactor : public QObject
{
    Q_OBJECT

private slots:
    void aGetIsOneRequestAndOneReply();
    void aSetIsOneMessage();
    void saveSettingsIsOneMessage();
    void equalValuesAreWrittenAgain();
    void aFaultThatPassesIsOvercome_data();
    void aFaultThatPassesIsOvercome();
    void aFaultThatStaysEndsTheGet_data();
    void aFaultThatStaysEndsTheGet();
    void aFaultThatStaysEndsTheSet_data();
    void aFaultThatStaysEndsTheSet();
    void aNackedWriteIsRepeated();
    void aBusyBusIsAskedAgainWithinTheLimit();
    void goneStaysUntilRevived();
    void noAccessIsAskedAnewByTheNextCall();
    void setWithinTriesOnce();
    void theCapabilitiesAreJoinedByOffset();
    void capabilitiesFaults_data();
    void capabilitiesFaults();
    void endlessCapabilitiesAreCutOff();
    void slowEndlessCapabilitiesAreCutOff();
    void theEdidIsReadWithItsExtension();
    void aDamagedEdidIsReadAgain();
    void aBadEdidChecksumThatStaysIsLeftToTheParser();
    void somethingElseThanAnEdidIsMalformed();
    void statisticsCountWhatHappened();
    void theLedgerKnowsTheDay();
    void theObserverSeesEveryMessage();
    void theEngineIsSmall();
};

void TestDdcTransactor::aGetIsOneRequestAndOneReply()
{
    Bench bench;
    bench.wire->replies.push_back(fifty());
    const auto result = bench.monitor.getVcp(0x10);
    QCOMPARE(result.error, Error::None);
    QVERIFY((result.value == ddc::VcpValue{50, 100, false}));
    QCOMPARE(bench.wire->log.size(), 2u);
    QCOMPARE(bench.wire->log[0].address, 0x37);
    QVERIFY((bench.wire->log[0].bytes == Bytes{0x51, 0x82, 0x01, 0x10, 0xAC}));
    QVERIFY(!bench.wire->log[1].isWrite);
}

void TestDdcTransactor::aSetIsOneMessage()
{
    Bench bench;
    QCOMPARE(bench.monitor.setVcp(0x60, 0x0F11), Error::None);
    QCOMPARE(bench.wire->log.size(), 1u);
    QCOMPARE(bench.wire->log[0].address, 0x37);
    QVERIFY((bench.wire->log[0].bytes == Bytes{0x51, 0x84, 0x03, 0x60, 0x0F, 0x11, 0xC6}));
}

void TestDdcTransactor::saveSettingsIsOneMessage()
{
    Bench bench;
    QCOMPARE(bench.monitor.saveSettings(), Error::None);
    QCOMPARE(bench.wire->log.size(), 1u);
    QVERIFY((bench.wire->log[0].bytes == Bytes{0x51, 0x81, 0x0C, 0xB2}));
}

void TestDdcTransactor::equalValuesAreWrittenAgain()
{
    Bench bench;
    for (int i = 0; i < 3; ++i)
        QCOMPARE(bench.monitor.setVcp(0x10, 50), Error::None);
    QCOMPARE(bench.wire->log.size(), 3u);
}

void TestDdcTransactor::aFaultThatPassesIsOvercome_data()
{
    QTest::addColumn<Fault>("fault");
    QTest::newRow("NACK of the request") << onWrite(BusStatus::Nack);
    QTest::newRow("time-out of the request") << onWrite(BusStatus::Timeout);
    QTest::newRow("busy at the request") << onWrite(BusStatus::Busy);
    QTest::newRow("NACK of the read") << onRead({BusStatus::Nack, {}});
    QTest::newRow("time-out of the read") << onRead({BusStatus::Timeout, {}});
    QTest::newRow("busy at the read") << onRead({BusStatus::Busy, {}});
    QTest::newRow("null message") << onRead(nullMessage());
    QTest::newRow("bad checksum") << onRead(badChecksum());
    QTest::newRow("garbage") << onRead(good({0x12, 0x34, 0x56}));
    QTest::newRow("silence") << onRead(good({}));
    QTest::newRow("reply of another code") << onRead(good(vcpFrame(0x12, 1, 2)));
    QTest::newRow("fragment") << onRead(good({0x6E, 0x83, 0xE3, 0x00, 0x06, 0x58}));
}

void TestDdcTransactor::aFaultThatPassesIsOvercome()
{
    QFETCH(Fault, fault);
    Bench bench;
    lay(*bench.wire, fault);
    bench.wire->answer = [](const Bytes&) { return fifty(); };
    const auto result = bench.monitor.getVcp(0x10);
    QCOMPARE(result.error, Error::None);
    QCOMPARE(result.value.current, 50);
}

void TestDdcTransactor::aFaultThatStaysEndsTheGet_data()
{
    QTest::addColumn<Fault>("fault");
    QTest::addColumn<Error>("error");
    QTest::addColumn<int>("requests");
    QTest::newRow("NACK of the request") << onWrite(BusStatus::Nack) << Error::NoReply << 4;
    QTest::newRow("time-out of the request") << onWrite(BusStatus::Timeout) << Error::NoReply << 4;
    QTest::newRow("NACK of the read") << onRead({BusStatus::Nack, {}}) << Error::NoReply << 4;
    QTest::newRow("null message") << onRead(nullMessage()) << Error::NullReply << 4;
    QTest::newRow("bad checksum") << onRead(badChecksum()) << Error::BadChecksum << 4;
    QTest::newRow("garbage") << onRead(good({0x12, 0x34, 0x56})) << Error::Malformed << 4;
    QTest::newRow("reply of another code") << onRead(good(vcpFrame(0x12, 1, 2))) << Error::Malformed << 4;
    QTest::newRow("unsupported") << onRead(unsupported()) << Error::Unsupported << 1;
    QTest::newRow("no access") << onWrite(BusStatus::NoAccess) << Error::NoAccess << 1;
    QTest::newRow("gone at the request") << onWrite(BusStatus::Gone) << Error::Gone << 1;
    QTest::newRow("gone at the read") << onRead({BusStatus::Gone, {}}) << Error::Gone << 1;
}

void TestDdcTransactor::aFaultThatStaysEndsTheGet()
{
    QFETCH(Fault, fault);
    Bench bench;
    for (int i = 0; i < 20; ++i)
        lay(*bench.wire, fault);
    QTEST(bench.monitor.getVcp(0x10).error, "error");
    QTEST(int(bench.wire->times(true).size()), "requests");
    QFETCH(Error, error);
    QCOMPARE(bench.monitor.statistics().errorsOf(error), 1u);
    const auto lasted = bench.clock->now() - bench.wire->start;
    QVERIFY(lasted <= ddc::Transactor::RetryWindow + ddc::LongestLearntWait + ddc::Transactor::BusyLimit);
}

void TestDdcTransactor::aFaultThatStaysEndsTheSet_data()
{
    QTest::addColumn<BusStatus>("status");
    QTest::addColumn<Error>("error");
    QTest::addColumn<int>("tries");
    QTest::newRow("NACK") << BusStatus::Nack << Error::NoReply << 4;
    QTest::newRow("time-out: it may have been carried out") << BusStatus::Timeout << Error::NoReply << 1;
    QTest::newRow("no access") << BusStatus::NoAccess << Error::NoAccess << 1;
    QTest::newRow("gone") << BusStatus::Gone << Error::Gone << 1;
}

void TestDdcTransactor::aFaultThatStaysEndsTheSet()
{
    QFETCH(BusStatus, status);
    Bench bench;
    bench.wire->writeResults.assign(20, status);
    QTEST(bench.monitor.setVcp(0x10, 1), "error");
    QTEST(int(bench.wire->log.size()), "tries");
    QVERIFY(bench.monitor.statistics().writes.empty());
}

void TestDdcTransactor::aNackedWriteIsRepeated()
{
    Bench bench;
    bench.wire->writeResults.assign(3, BusStatus::Nack);
    QCOMPARE(bench.monitor.setVcp(0x10, 7), Error::None);
    QCOMPARE(bench.wire->log.size(), 4u);
    QCOMPARE(bench.monitor.statistics().retries, 3u);
    QCOMPARE(bench.monitor.statistics().writes.at(0).total, 1u);
}

void TestDdcTransactor::aBusyBusIsAskedAgainWithinTheLimit()
{
    Bench bench;
    bench.wire->writeResults.assign(1000, BusStatus::Busy);
    QCOMPARE(bench.monitor.setVcp(0x10, 7), Error::Busy);
    QCOMPARE(bench.wire->log.back().at, ddc::Transactor::BusyLimit);
    QVERIFY(bench.wire->log.size() > 4);
    QVERIFY(bench.wire->log.size() < 20);
    QCOMPARE(bench.monitor.statistics().retries, 0u);

    const auto tries = bench.wire->log.size();
    QCOMPARE(bench.monitor.getVcp(0x10).error, Error::Busy);
    QCOMPARE(bench.wire->log.size(), 2 * tries);
}

void TestDdcTransactor::goneStaysUntilRevived()
{
    Bench bench;
    bench.wire->writeResults = {BusStatus::Gone};
    bench.wire->answer = [](const Bytes&) { return fifty(); };
    QCOMPARE(bench.monitor.setVcp(0x10, 1), Error::Gone);
    QCOMPARE(bench.monitor.setVcp(0x10, 2), Error::Gone);
    QCOMPARE(bench.monitor.setVcpWithin(0x10, 2, Ms(10)), Error::Gone);
    QCOMPARE(bench.monitor.getVcp(0x10).error, Error::Gone);
    QCOMPARE(bench.monitor.saveSettings(), Error::Gone);
    QCOMPARE(bench.monitor.capabilities().error, Error::Gone);
    QCOMPARE(bench.monitor.readEdid().error, Error::Gone);
    QCOMPARE(bench.wire->log.size(), 1u);
    bench.monitor.revive();
    QCOMPARE(bench.monitor.getVcp(0x10).error, Error::None);
}

void TestDdcTransactor::noAccessIsAskedAnewByTheNextCall()
{
    Bench bench;
    bench.wire->writeResults = {BusStatus::NoAccess};
    QCOMPARE(bench.monitor.setVcp(0x10, 1), Error::NoAccess);
    QCOMPARE(bench.monitor.setVcp(0x10, 1), Error::None);
}

void TestDdcTransactor::setWithinTriesOnce()
{
    Bench bench;
    bench.wire->writeResults = {BusStatus::Nack};
    QCOMPARE(bench.monitor.setVcpWithin(0x10, 1, Ms(150)), Error::NoReply);
    QCOMPARE(bench.wire->log.size(), 1u);
    QCOMPARE(bench.monitor.setVcpWithin(0x10, 1, Ms(150)), Error::None);
    QCOMPARE(bench.monitor.statistics().sets, 2u);
}

namespace {

/// Answers capabilities requests from @p text in fragments of @p size.
std::function<Wire::Reply(const Bytes&)> capabilitiesMonitor(std::string text, std::size_t size)
{
    return [text, size](const Bytes& request) -> Wire::Reply {
        if (request.size() != 6 || request[2] != 0xF3)
            return nullMessage();
        const std::size_t offset = std::size_t(request[3] << 8 | request[4]);
        const std::string part = offset < text.size() ? text.substr(offset, size) : std::string();
        Bytes frame{0x6E, std::uint8_t(0x83 + part.size()), 0xE3, request[3], request[4]};
        frame.insert(frame.end(), part.begin(), part.end());
        return good(sealed(frame));
    };
}

const std::string LongText = "(prot(monitor)model(X)vcp(02 10 12)" + std::string(265, 'x') + ")";

} // namespace

void TestDdcTransactor::theCapabilitiesAreJoinedByOffset()
{
    Bench bench;
    bench.wire->answer = capabilitiesMonitor(LongText, 32);
    const auto result = bench.monitor.capabilities();
    QCOMPARE(result.error, Error::None);
    QCOMPARE(result.value, LongText);
    QCOMPARE(bench.wire->times(true).size(), 11u); // 301 characters in ten fragments and the empty one.
    QVERIFY((bench.wire->log[2].bytes == Bytes{0x51, 0x83, 0xF3, 0x00, 0x20, 0x6F}));
}

void TestDdcTransactor::capabilitiesFaults_data()
{
    QTest::addColumn<QString>("fault");
    QTest::addColumn<int>("size");
    for (const char* fault :
         {"repeated fragment", "null", "bad checksum", "garbage", "NACK", "reply of a get"}) {
        for (const int size : {1, 16, 32})
            QTest::addRow("%s, fragments of %d", fault, size) << QString::fromLatin1(fault) << size;
    }
}

void TestDdcTransactor::capabilitiesFaults()
{
    QFETCH(QString, fault);
    QFETCH(int, size);
    Bench bench;
    const auto honest = capabilitiesMonitor(LongText, std::size_t(size));
    int count = 0;
    Wire::Reply before = nullMessage();
    bench.wire->answer = [&](const Bytes& request) -> Wire::Reply {
        if (++count % 3 != 0)
            return before = honest(request);
        return fault == u"repeated fragment" ? before
               : fault == u"null"            ? nullMessage()
               : fault == u"bad checksum"    ? badChecksum()
               : fault == u"garbage"         ? good({0xAA, 0x55, 0xAA})
               : fault == u"NACK"            ? Wire::Reply{BusStatus::Nack, {}}
                                             : fifty();
    };
    const auto result = bench.monitor.capabilities();
    QCOMPARE(result.error, Error::None);
    QCOMPARE(result.value, LongText);
    QVERIFY(bench.monitor.statistics().retries > 0);
}

void TestDdcTransactor::endlessCapabilitiesAreCutOff()
{
    Bench bench(ddc::Timing::none());
    bench.wire->answer = capabilitiesMonitor(std::string(200000, 'x'), 32);
    QCOMPARE(bench.monitor.capabilities().error, Error::Malformed);
    QCOMPARE(bench.wire->times(true).size(), 2048u);

    Bench exact(ddc::Timing::none());
    exact.wire->answer = capabilitiesMonitor("(vcp(02))\0 behind the end"s, 32);
    QCOMPARE(exact.monitor.capabilities().value, "(vcp(02))");
}

void TestDdcTransactor::slowEndlessCapabilitiesAreCutOff()
{
    Bench bench;
    bench.wire->answer = capabilitiesMonitor(std::string(200000, 'x'), 1);
    QCOMPARE(bench.monitor.capabilities().error, Error::Malformed);
    const auto lasted = bench.clock->now() - bench.wire->start;
    QVERIFY(lasted >= ddc::Transactor::CapabilitiesWindow);
    QVERIFY(lasted <= ddc::Transactor::CapabilitiesWindow + std::chrono::seconds(1));
}

namespace {

Bytes edidBytes(std::uint8_t extensions, bool goodSum = true)
{
    Bytes block(128, 0);
    std::fill(block.begin() + 1, block.begin() + 7, std::uint8_t(0xFF));
    block[8] = 0x31;
    block[9] = 0xAE;
    block[126] = extensions;
    block[127] = std::uint8_t(-std::accumulate(block.begin(), block.end(), 0) + (goodSum ? 0 : 1));
    return block;
}

Bytes extensionBytes()
{
    Bytes block(128, 0);
    block[0] = 0x02;
    block[127] = 0xFE;
    return block;
}

} // namespace

void TestDdcTransactor::theEdidIsReadWithItsExtension()
{
    Bench bench;
    bench.wire->replies = {good(edidBytes(1)), good(extensionBytes())};
    const auto result = bench.monitor.readEdid();
    QCOMPARE(result.error, Error::None);
    QCOMPARE(result.value.size(), 256u);
    QVERIFY(std::equal(result.value.begin(), result.value.begin() + 128, edidBytes(1).begin()));
    QCOMPARE(result.value[128], 0x02);
    QCOMPARE(bench.wire->log[0].address, 0x50);
    QVERIFY((bench.wire->log[0].bytes == Bytes{0x00}));
    QVERIFY((bench.wire->log[2].bytes == Bytes{0x80}));

    Bench many;
    many.wire->replies = {good(edidBytes(200)), good(extensionBytes())};
    QCOMPARE(many.monitor.readEdid().value.size(), 256u);
    QCOMPARE(many.wire->log.size(), 4u);

    Bench unreadable;
    unreadable.wire->replies = {good(edidBytes(1))};
    QCOMPARE(unreadable.monitor.readEdid().value.size(), 128u);
}

void TestDdcTransactor::aDamagedEdidIsReadAgain()
{
    Bench bench;
    bench.wire->writeResults = {BusStatus::Nack};
    bench.wire->replies = {{BusStatus::Nack, {}}, good(edidBytes(0, false)), good(edidBytes(0))};
    const auto result = bench.monitor.readEdid();
    QCOMPARE(result.error, Error::None);
    QVERIFY(result.value == edidBytes(0));
}

void TestDdcTransactor::aBadEdidChecksumThatStaysIsLeftToTheParser()
{
    Bench bench;
    bench.wire->answer = [](const Bytes&) { return good(edidBytes(0, false)); };
    const auto result = bench.monitor.readEdid();
    QCOMPARE(result.error, Error::None);
    QVERIFY(result.value == edidBytes(0, false));
    QCOMPARE(bench.wire->times(false).size(), 4u);
}

void TestDdcTransactor::somethingElseThanAnEdidIsMalformed()
{
    Bench bench;
    bench.wire->answer = [](const Bytes&) { return good(Bytes(128, 0)); }; // Its sum is right.
    QCOMPARE(bench.monitor.readEdid().error, Error::Malformed);
    QCOMPARE(bench.wire->times(false).size(), 4u);
}

void TestDdcTransactor::statisticsCountWhatHappened()
{
    Bench bench;
    bench.wire->replies = {nullMessage(), badChecksum(), fifty(), unsupported()};
    QCOMPARE(bench.monitor.getVcp(0x10).error, Error::None);
    QCOMPARE(bench.monitor.getVcp(0x10).error, Error::Unsupported);
    QCOMPARE(bench.monitor.setVcp(0x10, 1), Error::None);
    QCOMPARE(bench.monitor.saveSettings(), Error::None);
    const ddc::Statistics stats = bench.monitor.statistics();
    QCOMPARE(stats.transfers, 10u);
    QCOMPARE(stats.bytesWritten, 4u * 5 + 7 + 4);
    QCOMPARE(stats.bytesRead, 4u * 11);
    QCOMPARE(stats.gets, 2u);
    QCOMPARE(stats.sets, 1u);
    QCOMPARE(stats.saves, 1u);
    QCOMPARE(stats.retries, 2u);
    QCOMPARE(stats.nullReplies, 1u);
    QCOMPARE(stats.checksumErrors, 1u);
    QCOMPARE(stats.errorsOf(Error::Unsupported), 1u);
    QCOMPARE(stats.errorsOf(Error::NullReply), 0u);
    QCOMPARE(stats.replyDelay, Ms(65));
    QCOMPARE(stats.afterSet, Ms(50));
}

void TestDdcTransactor::theLedgerKnowsTheDay()
{
    Bench bench;
    std::int64_t day = 20000;
    bench.monitor.setDayOf([&] { return day; });
    for (const int code : {0x62, 0x10, 0x10, 0xF3})
        QCOMPARE(bench.monitor.setVcp(std::uint8_t(code), 1), Error::None);
    QCOMPARE(bench.monitor.setVcpWithin(0x10, 1, Ms(100)), Error::None);
    auto stats = bench.monitor.statistics();
    QCOMPARE(stats.day, 20000);
    QCOMPARE(stats.writes.size(), 3u);
    QCOMPARE(stats.writes[0].code, 0x10);
    QCOMPARE(stats.writes[0].total, 3u);
    QCOMPARE(stats.writes[0].today, 3u);
    QCOMPARE(stats.writes[1].code, 0x62);
    QCOMPARE(stats.writes[2].code, 0xF3);

    ++day;
    QCOMPARE(bench.monitor.setVcp(0x62, 1), Error::None);
    stats = bench.monitor.statistics();
    QCOMPARE(stats.writes[0].total, 3u);
    QCOMPARE(stats.writes[0].today, 0u);
    QCOMPARE(stats.writes[1].total, 2u);
    QCOMPARE(stats.writes[1].today, 1u);
}

void TestDdcTransactor::theObserverSeesEveryMessage()
{
    struct Log : ddc::Observer
    {
        std::vector<std::pair<bool, BusStatus>> seen;
        std::vector<unsigned> attempts;
        Bytes lastBytes;
        void transfer(const ddc::TransferRecord& record) override
        {
            seen.emplace_back(record.isWrite, record.status);
            attempts.push_back(record.attempt);
            lastBytes.assign(record.bytes.begin(), record.bytes.end());
        }
    };
    Bench bench;
    const auto log = std::make_shared<Log>();
    bench.monitor.setObserver(log);
    bench.wire->writeResults = {BusStatus::Nack};
    bench.wire->replies = {fifty()};
    QVERIFY(bench.monitor.getVcp(0x10));
    QCOMPARE(log->seen.size(), 3u);
    QVERIFY((log->seen[0] == std::pair{true, BusStatus::Nack}));
    QVERIFY((log->seen[1] == std::pair{true, BusStatus::Ok}));
    QVERIFY((log->seen[2] == std::pair{false, BusStatus::Ok}));
    QVERIFY((log->attempts == std::vector<unsigned>{1, 2, 2}));
    QVERIFY(log->lastBytes == fifty().bytes);
    bench.monitor.setObserver(nullptr);
    QCOMPARE(bench.monitor.setVcp(0x10, 1), Error::None);
    QCOMPARE(log->seen.size(), 3u);
}

void TestDdcTransactor::theEngineIsSmall()
{
    // With the ledger of all writable codes of a monitor (about a hundred) it stays below 4 KB.
    QVERIFY(sizeof(ddc::Transactor) + 100 * 24 < 4096);
}

QTEST_APPLESS_MAIN(TestDdcTransactor)
#include "tst_ddc_transactor.moc"
