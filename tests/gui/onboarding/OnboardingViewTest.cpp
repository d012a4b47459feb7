#include "FakePlatform.h"
#include "FeatureItem.h"
#include "InstallationState.h"
#include "MainWindow.h"
#include "OnboardingView.h"
#include "Preferences.h"
#include "Services.h"
#include "TestMachine.h"
#include "TestSupport.h"

#include "Button.h"
#include "Label.h"
#include "RoundedCard.h"
#include "Surface.h"
#include "Symbol.h"

#include <QScrollArea>
#include <QScrollBar>
#include <QTest>

using namespace qf;

namespace {

class OnboardingTest : public ::testing::Test {
protected:
    void SetUp() override { test::clearPreferences(); }
};

struct ElementLook {
    qreal opacity;
    QPointF offset;
    qreal scale;
};

ElementLook lookOf(QWidget* widget)
{
    auto* effect = qobject_cast<ui::SurfaceEffect*>(widget->graphicsEffect());
    EXPECT_NE(effect, nullptr);
    if (!effect)
        return {1, {}, 1};
    return {effect->opacity(), effect->offset(), effect->scale()};
}

// The animated elements: logo, title block, three rows and the button.
struct Elements {
    QWidget* logo;
    QWidget* titleBlock;
    QList<FeatureItem*> rows;
    QWidget* buttonRow;
};

} // namespace

TEST_F(OnboardingTest, EntranceAnimationMovesEveryElementFromOutToIn)
{
    test::AnimationsOn animations;
    InstallationState state;
    OnboardingView view(state);
    const Elements e{test::child(&view, QStringLiteral("quillforgeLogo")),
                     test::child(&view, QStringLiteral("onboardingTitleBlock")), view.findChildren<FeatureItem*>(),
                     test::child(&view, QStringLiteral("getStartedRow"))};
    ASSERT_EQ(e.rows.size(), 3);
    // Rising elements share one large parent, so nothing clips them on their way in.
    QWidget* content = e.logo->parentWidget();
    for (QWidget* element : {e.titleBlock, e.buttonRow, static_cast<QWidget*>(e.rows[2])})
        EXPECT_EQ(element->parentWidget(), content);

    EXPECT_FALSE(view.animateIn());
    view.resize(800, 700);
    view.show();
    EXPECT_TRUE(view.animateIn());
    QAbstractAnimation* entrance = view.entranceAnimation();
    ASSERT_NE(entrance, nullptr);
    EXPECT_EQ(entrance->totalDuration(), OnboardingView::entranceDelayMs + OnboardingView::entranceDurationMs);

    // Out, until the delay has passed: invisible, the logo small, the title a little lower and
    // the rest lower still.
    const QList<QWidget*> all{e.logo, e.titleBlock, e.rows[0], e.rows[1], e.rows[2], e.buttonRow};
    for (const int time : {-1, OnboardingView::entranceDelayMs - 10}) {
        if (time >= 0)
            entrance->setCurrentTime(time);
        for (QWidget* element : all) {
            const ElementLook look = lookOf(element);
            EXPECT_EQ(look.opacity, 0.0) << element->objectName().toStdString();
            if (element == e.logo)
                EXPECT_DOUBLE_EQ(look.scale, 0.8);
            else
                EXPECT_EQ(look.offset, QPointF(0, element == e.titleBlock ? 10 : 20));
        }
    }

    // Half way every element is on its way, all together.
    entrance->setCurrentTime(OnboardingView::entranceDelayMs + OnboardingView::entranceDurationMs / 2);
    const qreal opacity = lookOf(e.logo).opacity;
    EXPECT_GT(opacity, 0.0);
    EXPECT_LT(opacity, 1.0);
    for (QWidget* element : {e.titleBlock, static_cast<QWidget*>(e.rows[1]), e.buttonRow})
        EXPECT_DOUBLE_EQ(lookOf(element).opacity, opacity);
    EXPECT_GT(lookOf(e.rows[0]).offset.y(), 0.0);
    EXPECT_LT(lookOf(e.rows[0]).offset.y(), 20.0);

    // After 0.7 s everything has its final look.
    entrance->setCurrentTime(700);
    for (QWidget* element : all) {
        const ElementLook look = lookOf(element);
        EXPECT_EQ(look.opacity, 1.0);
        EXPECT_EQ(look.offset, QPointF());
        EXPECT_DOUBLE_EQ(look.scale, 1.0);
    }
}

TEST_F(OnboardingTest, GetStartedMidAnimationStoresThePreferenceAndGoesHome)
{
    test::AnimationsOn animations;
    InstallationState state;
    ASSERT_EQ(state.currentStep(), InstallationStep::onboarding);
    test::TestMachine machine;
    MainWindow window(state, machine.services);
    window.resize(900, 700);
    window.show();
    auto* view = qobject_cast<OnboardingView*>(window.contentView()->currentScreen());
    ASSERT_NE(view, nullptr);
    ASSERT_NE(view->entranceAnimation(), nullptr);
    view->entranceAnimation()->setCurrentTime(300); // the button is still fading in

    auto* button = test::child<ui::Button>(view, QStringLiteral("getStartedButton"));
    QTest::mouseClick(button, Qt::LeftButton);

    EXPECT_TRUE(Preferences::hasCompletedOnboarding());
    EXPECT_EQ(state.currentStep(), InstallationStep::home);
    test::settle();
    EXPECT_EQ(window.contentView()->shownStep(), InstallationStep::home);
    EXPECT_EQ(window.contentView()->findChildren<OnboardingView*>().size(), 0);
}

TEST_F(OnboardingTest, TheFeaturesShowAndShortWindowsScrollTheContent)
{
    InstallationState state;
    OnboardingView view(state);
    view.resize(550, 450);
    view.show();
    test::settle();
    auto* scroll = test::child<QScrollArea>(&view, QStringLiteral("onboardingScroll"));
    EXPECT_GT(scroll->verticalScrollBar()->maximum(), 0);
    auto* button = test::child(&view, QStringLiteral("getStartedButton"));
    scroll->ensureWidgetVisible(button);
    EXPECT_GT(scroll->verticalScrollBar()->value(), 0);

    // The background stays put behind the scrolled content and fills the window.
    const QImage shot = view.grab().toImage();
    EXPECT_EQ(shot.size(), QSize(550, 450) * shot.devicePixelRatio());
    EXPECT_EQ(qAlpha(shot.pixel(2, shot.height() - 3)), 255);

    // The three features, each with its icon, title and description; narrow rows wrap their
    // descriptions onto a second line instead of cutting them.
    const QList<FeatureItem*> rows = view.findChildren<FeatureItem*>();
    ASSERT_EQ(rows.size(), 3);
    int wrappedRows = 0;
    for (FeatureItem* row : rows) {
        EXPECT_TRUE(ui::Symbol::exists(row->icon())) << row->icon().toStdString();
        EXPECT_EQ(test::child<QLabel>(row, QStringLiteral("featureTitle"))->text(), row->title());
        EXPECT_EQ(test::child<ui::Label>(row, QStringLiteral("featureDescription"))->maximumLines(), 2);
        EXPECT_FALSE(row->description().isEmpty());
        EXPECT_TRUE(row->shadow().has_value());
        auto* description = test::child<QLabel>(row, QStringLiteral("featureDescription"));
        EXPECT_GE(description->height(), description->heightForWidth(description->width()));
        wrappedRows += description->height() >= 2 * QFontMetrics(description->font()).lineSpacing();
    }
    EXPECT_GE(wrappedRows, 1);
    auto* wrapped = test::child<QLabel>(rows[2], QStringLiteral("featureDescription"));

    view.resize(1440, 900);
    test::settle();
    EXPECT_EQ(scroll->verticalScrollBar()->maximum(), 0);
    EXPECT_LT(wrapped->height(), 2 * QFontMetrics(wrapped->font()).lineSpacing());
}
