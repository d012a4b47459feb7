#pragma once

#include "Platform.h"

#include <QCoreApplication>
#include <QString>

#include <optional>
#include <utility>
#include <variant>

namespace qf {

// A shell command that failed: it ran and ended with a non-zero status, it could not be
// started, or it was stopped: it ran longer than it was allowed to, it wrote more output than
// is kept, it showed no progress for too long, or whoever started it cancelled it.
class ShellError {
    Q_DECLARE_TR_FUNCTIONS(ShellError)

public:
    enum Kind { commandFailed, processError, timedOut, outputTooLarge, noProgress, cancelled };

    // At most this much of a failed command's output is shown to a person: its end.
    static constexpr qsizetype shownOutputLength = 2000;

    // `recentOutput`: for a command whose output went elsewhere as it came, its end.
    static ShellError failed(int exitCode, const QString& output, const QString& recentOutput = QString());
    // `description` is the launch error's own description.
    static ShellError launchFailed(const QString& description);
    static ShellError timeout(double seconds);
    static ShellError outputLimit(qint64 bytes);
    // `activity` names what stalled ("The download of node.tar.gz"); empty: "The command".
    static ShellError stalled(double seconds, const QString& activity = QString());
    // Stopped, or never started, because whoever started it no longer wanted it.
    static ShellError cancellation();

    // "1 second", "0.5 seconds", "1,234.5 seconds", "15 minutes": a length of time as the
    // messages say it, in the user's language.
    static QString durationText(double seconds);

    Kind kind() const { return m_kind; }
    int exitCode() const { return m_exitCode; }
    // Whether this is a line run with administrator rights (Platform::administratorCommand)
    // whose password dialog the user cancelled.
    bool isAdministratorDeclined() const { return m_kind == commandFailed && m_exitCode == kAdministratorDeclined; }
    const QString& output() const { return m_text; }
    // What the command said last: the end of a streamed command's output, or its output.
    const QString& lastOutput() const { return m_recent.isEmpty() ? m_text : m_recent; }
    // The message in full: the command's status and what it said, in the user's language.
    QString errorDescription() const { return describe(false); }
    // The same in English, as the log keeps it: a log is what a person sends when asking for help.
    QString logDescription() const { return describe(true); }
    // What a person reads: one plain sentence of what happened and what to do.
    QString plainDescription() const;

    friend bool operator==(const ShellError&, const ShellError&) = default;

private:
    // `text` (marked with QT_TR_NOOP where it is written) in the user's language, or as written
    // (English) for the log.
    static QString say(const char* text, bool english);
    static QString duration(double seconds, bool english);
    QString describe(bool english) const;

    Kind m_kind = commandFailed;
    int m_exitCode = 0;
    QString m_text;
    QString m_recent;
    QString m_activity;
    double m_seconds = 0;
    qint64 m_bytes = 0;
};

// Failures of the installation and its relatives, each with its message.
enum class InstallationError {
    verificationFailed,
    nodeInstallFailed,
    gitNotFound,
    uninstallFailed,
    manualUninstallRequired,
    folderNotEmpty,
};
// The message of `error`; the ones that name the system's tools come in its wording.
QString errorDescription(InstallationError error, const SystemWording& wording);

// What a service operation reports when it fails: a shell error, an installation error, a
// removal the user declined, or another problem described in words (a file that could not be
// written, input refused). The message is settled when the error is made.
class ServiceError {
public:
    ServiceError(ShellError error);
    ServiceError(InstallationError error, const SystemWording& wording);
    static ServiceError message(const QString& text);
    // The user cancelled the password dialog, so `name` was not removed.
    static ServiceError removalDeclined(const QString& name);
    // The user cancelled the password dialog, so `name` was not updated.
    static ServiceError updateDeclined(const QString& name);
    // An update that needs Node.js `requiredMajor` or newer, which this computer does not have
    // yet; `text` says so. Nothing was run.
    static ServiceError needsNewerNode(const QString& text, int requiredMajor);
    // The user stopped the operation; `text` says so and what of it stays.
    static ServiceError stopped(const QString& text);
    // A command that failed with `error`, of which a person reads `sentence` instead of what its
    // output suggests (what trying again will do differently); the log still gets all of it.
    static ServiceError explained(ShellError error, const QString& sentence);

    const QString& errorDescription() const { return m_description; }
    // For the log: a failed command's message in English; other messages as they were given.
    QString logDescription() const;
    // What a person reads: for a failed command, one plain sentence of what happened and what
    // to do (errorDescription has all of it, for the log); otherwise the description.
    QString plainDescription() const;
    const ShellError* shellError() const { return std::get_if<ShellError>(&m_cause); }
    std::optional<InstallationError> installationError() const
    {
        if (const auto* error = std::get_if<InstallationError>(&m_cause))
            return *error;
        return std::nullopt;
    }
    // Whether whoever started the operation stopped it (a command cancelled, or `stopped`).
    bool isCancelled() const
    {
        const ShellError* error = shellError();
        return error && error->kind() == ShellError::cancelled;
    }
    // Whether the user said no: nothing failed, nothing happened.
    bool isDeclined() const { return m_declined; }
    // The major version of Node.js that an update needs, when a Node.js too old for it is what
    // stopped the update (installing a newer one lets it go ahead); 0 otherwise.
    int requiredNodeMajor() const { return m_requiredNodeMajor; }

    friend bool operator==(const ServiceError&, const ServiceError&) = default;

private:
    ServiceError() = default;

    std::variant<std::monostate, ShellError, InstallationError> m_cause;
    QString m_description;
    QString m_sentence;
    bool m_declined = false;
    // The description is what a person reads (a stop, in the operation's own words).
    bool m_plain = false;
    int m_requiredNodeMajor = 0;
};

// The outcome of an operation that may fail: a value, or the error that stopped it. Errors
// travel as values so that nothing is thrown across a suspension point.
template <typename T>
class [[nodiscard]] Result {
public:
    Result(T value) : m_state(std::move(value)) {}
    Result(ServiceError error) : m_state(std::move(error)) {}
    Result(ShellError error) : m_state(ServiceError(std::move(error))) {}

    bool ok() const { return std::holds_alternative<T>(m_state); }
    explicit operator bool() const { return ok(); }
    const T& value() const { return std::get<T>(m_state); }
    T& value() { return std::get<T>(m_state); }
    const ServiceError& error() const { return std::get<ServiceError>(m_state); }

private:
    std::variant<T, ServiceError> m_state;
};

template <>
class [[nodiscard]] Result<void> {
public:
    Result() = default;
    Result(ServiceError error) : m_error(std::move(error)) {}
    Result(ShellError error) : m_error(ServiceError(std::move(error))) {}

    bool ok() const { return std::holds_alternative<std::monostate>(m_error); }
    explicit operator bool() const { return ok(); }
    const ServiceError& error() const { return std::get<ServiceError>(m_error); }

private:
    std::variant<std::monostate, ServiceError> m_error;
};

// The result of removing `name` by a line run with administrator rights: a cancelled password
// dialog becomes `ServiceError::removalDeclined(name)`; anything else stays as it is.
Result<void> administratorRemovalResult(Result<void> result, const QString& name);
// The same for an update of `name`: a cancelled dialog becomes `ServiceError::updateDeclined`.
Result<void> administratorUpdateResult(Result<void> result, const QString& name);

} // namespace qf
