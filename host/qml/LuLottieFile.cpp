// SPDX-License-Identifier: Apache-2.0
#include "LuLottieFile.h"

#include <QEasingCurve>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QPainter>
#include <QPainterPath>
#include <QPointF>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

constexpr double LongestAnimation = 100000;
constexpr double LargestSide = 10000;

bool fail(QString* problem, const QString& text)
{
    if (problem)
        *problem = text;
    return false;
}

QList<double> numbers(const QJsonValue& value)
{
    if (value.isDouble())
        return {value.toDouble()};
    QList<double> list;
    const QJsonArray array = value.toArray();
    for (const QJsonValue& each : array)
        list.append(each.toDouble());
    return list;
}

/// An easing handle's part, given as a number or as a list with one number a dimension.
double handle(const QJsonObject& object, QLatin1StringView side, QLatin1StringView part, double fallback)
{
    return numbers(object.value(side).toObject().value(part)).value(0, fallback);
}

} // namespace

LuLottieFile::Keyframe LuLottieFile::readKeyframe(const QJsonObject& object)
{
    Keyframe frame;
    frame.time = object.value("t"_L1).toDouble();
    frame.value = numbers(object.value("s"_L1));
    frame.hold = object.value("h"_L1).toInt() == 1;
    frame.outX = std::clamp(handle(object, "o"_L1, "x"_L1, 0), 0.0, 1.0);
    frame.outY = handle(object, "o"_L1, "y"_L1, 0);
    frame.inX = std::clamp(handle(object, "i"_L1, "x"_L1, 1), 0.0, 1.0);
    frame.inY = handle(object, "i"_L1, "y"_L1, 1);
    return frame;
}

LuLottieFile::Property LuLottieFile::readProperty(const QJsonObject& object)
{
    Property property;
    const QJsonValue value = object.value("k"_L1);
    const QJsonArray list = value.toArray();
    if (object.value("a"_L1).toInt() == 1 && !list.isEmpty() && list.first().isObject()) {
        for (const QJsonValue& each : list)
            property.keyframes.push_back(readKeyframe(each.toObject()));
        std::stable_sort(property.keyframes.begin(), property.keyframes.end(),
                         [](const Keyframe& a, const Keyframe& b) { return a.time < b.time; });
    } else if (!value.isUndefined()) {
        Keyframe constant;
        constant.value = numbers(value);
        property.keyframes.push_back(constant);
    }
    return property;
}

LuLottieFile::Transform LuLottieFile::readTransform(const QJsonObject& object)
{
    const auto property = [&object](QLatin1StringView key) {
        return readProperty(object.value(key).toObject());
    };
    return {property("p"_L1), property("a"_L1), property("s"_L1), property("r"_L1), property("o"_L1)};
}

bool LuLottieFile::readGroup(const QJsonObject& object, Group* group, QString* problem)
{
    const QJsonArray items = object.value("it"_L1).toArray();
    for (const QJsonValue& value : items) {
        const QJsonObject item = value.toObject();
        const QString type = item.value("ty"_L1).toString();
        if (type == "rc"_L1 || type == "el"_L1) {
            group->shapes.push_back({type == "rc"_L1 ? Kind::Rectangle : Kind::Ellipse,
                                     readProperty(item.value("p"_L1).toObject()),
                                     readProperty(item.value("s"_L1).toObject()),
                                     readProperty(item.value("r"_L1).toObject())});
        } else if (type == "fl"_L1) {
            group->filled = true;
            group->fill = readProperty(item.value("c"_L1).toObject());
            group->fillOpacity = readProperty(item.value("o"_L1).toObject());
        } else if (type == "tr"_L1) {
            group->transform = readTransform(item);
        } else {
            return fail(problem, u"a shape of the type \"%1\" is not supported"_s.arg(type));
        }
    }
    return true;
}

bool LuLottieFile::readLayer(const QJsonObject& object, Layer* layer, QString* problem)
{
    constexpr int ShapeLayer = 4;
    if (const int type = object.value("ty"_L1).toInt(-1); type != ShapeLayer)
        return fail(problem, u"a layer of the type %1 is not supported"_s.arg(type));
    if (object.contains("parent"_L1) || object.contains("tt"_L1))
        return fail(problem, u"layers that depend on each other are not supported"_s);
    layer->first = object.value("ip"_L1).toDouble();
    layer->last = object.value("op"_L1).toDouble();
    layer->transform = readTransform(object.value("ks"_L1).toObject());
    const QJsonArray shapes = object.value("shapes"_L1).toArray();
    for (const QJsonValue& shape : shapes) {
        const QJsonObject item = shape.toObject();
        if (const QString type = item.value("ty"_L1).toString(); type != "gr"_L1)
            return fail(problem, u"a shape of the type \"%1\" outside a group is not supported"_s.arg(type));
        Group group;
        if (!readGroup(item, &group, problem))
            return false;
        layer->groups.push_back(std::move(group));
    }
    return true;
}

std::optional<LuLottieFile> LuLottieFile::read(const QByteArray& data, QString* problem)
{
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(data, &error);
    if (!document.isObject()) {
        fail(problem, error.error == QJsonParseError::NoError ? u"not an object"_s : error.errorString());
        return std::nullopt;
    }
    const QJsonObject root = document.object();
    LuLottieFile file;
    file.m_size = QSizeF(root.value("w"_L1).toDouble(), root.value("h"_L1).toDouble());
    file.m_rate = root.value("fr"_L1).toDouble();
    file.m_first = root.value("ip"_L1).toDouble();
    file.m_last = root.value("op"_L1).toDouble();
    if (!(file.m_size.width() > 0 && file.m_size.width() <= LargestSide && file.m_size.height() > 0 &&
          file.m_size.height() <= LargestSide)) {
        fail(problem, u"no usable size"_s);
        return std::nullopt;
    }
    if (!(file.m_rate > 0 && file.m_rate <= 240 && file.m_last > file.m_first &&
          file.m_last - file.m_first <= LongestAnimation)) {
        fail(problem, u"no usable length"_s);
        return std::nullopt;
    }
    const QJsonArray layers = root.value("layers"_L1).toArray();
    for (const QJsonValue& value : layers) {
        Layer layer;
        if (!readLayer(value.toObject(), &layer, problem))
            return std::nullopt;
        file.m_layers.push_back(std::move(layer));
    }
    return file;
}

LuLottieFile::Values LuLottieFile::Property::at(double frame) const
{
    if (keyframes.empty())
        return {};
    const auto after = std::find_if(keyframes.begin(), keyframes.end(),
                                    [frame](const Keyframe& each) { return each.time > frame; });
    if (after == keyframes.begin())
        return keyframes.front().value;
    if (after == keyframes.end())
        return keyframes.back().value;
    const Keyframe& from = *std::prev(after);
    const Keyframe& to = *after;
    if (from.hold || to.time <= from.time)
        return from.value;
    QEasingCurve curve(QEasingCurve::BezierSpline);
    curve.addCubicBezierSegment(QPointF(from.outX, from.outY), QPointF(from.inX, from.inY), QPointF(1, 1));
    const double share = curve.valueForProgress((frame - from.time) / (to.time - from.time));
    Values result;
    const qsizetype size = std::min(from.value.size(), to.value.size());
    for (qsizetype i = 0; i < size; ++i)
        result.append(from.value[i] + (to.value[i] - from.value[i]) * share);
    return result;
}

double LuLottieFile::Property::number(double frame, double fallback) const
{
    return at(frame).value(0, fallback);
}

void LuLottieFile::apply(const Transform& transform, QPainter* painter, double frame)
{
    const Values position = transform.position.at(frame);
    const Values anchor = transform.anchor.at(frame);
    const Values scale = transform.scale.at(frame);
    painter->translate(position.value(0), position.value(1));
    painter->rotate(transform.rotation.number(frame, 0));
    painter->scale(scale.value(0, 100) / 100, scale.value(1, 100) / 100);
    painter->translate(-anchor.value(0), -anchor.value(1));
    painter->setOpacity(painter->opacity() *
                        std::clamp(transform.opacity.number(frame, 100) / 100, 0.0, 1.0));
}

void LuLottieFile::paint(const Group& group, QPainter* painter, double frame)
{
    if (!group.filled)
        return;
    painter->save();
    apply(group.transform, painter, frame);
    const Values color = group.fill.at(frame);
    const auto part = [&color](int index, double fallback) {
        return float(std::clamp(color.value(index, fallback), 0.0, 1.0));
    };
    painter->setOpacity(painter->opacity() *
                        std::clamp(group.fillOpacity.number(frame, 100) / 100, 0.0, 1.0));
    QPainterPath path;
    for (const Shape& shape : group.shapes) {
        const Values position = shape.position.at(frame);
        const Values size = shape.size.at(frame);
        const double width = size.value(0);
        const double height = size.value(1);
        const QRectF box(position.value(0) - width / 2, position.value(1) - height / 2, width, height);
        if (shape.kind == Kind::Ellipse) {
            path.addEllipse(box);
        } else {
            const double radius = std::min({shape.radius.number(frame, 0), width / 2, height / 2});
            path.addRoundedRect(box, radius, radius);
        }
    }
    painter->fillPath(path, QColor::fromRgbF(part(0, 0), part(1, 0), part(2, 0), part(3, 1)));
    painter->restore();
}

void LuLottieFile::paint(QPainter* painter, double frame) const
{
    for (auto layer = m_layers.rbegin(); layer != m_layers.rend(); ++layer) {
        if (frame < layer->first || frame > layer->last)
            continue;
        painter->save();
        apply(layer->transform, painter, frame);
        for (auto group = layer->groups.rbegin(); group != layer->groups.rend(); ++group)
            paint(*group, painter, frame);
        painter->restore();
    }
}
