// SPDX-License-Identifier: Apache-2.0
#include "Display.h"

#include <LuShared/LuPlatform.h>
#include <PanelCore/MonitorInfo.h>

#include "Resources.h"

#include <QDebug>

#include <algorithm>
#include <cmath>
#include <cstring>

namespace services::x11 {

namespace {

constexpr double HiDpiScale = 2;
constexpr double UsualDpi = 96;

/// Offered as long as the desktop keeps the room of a small screen.
constexpr int scalings[] = {100, 125, 150, 175, 200, 225, 250, 300, 350};
constexpr QSize SmallestRoom(800, 600);

/// Of a stored setting: what texts can be drawn with at all.
constexpr int SmallestScaling = 50;
constexpr int LargestScaling = 500;

bool isHiDpi(const Crtc& crtc)
{
    return crtc.scale >= HiDpiScale;
}

bool allHiDpi(const QList<Crtc>& crtcs, xcb_randr_crtc_t changed, bool enabled)
{
    return std::all_of(crtcs.begin(), crtcs.end(), [&](const Crtc& each) {
        return !each.isOn() || (each.id == changed ? enabled : isHiDpi(each));
    });
}

/// A scale that stands for HiDPI is not part of the size that a person chooses.
double visibleScale(const Crtc& crtc)
{
    return isHiDpi(crtc) ? crtc.scale / HiDpiScale : crtc.scale;
}

} // namespace

std::optional<Display::Target> Display::find(const MonitorInfo& monitor) const
{
    std::optional<Outputs> all = Outputs::read(*m_connection);
    if (!all)
        return std::nullopt;
    const Output* output = all->output(monitor.screenName());
    if (!output)
        output = all->output(monitor.nativeHandle());
    const Crtc* crtc = output ? all->crtcOf(*output) : nullptr;
    if (!crtc)
        return std::nullopt;
    return Target{*all, *output, *crtc};
}

bool Display::change(const Target& target, const OutputChange::Wish& wish)
{
    return OutputChange(*m_connection, target.all).apply(target.crtc, wish);
}

bool Display::isAvailable() const
{
    return m_connection->opcode(&xcb_randr_id) != 0;
}

int Display::pivot(const MonitorInfo& monitor) const
{
    const auto target = find(monitor);
    return target ? target->crtc.degrees : 0;
}

void Display::setPivot(const MonitorInfo& monitor, int degrees)
{
    const std::lock_guard lock(m_changing);
    const auto target = find(monitor);
    if (!target) {
        qWarning().noquote() << "[X11] no output to rotate for" << monitor.id();
        return;
    }
    if (target->crtc.degrees != degrees)
        change(*target, {.mode = {}, .degrees = degrees, .scale = {}});
}

QList<int> Display::dpiScalings(const MonitorInfo& monitor) const
{
    const auto target = find(monitor);
    if (!target)
        return {};
    const QSize size = target->all.modes[target->crtc.mode].size * target->crtc.scale;
    QList<int> result;
    for (const int percent : scalings) {
        const QSize room = size * (100.0 / percent);
        if (percent == 100 ||
            (room.width() >= SmallestRoom.width() && room.height() >= SmallestRoom.height()))
            result.append(percent);
    }
    return result;
}

int Display::dpiScaling(const MonitorInfo& monitor) const
{
    return find(monitor) ? int(std::lround(readXftDpi(*m_connection) * 100 / UsualDpi)) : 0;
}

void Display::setDpiScaling(const MonitorInfo& monitor, int percent)
{
    if (percent < SmallestScaling || percent > LargestScaling) {
        qWarning() << "[X11] no scaling of" << percent << "percent";
        return;
    }
    const std::lock_guard lock(m_changing);
    if (!find(monitor) || percent == std::lround(readXftDpi(*m_connection) * 100 / UsualDpi))
        return;
    const int dpi = int(std::lround(UsualDpi * percent / 100));
    // At once where it is read again. A settings daemon writes the same there, later.
    writeXftDpi(*m_connection, dpi);
    m_daemon.setDpi(dpi);
}

bool Display::hiDpi(const MonitorInfo& monitor) const
{
    const auto target = find(monitor);
    return target && isHiDpi(target->crtc);
}

bool Display::setHiDpi(const MonitorInfo& monitor, bool enabled)
{
    const std::lock_guard lock(m_changing);
    const auto target = find(monitor);
    if (!target)
        return false;
    const Crtc& crtc = target->crtc;
    if (isHiDpi(crtc) == enabled)
        return true;
    const bool wereAll = allHiDpi(target->all.crtcs, crtc.id, !enabled);
    const bool areAll = allHiDpi(target->all.crtcs, crtc.id, enabled);
    const double scale = enabled ? crtc.scale * HiDpiScale : visibleScale(crtc);
    if (!change(*target, {.mode = {}, .degrees = {}, .scale = scale}))
        return false;
    // Texts keep their size to the eye where no screen without HiDPI would show them at twice the size. The
    // desktop's own setting is left alone: it outlasts the session, and HiDPI does not.
    if (wereAll != areAll) {
        const double dpi = readXftDpi(*m_connection) * (areAll ? HiDpiScale : 1 / HiDpiScale);
        writeXftDpi(*m_connection, int(std::lround(std::max(dpi, UsualDpi / 2))));
    }
    return true;
}

QList<QSize> Display::resolutions(const MonitorInfo& monitor, int refreshRate) const
{
    const auto target = find(monitor);
    if (!target)
        return {};
    QList<QSize> sizes;
    for (const xcb_randr_mode_t id : target->output.modes) {
        const Mode mode = target->all.modes[id];
        if ((refreshRate <= 0 || std::lround(mode.rate) == refreshRate) && !sizes.contains(mode.size))
            sizes.append(mode.size);
    }
    return sizes;
}

QSize Display::resolution(const MonitorInfo& monitor) const
{
    const auto target = find(monitor);
    if (!target)
        return {};
    const Crtc& crtc = target->crtc;
    return desktopSize(target->all.modes[crtc.mode].size, crtc.degrees, visibleScale(crtc));
}

bool Display::setResolution(const MonitorInfo& monitor, const QSize& size, int refreshRate, bool,
                            int hidpiMatch)
{
    const std::lock_guard lock(m_changing);
    const auto target = find(monitor);
    if (!target)
        return false;
    const Crtc& crtc = target->crtc;

    // Of a size that was kept from before a rotation the other orientation is meant.
    const bool upright = crtc.degrees % 180 != 0;
    QList<Mode> found;
    for (const QSize& wanted : {upright ? size.transposed() : size, upright ? size : size.transposed()}) {
        for (const xcb_randr_mode_t id : target->output.modes) {
            const Mode mode = target->all.modes[id];
            if (mode.size == wanted && (refreshRate <= 0 || std::lround(mode.rate) == refreshRate))
                found.append(mode);
        }
        if (!found.isEmpty())
            break;
    }
    if (found.isEmpty())
        return false;

    const double present = isHiDpi(crtc) ? HiDpiScale : 1;
    const double other = isHiDpi(crtc) ? 1 : HiDpiScale;
    QList<double> scales;
    switch (hidpiMatch) {
    case LuPlatform::RequireSameHidpi:
        scales = {present};
        break;
    case LuPlatform::PreferSameHidpi:
        scales = {present, other};
        break;
    default:
        scales = {1, HiDpiScale};
    }
    const OutputChange change(*m_connection, target->all);
    for (const double scale : scales) {
        for (const Mode& mode : std::as_const(found)) {
            if (mode.id == crtc.mode && scale == crtc.scale)
                return true;
            const OutputChange::Wish wish{.mode = mode.id, .degrees = {}, .scale = scale};
            if (change.fits(crtc, wish))
                return change.apply(crtc, wish);
        }
    }
    return false;
}

QRect Display::nativeScreenRect(const QString& nativeHandle) const
{
    const std::optional<Outputs> all = Outputs::read(*m_connection);
    const Output* output = all ? all->output(nativeHandle) : nullptr;
    const Crtc* crtc = output ? all->crtcOf(*output) : nullptr;
    return crtc ? crtc->rect : QRect();
}

// Drivers of the kernel's mode setting give their outputs this property (X's "modesetting" and "amdgpu").
std::optional<int> Display::connectorId(const QString& screen) const
{
    const std::optional<Outputs> all = Outputs::read(*m_connection);
    const Output* output = all ? all->output(screen) : nullptr;
    const xcb_atom_t property = m_connection->atom(ConnectorId);
    if (!output || property == XCB_ATOM_NONE)
        return std::nullopt;
    const auto cookie =
        xcb_randr_get_output_property(*m_connection, output->id, property, XCB_ATOM_INTEGER, 0, 1, 0, 0);
    const Owned<xcb_randr_get_output_property_reply_t> reply(
        xcb_randr_get_output_property_reply(*m_connection, cookie, nullptr));
    if (!reply || reply->format != 32 || reply->type != XCB_ATOM_INTEGER || reply->num_items != 1 ||
        reply->bytes_after != 0)
        return std::nullopt;
    std::int32_t number = 0;
    std::memcpy(&number, xcb_randr_get_output_property_data(reply.get()), sizeof number);
    return number > 0 ? std::optional<int>(number) : std::nullopt;
}

} // namespace services::x11
