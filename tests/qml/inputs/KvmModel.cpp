// SPDX-License-Identifier: Apache-2.0
#include "KvmModel.h"

#include <ZrCore/ZrDispatch.h>
#include <ZrCore/ZrIdle.h>
#include <lushared/LuHostOptions.h>
#include <lushared/LuModelHost.h>
#include <panelcore/MonitorLink.h>

namespace {

VCPNode* makeNode(QObject* parent, int code, int shCode, const QString& type, const QString& name,
                  const QString& category)
{
    return new LuVCPNode(parent, code, shCode, type, name, category);
}

sim::Identity identity()
{
    static int count = 0;
    return {QStringLiteral("TK30Z"), QStringLiteral("K%1").arg(++count)};
}

} // namespace

KvmModel::KvmModel(QSharedPointer<MonitorInfo> info) : LuMonitorModel(nullptr, std::move(info), makeNode)
{
    autoPivot = new LuAutoPivot(this);
    inputSource = new LuInputSource(this);
    kvmSwitch = new LuKvmSwitch(this);
    pipPbp = new LuPipPbp(this, inputSource);
    smartKvm = new LuSmartKvm(this, pipPbp, inputSource, kvmSwitch);
    readModuleSchemaExt();
    registerModuleShortcuts();
    loadModuleSettings();
    initForceSyncConnections();
    checkFirstConnected(QStringLiteral("1"));
    initialSync();
    syncMonitorPeriodically();
    setFirstTimeConnected(false);
}

KvmModel::~KvmModel()
{
    dispatch()->close();
}

KvmBed::KvmBed() : m_monitor(identity()) {}

KvmBed::~KvmBed() = default;

KvmModel& KvmBed::launch()
{
    m_model.reset();
    MonitorDescription description;
    description.id = m_monitor.id();
    description.modelName = m_monitor.model();
    description.serialNumber = m_monitor.serial();
    description.simulated = true;
    const auto info = MonitorLink::create(description, m_monitor.makeBus(), MonitorLink::Waits::None);
    MonitorLink::of(*info).probeColorMode();
    LuHostOptions::instance().launching = true;
    m_model = std::make_unique<KvmModel>(info);
    LuModelHost::launch(m_model.get());
    LuModelHost::setCurrent(m_model.get(), true);
    ZrIdle::wait(30'000);
    writes();
    return *m_model;
}

QStringList KvmBed::writes()
{
    QStringList result;
    const QList<sim::TrafficEntry> traffic = m_monitor.traffic(m_seen);
    for (const sim::TrafficEntry& entry : traffic) {
        m_seen = entry.seq;
        if (entry.op == sim::Op::Set)
            result.append(
                QStringLiteral("0x%1 %2").arg(QString::number(entry.code, 16).toUpper()).arg(entry.value));
    }
    return result;
}
