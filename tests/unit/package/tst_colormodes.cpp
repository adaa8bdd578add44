// SPDX-License-Identifier: Apache-2.0
#include "module_bed.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int ModeCode = 0xDC;
constexpr int CinemaMode = 0x32;

} // namespace

/// The features whose values belong to the colour mode: each mode of the monitor keeps what it holds.
class TestColorModes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aModeThatWasNeverUsedIsReadAndNotWritten_data();
    void aModeThatWasNeverUsedIsReadAndNotWritten();
    void aModeWithTheSameValueKeepsIt_data();
    void aModeWithTheSameValueKeepsIt();
};

void TestColorModes::aModeThatWasNeverUsedIsReadAndNotWritten_data()
{
    QTest::addColumn<QString>("model");
    QTest::addColumn<QByteArray>("property");
    QTest::addColumn<int>("code");
    QTest::addColumn<int>("value");
    QTest::addColumn<int>("number");
    QTest::newRow("LuLowBlueLight") << u"TK30Z"_s << QByteArray("level") << 0x19 << 3 << 3;
    QTest::newRow("LuNightProtection") << u"TK30Z"_s << QByteArray("state") << 0xD1 << 1 << 1;
    QTest::newRow("LuABPlus") << u"TK30Z"_s << QByteArray("state") << 0x81 << 1 << 1;
    QTest::newRow("LuABSetting") << u"TK40X"_s << QByteArray("currentAB") << 0xE2 << 255 << 1;
    QTest::newRow("LuBackLight") << u"TK30Z"_s << QByteArray("state") << 0xD7 << 0x120 << 0x20;
}

void TestColorModes::aModeThatWasNeverUsedIsReadAndNotWritten()
{
    QFETCH(QString, model);
    QFETCH(QByteArray, property);
    QFETCH(int, code);
    QFETCH(int, value);
    QFETCH(int, number);
    ModuleBed bed(QTest::currentDataTag(), model);
    bed.begin();
    bed.destroy();
    QVERIFY(bed.monitor().setByMenu(ModeCode, CinemaMode));
    QVERIFY(bed.monitor().setByMenu(code, value));
    bed.forget();
    bed.launch();
    QVERIFY(bed.idle());
    QCOMPARE(bed.wireOf({code}).filter(u"set"_s), QStringList());
    QCOMPARE(int(*bed.monitor().value(code)), value);
    QCOMPARE(bed.number(property.constData()), number);
    QCOMPARE(bed.stored(property.constData()).toInt(), number);
}

void TestColorModes::aModeWithTheSameValueKeepsIt_data()
{
    aModeThatWasNeverUsedIsReadAndNotWritten_data();
}

void TestColorModes::aModeWithTheSameValueKeepsIt()
{
    QFETCH(QString, model);
    QFETCH(QByteArray, property);
    QFETCH(int, code);
    QFETCH(int, value);
    QFETCH(int, number);
    ModuleBed bed(QTest::currentDataTag(), model);
    bed.begin();
    const int mode = int(*bed.monitor().value(ModeCode));
    QVERIFY(mode != CinemaMode);
    for (const int each : {CinemaMode, mode}) {
        QVERIFY(bed.monitor().setByMenu(ModeCode, each));
        QVERIFY(bed.monitor().setByMenu(code, value));
    }
    QVERIFY(bed.syncModule());
    QCOMPARE(bed.number(property.constData()), number);
    bed.model().setColorMode(bed.model().getColorModeByName(u"Cinema"_s));
    QVERIFY(bed.idle());
    QCOMPARE(bed.number(property.constData()), number);
    QCOMPARE(bed.stored(property.constData()).toInt(), number);
    QVERIFY(bed.relaunchAnew());
    QCOMPARE(int(*bed.monitor().value(code)), value);
    QCOMPARE(bed.number(property.constData()), number);
}

QTEST_MAIN(TestColorModes)
#include "tst_colormodes.moc"
