// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "WindowList.h"

#include <QObject>
#include <QProcess>
#include <QStringList>

#include <memory>

namespace services::x11 {

/// The settings daemon of the desktop, which GTK programs listen to and which has the last word on the size
/// of texts. The desktop's own setting is changed, by the interface that the desktop gives for it: GNOME,
/// Cinnamon and MATE through their gsettings key, Xfce through xfconf. The daemon then tells its programs.
///
/// Lives on the GUI thread.
class SettingsDaemon : public QObject
{
public:
    explicit SettingsDaemon(std::shared_ptr<Connection> requests);
    ~SettingsDaemon() override;

    /// Makes texts that many dots per inch large. Returns at once; without a daemon, or with one that is not
    /// known, nothing happens. What fails is said in the log. Any thread.
    void setDpi(int dpi);

private:
    void tellXfconf(int dpi);
    void runGsettings(const QStringList& arguments);

    const std::shared_ptr<Connection> m_requests;
    const WindowList m_windows;
    QProcess m_gsettings;
    QStringList m_next; ///< For when the one that runs has ended; the last one counts.
};

} // namespace services::x11
