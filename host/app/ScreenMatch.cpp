// SPDX-License-Identifier: Apache-2.0
#include "ScreenMatch.h"

#include <QRegularExpression>

#include <algorithm>
#include <optional>
#include <utility>

namespace {

using Output = std::pair<QString, int>; ///< Type and number.

std::optional<Output> parseOutput(const QString& name)
{
    static const QRegularExpression pattern(QStringLiteral("^([A-Za-z]+(?:-[A-Za-z]+)?)-?([0-9]+)$"));
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

} // namespace

QString screenFor(const QString& connector, const QString& model, const QString& serial,
                  const QList<ScreenFacts>& screens)
{
    const auto isIt = [&](const ScreenFacts& screen) {
        return !model.isEmpty() && screen.model == model && screen.serial == serial;
    };
    if (!serial.isEmpty() && std::count_if(screens.begin(), screens.end(), isIt) == 1)
        return std::find_if(screens.begin(), screens.end(), isIt)->name;

    const QString output = connector.section(QLatin1Char('-'), 1);
    const auto contradicts = [&](const ScreenFacts& screen) {
        return (!screen.model.isEmpty() && screen.model != model) ||
               (!screen.model.isEmpty() && !screen.serial.isEmpty() && screen.serial != serial);
    };
    for (const ScreenFacts& screen : screens) {
        if (screen.name == output && !contradicts(screen))
            return screen.name;
    }
    const std::optional<Output> wanted = parseOutput(output);
    const int first = std::any_of(screens.begin(), screens.end(),
                                  [](const ScreenFacts& screen) {
                                      const std::optional<Output> parsed = parseOutput(screen.name);
                                      return parsed && parsed->second == 0;
                                  })
                          ? 0
                          : 1;
    for (const ScreenFacts& screen : screens) {
        const std::optional<Output> parsed = parseOutput(screen.name);
        if (wanted && parsed && parsed->first == wanted->first &&
            parsed->second + 1 - first == wanted->second && !contradicts(screen))
            return screen.name;
    }
    return {};
}
