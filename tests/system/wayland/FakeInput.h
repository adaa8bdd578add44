// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QPoint>
#include <QString>

struct org_kde_kwin_fake_input;
struct wl_display;

/// A pointer and a keyboard of KWin, moved by the test: what they do passes through all of KWin's own
/// handling of input, as a person's does.
class FakeInput
{
public:
    FakeInput() = default;
    ~FakeInput();
    Q_DISABLE_COPY_MOVE(FakeInput)

    /// Connects to a KWin that checks no permissions. Empty on success, else what went wrong.
    QString open(const QString& socket);

    // Each returns once KWin has dealt with it.
    void moveTo(const QPoint& place);
    /// Buttons and keys are codes of the kernel's input events.
    void button(unsigned code, bool down);
    void key(unsigned code, bool down);
    void tap(unsigned code);

private:
    void settle();

    wl_display* m_display = nullptr;
    org_kde_kwin_fake_input* m_input = nullptr;
};
