#include "GitPresence.h"

namespace qf {

QCoro::Task<GitPresence> findGit(ShellRunner& shell, const Platform& platform)
{
    const QString git = QStringLiteral("git --version");
    const QString presence = platform.developerToolsItem().presenceCommand;
    if (presence != git) {
        const Result<QString> present = co_await shell.run(presence);
        if (!present)
            co_return GitPresence{present.error(), true};
    }
    Result<QString> version = co_await shell.run(git);
    co_return GitPresence{std::move(version), false};
}

} // namespace qf
