// SPDX-License-Identifier: Apache-2.0
#include "services/kvm/PointerTurn.h"

namespace services {

bool PointerTurn::leave(qint64 nowMs)
{
    if (!m_here)
        return false;
    m_here = false;
    m_leftMs = nowMs;
    ++m_number;
    return true;
}

bool PointerTurn::movedHere(qint64 nowMs)
{
    if (m_here || nowMs - m_leftMs < GraceMs)
        return false;
    m_here = true;
    ++m_number;
    return true;
}

bool PointerTurn::told(bool here, quint32 number)
{
    if (number < m_number || (number == m_number && m_precedence))
        return false;
    m_number = number;
    m_here = here;
    return true;
}

} // namespace services
