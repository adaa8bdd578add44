// SPDX-License-Identifier: Apache-2.0
#include "Firmware.h"

#include "JsonNumber.h"

#include <algorithm>

namespace sim {

namespace {

constexpr int HighestValue = 0xFFFF;

bool includes(const QList<ValueRange>& list, int value)
{
    return std::any_of(list.begin(), list.end(),
                       [&](const ValueRange& range) { return value >= range.from && value <= range.to; });
}

bool fits(const CodeDescription& description, int value)
{
    switch (description.type) {
    case CodeDescription::Type::Continuous:
        return value <= description.maximum;
    case CodeDescription::Type::List:
        return includes(description.values, value) || includes(description.alsoTaken, value);
    case CodeDescription::Type::Packed:
        return std::all_of(description.fields.begin(), description.fields.end(),
                           [&](const PackedField& field) {
                               return includes(field.values, (value >> field.shift) & field.mask);
                           });
    case CodeDescription::Type::ReadOnly:
    case CodeDescription::Type::Command:
        break;
    }
    return false;
}

} // namespace

Firmware::Firmware(std::shared_ptr<const ModelDescription> model, std::function<Clock::time_point()> clock)
    : m_model(std::move(model)), m_clock(std::move(clock))
{
    for (const BehaviourDescription& description : m_model->behaviours)
        if (auto behaviour = makeBehaviour(description, *m_model, nullptr))
            m_behaviours.push_back(std::move(behaviour));
}

// --- storage

int Firmware::currentMode() const
{
    return m_model->modeCode ? stored(m_model->modeCode) : 0;
}

Firmware::Slot Firmware::slot(int code, int instance) const
{
    const bool perMode = code != m_model->modeCode && m_model->codes.value(code).perMode;
    return {perMode ? currentMode() : 0, code, instance};
}

int Firmware::factory(const Slot& slot) const
{
    const ColorMode* mode = slot.mode ? m_model->mode(slot.mode) : nullptr;
    if (mode && mode->values.contains(slot.code))
        return mode->values.value(slot.code);
    return m_model->codes.value(slot.code).factory;
}

int Firmware::stored(int code, int instance) const
{
    const Slot key = slot(code, instance);
    const auto found = m_values.find(key);
    return found == m_values.end() ? factory(key) : found->second;
}

void Firmware::store(int code, int value, int instance)
{
    if (stored(code, instance) == value)
        return;
    m_values[slot(code, instance)] = value;
    if (!m_model->codes.value(code).transient)
        ++m_revision;
    follow();
}

void Firmware::restoreAll()
{
    m_values.clear();
    for (const auto& behaviour : m_behaviours)
        behaviour->powerUp();
    ++m_revision;
    follow();
}

void Firmware::restoreMode()
{
    const int mode = currentMode();
    std::erase_if(m_values, [&](const auto& entry) { return mode != 0 && entry.first.mode == mode; });
    ++m_revision;
    follow();
}

void Firmware::restoreCode(int code)
{
    const Slot key = slot(code, 0);
    std::erase_if(m_values, [&](const auto& entry) {
        return entry.first.mode == key.mode && entry.first.code == code;
    });
    ++m_revision;
    follow();
}

// --- the host's side

std::optional<int> Firmware::selected(int code) const
{
    for (const auto& behaviour : m_behaviours)
        if (const auto selection = behaviour->selected(*this, code))
            return selection;
    return std::nullopt;
}

int Firmware::shiftOf(int code) const
{
    int shift = 0;
    for (const auto& behaviour : m_behaviours)
        shift += behaviour->shift(*this, code);
    return shift;
}

int Firmware::shown(int code, int value) const
{
    const int shift = shiftOf(code);
    // Unclamped without a shift: the menu may have set a value beyond the maximum.
    const int result = shift ? std::clamp(value + shift, 0, std::max(maximum(code), 0)) : value;
    return std::clamp(result, 0, HighestValue);
}

std::uint16_t Firmware::get(int code) const
{
    const auto selection = selected(code);
    if (selection && *selection == 0)
        return 0;
    return static_cast<std::uint16_t>(shown(code, stored(code, selection.value_or(0))));
}

bool Firmware::isFixed(int code) const
{
    const ColorMode* mode = m_model->mode(currentMode());
    return mode && mode->fixed.contains(code);
}

bool Firmware::accepts(int code, int value) const
{
    return fits(m_model->codes.value(code), value);
}

bool Firmware::runsBehaviour(int code, int value)
{
    return std::any_of(m_behaviours.begin(), m_behaviours.end(), [&](const auto& behaviour) {
        return behaviour->beforeSet(*this, code, value) != Behaviour::Verdict::Pass;
    });
}

void Firmware::set(int code, std::uint16_t value)
{
    if (!supports(code) || isFixed(code) || runsBehaviour(code, value))
        return;
    const CodeDescription& description = m_model->codes[code];
    const auto selection = selected(code);
    if (selection && *selection == 0)
        return;
    settle(code);
    if (description.type == CodeDescription::Type::Continuous)
        store(code, std::min<int>(value, description.maximum) - shiftOf(code), selection.value_or(0));
    else if (fits(description, value))
        store(code, value, selection.value_or(0));
}

// --- the user's side

int Firmware::instanceFor(int code, std::optional<int> window) const
{
    const QList<int>& instances = m_model->codes[code].instances;
    if (instances.isEmpty())
        return 0;
    const int wanted = window.value_or(selected(code).value_or(0));
    return wanted ? wanted : instances.first();
}

bool Firmware::canSetByMenu(int code, int value, std::optional<int> window, QString* error) const
{
    QString reason;
    if (code < 0 || code > 0xFF || !supports(code))
        reason = QStringLiteral("%1 has no VCP code %2").arg(m_model->name, codeName(code));
    else if (value < 0 || value > HighestValue)
        reason = QStringLiteral("%1 is no 16-bit value for VCP code %2")
                     .arg(QString::number(value), codeName(code));
    else if (window && !m_model->codes[code].instances.contains(*window))
        reason = QStringLiteral("VCP code %1 of %2 has no window %3")
                     .arg(codeName(code), m_model->name)
                     .arg(*window);
    if (error)
        *error = reason;
    return reason.isEmpty();
}

bool Firmware::setByMenu(int code, int value, std::optional<int> window, QString* error)
{
    if (!canSetByMenu(code, value, window, error))
        return false;
    if (m_model->codes[code].type == CodeDescription::Type::Command)
        runsBehaviour(code, value);
    else {
        settle(code);
        store(code, value - shiftOf(code), instanceFor(code, window));
    }
    return true;
}

std::optional<std::uint16_t> Firmware::value(int code, std::optional<int> window) const
{
    if (!canSetByMenu(code, 0, window, nullptr))
        return std::nullopt;
    return static_cast<std::uint16_t>(shown(code, stored(code, instanceFor(code, window))));
}

void Firmware::follow()
{
    for (const auto& behaviour : m_behaviours)
        behaviour->follow(*this);
}

void Firmware::settle(int code)
{
    for (const auto& behaviour : m_behaviours)
        behaviour->settle(*this, code);
}

void Firmware::setAmbientLight(int lux)
{
    m_ambientLight = lux;
    follow();
}

void Firmware::setPresence(bool present)
{
    if (present)
        m_absentSince.reset();
    else if (!m_absentSince)
        m_absentSince = m_clock();
}

double Firmware::absentFor() const
{
    return m_absentSince ? std::chrono::duration<double>(m_clock() - *m_absentSince).count() : 0;
}

int Firmware::lightOutput() const
{
    int light = supports(0x10) ? std::min<int>(get(0x10), 100) : 100;
    for (const auto& behaviour : m_behaviours)
        light = behaviour->light(*this, light);
    return light;
}

int Firmware::rearLightOutput() const
{
    int light = 0;
    for (const auto& behaviour : m_behaviours)
        light = behaviour->rearLight(*this, light);
    return light;
}

// --- values across runs

QJsonObject Firmware::toJson() const
{
    QJsonObject values;
    QJsonObject modes;
    for (const auto& [key, value] : m_values) {
        if (m_model->codes.value(key.code).transient)
            continue;
        const QString name = key.instance
                                 ? codeName(key.code) + QLatin1Char('@') + QString::number(key.instance)
                                 : codeName(key.code);
        if (!key.mode) {
            values.insert(name, value);
            continue;
        }
        QJsonObject mode = modes.value(codeName(key.mode)).toObject();
        mode.insert(name, value);
        modes.insert(codeName(key.mode), mode);
    }
    return {{QStringLiteral("values"), values}, {QStringLiteral("modes"), modes}};
}

bool Firmware::fromJson(const QJsonObject& json, QString* error)
{
    std::map<Slot, int> result;
    const auto take = [&](int mode, const QJsonValue& source) {
        if (!source.isObject())
            return false;
        const QJsonObject object = source.toObject();
        for (auto it = object.begin(); it != object.end(); ++it) {
            const auto code = numberFrom(it.key().section(QLatin1Char('@'), 0, 0));
            const auto instance = it.key().contains(QLatin1Char('@'))
                                      ? numberFrom(it.key().section(QLatin1Char('@'), 1))
                                      : std::optional<int>(0);
            // A shifted brightness is stored without its shift and may lie outside of 16 bits.
            const auto value = numberFrom(it.value());
            if (!code || !instance || !value || std::abs(*value) > 2 * HighestValue) {
                if (error)
                    *error = QStringLiteral("wrong entry \"%1\"").arg(it.key());
                return false;
            }
            // A code that the model no longer has is dropped, the others are kept.
            if (supports(*code))
                result[{mode, *code, *instance}] = *value;
        }
        return true;
    };
    if (error)
        *error = QStringLiteral("\"values\" or \"modes\" is missing");
    const QJsonValue modes = json.value(QLatin1String("modes"));
    if (!modes.isObject() || !take(0, json.value(QLatin1String("values"))))
        return false;
    const QJsonObject perMode = modes.toObject();
    for (auto it = perMode.begin(); it != perMode.end(); ++it) {
        const auto mode = numberFrom(it.key());
        if (error)
            *error = QStringLiteral("wrong colour mode \"%1\"").arg(it.key());
        if (!mode || !take(*mode, it.value()))
            return false;
    }
    if (error)
        error->clear();
    m_values = std::move(result);
    ++m_revision;
    // The room was like this before: nothing moves anew.
    follow();
    for (auto it = m_model->codes.begin(); it != m_model->codes.end(); ++it)
        settle(it.key());
    return true;
}

} // namespace sim
