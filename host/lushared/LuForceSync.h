// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QMetaMethod>
#include <QObject>
#include <QPointer>
#include <QString>

#include <functional>
#include <vector>

/// Receives the signal of one force-sync pair.
class LuForceSyncTrigger : public QObject
{
    Q_OBJECT

public:
    explicit LuForceSyncTrigger(std::function<void()> action) : m_action(std::move(action)) {}

public Q_SLOTS:
    void fire() { m_action(); }

private:
    const std::function<void()> m_action;
};

/// The signals after which a module is read back at once. Pairs are collected while modules are constructed
/// and connected in one step.
class LuForceSync
{
public:
    void add(QObject* sender, const QMetaMethod& signal, const QString& moduleClassName);

    /// Connects every pair that was added; @p request is called on the thread that emits the signal.
    void connectAll(const std::function<void(const QString& moduleClassName)>& request);

private:
    struct Pair
    {
        QPointer<QObject> sender;
        QMetaMethod signal;
        QString moduleClassName;
    };
    std::vector<Pair> m_pairs;
    std::vector<std::unique_ptr<LuForceSyncTrigger>> m_triggers;
    bool m_connected = false;
};
