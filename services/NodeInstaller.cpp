#include "NodeInstaller.h"

#include "NodeRelease.h"
#include "ShellQuote.h"
#include "StagedInstall.h"
#include "TemporaryFolders.h"

#include <QCoro/QCoroFuture>
#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QtConcurrent/QtConcurrentRun>

#include <algorithm>

namespace qf {

NodeInstaller::NodeInstaller(ShellRunner& shell, SystemDetector& detector, const Platform& platform)
    : m_shell(shell), m_detector(detector), m_platform(platform)
{
}

QCoro::Task<Result<void>> NodeInstaller::install(Output onOutput, Cancellation cancellation)
{
    const Result<QString> brew = co_await m_shell.findProgram(QStringLiteral("brew"));
    Result<QString> installed = QString();
    if (brew) {
        onOutput(QStringLiteral("Installing Node.js via Homebrew...\n"));
        const QString activity = tr("The installation of Node.js through Homebrew");
        const Result<void> ran = co_await m_shell.runWithStreaming(QStringLiteral("brew install node"), onOutput,
                                                                   nullptr, activity, cancellation);
        if (!ran) {
            m_shell.invalidateEnvironment(); // it may have got part of the way
            co_return ran.error();
        }
        installed = co_await m_shell.run(QStringLiteral("\"$(brew --prefix)/bin/node\" --version"));
    } else {
        onOutput(QStringLiteral("Installing Node.js via official installer...\n"));
        installed = co_await installRelease(onOutput, cancellation);
        if (!installed)
            co_return installed.error();
    }
    // A new Node.js (and Homebrew's start-up line, once it is there) may change what the
    // user's start-up files set up.
    m_shell.invalidateEnvironment();

    const NodeCheck node = co_await m_detector.checkNodeJS();
    if (!node.isInstalled)
        co_return failure(InstallationError::nodeInstallFailed);
    // What was installed, and then whether commands find another Node.js first.
    const std::optional<QString> version = installed && !installed.value().isEmpty() ? std::optional(installed.value())
                                                                                     : node.version;
    onOutput(QStringLiteral("Node.js ") + version.value_or(QStringLiteral("installed")) +
             QStringLiteral(" successfully!\n"));
    if (version && node.version && *node.version != *version) {
        const Result<QString> first = co_await m_shell.findProgram(QStringLiteral("node"));
        onOutput(QStringLiteral("Note: Node.js %1%2 is found first on the search path.\n")
                     .arg(*node.version,
                          first ? QStringLiteral(" in ") + QFileInfo(first.value()).absolutePath() : QString()));
    }
    co_return Result<void>();
}

QCoro::Task<Result<QString>> NodeInstaller::installRelease(Output log, Cancellation cancellation)
{
    const std::optional<NodeReleaseTarget> target = m_platform.nodeReleaseTarget();
    if (!target) {
        co_return ServiceError::message(tr(
            "Node.js publishes no release for this computer's processor. Please install it manually from nodejs.org"));
    }
    const QString base = m_distribution;

    // The newest long-term support release, as the release index says today.
    const QString indexURL = base + QStringLiteral("/index.json");
    const Result<QString> index = co_await m_shell.run(QStringLiteral("curl -fsSL ") + shellQuote(indexURL),
                                                       ShellRunner::defaultTimeoutSeconds, cancellation);
    if (!index) {
        co_return ServiceError::message(
            tr("Could not download the list of Node.js releases. %1").arg(index.error().plainDescription()));
    }
    const std::optional<NodeRelease> release = nodeRelease::newestLTS(index.value().toUtf8(), *target);
    if (!release) {
        co_return ServiceError::message(
            tr("No long-term support release of Node.js for %1 was found at %2.").arg(target->platform, base));
    }
    log(QStringLiteral("Node.js %1 (LTS \"%2\") for %3 from %4\n")
            .arg(release->version, release->codename, target->platform, base));

    // The archive goes into a folder of its own that disappears with this call, so nothing of
    // a failed or refused download stays behind.
    QTemporaryDir downloads(temporaryFolders::pattern(temporaryFolders::kNodeDownload));
    if (!downloads.isValid())
        co_return ServiceError::message(
            tr("Could not make a folder for the Node.js download: %1").arg(downloads.errorString()));
    const QString folder = base + QLatin1Char('/') + release->version + QLatin1Char('/');
    const QString archive = downloads.filePath(release->archiveName);
    const QString download = QStringLiteral("curl -fsSL -o ") + shellQuote(archive) + QLatin1Char(' ') +
                             shellQuote(folder + release->archiveName);
    const QString downloading = tr("The download of %1").arg(release->archiveName);
    const Result<void> fetched = co_await m_shell.runWithStreaming(download, log, nullptr, downloading, cancellation);
    if (!fetched) {
        co_return ServiceError::message(
            tr("Could not download %1. %2").arg(release->archiveName, fetched.error().plainDescription()));
    }

    // Nothing is unpacked unless the archive is byte for byte the one nodejs.org published.
    const Result<QString> sums = co_await m_shell.run(
        QStringLiteral("curl -fsSL ") + shellQuote(folder + QStringLiteral("SHASUMS256.txt")),
        ShellRunner::defaultTimeoutSeconds, cancellation);
    if (!sums) {
        co_return ServiceError::message(tr("Could not download the checksums of Node.js %1. %2")
                                            .arg(release->version, sums.error().plainDescription()));
    }
    const std::optional<QByteArray> expected = nodeRelease::publishedChecksum(sums.value().toUtf8(),
                                                                              release->archiveName);
    if (!expected) {
        co_return ServiceError::message(
            tr("The checksum list of Node.js %1 does not name %2, so nothing was installed.")
                .arg(release->version, release->archiveName));
    }
    QFuture<std::optional<QByteArray>> hashing = QtConcurrent::run(nodeRelease::sha256OfFile, archive);
    const std::optional<QByteArray> actual = co_await hashing;
    if (actual != expected) {
        co_return ServiceError::message(tr("The Node.js download does not match its published checksum, so nothing "
                                           "was installed. Please try again."));
    }
    log(QStringLiteral("SHA-256 checksum verified\n"));
    if (cancellation.isCancelled())
        co_return ShellError::cancellation();

    // The archive is unpacked into a hidden folder inside ~/.local, on the same volume, and its
    // files are moved into place only once all of it is there: a full disk or a broken archive
    // leaves ~/.local as it was, never a node that runs and does nothing. A folder the user
    // linked elsewhere (~/.local/bin into a dotfiles folder, say) stays a link and receives the
    // files.
    const QString local = QDir::homePath() + QStringLiteral("/.local");
    QFuture<Result<stagedInstall::Staging>> preparing = QtConcurrent::run(stagedInstall::begin, local);
    const Result<stagedInstall::Staging> staging = co_await preparing;
    if (!staging)
        co_return staging.error();

    // The archive's top folder is stripped, so bin/node lands in bin; its three loose files are
    // left out so they do not litter ~/.local. What tar says goes to the log and, should it
    // fail, into the error, which then names the cause (a full disk, say).
    const QString top = release->folderName + QLatin1Char('/');
    const QString unpack = QStringLiteral("tar -xzf ") + shellQuote(archive) + QStringLiteral(" -C ") +
                           shellQuote(staging.value().folder) + QStringLiteral(" --strip-components=1 --exclude=") +
                           shellQuote(top + QStringLiteral("CHANGELOG.md")) + QStringLiteral(" --exclude=") +
                           shellQuote(top + QStringLiteral("LICENSE")) + QStringLiteral(" --exclude=") +
                           shellQuote(top + QStringLiteral("README.md"));
    QString tarOutput;
    const Output unpackOutput = [&log, &tarOutput](const QString& text) {
        tarOutput += text;
        if (tarOutput.size() > ShellError::shownOutputLength)
            tarOutput = tarOutput.right(ShellError::shownOutputLength);
        log(text);
    };
    const QString unpacking = tr("Unpacking Node.js %1").arg(release->version);
    const Result<void> unpacked = co_await m_shell.runWithStreaming(unpack, unpackOutput, nullptr, unpacking,
                                                                    cancellation);
    if (!unpacked || cancellation.isCancelled()) {
        QFuture<void> abandoning = QtConcurrent::run(stagedInstall::abandon, staging.value());
        co_await abandoning;
        if (unpacked)
            co_return ShellError::cancellation();
        const ShellError* error = unpacked.error().shellError();
        if (!error || error->kind() != ShellError::commandFailed || tarOutput.trimmed().isEmpty())
            co_return unpacked.error();
        co_return ServiceError::message(
            tr("Could not unpack Node.js %1: %2").arg(release->version, tarOutput.trimmed()));
    }
    // node and its commands go in last, once everything they need is there.
    const QStringList last{QStringLiteral("bin/corepack"), QStringLiteral("bin/npx"), QStringLiteral("bin/npm"),
                           QStringLiteral("bin/node")};
    QFuture<Result<void>> placing = QtConcurrent::run(stagedInstall::complete, staging.value(), local, last);
    const Result<void> placed = co_await placing;
    if (!placed)
        co_return placed.error();
    log(QStringLiteral("Unpacked Node.js %1 into ~/.local (node and npm are in ~/.local/bin)\n").arg(release->version));
    const QString version = release->version;
    co_return version;
}

QString NodeInstaller::shadowedMessage(CLITool tool, int minimum, const QList<NodeInstall>& installs)
{
    const auto newEnough = [minimum](const NodeInstall& install) {
        return SystemDetector::evaluateNodeVersion(install.version, minimum).meetsRequirement;
    };
    const QString need = tool.nodeRequirementNote(minimum);
    if (installs.isEmpty())
        return tr("Node.js was installed, but no Node.js is found on the search path. %1").arg(need);
    const NodeInstall& first = installs.first();
    const auto fresh = std::find_if(installs.begin() + 1, installs.end(), newEnough);
    if (fresh == installs.end()) {
        return tr("Node.js was installed, but the Node.js found first is %1 in %2. %3")
            .arg(first.version, first.folder, need);
    }
    return tr("Node.js %1 was installed in %2, but Node.js %3 in %4 comes first on the search path. %5 "
              "Remove the older Node.js, or put %2 before %4 in your PATH.")
        .arg(fresh->version, fresh->folder, first.version, first.folder, need);
}

} // namespace qf
