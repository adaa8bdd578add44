// SPDX-License-Identifier: Apache-2.0
#include "LuSchemaReader.h"

#include <QFile>
#include <QXmlStreamReader>

QString LuSchemaReader::forEachEntry(const QByteArray& bytes,
                                     const std::function<bool(const QXmlStreamAttributes&)>& visit)
{
    QXmlStreamReader reader(bytes);
    while (!reader.atEnd()) {
        if (reader.readNext() == QXmlStreamReader::StartElement &&
            reader.name() == QLatin1String("VCPcode")) {
            if (!visit(reader.attributes()))
                return {};
        }
    }
    if (!reader.hasError())
        return {};
    return QStringLiteral("line %1: %2").arg(reader.lineNumber()).arg(reader.errorString());
}

LuSchemaReader::Result LuSchemaReader::readFile(const QString& path)
{
    Result result;
    if (path.isEmpty()) {
        result.missing = true;
        return result;
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        result.missing = !file.exists();
        result.problem = QStringLiteral("%1: %2").arg(path, file.errorString());
        return result;
    }
    result.bytes = file.readAll();
    const QString damage = forEachEntry(result.bytes, [&result](const QXmlStreamAttributes& attributes) {
        result.entries.append(attributes);
        return true;
    });
    if (!damage.isEmpty())
        result.problem = QStringLiteral("%1: %2").arg(path, damage);
    return result;
}

int LuSchemaReader::hexByte(QStringView text)
{
    if (!text.startsWith(QLatin1String("0x")) && !text.startsWith(QLatin1String("0X")))
        return -1;
    bool ok = false;
    const int value = text.mid(2).toInt(&ok, 16);
    return ok && value >= 0 && value <= 0xFF ? value : -1;
}
