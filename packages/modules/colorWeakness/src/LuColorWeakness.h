// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <LuShared/LuModelModuleInterface.h>
#include <ZrCore/ZrShared.h>

#include <QtQml/qqmlregistration.h>

/// The monitor's filter for red or green colour weakness: one choice and one strength, packed in VCP 0xFD.
///
/// Without the feature in the schema the object is inactive: its setters do nothing.
class LuColorWeakness : public LuModelModuleInterface
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Internal class")
    Q_PROPERTY(bool colorWeaknessEnable READ colorWeaknessEnable CONSTANT)
    Q_PROPERTY(ColorWeaknessMode mode READ mode WRITE setMode NOTIFY modeChanged)
    Q_PROPERTY(int weakness READ weakness WRITE setWeakness NOTIFY weaknessChanged)

public:
    /// The low byte of the code. Another number that a monitor reports is kept as it is and counts as a
    /// filter.
    enum ColorWeaknessMode : int {
        NoFilter = 0,
        RedFilter = 3,
        GreenFilter = 4,
    };
    Q_ENUM(ColorWeaknessMode)

    explicit LuColorWeakness(LuMonitorModel* model);
    ~LuColorWeakness() override;

    bool colorWeaknessEnable() const { return m_colorWeaknessEnable; }
    ColorWeaknessMode mode() const { return m_mode; }
    /// Strength, 0 to 255 on the wire; monitors of the series take 0 to 10.
    int weakness() const { return m_weakness; }

    /// Each posts a job that writes both fields, the other one as it is when the job runs. A number that does
    /// not fit into a byte is refused with a warning.
    void setMode(ColorWeaknessMode mode);
    void setWeakness(int weakness);

    void readSchema(const QByteArray& schema) override;
    LuSyncTasks* syncPeriodically() override;
    void loadSettings() override;
    void applyValues() override;
    void onFireUpdateSettingEventRequested(const QHash<QString, QVariant>& parameters,
                                           LuDataCollection::TriggerSource source) override;
    void fireExitEvent() override;
    /// The filter as "r" or "g" with the strength behind it, such as "r3".
    QList<QString> parametersStrings() const override;

Q_SIGNALS:
    void modeChanged();
    void weaknessChanged();

private:
    void writeFields();
    void syncFields(bool firstConnection);
    void fireOnOff(LuDataCollection::TriggerSource source);
    bool isOn() const { return m_mode != NoFilter; }

    bool m_colorWeaknessEnable = false;
    ZrShared<ColorWeaknessMode> m_mode{NoFilter};
    ZrShared<int> m_weakness{0};
};
