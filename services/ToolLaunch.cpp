#include "ToolLaunch.h"

#include "TerminalLauncher.h"

#include <QPointer>

namespace qf {

ToolLaunch::ToolLaunch(TerminalLauncher& launcher, const QString& command, QObject* parent)
    : QObject(parent), m_launcher(launcher), m_command(command)
{
}

void ToolLaunch::open()
{
    const int launch = ++m_launches;
    QPointer<ToolLaunch> self(this);
    m_launcher.openInTerminal(m_command, TerminalLauncher::projectsDirectory(), [self, launch](TerminalAnswer answer) {
        if (!self || launch != self->m_launches || self->m_answer == answer)
            return;
        self->m_answer = answer;
        Q_EMIT self->failedChanged();
    });
}

QString ToolLaunch::typedLine() const { return TerminalLauncher::typedLine(m_command); }

} // namespace qf
