// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <LuShared/LuModelModuleInterface.h>
#include <ZrCore/ZrShared.h>

#include <QtQml/qqmlregistration.h>

/// The monitor's adaptive contrast, on VCP 0xF3 (1 on, 0 off), where the colour mode allows it.
///
/// What a user sets here is written to the monitor alone. The setting follows only what the monitor reports,
/// so that the next launch restores the monitor's own state.
class LuAiContrast : public LuModelModuleInterface
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Internal class")
    Q_PROPERTY(AiContrastDisplayNameType displayNameType READ displayNameType CONSTANT)
    Q_PROPERTY(bool aiContrastEnable READ aiContrastEnable CONSTANT)
    Q_PROPERTY(bool state READ state WRITE setState NOTIFY stateChanged)

public:
    /// Name under which the panel shows the feature.
    enum AiContrastDisplayNameType : int {
        NameAiContrast = 1,
        NameLocalContrast = 2,
    };
    Q_ENUM(AiContrastDisplayNameType)

    explicit LuAiContrast(LuMonitorModel* model);
    ~LuAiContrast() override;

    AiContrastDisplayNameType displayNameType() const { return m_displayNameType; }
    bool aiContrastEnable() const { return m_aiContrastEnable; }
    bool state() const { return m_state; }

    /// Posts a job that writes the state to the monitor; nothing changes if the monitor does not take it.
    void setState(bool state);

    void readSchema(const QByteArray& schema) override;
    LuSyncTasks* syncPeriodically() override;
    void loadSettings() override;
    void applyValues() override;

Q_SIGNALS:
    void stateChanged();

private:
    void syncState();

    AiContrastDisplayNameType m_displayNameType = NameAiContrast;
    bool m_aiContrastEnable = false;
    ZrShared<bool> m_state{false};
};
