// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <LuShared/LuPackagesInterface.h>

#include <QPluginLoader>
#include <QString>
#include <QStringList>

#include <memory>
#include <vector>

/// Finds and loads feature packages. A library that is broken or no package is refused with a message in the
/// log, and the others are loaded all the same. GUI thread.
class PackageLoader
{
public:
    PackageLoader();
    ~PackageLoader();

    /// Folders in which packages are installed: those of the environment variable LUMEN_DESK_PACKAGES, then
    /// the one that belongs to the program.
    static QStringList defaultFolders();

    /// Loads every package of the folders, in the order of the folders and of the file names. A package of a
    /// name that is loaded already is refused.
    void load(const QStringList& folders);

    /// The loaded packages in the order of loading; they stay loaded as long as the process runs.
    QList<LuPackagesInterface*> packages() const { return m_packages; }

    /// Version of the first package, as its file name carries it; empty without one.
    QString version() const { return m_version; }

    /// A line for each library that was refused: its path and why.
    QStringList refusals() const { return m_refusals; }

private:
    void loadFile(const QString& path);
    void refuse(const QString& path, const QString& why);

    std::vector<std::unique_ptr<QPluginLoader>> m_loaders;
    QList<LuPackagesInterface*> m_packages;
    QStringList m_refusals;
    QString m_version;
};
