// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>

class QObject;

namespace zr {

/// Is told of the end of contexts.
class ContextListener
{
public:
    virtual ~ContextListener() = default;
    /// @p context is in QObject's destructor, on the calling thread.
    virtual void contextGone(QObject* context) = 0;
};

/// From now on until it is destroyed or forgotten, @p listener is told of the end of @p context, once. No
/// lock of the caller's may be held.
void watchContext(QObject* context, const std::weak_ptr<ContextListener>& listener);
/// @p listener is not told any more.
void forgetListener(const std::weak_ptr<ContextListener>& listener);

} // namespace zr
