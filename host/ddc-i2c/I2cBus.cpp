// SPDX-License-Identifier: Apache-2.0
#include "I2cBus.h"

#include "Access.h"
#include "Sysfs.h"

#include <ddc/Edid.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <tuple>
#include <utility>

namespace ddci2c {

using ddc::BusStatus;

namespace {

std::atomic<std::chrono::steady_clock::rep> lastWriteTicks{0};

constexpr int EdidTries = 3;

enum class Match {
    Same,
    Other,
    Unknown, ///< The bytes are no sound EDID: they tell nothing.
};

/// Timings in an EDID may change with the input's settings, so another monitor is one that names itself
/// differently.
/// @param again whether these bytes were read before: a damaged block that reads the same twice is how the
/// monitor is.
Match compare(std::span<const std::uint8_t> expected, std::span<const std::uint8_t> seen, bool again)
{
    if (seen.size() < ddc::EdidBlockSize)
        return Match::Unknown;
    if (std::equal(seen.begin(), seen.begin() + ddc::EdidBlockSize, expected.begin()))
        return Match::Same;
    const ddc::Result<ddc::Edid> now = ddc::parseEdid(seen);
    const ddc::Result<ddc::Edid> then = ddc::parseEdid(expected);
    if (!now || (!now.value.checksumOk && !again))
        return Match::Unknown;
    const auto key = [](const ddc::Edid& edid) {
        return std::tuple(edid.manufacturer, edid.product, edid.serialNumber, edid.serialText, edid.name);
    };
    return then && key(now.value) == key(then.value) ? Match::Same : Match::Other;
}

/// Errors by which a driver says that it has no I2C_RDWR.
bool lacksMessages(int error)
{
    return error == EOPNOTSUPP || error == ENOTTY || error == EINVAL;
}

} // namespace

I2cBus::I2cBus(Options options)
    : m_options(std::move(options)), m_calls(m_options.calls ? m_options.calls : DeviceCalls::system()),
      m_link(m_options.link ? m_options.link : std::make_shared<BusLink>())
{
}

I2cBus::~I2cBus()
{
    drop();
}

std::string I2cBus::name() const
{
    return std::filesystem::path(m_options.path).filename().string();
}

BusStatus I2cBus::statusOf(int error)
{
    switch (error) {
    case 0:
        return BusStatus::Ok;
    case EBUSY:
    case EAGAIN:
        return BusStatus::Busy;
    case ETIMEDOUT:
        return BusStatus::Timeout;
    case EACCES:
    case EPERM:
        return BusStatus::NoAccess;
    case ENODEV:
    case ENOENT:
        return BusStatus::Gone;
    default: // ENXIO, EREMOTEIO and EIO are how drivers say that nobody acknowledged
        return BusStatus::Nack;
    }
}

BusStatus I2cBus::write(std::uint8_t address, std::span<const std::uint8_t> bytes)
{
    if (address != ddc::EdidAddress) {
        if (const BusStatus status = ensureExpected(); status != BusStatus::Ok)
            return status;
    }
    // The kernel's interface has one structure for both directions; a write leaves the bytes alone.
    DeviceCalls::Message message{address, false, const_cast<std::uint8_t*>(bytes.data()), bytes.size()};
    const BusStatus status = transfer({&message, 1});
    lastWriteTicks = std::chrono::steady_clock::now().time_since_epoch().count();
    return status;
}

BusStatus I2cBus::read(std::uint8_t address, std::span<std::uint8_t> bytes)
{
    if (address != ddc::EdidAddress) {
        if (const BusStatus status = ensureExpected(); status != BusStatus::Ok)
            return status;
    }
    DeviceCalls::Message message{address, true, bytes.data(), bytes.size()};
    return transfer({&message, 1});
}

std::chrono::steady_clock::time_point I2cBus::lastWrite()
{
    using Clock = std::chrono::steady_clock;
    return Clock::time_point(Clock::duration(lastWriteTicks));
}

BusStatus I2cBus::readEdid(std::span<std::uint8_t> block)
{
    std::uint8_t offset = 0;
    DeviceCalls::Message messages[] = {{ddc::EdidAddress, false, &offset, 1},
                                       {ddc::EdidAddress, true, block.data(), block.size()}};
    return transfer(messages);
}

BusStatus I2cBus::ensureOpen()
{
    if (m_descriptor >= 0)
        return BusStatus::Ok;
    const int result = m_calls->open(m_options.path);
    if (result < 0) {
        // A node whose adapter has just gone answers ENXIO to open().
        const int error = result == -ENXIO ? ENODEV : -result;
        if (error == EACCES || error == EPERM) {
            m_link->noAccess = true;
            say(accessAdvice(m_options.path));
        }
        return failed(error);
    }
    // What was in the way may come back, and is told again then.
    if (m_link->noAccess.exchange(false))
        m_said.clear();
    m_descriptor = result;
    m_expected = false;
    m_plain = m_calls->hasMessages(m_descriptor) == 0;
    return BusStatus::Ok;
}

BusStatus I2cBus::ensureExpected()
{
    const unsigned generation = m_link->generation.load();
    if (m_expected && m_generation != generation)
        m_expected = false;
    if (const BusStatus status = ensureOpen(); status != BusStatus::Ok)
        return status;
    if (m_expected)
        return BusStatus::Ok;
    if (m_options.edid.size() < ddc::EdidBlockSize) {
        m_expected = true;
        m_generation = generation;
        return BusStatus::Ok;
    }
    Match match = Match::Unknown;
    BusStatus status = BusStatus::Ok;
    std::array<std::uint8_t, ddc::EdidBlockSize> before{};
    for (int i = 0; i < EdidTries && match == Match::Unknown && status == BusStatus::Ok; ++i) {
        std::array<std::uint8_t, ddc::EdidBlockSize> block{};
        status = readEdid(block);
        if (status == BusStatus::Ok)
            match = compare(m_options.edid, block, block == before);
        before = block;
    }
    if (status == BusStatus::Busy || status == BusStatus::Gone || status == BusStatus::NoAccess)
        return status;
    // Some adapters carry DDC/CI but not the EDID; then the kernel's word has to do.
    if (status == BusStatus::Nack && !m_options.connectorEdid.empty())
        match = compare(m_options.edid, readBytes(m_options.connectorEdid), true);
    if (match == Match::Other)
        return refuse(otherMonitorAdvice(name()));
    if (match == Match::Unknown)
        return status == BusStatus::Ok ? BusStatus::Nack : status;
    m_expected = true;
    m_generation = generation;
    m_link->lost = false;
    return BusStatus::Ok;
}

BusStatus I2cBus::transfer(std::span<DeviceCalls::Message> messages)
{
    if (const BusStatus status = ensureOpen(); status != BusStatus::Ok)
        return status;
    if (!m_plain) {
        const int result = m_calls->transfer(m_descriptor, messages);
        if (result >= 0)
            return BusStatus::Ok;
        if (!lacksMessages(-result))
            return failed(-result);
        m_plain = true;
    }
    for (const DeviceCalls::Message& message : messages) {
        if (const int error = plainTransfer(message))
            return failed(error);
    }
    return BusStatus::Ok;
}

int I2cBus::plainTransfer(const DeviceCalls::Message& message)
{
    if (const int result = m_calls->select(m_descriptor, message.address); result < 0)
        return -result;
    const long count = message.isRead ? m_calls->read(m_descriptor, {message.bytes, message.size})
                                      : m_calls->write(m_descriptor, {message.bytes, message.size});
    if (count < 0)
        return int(-count);
    return std::size_t(count) == message.size ? 0 : EIO;
}

BusStatus I2cBus::failed(int error)
{
    m_link->lastErrno = error;
    const BusStatus status = statusOf(error);
    if (status == BusStatus::Gone) {
        m_link->lost = true;
        drop();
    }
    // A plug that is being moved shows itself by silence first.
    if (status == BusStatus::Nack)
        m_expected = false;
    return status;
}

BusStatus I2cBus::refuse(const Advice& why)
{
    say(why);
    return failed(ENODEV);
}

void I2cBus::say(const Advice& advice)
{
    if (const std::string text = advice.english(); m_said == text)
        return;
    else
        m_said = text;
    if (m_options.report)
        m_options.report(advice);
}

void I2cBus::drop()
{
    if (m_descriptor >= 0)
        m_calls->close(m_descriptor);
    m_descriptor = -1;
    m_expected = false;
}

} // namespace ddci2c
