// SPDX-License-Identifier: Apache-2.0
#include "LuAiContrast.h"

#include <LuShared/LuMonitorModel.h>

#include <QDebug>

namespace {

constexpr int ContrastCode = 0xF3;
constexpr int On = 1;
constexpr int Off = 0;

const QString StateKey = QStringLiteral("state");

} // namespace

LuAiContrast::LuAiContrast(LuMonitorModel* model) : LuModelModuleInterface(model)
{
    model->registerForceSyncPairs(model, QMetaMethod::fromSignal(&LuMonitorModel::colorModeChanged),
                                  QStringLiteral("LuAiContrast"));
}

LuAiContrast::~LuAiContrast() = default;

void LuAiContrast::readSchema(const QByteArray& schema)
{
    m_aiContrastEnable = loadVCPFunctionOnOffByCategory(schema, QStringLiteral("AiContrast"));
    QString type;
    if (loadVCPFunctionStringByCategory(schema, QStringLiteral("AiContrast Type"), type) &&
        type == QLatin1String("LocalContrast"))
        m_displayNameType = NameLocalContrast;
}

void LuAiContrast::loadSettings()
{
    if (m_aiContrastEnable)
        m_state = moduleSetting(StateKey, m_state.get()).toBool();
}

void LuAiContrast::applyValues()
{
    if (!m_aiContrastEnable)
        return;
    qInfo() << "[LuAiContrast] apply LuAiContrast state:" << m_state;
    setVCP(ContrastCode, m_state ? On : Off);
    Q_EMIT stateChanged();
}

void LuAiContrast::setState(bool state)
{
    const QString key = QStringLiteral("setState");
    if (!m_aiContrastEnable || isSettled(key, m_state, state))
        return;
    postUniqueAtFront(this, key, [this, state] {
        if (!setVCP(ContrastCode, state ? On : Off))
            return;
        qInfo() << "[LuAiContrast] set AiContrast state: " << state;
        if (m_state.set(state))
            Q_EMIT stateChanged();
    });
}

LuSyncTasks* LuAiContrast::syncPeriodically()
{
    if (!m_aiContrastEnable || !colorModeAllows(&LuVCPNode::aiContrastEnable))
        return nullptr;
    auto* tasks = new LuSyncTasks(QStringLiteral("LuAiContrast"));
    tasks->addTask([this] { syncState(); });
    return tasks;
}

void LuAiContrast::syncState()
{
    qInfo() << "[LuAiContrast] sync:" << model()->modelName();
    int value = 0;
    if (!getVCP(ContrastCode, value) || !m_state.set(value == On))
        return;
    setModuleSetting(StateKey, m_state.get());
    qInfo() << "[LuAiContrast] sync LuAiContrast state changed:" << m_state;
    Q_EMIT stateChanged();
}
