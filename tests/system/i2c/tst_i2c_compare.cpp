// SPDX-License-Identifier: Apache-2.0
#include "MockBed.h"

#include <QElapsedTimer>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>

/// The same work by this program's layer and by ddcutil, process against process, on the same strict monitors
/// in one run: ours is faster in every row and breaks no wait of the protocol.
class TestCompare : public QObject
{
    Q_OBJECT

private:
    std::vector<std::unique_ptr<sim::Monitor>> monitors;
    std::unique_ptr<MockBed> bed;
    std::unique_ptr<QTemporaryDir> home;
    QString ddcutil;

    void make(int count)
    {
        sim::Options options;
        options.strictTiming = true;
        for (int i = 0; i < count; ++i)
            monitors.push_back(std::make_unique<sim::Monitor>(
                *sim::Identity::parse(QStringLiteral("Alpha27Q@SN-%1").arg(i + 1)), options));
        bed = std::make_unique<MockBed>();
        for (int i = 0; i < count; ++i)
            bed->plug(bed->addPort(4 + i, QStringLiteral("DP-%1").arg(i + 1)), *monitors[std::size_t(i)]);
    }

    /// The time of a run in ms; a negative one if it failed.
    double run(const QString& program, const QStringList& arguments, QString* output)
    {
        // Nobody profits from what an earlier run has cached, nor suffers from what it wrote to the monitors.
        home = std::make_unique<QTemporaryDir>();
        for (const auto& monitor : monitors) {
            monitor->unplug();
            monitor->plug();
        }
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("HOME"), home->path());
        for (const char* name : {"XDG_CACHE_HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_STATE_HOME"})
            environment.insert(QString::fromLatin1(name), home->filePath(QString::fromLatin1(name)));
        if (program == ddcutil)
            environment.insert(QStringLiteral("LD_PRELOAD"), QStringLiteral(UMOCKDEV_PRELOAD));
        process.setProcessEnvironment(environment);
        process.setProcessChannelMode(QProcess::MergedChannels);
        QElapsedTimer timer;
        timer.start();
        process.start(program, arguments);
        const bool ended = process.waitForFinished(120'000);
        const double time = double(timer.nsecsElapsed()) / 1e6;
        *output = QString::fromUtf8(process.readAll());
        if (ended && process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0)
            return time;
        process.kill();
        process.waitForFinished();
        return -1;
    }

private Q_SLOTS:
    void initTestCase()
    {
        ddcutil = QStandardPaths::findExecutable(QStringLiteral("ddcutil"));
        QVERIFY2(!ddcutil.isEmpty(), "ddcutil is not installed: apt-get install ddcutil");
    }

    void cleanup()
    {
        bed.reset();
        monitors.clear();
    }

    void oursIsFaster_data()
    {
        QTest::addColumn<int>("count");
        QTest::addColumn<QString>("ours");
        QTest::addColumn<QString>("theirs");
        const auto row = [](const char* name, int count, const char* ours, const char* theirs) {
            QTest::newRow(name) << count << QString::fromLatin1(ours) << QString::fromLatin1(theirs);
        };
        row("get", 1, "get 4 10", "--bus 4 getvcp 10");
        row("set", 1, "set 4 10 33", "--bus 4 --noverify setvcp 10 33");
        row("set and verify", 1, "verify 4 10 44", "--bus 4 --verify setvcp 10 44");
        row("read-back of five codes", 1, "get 4 10 12 60 62 8D", "--bus 4 getvcp 10 12 60 62 8D");
        row("capabilities", 1, "capabilities 4", "--bus 4 --terse capabilities");
        row("discovery of 1", 1, "detect", "detect");
        row("discovery of 4", 4, "detect", "detect");
    }

    void oursIsFaster()
    {
        QFETCH(int, count);
        QFETCH(QString, ours);
        QFETCH(QString, theirs);
        make(count);
        constexpr int Runs = 3;
        std::vector<double> own;
        std::vector<double> other;
        QString output;
        for (int i = 0; i < Runs; ++i) {
            own.push_back(run(QStringLiteral(I2C_PROBE), ours.split(QLatin1Char(' ')), &output));
            QVERIFY2(own.back() > 0, qPrintable(output));
        }
        for (const auto& monitor : monitors)
            QVERIFY2(monitor->violations().total() == 0, qPrintable(monitor->violations().last));
        for (int i = 0; i < Runs; ++i) {
            other.push_back(run(ddcutil, theirs.split(QLatin1Char(' ')), &output));
            QVERIFY2(other.back() > 0, qPrintable(output));
        }
        std::sort(own.begin(), own.end());
        std::sort(other.begin(), other.end());
        qInfo().noquote() << QStringLiteral("%1: %2 ms, ddcutil %3 ms")
                                 .arg(QString::fromLatin1(QTest::currentDataTag()))
                                 .arg(own[Runs / 2], 0, 'f', 1)
                                 .arg(other[Runs / 2], 0, 'f', 1);
        QVERIFY(own[Runs / 2] < other[Runs / 2]);
    }
};

QTEST_GUILESS_MAIN(TestCompare)
#include "tst_i2c_compare.moc"
