// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QDir>
#include <QFile>
#include <QList>
#include <QMap>
#include <QXmlStreamReader>

// Reads the schema files as the program does: every start element up to the end or the first error.

namespace SchemaReader {

using namespace Qt::StringLiterals;

using Attributes = QMap<QString, QString>;

struct Element
{
    QString name;
    QString parent; // the Name attribute of the element around it, else its element name
    Attributes attributes;

    QString operator[](QLatin1StringView attribute) const { return attributes.value(attribute); }
};

struct Document
{
    QList<Element> elements;
    QXmlStreamReader::Error error = QXmlStreamReader::NoError;

    QList<Element> named(QLatin1StringView name, const QString& parent = QString()) const
    {
        QList<Element> found;
        for (const Element& element : elements) {
            if (element.name == name && (parent.isNull() || element.parent == parent))
                found.append(element);
        }
        return found;
    }
};

inline QByteArray bytes(const QString& file)
{
    QFile input(QDir(QStringLiteral(LUMEN_SCHEMA_FOLDER)).filePath(file));
    return input.open(QIODevice::ReadOnly) ? input.readAll() : QByteArray();
}

// Takes every start element; an element that is never closed counts as the parent of what follows.
inline Document read(const QString& file)
{
    Document document;
    QXmlStreamReader xml(bytes(file));
    QStringList open{QString()};
    while (!xml.atEnd()) {
        xml.readNext();
        if (xml.isEndElement())
            open.removeLast();
        if (!xml.isStartElement())
            continue;
        Element element{xml.name().toString(), open.last(), {}};
        for (const QXmlStreamAttribute& attribute : xml.attributes())
            element.attributes.insert(attribute.name().toString(), attribute.value().toString());
        open.append(element.attributes.value(u"Name"_s, element.name));
        document.elements.append(element);
    }
    document.error = xml.error();
    return document;
}

} // namespace SchemaReader
