// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QJsonObject>
#include <QList>
#include <QString>
#include <QStringList>

#include <functional>

/// What is known of the monitors and of the way to them, for a person and for a bug ticket.
struct LuDiagnosticFacts
{
    struct Monitor
    {
        QString id; ///< Never shown: it holds the serial number.
        QString model;
        QString serial;     ///< Never shown.
        QString nickName;   ///< Never in a report.
        QString connection; ///< Such as "card0-DP-1".
        QString screen;     ///< The desktop's name of it, or one of LuReport's words; empty: not looked for.
        bool supported = false;
        bool builtIn = false;
        QJsonObject statistics;
    };

    QList<Monitor> monitors;
    QStringList troubles;      ///< Of finding monitors, in plain English words.
    QStringList shownTroubles; ///< The same in the language of the user.
    QStringList versions;      ///< Lines on the program and the system.
    QStringList log;           ///< Lines of the log that speak of monitors and buses.
};

/// Turns facts into lines and into a report without personal data.
class LuReport
{
public:
    LuReport() = delete;

    /// The report: versions, troubles, each monitor, the log. Serial numbers, names that people gave, the
    /// user's name, the host's name and paths of the home folder do not stand in it.
    static QString text(const LuDiagnosticFacts& facts);

    /// @p text with what is personal in it replaced.
    static QString cleaned(const QString& text, const LuDiagnosticFacts& facts);

    /// What stands in place of a screen's name where the monitor may be on the desktop, but nothing tells it
    /// from an equal one; and where it is not on it.
    static QString doubtfulScreen();
    static QString noScreen();

    struct Line
    {
        QString name;
        QString value;
        bool isBad = false; ///< A person should look at it.
    };
    /// A word or sentence in the language of whoever reads; the context of its translations is
    /// "LuDiagnostics".
    using Words = std::function<QString(const char* english)>;

    /// A monitor's facts in the order of showing.
    static QList<Line> lines(const LuDiagnosticFacts::Monitor& monitor, const Words& words = english);
    static QString english(const char* text) { return QString::fromLatin1(text); }

    /// Whether a line of the log speaks of monitors and buses.
    static bool isOfInterest(const QString& logLine);
};
