#pragma once

#include <QCoro/QCoroTask>
#include <QDateTime>
#include <QString>
#include <QStringView>

#include <memory>
#include <optional>

namespace qf {

// The whole log of one installation or removal, on disk, written as it arrives. The writing
// is done on a worker thread, so a slow disk never holds up the window; whatever cannot be
// written (no folder, a full disk) is given up quietly: the run goes on, only the file is not
// whole. The file is readable and writable by its owner only.
class LogFile {
public:
    // A log that keeps nothing on disk.
    LogFile();
    // Creates the file at `path`, which must not exist yet (not even as a link). Failing that,
    // keeps nothing.
    explicit LogFile(const QString& path);
    // Takes over `descriptor`, a new file at `path` open for reading and writing; -1: keeps
    // nothing.
    LogFile(const QString& path, int descriptor);
    // What is not written yet still will be, after the object is gone.
    ~LogFile();
    LogFile(const LogFile&) = delete;
    LogFile& operator=(const LogFile&) = delete;

    // The file; empty when none could be made.
    const QString& path() const { return m_path; }
    // Whether the file holds (or is about to hold) everything appended so far.
    bool isWhole() const;

    void append(QStringView text);
    // The file's text once everything appended before the call is in it; nothing when the
    // file is not whole.
    QCoro::Task<std::optional<QString>> readWhole() const;

private:
    struct Writer;
    QString m_path;
    std::shared_ptr<Writer> m_writer;
};

// The folder of whole logs: one file per installation or removal, named by when it started
// and what it did ("2026-11-25 15-20-03 Install Gemini CLI.log"). Only the newest files stay.
class LogBook {
public:
    static constexpr int kKeptFiles = 20;

    explicit LogBook(QString folder);

    const QString& folder() const { return m_folder; }

    // A new log for `title` ("Install Gemini CLI"), started at `when`. Makes the folder when
    // it is missing and removes the oldest logs, so that with the new one `kKeptFiles` stay.
    // A folder that is a link or belongs to someone else is left alone (changed, emptied or
    // written in, it could be another user's). Never fails: when no file can be made, the log
    // keeps nothing.
    std::shared_ptr<LogFile> start(const QString& title, const QDateTime& when = QDateTime::currentDateTime()) const;

    // The file name for `title` at `when`, with nothing in it that a file system could object
    // to; `number` above 1 tells apart logs started within the same second.
    static QString fileName(const QString& title, const QDateTime& when, int number = 1);
    // The logs in `folder`, oldest first (file names only).
    static QStringList logFiles(const QString& folder);

private:
    QString m_folder;
};

} // namespace qf
