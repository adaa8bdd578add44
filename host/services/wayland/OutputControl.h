// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QDBusConnection>
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
};

/// What is to become different; what has no value stays.
struct OutputChange
{
    std::optional<QString> modeId;
    std::optional<int> degrees;
    std::optional<double> scale;
    bool permanent = true; ///< Beyond the session.
};

/// A compositor's own interface to its outputs. Any thread; functions block for a round trip to the
/// compositor, 3 s at most.
class OutputControl
{
public:
    using Listener = std::function<void()>;

    virtual ~OutputControl() = default;

    /// Empty where the compositor does not answer.
    virtual QList<Output> outputs() const = 0;

    /// False, with the compositor's reason in the log, if it refuses; nothing has changed then.
    virtual bool change(const QString& name, const OutputChange& change) = 0;

    /// Called on the GUI thread when something may have changed. Set once, on the GUI thread.
    virtual void setListener(Listener listener) = 0;
};

/// Longest wait for a compositor, in ms.
constexpr int CallLimitMs = 3000;

/// Mutter's DisplayConfig, of GNOME. Null if nobody on the bus has it.
std::shared_ptr<OutputControl> makeMutterControl(const QDBusConnection& sessionBus);

/// KScreen, of Plasma. Null if nobody on the bus has it, or starts it.
std::shared_ptr<OutputControl> makeKScreenControl(const QDBusConnection& sessionBus);

/// Moves rectangles aside so that those beside a changed one stay beside it: neither a gap nor an overlap
/// where there was none. Rectangles right of its old right side move by the change of its width, those below
/// its old lower side by that of its height.
QList<QRect> arranged(QList<QRect> rectangles, qsizetype changed, const QSize& newSize);

} // namespace services::wayland
