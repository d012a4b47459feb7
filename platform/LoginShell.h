#pragma once

#include "Platform.h"

#include <QString>

namespace qf {

// The shell the user database records for the account this process runs as (on macOS the
// account's UserShell, read through Open Directory); empty when it records none.
QString userDatabaseShell();

// The shell a new terminal window starts, chosen as Terminal and the VTE terminals choose it:
// the account's shell in the user database (`databaseShell`) when it can run, that is when it is
// an absolute path to an executable file; otherwise `environmentShell` ($SHELL, which goes stale
// after chsh until the next login) when that can run; otherwise this system's `fallback`.
QString chooseLoginShell(const QString& databaseShell, const QString& environmentShell, const QString& fallback);

// The backends' login shell: the account's shell as `accountShell` reads it (the user database
// when it is empty), then $SHELL, then `fallback`.
QString accountLoginShell(const AccountShellReader& accountShell, const QString& fallback);

} // namespace qf
