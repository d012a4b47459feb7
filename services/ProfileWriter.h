#pragma once

#include "Errors.h"

#include <QCoreApplication>
#include <QString>

#include <optional>

namespace qf {

// The pieces of storing an API key in a shell profile. A key is data, never code: whatever
// it holds, sourcing the profile in bash or zsh sets the variable to exactly that key.
class ProfileWriter {
    Q_DECLARE_TR_FUNCTIONS(ProfileWriter)

public:
    // Refuses keys that no profile line can hold (line breaks, NUL), with the reason.
    static std::optional<QString> rejectionReason(const QString& key);
    // Letters, digits, '-', '_' and '.', as every real key is.
    static bool isPlainKey(const QString& key);
    // `export NAME="key"` for plain keys; other keys single-quoted so nothing in them expands.
    static QString exportLine(const QString& variable, const QString& key);
    // Replaces every `export NAME=...` (to the end of its line, a carriage return kept) by
    // `line`, inserted literally. Text before "export" on the line stays.
    static QString rewrite(const QString& text, const QString& variable, const QString& line);
    // The shell line that appends an empty line, "# <tool> API Key" and `line` to the profile.
    static QString appendCommand(const QString& displayName, const QString& line, const QString& profilePath);
    // Writes `text` over the file at `path` (through a symbolic link to its target) in one
    // step, keeping its permissions. On failure the file is untouched and nothing is left over.
    static Result<void> replaceFileContents(const QString& path, const QString& text);
};

} // namespace qf
