#include "CLITool.h"
#include "Symbol.h"
#include "TestSupport.h"

#include <QPainter>

using namespace qf;
using namespace qf::ui;

namespace {

// Every symbol name the screens use.
const QStringList kDesignSymbols =
    QStringLiteral("arrow.down.circle arrow.right arrow.up.right arrow.up.right.square "
                   "bubble.left.and.text.bubble.right checkmark checkmark.circle.fill checkmark.seal chevron.down "
                   "chevron.left chevron.right chevron.up command.square.fill cpu.fill creditcard doc.on.clipboard "
                   "doc.text.magnifyingglass exclamationmark exclamationmark.triangle.fill eye eye.slash folder "
                   "folder.badge.plus graduationcap hammer hand.wave.fill key.fill lightbulb.fill mug "
                   "person.circle.fill questionmark.circle questionmark.circle.fill server.rack sparkles star.fill "
                   "terminal terminal.fill trash wrench.and.screwdriver xmark xmark.circle.fill")
        .split(QLatin1Char(' '), Qt::SkipEmptyParts);

int opaquePixels(const QPixmap& pixmap)
{
    const QImage image = pixmap.toImage().convertToFormat(QImage::Format_ARGB32);
    int count = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            count += qAlpha(image.pixel(x, y)) > 128;
    return count;
}

} // namespace

TEST(Symbol, EveryDesignSymbolAndToolIconRendersInItsTint)
{
    const QColor tint(200, 40, 120);
    QStringList names = kDesignSymbols;
    for (CLITool tool : CLITool::allCases())
        names << tool.iconName();
    for (const QString& name : names) {
        ASSERT_TRUE(Symbol::exists(name)) << name.toStdString();
        const QPixmap pixmap = Symbol::pixmap(name, 20, tint, 1.0);
        ASSERT_FALSE(pixmap.isNull()) << name.toStdString();
        const QImage image = pixmap.toImage().convertToFormat(QImage::Format_ARGB32);
        int covered = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                const QRgb px = image.pixel(x, y);
                if (qAlpha(px) == 0)
                    continue;
                ++covered;
                if (qAlpha(px) < 160)
                    continue; // edge pixels lose colour precision to premultiplication
                ASSERT_NEAR(qRed(px), tint.red(), 4) << name.toStdString() << " is not tinted";
                ASSERT_NEAR(qGreen(px), tint.green(), 4) << name.toStdString() << " is not tinted";
                ASSERT_NEAR(qBlue(px), tint.blue(), 4) << name.toStdString() << " is not tinted";
            }
        }
        // A glyph, not an empty square nor a filled one.
        EXPECT_GT(covered, 10) << name.toStdString();
        EXPECT_LT(covered, image.width() * image.height()) << name.toStdString();
    }
}

TEST(Symbol, SharpOnHighDensityScreensHeavierWhenBoldAndNothingForUnknownNames)
{
    const QPixmap normal = Symbol::pixmap(QStringLiteral("chevron.left"), 20, Qt::black, 1.0);
    const QPixmap retina = Symbol::pixmap(QStringLiteral("chevron.left"), 20, Qt::black, 2.0);
    EXPECT_EQ(normal.deviceIndependentSize(), retina.deviceIndependentSize());
    EXPECT_EQ(retina.size(), normal.size() * 2);
    EXPECT_EQ(normal.width(), Symbol::boxSize(20));
    const QPixmap bold = Symbol::pixmap(QStringLiteral("chevron.left"), 20, Qt::black, 1.0, SymbolWeight::bold);
    EXPECT_GT(opaquePixels(bold), opaquePixels(normal));

    EXPECT_FALSE(Symbol::exists(QStringLiteral("not.a.symbol")));
    EXPECT_TRUE(Symbol::pixmap(QStringLiteral("not.a.symbol"), 12, Qt::black, 1.0).isNull());
}

TEST(Symbol, ViewPaintsCentredInItsBox)
{
    SymbolView view(QStringLiteral("checkmark.circle.fill"), 13, Tint(QColor(Qt::green)));
    EXPECT_EQ(view.sizeHint(), QSize(Symbol::boxSize(13), Symbol::boxSize(13)));
    view.resize(40, 40);
    QImage canvas(40, 40, QImage::Format_ARGB32_Premultiplied);
    canvas.fill(Qt::transparent);
    view.render(&canvas, QPoint(), QRegion(), QWidget::DrawChildren);
    EXPECT_EQ(qAlpha(canvas.pixel(0, 0)), 0);
    EXPECT_GT(qAlpha(canvas.pixel(20, 20)), 0);
}
