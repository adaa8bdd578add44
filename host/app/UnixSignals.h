// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QObject>

#include <functional>

class QSocketNotifier;

/// Brings SIGTERM and SIGINT to the event loop. One per process, on the GUI thread.
class UnixSignals : public QObject
{
    Q_OBJECT

public:
    /// @param action is called from the event loop for each signal that came.
    explicit UnixSignals(std::function<void()> action, QObject* parent = nullptr);
    ~UnixSignals() override;

private:
    std::function<void()> m_action;
    QSocketNotifier* m_notifier = nullptr;
};
