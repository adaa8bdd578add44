// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QJsonValue>
#include <QVariant>

namespace control {

/// The JSON form of a value, as the control protocol defines it. GUI thread, as it reads properties of
/// objects.
///
/// Throws RequestError (WrongValue) for a type that has no form, and for an object with too many members.
QJsonValue toJson(const QVariant& value);

} // namespace control
