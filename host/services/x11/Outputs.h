// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Connection.h"

#include <QHash>
#include <QList>
#include <QRect>
#include <QSize>
#include <QString>

#include <optional>
#include <xcb/randr.h>

namespace services::x11 {

/// A display mode of the server.
struct Mode
{
    xcb_randr_mode_t id = XCB_NONE;
    QSize size;
    double rate = 0; ///< Hz.
};

/// What shows a part of the desktop.
struct Crtc
{
    xcb_randr_crtc_t id = XCB_NONE;
    QRect rect; ///< Part of the desktop, after rotation and scale; empty while the CRTC is off.
    xcb_randr_mode_t mode = XCB_NONE;
    int degrees = 0;       ///< 0, 90, 180, 270.
    double scale = 1;      ///< Desktop pixels for one pixel of the mode; 0 for a transform that is no scale.
    bool mirrored = false; ///< Reflected at an axis, beside the rotation.
    std::uint16_t rotation = XCB_RANDR_ROTATION_ROTATE_0; ///< As RandR has it, reflections included.
    std::uint16_t rotations = 0;                          ///< Those that it can do.
    QList<xcb_randr_output_t> outputs;

    bool isOn() const { return mode != XCB_NONE; }
};

/// A connector.
struct Output
{
    xcb_randr_output_t id = XCB_NONE;
    QString name;
    bool connected = false;
    xcb_randr_crtc_t crtc = XCB_NONE;
    QList<xcb_randr_mode_t> modes; ///< The preferred ones first.
};

/// All of RandR at one moment.
struct Outputs
{
    QSize size; ///< Of the whole desktop.
    QSize smallest;
    QSize largest;
    xcb_timestamp_t configured = 0;
    QHash<xcb_randr_mode_t, Mode> modes;
    QList<Crtc> crtcs;
    QList<Output> outputs;

    /// Null without an answer, or without RandR 1.3. Any thread.
    static std::optional<Outputs> read(const Connection& connection);

    const Output* output(const QString& name) const;
    /// What shows an output; null if it is off.
    const Crtc* crtcOf(const Output& output) const;

    /// Whether two moments look the same to a person.
    bool isSameDesktop(const Outputs& other) const;
};

/// Size of the desktop on a CRTC with a mode of that size.
QSize desktopSize(const QSize& mode, int degrees, double scale);

} // namespace services::x11
