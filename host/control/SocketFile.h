// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "SocketPath.h"

#include <QString>

namespace control {

/// What became of the attempt to serve a socket path.
struct SocketClaim
{
    int descriptor = -1;    ///< The listening socket, owned by the caller; -1 without one.
    bool otherRuns = false; ///< Another process serves the path.
    QString error; ///< Why there is no socket, for a person to read; empty if there is one or otherRuns.
};

/// Creates the listening socket for the user alone: mode 0600, in a folder of mode 0700, which is made if it
/// is not there. A folder that others may write is refused. A socket file that nobody serves any more is
/// replaced; any other file of that name is left alone and refused. Two processes that claim a path at a time
/// do not both get it.
SocketClaim claimSocket(const QString& path);

/// Whether a process serves the path. Blocks for a moment only.
bool anotherInstanceRuns(const QString& path);

/// Asks the process that serves the path to show its window, and waits for its answer (one without a window
/// answers that it has none). False if nobody serves the path, or no answer came within @p timeoutMs.
bool raiseOther(const QString& path, int timeoutMs = 5000);

} // namespace control
