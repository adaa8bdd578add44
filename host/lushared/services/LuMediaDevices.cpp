// SPDX-License-Identifier: Apache-2.0
#include <LuShared/LuMediaDevices.h>

#include "services/ServiceRegistry.h"
#include "services/Singleton.h"
#include "services/api/AudioService.h"

using services::Registry;

LuMediaDevices* LuMediaDevices::instance()
{
    static LuMediaDevices* const self = services::onGuiThread(new LuMediaDevices);
    return self;
}

QList<QAudioDevice> LuMediaDevices::audioOutputs()
{
    const auto audio = Registry::current().audio;
    return audio ? audio->outputs() : QMediaDevices::audioOutputs();
}

QAudioDevice LuMediaDevices::defaultAudioOutput()
{
    const auto audio = Registry::current().audio;
    return audio ? audio->defaultOutput() : QMediaDevices::defaultAudioOutput();
}

int LuMediaDevices::systemVolume() const
{
    const auto audio = Registry::current().audio;
    return audio ? audio->volume() : 0;
}

void LuMediaDevices::setSystemVolume(int percent)
{
    if (const auto audio = Registry::current().audio)
        audio->setVolume(qBound(0, percent, 100));
}

QString LuMediaDevices::deviceDisplayName(const QAudioDevice& device) const
{
    if (device.isNull())
        return {};
    const auto audio = Registry::current().audio;
    return audio ? audio->displayName(device) : device.description();
}

void LuMediaDevices::setDefaultAudioOutputDevice(const QAudioDevice& device)
{
    if (const auto audio = Registry::current().audio; audio && !device.isNull())
        audio->setDefaultOutput(device);
}

void LuMediaDevices::openSystemSettings()
{
    if (const auto audio = Registry::current().audio)
        audio->openSettings();
}
