#pragma once

#include <QString>
#include <QStringView>

namespace qf {

// The newest part of a log that may grow without end. Once the text would pass its limit, the
// oldest lines go and one line at the top says so; what stays always starts at the start of a
// line unless a single line is longer than a good part of the limit. Cutting leaves room
// below the limit, so a log that keeps growing is cut now and then, never on every append.
class BoundedLog {
public:
    // 4 MB of the mostly ASCII text that commands print.
    static constexpr qsizetype kDefaultLimit = 4 * 1024 * 1024;

    explicit BoundedLog(qsizetype limit = kDefaultLimit);

    // The line put at the top once earlier output was cut (without its line break).
    static QString cutNotice();

    void append(QStringView text);
    void clear();

    // What is kept: the notice line when something was cut, then the newest output.
    const QString& text() const { return m_text; }
    qsizetype limit() const { return m_limit; }
    bool wasCut() const { return m_cutLength > 0; }
    // How many characters of `text()` are the notice line with its line break.
    qsizetype noticeLength() const { return m_noticeLength; }
    // How many characters of output were cut at the top.
    qint64 cutLength() const { return m_cutLength; }
    // How many characters of output were appended since the log was last cleared.
    qint64 totalLength() const { return m_cutLength + (m_text.size() - m_noticeLength); }
    // Counts the clearings, so that a viewer can tell a new log from the old one grown on.
    int generation() const { return m_generation; }

private:
    void cut();

    qsizetype m_limit;
    QString m_text;
    qsizetype m_noticeLength = 0;
    qint64 m_cutLength = 0;
    int m_generation = 0;
};

} // namespace qf
