// SPDX-License-Identifier: Apache-2.0
#include "wirehost.h"

#include <QTemporaryDir>

#include <atomic>
#include <thread>

class TestSimThreads : public QObject
{
    Q_OBJECT

private slots:
    void everythingMayHappenAtOnce();
};

// Meant for the thread sanitizer: hosts, a person at the menu, an observer and a plug that is pulled, all at
// once.
void TestSimThreads::everythingMayHappenAtOnce()
{
    QTemporaryDir dir;
    std::atomic<quint64> sequence{0};
    sim::Options options;
    options.strictTiming = true;
    options.sequence = [&sequence] { return ++sequence; };
    sim::Monitor monitor(identity("TK30Z"), options);
    QVERIFY(monitor.setStore(dir.filePath(QStringLiteral("m.json"))));
    std::atomic<int> answered{0};
    const auto host = [&] {
        WireHost wire(monitor);
        for (int i = 0; i < 2000; ++i) {
            answered += wire.get(0x12) != -2;
            wire.set(0x12, i % 100);
            wire.readFrom(0x50, 16);
        }
    };
    const auto person = [&] {
        for (int i = 0; i < 1000; ++i) {
            monitor.setByMenu(0xDC, i % 2 ? 0x32 : 0x12);
            monitor.setAmbientLight(i);
            monitor.setPresence(i % 2 == 0);
            monitor.value(0x7E, 512);
            monitor.lightOutput();
            if (i % 100 == 0)
                monitor.persist();
        }
    };
    const auto observer = [&] {
        for (int i = 0; i < 200; ++i) {
            monitor.traffic();
            monitor.violations();
            monitor.rawLog();
            monitor.setRawLogEnabled(i % 2 == 0);
            sim::Fault fault;
            fault.kind = i % 2 ? sim::FaultKind::Timeout : sim::FaultKind::Null;
            fault.count = 1;
            fault.blocks = std::chrono::milliseconds(1);
            monitor.armFault(fault);
            monitor.unplug();
            monitor.plug();
        }
        monitor.clearFaults();
    };
    std::vector<std::thread> threads;
    for (int i = 0; i < 2; ++i)
        threads.emplace_back(host);
    threads.emplace_back(person);
    threads.emplace_back(observer);
    for (std::thread& thread : threads)
        thread.join();
    QVERIFY(monitor.persist());
    quint64 last = 0;
    for (const auto& entry : monitor.traffic()) {
        QVERIFY(entry.seq > last);
        last = entry.seq;
    }
    QVERIFY(last > 0);
}

QTEST_GUILESS_MAIN(TestSimThreads)
#include "tst_sim_threads.moc"
