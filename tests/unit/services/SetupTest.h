#pragma once

#include "CoroTest.h"
#include "TestMachine.h"
#include "TestSupport.h"
#include "ToolInstaller.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <ranges>

namespace qf::test {

// One report of a setup step, as the installer made it.
struct Report {
    SetupStepType type;
    SetupStepStatus status;
    std::optional<QString> details;
    friend bool operator==(const Report&, const Report&) = default;
};

inline void PrintTo(const Report& r, std::ostream* os)
{
    *os << r.type.rawValue().toStdString() << "/" << r.status.label().toStdString() << "/"
        << r.details.value_or(QStringLiteral("<none>")).toStdString();
}

// What one setup run reported, logged and ended with.
struct SetupRun {
    QList<Report> reports;
    QString log;
    std::optional<Result<void>> result;

    QString error() const { return result && !result->ok() ? result->error().errorDescription() : QString(); }
    // The last status reported for a step.
    std::optional<SetupStepStatus> last(SetupStepType type) const
    {
        for (const Report& report : std::views::reverse(reports))
            if (report.type == type)
                return report.status;
        return std::nullopt;
    }
    bool mentions(SetupStepType type) const { return last(type).has_value(); }
};

inline const SetupStepStatus kPending = SetupStepStatus::pending;
inline const SetupStepStatus kInProgress = SetupStepStatus::inProgress;
inline const SetupStepStatus kDone = SetupStepStatus::completed;
inline const SetupStepStatus kSkipped = SetupStepStatus::skipped;

// A machine of its own on which whole setup runs of the installer are made and followed.
class SetupTest : public ::testing::Test, protected TestMachine {
protected:
    SetupRun runSetup(CLITool tool)
    {
        SetupRun run;
        auto result = await(installer.runSetup(
            tool,
            [&](SetupStepType type, const SetupStepStatus& status, const std::optional<QString>& details) {
                run.reports.append({type, status, details});
            },
            [&](const QString& text) { run.log += text; }, Cancellation()));
        if (result)
            run.result = *result;
        return run;
    }

    QList<SetupStep> steps(CLITool tool) { return *await(installer.setupSteps(tool)); }

    static void writeFile(const QString& path, const QByteArray& bytes) { test::writeFile(path, bytes); }

    ToolInstaller& installer = services.installer;
};

} // namespace qf::test
