// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <LuShared/LuSharedGlobal.h>

#include <QAudioDevice>
#include <QList>
#include <QMediaDevices>
#include <QString>

/// The audio outputs of the session with what Qt leaves out: the system volume and the choice of the default
/// output.
///
/// audioOutputs() and defaultAudioOutput() hide those of QMediaDevices, since the session's audio service
/// knows of changes that Qt does not report; use them through this class. The inherited audioOutputsChanged()
/// tells of a change of either. GUI thread only.
class LUSHARED_EXPORT LuMediaDevices : public QMediaDevices
{
    Q_OBJECT
    Q_PROPERTY(QList<QAudioDevice> audioOutputs READ audioOutputs NOTIFY audioOutputsChanged)
    Q_PROPERTY(QAudioDevice defaultAudioOutput READ defaultAudioOutput NOTIFY audioOutputsChanged)
    Q_PROPERTY(int systemVolume READ systemVolume WRITE setSystemVolume NOTIFY systemVolumeChanged)

public:
    static LuMediaDevices* instance();

    /// The session's outputs; those that Qt finds where the session has no audio service.
    static QList<QAudioDevice> audioOutputs();

    /// The output that plays where no other is asked for; null if there is none.
    static QAudioDevice defaultAudioOutput();

    /// Volume of the default output in percent, 0 to 100; 0 without an audio service. Setting clamps.
    int systemVolume() const;
    void setSystemVolume(int percent);

    /// Name to show of a device; empty for a null device.
    Q_INVOKABLE QString deviceDisplayName(const QAudioDevice& device) const;

    /// Makes a device the system's default output; a device that the system does not know changes nothing.
    Q_INVOKABLE void setDefaultAudioOutputDevice(const QAudioDevice& device);

    /// Opens the sound page of the system's settings.
    Q_INVOKABLE void openSystemSettings();

Q_SIGNALS:
    void systemVolumeChanged();

private:
    LuMediaDevices() = default;
};
