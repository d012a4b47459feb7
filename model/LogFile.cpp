#include "LogFile.h"

#include "Diagnostics.h"

#include <QCoro/QCoroFuture>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QPromise>
#include <QRegularExpression>
#include <QScopeGuard>
#include <QThreadPool>

#include <atomic>
#include <mutex>
#include <vector>

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace qf {

namespace {

// A new file, never one that is there already or a link: for reading and writing, its owner only.
constexpr int kNewFileFlags = O_RDWR | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC;
constexpr mode_t kOwnerOnlyFileMode = S_IRUSR | S_IWUSR;
constexpr QFileDevice::Permissions kOwnerOnlyFolder = QFileDevice::ReadOwner | QFileDevice::WriteOwner |
                                                      QFileDevice::ExeOwner;
// Output waiting for a disk that cannot keep up is given up beyond this much.
constexpr qsizetype kMaxPendingBytes = 64 * 1024 * 1024;
constexpr int kMaxTitleLength = 80;

using WholeText = std::optional<QString>;

// Makes `path` with the folders missing above it, each for its owner only.
bool makePrivateFolder(const QString& path)
{
    const QFileInfo info(path);
    if (info.isDir())
        return true;
    if (info.exists() || info.isSymLink())
        return false;
    const QString parent = info.absolutePath();
    if (parent == info.absoluteFilePath() || !makePrivateFolder(parent))
        return false;
    return QDir().mkdir(path, kOwnerOnlyFolder) || QFileInfo(path).isDir();
}

const QRegularExpression& logNamePattern()
{
    static const QRegularExpression pattern(QStringLiteral(R"(^\d{4}-\d\d-\d\d \d\d-\d\d-\d\d(-\d\d)? .+\.log$)"));
    return pattern;
}

// Everything in the open file `descriptor`, from its start, leaving its position as it is.
std::optional<QByteArray> readAll(int descriptor)
{
    QByteArray bytes;
    char buffer[64 * 1024];
    for (;;) {
        const ssize_t n = ::pread(descriptor, buffer, sizeof buffer, static_cast<off_t>(bytes.size()));
        if (n == 0)
            return bytes;
        if (n < 0 && errno != EINTR)
            return std::nullopt;
        if (n > 0)
            bytes.append(buffer, n);
    }
}

QCoro::Task<WholeText> awaitText(QFuture<WholeText> future)
{
    const WholeText text = co_await future;
    co_return text;
}

} // namespace

// What the window thread hands over and the worker writes. One drain runs at a time, on the
// thread pool, while anything is waiting; it owns `file` while it runs.
struct LogFile::Writer {
    std::mutex mutex;
    QByteArray pending;
    std::vector<QPromise<WholeText>> readers;
    bool draining = false;
    std::atomic<bool> broken = false;
    QFile file;

    // Starts a drain unless one runs. Called with `mutex` held; true when the caller is to
    // start it after letting go of the lock.
    bool claimDrain()
    {
        if (draining)
            return false;
        draining = true;
        return true;
    }

    static void startDrain(const std::shared_ptr<Writer>& writer)
    {
        QThreadPool::globalInstance()->start([writer] { writer->drain(); });
    }

    void drain()
    {
        for (;;) {
            QByteArray data;
            std::vector<QPromise<WholeText>> waiting;
            {
                const std::lock_guard lock(mutex);
                if (pending.isEmpty() && readers.empty()) {
                    draining = false;
                    return;
                }
                data.swap(pending);
                waiting.swap(readers);
            }
            if (!data.isEmpty() && !broken) {
                if (file.write(data) != data.size() || !file.flush())
                    broken = true;
            }
            for (QPromise<WholeText>& reader : waiting) {
                WholeText text;
                // Read through the file's own descriptor, wherever its name leads now.
                if (!broken) {
                    if (const std::optional<QByteArray> bytes = readAll(file.handle()))
                        text = QString::fromUtf8(*bytes);
                }
                reader.start();
                reader.addResult(text);
                reader.finish();
            }
        }
    }
};

LogFile::LogFile() = default;

LogFile::LogFile(const QString& path)
    : LogFile(path, ::open(QFile::encodeName(path).constData(), kNewFileFlags, kOwnerOnlyFileMode))
{
}

LogFile::LogFile(const QString& path, int descriptor)
{
    if (descriptor < 0)
        return;
    m_writer = std::make_shared<Writer>();
    if (m_writer->file.open(descriptor, QIODevice::ReadWrite, QFileDevice::AutoCloseHandle)) {
        m_path = path;
    } else {
        ::close(descriptor);
        m_writer.reset();
    }
}

LogFile::~LogFile() = default;

bool LogFile::isWhole() const { return m_writer && !m_writer->broken; }

void LogFile::append(QStringView text)
{
    if (text.isEmpty() || !isWhole())
        return;
    const QByteArray bytes = text.toUtf8();
    bool start = false;
    {
        const std::lock_guard lock(m_writer->mutex);
        if (m_writer->pending.size() + bytes.size() > kMaxPendingBytes) {
            // The disk has fallen this far behind: the file cannot be whole any more.
            m_writer->broken = true;
            m_writer->pending.clear();
            return;
        }
        m_writer->pending += bytes;
        start = m_writer->claimDrain();
    }
    if (start)
        Writer::startDrain(m_writer);
}

QCoro::Task<std::optional<QString>> LogFile::readWhole() const
{
    QPromise<WholeText> promise;
    QFuture<WholeText> future = promise.future();
    if (!isWhole()) {
        promise.start();
        promise.addResult(WholeText());
        promise.finish();
        return awaitText(future);
    }
    bool start = false;
    {
        const std::lock_guard lock(m_writer->mutex);
        m_writer->readers.push_back(std::move(promise));
        start = m_writer->claimDrain();
    }
    if (start)
        Writer::startDrain(m_writer);
    return awaitText(future);
}

// MARK: LogBook

LogBook::LogBook(QString folder) : m_folder(std::move(folder)) {}

std::shared_ptr<LogFile> LogBook::start(const QString& title, const QDateTime& when) const
{
    if (m_folder.isEmpty() || !makePrivateFolder(m_folder))
        return std::make_shared<LogFile>();
    // Everything from here on goes through the folder's descriptor: a link put in its place
    // meanwhile leads nowhere.
    const int folder = ::open(QFile::encodeName(m_folder).constData(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
    if (folder < 0) {
        printDiagnostic(QStringLiteral("Logs: %1 is not a folder of its own (a link?); no log is kept.").arg(m_folder));
        return std::make_shared<LogFile>();
    }
    const auto closeFolder = qScopeGuard([folder] { ::close(folder); });
    struct stat status {};
    if (::fstat(folder, &status) != 0 || status.st_uid != ::geteuid()) {
        printDiagnostic(QStringLiteral("Logs: %1 belongs to someone else; no log is kept.").arg(m_folder));
        return std::make_shared<LogFile>();
    }
    // The logs may name paths in the home folder: nobody else gets to read them.
    ::fchmod(folder, S_IRWXU);

    const QStringList logs = logFiles(m_folder);
    for (qsizetype i = 0; i + (kKeptFiles - 1) < logs.size(); ++i)
        ::unlinkat(folder, QFile::encodeName(logs[i]).constData(), 0);

    for (int number = 1; number < 100; ++number) {
        const QString name = fileName(title, when, number);
        const int file = ::openat(folder, QFile::encodeName(name).constData(), kNewFileFlags, kOwnerOnlyFileMode);
        if (file >= 0)
            return std::make_shared<LogFile>(QDir(m_folder).filePath(name), file);
        if (errno != EEXIST)
            break;
    }
    return std::make_shared<LogFile>();
}

QString LogBook::fileName(const QString& title, const QDateTime& when, int number)
{
    QString name = when.toString(QStringLiteral("yyyy-MM-dd HH-mm-ss"));
    if (number > 1)
        name += QStringLiteral("-%1").arg(number, 2, 10, QLatin1Char('0'));
    // Letters, digits and a few harmless marks; anything else becomes a dash.
    QString plain;
    for (const QChar c : title.simplified().left(kMaxTitleLength)) {
        const bool harmless = c.isLetterOrNumber() || c == QLatin1Char(' ') || c == QLatin1Char('.') ||
                              c == QLatin1Char('-') || c == QLatin1Char('_') || c == QLatin1Char('+') ||
                              c == QLatin1Char('(') || c == QLatin1Char(')');
        plain += harmless ? c : QLatin1Char('-');
    }
    if (!plain.isEmpty())
        name += QLatin1Char(' ') + plain;
    return name + QStringLiteral(".log");
}

QStringList LogBook::logFiles(const QString& folder)
{
    QStringList logs;
    const QStringList names = QDir(folder).entryList({QStringLiteral("*.log")}, QDir::Files, QDir::Name);
    for (const QString& name : names) {
        if (logNamePattern().match(name).hasMatch())
            logs << name;
    }
    return logs;
}

} // namespace qf
