// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QObject>

#include <memory>

namespace services {
class DesktopEvents;
}

/// Raises the keys of the program's own windows where the session does not tell every key, so that a person
/// can type a new shortcut there, too. Installed on the application object. GUI thread.
class WindowKeys : public QObject
{
    Q_OBJECT

public:
    WindowKeys(std::weak_ptr<services::DesktopEvents> session, QObject* parent);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    const std::weak_ptr<services::DesktopEvents> m_session;
};
