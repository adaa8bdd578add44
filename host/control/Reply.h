// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Client.h"
#include "RequestError.h"

#include <QJsonValue>

#include <memory>
#include <optional>

namespace control {

/// The answer that a request waits for. Copies are the same answer; the first done() or fail() counts. Any
/// thread.
///
/// When the last copy goes without an answer, the request fails with what setAbandoned() named: whoever had
/// promised to answer is gone.
class Reply
{
public:
    /// @param id as the request has it; nothing for a request that wants no answer.
    Reply(std::shared_ptr<Outlet> outlet, std::optional<QJsonValue> id);

    void done(const QJsonValue& result = QJsonObject()) const;
    void fail(const RequestError& error) const;
    void setAbandoned(const RequestError& error) const;

    /// The message of an error.
    static QJsonObject errorMessage(const QJsonValue& id, const RequestError& error);

private:
    struct State;
    std::shared_ptr<State> m_state;
};

} // namespace control
