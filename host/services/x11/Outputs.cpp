// SPDX-License-Identifier: Apache-2.0
#include "Outputs.h"

#include <algorithm>
#include <cmath>

namespace services::x11 {

namespace {

constexpr double FixedOne = 65536;

constexpr int degreesOf(std::uint16_t rotation)
{
    switch (rotation & 0xf) {
    case XCB_RANDR_ROTATION_ROTATE_90:
        return 90;
    case XCB_RANDR_ROTATION_ROTATE_180:
        return 180;
    case XCB_RANDR_ROTATION_ROTATE_270:
        return 270;
    default:
        return 0;
    }
}

double scaleOf(const xcb_render_transform_t& matrix)
{
    const bool isScale = matrix.matrix11 == matrix.matrix22 && matrix.matrix12 == 0 && matrix.matrix21 == 0 &&
                         matrix.matrix13 == 0 && matrix.matrix23 == 0 && matrix.matrix31 == 0 &&
                         matrix.matrix32 == 0;
    return isScale ? matrix.matrix11 / FixedOne : 0;
}

double rateOf(const xcb_randr_mode_info_t& info)
{
    double lines = info.vtotal;
    if (info.mode_flags & XCB_RANDR_MODE_FLAG_DOUBLE_SCAN)
        lines *= 2;
    if (info.mode_flags & XCB_RANDR_MODE_FLAG_INTERLACE)
        lines /= 2;
    return info.htotal && lines > 0 ? info.dot_clock / (info.htotal * lines) : 0;
}

template <class Id>
QList<Id> listOf(const Id* first, int count)
{
    return QList<Id>(first, first + count);
}

using Resources = Owned<xcb_randr_get_screen_resources_current_reply_t>;

void readModes(const Resources& resources, Outputs& result)
{
    auto modes = xcb_randr_get_screen_resources_current_modes_iterator(resources.get());
    for (; modes.rem > 0; xcb_randr_mode_info_next(&modes)) {
        const xcb_randr_mode_info_t& info = *modes.data;
        result.modes.insert(info.id, {info.id, QSize(info.width, info.height), rateOf(info)});
    }
}

// All questions go out before the first answer is waited for: a computer has a dozen outputs.
bool readCrtcs(const Connection& connection, const Resources& resources, Outputs& result)
{
    const auto ids = listOf(xcb_randr_get_screen_resources_current_crtcs(resources.get()),
                            xcb_randr_get_screen_resources_current_crtcs_length(resources.get()));
    QList<xcb_randr_get_crtc_info_cookie_t> infos;
    QList<xcb_randr_get_crtc_transform_cookie_t> transforms;
    for (const xcb_randr_crtc_t id : ids) {
        infos.append(xcb_randr_get_crtc_info(connection, id, resources->config_timestamp));
        transforms.append(xcb_randr_get_crtc_transform(connection, id));
    }
    bool complete = true;
    for (qsizetype i = 0; i < ids.size(); ++i) {
        const Owned<xcb_randr_get_crtc_info_reply_t> info(
            xcb_randr_get_crtc_info_reply(connection, infos[i], nullptr));
        const Owned<xcb_randr_get_crtc_transform_reply_t> transform(
            xcb_randr_get_crtc_transform_reply(connection, transforms[i], nullptr));
        if (!info || info->status != XCB_RANDR_SET_CONFIG_SUCCESS) {
            complete = false;
            continue;
        }
        Crtc crtc;
        crtc.id = ids[i];
        crtc.mode = info->mode;
        if (crtc.isOn())
            crtc.rect = QRect(info->x, info->y, info->width, info->height);
        crtc.degrees = degreesOf(info->rotation);
        crtc.mirrored = info->rotation & ~0xf;
        crtc.rotation = info->rotation;
        crtc.rotations = info->rotations;
        crtc.scale = transform ? scaleOf(transform->current_transform) : 1;
        crtc.outputs = listOf(xcb_randr_get_crtc_info_outputs(info.get()),
                              xcb_randr_get_crtc_info_outputs_length(info.get()));
        result.crtcs.append(crtc);
    }
    return complete;
}

bool readOutputs(const Connection& connection, const Resources& resources, Outputs& result)
{
    const auto ids = listOf(xcb_randr_get_screen_resources_current_outputs(resources.get()),
                            xcb_randr_get_screen_resources_current_outputs_length(resources.get()));
    QList<xcb_randr_get_output_info_cookie_t> infos;
    for (const xcb_randr_output_t id : ids)
        infos.append(xcb_randr_get_output_info(connection, id, resources->config_timestamp));
    bool complete = true;
    for (qsizetype i = 0; i < ids.size(); ++i) {
        const Owned<xcb_randr_get_output_info_reply_t> info(
            xcb_randr_get_output_info_reply(connection, infos[i], nullptr));
        if (!info || info->status != XCB_RANDR_SET_CONFIG_SUCCESS) {
            complete = false;
            continue;
        }
        Output output;
        output.id = ids[i];
        output.name =
            QString::fromUtf8(reinterpret_cast<const char*>(xcb_randr_get_output_info_name(info.get())),
                              xcb_randr_get_output_info_name_length(info.get()));
        output.connected = info->connection != XCB_RANDR_CONNECTION_DISCONNECTED;
        output.crtc = info->crtc;
        output.modes = listOf(xcb_randr_get_output_info_modes(info.get()),
                              xcb_randr_get_output_info_modes_length(info.get()));
        result.outputs.append(output);
    }
    return complete;
}

std::optional<Outputs> readOnce(const Connection& connection, bool* complete)
{
    const auto rangeCookie = xcb_randr_get_screen_size_range(connection, connection.root());
    const auto geometryCookie = xcb_get_geometry(connection, connection.root());
    const Resources resources(xcb_randr_get_screen_resources_current_reply(
        connection, xcb_randr_get_screen_resources_current(connection, connection.root()), nullptr));
    const Owned<xcb_randr_get_screen_size_range_reply_t> range(
        xcb_randr_get_screen_size_range_reply(connection, rangeCookie, nullptr));
    const Owned<xcb_get_geometry_reply_t> geometry(
        xcb_get_geometry_reply(connection, geometryCookie, nullptr));
    if (!resources || !range || !geometry)
        return std::nullopt;
    Outputs result;
    result.size = QSize(geometry->width, geometry->height);
    result.smallest = QSize(range->min_width, range->min_height);
    result.largest = QSize(range->max_width, range->max_height);
    result.configured = resources->config_timestamp;
    readModes(resources, result);
    const bool crtcs = readCrtcs(connection, resources, result);
    const bool outputs = readOutputs(connection, resources, result);
    *complete = crtcs && outputs;
    return result;
}

} // namespace

std::optional<Outputs> Outputs::read(const Connection& connection)
{
    if (!connection.opcode(&xcb_randr_id))
        return std::nullopt;
    // The configuration may change between two questions; then the second try has its new time.
    bool complete = false;
    std::optional<Outputs> result = readOnce(connection, &complete);
    return result && !complete ? readOnce(connection, &complete) : result;
}

const Output* Outputs::output(const QString& name) const
{
    const auto found =
        std::find_if(outputs.begin(), outputs.end(), [&](const Output& each) { return each.name == name; });
    return found == outputs.end() || name.isEmpty() ? nullptr : &*found;
}

const Crtc* Outputs::crtcOf(const Output& output) const
{
    const auto found = std::find_if(crtcs.begin(), crtcs.end(),
                                    [&](const Crtc& each) { return each.id == output.crtc && each.isOn(); });
    return found == crtcs.end() ? nullptr : &*found;
}

bool Outputs::isSameDesktop(const Outputs& other) const
{
    const auto isSame = [](const Output& a, const Output& b) {
        return a.id == b.id && a.connected == b.connected && a.crtc == b.crtc && a.modes == b.modes;
    };
    const auto showsSame = [](const Crtc& a, const Crtc& b) {
        return a.id == b.id && a.rect == b.rect && a.mode == b.mode && a.rotation == b.rotation &&
               a.scale == b.scale;
    };
    return size == other.size &&
           std::equal(outputs.begin(), outputs.end(), other.outputs.begin(), other.outputs.end(), isSame) &&
           std::equal(crtcs.begin(), crtcs.end(), other.crtcs.begin(), other.crtcs.end(), showsSame);
}

QSize desktopSize(const QSize& mode, int degrees, double scale)
{
    const QSize turned = degrees % 180 == 0 ? mode : mode.transposed();
    return QSize(int(std::ceil(turned.width() * scale)), int(std::ceil(turned.height() * scale)));
}

} // namespace services::x11
