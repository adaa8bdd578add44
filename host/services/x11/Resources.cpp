// SPDX-License-Identifier: Apache-2.0
#include "Resources.h"

#include <QList>

namespace services::x11 {

namespace {

constexpr double UsualDpi = 96;

bool isXftDpi(const QByteArray& line)
{
    const qsizetype colon = line.indexOf(':');
    return colon > 0 && line.left(colon).trimmed() == "Xft.dpi";
}

} // namespace

double xftDpiOf(const QByteArray& resources)
{
    double dpi = 0;
    const QList<QByteArray> lines = resources.split('\n');
    for (const QByteArray& line : lines) {
        if (isXftDpi(line))
            dpi = line.mid(line.indexOf(':') + 1).trimmed().toDouble();
    }
    return dpi > 0 ? dpi : 0;
}

QByteArray withXftDpi(const QByteArray& resources, int dpi)
{
    QByteArray result;
    const QList<QByteArray> lines = resources.split('\n');
    for (const QByteArray& line : lines) {
        if (!line.isEmpty() && !isXftDpi(line))
            result += line + '\n';
    }
    return result + "Xft.dpi:\t" + QByteArray::number(dpi) + '\n';
}

double readXftDpi(const Connection& connection)
{
    const double dpi = xftDpiOf(connection.bytes(connection.root(), connection.atom(ResourceManager)));
    return dpi > 0 ? dpi : UsualDpi;
}

void writeXftDpi(const Connection& connection, int dpi)
{
    const ServerGrab grab(connection); // xrdb may merge its own at the same time
    const QByteArray text =
        withXftDpi(connection.bytes(connection.root(), connection.atom(ResourceManager)), dpi);
    xcb_change_property(connection, XCB_PROP_MODE_REPLACE, connection.root(),
                        connection.atom(ResourceManager), XCB_ATOM_STRING, 8, std::uint32_t(text.size()),
                        text.constData());
}

} // namespace services::x11
