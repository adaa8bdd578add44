// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "module_bed.h"

#include <QByteArray>
#include <QSignalSpy>

/// A module with codes of its own, and the steps that every such feature goes through: what is asked for is
/// written, kept and told, a launch restores it, the program's end reports it off.
class FeatureBed : public ModuleBed
{
public:
    FeatureBed(const char* module, const QList<int>& codes, const QString& name, Timing timing = Timing::Fast)
        : ModuleBed(module, name, timing), m_codes(codes)
    {
    }

    /// The transactions of the feature's own codes.
    QStringList own() { return wireOf(m_codes); }

    /// Writes a property and waits until that has had its effect.
    bool ask(const char* property, const QVariant& value)
    {
        put(property, value);
        return idle();
    }

    /// One call of a setter and all that comes of it.
    struct Asked
    {
        const char* property;
        QVariant value;
        QStringList wire;
        QStringList told;
        QString logged;
        bool byAnotherFunction = false;
    };
    void checkAsked(const Asked& asked)
    {
        const QByteArray changed = QByteArray("2") + asked.property + "Changed()";
        const QSignalSpy changes(module(), changed.constData());
        putBy(asked.byAnotherFunction, asked.property, asked.value);
        QVERIFY(idle());
        QCOMPARE(own(), asked.wire);
        QCOMPARE(number(asked.property), asked.value.toInt());
        QCOMPARE(changes.count(), 1);
        QCOMPARE(told(), asked.told);
        QVERIFY(logged(asked.logged));
    }

    /// A write that the monitor does not take is shown until the next read-back.
    void checkFailedWrite(const char* property, int code)
    {
        fail(code);
        QVERIFY(ask(property, true));
        QCOMPARE(flag(property), true);
        monitor().clearFaults();
        QVERIFY(syncModule());
        QCOMPARE(flag(property), false);
    }

    /// What the monitor holds when it is met for the first time, and the events that come of it.
    void checkFirstConnection(int code, int value, const QStringList& events)
    {
        QVERIFY(monitor().setByMenu(code, value));
        begin();
        QCOMPARE(told(), events);
    }

    /// A feature that stays off is written at one launch and left alone afterwards; @p written is what a
    /// launch writes once it has been on.
    void checkWhatStaysOff(const char* property, const QString& written)
    {
        begin();
        QVERIFY(relaunchAnew());
        QVERIFY(relaunchAnew());
        QCOMPARE(own().filter(QStringLiteral("set")), QStringList());
        QVERIFY(ask(property, true));
        QVERIFY(relaunchAnew());
        QVERIFY(own().contains(written));
    }

    /// The program's end reports what is on as off.
    void checkExit(const char* property, const QString& event)
    {
        QCOMPARE(toldAtExit(), QStringList());
        QVERIFY(ask(property, true));
        QCOMPARE(toldAtExit(), QStringList{event});
    }

private:
    const QList<int> m_codes;
};
