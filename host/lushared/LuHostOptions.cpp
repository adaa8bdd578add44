// SPDX-License-Identifier: Apache-2.0
#include "LuHostOptions.h"

LuHostOptions& LuHostOptions::instance()
{
    static LuHostOptions options;
    return options;
}
