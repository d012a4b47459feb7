#include "Paint.h"

#include <QLinearGradient>

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

} // namespace qf::ui
