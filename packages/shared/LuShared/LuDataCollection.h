// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <LuShared/LuSharedGlobal.h>

#include <QObject>

/// The codes of usage events. Events go to a file on this computer and are never sent anywhere.
class LUSHARED_EXPORT LuDataCollection : public QObject
{
    Q_OBJECT

public:
    /// What an event is about. The numbers are stored and never change.
    enum Action : int {
        ACT_DUAL_VIEW = 4,
        ACT_PARTITION = 5,
        ACT_AUTO_PIVOT = 6,
        ACT_PIP_PBP = 8,
        ACT_VOLUME_SETTING = 9,
        ACT_INPUT_SOURCE = 11,
        ACT_NIGHT_PROTECTION = 13,
        ACT_AB_SETTING = 14,
        ACT_LOW_BLUE_LIGHT = 15,
        ACT_ECO_PRIVACY = 16,
        ACT_SHORTCUTS = 17,
        ACT_RESOLUTION = 21,
        ACT_SOFTWARE_DIMMING = 24,
        ACT_COLOR_WEAKNESS = 25,
        ACT_APPLICATION_MODE = 27,
        ACT_DAISY_CHAIN = 31,
        ACT_DUAL_VIEW_PLUS = 32,
        ACT_BRIGHTNESS = 35,
        ACT_HIDPI = 36,
        ACT_VOLUME = 37,
        ACT_AUDIO_MODE = 38,
        ACT_AB_PLUS = 39,
        ACT_LOW_BLUE_LIGHT_PLUS = 40,
        ACT_CIRCADIAN = 41,
        ACT_BACK_LIGHT = 43,
        ACT_BACK_LIGHT_SETTING = 44,
        ACT_FLOW = 45,
        ACT_DIRECT_SEARCH = 46,
        ACT_POWER_LED = 47,
        ACT_INPUT_AUTO_SWITCH = 48,
        ACT_QUICK_INPUT_SCAN = 49,
        ACT_ALWAYS_ON_CHARGING = 50,
        ACT_ICC_PROFILE = 51,
        ACT_HDR = 52,
    };
    Q_ENUM(Action)

    /// Who caused an event.
    enum TriggerSource : int {
        SOURCE_USER = 0,           ///< The user, in a panel, a popup or through a shortcut.
        SOURCE_SYNC = 1,           ///< The monitor reported another value.
        SOURCE_EXIT = 2,           ///< The application ends.
        SOURCE_LAUNCH = 3,         ///< A stored value was restored at launch.
        SOURCE_OTHER_FUNCTION = 4, ///< A flow, an application mode, a schedule.
        SOURCE_FIRST_CONNECT = 5,  ///< As SOURCE_SYNC, while the monitor is met for the first time.
    };
    Q_ENUM(TriggerSource)

    /// Source of a change that a sync task found.
    static constexpr TriggerSource syncSource(bool firstConnection)
    {
        return firstConnection ? SOURCE_FIRST_CONNECT : SOURCE_SYNC;
    }

    /// Source of a change that a setter made.
    static constexpr TriggerSource setterSource(bool otherFunction)
    {
        return otherFunction ? SOURCE_OTHER_FUNCTION : SOURCE_USER;
    }
};
