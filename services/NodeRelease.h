#pragma once

#include "Platform.h"

#include <QByteArray>
#include <QString>

#include <optional>

namespace qf {

// One official Node.js release archive for this computer.
struct NodeRelease {
    QString version;     // "v22.11.0"
    QString codename;    // the LTS line's name: "Jod"
    QString folderName;  // the archive's top folder: "node-v22.11.0-linux-x64"
    QString archiveName; // "node-v22.11.0-linux-x64.tar.gz"

    friend bool operator==(const NodeRelease&, const NodeRelease&) = default;
};

// Reading what nodejs.org publishes: the release index (index.json) and a release's
// checksum list (SHASUMS256.txt).
namespace nodeRelease {

// The newest release marked LTS that has an archive for `target`; nothing when the index
// cannot be read or has none.
std::optional<NodeRelease> newestLTS(const QByteArray& index, const NodeReleaseTarget& target);
// The SHA-256 (lowercase hex) that the checksum list gives for `fileName`.
std::optional<QByteArray> publishedChecksum(const QByteArray& checksums, const QString& fileName);
// The SHA-256 (lowercase hex) of a file's contents; nothing when it cannot be read.
std::optional<QByteArray> sha256OfFile(const QString& path);

} // namespace nodeRelease

} // namespace qf
