// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace ddci2c {

// Readers of small kernel files. A file or folder that cannot be read gives an empty result: it may vanish at
// any moment. Any thread.

std::vector<std::uint8_t> readBytes(const std::filesystem::path& file);

/// The first line, without blanks at its end.
std::string readLine(const std::filesystem::path& file);

/// Names in a folder, in natural order: "card0-DP-2" before "card0-DP-10".
std::vector<std::string> entriesOf(const std::filesystem::path& folder);

/// The folder that a path with links really means; empty if there is none.
std::filesystem::path realPath(const std::filesystem::path& path);

/// A whole number above 0, in decimal digits and nothing else.
std::optional<int> positiveNumber(std::string_view text);

/// 4 for "i2c-4"; nothing for any other name.
std::optional<int> busNumber(std::string_view name);

/// Order in which numbers inside of names count as numbers.
bool naturalLess(std::string_view a, std::string_view b);

} // namespace ddci2c
