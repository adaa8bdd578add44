// SPDX-License-Identifier: Apache-2.0
#include "RealMonitors.h"

#include "ScreenMatch.h"

#include <ZrCore/ZrDispatch.h>
#include <ddc-i2c/Access.h>
#include <lushared/LuMonitorRegistry.h>
#include <lushared/LuSettings.h>
#include <lushared/services/ServiceRegistry.h>
#include <panelcore/MonitorLink.h>
#include <services/api/DisplayService.h>

#include <QDebug>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QScreen>
#include <QSocketNotifier>

#include <algorithm>
#include <mutex>
#include <thread>

using ddci2c::IdentifiedMonitor;

namespace {

/// How often the power state of the displays is looked up: kernels do not report it as an event.
constexpr int PollMs = 2000;
/// A lost monitor is tried again after 1, 2, 4 ... polls, at most these.
constexpr int LongestLostPause = 30;
constexpr std::chrono::milliseconds RestAfterWrite(50);
constexpr QLatin1String TwinsKey("monitors/twins");
/// So long the start waits for buses that have to be asked who is there.
constexpr int FirstSearchLimitMs = 5000;
/// Nobody who awaits the rest of a monitor awaits the search for others.
const QString SearchGroup = QStringLiteral("search");

ddci2c::Debounce::TimePoint now()
{
    return std::chrono::steady_clock::now();
}

QString text(const std::string& bytes)
{
    return QString::fromStdString(bytes);
}

QString path(const std::filesystem::path& name)
{
    return QString::fromStdString(name.string());
}

std::vector<ddci2c::IdentityBook::Entry> keptTwins()
{
    std::vector<ddci2c::IdentityBook::Entry> entries;
    const QStringList lines = LuSettings::instance().value(TwinsKey).toStringList();
    for (const QString& line : lines) {
        const QStringList fields = line.split(QLatin1Char('\t'));
        if (fields.size() == 3 && !fields.at(0).isEmpty())
            entries.push_back(
                {fields.at(0).toStdString(), fields.at(1).toStdString(), fields.at(2).toStdString()});
    }
    return entries;
}

QList<ScreenFacts> screenFacts()
{
    QList<ScreenFacts> facts;
    const QList<QScreen*> screens = QGuiApplication::screens();
    const auto display = services::Registry::current().display;
    for (const QScreen* screen : screens)
        facts.append({screen->name(), screen->model(), screen->serialNumber(),
                      display ? display->connectorId(screen->name()) : std::nullopt});
    return facts;
}

} // namespace

struct RealMonitors::Mailbox
{
    std::mutex mutex;
    RealMonitors* owner = nullptr;

    void tell(const QString& id, const ddci2c::Advice& advice)
    {
        const std::lock_guard lock(mutex);
        if (!owner)
            return;
        ZrDispatch::main()->post(owner, [to = owner, id, advice] { to->tell(id, advice); });
    }
};

RealMonitors::RealMonitors(LuMonitorRegistry& registry, const std::filesystem::path& root)
    : m_registry(registry), m_enumerator(root), m_book(keptTwins()),
      m_scanQueue(std::make_unique<ZrDispatch>(QStringLiteral("monitors"), SearchGroup)),
      m_mailbox(std::make_shared<Mailbox>())
{
    m_mailbox->owner = this;
    m_settleTimer.setSingleShot(true);
    m_settleTimer.setTimerType(Qt::PreciseTimer);
    connect(&m_settleTimer, &QTimer::timeout, this, &RealMonitors::settle);
    m_pollTimer.setInterval(PollMs);
    connect(&m_pollTimer, &QTimer::timeout, this, &RealMonitors::poll);
    connect(qGuiApp, &QGuiApplication::screenAdded, this, &RealMonitors::assignScreens);
    connect(qGuiApp, &QGuiApplication::screenRemoved, this, &RealMonitors::assignScreens);
}

RealMonitors::~RealMonitors()
{
    m_scanQueue->close();
    for (const auto& [name, queue] : m_askQueues)
        queue->close();
    // Whoever uses the monitors next, such as the next start of this program, does not know what was sent.
    std::this_thread::sleep_until(ddci2c::I2cBus::lastWrite() + RestAfterWrite);
    const std::lock_guard lock(m_mailbox->mutex);
    m_mailbox->owner = nullptr;
}

bool RealMonitors::end(qint64 limitMs)
{
    m_pollTimer.stop();
    m_settleTimer.stop();
    m_scanQueue->retire();
    for (const auto& [name, queue] : m_askQueues)
        queue->retire();
    QElapsedTimer elapsed;
    elapsed.start();
    const auto ends = [&elapsed, limitMs](const ZrDispatch& queue) {
        return queue.waitForEnd(std::max<qint64>(0, limitMs - elapsed.elapsed()));
    };
    return ends(*m_scanQueue) && std::all_of(m_askQueues.begin(), m_askQueues.end(),
                                             [&ends](const auto& each) { return ends(*each.second); });
}

void RealMonitors::start()
{
    if (m_watcher.isOpen()) {
        m_notifier = std::make_unique<QSocketNotifier>(m_watcher.descriptor(), QSocketNotifier::Read);
        connect(m_notifier.get(), &QSocketNotifier::activated, this, &RealMonitors::readEvents);
    } else {
        qWarning().noquote() << "[RealMonitors] monitors that come and go are not noticed:"
                             << text(m_watcher.problem());
    }
    m_pollTimer.start();
    m_registry.setSearching(true);
    QTimer::singleShot(FirstSearchLimitMs, this, &RealMonitors::endFirstSearch);
    scan(true);
}

void RealMonitors::refresh()
{
    for (const Plugged& each : std::as_const(m_plugged))
        ++each.link->generation;
    m_hotplug = true;
    scan(true);
}

void RealMonitors::readEvents()
{
    if (!m_watcher.readEvents())
        return;
    // From now on no bus trusts its monitor to be the one of before.
    for (const Plugged& each : std::as_const(m_plugged))
        ++each.link->generation;
    m_debounce.note(now());
    m_settleTimer.start(*m_debounce.remaining(now()));
    Q_EMIT disturbed();
}

void RealMonitors::settle()
{
    if (m_debounce.take(now())) {
        m_hotplug = true;
        scan(true);
    } else if (const auto left = m_debounce.remaining(now())) {
        m_settleTimer.start(*left);
    }
}

void RealMonitors::scan(bool askAgain)
{
    if (m_scanning) {
        m_scanAgain = true;
        m_scanAgainAsks = m_scanAgainAsks || askAgain;
        return;
    }
    m_scanning = true;
    // The destructor closes the queue before anything of this object goes.
    m_scanQueue->post(nullptr, [this, askAgain, answers = m_answers] {
        const auto found = std::make_shared<ddci2c::Enumeration>(m_enumerator.scan(answers));
        ZrDispatch::main()->post(this, [this, askAgain, found] { finishScan(*found, askAgain); });
    });
}

void RealMonitors::finishScan(const ddci2c::Enumeration& found, bool askAgain)
{
    m_scanning = false;
    if (std::exchange(m_scanAgain, false)) {
        scan(std::exchange(m_scanAgainAsks, false) || askAgain);
        return;
    }
    if (found.lacksDeviceFiles)
        tell({}, ddci2c::missingModuleAdvice());
    else
        endTrouble({});
    m_sleepers = found.sleepers;
    apply(found.monitors);
    noteSkipped(found);
    for (const ddci2c::BusQuestion& question : found.questions) {
        const auto answer = m_answers.find(question.connector);
        if (const auto asking = m_asking.find(question.connector); asking != m_asking.end())
            asking->second = asking->second || askAgain;
        else if (askAgain || answer == m_answers.end() || answer->second.question != question)
            ask(question);
    }
    if (m_asking.empty())
        endFirstSearch();
}

void RealMonitors::ask(const ddci2c::BusQuestion& question)
{
    m_asking[question.connector] = false;
    // Those that look through the same buses take turns.
    std::unique_ptr<ZrDispatch>& queue = m_askQueues[question.isSearch ? std::string() : question.connector];
    if (!queue)
        queue = std::make_unique<ZrDispatch>(QStringLiteral("monitor buses"), SearchGroup);
    // The destructor closes the queue before anything of this object goes.
    queue->post(nullptr, [this, question] {
        const auto answer = std::make_shared<ddci2c::BusAnswer>(m_enumerator.ask(question));
        ZrDispatch::main()->post(this, [this, answer] { takeAnswer(*answer); });
    });
}

void RealMonitors::takeAnswer(const ddci2c::BusAnswer& answer)
{
    const auto asking = m_asking.find(answer.question.connector);
    if (asking != m_asking.end() && asking->second) {
        ask(answer.question);
        return;
    }
    m_asking.erase(answer.question.connector);
    m_answers[answer.question.connector] = answer;
    scan(false);
}

void RealMonitors::endFirstSearch()
{
    if (m_discovered)
        return;
    for (const auto& [connector, stale] : m_asking)
        qWarning().noquote() << "[RealMonitors] the buses of" << text(connector)
                             << "have not answered yet who is there";
    m_discovered = true;
    m_registry.setSearching(false);
    Q_EMIT discovered();
}

void RealMonitors::apply(const std::vector<ddci2c::FoundMonitor>& found)
{
    const std::vector<IdentifiedMonitor> after = m_book.identify(found);
    keepTwins();
    m_present = after;
    assignScreens();
    std::vector<IdentifiedMonitor> before;
    for (const Plugged& each : std::as_const(m_plugged))
        before.push_back(each.monitor);
    const ddci2c::Changes changes = ddci2c::difference(before, after);
    for (const IdentifiedMonitor& monitor : changes.vanished) {
        unplug(text(monitor.id));
        m_lostPause.remove(text(monitor.id));
    }
    for (const IdentifiedMonitor& monitor : changes.moved) {
        qInfo().noquote() << "[RealMonitors]" << text(monitor.id) << "is at" << text(monitor.found.connector)
                          << "now";
        unplug(text(monitor.id));
    }
    const bool hotplug = std::exchange(m_hotplug, false);
    m_waiting.clear();
    for (const IdentifiedMonitor& monitor : after) {
        const QString id = text(monitor.id);
        auto plugged = m_plugged.find(id);
        if (plugged != m_plugged.end()) {
            // Its bus gave up, but here it is: a fresh start.
            const bool due = hotplug || m_lostPolls.value(id, 0) < 0;
            if ((plugged->link->lost && due) || (plugged->link->noAccess && hotplug))
                unplug(id);
            else
                continue;
        }
        if (monitor.found.asleep && !monitor.found.builtIn) {
            qInfo().noquote() << "[RealMonitors]" << id << "sleeps; it is asked nothing until it wakes";
            m_waiting.push_back(monitor);
            continue;
        }
        plug(monitor);
    }
}

void RealMonitors::plug(const IdentifiedMonitor& monitor)
{
    const QString id = text(monitor.id);
    MonitorDescription description;
    description.id = id;
    description.modelName = text(monitor.model);
    description.serialNumber = text(monitor.serial);
    description.builtIn = monitor.found.builtIn;
    description.screenName = m_screens.value(id);
    Plugged plugged;
    plugged.monitor = monitor;
    plugged.link = std::make_shared<ddci2c::BusLink>();
    plugged.asleep = monitor.found.asleep;
    std::unique_ptr<ddci2c::I2cBus> bus;
    if (monitor.found.bus) {
        ddci2c::I2cBus::Options options;
        options.path = ddci2c::Enumerator::devicePath(*monitor.found.bus);
        options.edid = monitor.found.edid;
        options.connectorEdid = monitor.found.connectorEdid;
        options.link = plugged.link;
        options.report = [mailbox = m_mailbox, id](const ddci2c::Advice& advice) {
            mailbox->tell(id, advice);
        };
        bus = std::make_unique<ddci2c::I2cBus>(std::move(options));
    }
    plugged.info = MonitorLink::create(description, std::move(bus), MonitorLink::Waits::Real);
    qInfo().noquote() << "[RealMonitors]" << id << "at" << text(monitor.found.connector)
                      << (monitor.found.bus ? QStringLiteral("on i2c-%1").arg(*monitor.found.bus)
                                            : QStringLiteral("built in"));
    if (!monitor.note.empty())
        qWarning().noquote() << "[RealMonitors]" << id + QLatin1Char(':') << text(monitor.note);
    if (monitor.found.connectorIsGuessed)
        qWarning().noquote()
            << "[RealMonitors]" << id + QLatin1Char(':')
            << "the driver does not tell which bus leads to which connector; an equal monitor"
               " may be at"
            << text(monitor.found.connector) << "in its place";
    m_plugged.insert(id, plugged);
    m_registry.addMonitor(plugged.info);
}

void RealMonitors::unplug(const QString& id)
{
    m_plugged.remove(id);
    m_lostPolls.remove(id);
    endTrouble(id);
    m_registry.removeMonitor(id);
}

void RealMonitors::poll()
{
    bool changed = pollLost();
    for (auto it = m_plugged.begin(); it != m_plugged.end(); ++it) {
        if (!it->link->noAccess && !it->link->lost)
            endTrouble(it.key());
        const bool asleep = m_enumerator.isAsleep(it->monitor.found.connectorPath);
        if (asleep == it->asleep || !it->monitor.found.sleepIsKnown)
            continue;
        it->asleep = asleep;
        // Whoever wakes up may have been exchanged in the meantime.
        ++it->link->generation;
        changed = changed || !asleep;
        qInfo().noquote() << "[RealMonitors]" << it.key() << (asleep ? "sleeps" : "is awake");
        Q_EMIT sleepChanged(it.key(), asleep);
    }
    changed =
        changed || std::any_of(m_waiting.begin(), m_waiting.end(), [this](const IdentifiedMonitor& monitor) {
            return !m_enumerator.isAsleep(monitor.found.connectorPath);
        });
    changed = changed || std::any_of(m_sleepers.begin(), m_sleepers.end(), [this](const auto& connector) {
                  return !m_enumerator.isAsleep(connector);
              });
    if (changed)
        scan(false);
}

bool RealMonitors::pollLost()
{
    bool due = false;
    for (auto it = m_plugged.begin(); it != m_plugged.end(); ++it) {
        if (!it->link->lost) {
            m_lostPolls.remove(it.key());
            continue;
        }
        if (!m_lostPolls.contains(it.key())) {
            int& pause = m_lostPause[it.key()];
            m_lostPolls[it.key()] = pause;
            pause = std::clamp(pause * 2, 1, LongestLostPause);
        }
        due = --m_lostPolls[it.key()] < 0 || due;
    }
    return due;
}

void RealMonitors::assignScreens()
{
    // All at once, those asleep too: what one of them has is not another's.
    QList<MonitorFacts> facts;
    for (const IdentifiedMonitor& monitor : m_present)
        facts.append({text(monitor.found.connector), text(monitor.model), text(monitor.serial),
                      monitor.found.connectorId, monitor.found.connectorIsGuessed});
    const QList<ScreenFacts> screens = screenFacts();
    const QStringList names = screensFor(facts, screens);
    const QList<bool> doubtful = doubtfulScreens(facts, screens, names);
    m_screens.clear();
    const QSet<QString> doubtfulBefore = std::exchange(m_doubtful, {});
    for (std::size_t i = 0; i < m_present.size(); ++i) {
        const QString id = text(m_present[i].id);
        m_screens.insert(id, names[qsizetype(i)]);
        if (!doubtful[qsizetype(i)])
            continue;
        m_doubtful.insert(id);
        if (!doubtfulBefore.contains(id))
            qInfo().noquote()
                << "[RealMonitors]" << id
                << "cannot be told from an equal monitor on the desktop: its screen is left alone";
    }
    for (auto it = m_plugged.cbegin(); it != m_plugged.cend(); ++it)
        MonitorLink::of(*it->info).setScreenName(m_screens.value(it.key()));
}

void RealMonitors::tell(const QString& id, const ddci2c::Advice& advice)
{
    if (m_troubles.contains(id) && m_troubles[id] == advice)
        return;
    qWarning().noquote() << "[RealMonitors]" << text(advice.english());
    // A transfer of a monitor that has gone meanwhile is nobody's trouble any more.
    if (!id.isEmpty() && !m_plugged.contains(id))
        return;
    m_troubles.insert(id, advice);
    Q_EMIT troublesChanged();
}

void RealMonitors::endTrouble(const QString& id)
{
    if (m_troubles.remove(id) > 0)
        Q_EMIT troublesChanged();
}

QStringList RealMonitors::troubles() const
{
    QStringList list;
    for (const ddci2c::Advice& advice : m_troubles)
        list.append(text(advice.english()));
    list.removeDuplicates();
    return list;
}

QStringList RealMonitors::shownTroubles() const
{
    QStringList list;
    for (const ddci2c::Advice& advice : m_troubles) {
        QString sentence = tr(advice.sentence);
        for (std::size_t i = 0; i < advice.values.size(); ++i)
            sentence.replace(QLatin1Char('%') + QString::number(i + 1), text(advice.values[i]));
        list.append(sentence);
    }
    list.removeDuplicates();
    return list;
}

void RealMonitors::noteSkipped(const ddci2c::Enumeration& found)
{
    for (const ddci2c::SkippedConnector& each : found.skipped)
        qInfo().noquote() << "[RealMonitors] no monitor at" << text(each.connector) + QLatin1Char(':')
                          << text(each.reason);
}

void RealMonitors::keepTwins()
{
    QStringList lines;
    for (const ddci2c::IdentityBook::Entry& entry : m_book.twins())
        lines.append(
            QStringList{text(entry.id), text(entry.key), text(entry.connector)}.join(QLatin1Char('\t')));
    LuSettings& settings = LuSettings::instance();
    if (settings.value(TwinsKey).toStringList() != lines)
        settings.setValue(TwinsKey, lines);
}

bool RealMonitors::isAsleep(const QString& id) const
{
    const auto found = m_plugged.constFind(id);
    return found != m_plugged.cend() && found->asleep;
}

QString RealMonitors::backlightOf(const QString& id) const
{
    const auto found = m_plugged.constFind(id);
    return found == m_plugged.cend() ? QString() : path(found->monitor.found.backlight);
}

QString RealMonitors::connectorOf(const QString& id) const
{
    const auto found = m_plugged.constFind(id);
    return found == m_plugged.cend() ? QString() : text(found->monitor.found.connector);
}
