// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtGlobal>

namespace services {

/// Who of two computers has the pointer, as both of them come to agree on it.
///
/// Each change carries a number; the higher one holds, and of two equal ones that of the computer with
/// precedence, so that messages which cross on the way leave both with the same answer. Pure logic.
class PointerTurn
{
public:
    /// Movements so soon after a crossing are the hand's that has just crossed, while the monitor's hub still
    /// switches.
    static constexpr qint64 GraceMs = 3000;

    /// Exactly one of the two has precedence.
    void setPrecedence(bool precedence) { m_precedence = precedence; }

    bool isHere() const { return m_here; }
    quint32 number() const { return m_number; }

    /// The pointer leaves this computer; false if it is not here.
    bool leave(qint64 nowMs);

    /// The pointer moved on this computer; true if it is news that it is here.
    bool movedHere(qint64 nowMs);

    /// What the other computer says; true if it holds.
    bool told(bool here, quint32 number);

private:
    bool m_here = true;
    bool m_precedence = true;
    quint32 m_number = 0;
    qint64 m_leftMs = -GraceMs;
};

} // namespace services
