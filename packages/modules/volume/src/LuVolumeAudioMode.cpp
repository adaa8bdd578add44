// SPDX-License-Identifier: Apache-2.0
// Audio modes and the equaliser of LuVolume.
#include "LuFrequencyGainHash.h"
#include "LuVolume.h"

#include <LuShared/LuMonitorModel.h>

#include <QDebug>
#include <QJsonObject>

namespace {

constexpr int AudioModeCode = 0x94;
constexpr int GainCode = 0x99;
constexpr int SelectOnly = 0xFF; ///< Low byte of VCP 0x99 that only names the band to read.

const QString AudioModeKey = QStringLiteral("audioMode");
const QString GainsKey = QStringLiteral("frequencyGainHash");

struct ModeRow
{
    const char* name;
    int value; ///< of VCP 0x94
};

constexpr ModeRow Modes[] = {
    {"Standard", 1}, //
    {"Dialogue", 2}, //
    {"Music", 3},    //
    {"Cinema", 4},   //
    {"Game", 5},     //
    {"Studio", 6},   //
    {"User", 7},     //
};

int valueOfMode(const QString& name)
{
    for (const ModeRow& row : Modes) {
        if (name == QLatin1String(row.name))
            return row.value;
    }
    return 0;
}

QString modeOfValue(int value)
{
    for (const ModeRow& row : Modes) {
        if (value == row.value)
            return QLatin1String(row.name);
    }
    return {};
}

struct GainRow
{
    int gain; ///< dB
    int byte; ///< low byte of VCP 0x99; bit 4 is the sign
};

constexpr GainRow GainRows[] = {
    {-6, 0x16}, //
    {-5, 0x15}, //
    {-4, 0x14}, //
    {-3, 0x13}, //
    {-2, 0x12}, //
    {-1, 0x11}, //
    {0, 0x00},  //
    {1, 0x01},  //
    {2, 0x02},  //
    {3, 0x03},  //
    {4, 0x04},  //
    {5, 0x05},  //
    {6, 0x06},  //
};

constexpr int byteOfGain(int gain)
{
    for (const GainRow& row : GainRows) {
        if (row.gain == gain)
            return row.byte;
    }
    return 0;
}

constexpr int gainOfValue(int value)
{
    for (const GainRow& row : GainRows) {
        if (row.byte == value)
            return row.gain;
    }
    return 0;
}

struct BandRow
{
    LuVolume::Frequency frequency;
    const char* name; ///< in the settings
};

constexpr BandRow Bands[] = {
    {LuVolume::Frequency100Hz, "100Hz"},   //
    {LuVolume::Frequency300Hz, "300Hz"},   //
    {LuVolume::Frequency1KHz, "1KHz"},     //
    {LuVolume::Frequency30KHz, "30KHz"},   //
    {LuVolume::Frequency100KHz, "100KHz"}, //
};

QString nameOfBand(LuVolume::Frequency frequency)
{
    for (const BandRow& row : Bands) {
        if (row.frequency == frequency)
            return QLatin1String(row.name);
    }
    return {};
}

/// An unknown name is kept under no band.
LuVolume::Frequency bandOfName(const QString& name)
{
    for (const BandRow& row : Bands) {
        if (name == QLatin1String(row.name))
            return row.frequency;
    }
    return LuVolume::Frequency(0);
}

} // namespace

void LuVolume::readAudioModeSchema(const QByteArray& schema)
{
    m_audioModeList = loadVCPFunctionTypesByCategory(schema, QStringLiteral("Audio Mode"));
    m_editableAudioModeList = loadVCPFunctionTypesByCategory(schema, QStringLiteral("Editable Audio Mode"));
}

void LuVolume::loadAudioMode()
{
    m_audioMode = moduleSetting(AudioModeKey, m_audioMode.get()).toString();
    LuFrequencyGainHash::Gains gains;
    const QJsonObject stored = moduleSetting(GainsKey, QJsonObject()).toJsonObject();
    for (auto it = stored.begin(); it != stored.end(); ++it)
        gains.insert(bandOfName(it.key()), it.value().toInt());
    m_gains->replace(gains);
}

void LuVolume::applyAudioMode()
{
    if (!audioModeEnable())
        return;
    const QString mode = m_audioMode;
    qInfo() << "[LuVolume] apply audio mode:" << mode;
    // A mode that was never read or set is the monitor's own.
    if (!mode.isEmpty())
        setVCP(AudioModeCode, valueOfMode(mode));
    Q_EMIT audioModeChanged();
    if (isEditable(mode)) {
        qInfo() << "[LuVolume] apply frequency gain:" << mode;
        const LuFrequencyGainHash::Gains gains = m_gains->gains();
        for (const BandRow& band : Bands) {
            if (const auto gain = gains.constFind(band.frequency); gain != gains.constEnd())
                writeGain(band.frequency, *gain);
        }
        Q_EMIT frequencyGainHashChanged();
    }
    fireCustomEvent(LuDataCollection::ACT_AUDIO_MODE, mode, LuDataCollection::SOURCE_LAUNCH);
}

void LuVolume::setAudioMode(const QString& name)
{
    const QString key = QStringLiteral("setAudioMode");
    if (!m_volumeEnable || !audioModeEnable() || isSettled(key, m_audioMode, name))
        return;
    const bool triggered = model()->isOtherFunctionTrigger(this);
    postUniqueAtFront(this, key, [this, name, triggered] {
        qInfo() << "[LuVolume] setAudioMode:" << name;
        setVCP(AudioModeCode, valueOfMode(name));
        const bool differs = m_audioMode.set(name);
        setModuleSetting(AudioModeKey, name);
        if (triggered)
            fireCustomEvent(LuDataCollection::ACT_AUDIO_MODE, name, LuDataCollection::SOURCE_OTHER_FUNCTION);
        if (differs)
            Q_EMIT audioModeChanged();
    });
}

void LuVolume::addAudioModeTask(LuSyncTasks* tasks, bool firstConnection)
{
    tasks->addTask([this, tasks, firstConnection] { syncAudioMode(tasks, firstConnection); });
}

void LuVolume::syncAudioMode(LuSyncTasks* tasks, bool firstConnection)
{
    int value = 0;
    if (!getVCP(AudioModeCode, value))
        return;
    const QString name = modeOfValue(value);
    const bool differs = takeReported(m_audioMode, name, AudioModeKey,
                                      "[LuVolume] sync audio mode changed:", &LuVolume::audioModeChanged);
    if (firstConnection || differs)
        fireCustomEvent(LuDataCollection::ACT_AUDIO_MODE, name,
                        LuDataCollection::syncSource(firstConnection));
    if (isEditable(name))
        syncGains(tasks);
}

void LuVolume::syncGains(LuSyncTasks* tasks)
{
    bool gainsChanged = false;
    for (const BandRow& band : Bands) {
        tasks->addSubTask([this, &gainsChanged, frequency = band.frequency] {
            int gain = 0;
            if (!readGain(frequency, gain) || gain == m_gains->get(frequency))
                return;
            gainsChanged = true;
            m_gains->set(frequency, gain);
        });
    }
    if (!gainsChanged)
        return;
    qInfo() << "[LuVolume] sync frequency gain changed";
    keepGains();
}

void LuVolume::writeGain(Frequency frequency, int gain)
{
    setVCP(GainCode, frequency << 8 | byteOfGain(gain));
}

bool LuVolume::readGain(Frequency frequency, int& gain)
{
    setVCP(GainCode, (frequency << 8) + SelectOnly);
    int value = 0;
    if (!getVCP(GainCode, value))
        return false;
    gain = gainOfValue(value);
    return true;
}

void LuVolume::setGain(Frequency frequency, int gain)
{
    const QString name = nameOfBand(frequency);
    if (name.isEmpty()) {
        qWarning() << "[LuVolume] the equaliser has no band" << int(frequency);
        return;
    }
    // Each band has a key of its own: moving one does not drop what waits for another.
    const QString key = QStringLiteral("setGain") + name;
    if (!m_volumeEnable || !audioModeEnable())
        return;
    if (!isChanging(key) && !m_resetting && m_gains->get(frequency) == gain)
        return;
    postUniqueAtFront(this, key, [this, frequency, gain] {
        qInfo() << "[LuVolume] setGain:" << frequency << gain;
        writeGain(frequency, gain);
        m_gains->set(frequency, gain);
        keepGains();
    });
}

void LuVolume::resetGains()
{
    if (!m_volumeEnable || !audioModeEnable())
        return;
    m_resetting = true;
    postUniqueAtFront(this, QStringLiteral("resetGains"), [this] {
        qInfo() << "[LuVolume] resetGains";
        for (const BandRow& band : Bands) {
            writeGain(band.frequency, 0);
            m_gains->set(band.frequency, 0);
        }
        m_resetting = false;
        keepGains();
    });
}

void LuVolume::keepGains()
{
    QJsonObject stored;
    const LuFrequencyGainHash::Gains gains = m_gains->gains();
    for (auto it = gains.begin(); it != gains.end(); ++it) {
        if (const QString name = nameOfBand(it.key()); !name.isEmpty())
            stored.insert(name, it.value());
    }
    setModuleSetting(GainsKey, stored);
    Q_EMIT frequencyGainHashChanged();
}
