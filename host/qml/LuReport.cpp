// SPDX-License-Identifier: Apache-2.0
#include "LuReport.h"

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

QString joined(const QJsonObject& counts, const QString& nothing)
{
    QStringList parts;
    for (auto it = counts.begin(); it != counts.end(); ++it)
        parts.append(u"%1: %2"_s.arg(it.key()).arg(it.value().toInteger()));
    return parts.isEmpty() ? nothing : parts.join(u", "_s);
}

QString waits(const QJsonObject& statistics)
{
    const QJsonObject learnt = statistics.value("learntWaits"_L1).toObject();
    const qint64 reply = learnt.value("replyMs"_L1).toInteger();
    const qint64 afterSet = learnt.value("afterSetMs"_L1).toInteger();
    QStringList parts;
    if (reply > 0)
        parts.append(u"%1 ms before a reply"_s.arg(reply));
    if (afterSet > 0)
        parts.append(u"%1 ms after a write"_s.arg(afterSet));
    return parts.isEmpty() ? u"none"_s : parts.join(u", "_s);
}

QString breaker(const QJsonObject& statistics)
{
    const QJsonObject state = statistics.value("breaker"_L1).toObject();
    QStringList codes;
    const QJsonArray closed = state.value("closed"_L1).toArray();
    for (const QJsonValue& code : closed)
        codes.append(code["code"_L1].toString());
    const qint64 trips = state.value("trips"_L1).toInteger();
    if (!codes.isEmpty())
        return u"open for %1"_s.arg(codes.join(u", "_s));
    return trips > 0 ? u"closed; opened %1 times"_s.arg(trips) : u"closed"_s;
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

QString condition(const QJsonObject& statistics)
{
    if (statistics.value("asleep"_L1).toBool())
        return u"asleep"_s;
    return statistics.value("silent"_L1).toBool() ? u"gives no answer"_s : u"answers"_s;
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
    return u"not told from an equal monitor's"_s;
}

QString LuReport::noScreen()
{
    return u"none"_s;
}

QList<QPair<QString, QString>> LuReport::lines(const LuDiagnosticFacts::Monitor& monitor)
{
    const QJsonObject& statistics = monitor.statistics;
    QString connection = monitor.connection;
    const QString bus = statistics.value("bus"_L1).toString();
    // The name of a simulated bus holds the serial number.
    if (bus.startsWith("sim:"_L1))
        connection = u"simulated"_s;
    else if (!bus.isEmpty())
        connection = connection.isEmpty() ? bus : u"%1 on %2"_s.arg(connection, bus);
    QList<QPair<QString, QString>> lines{{u"Connection"_s, connection.isEmpty() ? u"unknown"_s : connection}};
    if (!monitor.screen.isEmpty())
        lines.append({u"Screen"_s, monitor.screen});
    return lines + QList<QPair<QString, QString>>{
                       {u"Condition"_s, monitor.builtIn ? u"built in"_s : condition(statistics)},
                       {u"Transfers"_s, wholeNumber(statistics, "transfers"_L1)},
                       {u"Retries"_s, wholeNumber(statistics, "retries"_L1)},
                       {u"Errors"_s, joined(statistics.value("errors"_L1).toObject(), u"none"_s)},
                       {u"Learnt waits"_s, waits(statistics)},
                       {u"Writes today"_s, writesToday(statistics)},
                       {u"Circuit breaker"_s, breaker(statistics)},
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
        const auto pairs = lines(monitor);
        for (const auto& [name, value] : pairs)
            report.append(u"  %1 %2"_s.arg(name + u':', -17).arg(value));
    }
    report += {QString(), u"Log"_s};
    for (const QString& line : facts.log) {
        if (isOfInterest(line))
            report.append(u"  "_s + line);
    }
    return cleaned(report.join(u'\n') + u'\n', facts);
}
