#pragma once

#include "CLITool.h"
#include "Errors.h"
#include "Platform.h"
#include "ShellRunner.h"
#include "SystemDetector.h"

#include <QCoreApplication>
#include <QCoro/QCoroTask>

#include <functional>

namespace qf {

// Installs Node.js for the tools that run on it: through Homebrew when it is there, otherwise
// from the official release archive into ~/.local, checked against its published checksum and
// unpacked out of sight before anything is moved into place.
class NodeInstaller {
    Q_DECLARE_TR_FUNCTIONS(NodeInstaller)

public:
    using Output = std::function<void(const QString&)>;

    NodeInstaller(ShellRunner& shell, SystemDetector& detector, const Platform& platform);
    NodeInstaller(const NodeInstaller&) = delete;
    NodeInstaller& operator=(const NodeInstaller&) = delete;

    // Through Homebrew when it is there, otherwise from the official Node.js release. The log
    // says what was installed, and which Node.js commands find first when that is another one.
    // Once `cancellation` is cancelled the command running stops and nothing more starts: a
    // release unpacked half-way is removed, and ~/.local stays as it was.
    QCoro::Task<Result<void>> install(Output onOutput, Cancellation cancellation = Cancellation());
    // The newest long-term support release of Node.js for this computer, from the release
    // archive, into ~/.local: no administrator rights needed. The archive's checksum is
    // checked against the release's published list before anything is unpacked. The version
    // installed comes back.
    QCoro::Task<Result<QString>> installRelease(Output onOutput, Cancellation cancellation = Cancellation());
    // Where Node.js releases are fetched from (tests point it at a folder of their own).
    void setDistribution(const QString& baseAddress) { m_distribution = baseAddress; }

    // Why the Node.js step failed although an installation ran: the first Node.js on the
    // search path (`installs`, in search order) is older than `tool` needs. Names both
    // versions and their folders when a new enough one is there too.
    static QString shadowedMessage(CLITool tool, int minimum, const QList<NodeInstall>& installs);

private:
    ServiceError failure(InstallationError error) const { return {error, m_platform.wording()}; }

    ShellRunner& m_shell;
    SystemDetector& m_detector;
    const Platform& m_platform;
    QString m_distribution = QLatin1String(kNodeDistribution);
};

} // namespace qf
