// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "KWinServer.h"
#include "PrivateBus.h"
#include "ServerProcess.h"

#include <QObject>
#include <QStringList>
#include <QTemporaryDir>

/// How long a server may take for anything, in ms: the computer may be busy with much else.
constexpr int Patience = 60'000;

/// A session of Plasma without a screen, for the test's own process and those that it starts: a bus, and KWin
/// with two outputs of 1024 by 768 side by side.
class PlasmaSession : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.lumen_desk.Test")

public:
    /// A bus with nobody on it, and the environment. Empty on success, else what went wrong.
    QString startBus();
    /// KWin on that bus.
    QString startKWin();
    /// KScreen on that bus, as a client of KWin.
    QString startKScreen();
    void stop();

    QString folder() const { return m_home.path(); }
    QString socket() const { return folder() + u'/' + KWinServer::display(); }
    ServerProcess& kscreen() { return m_kscreen; }
    /// For a program that shall be a client of this KWin.
    static QProcessEnvironment environment();

    /// Runs a script in KWin that calls answer(text). @return that text.
    QString ask(const QString& script);
    /// "x,y widthxheight" of a process's window, as KWin has it, after @p before was done with `window`;
    /// "nothing" without one.
    QString placeOf(qint64 pid, const QString& before = {});
    /// Waits until the process has a window that is shown and has the focus.
    bool hasFocus(qint64 pid);

public Q_SLOTS:
    Q_SCRIPTABLE void answered(const QString& text) { m_answers.append(text); }

private:
    QTemporaryDir m_home;
    PrivateBus m_bus;
    KWinServer m_server;
    ServerProcess m_kscreen;
    QStringList m_answers;
    int m_scripts = 0;
};

/// A program with one window, in a process of its own.
class WindowProgram
{
public:
    /// Starts it on the KWin of the session. Empty on success, else what went wrong.
    QString start(const QStringList& arguments = {});
    qint64 pid() const { return m_process.processId(); }
    unsigned long processId() const { return static_cast<unsigned long>(pid()); }
    /// What follows the word on the lines that it has written so far.
    QStringList lines(const QString& word);
    void stop() { m_process.stop(); }

private:
    ServerProcess m_process;
};
