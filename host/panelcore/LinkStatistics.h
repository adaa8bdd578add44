// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <ddc/Statistics.h>
#include <ddc/Timing.h>

#include <QJsonObject>

#include <optional>

/// The statistics of one monitor as text: for people and scripts, and for keeping from run to run.
namespace LinkStatistics {

/// What is kept of a monitor.
struct Kept
{
    ddc::Statistics counts;
    ddc::LearntWaits learnt;
};

QJsonObject toKeep(const Kept& kept);

/// Empty where @p object is nothing that toKeep() has written. Numbers out of range make it empty as well.
std::optional<Kept> fromKept(const QJsonObject& object);

/// Counters, errors by name, waits, writes by code and by day.
QJsonObject shown(const ddc::Statistics& counts, const ddc::LearntWaits& learnt);

/// What of @p now was not yet there in @p before: transfers, retries, errors.
QJsonObject sinceThen(const ddc::Statistics& now, const ddc::Statistics& before);

/// "0x10".
QString hexCode(int code);

} // namespace LinkStatistics
