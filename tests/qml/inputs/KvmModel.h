// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <LuAutoPivot.h>
#include <LuInputSource.h>
#include <LuKvmSwitch.h>
#include <LuPipPbp.h>
#include <LuShared/LuMonitorModel.h>
#include <LuSmartKvm.h>

#include <simulator/Monitor.h>

#include <memory>

/// A model of another series: its monitors have the pointer feature with a driver.
class KvmModel : public LuMonitorModel
{
    Q_OBJECT
    Q_PROPERTY(LuAutoPivot* autoPivot MEMBER autoPivot CONSTANT)
    Q_PROPERTY(LuInputSource* inputSource MEMBER inputSource CONSTANT)
    Q_PROPERTY(LuKvmSwitch* kvmSwitch MEMBER kvmSwitch CONSTANT)
    Q_PROPERTY(LuPipPbp* pipPbp MEMBER pipPbp CONSTANT)
    Q_PROPERTY(LuSmartKvm* smartKvm MEMBER smartKvm CONSTANT)

public:
    explicit KvmModel(QSharedPointer<MonitorInfo> info);
    ~KvmModel() override;

    LuAutoPivot* autoPivot = nullptr;
    LuInputSource* inputSource = nullptr;
    LuKvmSwitch* kvmSwitch = nullptr;
    LuPipPbp* pipPbp = nullptr;
    LuSmartKvm* smartKvm = nullptr;
};

/// One simulated monitor with such a model.
class KvmBed
{
public:
    KvmBed();
    ~KvmBed();

    /// Makes the model as the program does; a monitor that was met before gets its stored values.
    KvmModel& launch();
    KvmModel& model() { return *m_model; }
    sim::Monitor& monitor() { return m_monitor; }
    /// Writes since the last call, as "0x6F 1".
    QStringList writes();

private:
    sim::Monitor m_monitor;
    std::unique_ptr<KvmModel> m_model;
    quint64 m_seen = 0;
};
