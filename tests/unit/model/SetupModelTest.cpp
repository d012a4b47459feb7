#include "SetupModel.h"

#include <gtest/gtest.h>

using namespace qf;

TEST(InstallationStep, RawValuesFollowFlowOrder)
{
    const char* names[] = {"onboarding", "home",       "welcome",    "accountSetup", "systemCheck",
                           "installation", "apiKey", "completion", "terminal"};
    for (int raw = 0; raw <= 8; ++raw) {
        const auto step = installationStepFromRawValue(raw);
        ASSERT_TRUE(step.has_value()) << raw;
        EXPECT_EQ(rawValue(*step), raw);
        EXPECT_EQ(caseName(*step), QString::fromLatin1(names[raw]));
        EXPECT_EQ(allInstallationSteps[size_t(raw)], *step);
    }
    EXPECT_FALSE(installationStepFromRawValue(9).has_value());
    EXPECT_FALSE(installationStepFromRawValue(-1).has_value());
}

TEST(SystemRequirement, TextsAndIdentity)
{
    const auto& all = SystemRequirement::allCases();
    ASSERT_EQ(all.size(), 3u);
    EXPECT_EQ(all[0], SystemRequirement::macOSVersion);
    EXPECT_EQ(all[1], SystemRequirement::nodeJS);
    EXPECT_EQ(all[2], SystemRequirement::diskSpace);

    const SystemRequirement mac = SystemRequirement::macOSVersion;
    EXPECT_EQ(mac.id(), QStringLiteral("macOSVersion"));
    EXPECT_EQ(mac.title(), QStringLiteral("macOS 14 or later"));
    EXPECT_EQ(mac.helpText(), QStringLiteral("Your Mac needs to be running macOS 14 (Sonoma) or later. Works on "
                                             "both Intel and Apple Silicon."));
    EXPECT_EQ(mac.fixSuggestion(),
              QString::fromUtf8("Update your Mac: Apple Menu \xE2\x86\x92 System Settings \xE2\x86\x92 General "
                                "\xE2\x86\x92 Software Update"));
    EXPECT_EQ(mac.fixSuggestion().toUtf8().size(), 79);

    const SystemRequirement node = SystemRequirement::nodeJS;
    EXPECT_EQ(node.id(), QStringLiteral("nodeJS"));
    EXPECT_EQ(node.title(), QStringLiteral("Node.js"));
    EXPECT_EQ(node.helpText(), QStringLiteral("Node.js is a JavaScript runtime that some AI tools use to run. It's a "
                                              "standard development tool used by millions of developers."));
    EXPECT_EQ(node.fixSuggestion(), QStringLiteral("Install manually: brew install node (or download from nodejs.org)"));

    const SystemRequirement disk = SystemRequirement::diskSpace;
    EXPECT_EQ(disk.id(), QStringLiteral("diskSpace"));
    EXPECT_EQ(disk.title(), QStringLiteral("200MB disk space"));
    EXPECT_EQ(disk.helpText(), QStringLiteral("The AI assistant and its dependencies need about 200MB of free space "
                                              "on your Mac. This is a one-time installation."));
    EXPECT_EQ(disk.fixSuggestion(), QStringLiteral("Free up space by emptying Trash or removing unused apps"));

    const RequirementStatus status{SystemRequirement::diskSpace, true, QStringLiteral("512 MB available")};
    EXPECT_EQ(status.id(), QStringLiteral("diskSpace"));
}

TEST(SetupStepType, RawValuesTitlesAndConstruction)
{
    const auto& all = SetupStepType::allCases();
    const char* raws[] = {"createDeveloperFolder", "checkGit", "installNode", "installTool"};
    const char* titles[] = {"Create ~/Developer folder", "Check for Git", "Install Node.js", "Install tool"};
    ASSERT_EQ(all.size(), 4u);
    for (size_t i = 0; i < all.size(); ++i) {
        EXPECT_EQ(all[i].rawValue(), QString::fromLatin1(raws[i]));
        EXPECT_EQ(all[i].title(), QString::fromLatin1(titles[i]));
        EXPECT_EQ(SetupStepType::fromRawValue(QString::fromLatin1(raws[i])), all[i]);
    }
    EXPECT_FALSE(SetupStepType::fromRawValue(QStringLiteral("CheckGit")).has_value());
    EXPECT_FALSE(SetupStepType::fromRawValue(QStringLiteral("installNodeJS")).has_value());
    EXPECT_FALSE(SetupStepType::fromRawValue(QString()).has_value());
}

TEST(SetupStepStatus, LabelsAndColours)
{
    EXPECT_EQ(SetupStepStatus(SetupStepStatus::pending).label(), QStringLiteral("Pending"));
    EXPECT_EQ(SetupStepStatus(SetupStepStatus::inProgress).label(), QStringLiteral("In progress..."));
    EXPECT_EQ(SetupStepStatus(SetupStepStatus::completed).label(), QStringLiteral("Done"));
    EXPECT_EQ(SetupStepStatus(SetupStepStatus::skipped).label(), QStringLiteral("Skipped"));
    EXPECT_EQ(SetupStepStatus::failure(QStringLiteral("Not found")).label(), QStringLiteral("Not found"));

    EXPECT_EQ(SetupStepStatus(SetupStepStatus::pending).colorRole(), StatusColorRole::secondary);
    EXPECT_EQ(SetupStepStatus(SetupStepStatus::inProgress).colorRole(), StatusColorRole::blue);
    EXPECT_EQ(SetupStepStatus(SetupStepStatus::completed).colorRole(), StatusColorRole::green);
    EXPECT_EQ(SetupStepStatus(SetupStepStatus::skipped).colorRole(), StatusColorRole::secondary);

    // A failure without a message is an empty red label.
    const SetupStepStatus silent = SetupStepStatus::failure(QString());
    EXPECT_EQ(silent.kind(), SetupStepStatus::failed);
    EXPECT_TRUE(silent.label().isEmpty());
    EXPECT_EQ(silent.colorRole(), StatusColorRole::red);

    EXPECT_NE(SetupStepStatus::failure(QStringLiteral("a")), SetupStepStatus::failure(QStringLiteral("b")));
    EXPECT_EQ(SetupStepStatus::failure(QStringLiteral("a")), SetupStepStatus::failure(QStringLiteral("a")));
}

TEST(SetupStep, IdentityIsTheTypeAndDetailsStartAbsent)
{
    const SetupStep step{SetupStepType::installTool};
    EXPECT_EQ(step.id(), QStringLiteral("installTool"));
    EXPECT_EQ(step.status, SetupStepStatus(SetupStepStatus::pending));
    EXPECT_FALSE(step.details.has_value());

    SetupStep copy = step;
    copy.details = QStringLiteral("Gemini CLI");
    EXPECT_NE(copy, step);  // a plain value: changing the copy leaves the original alone
    EXPECT_FALSE(step.details.has_value());
}
