// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "services/api/KvmService.h"
#include "services/api/PointerService.h"
#include "services/kvm/EdgeWatch.h"
#include "services/kvm/KvmChannel.h"
#include "services/kvm/KvmNeighbours.h"
#include "services/kvm/PointerTurn.h"

#include <QElapsedTimer>
#include <QObject>

#include <atomic>
#include <memory>

namespace services {

/// Keyboard and mouse shared through the monitor's hub: watches the side of the screen beyond which the other
/// computer's picture lies, and where the person has paired the computers and switched the channel on
/// (setting "kvm/network") agrees with the other one who has the pointer and on which side each of them is.
///
/// Works without a channel; then each computer decides for itself. Made on the GUI thread; the operations of
/// KvmService may be called from any thread.
class NativeKvm : public QObject, public KvmService
{
    Q_OBJECT

public:
    /// @p pointer may be null: there is no watch then. @p systemBus is where computers of the network are
    /// looked for.
    NativeKvm(std::shared_ptr<PointerService> pointer, const KvmChannelOptions& options,
              const QDBusConnection& systemBus = QDBusConnection(QString()));
    ~NativeKvm() override;

    /// What the full variant calls its driver is the channel: it has to be on, and paired. The basic one
    /// needs no more than the pointer.
    bool isDriverInstalled() const override;
    bool isConnected() const override { return m_connected; }
    /// Asks the person to set the channel up: setUpRequested().
    void installDriver() override;
    void activate() override;
    void deactivate() override;
    void setScreenRect(const QRect& rect) override;
    void setType(int type) override;
    int deviceLocation() const override { return m_location; }
    void setDeviceLocation(int location) override;

    /// GUI thread.
    KvmChannel& channel() { return m_channel; }
    const KvmNeighbours& neighbours() const { return m_neighbours; }
    bool isPointerHere() const { return m_turn.isHere(); }

    /// Switches the channel as the setting says. GUI thread.
    void applySetting();

Q_SIGNALS:
    /// Neighbours or anything of the channel have changed.
    void networkChanged();
    /// The person wants the channel, which is off or not paired.
    void setUpRequested();

private:
    void onChannelChanged();
    void onNeighboursChanged();
    Side side() const;
    void watch();
    void onMove(QPoint position, QPointF motion);
    void onConnected();
    void onMessage(const QJsonObject& message);
    void sendLocation();
    void sendTurn(const QString& type, qreal along = 0);
    void adoptLocation(int others, double number);

    std::shared_ptr<PointerService> m_pointer;
    std::atomic<int> m_type = 0;
    std::atomic<int> m_location = 0;
    std::atomic<bool> m_connected = false;
    std::atomic<bool> m_isSetUp = false; ///< The channel is on and paired.
    // GUI thread only from here on.
    bool m_active = false;
    QRect m_screen;
    quint32 m_locationNumber = 0; ///< Of the last choice of a side that either computer has made.
    EdgeWatch m_edge;
    PointerTurn m_turn;
    QElapsedTimer m_clock;
    KvmChannel m_channel;
    KvmNeighbours m_neighbours;
};

} // namespace services
