// SPDX-License-Identifier: Apache-2.0
#include "LuKvmSwitch.h"

#include <LuShared/LuMonitorModel.h>
#include <ZrCore/ZrDispatch.h>

#include <QDebug>
#include <QKeyEvent>

namespace {

constexpr int UpstreamCode = 0xE4;

const QString SwitchKey = QStringLiteral("KvmSwitch");
const QString SetterKey = QStringLiteral("setMode");

struct Port
{
    QLatin1String type; ///< In the schema.
    LuKvmSwitch::KvmSwitch value;
};

constexpr Port Ports[] = {
    {QLatin1String("TBT"), LuKvmSwitch::TBT},
    {QLatin1String("TypeB"), LuKvmSwitch::TypeB},
    {QLatin1String("TypeC"), LuKvmSwitch::TypeC},
    {QLatin1String("Auto"), LuKvmSwitch::Auto},
};

} // namespace

LuKvmSwitch::LuKvmSwitch(LuMonitorModel* model) : LuModelModuleInterface(model) {}

LuKvmSwitch::~LuKvmSwitch() = default;

void LuKvmSwitch::readSchema(const QByteArray& schema)
{
    m_kvmSwitchList.clear();
    for (const QString& type : loadVCPFunctionTypesByCategory(schema, QStringLiteral("Kvm"))) {
        for (const Port& port : Ports) {
            if (port.type == type)
                m_kvmSwitchList.append(port.value);
        }
    }
}

void LuKvmSwitch::loadSettings()
{
    if (enabled())
        m_kvmSwitch = KvmSwitch(moduleSetting(SwitchKey, int(m_kvmSwitch.get())).toInt());
}

void LuKvmSwitch::applyValues()
{
    if (!enabled())
        return;
    qInfo() << "[LuKvmSwitch] apply KVM Switch:" << m_kvmSwitch;
    write(m_kvmSwitch);
    Q_EMIT kvmSwitchChanged();
}

void LuKvmSwitch::setKvmSwitch(KvmSwitch value, bool post)
{
    if (!enabled() || (isSettled(SetterKey, m_kvmSwitch, value) && !m_isUnread))
        return;
    auto job = [this, value] {
        takeAsked(m_kvmSwitch, value, SwitchKey,
                  "[LuKvmSwitch] set switch mode: ", &LuKvmSwitch::kvmSwitchChanged,
                  [this, value] { write(value); });
    };
    if (post) {
        postUniqueAtFront(this, SetterKey, std::move(job));
    } else {
        dispatch()->remove(this, SetterKey, false);
        job();
    }
}

void LuKvmSwitch::writeKvmSwitch(KvmSwitch value)
{
    if (!enabled())
        return;
    // Before the write: whoever frees the hub meanwhile finds that there is something to free.
    m_isUnread = true;
    setVCP(UpstreamCode, value);
}

void LuKvmSwitch::write(KvmSwitch value)
{
    setVCP(UpstreamCode, value);
    m_isUnread = false;
}

LuSyncTasks* LuKvmSwitch::syncPeriodically()
{
    if (!enabled())
        return nullptr;
    auto* tasks = new LuSyncTasks(QStringLiteral("LuKvmSwitch"));
    tasks->addTask([this] { syncKvmSwitch(); });
    return tasks;
}

void LuKvmSwitch::syncKvmSwitch()
{
    int value = 0;
    if (!enabled() || !getVCP(UpstreamCode, value))
        return;
    takeReported(m_kvmSwitch, KvmSwitch(value), SwitchKey,
                 "[LuKvmSwitch] sync KVM switch changed:", &LuKvmSwitch::kvmSwitchChanged);
    m_isUnread = false;
}

void LuKvmSwitch::registerShortcutActions()
{
    if (!enabled())
        return;
    registerShortcutAction(LuShortcutAction::Kvm_LoopAllKvmSwitch,
                           [this](const QKeyEvent& event) { return !event.isAutoRepeat() && selectNext(); });
}

bool LuKvmSwitch::selectNext()
{
    const qsizetype index = m_kvmSwitchList.indexOf(int(m_kvmSwitch.get()));
    if (index < 0)
        return false;
    setKvmSwitch(KvmSwitch(m_kvmSwitchList.at((index + 1) % m_kvmSwitchList.size())), true);
    return true;
}
