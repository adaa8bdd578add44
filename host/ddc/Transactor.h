// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Bus.h"
#include "Codec.h"
#include "Error.h"
#include "FairLock.h"
#include "Statistics.h"
#include "Timing.h"

#include <chrono>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace ddc {

/// A continuous or choice value of a VCP code as the monitor holds it.
struct VcpValue
{
    std::uint16_t current = 0;
    std::uint16_t maximum = 0;
    bool momentary = false; ///< The value falls back by itself.

    bool operator==(const VcpValue&) const = default;
};

/// One I2C message, for logs.
struct TransferRecord
{
    WireClock::TimePoint started;
    WireClock::TimePoint ended;
    bool isWrite = false;
    std::uint8_t address = 0;
    std::span<const std::uint8_t> bytes; ///< Valid during the call only; undefined content for a failed read.
    BusStatus status = BusStatus::Ok;
    unsigned attempt = 1; ///< 1 for the first try of a call.
};

/// Sees every message of a transactor. It is called on the thread of the transfer with the bus held, so it
/// must be quick and must not call the transactor.
struct Observer
{
    virtual ~Observer() = default;
    virtual void transfer(const TransferRecord& record) = 0;
};

/// The engine of one monitor: turns calls into DDC/CI transactions with the waits, retries and learning that
/// they need.
///
/// Thread safe; one transaction at a time, calls are served in the order of their arrival. Waits are kept as
/// a time before which nothing may be sent, so that the first message after a pause goes out at once.
///
/// Retries: a get has MaxTries tries, a write that was not acknowledged is repeated up to MaxTries - 1 times;
/// pauses grow from try to try. A busy bus is asked again for BusyLimit in total per call. Unsupported,
/// NoAccess and Gone are final. Null replies and damaged replies lengthen the waits of this monitor for good
/// (see learnt()).
///
/// Bound: with the bus free, a call lasts at most the hold that an earlier write left (of the delay table),
/// plus RetryWindow, plus one try (LongestLearntWait, BusyLimit and the transfers themselves). capabilities()
/// is such a call per fragment and starts none after CapabilitiesWindow. What the adapter takes for a
/// transfer is its own.
class Transactor
{
public:
    using Ms = std::chrono::milliseconds;

    static constexpr unsigned MaxTries = 4;
    static constexpr Ms BusyLimit{250};
    static constexpr Ms RetryWindow{1500};
    static constexpr std::chrono::seconds CapabilitiesWindow{240};

    explicit Transactor(std::unique_ptr<Bus> bus, Timing timing = Timing::real(),
                        std::shared_ptr<WireClock> clock = WireClock::steady());

    /// No call may be in progress any more: cancel() and join first.
    ~Transactor();

    Transactor(const Transactor&) = delete;
    Transactor& operator=(const Transactor&) = delete;

    /// Reads a VCP code. Error::NullReply after all tries may mean that the monitor lacks the code.
    Result<VcpValue> getVcp(std::uint8_t code);

    /// Returns once the hold that an earlier transfer left is over, at most after @p limit.
    void awaitReady(Ms limit);

    /// Writes a VCP code; returns when the monitor has acknowledged the message. Equal values are written
    /// again.
    Error setVcp(std::uint8_t code, std::uint16_t value);

    /// The same in one try for a thread that must not wait: Error::Busy when the bus is not free within @p
    /// limit, or is known not to be. Nothing was written then.
    Error setVcpWithin(std::uint8_t code, std::uint16_t value, Ms limit);

    /// As setVcp(), but sent once: a display that sleeps is not pressed.
    Error setVcpOnce(std::uint8_t code, std::uint16_t value);

    /// Tells the monitor to keep its values over a loss of power.
    Error saveSettings();

    /// Reads the capabilities string, at most CapabilitiesLimit bytes. Other calls are served between two
    /// fragments.
    Result<std::string> capabilities();

    /// Reads the EDID: the base block and the first extension, if there is one and it can be read; further
    /// ones cannot be addressed through a Bus. A block with a wrong checksum is read again MaxTries times and
    /// then given back as it is if its header is right: the parser tells.
    Result<std::vector<std::uint8_t>> readEdid();

    /// Codes after whose write every access is held back for so long, instead of the usual wait after a
    /// write.
    void setWriteDelays(const std::map<std::uint8_t, Ms>& delays);

    /// Ends what is in progress or waits, at the latest after the transfer that is on the wire, and
    /// everything later with Error::Cancelled (with Error::Gone after the bus said so). Returns at once.
    void cancel();

    /// Lets calls through again after cancel() or Error::Gone. Calls of before stay ended. Returns at once.
    void revive();

    Statistics statistics() const;

    /// Goes on from the numbers of an earlier run: counters and ledger; waits come from setLearnt(). To be
    /// called before the first transfer.
    void restore(const Statistics& kept);

    /// Books a call that was not made, for a reason that lies outside the bus (Error::Refused,
    /// Error::Asleep).
    void noteNotSent(Error reason);

    /// What the monitor was found to need beyond the protocol, for keeping; zero where nothing was learnt.
    ///
    /// Within a call each null or damaged reply makes the next try wait longer. The longer wait is kept when
    /// the monitor then answers, or when it has never answered anything yet; a monitor that answers other
    /// codes in time and this one with null replies only is not slow but lacks the code.
    LearntWaits learnt() const;

    /// Starts from kept waits. Values below the protocol's are ignored, those above LongestLearntWait are
    /// cut.
    void setLearnt(const LearntWaits& waits);

    /// The source of the ledger's days, such as days since 1970 in local time; null, the default, counts in
    /// UTC. It is called on threads that write and by statistics().
    void setDayOf(std::function<std::int64_t()> dayOf);

    /// Null for none. A transfer in progress may still report to the observer of before.
    void setObserver(std::shared_ptr<Observer> observer);

    /// Bus::name().
    std::string busName() const;

    /// How many calls wait for the bus at the moment.
    int waiting() const { return m_lock.waiting(); }

private:
    struct Call;
    class Turn;
    struct WriteDelay
    {
        std::uint8_t code;
        Ms delay;
    };
    using Parser = std::function<ParseResult(std::span<const std::uint8_t>)>;

    Error setCode(Call& call, std::uint8_t code, std::uint16_t value);
    Error send(Call& call, std::span<const std::uint8_t> frame, Ms holdAfter, bool usualHold);
    Error exchange(Call& call, std::span<const std::uint8_t> request, std::span<std::uint8_t> buffer,
                   const Parser& parse);
    Error ask(Call& call, std::span<const std::uint8_t> request, std::span<std::uint8_t> buffer, Ms wait,
              const Parser& parse);
    Error edidBlock(Call& call, std::uint8_t offset, std::span<std::uint8_t> block);

    Error awaitHold(Call& call);
    void holdFor(Ms time);
    Error failed(Call& call, BusStatus status);
    bool retry(Call& call, Error error, bool wanted);

    template <typename Transfer>
    BusStatus transfer(Call& call, bool isWrite, std::uint8_t address, std::span<const std::uint8_t> bytes,
                       Transfer&& once);
    BusStatus write(Call& call, std::uint8_t address, std::span<const std::uint8_t> bytes);
    BusStatus read(Call& call, std::uint8_t address, std::span<std::uint8_t> bytes);

    std::int64_t today() const;
    void countParse(ParseResult result);
    void countWrite(std::uint8_t code);
    Error finish(Error error, std::uint64_t Statistics::*kind = nullptr);
    Ms delayAfter(std::uint8_t code, bool& usual) const;
    LearntWaits waitsInForce() const;
    void keepWaits(Ms replyDelay, bool longerAfterSet);

    const std::unique_ptr<Bus> m_bus;
    const Timing m_timing;
    const std::shared_ptr<WireClock> m_clock;
    CancelSource m_cancel;
    FairLock m_lock;

    // With m_lock held.
    WireClock::TimePoint m_notBefore{};
    bool m_heldBySet = false; ///< m_notBefore stems from the usual wait after a set.
    bool m_proven = false;    ///< The monitor has answered at the present waits.

    mutable std::mutex m_mutex; ///< Guards what follows; never held during a transfer or a wait.
    Statistics m_counters;      ///< Its waits are those in force; its list of writes stays empty.
    std::vector<WriteDelay> m_delays;
    std::function<std::int64_t()> m_dayOf;
    std::shared_ptr<Observer> m_observer;
};

} // namespace ddc
