// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>
#include <QDBusArgument>
#include <QIcon>
#include <QList>
#include <QString>
#include <QVariant>

/// A picture as the tray protocol carries it: 32-bit ARGB in network byte order.
struct TrayImage
{
    int width = 0;
    int height = 0;
    QByteArray data;
};
using TrayImages = QList<TrayImage>;

/// What a desktop shows while the pointer rests on the icon.
struct TrayToolTip
{
    QString icon;
    TrayImages images;
    QString title;
    QString text;
};

/// One entry of a menu with those below it, as the menu protocol carries it.
struct TrayLayout
{
    int id = 0;
    QVariantMap properties;
    QVariantList children;
};

/// The properties of one entry.
struct TrayProperties
{
    int id = 0;
    QVariantMap properties;
};
using TrayPropertiesList = QList<TrayProperties>;

Q_DECLARE_METATYPE(TrayImage)
Q_DECLARE_METATYPE(TrayImages)
Q_DECLARE_METATYPE(TrayToolTip)
Q_DECLARE_METATYPE(TrayLayout)
Q_DECLARE_METATYPE(TrayProperties)
Q_DECLARE_METATYPE(TrayPropertiesList)

QDBusArgument& operator<<(QDBusArgument& argument, const TrayImage& image);
const QDBusArgument& operator>>(const QDBusArgument& argument, TrayImage& image);
QDBusArgument& operator<<(QDBusArgument& argument, const TrayToolTip& toolTip);
const QDBusArgument& operator>>(const QDBusArgument& argument, TrayToolTip& toolTip);
QDBusArgument& operator<<(QDBusArgument& argument, const TrayLayout& layout);
const QDBusArgument& operator>>(const QDBusArgument& argument, TrayLayout& layout);
QDBusArgument& operator<<(QDBusArgument& argument, const TrayProperties& properties);
const QDBusArgument& operator>>(const QDBusArgument& argument, TrayProperties& properties);

/// Makes the types known to D-Bus; may be called again.
void registerTrayTypes();

/// The pictures of an icon in the sizes that trays use.
TrayImages trayImages(const QIcon& icon);
