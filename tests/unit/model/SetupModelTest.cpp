#include "SetupModel.h"

#include <gtest/gtest.h>

using namespace qf;

TEST(InstallationStep, RawValuesFollowFlowOrder)
{
    const char* names[] = {"onboarding",   "home",   "welcome",    "accountSetup", "systemCheck",
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

TEST(SystemRequirement, IdentityAndWording)
{
    const auto& all = SystemRequirement::allCases();
    ASSERT_EQ(all.size(), 3u);
    const QStringList ids = {QStringLiteral("macOSVersion"), QStringLiteral("nodeJS"), QStringLiteral("diskSpace")};
    for (size_t i = 0; i < all.size(); ++i)
        EXPECT_EQ(all[i].id(), ids[int(i)]);
    const RequirementStatus status{SystemRequirement::diskSpace, true, QStringLiteral("512 MB available")};
    EXPECT_EQ(status.id(), QStringLiteral("diskSpace"));

    // The texts that name the system are the system's own; the others are the same everywhere.
    const SystemWording wording{.osRequirementTitle = QStringLiteral("t"),
                                .osRequirementHelp = QStringLiteral("h"),
                                .osRequirementFix = QStringLiteral("f"),
                                .diskSpaceHelp = QStringLiteral("d"),
                                .nodeFixSuggestion = QStringLiteral("n")};
    const SystemRequirement os = SystemRequirement::macOSVersion;
    EXPECT_EQ(os.title(wording) + os.helpText(wording) + os.fixSuggestion(wording), QStringLiteral("thf"));
    EXPECT_EQ(SystemRequirement(SystemRequirement::diskSpace).helpText(wording), QStringLiteral("d"));
    EXPECT_EQ(SystemRequirement(SystemRequirement::nodeJS).fixSuggestion(wording), QStringLiteral("n"));
    for (SystemRequirement requirement : all) {
        EXPECT_FALSE(requirement.title(wording).isEmpty());
        EXPECT_FALSE(requirement.helpText(wording).isEmpty());
        EXPECT_FALSE(requirement.fixSuggestion(wording).isEmpty());
    }
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
    EXPECT_NE(copy, step); // a plain value: changing the copy leaves the original alone
    EXPECT_FALSE(step.details.has_value());
}
