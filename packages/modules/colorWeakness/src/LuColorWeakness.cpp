// SPDX-License-Identifier: Apache-2.0
#include "LuColorWeakness.h"

#include <LuShared/LuMonitorModel.h>

#include <QDebug>

namespace {

constexpr int WeaknessCode = 0xFD;
constexpr int WeaknessShift = 8;
constexpr int FieldMask = 0xFF;

const QString ModeKey = QStringLiteral("mode");
const QString WeaknessKey = QStringLiteral("weakness");

bool fitsField(const char* what, int value)
{
    if (value >= 0 && value <= FieldMask)
        return true;
    qWarning().nospace() << "[LuColorWeakness] " << what << " " << value << " is not in 0 to " << FieldMask;
    return false;
}

} // namespace

LuColorWeakness::LuColorWeakness(LuMonitorModel* model) : LuModelModuleInterface(model)
{
    model->registerForceSyncPairs(model, QMetaMethod::fromSignal(&LuMonitorModel::colorModeChanged),
                                  QStringLiteral("LuColorWeakness"));
}

LuColorWeakness::~LuColorWeakness() = default;

void LuColorWeakness::readSchema(const QByteArray& schema)
{
    m_colorWeaknessEnable = loadVCPFunctionOnOffByCategory(schema, QStringLiteral("ColorWeakness"));
}

void LuColorWeakness::loadSettings()
{
    if (!m_colorWeaknessEnable)
        return;
    m_mode = ColorWeaknessMode(moduleSetting(ModeKey, int(m_mode.get())).toInt() & FieldMask);
    m_weakness = moduleSetting(WeaknessKey, m_weakness.get()).toInt() & FieldMask;
}

void LuColorWeakness::applyValues()
{
    if (!m_colorWeaknessEnable)
        return;
    qInfo() << "[LuColorWeakness] apply mode:" << m_mode;
    qInfo() << "[LuColorWeakness] apply weakness:" << m_weakness;
    writeFields();
    Q_EMIT modeChanged();
    Q_EMIT weaknessChanged();
    fireOnOff(LuDataCollection::SOURCE_LAUNCH);
}

void LuColorWeakness::setMode(ColorWeaknessMode mode)
{
    const QString key = QStringLiteral("setMode");
    if (!m_colorWeaknessEnable || !fitsField("mode", mode) || isSettled(key, m_mode, mode))
        return;
    postUniqueAtFront(this, key, [this, mode] {
        takeAsked(m_mode, mode, ModeKey, "[LuColorWeakness] set mode:", &LuColorWeakness::modeChanged,
                  [this] { writeFields(); });
    });
}

void LuColorWeakness::setWeakness(int weakness)
{
    const QString key = QStringLiteral("setWeakness");
    if (!m_colorWeaknessEnable || !fitsField("weakness", weakness) || isSettled(key, m_weakness, weakness))
        return;
    postUniqueAtFront(this, key, [this, weakness] {
        takeAsked(m_weakness, weakness, WeaknessKey,
                  "[LuColorWeakness] set weakness: ", &LuColorWeakness::weaknessChanged,
                  [this] { writeFields(); });
    });
}

void LuColorWeakness::writeFields()
{
    setVCP(WeaknessCode, (m_weakness << WeaknessShift) | m_mode);
}

LuSyncTasks* LuColorWeakness::syncPeriodically()
{
    if (!m_colorWeaknessEnable)
        return nullptr;
    auto* tasks = new LuSyncTasks(QStringLiteral("LuColorWeakness"));
    tasks->addTask([this, first = model()->isFirstTimeConnected()] { syncFields(first); });
    return tasks;
}

void LuColorWeakness::syncFields(bool firstConnection)
{
    qInfo() << "[LuColorWeakness] sync:" << model()->modelName();
    int value = 0;
    if (!getVCP(WeaknessCode, value))
        return;
    const bool wasOn = isOn();
    const bool modeDiffers =
        takeReported(m_mode, ColorWeaknessMode(value & FieldMask), ModeKey,
                     "[LuColorWeakness] sync mode changed:", &LuColorWeakness::modeChanged);
    const bool weaknessDiffers =
        takeReported(m_weakness, (value >> WeaknessShift) & FieldMask, WeaknessKey,
                     "[LuColorWeakness] sync weakness changed:", &LuColorWeakness::weaknessChanged);
    if (firstConnection && isOn())
        fireOnOff(LuDataCollection::SOURCE_FIRST_CONNECT);
    else if (wasOn != isOn())
        fireOnOff(LuDataCollection::SOURCE_SYNC);
    else if (modeDiffers || weaknessDiffers)
        fireCustomEvent(LuDataCollection::ACT_COLOR_WEAKNESS, QStringLiteral("on_update_setting"),
                        LuDataCollection::SOURCE_SYNC, parametersStrings());
}

void LuColorWeakness::onFireUpdateSettingEventRequested(const QHash<QString, QVariant>& parameters,
                                                        LuDataCollection::TriggerSource source)
{
    const int modeBefore = parameters.value(ModeKey).toInt();
    const int weaknessBefore = parameters.value(WeaknessKey).toInt();
    if ((modeBefore != NoFilter) != isOn())
        fireOnOff(source);
    if (modeBefore != m_mode || weaknessBefore != m_weakness)
        fireCustomEvent(LuDataCollection::ACT_COLOR_WEAKNESS, QStringLiteral("on_update_setting"), source,
                        parametersStrings());
}

void LuColorWeakness::fireExitEvent()
{
    if (m_colorWeaknessEnable && isOn())
        fireOnOffEvent(LuDataCollection::ACT_COLOR_WEAKNESS, false, LuDataCollection::SOURCE_EXIT, {});
}

void LuColorWeakness::fireOnOff(LuDataCollection::TriggerSource source)
{
    fireOnOffEvent(LuDataCollection::ACT_COLOR_WEAKNESS, isOn(), source,
                   isOn() ? parametersStrings() : QList<QString>());
}

QList<QString> LuColorWeakness::parametersStrings() const
{
    return {QStringLiteral("%1%2")
                .arg(m_mode == RedFilter ? QLatin1Char('r') : QLatin1Char('g'))
                .arg(m_weakness)};
}
