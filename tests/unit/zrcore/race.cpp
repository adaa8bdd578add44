// SPDX-License-Identifier: Apache-2.0
#include "ZrCore/ZrDispatch.h"

#include <atomic>
#include <thread>

// Two queues count in one plain variable. Every other use of the queues is free of races; this one must be
// reported.
int main()
{
    static volatile int counter = 0;
    std::atomic<int> begun = 0;
    std::atomic<int> ended = 0;
    ZrDispatch first(QStringLiteral("first"));
    ZrDispatch second(QStringLiteral("second"));
    const auto count = [&begun, &ended] {
        // Side by side: one after the other the queues' own locks would order them.
        ++begun;
        while (begun != 2)
            std::this_thread::yield();
        for (int i = 0; i < 10'000; ++i)
            counter = counter + 1;
        ++ended;
    };
    first.post(nullptr, count);
    second.post(nullptr, count);
    while (ended != 2)
        std::this_thread::yield();
    return 0;
}
