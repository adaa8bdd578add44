// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "ZrCore/ZrCoreGlobal.h"

/// Who asks for what the program does: a person, or the program by itself. Monitors are guarded against the
/// latter.
///
/// A person's input (mouse, keys, touch, a shortcut, a request to the control socket) makes everything that
/// the GUI thread asks for within the next second the person's: a panel may follow a drag with a timer, and
/// other monitors follow it through signals. A job of a queue carries who asked for it from its posting to
/// its end. What such a job asks for in its turn is still the person's, and what that asks for, but no
/// further: functions that set each other off in circles do not pass for a person.
class ZRCORE_EXPORT ZrAsker
{
public:
    ZrAsker() = delete;

    enum Kind {
        Program, ///< A schedule, a restored setting, another function, a change of the desktop.
        Person,
    };

    /// A person has just done something. Any thread; it counts on the GUI thread.
    static void noteInput();

    /// A person asks for what the calling thread asks for now. On the GUI thread by noteInput() and Scope, on
    /// others by Scope only.
    static bool isAsking();

    /// A person asked for what the calling thread does now: the running job is a person's, or isAsking().
    static bool isAskedFor();

    /// Says for its life who asks on this thread, whatever input came before; of nested ones the innermost
    /// holds.
    class ZRCORE_EXPORT Scope
    {
    public:
        explicit Scope(Kind kind);
        ~Scope();
        Scope(const Scope&) = delete;
        Scope& operator=(const Scope&) = delete;

    private:
        const int m_outer;
    };
};
