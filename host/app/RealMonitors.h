// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <ddc-i2c/Debounce.h>
#include <ddc-i2c/Enumerator.h>
#include <ddc-i2c/HotplugWatcher.h>
#include <ddc-i2c/I2cBus.h>
#include <ddc-i2c/Identity.h>

#include <QHash>
#include <QList>
#include <QMap>
#include <QObject>
#include <QSet>
#include <QSharedPointer>
#include <QString>
#include <QStringList>
#include <QTimer>

#include <filesystem>
#include <map>
#include <memory>
#include <string>

class LuMonitorRegistry;
class MonitorInfo;
class QSocketNotifier;
class ZrDispatch;

/// The monitors of this computer: finds them, plugs them into the registry, and follows them as they come,
/// go, change places, sleep and wake. GUI thread; whatever may take time runs on queues of its own.
///
/// A display that sleeps is never asked anything by this class; one that sleeps when it is found is plugged
/// in when it wakes.
class RealMonitors : public QObject
{
    Q_OBJECT

public:
    /// @p root stands for "/" where the kernel's files are looked up.
    explicit RealMonitors(LuMonitorRegistry& registry, const std::filesystem::path& root = "/");
    ~RealMonitors() override;

    /// Ends what goes on; waits for a bus that hangs at most @p limitMs. False if one hangs even then: this
    /// object must stay.
    bool end(qint64 limitMs);

    /// Finds what is there and begins to watch.
    void start();

    /// Looks again, as after an event: for a person who asks for it.
    void refresh();

    /// The first search is over and its monitors are in the registry; of a bus that hangs, those of the
    /// others.
    bool isDiscovered() const { return m_discovered; }

    /// Power management has switched that monitor off, as far as the kernel says; false for an unknown id.
    bool isAsleep(const QString& id) const;

    /// Folder of a built-in panel's back-light, such as "/sys/class/backlight/intel_backlight"; empty for
    /// others.
    QString backlightOf(const QString& id) const;

    /// What keeps monitors from being controlled and only a person can mend, at this moment, in plain
    /// English, for the log and for reports.
    QStringList troubles() const;
    /// The same in the language of the user.
    QStringList shownTroubles() const;

    /// The kernel's name of the monitor's connector, such as "card0-DP-1"; empty for an unknown id.
    QString connectorOf(const QString& id) const;

    /// QScreen::name() of the screen that shows on the monitor; empty where none does or none can be told.
    QString screenOf(const QString& id) const { return m_screens.value(id); }
    /// A screen of the desktop may be that monitor's, but nothing tells it from an equal one: what would
    /// change a screen is left alone.
    bool isScreenDoubtful(const QString& id) const { return m_doubtful.contains(id); }

Q_SIGNALS:
    /// Once: see isDiscovered(). Without monitors too.
    void discovered();
    /// Something changed at the outputs; what it was is known when things have settled.
    void disturbed();
    /// Rounds of that monitor pause while it sleeps.
    void sleepChanged(const QString& id, bool asleep);
    /// troubles() is another list now.
    void troublesChanged();

private:
    /// A monitor that the registry knows.
    struct Plugged
    {
        ddci2c::IdentifiedMonitor monitor;
        QSharedPointer<MonitorInfo> info;
        std::shared_ptr<ddci2c::BusLink> link;
        bool asleep = false;
    };
    /// What transfers on other threads reach this object through, as long as it lives.
    struct Mailbox;

    void readEvents();
    void settle();
    void scan(bool askAgain);
    void finishScan(const ddci2c::Enumeration& found, bool askAgain);
    void ask(const ddci2c::BusQuestion& question);
    void takeAnswer(const ddci2c::BusAnswer& answer);
    void endFirstSearch();
    void apply(const std::vector<ddci2c::FoundMonitor>& found);
    void plug(const ddci2c::IdentifiedMonitor& monitor);
    void unplug(const QString& id);
    void poll();
    bool pollLost();
    void assignScreens();
    void tell(const QString& id, const ddci2c::Advice& advice);
    void endTrouble(const QString& id);
    void noteSkipped(const ddci2c::Enumeration& found);
    void keepTwins();

    LuMonitorRegistry& m_registry;
    const ddci2c::Enumerator m_enumerator;
    ddci2c::IdentityBook m_book;
    ddci2c::HotplugWatcher m_watcher;
    ddci2c::Debounce m_debounce;
    std::unique_ptr<QSocketNotifier> m_notifier;
    QTimer m_settleTimer;
    QTimer m_pollTimer;
    std::unique_ptr<ZrDispatch> m_scanQueue;
    std::map<std::string, std::unique_ptr<ZrDispatch>> m_askQueues; ///< One hangs without the others.
    const std::shared_ptr<Mailbox> m_mailbox;

    std::vector<ddci2c::IdentifiedMonitor> m_present; ///< Of the last search.
    QHash<QString, QString> m_screens;                ///< Names of their screens, by id.
    QSet<QString> m_doubtful;                         ///< See isScreenDoubtful().
    QHash<QString, Plugged> m_plugged;
    std::vector<ddci2c::IdentifiedMonitor> m_waiting; ///< Asleep since they were found.
    std::vector<std::filesystem::path>
        m_sleepers; ///< Connectors that are to be asked who is there when they wake.
    ddci2c::BusAnswers m_answers;
    std::map<std::string, bool>
        m_asking;                    ///< By connector; true: what comes is stale, since something happened.
    QHash<QString, int> m_lostPolls; ///< Polls until a lost monitor is tried again, and
    QHash<QString, int> m_lostPause; ///< how many these were the last time.
    QMap<QString, ddci2c::Advice> m_troubles; ///< By monitor; that of the whole system has an empty key.
    bool m_scanning = false;
    bool m_scanAgain = false;
    bool m_scanAgainAsks = false;
    bool m_hotplug = false; ///< An event came since the last scan began.
    bool m_discovered = false;
};
