// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "ZrCore/ZrCoreGlobal.h"

#include <QDateTime>
#include <QList>
#include <QSharedPointer>
#include <QString>

#include <functional>
#include <memory>
#include <optional>

class QObject;

/// A serial queue of jobs with a thread of its own: its jobs run one at a time, in order.
///
/// The queue has a front lane and a back lane. Jobs of the front lane run before every job of the back lane;
/// within a lane the order of posting holds. Timed jobs join the end of the back lane when they fall due on
/// the program's clock (ZrClock). Every operation may be called from any thread, from inside a job too.
///
/// A job belongs to a context, which may be null. Once its context is destroyed it does not run any more;
/// while a job runs, the destruction of its context on another thread waits in QObject's destructor until the
/// job has ended (a pause of the clock in that job ends at once). A job may destroy its own context. The
/// context must be alive while the posting call runs.
class ZRCORE_EXPORT ZrDispatch
{
public:
    using Job = std::function<void()>;

    /// One job that waits, as a person is shown it.
    struct Waiting
    {
        QString key;                  ///< Empty where the job was posted without one.
        QString context;              ///< Class name of the context, empty for a null context.
        bool background = false;      ///< The job does not count for idleness.
        std::optional<QDateTime> due; ///< Local time at which a timed job falls due.
    };

    /// Starts a queue with a thread of its own. @p name is for logs and debuggers. @p group says what the
    /// queue belongs to, such as the id of a monitor, for those who await the rest of that only
    /// (ZrIdle::notifyGroup()); empty: everybody awaits it.
    explicit ZrDispatch(const QString& name, const QString& group = {});

    /// As close(), then joins the thread. In one of the queue's own jobs the thread is left to end by itself.
    ~ZrDispatch();

    /// The queue of the application's main thread. Its jobs run from the event loop, one for each pass. What
    /// is posted before there is an application waits for it; what waits when the application ends is
    /// dropped.
    static QSharedPointer<ZrDispatch> main();

    /// Runs @p job behind everything that waits.
    void post(QObject* context, Job&& job);
    /// Removes the waiting job of the same context and key, in whichever lane or timed, and posts @p job at
    /// the back.
    void postUnique(QObject* context, const QString& key, Job&& job);
    /// Posts @p job for @p ms milliseconds from now; under 0 counts as 0. Equal keys do not replace each
    /// other.
    void postLater(const QString& key, qint64 ms, Job&& job);
    /// As postUnique(), @p ms milliseconds from now: calling it again restarts the wait.
    void postUniqueLater(QObject* context, const QString& key, qint64 ms, Job&& job);
    /// As postUnique(), one millisecond after the wall-clock time @p time, so that at its run the time has
    /// passed. A time in the past runs at once. It follows changes of the system clock. An invalid time is
    /// refused with a warning.
    void postUniqueAtTime(QObject* context, const QString& key, const QDateTime& time, Job&& job);

    /// A job of exactly this context and key waits; one that is running does not count.
    bool has(QObject* context, const QString& key) const;
    /// A job of exactly this context and key runs at this moment.
    bool isRunning(QObject* context, const QString& key) const;
    /// Drops the waiting jobs of exactly this context and key. With @p waitForRunning it also returns only
    /// after a running job of that context and key has ended, unless it is called from that job.
    void remove(QObject* context, const QString& key, bool waitForRunning);

    /// Runs @p job on the application's main thread @p ms milliseconds from now, unless @p context is gone by
    /// then.
    static void runInContextLater(QObject* context, qint64 ms, Job&& job);

    /// As postUnique(), at the end of the front lane: what a person has asked for goes before what waits.
    void postUniqueAtFront(QObject* context, const QString& key, Job&& job);
    /// As post(), with a key for remove() and has(), for a job that does not count for idleness (ZrIdle).
    void postBackground(QObject* context, const QString& key, Job&& job);
    /// As postUniqueLater(), for a job that does not count for idleness. It stands still while the clock is
    /// stopped, unless ZrClock::setBackgroundMoves() says otherwise.
    void postUniqueBackgroundLater(QObject* context, const QString& key, qint64 ms, Job&& job);

    QString name() const;
    /// The caller is a job of this queue, or runs on its thread.
    bool isCurrentThread() const;
    /// Drops what waits, ends a pause of the running job, waits until that job has ended (unless called from
    /// it), and accepts nothing more: jobs posted later are dropped. The main queue refuses it.
    void close();
    /// As close(), but returns at once, also while a job hangs. From then on nobody awaits the rest of this
    /// queue. @p ended is posted to the main queue when no job of this queue runs any more; from then on
    /// close() and the destructor do not wait either.
    void retire(Job&& ended = {});
    /// Closed, and no job runs any more.
    bool hasEnded() const;
    /// Blocks until hasEnded(), at most @p timeoutMs milliseconds of real time; the result of hasEnded().
    bool waitForEnd(qint64 timeoutMs) const;
    /// The jobs that wait, in the order in which they will run as things stand, timed ones last.
    QList<Waiting> waiting() const;

private:
    Q_DISABLE_COPY_MOVE(ZrDispatch)
    friend class ZrIdle;
    class Private;
    explicit ZrDispatch(std::unique_ptr<Private> dd);
    std::unique_ptr<Private> d;
};
