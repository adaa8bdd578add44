// SPDX-License-Identifier: Apache-2.0
#include "PlasmaSession.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusInterface>
#include <QDBusReply>
#include <QDir>
#include <QFile>
#include <QTest>

namespace {

const QString ObjectPath = QStringLiteral("/test");

} // namespace

QString PlasmaSession::startBus()
{
    for (const char* const variable :
         {"HOME", "XDG_RUNTIME_DIR", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME"})
        qputenv(variable, m_home.path().toLocal8Bit());
    for (const char* const variable : {"WAYLAND_DISPLAY", "DISPLAY"})
        qunsetenv(variable);
    const QString problem = m_bus.start();
    if (problem.isEmpty())
        qputenv("DBUS_SESSION_BUS_ADDRESS", m_bus.address().toUtf8());
    return problem;
}

QString PlasmaSession::startKWin()
{
    const QString problem = m_server.start(folder());
    if (problem.isEmpty())
        QDBusConnection::sessionBus().registerObject(ObjectPath, this,
                                                     QDBusConnection::ExportScriptableSlots);
    return problem;
}

QString PlasmaSession::startKScreen()
{
    // What Plasma starts by the bus, with the session's environment.
    const QStringList places =
        QDir(QStringLiteral("/usr/lib")).entryList({QStringLiteral("*-linux-gnu*")}, QDir::Dirs);
    QString launcher;
    for (const QString& place : places) {
        for (const QString& folder : {QStringLiteral("libexec/kf5"), QStringLiteral("libexec/kf6")}) {
            const QString candidate =
                QStringLiteral("/usr/lib/%1/%2/kscreen_backend_launcher").arg(place, folder);
            if (QFile::exists(candidate))
                launcher = candidate;
        }
    }
    if (launcher.isEmpty())
        return QStringLiteral("KScreen's back end is not installed");
    m_kscreen.environment = environment();
    return m_kscreen.start(
        launcher, {},
        [] {
            return bool(QDBusConnection::sessionBus().interface()->isServiceRegistered(
                QStringLiteral("org.kde.KScreen")));
        },
        Patience);
}

void PlasmaSession::stop()
{
    m_kscreen.stop();
    m_server.stop();
    m_bus.stop();
}

QProcessEnvironment PlasmaSession::environment()
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("WAYLAND_DISPLAY"), KWinServer::display());
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("wayland"));
    return environment;
}

QString PlasmaSession::ask(const QString& script)
{
    const QString name = QStringLiteral("test-%1").arg(++m_scripts);
    QFile file(m_home.filePath(name));
    if (!file.open(QIODevice::WriteOnly))
        return file.errorString();
    file.write(QStringLiteral(
                   "function answer(text) { callDBus(\"%1\", \"%2\", \"org.lumen_desk.Test\", "
                   "\"answered\", \"\" + text); }\n"
                   "var windows = workspace.windowList ? workspace.windowList() : workspace.clientList();\n"
                   "function run() {\n%3\n}\nrun();\n")
                   .arg(QDBusConnection::sessionBus().baseService(), ObjectPath, script)
                   .toUtf8());
    file.close();
    m_answers.clear();
    const QString kwin = QStringLiteral("org.kde.KWin");
    QDBusInterface scripting(kwin, QStringLiteral("/Scripting"), QStringLiteral("org.kde.kwin.Scripting"));
    const QDBusReply<int> id = scripting.call(QStringLiteral("loadScript"), file.fileName(), name);
    // All that do not run yet: a number would be given anew while the script that has it still runs.
    scripting.call(QStringLiteral("start"));
    const bool told = QTest::qWaitFor([this] { return !m_answers.isEmpty(); }, Patience);
    scripting.call(QStringLiteral("unloadScript"), name);
    return told ? m_answers.first() : QStringLiteral("KWin does not answer");
}

QString PlasmaSession::placeOf(qint64 pid, const QString& before)
{
    return ask(QStringLiteral(R"(    for (var i = 0; i < windows.length; ++i) {
        var window = windows[i];
        if (window.pid == %1) {
            %2
            var g = window.frameGeometry;
            return answer(g.x + "," + g.y + " " + g.width + "x" + g.height);
        }
    }
    answer("nothing");)")
                   .arg(QString::number(pid), before));
}

bool PlasmaSession::hasFocus(qint64 pid)
{
    const QString script =
        QStringLiteral("    var active = workspace.activeWindow || workspace.activeClient;\n"
                       "    answer(active ? active.pid : 0);");
    return QTest::qWaitFor([&] { return ask(script) == QString::number(pid); }, Patience);
}

QString WindowProgram::start(const QStringList& arguments)
{
    m_process.environment = PlasmaSession::environment();
    // The size is told once the window has one.
    return m_process.start(
        QStringLiteral(WINDOW), arguments, [this] { return !lines(QStringLiteral("size ")).isEmpty(); },
        Patience);
}

QStringList WindowProgram::lines(const QString& word)
{
    QStringList found;
    const QStringList all = m_process.output().split(u'\n', Qt::SkipEmptyParts);
    for (const QString& line : all) {
        if (line.startsWith(word))
            found.append(line.mid(word.size()));
    }
    return found;
}
