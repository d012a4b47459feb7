#include "IconTile.h"

#include "ActivityIndicator.h"
#include "Symbol.h"

#include <QPainter>

namespace qf::ui {

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

} // namespace qf::ui
