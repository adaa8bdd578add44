// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "LuBrightnessSyncMember.h"

#include <LuShared/LuSharedGlobal.h>

#include <QObject>
#include <QPointer>
#include <QString>
#include <QStringList>

#include <memory>
#include <vector>

class LuMonitorModel;
class LuMonitorRegistry;

/// Keeps the brightness of several monitors alike: a change at one moves the others by as much.
///
/// Each member has a baseline, the value that it had when the sync began; what the leading monitor is away
/// from its baseline, the others are from theirs, as far as 0 to 100 allows. So two monitors keep their
/// difference, also after one of them was at an end of its range. Members are all connected monitors whose
/// module allows it. GUI thread.
class LUSHARED_EXPORT LuBrightnessSync : public QObject
{
    Q_OBJECT
    /// The user wants it; kept over restarts.
    Q_PROPERTY(bool state READ state WRITE setState NOTIFY stateChanged)
    /// There are two monitors or more that can take part.
    Q_PROPERTY(bool available READ isAvailable NOTIFY availableChanged)
    /// Wanted and available.
    Q_PROPERTY(bool active READ isActive NOTIFY activeChanged)
    /// Ids of the monitors that take part, in the registry's order.
    Q_PROPERTY(QStringList members READ members NOTIFY membersChanged)
    /// Id of the monitor that moved the others last; empty if none has.
    Q_PROPERTY(QString leader READ leader NOTIFY leaderChanged)
    /// The monitor whose light sensor leads while the sync is active, or null. Of several the first that was
    /// on.
    Q_PROPERTY(QObject* sensorSource READ sensorSource NOTIFY sensorSourceChanged)
    /// False while one scale of brightness has to serve monitors that an overlay cannot darken.
    Q_PROPERTY(bool allowSoftwareDimming READ allowSoftwareDimming NOTIFY allowSoftwareDimmingChanged)

public:
    explicit LuBrightnessSync(LuMonitorRegistry* registry, QObject* parent = nullptr);
    ~LuBrightnessSync() override;

    bool state() const { return m_state; }
    void setState(bool state);
    bool isAvailable() const { return m_members.size() >= 2; }
    bool isActive() const { return m_state && isAvailable(); }
    QStringList members() const;
    QString leader() const { return m_leader; }
    QObject* sensorSource() const;
    bool allowSoftwareDimming() const;

    /// From now on a choice of software dimming at this monitor holds for all members that can dim. A monitor
    /// that takes no part is ignored.
    Q_INVOKABLE void connectSoftwareDimming(QObject* monitor);

Q_SIGNALS:
    void stateChanged();
    void availableChanged();
    void activeChanged();
    void membersChanged();
    void leaderChanged();
    void sensorSourceChanged();
    void allowSoftwareDimmingChanged();

private:
    void add(LuMonitorModel* model);
    void remove(LuMonitorModel* model);
    LuBrightnessSyncMember* memberOf(const QObject* monitor) const;
    LuBrightnessSyncMember* sensorMember() const;
    void moveOthers(LuBrightnessSyncMember* member, LuBrightnessSyncMember::Origin origin, int before,
                    int now);
    void lead(LuBrightnessSyncMember* leading, int before, int now);
    void takeBaselines();
    void store();
    void noteSensor(LuBrightnessSyncMember* member);
    void spreadDimming(LuBrightnessSyncMember* from);

    /// Runs a change and tells of every property that is another one afterwards.
    template <class Change>
    void changing(Change change);

    LuMonitorRegistry* m_registry;
    bool m_state = false;
    int m_delta = 0; ///< How far the group is from its baselines.
    QStringList m_stored;
    QString m_leader;
    std::vector<std::unique_ptr<LuBrightnessSyncMember>> m_members; ///< In the registry's order.
    std::vector<LuBrightnessSyncMember*> m_sensors;                 ///< In the order in which they went on.
    QPointer<QObject> m_dimmingSource;
};
