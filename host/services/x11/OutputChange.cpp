// SPDX-License-Identifier: Apache-2.0
#include "OutputChange.h"

#include "Layout.h"

#include <QDebug>

#include <algorithm>
#include <cstring>

namespace services::x11 {

namespace {

constexpr std::uint16_t rotationOf(int degrees)
{
    switch (degrees) {
    case 90:
        return XCB_RANDR_ROTATION_ROTATE_90;
    case 180:
        return XCB_RANDR_ROTATION_ROTATE_180;
    case 270:
        return XCB_RANDR_ROTATION_ROTATE_270;
    default:
        return XCB_RANDR_ROTATION_ROTATE_0;
    }
}

QSize sizeOf(const QList<Crtc>& crtcs)
{
    QRect all;
    for (const Crtc& crtc : crtcs)
        all |= crtc.rect;
    return QSize(all.right() + 1, all.bottom() + 1);
}

bool isWithin(const QSize& size, const QSize& limit)
{
    return size.width() <= limit.width() && size.height() <= limit.height();
}

} // namespace

QList<Crtc> OutputChange::planned(const Crtc& crtc, const Wish& wish) const
{
    QList<Crtc> target;
    qsizetype changed = 0;
    for (const Crtc& each : m_present.crtcs) {
        if (!each.isOn())
            continue;
        if (each.id == crtc.id)
            changed = target.size();
        target.append(each);
    }
    Crtc& own = target[changed];
    own.mode = wish.mode.value_or(own.mode);
    own.scale = wish.scale.value_or(own.scale);
    if (wish.degrees) {
        own.degrees = *wish.degrees;
        own.rotation = std::uint16_t((own.rotation & ~0xf) | rotationOf(own.degrees));
    }
    QList<QRect> rects;
    for (const Crtc& each : std::as_const(target))
        rects.append(each.rect);
    rects = relaidOut(rects, changed, desktopSize(m_present.modes[own.mode].size, own.degrees, own.scale));
    for (qsizetype i = 0; i < target.size(); ++i)
        target[i].rect = rects[i];
    return target;
}

bool OutputChange::fits(const Crtc& crtc, const Wish& wish) const
{
    return isWithin(sizeOf(planned(crtc, wish)), m_present.largest);
}

bool OutputChange::apply(const Crtc& crtc, const Wish& wish) const
{
    if (crtc.scale == 0) {
        qWarning() << "[X11] an output with a transform of another program's is left alone";
        return false;
    }
    if (wish.degrees && !(crtc.rotations & rotationOf(*wish.degrees))) {
        qWarning() << "[X11] the graphics driver cannot rotate this output by" << *wish.degrees << "degrees";
        return false;
    }
    const QList<Crtc> target = planned(crtc, wish);
    const QSize size = sizeOf(target).expandedTo(m_present.smallest);
    if (!isWithin(size, m_present.largest)) {
        qWarning() << "[X11] a desktop of" << size << "is larger than the X server allows";
        return false;
    }
    // Programs take dots per inch from the size in millimetres: it keeps its relation to the pixels.
    const xcb_screen_t* screen = xcb_setup_roots_iterator(xcb_get_setup(m_connection)).data;
    const auto millimetresOf = [&](const QSize& pixels) {
        return QSize(qMax(1, qRound(double(pixels.width()) * screen->width_in_millimeters /
                                    qMax<int>(1, screen->width_in_pixels))),
                     qMax(1, qRound(double(pixels.height()) * screen->height_in_millimeters /
                                    qMax<int>(1, screen->height_in_pixels))));
    };
    const ServerGrab grab(m_connection);
    if (put(target, m_present.crtcs, size, millimetresOf(size)))
        return true;
    qWarning() << "[X11] the X server refused the display mode; the former one is set again";
    if (!put(m_present.crtcs, target, m_present.size, millimetresOf(m_present.size)))
        qWarning() << "[X11] nor did it take the former one";
    return false;
}

// A CRTC never reaches over the edge of the desktop, so those that change are off while its size changes.
bool OutputChange::put(const QList<Crtc>& target, const QList<Crtc>& from, const QSize& size,
                       const QSize& millimetres) const
{
    QList<Crtc> changing;
    for (const Crtc& each : target) {
        const auto before =
            std::find_if(from.begin(), from.end(), [&](const Crtc& other) { return other.id == each.id; });
        if (each.isOn() && (before == from.end() || before->rect != each.rect || before->mode != each.mode ||
                            before->rotation != each.rotation || before->scale != each.scale))
            changing.append(each);
    }
    for (const Crtc& each : std::as_const(changing)) {
        Crtc off = each;
        off.mode = XCB_NONE;
        off.rect = QRect();
        off.rotation = XCB_RANDR_ROTATION_ROTATE_0;
        off.outputs.clear();
        if (!set(off))
            return false;
    }
    const Owned<xcb_generic_error_t> error(xcb_request_check(
        m_connection,
        xcb_randr_set_screen_size_checked(m_connection, m_connection.root(), std::uint16_t(size.width()),
                                          std::uint16_t(size.height()), std::uint32_t(millimetres.width()),
                                          std::uint32_t(millimetres.height()))));
    if (error)
        return false;
    return std::all_of(changing.begin(), changing.end(),
                       [this](const Crtc& each) { return setScale(each) && set(each); });
}

bool OutputChange::set(const Crtc& crtc) const
{
    const Owned<xcb_randr_set_crtc_config_reply_t> reply(xcb_randr_set_crtc_config_reply(
        m_connection,
        xcb_randr_set_crtc_config(m_connection, crtc.id, XCB_CURRENT_TIME, m_present.configured,
                                  std::int16_t(crtc.rect.x()), std::int16_t(crtc.rect.y()), crtc.mode,
                                  crtc.rotation, std::uint32_t(crtc.outputs.size()),
                                  crtc.outputs.constData()),
        nullptr));
    return reply && reply->status == XCB_RANDR_SET_CONFIG_SUCCESS;
}

bool OutputChange::setScale(const Crtc& crtc) const
{
    const auto fixed = xcb_render_fixed_t(crtc.scale * 65536);
    const xcb_render_transform_t matrix = {fixed, 0, 0, 0, fixed, 0, 0, 0, 65536};
    const char* filter = crtc.scale == 1 ? "nearest" : "bilinear";
    const Owned<xcb_generic_error_t> error(xcb_request_check(
        m_connection,
        xcb_randr_set_crtc_transform_checked(m_connection, crtc.id, matrix,
                                             std::uint16_t(std::strlen(filter)), filter, 0, nullptr)));
    return !error;
}

} // namespace services::x11
