// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QString>
#include <QStringList>

#include <limits>
#include <optional>

namespace control {

/// The named parameters of a request. A parameter that is missing or of another type throws InvalidParameters
/// with a message that names it; the optional forms give nothing where it is missing.
class Parameters
{
public:
    Parameters() = default;
    explicit Parameters(QJsonObject object) : m_object(std::move(object)) {}

    bool contains(const QString& name) const { return m_object.contains(name); }
    /// Any value, null too.
    QJsonValue value(const QString& name) const;

    QString text(const QString& name) const;
    std::optional<QString> optionalText(const QString& name) const;
    /// A whole number in the given range, both ends included.
    qint64 integer(const QString& name, qint64 from = std::numeric_limits<qint64>::min(),
                   qint64 to = std::numeric_limits<qint64>::max()) const;
    std::optional<qint64> optionalInteger(const QString& name,
                                          qint64 from = std::numeric_limits<qint64>::min(),
                                          qint64 to = std::numeric_limits<qint64>::max()) const;
    double number(const QString& name, double from, double to) const;
    QJsonArray array(const QString& name) const;
    QJsonObject object(const QString& name) const;
    /// A list of strings.
    QStringList texts(const QString& name) const;

    /// A whole number, or text that is one: decimal, or hexadecimal behind "0x".
    qint64 code(const QString& name, qint64 from, qint64 to) const;

    /// Throws if there is a parameter whose name is not in @p names.
    void refuseOthersThan(const QStringList& names) const;

private:
    QJsonObject m_object;
};

/// The whole number that a JSON value is; nothing for any other value, 1.5 included.
std::optional<qint64> wholeNumber(const QJsonValue& value);

} // namespace control
