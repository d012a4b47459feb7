#pragma once

#include "CLITool.h"
#include "Errors.h"
#include "ShellRunner.h"
#include "SystemDetector.h"

#include <QCoreApplication>
#include <QCoro/QCoroTask>
#include <QDir>

namespace qf {

// Saves a tool's API key where new terminal windows find it: in the start-up file of the
// user's shell (through ProfileWriter, on a worker thread) and in this process.
class APIKeyStore {
    Q_DECLARE_TR_FUNCTIONS(APIKeyStore)

public:
    APIKeyStore(ShellRunner& shell, SystemDetector& detector);
    APIKeyStore(const APIKeyStore&) = delete;
    APIKeyStore& operator=(const APIKeyStore&) = delete;

    // Stores `key` as the tool's environment variable in the start-up file of the user's shell
    // (rewriting an existing export line in place, or appending one) and sets it in this
    // process too. What the user should know about the save comes back (nothing: empty), such
    // as a computed value that was left and followed by the new line.
    // A pasted key loses the blanks and line breaks around it first (the commonest paste
    // accident); one inside is refused with a sentence that says so.
    QCoro::Task<Result<QString>> save(QString key, CLITool tool);
    // The key as it is saved: without what surrounds it.
    static QString cleanedKey(const QString& pasted);
    static QString computedValueNotice(const QString& variable, const QString& profile);

    // `path` as the user knows it: "~/.bashrc" for a file in the home folder.
    static QString displayedPath(const QString& path, const QString& home = QDir::homePath());

private:
    ShellRunner& m_shell;
    SystemDetector& m_detector;
};

} // namespace qf
