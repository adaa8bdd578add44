// SPDX-License-Identifier: Apache-2.0
#include "LinkStatistics.h"

#include <QDate>
#include <QJsonValue>

#include <array>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

constexpr int Version = 1;
constexpr double Highest = 9007199254740992.0; // Whole numbers of JSON end at 2^53.

struct Counter
{
    QLatin1String name;
    std::uint64_t ddc::Statistics::*member;
};

// clang-format off
constexpr std::array<Counter, 9> Counters{{
    {"transfers"_L1,      &ddc::Statistics::transfers},
    {"bytesWritten"_L1,   &ddc::Statistics::bytesWritten},
    {"bytesRead"_L1,      &ddc::Statistics::bytesRead},
    {"gets"_L1,           &ddc::Statistics::gets},
    {"sets"_L1,           &ddc::Statistics::sets},
    {"saves"_L1,          &ddc::Statistics::saves},
    {"retries"_L1,        &ddc::Statistics::retries},
    {"nullReplies"_L1,    &ddc::Statistics::nullReplies},
    {"checksumErrors"_L1, &ddc::Statistics::checksumErrors},
}};
// clang-format on

QString dayText(std::int64_t day)
{
    return QDate::fromJulianDay(day).toString(Qt::ISODate);
}

QJsonObject errorsOf(const ddc::Statistics& counts)
{
    QJsonObject errors;
    for (std::size_t i = 1; i < ddc::ErrorCount; ++i) {
        if (counts.errors[i] > 0)
            errors.insert(QLatin1String(ddc::text(ddc::Error(i))), qint64(counts.errors[i]));
    }
    return errors;
}

QJsonObject countsOf(const ddc::Ledger::Counts& counts)
{
    QJsonObject object;
    for (const auto& [code, count] : counts)
        object.insert(LinkStatistics::hexCode(code), qint64(count));
    return object;
}

QJsonObject daysOf(const ddc::Ledger& ledger)
{
    QJsonObject days;
    for (const auto& [day, counts] : ledger.days())
        days.insert(dayText(day), countsOf(counts));
    return days;
}

QJsonObject waits(std::chrono::milliseconds reply, std::chrono::milliseconds afterSet)
{
    return {{u"replyMs"_s, qint64(reply.count())}, {u"afterSetMs"_s, qint64(afterSet.count())}};
}

/// Reads whole numbers and remembers if one was none.
class Reader
{
public:
    std::uint64_t number(const QJsonValue& value, double highest = Highest)
    {
        const double number = value.isUndefined() ? 0 : value.toDouble(-1);
        if (!(number >= 0 && number <= highest) || number != std::floor(number)) {
            m_good = false;
            return 0;
        }
        return std::uint64_t(number);
    }

    QJsonObject object(const QJsonValue& value)
    {
        m_good = m_good && (value.isUndefined() || value.isObject());
        return value.toObject();
    }

    ddc::Ledger::Counts counts(const QJsonValue& value)
    {
        ddc::Ledger::Counts counts;
        const QJsonObject codes = object(value);
        for (auto it = codes.begin(); it != codes.end(); ++it) {
            bool isCode = false;
            const uint code = it.key().startsWith("0x"_L1) ? it.key().mid(2).toUInt(&isCode, 16) : 0;
            if (!isCode || code > 0xFF)
                m_good = false;
            else
                counts[std::uint8_t(code)] = std::uint32_t(number(it.value(), 4294967295.0));
        }
        return counts;
    }

    std::int64_t day(const QString& text)
    {
        const QDate date = QDate::fromString(text, Qt::ISODate);
        m_good = m_good && date.isValid();
        return date.toJulianDay();
    }

    void refuse() { m_good = false; }
    bool isGood() const { return m_good; }

private:
    bool m_good = true;
};

void readErrors(Reader& reader, const QJsonObject& errors, ddc::Statistics& counts)
{
    // A name that this version does not know is left out.
    for (std::size_t i = 1; i < ddc::ErrorCount; ++i)
        counts.errors[i] = reader.number(errors.value(QLatin1String(ddc::text(ddc::Error(i)))));
}

} // namespace

QString LinkStatistics::hexCode(int code)
{
    return u"0x%1"_s.arg(QString::number(code, 16).toUpper().rightJustified(2, u'0'));
}

QJsonObject LinkStatistics::toKeep(const Kept& kept)
{
    QJsonObject object{{u"version"_s, Version},
                       {u"errors"_s, errorsOf(kept.counts)},
                       {u"learntWaits"_s, waits(kept.learnt.replyDelay, kept.learnt.afterSet)},
                       {u"writes"_s, countsOf(kept.counts.ledger.totals())},
                       {u"writesByDay"_s, daysOf(kept.counts.ledger)}};
    for (const Counter& counter : Counters)
        object.insert(counter.name, qint64(kept.counts.*counter.member));
    return object;
}

std::optional<LinkStatistics::Kept> LinkStatistics::fromKept(const QJsonObject& object)
{
    Reader reader;
    Kept kept;
    if (object.value("version"_L1) != QJsonValue(Version))
        return std::nullopt;
    for (const Counter& counter : Counters)
        kept.counts.*counter.member = reader.number(object.value(counter.name));
    readErrors(reader, reader.object(object.value("errors"_L1)), kept.counts);
    const QJsonObject learnt = reader.object(object.value("learntWaits"_L1));
    const double longest = double(ddc::LongestLearntWait.count());
    kept.learnt.replyDelay = std::chrono::milliseconds(reader.number(learnt.value("replyMs"_L1), longest));
    kept.learnt.afterSet = std::chrono::milliseconds(reader.number(learnt.value("afterSetMs"_L1), longest));
    std::map<std::int64_t, ddc::Ledger::Counts> days;
    const QJsonObject writesByDay = reader.object(object.value("writesByDay"_L1));
    for (auto it = writesByDay.begin(); it != writesByDay.end(); ++it) {
        const std::int64_t day = reader.day(it.key());
        days[day] = reader.counts(it.value());
    }
    kept.counts.ledger.restore(reader.counts(object.value("writes"_L1)), std::move(days));
    return reader.isGood() ? std::optional<Kept>(std::move(kept)) : std::nullopt;
}

QJsonObject LinkStatistics::shown(const ddc::Statistics& counts, const ddc::LearntWaits& learnt)
{
    QJsonObject writes;
    qint64 today = 0;
    for (const ddc::CodeWrites& code : counts.writes) {
        today += code.today;
        writes.insert(hexCode(code.code),
                      QJsonObject{{u"total"_s, qint64(code.total)}, {u"today"_s, qint64(code.today)}});
    }
    QJsonObject object{{u"errors"_s, errorsOf(counts)},
                       {u"waits"_s, waits(counts.replyDelay, counts.afterSet)},
                       {u"learntWaits"_s, waits(learnt.replyDelay, learnt.afterSet)},
                       {u"writes"_s, writes},
                       {u"writesToday"_s, today},
                       {u"writesByDay"_s, daysOf(counts.ledger)}};
    for (const Counter& counter : Counters)
        object.insert(counter.name, qint64(counts.*counter.member));
    return object;
}

QJsonObject LinkStatistics::sinceThen(const ddc::Statistics& now, const ddc::Statistics& before)
{
    ddc::Statistics difference;
    for (std::size_t i = 1; i < ddc::ErrorCount; ++i)
        difference.errors[i] = now.errors[i] - before.errors[i];
    QJsonObject object{{u"errors"_s, errorsOf(difference)}};
    for (const Counter& counter : Counters)
        object.insert(counter.name, qint64(now.*counter.member - before.*counter.member));
    return object;
}
