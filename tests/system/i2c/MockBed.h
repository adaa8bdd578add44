// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <simulator/Monitor.h>

#include <QByteArray>
#include <QString>

#include <memory>

/// A computer of a test's own: a graphics card with outputs, and simulated monitors behind /dev/i2c-N.
///
/// It stands on umockdev. The test program itself runs with umockdev's preload, and so do the programs that
/// it starts, so that all of them see this computer's /sys and /dev. One bed at a time.
class MockBed
{
public:
    struct Port;

    MockBed();
    ~MockBed();
    MockBed(const MockBed&) = delete;
    MockBed& operator=(const MockBed&) = delete;

    /// Adds an output such as "DP-1" with its bus, nothing plugged in.
    Port& addPort(int bus, const QString& output);
    /// A panel, without a bus, with its back-light.
    void addPanel(const QString& output, const QByteArray& edid);

    /// Plugs a monitor into an output, without an event. The monitor must outlive the bed.
    void plug(Port& port, sim::Monitor& monitor);
    void unplug(Port& port);
    /// The output says that nobody is there, while its bus does what it did: a driver that hangs.
    void loseOutput(Port& port);
    /// The kernel could not read the EDID of what is plugged in.
    void hideEdid(Port& port);
    /// Lets every transfer of a bus hang until it is let go.
    void hang(Port& port, bool on);
    /// "On", "Off" ... as power management sets it; no event, as with real drivers.
    void setPower(Port& port, const char* dpms);
    /// The kernel's event that something changed at the outputs.
    void sendEvent();

    /// The errno of a message that nobody acknowledges: drivers differ.
    void setNackErrno(Port& port, int error);
    /// Lets the next @p count transfers of a bus end in @p error before anything reaches the monitor.
    void failTransfers(Port& port, int error, int count);
    /// How many of these are left.
    int failuresLeft(const Port& port) const;
    /// Whether the owner of the bus's device file may open it. A process with all of root's rights still may.
    void setAccess(Port& port, bool allowed);
    /// The event of a device file whose rights have changed.
    void sendBusEvent(Port& port);
    /// Whether the adapters offer I2C_RDWR (they do unless told otherwise). Before the bus is opened.
    void setHasMessages(bool has);
    /// Whether a message is on the wire at this moment.
    bool isTransferring(const Port& port) const;
    /// How many calls of read() and write() on device files there were.
    int plainTransfers() const;

    static QString connectorOf(const Port& port);

private:
    struct Private;
    std::unique_ptr<Private> d;
};
