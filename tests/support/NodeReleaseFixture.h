#pragma once

#include <QByteArray>
#include <QString>

namespace qf::test {

// Node.js `version` as nodejs.org publishes it, in the folder `dist`: the archive for
// `platformName` ("linux-x64", "darwin-arm64"), packed by `tar`, whose bin/node prints the
// version and whose bin/npm is the fake npm; the release's checksum list (with `checksum` in
// place of the archive's real one when given); and an index with a newer current release, this
// one as the newest LTS release and an older LTS release. Returns the address the installer is
// pointed at.
QString publishNodeRelease(const QString& dist, const QString& version, const QString& platformName,
                           const QString& tar = QStringLiteral("tar"), const QByteArray& checksum = QByteArray());

} // namespace qf::test
