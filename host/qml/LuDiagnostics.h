// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "LuReport.h"

#include <QObject>
#include <QTimer>
#include <QVariantList>

#include <functional>

/// How the program gets on with the monitors, for the page "Diagnostics", and the report of it.
///
/// The singleton `LuDiagnostics` of the QML module LumenDesk. GUI thread.
class LuDiagnostics : public QObject
{
    Q_OBJECT
    /// One map a monitor: {"model", "lines": [{"name", "value", "bad"}]}.
    Q_PROPERTY(QVariantList monitors READ monitors NOTIFY changed)
    /// What keeps the program from monitors, in plain words.
    Q_PROPERTY(QStringList troubles READ troubles NOTIFY changed)
    /// Facts are looked up anew every two seconds while somebody looks.
    Q_PROPERTY(bool watched READ isWatched WRITE setWatched NOTIFY watchedChanged)
    /// What came of the last export: the file, or why there is none. Empty before.
    Q_PROPERTY(QString exportedFile READ exportedFile NOTIFY exported)
    Q_PROPERTY(QString exportProblem READ exportProblem NOTIFY exported)

public:
    /// The one object; lives as long as the application.
    static LuDiagnostics* instance();
    ~LuDiagnostics() override;

    /// Where the facts come from.
    void setSource(std::function<LuDiagnosticFacts()> source);
    /// Where reports go; empty: the documents folder.
    void setFolder(const QString& folder);

    QVariantList monitors() const { return m_monitors; }
    QStringList troubles() const { return m_troubles; }
    bool isWatched() const { return m_timer.isActive(); }
    void setWatched(bool watched);
    QString exportedFile() const { return m_exportedFile; }
    QString exportProblem() const { return m_exportProblem; }

    /// The report as text, without personal data.
    Q_INVOKABLE QString report() const;
    /// Writes the report to a new file. False on failure; see exportProblem.
    Q_INVOKABLE bool exportReport();
    Q_INVOKABLE void refresh();

Q_SIGNALS:
    void changed();
    void watchedChanged();
    void exported();

private:
    explicit LuDiagnostics(QObject* parent);
    LuDiagnosticFacts facts() const;

    std::function<LuDiagnosticFacts()> m_source;
    QString m_folder;
    QVariantList m_monitors;
    QStringList m_troubles;
    QString m_exportedFile;
    QString m_exportProblem;
    QTimer m_timer;
};
