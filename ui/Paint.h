#pragma once

#include "Theme.h"

#include <QBrush>
#include <QPointF>

#include <optional>

namespace qf::ui {

// How a shape is filled or stroked: one tint, or a linear gradient between two tints from one
// point of the shape to another, given as fractions of its size (top-leading is (0, 0),
// bottom-trailing is (1, 1)). Resolved at paint time, like every tint.
class Paint {
public:
    Paint(const Tint& tint = Tint(Role::clear)) : m_start(tint) {}
    static Paint gradient(const Tint& start, const Tint& end, QPointF from, QPointF to);

    bool isClear() const { return !m_end && m_start.isClear(); }
    QBrush brush(const QRectF& bounds) const;
    // The one colour, or the more opaque end of a gradient.
    QColor strongest() const;

private:
    Tint m_start;
    std::optional<Tint> m_end;
    QPointF m_from{0, 0};
    QPointF m_to{0, 1};
};

} // namespace qf::ui
