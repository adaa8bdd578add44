// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

namespace services {

/// Why a request to the simulated session failed, with the number that the control protocol gives it.
struct Error
{
    enum Code { None = 0, NoSuchMonitor = 1, NoSuchPath = 2, WrongType = 4, InvalidParameters = -32602 };

    int code = None;
    QString message; ///< Names what was wrong; empty without an error.

    explicit operator bool() const { return code != None; }
};

} // namespace services
