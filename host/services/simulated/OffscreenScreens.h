// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QJsonArray>
#include <QJsonObject>

namespace services {

/// Gives Qt's off-screen platform other screens than the one that it starts with. GUI thread.
class OffscreenScreens
{
public:
    /// The screens that Qt has, whichever platform shows them: list of {"name","rect","available"}.
    static QJsonArray present();

    /// Has QGuiApplication::screens() list the given screens, in their order. False on another platform,
    /// whose screens are real; nothing has changed then.
    bool apply(const QJsonArray& screens);

    /// Back to the screens that were there before the first apply().
    void restore();

private:
    QJsonArray m_original;
};

} // namespace services
