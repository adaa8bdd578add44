// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "JsonNumber.h"
#include "ModelDescription.h"

#include <QJsonArray>
#include <QJsonObject>

namespace sim {

/// Reads settings of a behaviour and notes the first that is missing or names a code that the model lacks.
class BehaviourSettings
{
public:
    BehaviourSettings(const QJsonObject& json, const ModelDescription& model) : m_json(json), m_model(model)
    {
    }

    int code(const char* key)
    {
        const auto number = numberFrom(m_json.value(QLatin1String(key)));
        return known(number, key) ? *number : 0;
    }

    QList<int> codeList(const char* key)
    {
        QList<int> result;
        for (const QJsonValue& entry : m_json.value(QLatin1String(key)).toArray())
            if (const auto number = numberFrom(entry); known(number, key))
                result.append(*number);
        return result;
    }

    /// A code that only some of the models have; 0 without it.
    int codeIfAny(const char* key) const
    {
        const auto number = numberFrom(m_json.value(QLatin1String(key)));
        return number && m_model.codes.contains(*number) ? *number : 0;
    }

    int integer(const char* key)
    {
        const auto number = numberFrom(m_json.value(QLatin1String(key)));
        if (!number)
            note(QStringLiteral("\"%1\" is not a number").arg(QLatin1String(key)));
        return number.value_or(0);
    }

    QMap<int, int> table(const char* key)
    {
        QMap<int, int> result;
        const QJsonObject object = m_json.value(QLatin1String(key)).toObject();
        for (auto it = object.begin(); it != object.end(); ++it) {
            const auto from = numberFrom(it.key());
            const auto to = numberFrom(it.value());
            if (from && to)
                result.insert(*from, *to);
            else
                note(QStringLiteral("\"%1\" has a wrong entry \"%2\"").arg(QLatin1String(key), it.key()));
        }
        return result;
    }

    QString text(const char* key) const { return m_json.value(QLatin1String(key)).toString(); }
    const ModelDescription& model() const { return m_model; }

    void note(const QString& message)
    {
        if (m_error.isEmpty())
            m_error = message;
    }
    QString error() const { return m_error; }

private:
    bool known(std::optional<int> number, const char* key)
    {
        if (number && m_model.codes.contains(*number))
            return true;
        note(QStringLiteral("\"%1\" does not name a code of the model").arg(QLatin1String(key)));
        return false;
    }

    const QJsonObject& m_json;
    const ModelDescription& m_model;
    QString m_error;
};

} // namespace sim
