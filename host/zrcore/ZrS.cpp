// SPDX-License-Identifier: Apache-2.0
#include "ZrCore/ZrS.h"

#include <QDebug>
#include <QDir>
#include <QStandardPaths>
#include <QUuid>

#include <cmath>
#include <limits>
#include <mutex>

namespace {

std::mutex g_mutex;

QString& chosenDataPath()
{
    static auto* const path = new QString;
    return *path;
}

} // namespace

bool ZrS::makePath(const QString& path)
{
    if (!path.isEmpty() && QDir().mkpath(path))
        return true;
    qWarning().noquote() << "[ZrS] cannot make the folder"
                         << (path.isEmpty() ? QStringLiteral("(no name)") : path);
    return false;
}

QString ZrS::makeUuid()
{
    return QUuid::createUuid().toString(QUuid::WithoutBraces);
}

QUrl ZrS::resolveUrl(const QString& relative, const QUrl& base)
{
    if (QDir::isAbsolutePath(relative) && !relative.startsWith(u':'))
        return QUrl::fromLocalFile(relative);
    if (relative.startsWith(QStringLiteral(":/")))
        return QUrl(QStringLiteral("qrc") + relative);
    const QUrl address(relative);
    if (!address.isRelative())
        return address;
    // A base names a folder, with or without a slash at its end.
    QUrl folder = base.isEmpty() ? QUrl::fromLocalFile(dataPath()) : base;
    if (!folder.path().endsWith(u'/'))
        folder.setPath(folder.path() + u'/');
    QUrl path;
    path.setPath(relative);
    return folder.resolved(path);
}

QString ZrS::resolveLocalFile(const QUrl& url)
{
    if (url.isLocalFile())
        return url.toLocalFile();
    if (url.scheme() == QStringLiteral("qrc"))
        return u':' + url.path();
    return url.scheme().isEmpty() ? url.path() : QString();
}

int ZrS::optInt(const QJsonValue& value, int fallback)
{
    if (value.isString()) {
        bool ok = false;
        const int number = value.toString().trimmed().toInt(&ok);
        return ok ? number : fallback;
    }
    const double number = value.toDouble(std::numeric_limits<double>::quiet_NaN());
    if (std::trunc(number) != number || number < std::numeric_limits<int>::min() ||
        number > std::numeric_limits<int>::max())
        return fallback;
    return static_cast<int>(number);
}

QString ZrS::optString(const QJsonValue& value, const QString& fallback)
{
    return value.isString() ? value.toString() : fallback;
}

QByteArray ZrS::decryptData(CipherType type, const QByteArray& data)
{
    switch (type) {
    case NoCipher:
        return data;
    case Base64Cipher: {
        const auto result =
            QByteArray::fromBase64Encoding(data.trimmed(), QByteArray::AbortOnBase64DecodingErrors);
        if (result)
            return *result;
        qWarning() << "[ZrS] a configuration value is no valid Base64";
        return QByteArray();
    }
    }
    qWarning() << "[ZrS] unknown cipher" << static_cast<int>(type);
    return QByteArray();
}

QString ZrS::dataPath()
{
    {
        const std::lock_guard lock(g_mutex);
        if (!chosenDataPath().isEmpty())
            return chosenDataPath();
    }
    return QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
}

void ZrS::setDataPath(const QString& path)
{
    const std::lock_guard lock(g_mutex);
    chosenDataPath() = path.isEmpty() ? QString() : QDir(path).absolutePath();
}
