// SPDX-License-Identifier: Apache-2.0
#include "Parameters.h"

#include "RequestError.h"

#include <cmath>

using namespace Qt::StringLiterals;

namespace control {

namespace {

[[noreturn]] void wrong(const QString& name, const QString& wanted)
{
    throw RequestError(InvalidParameters, u"parameter \"%1\" must be %2"_s.arg(name, wanted));
}

void checkRange(const QString& name, qint64 number, qint64 from, qint64 to)
{
    if (number >= from && number <= to)
        return;
    if (to == std::numeric_limits<qint64>::max())
        wrong(name, u"%1 or more"_s.arg(from));
    wrong(name, u"from %1 to %2"_s.arg(from).arg(to));
}

} // namespace

std::optional<qint64> wholeNumber(const QJsonValue& value)
{
    if (!value.isDouble())
        return std::nullopt;
    // A value that is no whole number gives the default, whatever that is.
    const qint64 number = value.toInteger(0);
    if (number == 0 && value.toInteger(1) == 1)
        return std::nullopt;
    return number;
}

QJsonValue Parameters::value(const QString& name) const
{
    const auto found = m_object.constFind(name);
    if (found == m_object.constEnd())
        throw RequestError(InvalidParameters, u"parameter \"%1\" is missing"_s.arg(name));
    return *found;
}

QString Parameters::text(const QString& name) const
{
    const QJsonValue found = value(name);
    if (!found.isString())
        wrong(name, u"a string"_s);
    return found.toString();
}

std::optional<QString> Parameters::optionalText(const QString& name) const
{
    return contains(name) ? std::optional(text(name)) : std::nullopt;
}

qint64 Parameters::integer(const QString& name, qint64 from, qint64 to) const
{
    const std::optional<qint64> number = wholeNumber(value(name));
    if (!number)
        wrong(name, u"a whole number"_s);
    checkRange(name, *number, from, to);
    return *number;
}

std::optional<qint64> Parameters::optionalInteger(const QString& name, qint64 from, qint64 to) const
{
    return contains(name) ? std::optional(integer(name, from, to)) : std::nullopt;
}

double Parameters::number(const QString& name, double from, double to) const
{
    const QJsonValue found = value(name);
    if (!found.isDouble() || !(found.toDouble() >= from && found.toDouble() <= to))
        wrong(name, u"a number from %1 to %2"_s.arg(from).arg(to));
    return found.toDouble();
}

QJsonArray Parameters::array(const QString& name) const
{
    const QJsonValue found = value(name);
    if (!found.isArray())
        wrong(name, u"a list"_s);
    return found.toArray();
}

QJsonObject Parameters::object(const QString& name) const
{
    const QJsonValue found = value(name);
    if (!found.isObject())
        wrong(name, u"an object"_s);
    return found.toObject();
}

QStringList Parameters::texts(const QString& name) const
{
    QStringList result;
    const QJsonArray list = array(name);
    for (const QJsonValue& entry : list) {
        if (!entry.isString())
            wrong(name, u"a list of strings"_s);
        result.append(entry.toString());
    }
    return result;
}

qint64 Parameters::code(const QString& name, qint64 from, qint64 to) const
{
    const QJsonValue found = value(name);
    if (!found.isString())
        return integer(name, from, to);
    const QString text = found.toString();
    bool ok = false;
    const qint64 number = text.startsWith("0x"_L1, Qt::CaseInsensitive) ? text.mid(2).toLongLong(&ok, 16)
                                                                        : text.toLongLong(&ok, 10);
    if (!ok)
        wrong(name, u"a whole number, or text that is one"_s);
    checkRange(name, number, from, to);
    return number;
}

void Parameters::refuseOthersThan(const QStringList& names) const
{
    for (auto entry = m_object.constBegin(); entry != m_object.constEnd(); ++entry) {
        if (!names.contains(entry.key()))
            throw RequestError(InvalidParameters, u"unknown parameter \"%1\""_s.arg(entry.key()));
    }
}

} // namespace control
