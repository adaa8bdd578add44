// SPDX-License-Identifier: Apache-2.0
#pragma once

/// Whether the environment names a display server (X11 or Wayland) that takes connections.
bool displayServerAnswers();
