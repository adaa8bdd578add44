// SPDX-License-Identifier: Apache-2.0
#include "RoomBehaviours.h"

#include "Firmware.h"

#include <algorithm>
#include <cmath>

namespace sim {

namespace {

constexpr int FullPercent = 100;

/// Moves the brightness with the light of the room, step by step. The shift is added on reading, so that the
/// user's own value is back as soon as the function is off.
class AmbientLight : public Behaviour
{
public:
    explicit AmbientLight(BehaviourSettings& s)
        : m_switch(s.code("switch")), m_brightness(s.code("brightness")),
          m_sensitivity(s.code("sensitivity")), m_span(s.integer("span")),
          m_pace(std::max(1, s.integer("pace")))
    {
    }

    int shift(const Firmware& firmware, int code) const override
    {
        return code == m_brightness && isOn(firmware) ? at(firmware.now()) : 0;
    }

    void follow(const Firmware& firmware) override
    {
        const int target = isOn(firmware) ? targetOf(firmware) : 0;
        if (target == m_target && isOn(firmware))
            return;
        m_from = isOn(firmware) ? at(firmware.now()) : 0;
        m_since = firmware.now();
        m_target = target;
    }

    // A value that somebody sets is where the brightness stays until the light of the room changes.
    void settle(const Firmware&, int code) override
    {
        if (code == m_brightness)
            m_from = m_target;
    }

private:
    static constexpr double OfficeLux = 500;

    bool isOn(const Firmware& firmware) const { return firmware.stored(m_switch) != 0; }

    int targetOf(const Firmware& firmware) const
    {
        const double room = (firmware.ambientLight() - OfficeLux) / OfficeLux;
        const int steps = firmware.maximum(m_sensitivity) + 1;
        const int step = std::min(firmware.stored(m_sensitivity), steps - 1) + 1;
        return static_cast<int>(std::lround(room * m_span * step / steps));
    }

    int at(Clock::time_point now) const
    {
        const auto passed = std::chrono::duration_cast<std::chrono::milliseconds>(now - m_since).count();
        const auto steps = std::max<qint64>(0, passed / m_pace);
        const int distance = m_target - m_from;
        const int moved = static_cast<int>(std::min<qint64>(std::abs(distance), steps));
        return distance < 0 ? m_from - moved : m_from + moved;
    }

    int m_switch;
    int m_brightness;
    int m_sensitivity;
    int m_span;
    int m_pace; ///< Milliseconds a step.
    int m_from = 0;
    int m_target = 0;
    Clock::time_point m_since{};
};

/// Dims the panel some time after the user left, and on some models the light behind it. The VCP values
/// stay: only the light goes down.
class Presence : public Behaviour
{
public:
    explicit Presence(BehaviourSettings& s)
        : m_time(s.code("time")), m_rear(s.codeIfAny("rear")), m_dimmed(s.integer("dimmed")),
          m_long(s.table("long"))
    {
    }

    int light(const Firmware& firmware, int light) const override
    {
        return isAway(firmware) ? light * m_dimmed / FullPercent : light;
    }

    int rearLight(const Firmware& firmware, int light) const override
    {
        const bool along = m_rear != 0 && firmware.stored(m_rear) == RearGoesAlong;
        return along && isAway(firmware) ? light * m_dimmed / FullPercent : light;
    }

private:
    static constexpr int RearGoesAlong = 1;

    bool isAway(const Firmware& firmware) const
    {
        const int time = firmware.stored(m_time);
        return time != 0 && firmware.absentFor() >= m_long.value(time, time);
    }

    int m_time;
    int m_rear;
    int m_dimmed;
    QMap<int, int> m_long;
};

/// Takes light off by its level: always, or by the sensor in a dark room.
class NightProtection : public Behaviour
{
public:
    explicit NightProtection(BehaviourSettings& s)
        : m_state(s.code("state")), m_level(s.code("level")), m_dark(s.integer("dark"))
    {
    }

    int light(const Firmware& firmware, int light) const override
    {
        const int state = firmware.stored(m_state);
        const bool softens = state == On || (state != Off && firmware.ambientLight() < m_dark);
        return softens ? light - light * firmware.stored(m_level) * PercentPerLevel / FullPercent : light;
    }

private:
    static constexpr int Off = 0;
    static constexpr int On = 1;
    static constexpr int PercentPerLevel = 5;

    int m_state;
    int m_level;
    int m_dark; ///< In lux.
};

/// The light behind the panel, from its packed bytes; by the sensor it goes with the light of the room.
class RearLight : public Behaviour
{
public:
    explicit RearLight(BehaviourSettings& s) : m_state(s.code("state")), m_light(s.code("light")) {}

    int rearLight(const Firmware& firmware, int) const override
    {
        switch (firmware.stored(m_state) & StateMask) {
        case On:
            return std::min(FullPercent, (firmware.stored(m_light) & ByteMask) * PercentPerStep);
        case Auto:
            return std::clamp(firmware.ambientLight() / LuxPerPercent, LeastPercent, FullPercent);
        default:
            return 0;
        }
    }

private:
    static constexpr int StateMask = 0xF0;
    static constexpr int ByteMask = 0xFF;
    static constexpr int On = 0x20;
    static constexpr int Auto = 0x30;
    static constexpr int PercentPerStep = 10;
    static constexpr int LuxPerPercent = 5;
    static constexpr int LeastPercent = 10;

    int m_state;
    int m_light;
};

} // namespace

std::unique_ptr<Behaviour> makeAmbientLight(BehaviourSettings& settings)
{
    return std::make_unique<AmbientLight>(settings);
}

std::unique_ptr<Behaviour> makePresence(BehaviourSettings& settings)
{
    return std::make_unique<Presence>(settings);
}

std::unique_ptr<Behaviour> makeNightProtection(BehaviourSettings& settings)
{
    return std::make_unique<NightProtection>(settings);
}

std::unique_ptr<Behaviour> makeRearLight(BehaviourSettings& settings)
{
    return std::make_unique<RearLight>(settings);
}

} // namespace sim
