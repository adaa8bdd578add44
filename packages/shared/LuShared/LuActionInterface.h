// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <LuShared/LuSharedGlobal.h>

#include <QObject>

/// Base of what a key or a flow can set off: an action that belongs to a topic and can be switched on and
/// off. Lives on the GUI thread.
class LUSHARED_EXPORT LuActionInterface : public QObject
{
    Q_OBJECT
    Q_PROPERTY(ActionTitle title READ title CONSTANT)
    Q_PROPERTY(bool active READ isActive WRITE setActive NOTIFY activeChanged)

public:
    /// Topic of an action. The numbers are stored and never change.
    enum ActionTitle : int {
        NoTitle = 0,
        Input = 1,
        ColorMode = 2,
        Brightness = 3,
        Volume = 4,
        NightProtection = 5,
        EcoPrivacy = 6,
        ExtraCopyPaste = 7,
        ABPlus = 8,
        LowBlueLight = 9,
        AB = 10,
        BackLight = 11,
        Flow = 12,
        KvmSwitch = 13,
    };
    Q_ENUM(ActionTitle)

    explicit LuActionInterface(ActionTitle title, QObject* parent = nullptr);
    ~LuActionInterface() override;

    ActionTitle title() const { return m_title; }

    /// An action that is not active lets its key pass and does nothing.
    bool isActive() const { return m_active; }
    void setActive(bool active);

Q_SIGNALS:
    void activeChanged();

private:
    const ActionTitle m_title;
    bool m_active = false;
};
