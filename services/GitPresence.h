#pragma once

#include "Platform.h"
#include "ShellRunner.h"

#include <QCoro/QCoroTask>

namespace qf {

// git's version line ("git version 2.39.5 (Apple Git-154)"), or why it is not there. On a Mac
// /usr/bin/git is only a stub until the Command Line Tools are installed, and running it makes
// the system offer their installation in a dialog the user did not ask for: so the developer
// tools' presence is asked first, and git is run only when they are there.
struct GitPresence {
    Result<QString> version;
    // Whether what is missing is the whole developer tools, not only git.
    bool developerToolsMissing = false;
};

QCoro::Task<GitPresence> findGit(ShellRunner& shell, const Platform& platform);

} // namespace qf
