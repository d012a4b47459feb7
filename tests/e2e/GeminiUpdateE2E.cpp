// The opt-in end-to-end test of updates (scripts/test --e2e): a real Gemini CLI one minor
// version behind the newest, installed from the npm registry into ~/.local of a temporary HOME
// as the installer does for a user who cannot write npm's global folder; the update checker
// finds the newer version and the updater brings it, and a new terminal window's shell runs it.

#include "CoroTest.h"
#include "EndToEnd.h"
#include "Preferences.h"
#include "Services.h"
#include "ShellQuote.h"
#include "ToolVersion.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QTemporaryDir>

using namespace qf;
using qf::e2e::freshLoginShell;
using qf::e2e::kInstallLimitMs;
using qf::e2e::say;

namespace {

// The newest release of the minor version before `newest`'s, among `published` (as `npm view
// PACKAGE versions --json` lists them); pre-releases do not count. Nothing when there is none.
std::optional<ToolVersion> previousMinorRelease(const ToolVersion& newest, const QJsonArray& published)
{
    std::optional<ToolVersion> chosen;
    for (const auto& value : published) {
        const std::optional<ToolVersion> version = readToolVersion(value.toString());
        if (!version || version->isPreRelease() || version->number.majorVersion() != newest.number.majorVersion() ||
            version->number.minorVersion() >= newest.number.minorVersion())
            continue;
        // The highest minor version below the newest's, and its newest patch.
        if (!chosen || ToolVersion::compare(*chosen, *version) < 0)
            chosen = version;
    }
    return chosen;
}

} // namespace

TEST(GeminiEndToEnd, AnOlderVersionInLocalIsFoundOutOfDateAndUpdatedInPlace)
{
    QTemporaryDir home;
    const QString shell = QStringLiteral("/bin/zsh");
    ASSERT_NO_FATAL_FAILURE(e2e::moveInto(home, shell));
    Preferences::useFile(home.filePath(QStringLiteral("preferences.ini")));

    const std::unique_ptr<Platform> platform = createNativePlatform(e2e::accountShell(shell));
    Services services(*platform);
    const CLITool gemini = CLITool::geminiCLI;

    // Which versions there are.
    const std::optional<Result<QString>> newestText = test::await(
        services.runner.run(QStringLiteral("npm view @google/gemini-cli version"), 120), 180000);
    ASSERT_TRUE(newestText && newestText->ok()) << "npm and the registry are needed";
    const std::optional<Result<QString>> listed = test::await(
        services.runner.run(QStringLiteral("npm view @google/gemini-cli versions --json"), 120), 180000);
    ASSERT_TRUE(listed && listed->ok());
    const std::optional<ToolVersion> newest = readToolVersion(newestText->value());
    ASSERT_TRUE(newest);
    const std::optional<ToolVersion> older = previousMinorRelease(
        *newest, QJsonDocument::fromJson(listed->value().toUtf8()).array());
    ASSERT_TRUE(older) << "no release of an earlier minor version of " << newest->text().toStdString();
    say(QStringLiteral("Newest Gemini CLI: %1; installing %2 first.\nHOME: %3\n\n")
            .arg(newest->text(), older->text(), home.path()));

    // The older version where the installer puts it without administrator rights, found by new
    // terminal windows as the installer arranges it.
    QString log;
    const auto output = [&log](const QString& text) {
        log += text;
        say(text);
    };
    const QString local = home.filePath(QStringLiteral(".local"));
    const std::optional<Result<void>> installed = test::await(
        services.runner.runWithStreaming(
            QStringLiteral("npm_config_prefix=%1 npm install -g %2")
                .arg(shellQuote(local), shellQuote(QStringLiteral("@google/gemini-cli@") + older->text())),
            output),
        kInstallLimitMs);
    ASSERT_TRUE(installed && installed->ok()) << (installed ? installed->error().errorDescription().toStdString() : "");
    ASSERT_TRUE(test::await(services.searchPath.addLocalPrograms(gemini, output)).has_value());

    // The checker finds the update.
    const std::optional<QList<ToolUpdateInfo>> checked = test::await(services.updateChecker.check({gemini}), 180000);
    ASSERT_TRUE(checked && checked->size() == 1);
    const ToolUpdateInfo& info = checked->first();
    say(QStringLiteral("\n[check] installed %1, latest %2, needs Node.js %3 or newer, update available: %4\n")
            .arg(info.installedVersion.value_or(QStringLiteral("?")), info.latestVersion.value_or(QStringLiteral("?")))
            .arg(info.requiredNodeMajor)
            .arg(info.updateAvailable() ? QStringLiteral("yes") : QStringLiteral("no")));
    EXPECT_EQ(info.installedVersion, older->text());
    EXPECT_EQ(info.latestVersion, newest->text());
    ASSERT_TRUE(info.updateAvailable());

    // The updater brings it, into the same prefix.
    const std::optional<Result<UpdateOutcome>> updated = test::await(services.updater.update(gemini, output),
                                                                     kInstallLimitMs);
    ASSERT_TRUE(updated.has_value());
    ASSERT_TRUE(updated->ok()) << updated->error().errorDescription().toStdString();
    say(QStringLiteral("\n[update] %1 -> %2\n").arg(updated->value().previousVersion, updated->value().newVersion));
    EXPECT_EQ(updated->value().previousVersion, older->text());
    EXPECT_EQ(updated->value().newVersion, newest->text());
    EXPECT_TRUE(QFileInfo::exists(local + QStringLiteral("/lib/node_modules/@google/gemini-cli")));

    // A new terminal window runs the new version.
    const e2e::ShellAnswer version = freshLoginShell(shell, home.path(), QStringLiteral("gemini --version"));
    say(QStringLiteral("\n$ gemini --version   (fresh login shell of that HOME)\n%1\nexit code %2\n")
            .arg(version.output)
            .arg(version.exitCode));
    EXPECT_EQ(version.exitCode, 0);
    const std::optional<ToolVersion> shown = readToolVersion(version.output);
    ASSERT_TRUE(shown);
    EXPECT_EQ(shown->text(), newest->text());
    const e2e::ShellAnswer where = freshLoginShell(shell, home.path(), QStringLiteral("command -v gemini"));
    EXPECT_EQ(where.output, local + QStringLiteral("/bin/gemini"));

    // The badge is gone.
    const std::optional<QList<ToolUpdateInfo>> after = test::await(services.updateChecker.check({gemini}), 180000);
    ASSERT_TRUE(after && after->size() == 1);
    EXPECT_FALSE(after->first().updateAvailable());
    Preferences::useFile(QString());
}
