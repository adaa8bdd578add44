// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <LuShared/LuModelModuleInterface.h>
#include <ZrCore/ZrShared.h>

#include <QtQml/qqmlregistration.h>

/// The USB upstream port that the monitor's hub, and so its keyboard and mouse, belongs to: VCP 0xE4.
///
/// On a monitor whose schema lists no port the object is inactive: it sends nothing.
class LuKvmSwitch : public LuModelModuleInterface
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Internal class")
    Q_PROPERTY(bool enabled READ enabled CONSTANT)
    Q_PROPERTY(QList<int> kvmSwitchList READ kvmSwitchList CONSTANT)
    Q_PROPERTY(KvmSwitch kvmSwitch READ kvmSwitch WRITE setKvmSwitch NOTIFY kvmSwitchChanged)

public:
    /// The numbers go over the wire.
    enum KvmSwitch : int {
        TBT = 1,
        TypeB = 2,
        TypeC = 3,
        Auto = 4,
    };
    Q_ENUM(KvmSwitch)

    explicit LuKvmSwitch(LuMonitorModel* model);
    ~LuKvmSwitch() override;

    bool enabled() const { return !m_kvmSwitchList.isEmpty(); }
    /// The choices of this model, each a KvmSwitch, in schema order.
    QList<int> kvmSwitchList() const { return m_kvmSwitchList; }

    /// The port as the monitor holds it, also one that is not in the list.
    KvmSwitch kvmSwitch() const { return m_kvmSwitch; }
    /// Posts a job that writes the port; with @p post false, on the monitor's queue, runs it at once.
    void setKvmSwitch(KvmSwitch value, bool post = true);

    /// Writes VCP 0xE4 and nothing else; until syncKvmSwitch() has read it back, what the module holds counts
    /// as unknown. Blocks: on the monitor's queue.
    void writeKvmSwitch(KvmSwitch value);

    /// Reads VCP 0xE4 and takes what it says. Blocks: on the monitor's queue.
    void syncKvmSwitch();

    void readSchema(const QByteArray& schema) override;
    LuSyncTasks* syncPeriodically() override;
    void loadSettings() override;
    void applyValues() override;
    void registerShortcutActions() override;

Q_SIGNALS:
    void kvmSwitchChanged();

private:
    void write(KvmSwitch value);
    bool selectNext();

    QList<int> m_kvmSwitchList;
    ZrShared<KvmSwitch> m_kvmSwitch{Auto};
    /// The monitor was given a port that the member does not hold.
    ZrShared<bool> m_isUnread{false};
};
