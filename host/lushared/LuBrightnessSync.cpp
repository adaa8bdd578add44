// SPDX-License-Identifier: Apache-2.0
#include "LuBrightnessSync.h"

#include "LuMonitorRegistry.h"
#include "LuSettings.h"

#include <LuShared/LuMonitorModel.h>

#include <QDebug>

#include <algorithm>

namespace {

constexpr int Lowest = 0;
constexpr int Highest = 100;
const QString StateKey = QStringLiteral("brightnessSync/state");
const QString DeltaKey = QStringLiteral("brightnessSync/delta");
const QString MembersKey = QStringLiteral("brightnessSync/members");

} // namespace

using Member = LuBrightnessSyncMember;

LuBrightnessSync::LuBrightnessSync(LuMonitorRegistry* registry, QObject* parent)
    : QObject(parent), m_registry(registry)
{
    const LuSettings& settings = LuSettings::instance();
    m_state = settings.value(StateKey, false).toBool();
    m_delta = qBound(-Highest, settings.value(DeltaKey, 0).toInt(), Highest);
    m_stored = settings.value(MembersKey).toStringList();
    connect(registry, &LuMonitorRegistry::monitorAdded, this, &LuBrightnessSync::add);
    connect(registry, &LuMonitorRegistry::monitorAboutToBeRemoved, this, &LuBrightnessSync::remove);
    const QList<LuMonitorModel*> models = registry->monitors();
    for (LuMonitorModel* model : models)
        add(model);
}

LuBrightnessSync::~LuBrightnessSync() = default;

template <class Change>
void LuBrightnessSync::changing(Change change)
{
    const bool state = m_state;
    const bool available = isAvailable();
    const bool active = isActive();
    const QStringList ids = members();
    const QObject* sensor = sensorSource();
    const bool dimming = allowSoftwareDimming();
    change();
    if (m_state != state)
        Q_EMIT stateChanged();
    if (isAvailable() != available)
        Q_EMIT availableChanged();
    if (isActive() != active)
        Q_EMIT activeChanged();
    if (members() != ids)
        Q_EMIT membersChanged();
    if (sensorSource() != sensor)
        Q_EMIT sensorSourceChanged();
    if (allowSoftwareDimming() != dimming)
        Q_EMIT allowSoftwareDimmingChanged();
}

void LuBrightnessSync::setState(bool state)
{
    if (state == m_state)
        return;
    qInfo() << "[LuBrightnessSync] set state:" << state;
    changing([&] {
        m_state = state;
        LuSettings::instance().setValue(StateKey, state);
        if (state)
            takeBaselines();
    });
}

QStringList LuBrightnessSync::members() const
{
    QStringList ids;
    for (const auto& member : m_members)
        ids.append(member->id());
    return ids;
}

QObject* LuBrightnessSync::sensorSource() const
{
    const Member* member = isActive() ? sensorMember() : nullptr;
    return member ? member->model() : nullptr;
}

// All members have one scale: with an overlay on one of them only, the same number would look different.
bool LuBrightnessSync::allowSoftwareDimming() const
{
    if (!isActive())
        return true;
    return !sensorMember() && std::all_of(m_members.begin(), m_members.end(),
                                          [](const auto& member) { return member->canDim(); });
}

void LuBrightnessSync::connectSoftwareDimming(QObject* monitor)
{
    if (memberOf(monitor))
        m_dimmingSource = monitor;
}

void LuBrightnessSync::add(LuMonitorModel* model)
{
    if (!Member::fits(model))
        return;
    changing([&] {
        auto member = std::make_unique<Member>(model);
        // A monitor that took part before has kept its baseline.
        member->setBased(m_stored.contains(member->id()));
        connect(member.get(), &Member::moved, this, &LuBrightnessSync::moveOthers);
        connect(member.get(), &Member::sensorChanged, this, &LuBrightnessSync::noteSensor);
        connect(member.get(), &Member::dimmingChanged, this, &LuBrightnessSync::spreadDimming);
        if (member->sensorIsOn())
            m_sensors.push_back(member.get());
        // Models come in the order in which their monitors answer, which is another one at every start.
        const QList<LuMonitorModel*> order = m_registry->monitors();
        const auto later = [&order, place = order.indexOf(model)](const auto& other) {
            return order.indexOf(other->model()) > place;
        };
        m_members.insert(std::find_if(m_members.begin(), m_members.end(), later), std::move(member));
    });
}

void LuBrightnessSync::remove(LuMonitorModel* model)
{
    changing([&] {
        std::erase_if(m_sensors, [model](const Member* member) { return member->model() == model; });
        std::erase_if(m_members, [model](const auto& member) { return member->model() == model; });
    });
}

Member* LuBrightnessSync::memberOf(const QObject* monitor) const
{
    const auto found = std::find_if(m_members.begin(), m_members.end(),
                                    [monitor](const auto& member) { return member->model() == monitor; });
    return found == m_members.end() ? nullptr : found->get();
}

Member* LuBrightnessSync::sensorMember() const
{
    return m_sensors.empty() ? nullptr : m_sensors.front();
}

void LuBrightnessSync::noteSensor(Member* member)
{
    changing([&] {
        std::erase(m_sensors, member);
        if (member->sensorIsOn())
            m_sensors.push_back(member);
    });
}

void LuBrightnessSync::moveOthers(Member* member, Member::Origin origin, int before, int now)
{
    if (!isActive())
        return;
    if (origin == Member::Origin::Person || member == sensorMember() || member->leadsByItself()) {
        lead(member, before, now);
        return;
    }
    // Somebody chose another value at the monitor's own menu: that is its difference to the others from now
    // on.
    qInfo().noquote() << "[LuBrightnessSync] moved by itself:" << member->id() << now;
    member->setBaseline(now - m_delta);
    store();
}

void LuBrightnessSync::lead(Member* leading, int before, int now)
{
    if (!leading->isBased())
        leading->setBaseline(before - m_delta);
    for (const auto& member : m_members) {
        if (!member->isBased())
            member->setBaseline(member->brightness() - m_delta);
    }
    m_delta = now - leading->baseline();
    qInfo().noquote() << "[LuBrightnessSync] leads:" << leading->id() << now;
    if (m_leader != leading->id()) {
        m_leader = leading->id();
        Q_EMIT leaderChanged();
    }
    for (const auto& member : m_members) {
        if (member.get() != leading)
            member->follow(qBound(Lowest, member->baseline() + m_delta, Highest));
    }
    store();
}

void LuBrightnessSync::takeBaselines()
{
    m_delta = 0;
    for (const auto& member : m_members)
        member->setBaseline(member->brightness());
    store();
}

// Monitors that are away at the moment stay in the list: their baselines wait for them.
void LuBrightnessSync::store()
{
    LuSettings& settings = LuSettings::instance();
    settings.setValue(DeltaKey, m_delta);
    QStringList ids = m_stored;
    for (const auto& member : m_members) {
        if (member->isBased() && !ids.contains(member->id()))
            ids.append(member->id());
    }
    if (ids == m_stored)
        return;
    m_stored = ids;
    settings.setValue(MembersKey, ids);
}

void LuBrightnessSync::spreadDimming(Member* from)
{
    if (!isActive() || from->model() != m_dimmingSource)
        return;
    for (const auto& member : m_members) {
        if (member.get() != from && member->canDim())
            member->setDimming(from->isDimming());
    }
}
