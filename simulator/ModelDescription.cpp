// SPDX-License-Identifier: Apache-2.0
#include "ModelDescription.h"

#include "Behaviour.h"
#include "JsonNumber.h"

#include <QJsonArray>

#include <algorithm>
#include <utility>

namespace sim {

namespace {

constexpr int HighestCode = 0xFF;
constexpr int HighestValue = 0xFFFF;

struct TypeName
{
    const char* name;
    CodeDescription::Type type;
};
constexpr TypeName TypeNames[] = {
    {"continuous", CodeDescription::Type::Continuous}, {"list", CodeDescription::Type::List},
    {"packed", CodeDescription::Type::Packed},         {"readOnly", CodeDescription::Type::ReadOnly},
    {"command", CodeDescription::Type::Command},
};

/// Reads a description step by step and keeps the first thing that was wrong.
class Reader
{
public:
    explicit Reader(ModelDescription* out) : m_out(out) {}

    QString error;

    bool read(const QJsonObject& json)
    {
        m_out->name = json.value(QLatin1String("model")).toString();
        if (m_out->name.isEmpty())
            return fail(QStringLiteral("\"model\" is missing"));
        m_out->builtIn = json.value(QLatin1String("builtIn")).toBool(false);
        m_out->hasDdcCi = json.value(QLatin1String("ddcCi")).toBool(true);
        return integer(json, "productCode", 0, HighestValue, &m_out->productCode) &&
               panel(json.value(QLatin1String("panel")).toObject()) &&
               integer(json, "modeCode", 0, HighestCode, &m_out->modeCode) && modes(json) && codes(json) &&
               waits(json, "busy", &m_out->busy) && waits(json, "drops", &m_out->drops) && modeValues(json) &&
               behaviours(json);
    }

private:
    bool fail(const QString& message)
    {
        error = message;
        return false;
    }

    bool integer(const QJsonObject& json, const char* key, int low, int high, int* out)
    {
        const QJsonValue value = json.value(QLatin1String(key));
        if (value.isUndefined())
            return true;
        const auto number = numberFrom(value);
        if (!number || *number < low || *number > high)
            return fail(QStringLiteral("\"%1\" is not a number from %2 to %3")
                            .arg(QLatin1String(key))
                            .arg(low)
                            .arg(high));
        *out = *number;
        return true;
    }

    bool panel(const QJsonObject& json)
    {
        Panel& p = m_out->panel;
        return integer(json, "width", 640, 4095, &p.width) && integer(json, "height", 480, 4095, &p.height) &&
               integer(json, "refresh", 24, 255, &p.refresh) &&
               integer(json, "widthMm", 1, 4095, &p.widthMm) &&
               integer(json, "heightMm", 1, 4095, &p.heightMm);
    }

    bool modes(const QJsonObject& json)
    {
        for (const QJsonValue& entry : json.value(QLatin1String("modes")).toArray()) {
            const QJsonObject object = entry.toObject();
            ColorMode mode;
            mode.name = object.value(QLatin1String("name")).toString();
            if (mode.name.isEmpty())
                return fail(QStringLiteral("a colour mode has no \"name\""));
            mode.code = -1;
            if (!integer(object, "code", 0, HighestCode, &mode.code) || mode.code < 0)
                return fail(QStringLiteral("colour mode \"%1\" has no valid \"code\"").arg(mode.name));
            if (m_out->mode(mode.code))
                return fail(QStringLiteral("two colour modes have the code %1").arg(codeName(mode.code)));
            m_out->modes.append(mode);
        }
        if (m_out->modeCode && m_out->modes.isEmpty())
            return fail(QStringLiteral("\"modeCode\" without \"modes\""));
        return true;
    }

    bool codes(const QJsonObject& json)
    {
        const QJsonObject object = json.value(QLatin1String("codes")).toObject();
        for (auto it = object.begin(); it != object.end(); ++it) {
            const auto code = numberFrom(it.key());
            if (!code || *code < 1 || *code > HighestCode)
                return fail(QStringLiteral("\"%1\" is not a VCP code").arg(it.key()));
            CodeDescription description;
            if (!oneCode(*code, it.value().toObject(), &description))
                return fail(QStringLiteral("code %1: %2").arg(it.key(), error));
            m_out->codes.insert(*code, description);
        }
        if (m_out->modeCode && !m_out->codes.contains(m_out->modeCode))
            return fail(
                QStringLiteral("the mode code %1 is not among the codes").arg(codeName(m_out->modeCode)));
        if (m_out->modeCode && m_out->codes.value(m_out->modeCode).perMode)
            return fail(QStringLiteral("the mode code %1 cannot have a value per mode")
                            .arg(codeName(m_out->modeCode)));
        return true;
    }

    bool oneCode(int code, const QJsonObject& json, CodeDescription* out)
    {
        out->name = json.value(QLatin1String("name")).toString();
        const QString type = json.value(QLatin1String("type")).toString();
        const auto found = std::find_if(std::begin(TypeNames), std::end(TypeNames),
                                        [&](const TypeName& row) { return type == QLatin1String(row.name); });
        if (found == std::end(TypeNames))
            return fail(QStringLiteral("unknown type \"%1\"").arg(type));
        out->type = found->type;
        out->perMode = json.value(QLatin1String("perMode")).toBool(false);
        out->transient = json.value(QLatin1String("transient")).toBool(false);
        if (!ranges(json, "values", &out->values) || !ranges(json, "alsoTaken", &out->alsoTaken) ||
            !fields(json, out) || !instances(json, out))
            return false;
        if (code == m_out->modeCode)
            for (const ColorMode& mode : std::as_const(m_out->modes))
                out->values.append({mode.code, mode.code});
        out->maximum = defaultMaximum(*out);
        if (!integer(json, "maximum", 0, HighestValue, &out->maximum) ||
            !integer(json, "factory", 0, HighestValue, &out->factory))
            return false;
        if (out->type == CodeDescription::Type::Continuous && !json.contains(QLatin1String("maximum")))
            return fail(QStringLiteral("a continuous code needs a \"maximum\""));
        if (out->type == CodeDescription::Type::Continuous && out->factory > out->maximum)
            return fail(QStringLiteral("the factory value is above the maximum"));
        if (out->type == CodeDescription::Type::List && out->values.isEmpty())
            return fail(QStringLiteral("a list needs \"values\""));
        if (out->type == CodeDescription::Type::List && !includes(out->values, out->factory))
            return fail(QStringLiteral("the factory value is not in the list"));
        if (out->type == CodeDescription::Type::Packed && out->fields.isEmpty())
            return fail(QStringLiteral("a packed code needs \"fields\""));
        return true;
    }

    static bool includes(const QList<ValueRange>& list, int value)
    {
        return std::any_of(list.begin(), list.end(),
                           [&](const ValueRange& r) { return value >= r.from && value <= r.to; });
    }

    static int defaultMaximum(const CodeDescription& description)
    {
        if (description.type == CodeDescription::Type::Packed)
            return HighestValue;
        int maximum = description.type == CodeDescription::Type::Command ? 1 : 0;
        for (const ValueRange& range : description.values)
            maximum = std::max(maximum, range.to);
        return maximum;
    }

    bool ranges(const QJsonObject& json, const char* key, QList<ValueRange>* out)
    {
        for (const QJsonValue& entry : json.value(QLatin1String(key)).toArray()) {
            if (entry == QJsonValue(QStringLiteral("modes"))) {
                for (const ColorMode& mode : std::as_const(m_out->modes))
                    out->append({mode.code, mode.code});
                continue;
            }
            const QString text = entry.toString();
            const qsizetype dots = text.indexOf(QLatin1String(".."));
            const auto from = dots < 0 ? numberFrom(entry) : numberFrom(text.left(dots));
            const auto to = dots < 0 ? from : numberFrom(text.mid(dots + 2));
            if (!from || !to || *from < 0 || *from > *to || *to > HighestValue)
                return fail(
                    QStringLiteral("\"%1\" holds something that is no value").arg(QLatin1String(key)));
            out->append({*from, *to});
        }
        return true;
    }

    bool fields(const QJsonObject& json, CodeDescription* out)
    {
        for (const QJsonValue& entry : json.value(QLatin1String("fields")).toArray()) {
            const QJsonObject object = entry.toObject();
            PackedField field;
            if (!integer(object, "shift", 0, 15, &field.shift) ||
                !integer(object, "mask", 1, HighestCode, &field.mask) ||
                !ranges(object, "values", &field.values))
                return false;
            out->fields.append(field);
        }
        return true;
    }

    bool instances(const QJsonObject& json, CodeDescription* out)
    {
        for (const QJsonValue& entry : json.value(QLatin1String("instances")).toArray()) {
            const auto number = numberFrom(entry);
            if (!number || *number < 1 || *number > HighestValue)
                return fail(QStringLiteral("\"instances\" holds something that is no number"));
            out->instances.append(*number);
        }
        return true;
    }

    /// Milliseconds by code.
    bool waits(const QJsonObject& model, const char* key, QMap<int, int>* out)
    {
        const QJsonObject json = model.value(QLatin1String(key)).toObject();
        for (auto it = json.begin(); it != json.end(); ++it) {
            const auto code = numberFrom(it.key());
            const auto wait = numberFrom(it.value());
            if (!code || !m_out->codes.contains(*code) || !wait || *wait < 0 || *wait > 60'000)
                return fail(
                    QStringLiteral("\"%1\" has a wrong entry \"%2\"").arg(QLatin1String(key), it.key()));
            out->insert(*code, *wait);
        }
        return true;
    }

    bool modeValues(const QJsonObject& json)
    {
        const QJsonObject defaults = json.value(QLatin1String("modeDefaults")).toObject();
        const QJsonArray own = json.value(QLatin1String("modes")).toArray();
        for (qsizetype i = 0; i < m_out->modes.size(); ++i) {
            ColorMode& mode = m_out->modes[i];
            if (!addModeValues(defaults.value(mode.name).toObject(), &mode) ||
                !addModeValues(own.at(i).toObject(), &mode))
                return fail(QStringLiteral("colour mode \"%1\": %2").arg(mode.name, error));
        }
        return true;
    }

    bool addModeValues(const QJsonObject& json, ColorMode* mode)
    {
        const QJsonObject values = json.value(QLatin1String("values")).toObject();
        for (auto it = values.begin(); it != values.end(); ++it) {
            const auto code = numberFrom(it.key());
            const auto value = numberFrom(it.value());
            if (!code || !m_out->codes.value(*code).perMode || !value || *value < 0 || *value > HighestValue)
                return fail(QStringLiteral("\"values\" has a wrong entry \"%1\"").arg(it.key()));
            mode->values.insert(*code, *value);
        }
        for (const QJsonValue& entry : json.value(QLatin1String("fixed")).toArray()) {
            const auto code = numberFrom(entry);
            if (!code || !m_out->codes.contains(*code))
                return fail(QStringLiteral("\"fixed\" names a code that the model lacks"));
            mode->fixed.append(*code);
        }
        return true;
    }

    bool behaviours(const QJsonObject& json)
    {
        for (const QJsonValue& entry : json.value(QLatin1String("behaviours")).toArray()) {
            const QJsonObject object = entry.toObject();
            const BehaviourDescription description{object.value(QLatin1String("name")).toString(), object};
            QString reason;
            if (!makeBehaviour(description, *m_out, &reason))
                return fail(reason);
            m_out->behaviours.append(description);
        }
        return true;
    }

    ModelDescription* m_out;
};

} // namespace

const ColorMode* ModelDescription::mode(int code) const
{
    const auto found =
        std::find_if(modes.begin(), modes.end(), [&](const ColorMode& m) { return m.code == code; });
    return found == modes.end() ? nullptr : &*found;
}

std::optional<ModelDescription> ModelDescription::fromJson(const QJsonObject& json, QString* error)
{
    ModelDescription description;
    Reader reader(&description);
    if (reader.read(json))
        return description;
    if (error)
        *error = reader.error;
    return std::nullopt;
}

} // namespace sim
