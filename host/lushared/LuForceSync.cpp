// SPDX-License-Identifier: Apache-2.0
#include "LuForceSync.h"

#include <QDebug>

void LuForceSync::add(QObject* sender, const QMetaMethod& signal, const QString& moduleClassName)
{
    if (m_connected)
        return;
    if (!sender || signal.methodType() != QMetaMethod::Signal) {
        qWarning().noquote() << "[LuForceSync] no such signal for" << moduleClassName;
        return;
    }
    m_pairs.push_back({sender, signal, moduleClassName});
}

void LuForceSync::connectAll(const std::function<void(const QString&)>& request)
{
    m_connected = true;
    const QMetaMethod fire = LuForceSyncTrigger::staticMetaObject.method(
        LuForceSyncTrigger::staticMetaObject.indexOfSlot("fire()"));
    for (const Pair& pair : m_pairs) {
        if (!pair.sender)
            continue;
        auto trigger =
            std::make_unique<LuForceSyncTrigger>([request, name = pair.moduleClassName] { request(name); });
        // Direct: the signal may come on the queue's thread, and the request only posts jobs.
        QObject::connect(pair.sender, pair.signal, trigger.get(), fire, Qt::DirectConnection);
        m_triggers.push_back(std::move(trigger));
    }
    m_pairs.clear();
}
