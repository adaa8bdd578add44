// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace ddci2c {

/// What keeps a monitor from being controlled, and what a person can do about it.
///
/// The sentence is English, with "%1", "%2" ... where a value goes: it is also the key of its translations.
struct Advice
{
    const char* sentence = "";
    std::vector<std::string> values;

    /// The sentence with its values.
    std::string english() const;

    friend bool operator==(const Advice& a, const Advice& b) { return a.english() == b.english(); }
};

/// What the system says about a bus that may not be opened.
struct AccessFacts
{
    bool hasRule = false; ///< The udev rule of this program is installed.
    std::string group;    ///< Group of the device file; empty or "root": none that a person could join.
    bool inGroup = false; ///< This process has that group.
    bool accountInGroup = false; ///< The account was added to it, maybe after the session began.
};

/// Why @p path may not be opened and what to do.
Advice accessAdvice(const std::string& path, const AccessFacts& facts);

/// The same for this system.
Advice accessAdvice(const std::string& path);

/// What to do where the device files are missing altogether.
Advice missingModuleAdvice();

/// Another monitor answers at the device file @p path than the one that stood there.
Advice otherMonitorAdvice(const std::string& path);

} // namespace ddci2c
