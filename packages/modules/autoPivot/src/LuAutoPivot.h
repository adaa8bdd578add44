// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <LuShared/LuModelModuleInterface.h>
#include <ZrCore/ZrShared.h>

#include <QtQml/qqmlregistration.h>

/// Keeps the desktop's rotation in step with the turn of the monitor, which its sensor reports on VCP 0xAA;
/// on every model it mirrors the desktop's rotation and lets the user choose one.
class LuAutoPivot : public LuModelModuleInterface
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Internal class")
    Q_PROPERTY(bool autoPivotEnable READ autoPivotEnable CONSTANT)
    Q_PROPERTY(bool state READ state WRITE setState NOTIFY stateChanged)
    Q_PROPERTY(int currentPivot READ currentPivot WRITE setCurrentPivot NOTIFY currentPivotChanged)
    Q_PROPERTY(bool isLandscape READ isLandscape NOTIFY isLandscapeChanged)

public:
    /// What the sensor reports. It never reports 180 degrees: that rotation is only the user's choice.
    enum PivotStatus : int {
        PivotHorizontal = 1,
        PivotVertical = 2,
        PivotReverseVertical = 3,
    };
    Q_ENUM(PivotStatus)

    explicit LuAutoPivot(LuMonitorModel* model);
    ~LuAutoPivot() override;

    /// The model has the sensor.
    bool autoPivotEnable() const { return m_autoPivotEnable; }

    /// The desktop follows the sensor.
    bool state() const { return m_state; }
    void setState(bool state);

    /// Rotation of the desktop on this monitor in degrees: 0, 90, 180, 270.
    int currentPivot() const { return m_currentPivot; }
    /// Rotates the desktop at once, on the caller's thread.
    void setCurrentPivot(int degrees);

    /// The rotation is a multiple of 180 degrees.
    bool isLandscape() const { return m_isLandscape; }

    void readSchema(const QByteArray& schema) override;
    void onInitialSync() override;
    LuSyncTasks* syncPeriodically() override;
    void loadSettings() override;
    void applyValues() override;
    void onFireUpdateSettingEventRequested(const QHash<QString, QVariant>& parameters,
                                           LuDataCollection::TriggerSource source) override;
    QList<QString> parametersStrings() const override;

Q_SIGNALS:
    void stateChanged();
    void currentPivotChanged();
    void isLandscapeChanged();

private:
    void syncOrientation();
    void syncSensor();
    void storePivot(int degrees);
    void restorePivot();
    /// The rotation belongs to an event only while it is the user's.
    QList<QString> eventParameters() const;

    bool m_autoPivotEnable = false;
    ZrShared<bool> m_state{false};
    ZrShared<int> m_currentPivot{0};
    ZrShared<bool> m_isLandscape{true};
};
