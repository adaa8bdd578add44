// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "MonitorTypes.h"

#include <memory>

namespace sim {

class Firmware;
struct BehaviourDescription;
struct ModelDescription;

/// A strategy of a monitor's firmware that goes beyond a value with a range. A model's file names it with its
/// settings:
///
/// "userGains"     "gains" change only while "temperature" has the value "user".
/// "restore"       a write to "code" brings factory values back: "scope" all, mode, or the "codes" listed.
/// "windows"       "source" has one value a window, addressed by "select"; "swap" exchanges with "main" in a
/// "layout". "bands"         the high byte of a write to "code" names a band; a low byte of 0xFF only selects
/// it for reading. "ambientLight"  while "switch" is not 0, the light in the room moves "brightness" by up to
/// "span", a step each "pace" ms. "presence"      "time" seconds ("long" translates codes) without a user dim
/// the panel to "dimmed" percent, and the light behind it where "rear" says so. "nightProtection"  "state" 1
/// takes light off by "level", 2 only below "dark" lux. "rearLight"  "state" and "light" hold the packed
/// bytes of the light behind the panel.
class Behaviour
{
public:
    /// What becomes of a host's write.
    enum class Verdict {
        Pass,   ///< The usual rules of the code hold.
        Done,   ///< The behaviour did all that is to be done.
        Ignore, ///< The firmware does not take the value.
    };

    virtual ~Behaviour() = default;

    /// The window or band that @p code means now, 0 for none; nothing if the code is not this behaviour's.
    virtual std::optional<int> selected(const Firmware&, int code) const;
    /// Asked before a host's write.
    virtual Verdict beforeSet(Firmware&, int code, int value);
    /// What is added to the stored value of @p code when it is read, and taken off when it is written.
    virtual int shift(const Firmware&, int code) const;
    /// Light of the panel, given what it would be without this behaviour.
    virtual int light(const Firmware&, int light) const;
    /// Light behind the panel, 0 to 100, given what it would be without this behaviour.
    virtual int rearLight(const Firmware&, int light) const;
    /// Told after every change of a stored value or of the room's light.
    virtual void follow(const Firmware&);
    /// Told before somebody sets @p code: what moves it gradually is at its end then.
    virtual void settle(const Firmware&, int code);
    /// Forgets its own state, as at power-up.
    virtual void powerUp();
};

/// Makes the behaviour of that name. Null with a reason in @p error for an unknown name or settings that do
/// not fit the model.
std::unique_ptr<Behaviour> makeBehaviour(const BehaviourDescription& description,
                                         const ModelDescription& model, QString* error);

} // namespace sim
