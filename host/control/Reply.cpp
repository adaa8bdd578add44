// SPDX-License-Identifier: Apache-2.0
#include "Reply.h"

#include <atomic>
#include <mutex>

using namespace Qt::StringLiterals;

namespace control {

struct Reply::State
{
    State(std::shared_ptr<Outlet> to, std::optional<QJsonValue> requestId)
        : outlet(std::move(to)), id(std::move(requestId))
    {
    }
    ~State()
    {
        if (!answered.exchange(true))
            outlet->finish(id ? errorMessage(*id, abandoned) : QJsonObject());
    }

    const std::shared_ptr<Outlet> outlet;
    const std::optional<QJsonValue> id;
    std::atomic<bool> answered = false;
    std::mutex mutex;
    RequestError abandoned{InternalError, u"the request was given up"_s};
};

Reply::Reply(std::shared_ptr<Outlet> outlet, std::optional<QJsonValue> id)
    : m_state(std::make_shared<State>(std::move(outlet), std::move(id)))
{
}

void Reply::done(const QJsonValue& result) const
{
    if (m_state->answered.exchange(true))
        return;
    QJsonObject answer;
    if (m_state->id)
        answer = {{u"jsonrpc"_s, u"2.0"_s}, {u"id"_s, *m_state->id}, {u"result"_s, result}};
    m_state->outlet->finish(answer);
}

void Reply::fail(const RequestError& error) const
{
    if (!m_state->answered.exchange(true))
        m_state->outlet->finish(m_state->id ? errorMessage(*m_state->id, error) : QJsonObject());
}

void Reply::setAbandoned(const RequestError& error) const
{
    const std::lock_guard lock(m_state->mutex);
    m_state->abandoned = error;
}

QJsonObject Reply::errorMessage(const QJsonValue& id, const RequestError& error)
{
    return {{u"jsonrpc"_s, u"2.0"_s},
            {u"id"_s, id},
            {u"error"_s, QJsonObject{{u"code"_s, error.code()}, {u"message"_s, error.message()}}}};
}

} // namespace control
