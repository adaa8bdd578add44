// SPDX-License-Identifier: Apache-2.0
#include "LuSmartKvm.h"

#include <LuShared/LuMonitorModel.h>
#include <ZrCore/ZrDispatch.h>

#include <QDebug>

namespace {

constexpr int DriverCode = 0x6F;
constexpr int Open = 1;
constexpr int Closed = 0;

const QString StateKey = QStringLiteral("state");
const QString SetState = QStringLiteral("setState");

constexpr QLatin1String SchemaType("SmartKvm");

} // namespace

LuSmartKvm::LuSmartKvm(LuMonitorModel* model, LuPipPbp* pipPbp, LuInputSource* inputSource,
                       LuKvmSwitch* kvmSwitch)
    : LuSmartKvmBasic(model, pipPbp, inputSource, kvmSwitch), m_isConnected(LuKvm::instance()->isConnected()),
      m_isDriverInstalled(LuKvm::instance()->isDriverInstalled())
{
}

LuSmartKvm::~LuSmartKvm()
{
    if (m_state)
        LuKvm::instance()->deactivate();
}

void LuSmartKvm::readSchema(const QByteArray& schema)
{
    LuSmartKvmBasic::readSchema(schema);
    QString type;
    m_smartKvmEnable =
        loadVCPFunctionStringByCategory(schema, QStringLiteral("SmartKvm Type"), type) && type == SchemaType;
    if (m_smartKvmEnable)
        LuKvm::instance()->setKvmType(LuKvm::SmartKvm);
}

bool LuSmartKvm::isEnabled() const
{
    return m_smartKvmEnable;
}

bool LuSmartKvm::isOn() const
{
    return m_state;
}

void LuSmartKvm::turnOff()
{
    setState(false);
}

void LuSmartKvm::loadSettings()
{
    if (!m_smartKvmEnable)
        return;
    m_state = moduleSetting(StateKey, m_state.get()).toBool();
    loadDeviceLocation();
}

void LuSmartKvm::applyValues()
{
    if (!m_smartKvmEnable)
        return;
    qInfo() << "[LuSmartKvm] apply state:" << m_state;
    qInfo() << "[LuSmartKvm] apply device location:" << deviceLocation();
    writeState(m_state, true);
    Q_EMIT stateChanged();
}

void LuSmartKvm::setState(bool state, bool post)
{
    if (!m_smartKvmEnable || isSettled(SetState, m_state, state))
        return;
    auto job = [this, state, post] {
        takeAsked(m_state, state, StateKey, "[LuSmartKvm] setState:", &LuSmartKvm::stateChanged,
                  [this, state, post] { writeState(state, post); });
    };
    if (post) {
        postUniqueAtFront(this, SetState, std::move(job));
    } else {
        dispatch()->remove(this, SetState, false);
        job();
    }
}

// The channel stands before the driver uses it, and as long as it does.
void LuSmartKvm::writeState(bool state, bool post)
{
    if (state) {
        setVCP(DriverCode, Open);
        updateKvmActivation();
    } else {
        updateKvmActivation();
        setVCP(DriverCode, Closed);
        kvmSwitch()->setKvmSwitch(LuKvmSwitch::Auto, post);
    }
}

void LuSmartKvm::installDriver()
{
    if (!m_smartKvmEnable)
        return;
    postUniqueAtFront(this, QStringLiteral("installDriver"), [this] {
        setVCP(DriverCode, Open);
        LuKvm::instance()->installDriver();
    });
}

// One signal tells of a crossing and of the driver: where the driver's facts differ, it was not a crossing.
void LuSmartKvm::onKvmChanged()
{
    const bool connectionDiffers = m_isConnected.set(LuKvm::instance()->isConnected());
    const bool driverDiffers = m_isDriverInstalled.set(LuKvm::instance()->isDriverInstalled());
    if (driverDiffers)
        Q_EMIT isDriverInstalledChanged();
    if (connectionDiffers)
        Q_EMIT isConnectedChanged();
    if (!connectionDiffers && !driverDiffers)
        LuSmartKvmBasic::onKvmChanged();
}
