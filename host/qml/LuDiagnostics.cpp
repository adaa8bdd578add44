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

QString translated(const char* english)
{
    return QCoreApplication::translate("LuDiagnostics", english);
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
        const QList<LuReport::Line> all = LuReport::lines(monitor, translated);
        for (const LuReport::Line& line : all)
            lines.append(
                QVariantMap{{u"name"_s, line.name}, {u"value"_s, line.value}, {u"bad"_s, line.isBad}});
        monitors.append(
            QVariantMap{{u"model"_s, monitor.nickName.isEmpty() || monitor.nickName == monitor.model
                                         ? monitor.model
                                         : u"%1 (%2)"_s.arg(monitor.nickName, monitor.model)},
                        {u"lines"_s, lines}});
    }
    if (monitors == m_monitors && now.shownTroubles == m_troubles)
        return;
    m_monitors = monitors;
    m_troubles = now.shownTroubles;
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
