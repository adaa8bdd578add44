// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>
#include <QStringList>

#include <optional>

namespace services {

/// An application as its desktop entry describes it (freedesktop.org, Desktop Entry 1.5).
struct DesktopEntry
{
    QString id;   ///< Name of its file below "applications", such as "org.gnome.Terminal.desktop".
    QString file; ///< Absolute path.
    QString name; ///< In the person's language.
    QString icon; ///< Name in the icon theme, or absolute path.
    QString exec; ///< Command line as written.
    QString workingDirectory;
    QString windowClass; ///< WM_CLASS of its windows, where it differs from the id.
    bool terminal = false;
    bool hidden = false; ///< Not shown in menus.

    bool operator==(const DesktopEntry&) const = default;

    /// Reads an entry of an application. Nothing for another kind, a deleted one, or a file that is none.
    /// @param locale such as "de_AT".
    static std::optional<DesktopEntry> read(const QString& file, const QString& locale);

    /// Program and arguments of the command line without files to open; empty if it is damaged. No shell is
    /// involved: quotes and field codes are taken as that standard says.
    QStringList command() const;

    /// Absolute path of the program, symbolic links followed; empty if it is not installed.
    QString program() const;
};

/// Absolute path of a program that is named or given by its path, links followed; empty if there is none.
QString resolvedProgram(const QString& program);

} // namespace services
