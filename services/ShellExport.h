#pragma once

#include <QByteArray>
#include <QString>

// What a shell profile says to set a variable or to put a folder on the search path, in the
// words of each shell family: the lines themselves, and how a profile's text takes them. Only
// text; ProfileWriter puts it into the file.
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

// What saving an export does to a profile's text.
struct ProfileChange {
    QByteArray profile;
    // The export went in as a new block at the end.
    bool appended = false;
    // ... because the profile sets the variable from a command, another variable or an
    // escape, which is never edited: the new line after it is the one that counts.
    bool afterComputedValue = false;
};

namespace shellExport {

// Letters, digits, '-', '_' and '.', as every real key is.
bool isPlainKey(const QString& key);
// `export NAME="key"` (fish: `set -gx NAME "key"`, csh: `setenv NAME "key"`) for plain keys;
// other keys single-quoted so that nothing in them expands. A key is data, never code:
// whatever it holds, starting the shell of the family sets the variable to exactly that key.
QString exportLine(const QString& variable, const QString& key, ShellFamily family = ShellFamily::posix);

// `profile` with the key of `line` (a line of exportLine for `family`) in it. An export is a
// line whose first word is `export NAME=` or `NAME=` (fish: `set` with an export flag and
// NAME; csh: `setenv NAME`); where its value is a plain literal (an unquoted word, a
// single-quoted string, a double-quoted string without `$`, backquotes or backslashes)
// only that value is replaced and the rest of the line stays. Without such an export, or
// when the last one computes its value, the block (appendedBlock) is added at the end
// instead; nothing else changes, byte for byte.
ProfileChange withExport(const QByteArray& profile, const QString& variable, const QString& displayName,
                         const QString& line, ShellFamily family = ShellFamily::posix);
// The block added to a profile without the export: an empty line, "# <tool> API Key",
// the export line.
QByteArray appendedBlock(const QString& displayName, const QString& line);

// The marked block that puts ~/.local/bin first on the search path, in the family's words.
QByteArray searchPathBlock(ShellFamily family = ShellFamily::posix);
// The one line a user would add by hand for the same.
QString searchPathLine(ShellFamily family);

} // namespace shellExport

} // namespace qf
