// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Error.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace ddc {

/// The longest capabilities string that is read or parsed; offsets of the protocol have 16 bits.
inline constexpr std::size_t CapabilitiesLimit = 64 * 1024;

/// What a monitor tells about itself in its capabilities string (MCCS 2.2, VESA Access Bus grammar).
struct Capabilities
{
    /// One supported VCP code and, for a code with a fixed choice, the values that it takes.
    struct Code
    {
        std::uint8_t code = 0;
        std::vector<std::uint8_t> values; ///< In the monitor's order, without repeats; empty: any value.
    };

    std::string protocol;    ///< prot(...), such as "monitor"; empty where absent, as all texts here.
    std::string type;        ///< type(...), such as "LCD".
    std::string model;       ///< model(...).
    std::string mccsVersion; ///< mccs_ver(...), such as "2.2".
    std::vector<std::uint8_t> commands; ///< cmds(...): opcodes.
    std::vector<Code> vcp;              ///< vcp(...): in the monitor's order, each code once.
    bool complete = false;              ///< All parentheses were closed.

    /// The entry of a code, null where the monitor does not list it.
    const Code* find(std::uint8_t code) const;
};

/// Parses tolerantly: keys in any case and order, unknown parts skipped, missing blanks and closing
/// parentheses forgiven. Error::Malformed for a text longer than CapabilitiesLimit or without a single key
/// that is known.
Result<Capabilities> parseCapabilities(std::string_view text);

} // namespace ddc
