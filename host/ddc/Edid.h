// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Error.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>

namespace ddc {

inline constexpr std::size_t EdidBlockSize = 128;

/// The part of a monitor's EDID that tells which monitor it is.
struct Edid
{
    std::string manufacturer;       ///< Three letters A to Z (PNP id); empty where the field is garbled.
    std::uint16_t product = 0;      ///< Product code.
    std::uint32_t serialNumber = 0; ///< Numeric serial; 0 means that there is none.
    std::string serialText; ///< Text serial (descriptor 0xFF), without padding; empty where absent or blank.
    std::string name;       ///< Product name (descriptor 0xFC), without padding; empty where absent or blank.
    int week = 0;           ///< Week of manufacture, 1 to 54; 0: not told.
    int year = 0;           ///< Year of manufacture, or of the model where isModelYear.
    bool isModelYear = false;
    int extensions = 0;      ///< Extension blocks that the monitor announces, 0 to 255.
    bool checksumOk = false; ///< Of the base block.

    /// The serial that tells twins apart: the text serial, else the numeric one in decimal, else empty.
    std::string identitySerial() const;
};

/// Parses the base block at the start of @p bytes. Error::Malformed for less than 128 bytes or a wrong
/// header; a wrong checksum is no error but told in checksumOk. Texts hold printable ASCII only.
Result<Edid> parseEdid(std::span<const std::uint8_t> bytes);

/// Whether @p block is 128 bytes whose sum is 0 modulo 256.
bool edidChecksumOk(std::span<const std::uint8_t> block);

} // namespace ddc
