// SPDX-License-Identifier: Apache-2.0
#include <LuShared/LuPlatform.h>

#include <PanelCore/MonitorInfo.h>
#include <ZrCore/ZrDispatch.h>
#include <panelcore/HardwareBrightness.h>
#include <panelcore/MonitorLink.h>

#include "services/ServiceRegistry.h"
#include "services/api/BacklightService.h"
#include "services/api/ClipboardKeysService.h"
#include "services/api/DisplayService.h"
#include "services/api/WindowService.h"

#include <cmath>

using services::Registry;

namespace {

// The display service where there is both one and a monitor, else null.
std::shared_ptr<services::DisplayService> displayFor(const QSharedPointer<MonitorInfo>& monitor)
{
    return monitor ? Registry::current().display : nullptr;
}

std::shared_ptr<services::BacklightService> backlightFor(const QSharedPointer<MonitorInfo>& monitor)
{
    return monitor && monitor->isBuiltIn() ? Registry::current().backlight : nullptr;
}

constexpr double UnknownBrightness = -1;

// There a bus is never waited for.
bool isGuiThread()
{
    return ZrDispatch::main()->isCurrentThread();
}

} // namespace

// A tool window stays out of task bars and window switchers.
const Qt::WindowFlags LuPlatform::windowFlags = Qt::Tool;

int LuPlatform::getMonitorPivot(const QSharedPointer<MonitorInfo>& monitor)
{
    const auto display = displayFor(monitor);
    return display ? display->pivot(*monitor) : 0;
}

void LuPlatform::setMonitorPivot(const QSharedPointer<MonitorInfo>& monitor, int degrees)
{
    if (degrees != 0 && degrees != 90 && degrees != 180 && degrees != 270)
        return;
    if (const auto display = displayFor(monitor))
        display->setPivot(*monitor, degrees);
}

double LuPlatform::getMonitorBrightness(const QSharedPointer<MonitorInfo>& monitor)
{
    if (monitor && !monitor->isBuiltIn()) {
        HardwareBrightness& hardware = MonitorLink::of(*monitor).brightness();
        return (isGuiThread() ? hardware.known() : hardware.read()).value_or(UnknownBrightness);
    }
    const auto backlight = backlightFor(monitor);
    return backlight ? backlight->brightness(*monitor) : 0;
}

void LuPlatform::setMonitorBrightness(const QSharedPointer<MonitorInfo>& monitor, double brightness)
{
    if (std::isnan(brightness) || !monitor)
        return;
    if (!monitor->isBuiltIn()) {
        HardwareBrightness& hardware = MonitorLink::of(*monitor).brightness();
        if (isGuiThread())
            hardware.writeLater(brightness);
        else
            hardware.write(brightness);
        return;
    }
    if (const auto backlight = backlightFor(monitor))
        backlight->setBrightness(*monitor, qBound(0.0, brightness, 1.0));
}

void LuPlatform::registerBrightnessChangeNotifications(const QSharedPointer<MonitorInfo>& monitor)
{
    if (monitor && !monitor->isBuiltIn())
        MonitorLink::of(*monitor).brightness().watch(); // the rounds of reading follow it
    else if (const auto backlight = backlightFor(monitor))
        backlight->watch(*monitor);
}

QList<int> LuPlatform::availableMonitorDpiScalings(const QSharedPointer<MonitorInfo>& monitor)
{
    const auto display = displayFor(monitor);
    return display ? display->dpiScalings(*monitor) : QList<int>();
}

int LuPlatform::getMonitorDpiScaling(const QSharedPointer<MonitorInfo>& monitor)
{
    const auto display = displayFor(monitor);
    return display ? display->dpiScaling(*monitor) : 0;
}

void LuPlatform::setMonitorDpiScaling(const QSharedPointer<MonitorInfo>& monitor, int percent)
{
    if (const auto display = displayFor(monitor))
        display->setDpiScaling(*monitor, percent);
}

bool LuPlatform::getMonitorHiDPI(const QSharedPointer<MonitorInfo>& monitor)
{
    const auto display = displayFor(monitor);
    return display && display->hiDpi(*monitor);
}

bool LuPlatform::setMonitorHiDPI(const QSharedPointer<MonitorInfo>& monitor, bool enabled)
{
    const auto display = displayFor(monitor);
    return display && display->setHiDpi(*monitor, enabled);
}

QList<QSize> LuPlatform::availableMonitorResolutions(const QSharedPointer<MonitorInfo>& monitor,
                                                     int refreshRate)
{
    const auto display = displayFor(monitor);
    return display ? display->resolutions(*monitor, refreshRate) : QList<QSize>();
}

QSize LuPlatform::getMonitorResolution(const QSharedPointer<MonitorInfo>& monitor)
{
    const auto display = displayFor(monitor);
    return display ? display->resolution(*monitor) : QSize();
}

bool LuPlatform::setResolution(const QSharedPointer<MonitorInfo>& monitor, const QSize& size, int refreshRate,
                               bool permanent, HidpiMatchMode mode)
{
    const auto display = displayFor(monitor);
    return display && !size.isEmpty() && display->setResolution(*monitor, size, refreshRate, permanent, mode);
}

QRect LuPlatform::getNativeScreenRect(const QString& nativeHandle)
{
    const auto display = Registry::current().display;
    return display ? display->nativeScreenRect(nativeHandle) : QRect();
}

void LuPlatform::setWindowLayer(QQuickWindow* window, int layer)
{
    if (const auto windows = Registry::current().windows; windows && window)
        windows->setLayer(window, layer);
}

void LuPlatform::setWindowJoinActiveSpaces(QQuickWindow* window, bool join)
{
    if (const auto windows = Registry::current().windows; windows && window)
        windows->setJoinActiveSpaces(window, join);
}

bool LuPlatform::windowsBlend()
{
    const auto windows = Registry::current().windows;
    return !windows || windows->blends();
}

bool LuPlatform::hasCopyPasteKeys()
{
    return Registry::current().clipboardKeys != nullptr;
}

void LuPlatform::simulateCopy()
{
    if (const auto keys = Registry::current().clipboardKeys)
        keys->copy();
}

void LuPlatform::simulatePaste()
{
    if (const auto keys = Registry::current().clipboardKeys)
        keys->paste();
}
