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
    return window.pid + " " + workspace.cursorPos.x + " " + workspace.cursorPos.y;
}
function follow(window) {
    var dragging = false;
    var step = window.interactiveMoveResizeStepped || window.clientStepUserMovedResized;
    var end = window.interactiveMoveResizeFinished || window.clientFinishUserMovedResized;
    if (!step || !end)
        return;
    step.connect(function() {
        if (window.move) {
            dragging = true;
            tell("dragged", place(window));
        }
    });
    end.connect(function() {
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
var all = workspace.stackingOrder || (workspace.windowList ? workspace.windowList() : workspace.clientList());
var target = null;
for (var i = 0; i < all.length; ++i) {
    if (all[i].pid == %1 && all[i].normalWindow)
        target = all[i];
}
var active = workspace.activeWindow || workspace.activeClient;
if (active && active.pid == %1 && active.normalWindow)
    target = active;
if (target) {
    target.setMaximize(false, false);
    target.frameGeometry = { x: %2, y: %3, width: %4, height: %5 };
}
)");

} // namespace

QString watchScript(const QString& busAddress, const QString& objectPath, const QString& interface)
{
    return Watch.arg(busAddress, objectPath, interface);
}

QString placeScript(unsigned long pid, const QString& x, const QString& y, const QString& width,
                    const QString& height)
{
    return Place.arg(QString::number(pid), x, y, width, height);
}

} // namespace services::wayland
