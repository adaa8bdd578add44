// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QJsonValue>
#include <QMetaType>
#include <QString>
#include <QVariant>

#include <optional>

namespace control {

/// A value of one of Qt's own types that need no knowledge of objects: numbers, text, geometry, time,
/// colours, JSON. Nothing if @p type is none of them; throws as refuseValue() does for JSON that does not
/// fit.
std::optional<QVariant> readPlain(const QJsonValue& json, QMetaType type, const QString& what);

/// Throws RequestError (WrongValue): @p what must be @p wanted, not what @p json is.
[[noreturn]] void refuseValue(const QString& what, const QJsonValue& json, const QString& wanted);

} // namespace control
