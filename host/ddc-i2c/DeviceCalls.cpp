// SPDX-License-Identifier: Apache-2.0
#include "DeviceCalls.h"

#include <fcntl.h>
#include <linux/i2c-dev.h>
#include <linux/i2c.h>
#include <sys/ioctl.h>
#include <unistd.h>

#include <array>
#include <cerrno>

namespace ddci2c {

namespace {

constexpr std::size_t MostMessages = 2;

/// The i2c-dev interface of Linux.
class LinuxCalls final : public DeviceCalls
{
public:
    int open(const std::string& path) override
    {
        const int descriptor = ::open(path.c_str(), O_RDWR | O_CLOEXEC);
        return descriptor < 0 ? -errno : descriptor;
    }

    void close(int descriptor) override { ::close(descriptor); }

    int hasMessages(int descriptor) override
    {
        unsigned long functions = 0;
        if (::ioctl(descriptor, I2C_FUNCS, &functions) < 0)
            return -errno;
        return functions & I2C_FUNC_I2C ? 1 : 0;
    }

    int transfer(int descriptor, std::span<Message> messages) override
    {
        std::array<i2c_msg, MostMessages> list{};
        if (messages.size() > list.size())
            return -EINVAL;
        for (std::size_t i = 0; i < messages.size(); ++i) {
            list[i].addr = messages[i].address;
            list[i].flags = messages[i].isRead ? I2C_M_RD : 0;
            list[i].len = static_cast<__u16>(messages[i].size);
            list[i].buf = messages[i].bytes;
        }
        i2c_rdwr_ioctl_data request{list.data(), static_cast<__u32>(messages.size())};
        return ::ioctl(descriptor, I2C_RDWR, &request) < 0 ? -errno : 0;
    }

    int select(int descriptor, std::uint8_t address) override
    {
        return ::ioctl(descriptor, I2C_SLAVE, static_cast<unsigned long>(address)) < 0 ? -errno : 0;
    }

    long write(int descriptor, std::span<const std::uint8_t> bytes) override
    {
        const auto count = ::write(descriptor, bytes.data(), bytes.size());
        return count < 0 ? -errno : count;
    }

    long read(int descriptor, std::span<std::uint8_t> bytes) override
    {
        const auto count = ::read(descriptor, bytes.data(), bytes.size());
        return count < 0 ? -errno : count;
    }
};

} // namespace

std::shared_ptr<DeviceCalls> DeviceCalls::system()
{
    static const auto calls = std::make_shared<LinuxCalls>();
    return calls;
}

} // namespace ddci2c
