// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QCoreApplication>
#include <QThread>

namespace services {

/// Gives a front that was made by its first user to the GUI thread, whichever thread that user ran on.
///
/// Fronts are never destroyed, since jobs may still call them while the program's static objects go.
template <typename Front>
Front* onGuiThread(Front* front)
{
    if (const QCoreApplication* application = QCoreApplication::instance();
        application && application->thread() != QThread::currentThread()) {
        front->moveToThread(application->thread());
    }
    return front;
}

} // namespace services
