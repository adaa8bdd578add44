// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Access.h"
#include "DeviceCalls.h"

#include <ddc/Bus.h>

#include <atomic>
#include <chrono>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <span>
#include <string>
#include <vector>

namespace ddci2c {

/// What a bus and its owner tell each other while transfers run. Any thread.
struct BusLink
{
    /// The owner counts up when monitors may have changed places: the bus then looks again who is there
    /// before it sends anything more.
    std::atomic<unsigned> generation{0};
    /// The bus or its monitor was found to be gone, or another monitor in its place.
    std::atomic<bool> lost{false};
    /// The device file may not be opened.
    std::atomic<bool> noAccess{false};
    /// The errno of the last transfer that failed, 0 if none did.
    std::atomic<int> lastErrno{0};
};

/// The way to one monitor through /dev/i2c-N.
///
/// It is opened with the first transfer, and again with the next one after it was gone. Before the first
/// message to DDC/CI after each opening and after each BusLink::generation the EDID is looked at: with
/// another monitor than the expected one on the bus nothing is sent, and the transfer says Gone. Bus numbers
/// change when adapters come and go, so a name alone never proves where a write ends up.
class I2cBus final : public ddc::Bus
{
public:
    struct Options
    {
        std::string path;               ///< "/dev/i2c-4".
        std::vector<std::uint8_t> edid; ///< Of the expected monitor; empty: whoever is there.
        std::filesystem::path
            connectorEdid;             ///< What the kernel says where 0x50 does not answer; may be empty.
        std::shared_ptr<BusLink> link; ///< Null: none.
        /// Told in plain words what keeps the bus from working, once per cause; on the thread of the
        /// transfer.
        std::function<void(const Advice&)> report;
        std::shared_ptr<DeviceCalls> calls; ///< Null: those of the system.
    };

    explicit I2cBus(Options options);
    ~I2cBus() override;

    ddc::BusStatus write(std::uint8_t address, std::span<const std::uint8_t> bytes) override;
    ddc::BusStatus read(std::uint8_t address, std::span<std::uint8_t> bytes) override;
    std::string name() const override;

    /// Reads the 128 bytes of the EDID's base block in one combined transfer, without asking who is there.
    ddc::BusStatus readEdid(std::span<std::uint8_t> block);

    /// When this process last sent a monitor something; its next user should give it the protocol's time.
    static std::chrono::steady_clock::time_point lastWrite();

    /// What an errno of a transfer means; 0 is Ok. Unknown ones are Nack.
    static ddc::BusStatus statusOf(int error);

private:
    ddc::BusStatus ensureOpen();
    ddc::BusStatus ensureExpected();
    ddc::BusStatus transfer(std::span<DeviceCalls::Message> messages);
    int plainTransfer(const DeviceCalls::Message& message);
    ddc::BusStatus failed(int error);
    ddc::BusStatus refuse(const Advice& why);
    void say(const Advice& advice);
    void drop();

    const Options m_options;
    const std::shared_ptr<DeviceCalls> m_calls;
    const std::shared_ptr<BusLink> m_link;
    int m_descriptor = -1;
    bool m_plain = false;    ///< read() and write() in place of I2C_RDWR.
    bool m_expected = false; ///< The expected monitor was seen since the opening, at m_generation.
    unsigned m_generation = 0;
    std::string m_said;
};

} // namespace ddci2c
