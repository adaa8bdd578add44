// SPDX-License-Identifier: Apache-2.0
#include "services/wayland/OutputControl.h"

#include <QDBusArgument>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDebug>
#include <QObject>

#include <cmath>

namespace services::wayland {

namespace {

const QString Service = QStringLiteral("org.gnome.Mutter.DisplayConfig");
const QString Path = QStringLiteral("/org/gnome/Mutter/DisplayConfig");

constexpr uint Temporary = 1;
constexpr uint Persistent = 2;
constexpr uint LayoutLogical = 1;

/// A monitor's address: connector, vendor, product, serial.
struct MonitorName
{
    QString connector;
    QString vendor;
    QString product;
    QString serial;
};

/// A piece of the desktop and the monitors that show it.
struct LogicalMonitor
{
    int x = 0;
    int y = 0;
    double scale = 1;
    uint transform = 0; ///< Quarters of a turn; 4 and more mirrored.
    bool primary = false;
    QList<MonitorName> monitors;
};

struct State
{
    uint serial = 0;
    QList<Output> outputs; ///< Without place, turn and scale, which the pieces have.
    QList<LogicalMonitor> pieces;
    bool logicalLayout = false;
};

const QDBusArgument& operator>>(const QDBusArgument& argument, MonitorName& name)
{
    argument.beginStructure();
    argument >> name.connector >> name.vendor >> name.product >> name.serial;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, LogicalMonitor& piece)
{
    QVariantMap properties;
    argument.beginStructure();
    argument >> piece.x >> piece.y >> piece.scale >> piece.transform >> piece.primary;
    argument.beginArray();
    while (!argument.atEnd()) {
        MonitorName name;
        argument >> name;
        piece.monitors.append(name);
    }
    argument.endArray();
    argument >> properties;
    argument.endStructure();
    return argument;
}

/// (ssss)a(siiddada{sv})a{sv}
const QDBusArgument& operator>>(const QDBusArgument& argument, Output& output)
{
    MonitorName name;
    QVariantMap properties;
    argument.beginStructure();
    argument >> name;
    output.name = name.connector;
    argument.beginArray();
    while (!argument.atEnd()) {
        OutputMode mode;
        int width = 0;
        int height = 0;
        double preferredScale = 1;
        argument.beginStructure();
        argument >> mode.id >> width >> height >> mode.rate >> preferredScale >> mode.scales >> properties;
        argument.endStructure();
        mode.size = QSize(width, height);
        if (properties.value(QStringLiteral("is-current")).toBool())
            output.modeId = mode.id;
        output.modes.append(mode);
    }
    argument.endArray();
    argument >> properties;
    argument.endStructure();
    return argument;
}

template <class Element>
QList<Element> list(const QVariant& value)
{
    QList<Element> result;
    const auto argument = value.value<QDBusArgument>();
    argument.beginArray();
    while (!argument.atEnd()) {
        Element element;
        argument >> element;
        result.append(element);
    }
    argument.endArray();
    return result;
}

QSize pieceSize(const QSize& mode, int degrees, double scale, bool logicalLayout)
{
    const QSize turned = degrees % 180 == 0 ? mode : mode.transposed();
    return logicalLayout
               ? QSize(int(std::lround(turned.width() / scale)), int(std::lround(turned.height() / scale)))
               : turned;
}

class MutterControl : public QObject, public OutputControl
{
    Q_OBJECT

public:
    explicit MutterControl(const QDBusConnection& bus) : m_bus(bus) {}

    QList<Output> outputs() const override;
    bool change(const QString& name, const OutputChange& change) override;
    void setListener(Listener listener) override
    {
        m_listener = std::move(listener);
        m_bus.connect(Service, Path, Service, QStringLiteral("MonitorsChanged"), this, SLOT(onChanged()));
    }

private Q_SLOTS:
    void onChanged() { m_listener(); }

private:
    std::optional<State> state() const;
    bool apply(const State& state, uint method);

    QDBusConnection m_bus;
    Listener m_listener;
};

std::optional<State> MutterControl::state() const
{
    const QDBusMessage reply =
        m_bus.call(QDBusMessage::createMethodCall(Service, Path, Service, QStringLiteral("GetCurrentState")),
                   QDBus::Block, CallLimitMs);
    const QVariantList values = reply.arguments();
    if (reply.type() != QDBusMessage::ReplyMessage || values.size() != 4) {
        qWarning().noquote() << "[LuPlatform] the compositor does not tell its monitors:"
                             << reply.errorMessage();
        return std::nullopt;
    }
    State state;
    state.serial = values[0].toUInt();
    state.outputs = list<Output>(values[1]);
    state.pieces = list<LogicalMonitor>(values[2]);
    QVariantMap properties;
    values[3].value<QDBusArgument>() >> properties;
    state.logicalLayout = properties.value(QStringLiteral("layout-mode")).toUInt() == LayoutLogical;
    return state;
}

QList<Output> MutterControl::outputs() const
{
    const auto now = state();
    if (!now)
        return {};
    QList<Output> result = now->outputs;
    for (Output& output : result) {
        for (const LogicalMonitor& piece : now->pieces) {
            for (const MonitorName& monitor : piece.monitors) {
                if (monitor.connector != output.name)
                    continue;
                output.degrees = int(piece.transform % 4) * 90;
                output.scale = piece.scale;
                output.position = QPoint(piece.x, piece.y);
            }
        }
    }
    return result;
}

bool MutterControl::change(const QString& name, const OutputChange& change)
{
    auto now = state();
    if (!now)
        return false;
    const auto outputOf = [&](const LogicalMonitor& piece) -> Output* {
        for (Output& output : now->outputs) {
            if (!piece.monitors.isEmpty() && output.name == piece.monitors[0].connector)
                return &output;
        }
        return nullptr;
    };
    QList<QRect> places;
    qsizetype changed = -1;
    for (const LogicalMonitor& piece : std::as_const(now->pieces)) {
        const Output* const output = outputOf(piece);
        if (!output || !output->currentMode())
            return false;
        if (output->name == name)
            changed = places.size();
        places.append(
            {QPoint(piece.x, piece.y), pieceSize(output->currentMode()->size, int(piece.transform % 4) * 90,
                                                 piece.scale, now->logicalLayout)});
    }
    if (changed < 0)
        return false;
    LogicalMonitor& piece = now->pieces[changed];
    Output& output = *outputOf(piece);
    output.modeId = change.modeId.value_or(output.modeId);
    piece.scale = change.scale.value_or(piece.scale);
    if (change.degrees)
        piece.transform = uint(*change.degrees / 90);
    if (!output.currentMode())
        return false;
    places = arranged(places, changed,
                      pieceSize(output.currentMode()->size, int(piece.transform % 4) * 90, piece.scale,
                                now->logicalLayout));
    for (qsizetype i = 0; i < places.size(); ++i) {
        now->pieces[i].x = places[i].x();
        now->pieces[i].y = places[i].y();
    }
    return apply(*now, change.permanent ? Persistent : Temporary);
}

bool MutterControl::apply(const State& state, uint method)
{
    const auto modeOf = [&](const QString& connector) {
        for (const Output& output : state.outputs) {
            if (output.name == connector)
                return output.modeId;
        }
        return QString();
    };
    QDBusArgument pieces;
    pieces.beginArray(QMetaType::fromType<LogicalMonitor>());
    for (const LogicalMonitor& piece : state.pieces) {
        pieces.beginStructure();
        pieces << piece.x << piece.y << piece.scale << piece.transform << piece.primary;
        pieces.beginArray(QMetaType::fromType<MonitorName>());
        for (const MonitorName& monitor : piece.monitors) {
            pieces.beginStructure();
            pieces << monitor.connector << modeOf(monitor.connector) << QVariantMap();
            pieces.endStructure();
        }
        pieces.endArray();
        pieces.endStructure();
    }
    pieces.endArray();
    QDBusMessage message =
        QDBusMessage::createMethodCall(Service, Path, Service, QStringLiteral("ApplyMonitorsConfig"));
    message << state.serial << method << QVariant::fromValue(pieces) << QVariantMap();
    const QDBusMessage reply = m_bus.call(message, QDBus::Block, CallLimitMs);
    if (reply.type() == QDBusMessage::ReplyMessage)
        return true;
    qWarning().noquote() << "[LuPlatform] the compositor refuses:" << reply.errorMessage();
    return false;
}

// Only the signature is asked for, for arrays of them; each is written by apply() itself.
QDBusArgument& operator<<(QDBusArgument& argument, const MonitorName& name)
{
    argument.beginStructure();
    argument << name.connector << QString() << QVariantMap();
    argument.endStructure();
    return argument;
}

QDBusArgument& operator<<(QDBusArgument& argument, const LogicalMonitor& piece)
{
    argument.beginStructure();
    argument << piece.x << piece.y << piece.scale << piece.transform << piece.primary;
    argument.beginArray(QMetaType::fromType<MonitorName>());
    argument.endArray();
    argument.endStructure();
    return argument;
}

} // namespace

std::shared_ptr<OutputControl> makeMutterControl(const QDBusConnection& sessionBus)
{
    if (!sessionBus.isConnected() || !sessionBus.interface()->isServiceRegistered(Service))
        return nullptr;
    qDBusRegisterMetaType<MonitorName>();
    qDBusRegisterMetaType<LogicalMonitor>();
    return std::make_shared<MutterControl>(sessionBus);
}

} // namespace services::wayland

#include "MutterControl.moc"
