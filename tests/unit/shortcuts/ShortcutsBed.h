// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "SimulatedBed.h"

#include <LuShared/LuShortcutAction.h>
#include <lushared/LuModelHost.h>
#include <lushared/LuSettings.h>

#include <QJsonObject>
#include <QKeySequence>
#include <QTest>

/// A monitor whose shortcuts are on, and the keys of the simulated session.
struct ShortcutsBed : SimulatedBed
{
    static constexpr const char* Module = "LuShortcuts";
    using Name = LuShortcutAction::ActionName;

    explicit ShortcutsBed(const QString& name = QStringLiteral("TK30Z")) : SimulatedBed(name) {}

    /// Launched as the current monitor, with the first round behind it.
    void begin(bool active = true)
    {
        launch();
        makeCurrent();
        QVERIFY(idle());
        set(Module, "active", active);
        QVERIFY(idle());
        forget();
    }

    /// From now on the keys of the session are this monitor's.
    void makeCurrent()
    {
        LuModelHost::setCurrent(&model(), true);
        TestBed::instance().services().setKeyHandler(
            [this](Qt::KeyboardModifiers modifiers, Qt::Key key, bool repeated) {
                return LuModelHost::handleKey(&model(), modifiers, key, repeated);
            });
    }

    /// "Ctrl+Alt", "C": whether the program took it, as the session is told.
    bool press(const QString& modifiers, const QString& key, bool repeated = false)
    {
        return TestBed::instance()
            .services()
            .emitSignal(QStringLiteral("activeKeyEvent"),
                        QJsonObject{{QStringLiteral("modifiers"), modifiers},
                                    {QStringLiteral("key"), key},
                                    {QStringLiteral("repeated"), repeated}})
            .value(QLatin1String("handled"))
            .toBool();
    }

    LuShortcutAction* action(Name name)
    {
        for (LuShortcutAction* each : model().shortcutActions()) {
            if (each->name() == name)
                return each;
        }
        return nullptr;
    }
    /// "Ctrl+Alt+C", empty without keys, "none" if the monitor has no such action.
    QString keysOf(Name name)
    {
        const LuShortcutAction* found = action(name);
        if (!found)
            return QStringLiteral("none");
        QStringList all;
        for (const QKeyCombination keys : found->keys())
            all.append(QKeySequence(keys).toString(QKeySequence::PortableText));
        return all.join(QLatin1Char(' '));
    }

    template <class Result = void, class... Arguments>
    Result call(const char* operation, Arguments... arguments)
    {
        if constexpr (std::is_void_v<Result>) {
            const bool called =
                QMetaObject::invokeMethod(module(Module), operation, Qt::DirectConnection,
                                          QArgument<Arguments>(typeName<Arguments>(), arguments)...);
            Q_ASSERT(called);
            Q_UNUSED(called);
        } else {
            Result result{};
            const bool called =
                QMetaObject::invokeMethod(module(Module), operation, Qt::DirectConnection,
                                          QReturnArgument<Result>(typeName<Result>(), result),
                                          QArgument<Arguments>(typeName<Arguments>(), arguments)...);
            Q_ASSERT(called);
            Q_UNUSED(called);
            return result;
        }
    }
    QString combo(Name name) { return call<QString>("shortcutCombo", LuShortcutAction::titleOf(name), name); }
    bool isCaptured(Name name)
    {
        return call<bool>("checkModifyShortcuts", LuShortcutAction::titleOf(name), name);
    }
    /// What the click on the action's row does.
    void beginCapture(Name name)
    {
        call("registerShortcuts", LuShortcutAction::titleOf(name), name, true);
        call("clearSetShortcutsName");
    }
    QString typed() { return get(Module, "pressKeyName").toString(); }
    bool flag(const char* property) { return get(Module, property).toBool(); }

    static QVariant stored(const QString& key) { return LuSettings::instance().value(key); }
    static void store(const QString& key, const QVariant& value)
    {
        LuSettings::instance().setValue(key, value);
    }
    /// Every stored combination, sorted.
    static QStringList storedKeys()
    {
        QStringList keys = LuSettings::instance().allKeys();
        keys.removeIf([](const QString& key) {
            static const QStringList titles{
                QStringLiteral("Input"),           QStringLiteral("ColorMode"),
                QStringLiteral("Brightness"),      QStringLiteral("Volume"),
                QStringLiteral("NightProtection"), QStringLiteral("EcoPrivacy"),
                QStringLiteral("ExtraCopyPaste"),  QStringLiteral("KvmSwitch"),
            };
            return !titles.contains(key.section(QLatin1Char('/'), 0, 0));
        });
        keys.sort();
        return keys;
    }
    /// The next monitor finds none that a person chose.
    static void forgetStoredKeys()
    {
        TestBed::instance();
        for (const QString& key : storedKeys())
            LuSettings::instance().remove(key);
    }

private:
    template <class T>
    static const char* typeName()
    {
        if constexpr (std::is_same_v<T, LuActionInterface::ActionTitle>)
            return "LuActionInterface::ActionTitle";
        else if constexpr (std::is_same_v<T, Name>)
            return "LuShortcutAction::ActionName";
        else
            return QMetaType::fromType<T>().name();
    }
};
