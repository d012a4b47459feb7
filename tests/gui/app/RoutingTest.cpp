#include "ContentView.h"
#include "FakePlatform.h"
#include "InstallationState.h"
#include "MainWindow.h"
#include "OnboardingView.h"
#include "Preferences.h"
#include "Services.h"
#include "TestSupport.h"

#include <QGuiApplication>
#include <QMoveEvent>
#include <QPointer>
#include <QScreen>
#include <QTest>

using namespace qf;

namespace {

class RoutingTest : public ::testing::Test {
protected:
    void SetUp() override { test::clearPreferences(); }

    test::FakePlatform platform;
    Services services{platform};
};

// Screens named after their step, counting how many were built.
struct CountingFactory {
    std::shared_ptr<int> built = std::make_shared<int>(0);
    ScreenFactory factory()
    {
        auto counter = built;
        return [counter](InstallationStep step, InstallationState&) {
            ++*counter;
            auto* screen = new QWidget;
            screen->setObjectName(caseName(step));
            return screen;
        };
    }
};

} // namespace

TEST_F(RoutingTest, EveryStepGetsAFreshScreen)
{
    InstallationState state;
    CountingFactory counting;
    ContentView view(state, counting.factory());
    EXPECT_EQ(view.currentScreen()->objectName(), QStringLiteral("onboarding"));
    view.show();

    QPointer<QWidget> first = view.currentScreen();
    state.setCurrentStep(InstallationStep::home);
    EXPECT_EQ(view.transitionOverlay(), nullptr); // without animations there is no transition picture
    state.setCurrentStep(InstallationStep::onboarding);
    test::settle();
    EXPECT_TRUE(first.isNull()); // the old screen is gone, not reused
    EXPECT_EQ(view.currentScreen()->objectName(), QStringLiteral("onboarding"));
    EXPECT_EQ(*counting.built, 3);
}

TEST_F(RoutingTest, QuickSuccessionEndsOnTheLastStep)
{
    test::AnimationsOn animations;
    InstallationState state;
    CountingFactory counting;
    ContentView view(state, counting.factory());
    view.resize(600, 500);
    view.show();

    state.setCurrentStep(InstallationStep::home);
    state.setCurrentStep(InstallationStep::welcome);
    state.setCurrentStep(InstallationStep::accountSetup);
    EXPECT_EQ(view.shownStep(), InstallationStep::accountSetup);
    test::settle();

    QList<QWidget*> screens;
    for (QWidget* child : view.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
        if (child != view.transitionOverlay())
            screens << child;
    }
    ASSERT_EQ(screens.size(), 1);
    EXPECT_EQ(screens.first()->objectName(), QStringLiteral("accountSetup"));
    EXPECT_TRUE(screens.first()->isVisible());

    // One picture fades out on top, and it lets clicks through to the live screen.
    QWidget* overlay = view.transitionOverlay();
    ASSERT_NE(overlay, nullptr);
    EXPECT_TRUE(overlay->testAttribute(Qt::WA_TransparentForMouseEvents));
    EXPECT_EQ(overlay->geometry(), view.rect());
}

TEST_F(RoutingTest, FirstScreenFollowsThePreference)
{
    {
        InstallationState state;
        MainWindow window(state, services);
        EXPECT_NE(qobject_cast<OnboardingView*>(window.contentView()->currentScreen()), nullptr);
    }
    Preferences::setHasCompletedOnboarding(true);
    InstallationState state;
    MainWindow window(state, services);
    EXPECT_EQ(window.contentView()->shownStep(), InstallationStep::home);
    EXPECT_EQ(window.contentView()->currentScreen()->objectName(), QStringLiteral("homeView"));
}

TEST_F(RoutingTest, ADeferredFirstScreenFollowsTheFirstFrameWithTheKeyboardOnGetStarted)
{
    InstallationState state;
    MainWindow window(state, services, {}, nullptr, ContentView::FirstScreen::afterFirstFrame);
    EXPECT_EQ(window.contentView()->currentScreen(), nullptr);
    window.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitFor([&] { return window.contentView()->currentScreen() != nullptr; }));
    auto* onboarding = qobject_cast<OnboardingView*>(window.contentView()->currentScreen());
    ASSERT_NE(onboarding, nullptr);
    EXPECT_EQ(onboarding->geometry(), window.contentView()->rect());
    EXPECT_TRUE(onboarding->isVisible());
    EXPECT_EQ(onboarding->focusWidget(), test::child(onboarding, QStringLiteral("getStartedButton")));

    // A step taken before the first frame is the one shown, built once.
    InstallationState early;
    CountingFactory counting;
    MainWindow other(early, services, counting.factory(), nullptr, ContentView::FirstScreen::afterFirstFrame);
    early.setCurrentStep(InstallationStep::home);
    other.show();
    test::settle();
    ASSERT_NE(other.contentView()->currentScreen(), nullptr);
    EXPECT_EQ(other.contentView()->currentScreen()->objectName(), caseName(InstallationStep::home));
    EXPECT_EQ(*counting.built, 1);
}

TEST_F(RoutingTest, WindowFillsTheUsableScreenAndKeepsItsMinimum)
{
    InstallationState state;
    MainWindow window(state, services);
    EXPECT_EQ(window.minimumSize(), QSize(550, 450));
    window.resize(300, 200);
    EXPECT_GE(window.width(), 550);
    EXPECT_GE(window.height(), 450);

    window.show();
    test::settle();
    ASSERT_TRUE(window.isConfigured());
    const QRect available = QGuiApplication::primaryScreen()->availableGeometry();
    EXPECT_EQ(window.frameGeometry(), available);
    EXPECT_EQ(platform.windowsShaped, 1); // shaped once
}

TEST_F(RoutingTest, TheFirstWindowLeavesRoomForItsFrame)
{
    const QRect available = QGuiApplication::primaryScreen()->availableGeometry();
    // (Larger than the frame of the test's own window system, which keeps frames on screen.)
    const QMargins frame(3, 20, 3, 5);
    {
        // The system knows the frame: the window and its frame together cover the usable
        // area, and the first screen is laid out at that size from the start.
        platform.windowFrame = WindowFrame{frame, true};
        InstallationState state;
        MainWindow window(state, services);
        EXPECT_EQ(window.size(), available.marginsRemoved(frame).size());
        window.show();
        test::settle();
        EXPECT_EQ(window.geometry(), available.marginsRemoved(frame));
    }

    // The window manager has not framed the window yet: the platform's usual title bar is
    // assumed, and once the real frame is known the window makes room for it.
    const QMargins titleBar(2, 24, 2, 2);
    platform.windowFrame = WindowFrame{titleBar, false};
    InstallationState state;
    MainWindow window(state, services);
    window.show();
    test::settle();
    EXPECT_EQ(window.geometry(), available.marginsRemoved(titleBar));
    const auto moved = [&window] {
        QMoveEvent event(window.pos(), window.pos());
        QCoreApplication::sendEvent(&window, &event);
    };
    moved(); // still not framed
    EXPECT_EQ(window.geometry(), available.marginsRemoved(titleBar));
    platform.windowFrame = WindowFrame{frame, true};
    moved();
    EXPECT_EQ(window.geometry(), available.marginsRemoved(frame));
    // That happens once: later the window's size is the user's.
    platform.windowFrame = WindowFrame{QMargins(4, 30, 4, 4), true};
    moved();
    EXPECT_EQ(window.geometry(), available.marginsRemoved(frame));
}
