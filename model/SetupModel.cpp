#include "SetupModel.h"

namespace qf {

std::optional<InstallationStep> installationStepFromRawValue(int rawValue)
{
    if (rawValue < 0 || rawValue >= static_cast<int>(allInstallationSteps.size()))
        return std::nullopt;
    return allInstallationSteps[static_cast<size_t>(rawValue)];
}

QString caseName(InstallationStep step)
{
    static const std::array<const char*, 9> names = {
        "onboarding",   "home",   "welcome",    "accountSetup", "systemCheck",
        "installation", "apiKey", "completion", "terminal",
    };
    return QString::fromLatin1(names[static_cast<size_t>(rawValue(step))]);
}

// MARK: SystemRequirement

const std::array<SystemRequirement, 4>& SystemRequirement::allCases()
{
    static constexpr std::array<SystemRequirement, 4> cases = {macOSVersion, nodeJS, diskSpace, git};
    return cases;
}

QString SystemRequirement::id() const
{
    switch (m_case) {
    case macOSVersion: return QStringLiteral("macOSVersion");
    case nodeJS: return QStringLiteral("nodeJS");
    case diskSpace: return QStringLiteral("diskSpace");
    case git: return QStringLiteral("git");
    }
    Q_UNREACHABLE();
}

QString SystemRequirement::title(const SystemWording& wording) const
{
    switch (m_case) {
    case macOSVersion: return wording.osRequirementTitle;
    case nodeJS: return tr("Node.js");
    case diskSpace: return tr("1GB disk space");
    case git: return tr("Git");
    }
    Q_UNREACHABLE();
}

QString SystemRequirement::helpText(const SystemWording& wording) const
{
    switch (m_case) {
    case macOSVersion: return wording.osRequirementHelp;
    case nodeJS:
        return tr("Node.js is a JavaScript runtime that some AI tools use to run. It's a standard development tool "
                  "used by millions of developers.");
    case diskSpace: return wording.diskSpaceHelp;
    case git:
        return tr("Git keeps track of the changes in your projects. The AI tools use it to see and undo what they "
                  "change.");
    }
    Q_UNREACHABLE();
}

QString SystemRequirement::fixSuggestion(const SystemWording& wording) const
{
    switch (m_case) {
    case macOSVersion: return wording.osRequirementFix;
    case nodeJS: return wording.nodeFixSuggestion;
    case diskSpace: return tr("Free up space by emptying Trash or removing unused apps");
    case git: return wording.gitMissingError;
    }
    Q_UNREACHABLE();
}

// MARK: SetupStepType

const std::array<SetupStepType, 4>& SetupStepType::allCases()
{
    static constexpr std::array<SetupStepType, 4> cases = {createDeveloperFolder, checkGit, installNode, installTool};
    return cases;
}

std::optional<SetupStepType> SetupStepType::fromRawValue(const QString& rawValue)
{
    for (SetupStepType type : allCases()) {
        if (type.rawValue() == rawValue)
            return type;
    }
    return std::nullopt;
}

QString SetupStepType::rawValue() const
{
    switch (m_case) {
    case createDeveloperFolder: return QStringLiteral("createDeveloperFolder");
    case checkGit: return QStringLiteral("checkGit");
    case installNode: return QStringLiteral("installNode");
    case installTool: return QStringLiteral("installTool");
    }
    Q_UNREACHABLE();
}

QString SetupStepType::title() const
{
    switch (m_case) {
    case createDeveloperFolder: return tr("Create ~/Developer folder");
    case checkGit: return tr("Check for Git");
    case installNode: return tr("Install Node.js");
    case installTool: return tr("Install tool");
    }
    Q_UNREACHABLE();
}

// MARK: SetupStepStatus

SetupStepStatus SetupStepStatus::failure(const QString& message)
{
    SetupStepStatus status(failed);
    status.m_message = message;
    return status;
}

QString SetupStepStatus::label() const
{
    switch (m_kind) {
    case failed: return m_message;
    case pending: return tr("Pending");
    case inProgress: return tr("In progress...");
    case completed: return tr("Done");
    case skipped: return tr("Skipped");
    }
    Q_UNREACHABLE();
}

StatusColorRole SetupStepStatus::colorRole() const
{
    switch (m_kind) {
    case failed: return StatusColorRole::red;
    case pending:
    case skipped: return StatusColorRole::secondary;
    case inProgress: return StatusColorRole::blue;
    case completed: return StatusColorRole::green;
    }
    Q_UNREACHABLE();
}

} // namespace qf
