// quillforge-probe: the support tool. Runs the real services against the current HOME and
// prints, as plain text, what the dashboard and the system check would show on this machine:
// where the environment of commands comes from (the login shell read once, or a login shell
// per command) with its search path, the AI tools found and their versions, the supporting
// items, the requirement list of each tool, the shell profile and the terminal Quillforge
// would open, and the texts on this system that name the system or its tools.
//
// It only looks. Nothing is installed, removed, written or created; the commands it runs are
// the user's login shell (once, for the environment) and the detection commands of the
// services themselves (`which`, `--version`). The Node.js each tool needs is the catalogue's:
// the app also asks the registry what a tool's newest release declares.
#include "CLITool.h"
#include "Errors.h"
#include "Platform.h"
#include "Services.h"
#include "SetupModel.h"
#include "ShellExport.h"
#include "SupportTools.h"

#include "CommandLine.h"
#include "QuillforgeVersion.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QList>
#include <QString>
#include <QStringList>

#include <QCoro/QCoroTask>

#include <algorithm>
#include <cstdio>

namespace {

using namespace qf;

// Width of the label column of "label  value" lines.
constexpr int kLabelWidth = 18;
constexpr auto kIndent = "  ";

void printLine(const QString& text = QString())
{
    std::fputs(text.toUtf8().constData(), stdout);
    std::fputc('\n', stdout);
}

void printHeading(const QString& title)
{
    printLine();
    printLine(title);
    printLine(QString(title.size(), QLatin1Char('-')));
}

// "  label             value"; a value of several lines continues under the first one.
void printField(const QString& label, const QString& value, const QString& indent = QLatin1String(kIndent))
{
    const QStringList lines = value.split(QLatin1Char('\n'));
    const QString padding(kLabelWidth, QLatin1Char(' '));
    for (qsizetype i = 0; i < lines.size(); ++i) {
        const QString head = i == 0 ? label.leftJustified(kLabelWidth) : padding;
        printLine(indent + head + QLatin1Char(' ') + lines.at(i));
    }
}

// A small text table: columns as wide as their widest cell, two blanks between them. A cell
// of several lines takes several rows.
class Table {
public:
    explicit Table(QStringList header) : m_header(std::move(header)) {}

    void addRow(QStringList cells) { m_rows << std::move(cells); }

    void print(const QString& indent = QLatin1String(kIndent)) const
    {
        QList<qsizetype> widths(m_header.size(), 0);
        auto measure = [&widths](const QStringList& cells) {
            for (qsizetype c = 0; c < cells.size() && c < widths.size(); ++c)
                for (const QString& line : cells.at(c).split(QLatin1Char('\n')))
                    widths[c] = std::max(widths[c], line.size());
        };
        measure(m_header);
        for (const QStringList& row : m_rows)
            measure(row);

        printRow(m_header, widths, indent);
        QStringList rules;
        for (qsizetype width : widths)
            rules << QString(width, QLatin1Char('-'));
        printRow(rules, widths, indent);
        for (const QStringList& row : m_rows)
            printRow(row, widths, indent);
    }

private:
    static void printRow(const QStringList& cells, const QList<qsizetype>& widths, const QString& indent)
    {
        QList<QStringList> columns;
        qsizetype height = 1;
        for (qsizetype c = 0; c < widths.size(); ++c) {
            columns << (c < cells.size() ? cells.at(c).split(QLatin1Char('\n')) : QStringList{QString()});
            height = std::max(height, columns.last().size());
        }
        for (qsizetype r = 0; r < height; ++r) {
            QString text = indent;
            for (qsizetype c = 0; c < widths.size(); ++c) {
                const QString cell = r < columns.at(c).size() ? columns.at(c).at(r) : QString();
                const bool last = c + 1 == widths.size();
                text += last ? cell : cell.leftJustified(widths.at(c) + 2);
            }
            printLine(text);
        }
    }

    QStringList m_header;
    QList<QStringList> m_rows;
};

QString orDash(const std::optional<QString>& text) { return text && !text->isEmpty() ? *text : QStringLiteral("-"); }

QString describeFailure(const ServiceError& error)
{
    QString text = error.errorDescription().trimmed();
    return text.isEmpty() ? QStringLiteral("failed") : text;
}

// One directory a line; missing ones are marked.
QString directoryLines(const QString& path)
{
    QStringList directories;
    for (const QString& directory : path.split(QLatin1Char(':'))) {
        const QFileInfo info(directory);
        directories << (directory.isEmpty() ? QStringLiteral("(empty entry: the current folder)")
                        : info.isDir()      ? directory
                                            : directory + QStringLiteral("  (missing)"));
    }
    return directories.join(QLatin1Char('\n'));
}

QCoro::Task<void> printHeader(Services& services)
{
    printLine(QStringLiteral("Quillforge support probe"));
    printLine(QStringLiteral("========================"));
    printField(QStringLiteral("Version"), versionDetails());

    const RequirementStatus os = services.detector.checkOperatingSystem();
    printField(QStringLiteral("Operating system"),
               services.platform.name() + QStringLiteral(": ") + os.details +
                   (os.isMet ? QStringLiteral(" (supported)") : QStringLiteral(" (not supported)")));
    printField(QStringLiteral("Home folder"), QDir::homePath());

    // Where the environment of commands comes from: the login shell read once, or a login
    // shell for every command when it could not be read.
    ShellRunner& runner = services.runner;
    using Source = ShellRunner::EnvironmentState::Source;
    const ShellRunner::EnvironmentState environment = co_await runner.readEnvironment();
    const bool once = environment.source == Source::loginShellOnce;
    printField(QStringLiteral("Shell"), runner.configuration().shell + (once ? QStringLiteral(" -f -c <command>")
                                                                             : QStringLiteral(" -l -c <command>")));
    const QString took = QString::number(environment.readingMs, 'f', 0) + QStringLiteral(" ms");
    if (once) {
        printField(QStringLiteral("Environment"),
                   QStringLiteral("read once from ") + environment.loginShell + QStringLiteral(" in ") + took);
        printField(QStringLiteral("Login PATH"), directoryLines(environment.path));
    } else if (environment.loginShell.isEmpty()) {
        printField(QStringLiteral("Environment"),
                   QStringLiteral("a login shell for every command (") + environment.reason + QLatin1Char(')'));
    } else {
        printField(QStringLiteral("Environment"), QStringLiteral("a login shell for every command: ") +
                                                      environment.reason + QStringLiteral(" (after ") + took +
                                                      QLatin1Char(')'));
    }

    // The search path every command gets.
    printField(QStringLiteral("Command PATH"),
               directoryLines(runner.commandEnvironment().value(QStringLiteral("PATH"))));
}

QCoro::Task<void> printAiTools(Services& services)
{
    printHeading(QStringLiteral("AI tools"));
    Table table({QStringLiteral("Tool"), QStringLiteral("Command"), QStringLiteral("Status"), QStringLiteral("which"),
                 QStringLiteral("Version (--version)")});
    for (const CLITool& tool : CLITool::allCases()) {
        const QString command = tool.commandName();
        const Result<QString> found = co_await services.runner.run(QStringLiteral("which ") + command);

        QString status;
        QString location;
        if (found) {
            status = QStringLiteral("installed");
            location = found.value();
        } else if (const ShellError* shell = found.error().shellError();
                   shell && shell->kind() == ShellError::commandFailed) {
            status = QStringLiteral("not installed");
            location = shell->output().isEmpty() ? QStringLiteral("-") : shell->output();
        } else {
            status = QStringLiteral("unknown");
            location = describeFailure(found.error());
        }

        const std::optional<QString> version = co_await services.detector.getToolVersion(tool);
        table.addRow({tool.displayName(), command, status, location, orDash(version)});
    }
    table.print();
}

QCoro::Task<void> printSupportingItems(Services& services)
{
    printHeading(QStringLiteral("Supporting items"));
    const QList<SystemTool> items = co_await services.supportTools.detectAll();

    Table table({QStringLiteral("#"), QStringLiteral("Item"), QStringLiteral("Status"), QStringLiteral("Version"),
                 QStringLiteral("Optional")});
    for (const SystemTool& item : items) {
        table.addRow({item.stepNumber ? QString::number(*item.stepNumber) : QStringLiteral("-"), item.name,
                      item.isInstalled ? QStringLiteral("installed") : QStringLiteral("missing"), orDash(item.version),
                      item.isOptional ? QStringLiteral("yes") : QStringLiteral("no")});
    }
    table.print();

    printLine();
    printLine(QStringLiteral("  How each item is removed:"));
    for (const SystemTool& item : items) {
        QString removal;
        if (item.uninstallCommand)
            removal = QStringLiteral("command: ") + *item.uninstallCommand;
        else if (item.uninstallNote)
            removal = QStringLiteral("note:    ") + *item.uninstallNote;
        else
            removal = QStringLiteral("-");
        printField(item.name, removal);
    }
}

QCoro::Task<void> printRequirements(Services& services)
{
    printHeading(QStringLiteral("Requirements"));

    const NodeCheck node = co_await services.detector.checkNodeJS();
    QString nodeText = QStringLiteral("not installed");
    if (node.isInstalled) {
        const QString verdict = node.meetsRequirement ? QStringLiteral(" (new enough: %1 or later)")
                                                      : QStringLiteral(" (too old: %1 or later needed)");
        nodeText = node.version.value_or(QString()) + verdict.arg(SystemDetector::minimumNodeMajorVersion);
    }
    printField(QStringLiteral("Node.js"), nodeText);
    const std::optional<qint64> space = services.detector.availableDiskSpaceMB();
    printField(QStringLiteral("Free disk space"),
               space ? QString::number(*space) + QStringLiteral(" MB on the volume of the home folder")
                     : QStringLiteral("could not be read"));

    for (const CLITool& tool : CLITool::allCases()) {
        printLine();
        printLine(QLatin1String(kIndent) + tool.displayName());
        const QList<RequirementStatus> requirements = co_await services.detector.checkAllRequirements(tool);

        Table table({QStringLiteral("Requirement"), QStringLiteral("Status"), QStringLiteral("Details")});
        bool canProceed = true;
        bool nodeWillBeInstalled = false;
        for (const RequirementStatus& status : requirements) {
            table.addRow({status.requirement.title(services.platform.wording()),
                          status.isMet ? QStringLiteral("met") : QStringLiteral("not met"), status.details});
            if (status.isMet)
                continue;
            // A missing or old Node.js never blocks: the installation installs it.
            if (status.requirement == SystemRequirement::nodeJS)
                nodeWillBeInstalled = true;
            else
                canProceed = false;
        }
        const QString nested = QLatin1String(kIndent) + QLatin1String(kIndent);
        table.print(nested);
        printField(QStringLiteral("Installation"),
                   !canProceed           ? QStringLiteral("blocked (a requirement above is not met)")
                   : nodeWillBeInstalled ? QStringLiteral("could proceed (Node.js would be installed first)")
                                         : QStringLiteral("could proceed"),
                   nested);
    }
}

// How an installation would go on this machine: where Node.js would come from, where npm
// would put a tool, and whether the user's terminal finds what lands in ~/.local/bin.
QCoro::Task<void> printInstallRoutes(Services& services)
{
    printHeading(QStringLiteral("Installation routes"));
    const Result<QString> brew = co_await services.runner.run(QStringLiteral("which brew"));
    QString route;
    if (brew) {
        route = QStringLiteral("Homebrew (") + brew.value() + QStringLiteral("): brew install node");
    } else if (const std::optional<NodeReleaseTarget> target = services.platform.nodeReleaseTarget()) {
        route = QStringLiteral("newest LTS release for ") + target->platform + QStringLiteral(" from ") +
                QLatin1String(kNodeDistribution) + QStringLiteral(" (checked against SHASUMS256.txt) into ~/.local");
    } else {
        route = QStringLiteral("none: no Node.js release for this processor");
    }
    printField(QStringLiteral("Node.js route"), route);

    const Result<QString> prefix = co_await services.runner.run(QStringLiteral("npm prefix -g"));
    QString npm;
    if (!prefix || prefix.value().isEmpty())
        npm = QStringLiteral("no npm on the search path yet (it comes with Node.js)");
    else if (ToolInstaller::isWritableNpmPrefix(prefix.value()))
        npm = prefix.value() + QStringLiteral(" (npm's global folder, writable)");
    else
        npm = QDir::homePath() + QStringLiteral("/.local (npm's global folder ") + prefix.value() +
              QStringLiteral(" is not writable)");
    printField(QStringLiteral("npm prefix"), npm);

    const QString profile = services.detector.shellProfilePath();
    QFile file(profile);
    const bool present = file.open(QIODevice::ReadOnly) && file.readAll().contains(kSearchPathMark);
    printField(QStringLiteral("PATH block"),
               (present ? QStringLiteral("present in ") : QStringLiteral("not in ")) + profile);
    const bool searched =
        co_await services.searchPath.newTerminalSearches(QDir::homePath() + QStringLiteral("/.local/bin"));
    printField(QStringLiteral("New terminal"), searched ? QStringLiteral("its shell searches ~/.local/bin")
                                                        : QStringLiteral("its shell does not search ~/.local/bin"));
}

void printProfileAndTerminal(Services& services)
{
    printHeading(QStringLiteral("Shell profile and terminal"));
    const QString profile = services.detector.shellProfilePath();
    const QFileInfo info(profile);
    QString state;
    if (info.isSymLink())
        state = QStringLiteral(" (symbolic link to ") + info.symLinkTarget() +
                (info.exists() ? QStringLiteral(")") : QStringLiteral(", which does not exist)"));
    else if (info.exists())
        state = QStringLiteral(" (exists)");
    else
        state = QStringLiteral(" (does not exist)");
    printField(QStringLiteral("Shell profile"), profile + state);
    // The account's shell, which new terminals start; SHELL only when it says otherwise (it
    // goes stale after chsh, and an app started by the desktop may have none).
    const QString shell = services.platform.loginShell();
    const QString named = qEnvironmentVariable("SHELL");
    printField(QStringLiteral("Login shell"),
               named == shell ? shell
                              : shell + QStringLiteral(" (SHELL: ") +
                                    (named.isEmpty() ? QStringLiteral("not set") : named) + QLatin1Char(')'));
    printField(QStringLiteral("Terminal"), services.platform.terminalDescription());
}

// Every text of this system that names the system, its tools or its file manager, as the
// screens, logs and errors would show it.
void printSystemTexts(const Services& services)
{
    printHeading(QStringLiteral("Texts that name this system"));
    const SystemWording& wording = services.platform.wording();
    for (const SystemRequirement requirement : SystemRequirement::allCases()) {
        printField(requirement.title(wording),
                   requirement.helpText(wording) + QLatin1Char('\n') + requirement.fixSuggestion(wording));
    }
    printField(QStringLiteral("Account step"), wording.toolInstallStep);
    printField(QStringLiteral("Git missing (log)"), wording.gitMissingLog.trimmed());
    printField(QStringLiteral("Git missing"), errorDescription(InstallationError::gitNotFound, wording));
    for (const SystemTool& item : systemToolCatalogue(services.platform)) {
        printField(item.name, item.description + QLatin1Char('\n') +
                                  item.uninstallNote.value_or(item.uninstallCommand.value_or(QString())));
    }
}

QCoro::Task<void> probe(Services& services)
{
    co_await printHeader(services);
    std::fflush(stdout);
    co_await printAiTools(services);
    std::fflush(stdout);
    co_await printSupportingItems(services);
    std::fflush(stdout);
    co_await printRequirements(services);
    std::fflush(stdout);
    co_await printInstallRoutes(services);
    printProfileAndTerminal(services);
    printSystemTexts(services);
    std::fflush(stdout);
}

} // namespace

int main(int argc, char* argv[])
{
    QCoreApplication app(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("quillforge-probe"));
    for (const QString& argument : QCoreApplication::arguments().mid(1)) {
        if (argument == QStringLiteral("--version") || argument == QStringLiteral("-v")) {
            std::printf("quillforge-probe %s\n", release::version);
            return 0;
        }
        std::printf("Usage: quillforge-probe\nPrints what Quillforge finds on this computer and changes nothing.\n");
        return argument == QStringLiteral("--help") || argument == QStringLiteral("-h") ? 0 : 1;
    }

    const std::unique_ptr<Platform> platform = createNativePlatform();
    Services services(*platform);
    // The registry is not asked (that would remember its answer): the Node.js minimums are the
    // catalogue's.
    services.detector.setPublishedRequirement({});
    // A command-line tool with nothing else to do meanwhile: waiting here is fine.
    QCoro::waitFor(probe(services));
    return 0;
}
