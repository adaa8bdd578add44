// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QList>
#include <QString>

namespace services {

/// One output of the sound server.
struct PulseOutput
{
    quint32 index = 0; ///< Of the server's run; the name is what lasts.
    QString name;
    QString description;
    int volume = 0; ///< Percent.
    bool operator==(const PulseOutput&) const = default;
};

/// What the sound server last told, in the order of the outputs' age.
struct PulseState
{
    QList<PulseOutput> outputs;
    QString defaultName;

    /// The output that the default's name belongs to; null if there is none.
    const PulseOutput* defaultOutput() const;

    /// Whether both name the same outputs and the same default, volumes aside.
    bool hasSameOutputs(const PulseState& other) const;
};

/// Name to show of an output. The monitor's own name, which the sound driver reads from it, comes first: it
/// is how a person and the volume feature know that an HDMI output is that monitor.
QString outputTitle(const QString& description, const QString& monitorName);

/// Percent of a server's volume, where 65536 is full; rounded, 0 to 100.
int percentOfVolume(quint32 volume);
quint32 volumeOfPercent(int percent);

} // namespace services
