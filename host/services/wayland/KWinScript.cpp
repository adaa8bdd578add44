// SPDX-License-Identifier: Apache-2.0
#include "services/wayland/KWinScript.h"

namespace services::wayland {

namespace {

// Windows are "clients" before KWin 6, and their signals have other names.
const QString Watch = QStringLiteral(R"(
function tell(method, text) {
    callDBus("%1", "%2", "%3", method, text);
}
function place(window) {
    return window.pid + " " + workspace.cursorPos.x + " " + workspace.cursorPos.y + " " + window.internalId;
}
// A mouse moves up to 1,000 times a second.
var moving = null;
var soon = new QTimer();
soon.singleShot = true;
soon.interval = 16;
soon.timeout.connect(function() {
    tell("dragged", place(moving));
});
function follow(window) {
    var dragging = false;
    var step = window.interactiveMoveResizeStepped || window.clientStepUserMovedResized;
    var end = window.interactiveMoveResizeFinished || window.clientFinishUserMovedResized;
    if (!step || !end)
        return;
    step.connect(function() {
        if (!window.move)
            return;
        dragging = true;
        moving = window;
        if (!soon.active)
            soon.start();
    });
    end.connect(function() {
        soon.stop();
        if (dragging)
            tell("released", place(window));
        dragging = false;
    });
}
function activated(window) {
    if (window && window.pid > 0)
        tell("activated", "" + window.pid);
}
(workspace.windowActivated || workspace.clientActivated).connect(activated);
(workspace.windowAdded || workspace.clientAdded).connect(follow);
var all = workspace.windowList ? workspace.windowList() : workspace.clientList();
for (var i = 0; i < all.length; ++i)
    follow(all[i]);
activated(workspace.activeWindow || workspace.activeClient);
)");

const QString Place = QStringLiteral(R"(
function place() {
    var all = workspace.stackingOrder || (workspace.windowList ? workspace.windowList() : workspace.clientList());
    var target = null;
    for (var i = 0; i < all.length; ++i) {
        if (all[i].pid == %1 && all[i].normalWindow)
            target = all[i];
    }
    var active = workspace.activeWindow || workspace.activeClient;
    if (active && active.pid == %1 && active.normalWindow)
        target = active;
    for (var j = 0; j < all.length; ++j) {
        if (all[j].pid == %1 && "" + all[j].internalId == "%6")
            target = all[j];
    }
    if (!target)
        return;
    target.setMaximize(false, false);
    target.frameGeometry = { x: %2, y: %3, width: %4, height: %5 };
}
try {
    place();
} finally {
    callDBus("%7", "%8", "%9", "ended", "%10");
}
)");

} // namespace

QString watchScript(const ScriptListener& listener)
{
    return Watch.arg(listener.address, listener.path, listener.interface);
}

QString placeScript(const ScriptListener& listener, const QString& name, unsigned long pid,
                    const QString& window, const QRectF& geometry)
{
    const auto number = [](double value) { return QString::number(value, 'f', 0); };
    return Place
        .arg(QString::number(pid), number(geometry.x()), number(geometry.y()), number(geometry.width()),
             number(geometry.height()), window, listener.address, listener.path, listener.interface)
        .arg(name);
}

} // namespace services::wayland
