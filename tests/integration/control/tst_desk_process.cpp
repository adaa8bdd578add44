// SPDX-License-Identifier: Apache-2.0
#include "DeskProcess.h"

#include <QFileInfo>
#include <QtTest>

#include <csignal>
#include <sys/stat.h>

using namespace Qt::StringLiterals;

/// How the program starts, ends, and what it says of options and paths that are wrong.
class TestDeskProcess : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aSignalEndsItCleanly_data();
    void aSignalEndsItCleanly();
    void quitEndsItCleanlyAndAnswersFirst();
    void aSecondInstanceEndsAndTheFirstGoesOn();
    void aSocketLeftBehindIsReplaced();
    void aWrongSocketPathIsTold_data();
    void aWrongSocketPathIsTold();
    void aWrongOptionIsTold_data();
    void aWrongOptionIsTold();
    void helpAndVersionEndIt_data();
    void helpAndVersionEndIt();
    void theSocketIsPrivate();
    void hostileClientsChangeNothing();
    void theStateIsThereBeforeTheFirstModel();
    void aWrongStateFileIsTold_data();
    void aWrongStateFileIsTold();

private:
    QString writeFile(DeskProcess& desk, const QString& name, const QByteArray& content);
};

QString TestDeskProcess::writeFile(DeskProcess& desk, const QString& name, const QByteArray& content)
{
    QFile file(desk.filePath(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        return {};
    return file.fileName();
}

void TestDeskProcess::aSignalEndsItCleanly_data()
{
    QTest::addColumn<int>("signal");
    QTest::newRow("SIGTERM") << SIGTERM;
    QTest::newRow("SIGINT") << SIGINT;
}

void TestDeskProcess::aSignalEndsItCleanly()
{
    QFETCH(int, signal);
    DeskProcess desk;
    QVERIFY2(desk.start(), qPrintable(desk.errors()));
    QVERIFY(desk.client().call(u"idle"_s).ok());
    QCOMPARE(::kill(pid_t(desk.process().processId()), signal), 0);
    QVERIFY(desk.waitForEnd());
    QCOMPARE(desk.process().exitStatus(), QProcess::NormalExit);
    QCOMPARE(desk.process().exitCode(), 0);
    QVERIFY(!QFileInfo::exists(desk.socketPath()));
}

void TestDeskProcess::quitEndsItCleanlyAndAnswersFirst()
{
    DeskProcess desk;
    QVERIFY2(desk.start(), qPrintable(desk.errors()));
    QVERIFY(desk.client().call(u"quit"_s).ok());
    QVERIFY(desk.waitForEnd());
    QCOMPARE(desk.process().exitCode(), 0);
    QVERIFY(desk.client().waitForEnd());
}

void TestDeskProcess::aSecondInstanceEndsAndTheFirstGoesOn()
{
    DeskProcess desk;
    QVERIFY2(desk.start(), qPrintable(desk.errors()));
    QProcess second;
    second.start(QStringLiteral(LUMEN_DESK), DeskProcess::usualOptions() + desk.ownOptions());
    QVERIFY(second.waitForFinished());
    QCOMPARE(second.exitCode(), 0);
    QVERIFY(desk.client().call(u"monitors"_s).ok());
    QCOMPARE(desk.stop(), 0);
}

void TestDeskProcess::aSocketLeftBehindIsReplaced()
{
    DeskProcess desk;
    QVERIFY2(desk.start(), qPrintable(desk.errors()));
    desk.process().kill();
    QVERIFY(desk.waitForEnd());
    QVERIFY(QFileInfo::exists(desk.socketPath()));
    QVERIFY2(desk.start(), qPrintable(desk.errors()));
    QVERIFY(desk.client().call(u"version"_s).ok());
}

void TestDeskProcess::aWrongSocketPathIsTold_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("folder that cannot be made") << u"/proc/lumen/c.sock"_s;
    QTest::newRow("folder for everybody") << u"OPEN/c.sock"_s;
    QTest::newRow("too long") << u"/tmp/"_s + QString(110, u'x');
    QTest::newRow("a file") << u"FILE"_s;
}

void TestDeskProcess::aWrongSocketPathIsTold()
{
    QFETCH(QString, path);
    DeskProcess desk;
    QVERIFY(QDir().mkpath(desk.filePath(u"open"_s)));
    QCOMPARE(::chmod(QFile::encodeName(desk.filePath(u"open"_s)).constData(), 0777), 0);
    path.replace(u"OPEN"_s, desk.filePath(u"open"_s)).replace(u"FILE"_s, writeFile(desk, u"file"_s, "x"));
    desk.launch(DeskProcess::usualOptions() + QStringList{u"--control"_s, path});
    QVERIFY(desk.waitForEnd());
    QCOMPARE(desk.process().exitStatus(), QProcess::NormalExit);
    QVERIFY(desk.process().exitCode() != 0);
    const QString errors = desk.errors();
    QVERIFY2(errors.contains(path) || errors.contains(QFileInfo(path).path()), qPrintable(errors));
}

void TestDeskProcess::aWrongOptionIsTold_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("named");
    QTest::newRow("unknown option") << QStringList{u"--frobnicate"_s} << u"frobnicate"_s;
    QTest::newRow("argument") << QStringList{u"monitors"_s} << u"monitors"_s;
    QTest::newRow("timing") << QStringList{u"--ddc-timing"_s, u"slow"_s} << u"slow"_s;
    QTest::newRow("period") << QStringList{u"--sync-period"_s, u"-5"_s} << u"sync-period"_s;
    QTest::newRow("services") << QStringList{u"--services"_s, u"none"_s} << u"none"_s;
    QTest::newRow("restore") << QStringList{u"--restore"_s, u"maybe"_s} << u"maybe"_s;
    QTest::newRow("missing value") << QStringList{u"--control"_s} << u"control"_s;
}

void TestDeskProcess::aWrongOptionIsTold()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, named);
    DeskProcess desk;
    desk.launch(QStringList{u"--headless"_s} + arguments);
    QVERIFY(desk.waitForEnd());
    QCOMPARE(desk.process().exitCode(), 2);
    QVERIFY2(desk.errors().contains(named), qPrintable(desk.errors()));
}

void TestDeskProcess::helpAndVersionEndIt_data()
{
    QTest::addColumn<QString>("option");
    QTest::newRow("help") << u"--help"_s;
    QTest::newRow("version") << u"--version"_s;
}

void TestDeskProcess::helpAndVersionEndIt()
{
    QFETCH(QString, option);
    DeskProcess desk;
    desk.launch({option});
    QVERIFY(desk.waitForEnd());
    QCOMPARE(desk.process().exitCode(), 0);
    QVERIFY(desk.process().readAllStandardOutput().contains("lumen-desk"));
}

void TestDeskProcess::theSocketIsPrivate()
{
    DeskProcess desk;
    QVERIFY2(desk.start(), qPrintable(desk.errors()));
    struct stat status = {};
    QCOMPARE(::lstat(QFile::encodeName(desk.socketPath()).constData(), &status), 0);
    QCOMPARE(int(status.st_mode & 07777), 0600);
    QCOMPARE(::stat(QFile::encodeName(QFileInfo(desk.socketPath()).path()).constData(), &status), 0);
    QCOMPARE(int(status.st_mode & 07777), 0700);
}

void TestDeskProcess::hostileClientsChangeNothing()
{
    DeskProcess desk;
    QVERIFY2(desk.start(), qPrintable(desk.errors()));
    const QList<QByteArray> attacks{
        QByteArray(100'000, '\0') + '\n',
        QByteArray(100'000, '['),
        QByteArray(2'000'000, 'x'),
        QByteArray("\xff\xfe\n{}\n[]\nnull\n"),
        QByteArray("{\"jsonrpc\":\"2.0\",\"id\":1,\"method\":\"call\",\"params\":"
                   "{\"path\":\"deleteLater\"}}\n"),
        QByteArray("{\"jsonrpc\":\"2.0\",\"id\":1,\"method\":\"get\",\"params\":{\"path\":\"") +
            QByteArray(500'000, '.') + "\"}}\n",
        QByteArray("{\"jsonrpc\":\"2.0\",\"id\":1,\"method\":\"get\",\"params\":{\"path\":\"context\"}}\n")};
    for (const QByteArray& attack : attacks) {
        ControlClient hostile;
        QVERIFY(hostile.connectTo(desk.socketPath()));
        hostile.socket().write(attack);
        hostile.socket().flush();
        QVERIFY(desk.client().call(u"monitors"_s).ok());
    }
    QCOMPARE(desk.client().call(u"monitors"_s).result.toArray().size(), 1);
    QCOMPARE(desk.stop(), 0);
}

void TestDeskProcess::theStateIsThereBeforeTheFirstModel()
{
    DeskProcess desk;
    const QString file = writeFile(
        desk, u"state.json"_s, R"({"services": {"pivot": 90}, "vcp": {"TK30Z": {"0xF3": 1}}, "faults": []})");
    QVERIFY2(desk.start(DeskProcess::usualOptions() + QStringList{u"--state"_s, file}),
             qPrintable(desk.errors()));
    QCOMPARE(desk.client().value(u"sim.get"_s, {{u"code"_s, 0xF3}}), QJsonValue(1));
    QCOMPARE(desk.client().value(u"services.get"_s, {{u"path"_s, u"pivot"_s}}), QJsonValue(90));
    QVERIFY(desk.client().call(u"idle"_s).ok());
    QCOMPARE(desk.client().get(u"aiContrast.state"_s), QJsonValue(true));
    QCOMPARE(desk.stop(), 0);
}

void TestDeskProcess::aWrongStateFileIsTold_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("no JSON") << QByteArray("garbage");
    QTest::newRow("a list") << QByteArray("[]");
    QTest::newRow("unknown path") << QByteArray(R"({"services": {"weather": 1}})");
    QTest::newRow("unknown monitor") << QByteArray(R"({"vcp": {"TK99": {"0x10": 1}}})");
    QTest::newRow("unknown code") << QByteArray(R"({"vcp": {"TK30Z": {"brightness": 1}}})");
    QTest::newRow("unknown fault") << QByteArray(R"({"faults": [{"monitor": "TK30Z", "kind": "fire"}]})");
}

void TestDeskProcess::aWrongStateFileIsTold()
{
    QFETCH(QByteArray, content);
    DeskProcess desk;
    const QString file = writeFile(desk, u"state.json"_s, content);
    desk.launch(DeskProcess::usualOptions() + desk.ownOptions() + QStringList{u"--state"_s, file});
    QVERIFY(desk.waitForEnd());
    QVERIFY(desk.process().exitCode() != 0);
    QVERIFY2(desk.errors().contains(file), qPrintable(desk.errors()));
}

QTEST_GUILESS_MAIN(TestDeskProcess)
#include "tst_desk_process.moc"
