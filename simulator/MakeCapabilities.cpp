// SPDX-License-Identifier: Apache-2.0
#include "MakeCapabilities.h"

namespace sim {

namespace {

// Above this a list says "any byte" rather than a choice.
constexpr qsizetype MostValues = 40;

QByteArray hexByte(int value)
{
    return QByteArray::number(value, 16).toUpper().rightJustified(2, '0');
}

QByteArray valueList(const CodeDescription& description)
{
    if (description.type != CodeDescription::Type::List)
        return {};
    QByteArrayList values;
    for (const ValueRange& range : description.values) {
        if (range.to > 0xFF || range.to - range.from >= MostValues)
            return {};
        for (int value = range.from; value <= range.to; ++value)
            values.append(hexByte(value));
    }
    return values.size() > MostValues ? QByteArray() : '(' + values.join(' ') + ')';
}

} // namespace

QByteArray makeCapabilities(const ModelDescription& model)
{
    if (!model.hasDdcCi)
        return {};
    QByteArrayList codes;
    for (auto it = model.codes.cbegin(); it != model.codes.cend(); ++it)
        codes.append(hexByte(it.key()) + valueList(*it));
    return "(prot(monitor)type(LCD)model(" + model.name.toLatin1() + ")cmds(01 02 03 0C E3 F3)vcp(" +
           codes.join(' ') + ")mccs_ver(2.2))";
}

} // namespace sim
