#pragma once

#include "FlowWindowTest.h"
#include "HomeView.h"
#include "Preferences.h"
#include "SystemCheckView.h"

#include <QAbstractButton>

#include <functional>

namespace qf::test {

// One screen in one of its states, as a person meets it.
struct ScreenVisit {
    const char* name;
    // Brings the window there.
    std::function<void()> arrive;
    // The control the focus starts on (none while the screen offers nothing yet).
    const char* mainControl;
};

// Every screen of the application in the states that show the most: the real window on a
// machine of its own, large enough that nothing scrolls. Parameterised by the visit's number,
// so that each visit starts from a clean machine.
class ScreenTour : public FlowWindowTest, public ::testing::WithParamInterface<int> {
public:
    static constexpr int visits = 14;
    static std::string visitName(const ::testing::TestParamInfo<int>& info)
    {
        static const char* const names[visits] = {"Onboarding",           "FirstDashboard",
                                                  "DashboardWithTools",   "ToolChoice",
                                                  "ToolChosen",           "Account",
                                                  "CheckWithNodeToCome",  "CheckWithTooLittleSpace",
                                                  "CheckFindsTheTool",    "InstallationFailed",
                                                  "InstallationComplete", "APIKey",
                                                  "ReadyWithoutWindow",   "TerminalWithoutWindow"};
        return names[info.param];
    }

protected:
    static constexpr QSize large{1000, 1700};

    void visit(InstallationStep step, std::optional<CLITool> tool) { open(step, tool, large); }
    void press(const char* name)
    {
        auto* target = child<QAbstractButton>(screen(), QLatin1String(name));
        ASSERT_TRUE(target);
        target->click();
        settle();
    }
    HomeView* home() const { return screenAs<HomeView>(); }
    void waitForDashboard() const
    {
        ASSERT_TRUE(QTest::qWaitFor([this] { return !home()->isLoading(); }, 20000));
        settle();
    }

    QList<ScreenVisit> tour()
    {
        return {
            {"onboarding",
             [this] {
                 Preferences::setHasCompletedOnboarding(false);
                 visit(InstallationStep::onboarding, std::nullopt);
             },
             "getStartedButton"},
            {"dashboard on a first visit",
             [this] {
                 visit(InstallationStep::home, std::nullopt);
                 waitForDashboard();
             },
             "actionButton"},
            {"dashboard with tools",
             [this] {
                 sandbox.installFakes({"claude", "brew", "node"});
                 visit(InstallationStep::home, std::nullopt);
                 waitForDashboard();
             },
             "actionButton"},
            {"tool choice", [this] { visit(InstallationStep::welcome, std::nullopt); }, "toolCard.claudeCode"},
            {"tool chosen, explainer open",
             [this] {
                 visit(InstallationStep::welcome, CLITool::codex);
                 press("whatIsAIHeader");
             },
             "toolCard.codex"},
            {"account", [this] { visit(InstallationStep::accountSetup, CLITool::claudeCode); }, "haveAccountButton"},
            {"system check, Node.js to install, help open",
             [this] {
                 sandbox.installFakes({"git"});
                 visit(InstallationStep::systemCheck, CLITool::geminiCLI);
                 waitForCheck();
                 child<RequirementRow>(screen(), QStringLiteral("requirementRow.nodeJS"))->helpButton()->click();
                 settle();
             },
             "mainButton"},
            {"system check, too little space",
             [this] {
                 platform.diskSpace = DiskSpace{100 * 1024 * 1024, {}};
                 visit(InstallationStep::systemCheck, CLITool::geminiCLI);
                 waitForCheck();
             },
             "helpButton"},
            {"system check, already installed",
             [this] {
                 sandbox.installFakes({"claude"});
                 visit(InstallationStep::systemCheck, CLITool::claudeCode);
                 waitForCheck();
             },
             "mainButton"},
            {"installation failed, log open",
             [this] {
                 sandbox.installFakes({"git", "npm", "node"});
                 sandbox.setEnv("FAKE_NPM_FAIL", "1");
                 visit(InstallationStep::installation, CLITool::geminiCLI);
                 waitForInstallation();
                 press("detailsButton");
             },
             "mainButton"},
            {"installation complete",
             [this] {
                 sandbox.installFakes({"git", "curl"});
                 visit(InstallationStep::installation, CLITool::claudeCode);
                 waitForInstallation();
             },
             "mainButton"},
            {"API key", [this] { visit(InstallationStep::apiKey, CLITool::claudeCode); }, "apiKeyField"},
            {"ready to use, no terminal window",
             [this] {
                 platform.terminalOpens = false;
                 visit(InstallationStep::completion, CLITool::claudeCode);
                 press("openInTerminalButton");
             },
             "openInTerminalButton"},
            {"terminal, no window",
             [this] {
                 platform.terminalOpens = false;
                 visit(InstallationStep::terminal, CLITool::codex);
             },
             "backToHomeButton"},
        };
    }

    // The visit this test makes, there.
    const ScreenVisit& arrive()
    {
        m_tour = tour();
        const ScreenVisit& stop = m_tour.at(GetParam());
        stop.arrive();
        return stop;
    }

private:
    QList<ScreenVisit> m_tour;
};

} // namespace qf::test
