// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "MonitorTypes.h"

#include <QJsonObject>
#include <QList>

#include <memory>
#include <mutex>

namespace sim {

class Device;

/// Name and serial number of a simulated monitor, as they stand in its EDID.
struct Identity
{
    QString model;  ///< 1 to 13 printable ASCII characters.
    QString serial; ///< Up to 13; empty: the EDID carries no serial number.

    /// "MODEL@SERIAL", or "MODEL" without a serial number.
    QString id() const;

    /// Reads "MODEL" or "MODEL@SERIAL". Without "@" the serial is defaultSerial(); "MODEL@" asks for none.
    /// Returns nothing and says why in @p error if a part does not fit into an EDID.
    static std::optional<Identity> parse(const QString& text, QString* error = nullptr);

    /// The serial number that a model gets by itself: the same at every run, other for another model or
    /// @p instance. Empty for "builtin".
    static QString defaultSerial(const QString& model, int instance = 1);
};

/// A monitor as a device on an I2C bus: EDID at 0x50, DDC/CI at 0x37, VCP values that behave as the model's
/// do.
///
/// All functions may be called from any thread. A bus made here may outlive the monitor; it then answers
/// Gone.
class Monitor
{
public:
    /// A monitor of the model @p identity.model as ModelCatalog describes it, with factory values: a model of
    /// the series, "builtin", or for any other name a monitor that has only the basic VCP codes.
    explicit Monitor(const Identity& identity, const Options& options = {});
    ~Monitor();
    Monitor(const Monitor&) = delete;
    Monitor& operator=(const Monitor&) = delete;

    QString model() const;
    QString serial() const;
    QString id() const;
    /// True for a notebook's panel, which has no DDC/CI.
    bool isBuiltIn() const;
    /// The 128 bytes at address 0x50.
    QByteArray edid() const;
    /// The MCCS capabilities string, empty without DDC/CI.
    QByteArray capabilities() const;

    /// A new way to this device for the host. Several may exist at a time.
    std::unique_ptr<ddc::Bus> makeBus() const;

    // What a person does at the monitor

    /// Changes a value at the monitor's own menu: any 16-bit value is taken. @p window addresses one window
    /// of 0x7E (512, 1024, 2048) or one band of 0x99; without it the selected one is meant, or the first if
    /// none is. Returns false and says why in @p error if the model lacks the code or the window, or if the
    /// value does not fit 16 bits.
    bool setByMenu(int code, int value, std::optional<int> window = std::nullopt, QString* error = nullptr);

    /// Changes several values, {"0x12": 40, ...}: the colour mode first, as the other values belong to it.
    /// All or nothing: returns false and changes nothing if any key or value is wrong.
    bool setByMenu(const QJsonObject& values, QString* error = nullptr);

    /// The value that the monitor holds now; nothing if the model lacks the code or the window, which is
    /// meant as in setByMenu().
    std::optional<std::uint16_t> value(int code, std::optional<int> window = std::nullopt) const;

    /// Factory values in all colour modes, factory colour mode.
    void reset();

    /// Brightness of the room at the light sensor, in lux, 0 to 1000 (factory 300). What follows it moves
    /// step by step on Options::roomClock.
    void setAmbientLight(int lux);

    /// Whether somebody sits in front of the presence sensor (factory true).
    void setPresence(bool present);

    /// Light that the panel gives now, 0 to 100: the brightness, dimmed while the presence sensor misses the
    /// user.
    int lightOutput() const;

    /// Light behind the panel, 0 to 100; 0 on a model without one.
    int rearLightOutput() const;

    // Connection

    /// Pulls the plug: every transfer, also one that hangs, answers Gone until plug().
    void unplug();
    void plug();
    bool isPlugged() const;

    // Faults

    /// Arms a fault beside those that are armed; the one armed first wins. A transaction for #Fault::count is
    /// a row of tries of the same direction, code and value, each less than 2 s after the one before, with no
    /// other frame between, up to its first success or endTransaction().
    void armFault(const Fault& fault);
    void clearFaults();

    /// Tells that the host has ended its present transaction: a frame like the last one begins a new one.
    void endTransaction();

    // What can be seen

    /// The last 100,000 VCP tries with a seq above @p since, in order.
    QList<TrafficEntry> traffic(quint64 since = 0) const;
    /// Keeps all transfers byte by byte from now on (the last 100,000), or drops what was kept.
    void setRawLogEnabled(bool enabled);
    QList<RawTransfer> rawLog() const;
    Violations violations() const;
    /// How often the host saved the current settings (command 0x0C).
    quint64 savedSettings() const;

    // Values across runs

    /// Writes all values as JSON, atomically. Returns false and says why in @p error on failure; an older
    /// file then stays as it was.
    bool save(const QString& path, QString* error = nullptr) const;

    /// Takes the values of a file of save(). A missing file is no error and changes nothing. A damaged file,
    /// or one of another model, gives factory values, is set aside as "PATH.damaged", and is told in @p error
    /// with false.
    bool load(const QString& path, QString* error = nullptr);

    /// Names the file for persist() and loads it as load() does.
    bool setStore(const QString& path, QString* error = nullptr);

    /// True if a value changed since the file of setStore() was read or written.
    bool needsPersist() const;

    /// Writes the file of setStore() if needsPersist(). True if nothing was to be done.
    bool persist(QString* error = nullptr);

private:
    std::optional<quint64> saveRevision(const QString& path, QString* error) const;

    std::shared_ptr<Device> m_device;
    mutable std::mutex
        m_storeMutex; ///< Guards the store's name and revision; taken before the device's lock.
    QString m_store;
    quint64 m_storedRevision = 0;
};

} // namespace sim
