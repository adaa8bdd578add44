// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <LuShared/LuVCPNode.h>

#include <QString>

/// The values of colour temperature, gamma and gamut: enumerators, names in the schema and values on the
/// wire.
namespace LuPictureValues {

enum class Kind {
    Plain, ///< The number itself goes over the wire.
    ColorTemperature,
    Gamma,
    Gamut,
};

/// A number of that kind may be written: an enumerator, or for a plain number 0 to 65535.
bool isValid(Kind kind, int number);

/// Value on the wire of a valid number.
int toVcp(Kind kind, int number);

/// Back again; a value that no enumerator has is the first enumerator, 0.
int fromVcp(Kind kind, int value);

/// Enumerator of a name in the schema. An unknown name is sRGB for a gamma and the first enumerator else.
int fromText(Kind kind, const QString& text);

} // namespace LuPictureValues
