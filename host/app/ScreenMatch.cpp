// SPDX-License-Identifier: Apache-2.0
#include "ScreenMatch.h"

#include <QRegularExpression>

#include <algorithm>
#include <functional>
#include <optional>
#include <utility>

namespace {

using Output = std::pair<QString, int>; ///< Type and number.

std::optional<Output> parsed(const QRegularExpression& pattern, const QString& name)
{
    const QRegularExpressionMatch match = pattern.match(name);
    if (!match.hasMatch())
        return std::nullopt;
    QString type = match.captured(1).toUpper();
    if (type == QLatin1String("DISPLAYPORT"))
        type = QStringLiteral("DP");
    else if (type == QLatin1String("HDMI-A"))
        type = QStringLiteral("HDMI");
    return Output(type, match.captured(2).toInt());
}

std::optional<Output> parseOutput(const QString& name)
{
    static const QRegularExpression pattern(QStringLiteral("^([A-Za-z]+(?:-[A-Za-z]+)?)-?([0-9]+)$"));
    return parsed(pattern, name);
}

/// X11's name of an output at a second card, which has the card's number before its own.
std::optional<Output> parseSecondCard(const QString& name)
{
    static const QRegularExpression pattern(QStringLiteral("^([A-Za-z]+(?:-[A-Za-z]+)?)-[0-9]+-([0-9]+)$"));
    return parsed(pattern, name);
}

/// The kind of an output, whatever numbers follow: "DP" of "DP-2-8", "DisplayPort-3" and "DP1".
QString kindOf(const QString& name)
{
    static const QRegularExpression number(QStringLiteral("-?[0-9].*$"));
    const std::optional<Output> output = parseOutput(QString(name).remove(number) + QLatin1Char('1'));
    return output ? output->first : QString();
}

QString outputOf(const MonitorFacts& monitor)
{
    return monitor.connector.section(QLatin1Char('-'), 1);
}

bool contradict(const MonitorFacts& monitor, const ScreenFacts& screen)
{
    return !screen.model.isEmpty() &&
           (screen.model != monitor.model || (!screen.serial.isEmpty() && screen.serial != monitor.serial));
}

bool tellTheSame(const MonitorFacts& monitor, const ScreenFacts& screen)
{
    return !monitor.serial.isEmpty() && !screen.model.isEmpty() && screen.model == monitor.model &&
           screen.serial == monitor.serial;
}

bool haveOneConnector(const MonitorFacts& monitor, const ScreenFacts& screen)
{
    // Another card may have the same number.
    return monitor.connectorId && monitor.connectorId == screen.connectorId &&
           kindOf(outputOf(monitor)) == kindOf(screen.name);
}

using Rule = std::function<bool(const MonitorFacts& monitor, const ScreenFacts& screen)>;

/// Makes a pair of every monitor and screen that fit each other and nobody else of those that are left.
void pairUp(const QList<MonitorFacts>& monitors, const QList<ScreenFacts>& screens, const Rule& rule,
            QStringList& names)
{
    const QStringList before = names;
    const auto fits = [&](qsizetype monitor, qsizetype screen) {
        return before[monitor].isEmpty() && !before.contains(screens[screen].name) &&
               !contradict(monitors[monitor], screens[screen]) && rule(monitors[monitor], screens[screen]);
    };
    for (qsizetype screen = 0; screen < screens.size(); ++screen) {
        qsizetype found = -1;
        bool only = true;
        for (qsizetype monitor = 0; monitor < monitors.size(); ++monitor) {
            if (!fits(monitor, screen))
                continue;
            only = found < 0;
            found = monitor;
            for (qsizetype other = 0; other < screens.size() && only; ++other)
                only = other == screen || !fits(monitor, other);
            if (!only)
                break;
        }
        if (found >= 0 && only)
            names[found] = screens[screen].name;
    }
}

} // namespace

QStringList screensFor(const QList<MonitorFacts>& found, const QList<ScreenFacts>& screens)
{
    QList<MonitorFacts> monitors = found;
    for (MonitorFacts& monitor : monitors) {
        if (monitor.connectorIsGuessed)
            monitor = {{}, monitor.model, monitor.serial, {}, true};
    }
    QStringList names(monitors.size());
    const int first = std::any_of(screens.begin(), screens.end(),
                                  [](const ScreenFacts& screen) {
                                      const std::optional<Output> output = parseOutput(screen.name);
                                      return output && output->second == 0;
                                  })
                          ? 0
                          : 1;
    const Rule rules[] = {
        tellTheSame,
        haveOneConnector,
        [](const MonitorFacts& monitor, const ScreenFacts& screen) {
            return screen.name == outputOf(monitor);
        },
        [first](const MonitorFacts& monitor, const ScreenFacts& screen) {
            const std::optional<Output> wanted = parseOutput(outputOf(monitor));
            const std::optional<Output> output = parseOutput(screen.name);
            return wanted && output && output->first == wanted->first &&
                   output->second + 1 - first == wanted->second;
        },
        [](const MonitorFacts& monitor, const ScreenFacts& screen) {
            const std::optional<Output> wanted = parseOutput(outputOf(monitor));
            return wanted && parseSecondCard(screen.name) == wanted;
        },
        // Whatever contradicts is out already.
        [](const MonitorFacts& monitor, const ScreenFacts& screen) {
            return !screen.model.isEmpty() && screen.model == monitor.model;
        },
    };
    for (const Rule& rule : rules)
        pairUp(monitors, screens, rule, names);
    return names;
}

QList<bool> doubtfulScreens(const QList<MonitorFacts>& monitors, const QList<ScreenFacts>& screens,
                            const QStringList& names)
{
    QList<bool> doubtful;
    for (qsizetype monitor = 0; monitor < monitors.size(); ++monitor) {
        const auto mayShowIt = [&](const ScreenFacts& screen) {
            // A screen that tells nothing of itself may be any; "offscreen" is none.
            const bool fits = screen.model.isEmpty()
                                  ? kindOf(screen.name) == kindOf(outputOf(monitors[monitor]))
                                  : !contradict(monitors[monitor], screen);
            return fits && !names.contains(screen.name);
        };
        doubtful.append(names[monitor].isEmpty() && std::any_of(screens.begin(), screens.end(), mayShowIt));
    }
    return doubtful;
}
