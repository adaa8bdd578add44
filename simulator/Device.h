// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "FaultInjector.h"
#include "Firmware.h"
#include "TrafficLog.h"

#include <condition_variable>
#include <mutex>
#include <span>

namespace sim {

/// The monitor as seen from its I2C bus: addresses, frames, waits and faults. Thread safe; its lock also
/// guards the firmware for the functions of Monitor.
class Device
{
public:
    using Milliseconds = std::chrono::milliseconds;

    // Waits of DDC/CI 1.1.
    static constexpr Milliseconds ReplyWait{40};
    static constexpr Milliseconds SetWait{50};
    static constexpr Milliseconds SaveWait{200};
    static constexpr std::size_t FragmentSize = 32;

    Device(std::shared_ptr<const ModelDescription> model, const QString& serial, const Options& options);

    ddc::BusStatus write(std::uint8_t address, std::span<const std::uint8_t> bytes);
    ddc::BusStatus read(std::uint8_t address, std::span<std::uint8_t> bytes);

    /// Runs @p function with the firmware under the lock.
    template <typename Function>
    auto withFirmware(Function&& function)
    {
        const std::lock_guard lock(m_mutex);
        return function(m_firmware);
    }

    const ModelDescription& model() const { return *m_model; }
    QString serial() const { return m_serial; }
    QByteArray edid() const { return m_edid; }
    QByteArray capabilities() const { return m_capabilities; }

    void unplug();
    void plug();
    bool isPlugged();
    /// The monitor is no more: like unplug(), for good.
    void remove();

    void armFault(const Fault& fault);
    void clearFaults();
    void endTransaction();

    QList<TrafficEntry> traffic(quint64 since);
    void setRawLogEnabled(bool enabled);
    QList<RawTransfer> rawLog();
    Violations violations();
    quint64 savedSettings();

private:
    /// A frame of the host, taken apart.
    struct Request
    {
        enum class Kind {
            None, ///< Not understood: wrong length, checksum or command.
            Get,
            Set,
            Capabilities,
            Save,
        };
        Kind kind = Kind::None;
        int code = 0;
        int value = 0; ///< The value of a set, the offset of a capabilities request.
    };

    /// A request that waits for its reply to be read.
    struct Pending
    {
        Request request;
        Clock::time_point begun;
        Clock::time_point readyAt;
        QByteArray reply;
        std::optional<std::uint16_t> value; ///< What the reply carries of a VCP code.
        std::optional<int> window;
        bool spoilt = false; ///< By a fault.
    };

    static Request parse(std::span<const std::uint8_t> frame);

    Clock::time_point now() const { return m_clock(); }
    ddc::BusStatus refuse(std::span<const std::uint8_t> bytes, Clock::time_point begun);
    ddc::BusStatus writeEdid(std::span<const std::uint8_t> bytes);
    void readEdid(std::span<std::uint8_t> bytes);
    ddc::BusStatus writeFrame(std::unique_lock<std::mutex>& lock, std::span<const std::uint8_t> bytes);
    ddc::BusStatus readReply(std::span<std::uint8_t> bytes);
    ddc::BusStatus hang(std::unique_lock<std::mutex>& lock, Milliseconds time);
    bool tooEarly(const QString& what);
    /// The monitor lays its picture out anew and is not on the bus.
    bool isDropped() const { return m_strict && now() < m_droppedUntil; }
    void execute(const Request& request);
    void answer(const Request& request, const std::optional<Fault>& fault, Clock::time_point begun);
    QByteArray reply(const Request& request, std::optional<std::uint16_t>* value);
    void dropPending();
    void log(const Request& request, Clock::time_point begun, bool ok, int value, std::optional<int> window);

    const std::shared_ptr<const ModelDescription> m_model;
    const QString m_serial;
    const QByteArray m_edid;
    const QByteArray m_capabilities;
    const bool m_strict;
    const std::function<Clock::time_point()> m_clock;

    std::mutex m_mutex;
    std::condition_variable m_plugChanged;
    Firmware m_firmware;
    FaultInjector m_faults;
    TrafficLog m_log;
    Violations m_violations;
    std::optional<Pending> m_pending;
    Clock::time_point m_busyUntil{};
    Clock::time_point m_droppedUntil{};
    std::uint8_t m_edidOffset = 0;
    quint64 m_saved = 0;
    quint64 m_unplugged = 0; ///< How often the plug was pulled, so that a transfer that hangs sees it.
    bool m_plugged = true;
    bool m_removed = false;
};

} // namespace sim
