// SPDX-License-Identifier: Apache-2.0
#include "MockBed.h"

#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

/// Debian's ddcutil as a witness that the simulator is a real DDC/CI device: it knows nothing of this
/// program.
class TestDdcutil : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<sim::Monitor> alpha;
    std::unique_ptr<sim::Monitor> beta;
    std::unique_ptr<MockBed> bed;
    std::unique_ptr<QTemporaryDir> home;
    QString program;

    struct Outcome
    {
        int code = -1;
        QString text;
    };

    Outcome run(const QStringList& arguments)
    {
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("LD_PRELOAD"), QStringLiteral(UMOCKDEV_PRELOAD));
        environment.insert(QStringLiteral("HOME"), home->path());
        for (const char* name : {"XDG_CACHE_HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_STATE_HOME"})
            environment.insert(QString::fromLatin1(name), home->filePath(QString::fromLatin1(name)));
        process.setProcessEnvironment(environment);
        process.setProcessChannelMode(QProcess::MergedChannels);
        process.start(program, arguments);
        Outcome outcome;
        if (!process.waitForFinished(60'000)) {
            process.kill();
            process.waitForFinished();
            outcome.text = QStringLiteral("ddcutil did not end: ");
        } else {
            outcome.code = process.exitCode();
        }
        outcome.text += QString::fromUtf8(process.readAll());
        return outcome;
    }

private Q_SLOTS:
    void initTestCase()
    {
        program = QStandardPaths::findExecutable(QStringLiteral("ddcutil"));
        QVERIFY2(!program.isEmpty(), "ddcutil is not installed: apt-get install ddcutil");
    }

    void init()
    {
        home = std::make_unique<QTemporaryDir>();
        sim::Options options;
        options.strictTiming = true;
        const auto make = [&options](const char* name) {
            return std::make_unique<sim::Monitor>(*sim::Identity::parse(QString::fromLatin1(name)), options);
        };
        alpha = make("Alpha27Q@SN-ALPHA-1");
        beta = make("Beta32U@SN-BETA-7");
        bed = std::make_unique<MockBed>();
        bed->plug(bed->addPort(4, QStringLiteral("DP-1")), *alpha);
        bed->plug(bed->addPort(5, QStringLiteral("DP-2")), *beta);
        bed->addPort(6, QStringLiteral("HDMI-A-1"));
    }

    void cleanup() { bed.reset(); }

    void itDetectsBothMonitors()
    {
        const Outcome outcome = run({QStringLiteral("detect")});
        QVERIFY2(outcome.code == 0, qPrintable(outcome.text));
        for (const char* expected : {"Display 1", "Display 2", "/dev/i2c-4", "/dev/i2c-5", "Alpha27Q",
                                     "SN-ALPHA-1", "Beta32U", "SN-BETA-7"})
            QVERIFY2(outcome.text.contains(QLatin1String(expected)), qPrintable(outcome.text));
        QVERIFY2(!outcome.text.contains(QLatin1String("Invalid display")), qPrintable(outcome.text));
    }

    void itReadsAndWritesValues()
    {
        QVERIFY(alpha->setByMenu(0x10, 37));
        const QStringList bus = {QStringLiteral("--bus"), QStringLiteral("4")};
        const Outcome read = run(bus + QStringList{QStringLiteral("getvcp"), QStringLiteral("10")});
        QVERIFY2(read.code == 0, qPrintable(read.text));
        static const QRegularExpression value(QStringLiteral("current value =\\s+37, max value =\\s+100"));
        QVERIFY2(read.text.contains(value), qPrintable(read.text));

        const auto untouched = beta->value(0x10);
        const Outcome write =
            run(bus + QStringList{QStringLiteral("setvcp"), QStringLiteral("10"), QStringLiteral("64")});
        QVERIFY2(write.code == 0, qPrintable(write.text));
        QVERIFY(alpha->value(0x10) == 64);
        QVERIFY(beta->value(0x10) == untouched);
    }

    void itReadsTheCapabilities()
    {
        const Outcome outcome = run({QStringLiteral("--bus"), QStringLiteral("5"), QStringLiteral("--terse"),
                                     QStringLiteral("capabilities")});
        QVERIFY2(outcome.code == 0, qPrintable(outcome.text));
        QVERIFY2(outcome.text.contains(QString::fromLatin1(beta->capabilities())), qPrintable(outcome.text));
    }
};

QTEST_GUILESS_MAIN(TestDdcutil)
#include "tst_i2c_ddcutil.moc"
