// SPDX-License-Identifier: Apache-2.0
#include "ApplicationList.h"

#include <QDirIterator>
#include <QFileInfo>
#include <QSet>

namespace services {

namespace {

const QString Suffix = QStringLiteral(".desktop");

/// What starts other programs says nothing of the application.
bool isLauncher(const QString& program)
{
    static const QSet<QString> launchers = {
        QStringLiteral("env"),          QStringLiteral("sh"),      QStringLiteral("bash"),
        QStringLiteral("dash"),         QStringLiteral("flatpak"), QStringLiteral("snap"),
        QStringLiteral("gapplication"), QStringLiteral("python3"), QStringLiteral("perl"),
        QStringLiteral("java"),         QStringLiteral("gjs"),     QStringLiteral("xdg-open"),
        QStringLiteral("pkexec"),       QStringLiteral("node"),
    };
    const QString name = QFileInfo(program).fileName();
    return launchers.contains(name) || name.startsWith(QLatin1String("python3."));
}

} // namespace

ApplicationList ApplicationList::read(const QStringList& dataFolders, const QString& locale)
{
    ApplicationList list;
    QSet<QString> met;
    for (const QString& folder : dataFolders) {
        const QString root = folder + QStringLiteral("/applications");
        QStringList files;
        QDirIterator iterator(root, {u'*' + Suffix}, QDir::Files,
                              QDirIterator::Subdirectories | QDirIterator::FollowSymlinks);
        while (iterator.hasNext())
            files.append(iterator.next());
        files.sort(); // the order in the folder is by chance
        for (const QString& file : std::as_const(files)) {
            // A folder is part of the id: "kde/konsole.desktop" is "kde-konsole.desktop".
            const QString id = file.mid(root.size() + 1).replace(u'/', u'-');
            if (met.contains(id))
                continue;
            met.insert(id); // one that is deleted hides the others, too
            if (std::optional<DesktopEntry> entry = DesktopEntry::read(file, locale)) {
                entry->id = id;
                list.add(std::move(*entry));
            }
        }
    }
    return list;
}

void ApplicationList::add(DesktopEntry entry)
{
    const qsizetype index = m_entries.size();
    m_byId.insert(entry.id, index);
    m_byFile.insert(QFileInfo(entry.file).canonicalFilePath(), index);
    const QString stem = entry.id.chopped(Suffix.size());
    for (const QString& name : {entry.windowClass, stem, stem.section(u'.', -1)}) {
        if (!name.isEmpty() && !m_byClass.contains(name.toLower()))
            m_byClass.insert(name.toLower(), index);
    }
    const QString program = entry.program();
    if (!program.isEmpty() && !isLauncher(program)) {
        const auto known = m_byProgram.constFind(program);
        const auto isPlainer = [](const DesktopEntry& a, const DesktopEntry& b) {
            return std::pair(a.hidden, a.command().size()) < std::pair(b.hidden, b.command().size());
        };
        if (known == m_byProgram.constEnd() || isPlainer(entry, m_entries[*known]))
            m_byProgram.insert(program, index);
    }
    m_entries.append(std::move(entry));
}

const DesktopEntry* ApplicationList::byId(const QString& id) const
{
    const auto found = m_byId.constFind(id);
    return found == m_byId.constEnd() ? nullptr : &m_entries[*found];
}

const DesktopEntry* ApplicationList::byFile(const QString& file) const
{
    const auto found = m_byFile.constFind(QFileInfo(file).canonicalFilePath());
    return found == m_byFile.constEnd() ? nullptr : &m_entries[*found];
}

const DesktopEntry* ApplicationList::byProgram(const QString& program) const
{
    const auto found = m_byProgram.constFind(program);
    return found == m_byProgram.constEnd() ? nullptr : &m_entries[*found];
}

const DesktopEntry* ApplicationList::byWindowClass(const QString& name) const
{
    const auto found = m_byClass.constFind(name.toLower());
    return found == m_byClass.constEnd() ? nullptr : &m_entries[*found];
}

} // namespace services
