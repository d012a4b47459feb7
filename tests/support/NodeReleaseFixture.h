#pragma once

#include <QByteArray>
#include <QString>

#include <functional>

namespace qf::test {

// What a release holds below its top folder, written into `root` for `version`.
using NodeTree = std::function<void(const QString& root, const QString& version)>;
// The release the installers are given: bin/node prints the version, bin/npm is the fake npm.
void writeFakeNodeTree(const QString& root, const QString& version);

// Node.js `version` as nodejs.org publishes it, in the folder `dist`: the archive for
// `platformName` ("linux-x64", "darwin-arm64"), packed by `tar`, holding `tree` and a few loose
// files; the release's checksum list (with `checksum` in
// place of the archive's real one when given); and an index with a newer current release, this
// one as the newest LTS release and an older LTS release. Returns the address the installer is
// pointed at.
QString publishNodeRelease(const QString& dist, const QString& version, const QString& platformName,
                           const QString& tar = QStringLiteral("tar"), const QByteArray& checksum = QByteArray(),
                           const NodeTree& tree = writeFakeNodeTree);

} // namespace qf::test
