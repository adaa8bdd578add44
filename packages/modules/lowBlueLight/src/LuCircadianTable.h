// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QDateTime>
#include <QList>

/// The day's curve of filter levels: strongest around the middle of the night, none around noon, one step at
/// each fifth of the night and of the daylight.
namespace LuCircadianTable {

/// From @p time on the filter has @p level, until the next row's time.
struct Row
{
    QDateTime time;
    int level = 0; ///< 0 to 5

    friend bool operator==(const Row&, const Row&) = default;
};

/// The fourteen rows of a day. The rows before @p rise divide the night that has just ended, from
/// @p yesterdaySet (of the pair with @p yesterdayRise) to @p rise; the last one only ends the span before it.
QList<Row> build(const QDateTime& rise, const QDateTime& set, const QDateTime& yesterdayRise,
                 const QDateTime& yesterdaySet);

/// What a table says of a moment.
struct Moment
{
    enum Kind {
        Within, ///< `row` holds until `next`.
        Before, ///< Nothing holds yet; the next row begins at `next`.
        Over,   ///< The table has ended.
    };
    Kind kind = Over;
    int level = -1;
    QDateTime next;
};

/// A row that begins exactly at @p now, and one that ends within this second, count as not begun and as over:
/// whoever asks one second after a boundary gets a clear answer.
Moment at(const QList<Row>& table, const QDateTime& now);

} // namespace LuCircadianTable
