#pragma once

#include "Platform.h"

#include <QObject>
#include <QString>

namespace qf {

class TerminalLauncher;

// Starts a tool in a new terminal window in the projects folder, one window per `open()`, and
// knows whether the most recent launch failed. The answer to a launch may come later (a Mac
// answers once its script has run); an answer to a launch that a newer one replaced changes
// nothing, and none reaches an owner that is gone.
class ToolLaunch : public QObject {
    Q_OBJECT

public:
    ToolLaunch(TerminalLauncher& launcher, const QString& command, QObject* parent);

    void open();
    int launches() const { return m_launches; }
    bool failed() const { return m_answer != TerminalAnswer::opened; }
    // Whether the system refused to let Quillforge control the terminal.
    bool notAllowed() const { return m_answer == TerminalAnswer::notAllowed; }
    // What to type instead: "cd ~/Developer && " and the command.
    QString typedLine() const;

Q_SIGNALS:
    void failedChanged();

private:
    TerminalLauncher& m_launcher;
    QString m_command;
    int m_launches = 0;
    TerminalAnswer m_answer = TerminalAnswer::opened;
};

} // namespace qf
