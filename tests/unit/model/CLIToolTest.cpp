#include "CLITool.h"

#include <gtest/gtest.h>

#include <QUrl>

using qf::AccountSetupStep;
using qf::CLITool;
using qf::ExampleCommand;

namespace {

struct ExpectedTool {
    CLITool tool;
    const char* rawValue;
    const char* displayName;
    const char* provider;
    const char* commandName;
    const char* iconName;
    const char* logoImageName;
    std::array<double, 3> brand;
    bool requiresNodeJS;
    const char* toolDescription;
    const char* accountRequirement;
    const char* pricingInfo;
    const char* signInNote;
    const char* tryCommand;
    const char* uninstallDescription;
    const char* npmPackage;
    const char* apiKeyEnvVar;
    const char* installCommand;
    QStringList features;
    QList<AccountSetupStep> accountSteps;
    QList<ExampleCommand> examples;
};

const QString kInstallStep = QStringLiteral("We'll install the CLI tool on your Mac.");
const QString kFirstLaunch = QStringLiteral("On first launch, your browser will open to authenticate.");

const std::vector<ExpectedTool>& expectations()
{
    static const std::vector<ExpectedTool> all = {
        {CLITool::claudeCode, "claudeCode", "Claude Code", "Anthropic", "claude", "terminal.fill", "ClaudeLogo",
         {0.85, 0.55, 0.35}, false,
         "AI coding assistant from Anthropic. Works in your terminal to help write, debug, and understand code.",
         "Requires an Anthropic account (free tier available)", "Free tier available, Pro plan for more usage",
         "Sign in with your Anthropic account on first run.", "claude \"explain this code\"",
         "Remove Claude Code and its configuration", "@anthropic-ai/claude-code", "ANTHROPIC_API_KEY",
         "curl -fsSL https://claude.ai/install.sh | bash",
         {"Works directly in your project folder", "Can read, edit, and create files",
          "Runs commands and tests for you", "Understands your entire codebase"},
         {{"Create an Anthropic account", "Visit claude.ai and sign up with your email or Google account."},
          {"Choose a plan", "Start with the free tier or upgrade to Pro for more usage."},
          {"Install Claude Code", kInstallStep},
          {"Sign in from Terminal", kFirstLaunch}},
         {{"claude", "Start interactive session"},
          {"claude \"fix the bug in auth.ts\"", "Quick task mode"},
          {"claude --help", "Show all options"},
          {"claude /init", "Initialize project settings"}}},
        {CLITool::geminiCLI, "geminiCLI", "Gemini CLI", "Google", "gemini", "sparkles", "GeminiLogo",
         {0.25, 0.52, 0.96}, true,
         "Google's Gemini AI in your terminal. Great for code generation and technical questions.",
         "Requires a Google account (you probably have one!)", "Free tier with generous limits",
         "Sign in with your Google account on first run.", "gemini \"help me write a function\"",
         "Uninstall Gemini CLI via npm", "@google/gemini-cli", "GEMINI_API_KEY",
         "npm install -g @google/gemini-cli",
         {"Powered by Google's Gemini models", "Great for code generation", "Helpful for technical explanations",
          "Integrates with Google services"},
         {{"Use your Google account", "If you have Gmail, you already have an account!"},
          {"Install Gemini CLI", kInstallStep},
          {"Sign in with Google", kFirstLaunch}},
         {{"gemini", "Start interactive session"},
          {"gemini \"explain this function\"", "Quick question"},
          {"gemini --help", "Show all options"}}},
        {CLITool::codex, "codex", "Codex", "OpenAI", "codex", "cpu.fill", "CodexLogo", {0.0, 0.65, 0.52}, true,
         "OpenAI's code-focused model. Powerful for code completion and generation.",
         "Requires an OpenAI account with payment method", "Pay-as-you-go API pricing",
         "Sign in with your OpenAI account on first run.", "codex \"create a REST API\"",
         "Uninstall Codex via npm", "@openai/codex", "OPENAI_API_KEY", "npm install -g @openai/codex",
         {"Built on OpenAI's GPT models", "Strong at code completion", "Wide language support",
          "Great for quick code generation"},
         {{"Create an OpenAI account", "Visit platform.openai.com and sign up."},
          {"Add payment method", "OpenAI requires a payment method for API usage."},
          {"Install Codex", kInstallStep},
          {"Sign in from Terminal", kFirstLaunch}},
         {{"codex", "Start interactive session"},
          {"codex \"write a unit test\"", "Quick task"},
          {"codex --help", "Show all options"}}},
    };
    return all;
}

class CLIToolCatalogue : public ::testing::TestWithParam<size_t> {
protected:
    const ExpectedTool& expected() const { return expectations()[GetParam()]; }
};

TEST_P(CLIToolCatalogue, TextsCommandsAndLook)
{
    const ExpectedTool& e = expected();
    const CLITool tool = e.tool;
    EXPECT_EQ(tool.rawValue(), QString::fromUtf8(e.rawValue));
    EXPECT_EQ(tool.id(), tool.rawValue());
    EXPECT_EQ(tool.displayName(), QString::fromUtf8(e.displayName));
    EXPECT_EQ(tool.provider(), QString::fromUtf8(e.provider));
    EXPECT_EQ(tool.commandName(), QString::fromUtf8(e.commandName));
    EXPECT_EQ(tool.iconName(), QString::fromUtf8(e.iconName));
    EXPECT_EQ(tool.logoImageName(), QString::fromUtf8(e.logoImageName));
    EXPECT_EQ(tool.requiresNodeJS(), e.requiresNodeJS);
    EXPECT_EQ(tool.toolDescription(), QString::fromUtf8(e.toolDescription));
    EXPECT_EQ(tool.accountRequirement(), QString::fromUtf8(e.accountRequirement));
    EXPECT_EQ(tool.pricingInfo(), QString::fromUtf8(e.pricingInfo));
    EXPECT_EQ(tool.signInNote(), QString::fromUtf8(e.signInNote));
    EXPECT_EQ(tool.tryCommand(), QString::fromUtf8(e.tryCommand));
    EXPECT_EQ(tool.uninstallDescription(), QString::fromUtf8(e.uninstallDescription));
    EXPECT_EQ(tool.npmPackage(), QString::fromUtf8(e.npmPackage));
    EXPECT_EQ(tool.apiKeyEnvVar(), QString::fromUtf8(e.apiKeyEnvVar));
    EXPECT_EQ(tool.installCommand(), QString::fromUtf8(e.installCommand));

    const QColor brand = tool.brandColor();
    EXPECT_NEAR(brand.redF(), e.brand[0], 0.5 / 255);
    EXPECT_NEAR(brand.greenF(), e.brand[1], 0.5 / 255);
    EXPECT_NEAR(brand.blueF(), e.brand[2], 0.5 / 255);
    EXPECT_EQ(brand.alpha(), 255);
}

TEST_P(CLIToolCatalogue, ListsKeepTheirOrderAndLength)
{
    const ExpectedTool& e = expected();
    EXPECT_EQ(e.tool.features(), e.features);
    EXPECT_EQ(e.tool.accountSetupSteps(), e.accountSteps);
    EXPECT_EQ(e.tool.exampleCommands(), e.examples);
    // Built once and shared, not rebuilt per call.
    EXPECT_EQ(&e.tool.features(), &e.tool.features());
    EXPECT_EQ(&e.tool.exampleCommands(), &e.tool.exampleCommands());
}

TEST_P(CLIToolCatalogue, WebPagesAreAbsoluteHttpsAddresses)
{
    const CLITool tool = expected().tool;
    for (const QUrl& url : {tool.apiKeyURL(), tool.signUpURL(), tool.docsURL()}) {
        EXPECT_TRUE(url.isValid()) << url.toString().toStdString();
        EXPECT_EQ(url.scheme(), QStringLiteral("https")) << url.toString().toStdString();
        EXPECT_FALSE(url.host().isEmpty()) << url.toString().toStdString();
    }
}

INSTANTIATE_TEST_SUITE_P(AllTools, CLIToolCatalogue, ::testing::Values(0u, 1u, 2u),
                         [](const auto& info) { return std::string(expectations()[info.param].rawValue); });

TEST(CLITool, AllCasesInDeclarationOrder)
{
    const auto& all = CLITool::allCases();
    ASSERT_EQ(all.size(), 3u);
    EXPECT_EQ(all[0], CLITool::claudeCode);
    EXPECT_EQ(all[1], CLITool::geminiCLI);
    EXPECT_EQ(all[2], CLITool::codex);
    for (size_t i = 0; i < all.size(); ++i)
        EXPECT_EQ(all[i].index(), int(i));
}

TEST(CLITool, RawValueConstructionIsExactAndCaseSensitive)
{
    EXPECT_EQ(CLITool::fromRawValue(QStringLiteral("claudeCode")), CLITool::claudeCode);
    EXPECT_EQ(CLITool::fromRawValue(QStringLiteral("geminiCLI")), CLITool::geminiCLI);
    EXPECT_EQ(CLITool::fromRawValue(QStringLiteral("codex")), CLITool::codex);
    for (const char* other : {"ClaudeCode", "claudecode", "CLAUDECODE", "geminiCli", "Codex", "", " codex",
                              "codex ", "claude", "gemini"}) {
        EXPECT_FALSE(CLITool::fromRawValue(QString::fromUtf8(other)).has_value()) << other;
    }
}

TEST(CLITool, ClaudeInstallsThroughItsMakersScript)
{
    const QString command = CLITool(CLITool::claudeCode).installCommand();
    ASSERT_TRUE(command.startsWith(QStringLiteral("curl -fsSL ")));
    ASSERT_TRUE(command.endsWith(QStringLiteral(" | bash")));
    const QUrl script(command.section(QLatin1Char(' '), 2, 2));
    EXPECT_EQ(script.scheme(), QStringLiteral("https"));
    EXPECT_EQ(script.path(), QStringLiteral("/install.sh"));
}

TEST(CLITool, UninstallCommandLines)
{
    const QString chainStart = QStringLiteral("/opt/homebrew/bin/npm uninstall -g %1 2>/dev/null; "
                                              "/usr/local/bin/npm uninstall -g %1 2>/dev/null; "
                                              "for ver in ~/.nvm/versions/node/*; do [ -x \"$ver/bin/npm\" ] && "
                                              "\"$ver/bin/npm\" --prefix \"$ver\" uninstall -g %1 2>/dev/null; done");

    EXPECT_EQ(CLITool(CLITool::claudeCode).uninstallCommand(),
              chainStart.arg(QStringLiteral("@anthropic-ai/claude-code")) +
                  QStringLiteral("; rm -rf ~/.claude/local 2>/dev/null; rm -rf ~/.claude/downloads 2>/dev/null; "
                                 "exit 0"));
    EXPECT_EQ(CLITool(CLITool::geminiCLI).uninstallCommand(),
              chainStart.arg(QStringLiteral("@google/gemini-cli")) + QStringLiteral("; exit 0"));
    EXPECT_EQ(CLITool(CLITool::codex).uninstallCommand(),
              chainStart.arg(QStringLiteral("@openai/codex")) + QStringLiteral("; exit 0"));

    for (CLITool tool : CLITool::allCases()) {
        const QString line = tool.uninstallCommand();
        EXPECT_EQ(line.count(QStringLiteral("exit 0")), 1) << tool.rawValue().toStdString();
        EXPECT_TRUE(line.endsWith(QStringLiteral("exit 0"))) << tool.rawValue().toStdString();
        EXPECT_FALSE(line.contains(QLatin1Char('\n')));
    }
    const QString claude = CLITool(CLITool::claudeCode).uninstallCommand();
    EXPECT_LT(claude.lastIndexOf(QStringLiteral("rm -rf ~/.claude/downloads")), claude.indexOf(QStringLiteral("exit 0")));
}

} // namespace
