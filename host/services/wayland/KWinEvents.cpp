// SPDX-License-Identifier: Apache-2.0
#include "services/wayland/KWinEvents.h"

#include <LuShared/LuPlatformNotifications.h>
#include <ZrCore/ZrDispatch.h>

#include "services/wayland/KWinScript.h"
#include "services/wayland/OutputControl.h"

#include <QCoreApplication>
#include <QDBusConnectionInterface>
#include <QDBusObjectPath>
#include <QDBusPendingCallWatcher>
#include <QDebug>
#include <QFile>
#include <QKeySequence>
#include <QRectF>
#include <QTimer>

#include <optional>
#include <utility>

namespace services::wayland {

namespace {

const QString KWin = QStringLiteral("org.kde.KWin");
const QString ScriptingPath = QStringLiteral("/Scripting");
const QString ScriptingInterface = QStringLiteral("org.kde.kwin.Scripting");
const QString OwnPath = QStringLiteral("/lumen_desk/KWin");
const QString OwnInterface = QStringLiteral("org.lumen_desk.KWin");
const QString WatchName = QStringLiteral("lumen-desk-watch");

const QString Accelerators = QStringLiteral("org.kde.kglobalaccel");
const QString AcceleratorsPath = QStringLiteral("/kglobalaccel");
const QString AcceleratorsInterface = QStringLiteral("org.kde.KGlobalAccel");
const QString ComponentInterface = QStringLiteral("org.kde.kglobalaccel.Component");
const QString Component = QStringLiteral("lumen-desk");

constexpr int MostTries = 30;
constexpr int TryMs = 1000;

/// What is set holds now, and is not what an earlier session of KGlobalAccel remembers.
constexpr uint SetNow = 2 | 4;

QDBusMessage scripting(const QString& method)
{
    return QDBusMessage::createMethodCall(KWin, ScriptingPath, ScriptingInterface, method);
}

QDBusMessage accelerators(const QString& method)
{
    return QDBusMessage::createMethodCall(Accelerators, AcceleratorsPath, AcceleratorsInterface, method);
}

/// "PID X Y WINDOW" of the script.
struct Drag
{
    unsigned long pid = 0;
    QPointF place;
    QString window;
};

bool isOwn(unsigned long pid)
{
    return pid == static_cast<unsigned long>(QCoreApplication::applicationPid());
}

std::optional<Drag> dragOf(const QString& text)
{
    const QStringList parts = text.split(u' ');
    if (parts.size() != 4)
        return std::nullopt;
    const Drag drag{parts[0].toULong(), QPointF(parts[1].toDouble(), parts[2].toDouble()), parts[3]};
    return drag.pid == 0 || isOwn(drag.pid) ? std::nullopt : std::optional(drag);
}

} // namespace

std::shared_ptr<KWinEvents> KWinEvents::make(const QDBusConnection& sessionBus)
{
    if (!sessionBus.isConnected() || !sessionBus.interface()->isServiceRegistered(KWin))
        return nullptr;
    return std::make_shared<KWinEvents>(sessionBus);
}

KWinEvents::KWinEvents(const QDBusConnection& sessionBus) : m_bus(sessionBus)
{
    m_bus.registerObject(OwnPath, this, QDBusConnection::ExportScriptableSlots);
}

KWinEvents::~KWinEvents()
{
    stop();
    m_bus.unregisterObject(OwnPath);
}

void KWinEvents::call(const QDBusMessage& message, Next next)
{
    auto* const watcher = new QDBusPendingCallWatcher(m_bus.asyncCall(message), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [watcher, message, next = std::move(next)] {
        watcher->deleteLater();
        const QDBusMessage reply = watcher->reply();
        if (reply.type() == QDBusMessage::ErrorMessage)
            qWarning().noquote() << "[LuPlatform]" << message.member()
                                 << "of the desktop failed:" << reply.errorMessage();
        else if (next)
            next(reply);
    });
}

void KWinEvents::runScript(const QString& name, const QString& text)
{
    const QString file = fileOf(name);
    QFile script(file);
    if (!script.open(QIODevice::WriteOnly) || script.write(text.toUtf8()) < 0) {
        qWarning().noquote() << "[LuPlatform] a script for KWin cannot be written:" << script.errorString();
        return;
    }
    script.close();
    QDBusMessage load = scripting(QStringLiteral("loadScript"));
    load << file << name;
    call(load, [this](const QDBusMessage& reply) {
        // Not by the number in the reply: KWin gives it anew while a script that has it still runs.
        if (reply.arguments().value(0).toInt() >= 0)
            call(scripting(QStringLiteral("start")), {});
        else
            qWarning() << "[LuPlatform] KWin does not take a script";
    });
}

QString KWinEvents::fileOf(const QString& script) const
{
    return m_folder.filePath(script + QStringLiteral(".js"));
}

void KWinEvents::ended(const QString& script)
{
    // Everybody on the bus can call this.
    if (!m_placing.remove(script))
        return;
    QDBusMessage unload = scripting(QStringLiteral("unloadScript"));
    unload << script;
    call(unload, {});
    QFile::remove(fileOf(script));
}

void KWinEvents::start()
{
    if (m_started)
        return;
    m_started = true;
    m_active = 0;
    m_tries = MostTries;
    watch();
    dropForgottenKeys();
}

void KWinEvents::watch()
{
    // One that a killed run has left behind would tell an address that nobody has.
    QDBusMessage message = scripting(QStringLiteral("unloadScript"));
    message << WatchName;
    auto* const watcher = new QDBusPendingCallWatcher(m_bus.asyncCall(message), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
        watcher->deleteLater();
        if (!m_started)
            return;
        if (!watcher->isError())
            runScript(WatchName, watchScript({m_bus.baseService(), OwnPath, OwnInterface}));
        else if (--m_tries > 0) // KWin offers scripts some time after it has its name
            QTimer::singleShot(TryMs, this, [this] { watch(); });
        else
            qWarning() << "[LuPlatform] KWin takes no scripts: windows of other applications are not seen";
    });
}

void KWinEvents::stop()
{
    setActionKeys({});
    if (!m_started)
        return;
    m_started = false;
    QDBusMessage message = scripting(QStringLiteral("unloadScript"));
    message << WatchName;
    m_bus.send(message);
}

void KWinEvents::activated(const QString& text)
{
    const unsigned long pid = text.toULong();
    if (!m_started || pid == 0 || std::exchange(m_active, pid) == pid || isOwn(pid))
        return;
    Q_EMIT LuPlatformNotifications::instance()->activeAppChanged(pid);
}

void KWinEvents::dragged(const QString& text)
{
    const std::optional<Drag> drag = dragOf(text);
    if (!m_started || !drag)
        return;
    m_draggedPid = drag->pid;
    m_draggedWindow = drag->window;
    Q_EMIT LuPlatformNotifications::instance()->activeAppDragged(drag->pid, drag->place);
}

void KWinEvents::released(const QString& text)
{
    const std::optional<Drag> drag = dragOf(text);
    if (m_started && drag)
        Q_EMIT LuPlatformNotifications::instance()->activeAppReleased(drag->pid, drag->place);
}

void KWinEvents::setGeometry(unsigned long pid, const QRectF& geometry)
{
    ZrDispatch::main()->post(this, [this, pid, geometry] {
        // The window that a person has just dragged, where a program has several.
        const QString window = pid == m_draggedPid ? m_draggedWindow : QString();
        // A name that no run before has left behind.
        const QString name =
            QStringLiteral("lumen-desk-place-%1-%2").arg(QCoreApplication::applicationPid()).arg(++m_scripts);
        m_placing.insert(name);
        runScript(name,
                  placeScript({m_bus.baseService(), OwnPath, OwnInterface}, name, pid, window, geometry));
    });
}

void KWinEvents::setActionKeys(const QSet<QKeyCombination>& keys)
{
    QHash<QString, QKeyCombination> wanted;
    for (const QKeyCombination key : keys) {
        if (key.key() != Qt::Key_unknown && key.key() != Qt::Key(0))
            wanted.insert(QKeySequence(key).toString(QKeySequence::PortableText), key);
    }
    for (auto it = m_keys.constBegin(); it != m_keys.constEnd(); ++it) {
        if (wanted.contains(it.key()))
            continue;
        QDBusMessage message = accelerators(QStringLiteral("unregister"));
        message << Component << it.key();
        m_bus.send(message);
    }
    for (auto it = wanted.constBegin(); it != wanted.constEnd(); ++it) {
        if (!m_keys.contains(it.key()))
            registerKey(it.key(), it->toCombined());
    }
    m_keys = wanted;
}

// The desktop keeps the keys of a run that was killed from every other program.
void KWinEvents::dropForgottenKeys()
{
    QDBusMessage message = accelerators(QStringLiteral("allActionsForComponent"));
    message << QStringList{Component, QString(), QString(), QString()};
    // An error says that there is no such component.
    sendLater(this, m_bus, message, [this](const QDBusMessage& reply) {
        if (reply.signature() != QLatin1String("aas"))
            return;
        const auto actions = qdbus_cast<QList<QStringList>>(reply.arguments().value(0));
        for (const QStringList& action : actions) {
            if (action.size() < 2 || m_keys.contains(action[1]))
                continue;
            QDBusMessage drop = accelerators(QStringLiteral("unregister"));
            drop << Component << action[1];
            m_bus.send(drop);
        }
    });
}

void KWinEvents::registerKey(const QString& name, int key)
{
    const QStringList action{Component, name, QStringLiteral("Lumen Desk"), name};
    QDBusMessage message = accelerators(QStringLiteral("doRegister"));
    message << action;
    call(message, [this, action, key](const QDBusMessage&) {
        // Taken back meanwhile.
        if (!m_keys.contains(action[1]))
            return;
        QDBusMessage set = accelerators(QStringLiteral("setShortcut"));
        set << action << QVariant::fromValue(QList<int>{key}) << SetNow;
        call(set, [this, action, key](const QDBusMessage& reply) {
            // What the desktop gives to another program is left out of the answer.
            if (reply.signature() == QLatin1String("ai") &&
                !qdbus_cast<QList<int>>(reply.arguments().value(0)).contains(key))
                qWarning().noquote() << "[LuPlatform] the desktop keeps" << action[1]
                                     << "for another program";
            listenToShortcuts();
        });
    });
}

void KWinEvents::listenToShortcuts()
{
    if (m_listening)
        return;
    m_listening = true;
    QDBusMessage message = accelerators(QStringLiteral("getComponent"));
    message << Component;
    sendLater(this, m_bus, message, [this](const QDBusMessage& reply) {
        const QString path = reply.arguments().value(0).value<QDBusObjectPath>().path();
        // The component goes with its last key, and comes back with the next one.
        m_listening = !path.isEmpty();
        if (m_listening)
            m_bus.connect(Accelerators, path, ComponentInterface, QStringLiteral("globalShortcutPressed"),
                          this, SLOT(onShortcut(QString, QString, qlonglong)));
    });
}

void KWinEvents::onShortcut(const QString& component, const QString& action, qlonglong)
{
    const auto key = m_keys.constFind(action);
    if (component != Component || key == m_keys.constEnd())
        return;
    const QKeyCombination combination = *key;
    if (m_handler)
        m_handler(combination.keyboardModifiers(), combination.key(), false);
    Q_EMIT LuPlatformNotifications::instance()->activeKeyEvent(combination.keyboardModifiers(),
                                                               combination.key(), false);
}

} // namespace services::wayland
