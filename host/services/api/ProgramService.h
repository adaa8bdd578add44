// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QRectF>
#include <QString>
#include <QUrl>

namespace services {

/// The applications of the desktop.
///
/// Called by LuPlatformProgram, from the GUI thread and from monitors' queues. When the list of applications
/// is complete the service sets LuPlatformProgram::appListReady and raises appListInitialized(), and
/// appListChanged() whenever applications have come or gone since, on the GUI thread.
class ProgramService
{
public:
    virtual ~ProgramService() = default;

    /// Whether the list of applications is complete; asked once, as LuPlatformProgram comes into being.
    virtual bool isListReady() const = 0;

    /// Identity of a running or an installed application; empty if there is none.
    virtual QString appId(unsigned long pid) const = 0;
    virtual QString appId(const QUrl& url) const = 0;

    virtual QString displayName(const QString& appId) const = 0;
    virtual QUrl url(const QString& appId) const = 0;

    /// Name in the icon theme, or path, of an application's icon; empty if it is not known.
    virtual QString icon(const QString& appId) const
    {
        Q_UNUSED(appId)
        return {};
    }

    /// Starts a program by its path or its desktop entry, or opens a document or an address with the
    /// application for it. Never through a shell, and without waiting; false if nothing was started.
    virtual bool open(const QString& path) = 0;

    /// Whether setGeometry() can do anything in this session.
    virtual bool placesWindows() const { return true; }

    /// Moves and sizes a process's main window, in desktop coordinates. The rectangle is valid.
    virtual void setGeometry(unsigned long pid, const QRectF& geometry) = 0;
};

} // namespace services
