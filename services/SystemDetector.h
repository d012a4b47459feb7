#pragma once

#include "CLITool.h"
#include "SetupModel.h"
#include "ShellExport.h"
#include "ShellRunner.h"

#include <QCoro/QCoroTask>
#include <QDate>
#include <QString>

#include <functional>

#include <optional>

namespace qf {

// What is known about the installed Node.js: its version as printed ("v20.10.0") and whether
// it is new enough (by default major version 18 or later; a tool may need more).
struct NodeCheck {
    bool isInstalled = false;
    std::optional<QString> version;
    bool meetsRequirement = false;

    friend bool operator==(const NodeCheck&, const NodeCheck&) = default;
};

// One Node.js on the search path.
struct NodeInstall {
    QString folder;
    QString version;

    friend bool operator==(const NodeInstall&, const NodeInstall&) = default;
};

// What the system check finds for one tool: the tool itself with its version, or else (when
// it is not there) what installing it needs.
struct ToolCheck {
    bool isInstalled = false;
    std::optional<QString> version;
    QList<RequirementStatus> requirements;
};

// Answers what the setup needs to know about the machine. It only looks, never changes
// anything, and remembers nothing between calls.
class SystemDetector {
public:
    static constexpr int minimumNodeMajorVersion = 18;
    // Claude Code's native build alone is about 400 MB, Codex about 420 MB installed and Node.js
    // about 190 MB: 1 GB leaves room for any one tool with what it needs.
    static constexpr qint64 minimumDiskSpaceMB = 1024;
    // A tool that has not printed its version by then (one that waits for a sign-in, a broken
    // update) counts as one whose version is unknown, and ends with everything it started.
    static constexpr double defaultVersionTimeoutSeconds = 20;

    SystemDetector(ShellRunner& shell, const Platform& platform);
    SystemDetector(const SystemDetector&) = delete;
    SystemDetector& operator=(const SystemDetector&) = delete;

    // The operating system, the free disk space and, for tools that need it, Node.js.
    QCoro::Task<QList<RequirementStatus>> checkAllRequirements(CLITool tool);
    QCoro::Task<NodeCheck> checkNodeJS(int minimumMajorVersion = minimumNodeMajorVersion);
    // The major version of Node.js `tool` needs: what its newest release declares, where the
    // registry says (through the published-requirement source), and never less than the
    // catalogue's minimum.
    QCoro::Task<int> requiredNodeMajor(CLITool tool);
    using PublishedRequirement = std::function<QCoro::Task<int>(CLITool)>;
    // Where the newest release's requirement comes from (0: not known); without one, the
    // catalogue alone decides.
    void setPublishedRequirement(PublishedRequirement source) { m_published = std::move(source); }
    QCoro::Task<std::optional<QString>> getNodeVersion();
    // Every `node` on the commands' search path, in the order it is searched: its folder and
    // the version it prints.
    QCoro::Task<QList<NodeInstall>> findNodeInstalls();
    // Whatever `<command> --version` prints, trimmed; nothing when it fails or takes longer
    // than the version bound.
    QCoro::Task<std::optional<QString>> getToolVersion(CLITool tool);
    void setVersionTimeoutSeconds(double seconds) { m_versionTimeoutSeconds = seconds; }
    // Where the tool's command is found on the commands' search path; nothing when it is not
    // there or the search could not run.
    QCoro::Task<std::optional<QString>> findTool(CLITool tool);
    // The AI tools whose commands are found, in catalogue order; all searched at the same time.
    QCoro::Task<QList<CLITool>> findInstalledTools();
    // Looks for the tool; found, reads its version; not found, checks every requirement of
    // installing it.
    QCoro::Task<ToolCheck> checkForTool(CLITool tool);

    RequirementStatus checkOperatingSystem() const;
    // Megabytes free on the volume of the home folder; nothing (and one diagnostic line on
    // standard output) when it cannot be read.
    std::optional<qint64> availableDiskSpaceMB() const;
    // The start-up file that the shell of a new terminal window reads, chosen by the user's
    // shell: zsh ~/.zshrc; bash ~/.bashrc, or as a login shell the first of ~/.bash_profile,
    // ~/.bash_login and ~/.profile (~/.bash_profile when there is none); fish a file of its own
    // in ~/.config/fish/conf.d; tcsh ~/.tcshrc unless only ~/.cshrc exists; csh ~/.cshrc.
    // Any other shell: the first of ~/.zshrc, ~/.bash_profile and ~/.bashrc that exists as a
    // file, else ~/.zshrc.
    ShellProfile shellProfile() const;
    QString shellProfilePath() const { return shellProfile().path; }

    // The rules, on their own.
    static NodeCheck evaluateNodeVersion(const std::optional<QString>& version,
                                         int minimumMajorVersion = minimumNodeMajorVersion);
    // The Node.js row of the system check for a tool that needs Node.js `minimumMajor`: the
    // version, with the minimum beside an older one and a word beside one past its end of life
    // on `today`, which is still met; "Not installed" without one.
    static RequirementStatus nodeStatus(const NodeCheck& node, int minimumMajor,
                                        const QDate& today = QDate::currentDate());
    // The day the Node.js line `major` stops (or stopped) receiving security fixes; nothing for
    // a line not known yet.
    static std::optional<QDate> nodeEndOfLife(int major);
    static RequirementStatus diskSpaceStatus(std::optional<qint64> megabytes);
    static qint64 bytesToMegabytes(qint64 bytes) { return bytes / (qint64(1024) * 1024); }

private:
    ShellRunner& m_shell;
    const Platform& m_platform;
    double m_versionTimeoutSeconds = defaultVersionTimeoutSeconds;
    PublishedRequirement m_published;
};

} // namespace qf
