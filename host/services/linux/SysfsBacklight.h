// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

#include <optional>

namespace services {

/// One driver of a back-light in sysfs. Any thread; nothing is cached.
struct SysfsBacklight
{
    QString name; ///< Such as "intel_backlight".
    QString path; ///< Its folder.
    int maximum = 0;

    /// The step that the hardware is at, 0 to the maximum; nothing if the driver is gone.
    std::optional<int> value() const;

    /// Writes the step directly, which needs permission; false on failure.
    bool write(int value) const;
};

/// The driver of the panel on a connector ("eDP-1"; empty where unknown); nothing if there is none.
std::optional<SysfsBacklight> findBacklight(const QString& connector);

} // namespace services
