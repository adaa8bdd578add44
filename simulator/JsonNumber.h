// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QJsonValue>
#include <QString>

#include <cmath>
#include <optional>

namespace sim {

/// Reads a whole number from JSON, written as number or as text in decimal or "0x" form.
inline std::optional<int> numberFrom(const QString& text)
{
    bool ok = false;
    const QString trimmed = text.trimmed();
    const bool hex = trimmed.startsWith(QLatin1String("0x"), Qt::CaseInsensitive);
    const int number = hex ? trimmed.mid(2).toInt(&ok, 16) : trimmed.toInt(&ok, 10);
    return ok ? std::optional<int>(number) : std::nullopt;
}

inline std::optional<int> numberFrom(const QJsonValue& value)
{
    if (value.isString())
        return numberFrom(value.toString());
    if (!value.isDouble())
        return std::nullopt;
    const double number = value.toDouble();
    if (number != std::floor(number) || std::abs(number) > 1e9)
        return std::nullopt;
    return static_cast<int>(number);
}

/// "0x0A": the form in which messages and files name a VCP code.
inline QString codeName(int code)
{
    return QStringLiteral("0x%1").arg(QString::number(code, 16).toUpper(), 2, QLatin1Char('0'));
}

} // namespace sim
