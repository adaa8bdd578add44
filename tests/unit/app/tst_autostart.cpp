// SPDX-License-Identifier: Apache-2.0
#include "app/Autostart.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QtTest>

using namespace Qt::StringLiterals;

/// The program's entry among those that start at login.
class TestAutostart : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void anEntryIsWrittenAndRemoved();
    void pathsAreQuoted_data();
    void pathsAreQuoted();
    void anEntryThatIsSwitchedOffElsewhereCounts_data();
    void anEntryThatIsSwitchedOffElsewhereCounts();
    void aRefusalIsTold();

private:
    static QByteArray contents();
    std::unique_ptr<QTemporaryDir> m_home;
};

void TestAutostart::init()
{
    m_home = std::make_unique<QTemporaryDir>();
    qputenv("XDG_CONFIG_HOME", m_home->path().toUtf8());
    QVERIFY(Autostart::file().startsWith(m_home->path()));
}

QByteArray TestAutostart::contents()
{
    QFile file(Autostart::file());
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void TestAutostart::anEntryIsWrittenAndRemoved()
{
    QVERIFY(!Autostart::isOn());
    QVERIFY(Autostart::set(true, u"/usr/bin/lumen-desk"_s));
    QVERIFY(Autostart::isOn());
    QVERIFY(contents().startsWith("[Desktop Entry]\n"));
    QVERIFY(contents().contains("\nExec=\"/usr/bin/lumen-desk\" --hidden\n"));
    QVERIFY(Autostart::set(false, u"/usr/bin/lumen-desk"_s));
    QVERIFY(!Autostart::isOn());
    QVERIFY(!QFile::exists(Autostart::file()));
    // Nothing to remove is no failure.
    QVERIFY(Autostart::set(false, {}));
}

void TestAutostart::pathsAreQuoted_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QByteArray>("line");
    QTest::newRow("a space") << u"/opt/My Desk/lumen-desk"_s << QByteArray("\"/opt/My Desk/lumen-desk\"");
    QTest::newRow("a percent sign") << u"/opt/100%/lumen-desk"_s << QByteArray("\"/opt/100%%/lumen-desk\"");
    QTest::newRow("a dollar sign") << u"/opt/$x/lumen-desk"_s << QByteArray(R"("/opt/\\$x/lumen-desk")");
    QTest::newRow("a quote") << u"/opt/\"/lumen-desk"_s << QByteArray(R"("/opt/\\"/lumen-desk")");
}

void TestAutostart::pathsAreQuoted()
{
    QFETCH(QString, path);
    QFETCH(QByteArray, line);
    QVERIFY(Autostart::set(true, path));
    QVERIFY2(contents().contains("\nExec=" + line + " --hidden\n"), contents().constData());
}

void TestAutostart::anEntryThatIsSwitchedOffElsewhereCounts_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<bool>("on");
    QTest::newRow("hidden") << QByteArray("Hidden=true\n") << false;
    QTest::newRow("hidden, with spaces") << QByteArray("Hidden = true\n") << false;
    QTest::newRow("a desktop's own switch") << QByteArray("X-GNOME-Autostart-enabled=false\n") << false;
    QTest::newRow("not hidden") << QByteArray("Hidden=false\n") << true;
}

void TestAutostart::anEntryThatIsSwitchedOffElsewhereCounts()
{
    QFETCH(QByteArray, line);
    QFETCH(bool, on);
    QVERIFY(QDir().mkpath(QFileInfo(Autostart::file()).absolutePath()));
    QFile file(Autostart::file());
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("[Desktop Entry]\nExec=lumen-desk\n" + line);
    file.close();
    QCOMPARE(Autostart::isOn(), on);
}

void TestAutostart::aRefusalIsTold()
{
    // A file stands where the folder is to be.
    QFile obstacle(m_home->filePath(u"autostart"_s));
    QVERIFY(obstacle.open(QIODevice::WriteOnly));
    obstacle.close();
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"\\[Autostart\\] cannot write"_s));
    QVERIFY(!Autostart::set(true, u"/usr/bin/lumen-desk"_s));
    QVERIFY(!Autostart::isOn());
}

QTEST_GUILESS_MAIN(TestAutostart)
#include "tst_autostart.moc"
