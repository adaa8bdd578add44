// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <filesystem>
#include <string>

namespace ddci2c {

/// What the system says about a bus that may not be opened.
struct AccessFacts
{
    bool hasRule = false; ///< The udev rule of this program is installed.
    std::string group;    ///< Group of the device file; empty or "root": none that a person could join.
    bool inGroup = false; ///< This process has that group.
    bool accountInGroup = false; ///< The account was added to it, maybe after the session began.
};

/// Why @p path may not be opened and what to do, in one plain English sentence or two.
std::string accessAdvice(const std::string& path, const AccessFacts& facts);

/// The same for this system.
std::string accessAdvice(const std::string& path);

/// What to do where the device files are missing altogether.
std::string missingModuleAdvice();

} // namespace ddci2c
