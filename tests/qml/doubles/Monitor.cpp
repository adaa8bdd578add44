// SPDX-License-Identifier: Apache-2.0
#include "Monitor.h"

void FakeAiContrast::setState(bool state)
{
    if (state == m_state || !follows)
        return;
    m_state = state;
    Q_EMIT stateChanged();
}

void FakeAutoPivot::setState(bool state)
{
    if (state == m_state || !follows)
        return;
    m_state = state;
    Q_EMIT stateChanged();
}

void FakeAutoPivot::setCurrentPivot(int pivot)
{
    if (pivot == m_pivot || !follows)
        return;
    m_pivot = pivot;
    Q_EMIT currentPivotChanged();
}

FakeMonitor::FakeMonitor(const QString& name, QObject* parent)
    : QObject(parent), nickName(name), m_mode(&allowing)
{
    forbidding.aiContrastEnable = FakeMode::FunctionOff;
}

void FakeMonitor::setIsCurrentModel(bool current)
{
    if (current == m_current)
        return;
    m_current = current;
    Q_EMIT isCurrentModelChanged();
}

void FakeMonitor::setColorMode(QObject* mode)
{
    if (mode == m_mode)
        return;
    m_mode = mode;
    Q_EMIT colorModeChanged();
}
