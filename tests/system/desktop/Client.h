// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "DesktopTest.h"

#include <QMargins>
#include <QRect>

/// A window of another application, with what it was told.
class Client
{
public:
    /// Shows it, with a shadow of its own within its edges if it is to have one; false if it does not come to
    /// the screen. A window manager that has only just come may miss a window, so it is shown again then.
    bool start(const QString& name, const QRect& rect, const QMargins& shadow = {})
    {
        m_window = 0;
        for (int attempt = 0; attempt < 10; ++attempt) {
            if (!m_beside.start(QStringLiteral(DESKTOP_CLIENT),
                                {name, QString::number(rect.x()), QString::number(rect.y()),
                                 QString::number(rect.width()), QString::number(rect.height()),
                                 QString::number(shadow.left()), QString::number(shadow.right()),
                                 QString::number(shadow.top()), QString::number(shadow.bottom())}))
                return false;
            if (QTest::qWaitFor([this] { return window() != 0; }, 3000 * (attempt + 1)))
                return true;
            stop();
        }
        return false;
    }
    void stop() { m_beside.stop(); }

    unsigned long pid() { return static_cast<unsigned long>(m_beside.process().processId()); }

    /// X id of its window; 0 while it is not on the screen.
    quint32 window()
    {
        lines();
        return m_window;
    }

    /// Everything that it has been told so far, or since forget().
    const QStringList& lines()
    {
        m_beside.process().waitForReadyRead(0);
        m_rest += QString::fromUtf8(m_beside.process().readAllStandardOutput());
        for (qsizetype end; (end = m_rest.indexOf(u'\n')) >= 0; m_rest.remove(0, end + 1)) {
            m_lines.append(m_rest.left(end));
            if (m_lines.last().startsWith(QStringLiteral("window ")))
                m_window = m_lines.last().section(u' ', 1).toUInt();
        }
        return m_lines;
    }
    void forget()
    {
        lines();
        m_lines.clear();
    }

    /// Presses and releases of keys: "press CODE STATE".
    QStringList keys() { return lines().filter(QRegularExpression(QStringLiteral("^(press|release) "))); }

private:
    Beside m_beside;
    QString m_rest;
    QStringList m_lines;
    quint32 m_window = 0;
};
