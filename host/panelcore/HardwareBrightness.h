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

    /// Somebody wants to be told of changes at the monitor's own menu: whoever runs the rounds of reading
    /// calls refresh() in them. Any thread.
    void watch() { m_watched = true; }
    /// False also of a monitor that answers but has told no brightness in several tries: it has none.
    bool isWatched() const { return m_watched && m_vain < VainQuestions; }
    /// Asks the monitor; true where its value is another than was read or written last. What was written
    /// reads back as it was asked for, whatever the steps of the monitor made of it. An answer that a newer
    /// write has outrun counts for nothing. Blocks. Any thread but the GUI's.
    bool refresh();

    /// Writes @p fraction, 0 to 1; the maximum is read before the first write. False if the monitor told no
    /// maximum, or did not take the value. Blocks. Any thread but the GUI's.
    bool write(double fraction);
    /// As write(), on the link's own queue; returns at once. Of several calls that wait, the last
    /// one counts. GUI thread.
    void writeLater(double fraction);

private:
    struct Answer
    {
        int value;
        int maximum;
    };
    std::optional<Answer> ask();
    double take(const Answer& answer);
    bool transfer(double fraction);

    static constexpr int VainQuestions = 5;

    MonitorLink& m_link;
    std::atomic<bool> m_watched{false};
    std::atomic<int> m_vain{0}; ///< Answers without a brightness since the last with one.
    std::atomic<int> m_maximum{0};   ///< 0: not read yet.
    std::atomic<int> m_value{-1};    ///< On the wire; negative: not known, or a write of it failed.
    std::atomic<double> m_known{-1}; ///< Negative: not known.
    std::atomic<unsigned> m_asked{0};
};
