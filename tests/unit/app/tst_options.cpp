// SPDX-License-Identifier: Apache-2.0
#include <app/Options.h>

#include <QTest>

class TestOptions : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyOptionIsTaken();
    void defaultsAreThoseOfAUser();
    void wrongUseIsRefused_data();
    void wrongUseIsRefused();
    void helpAndVersionEnd();

private:
    static ParsedOptions parse(const QString& line)
    {
        return parseOptions(QStringList{QStringLiteral("lumen-desk")} +
                            line.split(QLatin1Char(' '), Qt::SkipEmptyParts));
    }
};

void TestOptions::everyOptionIsTaken()
{
    const ParsedOptions parsed = parse(QStringLiteral(
        "--headless --simulate TK30Z,TK20@A1 --ddc-timing fast --services simulated --control /x/c.sock "
        "--config-dir /c "
        "--data-dir /d --sync-period 100 --restore off --no-auto-sync --no-load-settings --state /s.json "
        "--schema-dir /tmp --environment /e.json --theme dark --page LuAutoPivotWidget"));
    QCOMPARE(parsed.outcome, ParsedOptions::Outcome::Run);
    const Options& options = parsed.options;
    QVERIFY(options.headless && options.simulate && options.fastTiming);
    QCOMPARE(options.simulatedMonitors, QStringLiteral("TK30Z,TK20@A1"));
    QCOMPARE(options.nativeServices, std::optional<bool>(false));
    QCOMPARE(options.controlPath, QStringLiteral("/x/c.sock"));
    QCOMPARE(options.configDirectory, QStringLiteral("/c"));
    QCOMPARE(options.dataDirectory, QStringLiteral("/d"));
    QCOMPARE(options.syncPeriodMs, 100);
    QCOMPARE(options.restore, std::optional<bool>(false));
    QVERIFY(!options.autoSync && !options.loadSettings);
    QCOMPARE(options.stateFile, QStringLiteral("/s.json"));
    QCOMPARE(options.schemaDirectory, QStringLiteral("/tmp"));
    QCOMPARE(options.environmentFile, QStringLiteral("/e.json"));
    QCOMPARE(options.theme, QStringLiteral("dark"));
    QCOMPARE(options.page, QStringLiteral("LuAutoPivotWidget"));
}

void TestOptions::defaultsAreThoseOfAUser()
{
    const Options options = parse(QString()).options;
    QVERIFY(!options.headless && !options.simulate && !options.fastTiming);
    QVERIFY(!options.nativeServices && !options.restore);
    QVERIFY(options.autoSync && options.loadSettings);
    QCOMPARE(options.syncPeriodMs, 2000);
}

void TestOptions::wrongUseIsRefused_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("told");
    QTest::newRow("unknown option") << QStringLiteral("--wrong") << QStringLiteral("wrong");
    QTest::newRow("argument") << QStringLiteral("file.txt") << QStringLiteral("file.txt");
    QTest::newRow("timing") << QStringLiteral("--ddc-timing slow") << QStringLiteral("--ddc-timing");
    QTest::newRow("services") << QStringLiteral("--services none") << QStringLiteral("--services");
    QTest::newRow("restore") << QStringLiteral("--restore yes") << QStringLiteral("--restore");
    QTest::newRow("theme") << QStringLiteral("--theme blue") << QStringLiteral("--theme");
    QTest::newRow("period of no number")
        << QStringLiteral("--sync-period soon") << QStringLiteral("--sync-period");
    QTest::newRow("period of nothing")
        << QStringLiteral("--sync-period 0") << QStringLiteral("--sync-period");
    QTest::newRow("missing value") << QStringLiteral("--control") << QStringLiteral("control");
    QTest::newRow("folder that is not there")
        << QStringLiteral("--schema-dir /nowhere/at/all") << QStringLiteral("/nowhere/at/all");
    QTest::newRow("picture without a window")
        << QStringLiteral("--headless --screenshot a.png") << QStringLiteral("--screenshot");
}

void TestOptions::wrongUseIsRefused()
{
    QFETCH(QString, line);
    QFETCH(QString, told);
    const ParsedOptions parsed = parse(line);
    QCOMPARE(parsed.outcome, ParsedOptions::Outcome::Refuse);
    QVERIFY2(parsed.text.contains(told), qPrintable(parsed.text));
}

void TestOptions::helpAndVersionEnd()
{
    QCOMPARE(parse(QStringLiteral("--help")).outcome, ParsedOptions::Outcome::ShowAndEnd);
    QVERIFY(parse(QStringLiteral("--help")).text.contains(QStringLiteral("--simulate")));
    QVERIFY(parse(QStringLiteral("--version")).text.startsWith(QStringLiteral("lumen-desk ")));
}

QTEST_GUILESS_MAIN(TestOptions)
#include "tst_options.moc"
