// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "ModelDescription.h"

#include <QByteArray>

namespace sim {

/// The 128 bytes of an EDID 1.4 for this model: manufacturer "LMD", the name as a descriptor, @p serial as a
/// descriptor and as a number (neither if it is empty). Name and serial are cut to 13 characters.
QByteArray makeEdid(const ModelDescription& model, const QString& serial);

/// The numeric serial of a text serial: the same at every run, never 0 for a text that is not empty.
quint32 numericSerial(const QString& serial);

} // namespace sim
