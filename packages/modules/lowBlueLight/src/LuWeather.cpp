// SPDX-License-Identifier: Apache-2.0
#include "LuWeather.h"

LuWeather::LuWeather(QObject* parent) : QObject(parent) {}

LuWeather::~LuWeather() = default;
