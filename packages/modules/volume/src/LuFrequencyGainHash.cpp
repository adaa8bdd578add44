// SPDX-License-Identifier: Apache-2.0
#include "LuFrequencyGainHash.h"

LuFrequencyGainHash::LuFrequencyGainHash(QObject* parent) : QObject(parent) {}

LuFrequencyGainHash::~LuFrequencyGainHash() = default;
