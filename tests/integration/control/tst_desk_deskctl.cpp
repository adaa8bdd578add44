// SPDX-License-Identifier: Apache-2.0
#include "DeskProcess.h"

#include <QJsonDocument>
#include <QtTest>

#include <csignal>

using namespace Qt::StringLiterals;

namespace {

struct Run
{
    int code = -1;
    QString out;
    QString errors;
    QJsonValue json() const { return QJsonDocument::fromJson('[' + out.toUtf8() + ']').array().first(); }
};

} // namespace

/// The command-line client: its commands, its output and its exit codes.
class TestDeskctl : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void resultsAreForPeople_data();
    void resultsAreForPeople();
    void everyCommandReachesItsMethod_data();
    void everyCommandReachesItsMethod();
    void valuesAreJsonWhereTheyAreJson();
    void wrongUsageIsTold_data();
    void wrongUsageIsTold();
    void anErrorOfTheProgramIsPrinted();
    void withoutAProgramTheExitCodeIsThree();
    void anAnswerThatDoesNotComeIsGivenUp();
    void watchPrintsUntilInterrupted_data();
    void watchPrintsUntilInterrupted();
    void watchEndsWithTheProgram();
    void helpAndVersionNeedNoProgram();

private:
    Run run(const QStringList& arguments, const QString& socket = {});
    DeskProcess m_desk;
};

void TestDeskctl::initTestCase()
{
    QVERIFY2(m_desk.start(), qPrintable(m_desk.errors()));
    QVERIFY(m_desk.client().call(u"idle"_s).ok());
}

Run TestDeskctl::run(const QStringList& arguments, const QString& socket)
{
    QProcess process;
    process.start(QStringLiteral(LUMEN_DESKCTL),
                  QStringList{u"--control"_s, socket.isEmpty() ? m_desk.socketPath() : socket} + arguments);
    if (!process.waitForFinished() || process.exitStatus() != QProcess::NormalExit)
        return {};
    return {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
            QString::fromUtf8(process.readAllStandardError())};
}

void TestDeskctl::resultsAreForPeople_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("pattern");
    QTest::newRow("value") << QStringList{u"get"_s, u"modelName"_s} << u"^TK30Z\\n$"_s;
    QTest::newRow("bool") << QStringList{u"get"_s, u"aiContrast.aiContrastEnable"_s} << u"^true\\n$"_s;
    QTest::newRow("table") << QStringList{u"monitors"_s} << u"^ID +.*MODEL.*\\nTK30Z@.*\\n$"_s;
    QTest::newRow("nothing") << QStringList{u"idle"_s} << u"^$"_s;
    QTest::newRow("names and values") << QStringList{u"version"_s} << u"qt: 6\\."_s;
    QTest::newRow("option behind") << QStringList{u"get"_s, u"modelName"_s, u"-m"_s, u"TK30Z"_s}
                                   << u"^TK30Z\\n$"_s;
    QTest::newRow("list") << QStringList{u"get"_s, u"colorModeList"_s} << u"^(\\S.*\\n)+$"_s;
}

void TestDeskctl::resultsAreForPeople()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, pattern);
    const Run result = run(arguments);
    QCOMPARE(result.code, 0);
    QVERIFY2(QRegularExpression(pattern).match(result.out).hasMatch(), qPrintable(result.out));
    QVERIFY(result.errors.isEmpty());
}

void TestDeskctl::everyCommandReachesItsMethod_data()
{
    QTest::addColumn<QStringList>("arguments");
    for (const char* line : {"monitors",
                             "select TK30Z",
                             "get id",
                             "describe",
                             "describe aiContrast",
                             "call aiContrast.takePropertySnapshot",
                             "events",
                             "events 0 -1",
                             "idle",
                             "sync",
                             "sync LuAiContrast",
                             "apply",
                             "settings",
                             "settings set a/b 1",
                             "settings remove a/b",
                             "snapshot LuAutoPivot",
                             "fireUpdate LuAutoPivot",
                             "model",
                             "stats",
                             "actions",
                             "trigger LuAiContrast {\"state\":true}",
                             "flowActions list",
                             "flowActions list f",
                             "flowActions register f 12 {\"syncEnable\":true}",
                             "flowActions unregister f 12",
                             "queue",
                             "forgetFirstConnection",
                             "version",
                             "package",
                             "report",
                             "log",
                             "log 5",
                             "sim get 0xF3",
                             "sim set 0xF3 1",
                             "sim traffic",
                             "sim fault nack 0xF3 get 1",
                             "sim fault kind=null count=1",
                             "sim fault",
                             "sim plug TK20@CTL",
                             "-m TK20@CTL sim unplug",
                             "sim room",
                             "sim room 300 true",
                             "sim reset",
                             "services get pivot",
                             "services set pivot 90",
                             "services emit screenGeometryChanged",
                             "clock get",
                             "clock set 2024-03-04T07:30:00",
                             "clock advance 1000",
                             "raw version",
                             "raw get {\"path\":\"id\"}",
                             "-m TK30Z raw get {\"path\":\"id\"}",
                             "--json monitors",
                             "--timeout 10000 idle",
                             "--timeout 0 idle"})
        QTest::newRow(line) << QString::fromLatin1(line).split(u' ');
}

void TestDeskctl::everyCommandReachesItsMethod()
{
    QFETCH(QStringList, arguments);
    const Run result = run(arguments);
    QVERIFY2(result.code == 0, qPrintable(result.errors));
}

void TestDeskctl::valuesAreJsonWhereTheyAreJson()
{
    QCOMPARE(run({u"set"_s, u"nickName"_s, u"My monitor"_s}).code, 0);
    QCOMPARE(run({u"--json"_s, u"get"_s, u"nickName"_s}).json(),
             QJsonValue(QJsonObject{{u"value"_s, u"My monitor"_s}}));
    QCOMPARE(run({u"set"_s, u"nickName"_s, u"5"_s}).code, 1); // a number is no name
    QCOMPARE(run({u"set"_s, u"nickName"_s, u"\"5\""_s}).code, 0);
    QCOMPARE(run({u"get"_s, u"nickName"_s}).out, u"5\n"_s);
    QCOMPARE(run({u"set"_s, u"path=nickName"_s, u"value=a=b"_s}).code, 0);
    QCOMPARE(run({u"get"_s, u"nickName"_s}).out, u"a=b\n"_s);
    QCOMPARE(run({u"set"_s, u"nickName"_s, u"--"_s, u"-x"_s}).code, 0);
    QCOMPARE(run({u"get"_s, u"nickName"_s}).out, u"-x\n"_s);
    QCOMPARE(run({u"settings"_s, u"set"_s, u"n"_s, u"-5"_s}).code, 0);
    const QJsonObject settings = run({u"--json"_s, u"settings"_s}).json().toObject();
    QCOMPARE(settings.value("application"_L1).toObject().value("n"_L1).toVariant().toInt(), -5);
}

void TestDeskctl::wrongUsageIsTold_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("named");
    QTest::newRow("no command") << QStringList() << u"command"_s;
    QTest::newRow("unknown command") << QStringList{u"fly"_s} << u"fly"_s;
    QTest::newRow("half a command") << QStringList{u"sim"_s} << u"sim"_s;
    QTest::newRow("unknown option") << QStringList{u"--fly"_s, u"idle"_s} << u"--fly"_s;
    QTest::newRow("option without value") << QStringList{u"idle"_s, u"-m"_s} << u"-m"_s;
    QTest::newRow("wrong timeout") << QStringList{u"--timeout"_s, u"soon"_s, u"idle"_s} << u"soon"_s;
    QTest::newRow("missing argument") << QStringList{u"set"_s, u"nickName"_s} << u"VALUE"_s;
    QTest::newRow("too many") << QStringList{u"get"_s, u"a"_s, u"b"_s} << u"b"_s;
    QTest::newRow("no paths") << QStringList{u"watch"_s} << u"PATH"_s;
    QTest::newRow("no object") << QStringList{u"raw"_s, u"get"_s, u"x"_s} << u"PARAMS"_s;
    QTest::newRow("monitor not taken") << QStringList{u"-m"_s, u"TK30Z"_s, u"monitors"_s} << u"-m"_s;
}

void TestDeskctl::wrongUsageIsTold()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, named);
    const Run result = run(arguments);
    QCOMPARE(result.code, 2);
    QVERIFY2(result.errors.contains(named), qPrintable(result.errors));
    QVERIFY(result.out.isEmpty());
}

void TestDeskctl::anErrorOfTheProgramIsPrinted()
{
    const Run result = run({u"get"_s, u"nope"_s});
    QCOMPARE(result.code, 1);
    QVERIFY(result.out.isEmpty());
    QVERIFY2(result.errors.contains("nope"_L1) && result.errors.contains("error 2"_L1),
             qPrintable(result.errors));
    QCOMPARE(run({u"-m"_s, u"TK99"_s, u"get"_s, u"id"_s}).code, 1);
    QCOMPARE(run({u"ui"_s, u"show"_s}).code, 1);
}

void TestDeskctl::withoutAProgramTheExitCodeIsThree()
{
    const Run result = run({u"monitors"_s}, m_desk.filePath(u"nobody.sock"_s));
    QCOMPARE(result.code, 3);
    QVERIFY2(result.errors.contains("nobody.sock"_L1), qPrintable(result.errors));
}

void TestDeskctl::anAnswerThatDoesNotComeIsGivenUp()
{
    QCOMPARE(::kill(pid_t(m_desk.process().processId()), SIGSTOP), 0);
    const Run result = run({u"--timeout"_s, u"200"_s, u"monitors"_s});
    QCOMPARE(::kill(pid_t(m_desk.process().processId()), SIGCONT), 0);
    QCOMPARE(result.code, 1);
    QVERIFY2(result.errors.contains("200 ms"_L1), qPrintable(result.errors));
}

void TestDeskctl::watchPrintsUntilInterrupted_data()
{
    QTest::addColumn<bool>("json");
    QTest::newRow("for people") << false;
    QTest::newRow("json") << true;
}

void TestDeskctl::watchPrintsUntilInterrupted()
{
    QFETCH(bool, json);
    QProcess watcher;
    QStringList arguments{u"--control"_s, m_desk.socketPath(), u"watch"_s, u"nickName"_s,
                          u"nickNameChanged()"_s};
    if (json)
        arguments.prepend(u"--json"_s);
    watcher.start(QStringLiteral(LUMEN_DESKCTL), arguments);
    QVERIFY(watcher.waitForStarted());
    // It says nothing before the first change: changes are made until one is seen.
    QByteArray out;
    int change = 0;
    const auto seen = [&] {
        m_desk.client().set(u"nickName"_s, u"name %1"_s.arg(++change));
        watcher.waitForReadyRead(50);
        out += watcher.readAllStandardOutput();
        return out.count('\n') >= 2;
    };
    QTRY_VERIFY(seen());
    QCOMPARE(::kill(pid_t(watcher.processId()), SIGINT), 0);
    QVERIFY(watcher.waitForFinished());
    QCOMPARE(watcher.exitStatus(), QProcess::NormalExit);
    QCOMPARE(watcher.exitCode(), 0);
    if (json) {
        const QJsonObject message = QJsonDocument::fromJson(out.left(out.indexOf('\n'))).object();
        QCOMPARE(message.value("params"_L1).toObject().value("path"_L1), QJsonValue(u"nickName"_s));
    } else {
        QVERIFY2(out.startsWith("nickName = name "), out.constData());
        QVERIFY2(out.contains("nickNameChanged()\n"), out.constData());
    }
}

void TestDeskctl::watchEndsWithTheProgram()
{
    DeskProcess passing;
    QVERIFY2(passing.start(), qPrintable(passing.errors()));
    QProcess watcher;
    watcher.start(QStringLiteral(LUMEN_DESKCTL),
                  {u"--control"_s, passing.socketPath(), u"watch"_s, u"nickName"_s});
    QVERIFY(watcher.waitForStarted());
    int change = 0;
    const auto watching = [&] {
        passing.client().set(u"nickName"_s, u"name %1"_s.arg(++change));
        // What came while the answer was awaited has been read already.
        return watcher.bytesAvailable() > 0 || watcher.waitForReadyRead(50);
    };
    QTRY_VERIFY(watching());
    QCOMPARE(passing.stop(), 0);
    // It may have ended while the program was awaited.
    QVERIFY(watcher.state() == QProcess::NotRunning || watcher.waitForFinished());
    QCOMPARE(watcher.exitCode(), 3);
}

void TestDeskctl::helpAndVersionNeedNoProgram()
{
    const QString nobody = m_desk.filePath(u"nobody.sock"_s);
    const Run help = run({u"--help"_s}, nobody);
    QCOMPARE(help.code, 0);
    for (const char* command :
         {"monitors", "sim fault", "services emit", "clock advance", "ui press", "raw METHOD"})
        QVERIFY2(help.out.contains(QLatin1String(command)), command);
    const Run version = run({u"--version"_s}, nobody);
    QCOMPARE(version.code, 0);
    QVERIFY(version.out.startsWith("lumen-deskctl "_L1));
}

QTEST_GUILESS_MAIN(TestDeskctl)
#include "tst_desk_deskctl.moc"
