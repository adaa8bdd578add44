// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "services/wayland/OutputControl.h"

#include <QMap>
#include <QObject>
#include <QTimer>

#include <chrono>
#include <condition_variable>
#include <memory>
#include <mutex>

namespace services::wayland {

/// What is known of a compositor's outputs, and the changes that are on their way to it, so that nobody waits
/// for the compositor.
///
/// A change counts from the call on that makes it; one that the compositor refuses, or does not carry out, is
/// taken back with a line in the log. Of changes of one output that wait, the last word of each value counts.
/// Raises LuPlatformNotifications::screenGeometryChanged() when an output is different, and when a change was
/// taken back. Made and destroyed on the GUI thread.
class OutputKeeper : public QObject
{
    Q_OBJECT

public:
    /// Waits for the compositor's first answer, 150 ms at most; what comes later is told as a change.
    explicit OutputKeeper(std::shared_ptr<OutputControl> control);

    /// Any thread. Outside of the GUI thread it waits for the first answer within the first seconds.
    QList<Output> outputs() const;
    /// Any thread; returns at once.
    void change(const QString& name, const OutputChange& change);

private:
    /// A change that the compositor was given.
    struct Flight
    {
        QString name;
        OutputChange change;
        bool answered = false;
        bool refused = false;
        int looks = 0; ///< How often the outputs did not have it yet.
    };

    void send();
    void finish(const QString& problem);
    void ask();
    void take(const std::optional<QList<Output>>& outputs);
    /// Whether a change was taken back.
    bool land(const QList<Output>& outputs);

    const std::shared_ptr<OutputControl> m_control;
    const std::chrono::system_clock::time_point m_patience;
    mutable std::mutex m_mutex;
    mutable std::condition_variable m_first;
    std::optional<QList<Output>> m_known;
    std::optional<Flight> m_flight;
    QMap<QString, OutputChange> m_waiting;
    // GUI thread
    QTimer m_settle;
    bool m_asking = false;
    bool m_askAgain = false;
    int m_retryMs = 0; ///< 0 while the compositor answers.
    QString m_problem; ///< The last that is in the log.
};

} // namespace services::wayland
