// SPDX-License-Identifier: Apache-2.0
#include "ZrCore/ZrQmlPlugin.h"

ZrQmlPlugin::ZrQmlPlugin(QObject* parent) : QQmlExtensionPlugin(parent) {}

ZrQmlPlugin::~ZrQmlPlugin() = default;

void ZrQmlPlugin::registerTypes(const char* uri)
{
    Q_UNUSED(uri)
}
