// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "PictureDesk.h"

/// A running program in a session with audio outputs, whose speakers and keys a test drives.
class SoundDesk : public PictureDesk
{
public:
    /// Plays through the built-in speakers until the test says otherwise.
    bool startSound(const QString& monitors, bool window = false)
    {
        const QStringList services{QStringLiteral("--services"), QStringLiteral("simulated")};
        return (window ? startWindow(monitors) : startWith(monitors, services)) && outputs({}) && idle();
    }

    QJsonValue session(const QString& path)
    {
        return client().value(QStringLiteral("services.get"), {{QStringLiteral("path"), path}});
    }
    bool session(const QString& path, const QJsonValue& value)
    {
        return client()
            .call(QStringLiteral("services.set"),
                  {{QStringLiteral("path"), path}, {QStringLiteral("value"), value}})
            .ok();
    }
    /// The built-in speakers and those of the monitors of these models.
    bool outputs(const QStringList& models)
    {
        QJsonArray list{QJsonObject{{QStringLiteral("id"), QStringLiteral("BuiltInSpeakerDevice")},
                                    {QStringLiteral("name"), QStringLiteral("Built-in Speakers")}}};
        for (const QString& model : models)
            list.append(QJsonObject{{QStringLiteral("id"), model},
                                    {QStringLiteral("name"), model + QStringLiteral(" DisplayPort")}});
        return session(QStringLiteral("audioOutputs"), list);
    }
    /// Makes an output the session's default one, as its user does.
    bool play(const QString& id) { return session(QStringLiteral("defaultAudioOutput"), id); }
    bool playThrough(const QString& model) { return outputs({model}) && play(model); }

    QJsonValue invoke(const QString& path, const QJsonArray& arguments)
    {
        const QJsonValue result = client().value(
            QStringLiteral("call"), {{QStringLiteral("path"), path}, {QStringLiteral("args"), arguments}});
        idle();
        return result;
    }
    /// Presses a combination in whatever program has the focus: whether this one took it.
    bool press(const QString& modifiers, const QString& key, bool repeated = false)
    {
        const QJsonObject event{{QStringLiteral("modifiers"), modifiers},
                                {QStringLiteral("key"), key},
                                {QStringLiteral("repeated"), repeated}};
        const ControlClient::Answer answer = client().call(
            QStringLiteral("services.emit"),
            {{QStringLiteral("signal"), QStringLiteral("activeKeyEvent")}, {QStringLiteral("args"), event}});
        return answer.ok() && idle() && answer.result.toObject().value(QLatin1String("handled")).toBool();
    }
    /// The events of these actions since the last call.
    QStringList told(const QStringList& actions)
    {
        QStringList result;
        const QStringList all = events();
        for (const QString& event : all) {
            if (actions.contains(event.section(QLatin1Char(' '), 0, 0)))
                result.append(event);
        }
        return result;
    }
};
