// SPDX-License-Identifier: Apache-2.0
#include "LuDaisyChain.h"

#include <LuShared/LuMonitorModel.h>
#include <ZrCore/ZrEnvironment.h>

#include <QDebug>

namespace {

constexpr int ChainCode = 0xE6;
constexpr int On = 1;
constexpr int Off = 0;

const QString StateKey = QStringLiteral("state");

} // namespace

LuDaisyChain::LuDaisyChain(LuMonitorModel* model)
    : LuModelModuleInterface(model),
      m_daisyChainEnable(ZrEnvironment::varDeviceChoice(QStringLiteral("using.daisy-chain")).toBool())
{
}

LuDaisyChain::~LuDaisyChain() = default;

void LuDaisyChain::readSchema(const QByteArray& schema)
{
    if (m_daisyChainEnable)
        m_daisyChainEnable = loadVCPFunctionOnOffByCategory(schema, QStringLiteral("DaisyChain"));
}

void LuDaisyChain::loadSettings()
{
    if (m_daisyChainEnable)
        m_state = moduleSetting(StateKey, m_state.get()).toBool();
}

void LuDaisyChain::applyValues()
{
    if (!m_daisyChainEnable)
        return;
    qInfo() << "[LuDaisyChain] apply LuDaisyChain state:" << m_state;
    setVCP(ChainCode, m_state ? On : Off);
    Q_EMIT stateChanged();
    fireState(m_state, LuDataCollection::SOURCE_LAUNCH);
}

void LuDaisyChain::setState(bool state)
{
    const QString key = QStringLiteral("setState");
    if (!m_daisyChainEnable || isSettled(key, m_state, state))
        return;
    postUniqueAtFront(this, key, [this, state] {
        if (!setVCP(ChainCode, state ? On : Off))
            return;
        takeAsked(m_state, state, StateKey,
                  "[LuDaisyChain] set DaisyChain state: ", &LuDaisyChain::stateChanged, [] {});
        fireState(state, LuDataCollection::SOURCE_USER);
    });
}

LuSyncTasks* LuDaisyChain::syncPeriodically()
{
    if (!m_daisyChainEnable)
        return nullptr;
    auto* tasks = new LuSyncTasks(QStringLiteral("LuDaisyChain"));
    tasks->addTask([this, first = model()->isFirstTimeConnected()] { syncState(first); });
    return tasks;
}

void LuDaisyChain::syncState(bool firstConnection)
{
    qInfo() << "[LuDaisyChain] sync:" << model()->modelName();
    int value = 0;
    if (!getVCP(ChainCode, value))
        return;
    const bool on = value == On;
    const bool differs =
        takeReported(m_state, on, StateKey,
                     "[LuDaisyChain] sync LuDaisyChain state changed:", &LuDaisyChain::stateChanged);
    if (firstConnection && on)
        fireState(true, LuDataCollection::SOURCE_FIRST_CONNECT);
    else if (differs)
        fireState(on, LuDataCollection::SOURCE_SYNC);
}

void LuDaisyChain::fireExitEvent()
{
    if (m_daisyChainEnable && m_state)
        fireState(false, LuDataCollection::SOURCE_EXIT);
}

void LuDaisyChain::fireState(bool on, LuDataCollection::TriggerSource source)
{
    fireOnOffEvent(LuDataCollection::ACT_DAISY_CHAIN, on, source, {});
}
