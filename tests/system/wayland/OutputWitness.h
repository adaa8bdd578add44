// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QList>
#include <QPoint>
#include <QSize>
#include <QString>

#include <memory>

struct wl_output;

/// What a compositor tells every application of its outputs (wl_output): a way to see a change that is none
/// of those by which it was made.
class OutputWitness
{
public:
    struct Output
    {
        int degrees = 0;
        int scale = 1; ///< Rounded up.
        QSize mode;    ///< Not turned.
        QPoint position;
    };

    /// Looks at a compositor's socket. Empty on success, else what went wrong.
    QString open(const QString& socket);

    /// An output as it is now, counted from the left, as a program that starts now sees it. Waits for the
    /// compositor.
    Output output(int number);

private:
    bool look();

    QString m_socket;
    QList<std::shared_ptr<Output>> m_outputs;
    QList<wl_output*> m_bound;

    friend struct OutputWitnessEvents;
};
