// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "HeldQueue.h"
#include "module_bed.h"

#include <LuShared/LuMediaDevices.h>
#include <lushared/LuMonitorRegistry.h>

#include <QJsonArray>
#include <QJsonObject>
#include <QKeyEvent>

/// The package's name with other widgets, which replace those that were announced before.
class WidgetsOnly : public LuPackagesInterface
{
public:
    explicit WidgetsOnly(QList<QUrl> widgets) : m_widgets(std::move(widgets))
    {
        LuMonitorRegistry().addPackage(this);
    }
    QString name() override { return TestBed::instance().package()->name(); }
    ModelConstructor modelConstructor() override { return {}; }
    QList<QUrl> widgetUrls() override { return m_widgets; }
    QStringList supportedModels() override { return {}; }
    int packageKind() override { return 0; }
    QObject* translator() override { return nullptr; }

private:
    QList<QUrl> m_widgets;
};

/// A simulated monitor whose speakers are looked at, in a session with audio outputs.
class AudioBed : public ModuleBed
{
public:
    static constexpr int Volume = 0x62;
    static constexpr int Mute = 0x8D;
    static constexpr int Mode = 0x94;
    static constexpr int Gain = 0x99;

    explicit AudioBed(const QString& name = QStringLiteral("TK30Z")) : ModuleBed("LuVolume", name)
    {
        const WidgetsOnly all(TestBed::instance().package()->widgetUrls());
        outputs({{QStringLiteral("BuiltInSpeakerDevice"), QStringLiteral("Built-in Speakers")},
                 {QStringLiteral("dp-0"), name + QStringLiteral(" DisplayPort")},
                 {QStringLiteral("usb-0"), QStringLiteral("Headset")}});
        play("BuiltInSpeakerDevice");
        QVERIFY(session("systemVolume", 50));
    }

    static bool session(const char* path, const QJsonValue& value)
    {
        return TestBed::instance().services().set(QLatin1String(path), value);
    }
    static QJsonValue desktop(const char* path)
    {
        return TestBed::instance().services().get(QLatin1String(path));
    }
    /// The outputs of the session, as pairs of id and name.
    static void outputs(const QList<std::pair<QString, QString>>& list)
    {
        QJsonArray array;
        for (const auto& [id, name] : list)
            array.append(QJsonObject{{QStringLiteral("id"), id}, {QStringLiteral("name"), name}});
        QVERIFY(session("audioOutputs", array));
    }
    /// Makes an output the session's default one, as its user does.
    static void play(const char* id) { QVERIFY(session("defaultAudioOutput", QLatin1String(id))); }
    /// Begins with the session playing through the monitor.
    void beginPlaying(const QList<std::pair<const char*, QVariant>>& values = {})
    {
        play("dp-0");
        beginWith(values);
    }

    /// Presses the key of an action: whether the module took it.
    bool press(LuShortcutAction::ActionName name, bool repeated = false)
    {
        const QKeyEvent event(QEvent::KeyPress, Qt::Key_F1, Qt::NoModifier, QString(), repeated);
        const QList<LuShortcutAction*> actions = model().shortcutActions();
        for (LuShortcutAction* action : actions) {
            if (action->name() == name) {
                action->setActive(true);
                return action->handle(event);
            }
        }
        return false;
    }

    static QString entry(const char* type, const char* category, const char* value)
    {
        return QStringLiteral("<VCPcode Type=\"%1\" Name=\"%1\" Category=\"%2\" Value=\"%3\"/>")
            .arg(QLatin1String(type), QLatin1String(category), QLatin1String(value));
    }
    void readSchema(const QString& entries)
    {
        const QString text = QStringLiteral("<VCPTree><VCPList>%1</VCPList></VCPTree>").arg(entries);
        module()->readSchema(text.toUtf8());
    }
    /// What no model of the series has: modes in which the equaliser may be changed.
    void allowEqualiser()
    {
        readSchema(entry("Volume", "Volume", "on") + entry("MaxVolume", "MaxVolume", "50") +
                   entry("Standard", "Audio Mode", "on") + entry("Music", "Audio Mode", "on") +
                   entry("User", "Audio Mode", "on") + entry("User", "Editable Audio Mode", "on") +
                   entry("Music", "Editable Audio Mode", "on"));
    }

    void setGain(int band, int gain)
    {
        QVERIFY(QMetaObject::invokeMethod(module(), "setGain", Qt::DirectConnection,
                                          QGenericArgument("LuVolume::Frequency", &band),
                                          QGenericArgument("int", &gain)));
    }
    void resetGains() { QVERIFY(QMetaObject::invokeMethod(module(), "resetGains", Qt::DirectConnection)); }
    int gain(int band)
    {
        int result = -100;
        QMetaObject::invokeMethod(module()->property("frequencyGainHash").value<QObject*>(), "get",
                                  Qt::DirectConnection, QGenericReturnArgument("int", &result),
                                  QGenericArgument("LuVolume::Frequency", &band));
        return result;
    }
    QList<int> gains() { return {gain(1), gain(3), gain(10), gain(30), gain(100)}; }

    /// The transactions of the speakers alone.
    QStringList wireOfAudio() { return wireOf({Volume, Mute, Mode, Gain}); }
};
