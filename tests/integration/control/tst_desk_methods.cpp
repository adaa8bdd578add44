// SPDX-License-Identifier: Apache-2.0
#include "DeskProcess.h"

#include <QtTest>

using namespace Qt::StringLiterals;

namespace {

QStringList membersOf(const QJsonValue& value)
{
    return value.toObject().keys();
}

} // namespace

/// Every method that needs neither a simulated world nor a window, from outside.
class TestDeskMethods : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();
    void init();

    void versionsAreTold();
    void monitorsAreListed();
    void aMonitorIsAddressedByIdOrModel();
    void selectMakesAMonitorCurrent();
    void describeTellsTheModelAndItsModules();
    void aPropertyIsSetOnTheWire();
    void thePresentValueWritesNothing();
    void watchTellsEachChange();
    void operationsAreCalled();
    void syncReadsWhatChangedAtTheMonitor();
    void applyWritesStoredValues();
    void settingsAreListedWrittenAndRemoved();
    void eventsAreKept();
    void snapshotAndUpdateGiveOneEvent();
    void packagesAreListed();
    void theModelIsTold();
    void statisticsAreTold();
    void actionsAreListed();
    void triggerSetsAsAnotherFunction();
    void flowActionsAreKept();
    void theQueueIsListed();
    void logLinesAreKept();
    void forgettingMeetsTheMonitorAnew();
    void errorsNameWhatWasWrong_data();
    void errorsNameWhatWasWrong();
    void withoutAWindowItsMethodsSaySo_data();
    void withoutAWindowItsMethodsSaySo();

private:
    ControlClient& desk() { return m_desk.client(); }
    QJsonArray writesOf(int code, qint64 since);
    qint64 lastSeq();
    DeskProcess m_desk;
    QString m_id;
};

void TestDeskMethods::initTestCase()
{
    QVERIFY2(m_desk.start(), qPrintable(m_desk.errors()));
    const QJsonArray monitors = desk().call(u"monitors"_s).result.toArray();
    QCOMPARE(monitors.size(), 1);
    m_id = monitors[0].toObject().value("id"_L1).toString();
    QVERIFY(!m_id.isEmpty());
}

void TestDeskMethods::cleanupTestCase()
{
    QCOMPARE(m_desk.stop(), 0);
}

void TestDeskMethods::init()
{
    QVERIFY(desk().call(u"idle"_s).ok());
    desk().clearMessages();
}

qint64 TestDeskMethods::lastSeq()
{
    const QJsonArray traffic = desk().call(u"sim.traffic"_s).result.toArray();
    return traffic.isEmpty() ? 0 : traffic.last().toObject().value("seq"_L1).toInteger();
}

QJsonArray TestDeskMethods::writesOf(int code, qint64 since)
{
    QJsonArray writes;
    const QJsonArray traffic = desk().call(u"sim.traffic"_s, {{u"since"_s, since}}).result.toArray();
    for (const QJsonValue& entry : traffic) {
        const QJsonObject row = entry.toObject();
        if (row.value("op"_L1) == "set"_L1 && row.value("code"_L1).toInt() == code)
            writes.append(row.value("value"_L1));
    }
    return writes;
}

void TestDeskMethods::versionsAreTold()
{
    const QJsonObject version = desk().call(u"version"_s).result.toObject();
    QCOMPARE(version.keys(), (QStringList{u"application"_s, u"package"_s, u"qt"_s}));
    QCOMPARE(version.value("qt"_L1).toString().section(u'.', 0, 0), u"6"_s);
    QVERIFY(!version.value("application"_L1).toString().isEmpty());
    QCOMPARE(version.value("package"_L1).toString(), u"1.11.0.0"_s);
}

void TestDeskMethods::monitorsAreListed()
{
    const QJsonObject monitor = desk().call(u"monitors"_s).result.toArray().first().toObject();
    QCOMPARE(monitor.value("model"_L1), QJsonValue(u"TK30Z"_s));
    QCOMPARE(monitor.value("id"_L1).toString(), u"TK30Z@"_s + monitor.value("serial"_L1).toString());
    QCOMPARE(monitor.value("supported"_L1), QJsonValue(true));
    QCOMPARE(monitor.value("builtIn"_L1), QJsonValue(false));
    QCOMPARE(monitor.value("current"_L1), QJsonValue(true));
    QCOMPARE(monitor.value("simulated"_L1), QJsonValue(true));
}

void TestDeskMethods::aMonitorIsAddressedByIdOrModel()
{
    for (const QString& address : {m_id, u"TK30Z"_s}) {
        const auto answer = desk().call(u"get"_s, {{u"monitor"_s, address}, {u"path"_s, u"id"_s}});
        QCOMPARE(answer.result.toObject().value("value"_L1), QJsonValue(m_id));
    }
    QCOMPARE(desk().call(u"get"_s, {{u"monitor"_s, u"TK"_s}, {u"path"_s, u"id"_s}}).code, 1);
}

void TestDeskMethods::selectMakesAMonitorCurrent()
{
    QVERIFY(desk().call(u"sim.plug"_s, {{u"monitor"_s, u"TK20@OTHER"_s}}).ok());
    QVERIFY(desk().call(u"select"_s, {{u"monitor"_s, u"TK20"_s}}).ok());
    QCOMPARE(desk().get(u"modelName"_s), QJsonValue(u"TK20"_s));
    QCOMPARE(desk().get(u"isCurrentModel"_s), QJsonValue(true));
    QCOMPARE(desk().value(u"get"_s, {{u"monitor"_s, m_id}, {u"path"_s, u"isCurrentModel"_s}}),
             QJsonValue(false));
    QVERIFY(desk().call(u"select"_s, {{u"monitor"_s, m_id}}).ok());
    QCOMPARE(desk().get(u"modelName"_s), QJsonValue(u"TK30Z"_s));
    QVERIFY(desk().call(u"sim.unplug"_s, {{u"monitor"_s, u"TK20@OTHER"_s}}).ok());
    QCOMPARE(desk().call(u"select"_s, {{u"monitor"_s, u"TK20"_s}}).code, 1);
}

void TestDeskMethods::describeTellsTheModelAndItsModules()
{
    const QJsonObject model = desk().call(u"describe"_s).result.toObject();
    QCOMPARE(model.value("class"_L1), QJsonValue(u"TKMonitorModel"_s));
    QCOMPARE(membersOf(model), (QStringList{u"class"_s, u"operations"_s, u"properties"_s, u"signals"_s}));
    const QJsonObject module = desk().call(u"describe"_s, {{u"path"_s, u"aiContrast"_s}}).result.toObject();
    QCOMPARE(module.value("class"_L1), QJsonValue(u"LuAiContrast"_s));
    QStringList names;
    const QJsonArray properties = module.value("properties"_L1).toArray();
    for (const QJsonValue& property : properties)
        names.append(property.toObject().value("name"_L1).toString());
    QCOMPARE(names, (QStringList{u"syncEnable"_s, u"displayNameType"_s, u"aiContrastEnable"_s, u"state"_s}));
}

void TestDeskMethods::aPropertyIsSetOnTheWire()
{
    const bool before = desk().get(u"aiContrast.state"_s).toBool();
    const qint64 since = lastSeq();
    QVERIFY(desk().set(u"aiContrast.state"_s, !before).ok());
    QVERIFY(desk().call(u"idle"_s).ok());
    QCOMPARE(desk().get(u"aiContrast.state"_s), QJsonValue(!before));
    QCOMPARE(writesOf(0xF3, since), QJsonArray{int(!before)});
    QCOMPARE(desk().value(u"sim.get"_s, {{u"code"_s, u"0xF3"_s}}), QJsonValue(int(!before)));
}

void TestDeskMethods::thePresentValueWritesNothing()
{
    const QJsonValue before = desk().get(u"aiContrast.state"_s);
    const qint64 since = lastSeq();
    QVERIFY(desk().set(u"aiContrast.state"_s, before).ok());
    QVERIFY(desk().call(u"idle"_s).ok());
    QCOMPARE(writesOf(0xF3, since), QJsonArray());
}

void TestDeskMethods::watchTellsEachChange()
{
    const bool before = desk().get(u"aiContrast.state"_s).toBool();
    const QJsonObject paths{{u"paths"_s, QJsonArray{u"aiContrast.state"_s, u"aiContrast.stateChanged()"_s}}};
    QVERIFY(desk().call(u"watch"_s, paths).ok());
    QVERIFY(desk().call(u"watch"_s, paths).ok());
    QVERIFY(desk().set(u"aiContrast.state"_s, !before).ok());
    QVERIFY(desk().call(u"idle"_s).ok());
    QTRY_COMPARE(desk().messages().size(), 2);
    QJsonObject changed;
    QJsonObject signal;
    for (const QJsonObject& message : desk().messages())
        (message.value("method"_L1) == "changed"_L1 ? changed : signal) =
            message.value("params"_L1).toObject();
    QCOMPARE(changed,
             (QJsonObject{{u"monitor"_s, m_id}, {u"path"_s, u"aiContrast.state"_s}, {u"value"_s, !before}}));
    QCOMPARE(signal, (QJsonObject{{u"monitor"_s, m_id},
                                  {u"path"_s, u"aiContrast.stateChanged()"_s},
                                  {u"args"_s, QJsonArray()}}));
    desk().clearMessages();
    QVERIFY(desk().call(u"unwatch"_s, paths).ok());
    QVERIFY(desk().set(u"aiContrast.state"_s, before).ok());
    QVERIFY(desk().call(u"idle"_s).ok());
    QCOMPARE(desk().call(u"version"_s).code, 0);
    QVERIFY(desk().messages().isEmpty());
}

void TestDeskMethods::operationsAreCalled()
{
    const QJsonObject call{{u"path"_s, u"aiContrast.takePropertySnapshot"_s}, {u"args"_s, QJsonArray()}};
    QCOMPARE(desk().call(u"call"_s, call).result, QJsonValue(QJsonObject{{u"value"_s, QJsonValue()}}));
}

void TestDeskMethods::syncReadsWhatChangedAtTheMonitor()
{
    const bool before = desk().get(u"aiContrast.state"_s).toBool();
    QVERIFY(desk().call(u"sim.set"_s, {{u"code"_s, 0xF3}, {u"value"_s, int(!before)}}).ok());
    QCOMPARE(desk().get(u"aiContrast.state"_s), QJsonValue(before));
    QVERIFY(desk().call(u"sync"_s, {{u"module"_s, u"LuAiContrast"_s}}).ok());
    QCOMPARE(desk().get(u"aiContrast.state"_s), QJsonValue(!before));
    QVERIFY(desk().call(u"sim.set"_s, {{u"code"_s, 0xF3}, {u"value"_s, int(before)}}).ok());
    QVERIFY(desk().call(u"sync"_s).ok());
    QCOMPARE(desk().get(u"aiContrast.state"_s), QJsonValue(before));
}

void TestDeskMethods::applyWritesStoredValues()
{
    const int held = int(desk().get(u"aiContrast.state"_s).toBool());
    const qint64 since = lastSeq();
    QVERIFY(desk().call(u"apply"_s).ok());
    QCOMPARE(writesOf(0xF3, since), QJsonArray{held});
}

void TestDeskMethods::settingsAreListedWrittenAndRemoved()
{
    const QString key = u"LuBrightness/Cinema/displayBrightness"_s;
    QVERIFY(desk().call(u"settings.set"_s, {{u"monitor"_s, m_id}, {u"key"_s, key}, {u"value"_s, 42}}).ok());
    QVERIFY(desk()
                .call(u"settings.set"_s, {{u"key"_s, u"test/own"_s}, {u"value"_s, QJsonArray{1, u"a"_s}}})
                .ok());
    QJsonObject settings = desk().call(u"settings"_s).result.toObject();
    QCOMPARE(membersOf(settings), (QStringList{u"application"_s, u"monitor"_s}));
    QCOMPARE(settings.value("monitor"_L1).toObject().value(key).toVariant().toInt(), 42);
    QCOMPARE(settings.value("application"_L1).toObject().value("test/own"_L1), (QJsonArray{1, u"a"_s}));
    QVERIFY(!settings.value("application"_L1).toObject().contains(key));
    for (int i = 0; i < 2; ++i)
        QVERIFY(desk().call(u"settings.remove"_s, {{u"monitor"_s, m_id}, {u"key"_s, key}}).ok());
    QVERIFY(desk().call(u"settings.remove"_s, {{u"key"_s, u"test/own"_s}}).ok());
    settings = desk().call(u"settings"_s).result.toObject();
    QVERIFY(!settings.value("monitor"_L1).toObject().contains(key));
    QVERIFY(!settings.value("application"_L1).toObject().contains(u"test/own"_s));
    for (const QString& wrong : {u""_s, u"/a"_s, u"a/"_s, u"a//b"_s})
        QCOMPARE(desk().call(u"settings.set"_s, {{u"key"_s, wrong}, {u"value"_s, 1}}).code, -32602);
}

void TestDeskMethods::eventsAreKept()
{
    const QJsonArray before = desk().call(u"events"_s).result.toArray();
    const qint64 since = before.isEmpty() ? 0 : before.last().toObject().value("seq"_L1).toInteger();
    const QJsonArray arguments{u"ACT_AUTO_PIVOT"_s, u"on_update_setting"_s, u"SOURCE_USER"_s,
                               QJsonArray{u"a"_s, u"b"_s}};
    QVERIFY(
        desk().call(u"call"_s, {{u"path"_s, u"autoPivot.fireCustomEvent"_s}, {u"args"_s, arguments}}).ok());
    const QJsonArray events = desk().call(u"events"_s, {{u"since"_s, since}}).result.toArray();
    QCOMPARE(events.size(), 1);
    QJsonObject event = events[0].toObject();
    QVERIFY(event.take("seq"_L1).toInteger() > since);
    QVERIFY(QDateTime::fromString(event.take("time"_L1).toString(), Qt::ISODateWithMs).isValid());
    QCOMPARE(event, (QJsonObject{{u"run"_s, 0},
                                 {u"monitor"_s, m_id},
                                 {u"module"_s, u"LuAutoPivot"_s},
                                 {u"action"_s, 6},
                                 {u"kind"_s, u"custom"_s},
                                 {u"event"_s, u"on_update_setting"_s},
                                 {u"source"_s, 0},
                                 {u"parameters"_s, QJsonArray{u"a"_s, u"b"_s}}}));
    QCOMPARE(desk().call(u"events"_s, {{u"run"_s, 1}}).code, -32602);
}

void TestDeskMethods::snapshotAndUpdateGiveOneEvent()
{
    const QJsonObject module{{u"module"_s, u"LuAutoPivot"_s}};
    QVERIFY(desk().call(u"snapshot"_s, module).ok());
    QVERIFY(desk().call(u"fireUpdate"_s, module).ok());
    QCOMPARE(desk().call(u"snapshot"_s, {{u"module"_s, u"LuNope"_s}}).code, 2);
    QCOMPARE(desk().call(u"fireUpdate"_s, {{u"module"_s, u"LuNope"_s}}).code, 2);
}

void TestDeskMethods::packagesAreListed()
{
    const QJsonObject package = desk().call(u"package"_s).result.toArray().first().toObject();
    QCOMPARE(package.value("name"_L1), QJsonValue(u"TKPackage"_s));
    QCOMPARE(package.value("kind"_L1), QJsonValue(3));
    QCOMPARE(package.value("models"_L1),
             (QJsonArray{u"TK10"_s, u"TK20"_s, u"TK30"_s, u"TK30X"_s, u"TK30Z"_s, u"TK40"_s, u"TK40X"_s}));
    QCOMPARE(package.value("widgets"_L1).toArray().size(), 28);
    QCOMPARE(package.value("widgets"_L1).toArray().first(), QJsonValue(u"LuVolumeWidget"_s));
}

void TestDeskMethods::theModelIsTold()
{
    const QJsonObject model = desk().call(u"model"_s).result.toObject();
    QCOMPARE(model.value("autoSync"_L1), QJsonValue(true));
    QCOMPARE(model.value("loadSettings"_L1), QJsonValue(true));
    QCOMPARE(model.value("firstTimeConnected"_L1), QJsonValue(false));
    QVERIFY(model.value("skipped"_L1).isArray());
    const QJsonArray modules = model.value("modules"_L1).toArray();
    QVERIFY(modules.contains(u"LuAiContrast"_s) && modules.contains(u"LuAutoPivot"_s));
    const QJsonObject tasks = model.value("syncTasks"_L1).toObject();
    QCOMPARE(tasks.size(), modules.size());
    QCOMPARE(tasks.value("LuAiContrast"_L1), QJsonValue(1));
}

void TestDeskMethods::statisticsAreTold()
{
    const auto answer = desk().call(u"stats"_s);
    QVERIFY2(answer.ok(), qPrintable(answer.message));
    QVERIFY(!answer.result.toObject().isEmpty());
}

void TestDeskMethods::actionsAreListed()
{
    const auto answer = desk().call(u"actions"_s);
    QVERIFY(answer.ok());
    const QJsonArray actions = answer.result.toArray();
    for (const QJsonValue& action : actions)
        QCOMPARE(membersOf(action),
                 (QStringList{u"active"_s, u"duplicated"_s, u"key"_s, u"name"_s, u"title"_s}));
}

void TestDeskMethods::triggerSetsAsAnotherFunction()
{
    const bool before = desk().get(u"aiContrast.state"_s).toBool();
    const auto trigger = [this](const QJsonObject& properties) {
        return desk().call(u"trigger"_s, {{u"module"_s, u"LuAiContrast"_s}, {u"properties"_s, properties}});
    };
    QVERIFY(trigger({{u"state"_s, !before}}).ok());
    QVERIFY(desk().call(u"idle"_s).ok());
    QCOMPARE(desk().get(u"aiContrast.state"_s), QJsonValue(!before));
    QCOMPARE(trigger({{u"nope"_s, 1}}).code, 2);
    QCOMPARE(trigger({{u"aiContrastEnable"_s, true}}).code, 3);
    QCOMPARE(trigger({{u"state"_s, 1}}).code, 4);
    QCOMPARE(desk().get(u"aiContrast.state"_s), QJsonValue(!before));
}

void TestDeskMethods::flowActionsAreKept()
{
    QCOMPARE(desk().call(u"flowActions.list"_s, {{u"flow"_s, u"f"_s}}).result, QJsonValue(QJsonArray()));
    const QJsonObject wrongTitle{{u"flow"_s, u"f"_s}, {u"title"_s, 0}, {u"properties"_s, QJsonObject()}};
    QCOMPARE(desk().call(u"flowActions.register"_s, wrongTitle).code, -32602);
    const QJsonObject wrongProperty{
        {u"flow"_s, u"f"_s}, {u"title"_s, 12}, {u"properties"_s, QJsonObject{{u"nope"_s, 1}}}};
    QCOMPARE(desk().call(u"flowActions.register"_s, wrongProperty).code, 2);
    const QJsonObject right{
        {u"flow"_s, u"f"_s}, {u"title"_s, 12}, {u"properties"_s, QJsonObject{{u"syncEnable"_s, true}}}};
    const auto registered = desk().call(u"flowActions.register"_s, right);
    QVERIFY2(registered.ok(), qPrintable(registered.message));
    const QJsonArray list = desk().call(u"flowActions.list"_s, {{u"flow"_s, u"f"_s}}).result.toArray();
    QCOMPARE(list.size(), 1);
    QCOMPARE(list[0].toObject().value("module"_L1), QJsonValue(u"LuFlow"_s));
    QCOMPARE(list[0].toObject().value("properties"_L1).toObject(), (QJsonObject{{u"syncEnable"_s, true}}));
    QVERIFY(desk().call(u"flowActions.unregister"_s, {{u"flow"_s, u"f"_s}, {u"title"_s, 12}}).ok());
    QCOMPARE(desk().call(u"flowActions.list"_s, {{u"flow"_s, u"f"_s}}).result, QJsonValue(QJsonArray()));
}

void TestDeskMethods::theQueueIsListed()
{
    DeskProcess process;
    QVERIFY2(
        process.start({u"--headless"_s, u"--simulate"_s, u"TK30Z@A,TK30Z@B"_s, u"--ddc-timing"_s, u"fast"_s}),
        qPrintable(process.errors()));
    ControlClient& two = process.client();
    QVERIFY(two.call(u"clock.set"_s, {{u"time"_s, u"2026-03-02T10:00:00"_s}}).ok());
    const auto idle = [&two] { return two.call(u"idle"_s).ok(); };
    const auto jobs = [&two](const QString& monitor) {
        const auto answer = two.call(u"queue"_s, {{u"monitor"_s, monitor}});
        QStringList lines;
        const QJsonArray list = answer.result.toArray();
        for (const QJsonValue& each : list) {
            const QJsonObject job = each.toObject();
            lines.append(job.value("queue"_L1).toString() + u' ' + job.value("key"_L1).toString() + u' ' +
                         job.value("context"_L1).toString() + u' ' + job.value("due"_L1).toString().left(13));
        }
        return lines;
    };
    const auto checks = [&jobs](const QString& monitor) {
        return jobs(monitor)
            .filter(QRegularExpression(u"^LuWeather checkTime LuWeather 2026-03-02T"_s))
            .size();
    };
    QVERIFY(idle());
    QCOMPARE(checks(u"TK30Z@A"_s), 0);
    // The features' own queues are listed too, each with its own monitor.
    for (const QString& path : {u"lowBlueLight.weather.circadianMode"_s, u"lowBlueLight.circadianState"_s})
        QVERIFY(two.call(u"set"_s, {{u"monitor"_s, u"TK30Z@A"_s},
                                    {u"path"_s, path},
                                    {u"value"_s,
                                     path.endsWith(u"Mode"_s) ? QJsonValue(u"Manual"_s) : QJsonValue(true)}})
                    .ok());
    QVERIFY(idle());
    QCOMPARE(checks(u"TK30Z@A"_s), 1);
    QCOMPARE(checks(u"TK30Z@B"_s), 0);
    QCOMPARE(jobs(u"TK30Z@B"_s).filter(u"TK30Z@A "_s), QStringList());
    QCOMPARE(two.call(u"queue"_s, {{u"monitor"_s, u"TK20"_s}}).code, 1);
    QCOMPARE(process.stop(), 0);
}

void TestDeskMethods::logLinesAreKept()
{
    const QJsonArray lines = desk().call(u"log"_s).result.toArray();
    QVERIFY(!lines.isEmpty());
    const QJsonObject last = lines.last().toObject();
    QCOMPARE(membersOf(last), (QStringList{u"level"_s, u"seq"_s, u"text"_s}));
    const QJsonArray newer = desk().call(u"log"_s, {{u"since"_s, last.value("seq"_L1)}}).result.toArray();
    for (const QJsonValue& line : newer)
        QVERIFY(line.toObject().value("seq"_L1).toInteger() > last.value("seq"_L1).toInteger());
    QCOMPARE(desk().call(u"log"_s, {{u"since"_s, -1}}).code, -32602);
}

void TestDeskMethods::forgettingMeetsTheMonitorAnew()
{
    QVERIFY(desk().call(u"forgetFirstConnection"_s).ok());
    QCOMPARE(desk().call(u"forgetFirstConnection"_s, {{u"monitor"_s, u"none"_s}}).code, 1);
}

void TestDeskMethods::errorsNameWhatWasWrong_data()
{
    QTest::addColumn<QString>("method");
    QTest::addColumn<QJsonObject>("parameters");
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("named");
    QTest::newRow("method") << "fly" << QJsonObject() << -32601 << "fly";
    QTest::newRow("parameter") << "version" << QJsonObject{{u"x"_s, 1}} << -32602 << "x";
    QTest::newRow("missing") << "get" << QJsonObject() << -32602 << "path";
    QTest::newRow("monitor") << "get" << QJsonObject{{u"monitor"_s, u"TK99"_s}, {u"path"_s, u"id"_s}} << 1
                             << "TK99";
    QTest::newRow("path") << "get" << QJsonObject{{u"path"_s, u"aiContrast.glow"_s}} << 2 << "glow";
    QTest::newRow("module") << "sync" << QJsonObject{{u"module"_s, u"LuNope"_s}} << 2 << "LuNope";
    QTest::newRow("not writable") << "set" << QJsonObject{{u"path"_s, u"id"_s}, {u"value"_s, u"x"_s}} << 3
                                  << "id";
    QTest::newRow("wrong type") << "set"
                                << QJsonObject{{u"path"_s, u"aiContrast.state"_s}, {u"value"_s, u"x"_s}} << 4
                                << "state";
    QTest::newRow("colour mode") << "set"
                                 << QJsonObject{{u"path"_s, u"colorMode"_s}, {u"value"_s, u"Sepia"_s}} << 4
                                 << "Sepia";
    QTest::newRow("arguments") << "call"
                               << QJsonObject{{u"path"_s, u"openFocusAssist"_s}, {u"args"_s, QJsonArray{1}}}
                               << -32602 << "openFocusAssist";
    QTest::newRow("signal") << "watch" << QJsonObject{{u"paths"_s, QJsonArray{u"aiContrast.gone()"_s}}} << 2
                            << "gone";
    QTest::newRow("constant") << "watch"
                              << QJsonObject{{u"paths"_s, QJsonArray{u"aiContrast.aiContrastEnable"_s}}} << 2
                              << "aiContrastEnable";
}

void TestDeskMethods::errorsNameWhatWasWrong()
{
    QFETCH(QString, method);
    QFETCH(QJsonObject, parameters);
    QFETCH(int, code);
    QFETCH(QString, named);
    const auto answer = desk().call(method, parameters);
    QCOMPARE(answer.code, code);
    QVERIFY2(answer.message.contains(named), qPrintable(answer.message));
}

void TestDeskMethods::withoutAWindowItsMethodsSaySo_data()
{
    QTest::addColumn<QString>("method");
    QTest::addColumn<QJsonObject>("parameters");
    const QJsonObject name{{u"name"_s, u"x"_s}};
    QTest::newRow("show") << "ui.show" << QJsonObject();
    QTest::newRow("hide") << "ui.hide" << QJsonObject();
    QTest::newRow("widgets") << "ui.widgets" << QJsonObject();
    QTest::newRow("open") << "ui.open" << QJsonObject{{u"widget"_s, u"x"_s}};
    QTest::newRow("tree") << "ui.tree" << QJsonObject();
    QTest::newRow("press") << "ui.press" << name;
    QTest::newRow("screenshot") << "ui.screenshot" << QJsonObject{{u"file"_s, u"/nowhere/x.png"_s}};
}

void TestDeskMethods::withoutAWindowItsMethodsSaySo()
{
    QFETCH(QString, method);
    QFETCH(QJsonObject, parameters);
    QCOMPARE(desk().call(method, parameters).code, 6);
}

QTEST_GUILESS_MAIN(TestDeskMethods)
#include "tst_desk_methods.moc"
