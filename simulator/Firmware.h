// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Behaviour.h"
#include "ModelDescription.h"

#include <map>
#include <memory>
#include <vector>

namespace sim {

/// The values of one monitor and the rules by which they change. Not thread safe: its device holds the lock.
class Firmware
{
public:
    /// @param clock time in the room, by which light and presence go.
    Firmware(std::shared_ptr<const ModelDescription> model, std::function<Clock::time_point()> clock);

    const ModelDescription& model() const { return *m_model; }
    bool supports(int code) const { return m_model->codes.contains(code); }
    int maximum(int code) const { return m_model->codes.value(code).maximum; }

    /// The value of a get of a supported code.
    std::uint16_t get(int code) const;
    /// A host's write: clamped, ignored or taken as the model has it.
    void set(int code, std::uint16_t value);

    /// The window or band that a multiplexed code means now, 0 for none; nothing for a plain code.
    std::optional<int> selected(int code) const;

    /// As Monitor says.
    bool setByMenu(int code, int value, std::optional<int> window, QString* error);
    bool canSetByMenu(int code, int value, std::optional<int> window, QString* error) const;
    std::optional<std::uint16_t> value(int code, std::optional<int> window) const;

    /// Whether a host's write of this value is taken as it is (a continuous code clamps what is not).
    bool accepts(int code, int value) const;

    void restoreAll();
    /// Factory values of the current colour mode only.
    void restoreMode();
    void restoreCode(int code);

    /// What is stored, in the current colour mode where the code has a value per mode; @p instance 0 for a
    /// plain code.
    int stored(int code, int instance = 0) const;
    void store(int code, int value, int instance = 0);

    QJsonObject toJson() const;
    /// Replaces all values, or leaves them as they are and says why in @p error.
    bool fromJson(const QJsonObject& json, QString* error);

    /// Rises with every change of a value that is kept.
    quint64 revision() const { return m_revision; }

    /// Time in the room.
    Clock::time_point now() const { return m_clock(); }
    void setAmbientLight(int lux);
    int ambientLight() const { return m_ambientLight; }
    void setPresence(bool present);
    /// Seconds since the user left, 0 with the user present.
    double absentFor() const;
    int lightOutput() const;
    int rearLightOutput() const;

private:
    /// Where a value is kept: mode and instance are 0 where they do not matter.
    struct Slot
    {
        int mode = 0;
        int code = 0;
        int instance = 0;
        auto operator<=>(const Slot&) const = default;
    };

    Slot slot(int code, int instance) const;
    int currentMode() const;
    int factory(const Slot& slot) const;
    int shiftOf(int code) const;
    bool isFixed(int code) const;
    int instanceFor(int code, std::optional<int> window) const;
    int shown(int code, int stored) const;
    bool runsBehaviour(int code, int value);
    void follow();
    void settle(int code);

    std::shared_ptr<const ModelDescription> m_model;
    std::function<Clock::time_point()> m_clock;
    std::vector<std::unique_ptr<Behaviour>> m_behaviours;
    std::map<Slot, int> m_values;
    quint64 m_revision = 0;
    int m_ambientLight = 300;
    std::optional<Clock::time_point> m_absentSince;
};

} // namespace sim
