// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "DesktopEntry.h"

#include <QHash>
#include <QList>

namespace services {

/// The applications that are installed, by what they are known by. Immutable once it is read, so that any
/// thread may ask it.
class ApplicationList
{
public:
    /// Reads "applications" below each data folder; an entry of an earlier one hides those of the same id in
    /// later ones. Blocks.
    static ApplicationList read(const QStringList& dataFolders, const QString& locale);

    const QList<DesktopEntry>& entries() const { return m_entries; }

    /// Null if there is none.
    const DesktopEntry* byId(const QString& id) const;
    const DesktopEntry* byFile(const QString& file) const;
    /// By the program that it starts, links followed. Of several the one whose command line is nothing but
    /// the program.
    const DesktopEntry* byProgram(const QString& program) const;
    /// By a name that a window gives its application.
    const DesktopEntry* byWindowClass(const QString& name) const;

private:
    void add(DesktopEntry entry);

    QList<DesktopEntry> m_entries;
    QHash<QString, qsizetype> m_byId;
    QHash<QString, qsizetype> m_byFile;
    QHash<QString, qsizetype> m_byProgram;
    QHash<QString, qsizetype> m_byClass;
};

} // namespace services
