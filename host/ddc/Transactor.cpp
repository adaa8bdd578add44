// SPDX-License-Identifier: Apache-2.0
#include "Transactor.h"

#include "Capabilities.h"
#include "Edid.h"

#include <algorithm>
#include <array>

namespace ddc {

using std::chrono::milliseconds;

namespace {

constexpr milliseconds RetryPauses[] = {
    milliseconds(40),  // before the second try, and after a call that failed
    milliseconds(80),  // before the third
    milliseconds(160), // before the fourth
};
static_assert(std::size(RetryPauses) + 1 == Transactor::MaxTries);

constexpr milliseconds FirstBusyPause{5};

} // namespace

/// What one call carries from its first try to its last.
struct Transactor::Call
{
    explicit Call(const Transactor& owner) : Call(owner.m_cancel.token()) {}
    explicit Call(const CancelToken& life) : token(life) {}

    const CancelToken token;
    std::optional<WireClock::TimePoint> giveUp = {}; ///< Nothing is waited for that ends later.
    unsigned maxTries = MaxTries;
    unsigned attempt = 1;
    Ms busyLeft = BusyLimit;
    std::optional<WireClock::TimePoint> firstTransfer = {};
};

/// Holds the bus for the length of a scope, if it was to be had.
class Transactor::Turn
{
public:
    Turn(Transactor& owner, const Call& call, std::optional<CancelToken::TimePoint> deadline = {})
        : m_lock(owner.m_lock), m_error(owner.m_lock.acquire(call.token, deadline))
    {
    }
    ~Turn()
    {
        if (m_error == Error::None)
            m_lock.release();
    }
    Turn(const Turn&) = delete;
    Turn& operator=(const Turn&) = delete;

    Error error() const { return m_error; }

private:
    FairLock& m_lock;
    const Error m_error;
};

Transactor::Transactor(std::unique_ptr<Bus> bus, Timing timing, std::shared_ptr<WireClock> clock)
    : m_bus(std::move(bus)), m_timing(timing), m_clock(std::move(clock))
{
    m_counters.replyDelay = timing.replyDelay;
    m_counters.afterSet = timing.afterSet;
}

Transactor::~Transactor() = default;

// Calls

Result<VcpValue> Transactor::getVcp(std::uint8_t code)
{
    Call call(*this);
    VcpReply reply;
    Error error;
    {
        const Turn turn(*this, call);
        std::array<std::uint8_t, VcpReplySize> buffer;
        error = turn.error() != Error::None ? turn.error()
                                            : exchange(call, getVcpRequest(code), buffer, [&](auto bytes) {
                                                  return parseVcpReply(bytes, code, reply);
                                              });
    }
    finish(error, &Statistics::gets);
    if (error != Error::None)
        return error;
    return VcpValue{reply.current, reply.maximum, reply.momentary};
}

void Transactor::awaitReady(Ms limit)
{
    Call call(*this);
    WireClock::TimePoint ready;
    {
        const Turn turn(*this, call);
        if (turn.error() != Error::None)
            return;
        ready = m_notBefore;
    }
    const WireClock::TimePoint now = m_clock->now();
    if (m_timing.waits && now < ready)
        (void)m_clock->sleepUntil(std::min(ready, now + limit), call.token);
}

Error Transactor::setVcp(std::uint8_t code, std::uint16_t value)
{
    Call call(*this);
    const Turn turn(*this, call);
    const Error error = turn.error() != Error::None ? turn.error() : setCode(call, code, value);
    return finish(error, &Statistics::sets);
}

Error Transactor::setVcpWithin(std::uint8_t code, std::uint16_t value, Ms limit)
{
    limit = std::max(limit, Ms(0));
    Call call(*this);
    call.maxTries = 1;
    call.giveUp = m_clock->now() + limit;
    // A caller's patience with other callers is real time, whatever clock the waits of the wire follow.
    const Turn turn(*this, call, std::chrono::steady_clock::now() + limit);
    const Error error = turn.error() != Error::None ? turn.error() : setCode(call, code, value);
    return finish(error, &Statistics::sets);
}

Error Transactor::setVcpOnce(std::uint8_t code, std::uint16_t value)
{
    Call call(*this);
    call.maxTries = 1;
    const Turn turn(*this, call);
    const Error error = turn.error() != Error::None ? turn.error() : setCode(call, code, value);
    return finish(error, &Statistics::sets);
}

Error Transactor::saveSettings()
{
    Call call(*this);
    const Turn turn(*this, call);
    const Error error = turn.error() != Error::None
                            ? turn.error()
                            : send(call, saveSettingsRequest(), m_timing.afterSave, false);
    return finish(error, &Statistics::saves);
}

Result<std::string> Transactor::capabilities()
{
    const auto started = m_clock->now();
    const CancelToken life = m_cancel.token();
    std::string text;
    for (;;) {
        Call call(life);
        Fragment fragment;
        std::array<std::uint8_t, FragmentReplySize> buffer;
        const auto offset = std::uint16_t(text.size());
        const Turn turn(*this, call);
        Error error = turn.error();
        if (error == Error::None) {
            error = exchange(call, capabilitiesRequest(offset), buffer,
                             [&](auto bytes) { return parseFragment(bytes, offset, fragment); });
        }
        if (error != Error::None)
            return finish(error);
        holdFor(m_timing.afterFragment);

        const auto end = std::find(fragment.data.begin(), fragment.data.end(), 0);
        text.append(fragment.data.begin(), end);
        if (fragment.data.empty() || end != fragment.data.end())
            return text;
        if (text.size() >= CapabilitiesLimit || m_clock->now() - started >= CapabilitiesWindow)
            return finish(Error::Malformed);
    }
}

Result<std::vector<std::uint8_t>> Transactor::readEdid()
{
    Call call(*this);
    const Turn turn(*this, call);
    if (turn.error() != Error::None)
        return finish(turn.error());
    std::vector<std::uint8_t> edid(EdidBlockSize);
    if (const Error error = edidBlock(call, 0, edid); error != Error::None)
        return finish(error);
    if (edid[EdidBlockSize - 2] == 0)
        return edid;

    std::vector<std::uint8_t> extension(EdidBlockSize);
    Call second(call.token);
    if (edidBlock(second, EdidBlockSize, extension) == Error::None)
        edid.insert(edid.end(), extension.begin(), extension.end());
    return edid;
}

// Steps of a call; the bus is held

Error Transactor::setCode(Call& call, std::uint8_t code, std::uint16_t value)
{
    bool usual = true;
    const Ms hold = delayAfter(code, usual);
    const Error error = send(call, setVcpRequest(code, value), hold, usual);
    if (error == Error::None)
        countWrite(code);
    return error;
}

Error Transactor::send(Call& call, std::span<const std::uint8_t> frame, Ms holdAfter, bool usualHold)
{
    for (;;) {
        if (const Error error = awaitHold(call); error != Error::None)
            return error;
        const BusStatus status = write(call, DdcCiAddress, frame);
        if (status == BusStatus::Ok) {
            holdFor(holdAfter);
            m_heldBySet = usualHold;
            return Error::None;
        }
        // Only what the monitor refused was certainly not carried out.
        const Error error = failed(call, status);
        if (!retry(call, error, status == BusStatus::Nack))
            return error;
    }
}

Error Transactor::exchange(Call& call, std::span<const std::uint8_t> request, std::span<std::uint8_t> buffer,
                           const Parser& parse)
{
    Ms wait = waitsInForce().replyDelay;
    bool setWaitTooShort = false;
    for (;;) {
        const bool rightAfterSet = m_heldBySet && m_clock->now() <= m_notBefore;
        const Error error = ask(call, request, buffer, wait, parse);
        const bool answered = error == Error::None || error == Error::Unsupported;
        const bool early = error == Error::NullReply || error == Error::BadChecksum;
        if (early && rightAfterSet)
            setWaitTooShort = true;
        else if (early)
            wait = longerWait(wait);

        if (!retry(call, error, !answered)) {
            keepWaits(answered || !m_proven ? wait : Ms(0), answered && setWaitTooShort);
            m_proven = m_proven || answered;
            return error;
        }
    }
}

Error Transactor::ask(Call& call, std::span<const std::uint8_t> request, std::span<std::uint8_t> buffer,
                      Ms wait, const Parser& parse)
{
    if (const Error error = awaitHold(call); error != Error::None)
        return error;
    if (const BusStatus status = write(call, DdcCiAddress, request); status != BusStatus::Ok)
        return failed(call, status);
    holdFor(wait);
    if (const Error error = awaitHold(call); error != Error::None)
        return error;
    if (const BusStatus status = read(call, DdcCiAddress, buffer); status != BusStatus::Ok)
        return failed(call, status);
    const ParseResult result = parse(buffer);
    countParse(result);
    return errorOf(result);
}

Error Transactor::edidBlock(Call& call, std::uint8_t offset, std::span<std::uint8_t> block)
{
    for (;;) {
        Error error = awaitHold(call);
        if (error != Error::None)
            return error;
        BusStatus status = write(call, EdidAddress, std::span(&offset, 1));
        if (status == BusStatus::Ok)
            status = read(call, EdidAddress, block);
        if (status != BusStatus::Ok) {
            error = failed(call, status);
        } else if (offset == 0 && !parseEdid(block)) {
            error = Error::Malformed;
        } else if (!edidChecksumOk(block)) {
            error = Error::BadChecksum;
            countParse(ParseResult::BadChecksum);
        }
        if (!retry(call, error, error != Error::None)) {
            // A wrong sum that stays is the monitor's own; a base block with its header is still of use.
            return error == Error::BadChecksum && offset == 0 ? Error::None : error;
        }
    }
}

// Waits and retries

Error Transactor::awaitHold(Call& call)
{
    if (const Error error = call.token.error(); error != Error::None)
        return error;
    if (!m_timing.waits || m_clock->now() >= m_notBefore)
        return Error::None;
    if (call.giveUp && m_notBefore > *call.giveUp)
        return Error::Busy;
    return m_clock->sleepUntil(m_notBefore, call.token) ? Error::None : call.token.error();
}

void Transactor::holdFor(Ms time)
{
    if (!m_timing.waits)
        return;
    m_notBefore = m_clock->now() + time;
    m_heldBySet = false;
}

/// The error of a transfer that failed. A bus that is gone ends all that waits for it as well.
Error Transactor::failed(Call& call, BusStatus status)
{
    const Error error = errorOf(status);
    if (error == Error::Gone) {
        m_cancel.end(call.token, Error::Gone);
        m_lock.wakeAll();
        return error;
    }
    const Error ended = call.token.error();
    return ended != Error::None ? ended : error;
}

/// Whether a try that came to @p error is to be repeated; if so the bus is held back until then.
bool Transactor::retry(Call& call, Error error, bool wanted)
{
    if (!wanted || error == Error::Gone || error == Error::Cancelled || error == Error::NoAccess ||
        error == Error::Busy)
        return false;
    holdFor(RetryPauses[0]); // For whoever comes next, if this call is at its end.
    if (call.attempt >= call.maxTries)
        return false;
    if (call.firstTransfer && m_clock->now() - *call.firstTransfer >= RetryWindow)
        return false;
    holdFor(RetryPauses[call.attempt - 1]);
    ++call.attempt;
    const std::lock_guard lock(m_mutex);
    ++m_counters.retries;
    return true;
}

// Transfers

template <typename Transfer>
BusStatus Transactor::transfer(Call& call, bool isWrite, std::uint8_t address,
                               std::span<const std::uint8_t> bytes, Transfer&& once)
{
    for (Ms pause = FirstBusyPause;; pause *= 2) {
        const auto started = m_clock->now();
        if (!call.firstTransfer)
            call.firstTransfer = started;
        const BusStatus status = once();
        std::shared_ptr<Observer> observer;
        {
            const std::lock_guard lock(m_mutex);
            ++m_counters.transfers;
            if (status == BusStatus::Ok)
                (isWrite ? m_counters.bytesWritten : m_counters.bytesRead) += bytes.size();
            observer = m_observer;
        }
        if (observer)
            observer->transfer({started, m_clock->now(), isWrite, address, bytes, status, call.attempt});
        if (status != BusStatus::Busy || call.busyLeft <= Ms(0))
            return status;

        pause = std::min(pause, call.busyLeft);
        call.busyLeft -= pause;
        const auto until = m_clock->now() + pause;
        if (call.giveUp && until > *call.giveUp)
            return status;
        if (m_timing.waits ? !m_clock->sleepUntil(until, call.token) : call.token.error() != Error::None)
            return status;
    }
}

BusStatus Transactor::write(Call& call, std::uint8_t address, std::span<const std::uint8_t> bytes)
{
    return transfer(call, true, address, bytes, [&] { return m_bus->write(address, bytes); });
}

BusStatus Transactor::read(Call& call, std::uint8_t address, std::span<std::uint8_t> bytes)
{
    // A bus that gives less than it says must not show us the frame of before.
    std::fill(bytes.begin(), bytes.end(), std::uint8_t(0));
    return transfer(call, false, address, bytes, [&] { return m_bus->read(address, bytes); });
}

// Switches

void Transactor::cancel()
{
    m_cancel.end(Error::Cancelled);
    m_lock.wakeAll();
}

void Transactor::revive()
{
    m_cancel.revive();
}

std::string Transactor::busName() const
{
    return m_bus->name();
}

} // namespace ddc
