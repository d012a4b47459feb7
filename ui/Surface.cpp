#include "Surface.h"

#include <QCache>
#include <QPainter>
#include <QWidget>

#include <algorithm>
#include <cmath>
#include <vector>

namespace qf::ui {

QPainterPath continuousRoundedRect(const QRectF& rect, qreal radius)
{
    QPainterPath path;
    if (rect.isEmpty())
        return path;
    const qreal limit = std::min(rect.width(), rect.height()) / 2.0;
    radius = std::max<qreal>(0.0, radius);
    if (radius <= 0.0) {
        path.addRect(rect);
        return path;
    }
    // The continuous corner reaches 1.528 radii along each edge; when that does not fit,
    // use the largest ordinary rounding instead.
    constexpr qreal reach = 1.52866483;
    if (radius * reach > limit) {
        const qreal r = std::min(radius, limit);
        path.addRoundedRect(rect, r, r);
        return path;
    }
    const qreal r = radius;
    const qreal l = rect.left(), t = rect.top(), ri = rect.right(), b = rect.bottom();
    path.moveTo(l + reach * r, t);
    // top edge and top-right corner
    path.lineTo(ri - reach * r, t);
    path.cubicTo(ri - 1.08849323 * r, t, ri - 0.86840689 * r, t, ri - 0.63149399 * r, t + 0.07491100 * r);
    path.cubicTo(ri - 0.37282392 * r, t + 0.16905899 * r, ri - 0.16905899 * r, t + 0.37282392 * r, ri - 0.07491100 * r,
                 t + 0.63149399 * r);
    path.cubicTo(ri, t + 0.86840689 * r, ri, t + 1.08849323 * r, ri, t + reach * r);
    // right edge and bottom-right corner
    path.lineTo(ri, b - reach * r);
    path.cubicTo(ri, b - 1.08849323 * r, ri, b - 0.86840689 * r, ri - 0.07491100 * r, b - 0.63149399 * r);
    path.cubicTo(ri - 0.16905899 * r, b - 0.37282392 * r, ri - 0.37282392 * r, b - 0.16905899 * r, ri - 0.63149399 * r,
                 b - 0.07491100 * r);
    path.cubicTo(ri - 0.86840689 * r, b, ri - 1.08849323 * r, b, ri - reach * r, b);
    // bottom edge and bottom-left corner
    path.lineTo(l + reach * r, b);
    path.cubicTo(l + 1.08849323 * r, b, l + 0.86840689 * r, b, l + 0.63149399 * r, b - 0.07491100 * r);
    path.cubicTo(l + 0.37282392 * r, b - 0.16905899 * r, l + 0.16905899 * r, b - 0.37282392 * r, l + 0.07491100 * r,
                 b - 0.63149399 * r);
    path.cubicTo(l, b - 0.86840689 * r, l, b - 1.08849323 * r, l, b - reach * r);
    // left edge and top-left corner
    path.lineTo(l, t + reach * r);
    path.cubicTo(l, t + 1.08849323 * r, l, t + 0.86840689 * r, l + 0.07491100 * r, t + 0.63149399 * r);
    path.cubicTo(l + 0.16905899 * r, t + 0.37282392 * r, l + 0.37282392 * r, t + 0.16905899 * r, l + 0.63149399 * r,
                 t + 0.07491100 * r);
    path.cubicTo(l + 0.86840689 * r, t, l + 1.08849323 * r, t, l + reach * r, t);
    path.closeSubpath();
    return path;
}

QPainterPath Shape::path(const QRectF& rect) const
{
    QPainterPath p;
    switch (kind) {
    case roundedRect: return continuousRoundedRect(rect, cornerRadius);
    case capsule: {
        const qreal r = std::min(rect.width(), rect.height()) / 2.0;
        p.addRoundedRect(rect, r, r);
        return p;
    }
    case ellipse: p.addEllipse(rect); return p;
    case alpha: p.addRect(rect); return p;
    }
    return p;
}

// MARK: blur

namespace {

// Blurs one row or column: `in` is read with `stride`, `out` is written contiguously.
void boxBlurLine(const uchar* in, uchar* out, int length, qsizetype stride, int radius)
{
    if (radius <= 0 || length <= 0) {
        for (int i = 0; i < length; ++i)
            out[i] = in[i * stride];
        return;
    }
    const int window = 2 * radius + 1;
    int sum = 0;
    // The mask is zero outside its bounds.
    for (int i = 0; i <= std::min(radius, length - 1); ++i)
        sum += in[i * stride];
    for (int i = 0; i < length; ++i) {
        out[i] = static_cast<uchar>((sum + window / 2) / window);
        const int add = i + radius + 1;
        const int remove = i - radius;
        if (add < length)
            sum += in[add * stride];
        if (remove >= 0)
            sum -= in[remove * stride];
    }
}

} // namespace

void blurAlpha(QImage& mask, qreal sigma)
{
    Q_ASSERT(mask.format() == QImage::Format_Alpha8);
    if (sigma <= 0.0 || mask.isNull())
        return;
    // Three box passes of this width approximate a Gaussian of `sigma`.
    const int width = std::max(1, static_cast<int>(std::lround(std::sqrt(4.0 * sigma * sigma + 1.0))));
    const int radius = width / 2;
    if (radius == 0)
        return;

    const int w = mask.width(), h = mask.height();
    const qsizetype bpl = mask.bytesPerLine();
    std::vector<uchar> scratch(static_cast<size_t>(std::max(w, h)));
    uchar* bits = mask.bits();
    for (int pass = 0; pass < 3; ++pass) {
        for (int y = 0; y < h; ++y) {
            uchar* row = bits + y * bpl;
            boxBlurLine(row, scratch.data(), w, 1, radius);
            std::copy_n(scratch.data(), w, row);
        }
        for (int x = 0; x < w; ++x) {
            boxBlurLine(bits + x, scratch.data(), h, bpl, radius);
            for (int y = 0; y < h; ++y)
                bits[y * bpl + x] = scratch[static_cast<size_t>(y)];
        }
    }
}

ShadowStyle mix(const ShadowStyle& a, const ShadowStyle& b, qreal t)
{
    if (t <= 0.0)
        return a;
    if (t >= 1.0)
        return b;
    return {ui::mix(a.color, b.color, t), a.radius + (b.radius - a.radius) * t, a.offset + (b.offset - a.offset) * t};
}

int shadowMargin(qreal blurRadius) { return static_cast<int>(std::ceil(std::max<qreal>(0.0, blurRadius) * 1.5)); }

namespace {

// The one way a shadow is made: `paintSilhouette` draws the casting shape (in logical pixels,
// its top left at the origin) into an alpha mask with room for the blur around it; the mask
// is blurred and filled with `color`.
template <typename PaintSilhouette>
QImage renderShadow(const QSizeF& size, qreal blurRadius, const QColor& color, qreal dpr,
                    PaintSilhouette&& paintSilhouette)
{
    const int margin = shadowMargin(blurRadius);
    const QSize pixels(qCeil((size.width() + 2 * margin) * dpr), qCeil((size.height() + 2 * margin) * dpr));
    QImage mask(pixels, QImage::Format_Alpha8);
    mask.fill(0);
    {
        QPainter painter(&mask);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.scale(dpr, dpr);
        painter.translate(margin, margin);
        paintSilhouette(painter);
    }
    // The design's shadow radius is a blur radius of about two standard deviations.
    blurAlpha(mask, blurRadius / 2.0 * dpr);

    QImage image(mask.size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.drawImage(0, 0, mask);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(image.rect(), color);
    painter.end();
    image.setDevicePixelRatio(dpr);
    return image;
}

} // namespace

QImage shadowImage(const QSizeF& size, const Shape& shape, qreal blurRadius, const QColor& color, qreal dpr)
{
    static QCache<QString, QImage> cache(64 * 1024 * 1024 / 1024); // cost in kilobytes
    const QString key = QStringLiteral("%1x%2:%3:%4:%5:%6:%7")
                            .arg(size.width())
                            .arg(size.height())
                            .arg(int(shape.kind))
                            .arg(shape.cornerRadius)
                            .arg(blurRadius)
                            .arg(color.rgba(), 0, 16)
                            .arg(dpr);
    if (const QImage* hit = cache.object(key))
        return *hit;

    QImage result = renderShadow(size, blurRadius, color, dpr, [&](QPainter& painter) {
        painter.fillPath(shape.path(QRectF(QPointF(0, 0), size)), Qt::black);
    });
    const int cost = std::max<qsizetype>(1, result.sizeInBytes() / 1024);
    cache.insert(key, new QImage(result), cost);
    return result;
}

// MARK: SurfaceEffect

SurfaceEffect::SurfaceEffect(QObject* parent) : QGraphicsEffect(parent) {}

SurfaceEffect* SurfaceEffect::of(QWidget* widget)
{
    if (auto* existing = qobject_cast<SurfaceEffect*>(widget->graphicsEffect()))
        return existing;
    auto* effect = new SurfaceEffect(widget);
    widget->setGraphicsEffect(effect);
    return effect;
}

void SurfaceEffect::setShadow(std::optional<ShadowStyle> shadow, Shape shape)
{
    if (shadow == m_shadow && shape == m_shape)
        return;
    m_shadow = shadow;
    m_shape = shape;
    m_alphaShadowKey.clear();
    updateBoundingRect();
    update();
}

void SurfaceEffect::setOpacity(qreal opacity)
{
    opacity = std::clamp<qreal>(opacity, 0.0, 1.0);
    if (qFuzzyCompare(opacity, m_opacity))
        return;
    m_opacity = opacity;
    update();
}

void SurfaceEffect::setOffset(QPointF offset)
{
    if (offset == m_offset)
        return;
    m_offset = offset;
    updateBoundingRect();
    update();
}

void SurfaceEffect::setScale(qreal scale)
{
    if (qFuzzyCompare(scale, m_scale))
        return;
    m_scale = scale;
    updateBoundingRect();
    update();
}

bool SurfaceEffect::isAtRest() const
{
    return qFuzzyCompare(m_opacity, 1.0) && m_offset.isNull() && qFuzzyCompare(m_scale, 1.0);
}

QRectF SurfaceEffect::boundingRectFor(const QRectF& sourceRect) const
{
    QRectF rect = sourceRect;
    if (m_shadow) {
        const int margin = shadowMargin(m_shadow->radius);
        rect = rect.united(sourceRect.adjusted(-margin, -margin, margin, margin).translated(m_shadow->offset));
    }
    if (m_scale > 1.0) {
        const qreal grow = (m_scale - 1.0) / 2.0;
        rect.adjust(-rect.width() * grow, -rect.height() * grow, rect.width() * grow, rect.height() * grow);
    }
    return rect.united(rect.translated(m_offset)).adjusted(-1, -1, 1, 1);
}

void SurfaceEffect::sourceChanged(ChangeFlags flags)
{
    if (flags & SourceBoundingRectChanged)
        m_alphaShadowKey.clear();
    QGraphicsEffect::sourceChanged(flags);
}

QImage SurfaceEffect::alphaShadow(const ShadowStyle& shadow, const QRectF& sourceRect, qreal dpr)
{
    const QColor color = shadow.color.resolve();
    const QString key = QStringLiteral("%1x%2:%3:%4:%5")
                            .arg(sourceRect.width())
                            .arg(sourceRect.height())
                            .arg(color.rgba(), 0, 16)
                            .arg(shadow.radius)
                            .arg(dpr);
    if (key == m_alphaShadowKey)
        return m_alphaShadowCache;

    QPoint offset;
    const QPixmap source = sourcePixmap(Qt::LogicalCoordinates, &offset, QGraphicsEffect::NoPad);
    m_alphaShadowCache = renderShadow(sourceRect.size(), shadow.radius, color, dpr,
                                      [&](QPainter& painter) { painter.drawPixmap(QPointF(0, 0), source); });
    m_alphaShadowKey = key;
    return m_alphaShadowCache;
}

void SurfaceEffect::drawShadow(QPainter* painter, const QRectF& sourceRect)
{
    if (!m_shadow)
        return;
    const QColor color = m_shadow->color.resolve();
    if (color.alpha() == 0)
        return;
    const qreal dpr = painter->device() ? painter->device()->devicePixelRatioF() : 1.0;
    const QImage image = m_shape.kind == Shape::alpha
                             ? alphaShadow(*m_shadow, sourceRect, dpr)
                             : shadowImage(sourceRect.size(), m_shape, m_shadow->radius, color, dpr);
    const int margin = shadowMargin(m_shadow->radius);
    painter->drawImage(sourceRect.topLeft() + m_shadow->offset - QPointF(margin, margin), image);
}

void SurfaceEffect::draw(QPainter* painter)
{
    const QRectF sourceRect = sourceBoundingRect(Qt::LogicalCoordinates);
    if (isAtRest()) {
        drawShadow(painter, sourceRect);
        drawSource(painter);
        return;
    }
    if (m_opacity <= 0.0)
        return;

    QPoint pixmapOffset;
    const QPixmap pixmap = sourcePixmap(Qt::LogicalCoordinates, &pixmapOffset, QGraphicsEffect::NoPad);
    painter->save();
    painter->setOpacity(painter->opacity() * m_opacity);
    const QPointF centre = sourceRect.center();
    QTransform motion;
    motion.translate(centre.x() + m_offset.x(), centre.y() + m_offset.y());
    motion.scale(m_scale, m_scale);
    motion.translate(-centre.x(), -centre.y());
    painter->setTransform(motion, true);
    painter->setRenderHint(QPainter::SmoothPixmapTransform, !qFuzzyCompare(m_scale, 1.0));
    drawShadow(painter, sourceRect);
    painter->drawPixmap(pixmapOffset, pixmap);
    painter->restore();
}

} // namespace qf::ui
