// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QXmlStreamAttributes>

#include <functional>

/// Reads the lists of VCP entries that describe a model: its colour modes and its features.
namespace LuSchemaReader {

/// What reading a file came to.
struct Result
{
    QByteArray bytes;
    QList<QXmlStreamAttributes> entries; ///< The elements "VCPcode", in order; those in front of any damage.
    QString problem;                     ///< Empty for a sound file; else a message with file and line.
    bool missing = false;
};

/// Reads a file of the form VCPTree/VCPList/VCPcode.
Result readFile(const QString& path);

/// Calls @p visit with each "VCPcode" element of @p bytes until it returns false. Returns an empty string, or
/// a message with the line at which the text is damaged; the entries in front of it were visited.
QString forEachEntry(const QByteArray& bytes, const std::function<bool(const QXmlStreamAttributes&)>& visit);

/// Number of a hexadecimal byte written as "0x1F"; -1 for anything else.
int hexByte(QStringView text);

} // namespace LuSchemaReader
