// SPDX-License-Identifier: Apache-2.0
#include "services/linux/SysfsBacklight.h"

#include <QDir>
#include <QFile>

#include <tuple>

namespace services {

namespace {

const QString Folder = QStringLiteral("/sys/class/backlight");

std::optional<QByteArray> read(const QString& name)
{
    QFile file(name);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    return file.read(64).trimmed();
}

std::optional<int> readNumber(const QString& name)
{
    const auto text = read(name);
    bool ok = false;
    const int number = text ? text->toInt(&ok) : 0;
    return ok && number >= 0 ? std::optional(number) : std::nullopt;
}

/// The kernel's order of preference: the firmware knows what it must not do.
int rank(const QByteArray& type)
{
    return type == "firmware" ? 0 : type == "platform" ? 1 : 2;
}

/// Whether a device lies below a connector, such as ".../card0-eDP-1/intel_backlight".
bool isBelow(const QString& devicePath, const QString& connector)
{
    const QStringList parts = devicePath.split(u'/');
    return std::any_of(parts.begin(), parts.end(), [&](const QString& part) {
        return part.startsWith(QLatin1String("card")) && part.endsWith(u'-' + connector);
    });
}

} // namespace

std::optional<int> SysfsBacklight::value() const
{
    const auto actual = readNumber(path + QStringLiteral("/actual_brightness"));
    return actual ? actual : readNumber(path + QStringLiteral("/brightness"));
}

bool SysfsBacklight::write(int value) const
{
    QFile file(path + QStringLiteral("/brightness"));
    return file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) &&
           file.write(QByteArray::number(value)) > 0;
}

std::optional<SysfsBacklight> findBacklight(const QString& connector)
{
    std::optional<SysfsBacklight> best;
    std::tuple<bool, int> bestRank;
    const QStringList names = QDir(Folder).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
    for (const QString& name : names) {
        const QString path = Folder + u'/' + name;
        const auto maximum = readNumber(path + QStringLiteral("/max_brightness"));
        if (!maximum || *maximum == 0)
            continue;
        const bool other = connector.isEmpty() || !isBelow(QFileInfo(path).canonicalFilePath(), connector);
        const std::tuple candidate(other, rank(read(path + QStringLiteral("/type")).value_or(QByteArray())));
        if (!best || candidate < bestRank) {
            best = SysfsBacklight{name, path, *maximum};
            bestRank = candidate;
        }
    }
    return best;
}

} // namespace services
