// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <span>
#include <string>

namespace ddc {

/// Seven-bit I2C addresses that a monitor answers at (VESA E-DDC 1.2, DDC/CI 1.1).
inline constexpr std::uint8_t EdidAddress = 0x50;
inline constexpr std::uint8_t DdcCiAddress = 0x37;

/// What one I2C transfer came to, before any look at its bytes.
enum class BusStatus
{
    Ok,         ///< The bytes were acknowledged.
    Nack,       ///< The device did not acknowledge (ENXIO, EREMOTEIO or EIO, as the driver has it).
    Busy,       ///< The bus belongs to somebody else for the moment (EBUSY, EAGAIN).
    Timeout,    ///< The adapter gave up (ETIMEDOUT).
    NoAccess,   ///< The user may not open the device (EACCES, EPERM).
    Gone,       ///< The bus or the monitor is no longer there (ENODEV, ENOENT).
};

/// One I2C bus that leads to one monitor. Implementations: the Linux device files, the simulator.
///
/// A bus knows no timing of the protocol and repeats nothing. It is used by one thread at a time; its caller holds
/// the lock. A transfer may take as long as the adapter takes; it returns and never throws.
class Bus
{
public:
    virtual ~Bus() = default;

    /// Sends one message to the device at @p address (seven bits).
    virtual BusStatus write(std::uint8_t address, std::span<const std::uint8_t> bytes) = 0;

    /// Reads exactly bytes.size() bytes in one message from the device at @p address. The content is defined only
    /// for BusStatus::Ok.
    virtual BusStatus read(std::uint8_t address, std::span<std::uint8_t> bytes) = 0;

    /// A name for logs and bug reports, such as "i2c-4" or "sim:TK30Z@A1B2".
    virtual std::string name() const = 0;
};

} // namespace ddc
