// SPDX-License-Identifier: Apache-2.0
// Measures the program against its performance budget and prints both side by side.

#include "ProcessProbe.h"

#include <SimulatedBed.h>

#include <LuShared/LuPackagesInterface.h>
#include <lushared/LuHostOptions.h>
#include <lushared/LuModelHost.h>
#include <panelcore/MonitorLink.h>

#include <benchmark/benchmark.h>

#include <QElapsedTimer>
#include <QGuiApplication>
#include <QJsonDocument>
#include <QJsonObject>
#include <QThread>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <map>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

/// What is allowed, by the name of the benchmark. Units as in the text.
struct Budget
{
    const char* name;
    const char* what;
    double limit;
    const char* unit;
};

constexpr Budget Budgets[] = {
    {"WriteToWire", "property write to first bit on the wire, idle monitor, median", 3.0, "ms"},
    {"SliderLastMove", "200 slider moves in 2 s: last move to the wire, longest of 5", 60.0, "ms"},
    {"SliderWrites", "200 slider moves in 2 s: writes for each 50 ms, most of 5", 1.0, ""},
    {"SliderError", "200 slider moves in 2 s: distance of the last value on the wire", 0.0, ""},
    {"ReadBack", "read-back of every feature, times the protocol's own waits", 1.05, "x"},
    {"GuiBlocked", "GUI thread blocked by a monitor that hangs, longest", 4.0, "ms"},
    {"Construction", "construction of a model with its 27 modules, bus time excluded, median", 20.0, "ms"},
    {"HeadlessStart", "headless start to control socket, median", 150.0, "ms"},
    {"WindowStart", "process start to window, off-screen, median", 500.0, "ms"},
    {"SliderFrame", "longest frame while a slider moves and the monitor hangs", 16.0, "ms"},
    {"SliderTurn", "longest turn of the GUI thread while a slider moves and the monitor hangs", 16.0, "ms"},
    {"HeadlessMemory", "resident memory, headless, one monitor", 45.0, "MB"},
    {"FurtherMonitor", "resident memory of each further monitor", 1.0, "MB"},
    {"WindowMemory", "resident memory with the window", 130.0, "MB"},
    {"IdleTransfers", "transfers in 10 s, window hidden", 0.0, ""},
    {"IdleWakeUps", "wake-ups a second, headless", 1.0, "/s"},
};

std::map<std::string, double> measured;

double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values.empty() ? -1 : values[values.size() / 2];
}

double nowMs()
{
    return std::chrono::duration<double, std::milli>(sim::Clock::now().time_since_epoch()).count();
}

void note(benchmark::State& state, const char* name, double value)
{
    measured[name] = value;
    state.counters["value"] = value;
}

QStringList simulated(const char* models, bool headless)
{
    QStringList arguments{QStringLiteral("--simulate"), QString::fromLatin1(models)};
    if (headless)
        arguments.append(QStringLiteral("--headless"));
    return arguments;
}

void WriteToWire(benchmark::State& state)
{
    SimulatedBed bed(QStringLiteral("TK30Z"), SimulatedBed::Timing::Real);
    const double epoch = bed.epochMs();
    bed.launch();
    bed.idle();
    std::vector<double> times;
    bool on = false;
    for ([[maybe_unused]] auto iteration : state) {
        QThread::msleep(100); // idle: the wait after the write before has passed
        on = !on;
        const double start = nowMs();
        bed.set("LuAiContrast", "state", on);
        bed.idle();
        const double first = bed.monitor().traffic().last().ms + epoch;
        times.push_back(first - start);
        state.SetIterationTime((first - start) / 1000.0);
    }
    note(state, "WriteToWire", median(times));
}
BENCHMARK(WriteToWire)->UseManualTime()->Iterations(50)->Unit(benchmark::kMillisecond);

// A person's drag: a move each 10 ms, the last one to a value that no earlier move had.
void SliderOnTheWire(benchmark::State& state)
{
    constexpr int Moves = 200;
    constexpr int MoveMs = 10;
    constexpr int Last = 63;
    SimulatedBed bed(QStringLiteral("TK30Z"), SimulatedBed::Timing::Real);
    bed.launch();
    bed.idle();
    bed.get("LuBrightness", "softwareDimming").value<QObject*>()->setProperty("state", false);
    bed.idle();
    double longest = 0;
    double most = 0;
    double error = 0;
    for ([[maybe_unused]] auto iteration : state) {
        const quint64 before = bed.monitor().traffic().last().seq;
        const double start = nowMs();
        double asked = start;
        for (int i = 1; i <= Moves; ++i) {
            asked = nowMs();
            bed.set("LuBrightness", "displayBrightness", i == Moves ? Last : (i * 7) % Last);
            QCoreApplication::processEvents();
            const double due = start + double(i) * MoveMs;
            if (nowMs() < due)
                QThread::usleep(static_cast<unsigned long>((due - nowMs()) * 1000));
        }
        bed.idle();
        const QList<sim::TrafficEntry> traffic = bed.monitor().traffic(before);
        int writes = 0;
        double last = start;
        for (const sim::TrafficEntry& entry : traffic) {
            if (entry.op != sim::Op::Set || entry.code != 0x10)
                continue;
            ++writes;
            last = entry.ms + bed.epochMs();
        }
        longest = std::max(longest, last - asked);
        most = std::max(most, (writes - 1) / ((last - start) / 50.0));
        error = std::max(error, std::abs(double(bed.monitor().value(0x10).value_or(0)) - Last));
        state.SetIterationTime((last - asked) / 1000.0);
    }
    note(state, "SliderLastMove", longest);
    note(state, "SliderWrites", most);
    note(state, "SliderError", error);
}
BENCHMARK(SliderOnTheWire)->UseManualTime()->Iterations(5)->Unit(benchmark::kMillisecond);

void ReadBack(benchmark::State& state)
{
    SimulatedBed bed(QStringLiteral("TK30Z"), SimulatedBed::Timing::Real);
    bed.launch();
    bed.set("LuAutoPivot", "state", true);
    bed.idle();
    std::vector<double> ratios;
    for ([[maybe_unused]] auto iteration : state) {
        bed.forget();
        bool done = false;
        const double start = nowMs();
        double end = start;
        LuModelHost::sync(&bed.model(), nullptr, [&] {
            done = true;
            end = nowMs();
        });
        while (!done)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        const auto gets = bed.wire().size();
        ratios.push_back((end - start) / (40.0 * double(gets)));
        state.SetIterationTime((end - start) / 1000.0);
    }
    note(state, "ReadBack", median(ratios));
}
BENCHMARK(ReadBack)->UseManualTime()->Iterations(20)->Unit(benchmark::kMillisecond);

void GuiBlocked(benchmark::State& state)
{
    SimulatedBed bed;
    bed.launch();
    bed.idle();
    sim::Fault fault;
    fault.kind = sim::FaultKind::Timeout;
    fault.blocks = std::chrono::seconds(10);
    bed.monitor().armFault(fault);
    double longest = 0;
    bool on = false;
    for ([[maybe_unused]] auto iteration : state) {
        const double start = nowMs();
        on = !on;
        bed.set("LuAiContrast", "state", on);
        bed.model().setColorMode(bed.model().getColorModeByName(QStringLiteral("Cinema")));
        bed.set("LuAiContrast", "syncEnable", on);
        benchmark::DoNotOptimize(bed.get("LuAiContrast", "state"));
        QCoreApplication::processEvents();
        const double end = nowMs();
        longest = std::max(longest, end - start);
        state.SetIterationTime((end - start) / 1000.0);
    }
    bed.monitor().unplug();
    note(state, "GuiBlocked", longest);
}
BENCHMARK(GuiBlocked)->UseManualTime()->Iterations(200)->Unit(benchmark::kMillisecond);

void Construction(benchmark::State& state)
{
    std::vector<double> times;
    for ([[maybe_unused]] auto iteration : state) {
        SimulatedBed bed;
        const auto info = bed.makeInfo();
        const double start = nowMs();
        const std::unique_ptr<LuMonitorModel> model(
            TestBed::instance().package()->modelConstructor()(nullptr, info));
        const double end = nowMs();
        times.push_back(end - start);
        state.SetIterationTime((end - start) / 1000.0);
        waitForRest();
    }
    note(state, "Construction", median(times));
}
BENCHMARK(Construction)->UseManualTime()->Iterations(50)->Unit(benchmark::kMillisecond);

void startTime(benchmark::State& state, const char* name, bool headless, const char* method)
{
    std::vector<double> times;
    for ([[maybe_unused]] auto iteration : state) {
        ProcessProbe probe(simulated("TK30Z", headless));
        times.push_back(probe.startMs(QString::fromLatin1(method)));
        state.SetIterationTime(times.back() / 1000.0);
    }
    note(state, name, median(times));
}

void HeadlessStart(benchmark::State& state)
{
    startTime(state, "HeadlessStart", true, "version");
}
BENCHMARK(HeadlessStart)->UseManualTime()->Iterations(9)->Unit(benchmark::kMillisecond);

void WindowStart(benchmark::State& state)
{
    startTime(state, "WindowStart", false, "ui.windows");
}
BENCHMARK(WindowStart)->UseManualTime()->Iterations(9)->Unit(benchmark::kMillisecond);

double numberIn(const QByteArray& answer, const char* name)
{
    return QJsonDocument::fromJson(answer)
        .object()
        .value(u"result"_s)
        .toObject()
        .value(QLatin1String(name))
        .toDouble(-1);
}

void SliderFrames(benchmark::State& state)
{
    for ([[maybe_unused]] auto iteration : state) {
        ProcessProbe window(simulated("TK30Z", false));
        window.startMs(QStringLiteral("ui.windows"));
        window.call("idle");
        const auto move = [&window](int value) {
            window.call("ui.setValue",
                        R"({"name":"Brightness","role":"slider","value":)" + QByteArray::number(value) + '}');
        };
        move(10); // what is made on the first move has been made
        window.call("sim.fault", R"({"kind":"timeout"})");
        window.call("ui.frames");
        // Pictures come at their own pace: the slider moves until enough have been drawn. Another program may
        // hold up a sweep, so the best of a few counts.
        constexpr int Sweeps = 5;
        constexpr int Frames = 20;
        constexpr int MostMoves = 10'000;
        double frame = -1;
        double turn = -1;
        for (int sweep = 0; sweep < Sweeps; ++sweep) {
            int drawn = 0;
            double longestFrame = 0;
            double longestTurn = 0;
            for (int count = 0; drawn < Frames && count < MostMoves; ++count) {
                move(10 + count % 80);
                if (count % 20 != 19)
                    continue;
                const QByteArray told = window.call("ui.frames");
                drawn += int(numberIn(told, "frames"));
                longestFrame = std::max(longestFrame, numberIn(told, "longestFrameMs"));
                longestTurn = std::max(longestTurn, numberIn(told, "longestMs"));
            }
            // Nothing drawn is nothing measured.
            if (drawn < Frames)
                continue;
            frame = frame < 0 ? longestFrame : std::min(frame, longestFrame);
            turn = turn < 0 ? longestTurn : std::min(turn, longestTurn);
        }
        measured["SliderFrame"] = frame;
        measured["SliderTurn"] = turn;
    }
}
BENCHMARK(SliderFrames)->Iterations(1);

void Memory(benchmark::State& state)
{
    for ([[maybe_unused]] auto iteration : state) {
        ProcessProbe one(simulated("TK30Z", true));
        one.startMs(QStringLiteral("idle"));
        const double alone = one.residentMb();
        ProcessProbe nine(simulated("TK30Z,TK30Z,TK30Z,TK30Z,TK30Z,TK30Z,TK30Z,TK30Z,TK30Z", true));
        nine.startMs(QStringLiteral("idle"));
        ProcessProbe window(simulated("TK30Z", false));
        window.startMs(QStringLiteral("ui.windows"));
        window.call("idle");
        measured["HeadlessMemory"] = alone;
        measured["FurtherMonitor"] = (nine.residentMb() - alone) / 8.0;
        measured["WindowMemory"] = window.residentMb();
    }
}
BENCHMARK(Memory)->Iterations(1);

void Idle(benchmark::State& state)
{
    for ([[maybe_unused]] auto iteration : state) {
        ProcessProbe probe(simulated("TK30Z", true));
        probe.startMs(QStringLiteral("idle"));
        const auto transfers = [&probe] { return probe.call("sim.traffic").count("\"seq\""); };
        const auto transfersBefore = transfers();
        QThread::sleep(2);
        const qint64 before = probe.wakeUps();
        QThread::sleep(10);
        measured["IdleWakeUps"] = double(probe.wakeUps() - before) / 10.0;
        measured["IdleTransfers"] = double(transfers() - transfersBefore);
    }
}
BENCHMARK(Idle)->Iterations(1);

void printBudget()
{
    std::printf("\nBudget (%s build)\n%-75s %12s %12s\n", BUILD_KIND, "What", "measured", "allowed");
    int over = 0;
    for (const Budget& row : Budgets) {
        const auto found = measured.find(row.name);
        if (found == measured.end())
            continue;
        const bool good = found->second >= 0 && found->second <= row.limit;
        over += !good;
        std::printf("%-75s %9.2f %-2s %9.2f %-2s %s\n", row.what, found->second, row.unit, row.limit,
                    row.unit, good ? "" : "OVER");
    }
    std::printf("%d over budget\n", over);
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication application(argc, argv);
    TestBed::instance();
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    printBudget();
    return 0;
}
