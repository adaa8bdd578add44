// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <LuShared/LuActionInterface.h>

#include <QKeyCombination>
#include <QSet>

#include <functional>
#include <memory>

class QKeyEvent;

/// One shortcut of a monitor: an action name, the keys that set it off and what they call.
/// Lives on the GUI thread.
class LUSHARED_EXPORT LuShortcutAction : public LuActionInterface
{
    Q_OBJECT
    Q_PROPERTY(ActionName name READ name CONSTANT)
    Q_PROPERTY(bool duplicated READ isDuplicated NOTIFY duplicatedChanged)

public:
    /// Name of an action. The numbers are stored and never change; the part in front of "_" is the topic.
    enum ActionName : int {
        Input_SwitchtoUSBC = 0,
        Input_SwitchtoDisplayport = 1,
        Input_SwitchtoHDMI = 2,
        Input_SwitchtoHDMI1 = 3,
        Input_SwitchtoHDMI2 = 4,
        ColorMode_LoopAllColorMode = 5,
        ColorMode_SwitchtoCodingLightTheme = 6,
        ColorMode_SwitchtoCodingDarkTheme = 7,
        ColorMode_SwitchtoStandard = 8,
        ColorMode_SwitchtoMbook = 9,
        ColorMode_SwitchtoCinema = 10,
        ColorMode_SwitchtoePaper = 11,
        ColorMode_SwitchtoUser = 12,
        ColorMode_SwitchtosRGB = 13,
        ColorMode_SwitchtoGame = 14,
        Brightness_Decrease = 15,
        Brightness_Increase = 16,
        Volume_Decrease = 17,
        Volume_Increase = 18,
        Volume_Mute = 19,
        Volume_LoopAllSpeakerOutput = 20,
        NightProtection_Decrease = 21,
        NightProtection_Increase = 22,
        EcoPrivacy_TurnOnOff = 23,
        ExtraCopyPaste_Copy = 24,
        ExtraCopyPaste_Paste = 25,
        ColorMode_NotSupported = 26,
        Input_SwitchtoHDMI3 = 27,
        ColorMode_SwitchtoCinemaHDRi = 28,
        ColorMode_SwitchtoGameHDRi = 29,
        ColorMode_SwitchtoHDR = 30,
        ColorMode_SwitchtoRec709 = 31,
        ColorMode_SwitchtoDisplayP3 = 32,
        ColorMode_SwitchtoDCIP3 = 33,
        ColorMode_SwitchtoUser1 = 34,
        ColorMode_SwitchtoUser2 = 35,
        Volume_LoopAllAudioMode = 36,
        ColorMode_SwitchtoCoding = 37,
        Input_SwitchtoThunderbolt3 = 38,
        ColorMode_SwitchtoCodingPaperColor = 39,
        Kvm_LoopAllKvmSwitch = 40,
    };
    Q_ENUM(ActionName)

    using Handler = std::function<bool(const QKeyEvent&)>;

    explicit LuShortcutAction(ActionName name, QObject* parent = nullptr);
    ~LuShortcutAction() override;

    /// Topic to which an action name belongs; NoTitle for ColorMode_NotSupported.
    static ActionTitle titleOf(ActionName name);

    ActionName name() const;

    /// Key of the first combination; Qt::Key_unknown without one.
    Qt::Key key() const;
    /// Modifiers of the first combination; none without one.
    Qt::KeyboardModifiers modifiers() const;

    QSet<QKeyCombination> keys() const;
    void setKeys(const QSet<QKeyCombination>& keys);

    /// Called with a press of one of the keys while the action is active; true when the press was taken.
    void setHandler(Handler handler);
    bool handle(const QKeyEvent& event) const;

    /// Another action of the same monitor has one of the keys, too.
    bool isDuplicated() const;
    void setDuplicated(bool duplicated);

Q_SIGNALS:
    void keysChanged();
    void duplicatedChanged();

private:
    struct Private;
    std::unique_ptr<Private> d;
};
