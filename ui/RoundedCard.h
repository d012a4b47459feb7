#pragma once

#include "Surface.h"
#include "Theme.h"

#include <QBrush>
#include <QList>
#include <QPointer>
#include <QWidget>

#include <optional>

namespace qf::ui {

class ActivityIndicator;

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

// A tinted tile or circle with a symbol or a short text centred on it: feature icons, step
// numbers, section-header icons.
class IconTile : public QWidget {
    Q_OBJECT

public:
    IconTile(QSize size, const Shape& shape, const Tint& fill, QWidget* parent = nullptr);

    void setSymbol(const QString& name, qreal pointSize, const Tint& tint, int weight = 0);
    // The symbol coloured with a gradient from `top` to `bottom` instead of one tint.
    void setSymbolGradient(const Tint& top, const Tint& bottom);
    void setText(const QString& text, const QFont& font, const Tint& tint);
    void setFill(const Tint& fill);
    void setGradientFill(const Tint& start, const Tint& end, QPointF from = {0, 0}, QPointF to = {1, 1});
    // An outline inside the shape (none at width 0).
    void setStroke(const Tint& stroke, qreal width);
    // A spinning activity indicator of `diameter` points in the middle of the tile, in place of
    // the symbol or text, while `shows` is true.
    void setShowsActivity(bool shows, qreal diameter = 20);
    bool showsActivity() const;

    QString symbolName() const { return m_symbol; }
    QString text() const { return m_text; }
    // The colour the text is written in: the content tint's text shade on the fill.
    QColor textColor() const;
    QSize sizeHint() const override { return m_size; }
    QSize minimumSizeHint() const override { return m_size; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QSize m_size;
    Shape m_shape;
    Paint m_fill;
    std::optional<Paint> m_symbolPaint;
    QString m_symbol;
    qreal m_symbolSize = 14;
    int m_symbolWeight = 0;
    QString m_text;
    QFont m_font;
    Tint m_contentTint = Tint(Role::primary);
    Tint m_stroke = Tint(Role::clear);
    qreal m_strokeWidth = 0;
    ActivityIndicator* m_activity = nullptr;
};

// A small capsule with a text on the text's colour at low opacity: status badges and pills. The
// text is written in the shade of its colour that reads on the capsule.
class Badge : public QWidget {
    Q_OBJECT

public:
    Badge(const QString& text, const Tint& textTint, const Tint& fill, QWidget* parent = nullptr);

    void setText(const QString& text);
    QString text() const { return m_text; }
    void setFont(const QFont& font);
    void setPadding(int horizontal, int vertical);
    // The colour the text is written in: the text tint's text shade on the fill.
    QColor textColor() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString m_text;
    Tint m_textTint;
    Tint m_fill;
    QFont m_font;
    int m_hPadding = 8;
    int m_vPadding = 3;
};

} // namespace qf::ui
