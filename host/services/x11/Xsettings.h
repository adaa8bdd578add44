// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>

#include <cstdint>
#include <optional>

namespace services::x11 {

/// An integer of the settings that a desktop's settings daemon tells its programs (the XSETTINGS protocol's
/// property). Nothing if it is not there, not an integer, or if the text ends before it.
std::optional<std::int32_t> xsettingsInteger(const QByteArray& settings, const QByteArray& name);

} // namespace services::x11
