// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "ZrCore/ZrCoreGlobal.h"

#include <QByteArray>
#include <QJsonValue>
#include <QString>
#include <QUrl>

/// Text and file utilities. All operations are static and thread safe.
class ZRCORE_EXPORT ZrS
{
public:
    ZrS() = delete;

    /// How a configuration value is stored. This keeps a value from being read in passing, and is no
    /// protection: who has the file has the value. Secrets do not belong there.
    enum CipherType {
        NoCipher = 0,     ///< As it is.
        Base64Cipher = 1, ///< Base64 (RFC 4648), with or without padding.
    };

    /// Creates the folder @p path with its parents. True if it exists afterwards; false, with a warning in
    /// the log, if it cannot be made or is empty.
    static bool makePath(const QString& path);
    /// A new unique identifier: 36 characters in lower case, without braces.
    static QString makeUuid();

    /// @p relative as a location below @p base, or below the application's data folder if @p base is empty. A
    /// relative that is a full address or an absolute path stays what it is.
    static QUrl resolveUrl(const QString& relative, const QUrl& base = QUrl());
    /// The local path of a file address, a ":/" path of a "qrc" address, the path itself where there is no
    /// scheme; empty for any other scheme.
    static QString resolveLocalFile(const QUrl& url);

    /// A whole number, or text that is one, within the range of int; otherwise @p fallback.
    static int optInt(const QJsonValue& value, int fallback = 0);
    /// Text; otherwise @p fallback.
    static QString optString(const QJsonValue& value, const QString& fallback = QString());

    /// @p data in the clear. Empty, with a warning in the log, if it is not valid for @p type or the type is
    /// unknown.
    static QByteArray decryptData(CipherType type, const QByteArray& data);

    /// The application's data folder. Until it is set, the platform's usual one.
    static QString dataPath();
    /// Sets the data folder; empty goes back to the platform's. Called by the host before it loads packages.
    static void setDataPath(const QString& path);
};
