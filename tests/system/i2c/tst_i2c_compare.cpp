// SPDX-License-Identifier: Apache-2.0
#ifdef LUMEN_DESK
#include "DeskProcess.h"
#endif
#include "MockBed.h"

#include <QElapsedTimer>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <atomic>
#include <thread>

namespace {

constexpr int Brightness = 0x10;
constexpr int Runs = 5;
/// What the modules of the series read in a round.
const QString AllCodes =
    QStringLiteral("10 12 14 16 18 1A 59 5A 5B 5C 5D 5E 5F 60 62 72 87 8A 8D 90 9B 9C 9D 9E "
                   "9F A0 C9 CC D1 D6 DC DF E3 E5 FA FD");

double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

/// The moment at which a monitor holds a value, seen from outside the program under test.
class ValueWatch
{
public:
    ValueWatch(const sim::Monitor& monitor, int value)
        : m_thread([this, &monitor, value] {
              while (!m_ends && monitor.value(Brightness) != value)
                  std::this_thread::yield();
              m_ns = m_timer.nsecsElapsed();
          })
    {
    }
    /// Ms since construction; to be asked when the value should be there.
    double end()
    {
        m_ends = true;
        m_thread.join();
        return double(m_ns) / 1e6;
    }

private:
    QElapsedTimer m_timer = [] {
        QElapsedTimer timer;
        timer.start();
        return timer;
    }();
    std::atomic<bool> m_ends{false};
    qint64 m_ns = 0;
    std::thread m_thread;
};

} // namespace

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

    void make(int count, const QString& model = QStringLiteral("Alpha27Q"))
    {
        sim::Options options;
        options.strictTiming = true;
        for (int i = 0; i < count; ++i)
            monitors.push_back(std::make_unique<sim::Monitor>(
                *sim::Identity::parse(QStringLiteral("%1@SN-%2").arg(model).arg(i + 1)), options));
        bed = std::make_unique<MockBed>();
        for (int i = 0; i < count; ++i)
            bed->plug(bed->addPort(4 + i, QStringLiteral("DP-%1").arg(i + 1)), *monitors[std::size_t(i)]);
    }

    /// The time of a run in ms; a negative one if it failed.
    double run(const QString& program, const QStringList& arguments, QString* output, bool fresh = true)
    {
        // Nobody profits from what an earlier run has cached, nor suffers from what it wrote to the monitors.
        home = std::make_unique<QTemporaryDir>();
        for (const auto& monitor : monitors) {
            if (!fresh)
                break;
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

    /// How often a wait of the protocol was broken so far, by whomever.
    quint64 violations() const
    {
        quint64 total = 0;
        for (const auto& monitor : monitors)
            total += monitor->violations().total();
        return total;
    }

    void tell(const QString& row, const std::vector<double>& own, const std::vector<double>& other)
    {
        qInfo().noquote() << QStringLiteral("%1: %2 ms, ddcutil %3 ms")
                                 .arg(row)
                                 .arg(median(own), 0, 'f', 1)
                                 .arg(median(other), 0, 'f', 1);
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
        QTest::addColumn<QString>("model");
        QTest::addColumn<QString>("ours");
        QTest::addColumn<QString>("theirs");
        const auto row = [](const char* name, int count, const char* model, const QString& ours,
                            const QString& theirs) {
            QTest::newRow(name) << count << QString::fromLatin1(model) << ours << theirs;
        };
        const auto plain = [&row](const char* name, int count, const char* ours, const char* theirs) {
            row(name, count, "Alpha27Q", QString::fromLatin1(ours), QString::fromLatin1(theirs));
        };
        plain("get", 1, "get 4 10", "--bus 4 getvcp 10");
        plain("set", 1, "set 4 10 33", "--bus 4 --noverify setvcp 10 33");
        plain("set and verify", 1, "verify 4 10 44", "--bus 4 --verify setvcp 10 44");
        plain("read-back of five codes", 1, "get 4 10 12 60 62 8D", "--bus 4 getvcp 10 12 60 62 8D");
        row("full read-back", 1, "TK30Z", QStringLiteral("get 4 ") + AllCodes,
            QStringLiteral("--bus 4 getvcp ") + AllCodes);
        plain("capabilities", 1, "capabilities 4", "--bus 4 --terse capabilities");
        plain("discovery of 1", 1, "detect", "detect");
        plain("discovery of 4", 4, "detect", "detect");
    }

    void oursIsFaster()
    {
        QFETCH(int, count);
        QFETCH(QString, model);
        QFETCH(QString, ours);
        QFETCH(QString, theirs);
        make(count, model);
        std::vector<double> own;
        std::vector<double> other;
        QString output;
        for (int i = 0; i < Runs; ++i) {
            const quint64 before = violations();
            own.push_back(run(QStringLiteral(I2C_PROBE), ours.split(QLatin1Char(' ')), &output));
            QVERIFY2(own.back() > 0, qPrintable(output));
            QCOMPARE(violations(), before);
            other.push_back(run(ddcutil, theirs.split(QLatin1Char(' ')), &output));
            QVERIFY2(other.back() > 0, qPrintable(output));
        }
        tell(QString::fromLatin1(QTest::currentDataTag()), own, other);
        QVERIFY(median(own) < median(other));
    }

#ifdef LUMEN_DESK
    /// Both are a command that a person types; the clock stops when the monitor holds the value. Ours asks
    /// the program that runs anyway and has let the monitor rest.
    void aSetAfterAPauseIsFaster()
    {
        make(1);
        std::vector<double> own;
        std::vector<double> other;
        QString output;
        DeskProcess desk;
        QVERIFY2(desk.start({QStringLiteral("--headless"), QStringLiteral("--services"),
                             QStringLiteral("simulated")}),
                 qPrintable(desk.errors()));
        QVERIFY(desk.client().call(QStringLiteral("idle")).ok());
        const auto timed = [&](const QString& program, const QStringList& arguments, int value) {
            ValueWatch watch(*monitors.front(), value);
            const double time = run(program, arguments, &output, false);
            const bool there = QTest::qWaitFor([&] { return monitors.front()->value(Brightness) == value; });
            const double at = watch.end();
            return time > 0 && there ? at : -1;
        };
        for (int i = 0; i < Runs; ++i) {
            const QString value = QString::number(20 + i);
            own.push_back(timed(QStringLiteral(LUMEN_DESKCTL),
                                {QStringLiteral("--control"), desk.socketPath(), QStringLiteral("set"),
                                 QStringLiteral("brightness.displayBrightness"), value},
                                20 + i));
            QVERIFY2(own.back() > 0, qPrintable(output));
            QVERIFY(desk.client().call(QStringLiteral("idle")).ok());
        }
        QCOMPARE(violations(), quint64(0));
        desk.stop();
        for (int i = 0; i < Runs; ++i) {
            other.push_back(timed(ddcutil,
                                  {QStringLiteral("--bus"), QStringLiteral("4"), QStringLiteral("--noverify"),
                                   QStringLiteral("setvcp"), QStringLiteral("10"), QString::number(60 + i)},
                                  60 + i));
            QVERIFY2(other.back() > 0, qPrintable(output));
        }
        tell(QStringLiteral("set after a pause, command to value at the monitor"), own, other);
        QVERIFY(median(own) < median(other));
    }
#endif
};

QTEST_GUILESS_MAIN(TestCompare)
#include "tst_i2c_compare.moc"
