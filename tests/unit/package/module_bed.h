// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "SimulatedBed.h"

#include <QDeadlineTimer>
#include <QStringList>
#include <QTest>

#include <optional>
#include <thread>

/// A simulated monitor of which one module is looked at: its properties, settings, codes, events and log.
class ModuleBed : public SimulatedBed
{
public:
    ModuleBed(const char* module, const QString& name, Timing timing = Timing::Fast)
        : SimulatedBed(name, timing), m_module(module)
    {
    }

    /// Launched, with the first round behind it.
    void begin()
    {
        launch();
        QVERIFY(idle());
    }
    /// Writes properties one after the other and forgets what came of it.
    void beginWith(const QList<std::pair<const char*, QVariant>>& values)
    {
        begin();
        for (const auto& [name, value] : values) {
            put(name, value);
            QVERIFY(idle());
        }
        forget();
    }

    LuModelModuleInterface* module() { return SimulatedBed::module(m_module); }
    void put(const char* property, const QVariant& value) { set(m_module, property, value); }
    int number(const char* property) { return get(m_module, property).toInt(); }
    bool flag(const char* property) { return get(m_module, property).toBool(); }
    bool syncModule() { return sync(m_module); }

    /// A key that belongs to the colour mode, and what is stored there.
    QString key(const char* name)
    {
        return QStringLiteral("%1/%2/%3")
            .arg(QLatin1String(m_module), model().colorMode()->displayName(), QLatin1String(name));
    }
    QVariant stored(const char* name) { return setting(key(name)); }

    /// A key that is the same in all colour modes.
    QVariant plain(const char* name) { return setting(QLatin1String(m_module) + u'/' + QLatin1String(name)); }
    /// As put(); @p triggered: by another function of the program instead of a person.
    void putBy(bool triggered, const char* property, const QVariant& value)
    {
        std::optional<LuMonitorModel::OtherFunctionScope> scope;
        if (triggered)
            scope.emplace(module());
        put(property, value);
    }

    /// Whether a line with @p text was logged since forget() was called last.
    bool logged(const QString& text)
    {
        m_lines += log();
        return !m_lines.filter(text).isEmpty();
    }
    QStringList told() { return events().filter(QLatin1String(m_module) + QLatin1Char(' ')); }
    /// The transactions of these codes alone: a change of one module lets others be read, too.
    QStringList wireOf(const QList<int>& codes)
    {
        QStringList result;
        const QStringList all = wire();
        for (const QString& entry : all) {
            for (const int code : codes) {
                if (entry.section(QLatin1Char(' '), 1, 1).toInt(nullptr, 16) == code)
                    result.append(entry);
            }
        }
        return result;
    }

    /// The next program run; what was stored, read or written before it is forgotten.
    bool relaunchAnew()
    {
        forget();
        relaunch();
        return idle();
    }
    /// The events of the program's end.
    QStringList toldAtExit()
    {
        forget();
        module()->fireExitEvent();
        return told();
    }

    /// Starts a read-back and returns as soon as @p code has been read in it.
    bool beginReadBackUntil(int code)
    {
        const quint64 before = lastTraffic();
        module()->forceSyncHardwareState(false);
        QDeadlineTimer limit(10'000);
        while (!limit.hasExpired()) {
            const QList<sim::TrafficEntry> entries = monitor().traffic(before);
            for (const sim::TrafficEntry& entry : entries) {
                if (entry.code == code)
                    return true;
            }
            std::this_thread::yield();
        }
        return false;
    }

    void fail(int code)
    {
        sim::Fault fault;
        fault.kind = sim::FaultKind::Nack;
        fault.code = std::uint8_t(code);
        monitor().armFault(fault);
    }

private:
    quint64 lastTraffic()
    {
        const QList<sim::TrafficEntry> entries = monitor().traffic();
        return entries.isEmpty() ? 0 : entries.last().seq;
    }

    const char* m_module;
    QStringList m_lines;
};
