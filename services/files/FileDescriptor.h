#pragma once

#include <cerrno>
#include <utility>

#include <unistd.h>

namespace qf {

// A file descriptor closed when it goes out of scope.
class FileDescriptor {
public:
    explicit FileDescriptor(int fd) : m_fd(fd) {}
    ~FileDescriptor()
    {
        if (m_fd >= 0)
            ::close(m_fd);
    }
    FileDescriptor(const FileDescriptor&) = delete;
    FileDescriptor& operator=(const FileDescriptor&) = delete;

    int get() const { return m_fd; }
    // Closes now: 0, or the system's error. Some file systems only report a failed write here.
    int close() { return ::close(std::exchange(m_fd, -1)) == 0 ? 0 : errno; }

private:
    int m_fd;
};

} // namespace qf
