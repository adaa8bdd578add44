// SPDX-License-Identifier: Apache-2.0
#include "services/pulse/PulseAudio.h"

#include <LuShared/LuMediaDevices.h>
#include <ZrCore/ZrDispatch.h>

#include "services/audiodevice/MadeAudioDevice.h"
#include "services/pulse/PulseConnection.h"

#include <QDebug>
#include <QObject>
#include <QProcess>
#include <QStandardPaths>

#include <array>

namespace services {

namespace {

/// A program's sound page.
struct SettingsPage
{
    const char* desktop; ///< Part of XDG_CURRENT_DESKTOP; empty for any.
    const char* program;
    const char* page;
};

constexpr std::array SettingsPages = {
    SettingsPage{"KDE", "systemsettings", "kcm_pulseaudio"},
    SettingsPage{"KDE", "systemsettings5", "kcm_pulseaudio"},
    SettingsPage{"GNOME", "gnome-control-center", "sound"},
    SettingsPage{"Unity", "gnome-control-center", "sound"},
    SettingsPage{"Cinnamon", "cinnamon-settings", "sound"},
    SettingsPage{"MATE", "mate-volume-control", ""},
    SettingsPage{"", "pavucontrol", ""},
    SettingsPage{"", "pavucontrol-qt", ""},
    SettingsPage{"", "gnome-control-center", "sound"},
    SettingsPage{"", "systemsettings", "kcm_pulseaudio"},
};

class PulseAudio : public QObject, public AudioService
{
    Q_OBJECT

public:
    PulseAudio()
        : m_connection([this](const PulseState& state) {
              ZrDispatch::main()->post(this, [this, state] { take(state); });
          })
    {
    }

    QList<QAudioDevice> outputs() const override
    {
        QList<QAudioDevice> devices;
        for (const PulseOutput& output : m_state.outputs)
            devices.append(deviceOf(output));
        return devices;
    }

    QAudioDevice defaultOutput() const override
    {
        const PulseOutput* const output = m_state.defaultOutput();
        return output ? deviceOf(*output) : QAudioDevice();
    }

    void setDefaultOutput(const QAudioDevice& device) override
    {
        m_connection.setDefault(QString::fromUtf8(device.id()));
    }

    // Of a device that Qt itself has made, too.
    QString displayName(const QAudioDevice& device) const override
    {
        for (const PulseOutput& output : m_state.outputs) {
            if (output.name.toUtf8() == device.id())
                return output.description;
        }
        return device.description();
    }

    int volume() const override
    {
        const PulseOutput* const output = m_state.defaultOutput();
        return output ? output->volume : 0;
    }

    void setVolume(int percent) override
    {
        if (!m_state.defaultOutput() || percent == volume())
            return;
        for (PulseOutput& output : m_state.outputs) {
            if (output.name == m_state.defaultName)
                output.volume = percent;
        }
        m_connection.setVolume(m_state.defaultName, percent);
        ZrDispatch::main()->post(this, [] { Q_EMIT LuMediaDevices::instance()->systemVolumeChanged(); });
    }

    void openSettings() override;

private:
    QAudioDevice deviceOf(const PulseOutput& output) const
    {
        return madeAudioDevice(output.name, output.description, output.name == m_state.defaultName);
    }

    void take(const PulseState& state);

    PulseState m_state;
    PulseConnection m_connection; // last: its thread calls the object until it ends
};

void PulseAudio::take(const PulseState& state)
{
    const int before = volume();
    const bool sameOutputs = state.hasSameOutputs(m_state);
    m_state = state;
    if (!sameOutputs)
        Q_EMIT LuMediaDevices::instance()->audioOutputsChanged();
    if (volume() != before)
        Q_EMIT LuMediaDevices::instance()->systemVolumeChanged();
}

void PulseAudio::openSettings()
{
    const QString desktop = qEnvironmentVariable("XDG_CURRENT_DESKTOP");
    for (const SettingsPage& entry : SettingsPages) {
        if (!desktop.contains(QLatin1String(entry.desktop), Qt::CaseInsensitive))
            continue;
        const QString program = QStandardPaths::findExecutable(QLatin1String(entry.program));
        const QStringList arguments = *entry.page ? QStringList{QLatin1String(entry.page)} : QStringList();
        if (!program.isEmpty() && QProcess::startDetached(program, arguments))
            return;
    }
    qWarning() << "[LuMediaDevices] no program for sound settings is installed";
}

} // namespace

std::shared_ptr<AudioService> makePulseAudio()
{
    return std::make_shared<PulseAudio>();
}

} // namespace services

#include "PulseAudio.moc"
