// SPDX-License-Identifier: Apache-2.0
#include "LuInputSource.h"

#include <LuShared/LuMonitorModel.h>

#include <QDebug>
#include <QKeyEvent>

#include <algorithm>

namespace {

constexpr int InputCode = 0x60;

const QString SourceKey = QStringLiteral("source");

struct Connector
{
    QLatin1String name;
    int value; ///< On VCP 0x60.
};

// Three values stand twice: a model calls its connector by one of the two names.
constexpr Connector Connectors[] = {
    {QLatin1String("D-Sub"), 1},         {QLatin1String("DVI"), 3},
    {QLatin1String("DisplayPort"), 15},  {QLatin1String("MiniDisplayPort"), 16},
    {QLatin1String("HDMI"), 17},         {QLatin1String("HDMI1"), 17},
    {QLatin1String("HDMI2"), 18},        {QLatin1String("USB-C"), 19},
    {QLatin1String("USB-C1"), 19},       {QLatin1String("USB-C2"), 20},
    {QLatin1String("Thunderbolt3"), 21}, {QLatin1String("Thunderbolt4"), 21},
    {QLatin1String("HDMI3"), 22},
};

struct Shortcut
{
    LuShortcutAction::ActionName action;
    QLatin1String connector;
};

constexpr Shortcut Shortcuts[] = {
    {LuShortcutAction::Input_SwitchtoUSBC, QLatin1String("USB-C")},
    {LuShortcutAction::Input_SwitchtoDisplayport, QLatin1String("DisplayPort")},
    {LuShortcutAction::Input_SwitchtoHDMI, QLatin1String("HDMI")},
    {LuShortcutAction::Input_SwitchtoHDMI1, QLatin1String("HDMI1")},
    {LuShortcutAction::Input_SwitchtoHDMI2, QLatin1String("HDMI2")},
    {LuShortcutAction::Input_SwitchtoHDMI3, QLatin1String("HDMI3")},
    {LuShortcutAction::Input_SwitchtoThunderbolt3, QLatin1String("Thunderbolt3")},
};

} // namespace

LuInputSource::LuInputSource(LuMonitorModel* model) : LuModelModuleInterface(model) {}

LuInputSource::~LuInputSource() = default;

int LuInputSource::inputSourceVcpValue(const QString& name)
{
    const auto* const found = std::find_if(std::begin(Connectors), std::end(Connectors),
                                           [&name](const Connector& each) { return each.name == name; });
    return found == std::end(Connectors) ? 0 : found->value;
}

QString LuInputSource::inputSourceName(int vcpValue) const
{
    const auto found =
        std::find_if(m_inputSourceList.begin(), m_inputSourceList.end(),
                     [vcpValue](const QString& name) { return inputSourceVcpValue(name) == vcpValue; });
    return found == m_inputSourceList.end() ? QString() : *found;
}

void LuInputSource::readSchema(const QByteArray& schema)
{
    m_inputSourceList = loadVCPFunctionTypesByCategory(schema, QStringLiteral("Input Source"));
}

void LuInputSource::loadSettings()
{
    if (!isInert())
        m_currentMainInputSource = moduleSetting(SourceKey, m_currentMainInputSource.get()).toString();
}

void LuInputSource::applyValues()
{
    if (isInert())
        return;
    const QString name = m_currentMainInputSource;
    qInfo() << "[LuInputSource] apply input source:" << name;
    // What was never known is nothing that the monitor could go back to.
    if (!name.isEmpty())
        setVCP(InputCode, inputSourceVcpValue(name));
    Q_EMIT currentMainInputSourceChanged();
    fireSource(name, LuDataCollection::SOURCE_LAUNCH);
}

void LuInputSource::setCurrentMainInputSource(const QString& name)
{
    const QString key = QStringLiteral("setCurrentMainInputSource");
    if (isInert() || isSettled(key, m_currentMainInputSource, name))
        return;
    postUniqueAtFront(this, key, [this, name] {
        takeAsked(m_currentMainInputSource, name, SourceKey,
                  "[LuInputSource] setCurrentMainInputSource:", &LuInputSource::currentMainInputSourceChanged,
                  [this, &name] { setVCP(InputCode, inputSourceVcpValue(name)); });
        fireSource(name, LuDataCollection::SOURCE_USER);
    });
}

LuSyncTasks* LuInputSource::syncPeriodically()
{
    if (isInert())
        return nullptr;
    auto* tasks = new LuSyncTasks(QStringLiteral("LuInputSource"));
    tasks->addTask([this, first = model()->isFirstTimeConnected()] { syncSource(first); });
    return tasks;
}

void LuInputSource::syncSource(bool firstConnection)
{
    qInfo() << "[LuInputSource] sync:" << model()->modelName();
    int value = 0;
    if (!getVCP(InputCode, value))
        return;
    const QString name = inputSourceName(value);
    const bool differs = takeReported(
        m_currentMainInputSource, name, SourceKey,
        "[LuInputSource] sync input source changed:", &LuInputSource::currentMainInputSourceChanged);
    if (firstConnection || differs)
        fireSource(name, LuDataCollection::syncSource(firstConnection));
}

void LuInputSource::fireSource(const QString& name, LuDataCollection::TriggerSource source)
{
    fireCustomEvent(LuDataCollection::ACT_INPUT_SOURCE, name, source, {});
}

void LuInputSource::registerShortcutActions()
{
    for (const Shortcut& shortcut : Shortcuts) {
        const QString connector = shortcut.connector;
        if (!m_inputSourceList.contains(connector))
            continue;
        registerShortcutAction(shortcut.action, [this, connector](const QKeyEvent& event) {
            if (event.isAutoRepeat())
                return false;
            setCurrentMainInputSource(connector);
            return true;
        });
    }
}
