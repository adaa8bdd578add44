// SPDX-License-Identifier: Apache-2.0
#include "services/simulated/OffscreenScreens.h"

#include "services/simulated/Values.h"

#include <QEvent>
#include <QGuiApplication>
#include <QScreen>
#include <QWindow>

#include <algorithm>

#include <qpa/qplatformnativeinterface.h>
#include <qpa/qplatformwindow.h>
#include <qpa/qwindowsysteminterface.h>

namespace services {

namespace {

// The functions that the off-screen platform hands out under these names.
using SetConfiguration = void (*)(const QJsonObject& configuration, QPlatformNativeInterface* interface);
using Configuration = QJsonObject (*)(QPlatformNativeInterface* interface);

template <typename Function>
Function platformFunction(const char* name)
{
    if (QGuiApplication::platformName() != QLatin1String("offscreen"))
        return nullptr;
    QPlatformNativeInterface* const interface = QGuiApplication::platformNativeInterface();
    return interface ? reinterpret_cast<Function>(interface->nativeResourceForIntegration(name)) : nullptr;
}

QJsonObject platformScreen(const QJsonValue& screen)
{
    const QRect rect = toRect(screen[u"rect"]).toRect();
    return {{QStringLiteral("name"), screen[u"name"]}, {QStringLiteral("x"), rect.x()},
            {QStringLiteral("y"), rect.y()},           {QStringLiteral("width"), rect.width()},
            {QStringLiteral("height"), rect.height()}, {QStringLiteral("logicalDpi"), 96},
            {QStringLiteral("logicalBaseDpi"), 96},    {QStringLiteral("dpr"), 1.0}};
}

int indexOf(const QJsonArray& screens, const QJsonValue& name)
{
    for (int index = 0; index < screens.size(); ++index) {
        if (screens[index][u"name"] == name)
            return index;
    }
    return -1;
}

} // namespace

QJsonArray OffscreenScreens::present()
{
    QJsonArray result;
    const QList<QScreen*> screens = QGuiApplication::screens();
    for (const QScreen* screen : screens) {
        result.append(QJsonObject{{QStringLiteral("name"), screen->name()},
                                  {QStringLiteral("rect"), toJson(screen->geometry())},
                                  {QStringLiteral("available"), toJson(screen->availableGeometry())}});
    }
    return result;
}

bool OffscreenScreens::apply(const QJsonArray& screens)
{
    const auto setConfiguration = platformFunction<SetConfiguration>("setConfiguration");
    const auto configuration = platformFunction<Configuration>("configuration");
    if (!setConfiguration || !configuration || screens.isEmpty())
        return false;
    if (m_original.isEmpty())
        m_original = present();
    qApp->installEventFilter(this);

    QPlatformNativeInterface* const interface = QGuiApplication::platformNativeInterface();
    QJsonObject settings = configuration(interface);
    QJsonArray now = settings[u"screens"].toArray();
    const auto configure = [&](bool synchronous) {
        settings[u"screens"] = now;
        settings[u"synchronousWindowSystemEvents"] = synchronous;
        setConfiguration(settings, interface);
    };

    // Qt lists screens as they were added. One that stands in the wrong place is taken away and added again,
    // never the last one, since windows need a screen.
    bool inPlace = true;
    for (int index = 0; index < screens.size(); ++index) {
        const QJsonObject screen = platformScreen(screens[index]);
        const int place = indexOf(now, screen[u"name"]);
        inPlace = inPlace && place == index;
        if (inPlace) {
            now[index] = screen;
        } else {
            if (place >= 0) {
                now.removeAt(place);
                configure(true);
            }
            now.append(screen);
        }
        configure(true);
    }
    for (int index = int(now.size()) - 1; index >= 0; --index) {
        if (indexOf(screens, now[index][u"name"]) < 0)
            now.removeAt(index);
    }
    configure(true);

    const QList<QScreen*> shown = QGuiApplication::screens();
    for (QScreen* screen : shown) {
        const int index = indexOf(screens, screen->name());
        if (index >= 0) {
            QWindowSystemInterface::handleScreenGeometryChange(screen,
                                                               toRect(screens[index][u"rect"]).toRect(),
                                                               toRect(screens[index][u"available"]).toRect());
        }
    }
    configure(false);
    return true;
}

void OffscreenScreens::nameAll()
{
    QJsonArray screens = present();
    bool named = true;
    for (int index = 0; index < screens.size(); ++index) {
        QJsonObject screen = screens[index].toObject();
        if (!screen[u"name"].toString().isEmpty())
            continue;
        named = false;
        screen[u"name"] = QStringLiteral("offscreen-%1").arg(index + 1);
        screens[index] = screen;
    }
    if (named)
        return;
    apply(screens);
    // These are the ones to come back to.
    m_original = {};
}

void OffscreenScreens::restore()
{
    if (m_original.isEmpty())
        return;
    apply(m_original);
    qApp->removeEventFilter(this);
}

// The part of a window manager: the platform maximises over the whole screen, and after it has told so the
// window gets what is free.
bool OffscreenScreens::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::Resize && event->type() != QEvent::Move && event->type() != QEvent::Expose)
        return false;
    auto* const window = qobject_cast<QWindow*>(watched);
    if (!window || !window->handle() || !window->screen() || window->windowStates() != Qt::WindowMaximized)
        return false;
    const QRect target = window->screen()->availableGeometry().marginsRemoved(window->frameMargins());
    if (window->handle()->QPlatformWindow::geometry() != target) {
        // Past the platform's own class, which refuses to move a maximised window.
        window->handle()->QPlatformWindow::setGeometry(target);
        QWindowSystemInterface::handleGeometryChange(window, target);
    }
    return false;
}

} // namespace services
