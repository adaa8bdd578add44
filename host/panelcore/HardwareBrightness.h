// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <PanelCore/PanelCoreGlobal.h>

#include <atomic>
#include <optional>

class MonitorLink;

/// A monitor's own brightness (VCP 0x10) as a fraction of the maximum that the monitor names.
class PANELCORE_EXPORT HardwareBrightness
{
public:
    explicit HardwareBrightness(MonitorLink& link);
    ~HardwareBrightness();

    /// Asks the monitor: 0 to 1; nothing if it gives no usable answer. Blocks. Any thread but the GUI's.
    std::optional<double> read();
    /// What was read or written last; nothing before. Any thread, at once.
    std::optional<double> known() const;

    /// Writes @p fraction, 0 to 1; the maximum is read before the first write. False if the monitor told no
    /// maximum, or did not take the value. Blocks. Any thread but the GUI's.
    bool write(double fraction);
    /// As write(), on the link's own queue; returns at once. Of several calls that wait, the last
    /// one counts. GUI thread.
    void writeLater(double fraction);

private:
    bool transfer(double fraction);

    MonitorLink& m_link;
    std::atomic<int> m_maximum{0};   ///< 0: not read yet.
    std::atomic<double> m_known{-1}; ///< Negative: not known.
    std::atomic<unsigned> m_asked{0};
};
