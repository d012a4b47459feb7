#include "CLITool.h"

#include <map>

namespace qf {

namespace {

// Per-tool texts, indexed by the case index.
struct ToolTexts {
    const char* rawValue;
    const char* displayName;
    const char* provider;
    const char* commandName;
    const char* iconName;
    const char* logoImageName;
    QRgb brandColor;
    bool requiresNodeJS;
    const char* toolDescription;
    const char* accountRequirement;
    const char* pricingInfo;
    const char* signInNote;
    const char* tryCommand;
    const char* uninstallDescription;
    const char* npmPackage;
    const char* apiKeyEnvVar;
    const char* apiKeyURL;
    const char* signUpURL;
    const char* docsURL;
};

constexpr QRgb rgb(double r, double g, double b)
{
    auto channel = [](double v) { return qRound(v * 255.0); };
    return qRgb(channel(r), channel(g), channel(b));
}

const std::array<ToolTexts, 3> kTools = {{
    {
        "claudeCode",
        QT_TRANSLATE_NOOP("CLITool", "Claude Code"),
        QT_TRANSLATE_NOOP("CLITool", "Anthropic"),
        "claude",
        "terminal.fill",
        "ClaudeLogo",
        rgb(0.85, 0.55, 0.35),
        false,
        QT_TRANSLATE_NOOP(
            "CLITool",
            "AI coding assistant from Anthropic. Works in your terminal to help write, debug, and understand code."),
        QT_TRANSLATE_NOOP("CLITool", "Requires an Anthropic account (free tier available)"),
        QT_TRANSLATE_NOOP("CLITool", "Free tier available, Pro plan for more usage"),
        QT_TRANSLATE_NOOP("CLITool", "Sign in with your Anthropic account on first run."),
        "claude \"explain this code\"",
        QT_TRANSLATE_NOOP("CLITool", "Remove Claude Code and its configuration"),
        "@anthropic-ai/claude-code",
        "ANTHROPIC_API_KEY",
        "https://platform.claude.com/settings/keys",
        "https://claude.ai/login",
        "https://code.claude.com/docs/en/overview",
    },
    {
        "geminiCLI",
        QT_TRANSLATE_NOOP("CLITool", "Gemini CLI"),
        QT_TRANSLATE_NOOP("CLITool", "Google"),
        "gemini",
        "sparkles",
        "GeminiLogo",
        rgb(0.25, 0.52, 0.96),
        true,
        QT_TRANSLATE_NOOP("CLITool",
                          "Google's Gemini AI in your terminal. Great for code generation and technical questions."),
        QT_TRANSLATE_NOOP("CLITool", "Requires a Google account (you probably have one!)"),
        QT_TRANSLATE_NOOP("CLITool", "Free tier with generous limits"),
        QT_TRANSLATE_NOOP("CLITool", "Sign in with your Google account on first run."),
        "gemini \"help me write a function\"",
        QT_TRANSLATE_NOOP("CLITool", "Uninstall Gemini CLI via npm"),
        "@google/gemini-cli",
        "GEMINI_API_KEY",
        "https://aistudio.google.com/apikey",
        "https://accounts.google.com/signup",
        "https://ai.google.dev/gemini-api/docs",
    },
    {
        "codex",
        QT_TRANSLATE_NOOP("CLITool", "Codex"),
        QT_TRANSLATE_NOOP("CLITool", "OpenAI"),
        "codex",
        "cpu.fill",
        "CodexLogo",
        rgb(0.0, 0.65, 0.52),
        true,
        QT_TRANSLATE_NOOP("CLITool", "OpenAI's code-focused model. Powerful for code completion and generation."),
        // Codex leads with signing in through a paid ChatGPT plan; an API key takes more setup.
        QT_TRANSLATE_NOOP("CLITool", "Requires a paid ChatGPT plan or an OpenAI API key"),
        QT_TRANSLATE_NOOP("CLITool", "Included with paid ChatGPT plans, or pay-as-you-go with an API key"),
        QT_TRANSLATE_NOOP("CLITool", "Sign in with ChatGPT on first run, or use an API key."),
        "codex \"create a REST API\"",
        QT_TRANSLATE_NOOP("CLITool", "Uninstall Codex via npm"),
        "@openai/codex",
        "OPENAI_API_KEY",
        "https://platform.openai.com/api-keys",
        "https://chatgpt.com/",
        "https://platform.openai.com/docs",
    },
}};

const ToolTexts& texts(CLITool tool) { return kTools[static_cast<size_t>(tool.index())]; }

// Sentences of this file, in their own translation context.
struct Text {
    Q_DECLARE_TR_FUNCTIONS(CLITool)
};

// The list properties are built once, on first use, and shared by every caller.
const std::array<QStringList, 3>& featureTable()
{
    static const std::array<QStringList, 3> table = {{
        {Text::tr("Works directly in your project folder"), Text::tr("Can read, edit, and create files"),
         Text::tr("Runs commands and tests for you"), Text::tr("Understands your entire codebase")},
        {Text::tr("Powered by Google's Gemini models"), Text::tr("Great for code generation"),
         Text::tr("Helpful for technical explanations"), Text::tr("Integrates with Google services")},
        {Text::tr("Built on OpenAI's GPT models"), Text::tr("Strong at code completion"),
         Text::tr("Wide language support"), Text::tr("Great for quick code generation")},
    }};
    return table;
}

using AccountStepTable = std::array<QList<AccountSetupStep>, 3>;

AccountStepTable buildAccountStepTable(const QString& installStep)
{
    const QString firstLaunch = Text::tr("On first launch, your browser will open to authenticate.");
    return {{
        {
            {Text::tr("Create an Anthropic account"),
             Text::tr("Visit %1 and sign up with your email or Google account.").arg(QStringLiteral("claude.ai"))},
            {Text::tr("Choose a plan"), Text::tr("Start with the free tier or upgrade to Pro for more usage.")},
            {Text::tr("Install Claude Code"), installStep},
            {Text::tr("Sign in from Terminal"), firstLaunch},
        },
        {
            {Text::tr("Use your Google account"), Text::tr("If you have Gmail, you already have an account!")},
            {Text::tr("Install Gemini CLI"), installStep},
            {Text::tr("Sign in with Google"), firstLaunch},
        },
        {
            {Text::tr("Use your ChatGPT plan"),
             Text::tr("Codex comes with paid ChatGPT plans such as Plus and Pro. Sign up at %1.")
                 .arg(QStringLiteral("chatgpt.com"))},
            {Text::tr("Or use an API key"),
             Text::tr("Without a plan, create an API key with a payment method at %1. This takes a little more "
                      "setup.")
                 .arg(QStringLiteral("platform.openai.com"))},
            {Text::tr("Install Codex"), installStep},
            {Text::tr("Sign in from Terminal"),
             Text::tr("On first launch, choose \"Sign in with ChatGPT\"; your browser will open to authenticate.")},
        },
    }};
}

// One table for each wording of the install step (in practice one per run), built on first use.
const AccountStepTable& accountStepTable(const QString& installStep)
{
    static std::map<QString, AccountStepTable> tables;
    auto table = tables.find(installStep);
    if (table == tables.end())
        table = tables.emplace(installStep, buildAccountStepTable(installStep)).first;
    return table->second;
}

const std::array<QList<ExampleCommand>, 3>& exampleCommandTable()
{
    static const std::array<QList<ExampleCommand>, 3> table = [] {
        const QString interactive = Text::tr("Start interactive session");
        const QString help = Text::tr("Show all options");
        return std::array<QList<ExampleCommand>, 3>{{
            {
                {QStringLiteral("claude"), interactive},
                {QStringLiteral("claude \"fix the bug in auth.ts\""), Text::tr("Quick task mode")},
                {QStringLiteral("claude --help"), help},
                {QStringLiteral("claude /init"), Text::tr("Initialize project settings")},
            },
            {
                {QStringLiteral("gemini"), interactive},
                {QStringLiteral("gemini \"explain this function\""), Text::tr("Quick question")},
                {QStringLiteral("gemini --help"), help},
            },
            {
                {QStringLiteral("codex"), interactive},
                {QStringLiteral("codex \"write a unit test\""), Text::tr("Quick task")},
                {QStringLiteral("codex --help"), help},
            },
        }};
    }();
    return table;
}

} // namespace

const std::array<CLITool, 3>& CLITool::allCases()
{
    static constexpr std::array<CLITool, 3> cases = {CLITool::claudeCode, CLITool::geminiCLI, CLITool::codex};
    return cases;
}

std::optional<CLITool> CLITool::fromRawValue(const QString& rawValue)
{
    for (CLITool tool : allCases()) {
        if (rawValue == QLatin1String(texts(tool).rawValue))
            return tool;
    }
    return std::nullopt;
}

QString CLITool::rawValue() const { return QString::fromLatin1(texts(*this).rawValue); }
QString CLITool::displayName() const { return tr(texts(*this).displayName); }
QString CLITool::provider() const { return tr(texts(*this).provider); }
QString CLITool::commandName() const { return QString::fromLatin1(texts(*this).commandName); }
QString CLITool::iconName() const { return QString::fromLatin1(texts(*this).iconName); }
QString CLITool::logoImageName() const { return QString::fromLatin1(texts(*this).logoImageName); }
QColor CLITool::brandColor() const { return QColor::fromRgb(texts(*this).brandColor); }
bool CLITool::requiresNodeJS() const { return texts(*this).requiresNodeJS; }

int CLITool::minimumNodeMajorVersion() const
{
    // What the packages declare (npm registry, November 2026): @google/gemini-cli "node >=20",
    // @openai/codex "node >=16", which the floor of 18 covers.
    return m_case == geminiCLI ? 20 : 18;
}

QString CLITool::nodeRequirementNote(int major) const
{
    return tr("%1 needs Node.js %2 or newer.").arg(displayName()).arg(major > 0 ? major : minimumNodeMajorVersion());
}

QString CLITool::toolDescription() const { return tr(texts(*this).toolDescription); }
QString CLITool::accountRequirement() const { return tr(texts(*this).accountRequirement); }
QString CLITool::pricingInfo() const { return tr(texts(*this).pricingInfo); }
QString CLITool::signInNote() const { return tr(texts(*this).signInNote); }
QString CLITool::tryCommand() const { return QString::fromLatin1(texts(*this).tryCommand); }
QString CLITool::uninstallDescription() const { return tr(texts(*this).uninstallDescription); }

const QStringList& CLITool::features() const { return featureTable()[static_cast<size_t>(index())]; }
const QList<AccountSetupStep>& CLITool::accountSetupSteps(const SystemWording& wording) const
{
    return accountStepTable(wording.toolInstallStep)[static_cast<size_t>(index())];
}
const QList<ExampleCommand>& CLITool::exampleCommands() const
{
    return exampleCommandTable()[static_cast<size_t>(index())];
}

QString CLITool::npmPackage() const { return QString::fromLatin1(texts(*this).npmPackage); }
QString CLITool::apiKeyEnvVar() const { return QString::fromLatin1(texts(*this).apiKeyEnvVar); }

QString CLITool::installCommand() const
{
    switch (m_case) {
    case claudeCode: return downloadThenRunLine(QLatin1String(web::claudeInstallScript), QStringLiteral("bash"));
    case geminiCLI:
    case codex: return QStringLiteral("npm install -g ") + npmPackage();
    }
    Q_UNREACHABLE();
}

QString downloadThenRunLine(const QString& url, const QString& interpreter)
{
    // The assignment's status is curl's; the script goes to the interpreter whole.
    return QStringLiteral("script=\"$(curl -fsSL ") + url + QStringLiteral(")\" && ") + interpreter +
           QStringLiteral(" -c \"$script\"");
}

QString npmRemovalChain(const QString& package, const QStringList& npmPrograms)
{
    QString chain;
    // The npms where package managers put them, then the one the search path finds (on Linux
    // usually the distribution's).
    for (const QString& npm : npmPrograms)
        chain += npm + QStringLiteral(" uninstall -g ") + package + QStringLiteral(" 2>/dev/null; ");
    chain += QStringLiteral("command -v npm >/dev/null 2>&1 && npm uninstall -g ") + package +
             QStringLiteral(" 2>/dev/null; ");
    // The user's own prefix, where installs go when npm's global folder is not writable.
    chain += QStringLiteral("if [ -e ~/.local/lib/node_modules/") + package +
             QStringLiteral(" ]; then for npm in \"$(command -v npm)\" ~/.local/bin/npm; do [ -x \"$npm\" ] && "
                            "npm_config_prefix=\"$HOME/.local\" \"$npm\" uninstall -g ") +
             package + QStringLiteral(" 2>/dev/null && break; done; fi; ");
    return chain +
           QStringLiteral("for ver in ~/.nvm/versions/node/*; do [ -x \"$ver/bin/npm\" ] && "
                          "\"$ver/bin/npm\" --prefix \"$ver\" uninstall -g ") +
           package + QStringLiteral(" 2>/dev/null; done");
}

QString CLITool::uninstallCommand(const QStringList& npmPrograms) const
{
    const QString chain = npmRemovalChain(npmPackage(), npmPrograms);
    if (m_case == claudeCode) {
        // Also the maker's own installer's launcher and its versions.
        return chain + QStringLiteral("; rm -rf ~/.claude/local 2>/dev/null; rm -rf ~/.claude/downloads 2>/dev/null; "
                                      "rm -f ~/.local/bin/claude 2>/dev/null; rm -rf ~/.local/share/claude "
                                      "2>/dev/null; exit 0");
    }
    return chain + QStringLiteral("; exit 0");
}

QUrl CLITool::apiKeyURL() const { return QUrl(QString::fromLatin1(texts(*this).apiKeyURL)); }
QUrl CLITool::signUpURL() const { return QUrl(QString::fromLatin1(texts(*this).signUpURL)); }
QUrl CLITool::docsURL() const { return QUrl(QString::fromLatin1(texts(*this).docsURL)); }

} // namespace qf
