// SPDX-License-Identifier: Apache-2.0
#include "LuAbsences.h"

#include <QCoreApplication>

#include <array>

using namespace Qt::StringLiterals;

namespace {

struct Row
{
    const char* ability;
    const char* text;
    bool ofTheDesktop = true; ///< A matter of the display system.
};

// clang-format off
constexpr std::array Rows = {
    Row{"displayModes",          QT_TRANSLATE_NOOP("LuAbsences", "This session does not let programs change the resolution.")},
    Row{"rotation",              QT_TRANSLATE_NOOP("LuAbsences", "This session does not let programs turn the picture.")},
    Row{"scaling",               QT_TRANSLATE_NOOP("LuAbsences", "This session does not let programs change the scaling.")},
    Row{"globalShortcuts",       QT_TRANSLATE_NOOP("LuAbsences", "This session gives programs no keys while another window is in front: shortcuts work only in the windows of Lumen Desk.")},
    Row{"foregroundApplication", QT_TRANSLATE_NOOP("LuAbsences", "This session does not tell which application is in front.")},
    Row{"windowPlacing",         QT_TRANSLATE_NOOP("LuAbsences", "This session does not let programs move the windows of other applications.")},
    Row{"copyPasteKeys",         QT_TRANSLATE_NOOP("LuAbsences", "This session does not let programs press the keys of copy and paste: the second clipboard does not work.")},
    Row{"pointerEdge",           QT_TRANSLATE_NOOP("LuAbsences", "This session does not tell where the pointer is: keyboard and mouse do not change over at the edge of the screen.")},
    Row{"soundOutputs",          QT_TRANSLATE_NOOP("LuAbsences", "No sound output was found: the system volume and the choice of the output need PulseAudio or PipeWire."), false},
    Row{"translucentWindows",    QT_TRANSLATE_NOOP("LuAbsences", "Nothing composes this desktop: the picture cannot be darkened further than the monitor's own brightness."), false},
    Row{"overlayOnTop",          QT_TRANSLATE_NOOP("LuAbsences", "This session keeps no window above all others: what comes to the front later may not be darkened.")},
};
// clang-format on

} // namespace

QString LuAbsences::text(const QString& ability, bool desktop, bool wayland)
{
    for (const Row& row : Rows) {
        if (ability != QLatin1StringView(row.ability))
            continue;
        if (!desktop && row.ofTheDesktop)
            return QCoreApplication::translate("LuAbsences", "There is no desktop session.");
        QString text = QCoreApplication::translate("LuAbsences", row.text);
        if (wayland && row.ofTheDesktop)
            text += u' ' + QCoreApplication::translate("LuAbsences", "In an X11 session it works.");
        return text;
    }
    return {};
}
