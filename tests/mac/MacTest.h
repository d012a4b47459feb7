#pragma once

#include "ContentView.h"
#include "HomeView.h"
#include "InstallationState.h"
#include "InstallationView.h"
#include "MainWindow.h"
#include "PlatformBackends.h"
#include "ProcessRun.h"
#include "Services.h"
#include "SimulatedMac.h"
#include "SystemCheckView.h"
#include "TestSupport.h"
#include "ToolCards.h"

#include <QAbstractButton>
#include <QLabel>
#include <QTest>

#include <memory>
#include <ostream>

// Texts in failures read as text.
inline void PrintTo(const QString& text, std::ostream* out) { *out << '"' << text.toStdString() << '"'; }

namespace qf::test {

// The real window with the Mac's backend, inside the simulated Mac: the Mac's own programs
// and paths, its login shell, and an events file that says what the user saw.
class MacTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        if (!SimulatedMac::inside())
            GTEST_SKIP() << "runs inside scripts/simulated-mac";
        clearPreferences();
        platform = createNativePlatform();
        ASSERT_EQ(platform->name(), QStringLiteral("macOS"));
        services = std::make_unique<Services>(*platform);
    }
    void TearDown() override
    {
        window.reset();
        // Work a screen started and nobody waited for ends before the services go away.
        EXPECT_TRUE(QTest::qWaitFor(
            [] {
                QCoreApplication::sendPostedEvents();
                QCoreApplication::processEvents();
                return ProcessRun::existing() == 0;
            },
            30000));
        services.reset();
    }

    void open(InstallationStep step, std::optional<CLITool> tool = std::nullopt)
    {
        window.reset();
        state.setSelectedTool(tool);
        state.setCurrentStep(step);
        window = std::make_unique<MainWindow>(state, *services);
        window->show();
        settle();
        window->resize(1100, 1500);
        settle();
    }
    QWidget* screen() const { return window->contentView()->currentScreen(); }
    template <typename T>
    T* screenAs() const
    {
        auto* shown = qobject_cast<T*>(screen());
        EXPECT_NE(shown, nullptr) << "on " << screen()->objectName().toStdString();
        return shown;
    }
    void click(const char* name) const
    {
        auto* target = child<QAbstractButton>(screen(), QLatin1String(name));
        ASSERT_TRUE(target && target->isVisible() && target->isEnabled()) << name;
        target->click();
        settle();
    }
    void waitForDashboard() const
    {
        ASSERT_TRUE(QTest::qWaitFor([this] { return !screenAs<HomeView>()->isLoading(); }, 20000));
        settle();
    }
    SystemToolCard* item(const char* key) const
    {
        return child<SystemToolCard>(screen(), QStringLiteral("systemToolCard.") + QLatin1String(key));
    }
    void waitForCheck() const
    {
        auto* check = screenAs<SystemCheckView>();
        ASSERT_TRUE(QTest::qWaitFor([check] { return !check->isChecking(); }, 20000));
        settle();
    }
    void waitForInstallation() const
    {
        InstallationController& controller = window->installationController();
        ASSERT_TRUE(QTest::qWaitFor([&] { return !controller.isInstalling() && !controller.isRunning(); }, 30000));
        settle();
    }
    // Every text the current screen shows.
    QStringList visibleTexts() const
    {
        QStringList texts;
        for (const QLabel* label : screen()->findChildren<QLabel*>()) {
            if (label->isVisibleTo(window.get()))
                texts << label->text();
        }
        for (const QAbstractButton* button : screen()->findChildren<QAbstractButton*>()) {
            if (button->isVisibleTo(window.get()))
                texts << button->text() << button->accessibleName();
        }
        return texts;
    }

    SimulatedMac mac;
    std::unique_ptr<Platform> platform;
    std::unique_ptr<Services> services;
    InstallationState state;
    std::unique_ptr<MainWindow> window;
};

} // namespace qf::test
