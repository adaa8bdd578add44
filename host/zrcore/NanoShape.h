// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QColor>
#include <QList>
#include <QPointF>
#include <QSGGeometryNode>

class QQuickWindow;

namespace zr {

/// Whether a window draws shapes with the NanoShape shaders: its renderer runs on a graphics processor's
/// interface, and a package has brought the shaders. Rendering thread.
bool drawsNanoShapes(const QQuickWindow* window);

/// A node of filled polygons with soft outer edges, drawn by the NanoShape shaders.
///
/// Polygons are convex, clockwise as seen on the screen (y downwards), in the item's coordinates. Rendering
/// thread.
class NanoShapeNode : public QSGGeometryNode
{
public:
    NanoShapeNode();

    /// Starts anew; @p pixelRatio is the number of pixels in a coordinate.
    void begin(qreal pixelRatio);

    /// A polygon, filled; its edges are soft.
    void addFill(const QList<QPointF>& polygon, const QColor& color);

    /// A polygon, filled; its edges are hard, to lie against a ring.
    void addHardFill(const QList<QPointF>& polygon, const QColor& color);

    /// The ring between a polygon, whose edges are soft, and an inner outline with as many points, whose
    /// edges are hard; inner points may coincide.
    void addRing(const QList<QPointF>& outer, const QList<QPointF>& inner, const QColor& color);

    /// Hands the triangles over to the scene graph.
    void end();

private:
    struct Vertex
    {
        float x;
        float y;
        float color[4]; // premultiplied
        float edge;     // pixels outside of the edge
    };

    Vertex vertex(const QPointF& point, const QColor& color, qreal edge) const;
    void addTriangle(const Vertex& a, const Vertex& b, const Vertex& c);
    void addBand(const QList<QPointF>& outer, qreal outerEdge, const QList<QPointF>& inner, qreal innerEdge,
                 const QColor& color);

    qreal m_pixelRatio = 1;
    QList<Vertex> m_vertices;
    QSGGeometry m_geometry;
};

} // namespace zr
