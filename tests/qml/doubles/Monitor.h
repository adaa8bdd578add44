// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QObject>
#include <QString>

/// Stands for a colour mode with its permission.
class FakeMode : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString displayName MEMBER displayName CONSTANT)
    Q_PROPERTY(int aiContrastEnable MEMBER aiContrastEnable CONSTANT)

public:
    enum FunctionEnable {
        FunctionOff,
        FunctionOn,
        FunctionUndefined,
    };
    Q_ENUM(FunctionEnable)

    // In the order of the real class, for runs without its library.
    enum Gamma {
        Gamma_16,
        Gamma_18,
        Gamma_20,
        Gamma_22,
        Gamma_24,
        Gamma_26,
        Gamma_BT1886,
        Gamma_sRGB,
    };
    Q_ENUM(Gamma)

    enum ColorTemperature {
        ColorTemperature_5000,
        ColorTemperature_6500,
        ColorTemperature_9300,
        ColorTemperature_DCI,
        ColorTemperature_UserDefine,
    };
    Q_ENUM(ColorTemperature)

    using QObject::QObject;
    QString displayName;
    int aiContrastEnable = FunctionOn;
};

/// What all modules offer to panels; counts the calls of a page.
class FakeModule : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool syncEnable MEMBER syncEnable NOTIFY syncEnableChanged)

public:
    using QObject::QObject;
    Q_INVOKABLE void takePropertySnapshot() { ++snapshots; }
    Q_INVOKABLE void fireUpdateSettingEvent() { ++updates; }
    bool syncEnable = false;
    int snapshots = 0;
    int updates = 0;

Q_SIGNALS:
    void syncEnableChanged();
};

/// Stands for the contrast feature. With `follows` off it is a monitor that refuses every write.
class FakeAiContrast : public FakeModule
{
    Q_OBJECT
    Q_PROPERTY(int displayNameType MEMBER displayNameType CONSTANT)
    Q_PROPERTY(bool aiContrastEnable MEMBER aiContrastEnable CONSTANT)
    Q_PROPERTY(bool state READ state WRITE setState NOTIFY stateChanged)

public:
    enum AiContrastDisplayNameType {
        NameAiContrast = 1,
        NameLocalContrast = 2,
    };
    Q_ENUM(AiContrastDisplayNameType)

    using FakeModule::FakeModule;
    bool state() const { return m_state; }
    void setState(bool state);
    int displayNameType = NameLocalContrast;
    bool aiContrastEnable = true;
    bool follows = true;

Q_SIGNALS:
    void stateChanged();

private:
    bool m_state = false;
};

/// Stands for the rotation feature.
class FakeAutoPivot : public FakeModule
{
    Q_OBJECT
    Q_PROPERTY(bool autoPivotEnable MEMBER autoPivotEnable CONSTANT)
    Q_PROPERTY(bool state READ state WRITE setState NOTIFY stateChanged)
    Q_PROPERTY(int currentPivot READ currentPivot WRITE setCurrentPivot NOTIFY currentPivotChanged)

public:
    using FakeModule::FakeModule;
    bool state() const { return m_state; }
    void setState(bool state);
    int currentPivot() const { return m_pivot; }
    void setCurrentPivot(int pivot);
    bool autoPivotEnable = true;
    bool follows = true;

Q_SIGNALS:
    void stateChanged();
    void currentPivotChanged();

private:
    bool m_state = false;
    int m_pivot = 0;
};

/// Stands for a connected monitor with two features.
class FakeMonitor : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString nickName MEMBER nickName CONSTANT)
    Q_PROPERTY(QString serialNumber MEMBER serialNumber CONSTANT)
    Q_PROPERTY(bool isModelBuiltIn MEMBER builtIn CONSTANT)
    Q_PROPERTY(bool isCurrentModel READ isCurrentModel WRITE setIsCurrentModel NOTIFY isCurrentModelChanged)
    Q_PROPERTY(QObject* colorMode READ colorMode NOTIFY colorModeChanged)
    Q_PROPERTY(QObject* aiContrast MEMBER aiContrast CONSTANT)
    Q_PROPERTY(QObject* autoPivot MEMBER autoPivot CONSTANT)

public:
    explicit FakeMonitor(const QString& name, QObject* parent = nullptr);
    bool isCurrentModel() const { return m_current; }
    void setIsCurrentModel(bool current);
    QObject* colorMode() const { return m_mode; }
    void setColorMode(QObject* mode);

    QString nickName;
    QString serialNumber = QStringLiteral("A1B2C3");
    bool builtIn = false;
    FakeMode allowing;
    FakeMode forbidding;
    FakeAiContrast contrast;
    FakeAutoPivot pivot;
    QObject* aiContrast = &contrast;
    QObject* autoPivot = &pivot;

Q_SIGNALS:
    void isCurrentModelChanged();
    void colorModeChanged();

private:
    bool m_current = false;
    QObject* m_mode = nullptr;
};
