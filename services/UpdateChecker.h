#pragma once

#include "CLITool.h"
#include "ShellRunner.h"
#include "SystemDetector.h"
#include "ToolUpdateInfo.h"

#include <QCoro/QCoroTask>
#include <QDateTime>
#include <QList>
#include <QString>

#include <array>
#include <functional>
#include <memory>
#include <optional>
#include <type_traits>

namespace qf {

// The newest published version of a tool's npm package and what it needs, as one check of
// the registry found it.
struct PublishedVersion {
    QString version;
    int requiredNodeMajor = 0;
    QDateTime checkedAt; // UTC
};

// Knows the installed version of each AI tool and the newest published one.
//
// The installed version is what `<command> --version` prints, read with readToolVersion; it is
// asked every time (it is local and changes when the user updates by hand).
//
// The newest version comes from the npm registry: `npm view <package> version`, then the Node.js
// requirement of that version, `npm view <package>@<version> engines.node`. Without npm (Claude
// Code from its maker's installer needs none) the registry is read directly:
// `curl -fsSL --max-time 20 https://registry.npmjs.org/<package>/latest`. Each network command
// is stopped when it takes longer than a minute.
//
// The registry is asked at most once a day per tool: a successful check is remembered across
// launches (Preferences::updateCheck) and used without running anything until a day has
// passed. A forced check (the "Check for Updates" action) asks again at once. Checks of the
// same tool never run twice at once: a caller that asks while a check is in flight waits for
// that check and gets its answer.
//
// A check that fails (offline, the registry or npm failing, an answer that is not a version)
// writes one diagnostic line and gives "no newer version known"; it is not remembered across
// launches, so the next launch asks again. Within the same run it is not retried for an hour
// unless forced, so that an offline computer does not wait on the network at every look at
// the dashboard.
class UpdateChecker {
public:
    using Clock = std::function<QDateTime()>;

    // How long a successful check stands.
    static constexpr qint64 checkIntervalSeconds = 24 * 60 * 60;
    // How long, within one run, a failed check is not tried again unless forced.
    static constexpr qint64 retryAfterFailureSeconds = 60 * 60;
    // How long one command that reaches the registry may take.
    static constexpr double registryTimeoutSeconds = 60;

    UpdateChecker(ShellRunner& shell, SystemDetector& detector);
    UpdateChecker(const UpdateChecker&) = delete;
    UpdateChecker& operator=(const UpdateChecker&) = delete;
    ~UpdateChecker();

    // The installed and newest versions of each of `installedTools`, in the order given; all
    // tools are looked at the same time. `force` asks the registry even when a check of today
    // is remembered, or one failed within the hour.
    QCoro::Task<QList<ToolUpdateInfo>> check(QList<CLITool> installedTools, bool force = false);
    // The version the installed tool reports ("2.1.330"), pre-release included; nothing when
    // it is not found, does not start or prints no version.
    QCoro::Task<std::optional<QString>> installedVersion(CLITool tool);
    // The newest published version of `tool`, by the same rules as `check`.
    QCoro::Task<std::optional<PublishedVersion>> latestVersion(CLITool tool, bool force = false);
    // The major version of Node.js the newest published version of `tool` declares it needs
    // (from the same check); 0 when that is not known or none is declared.
    QCoro::Task<int> publishedNodeMajor(CLITool tool);
    // Forgets what the checks found for `tool` (after it was updated): the next check asks the
    // registry again.
    void forget(CLITool tool);

    // Where "now" comes from (UTC); tests set a clock of their own.
    void setClock(Clock clock) { m_clock = std::move(clock); }

private:
    class Lookup;
    // Asks the registry; nothing (and one diagnostic line) when that fails.
    QCoro::Task<std::optional<PublishedVersion>> askRegistry(CLITool tool);
    QCoro::Task<std::optional<PublishedVersion>> askNpm(CLITool tool);
    QCoro::Task<std::optional<PublishedVersion>> askRegistryOverHttps(CLITool tool);
    QCoro::Task<ToolUpdateInfo> checkOne(CLITool tool, bool force);

    ShellRunner& m_shell;
    SystemDetector& m_detector;
    Clock m_clock;
    // Per tool (by index): the check in flight, and when the last one of this run failed.
    static constexpr size_t toolCount = std::tuple_size_v<std::remove_cvref_t<decltype(CLITool::allCases())>>;
    std::array<std::shared_ptr<Lookup>, toolCount> m_inFlight;
    std::array<QDateTime, toolCount> m_failedAt;
};

} // namespace qf
