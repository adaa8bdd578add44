// SPDX-License-Identifier: Apache-2.0
#include "FakeInput.h"

#include <QByteArray>

#include <algorithm>
#include <cstring>
#include <wayland-client-core.h>
#include <wayland-client-protocol.h>
#include <wayland-fake-input-client-protocol.h>

namespace {

/// The first version with keys.
constexpr std::uint32_t Version = 4;

void found(void* data, wl_registry* registry, std::uint32_t name, const char* interface,
           std::uint32_t version)
{
    if (std::strcmp(interface, org_kde_kwin_fake_input_interface.name) != 0 || version < Version)
        return;
    auto** const input = static_cast<org_kde_kwin_fake_input**>(data);
    *input = static_cast<org_kde_kwin_fake_input*>(
        wl_registry_bind(registry, name, &org_kde_kwin_fake_input_interface, Version));
}

void lost(void*, wl_registry*, std::uint32_t) {}

constexpr wl_registry_listener Listener{found, lost};

} // namespace

FakeInput::~FakeInput()
{
    if (m_input)
        org_kde_kwin_fake_input_destroy(m_input);
    if (m_display)
        wl_display_disconnect(m_display);
}

QString FakeInput::open(const QString& socket)
{
    m_display = wl_display_connect(socket.toLocal8Bit().constData());
    if (!m_display)
        return QStringLiteral("KWin takes no connection at ") + socket;
    wl_registry* const registry = wl_display_get_registry(m_display);
    wl_registry_add_listener(registry, &Listener, &m_input);
    wl_display_roundtrip(m_display);
    wl_registry_destroy(registry);
    if (!m_input)
        return QStringLiteral("KWin offers no input of tests");
    org_kde_kwin_fake_input_authenticate(m_input, "test", "moves windows and presses keys");
    settle();
    return {};
}

void FakeInput::settle()
{
    wl_display_roundtrip(m_display);
}

void FakeInput::moveTo(const QPoint& place)
{
    org_kde_kwin_fake_input_pointer_motion_absolute(m_input, wl_fixed_from_int(place.x()),
                                                    wl_fixed_from_int(place.y()));
    settle();
}

void FakeInput::button(unsigned code, bool down)
{
    org_kde_kwin_fake_input_button(m_input, code, down ? 1 : 0);
    settle();
}

void FakeInput::key(unsigned code, bool down)
{
    org_kde_kwin_fake_input_keyboard_key(m_input, code, down ? 1 : 0);
    settle();
}

void FakeInput::tap(unsigned code)
{
    key(code, true);
    key(code, false);
}
