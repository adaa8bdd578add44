// SPDX-License-Identifier: Apache-2.0
#include "services/wayland/Display.h"

#include <LuShared/LuPlatform.h>
#include <PanelCore/MonitorInfo.h>

#include "services/wayland/OutputKeeper.h"

#include <algorithm>
#include <cmath>

namespace services::wayland {

namespace {

int percentOf(double scale)
{
    return int(std::lround(scale * 100));
}

/// The offered scale of a percentage; compositors round fractions, 4/3 for 133 percent.
std::optional<double> scaleOf(const OutputMode& mode, int percent)
{
    for (const double scale : mode.scales) {
        if (percentOf(scale) == percent)
            return scale;
    }
    return std::nullopt;
}

class Display : public DisplayService
{
public:
    explicit Display(std::shared_ptr<OutputControl> control) : m_outputs(std::move(control)) {}

    bool isAvailable() const override { return !m_outputs.outputs().isEmpty(); }
    int pivot(const MonitorInfo& monitor) const override;
    void setPivot(const MonitorInfo& monitor, int degrees) override;
    QList<int> dpiScalings(const MonitorInfo& monitor) const override;
    int dpiScaling(const MonitorInfo& monitor) const override;
    void setDpiScaling(const MonitorInfo& monitor, int percent) override;
    bool hiDpi(const MonitorInfo& monitor) const override;
    bool setHiDpi(const MonitorInfo& monitor, bool enabled) override;
    QList<QSize> resolutions(const MonitorInfo& monitor, int refreshRate) const override;
    QSize resolution(const MonitorInfo& monitor) const override;
    bool setResolution(const MonitorInfo& monitor, const QSize& size, int refreshRate, bool permanent,
                       int hidpiMatch) override;
    QRect nativeScreenRect(const QString& nativeHandle) const override;

private:
    std::optional<Output> find(const QString& name) const;
    std::optional<Output> find(const MonitorInfo& monitor) const;

    OutputKeeper m_outputs;
};

std::optional<Output> Display::find(const QString& name) const
{
    const QList<Output> all = m_outputs.outputs();
    const auto found =
        std::find_if(all.begin(), all.end(), [&](const Output& each) { return each.name == name; });
    if (name.isEmpty() || found == all.end() || !found->currentMode())
        return std::nullopt;
    return *found;
}

std::optional<Output> Display::find(const MonitorInfo& monitor) const
{
    // On Wayland a screen has its connector's name.
    const auto output = find(monitor.nativeHandle());
    return output ? output : find(monitor.screenName());
}

int Display::pivot(const MonitorInfo& monitor) const
{
    const auto output = find(monitor);
    return output ? output->degrees : 0;
}

void Display::setPivot(const MonitorInfo& monitor, int degrees)
{
    const auto output = find(monitor);
    if (!output || output->degrees == degrees)
        return;
    OutputChange turned;
    turned.degrees = degrees;
    // GNOME asks the person to keep what lasts, and takes it back without an answer: not at each turn of a
    // monitor.
    turned.permanent = false;
    m_outputs.change(output->name, turned);
}

QList<int> Display::dpiScalings(const MonitorInfo& monitor) const
{
    QList<int> result;
    const auto output = find(monitor);
    if (!output)
        return result;
    for (const double scale : output->currentMode()->scales) {
        if (!result.contains(percentOf(scale)))
            result.append(percentOf(scale));
    }
    std::sort(result.begin(), result.end());
    return result;
}

int Display::dpiScaling(const MonitorInfo& monitor) const
{
    const auto output = find(monitor);
    return output ? percentOf(output->scale) : 0;
}

void Display::setDpiScaling(const MonitorInfo& monitor, int percent)
{
    const auto output = find(monitor);
    if (!output || percentOf(output->scale) == percent)
        return;
    OutputChange scaled;
    scaled.permanent = true;
    scaled.scale = scaleOf(*output->currentMode(), percent);
    if (scaled.scale)
        m_outputs.change(output->name, scaled);
}

bool Display::hiDpi(const MonitorInfo& monitor) const
{
    const auto output = find(monitor);
    return output && output->scale >= 2;
}

bool Display::setHiDpi(const MonitorInfo& monitor, bool enabled)
{
    const auto output = find(monitor);
    if (!output)
        return false;
    if ((output->scale >= 2) == enabled)
        return true;
    OutputChange scaled;
    scaled.permanent = true;
    scaled.scale = scaleOf(*output->currentMode(), enabled ? 200 : 100);
    if (scaled.scale)
        m_outputs.change(output->name, scaled);
    return scaled.scale.has_value();
}

QList<QSize> Display::resolutions(const MonitorInfo& monitor, int refreshRate) const
{
    QList<QSize> sizes;
    const auto output = find(monitor);
    if (!output)
        return sizes;
    for (const OutputMode& mode : output->modes) {
        if ((refreshRate <= 0 || std::lround(mode.rate) == refreshRate) && !sizes.contains(mode.size))
            sizes.append(mode.size);
    }
    return sizes;
}

QSize Display::resolution(const MonitorInfo& monitor) const
{
    const auto output = find(monitor);
    if (!output)
        return {};
    const QSize size = output->currentMode()->size;
    return output->degrees % 180 == 0 ? size : size.transposed();
}

bool Display::setResolution(const MonitorInfo& monitor, const QSize& size, int refreshRate, bool permanent,
                            int hidpiMatch)
{
    const auto output = find(monitor);
    if (!output)
        return false;
    const int percent = percentOf(output->scale);
    const OutputMode* best = nullptr;
    for (const OutputMode& mode : output->modes) {
        if (mode.size != size || (refreshRate > 0 && std::lround(mode.rate) != refreshRate))
            continue;
        const bool sameScale = scaleOf(mode, percent).has_value();
        if (!sameScale && hidpiMatch == LuPlatform::RequireSameHidpi)
            continue;
        // The first one, unless a later one keeps the scale and that is preferred.
        if (!best || (hidpiMatch == LuPlatform::PreferSameHidpi && sameScale && !scaleOf(*best, percent)))
            best = &mode;
    }
    if (!best)
        return false;
    OutputChange wanted;
    wanted.modeId = best->id;
    wanted.scale = scaleOf(*best, percent).value_or(1.0);
    wanted.permanent = permanent;
    m_outputs.change(output->name, wanted);
    return true;
}

QRect Display::nativeScreenRect(const QString& nativeHandle) const
{
    const auto output = find(nativeHandle);
    if (!output)
        return {};
    const QSize size = output->currentMode()->size;
    const QSize turned = output->degrees % 180 == 0 ? size : size.transposed();
    return {output->position, turned / output->scale};
}

} // namespace

std::shared_ptr<DisplayService> makeDisplay(std::shared_ptr<OutputControl> control)
{
    return control ? std::make_shared<Display>(std::move(control)) : nullptr;
}

} // namespace services::wayland
