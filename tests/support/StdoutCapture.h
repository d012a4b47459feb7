#pragma once

#include <QFile>
#include <QString>
#include <QTemporaryFile>

#include <cstdio>

#include <unistd.h>

namespace qf::test {

// Sends file descriptor 1 (stdout) to a temporary file until destroyed, so that diagnostic
// lines written by the code under test can be read back.
class StdoutCapture {
public:
    StdoutCapture()
    {
        m_file.open();
        std::fflush(stdout);
        m_saved = ::dup(STDOUT_FILENO);
        ::dup2(m_file.handle(), STDOUT_FILENO);
    }
    ~StdoutCapture() { restore(); }
    StdoutCapture(const StdoutCapture&) = delete;
    StdoutCapture& operator=(const StdoutCapture&) = delete;

    QString text()
    {
        std::fflush(stdout);
        QFile reader(m_file.fileName());
        if (!reader.open(QIODevice::ReadOnly))
            return {};
        return QString::fromUtf8(reader.readAll());
    }

    void restore()
    {
        if (m_saved < 0)
            return;
        std::fflush(stdout);
        ::dup2(m_saved, STDOUT_FILENO);
        ::close(m_saved);
        m_saved = -1;
    }

private:
    QTemporaryFile m_file;
    int m_saved = -1;
};

} // namespace qf::test
