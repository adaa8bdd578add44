// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Outputs.h"

namespace services::x11 {

/// Brings one CRTC to another mode, rotation or scale, and the others to the places that follow from it.
class OutputChange
{
public:
    /// What is to change of a CRTC; what is not set stays.
    struct Wish
    {
        std::optional<xcb_randr_mode_t> mode;
        std::optional<int> degrees;
        std::optional<double> scale;
    };

    OutputChange(const Connection& connection, const Outputs& present)
        : m_connection(connection), m_present(present)
    {
    }

    /// Whether the server has room for it.
    bool fits(const Crtc& crtc, const Wish& wish) const;

    /// True if the desktop now is as wished; otherwise it is as it was, and the log says why. Any thread, one
    /// at a time.
    bool apply(const Crtc& crtc, const Wish& wish) const;

private:
    QList<Crtc> planned(const Crtc& crtc, const Wish& wish) const;
    bool put(const QList<Crtc>& target, const QList<Crtc>& from, const QSize& size,
             const QSize& millimetres) const;
    bool set(const Crtc& crtc) const;
    bool setScale(const Crtc& crtc) const;

    const Connection& m_connection;
    const Outputs& m_present;
};

} // namespace services::x11
