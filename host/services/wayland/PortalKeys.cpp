// SPDX-License-Identifier: Apache-2.0
#include "services/wayland/PortalKeys.h"

#include <LuShared/LuPlatformNotifications.h>

#include "services/wayland/OutputControl.h"

#include <QDBusArgument>
#include <QDBusConnectionInterface>
#include <QDBusMetaType>
#include <QDBusServiceWatcher>
#include <QDebug>
#include <QKeySequence>

#include <xkbcommon/xkbcommon.h>

#include <algorithm>
#include <array>
#include <utility>

namespace services::wayland {

/// One combination as BindShortcuts takes it: (sa{sv}).
struct PortalShortcut
{
    QString id;
    QVariantMap properties;
};

QDBusArgument& operator<<(QDBusArgument& argument, const PortalShortcut& shortcut)
{
    argument.beginStructure();
    argument << shortcut.id << shortcut.properties;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, PortalShortcut& shortcut)
{
    argument.beginStructure();
    argument >> shortcut.id >> shortcut.properties;
    argument.endStructure();
    return argument;
}

} // namespace services::wayland

Q_DECLARE_METATYPE(services::wayland::PortalShortcut)

namespace services::wayland {

namespace {

const QString Portal = QStringLiteral("org.freedesktop.portal.Desktop");
const QString PortalPath = QStringLiteral("/org/freedesktop/portal/desktop");
const QString ShortcutsInterface = QStringLiteral("org.freedesktop.portal.GlobalShortcuts");
const QString RequestInterface = QStringLiteral("org.freedesktop.portal.Request");
const QString SessionInterface = QStringLiteral("org.freedesktop.portal.Session");

struct NamedKey
{
    Qt::Key key;
    xkb_keysym_t symbol;
};

/// Keys that give no character.
constexpr NamedKey NamedKeys[] = {
    {Qt::Key_Left, 0xFF51},   {Qt::Key_Up, 0xFF52},        {Qt::Key_Right, 0xFF53},
    {Qt::Key_Down, 0xFF54},   {Qt::Key_PageUp, 0xFF55},    {Qt::Key_PageDown, 0xFF56},
    {Qt::Key_End, 0xFF57},    {Qt::Key_Home, 0xFF50},      {Qt::Key_Insert, 0xFF63},
    {Qt::Key_Delete, 0xFFFF}, {Qt::Key_Backspace, 0xFF08}, {Qt::Key_Tab, 0xFF09},
    {Qt::Key_Return, 0xFF0D}, {Qt::Key_Enter, 0xFF8D},     {Qt::Key_Escape, 0xFF1B},
    {Qt::Key_Pause, 0xFF13},  {Qt::Key_Print, 0xFF61},     {Qt::Key_Menu, 0xFF67},
};

xkb_keysym_t symbolOf(Qt::Key key)
{
    const auto named = std::find_if(std::begin(NamedKeys), std::end(NamedKeys),
                                    [key](const NamedKey& row) { return row.key == key; });
    if (named != std::end(NamedKeys))
        return named->symbol;
    if (key >= Qt::Key_F1 && key <= Qt::Key_F35)
        return 0xFFBE + xkb_keysym_t(key - Qt::Key_F1);
    // The codes of keys that give a character are the character in its upper case.
    if (key > 0 && key < 0x01000000)
        return xkb_utf32_to_keysym(QChar::toLower(uint(key)));
    return XKB_KEY_NoSymbol;
}

QDBusMessage portalCall(const QString& method)
{
    return QDBusMessage::createMethodCall(Portal, PortalPath, ShortcutsInterface, method);
}

} // namespace

QString PortalKeys::trigger(QKeyCombination keys)
{
    const xkb_keysym_t symbol = symbolOf(keys.key());
    std::array<char, 64> name{};
    if (symbol == XKB_KEY_NoSymbol || xkb_keysym_get_name(symbol, name.data(), name.size()) <= 0)
        return {};
    QString text;
    const std::pair<Qt::KeyboardModifier, const char*> modifiers[] = {
        {Qt::ControlModifier, "CTRL+"},
        {Qt::AltModifier, "ALT+"},
        {Qt::ShiftModifier, "SHIFT+"},
        {Qt::MetaModifier, "LOGO+"},
    };
    for (const auto& [modifier, word] : modifiers) {
        if (keys.keyboardModifiers() & modifier)
            text += QLatin1String(word);
    }
    return text + QLatin1String(name.data());
}

PortalKeys::PortalKeys(const QDBusConnection& sessionBus) : m_bus(sessionBus)
{
    qDBusRegisterMetaType<PortalShortcut>();
    qDBusRegisterMetaType<QList<PortalShortcut>>();
    m_bus.connect(Portal, PortalPath, ShortcutsInterface, QStringLiteral("Activated"), this,
                  SLOT(onActivated(QDBusObjectPath, QString, qulonglong, QVariantMap)));
    auto* const watcher =
        new QDBusServiceWatcher(Portal, m_bus, QDBusServiceWatcher::WatchForOwnerChange, this);
    connect(watcher, &QDBusServiceWatcher::serviceOwnerChanged, this,
            [this](const QString&, const QString&, const QString& owner) { meet(owner); });
    ask();
}

PortalKeys::~PortalKeys()
{
    stop();
}

void PortalKeys::ask()
{
    const QDBusConnectionInterface* const names = m_bus.interface();
    if (!names ||
        (!names->isServiceRegistered(Portal) && !names->activatableServiceNames().value().contains(Portal)))
        return;
    QDBusMessage question = QDBusMessage::createMethodCall(
        Portal, PortalPath, QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Get"));
    question << ShortcutsInterface << QStringLiteral("version");
    // A portal that the question starts takes its time.
    m_asking = true;
    sendLater(this, m_bus, question, [this](const QDBusMessage& answer) {
        m_asking = false;
        const QVariant version = answer.arguments().value(0).value<QDBusVariant>().variant();
        if (answer.type() != QDBusMessage::ReplyMessage || version.toUInt() < 1) {
            // A portal that is being started may answer before it has its name, and is asked again then.
            if (!std::exchange(m_isAbsenceTold, true))
                qInfo() << "[LuPlatform] the desktop portal has no global keys";
            return;
        }
        const bool isNews = !std::exchange(m_offered, true);
        if (m_started)
            renew();
        if (isNews && m_listener)
            m_listener();
    });
}

void PortalKeys::meet(const QString& owner)
{
    m_session.clear();
    forgetRequests();
    if (!owner.isEmpty() && !m_asking)
        ask();
}

void PortalKeys::start()
{
    if (!std::exchange(m_started, true) && m_offered)
        renew();
}

void PortalKeys::stop()
{
    if (!m_started)
        return;
    m_started = false;
    closeSession();
}

void PortalKeys::setActionKeys(const QSet<QKeyCombination>& keys)
{
    QHash<QString, QKeyCombination> wanted;
    for (const QKeyCombination key : keys) {
        if (!trigger(key).isEmpty())
            wanted.insert(QKeySequence(key).toString(QKeySequence::PortableText), key);
    }
    if (wanted == m_wanted)
        return;
    m_wanted = wanted;
    if (m_started && m_offered)
        renew();
}

// The answer to a request comes as a signal of an object whose path the caller chooses, so that it can listen
// before it asks.
QString PortalKeys::request(Next next)
{
    const QString sender = m_bus.baseService().mid(1).replace(u'.', u'_');
    const QString path = QStringLiteral("/org/freedesktop/portal/desktop/request/%1/lumen_desk_%2")
                             .arg(sender)
                             .arg(++m_tokens);
    m_requests.insert(path, std::move(next));
    m_bus.connect(Portal, path, RequestInterface, QStringLiteral("Response"), this,
                  SLOT(onResponse(uint, QVariantMap, QDBusMessage)));
    return path;
}

void PortalKeys::send(const QDBusMessage& message, const QString& path)
{
    sendLater(this, m_bus, message, [this, path, member = message.member()](const QDBusMessage& answer) {
        if (answer.type() == QDBusMessage::ReplyMessage)
            return;
        qWarning().noquote() << "[LuPlatform]" << member
                             << "of the desktop portal failed:" << answer.errorMessage();
        forget(path);
    });
}

void PortalKeys::forget(const QString& path)
{
    m_requests.remove(path);
    m_bus.disconnect(Portal, path, RequestInterface, QStringLiteral("Response"), this,
                     SLOT(onResponse(uint, QVariantMap, QDBusMessage)));
}

void PortalKeys::onResponse(uint code, const QVariantMap& results, const QDBusMessage& message)
{
    const auto found = m_requests.constFind(message.path());
    if (found == m_requests.constEnd())
        return;
    const Next next = *found;
    forget(message.path());
    if (code == 0)
        next(results);
    else
        qWarning() << "[LuPlatform] the desktop gave the program no global keys";
}

void PortalKeys::forgetRequests()
{
    const QStringList waiting = m_requests.keys();
    for (const QString& path : waiting)
        forget(path);
}

void PortalKeys::closeSession()
{
    forgetRequests();
    if (m_session.isEmpty())
        return;
    m_bus.send(QDBusMessage::createMethodCall(Portal, m_session, SessionInterface, QStringLiteral("Close")));
    m_session.clear();
}

// The keys of a session are bound once: other keys need another session.
void PortalKeys::renew()
{
    closeSession();
    if (m_wanted.isEmpty())
        return;
    const QString path = request([this](const QVariantMap& results) {
        const QVariant handle = results.value(QStringLiteral("session_handle"));
        m_session =
            handle.canConvert<QDBusObjectPath>() ? handle.value<QDBusObjectPath>().path() : handle.toString();
        if (m_session.isEmpty())
            qWarning() << "[LuPlatform] the desktop portal named no session";
        else
            bind();
    });
    QDBusMessage message = portalCall(QStringLiteral("CreateSession"));
    message << QVariantMap{
        {QStringLiteral("handle_token"), path.section(u'/', -1)},
        {QStringLiteral("session_handle_token"), QStringLiteral("lumen_desk_session_%1").arg(m_tokens)},
    };
    send(message, path);
}

void PortalKeys::bind()
{
    QList<PortalShortcut> shortcuts;
    for (auto it = m_wanted.constBegin(); it != m_wanted.constEnd(); ++it) {
        shortcuts.append({it.key(),
                          {{QStringLiteral("description"), QStringLiteral("Lumen Desk: %1").arg(it.key())},
                           {QStringLiteral("preferred_trigger"), trigger(*it)}}});
    }
    const QString path = request([](const QVariantMap&) {});
    QDBusMessage message = portalCall(QStringLiteral("BindShortcuts"));
    message << QDBusObjectPath(m_session) << QVariant::fromValue(shortcuts) << QString()
            << QVariantMap{{QStringLiteral("handle_token"), path.section(u'/', -1)}};
    send(message, path);
}

void PortalKeys::onActivated(const QDBusObjectPath& session, const QString& shortcut, qulonglong,
                             const QVariantMap&)
{
    const auto found = m_wanted.constFind(shortcut);
    if (!m_started || session.path() != m_session || found == m_wanted.constEnd())
        return;
    const QKeyCombination keys = *found;
    if (m_handler)
        m_handler(keys.keyboardModifiers(), keys.key(), false);
    Q_EMIT LuPlatformNotifications::instance()->activeKeyEvent(keys.keyboardModifiers(), keys.key(), false);
}

} // namespace services::wayland
