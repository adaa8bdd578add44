// SPDX-License-Identifier: Apache-2.0
#include "MonitorLink.h"

#include "HardwareBrightness.h"
#include "MonitorInfoPrivate.h"

#include "LinkStatistics.h"

#include <ZrCore/ZrAsker.h>
#include <ZrCore/ZrClock.h>
#include <ZrCore/ZrDispatch.h>
#include <ZrCore/ZrShared.h>
#include <ddc/Breaker.h>
#include <ddc/Transactor.h>

#include <QDateTime>
#include <QDebug>
#include <QJsonArray>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <condition_variable>
#include <mutex>

using namespace Qt::StringLiterals;

namespace {

constexpr int ColorModeCode = 0xDC;
/// So many calls without any answer in a row, and the monitor counts as silent.
constexpr int SilentCalls = 3;
constexpr int NotProbed = -2;

/// Whether a call ended without the monitor having said anything.
bool isNoAnswer(ddc::Error error)
{
    switch (error) {
    case ddc::Error::NoReply:
    case ddc::Error::BadChecksum:
    case ddc::Error::Malformed:
    case ddc::Error::Busy:
    case ddc::Error::NoAccess:
    case ddc::Error::Gone:
    case ddc::Error::Cancelled:
        return true;
    case ddc::Error::None:
    case ddc::Error::NullReply:
    case ddc::Error::Unsupported:
    case ddc::Error::Refused:
    case ddc::Error::Asleep:
        return false;
    }
    return false;
}

bool isByte(int code)
{
    return code >= 0 && code <= 0xFF;
}

} // namespace

struct MonitorLink::Private
{
    explicit Private(const QString& monitor) : id(monitor) {}

    const QString id;
    std::unique_ptr<ddc::Transactor> transactor; ///< Null where there is no bus.
    std::atomic<int> silentCalls{0};
    std::atomic<int> probedMode{NotProbed};
    ZrShared<QString> screenName;
    std::function<void()> screenObserver;
    std::function<void()> callObserver;
    std::atomic<bool> asleep{false};
    ddc::Statistics before; ///< Of earlier runs.
    std::mutex breakerMutex;
    ddc::Breaker breaker;
    std::unique_ptr<HardwareBrightness> brightness;
    QSharedPointer<ZrDispatch> queue; ///< Last: its jobs use the others.

    bool passesBreaker(int code)
    {
        using Verdict = ddc::Breaker::Verdict;
        Verdict verdict;
        std::uint64_t refused = 0;
        {
            const std::lock_guard lock(breakerMutex);
            verdict = breaker.admit(std::uint8_t(code), ZrClock::instance().monotonicMs());
            refused = breaker.refusedOf(std::uint8_t(code));
        }
        if (verdict == Verdict::Pass)
            return true;
        if (verdict == Verdict::PassAgain) {
            qInfo().noquote() << "[MonitorLink]" << id << "takes writes of" << LinkStatistics::hexCode(code)
                              << "again;" << refused << "were refused";
            return true;
        }
        if (verdict == Verdict::Trip)
            qWarning().noquote() << "[MonitorLink]" << id << "code" << LinkStatistics::hexCode(code)
                                 << "was written" << ddc::Breaker::Limit << "times in"
                                 << ddc::Breaker::WindowMs / 1000
                                 << "s without a person asking: a fault; it is not written for as long again";
        transactor->noteNotSent(ddc::Error::Refused);
        return false;
    }

    QJsonObject breakerState()
    {
        const std::int64_t now = ZrClock::instance().monotonicMs();
        const std::lock_guard lock(breakerMutex);
        QJsonArray closed;
        for (const ddc::Breaker::Closed& code : breaker.closed(now))
            closed.append(QJsonObject{{u"code"_s, LinkStatistics::hexCode(code.code)},
                                      {u"opensInMs"_s, qint64(code.untilMs - now)},
                                      {u"refused"_s, qint64(code.refused)}});
        return {{u"limit"_s, ddc::Breaker::Limit},
                {u"windowMs"_s, qint64(ddc::Breaker::WindowMs)},
                {u"closed"_s, closed},
                {u"trips"_s, qint64(breaker.trips())},
                {u"refused"_s, qint64(breaker.refused())}};
    }

    bool note(ddc::Error error)
    {
        if (callObserver)
            callObserver();
        if (isNoAnswer(error))
            silentCalls.fetch_add(1);
        else if (error != ddc::Error::NullReply) // it may be a lacking code or a monitor that falls asleep
            silentCalls.store(0);
        return error == ddc::Error::None;
    }
};

MonitorLink::MonitorLink(const QString& id, std::unique_ptr<ddc::Bus> bus, Waits waits) : d(new Private(id))
{
    d->brightness = std::make_unique<HardwareBrightness>(*this);
    if (!bus)
        return;
    d->transactor = std::make_unique<ddc::Transactor>(
        std::move(bus), waits == Waits::Real ? ddc::Timing::real() : ddc::Timing::none());
    d->transactor->setDayOf([] { return ZrClock::instance().now().date().toJulianDay(); });
}

MonitorLink::~MonitorLink() = default;

QSharedPointer<MonitorInfo> MonitorLink::create(const MonitorDescription& description,
                                                std::unique_ptr<ddc::Bus> bus, Waits waits)
{
    std::unique_ptr<MonitorLink> link(new MonitorLink(description.id, std::move(bus), waits));
    link->d->screenName = description.screenName;
    return QSharedPointer<MonitorInfo>::create(
        std::make_unique<MonitorInfoPrivate>(description, std::move(link)));
}

MonitorLink& MonitorLink::of(const MonitorInfo& info)
{
    return MonitorInfoPrivate::of(info).link();
}

bool MonitorLink::getVCP(int code, int& value, int* maximum)
{
    if (!d->transactor || !isByte(code) || !mayAsk(false, code))
        return false;
    const ddc::Result<ddc::VcpValue> reply = d->transactor->getVcp(std::uint8_t(code));
    if (!d->note(reply.error))
        return false;
    value = reply.value.current;
    if (maximum)
        *maximum = reply.value.maximum;
    return true;
}

bool MonitorLink::setVCP(int code, int value)
{
    if (!d->transactor || !isByte(code) || value < 0 || value > 0xFFFF || !mayAsk(true, code))
        return false;
    return d->note(d->asleep ? d->transactor->setVcpOnce(std::uint8_t(code), std::uint16_t(value))
                             : d->transactor->setVcp(std::uint8_t(code), std::uint16_t(value)));
}

void MonitorLink::awaitReady()
{
    // The usual wait after a write, and what a slow monitor has taught.
    constexpr ddc::Transactor::Ms UsualHold{100};
    if (d->transactor)
        d->transactor->awaitReady(UsualHold);
}

std::optional<bool> MonitorLink::setVCPWithin(int code, int value, int limitMs)
{
    if (!d->transactor || !isByte(code) || value < 0 || value > 0xFFFF || !mayAsk(true, code))
        return false;
    struct Attempt
    {
        std::mutex mutex;
        std::condition_variable ended;
        bool isAbandoned = false;
        bool hasEnded = false;
        std::optional<bool> written;
    };
    // An adapter that hangs holds its thread as long as it likes: it must not be the caller's.
    const auto attempt = std::make_shared<Attempt>();
    makeOwnQueue()->postUniqueAtFront(
        nullptr, QStringLiteral("direct"), [this, attempt, code, value, limitMs] {
            {
                const std::lock_guard lock(attempt->mutex);
                if (attempt->isAbandoned)
                    return;
            }
            const ddc::Error error = d->transactor->setVcpWithin(std::uint8_t(code), std::uint16_t(value),
                                                                 ddc::Transactor::Ms(limitMs));
            // A bus that somebody else holds says nothing about the monitor.
            const auto written = error == ddc::Error::Busy ? std::optional<bool>() : d->note(error);
            const std::lock_guard lock(attempt->mutex);
            attempt->written = written;
            attempt->hasEnded = true;
            attempt->ended.notify_all();
        });
    std::unique_lock lock(attempt->mutex);
    const bool ended =
        attempt->ended.wait_for(lock, std::chrono::milliseconds(limitMs), [&] { return attempt->hasEnded; });
    attempt->isAbandoned = !ended;
    return attempt->written;
}

QSharedPointer<ZrDispatch> MonitorLink::ownQueue() const
{
    return d->queue;
}

QSharedPointer<ZrDispatch> MonitorLink::makeOwnQueue()
{
    if (!d->queue)
        d->queue = QSharedPointer<ZrDispatch>::create(QStringLiteral("direct"), d->id);
    return d->queue;
}

HardwareBrightness& MonitorLink::brightness()
{
    return *d->brightness;
}

void MonitorLink::setCallObserver(std::function<void()> observer)
{
    d->callObserver = std::move(observer);
}

void MonitorLink::setWriteDelays(const QHash<int, int>& delays)
{
    if (!d->transactor)
        return;
    std::map<std::uint8_t, ddc::Transactor::Ms> table;
    for (auto it = delays.begin(); it != delays.end(); ++it) {
        if (isByte(it.key()))
            table.emplace(std::uint8_t(it.key()), ddc::Transactor::Ms(it.value()));
    }
    d->transactor->setWriteDelays(table);
}

void MonitorLink::setScreenName(const QString& name)
{
    if (d->screenName.set(name) && d->screenObserver)
        d->screenObserver();
}

QString MonitorLink::screenName() const
{
    return d->screenName;
}

void MonitorLink::setScreenObserver(std::function<void()> observer)
{
    d->screenObserver = std::move(observer);
}

void MonitorLink::cancel()
{
    if (d->transactor)
        d->transactor->cancel();
}

bool MonitorLink::isSilent() const
{
    return !d->transactor || d->silentCalls.load() >= SilentCalls;
}

void MonitorLink::setAsleep(bool asleep)
{
    d->asleep = asleep;
}

bool MonitorLink::isAsleep() const
{
    return d->asleep;
}

/// Whether a call may go to the wire; if not the refusal is booked.
bool MonitorLink::mayAsk(bool isWrite, int code)
{
    if (ZrAsker::isAskedFor())
        return true;
    if (d->asleep) {
        d->transactor->noteNotSent(ddc::Error::Asleep);
        return false;
    }
    return !isWrite || d->passesBreaker(code);
}

QJsonObject MonitorLink::statistics() const
{
    const ddc::Statistics counts = d->transactor ? d->transactor->statistics() : ddc::Statistics();
    const ddc::LearntWaits learnt = d->transactor ? d->transactor->learnt() : ddc::LearntWaits();
    QJsonObject object = LinkStatistics::shown(counts, learnt);
    object.insert(u"bus"_s, d->transactor ? QString::fromStdString(d->transactor->busName()) : QString());
    object.insert(u"thisRun"_s, LinkStatistics::sinceThen(counts, d->before));
    object.insert(u"asleep"_s, isAsleep());
    object.insert(u"silent"_s, isSilent());
    object.insert(u"breaker"_s, d->breakerState());
    return object;
}

QJsonObject MonitorLink::toKeep() const
{
    if (!d->transactor)
        return {};
    return LinkStatistics::toKeep({d->transactor->statistics(), d->transactor->learnt()});
}

bool MonitorLink::restore(const QJsonObject& kept)
{
    const std::optional<LinkStatistics::Kept> read = LinkStatistics::fromKept(kept);
    if (!read)
        return false;
    if (d->transactor) {
        d->before = read->counts;
        d->transactor->restore(read->counts);
        d->transactor->setLearnt(read->learnt);
    }
    return true;
}

std::optional<int> MonitorLink::probedColorMode() const
{
    const int mode = d->probedMode.load();
    return mode == NotProbed ? std::nullopt : std::optional<int>(mode);
}

void MonitorLink::probeColorMode()
{
    int code = -1;
    d->probedMode = getVCP(ColorModeCode, code) ? code : -1;
}
