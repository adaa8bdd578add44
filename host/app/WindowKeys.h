// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <services/api/DesktopEvents.h>

#include <QObject>

#include <memory>

/// Raises the keys of the program's own windows where the session does not tell every key, so that a person
/// can type a new shortcut there, too; and sets off actions there where the session gives the program no keys
/// at all. Installed on the application object. GUI thread.
class WindowKeys : public QObject
{
    Q_OBJECT

public:
    /// @p handler gets the keys in a session that gives the program none.
    WindowKeys(std::weak_ptr<services::DesktopEvents> session, services::DesktopEvents::KeyHandler handler,
               QObject* parent);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    const std::weak_ptr<services::DesktopEvents> m_session;
    const services::DesktopEvents::KeyHandler m_handler;
};
