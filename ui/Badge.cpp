#include "Badge.h"

#include "Surface.h"

#include <QPainter>

namespace qf::ui {

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
