#include "RoundedCard.h"

#include "Symbol.h"

#include <QLinearGradient>
#include <QPainter>

namespace qf::ui {

RoundedCard::RoundedCard(QWidget* parent) : QWidget(parent) {}

void RoundedCard::setShape(const Shape& shape)
{
    m_shape = shape;
    if (m_shadow)
        SurfaceEffect::of(this)->setShadow(m_shadow, m_shape);
    update();
}

void RoundedCard::setFill(const Tint& fill)
{
    m_fill = fill;
    m_gradient.reset();
    update();
}

void RoundedCard::setGradientFill(const Tint& start, const Tint& end, QPointF from, QPointF to)
{
    m_gradient = std::make_pair(start, end);
    m_gradientFrom = from;
    m_gradientTo = to;
    update();
}

void RoundedCard::setStroke(const Tint& stroke, qreal width)
{
    m_stroke = stroke;
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
    if (m_gradient) {
        QLinearGradient gradient(
            bounds.left() + bounds.width() * m_gradientFrom.x(), bounds.top() + bounds.height() * m_gradientFrom.y(),
            bounds.left() + bounds.width() * m_gradientTo.x(), bounds.top() + bounds.height() * m_gradientTo.y());
        gradient.setColorAt(0, m_gradient->first.resolve());
        gradient.setColorAt(1, m_gradient->second.resolve());
        painter.fillPath(path, gradient);
    } else {
        painter.fillPath(path, m_fill.resolve());
    }
    if (m_strokeWidth > 0 && !m_stroke.isClear()) {
        const qreal inset = m_strokeWidth / 2.0;
        const Shape strokeShape = m_shape.kind == Shape::roundedRect
                                      ? Shape::rounded(std::max<qreal>(0.0, m_shape.cornerRadius - inset))
                                      : m_shape;
        QPen pen(m_stroke.resolve(), m_strokeWidth);
        painter.strokePath(strokeShape.path(bounds.adjusted(inset, inset, -inset, -inset)), pen);
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

void IconTile::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF bounds = QRectF(rect());
    painter.fillPath(m_shape.path(bounds), m_fill.resolve());
    if (!m_symbol.isEmpty()) {
        const QPixmap icon = Symbol::pixmap(m_symbol, m_symbolSize, m_contentTint.resolve(), devicePixelRatioF(),
                                            static_cast<SymbolWeight>(m_symbolWeight));
        const QSizeF logical = icon.deviceIndependentSize();
        painter.drawPixmap(QPointF((width() - logical.width()) / 2.0, (height() - logical.height()) / 2.0), icon);
    } else if (!m_text.isEmpty()) {
        painter.setFont(m_font);
        painter.setPen(m_contentTint.resolve());
        painter.drawText(bounds, Qt::AlignCenter, m_text);
    }
}

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
    painter.setPen(m_textTint.resolve());
    painter.drawText(rect(), Qt::AlignCenter, m_text);
}

} // namespace qf::ui
