#pragma once

#include "Platform.h"

#include <QCoreApplication>
#include <QString>

#include <array>
#include <optional>

namespace qf {

// The screens of the application, in flow order. The raw value is the case index.
enum class InstallationStep {
    onboarding = 0,
    home = 1,
    welcome = 2,
    accountSetup = 3,
    systemCheck = 4,
    installation = 5,
    apiKey = 6,
    completion = 7,
    terminal = 8,
};

inline constexpr std::array<InstallationStep, 9> allInstallationSteps = {
    InstallationStep::onboarding,   InstallationStep::home,        InstallationStep::welcome,
    InstallationStep::accountSetup, InstallationStep::systemCheck, InstallationStep::installation,
    InstallationStep::apiKey,       InstallationStep::completion,  InstallationStep::terminal,
};

constexpr int rawValue(InstallationStep step) { return static_cast<int>(step); }
// No step for integers outside 0...8.
std::optional<InstallationStep> installationStepFromRawValue(int rawValue);
// The case name ("onboarding", "home", ...), for diagnostics and object names.
QString caseName(InstallationStep step);

// The colour a status is written in; the screens map it onto the theme.
enum class StatusColorRole { secondary, blue, green, red };

// What the system check verifies.
class SystemRequirement {
    Q_DECLARE_TR_FUNCTIONS(SystemRequirement)

public:
    enum Case { macOSVersion, nodeJS, diskSpace, git };

    constexpr SystemRequirement(Case value) : m_case(value) {}
    constexpr operator Case() const { return m_case; }

    static const std::array<SystemRequirement, 4>& allCases();
    // Whether setup installs what is missing itself (Node.js); anything else blocks it.
    bool isInstalledBySetup() const { return m_case == nodeJS; }

    QString id() const; // the case name
    // The texts that name the system come from the system's own wording.
    QString title(const SystemWording& wording) const;
    QString helpText(const SystemWording& wording) const;
    QString fixSuggestion(const SystemWording& wording) const;

private:
    Case m_case;
};

// The result of checking one requirement.
struct RequirementStatus {
    SystemRequirement requirement;
    bool isMet = false;
    QString details;
    // The Node.js row: the major version the chosen tool needs (0 elsewhere).
    int nodeMajorNeeded = 0;

    QString id() const { return requirement.id(); }
    friend bool operator==(const RequirementStatus&, const RequirementStatus&) = default;
};

// The kinds of setup step, in the order they run.
class SetupStepType {
    Q_DECLARE_TR_FUNCTIONS(SetupStepType)

public:
    enum Case { createDeveloperFolder, checkGit, installNode, installTool };

    constexpr SetupStepType(Case value) : m_case(value) {}
    constexpr operator Case() const { return m_case; }

    static const std::array<SetupStepType, 4>& allCases();
    static std::optional<SetupStepType> fromRawValue(const QString& rawValue);

    QString rawValue() const;
    QString title() const;

private:
    Case m_case;
};

// The live state of one step. `failed` carries its message; the others are plain.
class SetupStepStatus {
    Q_DECLARE_TR_FUNCTIONS(SetupStepStatus)

public:
    enum Kind { failed, pending, inProgress, completed, skipped };

    constexpr SetupStepStatus(Kind kind) : m_kind(kind) {}
    static SetupStepStatus failure(const QString& message);

    Kind kind() const { return m_kind; }
    // The failure message; empty for every other kind.
    const QString& message() const { return m_message; }

    QString label() const;
    StatusColorRole colorRole() const;

    friend bool operator==(const SetupStepStatus&, const SetupStepStatus&) = default;

private:
    Kind m_kind;
    QString m_message;
};

// One row of an installation. Its identity is its type, so a list holds at most one of each.
struct SetupStep {
    SetupStepType type;
    SetupStepStatus status = SetupStepStatus::pending;
    std::optional<QString> details;

    QString id() const { return type.rawValue(); }
    friend bool operator==(const SetupStep&, const SetupStep&) = default;
};

} // namespace qf
