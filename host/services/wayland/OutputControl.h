// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QList>
#include <QRect>
#include <QSize>
#include <QString>

#include <functional>
#include <memory>
#include <optional>

namespace services::wayland {

/// One way in which an output can run.
struct OutputMode
{
    QString id;
    QSize size; ///< Pixels of the panel, not turned.
    double rate = 0;
    QList<double> scales; ///< That the compositor offers in this mode.
    bool operator==(const OutputMode&) const = default;
};

/// What is to become different; what has no value stays.
struct OutputChange
{
    std::optional<QString> modeId;
    std::optional<int> degrees;
    std::optional<double> scale;
    bool permanent = false; ///< Beyond the session.

    /// Adds what comes after it.
    void merge(const OutputChange& later);
};

/// A connector with a monitor, as the compositor runs it.
struct Output
{
    QString name; ///< "DP-1".
    QList<OutputMode> modes;
    QString modeId; ///< The present one; empty while the output is off.
    int degrees = 0;
    double scale = 1;
    QPoint position;
    bool operator==(const Output&) const = default;

    const OutputMode* mode(const QString& id) const;
    const OutputMode* currentMode() const { return mode(modeId); }

    /// Whether it runs as the change wants it to.
    bool has(const OutputChange& change) const;
    void apply(const OutputChange& change);
};

/// A compositor's own interface to its outputs. GUI thread only; answers come from its event loop, and none
/// after the object's end.
class OutputControl
{
public:
    using Listener = std::function<void()>;
    /// Without a value where the compositor did not answer.
    using Answer = std::function<void(const std::optional<QList<Output>>& outputs)>;
    /// Why nothing has changed; empty where the compositor took the change.
    using Done = std::function<void(const QString& problem)>;

    virtual ~OutputControl() = default;

    /// Waits for the compositor, so many milliseconds at most.
    virtual std::optional<QList<Output>> outputsWithin(int milliseconds) = 0;

    virtual void outputs(Answer answer) = 0;
    virtual void change(const QString& name, const OutputChange& change, Done done) = 0;

    /// Called when something may have changed. Set once.
    virtual void setListener(Listener listener) = 0;
};

/// Mutter's DisplayConfig, of GNOME. Null if nobody on the bus has it.
std::shared_ptr<OutputControl> makeMutterControl(const QDBusConnection& sessionBus);

/// KScreen, of Plasma. Null if nobody on the bus has it, or starts it.
std::shared_ptr<OutputControl> makeKScreenControl(const QDBusConnection& sessionBus);

/// Moves rectangles aside so that those beside a changed one stay beside it: neither a gap nor an overlap
/// where there was none. Rectangles right of its old right side move by the change of its width, those below
/// its old lower side by that of its height.
QList<QRect> arranged(QList<QRect> rectangles, qsizetype changed, const QSize& newSize);

/// Sends a message and gives the answer, an error too, to @p next from the event loop unless @p owner is
/// gone.
void sendLater(QObject* owner, const QDBusConnection& bus, const QDBusMessage& message,
               std::function<void(const QDBusMessage& reply)> next);

} // namespace services::wayland
