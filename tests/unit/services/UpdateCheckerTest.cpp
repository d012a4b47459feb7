#include "CoroTest.h"
#include "Preferences.h"
#include "StdoutCapture.h"
#include "TestMachine.h"
#include "TestSupport.h"

using namespace qf;
using qf::test::await;

namespace {

// What the dashboard shows of a check: installed and newest version, the Node.js the newest
// needs, and whether it is an update.
using Shown = std::tuple<std::optional<QString>, std::optional<QString>, int, bool>;
Shown shown(const ToolUpdateInfo& info)
{
    return {info.installedVersion, info.latestVersion, info.requiredNodeMajor, info.updateAvailable()};
}

class UpdateCheckerTest : public ::testing::Test, protected test::TestMachine {
protected:
    void SetUp() override
    {
        test::clearPreferences();
        checker.setClock([this] { return now; });
        sandbox.installFakes({"npm", "gemini"});
        sandbox.setEnv("FAKE_TOOL_VERSION", "0.60.0");
        sandbox.setEnv("FAKE_NPM_LATEST", "0.61.0");
        sandbox.setEnv("FAKE_NPM_ENGINES", ">=20");
    }

    QList<ToolUpdateInfo> check(UpdateChecker& on, const QList<CLITool>& tools, bool force = false)
    {
        return await(on.check(tools, force)).value_or(QList<ToolUpdateInfo>());
    }
    ToolUpdateInfo checkGemini(bool force = false)
    {
        const QList<ToolUpdateInfo> infos = check(checker, {CLITool::geminiCLI}, force);
        EXPECT_EQ(infos.size(), 1);
        return infos.value(0, ToolUpdateInfo{CLITool::geminiCLI, std::nullopt, std::nullopt, 0});
    }
    // How often the fake npm was asked about the registry.
    int registryQuestions() const { return int(sandbox.readState("npm.log").count("npm view ")); }

    QDateTime now{QDate(2026, 11, 20), QTime(9, 0), Qt::UTC};
    UpdateChecker& checker = services.updateChecker;
};

} // namespace

TEST_F(UpdateCheckerTest, ANewerPublishedVersionIsAnUpdateWithItsNodeRequirement)
{
    // Codex is not installed: its newest version is known, but nothing is offered for it.
    const QList<ToolUpdateInfo> infos = check(checker, {CLITool::geminiCLI, CLITool::codex});
    ASSERT_EQ(infos.size(), 2);
    EXPECT_EQ(infos[0].tool, CLITool::geminiCLI);
    EXPECT_EQ(infos[1].tool, CLITool::codex);
    EXPECT_EQ(shown(infos[0]), Shown(QStringLiteral("0.60.0"), QStringLiteral("0.61.0"), 20, true));
    EXPECT_EQ(infos[1].installedVersion, std::nullopt);
    EXPECT_FALSE(infos[1].updateAvailable());
    // The requirement asked for is the one of the version found.
    EXPECT_TRUE(sandbox.readState("npm.log").contains("npm view @google/gemini-cli@0.61.0 engines.node\n"));

    // Once the installed version is the newest, no badge.
    sandbox.setEnv("FAKE_TOOL_VERSION", "0.61.0");
    EXPECT_FALSE(checkGemini().updateAvailable());

    // Claude Code from its maker's installer on a computer without Node.js: the registry is read
    // directly.
    sandbox.removeFake(QStringLiteral("npm"));
    sandbox.installFakes({"claude", "curl"});
    sandbox.setEnv("FAKE_TOOL_VERSION", "2.1.330 (Claude Code)");
    sandbox.setEnv("FAKE_NPM_LATEST", "2.1.332");
    sandbox.setEnv("FAKE_NPM_ENGINES", ">=22.0.0");
    const QList<ToolUpdateInfo> claude = check(checker, {CLITool::claudeCode});
    ASSERT_EQ(claude.size(), 1);
    EXPECT_EQ(shown(claude[0]), Shown(QStringLiteral("2.1.330"), QStringLiteral("2.1.332"), 22, true));
    EXPECT_TRUE(sandbox.readState("curl.log")
                    .contains("--max-time 20 https://registry.npmjs.org/@anthropic-ai/claude-code/latest"));
}

TEST_F(UpdateCheckerTest, TheRegistryIsAskedAtMostOnceADayRememberedAcrossLaunches)
{
    EXPECT_EQ(checkGemini().latestVersion, QStringLiteral("0.61.0"));
    const int once = registryQuestions();
    EXPECT_EQ(once, 2); // the version, then its Node.js requirement

    // A newer version is published; within the day the remembered answer stands, also for the
    // next launch, which asks nothing.
    sandbox.setEnv("FAKE_NPM_LATEST", "0.62.0");
    now = now.addSecs(23 * 3600);
    EXPECT_EQ(checkGemini().latestVersion, QStringLiteral("0.61.0"));
    UpdateChecker nextLaunch(services.runner, services.detector);
    nextLaunch.setClock([this] { return now; });
    const QList<ToolUpdateInfo> remembered = check(nextLaunch, {CLITool::geminiCLI});
    ASSERT_EQ(remembered.size(), 1);
    EXPECT_EQ(shown(remembered[0]), Shown(QStringLiteral("0.60.0"), QStringLiteral("0.61.0"), 20, true));
    EXPECT_EQ(registryQuestions(), once);

    // "Check for Updates" asks at once.
    EXPECT_EQ(checkGemini(true).latestVersion, QStringLiteral("0.62.0"));
    EXPECT_EQ(registryQuestions(), 2 * once);

    // A day after that check, the registry is asked again; a clock set back does not make a
    // check good for ever either.
    sandbox.setEnv("FAKE_NPM_LATEST", "0.63.0");
    now = now.addSecs(24 * 3600);
    EXPECT_EQ(checkGemini().latestVersion, QStringLiteral("0.63.0"));
    now = now.addDays(-3);
    checkGemini();
    EXPECT_EQ(registryQuestions(), 4 * once);
}

TEST_F(UpdateCheckerTest, OfflineShowsNoUpdateAndSaysWhyInOneDiagnosticLine)
{
    sandbox.setEnv("FAKE_NPM_OFFLINE", "1");
    // The environment of commands is read first, so that only the check speaks.
    await(services.runner.readEnvironment());
    test::StdoutCapture diagnostics;
    const ToolUpdateInfo offline = checkGemini();
    const QString printed = diagnostics.text();
    diagnostics.restore();
    EXPECT_EQ(shown(offline), Shown(QStringLiteral("0.60.0"), std::nullopt, 0, false));
    EXPECT_EQ(printed.count(QLatin1Char('\n')), 1) << printed.toStdString();
    EXPECT_TRUE(printed.startsWith(QStringLiteral("Update check for Gemini CLI failed: ")) &&
                printed.contains(QStringLiteral("ENOTFOUND registry.npmjs.org")))
        << printed.toStdString();

    // Not remembered as a check of the day: the next launch asks again. Within the hour this
    // run does not wait on the network again, unless asked to.
    EXPECT_EQ(Preferences::updateCheck(CLITool::geminiCLI), std::nullopt);
    const int asked = registryQuestions();
    checkGemini();
    EXPECT_EQ(registryQuestions(), asked);
    sandbox.setEnv("FAKE_NPM_OFFLINE", "");
    EXPECT_TRUE(checkGemini(true).updateAvailable());
}

TEST_F(UpdateCheckerTest, ChecksAtTheSameTimeShareOneAskingOfTheRegistry)
{
    // The dashboard's load, a "Check for Updates" and the updater asking at once.
    QCoro::Task<QList<ToolUpdateInfo>> first = checker.check({CLITool::geminiCLI});
    QCoro::Task<QList<ToolUpdateInfo>> forced = checker.check({CLITool::geminiCLI}, true);
    QCoro::Task<std::optional<PublishedVersion>> latest = checker.latestVersion(CLITool::geminiCLI, true);
    const std::optional<QList<ToolUpdateInfo>> a = await(std::move(first));
    const std::optional<QList<ToolUpdateInfo>> b = await(std::move(forced));
    const std::optional<std::optional<PublishedVersion>> c = await(std::move(latest));
    ASSERT_TRUE(a && b && c && *c);
    EXPECT_EQ(registryQuestions(), 2);
    for (const QList<ToolUpdateInfo>* infos : {&*a, &*b}) {
        ASSERT_EQ(infos->size(), 1);
        EXPECT_EQ(infos->first().latestVersion, QStringLiteral("0.61.0"));
    }
    EXPECT_EQ((*c)->version, QStringLiteral("0.61.0"));
}
