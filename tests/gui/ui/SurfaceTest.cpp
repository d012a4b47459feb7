#include "Surface.h"
#include "TestSupport.h"

#include <QWidget>

using namespace qf::ui;

TEST(Surface, ContinuousCornersStayInsideTheirRectangle)
{
    const QRectF rect(0, 0, 200, 80);
    const QPainterPath path = continuousRoundedRect(rect, 14);
    EXPECT_TRUE(path.contains(rect.center()));
    EXPECT_FALSE(path.contains(QPointF(1, 1)));  // the corner is cut
    EXPECT_TRUE(path.contains(QPointF(100, 1))); // the straight edge is not
    EXPECT_LE(path.boundingRect().width(), rect.width() + 0.01);

    // A radius larger than the rectangle allows becomes the largest rounding that fits.
    const QPainterPath capsule = continuousRoundedRect(QRectF(0, 0, 100, 20), 50);
    EXPECT_TRUE(capsule.contains(QPointF(50, 10)));
    EXPECT_FALSE(capsule.contains(QPointF(0.5, 0.5)));
    EXPECT_TRUE(continuousRoundedRect(QRectF(), 8).isEmpty());
}

TEST(Surface, BlurSpreadsButKeepsTheMask)
{
    QImage mask(41, 41, QImage::Format_Alpha8);
    mask.fill(0);
    for (int y = 15; y < 26; ++y)
        for (int x = 15; x < 26; ++x)
            mask.scanLine(y)[x] = 255;
    auto total = [](const QImage& img) {
        long sum = 0;
        for (int y = 0; y < img.height(); ++y)
            for (int x = 0; x < img.width(); ++x)
                sum += img.constScanLine(y)[x];
        return sum;
    };
    const long before = total(mask);
    ASSERT_EQ(before, 11 * 11 * 255);
    blurAlpha(mask, 3.0);
    EXPECT_NEAR(double(total(mask)), double(before), before * 0.03);
    EXPECT_GT(mask.constScanLine(20)[11], 0);   // spread beyond the square
    EXPECT_LT(mask.constScanLine(20)[20], 255); // and softened inside
    EXPECT_EQ(mask.constScanLine(0)[0], 0);     // far corners untouched
}

TEST(Surface, ShadowImagesCoverTheShapeAndTheirMargin)
{
    const QColor color(0, 0, 0, 40);
    const QImage image = shadowImage(QSizeF(100, 50), Shape::rounded(12), 8, color, 2.0);
    const int margin = shadowMargin(8);
    EXPECT_EQ(image.deviceIndependentSize(), QSizeF(100 + 2 * margin, 50 + 2 * margin));
    EXPECT_EQ(image.devicePixelRatio(), 2.0);
    const QRgb centre = image.pixel(image.width() / 2, image.height() / 2);
    EXPECT_NEAR(qAlpha(centre), 40, 2);
    EXPECT_EQ(qAlpha(image.pixel(0, 0)), 0);
}

TEST(Surface, EffectReachesBeyondTheWidgetOnlyForShadowAndMotion)
{
    QWidget widget;
    widget.resize(100, 40);
    SurfaceEffect* effect = SurfaceEffect::of(&widget);
    EXPECT_EQ(SurfaceEffect::of(&widget), effect); // one effect per widget
    const QRectF source(0, 0, 100, 40);
    EXPECT_TRUE(effect->isAtRest());
    EXPECT_TRUE(effect->boundingRectFor(source).contains(source));

    effect->setShadow(ShadowStyle{Tint(Role::black, 0.1), 10, {0, 6}}, Shape::rounded(12));
    const QRectF withShadow = effect->boundingRectFor(source);
    EXPECT_GE(withShadow.bottom(), source.bottom() + 6 + shadowMargin(10) - 1);

    effect->setOffset(QPointF(0, 20));
    EXPECT_FALSE(effect->isAtRest());
    EXPECT_GE(effect->boundingRectFor(source).bottom(), withShadow.bottom() + 19);
    effect->setOffset(QPointF());
    effect->setOpacity(1.5);
    EXPECT_EQ(effect->opacity(), 1.0);
    EXPECT_TRUE(effect->isAtRest());
}
