// SPDX-License-Identifier: Apache-2.0
#include "LuSoftwareDimming.h"

#include "LuBrightness.h"
#include "LuDimmingTable.h"

#include <LuShared/LuMonitorModel.h>
#include <LuShared/LuPlatform.h>
#include <LuShared/LuQuickWindow.h>
#include <ZrCore/ZrDispatch.h>

#include <QColor>
#include <QDebug>

namespace {

constexpr int OverlayLayer = 3;
const QString StateKey = QStringLiteral("softwareDimming");

} // namespace

LuSoftwareDimming::LuSoftwareDimming(LuBrightness* owner, LuMonitorModel* model)
    : QObject(owner), m_owner(owner), m_model(model), m_state(model->isModelSupported()),
      m_window(new LuQuickWindow)
{
    m_window->setObjectName(QStringLiteral("dimmingOverlay"));
    // Overlays of several monitors are told apart by it.
    m_window->setProperty("monitor", model->id());
    m_window->setColor(QColor(0, 0, 0, 0));
    m_window->setWindowFlags(LuPlatform::windowFlags | Qt::WindowTransparentForInput |
                             Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint);
    moveToScreen();
    m_window->enterFullScreen(false);
    LuPlatform::setWindowLayer(m_window.get(), OverlayLayer);
    LuPlatform::setWindowJoinActiveSpaces(m_window.get(), true);
    connect(model, &MonitorModel::screenChanged, this, [this] {
        moveToScreen();
        showOrClose();
    });
}

LuSoftwareDimming::~LuSoftwareDimming() = default;

void LuSoftwareDimming::moveToScreen()
{
    // Given none, a window would go to the primary screen, which another monitor shows.
    if (QScreen* screen = m_model->screen())
        m_window->setScreen(screen);
}

void LuSoftwareDimming::showOrClose()
{
    // Where nothing blends windows the overlay would be black altogether.
    if (active() && m_shown > 0 && m_model->screen() && LuPlatform::windowsBlend())
        m_window->enterFullScreen(true);
    else if (m_window->isVisible())
        m_window->close();
}

void LuSoftwareDimming::adjustOpacity(int brightness)
{
    if (!m_state)
        return;
    m_opacity = LuDimmingTable::opacity(brightness);
    ZrDispatch::main()->postUnique(this, QStringLiteral("adjustOpacity"), [this] {
        m_shown = m_opacity;
        m_window->setColor(QColor::fromRgbF(0, 0, 0, float(m_shown)));
        showOrClose();
    });
}

void LuSoftwareDimming::setState(bool state)
{
    const bool before = active();
    if (m_state == state)
        return;
    qInfo() << "[LuSoftwareDimming] set state:" << state;
    m_state = state;
    // Before the monitor has told its brightness there is none to map: its first read-back goes by the new
    // state.
    if (m_owner->hasBrightness())
        m_owner->setDisplayBrightness(m_owner->askedBrightness(), true, true, true);
    m_owner->setModuleSetting(StateKey, state);
    Q_EMIT stateChanged();
    announceActive(before);
    m_owner->fireOnOffEvent(LuDataCollection::ACT_SOFTWARE_DIMMING, state, LuDataCollection::SOURCE_USER, {});
}

void LuSoftwareDimming::restoreState(bool state)
{
    const bool before = active();
    if (!m_state.set(state))
        return;
    Q_EMIT stateChanged();
    announceActive(before);
}

void LuSoftwareDimming::setEnabled(bool enabled)
{
    const bool before = active();
    if (!m_enabled.set(enabled))
        return;
    Q_EMIT enabledChanged();
    announceActive(before);
}

void LuSoftwareDimming::announceActive(bool before)
{
    if (active() == before)
        return;
    showOrClose();
    Q_EMIT activeChanged();
}
