// SPDX-License-Identifier: Apache-2.0
#include "services/wayland/OutputControl.h"

#include <QDBusArgument>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QDeadlineTimer>
#include <QObject>

#include <algorithm>
#include <array>
#include <cmath>

namespace services::wayland {

namespace {

const QString Service = QStringLiteral("org.kde.KScreen");
const QString LauncherPath = QStringLiteral("/");
const QString BackendPath = QStringLiteral("/backend");
const QString BackendInterface = QStringLiteral("org.kde.kscreen.Backend");

/// Bit of "features" that says that each output has a scale of its own.
constexpr int PerOutputScaling = 4;

const QString NoReply = QStringLiteral("org.freedesktop.DBus.Error.NoReply");

/// KScreen takes any scale; these are what Plasma's own settings step through.
constexpr std::array Scales{1.0, 1.25, 1.5, 1.75, 2.0, 2.25, 2.5, 2.75, 3.0};

struct Rotation
{
    int degrees;
    int value;
};

constexpr std::array Rotations{Rotation{0, 1}, Rotation{90, 2}, Rotation{180, 4}, Rotation{270, 8}};

/// A value of the bus as plain lists and maps.
QVariant plain(const QVariant& value)
{
    if (value.metaType() == QMetaType::fromType<QDBusVariant>())
        return plain(value.value<QDBusVariant>().variant());
    if (value.metaType() == QMetaType::fromType<QDBusArgument>()) {
        const auto argument = value.value<QDBusArgument>();
        if (argument.currentType() == QDBusArgument::MapType) {
            QVariantMap map;
            argument >> map;
            return plain(map);
        }
        QVariantList list;
        argument >> list;
        return plain(list);
    }
    if (value.typeId() == QMetaType::QVariantMap) {
        QVariantMap map = value.toMap();
        for (QVariant& each : map)
            each = plain(each);
        return map;
    }
    if (value.typeId() == QMetaType::QVariantList) {
        QVariantList list = value.toList();
        for (QVariant& each : list)
            each = plain(each);
        return list;
    }
    return value;
}

QSize sizeOf(const QVariant& value)
{
    const QVariantMap map = value.toMap();
    return {map.value(QStringLiteral("width")).toInt(), map.value(QStringLiteral("height")).toInt()};
}

Output outputOf(const QVariantMap& map, bool canScale)
{
    Output output;
    output.name = map.value(QStringLiteral("name")).toString();
    if (map.value(QStringLiteral("enabled")).toBool())
        output.modeId = map.value(QStringLiteral("currentModeId")).toString();
    const QVariantList modes = map.value(QStringLiteral("modes")).toList();
    for (const QVariant& each : modes) {
        const QVariantMap mode = each.toMap();
        output.modes.append({mode.value(QStringLiteral("id")).toString(),
                             sizeOf(mode.value(QStringLiteral("size"))),
                             mode.value(QStringLiteral("refreshRate")).toDouble(),
                             canScale ? QList<double>(Scales.begin(), Scales.end()) : QList<double>{1.0}});
    }
    const int rotation = map.value(QStringLiteral("rotation")).toInt();
    for (const Rotation& each : Rotations) {
        if (each.value == rotation)
            output.degrees = each.degrees;
    }
    const double scale = map.value(QStringLiteral("scale")).toDouble();
    output.scale = scale > 0 ? scale : 1;
    const QVariantMap position = map.value(QStringLiteral("pos")).toMap();
    output.position = {position.value(QStringLiteral("x")).toInt(),
                       position.value(QStringLiteral("y")).toInt()};
    return output;
}

QSize placeSize(const Output& output)
{
    const OutputMode* const mode = output.currentMode();
    if (!mode)
        return {};
    const QSize turned = output.degrees % 180 == 0 ? mode->size : mode->size.transposed();
    return {int(std::lround(turned.width() / output.scale)),
            int(std::lround(turned.height() / output.scale))};
}

QDBusMessage backendCall(const QString& method)
{
    return QDBusMessage::createMethodCall(Service, BackendPath, BackendInterface, method);
}

/// Lets the service load its back end for this session.
QDBusMessage startCall()
{
    QDBusMessage message =
        QDBusMessage::createMethodCall(Service, LauncherPath, Service, QStringLiteral("requestBackend"));
    message << QStringLiteral("kwayland") << QVariantMap();
    return message;
}

std::optional<QVariantMap> configurationOf(const QDBusMessage& reply)
{
    if (reply.type() != QDBusMessage::ReplyMessage)
        return std::nullopt;
    return plain(reply.arguments().value(0)).toMap();
}

std::optional<QList<Output>> outputsOf(const QDBusMessage& reply)
{
    const auto config = configurationOf(reply);
    if (!config)
        return std::nullopt;
    const bool canScale = config->value(QStringLiteral("features")).toInt() & PerOutputScaling;
    QList<Output> result;
    const QVariantList outputs = config->value(QStringLiteral("outputs")).toList();
    for (const QVariant& output : outputs)
        result.append(outputOf(output.toMap(), canScale));
    return result;
}

/// The configuration with the change in it; false if it has no such output, or no such mode.
bool changeConfiguration(QVariantMap& config, const QString& name, const OutputChange& change)
{
    QVariantList maps = config.value(QStringLiteral("outputs")).toList();
    QList<qsizetype> shown; // indices of those that are on
    QList<QRect> places;
    qsizetype changed = -1;
    Output target;
    for (qsizetype i = 0; i < maps.size(); ++i) {
        const Output output = outputOf(maps[i].toMap(), true);
        if (!output.currentMode())
            continue;
        if (output.name == name) {
            changed = places.size();
            target = output;
        }
        shown.append(i);
        places.append({output.position, placeSize(output)});
    }
    if (changed < 0)
        return false;
    target.apply(change);
    if (!target.currentMode())
        return false;
    places = arranged(places, changed, placeSize(target));
    for (qsizetype i = 0; i < shown.size(); ++i) {
        QVariantMap map = maps[shown[i]].toMap();
        map[QStringLiteral("pos")] =
            QVariantMap{{QStringLiteral("x"), places[i].x()}, {QStringLiteral("y"), places[i].y()}};
        if (i == changed) {
            map[QStringLiteral("currentModeId")] = target.modeId;
            map[QStringLiteral("scale")] = target.scale;
            for (const Rotation& each : Rotations) {
                if (each.degrees == target.degrees)
                    map[QStringLiteral("rotation")] = each.value;
            }
        }
        maps[shown[i]] = map;
    }
    config[QStringLiteral("outputs")] = maps;
    return true;
}

class KScreenControl : public QObject, public OutputControl
{
    Q_OBJECT

public:
    explicit KScreenControl(const QDBusConnection& bus) : m_bus(bus) {}

    std::optional<QList<Output>> outputsWithin(int milliseconds) override;
    void outputs(Answer answer) override;
    void change(const QString& name, const OutputChange& change, Done done) override;
    void setListener(Listener listener) override
    {
        m_listener = std::move(listener);
        m_bus.connect(Service, BackendPath, BackendInterface, QStringLiteral("configChanged"), this,
                      SLOT(onChanged()));
    }

private Q_SLOTS:
    void onChanged() { m_listener(); }

private:
    void ask(const std::function<void(const QDBusMessage& reply)>& next);

    QDBusConnection m_bus;
    Listener m_listener;
};

std::optional<QList<Output>> KScreenControl::outputsWithin(int milliseconds)
{
    const QDeadlineTimer deadline(milliseconds);
    for (const QDBusMessage& message : {startCall(), backendCall(QStringLiteral("getConfig"))}) {
        const int left = int(deadline.remainingTime());
        const QDBusMessage reply = m_bus.call(message, QDBus::Block, std::max(left, 1));
        if (reply.type() != QDBusMessage::ReplyMessage)
            return std::nullopt;
        if (message.member() == QLatin1String("getConfig"))
            return outputsOf(reply);
    }
    return std::nullopt;
}

void KScreenControl::ask(const std::function<void(const QDBusMessage& reply)>& next)
{
    const QDBusMessage question = backendCall(QStringLiteral("getConfig"));
    sendLater(this, m_bus, question, [this, question, next](const QDBusMessage& reply) {
        if (reply.type() == QDBusMessage::ReplyMessage || reply.errorName() == NoReply) {
            next(reply);
            return;
        }
        // The service ends when nobody has asked it for a while; it comes back without its back end.
        sendLater(this, m_bus, startCall(),
                  [this, question, next](const QDBusMessage&) { sendLater(this, m_bus, question, next); });
    });
}

void KScreenControl::outputs(Answer answer)
{
    ask([answer = std::move(answer)](const QDBusMessage& reply) { answer(outputsOf(reply)); });
}

void KScreenControl::change(const QString& name, const OutputChange& change, Done done)
{
    ask([=, this](const QDBusMessage& reply) {
        auto config = configurationOf(reply);
        if (!config || !changeConfiguration(*config, name, change)) {
            done(config ? QStringLiteral("there is no such output or mode any more") : reply.errorMessage());
            return;
        }
        QDBusMessage set = backendCall(QStringLiteral("setConfig"));
        set << *config;
        sendLater(this, m_bus, set, [done](const QDBusMessage& answer) {
            done(answer.type() == QDBusMessage::ReplyMessage ? QString() : answer.errorMessage());
        });
    });
}

} // namespace

std::shared_ptr<OutputControl> makeKScreenControl(const QDBusConnection& sessionBus)
{
    if (!sessionBus.isConnected())
        return nullptr;
    const QDBusConnectionInterface& names = *sessionBus.interface();
    const bool reachable =
        names.isServiceRegistered(Service) || names.activatableServiceNames().value().contains(Service);
    // Under other compositors the service would start, and find no outputs that it can change.
    if (!reachable || !names.isServiceRegistered(QStringLiteral("org.kde.KWin")))
        return nullptr;
    return std::make_shared<KScreenControl>(sessionBus);
}

} // namespace services::wayland

#include "KScreenControl.moc"
