// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QAudioDevice>
#include <QList>
#include <QString>

namespace services {

/// Audio outputs of the session and the system volume.
///
/// Called by LuMediaDevices on the GUI thread. A change of the list or of the default output raises
/// LuMediaDevices::audioOutputsChanged(), one of the volume systemVolumeChanged().
class AudioService
{
public:
    virtual ~AudioService() = default;

    virtual QList<QAudioDevice> outputs() const = 0;

    /// Null if there is no output.
    virtual QAudioDevice defaultOutput() const = 0;

    /// The device is not null. One that the session does not know changes nothing.
    virtual void setDefaultOutput(const QAudioDevice& device) = 0;

    /// Name to show of a device that is not null.
    virtual QString displayName(const QAudioDevice& device) const = 0;

    /// Percent, 0 to 100.
    virtual int volume() const = 0;
    virtual void setVolume(int percent) = 0;

    /// Opens the sound page of the system's settings.
    virtual void openSettings() = 0;
};

} // namespace services
