#pragma once

#include "ContentView.h"
#include "HomeView.h"
#include "InstallationState.h"
#include "InstallationView.h"
#include "MainWindow.h"
#include "PlatformBackends.h"
#include "Services.h"
#include "SimulatedMac.h"
#include "SystemCheckView.h"
#include "TestSupport.h"
#include "ToolCards.h"
#include "WindowDriver.h"

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
class MacTest : public ::testing::Test, protected WindowDriver {
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
        services.reset();
    }

    void open(InstallationStep step, std::optional<CLITool> tool = std::nullopt)
    {
        showWindow(*services, step, tool, {1100, 1500});
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
};

} // namespace qf::test
