// SPDX-License-Identifier: Apache-2.0
#include "LuSoftwareDimming.h"

LuSoftwareDimming::LuSoftwareDimming(QObject* parent) : QObject(parent) {}

LuSoftwareDimming::~LuSoftwareDimming() = default;
