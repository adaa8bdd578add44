// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string>

namespace ddci2c {

/// What a transport asks of the system: one function per system call, so that tests can put a system of their
/// own in its place. Every function returns 0 or more for success and -errno for failure. Any thread.
class DeviceCalls
{
public:
    /// One message of a combined transfer; what is read goes to @p bytes.
    struct Message
    {
        std::uint8_t address = 0;
        bool isRead = false;
        std::uint8_t* bytes = nullptr;
        std::size_t size = 0;
    };

    virtual ~DeviceCalls() = default;

    /// A descriptor for reading and writing.
    virtual int open(const std::string& path) = 0;
    virtual void close(int descriptor) = 0;
    /// Whether the adapter transfers I2C messages (I2C_RDWR): 1 yes, 0 no.
    virtual int hasMessages(int descriptor) = 0;
    /// I2C_RDWR: all messages as one transfer.
    virtual int transfer(int descriptor, std::span<Message> messages) = 0;
    /// I2C_SLAVE: the device that read() and write() mean.
    virtual int select(int descriptor, std::uint8_t address) = 0;
    virtual long write(int descriptor, std::span<const std::uint8_t> bytes) = 0;
    virtual long read(int descriptor, std::span<std::uint8_t> bytes) = 0;

    /// Those of Linux, one for all.
    static std::shared_ptr<DeviceCalls> system();
};

} // namespace ddci2c
