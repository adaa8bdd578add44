// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QRectF>
#include <QStringList>

namespace services {

/// Windows of other applications, as the display system knows them. A ProgramService uses it for what the
/// operating system itself cannot tell. Any thread.
class ApplicationWindows
{
public:
    virtual ~ApplicationWindows() = default;

    /// Names that a process's windows give their application, such as a window class; empty if it has no
    /// window.
    virtual QStringList applicationNames(unsigned long pid) const = 0;

    /// As ProgramService::setGeometry().
    virtual void setGeometry(unsigned long pid, const QRectF& geometry) = 0;
};

} // namespace services
