// SPDX-License-Identifier: Apache-2.0
#include <lushared/LuSettings.h>

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>
#include <QTime>

#include <csignal>
#include <unistd.h>

/// The store in a folder of its own. Its singleton is opened anew for each test.
class TestSettings : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void valuesAreSeenByTheDefaultSettingsAtOnce();
    void valuesReachTheDiskWithoutAFlush();
    void typedValuesComeBackAsTheyWere();
    void unknownKeysStayUntouched();
    void damagedFileIsKeptAside_data();
    void damagedFileIsKeptAside();
    void folderThatCannotBeWrittenIsTold();
    void killedProcessLeavesAWholeFile();

private:
    QString freshFolder();

    QTemporaryDir m_directory;
    int m_count = 0;
};

void TestSettings::initTestCase()
{
    QCoreApplication::setOrganizationName(QStringLiteral("lumen-desk"));
    QCoreApplication::setApplicationName(QStringLiteral("lumen-desk"));
    // The program calls itself as the victim of killedProcessLeavesAWholeFile().
    if (const QByteArray folder = qgetenv("TST_SETTINGS_VICTIM"); !folder.isEmpty()) {
        LuSettings::instance().open(QString::fromLocal8Bit(folder));
        for (int i = 0;; ++i) {
            for (int key = 0; key < 50; ++key)
                LuSettings::instance().setValue(QStringLiteral("M/key%1").arg(key), i);
            if (i == 200)
                ::kill(::getpid(), SIGKILL);
        }
    }
}

QString TestSettings::freshFolder()
{
    return m_directory.filePath(QString::number(++m_count));
}

void TestSettings::valuesAreSeenByTheDefaultSettingsAtOnce()
{
    QVERIFY(LuSettings::instance().open(freshFolder()));
    LuSettings::instance().setValue(QStringLiteral("TK30Z_1/LuX/state"), true);
    QCOMPARE(QSettings().value(QStringLiteral("TK30Z_1/LuX/state")).toBool(), true);
    QSettings().setValue(QStringLiteral("other"), 3);
    QCOMPARE(LuSettings::instance().value(QStringLiteral("other")).toInt(), 3);
    LuSettings::instance().remove(QStringLiteral("other"));
    QVERIFY(!LuSettings::instance().contains(QStringLiteral("other")));
}

void TestSettings::valuesReachTheDiskWithoutAFlush()
{
    QVERIFY(LuSettings::instance().open(freshFolder()));
    LuSettings::instance().setValue(QStringLiteral("a"), 17);
    const auto onDisk = [] {
        QFile file(LuSettings::instance().fileName());
        return file.open(QIODevice::ReadOnly) && file.readAll().contains("a=17");
    };
    QTRY_VERIFY(onDisk());
}

void TestSettings::typedValuesComeBackAsTheyWere()
{
    const QString folder = freshFolder();
    QVERIFY(LuSettings::instance().open(folder));
    const QVariantList list{QVariantMap{{QStringLiteral("start"), QTime(22, 0)},
                                        {QStringLiteral("days"), QVariantList{true, false}}}};
    LuSettings::instance().setValue(QStringLiteral("list"), list);
    QVERIFY(LuSettings::instance().flush());
    const QVariant read =
        QSettings(LuSettings::instance().fileName(), QSettings::IniFormat).value(QStringLiteral("list"));
    QCOMPARE(read.toList(), list);
}

void TestSettings::unknownKeysStayUntouched()
{
    const QString folder = freshFolder();
    QDir().mkpath(folder + QStringLiteral("/lumen-desk"));
    QFile file(folder + QStringLiteral("/lumen-desk/lumen-desk.ini"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("[Future]\nthing=42\n");
    file.close();
    QVERIFY(LuSettings::instance().open(folder));
    LuSettings::instance().setValue(QStringLiteral("mine"), 1);
    QVERIFY(LuSettings::instance().flush());
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray text = file.readAll();
    QVERIFY(text.contains("thing=42"));
    QVERIFY(text.contains("mine=1"));
}

void TestSettings::damagedFileIsKeptAside_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("no key") << QByteArray("[General]\nthis is no setting\n");
    QTest::newRow("binary") << QByteArray(300, '\x01');
    QTest::newRow("cut") << QByteArray("[Gen");
}

void TestSettings::damagedFileIsKeptAside()
{
    QFETCH(QByteArray, bytes);
    const QString folder = freshFolder();
    QDir().mkpath(folder + QStringLiteral("/lumen-desk"));
    QFile file(folder + QStringLiteral("/lumen-desk/lumen-desk.ini"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(bytes);
    file.close();
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("is damaged; kept as .*damaged-")));
    QVERIFY(LuSettings::instance().open(folder));
    const QStringList aside =
        QDir(folder + QStringLiteral("/lumen-desk")).entryList({QStringLiteral("*.damaged-*")});
    QCOMPARE(aside.size(), 1);
    QFile kept(folder + QStringLiteral("/lumen-desk/") + aside.first());
    QVERIFY(kept.open(QIODevice::ReadOnly));
    QCOMPARE(kept.readAll(), bytes);
    LuSettings::instance().setValue(QStringLiteral("a"), 1);
    QVERIFY(LuSettings::instance().flush());
}

void TestSettings::folderThatCannotBeWrittenIsTold()
{
    // A file stands where the folder should be: nobody, root included, can write there.
    const QString folder = freshFolder();
    QFile file(folder);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.close();
    QTest::ignoreMessage(QtWarningMsg,
                         QRegularExpression(QStringLiteral("cannot write to .* - changes last until")));
    QVERIFY(!LuSettings::instance().open(folder));
    QTest::ignoreMessage(QtWarningMsg,
                         QRegularExpression(QStringLiteral("cannot write .* - changes last until")));
    LuSettings::instance().setValue(QStringLiteral("a"), 5);
    QVERIFY(!LuSettings::instance().flush());
    QCOMPARE(LuSettings::instance().value(QStringLiteral("a")).toInt(), 5);
}

void TestSettings::killedProcessLeavesAWholeFile()
{
    const QString folder = freshFolder();
    QProcess victim;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("TST_SETTINGS_VICTIM"), folder);
    victim.setProcessEnvironment(environment);
    victim.start(QCoreApplication::applicationFilePath(), {});
    QVERIFY(victim.waitForFinished(60000));
    QCOMPARE(victim.exitStatus(), QProcess::CrashExit);
    QSettings left(folder + QStringLiteral("/lumen-desk/lumen-desk.ini"), QSettings::IniFormat);
    QCOMPARE(left.status(), QSettings::NoError);
    QVERIFY(left.contains(QStringLiteral("M/key0")));
    QVERIFY(
        QDir(folder + QStringLiteral("/lumen-desk")).entryList({QStringLiteral("*.damaged-*")}).isEmpty());
}

QTEST_GUILESS_MAIN(TestSettings)
#include "tst_settings.moc"
