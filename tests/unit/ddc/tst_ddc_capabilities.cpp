// SPDX-License-Identifier: Apache-2.0
#include <ddc/Capabilities.h>

#include <QTest>

namespace {

using Values = std::vector<std::uint8_t>;

constexpr std::string_view Typical =
    "(prot(monitor)type(LCD)model(TK30Z)cmds(01 02 03 07 0C E3 F3)vcp(02 04 05 08 10 12 14(05 08 0B) "
    "60(0F 11 12 1B) 62 8D(01 02) DC(30 31 3A 0F) DF FD)mswhql(1)asset_eep(40)mccs_ver(2.2))";

QByteArray codesOf(const ddc::Capabilities& caps)
{
    QByteArray list;
    for (const auto& entry : caps.vcp) {
        list += (list.isEmpty() ? "" : " ") + QByteArray(1, char(entry.code)).toHex();
        if (!entry.values.empty())
            list +=
                '(' +
                QByteArray(reinterpret_cast<const char*>(entry.values.data()), qsizetype(entry.values.size()))
                    .toHex(' ') +
                ')';
    }
    return list;
}

} // namespace

class TestDdcCapabilities : public QObject
{
    Q_OBJECT

private slots:
    void aTypicalStringIsUnderstood();
    void sloppyStringsAreUnderstood_data();
    void sloppyStringsAreUnderstood();
    void whatIsNoCapabilitiesStringIsMalformed_data();
    void whatIsNoCapabilitiesStringIsMalformed();
    void theSizeIsBounded();
    void hostileNestingEnds_data();
    void hostileNestingEnds();
    void everyCutOfAStringIsSurvived();
};

void TestDdcCapabilities::aTypicalStringIsUnderstood()
{
    const auto result = ddc::parseCapabilities(Typical);
    QVERIFY(result);
    const ddc::Capabilities& caps = result.value;
    QCOMPARE(caps.protocol, "monitor");
    QCOMPARE(caps.type, "LCD");
    QCOMPARE(caps.model, "TK30Z");
    QCOMPARE(caps.mccsVersion, "2.2");
    QVERIFY(caps.complete);
    QVERIFY((caps.commands == Values{0x01, 0x02, 0x03, 0x07, 0x0C, 0xE3, 0xF3}));
    QCOMPARE(codesOf(caps),
             "02 04 05 08 10 12 14(05 08 0b) 60(0f 11 12 1b) 62 8d(01 02) dc(30 31 3a 0f) df fd");
    QVERIFY(caps.find(0x60));
    QVERIFY((caps.find(0x60)->values == Values{0x0F, 0x11, 0x12, 0x1B}));
    QVERIFY(!caps.find(0x61));
}

void TestDdcCapabilities::sloppyStringsAreUnderstood_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QByteArray>("codes");
    QTest::addColumn<bool>("complete");
    const auto row = [](const char* name, const char* text, const char* codes, bool complete) {
        QTest::newRow(name) << QByteArray(text) << QByteArray(codes) << complete;
    };
    row("no outer parentheses", "vcp(02 04)model(X)", "02 04", true);
    row("outer closing missing", "(model(X)vcp(02 04)", "02 04", false);
    row("cut within codes", "(vcp(02 04 14(05", "02 04 14(05)", false);
    row("one closing too many", "(vcp(02 04)))", "02 04", false);
    row("codes without blanks", "(vcp(0204 1014(0506)60))", "02 04 10 14(05 06) 60", true);
    row("upper and lower case", "(VCP(dc DC fD))", "dc fd", true);
    row("blanks everywhere", " ( vcp ( 02\t04\n14 ( 05 06 ) ) ) ", "02 04 14(05 06)", true);
    row("commas", "(vcp(02,04,14(05,06)))", "02 04 14(05 06)", true);
    row("a code twice", "(vcp(14(05) 02 14(05 06)))", "14(05 06) 02", true);
    row("two lists", "(vcp(02)vcp(04))", "02 04", true);
    row("one digit", "(vcp(2 14(5 B)))", "02 14(05 0b)", true);
    row("garbage among codes", "(vcp(02 zz 04 123 xy(05) 05))", "02 04 05", true);
    row("values of garbage", "(vcp(14(05 zz 06 123)))", "14(05 06)", true);
    row("groups within values", "(vcp(F5(01 02(03 04) 05)))", "f5(01 02 05)", true);
    row("values without a code", "(vcp((01 02) 10))", "10", true);
    row("unknown keys", "(foo(bar(02))vcp(02)baz)", "02", true);
    row("an empty list", "(vcp())", "", true);
    row("wrapped twice", "((vcp(02)))", "02", true);
}

void TestDdcCapabilities::sloppyStringsAreUnderstood()
{
    QFETCH(QByteArray, text);
    const auto result = ddc::parseCapabilities(text.toStdString());
    QCOMPARE(result.error, ddc::Error::None);
    QTEST(codesOf(result.value), "codes");
    QTEST(result.value.complete, "complete");
}

void TestDdcCapabilities::whatIsNoCapabilitiesStringIsMalformed_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("parentheses") << QByteArray("()");
    QTest::newRow("closing only") << QByteArray(")))");
    QTest::newRow("prose") << QByteArray("a monitor of the year 2026");
    QTest::newRow("zeros") << QByteArray(32, '\0');
    QTest::newRow("bytes") << QByteArray(300, '\xFF');
    QTest::newRow("a key without a group") << QByteArray("(vcp)");
}

void TestDdcCapabilities::whatIsNoCapabilitiesStringIsMalformed()
{
    QFETCH(QByteArray, text);
    QCOMPARE(ddc::parseCapabilities({text.constData(), std::size_t(text.size())}).error,
             ddc::Error::Malformed);
}

void TestDdcCapabilities::theSizeIsBounded()
{
    std::string text = "(vcp(02))";
    text.resize(ddc::CapabilitiesLimit, ' ');
    QVERIFY(ddc::parseCapabilities(text));
    QCOMPARE(ddc::parseCapabilities(text + ' ').error, ddc::Error::Malformed);
}

void TestDdcCapabilities::hostileNestingEnds_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("opening only") << QByteArray(60000, '(');
    QTest::newRow("deep") << QByteArray(30000, '(') + "vcp(02)" + QByteArray(30000, ')');
    QTest::newRow("vcp of vcp") << QByteArray("vcp(").repeated(15000);
    QTest::newRow("deep values") << "(vcp(14" + QByteArray(30000, '(') + "05" + QByteArray(30000, ')') + "))";
    QTest::newRow("many small groups") << QByteArray("a()").repeated(20000);
}

void TestDdcCapabilities::hostileNestingEnds()
{
    QFETCH(QByteArray, text);
    const auto result = ddc::parseCapabilities(text.toStdString());
    QVERIFY(result.value.vcp.size() <= 256);
}

void TestDdcCapabilities::everyCutOfAStringIsSurvived()
{
    std::size_t most = 0;
    for (std::size_t length = 0; length <= Typical.size(); ++length) {
        const auto result = ddc::parseCapabilities(Typical.substr(0, length));
        QCOMPARE(result && result.value.complete, length == Typical.size());
        QVERIFY(result.value.vcp.size() >= most);
        most = result.value.vcp.size();
    }
}

QTEST_APPLESS_MAIN(TestDdcCapabilities)
#include "tst_ddc_capabilities.moc"
