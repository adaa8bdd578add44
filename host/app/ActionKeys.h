// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QKeyCombination>
#include <QObject>
#include <QPointer>
#include <QSet>
#include <QTimer>

#include <functional>

class LuMonitorModel;
class LuMonitorRegistry;

/// Follows the key combinations that set off an action of the current monitor. GUI thread.
class ActionKeys : public QObject
{
    Q_OBJECT

public:
    using Receiver = std::function<void(const QSet<QKeyCombination>& keys)>;

    /// @p receiver is called with the keys after each change of them.
    ActionKeys(LuMonitorRegistry& registry, Receiver receiver);

    /// Sees actions that are added to the model that it follows.
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    void follow();
    void tell();

    LuMonitorRegistry& m_registry;
    const Receiver m_receiver;
    QTimer m_soon; ///< A whole page of shortcuts changes at once.
    QPointer<LuMonitorModel> m_model;
    QSet<QKeyCombination> m_told;
};
