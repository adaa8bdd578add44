// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>
#include <QStringList>

#include <mutex>

/// What jobs have done, in order.
class Record
{
public:
    void add(const QString& text)
    {
        const std::lock_guard lock(m_mutex);
        m_texts.append(text);
    }
    QStringList texts() const
    {
        const std::lock_guard lock(m_mutex);
        return m_texts;
    }
    QString joined() const { return texts().join(u' '); }
    qsizetype size() const { return texts().size(); }

private:
    mutable std::mutex m_mutex;
    QStringList m_texts;
};
