#pragma once

#include "Theme.h"

#include <QGraphicsEffect>
#include <QImage>
#include <QPainterPath>
#include <QPointer>

#include <optional>

class QPainter;
class QWidget;

namespace qf::ui {

// A rounded rectangle with continuous (squircle-like) corners, as macOS draws them. Radii too
// large for the rectangle fall back to the largest circular rounding that fits.
QPainterPath continuousRoundedRect(const QRectF& rect, qreal radius);

// The outline a surface and its shadow follow.
struct Shape {
    enum Kind { roundedRect, capsule, ellipse, alpha };
    Kind kind = roundedRect;
    qreal cornerRadius = 0.0;

    static Shape rounded(qreal radius) { return {roundedRect, radius}; }
    static Shape pill() { return {capsule, 0.0}; }
    static Shape circle() { return {ellipse, 0.0}; }
    // Follows whatever the widget paints (for artwork such as logos).
    static Shape opaquePixels() { return {alpha, 0.0}; }

    QPainterPath path(const QRectF& rect) const;
    friend bool operator==(const Shape&, const Shape&) = default;
};

// A drop shadow: colour, blur radius (points) and offset.
struct ShadowStyle {
    Tint color = Tint(Role::black, 0.1);
    qreal radius = 8.0;
    QPointF offset = {0.0, 4.0};

    friend bool operator==(const ShadowStyle&, const ShadowStyle&) = default;
};

// The shadow `t` of the way from `a` to `b`, for animated changes.
ShadowStyle mix(const ShadowStyle& a, const ShadowStyle& b, qreal t);

// A blurred silhouette of `shape` at `size` in `color`, `margin()` logical pixels larger than
// the shape on every side. Cached by every input, so painting a shadow is one image blit.
QImage shadowImage(const QSizeF& size, const Shape& shape, qreal blurRadius, const QColor& color, qreal dpr);
// How far a shadow of `blurRadius` reaches beyond its shape.
int shadowMargin(qreal blurRadius);

// Gaussian-like blur of an alpha mask (three box passes), in place. Exposed for tests.
void blurAlpha(QImage& alphaMask, qreal sigmaPixels);

// The one graphics effect a widget carries: an optional pre-rendered shadow that may reach
// beyond the widget's bounds, and the motion of the small animations (opacity, vertical or
// horizontal offset, scale about the centre). At rest it paints the widget directly.
class SurfaceEffect : public QGraphicsEffect {
    Q_OBJECT

public:
    explicit SurfaceEffect(QObject* parent = nullptr);

    // The effect of `widget`, installed on first use.
    static SurfaceEffect* of(QWidget* widget);

    void setShadow(std::optional<ShadowStyle> shadow, Shape shape);
    const std::optional<ShadowStyle>& shadow() const { return m_shadow; }
    const Shape& shape() const { return m_shape; }

    qreal opacity() const { return m_opacity; }
    QPointF offset() const { return m_offset; }
    qreal scale() const { return m_scale; }
    void setOpacity(qreal opacity);
    void setOffset(QPointF offset);
    void setScale(qreal scale);
    bool isAtRest() const;

    QRectF boundingRectFor(const QRectF& sourceRect) const override;

protected:
    void draw(QPainter* painter) override;
    void sourceChanged(ChangeFlags flags) override;

private:
    void drawShadow(QPainter* painter, const QRectF& sourceRect);
    QImage alphaShadow(const ShadowStyle& shadow, const QRectF& sourceRect, qreal dpr);

    std::optional<ShadowStyle> m_shadow;
    Shape m_shape;
    qreal m_opacity = 1.0;
    QPointF m_offset;
    qreal m_scale = 1.0;
    QImage m_alphaShadowCache;
    QString m_alphaShadowKey;
};

} // namespace qf::ui
