// SPDX-License-Identifier: Apache-2.0
#include "MonitorLink.h"

#include "HardwareBrightness.h"
#include "MonitorInfoPrivate.h"

#include <ZrCore/ZrShared.h>
#include <ddc/Transactor.h>

#include <QDate>
#include <QJsonArray>

#include <algorithm>
#include <atomic>

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
        return false;
    }
    return false;
}

bool isByte(int code)
{
    return code >= 0 && code <= 0xFF;
}

QString hexCode(int code)
{
    return QStringLiteral("0x%1")
        .arg(code, 2, 16, QLatin1Char('0'))
        .toUpper()
        .replace(QLatin1Char('X'), QLatin1Char('x'));
}

} // namespace

struct MonitorLink::Private
{
    std::unique_ptr<ddc::Transactor> transactor; ///< Null where there is no bus.
    std::atomic<int> silentCalls{0};
    std::atomic<int> probedMode{NotProbed};
    ZrShared<QString> screenName;
    std::function<void()> screenObserver;
    std::function<void()> callObserver;
    std::unique_ptr<HardwareBrightness> brightness; ///< Last: its queue uses the others.

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

MonitorLink::MonitorLink(std::unique_ptr<ddc::Bus> bus, Waits waits) : d(new Private)
{
    d->brightness = std::make_unique<HardwareBrightness>(*this);
    if (!bus)
        return;
    d->transactor = std::make_unique<ddc::Transactor>(
        std::move(bus), waits == Waits::Real ? ddc::Timing::real() : ddc::Timing::none());
    d->transactor->setDayOf([] { return QDate::currentDate().toJulianDay(); });
}

MonitorLink::~MonitorLink() = default;

QSharedPointer<MonitorInfo> MonitorLink::create(const MonitorDescription& description,
                                                std::unique_ptr<ddc::Bus> bus, Waits waits)
{
    std::unique_ptr<MonitorLink> link(new MonitorLink(std::move(bus), waits));
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
    if (!d->transactor || !isByte(code))
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
    if (!d->transactor || !isByte(code) || value < 0 || value > 0xFFFF)
        return false;
    return d->note(d->transactor->setVcp(std::uint8_t(code), std::uint16_t(value)));
}

bool MonitorLink::setVCPWithin(int code, int value, int limitMs)
{
    if (!d->transactor || !isByte(code) || value < 0 || value > 0xFFFF)
        return false;
    const ddc::Error error =
        d->transactor->setVcpWithin(std::uint8_t(code), std::uint16_t(value), ddc::Transactor::Ms(limitMs));
    // A bus that somebody else holds says nothing about the monitor.
    return error != ddc::Error::Busy && d->note(error);
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

QJsonObject MonitorLink::statistics() const
{
    const ddc::Statistics counts = d->transactor ? d->transactor->statistics() : ddc::Statistics();
    QJsonObject errors;
    for (std::size_t i = 1; i < ddc::ErrorCount; ++i) {
        if (counts.errors[i] > 0)
            errors.insert(QString::fromLatin1(ddc::text(ddc::Error(i))), qint64(counts.errors[i]));
    }
    QJsonObject writes;
    for (const ddc::CodeWrites& code : counts.writes)
        writes.insert(hexCode(code.code), QJsonObject{{QStringLiteral("total"), qint64(code.total)},
                                                      {QStringLiteral("today"), qint64(code.today)}});
    const ddc::LearntWaits learnt = d->transactor ? d->transactor->learnt() : ddc::LearntWaits();
    return {
        {QStringLiteral("bus"), d->transactor ? QString::fromStdString(d->transactor->busName()) : QString()},
        {QStringLiteral("transfers"), qint64(counts.transfers)},
        {QStringLiteral("gets"), qint64(counts.gets)},
        {QStringLiteral("sets"), qint64(counts.sets)},
        {QStringLiteral("retries"), qint64(counts.retries)},
        {QStringLiteral("nullReplies"), qint64(counts.nullReplies)},
        {QStringLiteral("checksumErrors"), qint64(counts.checksumErrors)},
        {QStringLiteral("errors"), errors},
        {QStringLiteral("learntWaits"),
         QJsonObject{{QStringLiteral("replyMs"), qint64(learnt.replyDelay.count())},
                     {QStringLiteral("afterSetMs"), qint64(learnt.afterSet.count())}}},
        {QStringLiteral("writes"), writes}};
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
