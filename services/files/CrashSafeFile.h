#pragma once

#include <QByteArray>
#include <QString>

#include <functional>
#include <optional>

// Changing a small file that must never be left half-written, such as a shell profile: a change
// completes or leaves the file as it was, whatever fails and whenever the computer stops. It
// works on the file directly and may wait for another writer: call it from a worker thread.
namespace qf::crashSafeFile {

// Why a file could not be changed, besides the system's error codes.
inline constexpr int notAnOrdinaryFile = -1;
inline constexpr int anotherWriterBusy = -2;

// The new text of a file, given its text now; nothing: leave it as it is.
using Edit = std::function<std::optional<QByteArray>(const QByteArray&)>;

// Changes the file at `path`: under a lock on its folder that every change there takes (so two
// writers never lose each other's change, and one that crashed never blocks the next), the
// file as it is now (empty when it does not exist yet) goes to `edit`, whose new text is written
// whole: in one step by renaming a finished copy over it, or in place for a file with more than
// one name, put back as it was when a write fails. A link stays a link (even one whose file
// does not exist yet), owner and permissions stay, a new file is the user's alone; a read-only
// file or one that is not an ordinary file is refused. The folder of a file that does not exist
// yet is made. 0, or why it could not be (a system error code or one of the above).
int change(const QString& path, const Edit& edit);

} // namespace qf::crashSafeFile
