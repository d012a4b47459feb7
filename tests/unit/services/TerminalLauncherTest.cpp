#include "TestMachine.h"

#include <gtest/gtest.h>

using namespace qf;

namespace {

class TerminalLauncherTest : public ::testing::Test, protected test::TestMachine {};

} // namespace

TEST_F(TerminalLauncherTest, TerminalLaunchesGoToThePlatformEveryTime)
{
    services.terminal.openInTerminal(QStringLiteral("codex"), QStringLiteral("~/Developer"));
    services.terminal.openInTerminal(QStringLiteral("codex"), QStringLiteral("~/Developer"));
    ASSERT_EQ(platform.terminals.size(), 2);
    EXPECT_EQ(platform.terminals[0], qMakePair(QStringLiteral("codex"), QStringLiteral("~/Developer")));
}
