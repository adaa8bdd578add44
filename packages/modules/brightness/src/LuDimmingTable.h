// SPDX-License-Identifier: Apache-2.0
#pragma once

/// How a brightness of 0 to 100 is shared between the overlay and the back-light: up to 30 the overlay
/// darkens a picture whose back-light is at its minimum, above it the back-light works alone.
namespace LuDimmingTable {

/// Opacity of the overlay for a brightness, 0 to 0.85. A number outside 0 to 100 counts as the nearest.
double opacity(int brightness);

/// Hardware brightness for a brightness, 0 to 100. A number outside 0 to 100 counts as the nearest.
int hardwareValue(int brightness);

/// The brightness that shows as @p hardware under an overlay of @p opacity: of those that give the same
/// picture the highest. Colours hold their alpha in 16 bits, so opacities are compared with that tolerance.
int fromHardware(double opacity, int hardware);

} // namespace LuDimmingTable
