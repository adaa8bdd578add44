// SPDX-License-Identifier: Apache-2.0
#include "LuReport.h"

#include <QCoreApplication>
#include <QDir>
#include <QJsonArray>
#include <QRegularExpression>
#include <QSysInfo>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

/// Parts of the program whose log lines hold nothing of what a person does.
constexpr std::array Sources{
    "[RealMonitors]"_L1,   "[MonitorLink]"_L1,  "[LuMonitorRegistry]"_L1,
    "[LuMonitorModel]"_L1, "[LuRetirement]"_L1, "[LuStatisticsStore]"_L1,
};

/// A shorter one is replaced only where it stands by itself, since it may be part of any other word.
constexpr int ShortestPart = 4;

QString wholeNumber(const QJsonObject& object, QLatin1String name)
{
    return QString::number(object.value(name).toInteger());
}

// What the statistics call the errors of a bus.
[[maybe_unused]] constexpr const char* ErrorNames[] = {
    QT_TRANSLATE_NOOP("LuDiagnostics", "no reply"),
    QT_TRANSLATE_NOOP("LuDiagnostics", "null reply"),
    QT_TRANSLATE_NOOP("LuDiagnostics", "bad checksum"),
    QT_TRANSLATE_NOOP("LuDiagnostics", "unsupported code"),
    QT_TRANSLATE_NOOP("LuDiagnostics", "malformed reply"),
    QT_TRANSLATE_NOOP("LuDiagnostics", "bus busy"),
    QT_TRANSLATE_NOOP("LuDiagnostics", "no access to the bus"),
    QT_TRANSLATE_NOOP("LuDiagnostics", "monitor gone"),
    QT_TRANSLATE_NOOP("LuDiagnostics", "cancelled"),
    QT_TRANSLATE_NOOP("LuDiagnostics", "refused after too many writes"),
    QT_TRANSLATE_NOOP("LuDiagnostics", "display asleep"),
};

QString errors(const QJsonObject& counts, const LuReport::Words& words)
{
    QStringList parts;
    for (auto it = counts.begin(); it != counts.end(); ++it)
        parts.append(u"%1: %2"_s.arg(words(qPrintable(it.key()))).arg(it.value().toInteger()));
    return parts.isEmpty() ? words(QT_TRANSLATE_NOOP("LuDiagnostics", "none")) : parts.join(u", "_s);
}

QString waits(const QJsonObject& statistics, const LuReport::Words& words)
{
    const QJsonObject learnt = statistics.value("learntWaits"_L1).toObject();
    const qint64 reply = learnt.value("replyMs"_L1).toInteger();
    const qint64 afterSet = learnt.value("afterSetMs"_L1).toInteger();
    QStringList parts;
    if (reply > 0)
        parts.append(words(QT_TRANSLATE_NOOP("LuDiagnostics", "%1 ms before a reply")).arg(reply));
    if (afterSet > 0)
        parts.append(words(QT_TRANSLATE_NOOP("LuDiagnostics", "%1 ms after a write")).arg(afterSet));
    return parts.isEmpty() ? words("none") : parts.join(u", "_s);
}

QStringList openCodes(const QJsonObject& statistics)
{
    QStringList codes;
    const QJsonArray closed = statistics.value("breaker"_L1)["closed"_L1].toArray();
    for (const QJsonValue& code : closed)
        codes.append(code["code"_L1].toString());
    return codes;
}

QString breaker(const QJsonObject& statistics, const LuReport::Words& words)
{
    const QStringList codes = openCodes(statistics);
    if (!codes.isEmpty())
        return words(QT_TRANSLATE_NOOP("LuDiagnostics", "open for %1")).arg(codes.join(u", "_s));
    const qint64 trips = statistics.value("breaker"_L1)["trips"_L1].toInteger();
    return trips > 0 ? words(QT_TRANSLATE_NOOP("LuDiagnostics", "closed; times opened: %1")).arg(trips)
                     : words(QT_TRANSLATE_NOOP("LuDiagnostics", "closed"));
}

QString writesToday(const QJsonObject& statistics)
{
    QStringList codes;
    const QJsonObject writes = statistics.value("writes"_L1).toObject();
    for (auto it = writes.begin(); it != writes.end(); ++it) {
        const qint64 today = it.value()["today"_L1].toInteger();
        if (today > 0)
            codes.append(u"%1: %2"_s.arg(it.key()).arg(today));
    }
    const QString total = wholeNumber(statistics, "writesToday"_L1);
    return codes.isEmpty() ? total : u"%1 (%2)"_s.arg(total, codes.join(u", "_s));
}

QString condition(const QJsonObject& statistics, const LuReport::Words& words)
{
    if (statistics.value("asleep"_L1).toBool())
        return words(QT_TRANSLATE_NOOP("LuDiagnostics", "asleep"));
    return statistics.value("silent"_L1).toBool()
               ? words(QT_TRANSLATE_NOOP("LuDiagnostics", "gives no answer"))
               : words(QT_TRANSLATE_NOOP("LuDiagnostics", "answers"));
}

void addSecret(QHash<QString, QString>& secrets, const QString& text, const QString& instead)
{
    const QString word = text.trimmed();
    if (!word.isEmpty())
        secrets.insert(word, instead);
}

/// What must not be read in a report, with what stands there instead.
QHash<QString, QString> secretsOf(const LuDiagnosticFacts& facts)
{
    QHash<QString, QString> secrets;
    for (const LuDiagnosticFacts::Monitor& monitor : facts.monitors) {
        addSecret(secrets, monitor.serial, u"(serial)"_s);
        addSecret(secrets, monitor.id.mid(monitor.id.indexOf(u'@') + 1), u"(serial)"_s);
        if (monitor.nickName != monitor.model)
            addSecret(secrets, monitor.nickName, u"(name)"_s);
    }
    const QString home = QDir::homePath();
    if (home != "/"_L1)
        addSecret(secrets, home, u"~"_s);
    addSecret(secrets, QDir(home).dirName(), u"(user)"_s);
    addSecret(secrets, qEnvironmentVariable("USER"), u"(user)"_s);
    addSecret(secrets, qEnvironmentVariable("LOGNAME"), u"(user)"_s);
    addSecret(secrets, QSysInfo::machineHostName(), u"(host)"_s);
    return secrets;
}

} // namespace

bool LuReport::isOfInterest(const QString& logLine)
{
    return std::any_of(Sources.begin(), Sources.end(),
                       [&logLine](QLatin1String source) { return logLine.contains(source); });
}

QString LuReport::doubtfulScreen()
{
    return english(QT_TRANSLATE_NOOP("LuDiagnostics", "not told from an equal monitor's"));
}

QString LuReport::noScreen()
{
    return u"none"_s;
}

QList<LuReport::Line> LuReport::lines(const LuDiagnosticFacts::Monitor& monitor, const Words& words)
{
    const QJsonObject& statistics = monitor.statistics;
    QString connection = monitor.connection;
    const QString bus = statistics.value("bus"_L1).toString();
    // The name of a simulated bus holds the serial number.
    if (bus.startsWith("sim:"_L1))
        connection = words(QT_TRANSLATE_NOOP("LuDiagnostics", "simulated"));
    else if (!bus.isEmpty())
        connection = connection.isEmpty()
                         ? bus
                         : words(QT_TRANSLATE_NOOP("LuDiagnostics", "%1 on %2")).arg(connection, bus);
    if (connection.isEmpty())
        connection = words(QT_TRANSLATE_NOOP("LuDiagnostics", "unknown"));
    const bool silent =
        !monitor.builtIn && !statistics.value("asleep"_L1).toBool() && statistics.value("silent"_L1).toBool();
    QList<Line> lines{{words(QT_TRANSLATE_NOOP("LuDiagnostics", "Connection")), connection}};
    if (!monitor.screen.isEmpty()) {
        const bool isDoubtful = monitor.screen == doubtfulScreen();
        lines.append(
            {words(QT_TRANSLATE_NOOP("LuDiagnostics", "Screen")),
             isDoubtful || monitor.screen == noScreen() ? words(qPrintable(monitor.screen)) : monitor.screen,
             isDoubtful});
    }
    return lines +
           QList<Line>{
               {words(QT_TRANSLATE_NOOP("LuDiagnostics", "Condition")),
                monitor.builtIn ? words(QT_TRANSLATE_NOOP("LuDiagnostics", "built in"))
                                : condition(statistics, words),
                silent},
               {words(QT_TRANSLATE_NOOP("LuDiagnostics", "Transfers")),
                wholeNumber(statistics, "transfers"_L1)},
               {words(QT_TRANSLATE_NOOP("LuDiagnostics", "Retries")), wholeNumber(statistics, "retries"_L1)},
               {words(QT_TRANSLATE_NOOP("LuDiagnostics", "Errors")),
                errors(statistics.value("errors"_L1).toObject(), words)},
               {words(QT_TRANSLATE_NOOP("LuDiagnostics", "Learnt waits")), waits(statistics, words)},
               {words(QT_TRANSLATE_NOOP("LuDiagnostics", "Writes today")), writesToday(statistics)},
               {words(QT_TRANSLATE_NOOP("LuDiagnostics", "Circuit breaker")), breaker(statistics, words),
                !openCodes(statistics).isEmpty()},
           };
}

QString LuReport::cleaned(const QString& text, const LuDiagnosticFacts& facts)
{
    const QHash<QString, QString> secrets = secretsOf(facts);
    QStringList words = secrets.keys();
    // The longest first: a home folder holds a user's name.
    std::sort(words.begin(), words.end(),
              [](const QString& a, const QString& b) { return a.size() > b.size(); });
    QString result = text;
    for (const QString& word : std::as_const(words)) {
        QString pattern = QRegularExpression::escape(word);
        if (word.size() < ShortestPart)
            pattern = u"(?<![\\p{L}\\p{N}])%1(?![\\p{L}\\p{N}])"_s.arg(pattern);
        result.replace(QRegularExpression(pattern, QRegularExpression::CaseInsensitiveOption |
                                                       QRegularExpression::UseUnicodePropertiesOption),
                       secrets.value(word));
    }
    // Monitors that have gone are known to nobody any more, but their ids have one form.
    static const QRegularExpression id(u"@[^\\s\"',;:)]+"_s);
    result.replace(id, u"@(serial)"_s);
    static const QRegularExpression folder(u"/(home|Users)/[^/\\s\"']+"_s);
    result.replace(folder, u"~"_s);
    return result;
}

QString LuReport::text(const LuDiagnosticFacts& facts)
{
    QStringList report{u"Lumen Desk: report on monitors"_s, QString()};
    report += facts.versions;
    report += {QString(), u"Troubles"_s};
    if (facts.troubles.isEmpty())
        report.append(u"  none"_s);
    for (const QString& trouble : facts.troubles)
        report.append(u"  "_s + trouble);
    int number = 0;
    for (const LuDiagnosticFacts::Monitor& monitor : facts.monitors) {
        report += {QString(), u"Monitor %1: %2%3"_s.arg(++number).arg(
                                  monitor.model, monitor.supported ? QString() : u" (not supported)"_s)};
        const QList<Line> all = lines(monitor);
        for (const Line& line : all)
            report.append(u"  %1 %2"_s.arg(line.name + u':', -17).arg(line.value));
    }
    report += {QString(), u"Log"_s};
    for (const QString& line : facts.log) {
        if (isOfInterest(line))
            report.append(u"  "_s + line);
    }
    return cleaned(report.join(u'\n') + u'\n', facts);
}
