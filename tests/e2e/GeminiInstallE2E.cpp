// The opt-in end-to-end tests (scripts/test --e2e): a real Gemini CLI from the npm registry,
// installed and removed through the real installer by a user who cannot write npm's global
// folder, in a temporary HOME; and an older one updated (GeminiUpdateE2E.cpp). Need the network
// and a Node.js of 20 or newer; never part of the ordinary test run.

#include "CoroTest.h"
#include "EndToEnd.h"
#include "Services.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>

using namespace qf;

using qf::e2e::freshLoginShell;
using qf::e2e::kInstallLimitMs;
using qf::e2e::say;
using qf::e2e::ShellAnswer;

TEST(GeminiEndToEnd, InstalledWithoutAdministratorRightsFoundByTheTerminalAndRemoved)
{
    QTemporaryDir home;
    const QString shell = QStringLiteral("/bin/zsh");
    ASSERT_NO_FATAL_FAILURE(e2e::moveInto(home, shell));

    const std::unique_ptr<Platform> platform = createNativePlatform(e2e::accountShell(shell));
    Services services(*platform);

    const std::optional<Result<QString>> prefix = test::await(services.runner.run(QStringLiteral("npm prefix -g")));
    ASSERT_TRUE(prefix && prefix->ok()) << "npm is needed on the search path";
    ASSERT_FALSE(ToolInstaller::isWritableNpmPrefix(prefix->value()))
        << "run as a user who cannot write npm's global folder " << prefix->value().toStdString();
    say(QStringLiteral("npm's global folder: %1 (not writable for this user)\nHOME: %2\n\n")
            .arg(prefix->value(), home.path()));

    QString log;
    const auto output = [&log](const QString& text) {
        log += text;
        say(text);
    };
    const std::optional<Result<void>> installed = test::await(
        services.installer.runSetup(
            CLITool::geminiCLI,
            [](SetupStepType type, const SetupStepStatus& status, const std::optional<QString>& details) {
                say(QStringLiteral("[step] %1: %2%3\n")
                        .arg(type.rawValue(), status.label(),
                             details ? QStringLiteral(" (") + *details + u')' : QString()));
            },
            output, Cancellation()),
        kInstallLimitMs);
    ASSERT_TRUE(installed.has_value());
    ASSERT_TRUE(installed->ok()) << installed->error().errorDescription().toStdString();
    EXPECT_TRUE(QFileInfo(home.filePath(QStringLiteral(".local/bin/gemini"))).isExecutable());

    const ShellAnswer version = freshLoginShell(shell, home.path(), QStringLiteral("gemini --version"));
    say(QStringLiteral("\n$ gemini --version   (fresh login shell of that HOME)\n%1\nexit code %2\n\n")
            .arg(version.output)
            .arg(version.exitCode));
    EXPECT_EQ(version.exitCode, 0);
    EXPECT_FALSE(version.output.isEmpty());

    const std::optional<Result<void>> removed = test::await(services.remover.uninstall(CLITool::geminiCLI, output),
                                                            kInstallLimitMs);
    ASSERT_TRUE(removed && removed->ok());
    EXPECT_TRUE(log.endsWith(QStringLiteral("Gemini CLI has been uninstalled.\n")));
    const ShellAnswer gone = freshLoginShell(shell, home.path(), QStringLiteral("command -v gemini"));
    say(QStringLiteral("\n$ command -v gemini   (fresh login shell)\n%1\nexit code %2\n")
            .arg(gone.output)
            .arg(gone.exitCode));
    EXPECT_NE(gone.exitCode, 0);
    EXPECT_FALSE(QFileInfo::exists(home.filePath(QStringLiteral(".local/lib/node_modules/@google/gemini-cli"))));
}

int main(int argc, char* argv[])
{
    QCoreApplication app(argc, argv);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
