// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "RawInput.h"
#include "services/api/PointerService.h"

namespace services::x11 {

/// The pointer through XInput raw motion.
class Pointer : public PointerService
{
public:
    Pointer(std::shared_ptr<Connection> connection, std::shared_ptr<RawInput> input);
    ~Pointer() override;

    bool watch(Observer observer) override;
    QPoint position() const override;
    void moveTo(QPoint position) override;

private:
    void moved(QPointF motion);

    const std::shared_ptr<Connection> m_connection;
    const std::shared_ptr<RawInput> m_input;
    Observer m_observer;
    RawInput::Id m_listener = 0;
    QPoint m_last; ///< Where the observer last saw it, or it was put.
};

} // namespace services::x11
