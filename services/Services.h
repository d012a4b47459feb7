#pragma once

#include "APIKeyStore.h"
#include "LogFile.h"
#include "NodeInstaller.h"
#include "Platform.h"
#include "SearchPathFix.h"
#include "ShellRunner.h"
#include "SupportTools.h"
#include "SystemDetector.h"
#include "TerminalLauncher.h"
#include "ToolInstaller.h"
#include "ToolRemover.h"
#include "ToolUpdater.h"
#include "UpdateChecker.h"

namespace qf {

// The one set of services of a run: the platform and everything that works through it. The
// application builds it once at start (main.cpp) and hands references to the screens and
// controllers that need them; tests build a set of their own around a fake platform.
class Services {
public:
    explicit Services(Platform& platform) : Services(platform, ShellRunner::standardConfiguration(platform)) {}
    Services(Platform& platform, ShellRunner::Configuration shell)
        : platform(platform),
          runner(std::move(shell), &platform),
          detector(runner, platform),
          supportTools(runner, platform),
          nodeInstaller(runner, detector, platform),
          searchPath(runner, detector, platform),
          installer(runner, detector, platform, nodeInstaller, searchPath),
          remover(runner, platform),
          updateChecker(runner, detector),
          updater(runner, detector, platform, updateChecker, nodeInstaller),
          keys(runner, detector),
          terminal(platform),
          logs(platform.logFolder())
    {
        // What Node.js a tool needs comes from its newest release, as the update checks read it.
        detector.setPublishedRequirement([this](CLITool tool) { return updateChecker.publishedNodeMajor(tool); });
    }
    // Commands still running stop first, while every service that waits for one is there to
    // take its cancellation.
    ~Services() { runner.shutDown(); }
    Services(const Services&) = delete;
    Services& operator=(const Services&) = delete;

    Platform& platform;
    ShellRunner runner;
    SystemDetector detector;
    // The supporting items of the dashboard: the developer tools, the projects folder,
    // Homebrew, Node.js.
    SupportTools supportTools;
    NodeInstaller nodeInstaller;
    SearchPathFix searchPath;
    // The setup of an AI tool, which installs Node.js and fixes the search path through the two
    // above.
    ToolInstaller installer;
    ToolRemover remover;
    // The installed and newest published versions of the AI tools, checked at most once a day.
    UpdateChecker updateChecker;
    // Brings an AI tool up to date where it was installed; Node.js through the NodeInstaller
    // when the new version needs a newer one.
    ToolUpdater updater;
    APIKeyStore keys;
    TerminalLauncher terminal;
    // The whole logs of installations and removals.
    LogBook logs;
};

} // namespace qf
