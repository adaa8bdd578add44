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

/// What Mutter answers to a serial number of before another change.
const QString Stale = QStringLiteral("org.freedesktop.DBus.Error.AccessDenied");

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

QDBusMessage displayCall(const QString& method)
{
    return QDBusMessage::createMethodCall(Service, Path, Service, method);
}

std::optional<State> stateOf(const QDBusMessage& reply)
{
    const QVariantList values = reply.arguments();
    if (reply.type() != QDBusMessage::ReplyMessage || values.size() != 4)
        return std::nullopt;
    State state;
    state.serial = values[0].toUInt();
    state.outputs = list<Output>(values[1]);
    state.pieces = list<LogicalMonitor>(values[2]);
    QVariantMap properties;
    values[3].value<QDBusArgument>() >> properties;
    state.logicalLayout = properties.value(QStringLiteral("layout-mode")).toUInt() == LayoutLogical;
    return state;
}

std::optional<QList<Output>> outputsOf(const QDBusMessage& reply)
{
    const auto state = stateOf(reply);
    if (!state)
        return std::nullopt;
    QList<Output> result = state->outputs;
    for (Output& output : result) {
        for (const LogicalMonitor& piece : state->pieces) {
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

/// The state with the change in it; false if it has no such output, or no such mode.
bool changeState(State& state, const QString& name, const OutputChange& change)
{
    const auto outputOf = [&](const LogicalMonitor& piece) -> Output* {
        for (Output& output : state.outputs) {
            if (!piece.monitors.isEmpty() && output.name == piece.monitors[0].connector)
                return &output;
        }
        return nullptr;
    };
    QList<QRect> places;
    qsizetype changed = -1;
    for (const LogicalMonitor& piece : std::as_const(state.pieces)) {
        const Output* const output = outputOf(piece);
        if (!output || !output->currentMode())
            return false;
        if (output->name == name)
            changed = places.size();
        places.append(
            {QPoint(piece.x, piece.y), pieceSize(output->currentMode()->size, int(piece.transform % 4) * 90,
                                                 piece.scale, state.logicalLayout)});
    }
    if (changed < 0)
        return false;
    LogicalMonitor& piece = state.pieces[changed];
    Output& output = *outputOf(piece);
    output.modeId = change.modeId.value_or(output.modeId);
    piece.scale = change.scale.value_or(piece.scale);
    if (change.degrees)
        piece.transform = uint(*change.degrees / 90);
    if (!output.currentMode())
        return false;
    places = arranged(places, changed,
                      pieceSize(output.currentMode()->size, int(piece.transform % 4) * 90, piece.scale,
                                state.logicalLayout));
    for (qsizetype i = 0; i < places.size(); ++i) {
        state.pieces[i].x = places[i].x();
        state.pieces[i].y = places[i].y();
    }
    return true;
}

QDBusMessage applyCall(const State& state, uint method)
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
    QDBusMessage message = displayCall(QStringLiteral("ApplyMonitorsConfig"));
    message << state.serial << method << QVariant::fromValue(pieces) << QVariantMap();
    return message;
}

class MutterControl : public QObject, public OutputControl
{
    Q_OBJECT

public:
    explicit MutterControl(const QDBusConnection& bus) : m_bus(bus) {}

    std::optional<QList<Output>> outputsWithin(int milliseconds) override;
    void outputs(Answer answer) override;
    void change(const QString& name, const OutputChange& change, Done done) override;
    void setListener(Listener listener) override
    {
        m_listener = std::move(listener);
        m_bus.connect(Service, Path, Service, QStringLiteral("MonitorsChanged"), this, SLOT(onChanged()));
    }

private Q_SLOTS:
    void onChanged() { m_listener(); }

private:
    /// @p retry is for another program's change that came between the question and ours.
    void change(const QString& name, const OutputChange& change, const Done& done, bool retry);

    QDBusConnection m_bus;
    Listener m_listener;
};

std::optional<QList<Output>> MutterControl::outputsWithin(int milliseconds)
{
    return outputsOf(m_bus.call(displayCall(QStringLiteral("GetCurrentState")), QDBus::Block, milliseconds));
}

void MutterControl::outputs(Answer answer)
{
    sendLater(this, m_bus, displayCall(QStringLiteral("GetCurrentState")),
              [answer = std::move(answer)](const QDBusMessage& reply) { answer(outputsOf(reply)); });
}

void MutterControl::change(const QString& name, const OutputChange& change, Done done)
{
    this->change(name, change, done, true);
}

void MutterControl::change(const QString& name, const OutputChange& change, const Done& done, bool retry)
{
    sendLater(this, m_bus, displayCall(QStringLiteral("GetCurrentState")),
              [=, this](const QDBusMessage& reply) {
                  auto state = stateOf(reply);
                  if (!state || !changeState(*state, name, change)) {
                      done(state ? QStringLiteral("there is no such output or mode any more")
                                 : reply.errorMessage());
                      return;
                  }
                  const QDBusMessage apply = applyCall(*state, change.permanent ? Persistent : Temporary);
                  sendLater(this, m_bus, apply, [=, this](const QDBusMessage& applied) {
                      if (applied.type() == QDBusMessage::ReplyMessage)
                          done({});
                      else if (retry && applied.errorName() == Stale)
                          this->change(name, change, done, false);
                      else
                          done(applied.errorMessage());
                  });
              });
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
