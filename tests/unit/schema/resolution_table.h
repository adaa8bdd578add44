// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QLatin1StringView>

#include <array>

// Computers by their built-in display, with the sizes that a reader gets from the file.

namespace SchemaTables {

using namespace Qt::StringLiterals;

struct Display
{
    const char* name;
    QLatin1StringView computers; // separated by bars, since two identifiers end with a blank
    QLatin1StringView sizes;
};

inline constexpr std::array displays{
    Display{"notebook 12 inch", "MacBook8,1|MacBook9,1|MacBook10,1"_L1, "1024x640 1280x800 1440x900"_L1},
    Display{"notebook 13 inch without retina", "MacBookAir6,2|MacBookAir7,2"_L1,
            "1024x640 1152x720 1280x800 1440x900"_L1},
    Display{"notebook 13 inch",
            "MacBookAir8,1|MacBookAir8,2|MacBookAir9,1|MacBookAir10,1|MacBookPro11,1|MacBookPro12,1|"
            "MacBookPro13,1|"
            "MacBookPro13,2|MacBookPro14,1|MacBookPro14,2|MacBookPro15,2|MacBookPro15,4|MacBookPro16,2|"
            "MacBookPro16,3|"
            "MacBookPro17,1|Mac14,7"_L1,
            "1024x640 1280x800 1440x900 1680x1050"_L1},
    Display{"notebook 15 inch",
            "MacBookPro11,2|MacBookPro11,3|MacBookPro11,4|MacBookPro11,5|MacBookPro13,3|MacBookPro14,3|"
            "MacBookPro15,1|"
            "MacBookPro15,3"_L1,
            "1024x640 1280x800 1440x900 1680x1050 1920x1200"_L1},
    Display{"notebook 16 inch", "MacBookPro16,1|MacBookPro16,4"_L1,
            "1152x720 1344x840 1536x960 1792x1120 2048x1280"_L1},
    Display{"notebook 14 inch with notch",
            "MacBookPro18,3|MacBookPro18,4|Mac14,5|Mac14,9|Mac15,3|Mac15,6|Mac15,8|Mac15,10"_L1,
            "1024x665 1147x745 1352x878 1512x982 1800x1169"_L1},
    Display{"notebook 16 inch with notch",
            "MacBookPro18,1 |MacBookPro18,2|Mac14,6|Mac14,10|Mac15,7|Mac15,9|Mac15,11 "_L1,
            "1168x755 1312x848 1496x967 1728x1117 2056x1329"_L1},
    Display{"light notebook 13 inch with notch", "Mac14,2|Mac15,12"_L1,
            "1024x666 1280x832 1470x956 1710x1112"_L1},
    Display{"light notebook 15 inch with notch", "Mac14,15"_L1, "1280x828 1440x932 1710x1107 1920x1243"_L1},
    Display{"row with multiplication signs", "Mac15,13"_L1, "1440x932"_L1},
    Display{"desktop 27 inch", "iMac15,1|iMac17,1|iMac18,3|iMac19,1"_L1,
            "1600x900 2048x1152 2560x1440 2880x1620 3200x1800"_L1},
    Display{"no row", "MacBookPro18,1|Mac15,11|Mac15,13 |mac15,13|Mac99,9|"_L1, ""_L1},
};

} // namespace SchemaTables
