// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <LuShared/LuSharedGlobal.h>

#include <QStringList>

namespace services {

/// What a desktop session may lack, by the name under which panels and scripts know it. This is the only
/// place that says so: a service that is absent or answers nothing is no news to a person, the name is.
///
/// | Name | What is missing without it |
/// |---|---|
/// | "displayModes" | sizes and refresh rates of the desktop |
/// | "rotation" | turning the desktop |
/// | "scaling" | its scaling and HiDPI |
/// | "globalShortcuts" | keys while another program has the focus |
/// | "foregroundApplication" | which application is in front, and windows that are dragged |
/// | "windowPlacing" | moving and sizing windows of other applications |
/// | "copyPasteKeys" | key strokes of copy and paste to other applications |
/// | "pointerEdge" | the pointer at the edge of the screen |
/// | "soundOutputs" | system volume and the choice of the output |
/// | "translucentWindows" | the overlay that darkens a screen |
/// | "overlayOnTop" | keeping that overlay above every window |
///
/// The names of what the services in use lack now, in this order. Quick; GUI thread.
LUSHARED_EXPORT QStringList absentAbilities();

} // namespace services
