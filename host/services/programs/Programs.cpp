// SPDX-License-Identifier: Apache-2.0
#include "Programs.h"

#include <LuShared/LuPlatformNotifications.h>
#include <LuShared/LuPlatformProgram.h>
#include <ZrCore/ZrDispatch.h>

#include <QCoreApplication>
#include <QDebug>
#include <QDirIterator>
#include <QEvent>
#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QProcess>
#include <QStandardPaths>
#include <QUrl>

namespace services {

namespace {

/// An address rather than a path: "https://...", "mailto:...".
bool isAddress(const QString& text)
{
    const QString scheme = text.section(u':', 0, 0);
    return scheme.size() > 1 && text.contains(u':') && !text.startsWith(u'/') &&
           QUrl(text).scheme() == scheme.toLower();
}

bool isEntry(const QString& path)
{
    return path.endsWith(QLatin1String(".desktop"));
}

bool startProgram(const QStringList& command, const QString& workingDirectory)
{
    const QString program = command.isEmpty() ? QString() : resolvedProgram(command.first());
    if (program.isEmpty())
        return false;
    QProcess process;
    process.setProgram(program);
    process.setArguments(command.mid(1));
    if (QFileInfo(workingDirectory).isDir())
        process.setWorkingDirectory(workingDirectory);
    return process.startDetached();
}

/// The desktop's own opener finds the application that a person chose for a kind of file or address.
bool openByDesktop(const QString& target)
{
    return startProgram({QStringLiteral("xdg-open"), target}, QString());
}

bool startEntry(const DesktopEntry& entry)
{
    QStringList command = entry.command();
    if (entry.terminal)
        command = QStringList{QStringLiteral("x-terminal-emulator"), QStringLiteral("-e")} + command;
    return startProgram(command, entry.workingDirectory);
}

QString programOf(unsigned long pid)
{
    return QFile::symLinkTarget(QStringLiteral("/proc/%1/exe").arg(pid));
}

QStringList commandLineOf(unsigned long pid)
{
    QFile file(QStringLiteral("/proc/%1/cmdline").arg(pid));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return QString::fromLocal8Bit(file.readAll()).split(QChar::Null, Qt::SkipEmptyParts);
}

/// A script is run by an interpreter: the first argument that is a file of its own names it.
QString scriptOf(unsigned long pid)
{
    const QStringList words = commandLineOf(pid);
    if (words.size() < 2 || words[1].startsWith(u'-'))
        return {};
    return resolvedProgram(words[1]);
}

} // namespace

Programs::Programs(std::shared_ptr<ApplicationWindows> windows)
    : m_windows(std::move(windows)),
      m_folders(QStandardPaths::standardLocations(QStandardPaths::GenericDataLocation))
{
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, this, &Programs::readLater);
    watch();
    read();
}

Programs::~Programs()
{
    m_reader.join();
}

void Programs::watch()
{
    QStringList wanted;
    for (const QString& folder : m_folders) {
        const QString applications = folder + QStringLiteral("/applications");
        // A folder that is not there yet shows in the one above it.
        if (!QFileInfo(applications).isDir()) {
            wanted.append(folder);
            continue;
        }
        wanted.append(applications);
        QDirIterator below(applications, QDir::Dirs | QDir::NoDotAndDotDot, QDirIterator::Subdirectories);
        while (below.hasNext())
            wanted.append(below.next());
    }
    const QStringList before = m_watcher.directories();
    for (const QString& folder : std::as_const(wanted)) {
        if (!before.contains(folder) && QFileInfo(folder).isDir())
            m_watcher.addPath(folder);
    }
    for (const QString& folder : before) {
        if (!wanted.contains(folder))
            m_watcher.removePath(folder);
    }
}

void Programs::readLater()
{
    ZrDispatch::main()->postUniqueLater(this, QStringLiteral("readApplications"), QuietMs, [this] {
        watch();
        read();
    });
}

void Programs::read()
{
    m_readAgain = m_reading;
    if (std::exchange(m_reading, true))
        return;
    if (m_reader.joinable())
        m_reader.join();
    m_reader = std::thread([this, folders = m_folders, locale = QLocale().name()] {
        auto read = std::make_shared<const ApplicationList>(ApplicationList::read(folders, locale));
        {
            const std::lock_guard lock(m_mutex);
            m_differs = !m_list || m_list->entries() != read->entries();
            m_list = std::move(read);
        }
        QCoreApplication::postEvent(this, new QEvent(QEvent::User));
    });
}

bool Programs::event(QEvent* event)
{
    if (event->type() != QEvent::User)
        return QObject::event(event);
    m_reading = false;
    bool differs = false;
    {
        const std::lock_guard lock(m_mutex);
        differs = m_differs;
    }
    if (!std::exchange(m_told, true)) {
        LuPlatformProgram::instance()->appListReady = true;
        Q_EMIT LuPlatformNotifications::instance()->appListInitialized();
    } else if (differs) {
        Q_EMIT LuPlatformNotifications::instance()->appListChanged();
    }
    if (std::exchange(m_readAgain, false))
        read();
    return true;
}

std::shared_ptr<const ApplicationList> Programs::list() const
{
    const std::lock_guard lock(m_mutex);
    return m_list ? m_list : std::make_shared<const ApplicationList>();
}

bool Programs::isListReady() const
{
    return m_told;
}

QString Programs::appId(unsigned long pid) const
{
    const auto all = list();
    const QStringList names = m_windows && pid ? m_windows->applicationNames(pid) : QStringList();
    for (const QString& name : names) {
        if (const DesktopEntry* entry = all->byWindowClass(name))
            return entry->id;
    }
    const QString program = programOf(pid);
    if (program.isEmpty())
        return {};
    for (const QString& candidate : {program, scriptOf(pid)}) {
        if (const DesktopEntry* entry = all->byProgram(candidate))
            return entry->id;
    }
    // A program that was replaced while it runs is still the same one.
    static const QString deleted = QStringLiteral(" (deleted)");
    return program.endsWith(deleted) ? program.chopped(deleted.size()) : program;
}

QString Programs::appId(const QUrl& url) const
{
    const QString path = url.toLocalFile();
    if (path.isEmpty())
        return {};
    const auto all = list();
    if (isEntry(path)) {
        if (const DesktopEntry* entry = all->byFile(path))
            return entry->id;
        // An entry of another folder, such as the desktop's: the application may be known by its program.
        const std::optional<DesktopEntry> own = DesktopEntry::read(path, QLocale().name());
        const DesktopEntry* known = own ? all->byProgram(own->program()) : nullptr;
        return known ? known->id : own ? path : QString();
    }
    const QString program = resolvedProgram(path);
    if (program.isEmpty())
        return {};
    const DesktopEntry* entry = all->byProgram(program);
    return entry ? entry->id : program;
}

QString Programs::displayName(const QString& appId) const
{
    const auto all = list();
    if (const DesktopEntry* entry = all->byId(appId))
        return entry->name;
    if (isEntry(appId)) {
        if (const auto own = DesktopEntry::read(appId, QLocale().name()))
            return own->name;
    }
    return QFileInfo(appId).fileName();
}

QUrl Programs::url(const QString& appId) const
{
    if (const DesktopEntry* entry = list()->byId(appId))
        return QUrl::fromLocalFile(entry->file);
    return QFileInfo(appId).isAbsolute() ? QUrl::fromLocalFile(appId) : QUrl();
}

QString Programs::icon(const QString& appId) const
{
    const DesktopEntry* entry = list()->byId(appId);
    return entry ? entry->icon : QString();
}

bool Programs::open(const QString& path)
{
    const auto fail = [&](const QString& why) {
        qWarning().noquote() << "[Programs]" << path + QStringLiteral(" was not started:") << why;
        return false;
    };
    if (isAddress(path) && !path.startsWith(QLatin1String("file:")))
        return openByDesktop(path) || fail(QStringLiteral("there is no xdg-open"));
    const QString file = path.startsWith(QLatin1String("file:")) ? QUrl(path).toLocalFile() : path;

    const auto all = list();
    std::optional<DesktopEntry> own;
    if (const DesktopEntry* known = all->byId(file))
        own = *known;
    else if (isEntry(file))
        own = DesktopEntry::read(file, QLocale().name());
    if (own)
        return startEntry(*own) || fail(QStringLiteral("its program is not there"));
    const QFileInfo info(file);
    if (isEntry(file) || !info.isAbsolute() || !info.exists())
        return fail(QStringLiteral("there is no such application"));
    if (info.isFile() && info.isExecutable())
        return startProgram({file}, QString()) || fail(QStringLiteral("it cannot be executed"));
    return openByDesktop(file) || fail(QStringLiteral("there is no xdg-open"));
}

void Programs::setGeometry(unsigned long pid, const QRectF& geometry)
{
    if (m_windows)
        m_windows->setGeometry(pid, geometry);
}

} // namespace services
