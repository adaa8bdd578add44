// SPDX-License-Identifier: Apache-2.0
#include "LuComputers.h"

#include <QCoreApplication>
#include <QVariantMap>

using namespace Qt::StringLiterals;

using Answer = LuComputersBackend::Answer;
using Failure = LuComputersState::Failure;
using Phase = LuComputersState::Phase;

LuComputers::LuComputers(QObject* parent) : QObject(parent) {}

LuComputers::~LuComputers() = default;

LuComputers* LuComputers::instance()
{
    static QPointer<LuComputers> computers;
    if (!computers)
        computers = new LuComputers(QCoreApplication::instance());
    return computers;
}

void LuComputers::setBackend(LuComputersBackend* backend)
{
    if (m_backend)
        m_backend->disconnect(this);
    m_backend = backend;
    m_answer = Answer::Taken;
    if (backend) {
        connect(backend, &LuComputersBackend::changed, this, &LuComputers::refresh);
        connect(backend, &QObject::destroyed, this, [this] { setBackend(nullptr); });
    }
    refresh();
}

void LuComputers::refresh()
{
    const Failure before = m_state.failure;
    m_state = m_backend ? m_backend->state() : LuComputersState();
    if (m_state.failure != before)
        m_isFailureRead = false;
    Q_EMIT changed();
}

QString LuComputers::phase() const
{
    switch (m_state.phase) {
    case Phase::Waiting:
        return u"waiting"_s;
    case Phase::Calling:
        return u"calling"_s;
    case Phase::Comparing:
        return u"comparing"_s;
    case Phase::Confirmed:
        return u"confirmed"_s;
    case Phase::Idle:
        break;
    }
    return u"idle"_s;
}

QString LuComputers::code() const
{
    // In two groups, as people read numbers aloud.
    return m_state.code.size() == 6 ? m_state.code.first(3) + u' ' + m_state.code.last(3) : m_state.code;
}

QVariantList LuComputers::nearby() const
{
    QVariantList all;
    for (const LuComputersState::Nearby& each : m_state.nearby)
        all.append(QVariantMap{{u"name"_s, each.name}, {u"address"_s, each.address}});
    return all;
}

QString LuComputers::problem() const
{
    if (!m_state.trouble.isEmpty())
        return tr("The connection could not be switched on: %1.").arg(m_state.trouble);
    switch (m_answer) {
    case Answer::NoAddress:
        return tr("This is neither an address, such as 192.168.1.7, nor the name of a computer.");
    case Answer::NotLocal:
        return tr("Only a computer of your local network can be paired.");
    case Answer::Taken:
        break;
    }
    switch (m_isFailureRead ? Failure::None : m_state.failure) {
    case Failure::NobodyCame:
        return tr("No other computer has called within two minutes.");
    case Failure::NotConfirmed:
        return tr("The code was not confirmed on both computers within two minutes.");
    case Failure::NotReached:
        return tr("No Lumen Desk answers there. Are both computers on the same network, is the connection "
                  "switched on there, and does a firewall let it through?");
    case Failure::NotWaiting:
        return tr("The other computer is not waiting. Choose \"Wait for the other computer\" there first.");
    case Failure::Refused:
        return tr("The other computer did not confirm the code.");
    case Failure::Broken:
        return tr("What has called does not keep to the rules. Nothing was paired.");
    case Failure::UnknownName:
        return tr("No computer of this name was found.");
    case Failure::None:
        break;
    }
    return {};
}

bool LuComputers::take(Answer answer)
{
    m_answer = answer;
    refresh();
    return answer == Answer::Taken;
}

void LuComputers::setOn(bool on)
{
    m_answer = Answer::Taken;
    if (m_backend)
        m_backend->setOn(on);
    refresh();
}

void LuComputers::waitForOther()
{
    m_answer = Answer::Taken;
    if (m_backend)
        m_backend->waitForOther();
    refresh();
}

bool LuComputers::pairWith(const QString& address)
{
    return take(m_backend ? m_backend->pairWith(address) : Answer::NoAddress);
}

void LuComputers::confirm()
{
    if (m_backend)
        m_backend->confirm();
}

void LuComputers::cancel()
{
    m_answer = Answer::Taken;
    if (m_backend)
        m_backend->cancel();
    refresh();
}

void LuComputers::forget()
{
    if (m_backend)
        m_backend->forget();
}

bool LuComputers::movePeer(const QString& address)
{
    return take(m_backend ? m_backend->movePeer(address) : Answer::NoAddress);
}

void LuComputers::clearProblem()
{
    m_answer = Answer::Taken;
    m_isFailureRead = true;
    refresh();
}
