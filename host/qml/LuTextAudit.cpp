// SPDX-License-Identifier: Apache-2.0
#include "LuTextAudit.h"

#include "LuContrast.h"

#include <QColor>
#include <QFont>
#include <QJsonObject>
#include <QQuickItem>
#include <QQuickWindow>
#include <QRectF>
#include <QString>
#include <QUrl>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

// Glyphs may reach over their line's box, and positions are rounded to pixels.
constexpr double Slack = 1.5;
constexpr double OverlapSlack = 3;
constexpr double NearlyInvisible = 0.05;
// As LuDialog: what stands above covers everything else of its window.
constexpr double OverlayLevel = 1000;

/// A text that is shown, with where its glyphs are.
struct Shown
{
    const QQuickItem* item;
    QRectF glyphs;
};

class Audit
{
public:
    Audit(QQuickWindow* window, const QImage& image) : m_window(window), m_image(image) {}

    QJsonArray run()
    {
        // A dialog or popup covers the rest.
        QQuickItem* root = m_window->contentItem();
        const QList<QQuickItem*> children = root->childItems();
        for (QQuickItem* child : children) {
            if (child->isVisible() && child->z() >= OverlayLevel && child->width() > 0)
                root = child;
        }
        const QRectF all(QPointF(), QSizeF(m_window->size()));
        visit(root, all, all, 1);
        findOverlaps();
        return m_problems;
    }

private:
    void report(const QQuickItem* item, const QString& text, const QString& problem)
    {
        m_problems.append(QJsonObject{{u"window"_s, m_window->objectName()},
                                      {u"text"_s, text},
                                      {u"item"_s, nameOf(item)},
                                      {u"problem"_s, problem}});
    }

    // The nearest name of the item or of what holds it, for a person who looks for it.
    static QString nameOf(const QQuickItem* item)
    {
        for (; item; item = item->parentItem()) {
            if (!item->objectName().isEmpty())
                return item->objectName();
        }
        return {};
    }

    // @param view what can be seen here, @param reach where a person can scroll to.
    void visit(QQuickItem* item, QRectF view, QRectF reach, double opacity)
    {
        opacity *= item->opacity();
        if (!item->isVisible() || opacity < NearlyInvisible || item->property("aside").toBool())
            return;
        const QRectF box = item->mapRectToScene(QRectF(0, 0, item->width(), item->height()));
        if (item->inherits("QQuickFlickable")) {
            view = view.intersected(box);
            const double width = std::max(item->property("contentWidth").toDouble(), item->width());
            const double height = std::max(item->property("contentHeight").toDouble(), item->height());
            reach = QRectF(box.topLeft() - QPointF(item->property("contentX").toDouble(),
                                                   item->property("contentY").toDouble()),
                           QSizeF(width, height));
        } else if (item->clip()) {
            view = view.intersected(box);
            reach = reach.intersected(box);
        }
        if (item->inherits("QQuickText"))
            checkText(item, view, reach, opacity);
        else if (item->inherits("QQuickImage") && item->property("status").toInt() == ImageError)
            report(item, item->property("source").toUrl().toString(), u"picture missing"_s);
        else if (QString::fromLatin1(item->metaObject()->className()).startsWith("LuIcon_QML"_L1))
            checkContrast(item, item->property("name").toString(), box.intersected(view), opacity,
                          LuContrast::Large);
        const QList<QQuickItem*> children = item->childItems();
        for (QQuickItem* child : children)
            visit(child, view, reach, opacity);
    }

    static QRectF glyphsOf(const QQuickItem* item)
    {
        const double width = item->property("contentWidth").toDouble();
        const double height = item->property("contentHeight").toDouble();
        const int across = item->property("effectiveHorizontalAlignment").toInt();
        const int down = item->property("verticalAlignment").toInt();
        const double left = item->property("leftPadding").toDouble();
        const double right = item->property("rightPadding").toDouble();
        const double top = item->property("topPadding").toDouble();
        const double bottom = item->property("bottomPadding").toDouble();
        double x = left;
        double y = top;
        if (across & Qt::AlignRight)
            x = item->width() - right - width;
        else if (across & Qt::AlignHCenter)
            x = left + (item->width() - left - right - width) / 2;
        if (down & Qt::AlignBottom)
            y = item->height() - bottom - height;
        else if (down & Qt::AlignVCenter)
            y = top + (item->height() - top - bottom - height) / 2;
        return item->mapRectToScene(QRectF(x, y, width, height));
    }

    void checkContrast(const QQuickItem* item, const QString& what, const QRectF& place, double opacity,
                       double atLeast)
    {
        if (m_image.isNull() || !item->isEnabled() || place.isEmpty())
            return;
        const auto seen =
            LuContrast::measure(m_image, place, item->property("color").value<QColor>(), opacity);
        if (seen && seen->ratio < atLeast)
            report(item, what,
                   u"contrast %1 of %2 on %3"_s.arg(seen->ratio, 0, 'f', 2)
                       .arg(seen->ink.name(), seen->ground.name()));
    }

    static double neededContrast(const QQuickItem* text)
    {
        // 18 points, or 14 where bold, at 96 pixels an inch.
        constexpr int LargeSize = 24;
        constexpr double LargeBoldSize = 18.5;
        const QFont font = text->property("font").value<QFont>();
        const double size = font.pixelSize() > 0 ? font.pixelSize() : font.pointSizeF() * 96 / 72;
        const bool large = size >= LargeSize || (size >= LargeBoldSize && font.weight() >= QFont::Bold);
        return large ? LuContrast::Large : LuContrast::Small;
    }

    void checkText(const QQuickItem* item, const QRectF& view, const QRectF& reach, double opacity)
    {
        const QString text = item->property("text").toString();
        if (text.trimmed().isEmpty())
            return;
        const QRectF glyphs = glyphsOf(item);
        if (item->property("truncated").toBool())
            report(item, text, u"cut"_s);
        else if (glyphs.width() > item->width() + Slack)
            report(item, text, u"wider than its place"_s);
        else if (glyphs.height() > item->height() + Slack)
            report(item, text, u"higher than its place"_s);
        if (!reach.adjusted(-Slack, -Slack, Slack, Slack).contains(glyphs))
            report(item, text, u"outside of what can be seen"_s);
        const QRectF seen = glyphs.intersected(view);
        if (seen.isEmpty())
            return;
        m_shown.append({item, seen});
        checkContrast(item, text, seen, opacity, neededContrast(item));
    }

    // Popups of controls lie over what is below them on purpose.
    static const QQuickItem* layerOf(const QQuickItem* item)
    {
        for (; item; item = item->parentItem()) {
            if (item->inherits("QQuickPopupItem") || item->objectName() == "pagePanel"_L1)
                return item;
        }
        return nullptr;
    }

    void findOverlaps()
    {
        for (qsizetype i = 0; i < m_shown.size(); ++i) {
            for (qsizetype j = i + 1; j < m_shown.size(); ++j) {
                const QRectF common = m_shown[i].glyphs.intersected(m_shown[j].glyphs);
                if (common.width() <= OverlapSlack || common.height() <= OverlapSlack ||
                    layerOf(m_shown[i].item) != layerOf(m_shown[j].item))
                    continue;
                report(m_shown[i].item, m_shown[i].item->property("text").toString(),
                       u"overlaps \"%1\""_s.arg(m_shown[j].item->property("text").toString()));
            }
        }
    }

    static constexpr int ImageError = 3; // QQuickImageBase::Error

    QQuickWindow* const m_window;
    const QImage m_image;
    QList<Shown> m_shown;
    QJsonArray m_problems;
};

} // namespace

QJsonArray LuTextAudit::problemsOf(QQuickWindow* window, const QImage& image)
{
    return Audit(window, image).run();
}
