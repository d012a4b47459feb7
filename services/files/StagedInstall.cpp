#include "StagedInstall.h"

#include "FileDescriptor.h"
#include "TemporaryFolders.h"

#include <QCoreApplication>
#include <QFile>

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace qf::stagedInstall {

namespace {

// Sentences of this file, in their own translation context.
struct Text {
    Q_DECLARE_TR_FUNCTIONS(StagedInstall)
};

// Why an entry could not be installed, besides the system's error codes.
constexpr int fileInTheWay = -1;   // a file, or a link to one, where a folder belongs
constexpr int folderInTheWay = -2; // a folder, or a link to one, where a file belongs

// At most this many links are followed to find the folder a link points at.
constexpr int maximumLinks = 40;

struct Failure {
    std::string path;
    int error = 0;
};

QString reasonText(int error)
{
    if (error == fileInTheWay)
        return Text::tr("a file is where a folder belongs");
    if (error == folderInTheWay)
        return Text::tr("a folder is where a file belongs");
    return QString::fromLocal8Bit(std::strerror(error));
}

QString pathText(const std::string& path) { return QFile::decodeName(QByteArray::fromStdString(path)); }

std::string pathBytes(const QString& path)
{
    std::string bytes = QFile::encodeName(path).toStdString();
    while (bytes.size() > 1 && bytes.back() == '/')
        bytes.pop_back();
    return bytes;
}

std::string joined(const std::string& folder, const std::string& name)
{
    return folder == "/" ? folder + name : folder + '/' + name;
}

std::string parentOf(const std::string& path)
{
    const std::size_t slash = path.find_last_of('/');
    if (slash == std::string::npos)
        return ".";
    return slash == 0 ? std::string("/") : path.substr(0, slash);
}

std::string nameOf(const std::string& path) { return path.substr(path.find_last_of('/') + 1); }

std::vector<std::string> partsOf(const std::string& path)
{
    std::vector<std::string> parts;
    std::size_t start = 0;
    while (start <= path.size()) {
        const std::size_t slash = std::min(path.find('/', start), path.size());
        parts.push_back(path.substr(start, slash - start));
        start = slash + 1;
    }
    return parts;
}

// parts[from, to) with '/' between them.
std::string joinedParts(const std::vector<std::string>& parts, std::size_t from, std::size_t to)
{
    std::string path;
    for (std::size_t index = from; index < to; ++index) {
        if (!path.empty())
            path += '/';
        path += parts[index];
    }
    return path;
}

// The entries of a folder, sorted, so the order of the work does not depend on the disk.
int listFolder(const std::string& folder, std::vector<std::string>& names)
{
    DIR* dir = ::opendir(folder.c_str());
    if (!dir)
        return errno;
    int error = 0;
    for (;;) {
        errno = 0;
        const dirent* entry = ::readdir(dir);
        if (!entry) {
            error = errno;
            break;
        }
        const std::string name = entry->d_name;
        if (name != "." && name != "..")
            names.push_back(name);
    }
    ::closedir(dir);
    std::sort(names.begin(), names.end());
    return error;
}

int readLink(const std::string& path, std::string& target)
{
    for (std::size_t size = 256;; size *= 2) {
        std::vector<char> buffer(size);
        const ssize_t length = ::readlink(path.c_str(), buffer.data(), buffer.size());
        if (length < 0)
            return errno;
        if (static_cast<std::size_t>(length) < buffer.size()) {
            target.assign(buffer.data(), static_cast<std::size_t>(length));
            return 0;
        }
    }
}

std::optional<std::string> realPath(const std::string& path)
{
    char* real = ::realpath(path.c_str(), nullptr);
    if (!real)
        return std::nullopt;
    std::string result = real;
    std::free(real);
    return result;
}

// Removes `path` and, for a folder, everything in it; links are removed, never followed.
void removeTree(const std::string& path)
{
    struct stat status;
    if (::lstat(path.c_str(), &status) != 0)
        return;
    if (S_ISDIR(status.st_mode)) {
        std::vector<std::string> names;
        listFolder(path, names);
        for (const std::string& name : names)
            removeTree(joined(path, name));
        ::rmdir(path.c_str());
    } else {
        ::unlink(path.c_str());
    }
}

// Makes `path` a folder. Missing parents are made first; where a link points at a folder that
// does not exist yet, that folder is made and the link stays. Every folder made is appended
// to `made`, outermost first; the last one gets `mode`.
int makeFolder(const std::string& path, mode_t mode, std::vector<std::string>& made, int links = 0)
{
    struct stat status;
    if (::stat(path.c_str(), &status) == 0)
        return S_ISDIR(status.st_mode) ? 0 : ENOTDIR;
    if (errno != ENOENT)
        return errno;
    if (::lstat(path.c_str(), &status) == 0) {
        if (!S_ISLNK(status.st_mode) || ++links > maximumLinks)
            return ELOOP;
        std::string target;
        if (const int error = readLink(path, target))
            return error;
        if (target.empty())
            return ENOENT;
        if (target.front() != '/')
            target = joined(parentOf(path), target);
        while (target.size() > 1 && target.back() == '/')
            target.pop_back();
        return makeFolder(target, mode, made, links);
    }
    if (errno != ENOENT)
        return errno;
    if (const int error = makeFolder(parentOf(path), 0777, made, links))
        return error;
    if (::mkdir(path.c_str(), mode) != 0) {
        const int error = errno;
        return error == EEXIST && ::stat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode) ? 0 : error;
    }
    made.push_back(path);
    return 0;
}

int copyFile(const std::string& from, const std::string& to, mode_t permissions)
{
    const FileDescriptor source(::open(from.c_str(), O_RDONLY | O_CLOEXEC));
    if (source.get() < 0)
        return errno;
    FileDescriptor copy(::open(to.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600));
    if (copy.get() < 0)
        return errno;
    std::vector<char> buffer(std::size_t{64} * 1024);
    for (;;) {
        const ssize_t got = ::read(source.get(), buffer.data(), buffer.size());
        if (got < 0 && errno == EINTR)
            continue;
        if (got < 0)
            return errno;
        if (got == 0)
            break;
        for (ssize_t done = 0; done < got;) {
            const ssize_t written = ::write(copy.get(), buffer.data() + done, static_cast<std::size_t>(got - done));
            if (written < 0 && errno == EINTR)
                continue;
            if (written < 0)
                return errno;
            done += written;
        }
    }
    if (::fchmod(copy.get(), permissions) != 0)
        return errno;
    return copy.close();
}

// Copies `from` to `to`, where nothing is: a folder with everything in it, a link as a link,
// a file with its permissions. For moves that a rename cannot do, to another volume.
int copyTree(const std::string& from, const std::string& to)
{
    struct stat status;
    if (::lstat(from.c_str(), &status) != 0)
        return errno;
    const mode_t permissions = status.st_mode & 07777;
    if (S_ISLNK(status.st_mode)) {
        std::string target;
        if (const int error = readLink(from, target))
            return error;
        return ::symlink(target.c_str(), to.c_str()) == 0 ? 0 : errno;
    }
    if (S_ISDIR(status.st_mode)) {
        if (::mkdir(to.c_str(), 0700) != 0)
            return errno;
        std::vector<std::string> names;
        if (const int error = listFolder(from, names))
            return error;
        for (const std::string& name : names)
            if (const int error = copyTree(joined(from, name), joined(to, name)))
                return error;
        return ::chmod(to.c_str(), permissions) == 0 ? 0 : errno;
    }
    if (!S_ISREG(status.st_mode))
        return ENOTSUP;
    return copyFile(from, to, permissions);
}

// Moves a staging tree into its destination and keeps a record of every change, so that a
// failure can put everything back as it was.
class Merge {
public:
    Merge(std::string staging, std::string destination, std::vector<std::string> last)
        : m_staging(std::move(staging)), m_destination(std::move(destination)), m_last(std::move(last))
    {
    }

    std::optional<Failure> run()
    {
        if (std::optional<Failure> failure = mergeFolder(m_staging, m_destination, std::string()))
            return failure;
        for (const std::string& entry : m_last) {
            const std::string from = joined(m_staging, entry);
            struct stat status;
            if (::lstat(from.c_str(), &status) != 0) {
                if (errno == ENOENT)
                    continue; // not part of this tree
                return Failure{from, errno};
            }
            if (std::optional<Failure> failure = place(from, joined(m_destination, entry), entry))
                return failure;
        }
        return std::nullopt;
    }

    // Takes out everything moved in and puts back everything replaced, newest change first.
    void undo()
    {
        for (std::size_t index = m_steps.size(); index-- > 0;) {
            const Step& step = m_steps[index];
            switch (step.kind) {
            case Step::placed: removeTree(step.path); break;
            case Step::replaced:
                removeTree(step.path);
                ::rename(step.setAside.c_str(), step.path.c_str());
                break;
            case Step::madeFolder: ::rmdir(step.path.c_str()); break;
            }
        }
        dropWorkFolders();
    }

    // Everything is in place: what was set aside goes.
    void finish() { dropWorkFolders(); }

private:
    struct Step {
        enum Kind { placed, replaced, madeFolder } kind;
        std::string path;
        std::string setAside; // where a replaced entry waits
    };

    bool isLast(const std::string& relative) const
    {
        return std::find(m_last.begin(), m_last.end(), relative) != m_last.end();
    }
    bool holdsLast(const std::string& relative) const
    {
        return std::any_of(m_last.begin(), m_last.end(), [&](const std::string& entry) {
            return entry.size() > relative.size() && entry.compare(0, relative.size(), relative) == 0 &&
                   entry[relative.size()] == '/';
        });
    }

    std::optional<Failure> mergeFolder(const std::string& from, const std::string& to, const std::string& relative)
    {
        std::vector<std::string> names;
        if (const int error = listFolder(from, names))
            return Failure{from, error};
        for (const std::string& name : names) {
            std::string entry = relative;
            if (!entry.empty())
                entry += '/';
            entry += name;
            if (isLast(entry))
                continue;
            if (std::optional<Failure> failure = place(joined(from, name), joined(to, name), entry))
                return failure;
        }
        return std::nullopt;
    }

    std::optional<Failure> place(const std::string& from, const std::string& to, const std::string& relative)
    {
        struct stat source;
        if (::lstat(from.c_str(), &source) != 0)
            return Failure{from, errno};
        struct stat present;
        const bool exists = ::lstat(to.c_str(), &present) == 0;
        if (!exists && errno != ENOENT)
            return Failure{to, errno};
        struct stat reached; // what is there, links followed
        const bool reachable = exists && ::stat(to.c_str(), &reached) == 0;
        if (exists && !reachable && errno != ENOENT)
            return Failure{to, errno};

        if (S_ISDIR(source.st_mode)) {
            if (reachable) {
                if (!S_ISDIR(reached.st_mode))
                    return Failure{to, fileInTheWay};
                return mergeFolder(from, to, relative);
            }
            if (exists || holdsLast(relative)) {
                // A link to a folder that is not there yet gets its folder. A folder that takes
                // one of the last entries is made now and filled entry by entry, so those
                // entries can wait for everything else.
                std::vector<std::string> made;
                const int error = makeFolder(to, source.st_mode & 07777, made);
                for (const std::string& folder : made)
                    m_steps.push_back({Step::madeFolder, folder, {}});
                if (error)
                    return Failure{to, error == ENOTDIR ? fileInTheWay : error};
                return mergeFolder(from, to, relative);
            }
            if (const int error = bring(from, to, std::nullopt, false))
                return Failure{to, error};
            m_steps.push_back({Step::placed, to, {}});
            return std::nullopt;
        }

        if (reachable && S_ISDIR(reached.st_mode))
            return Failure{to, folderInTheWay};
        const std::optional<std::string> meant = S_ISLNK(source.st_mode) ? meantTarget(from, to, relative)
                                                                         : std::nullopt;
        if (!exists) {
            if (const int error = bring(from, to, meant, false))
                return Failure{to, error};
            m_steps.push_back({Step::placed, to, {}});
            return std::nullopt;
        }

        // The new entry goes next to its place first, so the one it replaces is away only for
        // the moment between two renames.
        std::string work;
        if (const int error = workFolder(parentOf(to), work))
            return Failure{to, error};
        const std::string name = nameOf(to);
        const std::string incoming = joined(work, "new-" + name);
        if (const int error = bring(from, incoming, meant, true))
            return Failure{to, error};
        const std::string aside = joined(work, "old-" + name);
        if (::rename(to.c_str(), aside.c_str()) != 0)
            return Failure{to, errno};
        m_steps.push_back({Step::replaced, to, aside});
        if (::rename(incoming.c_str(), to.c_str()) != 0)
            return Failure{to, errno};
        return std::nullopt;
    }

    // Puts `from` at `to`, where nothing is: a link that needs it is made anew with its `meant`
    // target; everything else is renamed. Where a rename cannot go (to another volume) it is
    // copied, under a hidden name beside `to` that is renamed when complete, unless `to` is
    // such a hidden name already.
    int bring(const std::string& from, const std::string& to, const std::optional<std::string>& meant, bool hidden)
    {
        if (meant)
            return ::symlink(meant->c_str(), to.c_str()) == 0 ? 0 : errno;
        if (::rename(from.c_str(), to.c_str()) == 0)
            return 0;
        if (errno != EXDEV)
            return errno;
        if (hidden) {
            const int error = copyTree(from, to);
            if (error)
                removeTree(to);
            return error;
        }
        std::string work;
        if (const int error = workFolder(parentOf(to), work))
            return error;
        const std::string copy = joined(work, "new-" + nameOf(to));
        int error = copyTree(from, copy);
        if (!error && ::rename(copy.c_str(), to.c_str()) != 0)
            error = errno;
        if (error)
            removeTree(copy);
        return error;
    }

    // A relative link such as bin/npm -> ../lib/node_modules/npm/bin/npm-cli.js means a place
    // in the tree. When the folder it goes into is reached through a link of the user's
    // (~/.local/bin -> ~/dotfiles/bin), the same words lead somewhere else; such a link gets
    // the full path of the place it means. Nothing when the link works as it is.
    std::optional<std::string> meantTarget(const std::string& from, const std::string& to,
                                           const std::string& relative) const
    {
        std::string target;
        if (readLink(from, target) != 0 || target.empty() || target.front() == '/')
            return std::nullopt;
        std::vector<std::string> folder = partsOf(relative);
        folder.pop_back(); // the link's own name
        std::vector<std::string> meant = folder;
        std::size_t highest = folder.size(); // how far up in the tree the link climbs
        for (const std::string& part : partsOf(target)) {
            if (part.empty() || part == ".")
                continue;
            if (part != "..") {
                meant.push_back(part);
                continue;
            }
            if (meant.empty())
                return std::nullopt; // it leads out of the tree: whatever it means, it is not ours
            meant.pop_back();
            highest = std::min(highest, meant.size());
        }
        if (highest == folder.size())
            return std::nullopt; // it never climbs, so it leads into the same place from anywhere
        // The climb goes from the link's folder up to the tree's folder `top`; it ends where the
        // tree says when no link lies on that stretch.
        const std::string top = highest == 0 ? m_destination : joined(m_destination, joinedParts(folder, 0, highest));
        const std::optional<std::string> realTop = realPath(top);
        const std::optional<std::string> realFolder = realPath(parentOf(to));
        if (!realTop || !realFolder || *realFolder == joined(*realTop, joinedParts(folder, highest, folder.size())))
            return std::nullopt;
        return meant.empty() ? m_destination : joined(m_destination, joinedParts(meant, 0, meant.size()));
    }

    // A hidden folder of this merge inside `folder`, made on first use: what is replaced there
    // waits in it, and copies from another volume are made in it.
    int workFolder(const std::string& folder, std::string& work)
    {
        const auto known = m_workFolders.find(folder);
        if (known != m_workFolders.end()) {
            work = known->second;
            return 0;
        }
        std::string name = joined(folder, ".quillforge-swap-XXXXXX");
        if (!::mkdtemp(name.data()))
            return errno;
        m_workFolders.emplace(folder, name);
        work = name;
        return 0;
    }

    void dropWorkFolders()
    {
        for (const auto& [folder, work] : m_workFolders)
            removeTree(work);
        m_workFolders.clear();
    }

    const std::string m_staging;
    const std::string m_destination;
    const std::vector<std::string> m_last;
    std::vector<Step> m_steps;
    std::map<std::string, std::string> m_workFolders;
};

} // namespace

Result<Staging> begin(const QString& destination)
{
    const std::string folder = pathBytes(destination);
    std::vector<std::string> made;
    const int error = makeFolder(folder, 0777, made);
    Staging staging;
    for (const std::string& path : made)
        staging.madeFolders.append(pathText(path));
    if (error) {
        abandon(staging);
        return ServiceError::message(Text::tr("Could not make the folder %1: %2").arg(destination, reasonText(error)));
    }
    std::string name = joined(folder, ".quillforge-staging-XXXXXX");
    if (!::mkdtemp(name.data())) {
        const int failed = errno;
        abandon(staging);
        return ServiceError::message(
            Text::tr("Could not prepare %1 for the installation: %2").arg(destination, reasonText(failed)));
    }
    staging.folder = pathText(name);
    return staging;
}

Result<void> complete(const Staging& staging, const QString& destination, const QStringList& last)
{
    std::vector<std::string> lastEntries;
    for (const QString& entry : last)
        lastEntries.push_back(QFile::encodeName(entry).toStdString());
    Merge merge(pathBytes(staging.folder), pathBytes(destination), std::move(lastEntries));
    if (const std::optional<Failure> failure = merge.run()) {
        merge.undo();
        abandon(staging);
        return ServiceError::message(
            Text::tr("Could not install %1: %2").arg(pathText(failure->path), reasonText(failure->error)));
    }
    merge.finish();
    removeTree(pathBytes(staging.folder));
    return Result<void>();
}

void abandon(const Staging& staging)
{
    if (!staging.folder.isEmpty())
        removeTree(pathBytes(staging.folder));
    for (qsizetype index = staging.madeFolders.size(); index-- > 0;)
        ::rmdir(QFile::encodeName(staging.madeFolders[index]).constData());
}

namespace {

bool hasPrefix(const std::string& name, const char* prefix) { return name.rfind(prefix, 0) == 0; }

// `path` is a folder of this user's that was last changed before `before`.
bool isOwnOldFolder(const std::string& path, qint64 before)
{
    struct stat status {};
    return ::lstat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode) && status.st_uid == ::geteuid() &&
           status.st_mtime < before;
}

void removeLeftoversIn(const std::string& folder, int depth, qint64 before, QStringList& removed)
{
    std::vector<std::string> names;
    listFolder(folder, names);
    for (const std::string& name : names) {
        const std::string path = joined(folder, name);
        struct stat status {};
        if (::lstat(path.c_str(), &status) != 0 || !S_ISDIR(status.st_mode))
            continue;
        if (hasPrefix(name, ".quillforge-staging-") || hasPrefix(name, ".quillforge-swap-")) {
            if (isOwnOldFolder(path, before)) {
                removeTree(path);
                removed << pathText(path);
            }
        } else if (depth > 1) {
            removeLeftoversIn(path, depth - 1, before, removed);
        }
    }
}

} // namespace

QStringList removeLeftovers(const QString& destination, const QString& temporary, qint64 before)
{
    QStringList removed;
    const std::string local = pathBytes(destination);
    struct stat status {};
    // ~/.local itself may be a link the user made; what lies inside it is searched as it is.
    if (::stat(local.c_str(), &status) == 0 && S_ISDIR(status.st_mode))
        removeLeftoversIn(local, 3, before, removed);

    const std::string shared = pathBytes(temporary);
    std::vector<std::string> names;
    listFolder(shared, names);
    for (const std::string& name : names) {
        if (std::none_of(temporaryFolders::kAll.begin(), temporaryFolders::kAll.end(),
                         [&name](const char* prefix) { return hasPrefix(name, prefix); }))
            continue;
        const std::string path = joined(shared, name);
        if (isOwnOldFolder(path, before)) {
            removeTree(path);
            removed << pathText(path);
        }
    }
    return removed;
}

} // namespace qf::stagedInstall
