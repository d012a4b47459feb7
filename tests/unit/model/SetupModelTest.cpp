#include "SetupModel.h"

#include <gtest/gtest.h>

#include <QSet>

using namespace qf;

TEST(InstallationStep, RawValuesFollowFlowOrder)
{
    QSet<QString> names;
    for (int raw = 0; raw <= 8; ++raw) {
        const auto step = installationStepFromRawValue(raw);
        ASSERT_TRUE(step.has_value()) << raw;
        EXPECT_EQ(rawValue(*step), raw);
        EXPECT_EQ(allInstallationSteps[size_t(raw)], *step);
        names << caseName(*step);
    }
    EXPECT_EQ(names.size(), 9);
    EXPECT_EQ(caseName(InstallationStep::accountSetup), QStringLiteral("accountSetup"));
    EXPECT_FALSE(installationStepFromRawValue(9).has_value());
    EXPECT_FALSE(installationStepFromRawValue(-1).has_value());
}

TEST(SystemRequirement, IdentityAndWording)
{
    const auto& all = SystemRequirement::allCases();
    ASSERT_EQ(all.size(), 4u);
    const QStringList ids = {QStringLiteral("macOSVersion"), QStringLiteral("nodeJS"), QStringLiteral("diskSpace"),
                             QStringLiteral("git")};
    for (size_t i = 0; i < all.size(); ++i)
        EXPECT_EQ(all[i].id(), ids[int(i)]);
    const RequirementStatus status{SystemRequirement::diskSpace, true, QStringLiteral("512 MB available")};
    EXPECT_EQ(status.id(), QStringLiteral("diskSpace"));

    // The texts that name the system are the system's own; the others are the same everywhere.
    const SystemWording wording{.osRequirementTitle = QStringLiteral("t"),
                                .osRequirementHelp = QStringLiteral("h"),
                                .osRequirementFix = QStringLiteral("f"),
                                .diskSpaceHelp = QStringLiteral("d"),
                                .nodeFixSuggestion = QStringLiteral("n"),
                                .gitMissingError = QStringLiteral("g")};
    const SystemRequirement os = SystemRequirement::macOSVersion;
    EXPECT_EQ(os.title(wording) + os.helpText(wording) + os.fixSuggestion(wording), QStringLiteral("thf"));
    EXPECT_EQ(SystemRequirement(SystemRequirement::diskSpace).helpText(wording), QStringLiteral("d"));
    EXPECT_EQ(SystemRequirement(SystemRequirement::nodeJS).fixSuggestion(wording), QStringLiteral("n"));
    EXPECT_EQ(SystemRequirement(SystemRequirement::git).fixSuggestion(wording), QStringLiteral("g"));
    for (SystemRequirement requirement : all) {
        EXPECT_FALSE(requirement.title(wording).isEmpty());
        EXPECT_FALSE(requirement.helpText(wording).isEmpty());
        EXPECT_FALSE(requirement.fixSuggestion(wording).isEmpty());
    }
}

TEST(SetupStepType, RawValuesRoundTripAndNothingElseMakesAType)
{
    for (SetupStepType type : SetupStepType::allCases()) {
        EXPECT_EQ(SetupStepType::fromRawValue(type.rawValue()), type);
        EXPECT_FALSE(type.title().isEmpty());
    }
    for (const char* other : {"CheckGit", "installNodeJS", ""})
        EXPECT_FALSE(SetupStepType::fromRawValue(QString::fromLatin1(other)).has_value()) << other;
    // A step is known by its type.
    EXPECT_EQ((SetupStep{SetupStepType::installTool}).id(), QStringLiteral("installTool"));
}

TEST(SetupStepStatus, AFailureShowsItsOwnMessageInRed)
{
    EXPECT_EQ(SetupStepStatus::failure(QStringLiteral("Not found")).label(), QStringLiteral("Not found"));
    const SetupStepStatus silent = SetupStepStatus::failure(QString());
    EXPECT_EQ(silent.kind(), SetupStepStatus::failed);
    EXPECT_TRUE(silent.label().isEmpty());
    EXPECT_EQ(silent.colorRole(), StatusColorRole::red);
    EXPECT_NE(SetupStepStatus::failure(QStringLiteral("a")), SetupStepStatus::failure(QStringLiteral("b")));

    // Work going on is blue, work done green; waiting and skipped steps stay quiet.
    EXPECT_EQ(SetupStepStatus(SetupStepStatus::inProgress).colorRole(), StatusColorRole::blue);
    EXPECT_EQ(SetupStepStatus(SetupStepStatus::completed).colorRole(), StatusColorRole::green);
    EXPECT_EQ(SetupStepStatus(SetupStepStatus::pending).colorRole(), StatusColorRole::secondary);
    EXPECT_EQ(SetupStepStatus(SetupStepStatus::skipped).colorRole(), StatusColorRole::secondary);
}
