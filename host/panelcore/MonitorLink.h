// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <PanelCore/MonitorInfo.h>
#include <PanelCore/PanelCoreGlobal.h>

#include <QByteArray>
#include <QHash>
#include <QJsonObject>
#include <QSharedPointer>
#include <QString>

#include <functional>
#include <memory>
#include <optional>

namespace ddc {
class Bus;
}
class HardwareBrightness;
class ZrDispatch;

/// Who a monitor is, as the host found it.
struct MonitorDescription
{
    QString id;
    QString modelName;
    QString serialNumber;
    QString screenName;
    QString nativeHandle; ///< Empty: the name of the screen that shows on it, at any time.
    bool builtIn = false;
    bool simulated = false;
};

/// The host's side of a MonitorInfo: the way to the monitor's bus. Any thread; functions that transfer block.
class PANELCORE_EXPORT MonitorLink
{
public:
    enum class Waits {
        Real, ///< The waits of DDC/CI.
        None, ///< No waits at all, for a simulated bus.
    };

    /// Makes the handle of a monitor. @p bus may be null: every transfer then fails.
    static QSharedPointer<MonitorInfo> create(const MonitorDescription& description,
                                              std::unique_ptr<ddc::Bus> bus, Waits waits);
    static MonitorLink& of(const MonitorInfo& info);

    /// Transfers; false if the monitor gave no usable answer. @p code 0 to 255.
    ///
    /// What the program writes by itself may be refused (ddc::Breaker), and so is what it asks of a display
    /// that sleeps. A person is refused nothing; a display that sleeps gets their write once.
    bool getVCP(int code, int& value, int* maximum = nullptr);
    bool setVCP(int code, int value);
    /// Waits out what the last transfer left of the usual hold, so that a later choice of a person can still
    /// replace the next one. Longer holds are not waited for. Blocks.
    void awaitReady();
    /// A write for a caller that must not wait. Nothing after @p limitMs, whoever holds the bus, however long
    /// the monitor rests or the adapter hangs; a transfer that hangs then may still reach the monitor. GUI
    /// thread.
    std::optional<bool> setVCPWithin(int code, int value, int limitMs);

    /// The monitor's own brightness, for monitors that no package knows.
    HardwareBrightness& brightness();
    /// The queue on which this handle uses the bus for callers that must not wait, beside the model's; null
    /// if there is none yet. GUI thread.
    QSharedPointer<ZrDispatch> ownQueue() const;
    /// The same, made if there is none.
    QSharedPointer<ZrDispatch> makeOwnQueue();

    /// Called after every transfer with all its tries, on the thread of the caller: a simulated device counts
    /// faults by it. Set before the handle is in use.
    void setCallObserver(std::function<void()> observer);

    /// Waits after writes of listed codes, in ms.
    void setWriteDelays(const QHash<int, int>& delays);

    /// The screen that shows on the monitor, by QScreen::name(); empty while none does. GUI thread.
    void setScreenName(const QString& name);
    QString screenName() const;
    /// Called on the GUI thread after setScreenName() brought another name.
    void setScreenObserver(std::function<void()> observer);

    /// Everything in progress ends soon and every later transfer fails: the monitor is gone.
    void cancel();

    /// True while transfers fail because the monitor gives no answer at all.
    bool isSilent() const;

    /// Power management has switched the display off: it is left alone until it wakes. Any thread.
    void setAsleep(bool asleep);
    bool isAsleep() const;

    /// Counters of all runs, those of this one, waits, writes by code and day, the breaker. Any thread.
    QJsonObject statistics() const;

    /// What is to be kept for the next run.
    QJsonObject toKeep() const;
    /// Goes on from what an earlier run kept; before the first transfer. False if @p kept is nothing of the
    /// kind.
    bool restore(const QJsonObject& kept);

    /// The value of 0xDC that was read before the model is constructed; unset if nobody has asked, -1 if the
    /// monitor gave no answer.
    std::optional<int> probedColorMode() const;
    /// Reads 0xDC and remembers the answer. Blocks.
    void probeColorMode();

    ~MonitorLink();

private:
    friend class MonitorInfoPrivate;
    MonitorLink(const QString& id, std::unique_ptr<ddc::Bus> bus, Waits waits);
    bool mayAsk(bool isWrite, int code);
    struct Private;
    std::unique_ptr<Private> d;
};
