// SPDX-License-Identifier: Apache-2.0
#include <LuShared/LuPlatformNotifications.h>
#include <LuShared/LuPlatformProgram.h>
#include <ZrCore/ZrClock.h>
#include <ZrCore/ZrDispatch.h>
#include <lushared/services/ServiceRegistry.h>
#include <services/programs/Programs.h>

#include <QSignalSpy>
#include <QtTest>

using namespace services;
using namespace Qt::StringLiterals;

namespace {

/// Windows with one process, whose window has a class.
class OneWindow : public ApplicationWindows
{
public:
    QStringList applicationNames(unsigned long pid) const override
    {
        return pid == 4711 ? QStringList{u"nobody"_s, u"Painter-Gtk"_s} : QStringList();
    }
    void setGeometry(unsigned long pid, const QRectF& geometry) override
    {
        placed = pid;
        where = geometry;
    }

    unsigned long placed = 0;
    QRectF where;
};

} // namespace

/// Desktop entries, identities of applications, and starting them.
class TestPrograms : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();

    void commandLine_data();
    void commandLine();
    void entryIsRead_data();
    void entryIsRead();
    void earlierFolderHidesLater();
    void listIsToldOnce();
    void identities_data();
    void identities();
    void runningProgram();
    void runningScript();
    void windowClassNamesTheApplication();
    void namesAndPlaces();
    void open_data();
    void open();
    void noShell();
    void refused_data();
    void refused();
    void windowsArePlaced();
    void installationsAreFollowed();
    void oneInstallationIsReadOnce();

private:
    /// Whether the folders' change has been seen; then lets the quiet pass, and the list be read.
    bool changeIsRead();
    QString write(const QString& name, const QByteArray& content, bool executable = false);
    QString path(const QString& name) const { return m_folder.filePath(name); }
    QByteArray content(const QString& name) const
    {
        QFile file(path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    QTemporaryDir m_folder;
    std::shared_ptr<OneWindow> m_windows = std::make_shared<OneWindow>();
    std::shared_ptr<Programs> m_programs;
    int m_told = 0;
};

QString TestPrograms::write(const QString& name, const QByteArray& text, bool executable)
{
    const QString file = path(name);
    QDir().mkpath(QFileInfo(file).absolutePath());
    QFile out(file);
    if (!out.open(QIODevice::WriteOnly))
        return {};
    out.write(text);
    if (executable)
        out.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    return file;
}

void TestPrograms::initTestCase()
{
    // Each program notes how it was called: one line an argument.
    const QByteArray script = "#!/bin/sh\nfor a in \"$0\" \"$@\"; do echo \"$a\"; done > \"$NOTE.part\"\n"
                              "mv \"$NOTE.part\" \"$NOTE\"\n";
    write(u"bin/editor"_s, script, true);
    write(u"bin/painter"_s, script, true);
    write(u"bin/xdg-open"_s, script, true);
    write(u"bin/plain"_s, script, true);
    QVERIFY(QFile::copy(QStandardPaths::findExecutable(u"sleep"_s), path(u"bin/napper"_s)));
    QVERIFY(QFile::link(path(u"bin/editor"_s), path(u"bin/edit"_s)));
    write(u"bin/waiter"_s, "#!/bin/sh\nread line\n", true);
    write(u"text.txt"_s, "text");

    write(u"home/applications/editor.desktop"_s,
          "[Desktop Entry]\nType=Application\nName=Editor\nName[de]=Schreiber\nIcon=editor-icon\nExec=edit "
          "--new %F\n");
    write(u"home/applications/sub/painter.desktop"_s,
          "[Desktop Entry]\nType=Application\nName=Painter\nExec=\"" + path(u"bin/painter"_s).toUtf8() +
              "\" \"two words\" \\$HOME 100%% %U\nStartupWMClass=Painter-Gtk\n");
    write(u"home/applications/napper.desktop"_s,
          "[Desktop Entry]\nType=Application\nName=Napper\nExec=napper\n");
    write(u"home/applications/waiter.desktop"_s,
          "[Desktop Entry]\nType=Application\nName=Waiter\nExec=waiter\n");
    write(u"home/applications/gone.desktop"_s, "[Desktop Entry]\nType=Application\nHidden=true\n");
    write(u"system/applications/gone.desktop"_s,
          "[Desktop Entry]\nType=Application\nName=Gone\nExec=plain\n");
    write(u"system/applications/editor.desktop"_s,
          "[Desktop Entry]\nType=Application\nName=Other editor\nExec=plain\n");
    write(u"system/applications/absent.desktop"_s,
          "[Desktop Entry]\nType=Application\nName=Absent\nExec=no-such-program\n");

    qputenv("XDG_DATA_HOME", path(u"home"_s).toUtf8());
    QVERIFY(QDir().mkpath(path(u"later"_s)));
    qputenv("XDG_DATA_DIRS", (path(u"system"_s) + u':' + path(u"later"_s)).toUtf8());
    qputenv("PATH", path(u"bin"_s).toUtf8() + ":/usr/bin:/bin");
    qputenv("NOTE", path(u"note"_s).toUtf8());

    connect(LuPlatformNotifications::instance(), &LuPlatformNotifications::appListInitialized, this,
            [this] { ++m_told; });
    m_programs = std::make_shared<Programs>(m_windows);
    ServiceSet set;
    set.programs = m_programs;
    Registry::install(set);
    QVERIFY(!LuPlatformProgram::instance()->appListReady);
}

void TestPrograms::cleanupTestCase()
{
    Registry::install({});
    m_programs.reset();
}

void TestPrograms::commandLine_data()
{
    QTest::addColumn<QString>("exec");
    QTest::addColumn<QStringList>("words");
    QTest::newRow("plain") << u"editor"_s << QStringList{u"editor"_s};
    QTest::newRow("arguments") << u"editor  --a  b"_s << QStringList{u"editor"_s, u"--a"_s, u"b"_s};
    QTest::newRow("files") << u"editor %F"_s << QStringList{u"editor"_s};
    QTest::newRow("inside a word") << u"editor --file=%f"_s << QStringList{u"editor"_s, u"--file="_s};
    QTest::newRow("percent") << u"editor 50%%"_s << QStringList{u"editor"_s, u"50%"_s};
    QTest::newRow("name") << u"editor %c"_s << QStringList{u"editor"_s, u"The name"_s};
    QTest::newRow("quotes") << u"\"my editor\" \"a \\\"b\\\" \\$c\""_s
                            << QStringList{u"my editor"_s, u"a \"b\" $c"_s};
    QTest::newRow("empty argument") << u"editor \"\" x"_s << QStringList{u"editor"_s, QString(), u"x"_s};
    QTest::newRow("shell signs stay text")
        << u"editor ;rm $(x) `y` | z"_s << u"editor,;rm,$(x),`y`,|,z"_s.split(u',');
    QTest::newRow("unknown code") << u"editor %q"_s << QStringList();
    QTest::newRow("open quote") << u"editor \"a"_s << QStringList();
    QTest::newRow("empty") << QString() << QStringList();
}

void TestPrograms::commandLine()
{
    QFETCH(QString, exec);
    DesktopEntry entry;
    entry.exec = exec;
    entry.name = u"The name"_s;
    QTEST(entry.command(), "words");
}

void TestPrograms::entryIsRead_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("name"); // empty: no application
    const QByteArray head = "[Desktop Entry]\nType=Application\nExec=editor\n";
    QTest::newRow("plain") << head + "Name=A\n" << u"C"_s << u"A"_s;
    QTest::newRow("language") << head + "Name=A\nName[de]=B\n" << u"de_AT"_s << u"B"_s;
    QTest::newRow("country") << head + "Name[de]=B\nName[de_AT]=C\nName=A\n" << u"de_AT"_s << u"C"_s;
    QTest::newRow("blanks") << QByteArray(
                                   "# x\n\n[Desktop Entry]\nType = Application\nExec = editor\nName = A b \n")
                            << u"C"_s << u"A b"_s;
    QTest::newRow("escapes") << head + "Name=A\\sb\\\\\n" << u"C"_s << u"A b\\"_s;
    QTest::newRow("other groups") << head + "Name=A\n[Desktop Action x]\nName=B\n" << u"C"_s << u"A"_s;
    QTest::newRow("a link") << QByteArray("[Desktop Entry]\nType=Link\nName=A\nURL=x\n") << u"C"_s
                            << QString();
    QTest::newRow("deleted") << head + "Name=A\nHidden=true\n" << u"C"_s << QString();
    QTest::newRow("not installed") << head + "Name=A\nTryExec=no-such-program\n" << u"C"_s << QString();
    QTest::newRow("no command") << QByteArray("[Desktop Entry]\nType=Application\nName=A\n") << u"C"_s
                                << QString();
    QTest::newRow("no name") << head << u"C"_s << QString();
    QTest::newRow("garbage") << QByteArray("\0\xff\n=\n[", 6) << u"C"_s << QString();
    QTest::newRow("empty") << QByteArray() << u"C"_s << QString();
    QTest::newRow("huge") << head + "Name=A\n#" + QByteArray(2 << 20, 'x') << u"C"_s << QString();
}

void TestPrograms::entryIsRead()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, locale);
    QFETCH(QString, name);
    const auto entry = DesktopEntry::read(write(u"entry.desktop"_s, text), locale);
    QCOMPARE(entry.has_value(), !name.isEmpty());
    if (entry)
        QCOMPARE(entry->name, name);
    QVERIFY(!DesktopEntry::read(path(u"not-there.desktop"_s), locale));
}

void TestPrograms::earlierFolderHidesLater()
{
    const ApplicationList list = ApplicationList::read({path(u"home"_s), path(u"system"_s)}, u"de_DE"_s);
    QVERIFY(!list.byId(u"gone.desktop"_s));
    QCOMPARE(list.byId(u"editor.desktop"_s)->name, u"Schreiber"_s);
    QCOMPARE(list.byId(u"sub-painter.desktop"_s)->name, u"Painter"_s);
    QCOMPARE(ApplicationList::read({path(u"nothing"_s)}, u"C"_s).entries().size(), 0);
}

void TestPrograms::listIsToldOnce()
{
    QTRY_COMPARE(m_told, 1);
    QVERIFY(LuPlatformProgram::instance()->appListReady);
    QVERIFY(m_programs->isListReady());
}

void TestPrograms::identities_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("id");
    QTest::newRow("entry") << u"home/applications/editor.desktop"_s << u"editor.desktop"_s;
    QTest::newRow("program") << u"bin/editor"_s << u"editor.desktop"_s;
    QTest::newRow("link to it") << u"bin/edit"_s << u"editor.desktop"_s;
    QTest::newRow("program without an entry") << u"bin/plain"_s << u"/bin/plain"_s;
    QTest::newRow("a document") << u"text.txt"_s << QString();
    QTest::newRow("nothing") << u"bin/none"_s << QString();
}

void TestPrograms::identities()
{
    QFETCH(QString, file);
    QFETCH(QString, id);
    const QString found = LuPlatformProgram::instance()->appId(QUrl::fromLocalFile(path(file)));
    QCOMPARE(found, id.startsWith(u'/') ? QFileInfo(path(id.mid(1))).canonicalFilePath() : id);
    QCOMPARE(LuPlatformProgram::instance()->appId(QUrl(u"https://example.org"_s)), QString());
}

void TestPrograms::runningProgram()
{
    QProcess process;
    process.start(path(u"bin/napper"_s), {u"600"_s});
    QVERIFY(process.waitForStarted());
    const auto pid = static_cast<unsigned long>(process.processId());
    QTRY_COMPARE(LuPlatformProgram::instance()->appId(pid), u"napper.desktop"_s);
    process.kill();
    process.waitForFinished();
    QCOMPARE(LuPlatformProgram::instance()->appId(pid), QString());
    QCOMPARE(LuPlatformProgram::instance()->appId(0ul), QString());
    // Without an entry a program is known by its path.
    QCOMPARE(
        LuPlatformProgram::instance()->appId(static_cast<unsigned long>(QCoreApplication::applicationPid())),
        QCoreApplication::applicationFilePath());
}

void TestPrograms::runningScript()
{
    QProcess process;
    process.start(path(u"bin/waiter"_s), QStringList());
    QVERIFY(process.waitForStarted());
    QTRY_COMPARE(LuPlatformProgram::instance()->appId(static_cast<unsigned long>(process.processId())),
                 u"waiter.desktop"_s);
    process.closeWriteChannel();
    QVERIFY(process.waitForFinished());
}

void TestPrograms::windowClassNamesTheApplication()
{
    QCOMPARE(LuPlatformProgram::instance()->appId(4711ul), u"sub-painter.desktop"_s);
}

void TestPrograms::namesAndPlaces()
{
    const LuPlatformProgram& programs = *LuPlatformProgram::instance();
    QCOMPARE(programs.appDisplayName(u"editor.desktop"_s), u"Editor"_s);
    QCOMPARE(programs.appUrl(u"editor.desktop"_s),
             QUrl::fromLocalFile(path(u"home/applications/editor.desktop"_s)));
    QCOMPARE(m_programs->icon(u"editor.desktop"_s), u"editor-icon"_s);
    QCOMPARE(programs.appDisplayName(path(u"bin/plain"_s)), u"plain"_s);
    QCOMPARE(programs.appUrl(path(u"bin/plain"_s)), QUrl::fromLocalFile(path(u"bin/plain"_s)));
    QCOMPARE(programs.appUrl(u"unknown.desktop"_s), QUrl());
    QCOMPARE(m_programs->icon(u"unknown.desktop"_s), QString());
}

void TestPrograms::open_data()
{
    QTest::addColumn<QString>("target");
    QTest::addColumn<QStringList>("called");
    QTest::newRow("program") << u"@/bin/plain"_s << QStringList{u"@/bin/plain"_s};
    QTest::newRow("identity") << u"editor.desktop"_s << QStringList{u"@/bin/editor"_s, u"--new"_s};
    QTest::newRow("entry") << u"@/home/applications/sub/painter.desktop"_s
                           << QStringList{u"@/bin/painter"_s, u"two words"_s, u"\\$HOME"_s, u"100%"_s};
    QTest::newRow("file address") << u"file://@/bin/plain"_s << QStringList{u"@/bin/plain"_s};
    QTest::newRow("address") << u"https://example.org/?a=b&c=$(d)"_s
                             << QStringList{u"@/bin/xdg-open"_s, u"https://example.org/?a=b&c=$(d)"_s};
    QTest::newRow("document") << u"@/text.txt"_s << QStringList{u"@/bin/xdg-open"_s, u"@/text.txt"_s};
}

void TestPrograms::open()
{
    QFETCH(QString, target);
    QFETCH(QStringList, called);
    QFile::remove(path(u"note"_s));
    QVERIFY(LuPlatformProgram::instance()->openApplication(target.replace(u'@', m_folder.path())));
    QTRY_VERIFY(QFile::exists(path(u"note"_s)));
    QCOMPARE(content(u"note"_s), called.join(u'\n').replace(u'@', m_folder.path()).toUtf8() + '\n');
}

void TestPrograms::noShell()
{
    QFile::remove(path(u"note"_s));
    const QString entry =
        write(u"evil.desktop"_s, "[Desktop Entry]\nType=Application\nName=E\nExec=plain ; touch " +
                                     path(u"touched"_s).toUtf8() + " $(touch x)\n");
    QVERIFY(LuPlatformProgram::instance()->openApplication(entry));
    QTRY_VERIFY(QFile::exists(path(u"note"_s)));
    QVERIFY(content(u"note"_s).contains("\n;\ntouch\n"));
    QVERIFY(!QFile::exists(path(u"touched"_s)));
}

void TestPrograms::refused_data()
{
    QTest::addColumn<QString>("target");
    QTest::newRow("no such file") << u"/no/such/program"_s;
    QTest::newRow("no such entry") << u"/no/such.desktop"_s;
    QTest::newRow("a name") << u"plain"_s;
    QTest::newRow("program not installed") << u"absent.desktop"_s;
}

void TestPrograms::refused()
{
    QFETCH(QString, target);
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"\\[Programs\\] .* was not started: "_s));
    QVERIFY(!LuPlatformProgram::instance()->openApplication(target));
    QVERIFY(!LuPlatformProgram::instance()->openApplication(QString()));
}

void TestPrograms::windowsArePlaced()
{
    LuPlatformProgram::instance()->setApplicationGeometry(4711, QRectF(1, 2, 3, 4));
    QCOMPARE(m_windows->placed, 4711ul);
    QCOMPARE(m_windows->where, QRectF(1, 2, 3, 4));
    const Programs without(nullptr);
    QCOMPARE(without.appId(4711ul), QString());
}

bool TestPrograms::changeIsRead()
{
    const bool seen = QTest::qWaitFor(
        [this] { return ZrDispatch::main()->has(m_programs.get(), u"readApplications"_s); }, 30'000);
    ZrClock::instance().advance(Programs::QuietMs);
    return seen && QTest::qWaitFor([this] { return !m_programs->isReading(); }, 30'000);
}

void TestPrograms::installationsAreFollowed()
{
    ZrClock::instance().set(QDateTime(QDate(2026, 3, 2), QTime(8, 0)));
    const auto release = qScopeGuard([] { ZrClock::instance().release(); });
    QSignalSpy changed(LuPlatformNotifications::instance(), &LuPlatformNotifications::appListChanged);
    const QByteArray entry = "[Desktop Entry]\nType=Application\nExec=plain\nIcon=new-icon\nName=";
    const auto nameOf = [](const QString& id) { return LuPlatformProgram::instance()->appDisplayName(id); };

    write(u"home/applications/new.desktop"_s, entry + "New\n");
    QVERIFY(changeIsRead());
    QTRY_COMPARE(changed.count(), 1);
    QCOMPARE(nameOf(u"new.desktop"_s), u"New"_s);
    QCOMPARE(m_programs->icon(u"new.desktop"_s), u"new-icon"_s);
    // As package tools do: a file takes the place of another one.
    write(u"newer"_s, entry + "Newer\n");
    QVERIFY(QFile::remove(path(u"home/applications/new.desktop"_s)));
    QVERIFY(QFile::rename(path(u"newer"_s), path(u"home/applications/new.desktop"_s)));
    QVERIFY(changeIsRead());
    QTRY_COMPARE(changed.count(), 2);
    QCOMPARE(nameOf(u"new.desktop"_s), u"Newer"_s);
    QVERIFY(QFile::remove(path(u"home/applications/new.desktop"_s)));
    QVERIFY(changeIsRead());
    QTRY_COMPARE(changed.count(), 3);
    QCOMPARE(m_programs->icon(u"new.desktop"_s), QString());

    // A folder that is not there at the start, and one below it.
    QVERIFY(QDir().mkpath(path(u"later/applications/vendor"_s)));
    QVERIFY(changeIsRead());
    write(u"later/applications/vendor/late.desktop"_s, entry + "Late\n");
    QVERIFY(changeIsRead());
    QTRY_COMPARE(changed.count(), 4);
    QCOMPARE(nameOf(u"vendor-late.desktop"_s), u"Late"_s);
    QVERIFY(QDir(path(u"later/applications"_s)).removeRecursively());
    QVERIFY(changeIsRead());
    QTRY_COMPARE(changed.count(), 5);
}

void TestPrograms::oneInstallationIsReadOnce()
{
    ZrClock::instance().set(QDateTime(QDate(2026, 3, 2), QTime(8, 0)));
    const auto release = qScopeGuard([] { ZrClock::instance().release(); });
    QSignalSpy changed(LuPlatformNotifications::instance(), &LuPlatformNotifications::appListChanged);
    // What is no application is no change.
    write(u"home/applications/mimeinfo.cache"_s, "x");
    QVERIFY(changeIsRead());
    for (int i = 0; i < 20; ++i)
        write(u"home/applications/many%1.desktop"_s.arg(i),
              "[Desktop Entry]\nType=Application\nName=Many\nExec=plain\n");
    QVERIFY(changeIsRead());
    QTRY_COMPARE(changed.count(), 1);
    QCOMPARE(LuPlatformProgram::instance()->appDisplayName(u"many19.desktop"_s), u"Many"_s);
    QCOMPARE(m_told, 1);
}

QTEST_GUILESS_MAIN(TestPrograms)
#include "tst_programs.moc"
