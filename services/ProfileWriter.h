#pragma once

#include "Errors.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QString>

#include <optional>

namespace qf {

// The first line of the block that puts ~/.local/bin on the search path; it marks the block
// as ours.
inline constexpr char kSearchPathMark[] =
    "# Added by Quillforge: programs installed for your user live in ~/.local/bin";

// The shells whose start-up files take different lines: zsh, bash and the other sh-like
// shells; fish; csh and tcsh.
enum class ShellFamily { posix, fish, csh };

// The start-up file a new terminal window's shell reads, and that shell's family.
struct ShellProfile {
    QString path;
    ShellFamily family = ShellFamily::posix;
};

// Stores an API key in a shell profile, in this process: no command is started, so the key
// never appears in any process's arguments or environment. A key is data, never code:
// whatever it holds, starting the shell of the profile's family sets the variable to exactly
// that key.
// The profile is handled as bytes, so one that is not UTF-8 keeps every other byte as it was.
class ProfileWriter {
    Q_DECLARE_TR_FUNCTIONS(ProfileWriter)

public:
    // Real keys are a few hundred characters; a longer one would break every later command.
    static constexpr qsizetype maximumKeyLength = 4096;

    // Refuses keys that no profile line can hold (line breaks, NUL, more than 4,096
    // characters), with the reason. The reason never quotes the key.
    static std::optional<QString> rejectionReason(const QString& key);
    // Letters, digits, '-', '_' and '.', as every real key is.
    static bool isPlainKey(const QString& key);
    // `export NAME="key"` (fish: `set -gx NAME "key"`, csh: `setenv NAME "key"`) for plain keys;
    // other keys single-quoted so that nothing in them expands.
    static QString exportLine(const QString& variable, const QString& key, ShellFamily family = ShellFamily::posix);

    // What saving an export does to a profile's text.
    struct ProfileChange {
        QByteArray profile;
        // The export went in as a new block at the end.
        bool appended = false;
        // ... because the profile sets the variable from a command, another variable or an
        // escape, which is never edited: the new line after it is the one that counts.
        bool afterComputedValue = false;
    };

    // `profile` with the key of `line` (a line of exportLine for `family`) in it. An export is a
    // line whose first word is `export NAME=` or `NAME=` (fish: `set` with an export flag and
    // NAME; csh: `setenv NAME`); where its value is a plain literal (an unquoted word, a
    // single-quoted string, a double-quoted string without `$`, backquotes or backslashes)
    // only that value is replaced and the rest of the line stays. Without such an export, or
    // when the last one computes its value, the block (appendedBlock) is added at the end
    // instead; nothing else changes, byte for byte.
    static ProfileChange withExport(const QByteArray& profile, const QString& variable, const QString& displayName,
                                    const QString& line, ShellFamily family = ShellFamily::posix);
    // The block added to a profile without the export: an empty line, "# <tool> API Key",
    // the export line.
    static QByteArray appendedBlock(const QString& displayName, const QString& line);

    // Puts `line` into the profile at `path` (created when missing). Every change of a profile
    // takes a lock, so two writers never lose each other's change, and completes or leaves the
    // file as it was: a failure at any byte leaves no partial line. A link stays a link (even
    // one whose file does not exist yet), a file with more than one name stays one file,
    // permissions stay; a read-only profile or one that is not an ordinary file is refused.
    // The folder of a profile that does not exist yet is made (fish's conf.d, say).
    static Result<ProfileChange> store(const QString& path, const QString& variable, const QString& displayName,
                                       const QString& line, ShellFamily family = ShellFamily::posix);

    // The marked block that puts ~/.local/bin first on the search path, in the family's words.
    static QByteArray searchPathBlock(ShellFamily family = ShellFamily::posix);
    // The one line a user would add by hand for the same.
    static QString searchPathLine(ShellFamily family);
    // Appends that block to the profile at `path` (created when missing) unless it is there
    // complete already: true when it was added. The same guarantees as `store`.
    static Result<bool> addSearchPathBlock(const QString& path, ShellFamily family = ShellFamily::posix);
};

} // namespace qf
