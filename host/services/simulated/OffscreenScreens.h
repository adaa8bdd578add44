// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QObject>

namespace services {

/// Gives Qt's off-screen platform other screens than the one that it starts with, and keeps maximised windows
/// off their task bars, which that platform does not know. GUI thread.
class OffscreenScreens : public QObject
{
    Q_OBJECT

public:
    /// The screens that Qt has, whichever platform shows them: list of {"name","rect","available"}.
    static QJsonArray present();

    /// Has QGuiApplication::screens() list the given screens, in their order. False on another platform,
    /// whose screens are real; nothing has changed then.
    bool apply(const QJsonArray& screens);

    /// Gives screens without a name one, since monitors name the screen that shows them.
    void nameAll();

    /// Back to the screens that were there before the first apply().
    void restore();

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QJsonArray m_original;
};

} // namespace services
