// SPDX-License-Identifier: Apache-2.0
#include "wirehost.h"

using ddc::BusStatus;

class TestSimBehaviour : public QObject
{
    Q_OBJECT

private slots:
    void aWriteIsTakenAsItsCodeAllows_data();
    void aWriteIsTakenAsItsCodeAllows();
    void theMenuTakesAny16BitValue();
    void theMenuRefusesWhatDoesNotExist();
    void theMenuSetsTheColourModeBeforeItsValues();
    void theMenuTakesAllValuesOrNone();
    void aColourModeBringsItsOwnValues();
    void aColourModeKeepsWhatWasSetInIt();
    void aColourModeThatTheMenuInventedHasFactoryValues();
    void localContrastIsOffInModesWithoutIt();
    void gainsChangeInTheUsersTemperatureOnly();
    void everyWindowHasItsSource();
    void withoutASelectionThereIsNoWindow();
    void aSwapExchangesMainAndSubWindow();
    void aBandIsReadAfterItsSelection();
    void muteAndVolumeAreIndependent();
    void theOrientationIsChangedByHandOnly();
    void restoringColourConcernsThePresentModeOnly();
    void restoringEverythingForgetsAllModes();
    void aBrightnessWrittenUnderAmbientLightIsReadBack();
};

void TestSimBehaviour::aWriteIsTakenAsItsCodeAllows_data()
{
    QTest::addColumn<int>("code");
    QTest::addColumn<int>("written");
    QTest::addColumn<int>("read");
    QTest::newRow("continuous within its range") << 0x12 << 100 << 100;
    QTest::newRow("continuous above its range clamps") << 0x12 << 101 << 100;
    QTest::newRow("continuous far above clamps") << 0x12 << 0xFFFF << 100;
    QTest::newRow("volume ends at 50") << 0x62 << 51 << 50;
    QTest::newRow("low blue light ends at 5") << 0x19 << 6 << 5;
    QTest::newRow("sharpness ends at 10") << 0x87 << 11 << 10;
    QTest::newRow("list takes its values") << 0x60 << 15 << 15;
    QTest::newRow("list ignores others") << 0x60 << 200 << 19;
    QTest::newRow("colour mode") << 0xDC << 0x32 << 0x32;
    QTest::newRow("colour mode that the model lacks") << 0xDC << 0x33 << 0x12;
    QTest::newRow("high byte counts in a list") << 0x8D << 0x0101 << 2;
    QTest::newRow("packed takes all fields") << 0xD7 << 0x0221 << 0x0221;
    QTest::newRow("packed ignores a wrong field") << 0xD7 << 0x0321 << 0x0110;
    QTest::newRow("packed ignores a wrong low field") << 0xD7 << 0x0242 << 0x0110;
    QTest::newRow("colour weakness") << 0xFD << 0x0504 << 0x0504;
    QTest::newRow("colour weakness, wrong filter") << 0xFD << 0x0501 << 0;
    QTest::newRow("dual view with a mode") << 0xF4 << 0x3201 << 0x3201;
    QTest::newRow("dual view with an unknown mode") << 0xF4 << 0x3301 << 0;
    QTest::newRow("read only") << 0xAA << 2 << 1;
    QTest::newRow("command stores nothing") << 0x04 << 1 << 0;
    QTest::newRow("long presence time") << 0xE7 << 160 << 160;
    QTest::newRow("unknown presence time") << 0xE7 << 15 << 0;
}

void TestSimBehaviour::aWriteIsTakenAsItsCodeAllows()
{
    QFETCH(int, code);
    QFETCH(int, written);
    QFETCH(int, read);
    sim::Monitor monitor(identity("TK30Z"));
    WireHost host(monitor);
    QCOMPARE(host.set(code, written), BusStatus::Ok);
    QCOMPARE(host.get(code), read);
    QCOMPARE(int(*monitor.value(code)), read);
}

void TestSimBehaviour::theMenuTakesAny16BitValue()
{
    sim::Monitor monitor(identity("TK30Z"));
    WireHost host(monitor);
    for (int code : {0x12, 0x60, 0x8D, 0xDC, 0xD7, 0xF3, 0xAA, 0xFD})
        for (int value : {0, 2, 121, 0x1234, 0xFFFF}) {
            QVERIFY(monitor.setByMenu(code, value));
            QCOMPARE(host.get(code), value);
        }
}

void TestSimBehaviour::theMenuRefusesWhatDoesNotExist()
{
    sim::Monitor monitor(identity("TK20"));
    QString error;
    QVERIFY(!monitor.setByMenu(0xE7, 5, {}, &error));
    QCOMPARE(error, QStringLiteral("TK20 has no VCP code 0xE7"));
    QVERIFY(!monitor.setByMenu(0x12, 0x10000, {}, &error));
    QCOMPARE(error, QStringLiteral("65536 is no 16-bit value for VCP code 0x12"));
    QVERIFY(!monitor.setByMenu(0x12, -1, {}, &error));
    QVERIFY(!monitor.setByMenu(0x12, 1, 512, &error));
    QCOMPARE(error, QStringLiteral("VCP code 0x12 of TK20 has no window 512"));
    QVERIFY(!monitor.setByMenu(-1, 1));
    QVERIFY(!monitor.setByMenu(0x112, 1));
    QVERIFY(!monitor.value(0x112));
    QVERIFY(!monitor.value(0xE7));
    sim::Monitor windows(identity("TK40"));
    QVERIFY(!windows.setByMenu(0x7E, 15, 256, &error));
    QVERIFY(!windows.value(0x7E, 256));
}

void TestSimBehaviour::theMenuSetsTheColourModeBeforeItsValues()
{
    sim::Monitor monitor(identity("TK30Z"));
    QVERIFY(monitor.setByMenu({{QStringLiteral("0x12"), 40}, {QStringLiteral("0xDC"), 0x32}}));
    QCOMPARE(*monitor.value(0x12), 40);
    QVERIFY(monitor.setByMenu(0xDC, 0x12));
    QCOMPARE(*monitor.value(0x12), 50);
}

void TestSimBehaviour::theMenuTakesAllValuesOrNone()
{
    sim::Monitor monitor(identity("TK30Z"));
    QString error;
    QVERIFY(!monitor.setByMenu({{QStringLiteral("0x12"), 40}, {QStringLiteral("0x01"), 1}}, &error));
    QCOMPARE(error, QStringLiteral("TK30Z has no VCP code 0x01"));
    QVERIFY(!monitor.setByMenu(
        {{QStringLiteral("0x12"), 40}, {QStringLiteral("0x87"), QStringLiteral("much")}}, &error));
    QVERIFY(!monitor.setByMenu({{QStringLiteral("0x12"), 40}, {QStringLiteral("contrast"), 1}}, &error));
    QCOMPARE(error, QStringLiteral("\"contrast\" is no VCP code with a whole number"));
    QCOMPARE(*monitor.value(0x12), 50);
}

void TestSimBehaviour::aColourModeBringsItsOwnValues()
{
    sim::Monitor monitor(identity("TK30Z"));
    WireHost host(monitor);
    QCOMPARE(host.get(0x10), 50);
    QCOMPARE(host.set(0xDC, 0x32), BusStatus::Ok);
    QCOMPARE(host.get(0x10), 65);
    QCOMPARE(host.get(0x12), 55);
    QCOMPARE(host.get(0x72), 140);
    QCOMPARE(host.set(0xDC, 0x1F), BusStatus::Ok);
    QCOMPARE(host.get(0x10), 40);
    QCOMPARE(host.get(0x14), 4);
}

void TestSimBehaviour::aColourModeKeepsWhatWasSetInIt()
{
    sim::Monitor monitor(identity("TK30Z"));
    WireHost host(monitor);
    for (int code : {0x10, 0x12, 0x19, 0x87, 0x8A, 0xD0, 0xE5})
        QCOMPARE(host.set(code, 3), BusStatus::Ok);
    for (int code : {0x81, 0xD1, 0xE3, 0xF3, 0xFA})
        QCOMPARE(host.set(code, 1), BusStatus::Ok);
    QCOMPARE(host.set(0x62, 7), BusStatus::Ok);
    QCOMPARE(host.set(0xD9, 0x0203), BusStatus::Ok);
    QCOMPARE(host.set(0xDC, 0x31), BusStatus::Ok);
    for (int code : {0x10, 0x12, 0x19, 0x87, 0x8A, 0xD0, 0xE5})
        QVERIFY(host.get(code) != 3);
    for (int code : {0x81, 0xD1, 0xE3, 0xF3, 0xFA})
        QCOMPARE(host.get(code), 0);
    QCOMPARE(host.get(0xD9), 0x0405);
    QCOMPARE(host.get(0x62), 7);
    QCOMPARE(host.set(0xDC, 0x12), BusStatus::Ok);
    for (int code : {0x12, 0x19, 0x87, 0x8A, 0xD0, 0xE5})
        QCOMPARE(host.get(code), 3);
    for (int code : {0x81, 0xD1, 0xE3, 0xF3, 0xFA})
        QCOMPARE(host.get(code), 1);
    QCOMPARE(host.get(0xD9), 0x0203);
}

void TestSimBehaviour::aColourModeThatTheMenuInventedHasFactoryValues()
{
    sim::Monitor monitor(identity("TK30Z"));
    QVERIFY(monitor.setByMenu(0x12, 33));
    QVERIFY(monitor.setByMenu(0xDC, 0x77));
    QCOMPARE(*monitor.value(0x12), 50);
}

void TestSimBehaviour::localContrastIsOffInModesWithoutIt()
{
    sim::Monitor monitor(identity("TK30Z"));
    WireHost host(monitor);
    for (int mode : {0x0A, 0x23}) {
        QCOMPARE(host.set(0xDC, 0x32), BusStatus::Ok);
        QCOMPARE(host.set(0xF3, 1), BusStatus::Ok);
        QCOMPARE(host.get(0xF3), 1);
        QCOMPARE(host.set(0xDC, mode), BusStatus::Ok);
        QCOMPARE(host.get(0xF3), 0);
        QCOMPARE(host.set(0xF3, 1), BusStatus::Ok);
        QCOMPARE(host.get(0xF3), 0);
    }
}

void TestSimBehaviour::gainsChangeInTheUsersTemperatureOnly()
{
    sim::Monitor monitor(identity("TK30Z"));
    WireHost host(monitor);
    for (int code : {0x16, 0x18, 0x1A}) {
        QCOMPARE(host.set(0x14, 5), BusStatus::Ok);
        QCOMPARE(host.set(code, 42), BusStatus::Ok);
        QCOMPARE(host.get(code), 100);
        QCOMPARE(host.set(0x14, 11), BusStatus::Ok);
        QCOMPARE(host.set(code, 42), BusStatus::Ok);
        QCOMPARE(host.get(code), 42);
    }
}

void TestSimBehaviour::everyWindowHasItsSource()
{
    sim::Monitor monitor(identity("TK30Z"));
    WireHost host(monitor);
    const std::pair<int, int> windows[] = {{512, 15}, {1024, 17}, {2048, 19}};
    for (const auto& [window, source] : windows) {
        QCOMPARE(host.set(0xA5, window), BusStatus::Ok);
        QCOMPARE(host.set(0x7E, source), BusStatus::Ok);
    }
    for (const auto& [window, source] : windows) {
        QCOMPARE(host.set(0xA5, window), BusStatus::Ok);
        QCOMPARE(host.get(0x7E), source);
        QCOMPARE(int(*monitor.value(0x7E, window)), source);
    }
    // 256 is no window: the selection stays.
    QCOMPARE(host.set(0xA5, 256), BusStatus::Ok);
    QCOMPARE(host.get(0xA5), 2048);
    QVERIFY(monitor.setByMenu(0x7E, 20, 1024));
    QCOMPARE(host.get(0x7E), 19);
    QCOMPARE(host.set(0xA5, 1024), BusStatus::Ok);
    QCOMPARE(host.get(0x7E), 20);
    QCOMPARE(int(*monitor.value(0x7E)), 20);
    QVERIFY(monitor.setByMenu(0x7E, 3));
    QCOMPARE(int(*monitor.value(0x7E, 1024)), 3);
}

void TestSimBehaviour::withoutASelectionThereIsNoWindow()
{
    sim::Monitor monitor(identity("TK30Z"));
    WireHost host(monitor);
    QCOMPARE(host.set(0x7E, 15), BusStatus::Ok);
    QCOMPARE(host.get(0x7E), 0);
    for (int window : {512, 1024, 2048})
        QCOMPARE(int(*monitor.value(0x7E, window)), 17);
    QVERIFY(monitor.setByMenu(0x7E, 19));
    QCOMPARE(int(*monitor.value(0x7E, 512)), 19);
}

void TestSimBehaviour::aSwapExchangesMainAndSubWindow()
{
    sim::Monitor monitor(identity("TK40"));
    WireHost host(monitor);
    QVERIFY(monitor.setByMenu(0x60, 15));
    QVERIFY(monitor.setByMenu(0x7E, 18, 512));
    QCOMPARE(host.set(0x7F, 1), BusStatus::Ok);
    QCOMPARE(host.get(0x60), 15);
    QCOMPARE(host.set(0x7D, 2), BusStatus::Ok);
    QCOMPARE(host.set(0x7F, 1), BusStatus::Ok);
    QCOMPARE(host.get(0x60), 18);
    QCOMPARE(int(*monitor.value(0x7E, 512)), 15);
    QCOMPARE(host.get(0x7F), 0);
}

void TestSimBehaviour::aBandIsReadAfterItsSelection()
{
    sim::Monitor monitor(identity("TK30Z"));
    WireHost host(monitor);
    QCOMPARE(host.set(0x99, 0x0A13), BusStatus::Ok);
    QCOMPARE(host.set(0x99, 0x0102), BusStatus::Ok);
    QCOMPARE(host.get(0x99), 0);
    QCOMPARE(host.set(0x99, 0x0AFF), BusStatus::Ok);
    QCOMPARE(host.get(0x99), 0x13);
    QCOMPARE(host.set(0x99, 0x01FF), BusStatus::Ok);
    QCOMPARE(host.get(0x99), 0x02);
    QCOMPARE(host.set(0x99, 0x02FF), BusStatus::Ok); // no such band
    QCOMPARE(host.get(0x99), 0x02);
    QCOMPARE(host.set(0x99, 0x0107), BusStatus::Ok); // no such gain
    QCOMPARE(host.get(0x99), 0x02);
    QCOMPARE(int(*monitor.value(0x99, 10)), 0x13);
}

void TestSimBehaviour::muteAndVolumeAreIndependent()
{
    sim::Monitor monitor(identity("TK10"));
    WireHost host(monitor);
    QCOMPARE(host.get(0x8D), 2);
    QCOMPARE(host.set(0x8D, 1), BusStatus::Ok);
    QCOMPARE(host.set(0x62, 30), BusStatus::Ok);
    QCOMPARE(host.get(0x8D), 1);
    QCOMPARE(host.get(0x62), 30);
    QCOMPARE(host.set(0x8D, 0), BusStatus::Ok);
    QCOMPARE(host.get(0x8D), 1);
    QCOMPARE(host.set(0x8D, 2), BusStatus::Ok);
    QCOMPARE(host.get(0x8D), 2);
}

void TestSimBehaviour::theOrientationIsChangedByHandOnly()
{
    sim::Monitor monitor(identity("TK10"));
    WireHost host(monitor);
    QCOMPARE(host.set(0xAA, 3), BusStatus::Ok);
    QCOMPARE(host.get(0xAA), 1);
    QVERIFY(monitor.setByMenu(0xAA, 3));
    QCOMPARE(host.get(0xAA), 3);
}

void TestSimBehaviour::restoringColourConcernsThePresentModeOnly()
{
    sim::Monitor monitor(identity("TK30Z"));
    WireHost host(monitor);
    QCOMPARE(host.set(0x12, 11), BusStatus::Ok);
    QCOMPARE(host.set(0xDC, 0x32), BusStatus::Ok);
    QCOMPARE(host.set(0x12, 22), BusStatus::Ok);
    QCOMPARE(host.set(0x62, 33), BusStatus::Ok);
    QCOMPARE(host.set(0x08, 1), BusStatus::Ok);
    QCOMPARE(host.get(0x12), 55);
    QCOMPARE(host.get(0xDC), 0x32);
    QCOMPARE(host.get(0x62), 33);
    QCOMPARE(host.set(0xDC, 0x12), BusStatus::Ok);
    QCOMPARE(host.get(0x12), 11);
    QCOMPARE(host.set(0x05, 1), BusStatus::Ok);
    QCOMPARE(host.get(0x12), 50);
}

void TestSimBehaviour::restoringEverythingForgetsAllModes()
{
    sim::Monitor monitor(identity("TK30Z"));
    WireHost host(monitor);
    const auto change = [&] {
        QCOMPARE(host.set(0x12, 11), BusStatus::Ok);
        QCOMPARE(host.set(0xDC, 0x32), BusStatus::Ok);
        QCOMPARE(host.set(0x12, 22), BusStatus::Ok);
        QCOMPARE(host.set(0x62, 33), BusStatus::Ok);
    };
    const auto verifyFactory = [&] {
        QCOMPARE(host.get(0xDC), 0x12);
        QCOMPARE(host.get(0x12), 50);
        QCOMPARE(host.get(0x62), 20);
        QCOMPARE(host.set(0xDC, 0x32), BusStatus::Ok);
        QCOMPARE(host.get(0x12), 55);
        QCOMPARE(host.set(0xDC, 0x12), BusStatus::Ok);
    };
    change();
    QCOMPARE(host.set(0x04, 0), BusStatus::Ok);
    QCOMPARE(host.get(0x12), 22);
    QCOMPARE(host.set(0x04, 1), BusStatus::Ok);
    verifyFactory();
    change();
    monitor.reset();
    verifyFactory();
    change();
    QVERIFY(monitor.setByMenu(0x04, 1));
    verifyFactory();
}

void TestSimBehaviour::aBrightnessWrittenUnderAmbientLightIsReadBack()
{
    sim::Monitor monitor(identity("TK30Z"));
    WireHost host(monitor);
    QCOMPARE(host.set(0x81, 1), BusStatus::Ok);
    for (int lux : {0, 1000}) {
        monitor.setAmbientLight(lux);
        for (int value : {0, 5, 50, 95, 100}) {
            QCOMPARE(host.set(0x10, value), BusStatus::Ok);
            QCOMPARE(host.get(0x10), value);
            QVERIFY(monitor.setByMenu(0x10, value));
            QCOMPARE(int(*monitor.value(0x10)), value);
        }
    }
}

QTEST_GUILESS_MAIN(TestSimBehaviour)
#include "tst_sim_behaviour.moc"
