// SPDX-License-Identifier: Apache-2.0
#include "ZrCore/ZrPlatform.h"

#include <QFile>

#include <mutex>

namespace {

std::mutex g_mutex;

QString& override()
{
    static auto* const model = new QString;
    return *model;
}

QString systemModel()
{
    QFile file(QStringLiteral("/sys/class/dmi/id/product_name"));
    if (!file.open(QIODevice::ReadOnly))
        return QString();
    return QString::fromUtf8(file.readAll()).trimmed();
}

} // namespace

QString ZrPlatform::deviceModel()
{
    {
        const std::lock_guard lock(g_mutex);
        if (!override().isNull())
            return override();
    }
    static const auto* const model = new QString(systemModel());
    return *model;
}

void ZrPlatform::setDeviceModel(const QString& model)
{
    const std::lock_guard lock(g_mutex);
    override() = model;
}
