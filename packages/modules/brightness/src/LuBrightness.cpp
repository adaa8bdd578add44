// SPDX-License-Identifier: Apache-2.0
#include "LuBrightness.h"

#include "LuDimmingTable.h"

#include <LuShared/LuColorModeKey.h>
#include <LuShared/LuMonitorModel.h>
#include <LuShared/LuPlatform.h>
#include <LuShared/LuPlatformNotifications.h>
#include <ZrCore/ZrDispatch.h>

#include <QDebug>

#include <cmath>

namespace {

constexpr int Lowest = 0;
constexpr int Highest = 100;
constexpr double ShortcutStep = 5.0;
constexpr const char* BrightnessName = "displayBrightness";

const QString SetBrightness = QStringLiteral("setDisplayBrightness");
const QString SyncSystemBrightness = QStringLiteral("syncSystemBrightness");
const QString DimmingKey = QStringLiteral("softwareDimming");
const QString OldDimmingKey = QStringLiteral("SoftwareDimming/state");
const QString BaselineKey = QStringLiteral("syncBaseline");

} // namespace

LuBrightness::LuBrightness(LuMonitorModel* model)
    : LuModelModuleInterface(model), m_brightnessSyncEnable(model->isModelBuiltIn())
{
    if (!model->isModelSupported()) {
        // The built-in panel, and any monitor whose brightness the system has.
        LuPlatform::registerBrightnessChangeNotifications(handler());
        connect(LuPlatformNotifications::instance(), &LuPlatformNotifications::systemBrightnessChanged, this,
                &LuBrightness::syncSystemBrightness);
    }
    m_softwareDimming = new LuSoftwareDimming(this, model);
    model->registerForceSyncPairs(model, QMetaMethod::fromSignal(&LuMonitorModel::colorModeChanged),
                                  QStringLiteral("LuBrightness"));
    // At once, on the thread that changes the mode: the read-back that follows takes the new mode's values.
    connect(model, &LuMonitorModel::colorModeChanged, this, &LuBrightness::forgetMode, Qt::DirectConnection);
    connect(model, &LuMonitorModel::colorModeChanged, this, &LuBrightness::colorModeNameChanged);
}

LuBrightness::~LuBrightness() = default;

void LuBrightness::readSchema(const QByteArray& schema)
{
    using LuPictureValues::Kind;
    const auto supported = [&](const QString& category, Kind kind) {
        QList<int> numbers;
        for (const QString& type : loadVCPFunctionTypesByCategory(schema, category))
            numbers.append(LuPictureValues::fromText(kind, type));
        return numbers;
    };
    m_sixAxisEnable = loadVCPFunctionOnOffByCategory(schema, QStringLiteral("SixAxis"));
    m_brightnessSyncEnable = model()->isModelBuiltIn() ||
                             loadVCPFunctionOnOffByCategory(schema, QStringLiteral("Brightness Sync"));
    m_supportedGamma = supported(QStringLiteral("Gamma"), Kind::Gamma);
    m_supportedGamut = supported(QStringLiteral("Gamut"), Kind::Gamut);
    m_supportedPresetColorTemp = supported(QStringLiteral("ColorTemperature"), Kind::ColorTemperature);
    if (m_supportedPresetColorTemp.isEmpty())
        m_supportedPresetColorTemp = {LuVCPNode::ColorTemperature_5000, LuVCPNode::ColorTemperature_6500,
                                      LuVCPNode::ColorTemperature_9300};
}

QString LuBrightness::modeKey(const char* name) const
{
    return colorModeSettingKey(model(), QString::fromLatin1(name));
}

void LuBrightness::loadSettings()
{
    bool isNumber = false;
    const int stored = moduleSetting(modeKey(BrightnessName), QVariant()).toInt(&isNumber);
    m_settingsLoaded = true;
    m_brightnessKnown = isNumber;
    if (isNumber)
        m_brightness = qBound(Lowest, stored, Highest);
    if (model()->colorMode())
        loadControls();
    restoreDimming();
    m_syncBaseline = moduleSetting(BaselineKey, m_syncBaseline.get()).toInt();
}

void LuBrightness::restoreDimming()
{
    if (hasMonitorSetting(OldDimmingKey)) {
        if (!hasModuleSetting(DimmingKey))
            setModuleSetting(DimmingKey, monitorSetting(OldDimmingKey, false).toBool());
        removeMonitorSetting(OldDimmingKey);
    }
    if (!m_brightnessKnown)
        return;
    m_softwareDimming->restoreState(moduleSetting(DimmingKey, model()->isModelSupported()).toBool());
    if (m_softwareDimming->active())
        m_softwareDimming->adjustOpacity(m_brightness);
}

void LuBrightness::applyValues()
{
    applyBrightness();
    if (!model()->isModelSupported())
        return;
    fireOnOffEvent(LuDataCollection::ACT_SOFTWARE_DIMMING, m_softwareDimming->state(),
                   LuDataCollection::SOURCE_LAUNCH, {});
    if (model()->colorMode())
        applyControls();
}

// In a colour mode that nobody has used yet there is nothing to restore: the first value would be black.
void LuBrightness::applyBrightness()
{
    if (!m_brightnessKnown && m_settingsLoaded)
        return;
    if (model()->isModelSupported()) {
        const int hardware = hardwareValueOf(m_brightness);
        qInfo() << "[LuBrightness] apply hardware brightness:" << hardware;
        model()->setBrightness(hardware, 0);
    } else {
        qInfo() << "[LuBrightness] apply system brightness:" << m_brightness;
        LuPlatform::setMonitorBrightness(handler(), m_brightness / double(Highest));
    }
    Q_EMIT displayBrightnessChanged(false);
    fireBrightness(LuDataCollection::SOURCE_LAUNCH);
}

void LuBrightness::fireBrightness(LuDataCollection::TriggerSource source)
{
    fireCustomEvent(LuDataCollection::ACT_BRIGHTNESS, QString(), source, {QString::number(m_brightness)});
}

int LuBrightness::hardwareValueOf(int brightness) const
{
    return m_softwareDimming->active() ? LuDimmingTable::hardwareValue(brightness) : brightness;
}

bool LuBrightness::hasBrightness() const
{
    return m_brightnessKnown || askedBrightness() != 0 || !model()->isModelSupported();
}

int LuBrightness::askedBrightness() const
{
    return m_takenCalls == m_askedCalls.get() ? m_brightness : m_asked;
}

void LuBrightness::setDisplayBrightness(int value, bool force, bool post, bool byUser)
{
    value = qBound(Lowest, value, Highest);
    if (!force && isSettled(SetBrightness, m_brightness, value)) {
        m_takenCalls = m_askedCalls.get();
        return;
    }
    const int call = m_askedCalls + 1;
    m_asked = value;
    m_askedCalls = call;
    auto job = [this, value, byUser, call, byShortcut = m_byShortcut] {
        if (model()->isModelSupported())
            changeMonitorBrightness(value, byUser, byShortcut);
        else
            changeSystemBrightness(value, byUser);
        m_takenCalls = call;
    };
    if (post) {
        postUniqueAtFront(this, SetBrightness, std::move(job));
    } else {
        dispatch()->remove(this, SetBrightness, false);
        job();
    }
}

void LuBrightness::changeMonitorBrightness(int value, bool byUser, bool byShortcut)
{
    const int hardware = hardwareValueOf(value);
    if (m_softwareDimming->active())
        m_softwareDimming->adjustOpacity(value);
    if (m_hardwareBrightnessEnable) {
        qInfo() << "[LuBrightness] set hardware brightness:" << hardware;
        model()->setBrightness(hardware, 0);
    }
    keepBrightness(value);
    if (byShortcut)
        fireCustomEvent(LuDataCollection::ACT_BRIGHTNESS, QStringLiteral("on_update_setting"),
                        LuDataCollection::SOURCE_USER, {QString::number(value)});
    Q_EMIT displayBrightnessChanged(byUser);
}

void LuBrightness::changeSystemBrightness(int value, bool byUser)
{
    qInfo() << "[LuBrightness] set system brightness:" << value;
    LuPlatform::setMonitorBrightness(handler(), value / double(Highest));
    keepBrightness(value);
    Q_EMIT displayBrightnessChanged(byUser);
}

void LuBrightness::keepBrightness(int value)
{
    m_brightness = value;
    m_brightnessKnown = true;
    setModuleSetting(modeKey(BrightnessName), value);
}

void LuBrightness::onInitialSync()
{
    if (model()->isModelBuiltIn())
        syncSystemBrightness();
    else if (!model()->isModelSupported())
        dispatch()->postUnique(this, SyncSystemBrightness, [this] { syncSystemBrightness(); });
    if (model()->isFirstTimeConnected() && m_softwareDimming->active())
        fireOnOffEvent(LuDataCollection::ACT_SOFTWARE_DIMMING, true, LuDataCollection::SOURCE_FIRST_CONNECT,
                       {});
}

void LuBrightness::syncSystemBrightness()
{
    const double fraction = LuPlatform::getMonitorBrightness(handler());
    if (fraction < 0) // a monitor that tells nothing
        return;
    const int value = qBound(Lowest, int(std::lround(fraction * Highest)), Highest);
    m_brightnessKnown = true;
    takeReported(m_brightness, value, modeKey(BrightnessName),
                 "[LuBrightness] sync system brightness changed:", &LuBrightness::announceReadBrightness);
}

LuSyncTasks* LuBrightness::syncPeriodically()
{
    if (!model()->isModelSupported() || !model()->colorMode())
        return nullptr;
    auto* tasks = new LuSyncTasks(QStringLiteral("LuBrightness"));
    tasks->addTask([this, first = model()->isFirstTimeConnected()] { syncBrightness(first); });
    addControlTasks(tasks);
    return tasks;
}

void LuBrightness::syncBrightness(bool firstConnection)
{
    qInfo() << "[LuBrightness] sync:" << model()->modelName();
    int value = 0;
    const bool dimmed = m_softwareDimming->active();
    if (!m_hardwareBrightnessEnable || !model()->getBrightness(value))
        return;
    // Dimming was switched while the answer was on its way: the answer belongs to the mapping before, and
    // what was asked for meanwhile is written next.
    if (dimmed != m_softwareDimming->active() || dispatch()->has(this, SetBrightness))
        return;
    if (dimmed) {
        value = LuDimmingTable::fromHardware(m_softwareDimming->opacity(), value);
        m_softwareDimming->adjustOpacity(value);
    }
    if (!m_brightnessKnown.exchange(true))
        setModuleSetting(modeKey(BrightnessName), qBound(Lowest, value, Highest));
    if (takeReported(
            m_brightness, qBound(Lowest, value, Highest), modeKey(BrightnessName),
            "[LuBrightness] sync hardware brightness changed:", &LuBrightness::announceReadBrightness))
        fireBrightness(LuDataCollection::syncSource(firstConnection));
}

void LuBrightness::registerShortcutActions()
{
    registerShortcutAction(LuShortcutAction::Brightness_Decrease,
                           [this](const QKeyEvent&) { return stepBrightness(-1); });
    registerShortcutAction(LuShortcutAction::Brightness_Increase,
                           [this](const QKeyEvent&) { return stepBrightness(+1); });
}

bool LuBrightness::stepBrightness(int direction)
{
    // A step from a value that nobody knows would make the picture black.
    if (!hasBrightness()) {
        forceSyncHardwareState(false);
        return true;
    }
    // A held key repeats faster than a monitor follows: each press counts from what was asked for last.
    const int from = askedBrightness();
    const double steps = from / ShortcutStep;
    const double grid = direction < 0 ? std::ceil(steps) : std::floor(steps);
    const auto target = [&](int count) {
        return qBound(Lowest, qRound((grid + count * direction) * ShortcutStep), Highest);
    };
    m_byShortcut = true;
    setDisplayBrightness(target(1) != from ? target(1) : target(2), false, true, true);
    m_byShortcut = false;
    return true;
}

void LuBrightness::setHardwareBrightnessEnable(bool enable)
{
    if (m_hardwareBrightnessEnable.set(enable))
        Q_EMIT hardwareBrightnessEnableChanged();
}

void LuBrightness::setBacklightControlEnabled(bool enabled)
{
    if (m_backlightControlEnabled.set(enabled))
        Q_EMIT backlightControlEnabledChanged();
}

void LuBrightness::setSyncBaseline(int baseline)
{
    if (m_syncBaseline == baseline)
        return;
    takeAsked(m_syncBaseline, baseline, BaselineKey,
              "[LuBrightness] set sync baseline:", &LuBrightness::syncBaselineChanged, [] {});
}

QString LuBrightness::colorModeName() const
{
    const LuVCPNode* node = model()->colorMode();
    return node ? node->displayName() : QString();
}

void LuBrightness::setColorModeName(const QString& name)
{
    model()->setColorMode(model()->getColorModeByName(name));
}
