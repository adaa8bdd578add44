// SPDX-License-Identifier: Apache-2.0
#include "services/kvm/NativeKvm.h"

#include <LuShared/LuKvm.h>
#include <ZrCore/ZrDispatch.h>
#include <lushared/LuSettings.h>

#include <QDebug>

namespace services {

namespace {

// Who has the pointer: the one who is told, as it enters; the one who tells; and, as the two meet, once more
// the one who is told, whose word of it was lost on the way or with a restart.
const QString Take = QStringLiteral("take");
const QString Mine = QStringLiteral("mine");
const QString Yours = QStringLiteral("yours");
const QString LocationType = QStringLiteral("location");

/// The place of the other computer, of LuKvm::KvmDeviceLocation.
int oppositeLocation(int location)
{
    switch (location) {
    case LuKvm::LeftLocation:
        return LuKvm::RightLocation;
    case LuKvm::RightLocation:
        return LuKvm::LeftLocation;
    case LuKvm::TopLocation:
        return LuKvm::BottomLocation;
    default:
        return LuKvm::TopLocation;
    }
}

/// Whether a number of a message counts something.
bool isNumber(double value)
{
    return value >= 0 && value <= 4294967295.0;
}

} // namespace

NativeKvm::NativeKvm(std::shared_ptr<PointerService> pointer, const KvmChannelOptions& options,
                     const QDBusConnection& systemBus)
    : m_pointer(std::move(pointer)), m_channel(options), m_neighbours(systemBus)
{
    m_clock.start();
    connect(&m_channel, &KvmChannel::changed, this, &NativeKvm::onChannelChanged);
    connect(&m_neighbours, &KvmNeighbours::changed, this, &NativeKvm::onNeighboursChanged);
    connect(&m_channel, &KvmChannel::connectedChanged, this, &NativeKvm::onConnected);
    connect(&m_channel, &KvmChannel::received, this, &NativeKvm::onMessage);
    applySetting();
}

NativeKvm::~NativeKvm()
{
    if (m_active && m_pointer)
        m_pointer->watch({});
}

void NativeKvm::applySetting()
{
    m_channel.setEnabled(LuSettings::instance().value(QStringLiteral("kvm/network"), false).toBool());
}

void NativeKvm::onChannelChanged()
{
    if (m_channel.isEnabled())
        m_neighbours.start(m_channel.name(), m_channel.serverPort(), m_channel.fingerprint());
    else
        m_neighbours.stop();
    const bool isSetUp = m_channel.isEnabled() && m_channel.isPaired();
    if (m_isSetUp.exchange(isSetUp) != isSetUp && m_type == LuKvm::SmartKvm)
        Q_EMIT LuKvm::instance()->kvmChanged();
    Q_EMIT networkChanged();
}

// The paired computer's address has changed, or it was switched on.
void NativeKvm::onNeighboursChanged()
{
    const QString peer = KvmNeighbours::idOf(m_channel.peer().fingerprint);
    const QList<KvmNeighbour> found = m_neighbours.list();
    for (const KvmNeighbour& each : found) {
        if (each.id == peer)
            m_channel.tryAddress(each.address, each.port);
    }
    Q_EMIT networkChanged();
}

bool NativeKvm::isDriverInstalled() const
{
    return m_pointer != nullptr && (m_type != LuKvm::SmartKvm || m_isSetUp);
}

void NativeKvm::installDriver()
{
    ZrDispatch::main()->post(this, [this] { Q_EMIT setUpRequested(); });
}

void NativeKvm::setType(int type)
{
    const bool before = isDriverInstalled();
    m_type = type;
    // Who asked before the type was known is told of the answer that holds now.
    if (type == LuKvm::SmartKvm && isDriverInstalled() != before)
        ZrDispatch::main()->post(this, [] { Q_EMIT LuKvm::instance()->kvmChanged(); });
}

// The other computer's picture lies on the other side of the monitor.
Side NativeKvm::side() const
{
    switch (m_location) {
    case LuKvm::RightLocation:
        return Side::Left;
    case LuKvm::TopLocation:
        return Side::Bottom;
    case LuKvm::BottomLocation:
        return Side::Top;
    default:
        return Side::Right;
    }
}

void NativeKvm::activate()
{
    ZrDispatch::main()->post(this, [this] {
        m_active = true;
        applySetting();
        watch();
    });
}

void NativeKvm::deactivate()
{
    ZrDispatch::main()->post(this, [this] {
        m_active = false;
        if (m_pointer)
            m_pointer->watch({});
    });
}

void NativeKvm::setScreenRect(const QRect& rect)
{
    ZrDispatch::main()->post(this, [this, rect] {
        if (std::exchange(m_screen, rect) != rect && m_active)
            watch();
    });
}

void NativeKvm::setDeviceLocation(int location)
{
    if (m_location.exchange(location) == location)
        return;
    ZrDispatch::main()->post(this, [this] {
        ++m_locationNumber;
        if (m_active)
            watch();
        sendLocation();
        Q_EMIT LuKvm::instance()->deviceLocationChanged();
    });
}

void NativeKvm::watch()
{
    if (!m_pointer)
        return;
    m_edge.begin(m_screen, side(), m_pointer->position());
    const bool watching =
        m_pointer->watch([this](QPoint position, QPointF motion) { onMove(position, motion); });
    if (!watching)
        qWarning()
            << "[LuKvm] this session does not tell where the pointer is: the screen's edge cannot be watched";
}

void NativeKvm::onMove(QPoint position, QPointF motion)
{
    const qint64 now = m_clock.elapsed();
    if (m_turn.movedHere(now))
        sendTurn(Mine);
    if (!m_edge.move(position, motion, now) || !m_turn.leave(now))
        return;
    qInfo() << "[LuKvm] the pointer leaves at" << m_edge.along(position);
    sendTurn(Take, m_edge.along(position));
    // May end the watch, and with it the function that this is called from.
    ZrDispatch::main()->post(this, [] { Q_EMIT LuKvm::instance()->kvmChanged(); });
}

void NativeKvm::sendTurn(const QString& type, qreal along)
{
    m_channel.send({{QStringLiteral("t"), type},
                    {QStringLiteral("turn"), double(m_turn.number())},
                    {QStringLiteral("along"), along}});
}

void NativeKvm::sendLocation()
{
    m_channel.send({{QStringLiteral("t"), LocationType},
                    {QStringLiteral("location"), m_location.load()},
                    {QStringLiteral("number"), double(m_locationNumber)}});
}

void NativeKvm::onConnected()
{
    const bool connected = m_channel.isConnected();
    if (m_connected.exchange(connected) == connected)
        return;
    qInfo() << "[LuKvm]" << (connected ? "connected to the other computer" : "the other computer is gone");
    if (connected) {
        m_turn.setPrecedence(m_channel.hasPrecedence());
        sendTurn(m_turn.isHere() ? Mine : Yours);
        sendLocation();
    }
    // The monitor's hub follows the pointer alone; the signal would switch it.
    if (m_type == LuKvm::SmartKvm)
        Q_EMIT LuKvm::instance()->kvmChanged();
}

void NativeKvm::onMessage(const QJsonObject& message)
{
    const QString type = message[u"t"].toString();
    if (type == LocationType)
        return adoptLocation(message[u"location"].toInt(-1), message[u"number"].toDouble(-1));
    if (type != Take && type != Mine && type != Yours)
        return;
    const double turn = message[u"turn"].toDouble(-1);
    if (!isNumber(turn))
        return;
    if (!m_turn.told(type != Mine, quint32(turn)) || type != Take || !m_pointer || !m_active ||
        m_screen.isEmpty())
        return;
    // Where it left the other screen it enters this one, and is away from the side that it came through.
    EdgeWatch entering;
    entering.begin(m_screen, side(), QPoint());
    m_pointer->moveTo(entering.entrance(message[u"along"].toDouble()));
}

// The later choice holds; of two that nobody has made since, or at once, that of the one with precedence.
void NativeKvm::adoptLocation(int others, double number)
{
    if (others < LuKvm::LeftLocation || others > LuKvm::BottomLocation || !isNumber(number))
        return;
    const auto told = quint32(number);
    if (told < m_locationNumber || (told == m_locationNumber && m_channel.hasPrecedence()))
        return;
    m_locationNumber = told;
    const int own = oppositeLocation(others);
    if (m_location.exchange(own) == own)
        return;
    if (m_active)
        watch();
    Q_EMIT LuKvm::instance()->deviceLocationChanged();
}

} // namespace services
