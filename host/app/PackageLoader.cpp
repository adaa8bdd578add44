// SPDX-License-Identifier: Apache-2.0
#include "PackageLoader.h"

#include <QCoreApplication>
#include <QDebug>
#include <QDir>
#include <QFile>
#include <QJsonObject>
#include <QLibrary>

#include <algorithm>
#include <cstring>
#include <elf.h>

namespace {

/// Whether every part that an ELF file (System V ABI, chapter 4) announces lies inside of it. The dynamic
/// linker maps a file that was cut short all the same, and the first access behind its end kills the process.
bool isWholeLibrary(const QString& path)
{
    QFile file(path);
    Elf64_Ehdr header;
    if (!file.open(QIODevice::ReadOnly) ||
        file.read(reinterpret_cast<char*>(&header), sizeof header) != sizeof header)
        return false;
    if (std::memcmp(header.e_ident, ELFMAG, SELFMAG) != 0 || header.e_ident[EI_CLASS] != ELFCLASS64)
        return false;
    const auto size = quint64(file.size());
    const auto inside = [size](quint64 offset, quint64 length) {
        return offset <= size && length <= size - offset;
    };
    if (!inside(header.e_shoff, quint64(header.e_shnum) * header.e_shentsize) ||
        header.e_phentsize != sizeof(Elf64_Phdr))
        return false;
    file.seek(qint64(header.e_phoff));
    for (int i = 0; i < header.e_phnum; ++i) {
        Elf64_Phdr part;
        if (file.read(reinterpret_cast<char*>(&part), sizeof part) != sizeof part ||
            !inside(part.p_offset, part.p_filesz))
            return false;
    }
    return true;
}

} // namespace

PackageLoader::PackageLoader() = default;

PackageLoader::~PackageLoader() = default;

QStringList PackageLoader::defaultFolders()
{
    QStringList folders =
        qEnvironmentVariable("LUMEN_DESK_PACKAGES").split(QDir::listSeparator(), Qt::SkipEmptyParts);
    folders.append(QCoreApplication::applicationDirPath() + QStringLiteral("/../lib/lumen-desk/packages"));
    return folders;
}

void PackageLoader::load(const QStringList& folders)
{
    for (const QString& folder : folders) {
        const QFileInfoList files = QDir(folder).entryInfoList(QDir::Files, QDir::Name);
        for (const QFileInfo& file : files) {
            if (QLibrary::isLibrary(file.fileName()))
                loadFile(file.canonicalFilePath());
        }
    }
    if (m_packages.isEmpty())
        qWarning().noquote() << "[PackageLoader] no package found in" << folders.join(QStringLiteral(", "));
}

void PackageLoader::loadFile(const QString& path)
{
    if (!isWholeLibrary(path))
        return refuse(path, QStringLiteral("it is damaged, or no library for this computer"));
    auto loader = std::make_unique<QPluginLoader>(path);
    // The metadata is read without running any of the library's code.
    const QJsonObject metaData = loader->metaData();
    if (metaData.isEmpty())
        return refuse(path, QStringLiteral("it is no plug-in of this Qt version"));
    const QString interface = metaData.value(QLatin1String("IID")).toString();
    if (interface != QLatin1String(LuPackagesInterface_iid))
        return refuse(path, QStringLiteral("it is made for \"%1\", not for \"%2\"")
                                .arg(interface, QLatin1String(LuPackagesInterface_iid)));
    // A package is named after its class. A second library of it must not even be loaded: Qt ends a process
    // that registers the types of a QML module twice.
    const QString className = metaData.value(QLatin1String("className")).toString();
    const bool known =
        std::any_of(m_packages.begin(), m_packages.end(),
                    [&className](LuPackagesInterface* other) { return other->name() == className; });
    if (known)
        return refuse(path, QStringLiteral("a package %1 is loaded already").arg(className));
    auto* package = qobject_cast<LuPackagesInterface*>(loader->instance());
    if (!package)
        return refuse(path, loader->isLoaded()
                                ? QStringLiteral("it does not offer the interface that it names")
                                : loader->errorString());
    qInfo().noquote() << "[PackageLoader] package" << package->name() << "from" << path;
    if (m_packages.isEmpty())
        m_version = QFileInfo(path).completeBaseName().section(QLatin1Char('-'), 1);
    m_packages.append(package);
    m_loaders.push_back(std::move(loader));
}

void PackageLoader::refuse(const QString& path, const QString& why)
{
    m_refusals.append(QStringLiteral("%1: %2").arg(path, why));
    qWarning().noquote() << "[PackageLoader] refused" << m_refusals.last();
}
