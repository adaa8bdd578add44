// SPDX-License-Identifier: Apache-2.0
#include "Behaviour.h"

#include "Firmware.h"
#include "JsonNumber.h"

#include <QJsonArray>

#include <cmath>

namespace sim {

std::optional<int> Behaviour::selected(const Firmware&, int) const
{
    return std::nullopt;
}

Behaviour::Verdict Behaviour::beforeSet(Firmware&, int, int)
{
    return Verdict::Pass;
}

int Behaviour::shift(const Firmware&, int) const
{
    return 0;
}

int Behaviour::light(const Firmware&, int light) const
{
    return light;
}

void Behaviour::powerUp() {}

namespace {

/// Reads settings of a behaviour and notes the first that is missing or names a code that the model lacks.
class Settings
{
public:
    Settings(const QJsonObject& json, const ModelDescription& model) : m_json(json), m_model(model) {}

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

/// The gains of a colour temperature that is not the user's are the factory's business.
class UserGains : public Behaviour
{
public:
    explicit UserGains(Settings& s)
        : m_temperature(s.code("temperature")), m_user(s.integer("user")), m_gains(s.codeList("gains"))
    {
    }

    Verdict beforeSet(Firmware& firmware, int code, int) override
    {
        return m_gains.contains(code) && firmware.stored(m_temperature) != m_user ? Verdict::Ignore
                                                                                  : Verdict::Pass;
    }

private:
    int m_temperature;
    int m_user;
    QList<int> m_gains;
};

/// The "restore factory" commands of MCCS.
class Restore : public Behaviour
{
public:
    explicit Restore(Settings& s)
        : m_code(s.code("code")), m_scope(s.text("scope")), m_codes(s.codeList("codes"))
    {
        if (m_scope != QLatin1String("all") && m_scope != QLatin1String("mode") &&
            m_scope != QLatin1String("codes"))
            s.note(QStringLiteral("unknown scope \"%1\"").arg(m_scope));
    }

    Verdict beforeSet(Firmware& firmware, int code, int value) override
    {
        if (code != m_code)
            return Verdict::Pass;
        if (value == 0)
            return Verdict::Ignore;
        if (m_scope == QLatin1String("all"))
            firmware.restoreAll();
        else if (m_scope == QLatin1String("mode"))
            firmware.restoreMode();
        for (int restored : m_codes)
            firmware.restoreCode(restored);
        return Verdict::Done;
    }

private:
    int m_code;
    QString m_scope;
    QList<int> m_codes;
};

/// Several windows share one source code; a swap exchanges the main picture with the first of them.
class Windows : public Behaviour
{
public:
    explicit Windows(Settings& s)
        : m_select(s.code("select")), m_source(s.code("source")), m_layout(s.code("layout")),
          m_swap(s.code("swap")), m_main(s.code("main")), m_windows(s.model().codes.value(m_source).instances)
    {
        if (m_windows.isEmpty())
            s.note(QStringLiteral("the source code needs \"instances\""));
    }

    std::optional<int> selected(const Firmware& firmware, int code) const override
    {
        if (code != m_source)
            return std::nullopt;
        const int window = firmware.stored(m_select);
        return m_windows.contains(window) ? window : 0;
    }

    Verdict beforeSet(Firmware& firmware, int code, int value) override
    {
        if (code != m_swap)
            return Verdict::Pass;
        if (value != 1 || firmware.stored(m_layout) == 0)
            return Verdict::Ignore;
        const int main = firmware.stored(m_main);
        firmware.store(m_main, firmware.stored(m_source, m_windows.first()));
        firmware.store(m_source, main, m_windows.first());
        return Verdict::Done;
    }

private:
    int m_select;
    int m_source;
    int m_layout;
    int m_swap;
    int m_main;
    QList<int> m_windows;
};

/// An equaliser behind one code: a write names its band, a read needs a selection before.
class Bands : public Behaviour
{
public:
    explicit Bands(Settings& s) : m_code(s.code("code")), m_bands(s.model().codes.value(m_code).instances)
    {
        if (m_bands.isEmpty())
            s.note(QStringLiteral("the code needs \"instances\""));
    }

    std::optional<int> selected(const Firmware&, int code) const override
    {
        return code == m_code ? std::optional<int>(m_selected) : std::nullopt;
    }

    Verdict beforeSet(Firmware& firmware, int code, int value) override
    {
        if (code != m_code)
            return Verdict::Pass;
        const int band = value >> 8;
        const int low = value & 0xFF;
        if (low == SelectOnly && m_bands.contains(band)) {
            m_selected = band;
            return Verdict::Done;
        }
        if (!firmware.accepts(code, value))
            return Verdict::Ignore;
        firmware.store(code, low, band);
        return Verdict::Done;
    }

    void powerUp() override { m_selected = 0; }

private:
    static constexpr int SelectOnly = 0xFF;

    int m_code;
    QList<int> m_bands;
    int m_selected = 0;
};

/// Moves the brightness with the light of the room. The shift is added on reading, so that the user's own
/// value is back as soon as the function is off.
class AmbientLight : public Behaviour
{
public:
    explicit AmbientLight(Settings& s)
        : m_switch(s.code("switch")), m_brightness(s.code("brightness")),
          m_sensitivity(s.code("sensitivity")), m_span(s.integer("span"))
    {
    }

    int shift(const Firmware& firmware, int code) const override
    {
        if (code != m_brightness || firmware.stored(m_switch) == 0)
            return 0;
        const double room = (firmware.ambientLight() - OfficeLux) / OfficeLux;
        const int steps = firmware.maximum(m_sensitivity) + 1;
        const int step = std::min(firmware.stored(m_sensitivity), steps - 1) + 1;
        return static_cast<int>(std::lround(room * m_span * step / steps));
    }

private:
    static constexpr double OfficeLux = 500;

    int m_switch;
    int m_brightness;
    int m_sensitivity;
    int m_span;
};

/// Dims the panel some time after the user left. The VCP brightness stays: only the light goes down.
class Presence : public Behaviour
{
public:
    explicit Presence(Settings& s)
        : m_time(s.code("time")), m_dimmed(s.integer("dimmed")), m_long(s.table("long"))
    {
    }

    int light(const Firmware& firmware, int light) const override
    {
        const int time = firmware.stored(m_time);
        const bool away = time != 0 && firmware.absentFor() >= m_long.value(time, time);
        return away ? light * m_dimmed / 100 : light;
    }

private:
    int m_time;
    int m_dimmed;
    QMap<int, int> m_long;
};

template <typename T>
std::unique_ptr<Behaviour> create(Settings& settings)
{
    return std::make_unique<T>(settings);
}

struct Row
{
    const char* name;
    std::unique_ptr<Behaviour> (*create)(Settings&);
};
constexpr Row Rows[] = {
    {"userGains", create<UserGains>}, {"restore", create<Restore>},           {"windows", create<Windows>},
    {"bands", create<Bands>},         {"ambientLight", create<AmbientLight>}, {"presence", create<Presence>},
};

} // namespace

std::unique_ptr<Behaviour> makeBehaviour(const BehaviourDescription& description,
                                         const ModelDescription& model, QString* error)
{
    QString reason = QStringLiteral("unknown behaviour \"%1\"").arg(description.name);
    std::unique_ptr<Behaviour> behaviour;
    for (const Row& row : Rows) {
        if (description.name != QLatin1String(row.name))
            continue;
        Settings settings(description.settings, model);
        behaviour = row.create(settings);
        reason = settings.error();
        if (!reason.isEmpty()) {
            reason = QStringLiteral("behaviour \"%1\": %2").arg(description.name, reason);
            behaviour.reset();
        }
    }
    if (error)
        *error = reason;
    return behaviour;
}

} // namespace sim
