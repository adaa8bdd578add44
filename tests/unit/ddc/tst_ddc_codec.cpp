// SPDX-License-Identifier: Apache-2.0
#include <ddc/Codec.h>

#include <QTest>

using ddc::ParseResult;

namespace {

QByteArray hex(std::span<const std::uint8_t> bytes)
{
    return QByteArray(reinterpret_cast<const char*>(bytes.data()), qsizetype(bytes.size())).toHex(' ');
}

std::vector<std::uint8_t> bytesOf(const QByteArray& text)
{
    const QByteArray raw = QByteArray::fromHex(text);
    return {raw.begin(), raw.end()};
}

} // namespace

Q_DECLARE_METATYPE(ddc::ParseResult)

class TestDdcCodec : public QObject
{
    Q_OBJECT

private slots:
    void requestsAreTheBytesOfTheStandard();
    void aVcpReplyIsTakenToPieces_data();
    void aVcpReplyIsTakenToPieces();
    void aDamagedVcpReplyIsTold_data();
    void aDamagedVcpReplyIsTold();
    void aFailedParseLeavesTheReplyAlone();
    void aFragmentIsTakenToPieces_data();
    void aFragmentIsTakenToPieces();
    void everyOutcomeHasOneError();
    void everySingleDamagedByteIsNoticed();
};

void TestDdcCodec::requestsAreTheBytesOfTheStandard()
{
    QCOMPARE(hex(ddc::getVcpRequest(0x10)), "51 82 01 10 ac");
    QCOMPARE(hex(ddc::getVcpRequest(0xDC)), "51 82 01 dc 60");
    QCOMPARE(hex(ddc::setVcpRequest(0x10, 50)), "51 84 03 10 00 32 9a");
    QCOMPARE(hex(ddc::setVcpRequest(0xF3, 1)), "51 84 03 f3 00 01 4a");
    QCOMPARE(hex(ddc::setVcpRequest(0x60, 0x0F11)), "51 84 03 60 0f 11 c6");
    QCOMPARE(hex(ddc::saveSettingsRequest()), "51 81 0c b2");
    QCOMPARE(hex(ddc::capabilitiesRequest(0)), "51 83 f3 00 00 4f");
    QCOMPARE(hex(ddc::capabilitiesRequest(0x0120)), "51 83 f3 01 20 6e");
}

void TestDdcCodec::aVcpReplyIsTakenToPieces_data()
{
    QTest::addColumn<QByteArray>("frame");
    QTest::addColumn<int>("code");
    QTest::addColumn<int>("current");
    QTest::addColumn<int>("maximum");
    QTest::addColumn<bool>("momentary");
    QTest::newRow("brightness") << QByteArray("6e 88 02 00 10 00 00 64 00 32 f2") << 0x10 << 50 << 100
                                << false;
    QTest::newRow("one byte more read")
        << QByteArray("6e 88 02 00 10 00 00 64 00 32 f2 ff") << 0x10 << 50 << 100 << false;
    QTest::newRow("both bytes used") << QByteArray("6e 88 02 00 60 00 ff ff 0f 11 ca") << 0x60 << 0x0F11
                                     << 0xFFFF << false;
    QTest::newRow("momentary") << QByteArray("6e 88 02 00 01 01 00 01 00 00 b5") << 0x01 << 0 << 1 << true;
    QTest::newRow("source 0x50") << QByteArray("50 88 02 00 10 00 00 64 00 32 cc") << 0x10 << 50 << 100
                                 << false;
    QTest::newRow("source 0x51") << QByteArray("51 88 02 00 10 00 00 64 00 32 cd") << 0x10 << 50 << 100
                                 << false;
}

void TestDdcCodec::aVcpReplyIsTakenToPieces()
{
    QFETCH(QByteArray, frame);
    QFETCH(int, code);
    ddc::VcpReply reply;
    QCOMPARE(ddc::parseVcpReply(bytesOf(frame), std::uint8_t(code), reply), ParseResult::Ok);
    QCOMPARE(int(reply.code), code);
    QTEST(int(reply.current), "current");
    QTEST(int(reply.maximum), "maximum");
    QTEST(reply.momentary, "momentary");
}

void TestDdcCodec::aDamagedVcpReplyIsTold_data()
{
    QTest::addColumn<QByteArray>("frame");
    QTest::addColumn<ParseResult>("result");
    const auto row = [](const char* name, const char* frame, ParseResult result) {
        QTest::newRow(name) << QByteArray(frame) << result;
    };
    row("nothing", "", ParseResult::Truncated);
    row("two bytes", "6e 88", ParseResult::Truncated);
    row("cut before the checksum", "6e 88 02 00 10 00 00 64 00 32", ParseResult::Truncated);
    row("null message", "6e 80 be", ParseResult::Null);
    row("null message in a long read", "6e 80 be 00 00 00 00 00 00 00 00", ParseResult::Null);
    row("null message, source 0x51", "51 80 81 ff ff ff ff ff ff ff ff", ParseResult::Null);
    row("null message, wrong checksum", "6e 80 bf 00 00 00 00 00 00 00 00", ParseResult::BadChecksum);
    row("wrong checksum", "6e 88 02 00 10 00 00 64 00 32 f3", ParseResult::BadChecksum);
    row("flipped value bit", "6e 88 02 00 10 00 00 64 00 33 f2", ParseResult::BadChecksum);
    row("source 0x50, checksum of 0x6e", "50 88 02 00 10 00 00 64 00 32 f2", ParseResult::BadChecksum);
    row("source 0x51, checksum of 0x6e", "51 88 02 00 10 00 00 64 00 32 f2", ParseResult::BadChecksum);
    row("our own request echoed", "51 82 01 10 ac 00 00 00 00 00 00", ParseResult::BadChecksum);
    row("unknown source", "6f 88 02 00 10 00 00 64 00 32 f3", ParseResult::Malformed);
    row("silence, bus high", "ff ff ff ff ff ff ff ff ff ff ff", ParseResult::Malformed);
    row("silence, bus low", "00 00 00 00 00 00 00 00 00 00 00", ParseResult::Malformed);
    row("length flag missing", "6e 08 02 00 10 00 00 64 00 32 72", ParseResult::Malformed);
    row("length beyond the read", "6e ff 02 00 10 00 00 64 00 32 f2", ParseResult::Truncated);
    row("another opcode", "6e 88 03 00 10 00 00 64 00 32 f3", ParseResult::Malformed);
    row("fragment instead", "6e 83 e3 00 06 58", ParseResult::Malformed);
    row("another code", "6e 88 02 00 12 00 00 64 00 32 f0", ParseResult::Mismatch);
    row("unsupported", "6e 88 02 01 10 00 00 00 00 00 a5", ParseResult::Unsupported);
    row("unsupported, another code", "6e 88 02 01 12 00 00 00 00 00 a7", ParseResult::Mismatch);
    row("unknown result code", "6e 88 02 07 10 00 00 00 00 00 a3", ParseResult::Malformed);
}

void TestDdcCodec::aDamagedVcpReplyIsTold()
{
    QFETCH(QByteArray, frame);
    ddc::VcpReply reply;
    QTEST(ddc::parseVcpReply(bytesOf(frame), 0x10, reply), "result");
}

void TestDdcCodec::aFailedParseLeavesTheReplyAlone()
{
    ddc::VcpReply reply{0x42, true, 7, 8};
    QCOMPARE(ddc::parseVcpReply(bytesOf("6e 88 02 01 10 00 00 00 00 00 a5"), 0x10, reply),
             ParseResult::Unsupported);
    QCOMPARE(reply.code, 0x42);
    QCOMPARE(reply.current, 8);
}

void TestDdcCodec::aFragmentIsTakenToPieces_data()
{
    QTest::addColumn<QByteArray>("frame");
    QTest::addColumn<int>("offset");
    QTest::addColumn<ParseResult>("result");
    QTest::addColumn<QByteArray>("data");
    const auto row = [](const char* name, QByteArray frame, int offset, ParseResult result,
                        const char* data) {
        QTest::newRow(name) << frame << offset << result << QByteArray(data);
    };
    row("first", "6e 89 e3 00 00 28 70 72 6f 74 28 4d", 0, ParseResult::Ok, "(prot(");
    row("end", "6e 83 e3 00 06 58", 6, ParseResult::Ok, "");
    row("32 characters", "6e a3 e3 00 20" + QByteArray(" 41").repeated(32) + " 5e", 32, ParseResult::Ok,
        "AAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAA");
    row("33 characters", "6e a4 e3 00 20" + QByteArray(" 41").repeated(33) + " 18", 32,
        ParseResult::Malformed, "");
    row("another offset", "6e 89 e3 00 00 28 70 72 6f 74 28 4d", 6, ParseResult::Mismatch, "");
    row("offset missing", "6e 82 e3 00 5f", 0, ParseResult::Malformed, "");
    row("another opcode", "6e 83 e4 00 06 5f", 6, ParseResult::Malformed, "");
    row("wrong checksum", "6e 89 e3 00 00 28 70 72 6f 74 29 4d", 0, ParseResult::BadChecksum, "");
    row("null message", "6e 80 be", 0, ParseResult::Null, "");
    row("cut", "6e 89 e3 00 00 28 70", 0, ParseResult::Truncated, "");
}

void TestDdcCodec::aFragmentIsTakenToPieces()
{
    QFETCH(QByteArray, frame);
    QFETCH(int, offset);
    const auto bytes = bytesOf(frame);
    ddc::Fragment fragment;
    QTEST(ddc::parseFragment(bytes, std::uint16_t(offset), fragment), "result");
    QTEST(QByteArray(reinterpret_cast<const char*>(fragment.data.data()), qsizetype(fragment.data.size())),
          "data");
}

void TestDdcCodec::everyOutcomeHasOneError()
{
    using ddc::BusStatus;
    using ddc::Error;
    QCOMPARE(ddc::errorOf(BusStatus::Ok), Error::None);
    QCOMPARE(ddc::errorOf(BusStatus::Nack), Error::NoReply);
    QCOMPARE(ddc::errorOf(BusStatus::Timeout), Error::NoReply);
    QCOMPARE(ddc::errorOf(BusStatus::Busy), Error::Busy);
    QCOMPARE(ddc::errorOf(BusStatus::NoAccess), Error::NoAccess);
    QCOMPARE(ddc::errorOf(BusStatus::Gone), Error::Gone);
    QCOMPARE(ddc::errorOf(ParseResult::Ok), Error::None);
    QCOMPARE(ddc::errorOf(ParseResult::Null), Error::NullReply);
    QCOMPARE(ddc::errorOf(ParseResult::BadChecksum), Error::BadChecksum);
    QCOMPARE(ddc::errorOf(ParseResult::Unsupported), Error::Unsupported);
    QCOMPARE(ddc::errorOf(ParseResult::Truncated), Error::Malformed);
    QCOMPARE(ddc::errorOf(ParseResult::Malformed), Error::Malformed);
    QCOMPARE(ddc::errorOf(ParseResult::Mismatch), Error::Malformed);
    QSet<QByteArray> texts;
    for (std::size_t i = 0; i < ddc::ErrorCount; ++i)
        texts.insert(ddc::text(ddc::Error(i)));
    QCOMPARE(texts.size(), qsizetype(ddc::ErrorCount));
}

void TestDdcCodec::everySingleDamagedByteIsNoticed()
{
    const auto whole = bytesOf("6e 88 02 00 10 00 00 64 00 32 f2");
    for (std::size_t at = 0; at < whole.size(); ++at) {
        for (int value = 0; value < 256; ++value) {
            auto damaged = whole;
            damaged[at] = std::uint8_t(value);
            ddc::VcpReply reply;
            const bool taken = ddc::parseVcpReply(damaged, 0x10, reply) == ParseResult::Ok;
            QCOMPARE(taken, value == whole[at]);
        }
    }
}

QTEST_APPLESS_MAIN(TestDdcCodec)
#include "tst_ddc_codec.moc"
