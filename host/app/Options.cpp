// SPDX-License-Identifier: Apache-2.0
#include "Options.h"

#include <QCommandLineParser>
#include <QDir>
#include <QFileInfo>

namespace {

constexpr int LongestPeriodMs = 24 * 60 * 60 * 1000;

struct Row
{
    const char* name;
    const char* value; ///< Name of the option's value; null for a switch.
    const char* help;
};

constexpr Row Rows[] = {
    {"headless", nullptr, "No window and no tray; needs no display server."},
    {"hidden", nullptr, "Start without showing the window."},
    {"simulate", "LIST",
     "Simulated monitors in place of the real ones: MODEL or MODEL@SERIAL, with commas between."},
    {"ddc-timing", "real|fast", "Waits of the simulated bus: those of DDC/CI (real, the default) or none."},
    {"services", "native|simulated", "Services of the operating system, or simulated ones."},
    {"control", "PATH", "Path of the control socket."},
    {"config-dir", "DIR", "Where settings are kept."},
    {"data-dir", "DIR", "Where generated files are kept."},
    {"sync-period", "MS", "Pause between two rounds of the periodic read-back, in milliseconds."},
    {"restore", "on|off", "Whether stored values are applied at launch."},
    {"no-auto-sync", nullptr, "Read nothing from the monitors by itself."},
    {"no-load-settings", nullptr, "Do not load the settings of monitors."},
    {"state", "FILE", "The simulated world at the start, as JSON."},
    {"schema-dir", "DIR", "Schema files that stand for the built-in ones of the same name."},
    {"environment", "FILE", "An environment file that is read over the installed one."},
    {"screenshot", "FILE", "Write a picture of the main window (PNG) and end."},
    {"theme", "light|dark|contrast|system", "Colours of the window."},
    {"page", "NAME", "With --screenshot: a picture of this page: of a widget, a section, or the settings."},
};

/// A value of two that an option may have; an empty result says that it is neither.
std::optional<bool> choice(const QString& value, QLatin1String yes, QLatin1String no)
{
    if (value == yes)
        return true;
    if (value == no)
        return false;
    return std::nullopt;
}

} // namespace

ParsedOptions parseOptions(const QStringList& arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Puts you in control of your monitors."));
    for (const Row& row : Rows) {
        QCommandLineOption option(QString::fromLatin1(row.name), QString::fromLatin1(row.help),
                                  QString::fromLatin1(row.value ? row.value : ""));
        parser.addOption(option);
    }
    const QCommandLineOption help = parser.addHelpOption();
    const QCommandLineOption version = parser.addVersionOption();

    ParsedOptions result;
    const auto refuse = [&result](const QString& text) {
        result.outcome = ParsedOptions::Outcome::Refuse;
        result.text = text + QLatin1Char('\n');
        return result;
    };
    if (!parser.parse(arguments))
        return refuse(parser.errorText());
    if (parser.isSet(help) || parser.isSet(version)) {
        result.outcome = ParsedOptions::Outcome::ShowAndEnd;
        // The parser knows the program's name from the application object, which there is none of yet.
        result.text = parser.isSet(help) ? parser.helpText().replace(QStringLiteral("<executable_name>"),
                                                                     QStringLiteral("lumen-desk"))
                                         : QStringLiteral("lumen-desk " LUMEN_DESK_VERSION "\n");
        return result;
    }
    if (!parser.positionalArguments().isEmpty())
        return refuse(QStringLiteral("Unexpected argument '%1'.").arg(parser.positionalArguments().first()));

    const auto value = [&parser](const char* name) { return parser.value(QString::fromLatin1(name)); };
    const auto isSet = [&parser](const char* name) { return parser.isSet(QString::fromLatin1(name)); };
    const auto wrong = [&](const char* name) {
        return refuse(
            QStringLiteral("Option '--%1' does not take '%2'.").arg(QLatin1String(name), value(name)));
    };
    Options& options = result.options;
    options.headless = isSet("headless");
    options.hidden = isSet("hidden");
    options.simulate = isSet("simulate");
    options.simulatedMonitors = value("simulate");
    if (options.simulate && options.simulatedMonitors.isEmpty())
        return refuse(QStringLiteral("Option '--simulate' names no monitor."));
    if (isSet("ddc-timing")) {
        const auto fast = choice(value("ddc-timing"), QLatin1String("fast"), QLatin1String("real"));
        if (!fast)
            return wrong("ddc-timing");
        options.fastTiming = *fast;
    }
    if (isSet("services")) {
        options.nativeServices =
            choice(value("services"), QLatin1String("native"), QLatin1String("simulated"));
        if (!options.nativeServices)
            return wrong("services");
    }
    if (isSet("restore")) {
        options.restore = choice(value("restore"), QLatin1String("on"), QLatin1String("off"));
        if (!options.restore)
            return wrong("restore");
    }
    if (isSet("sync-period")) {
        bool isNumber = false;
        options.syncPeriodMs = value("sync-period").toInt(&isNumber);
        if (!isNumber || options.syncPeriodMs < 1 || options.syncPeriodMs > LongestPeriodMs)
            return wrong("sync-period");
    }
    options.theme = value("theme");
    static const QStringList themes{QString(), QStringLiteral("light"), QStringLiteral("dark"),
                                    QStringLiteral("contrast"), QStringLiteral("system")};
    if (!themes.contains(options.theme))
        return wrong("theme");
    options.autoSync = !isSet("no-auto-sync");
    options.loadSettings = !isSet("no-load-settings");
    options.controlPath = value("control");
    options.configDirectory = value("config-dir");
    options.dataDirectory = value("data-dir");
    options.stateFile = value("state");
    options.schemaDirectory = value("schema-dir");
    options.environmentFile = value("environment");
    options.screenshotFile = value("screenshot");
    options.page = value("page");
    if (!options.schemaDirectory.isEmpty() && !QFileInfo(options.schemaDirectory).isDir())
        return refuse(
            QStringLiteral("Option '--schema-dir': there is no folder '%1'.").arg(options.schemaDirectory));
    if (options.headless && !options.screenshotFile.isEmpty())
        return refuse(QStringLiteral("Options '--headless' and '--screenshot' exclude each other."));
    return result;
}
