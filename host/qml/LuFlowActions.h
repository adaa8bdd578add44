// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QObject>
#include <QString>
#include <QVariant>

/// What popups need to keep the actions of flows in a monitor's model.
///
/// The singleton `LuFlowActions` of the QML module LumenDesk. GUI thread. An object that is no monitor of the
/// program has no actions.
class LuFlowActions : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// Stores an action of the flow @p flowId; it replaces one of the same title. False if @p module is not
    /// the monitor's.
    Q_INVOKABLE bool store(QObject* monitor, const QString& flowId, int title, QObject* module,
                           const QVariantMap& properties);
    /// The stored values of an action; empty if the flow has none of that title.
    Q_INVOKABLE QVariantMap properties(QObject* monitor, const QString& flowId, int title) const;
    /// Titles of the flow's actions, ascending.
    Q_INVOKABLE QList<int> titles(QObject* monitor, const QString& flowId) const;
};
