// SPDX-License-Identifier: Apache-2.0
#include "Behaviour.h"

#include "BehaviourSettings.h"
#include "Firmware.h"
#include "RoomBehaviours.h"

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

int Behaviour::rearLight(const Firmware&, int light) const
{
    return light;
}

void Behaviour::follow(const Firmware&) {}

void Behaviour::settle(const Firmware&, int) {}

void Behaviour::powerUp() {}

namespace {

/// The gains of a colour temperature that is not the user's are the factory's business.
class UserGains : public Behaviour
{
public:
    explicit UserGains(BehaviourSettings& s)
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
    explicit Restore(BehaviourSettings& s)
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
    explicit Windows(BehaviourSettings& s)
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
    explicit Bands(BehaviourSettings& s)
        : m_code(s.code("code")), m_bands(s.model().codes.value(m_code).instances)
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

template <typename T>
std::unique_ptr<Behaviour> create(BehaviourSettings& settings)
{
    return std::make_unique<T>(settings);
}

struct Row
{
    const char* name;
    std::unique_ptr<Behaviour> (*create)(BehaviourSettings&);
};
constexpr Row Rows[] = {
    {"userGains", create<UserGains>},
    {"restore", create<Restore>},
    {"windows", create<Windows>},
    {"bands", create<Bands>},
    {"ambientLight", makeAmbientLight},
    {"presence", makePresence},
    {"nightProtection", makeNightProtection},
    {"rearLight", makeRearLight},
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
        BehaviourSettings settings(description.settings, model);
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
