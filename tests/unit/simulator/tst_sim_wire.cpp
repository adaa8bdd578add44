// SPDX-License-Identifier: Apache-2.0
#include "wirehost.h"

#include <random>

using ddc::BusStatus;

class TestSimWire : public QObject
{
    Q_OBJECT

private slots:
    void aFrameIsAnsweredByteByByte_data();
    void aFrameIsAnsweredByteByByte();
    void aSetChangesTheValueThatAGetReads();
    void aSetOfAnUnsupportedCodeChangesNothing();
    void aFrameThatIsNotUnderstoodIsAcknowledgedAndGetsANullMessage_data();
    void aFrameThatIsNotUnderstoodIsAcknowledgedAndGetsANullMessage();
    void aReplyIsReadOnce();
    void aReadThatIsLongerThanTheReplyIsPaddedWithZeros();
    void aReadThatIsShorterGetsTheBeginning();
    void aProbeByteLeavesTheReplyWaiting();
    void savingIsCounted();
    void capabilitiesInFragmentsGiveTheWholeString();
    void capabilitiesListTheModesAndInputs();
    void theEdidHoldsMakerNameAndSerial();
    void theEdidIsReadFromAnyOffset();
    void theEdidCannotBeWritten();
    void aMonitorWithoutASerialTellsNone();
    void aBuiltInPanelHasAnEdidAndNoDdcCi();
    void otherAddressesDoNotAcknowledge();
    void anIdentityThatFitsNoEdidIsRefused_data();
    void anIdentityThatFitsNoEdidIsRefused();
    void aDefaultSerialIsTheSameAtEveryRun();
    void hostileBytesDoNoHarm();
};

void TestSimWire::aFrameIsAnsweredByteByByte_data()
{
    QTest::addColumn<QByteArray>("request");
    QTest::addColumn<QString>("reply");
    QTest::newRow("get brightness") << QByteArray("51 82 01 10 AC") << "6E 88 02 00 10 00 00 64 00 32 F2";
    QTest::newRow("get colour mode") << QByteArray("51 82 01 DC 60") << "6E 88 02 00 DC 00 00 32 00 12 48";
    QTest::newRow("get MCCS version") << QByteArray("51 82 01 DF 63") << "6E 88 02 00 DF 00 FF FF 02 02 6B";
    QTest::newRow("get a command") << QByteArray("51 82 01 08 B4") << "6E 88 02 00 08 01 00 01 00 00 BC";
    QTest::newRow("get an unsupported code")
        << QByteArray("51 82 01 99 25") << "6E 88 02 01 99 00 00 00 00 00 2C";
    QTest::newRow("set") << QByteArray("51 84 03 10 00 32 9A") << "6E 80 BE";
    QTest::newRow("save") << QByteArray("51 81 0C B2") << "6E 80 BE";
    QTest::newRow("capabilities")
        << QByteArray("51 83 F3 00 00 4F")
        << "6E A3 E3 00 00 28 70 72 6F 74 28 6D 6F 6E 69 74 6F 72 29 74 79 70 65 28 4C 43 "
           "44 29 6D 6F 64 65 6C 28 54 4B 31 19";
    QTest::newRow("capabilities behind the end") << QByteArray("51 83 F3 FF FF 4F") << "6E 83 E3 FF FF 5E";
}

void TestSimWire::aFrameIsAnsweredByteByByte()
{
    QFETCH(QByteArray, request);
    QFETCH(QString, reply);
    sim::Monitor monitor(identity("TK10"));
    WireHost host(monitor);
    QCOMPARE(host.write(QByteArray::fromHex(request)), BusStatus::Ok);
    QCOMPARE(hex(host.read((reply.size() + 1) / 3)), reply);
}

void TestSimWire::aSetChangesTheValueThatAGetReads()
{
    sim::Monitor monitor(identity("TK10"));
    WireHost host(monitor);
    QCOMPARE(host.write("51 84 03 10 00 21 89"), BusStatus::Ok);
    QCOMPARE(host.write("51 82 01 10 AC"), BusStatus::Ok);
    QCOMPARE(hex(host.read(11)), QStringLiteral("6E 88 02 00 10 00 00 64 00 21 E1"));
    QCOMPARE(*monitor.value(0x10), 0x21);
}

void TestSimWire::aSetOfAnUnsupportedCodeChangesNothing()
{
    sim::Monitor monitor(identity("TK10"));
    WireHost host(monitor);
    QCOMPARE(host.set(0xF3, 1), BusStatus::Ok);
    QCOMPARE(host.get(0xF3), -1);
    QVERIFY(!monitor.value(0xF3));
}

void TestSimWire::aFrameThatIsNotUnderstoodIsAcknowledgedAndGetsANullMessage_data()
{
    QTest::addColumn<QByteArray>("request");
    QTest::newRow("wrong checksum") << QByteArray("51 84 03 10 00 32 9B");
    QTest::newRow("wrong source") << QByteArray("52 84 03 10 00 32 99");
    QTest::newRow("no length flag") << QByteArray("51 04 03 10 00 32 1A");
    QTest::newRow("length too long") << QByteArray("51 85 03 10 00 32 9B");
    QTest::newRow("length too short") << QByteArray("51 83 03 10 00 32 9D");
    QTest::newRow("a byte too many") << QByteArray("51 84 03 10 00 32 9A 00");
    QTest::newRow("unknown command") << QByteArray("51 81 07 B9");
    QTest::newRow("no payload") << QByteArray("51 80 BF");
    QTest::newRow("set without a value") << QByteArray("51 82 03 10 AE");
    QTest::newRow("two bytes") << QByteArray("51 80");
}

void TestSimWire::aFrameThatIsNotUnderstoodIsAcknowledgedAndGetsANullMessage()
{
    QFETCH(QByteArray, request);
    sim::Monitor monitor(identity("TK10"));
    WireHost host(monitor);
    QCOMPARE(host.write(QByteArray::fromHex(request)), BusStatus::Ok);
    QCOMPARE(hex(host.read(3)), QStringLiteral("6E 80 BE"));
    QCOMPARE(*monitor.value(0x10), 50);
    QVERIFY(!monitor.needsPersist());
}

void TestSimWire::aReplyIsReadOnce()
{
    sim::Monitor monitor(identity("TK10"));
    WireHost host(monitor);
    QCOMPARE(hex(host.read(3)), QStringLiteral("6E 80 BE"));
    QCOMPARE(host.get(0x10), 50);
    QCOMPARE(hex(host.read(11)), QStringLiteral("6E 80 BE 00 00 00 00 00 00 00 00"));
}

void TestSimWire::aReadThatIsLongerThanTheReplyIsPaddedWithZeros()
{
    sim::Monitor monitor(identity("TK10"));
    WireHost host(monitor);
    QCOMPARE(host.request(0x10), BusStatus::Ok);
    QCOMPARE(hex(host.read(16)), QStringLiteral("6E 88 02 00 10 00 00 64 00 32 F2 00 00 00 00 00"));
}

void TestSimWire::aReadThatIsShorterGetsTheBeginning()
{
    sim::Monitor monitor(identity("TK10"));
    WireHost host(monitor);
    QCOMPARE(host.request(0x10), BusStatus::Ok);
    QCOMPARE(hex(host.read(4)), QStringLiteral("6E 88 02 00"));
    BusStatus status = BusStatus::Nack;
    QCOMPARE(host.read(0, &status), QByteArray());
    QCOMPARE(status, BusStatus::Ok);
}

void TestSimWire::aProbeByteLeavesTheReplyWaiting()
{
    sim::Monitor monitor(identity("TK10"));
    WireHost host(monitor);
    QCOMPARE(host.request(0x10), BusStatus::Ok);
    QCOMPARE(host.write("00"), BusStatus::Ok);
    QCOMPARE(host.write(""), BusStatus::Ok);
    QCOMPARE(hex(host.read(11)), QStringLiteral("6E 88 02 00 10 00 00 64 00 32 F2"));
}

void TestSimWire::savingIsCounted()
{
    sim::Monitor monitor(identity("TK10"));
    WireHost host(monitor);
    QCOMPARE(host.write("51 81 0C B2"), BusStatus::Ok);
    QCOMPARE(host.write("51 81 0C B2"), BusStatus::Ok);
    QCOMPARE(monitor.savedSettings(), quint64(2));
}

void TestSimWire::capabilitiesInFragmentsGiveTheWholeString()
{
    sim::Monitor monitor(identity("TK30Z"));
    WireHost host(monitor);
    QByteArray all;
    for (;;) {
        const auto offset = static_cast<int>(all.size());
        QCOMPARE(host.write(WireHost::frame({0xF3, offset >> 8, offset & 0xFF})), BusStatus::Ok);
        const QByteArray reply = host.read(38);
        const int length = reply[1] & 0x7F;
        QVERIFY(length <= 35);
        QCOMPARE(static_cast<unsigned char>(reply[2]), 0xE3);
        QCOMPARE(static_cast<unsigned char>(reply[3]) << 8 | static_cast<unsigned char>(reply[4]), offset);
        int sum = 0x50;
        for (int i = 0; i < length + 3; ++i)
            sum ^= static_cast<unsigned char>(reply[i]);
        QCOMPARE(sum, 0);
        if (length == 3)
            break;
        all.append(reply.mid(5, length - 3));
    }
    QVERIFY(all.size() > 300);
    QCOMPARE(all, monitor.capabilities());
}

void TestSimWire::capabilitiesListTheModesAndInputs()
{
    const QByteArray text = sim::Monitor(identity("TK30Z")).capabilities();
    QVERIFY(text.startsWith(
        "(prot(monitor)type(LCD)model(TK30Z)cmds(01 02 03 0C E3 F3)vcp(04 05 08 10 12 13(00 01) "
        "14(04 05 08 0B) "));
    QVERIFY(text.contains(" 60(0F 11 13) "));
    QVERIFY(text.contains(" 8D(01 02) "));
    QVERIFY(text.contains(" DC(31 30 3A 0F 32 28 1F 0A 12 23) "));
    QVERIFY(text.contains(" A5 "));
    QVERIFY(text.endsWith(")mccs_ver(2.2))"));
    QCOMPARE(text.count('('), text.count(')'));
    QCOMPARE(sim::Monitor(identity("Foo")).capabilities(),
             QByteArray("(prot(monitor)type(LCD)model(Foo)cmds(01 02 03 0C E3 F3)"
                        "vcp(04 10 12 60(01 03 0F 11) 62 8D(01 02) DF)mccs_ver(2.2))"));
}

void TestSimWire::theEdidHoldsMakerNameAndSerial()
{
    sim::Monitor monitor(identity("TK20@A1B2"));
    WireHost host(monitor);
    QCOMPARE(host.writeTo(0x50, QByteArray(1, 0)), BusStatus::Ok);
    const QByteArray edid = host.readFrom(0x50, 128);
    QCOMPARE(edid, monitor.edid());
    QCOMPARE(hex(edid.left(12)), QStringLiteral("00 FF FF FF FF FF FF 00 31 A4 20 10"));
    QCOMPARE(hex(edid.mid(18, 2)), QStringLiteral("01 04"));
    int sum = 0;
    for (char byte : edid)
        sum += static_cast<unsigned char>(byte);
    QCOMPARE(sum & 0xFF, 0);
    // 2560 x 1440 in the first timing.
    QCOMPARE(hex(edid.mid(56, 1)), QStringLiteral("00"));
    QCOMPARE(static_cast<unsigned char>(edid[58]) >> 4, 0xA);
    QCOMPARE(hex(edid.mid(72, 18)), QStringLiteral("00 00 00 FC 00 54 4B 32 30 0A 20 20 20 20 20 20 20 20"));
    QCOMPARE(hex(edid.mid(90, 18)), QStringLiteral("00 00 00 FF 00 41 31 42 32 0A 20 20 20 20 20 20 20 20"));
    // FNV-1a of "A1B2", lowest byte first.
    quint32 hash = 2166136261u;
    for (char c : QByteArray("A1B2"))
        hash = (hash ^ static_cast<unsigned char>(c)) * 16777619u;
    for (int i = 0; i < 4; ++i)
        QCOMPARE(static_cast<unsigned char>(edid[12 + i]), (hash >> (8 * i)) & 0xFF);
    QVERIFY(sim::Monitor(identity("TK20@A1B3")).edid().mid(12, 4) != edid.mid(12, 4));
    QVERIFY(sim::Monitor(identity("TK10@A1B2")).edid().mid(10, 2) != edid.mid(10, 2));
}

void TestSimWire::theEdidIsReadFromAnyOffset()
{
    sim::Monitor monitor(identity("TK20"));
    WireHost host(monitor);
    QCOMPARE(host.writeTo(0x50, QByteArray(1, 8)), BusStatus::Ok);
    QCOMPARE(host.readFrom(0x50, 4), monitor.edid().mid(8, 4));
    QCOMPARE(host.readFrom(0x50, 4), monitor.edid().mid(12, 4));
    QCOMPARE(host.writeTo(0x50, QByteArray(1, 126)), BusStatus::Ok);
    QCOMPARE(host.readFrom(0x50, 4), monitor.edid().mid(126, 2) + QByteArray(2, char(0xFF)));
    QCOMPARE(host.writeTo(0x50, QByteArray(1, char(0xFF))), BusStatus::Ok);
    QCOMPARE(host.readFrom(0x50, 3), QByteArray(1, char(0xFF)) + monitor.edid().left(2));
}

void TestSimWire::theEdidCannotBeWritten()
{
    sim::Monitor monitor(identity("TK20"));
    WireHost host(monitor);
    QCOMPARE(host.writeTo(0x50, QByteArray::fromHex("0000")), BusStatus::Nack);
    QCOMPARE(host.readFrom(0x50, 128), monitor.edid());
}

void TestSimWire::aMonitorWithoutASerialTellsNone()
{
    sim::Monitor monitor(identity("TK20@"));
    QCOMPARE(monitor.id(), QStringLiteral("TK20"));
    QCOMPARE(hex(monitor.edid().mid(12, 4)), QStringLiteral("00 00 00 00"));
    for (int at : {54, 72, 90, 108})
        QVERIFY(!(hex(monitor.edid().mid(at, 4)) == QStringLiteral("00 00 00 FF")));
}

void TestSimWire::aBuiltInPanelHasAnEdidAndNoDdcCi()
{
    sim::Monitor monitor(identity("builtin"));
    WireHost host(monitor);
    QVERIFY(monitor.isBuiltIn());
    QCOMPARE(monitor.id(), QStringLiteral("builtin"));
    QCOMPARE(monitor.capabilities(), QByteArray());
    QCOMPARE(host.readFrom(0x50, 128), monitor.edid());
    QVERIFY(monitor.edid().contains("Notebook LCD"));
    QCOMPARE(host.write("51 82 01 10 AC"), BusStatus::Nack);
    QCOMPARE(host.write("00"), BusStatus::Nack);
    BusStatus status = BusStatus::Ok;
    host.read(11, &status);
    QCOMPARE(status, BusStatus::Nack);
    QVERIFY(!monitor.value(0x10));
    QVERIFY(!sim::Monitor(identity("TK20")).isBuiltIn());
}

void TestSimWire::otherAddressesDoNotAcknowledge()
{
    sim::Monitor monitor(identity("TK20"));
    WireHost host(monitor);
    BusStatus status = BusStatus::Ok;
    for (std::uint8_t address : {0x30, 0x36, 0x38, 0x3A, 0x51, 0x6E}) {
        QCOMPARE(host.writeTo(address, QByteArray(1, 0)), BusStatus::Nack);
        host.readFrom(address, 1, &status);
        QCOMPARE(status, BusStatus::Nack);
    }
}

void TestSimWire::anIdentityThatFitsNoEdidIsRefused_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("message");
    QTest::newRow("empty") << QString() << "names no model";
    QTest::newRow("no model") << QStringLiteral("@A1") << "names no model";
    QTest::newRow("long model") << QStringLiteral("ABCDEFGHIJKLMN") << "no model name";
    QTest::newRow("blank in the model") << QStringLiteral("TK 10") << "no model name";
    QTest::newRow("model beyond ASCII") << QStringLiteral("T\u00C4") << "no model name";
    QTest::newRow("long serial") << QStringLiteral("TK10@ABCDEFGHIJKLMN") << "no serial number";
    QTest::newRow("second at") << QStringLiteral("TK10@A@B") << "no serial number";
}

void TestSimWire::anIdentityThatFitsNoEdidIsRefused()
{
    QFETCH(QString, text);
    QFETCH(QString, message);
    QString error;
    QVERIFY(!sim::Identity::parse(text, &error));
    QVERIFY2(error.contains(message), qPrintable(error));
}

void TestSimWire::aDefaultSerialIsTheSameAtEveryRun()
{
    const QString serial = sim::Identity::defaultSerial(QStringLiteral("TK30Z"));
    QCOMPARE(identity("TK30Z").serial, serial);
    QCOMPARE(identity("TK30Z").id(), QStringLiteral("TK30Z@") + serial);
    // FNV-1a of "TK30Z": a change would make every user's simulated monitor a stranger.
    quint32 hash = 2166136261u;
    for (char c : QByteArray("TK30Z"))
        hash = (hash ^ static_cast<unsigned char>(c)) * 16777619u;
    QCOMPARE(serial, QStringLiteral("SIM%1").arg(hash, 8, 16, QLatin1Char('0')).toUpper());
    QVERIFY(sim::Identity::defaultSerial(QStringLiteral("TK30Z"), 2) != serial);
    QVERIFY(sim::Identity::defaultSerial(QStringLiteral("TK30")) != serial);
    QVERIFY(serial.size() <= 13);
}

void TestSimWire::hostileBytesDoNoHarm()
{
    std::mt19937 random(20240607);
    sim::Monitor monitor(identity("TK30Z"));
    WireHost host(monitor);
    for (int i = 0; i < 100'000; ++i) {
        QByteArray bytes(static_cast<qsizetype>(random() % 40), Qt::Uninitialized);
        for (char& byte : bytes)
            byte = static_cast<char>(random());
        // Two of three carry a right head, one of three a right checksum as well, so that all depths are
        // reached.
        if (bytes.size() > 3 && i % 3) {
            bytes[0] = 0x51;
            bytes[1] = static_cast<char>(0x80 | (bytes.size() - 3));
            const char commands[] = {0x01, 0x03, 0x0C, char(0xF3)};
            bytes[2] = commands[random() % 4];
            if (i % 3 == 1) {
                int sum = 0x6E;
                for (qsizetype at = 0; at + 1 < bytes.size(); ++at)
                    sum ^= static_cast<unsigned char>(bytes[at]);
                bytes[bytes.size() - 1] = static_cast<char>(sum);
            }
        }
        QCOMPARE(host.write(bytes), BusStatus::Ok);
        BusStatus status = BusStatus::Nack;
        const QByteArray reply = host.read(static_cast<qsizetype>(random() % 48), &status);
        QCOMPARE(status, BusStatus::Ok);
        if (reply.size() > 2) {
            const int length = reply[1] & 0x7F;
            QCOMPARE(static_cast<unsigned char>(reply[0]), 0x6E);
            QVERIFY(length <= 35);
        }
    }
    QCOMPARE(host.set(0x12, 77), BusStatus::Ok);
    QCOMPARE(host.get(0x12), 77);
}

QTEST_GUILESS_MAIN(TestSimWire)
#include "tst_sim_wire.moc"
