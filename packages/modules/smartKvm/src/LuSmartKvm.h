// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "LuSmartKvmBasic.h"

/// The pointer feature of models with a driver on both computers, which carries files too. VCP 0x6F opens the
/// monitor's channel for the driver.
///
/// No model of this series makes one; it serves those whose schema says "SmartKvm".
class LuSmartKvm : public LuSmartKvmBasic
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Internal class")
    Q_PROPERTY(bool smartKvmEnable READ smartKvmEnable CONSTANT)
    Q_PROPERTY(bool state READ state WRITE setState NOTIFY stateChanged)
    Q_PROPERTY(bool isConnected READ isConnected NOTIFY isConnectedChanged)
    Q_PROPERTY(bool isDriverInstalled READ isDriverInstalled NOTIFY isDriverInstalledChanged)
    Q_PROPERTY(bool isDriverRequired READ isDriverRequired CONSTANT)

public:
    LuSmartKvm(LuMonitorModel* model, LuPipPbp* pipPbp, LuInputSource* inputSource, LuKvmSwitch* kvmSwitch);
    ~LuSmartKvm() override;

    bool smartKvmEnable() const { return m_smartKvmEnable; }

    bool state() const { return m_state; }
    /// Posts a job; with @p post false, on the monitor's queue, runs it at once.
    void setState(bool state, bool post = true);

    /// The driver talks to the other computer.
    bool isConnected() const { return m_isConnected; }
    /// The driver is on this computer.
    bool isDriverInstalled() const { return m_isDriverInstalled; }
    bool isDriverRequired() const { return true; }

    /// Posts a job that opens the monitor's channel and installs the driver.
    Q_INVOKABLE void installDriver();

    void readSchema(const QByteArray& schema) override;
    void loadSettings() override;
    void applyValues() override;

Q_SIGNALS:
    void stateChanged();
    void isConnectedChanged();
    void isDriverInstalledChanged();

protected:
    bool isEnabled() const override;
    bool isOn() const override;
    void turnOff() override;
    void onKvmChanged() override;

private:
    void writeState(bool state, bool post);

    ZrShared<bool> m_state{false};
    bool m_smartKvmEnable = false;
    ZrShared<bool> m_isConnected{false};
    ZrShared<bool> m_isDriverInstalled{false};
};
