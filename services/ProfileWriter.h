#pragma once

#include "Errors.h"
#include "ShellExport.h"

#include <QCoreApplication>
#include <QString>

#include <optional>

namespace qf {

// Stores an API key in a shell profile, in this process: no command is started, so the key
// never appears in any process's arguments or environment. The lines are the shell family's
// (ShellExport); the file is changed crash-safely (CrashSafeFile).
// The profile is handled as bytes, so one that is not UTF-8 keeps every other byte as it was.
class ProfileWriter {
    Q_DECLARE_TR_FUNCTIONS(ProfileWriter)

public:
    // Real keys are a few hundred characters; a longer one would break every later command.
    static constexpr qsizetype maximumKeyLength = 4096;

    // Refuses keys that no profile line can hold (line breaks, NUL, more than 4,096
    // characters), with the reason. The reason never quotes the key.
    static std::optional<QString> rejectionReason(const QString& key);

    // Puts `line` (a line of shellExport::exportLine for `family`) into the profile at `path`
    // (created when missing), as shellExport::withExport does to its text. Every change of a
    // profile takes a lock, so two writers never lose each other's change, and completes or
    // leaves the file as it was: a failure at any byte leaves no partial line. A link stays a
    // link (even one whose file does not exist yet), a file with more than one name stays one
    // file, permissions stay; a read-only profile or one that is not an ordinary file is
    // refused. The folder of a profile that does not exist yet is made (fish's conf.d, say).
    static Result<ProfileChange> store(const QString& path, const QString& variable, const QString& displayName,
                                       const QString& line, ShellFamily family = ShellFamily::posix);

    // Appends the block that puts ~/.local/bin first on the search path
    // (shellExport::searchPathBlock) to the profile at `path` (created when missing) unless it
    // is there complete already: true when it was added. The same guarantees as `store`.
    static Result<bool> addSearchPathBlock(const QString& path, ShellFamily family = ShellFamily::posix);
};

} // namespace qf
