// SPDX-License-Identifier: Apache-2.0
#include <lushared/LuEventLog.h>

#include <ZrCore/ZrSequence.h>

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

namespace {

LuEvent onOff(bool on, const QStringList& parameters = {})
{
    LuEvent event;
    event.monitor = QStringLiteral("TK30Z@1");
    event.module = QStringLiteral("LuX");
    event.action = LuDataCollection::ACT_AUTO_PIVOT;
    event.onOff = true;
    event.on = on;
    event.source = LuDataCollection::SOURCE_EXIT;
    event.parameters = parameters;
    return event;
}

} // namespace

class TestEvents : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void sequenceIsSharedAndRises();
    void sinceLeavesOlderOnesOut();
    void earlierRunIsFoundOnDisk();
    void tornLastLineIsLeftOut();
    void sourcesHaveTheirNumbers();
};

void TestEvents::sequenceIsSharedAndRises()
{
    LuEventLog& log = LuEventLog::instance();
    const quint64 before = ZrSequence::next();
    log.record(onOff(true));
    const quint64 after = ZrSequence::next();
    const QList<LuEvent> events = log.events(before);
    QCOMPARE(events.size(), 1);
    QVERIFY(events.first().seq > before && events.first().seq < after);
    QCOMPARE(events.first().run, 0);
    QVERIFY(events.first().time.isValid());
}

void TestEvents::sinceLeavesOlderOnesOut()
{
    LuEventLog& log = LuEventLog::instance();
    log.record(onOff(true));
    const quint64 seen = log.events().last().seq;
    QVERIFY(log.events(seen).isEmpty());
    log.record(onOff(false));
    QCOMPARE(log.events(seen).size(), 1);
    QVERIFY(!log.events(seen).first().on);
}

void TestEvents::earlierRunIsFoundOnDisk()
{
    QTemporaryDir directory;
    QFile file(directory.filePath(QStringLiteral("events.jsonl")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("{\"seq\":7,\"run\":3,\"time\":\"2026-01-01T10:00:00.000\",\"monitor\":\"TK30Z@1\",\"module\":"
               "\"LuX\",\"action\":6,"
               "\"source\":2,\"on\":false,\"parameters\":[\"90\"]}\n");
    file.write("{\"seq\":2,\"run\":2,\"time\":\"2026-01-01T09:00:00.000\",\"monitor\":\"TK30Z@1\",\"module\":"
               "\"LuX\",\"action\":6,"
               "\"source\":0,\"event\":\"x\",\"parameters\":[]}\n");
    file.close();
    LuEventLog& log = LuEventLog::instance();
    log.open(directory.path());
    const QList<LuEvent> before = log.events(0, -1);
    QCOMPARE(before.size(), 1);
    QCOMPARE(before.first().seq, quint64(7));
    QCOMPARE(before.first().run, -1);
    QVERIFY(before.first().onOff && !before.first().on);
    QCOMPARE(before.first().parameters, QStringList{QStringLiteral("90")});
    QCOMPARE(log.events(0, -2).first().event, QStringLiteral("x"));
    QVERIFY(log.events(0, -3).isEmpty());
    log.record(onOff(true));
    log.flush();
    QVERIFY(file.open(QIODevice::ReadOnly));
    QVERIFY(file.readAll().contains("\"run\":4"));
}

void TestEvents::tornLastLineIsLeftOut()
{
    QTemporaryDir directory;
    QFile file(directory.filePath(QStringLiteral("events.jsonl")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("{\"seq\":1,\"run\":1,\"event\":\"whole\"}\n{\"seq\":2,\"run\":1,\"ev");
    file.close();
    LuEventLog& log = LuEventLog::instance();
    log.open(directory.path());
    int whole = 0;
    for (int run = -10; run < 0; ++run) {
        for (const LuEvent& event : log.events(0, run))
            whole += event.event == QLatin1String("whole");
    }
    QCOMPARE(whole, 1);
}

void TestEvents::sourcesHaveTheirNumbers()
{
    QCOMPARE(int(LuDataCollection::SOURCE_USER), 0);
    QCOMPARE(int(LuDataCollection::SOURCE_SYNC), 1);
    QCOMPARE(int(LuDataCollection::SOURCE_EXIT), 2);
    QCOMPARE(int(LuDataCollection::SOURCE_LAUNCH), 3);
    QCOMPARE(int(LuDataCollection::SOURCE_OTHER_FUNCTION), 4);
    QCOMPARE(int(LuDataCollection::SOURCE_FIRST_CONNECT), 5);
    QCOMPARE(LuDataCollection::syncSource(true), LuDataCollection::SOURCE_FIRST_CONNECT);
    QCOMPARE(LuDataCollection::syncSource(false), LuDataCollection::SOURCE_SYNC);
    QCOMPARE(LuDataCollection::setterSource(true), LuDataCollection::SOURCE_OTHER_FUNCTION);
    QCOMPARE(LuDataCollection::setterSource(false), LuDataCollection::SOURCE_USER);
}

QTEST_GUILESS_MAIN(TestEvents)
#include "tst_events.moc"
