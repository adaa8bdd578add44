// SPDX-License-Identifier: Apache-2.0
#include "LuDiagnostics.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QPointer>
#include <QSaveFile>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace {

constexpr int RefreshMs = 2000;

// Names of lines, as LuReport writes them, for translators.
constexpr const char* Names[] = {
    QT_TRANSLATE_NOOP("LuDiagnostics", "Connection"),   QT_TRANSLATE_NOOP("LuDiagnostics", "Condition"),
    QT_TRANSLATE_NOOP("LuDiagnostics", "Transfers"),    QT_TRANSLATE_NOOP("LuDiagnostics", "Retries"),
    QT_TRANSLATE_NOOP("LuDiagnostics", "Errors"),       QT_TRANSLATE_NOOP("LuDiagnostics", "Learnt waits"),
    QT_TRANSLATE_NOOP("LuDiagnostics", "Writes today"), QT_TRANSLATE_NOOP("LuDiagnostics", "Circuit breaker"),
    QT_TRANSLATE_NOOP("LuDiagnostics", "Screen"),
};

constexpr const char* Values[] = {
    QT_TRANSLATE_NOOP("LuDiagnostics", "none"),
    QT_TRANSLATE_NOOP("LuDiagnostics", "unknown"),
    QT_TRANSLATE_NOOP("LuDiagnostics", "asleep"),
    QT_TRANSLATE_NOOP("LuDiagnostics", "gives no answer"),
    QT_TRANSLATE_NOOP("LuDiagnostics", "answers"),
    QT_TRANSLATE_NOOP("LuDiagnostics", "built in"),
    QT_TRANSLATE_NOOP("LuDiagnostics", "simulated"),
    QT_TRANSLATE_NOOP("LuDiagnostics", "closed"),
    QT_TRANSLATE_NOOP("LuDiagnostics", "not told from an equal monitor's"),
};

template <std::size_t Count>
QString translated(const char* const (&known)[Count], const QString& text)
{
    for (const char* each : known) {
        if (text == QLatin1String(each))
            return QCoreApplication::translate("LuDiagnostics", each);
    }
    return text;
}

bool isBad(const QString& name, const QString& value)
{
    return (name == "Condition"_L1 && value == "gives no answer"_L1) ||
           (name == "Screen"_L1 && value == LuReport::doubtfulScreen()) ||
           (name == "Circuit breaker"_L1 && value.startsWith("open"_L1));
}

} // namespace

LuDiagnostics::LuDiagnostics(QObject* parent) : QObject(parent)
{
    m_timer.setInterval(RefreshMs);
    connect(&m_timer, &QTimer::timeout, this, &LuDiagnostics::refresh);
}

LuDiagnostics::~LuDiagnostics() = default;

LuDiagnostics* LuDiagnostics::instance()
{
    static QPointer<LuDiagnostics> diagnostics;
    if (!diagnostics)
        diagnostics = new LuDiagnostics(QCoreApplication::instance());
    return diagnostics;
}

void LuDiagnostics::setSource(std::function<LuDiagnosticFacts()> source)
{
    m_source = std::move(source);
    refresh();
}

void LuDiagnostics::setFolder(const QString& folder)
{
    m_folder = folder;
}

void LuDiagnostics::setWatched(bool watched)
{
    if (isWatched() == watched)
        return;
    if (watched) {
        refresh();
        m_timer.start();
    } else {
        m_timer.stop();
    }
    Q_EMIT watchedChanged();
}

LuDiagnosticFacts LuDiagnostics::facts() const
{
    return m_source ? m_source() : LuDiagnosticFacts();
}

void LuDiagnostics::refresh()
{
    const LuDiagnosticFacts now = facts();
    QVariantList monitors;
    for (const LuDiagnosticFacts::Monitor& monitor : now.monitors) {
        QVariantList lines;
        const auto pairs = LuReport::lines(monitor);
        for (const auto& [name, value] : pairs)
            lines.append(QVariantMap{{u"name"_s, translated(Names, name)},
                                     {u"value"_s, translated(Values, value)},
                                     {u"bad"_s, isBad(name, value)}});
        monitors.append(
            QVariantMap{{u"model"_s, monitor.nickName.isEmpty() || monitor.nickName == monitor.model
                                         ? monitor.model
                                         : u"%1 (%2)"_s.arg(monitor.nickName, monitor.model)},
                        {u"lines"_s, lines}});
    }
    if (monitors == m_monitors && now.troubles == m_troubles)
        return;
    m_monitors = monitors;
    m_troubles = now.troubles;
    Q_EMIT changed();
}

QString LuDiagnostics::report() const
{
    return LuReport::text(facts());
}

bool LuDiagnostics::exportReport()
{
    const QString folder =
        m_folder.isEmpty() ? QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation) : m_folder;
    const QString stamp = QDateTime::currentDateTime().toString(u"yyyyMMdd-HHmmss-zzz"_s);
    const QString path = QDir(folder).filePath(u"lumen-desk-report-%1.txt"_s.arg(stamp));
    const QByteArray bytes = report().toUtf8();
    QSaveFile file(path);
    QString problem;
    if (!QDir().mkpath(folder))
        problem = tr("the folder cannot be made");
    else if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.commit())
        problem = file.errorString();
    m_exportedFile = problem.isEmpty() ? QDir::toNativeSeparators(path) : QString();
    m_exportProblem =
        problem.isEmpty() ? QString() : tr("The report could not be written to %1: %2").arg(path, problem);
    Q_EMIT exported();
    return problem.isEmpty();
}
