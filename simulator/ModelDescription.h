// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QJsonObject>
#include <QList>
#include <QMap>
#include <QString>

#include <cstdint>
#include <optional>

namespace sim {

/// An inclusive range of values; a single value has equal ends.
struct ValueRange
{
    int from = 0;
    int to = 0;
};

/// One of several numbers that a packed VCP code carries.
struct PackedField
{
    int shift = 0;
    int mask = 0xFF;
    QList<ValueRange> values;
};

/// How one VCP code of a model answers.
struct CodeDescription
{
    enum class Type {
        Continuous, ///< 0 to maximum; a write above clamps.
        List,       ///< Listed values; a write of another is ignored.
        Packed,     ///< Several fields; a write with a field out of its values is ignored.
        ReadOnly,   ///< A write is ignored.
        Command,    ///< A write other than 0 does something and stores nothing; reads as 0.
    };

    QString name;
    Type type = Type::Continuous;
    int maximum = 0;
    int factory = 0;
    bool perMode = false;        ///< Every colour mode has a value of its own.
    bool transient = false;      ///< Not kept over a loss of power.
    QList<ValueRange> values;    ///< List: the values of the capabilities string.
    QList<ValueRange> alsoTaken; ///< List: taken by the firmware as well, not advertised.
    QList<PackedField> fields;
    QList<int> instances; ///< Multiplexed code: the windows or bands that have a value each.
};

/// One colour mode: its value on the mode code and what it starts with.
struct ColorMode
{
    QString name;
    int code = 0;
    QMap<int, int> values; ///< Factory values of per-mode codes that differ from the code's own.
    QList<int> fixed;      ///< Codes that a host cannot change in this mode.
};

/// A strategy of the firmware with its settings; Behaviour.h has the names.
struct BehaviourDescription
{
    QString name;
    QJsonObject settings;
};

/// The panel as the EDID tells it.
struct Panel
{
    int width = 1920;
    int height = 1080;
    int refresh = 60;
    int widthMm = 530;
    int heightMm = 300;
};

/// Everything that makes one monitor model different from another.
struct ModelDescription
{
    QString name;
    int productCode = 0;
    Panel panel;
    bool builtIn = false;
    bool hasDdcCi = true;
    int modeCode = 0; ///< VCP code of the colour mode; 0 without colour modes.
    QList<ColorMode> modes;
    QMap<int, CodeDescription> codes;
    QMap<int, int>
        busy; ///< Milliseconds that a write of a code keeps the monitor from answering, above the usual.
    QMap<int, int> drops; ///< Milliseconds that the monitor leaves the bus for when a write of a code changed
                          ///< its picture.
    QList<BehaviourDescription> behaviours;

    /// The colour mode of this value on the mode code, null if there is none.
    const ColorMode* mode(int code) const;

    /// Reads a merged description. Returns nothing and says in @p error what is wrong and where.
    static std::optional<ModelDescription> fromJson(const QJsonObject& json, QString* error);
};

} // namespace sim
