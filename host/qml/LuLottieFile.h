// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>
#include <QColor>
#include <QList>
#include <QSizeF>
#include <QString>

#include <optional>
#include <vector>

class QJsonObject;
class QPainter;

/// An animation in the Lottie form, as far as the introductions use it: shape layers of rectangles and
/// ellipses with a fill, moved, scaled, turned and faded by keyframes.
class LuLottieFile
{
public:
    /// Reads @p data. Empty if it is no such animation or uses what is not supported; @p problem then says
    /// what.
    static std::optional<LuLottieFile> read(const QByteArray& data, QString* problem = nullptr);

    QSizeF size() const { return m_size; }
    double framesPerSecond() const { return m_rate; }
    double firstFrame() const { return m_first; }
    double lastFrame() const { return m_last; }

    /// Draws the picture of @p frame in the animation's own coordinates.
    void paint(QPainter* painter, double frame) const;

private:
    using Values = QList<double>;

    struct Keyframe
    {
        double time = 0;
        Values value;
        // Easing from this keyframe to the next: the handles of a cubic curve from (0,0) to (1,1).
        double outX = 0, outY = 0, inX = 1, inY = 1;
        bool hold = false;
    };
    /// A value that may change over time; one keyframe is a constant.
    struct Property
    {
        std::vector<Keyframe> keyframes;
        Values at(double frame) const;
        double number(double frame, double fallback) const;
    };
    struct Transform
    {
        Property position, anchor, scale, rotation, opacity;
    };
    enum class Kind {
        Rectangle,
        Ellipse,
    };
    struct Shape
    {
        Kind kind = Kind::Rectangle;
        Property position, size, radius;
    };
    struct Group
    {
        std::vector<Shape> shapes;
        Property fill, fillOpacity;
        bool filled = false;
        Transform transform;
    };
    struct Layer
    {
        double first = 0;
        double last = 0;
        Transform transform;
        std::vector<Group> groups;
    };

    static Property readProperty(const QJsonObject& object);
    static Keyframe readKeyframe(const QJsonObject& object);
    static Transform readTransform(const QJsonObject& object);
    static bool readGroup(const QJsonObject& object, Group* group, QString* problem);
    static bool readLayer(const QJsonObject& object, Layer* layer, QString* problem);
    static void apply(const Transform& transform, QPainter* painter, double frame);
    static void paint(const Group& group, QPainter* painter, double frame);

    QSizeF m_size;
    double m_rate = 0;
    double m_first = 0;
    double m_last = 0;
    std::vector<Layer> m_layers; ///< The first lies on top.
};
