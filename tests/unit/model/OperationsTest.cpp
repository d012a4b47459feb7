// The operations the dashboard runs beside its screens: a run of an update or a removal, and
// the checks for updates.
#include "CoroTest.h"
#include "LogFile.h"
#include "OperationRun.h"
#include "TestSupport.h"
#include "UpdateCheckScheduler.h"

#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <QCoro/QCoroTimer>

using namespace qf;

TEST(OperationRunTest, AFailureGoesWholeToTheFileAndACancelledDialogFailsOnlyWhereItShould)
{
    QTemporaryDir root;
    const LogBook logs(root.filePath(QStringLiteral("logs")));
    OperationRun removal(logs);
    removal.begin(QStringLiteral("Uninstall Codex"));
    removal.sink()(QStringLiteral("npm ERR! 404\n"));
    const ServiceError failed(ShellError::failed(1, QStringLiteral("npm ERR! 404")));
    removal.fail(failed);
    EXPECT_EQ(removal.phase(), OperationRun::Phase::failed);
    EXPECT_EQ(removal.errorMessage(), failed.plainDescription());
    const std::optional<std::optional<QString>> file = test::await(removal.logFile()->readWhole());
    ASSERT_TRUE(file && *file);
    EXPECT_EQ(**file, QStringLiteral("npm ERR! 404\n\nError: ") + failed.errorDescription() + QLatin1Char('\n'));

    // A removal that was declined did not happen: that is said. An update asks again.
    removal.begin(QStringLiteral("Uninstall Codex"));
    removal.fail(ServiceError::removalDeclined(QStringLiteral("Codex")));
    EXPECT_EQ(removal.phase(), OperationRun::Phase::failed);
    EXPECT_TRUE(removal.errorMessage().has_value());
    OperationRun update(logs, OperationRun::Declined::asksAgain);
    update.begin(QStringLiteral("Update Codex"));
    update.fail(ServiceError::updateDeclined(QStringLiteral("Codex")));
    EXPECT_EQ(update.phase(), OperationRun::Phase::ready);
    EXPECT_FALSE(update.errorMessage().has_value());
}

namespace {

// Checks for updates that each wait at their end until the test lets them go, answering that
// Gemini CLI is up to date.
class HeldChecks {
public:
    QList<bool> forced; // whether each check that started was forced
    int released = 0;

    QCoro::Task<QList<ToolUpdateInfo>> check(QList<CLITool> tools, bool force)
    {
        forced << force;
        const int number = forced.size();
        while (released < number)
            co_await QCoro::sleepFor(std::chrono::milliseconds(1));
        QList<ToolUpdateInfo> answer;
        for (CLITool tool : tools)
            answer << ToolUpdateInfo{tool, QStringLiteral("0.60.0"), QStringLiteral("0.60.0"), 0};
        co_return answer;
    }
};

} // namespace

TEST(UpdateCheckSchedulerTest, AForcedCheckWaitsForTheQuietOneAndAQuietOneNeverTakesItsPlace)
{
    HeldChecks checks;
    std::optional<QList<CLITool>> installed; // being looked for
    UpdateCheckScheduler scheduler(
        [&checks](QList<CLITool> tools, bool force) { return checks.check(std::move(tools), force); },
        [&installed] { return installed; });
    QSignalSpy checked(&scheduler, &UpdateCheckScheduler::checked);
    scheduler.check(true);
    EXPECT_FALSE(scheduler.isChecking());

    installed = QList<CLITool>{CLITool::geminiCLI};
    scheduler.check(false);
    scheduler.check(true);
    EXPECT_EQ(checks.forced, QList<bool>{false});
    EXPECT_EQ(scheduler.status(), UpdateCheckScheduler::Status::checking);

    // The quiet check ends: the forced one starts; a quiet one asked for meanwhile adds nothing.
    checks.released = 1;
    ASSERT_TRUE(QTest::qWaitFor([&] { return checks.forced.size() == 2; }, 20000));
    EXPECT_TRUE(checks.forced.back());
    scheduler.check(false);
    EXPECT_EQ(scheduler.status(), UpdateCheckScheduler::Status::checking);
    EXPECT_EQ(checked.count(), 0);

    checks.released = 2;
    ASSERT_TRUE(QTest::qWaitFor([&] { return !scheduler.isChecking(); }, 20000));
    EXPECT_EQ(checks.forced.size(), 2);
    EXPECT_EQ(scheduler.status(), UpdateCheckScheduler::Status::upToDate);
    EXPECT_EQ(checked.count(), 1);
}
