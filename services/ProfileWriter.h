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

// Stores an API key in a shell profile, in this process: no command is started, so the key
// never appears in any process's arguments or environment. A key is data, never code:
// whatever it holds, sourcing the profile in bash or zsh sets the variable to exactly that key.
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
    // `export NAME="key"` for plain keys; other keys single-quoted so nothing in them expands.
    static QString exportLine(const QString& variable, const QString& key);

    // `profile` with every `export NAME=value` of exactly this name replaced by `line`: only
    // the export and its value (a double-quoted string, a single-quoted string, an unquoted
    // word, or several of them joined) are replaced; what comes before and after it on its
    // line stays, so a commented line stays commented. Nothing when no such export exists.
    static std::optional<QByteArray> rewrite(const QByteArray& profile, const QString& variable, const QString& line);
    // The block added to a profile without the export: an empty line, "# <tool> API Key",
    // the export line.
    static QByteArray appendedBlock(const QString& displayName, const QString& line);

    // Puts `line` into the profile at `path`: rewritten in place where it exports the variable
    // already, otherwise appended (creating the file). A link stays a link, a file with more
    // than one name stays one file, permissions stay; on failure the profile is as it was.
    static Result<void> store(const QString& path, const QString& variable, const QString& displayName,
                              const QString& line);

    // Writes `bytes` over the file at `path` (through a symbolic link to its target) keeping
    // its permissions: in one step by renaming a finished copy over it, or, for a file with
    // several hard links, in place after making sure the room for it is there.
    static Result<void> replaceFileContents(const QString& path, const QByteArray& bytes);
    // Adds `bytes` at the end of the file at `path`, creating it when missing.
    static Result<void> appendToFile(const QString& path, const QByteArray& bytes);

    // The marked block that puts ~/.local/bin first on the search path.
    static QByteArray searchPathBlock();
    // Appends that block to the profile at `path` (created when missing) unless it is there
    // already: true when it was added. A link stays a link, permissions stay.
    static Result<bool> addSearchPathBlock(const QString& path);

private:
    // Appends without ever waiting; 0, or the system's error code.
    static int append(const QString& path, const QByteArray& bytes);
};

} // namespace qf
