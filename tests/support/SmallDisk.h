#pragma once

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QString>

#include <gtest/gtest.h>

namespace qf::test {

// A small tmpfs of its own, where this process may mount one (as root, where `mount` knows tmpfs).
class SmallDisk {
public:
    explicit SmallDisk(const QString& folder, const char* size) : m_folder(folder)
    {
        QDir().mkpath(folder);
        QProcess mount;
        mount.start(QStringLiteral("mount"), {QStringLiteral("-t"), QStringLiteral("tmpfs"), QStringLiteral("-o"),
                                              QStringLiteral("size=%1,mode=0755").arg(QString::fromLatin1(size)),
                                              QStringLiteral("tmpfs"), folder});
        m_mounted = mount.waitForFinished(10000) && mount.exitStatus() == QProcess::NormalExit && mount.exitCode() == 0;
    }
    ~SmallDisk()
    {
        if (m_mounted)
            QProcess::execute(QStringLiteral("umount"), {QStringLiteral("-l"), m_folder});
    }
    SmallDisk(const SmallDisk&) = delete;
    SmallDisk& operator=(const SmallDisk&) = delete;

    bool mounted() const { return m_mounted; }

    // Fills every byte the disk has left.
    void fill() const
    {
        QFile filler(m_folder + QStringLiteral("/filler"));
        ASSERT_TRUE(filler.open(QIODevice::WriteOnly | QIODevice::Append));
        const QByteArray block(512, 'x');
        while (filler.write(block) == block.size() && filler.flush()) {
        }
        QFile small(m_folder + QStringLiteral("/filler-bytes"));
        ASSERT_TRUE(small.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
        while (small.write("x", 1) == 1) {
        }
    }
    void free() const
    {
        QFile::remove(m_folder + QStringLiteral("/filler"));
        QFile::remove(m_folder + QStringLiteral("/filler-bytes"));
    }

private:
    QString m_folder;
    bool m_mounted = false;
};

} // namespace qf::test
