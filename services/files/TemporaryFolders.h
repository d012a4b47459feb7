#pragma once

#include <QDir>
#include <QString>

#include <array>

namespace qf::temporaryFolders {

// The private folders the app makes in the temporary folder, by the start of their names: a
// downloaded Node.js, a login shell's environment, the answer of one command. A run that was
// stopped half-way leaves them behind; the next start removes them by these names.
inline constexpr char kNodeDownload[] = "quillforge-node-";
inline constexpr char kEnvironment[] = "quillforge-environment-";
inline constexpr char kCommand[] = "quillforge-command-";
inline constexpr std::array<const char*, 3> kAll = {kNodeDownload, kEnvironment, kCommand};

// The template QTemporaryDir makes one of them from.
inline QString pattern(const char* prefix)
{
    return QDir::tempPath() + QLatin1Char('/') + QLatin1String(prefix) + QStringLiteral("XXXXXX");
}

} // namespace qf::temporaryFolders
