// SPDX-License-Identifier: Apache-2.0
#include "NanoShape.h"

#include <QFile>
#include <QQuickWindow>
#include <QSGMaterial>

#include <algorithm>
#include <cmath>
#include <cstring>

namespace zr {

namespace {

const QString VertexShader = QStringLiteral(":/NanoShape/NanoShader.vert.qsb");
const QString FragmentShader = QStringLiteral(":/NanoShape/NanoShader.frag.qsb");

/// Half the width in pixels over which an edge fades.
constexpr qreal Fade = 0.5;

constexpr int OpacityOffset = 64; // behind the matrix

class Shader : public QSGMaterialShader
{
public:
    Shader()
    {
        setShaderFileName(VertexStage, VertexShader);
        setShaderFileName(FragmentStage, FragmentShader);
    }

    bool updateUniformData(RenderState& state, QSGMaterial*, QSGMaterial*) override
    {
        QByteArray& data = *state.uniformData();
        bool changed = false;
        if (state.isMatrixDirty()) {
            const QMatrix4x4 matrix = state.combinedMatrix();
            std::memcpy(data.data(), matrix.constData(), OpacityOffset);
            changed = true;
        }
        if (state.isOpacityDirty()) {
            const float opacity = state.opacity();
            std::memcpy(data.data() + OpacityOffset, &opacity, sizeof opacity);
            changed = true;
        }
        return changed;
    }
};

/// Colours are in the vertices, so that all shapes share one material and one batch.
class Material : public QSGMaterial
{
public:
    Material() { setFlag(Blending); }
    QSGMaterialType* type() const override
    {
        static QSGMaterialType type;
        return &type;
    }
    QSGMaterialShader* createShader(QSGRendererInterface::RenderMode) const override { return new Shader; }
    int compare(const QSGMaterial* other) const override { return other->type() == type() ? 0 : 1; }
};

const QSGGeometry::AttributeSet& attributes()
{
    static const QSGGeometry::Attribute list[] = {
        QSGGeometry::Attribute::createWithAttributeType(0, 2, QSGGeometry::FloatType,
                                                        QSGGeometry::PositionAttribute),
        QSGGeometry::Attribute::createWithAttributeType(1, 4, QSGGeometry::FloatType,
                                                        QSGGeometry::ColorAttribute),
        QSGGeometry::Attribute::createWithAttributeType(2, 1, QSGGeometry::FloatType,
                                                        QSGGeometry::UnknownAttribute),
    };
    static const QSGGeometry::AttributeSet set{3, 7 * sizeof(float), list};
    return set;
}

/// A convex polygon with each edge moved outwards by a distance (inwards under 0).
QList<QPointF> grown(const QList<QPointF>& polygon, qreal distance)
{
    const auto count = polygon.size();
    const auto normal = [&](qsizetype i) {
        const QPointF along = polygon[(i + 1) % count] - polygon[i];
        const qreal length = std::hypot(along.x(), along.y());
        return length > 0 ? QPointF(along.y(), -along.x()) / length : QPointF();
    };
    QList<QPointF> result;
    result.reserve(count);
    for (qsizetype i = 0; i < count; ++i) {
        const QPointF before = normal((i + count - 1) % count);
        const QPointF after = normal(i);
        // Where two moved edges meet; far out where they turn sharply, which convex corners of shapes do not.
        const qreal share = std::max(0.25, 1 + QPointF::dotProduct(before, after));
        result.append(polygon[i] + (before + after) * (distance / share));
    }
    return result;
}

/// How far the polygon's edges may be moved inwards without crossing.
qreal halfThickness(const QList<QPointF>& polygon)
{
    qreal left = polygon[0].x();
    qreal right = left;
    for (const QPointF& point : polygon) {
        left = std::min(left, point.x());
        right = std::max(right, point.x());
    }
    // By area and length: exact enough for rectangles turned any way, which shapes are.
    qreal area = 0;
    qreal longest = 0;
    for (qsizetype i = 0; i < polygon.size(); ++i) {
        const QPointF& a = polygon[i];
        const QPointF& b = polygon[(i + 1) % polygon.size()];
        area += a.x() * b.y() - b.x() * a.y();
        longest = std::max(longest, std::hypot(b.x() - a.x(), b.y() - a.y()));
    }
    return longest > 0 ? std::abs(area) / 2 / longest / 2 : (right - left) / 2;
}

} // namespace

bool drawsNanoShapes(const QQuickWindow* window)
{
    const QSGRendererInterface* renderer = window->rendererInterface();
    return renderer && QSGRendererInterface::isApiRhiBased(renderer->graphicsApi()) &&
           QFile::exists(VertexShader) && QFile::exists(FragmentShader);
}

NanoShapeNode::NanoShapeNode() : m_geometry(attributes(), 0)
{
    m_geometry.setDrawingMode(QSGGeometry::DrawTriangles);
    setGeometry(&m_geometry);
    setMaterial(new Material);
    setFlag(OwnsMaterial);
}

void NanoShapeNode::begin(qreal pixelRatio)
{
    m_pixelRatio = pixelRatio > 0 ? pixelRatio : 1;
    m_vertices.clear();
}

NanoShapeNode::Vertex NanoShapeNode::vertex(const QPointF& point, const QColor& color, qreal edge) const
{
    const float alpha = color.alphaF();
    return {float(point.x()),
            float(point.y()),
            {color.redF() * alpha, color.greenF() * alpha, color.blueF() * alpha, alpha},
            float(edge)};
}

void NanoShapeNode::addTriangle(const Vertex& a, const Vertex& b, const Vertex& c)
{
    m_vertices << a << b << c;
}

void NanoShapeNode::addBand(const QList<QPointF>& outer, qreal outerEdge, const QList<QPointF>& inner,
                            qreal innerEdge, const QColor& color)
{
    for (qsizetype i = 0; i < outer.size(); ++i) {
        const qsizetype next = (i + 1) % outer.size();
        const Vertex a = vertex(outer[i], color, outerEdge);
        const Vertex b = vertex(outer[next], color, outerEdge);
        const Vertex c = vertex(inner[next], color, innerEdge);
        const Vertex d = vertex(inner[i], color, innerEdge);
        addTriangle(a, b, c);
        addTriangle(a, c, d);
    }
}

void NanoShapeNode::addHardFill(const QList<QPointF>& polygon, const QColor& color)
{
    if (color.alpha() == 0)
        return;
    for (qsizetype i = 2; i < polygon.size(); ++i)
        addTriangle(vertex(polygon[0], color, -Fade), vertex(polygon[i - 1], color, -Fade),
                    vertex(polygon[i], color, -Fade));
}

void NanoShapeNode::addFill(const QList<QPointF>& polygon, const QColor& color)
{
    if (color.alpha() == 0 || polygon.size() < 3)
        return;
    // A shape thinner than a pixel keeps its share of the pixel.
    const qreal inset = std::min(Fade / m_pixelRatio, halfThickness(polygon));
    const QList<QPointF> outer = grown(polygon, Fade / m_pixelRatio);
    const QList<QPointF> inner = grown(polygon, -inset);
    const qreal innerEdge = -inset * m_pixelRatio;
    addBand(outer, Fade, inner, innerEdge, color);
    for (qsizetype i = 2; i < inner.size(); ++i)
        addTriangle(vertex(inner[0], color, innerEdge), vertex(inner[i - 1], color, innerEdge),
                    vertex(inner[i], color, innerEdge));
}

void NanoShapeNode::addRing(const QList<QPointF>& outer, const QList<QPointF>& inner, const QColor& color)
{
    if (color.alpha() == 0 || outer.size() < 3 || outer.size() != inner.size())
        return;
    qreal thickness = Fade / m_pixelRatio;
    for (qsizetype i = 0; i < outer.size(); ++i) {
        const QPointF across = inner[i] - outer[i];
        thickness = std::min(thickness, std::hypot(across.x(), across.y()) / 2);
    }
    const QList<QPointF> soft = grown(outer, -thickness);
    addBand(grown(outer, Fade / m_pixelRatio), Fade, soft, -thickness * m_pixelRatio, color);
    addBand(soft, -thickness * m_pixelRatio, inner, -Fade, color);
}

void NanoShapeNode::end()
{
    m_geometry.allocate(int(m_vertices.size()));
    static_assert(sizeof(Vertex) == 7 * sizeof(float));
    std::memcpy(m_geometry.vertexData(), m_vertices.constData(),
                std::size_t(m_vertices.size()) * sizeof(Vertex));
    m_geometry.markVertexDataDirty();
    markDirty(DirtyGeometry);
    m_vertices.clear();
}

} // namespace zr
