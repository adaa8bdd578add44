// SPDX-License-Identifier: Apache-2.0
#include "DesktopTest.h"

#include <LuShared/LuPlatformNotifications.h>
#include <LuShared/LuPlatformProgram.h>
#include <lushared/services/ServiceRegistry.h>
#include <services/api/DesktopEvents.h>
#include <services/programs/Programs.h>
#include <services/x11/X11Services.h>

#include <QSignalSpy>

using namespace Qt::StringLiterals;

/// Applications on a real X server with a window manager: the list, starting them, and who is in the
/// foreground.
class TestDesktopPrograms : public QObject
{
    Q_OBJECT

public:
    explicit TestDesktopPrograms(XServer& server) : m_folder(QString::fromStdString(server.folder())) {}

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();

    void theListIsToldOnce();
    void aStartedApplicationComesToTheForeground_data();
    void aStartedApplicationComesToTheForeground();
    void noShellReadsAnAddress();

private:
    QString path(const QString& name) const { return m_folder + u'/' + name; }
    void write(const QString& name, const QByteArray& text) const
    {
        QFile file(path(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
        QVERIFY(file.write(text) == text.size());
        file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }
    QByteArray content(const QString& name) const
    {
        QFile file(path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    static bool activate(const QString& window)
    {
        return QTest::qWaitFor(
            [&] {
                return std::system(qPrintable(u"xdotool search --onlyvisible --name '^%1$' windowactivate "
                                              "--sync >/dev/null 2>&1"_s.arg(window))) == 0;
            },
            PatienceMs);
    }

    const QString m_folder;
    Beside m_manager;
    services::ServiceSet m_set;
    QList<unsigned long> m_foreground; ///< Processes in the order in which they came.
    int m_told = 0;
};

void TestDesktopPrograms::initTestCase()
{
    // Before the folders change: it has its theme there.
    QVERIFY(m_manager.start(u"openbox"_s, {u"--sm-disable"_s}));
    QTRY_VERIFY(outputOf(u"xprop -root _NET_SUPPORTING_WM_CHECK"_s).contains(u"0x"_s));
    // A program of its own for each application, and the browser that the desktop's opener takes.
    QVERIFY(QDir().mkpath(path(u"data/applications"_s)));
    for (const QString& each : {u"painter"_s, u"plain"_s, u"browser-window"_s})
        QVERIFY(QFile::copy(QStringLiteral(DESKTOP_CLIENT), path(each)));
    write(u"data/applications/painter.desktop"_s,
          "[Desktop Entry]\nType=Application\nName=Painter\nIcon=painter-icon\nExec=\"" +
              path(u"painter"_s).toUtf8() + "\" client-painter 100 100 300 200\n");
    write(
        u"data/applications/browser.desktop"_s,
        "[Desktop Entry]\nType=Application\nName=Browser\nIcon=browser-icon\nStartupWMClass=client-browser\n"
        "Exec=" +
            path(u"browser"_s).toUtf8() + " %u\n");
    write(u"starter"_s,
          "#!/bin/sh\nexec \"" + path(u"plain"_s).toUtf8() + "\" client-plain 500 100 300 200\n");
    write(u"browser"_s, "#!/bin/sh\nprintf %s \"$1\" > \"" + path(u"part"_s).toUtf8() + "\"\nmv \"" +
                            path(u"part"_s).toUtf8() + "\" \"" + path(u"address"_s).toUtf8() + "\"\nexec \"" +
                            path(u"browser-window"_s).toUtf8() + "\" client-browser 900 100 300 200\n");
    qputenv("XDG_DATA_HOME", path(u"data"_s).toUtf8());
    qputenv("XDG_DATA_DIRS", path(u"data"_s).toUtf8());
    qputenv("HOME", m_folder.toUtf8());
    qputenv("BROWSER", path(u"browser"_s).toUtf8());
    qunsetenv("XDG_CURRENT_DESKTOP");

    connect(LuPlatformNotifications::instance(), &LuPlatformNotifications::appListInitialized, this,
            [this] { ++m_told; });
    connect(LuPlatformNotifications::instance(), &LuPlatformNotifications::activeAppChanged, this,
            [this](unsigned long pid) { m_foreground.append(pid); });
    m_set.programs = std::make_shared<services::Programs>(services::x11::addServices(&m_set));
    services::Registry::install(m_set);
    m_set.events->start();
}

void TestDesktopPrograms::cleanupTestCase()
{
    for (const unsigned long pid : std::as_const(m_foreground))
        kill(pid_t(pid), SIGTERM);
    services::Registry::install({});
    m_set = {};
}

void TestDesktopPrograms::theListIsToldOnce()
{
    QTRY_COMPARE(m_told, 1);
    QVERIFY(LuPlatformProgram::instance()->appListReady);
}

void TestDesktopPrograms::aStartedApplicationComesToTheForeground_data()
{
    QTest::addColumn<QString>("target");
    QTest::addColumn<QString>("window");
    QTest::addColumn<QString>("program");
    QTest::addColumn<QString>("id");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("icon");
    QTest::newRow("path") << u"@/starter"_s << u"client-plain"_s << u"@/plain"_s << u"@/plain"_s << u"plain"_s
                          << QString();
    QTest::newRow("desktop entry") << u"@/data/applications/painter.desktop"_s << u"client-painter"_s
                                   << u"@/painter"_s << u"painter.desktop"_s << u"Painter"_s
                                   << u"painter-icon"_s;
    QTest::newRow("address") << u"https://example.org/index.html"_s << u"client-browser"_s
                             << u"@/browser-window"_s << u"browser.desktop"_s << u"Browser"_s
                             << u"browser-icon"_s;
}

void TestDesktopPrograms::aStartedApplicationComesToTheForeground()
{
    QFETCH(QString, target);
    QFETCH(QString, window);
    QFETCH(QString, program);
    QFETCH(QString, id);
    QFETCH(QString, name);
    QFETCH(QString, icon);
    QTRY_COMPARE(m_told, 1);
    const qsizetype before = m_foreground.size();
    LuPlatformProgram& programs = *LuPlatformProgram::instance();
    QVERIFY(programs.openApplication(target.replace(u'@', m_folder)));
    // Some window managers leave the focus where it is.
    QVERIFY(activate(window));
    QTRY_COMPARE(m_foreground.size(), before + 1);
    const unsigned long pid = m_foreground.last();
    QCOMPARE(QFile::symLinkTarget(u"/proc/%1/exe"_s.arg(pid)), program.replace(u'@', m_folder));
    const QString found = programs.appId(pid);
    QCOMPARE(found, id.replace(u'@', m_folder));
    QCOMPARE(programs.appDisplayName(found), name);
    QCOMPARE(m_set.programs->icon(found), icon);
    QVERIFY(QFile::exists(programs.appUrl(found).toLocalFile()));
}

void TestDesktopPrograms::noShellReadsAnAddress()
{
    const QString address = u"https://example.org/?a=$(touch${IFS}%1)&b=`id`;c|d"_s.arg(path(u"touched"_s));
    QFile::remove(path(u"address"_s));
    QVERIFY(LuPlatformProgram::instance()->openApplication(address));
    QTRY_VERIFY(QFile::exists(path(u"address"_s)));
    QCOMPARE(QString::fromUtf8(content(u"address"_s)), address);
    QVERIFY(!QFile::exists(path(u"touched"_s)));
}

DESKTOP_MAIN(TestDesktopPrograms)
#include "tst_desktop_programs.moc"
