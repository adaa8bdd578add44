// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>
#include <QtGlobal>

#include <atomic>

/// Counts the lines of the log that begin with a text, and takes them out of the test's output. One at a
/// time.
class LogCount
{
public:
    explicit LogCount(const QString& start)
    {
        s_start = start;
        s_count = 0;
        s_before = qInstallMessageHandler(
            [](QtMsgType type, const QMessageLogContext& context, const QString& line) {
                if (line.startsWith(s_start))
                    ++s_count;
                else
                    s_before(type, context, line);
            });
    }
    ~LogCount() { qInstallMessageHandler(s_before); }
    Q_DISABLE_COPY_MOVE(LogCount)
    int count() const { return s_count; }

private:
    static inline QString s_start;
    static inline std::atomic<int> s_count = 0;
    static inline QtMessageHandler s_before = nullptr;
};
