// SPDX-License-Identifier: Apache-2.0
#include "LuSmartKvmBasic.h"

#include <LuInputSource.h>
#include <LuPipPbp.h>
#include <LuShared/LuMonitorModel.h>
#include <LuShared/LuPlatform.h>
#include <LuShared/LuPlatformNotifications.h>
#include <PanelCore/MonitorInfo.h>
#include <ZrCore/ZrDispatch.h>

#include <QDebug>

#include <optional>

namespace {

const QString StateKey = QStringLiteral("state");
const QString LocationKey = QStringLiteral("KvmLocation");
const QString SwitchJob = QStringLiteral("kvmChanged");

constexpr QLatin1String SchemaType("SmartKvmBasic");
constexpr QLatin1String UsbC("USB-C");

/// The input beside the main one; nothing for a layout of more than two.
std::optional<QString> subSource(const LuPipPbp& pipPbp)
{
    switch (pipPbp.mode()) {
    case LuPipPbp::PBP:
        return pipPbp.pbpSource();
    case LuPipPbp::PBP5_9:
        return pipPbp.pbp5_9Source();
    case LuPipPbp::PBP3_1:
        return pipPbp.pbp3_1Source();
    case LuPipPbp::PBP2_1:
        return pipPbp.pbp2_1Source();
    default:
        return std::nullopt;
    }
}

} // namespace

LuSmartKvmBasic::LuSmartKvmBasic(LuMonitorModel* model, LuPipPbp* pipPbp, LuInputSource* inputSource,
                                 LuKvmSwitch* kvmSwitch)
    : LuModelModuleInterface(model), m_pipPbp(pipPbp), m_kvm(LuKvm::instance()), m_kvmSwitch(kvmSwitch),
      m_inputSource(inputSource)
{
    connectModules();
    connect(m_kvm, &LuKvm::kvmChanged, this, [this] { onKvmChanged(); });
    connect(LuPlatformNotifications::instance(), &LuPlatformNotifications::screenGeometryChanged, this,
            [this] { updateScreenRect(); });
    connect(model, &MonitorModel::screenChanged, this, [this] { updateScreenRect(); });
    connect(m_kvm, &LuKvm::deviceLocationChanged, this, &LuSmartKvmBasic::deviceLocationChanged);
    updateScreenRect();
}

LuSmartKvmBasic::~LuSmartKvmBasic()
{
    // The edge of a monitor that is gone is nobody's.
    if (m_basicState)
        m_kvm->deactivate();
}

// Direct: what follows from a change of the layout holds before the next job of the monitor runs.
void LuSmartKvmBasic::connectModules()
{
    connect(
        m_pipPbp, &LuPipPbp::stateChanged, this,
        [this] {
            if (!m_pipPbp->state() && isOn())
                turnOff();
        },
        Qt::DirectConnection);
    connect(m_pipPbp, &LuPipPbp::modeChanged, this, &LuSmartKvmBasic::onLayoutChanged, Qt::DirectConnection);
    for (const auto signal : {&LuPipPbp::pbpSourceChanged, &LuPipPbp::pbp5_9SourceChanged,
                              &LuPipPbp::pbp3_1SourceChanged, &LuPipPbp::pbp2_1SourceChanged})
        connect(m_pipPbp, signal, this, &LuSmartKvmBasic::updateTargetKvmUsb, Qt::DirectConnection);
    connect(m_pipPbp, &LuPipPbp::swapped, this, &LuSmartKvmBasic::onSwapped, Qt::DirectConnection);
    connect(m_inputSource, &LuInputSource::currentMainInputSourceChanged, this,
            &LuSmartKvmBasic::onMainSourceChanged, Qt::DirectConnection);
}

bool LuSmartKvmBasic::isEnabled() const
{
    return m_smartKvmBasicEnable;
}

bool LuSmartKvmBasic::isOn() const
{
    return m_basicState;
}

void LuSmartKvmBasic::turnOff()
{
    setBasicState(false);
}

LuKvm::KvmDeviceLocation LuSmartKvmBasic::deviceLocation() const
{
    return m_kvm->getKvmDeviceLocation();
}

void LuSmartKvmBasic::readSchema(const QByteArray& schema)
{
    QString type;
    m_smartKvmBasicEnable =
        loadVCPFunctionStringByCategory(schema, QStringLiteral("SmartKvm Type"), type) && type == SchemaType;
    if (m_smartKvmBasicEnable)
        m_kvm->setKvmType(LuKvm::SmartKvmBasic);
}

void LuSmartKvmBasic::onInitialSync()
{
    if (isEnabled())
        updateKvmActivation();
}

// The members are this computer's: the monitor holds nothing of them.
LuSyncTasks* LuSmartKvmBasic::syncPeriodically()
{
    return nullptr;
}

void LuSmartKvmBasic::loadSettings()
{
    if (!m_smartKvmBasicEnable)
        return;
    m_basicState = moduleSetting(StateKey, m_basicState.get()).toBool();
    loadDeviceLocation();
}

void LuSmartKvmBasic::loadDeviceLocation()
{
    m_kvm->setKvmDeviceLocation(
        LuKvm::KvmDeviceLocation(moduleSetting(LocationKey, int(deviceLocation())).toInt()));
}

void LuSmartKvmBasic::applyValues()
{
    if (!m_smartKvmBasicEnable)
        return;
    qInfo() << "[LuSmartKvmBasic] apply state:" << m_basicState;
    qInfo() << "[LuSmartKvmBasic] apply device location:" << deviceLocation();
    updateKvmActivation();
    if (!m_basicState)
        m_kvmSwitch->setKvmSwitch(LuKvmSwitch::Auto, true);
    Q_EMIT basicStateChanged();
}

void LuSmartKvmBasic::setBasicState(bool state)
{
    // One step: the user's switch and a layout that closes may come at once, on two threads.
    if (!m_smartKvmBasicEnable || !m_basicState.set(state))
        return;
    qInfo() << "[LuSmartKvmBasic] setBasicState:" << state;
    updateKvmActivation();
    if (!state)
        m_kvmSwitch->setKvmSwitch(LuKvmSwitch::Auto, true);
    setModuleSetting(StateKey, state);
    Q_EMIT basicStateChanged();
}

void LuSmartKvmBasic::setDeviceLocation(LuKvm::KvmDeviceLocation location)
{
    if (!isEnabled() || location == deviceLocation())
        return;
    m_kvm->setKvmDeviceLocation(location);
    qInfo() << "[LuSmartKvmBasic] set Device Location: " << location;
    setModuleSetting(LocationKey, int(location));
    updateTargetKvmUsb();
}

void LuSmartKvmBasic::updateKvmActivation()
{
    if (!isOn()) {
        // A crossing that still waits would take the hub from where it goes now.
        dispatch()->remove(this, SwitchJob, false);
        m_kvm->deactivate();
        return;
    }
    updateScreenRect();
    activate();
    updateTargetKvmUsb();
}

void LuSmartKvmBasic::activate()
{
    m_kvm->activate();
    // Switched off meanwhile on another thread, the service was perhaps told so before.
    if (!isOn())
        m_kvm->deactivate();
}

void LuSmartKvmBasic::updateScreenRect()
{
    if (isOn())
        m_kvm->setScreenRect(LuPlatform::getNativeScreenRect(handler()->nativeHandle()));
}

void LuSmartKvmBasic::onLayoutChanged()
{
    if (!m_pipPbp->isPbpMode() && isOn())
        turnOff();
    else
        updateTargetKvmUsb();
}

void LuSmartKvmBasic::onSwapped()
{
    if (m_pipPbp->isPbpMode() && isOn())
        setDeviceLocation(deviceLocation() == LuKvm::LeftLocation ? LuKvm::RightLocation
                                                                  : LuKvm::LeftLocation);
}

void LuSmartKvmBasic::onMainSourceChanged()
{
    if (m_pipPbp->isPbpMode() && isOn())
        updateTargetKvmUsb();
}

void LuSmartKvmBasic::updateTargetKvmUsb()
{
    if (!m_pipPbp->isPbpMode() || !isOn())
        return;
    const LuKvm::KvmDeviceLocation location = deviceLocation();
    const std::optional<QString> sub = subSource(*m_pipPbp);
    if (!sub) {
        m_targetKvmUsb = LuKvmSwitch::TypeC;
        qWarning() << "[LuSmartKvmBasic] can't mapping Pbp mode set target kvm usb:" << LuKvmSwitch::TypeC;
        return;
    }
    // This computer is not on USB-C: the other one is.
    const QString main = m_inputSource->currentMainInputSource();
    if ((location == LuKvm::LeftLocation && !main.contains(UsbC)) ||
        (location == LuKvm::RightLocation && !sub->contains(UsbC))) {
        setTarget(LuKvmSwitch::TypeC);
        return;
    }
    QList<int> others = m_kvmSwitch->kvmSwitchList();
    others.removeAll(LuKvmSwitch::Auto);
    others.removeAll(LuKvmSwitch::TypeC);
    if (others.isEmpty()) {
        m_targetKvmUsb = LuKvmSwitch::TypeC;
        qWarning() << "[LuSmartKvmBasic] can't find the target kvm usb set default kvm usb:"
                   << LuKvmSwitch::TypeC;
        return;
    }
    setTarget(LuKvmSwitch::KvmSwitch(others.last()));
}

void LuSmartKvmBasic::setTarget(LuKvmSwitch::KvmSwitch target)
{
    m_targetKvmUsb = target;
    qInfo() << "[LuSmartKvmBasic] set target kvm usb:" << target;
}

void LuSmartKvmBasic::onKvmChanged()
{
    if (isOn())
        switchHub();
}

void LuSmartKvmBasic::switchHub()
{
    m_kvm->deactivate();
    dispatch()->postUnique(this, SwitchJob, [this] {
        if (!isOn())
            return;
        m_kvmSwitch->writeKvmSwitch(m_targetKvmUsb);
        m_kvmSwitch->syncKvmSwitch();
        updateScreenRect();
        if (!isOn()) {
            // Whoever switched it off may have met a hub that was not switched yet, with nothing to free.
            m_kvmSwitch->setKvmSwitch(LuKvmSwitch::Auto, true);
            return;
        }
        // While another crossing waits the service rests.
        if (!dispatch()->has(this, SwitchJob))
            activate();
    });
}
