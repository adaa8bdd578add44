// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <LuShared/LuDataCollection.h>
#include <LuShared/LuSharedGlobal.h>

#include <QDateTime>
#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>

#include <memory>

/// One usage event.
struct LUSHARED_EXPORT LuEvent
{
    quint64 seq = 0;    ///< Place in the process-wide order of events, wire transactions and log lines.
    int run = 0;        ///< 0 this run of the program, -1 the one before, ...
    QDateTime time;     ///< Of the program's clock.
    QString monitor;    ///< Id of the monitor.
    QString module;     ///< Class name; empty for an event of the model itself.
    int action = 0;     ///< LuDataCollection::Action.
    bool onOff = false; ///< Kind: on/off, else custom.
    bool on = false;    ///< Of an on/off event.
    QString event;      ///< Of a custom event.
    int source = 0;     ///< LuDataCollection::TriggerSource.
    QStringList parameters;
};

/// Keeps usage events in a ring file on this computer; nothing is ever sent anywhere. Any thread.
class LUSHARED_EXPORT LuEventLog : public QObject
{
    Q_OBJECT

public:
    static LuEventLog& instance();
    ~LuEventLog() override;

    /// Opens the ring below @p directory and starts a new run. Without it events are kept in memory only.
    void open(const QString& directory);

    /// Completes seq, run and time, keeps the event and announces it.
    void record(LuEvent event);

    /// The events of a run (0 or negative) with a seq greater than @p since, oldest first.
    QList<LuEvent> events(quint64 since = 0, int run = 0) const;

    /// Waits until everything recorded is on the disk.
    void flush();

Q_SIGNALS:
    void recorded(const LuEvent& event);

private:
    LuEventLog();
    struct Private;
    std::unique_ptr<Private> d;
};
