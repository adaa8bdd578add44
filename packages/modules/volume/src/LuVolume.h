// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <LuShared/LuMediaDevices.h>
#include <LuShared/LuModelModuleInterface.h>
#include <ZrCore/ZrShared.h>

#include <QAudioDevice>
#include <QList>
#include <QStringList>
#include <QtQml/qqmlregistration.h>

class LuFrequencyGainHash;

/// The monitor's speakers: their volume and mute, the audio mode and the five-band equaliser, and whether the
/// system plays through them.
///
/// Without the feature in the schema the object is inactive: its setters do nothing. LuVolume.cpp holds the
/// volume, the shortcuts and the system's outputs, LuVolumeAudioMode.cpp audio modes and gains.
class LuVolume : public LuModelModuleInterface
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Internal class")
    Q_MOC_INCLUDE("LuFrequencyGainHash.h")
    Q_PROPERTY(bool volumeEnable READ volumeEnable CONSTANT)
    Q_PROPERTY(bool audioModeEnable READ audioModeEnable CONSTANT)
    Q_PROPERTY(QStringList audioModeList READ audioModeList CONSTANT)
    Q_PROPERTY(QStringList editableAudioModeList READ editableAudioModeList CONSTANT)
    Q_PROPERTY(LuMediaDevices* mediaDevices READ mediaDevices CONSTANT)
    Q_PROPERTY(int displayVolume READ displayVolume WRITE setDisplayVolume NOTIFY displayVolumeChanged)
    Q_PROPERTY(bool mute READ mute WRITE setMute NOTIFY muteChanged)
    Q_PROPERTY(bool isCurrentAudioOutput READ isCurrentAudioOutput NOTIFY isCurrentAudioOutputChanged)
    Q_PROPERTY(int systemVolume READ systemVolume NOTIFY systemVolumeChanged)
    Q_PROPERTY(int maxVolume READ maxVolume CONSTANT)
    Q_PROPERTY(QString audioMode READ audioMode WRITE setAudioMode NOTIFY audioModeChanged)
    Q_PROPERTY(LuFrequencyGainHash* frequencyGainHash READ frequencyGainHash NOTIFY frequencyGainHashChanged)

public:
    /// Bands of the equaliser. The number is the band's frequency in units of 100 Hz, as it goes to the
    /// monitor; the names are stored keys and say more than that for the last two.
    enum Frequency : int {
        Frequency100Hz = 1,
        Frequency300Hz = 3,
        Frequency1KHz = 10,
        Frequency30KHz = 30,
        Frequency100KHz = 100,
    };
    Q_ENUM(Frequency)

    explicit LuVolume(LuMonitorModel* model);
    ~LuVolume() override;

    bool volumeEnable() const { return m_volumeEnable; }
    bool audioModeEnable() const { return !m_audioModeList.isEmpty(); }
    QStringList audioModeList() const { return m_audioModeList; }
    /// The modes in which the equaliser may be changed.
    QStringList editableAudioModeList() const { return m_editableAudioModeList; }
    LuMediaDevices* mediaDevices() const { return m_mediaDevices; }

    /// 0 to maxVolume(); the setter clamps, and ends a mute. What it posts is taken whether or not the
    /// monitor answers, and the next read-back corrects it.
    int displayVolume() const { return m_displayVolume; }
    void setDisplayVolume(int value);
    int maxVolume() const { return m_maxVolume; }

    bool mute() const { return m_mute; }
    void setMute(bool mute);

    /// The system's default output is this monitor.
    bool isCurrentAudioOutput() const { return m_isCurrentAudioOutput; }
    /// Volume of the system's default output in percent. GUI thread.
    int systemVolume() const { return m_mediaDevices->systemVolume(); }

    /// Empty while unknown. A name that the table lacks goes to the monitor as 0.
    QString audioMode() const { return m_audioMode; }
    void setAudioMode(const QString& name);

    LuFrequencyGainHash* frequencyGainHash() const { return m_gains; }

    /// Makes a device the system's default output on the user's behalf, so that the change is reported as
    /// theirs. A device that the system does not have is refused with a warning. GUI thread.
    Q_INVOKABLE void setDefaultAudioOutputDevice(const QAudioDevice& device);
    /// @param gain in dB, -6 to 6; another number goes to the monitor as 0.
    Q_INVOKABLE void setGain(LuVolume::Frequency frequency, int gain);
    /// Brings all bands to 0 dB.
    Q_INVOKABLE void resetGains();

    void readSchema(const QByteArray& schema) override;
    void onInitialSync() override;
    LuSyncTasks* syncPeriodically() override;
    void loadSettings() override;
    void applyValues() override;
    void registerShortcutActions() override;
    void onFireUpdateSettingEventRequested(const QHash<QString, QVariant>& parameters,
                                           LuDataCollection::TriggerSource source) override;
    /// The monitor's volume and the system's.
    QList<QString> parametersStrings() const override;

Q_SIGNALS:
    void isCurrentAudioOutputChanged();
    void displayVolumeChanged();
    void systemVolumeChanged();
    void muteChanged();
    void audioModeChanged();
    void frequencyGainHashChanged();

private:
    // Volume and mute
    void changeVolume(int value, bool triggered, bool byShortcut);
    int askedVolume() const;
    bool askedMute() const;
    void syncVolume(bool firstConnection);
    void syncMute();
    void fireVolume(LuDataCollection::TriggerSource source, const QString& event = {});

    // Shortcuts
    bool hasWidget() const;
    bool stepVolume(int direction);
    bool toggleMute(const QKeyEvent& event);
    bool loopOutputs(const QKeyEvent& event);
    bool loopAudioModes(const QKeyEvent& event);

    // The system's outputs
    void takeAudioOutputs();
    void refreshAudioOutputs();
    bool updateCurrentOutput();
    QString outputWord() const;

    // Audio modes and gains
    void readAudioModeSchema(const QByteArray& schema);
    void loadAudioMode();
    void applyAudioMode();
    void addAudioModeTask(LuSyncTasks* tasks, bool firstConnection);
    void syncAudioMode(LuSyncTasks* tasks, bool firstConnection);
    void syncGains(LuSyncTasks* tasks);
    bool isEditable(const QString& mode) const { return m_editableAudioModeList.contains(mode); }
    void writeGain(Frequency frequency, int gain);
    bool readGain(Frequency frequency, int& gain);
    void keepGains();

    LuMediaDevices* const m_mediaDevices;
    bool m_volumeEnable = false;
    int m_maxVolume = 100;
    QStringList m_audioModeList;
    QStringList m_editableAudioModeList;
    /// The outputs as they were when their number last changed.
    QList<QAudioDevice> m_outputs;
    ZrShared<int> m_displayVolume{0};
    ZrShared<bool> m_mute{false};
    ZrShared<bool> m_isCurrentAudioOutput{false};
    /// The system's volume for jobs: the service itself belongs to the GUI thread.
    ZrShared<int> m_systemVolume;
    ZrShared<int> m_asked{0};          ///< Volume of the latest setter call.
    ZrShared<int> m_askedCalls{0};     ///< Number of that call.
    ZrShared<int> m_takenCalls{0};     ///< Number of the call that last reached the monitor.
    ZrShared<bool> m_muteAsked{false}; ///< Of the latest mute job.
    /// A volume shortcut runs.
    ZrShared<bool> m_stepping{false};
    /// The next change of the outputs was asked for by the user.
    bool m_userSwitch = false;
    ZrShared<QString> m_audioMode;
    /// A reset of the gains is on its way: what the members hold is not what will be.
    ZrShared<bool> m_resetting{false};
    LuFrequencyGainHash* const m_gains;
};
