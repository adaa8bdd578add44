// SPDX-License-Identifier: Apache-2.0
#include "LuPipPbp.h"

#include "LuPipPbpCodes.h"

#include <LuInputSource.h>
#include <LuShared/LuMonitorModel.h>
#include <ZrCore/ZrDispatch.h>

#include <QDebug>

using namespace LuPipPbpCodes;

namespace {

const QString SetState = QStringLiteral("setState");
const QString SetMode = QStringLiteral("setPippbpMode");

QString textOf(const QHash<int, QString>& table, int value)
{
    return table.value(value);
}

QString modeText(int mode)
{
    static const QHash<int, QString> texts{
        {LuPipPbp::PIP, QStringLiteral("pip")},       {LuPipPbp::PBP, QStringLiteral("pbp2")},
        {LuPipPbp::PBP4, QStringLiteral("pbp4")},     {LuPipPbp::PBP5_9, QStringLiteral("pbp5:9")},
        {LuPipPbp::PBP3_1, QStringLiteral("pbp3:1")}, {LuPipPbp::PBP2_1, QStringLiteral("pbp2:1")},
    };
    return textOf(texts, mode);
}

QString sizeText(int size)
{
    static const QHash<int, QString> texts{
        {LuPipPbp::PIPSmall, QStringLiteral("S")},
        {LuPipPbp::PIPMedium, QStringLiteral("M")},
        {LuPipPbp::PIPLarge, QStringLiteral("L")},
    };
    return textOf(texts, size);
}

QString positionText(int position)
{
    static const QHash<int, QString> texts{
        {LuPipPbp::PIPUpperRight, QStringLiteral("TR")},
        {LuPipPbp::PIPLowerRight, QStringLiteral("BR")},
        {LuPipPbp::PIPUpperLeft, QStringLiteral("TL")},
        {LuPipPbp::PIPLowerLeft, QStringLiteral("BL")},
    };
    return textOf(texts, position);
}

} // namespace

LuPipPbp::LuPipPbp(LuMonitorModel* model, LuInputSource* inputSource)
    : LuModelModuleInterface(model), m_inputSource(inputSource),
      m_pbp4SourceList(QStringList(Pbp4Windows, QString()))
{
}

LuPipPbp::~LuPipPbp() = default;

void LuPipPbp::readSchema(const QByteArray& schema)
{
    QHash<QString, bool> layouts;
    loadVCPFunctionsOnOffByCategory(schema, QStringLiteral("PIP PBP AB"), layouts);
    m_pipEnable = layouts.value(QStringLiteral("PIP"));
    m_pbpEnable = layouts.value(QStringLiteral("PBP"));
    m_pbp5_9Enable = layouts.value(QStringLiteral("PBP 5:9"));
    m_pbp3_1Enable = layouts.value(QStringLiteral("PBP 3:1"));
    m_pbp2_1Enable = layouts.value(QStringLiteral("PBP 2:1"));
    m_pbp4Enable = layouts.value(QStringLiteral("PBPx4"));
    m_pbpAudioSourceEnable = loadVCPFunctionOnOffByCategory(schema, QStringLiteral("PbpAudioSourceEnable"));
    m_swapPipPbpEnable = loadVCPFunctionOnOffByCategory(schema, QStringLiteral("SwapPipPbpEnable"));
    const std::pair<bool, PIPPBPMode> inOrder[] = {
        {m_pipEnable, PIP},       {m_pbpEnable, PBP},       {m_pbp4Enable, PBP4},
        {m_pbp5_9Enable, PBP5_9}, {m_pbp3_1Enable, PBP3_1}, {m_pbp2_1Enable, PBP2_1},
    };
    for (const auto& [enabled, mode] : inOrder) {
        if (enabled) {
            m_mode = mode;
            return;
        }
    }
}

void LuPipPbp::loadSettings()
{
    if (isInert())
        return;
    m_state = moduleSetting(StateKey, m_state.get()).toBool();
    model()->setEcoLockingPaused(m_state);
    m_mode = PIPPBPMode(moduleSetting(ModeKey, int(m_mode.get())).toInt());
    for (const Window& window : windows()) {
        ZrShared<QString>& source = this->*window.source;
        source = moduleSetting(QString::fromLatin1(window.setting), source.get()).toString();
    }
    m_pipSize = PIPSize(moduleSetting(PipSizeKey, int(m_pipSize.get())).toInt());
    m_pipPosition = PIPPosition(moduleSetting(PipPositionKey, int(m_pipPosition.get())).toInt());
    const QStringList list = moduleSetting(Pbp4SourceListKey, m_pbp4SourceList.get()).toStringList();
    if (list.size() == Pbp4Windows)
        m_pbp4SourceList = list;
    m_pbpAudioSource = PBPAudioSource(moduleSetting(PbpAudioSourceKey, int(m_pbpAudioSource.get())).toInt());
}

void LuPipPbp::applyValues()
{
    if (isInert())
        return;
    if (!m_state) {
        applyOff();
        return;
    }
    qInfo() << "[LuPipPbp] apply mode:" << m_mode;
    Q_EMIT stateAboutToBeChanged();
    writeMode();
    applyWindows();
    if (isPbpMode() && m_pbpAudioSourceEnable)
        applyAudioSource();
    Q_EMIT modeChanged();
    Q_EMIT isPbpModeChanged();
    Q_EMIT stateChanged();
    fireOnOffEvent(LuDataCollection::ACT_PIP_PBP, true, LuDataCollection::SOURCE_LAUNCH, parametersStrings());
}

void LuPipPbp::applyOff()
{
    qInfo() << "[LuPipPbp] apply state:" << m_state;
    Q_EMIT stateAboutToBeChanged();
    setVCP(Layout, Off);
    selectWindow(WindowSelectDisable);
    Q_EMIT stateChanged();
    fireOnOffEvent(LuDataCollection::ACT_PIP_PBP, false, LuDataCollection::SOURCE_LAUNCH, {});
}

void LuPipPbp::writeMode()
{
    setVCP(Layout, m_mode);
}

void LuPipPbp::setState(bool state)
{
    if (isInert() || isSettled(SetState, m_state, state))
        return;
    postUniqueAtFront(this, SetState, [this, state] {
        qInfo() << "[LuPipPbp] setState:" << state;
        const bool differs = m_state.set(state);
        model()->setEcoLockingPaused(state);
        Q_EMIT stateAboutToBeChanged();
        if (state) {
            writeMode();
            if (model()->autoSyncEnabled())
                forceSyncHardwareState(false);
        } else {
            setVCP(Layout, Off);
            selectWindow(WindowSelectDisable);
        }
        setModuleSetting(StateKey, state);
        if (differs)
            Q_EMIT stateChanged();
        fireOnOffEvent(LuDataCollection::ACT_PIP_PBP, state, LuDataCollection::SOURCE_USER,
                       state ? parametersStrings() : QList<QString>());
    });
}

void LuPipPbp::setMode(PIPPBPMode mode)
{
    if (isInert() || isSettled(SetMode, m_mode, mode))
        return;
    postUniqueAtFront(this, SetMode, [this, mode] {
        qInfo() << "[LuPipPbp] setMode:" << mode;
        const PIPPBPMode oldMode = m_mode.exchange(mode);
        Q_EMIT modeAboutToBeChanged();
        if (m_state) {
            writeMode();
            if (model()->autoSyncEnabled())
                forceSyncHardwareState(false);
        }
        setModuleSetting(ModeKey, int(mode));
        if (oldMode != mode)
            Q_EMIT modeChanged();
        if (isInPbpFamily(oldMode) != isInPbpFamily(mode))
            Q_EMIT isPbpModeChanged();
    });
}

void LuPipPbp::forceOpenPbp()
{
    if (isInert())
        return;
    if (isPbpMode()) {
        setState(true);
        return;
    }
    if (m_state) {
        setMode(PBP);
        return;
    }
    // A mode that was asked for before must not come after this one.
    dispatch()->remove(this, SetMode, false);
    m_mode = PBP;
    setModuleSetting(ModeKey, int(PBP));
    Q_EMIT modeAboutToBeChanged();
    setState(true);
    Q_EMIT modeChanged();
    Q_EMIT isPbpModeChanged();
}

void LuPipPbp::swapPipPbp()
{
    if (!m_swapPipPbpEnable || !m_state)
        return;
    postUniqueAtFront(this, QStringLiteral("swapPipPbp"), [this] {
        qInfo() << "[LuPipPbp] swapPipPbp";
        setVCP(Swap, 1);
        // The monitor exchanges the pictures: what each part shows now is asked for, of the main one too.
        forceSyncHardwareState(false);
        m_inputSource->forceSyncHardwareState(false);
        Q_EMIT swapped();
    });
}

LuSyncTasks* LuPipPbp::syncPeriodically()
{
    if (isInert())
        return nullptr;
    auto* tasks = new LuSyncTasks(QStringLiteral("LuPipPbp"));
    tasks->addTask([this, tasks, first = model()->isFirstTimeConnected()] { syncLayout(tasks, first); });
    return tasks;
}

void LuPipPbp::syncLayout(LuSyncTasks* tasks, bool firstConnection)
{
    qInfo() << "[LuPipPbp] sync:" << model()->modelName();
    int reading = 0;
    if (!getVCP(Layout, reading))
        return;
    const bool hardwareOn = reading != Off;
    const bool wasOn = m_state;
    Found found;
    // Off, the mode stays: turning the layout on brings the last one back.
    if (hardwareOn)
        syncMode(tasks, PIPPBPMode(reading), found);
    if (hardwareOn != wasOn) {
        qInfo() << "[LuPipPbp] sync state changed:" << hardwareOn;
        m_state = hardwareOn;
        model()->setEcoLockingPaused(hardwareOn);
        setModuleSetting(StateKey, hardwareOn);
        Q_EMIT stateChanged();
    }
    reportSync(wasOn, firstConnection, found);
}

void LuPipPbp::syncMode(LuSyncTasks* tasks, PIPPBPMode reading, Found& found)
{
    const PIPPBPMode oldMode = m_mode;
    found.modeDiffers = oldMode != reading;
    syncWindows(tasks, reading, found);
    // While the windows were read, a person has turned a layout on: it comes next and is not to be lost.
    if (!m_state && dispatch()->has(this, SetState)) {
        found.modeDiffers = false;
        return;
    }
    if (takeReported(m_mode, reading, ModeKey, "[LuPipPbp] sync mode changed:", &LuPipPbp::modeChanged) &&
        isInPbpFamily(oldMode) != isInPbpFamily(reading))
        Q_EMIT isPbpModeChanged();
    if (isPbpMode() && m_pbpAudioSourceEnable)
        tasks->addSubTask([this] { syncAudioSource(); });
}

void LuPipPbp::reportSync(bool wasOn, bool firstConnection, const Found& found)
{
    const bool isOn = m_state;
    if (firstConnection && isOn)
        fireOnOffEvent(LuDataCollection::ACT_PIP_PBP, true, LuDataCollection::SOURCE_FIRST_CONNECT,
                       parametersStrings());
    else if (isOn != wasOn)
        fireOnOffEvent(LuDataCollection::ACT_PIP_PBP, isOn, LuDataCollection::SOURCE_SYNC,
                       isOn ? parametersStrings() : QList<QString>());
    else if (isOn && (found.modeDiffers || found.sizeOrPositionDiffers))
        fireCustomEvent(LuDataCollection::ACT_PIP_PBP, QStringLiteral("on_update_setting"),
                        LuDataCollection::SOURCE_SYNC, parametersStrings());
}

void LuPipPbp::onFireUpdateSettingEventRequested(const QHash<QString, QVariant>& parameters,
                                                 LuDataCollection::TriggerSource source)
{
    bool differs = parameters.value(ModeKey).toInt() != m_mode;
    if (m_mode == PIP)
        differs = differs || parameters.value(PipSizeKey).toInt() != m_pipSize ||
                  parameters.value(PipPositionKey).toInt() != m_pipPosition;
    if (m_state && differs)
        fireCustomEvent(LuDataCollection::ACT_PIP_PBP, QStringLiteral("on_update_setting"), source,
                        parametersStrings());
}

void LuPipPbp::fireExitEvent()
{
    if (!isInert() && m_state)
        fireOnOffEvent(LuDataCollection::ACT_PIP_PBP, false, LuDataCollection::SOURCE_EXIT, {});
}

QList<QString> LuPipPbp::parametersStrings() const
{
    const QString none = QStringLiteral("n/a");
    const bool isPip = m_mode == PIP;
    return {modeText(m_mode), isPip ? sizeText(m_pipSize) : none, isPip ? positionText(m_pipPosition) : none};
}
