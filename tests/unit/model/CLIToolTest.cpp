#include "CLITool.h"
#include "PlatformBackends.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QSet>
#include <QTemporaryDir>
#include <QUrl>

using qf::CLITool;

namespace {

std::string name(CLITool tool) { return tool.rawValue().toStdString(); }

const qf::SystemWording& macWording() { return qf::MacPlatform::standardWording(); }

TEST(CLITool, CasesAndRawValues)
{
    const auto& all = CLITool::allCases();
    for (size_t i = 0; i < all.size(); ++i) {
        EXPECT_EQ(all[i].index(), int(i));
        EXPECT_EQ(CLITool::fromRawValue(all[i].rawValue()), all[i]);
        EXPECT_EQ(all[i].id(), all[i].rawValue());
    }
    // Only the exact raw values make a tool.
    for (const char* other : {"ClaudeCode", "claudecode", "geminiCli", "Codex", "", " codex", "codex ", "claude"})
        EXPECT_FALSE(CLITool::fromRawValue(QString::fromUtf8(other)).has_value()) << other;
}

TEST(CLITool, EveryToolIsCompleteAndDistinct)
{
    QSet<QString> names, commands, packages, variables, colours, urls;
    const QRegularExpression variableName(QStringLiteral("^[A-Z][A-Z0-9_]*$"));
    for (CLITool tool : CLITool::allCases()) {
        for (const QString& text :
             {tool.displayName(), tool.provider(), tool.iconName(), tool.logoImageName(), tool.toolDescription(),
              tool.accountRequirement(), tool.pricingInfo(), tool.signInNote(), tool.uninstallDescription()}) {
            EXPECT_FALSE(text.trimmed().isEmpty()) << name(tool);
        }
        EXPECT_EQ(tool.features().size(), 4) << name(tool);
        // The quick task is the tool's own command with a prompt in double quotes.
        EXPECT_TRUE(tool.tryCommand().startsWith(tool.commandName() + QStringLiteral(" \""))) << name(tool);
        EXPECT_TRUE(tool.tryCommand().endsWith(QLatin1Char('"'))) << name(tool);
        // The key's variable can be exported by any shell.
        EXPECT_TRUE(variableName.match(tool.apiKeyEnvVar()).hasMatch()) << name(tool);
        EXPECT_EQ(tool.brandColor().alpha(), 255);

        names << tool.displayName();
        commands << tool.commandName();
        packages << tool.npmPackage();
        variables << tool.apiKeyEnvVar();
        colours << tool.brandColor().name();
        for (const QUrl& url : {tool.apiKeyURL(), tool.signUpURL(), tool.docsURL()}) {
            EXPECT_TRUE(url.isValid()) << url.toString().toStdString();
            EXPECT_EQ(url.scheme(), QStringLiteral("https")) << url.toString().toStdString();
            EXPECT_FALSE(url.host().isEmpty()) << url.toString().toStdString();
            urls << url.toString();
        }
    }
    for (const QSet<QString>* distinct : {&names, &commands, &packages, &variables, &colours})
        EXPECT_EQ(distinct->size(), 3);
    EXPECT_EQ(urls.size(), 9); // no page stands in for another
}

TEST(CLITool, ExamplesAndStepsAreTheToolsOwnAndShared)
{
    for (CLITool tool : CLITool::allCases()) {
        const auto& steps = tool.accountSetupSteps(macWording());
        ASSERT_FALSE(tool.exampleCommands().isEmpty()) << name(tool);
        // The first example starts the tool; every one of them is the tool's own command.
        EXPECT_EQ(tool.exampleCommands().first().command, tool.commandName());
        for (const qf::ExampleCommand& example : tool.exampleCommands())
            EXPECT_TRUE(example.command.startsWith(tool.commandName())) << example.command.toStdString();
        // One step says where the tool is installed, in the system's words.
        const bool saysWhere = std::any_of(steps.cbegin(), steps.cend(), [](const qf::AccountSetupStep& step) {
            return step.description == macWording().toolInstallStep;
        });
        EXPECT_TRUE(saysWhere) << name(tool);

        // Built once and shared, not rebuilt per call.
        EXPECT_EQ(&tool.features(), &tool.features());
        EXPECT_EQ(&tool.exampleCommands(), &tool.exampleCommands());
        EXPECT_EQ(&tool.accountSetupSteps(macWording()), &steps);
    }
}

TEST(CLITool, AccountStepsFollowTheSystemsWording)
{
    qf::SystemWording linux = macWording();
    linux.toolInstallStep = QStringLiteral("We'll install the CLI tool on your computer.");
    const CLITool gemini = CLITool::geminiCLI;
    const auto& onMac = gemini.accountSetupSteps(macWording());
    const auto& onLinux = gemini.accountSetupSteps(linux);
    ASSERT_EQ(onMac.size(), onLinux.size());
    EXPECT_EQ(onLinux[1].description, linux.toolInstallStep);
    EXPECT_EQ(onMac[1].description, macWording().toolInstallStep);
    EXPECT_EQ(onLinux[0], onMac[0]); // every other step is the same
}

// Codex is used with a paid ChatGPT plan first, an API key second; its sign-up page is
// ChatGPT's.
TEST(CLITool, CodexLeadsWithAChatGPTPlan)
{
    const CLITool codex = CLITool::codex;
    const auto& steps = codex.accountSetupSteps(macWording());
    ASSERT_EQ(steps.size(), 4);
    EXPECT_TRUE(steps[0].title.contains(QStringLiteral("ChatGPT")));
    EXPECT_TRUE(steps[1].title.contains(QStringLiteral("API key")));
    EXPECT_TRUE(steps[3].description.contains(QStringLiteral("Sign in with ChatGPT")));
    EXPECT_LT(codex.accountRequirement().indexOf(QStringLiteral("ChatGPT")),
              codex.accountRequirement().indexOf(QStringLiteral("API key")));
    EXPECT_EQ(codex.signUpURL().host(), QStringLiteral("chatgpt.com"));
}

TEST(CLITool, InstallCommands)
{
    // Claude Code comes from its maker's script over TLS; the other two from npm.
    const QString claude = CLITool(CLITool::claudeCode).installCommand();
    const QUrl script(claude.section(QLatin1Char(' '), 2, 2).chopped(2));
    EXPECT_EQ(script.scheme(), QStringLiteral("https"));
    EXPECT_EQ(script.path(), QStringLiteral("/install.sh"));
    EXPECT_EQ(claude, qf::downloadThenRunLine(script.toString(), QStringLiteral("bash")));

    for (CLITool tool : {CLITool::geminiCLI, CLITool::codex}) {
        EXPECT_TRUE(tool.requiresNodeJS());
        EXPECT_EQ(tool.installCommand(), QStringLiteral("npm install -g ") + tool.npmPackage());
    }
    EXPECT_FALSE(CLITool(CLITool::claudeCode).requiresNodeJS());
}

// A script is run only once it has arrived whole; a failed download fails the line with
// curl's own status, in both shells that run such lines.
TEST(CLITool, ADownloadedScriptRunsOnlyWhenTheDownloadSucceeded)
{
    QTemporaryDir folder;
    ASSERT_TRUE(folder.isValid());
    const QString curl = folder.filePath(QStringLiteral("curl"));
    QFile fake(curl);
    ASSERT_TRUE(fake.open(QIODevice::WriteOnly));
    // Half a script arrives, then the connection drops (curl's status 18).
    fake.write(
        "#!/bin/sh\n"
        "if [ -n \"$CUT\" ]; then printf 'touch ran\\n'; printf 'curl: (18) transfer closed\\n' >&2; exit 18; fi\n"
        "printf 'touch ran\\necho \"$0 and $*\"\\n'\n");
    fake.close();
    fake.setPermissions(QFileDevice::ReadOwner | QFileDevice::ExeOwner);
    const QString line = qf::downloadThenRunLine(QStringLiteral("https://example.com/x.sh"), QStringLiteral("/bin/sh"));

    for (const char* shell : {"/bin/zsh", "/bin/bash"}) {
        for (const bool cut : {true, false}) {
            SCOPED_TRACE(std::string(shell) + (cut ? " cut" : " whole"));
            QFile::remove(folder.filePath(QStringLiteral("ran")));
            QProcess process;
            QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
            environment.insert(QStringLiteral("PATH"), folder.path() + QStringLiteral(":/usr/bin:/bin"));
            if (cut)
                environment.insert(QStringLiteral("CUT"), QStringLiteral("1"));
            process.setProcessEnvironment(environment);
            process.setWorkingDirectory(folder.path());
            process.start(QString::fromLatin1(shell), {QStringLiteral("-c"), line});
            ASSERT_TRUE(process.waitForFinished(10000));
            EXPECT_EQ(process.exitCode(), cut ? 18 : 0);
            EXPECT_EQ(QFile::exists(folder.filePath(QStringLiteral("ran"))), !cut);
        }
    }
}

// What each line removes is checked by running it (the removal tests); here, its shape.
TEST(CLITool, UninstallLinesTryEveryNpmInOrderAndAlwaysSucceed)
{
    const QStringList npms = {QStringLiteral("/opt/homebrew/bin/npm"), QStringLiteral("/usr/local/bin/npm")};
    for (CLITool tool : CLITool::allCases()) {
        const QString line = tool.uninstallCommand(npms);
        EXPECT_TRUE(line.startsWith(npms[0] + QStringLiteral(" uninstall -g ") + tool.npmPackage())) << name(tool);
        EXPECT_LT(line.indexOf(npms[0]), line.indexOf(npms[1])) << name(tool);
        // Exactly one "exit 0", at the very end, so the line reports success whatever happened.
        EXPECT_EQ(line.count(QStringLiteral("exit 0")), 1) << name(tool);
        EXPECT_TRUE(line.endsWith(QStringLiteral("; exit 0"))) << name(tool);
        EXPECT_FALSE(line.contains(QLatin1Char('\n')));
    }
}

} // namespace
