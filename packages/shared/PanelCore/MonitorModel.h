// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <PanelCore/MonitorInfo.h>
#include <PanelCore/PanelCoreGlobal.h>

#include <QObject>
#include <QSharedPointer>
#include <QString>

#include <memory>

class QScreen;

/// The hardware side of a monitor's model: VCP access, the functions with standard codes, and the screen.
///
/// Functions that reach the monitor (get..., set...) block for the transfer and the waits of DDC/CI. They are
/// called from the model's queue; a call from another thread is safe and waits for the bus. They return false
/// when the transfer failed, and an out argument is then untouched.
class PANELCORE_EXPORT MonitorModel : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString modelName READ modelName CONSTANT)

public:
    MonitorModel(QObject* parent, QSharedPointer<MonitorInfo> info);
    ~MonitorModel() override;

    QString modelName() const;
    QSharedPointer<MonitorInfo> info() const;

    /// The screen that shows on this monitor, or null. GUI thread only.
    QScreen* screen() const;

    /// Refresh rate of the screen in Hz; 0 without a screen. GUI thread only.
    double getRefreshRate() const;

    /// Reads a VCP code. @p code 0 to 255; @p value 0 to 65535.
    bool getVCP(int code, int& value);

    /// As getVCP(), with the maximum that the monitor reports for a continuous code.
    bool getVCP(int code, int& value, int& maximum);

    /// Writes a VCP code and holds later accesses back as the delay table says.
    bool setVCP(int code, int value);

    /// As setVCP(). On the GUI thread, whose patience is 150 ms, @p outOfTime tells whether it gave up before
    /// the monitor could be asked: it rests, or the bus is somebody else's.
    bool setVCP(int code, int value, bool& outOfTime);

    /// Hardware brightness, VCP 0x10 (MCCS 2.2), 0 to 100. The second argument of the setter is reserved,
    /// pass 0.
    bool getBrightness(int& value);
    bool setBrightness(int value, int reserved);

    /// Speaker volume, VCP 0x62 (MCCS 2.2), with the maximum that the monitor reports. Reserved argument:
    /// pass 0.
    bool getVolume(int& value, int& maximum);
    bool setVolume(int value, int reserved = 0);

    /// Audio mute, VCP 0x8D (MCCS 2.2): 1 muted, 2 not. Reserved argument: pass 0.
    bool getMute(bool& muted);
    bool setMute(bool muted, int reserved = 0);

Q_SIGNALS:
    /// The model's screen is another one, or gone, or its geometry differs.
    void screenChanged();

private:
    class Private;
    std::unique_ptr<Private> d;
};
