// SPDX-License-Identifier: Apache-2.0
#include "OutputWitness.h"

#include <algorithm>
#include <cstring>
#include <utility>
#include <wayland-client.h>

/// The compositor's events.
struct OutputWitnessEvents
{
    /// The first version with a scale.
    static constexpr std::uint32_t Version = 2;

    static OutputWitness::Output& of(void* data) { return *static_cast<OutputWitness::Output*>(data); }

    static void geometry(void* data, wl_output*, std::int32_t x, std::int32_t y, std::int32_t, std::int32_t,
                         std::int32_t, const char*, const char*, std::int32_t transform)
    {
        of(data).position = QPoint(x, y);
        of(data).degrees = transform % 4 * 90;
    }
    static void mode(void* data, wl_output*, std::uint32_t flags, std::int32_t width, std::int32_t height,
                     std::int32_t)
    {
        if (flags & WL_OUTPUT_MODE_CURRENT)
            of(data).mode = QSize(width, height);
    }
    static void done(void*, wl_output*) {}
    static void scale(void* data, wl_output*, std::int32_t factor) { of(data).scale = factor; }
    static void name(void*, wl_output*, const char*) {}
    static constexpr wl_output_listener Output{geometry, mode, done, scale, name, name};

    static void found(void* data, wl_registry* registry, std::uint32_t number, const char* interface,
                      std::uint32_t version)
    {
        if (std::strcmp(interface, wl_output_interface.name) != 0 || version < Version)
            return;
        auto* const output =
            static_cast<wl_output*>(wl_registry_bind(registry, number, &wl_output_interface, Version));
        const auto state = std::make_shared<OutputWitness::Output>();
        static_cast<OutputWitness*>(data)->m_outputs.append(state);
        static_cast<OutputWitness*>(data)->m_bound.append(output);
        wl_output_add_listener(output, &Output, state.get());
    }
    static void lost(void*, wl_registry*, std::uint32_t) {}
    static constexpr wl_registry_listener Registry{found, lost};
};

QString OutputWitness::open(const QString& socket)
{
    m_socket = socket;
    return look() ? QString() : QStringLiteral("no compositor shows outputs at ") + socket;
}

bool OutputWitness::look()
{
    m_outputs.clear();
    wl_display* const display = wl_display_connect(m_socket.toLocal8Bit().constData());
    if (!display)
        return false;
    wl_registry* const registry = wl_display_get_registry(display);
    wl_registry_add_listener(registry, &OutputWitnessEvents::Registry, this);
    wl_display_roundtrip(display); // the outputs
    wl_display_roundtrip(display); // what they are
    for (wl_output* const output : std::exchange(m_bound, {}))
        wl_output_destroy(output);
    wl_registry_destroy(registry);
    wl_display_disconnect(display);
    std::sort(m_outputs.begin(), m_outputs.end(),
              [](const auto& one, const auto& other) { return one->position.x() < other->position.x(); });
    return !m_outputs.isEmpty();
}

OutputWitness::Output OutputWitness::output(int number)
{
    look();
    return number < m_outputs.size() ? *m_outputs[number] : Output();
}
