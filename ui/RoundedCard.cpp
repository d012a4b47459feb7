#include "RoundedCard.h"

#include "ActivityIndicator.h"
#include "FocusRing.h"

#include "Symbol.h"

#include <QLinearGradient>
#include <QPainter>

namespace qf::ui {

Paint Paint::gradient(const Tint& start, const Tint& end, QPointF from, QPointF to)
{
    Paint paint(start);
    paint.m_end = end;
    paint.m_from = from;
    paint.m_to = to;
    return paint;
}

QBrush Paint::brush(const QRectF& bounds) const
{
    if (!m_end)
        return m_start.resolve();
    QLinearGradient gradient(bounds.left() + bounds.width() * m_from.x(), bounds.top() + bounds.height() * m_from.y(),
                             bounds.left() + bounds.width() * m_to.x(), bounds.top() + bounds.height() * m_to.y());
    gradient.setColorAt(0, m_start.resolve());
    gradient.setColorAt(1, m_end->resolve());
    return gradient;
}

QColor Paint::strongest() const
{
    const QColor start = m_start.resolve();
    if (!m_end)
        return start;
    const QColor end = m_end->resolve();
    return end.alpha() > start.alpha() ? end : start;
}

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

// MARK: IconTile

IconTile::IconTile(QSize size, const Shape& shape, const Tint& fill, QWidget* parent)
    : QWidget(parent), m_size(size), m_shape(shape), m_fill(fill)
{
    setFixedSize(size);
}

void IconTile::setSymbol(const QString& name, qreal pointSize, const Tint& tint, int weight)
{
    m_symbol = name;
    m_symbolSize = pointSize;
    m_symbolWeight = weight;
    m_contentTint = tint;
    m_text.clear();
    update();
}

void IconTile::setStroke(const Tint& stroke, qreal width)
{
    m_stroke = stroke;
    m_strokeWidth = width;
    update();
}

void IconTile::setShowsActivity(bool shows, qreal diameter)
{
    if (shows && !m_activity) {
        m_activity = new ActivityIndicator(diameter, Tint(Role::secondary), this);
        const QSize size = m_activity->sizeHint();
        m_activity->setGeometry(
            QRect(QPoint((m_size.width() - size.width()) / 2, (m_size.height() - size.height()) / 2), size));
    }
    if (m_activity)
        m_activity->setVisible(shows);
    update();
}

bool IconTile::showsActivity() const { return m_activity && !m_activity->isHidden(); }

void IconTile::setText(const QString& text, const QFont& font, const Tint& tint)
{
    m_text = text;
    m_font = font;
    m_contentTint = tint;
    m_symbol.clear();
    update();
}

void IconTile::setFill(const Tint& fill)
{
    m_fill = fill;
    update();
}

void IconTile::setGradientFill(const Tint& start, const Tint& end, QPointF from, QPointF to)
{
    m_fill = Paint::gradient(start, end, from, to);
    update();
}

void IconTile::setSymbolGradient(const Tint& top, const Tint& bottom)
{
    m_symbolPaint = Paint::gradient(top, bottom, {0, 0}, {0, 1});
    update();
}

void IconTile::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF bounds = QRectF(rect());
    const QPainterPath path = m_shape.path(bounds);
    painter.fillPath(path, m_fill.brush(bounds));
    if (m_strokeWidth > 0 && !m_stroke.isClear()) {
        const qreal half = m_strokeWidth / 2.0;
        painter.strokePath(m_shape.path(bounds.adjusted(half, half, -half, -half)),
                           QPen(m_stroke.resolve(), m_strokeWidth));
    }
    if (showsActivity())
        return;
    if (!m_symbol.isEmpty()) {
        const qreal dpr = devicePixelRatioF();
        QPixmap icon = Symbol::pixmap(m_symbol, m_symbolSize, m_contentTint.resolve(), dpr,
                                      static_cast<SymbolWeight>(m_symbolWeight));
        if (m_symbolPaint) {
            QPainter tint(&icon);
            tint.setCompositionMode(QPainter::CompositionMode_SourceIn);
            const QRectF area(QPointF(0, 0), icon.deviceIndependentSize());
            tint.fillRect(area, m_symbolPaint->brush(area));
        }
        const QSizeF logical = icon.deviceIndependentSize();
        painter.drawPixmap(QPointF((width() - logical.width()) / 2.0, (height() - logical.height()) / 2.0), icon);
    } else if (!m_text.isEmpty()) {
        painter.setFont(m_font);
        painter.setPen(textColor());
        painter.drawText(bounds, Qt::AlignCenter, m_text);
    }
}

QColor IconTile::textColor() const { return Theme::textColor(m_contentTint.resolve(), m_fill.strongest()); }

// MARK: Badge

Badge::Badge(const QString& text, const Tint& textTint, const Tint& fill, QWidget* parent)
    : QWidget(parent), m_text(text), m_textTint(textTint), m_fill(fill), m_font(Theme::font(10, QFont::DemiBold))
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setAccessibleName(text);
}

void Badge::setText(const QString& text)
{
    m_text = text;
    setAccessibleName(text);
    updateGeometry();
    update();
}

void Badge::setFont(const QFont& font)
{
    m_font = font;
    updateGeometry();
    update();
}

void Badge::setPadding(int horizontal, int vertical)
{
    m_hPadding = horizontal;
    m_vPadding = vertical;
    updateGeometry();
}

QSize Badge::sizeHint() const
{
    const QFontMetrics metrics(m_font);
    return {metrics.horizontalAdvance(m_text) + 2 * m_hPadding, metrics.height() + 2 * m_vPadding};
}

void Badge::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillPath(Shape::pill().path(QRectF(rect())), m_fill.resolve());
    painter.setFont(m_font);
    painter.setPen(textColor());
    painter.drawText(rect(), Qt::AlignCenter, m_text);
}

QColor Badge::textColor() const { return Theme::textColor(m_textTint.resolve(), m_fill.resolve()); }

} // namespace qf::ui
