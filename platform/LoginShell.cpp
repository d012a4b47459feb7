#include "LoginShell.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <cstddef>
#include <vector>

#include <pwd.h>
#include <unistd.h>

namespace qf {

namespace {

bool canRun(const QString& shell)
{
    if (shell.isEmpty() || !QDir::isAbsolutePath(shell))
        return false;
    const QFileInfo info(shell);
    return info.isFile() && info.isExecutable();
}

} // namespace

QString userDatabaseShell()
{
    // getpwuid_r: getpwuid answers in a buffer that every caller in the process shares.
    const long suggested = sysconf(_SC_GETPW_R_SIZE_MAX);
    std::vector<char> buffer(suggested > 0 ? static_cast<std::size_t>(suggested) : std::size_t{4096});
    struct passwd entry {};
    struct passwd* found = nullptr;
    int error = 0;
    while ((error = getpwuid_r(getuid(), &entry, buffer.data(), buffer.size(), &found)) == ERANGE &&
           buffer.size() < (std::size_t{1} << 20))
        buffer.resize(buffer.size() * 2);
    if (error != 0 || found == nullptr || found->pw_shell == nullptr)
        return {};
    return QFile::decodeName(found->pw_shell);
}

QString chooseLoginShell(const QString& databaseShell, const QString& environmentShell, const QString& fallback)
{
    if (canRun(databaseShell))
        return databaseShell;
    if (canRun(environmentShell))
        return environmentShell;
    return fallback;
}

QString accountLoginShell(const AccountShellReader& accountShell, const QString& fallback)
{
    return chooseLoginShell(accountShell ? accountShell() : userDatabaseShell(), qEnvironmentVariable("SHELL"),
                            fallback);
}

} // namespace qf
