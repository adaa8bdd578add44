// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace services {

/// Whether the session draws windows with transparent parts. On X11 this needs a compositing manager (EWMH,
/// "_NET_WM_CM_Sn"); elsewhere it is part of the display system. GUI thread, after the QGuiApplication was
/// constructed.
bool sessionBlendsWindows();

} // namespace services
