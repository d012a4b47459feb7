#include "RoundedCard.h"

#include "FocusRing.h"

#include <QPainter>

namespace qf::ui {

RoundedCard::RoundedCard(QWidget* parent) : QWidget(parent) { setFocusRingRadius(this, m_shape.cornerRadius); }

RoundedCard* roundedCard(const QString& objectName, qreal radius, const Tint& fill)
{
    auto* card = new RoundedCard;
    card->setObjectName(objectName);
    card->setCornerRadius(radius);
    card->setFill(fill);
    return card;
}

void RoundedCard::setShape(const Shape& shape)
{
    m_shape = shape;
    // A capsule or circle: a radius larger than any card rounds the ring as much as fits.
    setFocusRingRadius(this, shape.kind == Shape::roundedRect ? shape.cornerRadius : 1.0e4);
    if (m_shadow)
        SurfaceEffect::of(this)->setShadow(m_shadow, m_shape);
    update();
}

void RoundedCard::setFill(const Tint& fill)
{
    m_fill = fill;
    update();
}

void RoundedCard::setGradientFill(const Tint& start, const Tint& end, QPointF from, QPointF to)
{
    m_fill = Paint::gradient(start, end, from, to);
    update();
}

void RoundedCard::setStroke(const Tint& stroke, qreal width)
{
    m_stroke = stroke;
    m_strokeWidth = width;
    update();
}

void RoundedCard::setChildShadow(QWidget* child, const std::optional<ShadowStyle>& shadow, const Shape& shape)
{
    m_childShadows.removeIf([child](const ChildShadow& entry) { return !entry.child || entry.child == child; });
    if (shadow)
        m_childShadows.append({child, *shadow, shape});
    update();
}

void RoundedCard::setGradientStroke(const Tint& start, const Tint& end, qreal width, QPointF from, QPointF to)
{
    m_stroke = Paint::gradient(start, end, from, to);
    m_strokeWidth = width;
    update();
}

void RoundedCard::setShadow(const std::optional<ShadowStyle>& shadow)
{
    if (shadow == m_shadow)
        return;
    m_shadow = shadow;
    if (m_shadow || qobject_cast<SurfaceEffect*>(graphicsEffect()))
        SurfaceEffect::of(this)->setShadow(m_shadow, m_shape);
}

void RoundedCard::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF bounds = QRectF(rect());
    const QPainterPath path = m_shape.path(bounds);
    painter.fillPath(path, m_fill.brush(bounds));

    const qreal dpr = devicePixelRatioF();
    for (const ChildShadow& entry : std::as_const(m_childShadows)) {
        if (!entry.child || !entry.child->isVisible())
            continue;
        const QRectF area = QRectF(entry.child->geometry());
        const QImage image = shadowImage(area.size(), entry.shape, entry.shadow.radius, entry.shadow.color.resolve(),
                                         dpr);
        const int margin = shadowMargin(entry.shadow.radius);
        painter.drawImage(area.topLeft() + entry.shadow.offset - QPointF(margin, margin), image);
    }

    // Strokes lie inside the shape, following its corners.
    if (m_strokeWidth > 0 && !m_stroke.isClear()) {
        const qreal by = m_strokeWidth / 2.0;
        const Shape shape = m_shape.kind == Shape::roundedRect
                                ? Shape::rounded(std::max<qreal>(0.0, m_shape.cornerRadius - by))
                                : m_shape;
        painter.strokePath(shape.path(bounds.adjusted(by, by, -by, -by)), QPen(m_stroke.brush(bounds), m_strokeWidth));
    }
}

} // namespace qf::ui
