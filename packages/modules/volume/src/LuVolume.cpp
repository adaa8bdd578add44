// SPDX-License-Identifier: Apache-2.0
#include "LuVolume.h"

#include "LuFrequencyGainHash.h"

#include <LuShared/LuMonitorModel.h>
#include <ZrCore/ZrDispatch.h>

#include <QDebug>
#include <QKeyEvent>

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

/// From silence to full volume, whatever the maximum.
constexpr int ShortcutSteps = 20;

const QString WidgetName = QStringLiteral("LuVolumeWidget");
const QString VolumeProperty = QStringLiteral("displayVolume");
const QString SystemVolumeProperty = QStringLiteral("systemVolume");
const QString MuteKey = QStringLiteral("mute");
const QString CurrentOutputKey = QStringLiteral("isCurrentAudioOutput");
const QString AudioModeProperty = QStringLiteral("audioMode");
const QString SetVolume = QStringLiteral("setDisplayVolume");
const QString SetMute = QStringLiteral("setMute");

constexpr const char* BuiltInSpeakers = "BuiltInSpeakerDevice";

} // namespace

LuVolume::LuVolume(LuMonitorModel* model)
    : LuModelModuleInterface(model), m_mediaDevices(LuMediaDevices::instance()),
      m_systemVolume(m_mediaDevices->systemVolume()), m_gains(new LuFrequencyGainHash(this))
{
    connect(m_mediaDevices, &LuMediaDevices::systemVolumeChanged, this, [this] {
        m_systemVolume = m_mediaDevices->systemVolume();
        Q_EMIT systemVolumeChanged();
    });
    connect(m_mediaDevices, &QMediaDevices::audioOutputsChanged, this, &LuVolume::takeAudioOutputs);
}

LuVolume::~LuVolume() = default;

void LuVolume::readSchema(const QByteArray& schema)
{
    m_volumeEnable = loadVCPFunctionOnOffByCategory(schema, QStringLiteral("Volume"));
    int maximum = 0;
    if (loadVCPFunctionValueByCategory(schema, QStringLiteral("MaxVolume"), maximum) && maximum > 0)
        m_maxVolume = maximum;
    readAudioModeSchema(schema);
}

void LuVolume::loadSettings()
{
    if (!m_volumeEnable)
        return;
    m_displayVolume = qBound(0, moduleSetting(VolumeProperty, m_displayVolume.get()).toInt(), m_maxVolume);
    m_mute = moduleSetting(MuteKey, m_mute.get()).toBool();
    m_isCurrentAudioOutput = moduleSetting(CurrentOutputKey, false).toBool();
    loadAudioMode();
}

void LuVolume::applyValues()
{
    if (!m_volumeEnable)
        return;
    qInfo() << "[LuVolume] apply volume:" << m_displayVolume << "mute:" << m_mute;
    // A volume that was never read or set is the monitor's own: 0 would silence it.
    if (m_displayVolume > 0 || hasModuleSetting(VolumeProperty))
        model()->setVolume(m_displayVolume, 0);
    model()->setMute(m_mute, 0);
    Q_EMIT displayVolumeChanged();
    Q_EMIT muteChanged();
    Q_EMIT isCurrentAudioOutputChanged();
    applyAudioMode();
    fireVolume(LuDataCollection::SOURCE_LAUNCH);
}

void LuVolume::setDisplayVolume(int value)
{
    value = qBound(0, value, m_maxVolume);
    if (!m_volumeEnable || !model()->isModelSupported())
        return;
    if (isSettled(SetVolume, m_displayVolume, value)) {
        m_takenCalls = m_askedCalls.get();
        return;
    }
    const int call = m_askedCalls + 1;
    m_asked = value;
    m_askedCalls = call;
    const bool triggered = model()->isOtherFunctionTrigger(this);
    postUniqueAtFront(this, SetVolume, [this, value, call, triggered, byShortcut = m_stepping.get()] {
        changeVolume(value, triggered, byShortcut);
        m_takenCalls = call;
    });
}

void LuVolume::changeVolume(int value, bool triggered, bool byShortcut)
{
    qInfo() << "[LuVolume] setDisplayVolume:" << value;
    model()->setVolume(value, 0);
    const bool differs = m_displayVolume.set(value);
    setModuleSetting(VolumeProperty, value);
    if (triggered)
        fireVolume(LuDataCollection::SOURCE_OTHER_FUNCTION);
    if (byShortcut)
        fireVolume(LuDataCollection::SOURCE_USER, QStringLiteral("on_update_setting"));
    if (differs)
        Q_EMIT displayVolumeChanged();
    // Not without a mute: a mute that was asked for after this change would be dropped.
    if (m_mute)
        setMute(false);
}

int LuVolume::askedVolume() const
{
    return m_takenCalls == m_askedCalls.get() ? m_displayVolume : m_asked;
}

void LuVolume::setMute(bool mute)
{
    if (!m_volumeEnable || !model()->isModelSupported() || isSettled(SetMute, m_mute, mute))
        return;
    m_muteAsked = mute;
    postUniqueAtFront(this, SetMute, [this, mute] {
        takeAsked(m_mute, mute, MuteKey, "[LuVolume] setMute:", &LuVolume::muteChanged,
                  [this, mute] { model()->setMute(mute, 0); });
    });
}

bool LuVolume::askedMute() const
{
    return dispatch()->has(const_cast<LuVolume*>(this), SetMute) ? m_muteAsked : m_mute;
}

LuSyncTasks* LuVolume::syncPeriodically()
{
    if (!m_volumeEnable)
        return nullptr;
    auto* tasks = new LuSyncTasks(QStringLiteral("LuVolume"));
    const bool first = model()->isFirstTimeConnected();
    tasks->addTask([this, first] { syncVolume(first); });
    tasks->addTask([this] { syncMute(); });
    if (audioModeEnable())
        addAudioModeTask(tasks, first);
    return tasks;
}

void LuVolume::syncVolume(bool firstConnection)
{
    qInfo() << "[LuVolume] sync:" << model()->modelName();
    int value = 0;
    int maximum = m_maxVolume;
    if (!model()->getVolume(value, maximum))
        return;
    const bool differs = value >= 0 && value <= maximum &&
                         takeReported(m_displayVolume, value, VolumeProperty,
                                      "[LuVolume] sync volume changed:", &LuVolume::displayVolumeChanged);
    if (firstConnection || differs)
        fireVolume(LuDataCollection::syncSource(firstConnection));
}

void LuVolume::syncMute()
{
    bool muted = false;
    if (model()->getMute(muted))
        takeReported(m_mute, muted, MuteKey, "[LuVolume] sync mute changed:", &LuVolume::muteChanged);
}

void LuVolume::fireVolume(LuDataCollection::TriggerSource source, const QString& event)
{
    fireCustomEvent(LuDataCollection::ACT_VOLUME, event, source, parametersStrings());
}

QList<QString> LuVolume::parametersStrings() const
{
    return {QString::number(m_displayVolume), QString::number(m_systemVolume)};
}

void LuVolume::onFireUpdateSettingEventRequested(const QHash<QString, QVariant>& parameters,
                                                 LuDataCollection::TriggerSource)
{
    if (!m_volumeEnable)
        return;
    if (parameters.value(VolumeProperty).toInt() != m_displayVolume ||
        parameters.value(SystemVolumeProperty).toInt() != systemVolume())
        fireVolume(LuDataCollection::SOURCE_USER);
    if (parameters.value(AudioModeProperty).toString() != m_audioMode)
        fireCustomEvent(LuDataCollection::ACT_AUDIO_MODE, m_audioMode, LuDataCollection::SOURCE_USER);
}

// --- shortcuts

void LuVolume::registerShortcutActions()
{
    if (!m_volumeEnable)
        return;
    // The two steps follow a key that is held.
    registerShortcutAction(LuShortcutAction::Volume_Decrease,
                           [this](const QKeyEvent&) { return stepVolume(-1); });
    registerShortcutAction(LuShortcutAction::Volume_Increase,
                           [this](const QKeyEvent&) { return stepVolume(+1); });
    registerShortcutAction(LuShortcutAction::Volume_Mute,
                           [this](const QKeyEvent& event) { return toggleMute(event); });
    registerShortcutAction(LuShortcutAction::Volume_LoopAllSpeakerOutput,
                           [this](const QKeyEvent& event) { return loopOutputs(event); });
    registerShortcutAction(LuShortcutAction::Volume_LoopAllAudioMode,
                           [this](const QKeyEvent& event) { return loopAudioModes(event); });
}

bool LuVolume::hasWidget() const
{
    return model()->inWidgets(WidgetName);
}

bool LuVolume::stepVolume(int direction)
{
    if (!hasWidget() || !m_isCurrentAudioOutput)
        return false;
    // A held key repeats faster than a monitor follows: each press counts from what was asked for last.
    const int from = askedVolume();
    const double step = m_maxVolume / double(ShortcutSteps);
    const double grid = direction < 0 ? std::ceil(from / step) : std::floor(from / step);
    // A grid point that rounds to the present value would leave the user where they are: the next one counts.
    int target = from;
    for (int count = 1; target == from && count <= ShortcutSteps; ++count)
        target = qBound(0, int(std::lround((grid + count * direction) * step)), m_maxVolume);
    m_stepping = true;
    setDisplayVolume(target);
    m_stepping = false;
    return true;
}

bool LuVolume::toggleMute(const QKeyEvent& event)
{
    if (!hasWidget() || event.isAutoRepeat() || !m_isCurrentAudioOutput)
        return false;
    // Pressed twice before the monitor has followed, the key ends where it began.
    setMute(!askedMute());
    return true;
}

bool LuVolume::loopOutputs(const QKeyEvent& event)
{
    if (!hasWidget() || event.isAutoRepeat() || m_outputs.isEmpty())
        return false;
    const QByteArray current = LuMediaDevices::defaultAudioOutput().id();
    for (qsizetype i = 0; i < m_outputs.size(); ++i) {
        if (m_outputs.at(i).id() != current)
            continue;
        m_mediaDevices->setDefaultAudioOutputDevice(m_outputs.at((i + 1) % m_outputs.size()));
        return true;
    }
    return false;
}

bool LuVolume::loopAudioModes(const QKeyEvent& event)
{
    if (!hasWidget() || event.isAutoRepeat())
        return false;
    const qsizetype index = m_audioModeList.indexOf(m_audioMode.get());
    if (index < 0)
        return false;
    setAudioMode(m_audioModeList.at((index + 1) % m_audioModeList.size()));
    return true;
}

// --- the system's outputs

void LuVolume::onInitialSync()
{
    if (!m_volumeEnable)
        return;
    refreshAudioOutputs();
    updateCurrentOutput();
}

void LuVolume::takeAudioOutputs()
{
    if (!m_volumeEnable)
        return;
    refreshAudioOutputs();
    const bool changed = updateCurrentOutput();
    const bool first = model()->isFirstTimeConnected();
    if (std::exchange(m_userSwitch, false))
        fireCustomEvent(LuDataCollection::ACT_VOLUME_SETTING, outputWord(), LuDataCollection::SOURCE_USER);
    else if (first || changed)
        fireCustomEvent(LuDataCollection::ACT_VOLUME_SETTING, outputWord(),
                        LuDataCollection::syncSource(first));
}

void LuVolume::refreshAudioOutputs()
{
    const QList<QAudioDevice> outputs = LuMediaDevices::audioOutputs();
    if (outputs.size() != m_outputs.size())
        m_outputs = outputs;
}

bool LuVolume::updateCurrentOutput()
{
    const QAudioDevice output = LuMediaDevices::defaultAudioOutput();
    const bool isThis =
        !output.isNull() && m_mediaDevices->deviceDisplayName(output).contains(model()->modelName());
    if (!m_isCurrentAudioOutput.set(isThis))
        return false;
    setModuleSetting(CurrentOutputKey, isThis);
    Q_EMIT isCurrentAudioOutputChanged();
    return true;
}

QString LuVolume::outputWord() const
{
    if (m_isCurrentAudioOutput)
        return QStringLiteral("monitor_speaker");
    return LuMediaDevices::defaultAudioOutput().id() == BuiltInSpeakers ? QStringLiteral("built_in_speaker")
                                                                        : QStringLiteral("others");
}

void LuVolume::setDefaultAudioOutputDevice(const QAudioDevice& device)
{
    if (device.id() == LuMediaDevices::defaultAudioOutput().id())
        return;
    const QList<QAudioDevice> outputs = LuMediaDevices::audioOutputs();
    const bool isKnown = std::any_of(outputs.begin(), outputs.end(),
                                     [&](const QAudioDevice& output) { return output.id() == device.id(); });
    // Nothing would answer: the next change, somebody else's, would pass for the user's.
    if (!isKnown) {
        qWarning() << "[LuVolume] the system has no audio output" << device.id();
        return;
    }
    m_userSwitch = true;
    m_mediaDevices->setDefaultAudioOutputDevice(device);
}
