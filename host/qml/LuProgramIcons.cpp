// SPDX-License-Identifier: Apache-2.0
#include "LuProgramIcons.h"

#include <QDir>
#include <QFileInfo>
#include <QIcon>
#include <QImageReader>
#include <QPixmap>
#include <QStandardPaths>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize UsualSize(48, 48);
constexpr int LargestSide = 512;
const QString GenericIcon = u":/lumendesk/qml/LumenDesk/icons/app/program.svg"_s;

LuProgramIcons::Lookup& lookup()
{
    static LuProgramIcons::Lookup instance;
    return instance;
}

QPixmap fromFile(const QString& file, const QSize& size)
{
    QImageReader reader(file);
    const QSize own = reader.size();
    reader.setScaledSize(own.isEmpty() ? size : own.scaled(size, Qt::KeepAspectRatio));
    return QPixmap::fromImage(reader.read());
}

/// The folder of icons that belong to no theme.
QPixmap fromPixmaps(const QString& name, const QSize& size)
{
    for (const QString& suffix : {u".svg"_s, u".png"_s, u".xpm"_s}) {
        const QString file =
            QStandardPaths::locate(QStandardPaths::GenericDataLocation, u"pixmaps/"_s + name + suffix);
        if (!file.isEmpty())
            return fromFile(file, size);
    }
    return {};
}

QPixmap iconOf(const QString& icon, const QSize& size)
{
    if (icon.isEmpty())
        return {};
    if (QDir::isAbsolutePath(icon))
        return fromFile(icon, size);
    // A path that leads out of the folders of icons is none.
    if (icon.contains(u'/'))
        return {};
    QString name = icon;
    for (const QLatin1StringView suffix : {".png"_L1, ".svg"_L1, ".xpm"_L1}) {
        if (name.endsWith(suffix))
            name.chop(suffix.size());
    }
    // Never larger than asked for, whatever the screen: the asker counts in pixels.
    const QIcon themed = QIcon::fromTheme(name);
    const QPixmap picture = themed.isNull() ? QPixmap() : themed.pixmap(size, 1.0);
    return picture.isNull() ? fromPixmaps(name, size) : picture;
}

} // namespace

LuProgramIcons::LuProgramIcons() : QQuickImageProvider(QQuickImageProvider::Pixmap) {}

void LuProgramIcons::setLookup(Lookup wanted)
{
    lookup() = std::move(wanted);
}

QPixmap LuProgramIcons::requestPixmap(const QString& id, QSize* size, const QSize& requestedSize)
{
    const QString appId = QUrl::fromPercentEncoding(id.toUtf8());
    const QSize wanted =
        requestedSize.isEmpty() ? UsualSize : requestedSize.boundedTo(QSize(LargestSide, LargestSide));
    QPixmap picture = iconOf(lookup() ? lookup()(appId) : QString(), wanted);
    if (picture.isNull())
        picture = fromFile(GenericIcon, wanted);
    if (size)
        *size = picture.size();
    return picture;
}
