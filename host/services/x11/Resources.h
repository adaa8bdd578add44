// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Connection.h"

#include <QByteArray>

namespace services::x11 {

/// Value of "Xft.dpi" in the text of an X resource database; 0 if it has none.
double xftDpiOf(const QByteArray& resources);

/// The text with that value, everything else as it was.
QByteArray withXftDpi(const QByteArray& resources, int dpi);

/// Dots per inch that programs draw their texts with: those of the session's X resources, or 96.
double readXftDpi(const Connection& connection);
void writeXftDpi(const Connection& connection, int dpi);

} // namespace services::x11
