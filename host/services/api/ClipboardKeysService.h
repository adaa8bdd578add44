// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace services {

/// Key strokes of copy and paste to the application in the foreground. Called by LuPlatform, copy() on the
/// GUI thread, paste() on the clipboard's queue; both return without waiting for the application.
class ClipboardKeysService
{
public:
    virtual ~ClipboardKeysService() = default;
    virtual void copy() = 0;
    virtual void paste() = 0;
};

} // namespace services
