#include "OperationRun.h"

#include "LogFile.h"

#include <QPointer>

namespace qf {

OperationRun::OperationRun(const LogBook& logs, Declined declined, QObject* parent)
    : QObject(parent), m_logs(logs), m_declined(declined)
{
}

std::optional<QString> OperationRun::errorMessage() const
{
    if (!m_error)
        return std::nullopt;
    return m_error->plainDescription();
}

void OperationRun::begin(const QString& title, Cancellation cancellation)
{
    ++m_generation;
    m_cancellation = std::move(cancellation);
    m_error.reset();
    m_hasOutput = false;
    m_logFile = m_logs.start(title);
    setPhase(Phase::running);
}

OperationRun::Output OperationRun::sink()
{
    const QPointer<OperationRun> self(this);
    return [self, file = m_logFile, generation = m_generation](const QString& text) {
        if (file)
            file->append(text);
        if (self)
            self->append(generation, text);
    };
}

void OperationRun::append(int generation, const QString& text)
{
    if (generation != m_generation || text.isEmpty())
        return;
    m_hasOutput = true;
    Q_EMIT outputAppended(text);
}

void OperationRun::succeed() { setPhase(Phase::complete); }

void OperationRun::fail(const ServiceError& error)
{
    if (error.isDeclined() && m_declined == Declined::asksAgain) {
        // Nobody said yes to the password dialog: nothing happened, the question stands.
        m_error.reset();
        setPhase(Phase::ready);
        return;
    }
    // The screen says it plainly; the log keeps the command's own words.
    if (error.isCancelled())
        sink()(QStringLiteral("\nCancelled by the user\n"));
    else if (error.errorDescription() != error.plainDescription())
        sink()(QStringLiteral("\nError: ") + error.logDescription() + QLatin1Char('\n'));
    m_error = error;
    setPhase(Phase::failed);
}

void OperationRun::cancel()
{
    if (isRunning())
        m_cancellation.cancel();
}

void OperationRun::detach()
{
    ++m_generation;
    m_error.reset();
    m_hasOutput = false;
    m_logFile.reset();
    setPhase(Phase::ready);
}

void OperationRun::follow(QCoro::Task<Result<void>> task)
{
    QCoro::connect(std::move(task), this, [this](const Result<void>& result) {
        if (result)
            succeed();
        else
            fail(result.error());
    });
}

void OperationRun::setPhase(Phase phase)
{
    m_phase = phase;
    Q_EMIT phaseChanged();
}

} // namespace qf
