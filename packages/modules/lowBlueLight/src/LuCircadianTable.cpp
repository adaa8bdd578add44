// SPDX-License-Identifier: Apache-2.0
#include "LuCircadianTable.h"

namespace LuCircadianTable {

namespace {

constexpr qint64 Day = 86400;

enum class From { Rise, Set };
enum class Span { Daylight, Night, LastNight, WholeDay };

struct Rule
{
    From from;
    int fifths;
    Span span;
    int level;
};

constexpr Rule Rules[] = {
    {From::Rise, -3, Span::LastNight, 5}, {From::Rise, -2, Span::LastNight, 4},
    {From::Rise, -1, Span::LastNight, 3}, {From::Rise, 0, Span::Daylight, 2},
    {From::Rise, 1, Span::Daylight, 1},   {From::Rise, 2, Span::Daylight, 0},
    {From::Rise, 3, Span::Daylight, 1},   {From::Rise, 4, Span::Daylight, 2},
    {From::Set, 0, Span::Night, 3},       {From::Set, 1, Span::Night, 4},
    {From::Set, 2, Span::Night, 5},       {From::Set, 3, Span::Night, 4},
    {From::Set, 4, Span::Night, 3},       {From::Rise, 5, Span::WholeDay, 2},
};

} // namespace

QList<Row> build(const QDateTime& rise, const QDateTime& set, const QDateTime& yesterdayRise,
                 const QDateTime& yesterdaySet)
{
    const auto seconds = [&](Span span) {
        switch (span) {
        case Span::Daylight:
            return rise.secsTo(set);
        case Span::Night:
            return Day - rise.secsTo(set);
        case Span::LastNight:
            return Day - yesterdayRise.secsTo(yesterdaySet);
        case Span::WholeDay:
            break;
        }
        return Day;
    };
    QList<Row> rows;
    rows.reserve(std::size(Rules));
    for (const Rule& rule : Rules) {
        const QDateTime& from = rule.from == From::Rise ? rise : set;
        rows.append({from.addSecs(rule.fifths * seconds(rule.span) / 5), rule.level});
    }
    return rows;
}

Moment at(const QList<Row>& table, const QDateTime& now)
{
    for (qsizetype i = 0; i + 1 < table.size(); ++i) {
        const qint64 toRow = now.msecsTo(table[i].time);
        const QDateTime& next = table[i + 1].time;
        if (toRow < 0 && now.secsTo(next) > 0)
            return {Moment::Within, table[i].level, next};
        if (toRow > 0)
            return {Moment::Before, -1, table[i].time};
    }
    return {};
}

} // namespace LuCircadianTable
