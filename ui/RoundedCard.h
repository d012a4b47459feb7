#pragma once

#include "Paint.h"
#include "Surface.h"
#include "Theme.h"

#include <QList>
#include <QPointer>
#include <QWidget>

#include <optional>

namespace qf::ui {

// A filled shape behind content: cards, bars, tiles, toasts. Fill, stroke and shadow are
// colour roles resolved at paint time. Children are laid out by the caller's layout. A card
// that takes keyboard focus has the window's focus ring follow its corners.
class RoundedCard : public QWidget {
    Q_OBJECT

public:
    explicit RoundedCard(QWidget* parent = nullptr);

    void setShape(const Shape& shape);
    void setCornerRadius(qreal radius) { setShape(Shape::rounded(radius)); }
    void setFill(const Tint& fill);
    // A linear gradient from `start` to `end`, along the card from `from` to `to` given as
    // fractions of its size (top-leading is (0, 0), bottom-trailing is (1, 1)).
    void setGradientFill(const Tint& start, const Tint& end, QPointF from = {0, 0}, QPointF to = {0, 1});
    void setStroke(const Tint& stroke, qreal width);
    // A stroke that runs from `start` to `end` like the gradient fill.
    void setGradientStroke(const Tint& start, const Tint& end, qreal width, QPointF from = {0, 0}, QPointF to = {0, 1});
    void setShadow(const std::optional<ShadowStyle>& shadow);
    // A shadow under one of the card's children (a logo, say), painted by the card, so that
    // the child needs no effect of its own: Qt draws an effect inside another one misplaced.
    void setChildShadow(QWidget* child, const std::optional<ShadowStyle>& shadow, const Shape& shape);

    const Shape& shape() const { return m_shape; }

    const std::optional<ShadowStyle>& shadow() const { return m_shadow; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Shape m_shape = Shape::rounded(12);
    Paint m_fill = Tint(Role::controlBackground);
    Paint m_stroke;
    qreal m_strokeWidth = 0.0;
    std::optional<ShadowStyle> m_shadow;
    struct ChildShadow {
        QPointer<QWidget> child;
        ShadowStyle shadow;
        Shape shape;
    };
    QList<ChildShadow> m_childShadows;
};

// A card named `objectName`, its corners rounded by `radius`, filled with `fill`.
RoundedCard* roundedCard(const QString& objectName, qreal radius, const Tint& fill = Tint(Role::controlBackground));

} // namespace qf::ui
