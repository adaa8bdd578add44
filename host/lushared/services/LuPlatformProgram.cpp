// SPDX-License-Identifier: Apache-2.0
#include <LuShared/LuPlatformProgram.h>

#include "services/ServiceRegistry.h"
#include "services/Singleton.h"
#include "services/api/ProgramService.h"

using services::Registry;

LuPlatformProgram* LuPlatformProgram::instance()
{
    static LuPlatformProgram* const self = services::onGuiThread(new LuPlatformProgram);
    return self;
}

LuPlatformProgram::LuPlatformProgram()
{
    const auto programs = Registry::current().programs;
    appListReady = !programs || programs->isListReady();
}

QString LuPlatformProgram::appId(unsigned long pid) const
{
    const auto programs = Registry::current().programs;
    return programs ? programs->appId(pid) : QString();
}

QString LuPlatformProgram::appId(const QUrl& url) const
{
    const auto programs = Registry::current().programs;
    return programs && !url.isEmpty() ? programs->appId(url) : QString();
}

QString LuPlatformProgram::appDisplayName(const QString& appId) const
{
    const auto programs = Registry::current().programs;
    return programs && !appId.isEmpty() ? programs->displayName(appId) : QString();
}

QUrl LuPlatformProgram::appUrl(const QString& appId) const
{
    const auto programs = Registry::current().programs;
    return programs && !appId.isEmpty() ? programs->url(appId) : QUrl();
}

bool LuPlatformProgram::openApplication(const QString& path)
{
    const auto programs = Registry::current().programs;
    return programs && !path.isEmpty() && programs->open(path);
}

void LuPlatformProgram::setApplicationGeometry(unsigned long pid, const QRectF& geometry)
{
    if (const auto programs = Registry::current().programs; programs && geometry.isValid())
        programs->setGeometry(pid, geometry);
}
