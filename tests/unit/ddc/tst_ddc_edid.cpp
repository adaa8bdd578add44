// SPDX-License-Identifier: Apache-2.0
#include <ddc/Edid.h>

#include <QTest>

#include <array>
#include <numeric>

namespace {

/// A 27-inch monitor of the manufacturer "LMN" with both serials; the last byte of the block is its checksum.
const QByteArray Typical = QByteArray::fromHex("00 ff ff ff ff ff ff 00 31 ae 7a a0 4c 38 34 30"
                                               "21 1b 01 04 a5 3c 22 78 3a 4b b5 a7 56 4b a3 25"
                                               "0a 50 54 a5 4b 00 81 00 b3 00 d1 00 71 4f a9 40"
                                               "81 80 d1 c0 01 01 56 5e 00 a0 a0 a0 29 50 30 20"
                                               "35 00 55 50 21 00 00 1a 00 00 00 ff 00 51 57 37"
                                               "52 54 33 31 4d 30 34 38 4c 0a 00 00 00 fc 00 44"
                                               "45 53 4b 20 32 37 20 51 48 44 0a 20 00 00 00 fd"
                                               "00 31 56 1d 71 1e 00 0a 20 20 20 20 20 20 00 78");

struct Block
{
    QByteArray bytes = Typical;

    Block& put(int at, std::initializer_list<int> values)
    {
        for (const int value : values)
            bytes[at++] = char(value);
        return *this;
    }
    Block& text(int at, const char* text)
    {
        bytes.replace(at, 13, QByteArray(text).leftJustified(13, ' '));
        return *this;
    }
    Block& seal()
    {
        bytes[127] = 0;
        bytes[127] = char(-std::accumulate(bytes.begin(), bytes.end(), 0));
        return *this;
    }
    ddc::Result<ddc::Edid> parse() const
    {
        return ddc::parseEdid(
            {reinterpret_cast<const std::uint8_t*>(bytes.data()), std::size_t(bytes.size())});
    }
};

constexpr int SerialText = 77;
constexpr int NameText = 95;

} // namespace

class TestDdcEdid : public QObject
{
    Q_OBJECT

private slots:
    void aTypicalEdidTellsWhoItIs();
    void theIdentityIsTheTextSerialElseTheNumber_data();
    void theIdentityIsTheTextSerialElseTheNumber();
    void aWrongChecksumIsToldAndNotFatal();
    void extensionsAreCounted();
    void theDateMayBeAModelYear_data();
    void theDateMayBeAModelYear();
    void textsArePlainAndTrimmed();
    void aDetailedTimingIsNoText();
    void aGarbledManufacturerIsEmpty();
    void whatIsNoEdidIsMalformed_data();
    void whatIsNoEdidIsMalformed();
};

void TestDdcEdid::aTypicalEdidTellsWhoItIs()
{
    const auto result = Block().seal().parse();
    QCOMPARE(result.error, ddc::Error::None);
    const ddc::Edid& edid = result.value;
    QCOMPARE(edid.manufacturer, "LMN");
    QCOMPARE(edid.product, 0xA07A);
    QCOMPARE(edid.serialNumber, 0x3034384Cu);
    QCOMPARE(edid.serialText, "QW7RT31M048L");
    QCOMPARE(edid.name, "DESK 27 QHD");
    QCOMPARE(edid.week, 33);
    QCOMPARE(edid.year, 2017);
    QVERIFY(!edid.isModelYear);
    QCOMPARE(edid.extensions, 0);
    QVERIFY(edid.checksumOk);
}

void TestDdcEdid::theIdentityIsTheTextSerialElseTheNumber_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QByteArray>("identity");
    const auto row = [](const char* name, const Block& block, const char* identity) {
        QTest::newRow(name) << block.bytes << QByteArray(identity);
    };
    row("both", Block().seal(), "QW7RT31M048L");
    row("text only", Block().put(12, {0, 0, 0, 0}).seal(), "QW7RT31M048L");
    row("number only", Block().put(75, {0x10}).seal(), "808728652");
    row("largest number", Block().put(75, {0x10}).put(12, {0xFF, 0xFF, 0xFF, 0xFF}).seal(), "4294967295");
    row("blank text", Block().text(SerialText, "").seal(), "808728652");
    row("empty text", Block().text(SerialText, "\n").seal(), "808728652");
    row("neither", Block().put(75, {0x10}).put(12, {0, 0, 0, 0}).seal(), "");
    row("blank text and no number", Block().text(SerialText, "  \n").put(12, {0, 0, 0, 0}).seal(), "");
}

void TestDdcEdid::theIdentityIsTheTextSerialElseTheNumber()
{
    QFETCH(QByteArray, bytes);
    const auto result = Block{bytes}.parse();
    QVERIFY(result);
    QTEST(QByteArray::fromStdString(result.value.identitySerial()), "identity");
}

void TestDdcEdid::aWrongChecksumIsToldAndNotFatal()
{
    Block block;
    block.seal();
    block.bytes[127] = char(block.bytes[127] + 1);
    const auto result = block.parse();
    QVERIFY(result);
    QVERIFY(!result.value.checksumOk);
    QCOMPARE(result.value.serialText, "QW7RT31M048L");
}

void TestDdcEdid::extensionsAreCounted()
{
    Block block = Block().put(126, {2}).seal();
    block.bytes += QByteArray(128, '\x02'); // Their content is no matter of the base block's.
    const auto result = block.parse();
    QVERIFY(result);
    QCOMPARE(result.value.extensions, 2);
    QVERIFY(result.value.checksumOk);
}

void TestDdcEdid::theDateMayBeAModelYear_data()
{
    QTest::addColumn<int>("weekByte");
    QTest::addColumn<int>("week");
    QTest::addColumn<bool>("isModelYear");
    QTest::newRow("not told") << 0 << 0 << false;
    QTest::newRow("week") << 54 << 54 << false;
    QTest::newRow("no such week") << 55 << 0 << false;
    QTest::newRow("model year") << 255 << 0 << true;
}

void TestDdcEdid::theDateMayBeAModelYear()
{
    QFETCH(int, weekByte);
    const auto result = Block().put(16, {weekByte, 34}).seal().parse();
    QVERIFY(result);
    QTEST(result.value.week, "week");
    QCOMPARE(result.value.year, 2024);
    QTEST(result.value.isModelYear, "isModelYear");
}

void TestDdcEdid::textsArePlainAndTrimmed()
{
    const auto result =
        Block().text(SerialText, "  A\x01\xC3\xA9 B \x7F \nX").text(NameText, "ABCDEFGHIJKLM").seal().parse();
    QVERIFY(result);
    QCOMPARE(result.value.serialText, "A B");
    QCOMPARE(result.value.name, "ABCDEFGHIJKLM");
}

void TestDdcEdid::aDetailedTimingIsNoText()
{
    const auto result = Block().put(72, {0x12}).seal().parse();
    QVERIFY(result);
    QCOMPARE(result.value.serialText, "");
}

void TestDdcEdid::aGarbledManufacturerIsEmpty()
{
    QCOMPARE(Block().put(8, {0, 0}).seal().parse().value.manufacturer, "");
    QCOMPARE(Block().put(8, {0x7F, 0xFF}).seal().parse().value.manufacturer, "");
}

void TestDdcEdid::whatIsNoEdidIsMalformed_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("one byte short") << Block().seal().bytes.left(127);
    QTest::newRow("zeros") << QByteArray(128, '\0');
    QTest::newRow("ones") << QByteArray(256, '\xFF');
    QTest::newRow("header damaged") << Block().put(7, {1}).seal().bytes;
}

void TestDdcEdid::whatIsNoEdidIsMalformed()
{
    QFETCH(QByteArray, bytes);
    QCOMPARE(Block{bytes}.parse().error, ddc::Error::Malformed);
}

QTEST_APPLESS_MAIN(TestDdcEdid)
#include "tst_ddc_edid.moc"
