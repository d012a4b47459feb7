#include "Button.h"
#include "CLITool.h"
#include "ImageView.h"
#include "Label.h"
#include "Motion.h"
#include "RoundedCard.h"
#include "TestSupport.h"
#include "Theme.h"

#include <QAbstractAnimation>
#include <QSignalSpy>
#include <QTest>

using namespace qf;
using namespace qf::ui;

TEST(Theme, RolesFollowThePalette)
{
    const QPalette saved = QApplication::palette();
    QApplication::setPalette(Theme::lightPalette());
    EXPECT_FALSE(Theme::isDark());
    const QColor lightCard = Theme::color(Role::controlBackground);
    const QColor lightGreen = Theme::color(Role::green);

    QApplication::setPalette(Theme::darkPalette());
    EXPECT_TRUE(Theme::isDark());
    EXPECT_NE(Theme::color(Role::controlBackground), lightCard);
    EXPECT_NE(Theme::color(Role::green), lightGreen);
    // Secondary text is the primary text, fainter.
    EXPECT_LT(Theme::color(Role::secondary).alpha(), Theme::color(Role::primary).alpha());
    EXPECT_EQ(Tint(Role::accent, 0.05).resolve().alpha(), qRound(Theme::color(Role::accent).alpha() * 0.05));

    QApplication::setPalette(saved);
}

TEST(Theme, FontsArePointsInPixelsInThePlatformsFamilies)
{
    EXPECT_EQ(Theme::font(13).pixelSize(), 13); // a point is a logical pixel everywhere
    EXPECT_EQ(Theme::headline().weight(), QFont::DemiBold);
    EXPECT_TRUE(QFontInfo(Theme::font(12, QFont::Normal, FontDesign::monospaced)).fixedPitch());

    // A look of our own: the platform's families first, its light or dark choice honoured.
    const QPalette savedPalette = QApplication::palette();
    const QFont savedFont = QApplication::font();
    auto& app = *qobject_cast<QApplication*>(QCoreApplication::instance());
    Theme::applyApplicationLook(app,
                                {.nativeStyle = false, .prefersDark = true, .fontFamilies = {QStringLiteral("Inter")}});
    EXPECT_TRUE(Theme::isDark());
    EXPECT_EQ(Theme::body().families().value(0), QStringLiteral("Inter"));
    Theme::applyApplicationLook(app, {.nativeStyle = false, .prefersDark = false, .fontFamilies = {}});
    EXPECT_FALSE(Theme::isDark());
    QApplication::setPalette(savedPalette);
    QApplication::setFont(savedFont);
}

TEST(Label, LineLimitCapsTheHeight)
{
    Label label(QStringLiteral("one two three four five six seven eight nine ten eleven twelve thirteen fourteen"),
                Theme::font(13));
    label.setWrapping(true, 2);
    const int line = QFontMetrics(label.font()).lineSpacing();
    EXPECT_EQ(label.heightForWidth(60), 2 * line);
    EXPECT_EQ(label.heightForWidth(4000), line);
}

TEST(Button, ReportsClicksAndNamesItself)
{
    Button button(QStringLiteral("Get Started"), Button::Style::prominent, Button::Size::large);
    EXPECT_EQ(button.accessibleName(), QStringLiteral("Get Started"));
    button.setLabelWidth(160);
    EXPECT_EQ(button.sizeHint().width(), 160 + 2 * 14);
    EXPECT_GE(button.sizeHint().height(), 28);

    QSignalSpy clicks(&button, &QAbstractButton::clicked);
    button.resize(button.sizeHint());
    button.show();
    QTest::mouseClick(&button, Qt::LeftButton);
    EXPECT_EQ(clicks.count(), 1);
    QTest::keyClick(&button, Qt::Key_Return);
    (void)QTest::qWaitFor([&] { return clicks.count() == 2; }, 2000); // animateClick releases after a moment
    EXPECT_EQ(clicks.count(), 2);
    button.setEnabled(false);
    QTest::mouseClick(&button, Qt::LeftButton);
    EXPECT_EQ(clicks.count(), 2);
}

TEST(ImageView, EveryLogoIsASquareAsset)
{
    QStringList expected = {QStringLiteral("QuillforgeLogo")};
    for (CLITool tool : CLITool::allCases())
        expected << tool.logoImageName();
    for (const QString& name : expected) {
        ASSERT_TRUE(ImageView::assetExists(name)) << name.toStdString();
        ImageView view(name, 64);
        EXPECT_EQ(view.sizeHint(), QSize(64, 64)) << name.toStdString();
        QImage canvas(64, 64, QImage::Format_ARGB32_Premultiplied);
        canvas.fill(Qt::transparent);
        view.render(&canvas, QPoint(), QRegion(), QWidget::DrawChildren);
        EXPECT_GT(qAlpha(canvas.pixel(32, 32)), 200) << name.toStdString();
    }
}

TEST(Motion, WithAnimationsOffChangesLandAtOnce)
{
    QObject context;
    qreal last = -1;
    EXPECT_EQ(motion::animate(&context, 300, motion::easeOut(), [&](qreal p) { last = p; }), nullptr);
    EXPECT_EQ(last, 1.0);

    test::AnimationsOn on;
    last = -1;
    QAbstractAnimation* running = motion::animate(
        &context, 300, motion::easeOut(), [&](qreal p) { last = p; }, 100);
    ASSERT_NE(running, nullptr);
    EXPECT_EQ(running->totalDuration(), 400);
    running->setCurrentTime(400);
    EXPECT_DOUBLE_EQ(last, 1.0);
}

TEST(Motion, CurvesStartAndEndInPlace)
{
    for (const QEasingCurve& curve : {motion::easeOut(), motion::easeIn(), motion::easeInOut(), motion::spring()}) {
        EXPECT_NEAR(curve.valueForProgress(0.0), 0.0, 1e-6);
        EXPECT_NEAR(curve.valueForProgress(1.0), 1.0, 1e-6);
    }
    // Ease-out is ahead of linear at the start, ease-in behind it.
    EXPECT_GT(motion::easeOut().valueForProgress(0.25), 0.25);
    EXPECT_LT(motion::easeIn().valueForProgress(0.25), 0.25);
    // The spring settles without a visible overshoot.
    for (qreal t = 0; t <= 1.0; t += 0.05)
        EXPECT_LT(motion::spring().valueForProgress(t), 1.02);
}

TEST(RoundedCard, PaintsItsFillInsideItsShape)
{
    RoundedCard card;
    card.setCornerRadius(12);
    card.setFill(Tint(QColor(Qt::red)));
    card.resize(100, 60);
    QImage canvas(100, 60, QImage::Format_ARGB32_Premultiplied);
    canvas.fill(Qt::transparent);
    card.render(&canvas, QPoint(), QRegion(), QWidget::DrawChildren);
    EXPECT_EQ(QColor(canvas.pixel(50, 30)), QColor(Qt::red));
    EXPECT_EQ(qAlpha(canvas.pixel(0, 0)), 0);
}
