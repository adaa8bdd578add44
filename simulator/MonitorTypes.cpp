// SPDX-License-Identifier: Apache-2.0
#include "MonitorTypes.h"

#include <algorithm>
#include <iterator>

namespace sim {

namespace {

struct KindName
{
    const char* name;
    FaultKind kind;
};
constexpr KindName KindNames[] = {
    {"nack", FaultKind::Nack},       {"null", FaultKind::Null},       {"checksum", FaultKind::Checksum},
    {"garbage", FaultKind::Garbage}, {"timeout", FaultKind::Timeout},
};

} // namespace

std::optional<FaultKind> faultKindFromName(const QString& name)
{
    const auto found = std::find_if(std::begin(KindNames), std::end(KindNames),
                                    [&](const KindName& row) { return name == QLatin1String(row.name); });
    return found == std::end(KindNames) ? std::nullopt : std::optional(found->kind);
}

std::optional<Op> opFromName(const QString& name)
{
    if (name == QLatin1String("get"))
        return Op::Get;
    if (name == QLatin1String("set"))
        return Op::Set;
    return std::nullopt;
}

QString opName(Op op)
{
    return op == Op::Get ? QStringLiteral("get") : QStringLiteral("set");
}

} // namespace sim
