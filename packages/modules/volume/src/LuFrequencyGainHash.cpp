// SPDX-License-Identifier: Apache-2.0
#include "LuFrequencyGainHash.h"

LuFrequencyGainHash::LuFrequencyGainHash(QObject* parent) : QObject(parent) {}

LuFrequencyGainHash::~LuFrequencyGainHash() = default;

int LuFrequencyGainHash::get(LuVolume::Frequency key) const
{
    return m_gains->value(key, 0);
}

void LuFrequencyGainHash::set(LuVolume::Frequency key, int gain)
{
    Gains changed = m_gains;
    changed.insert(key, gain);
    m_gains = changed;
}
