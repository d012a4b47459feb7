#include "CommandLine.h"

#include "QuillforgeVersion.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QGuiApplication>

#include <cstdio>
#include <cstring>

namespace qf {

namespace {

// The options shown by `--help`; the window takes none of its own.
void describeOptions(QCommandLineParser& parser)
{
    parser.setApplicationDescription(QCoreApplication::translate(
        "CommandLine", "Sets up Claude Code, Gemini CLI or Codex on this computer. Without options it opens its "
                       "window; a second launch brings the open window to the front."));
    parser.addHelpOption();
    parser.addVersionOption();
}

bool asksForAnswer(int argc, char* argv[])
{
    for (int i = 1; i < argc; ++i) {
        for (const char* option : {"--version", "-v", "--help", "-h", "-?", "--help-all"}) {
            if (std::strcmp(argv[i], option) == 0)
                return true;
        }
    }
    return false;
}

} // namespace

void describeApplication()
{
    QCoreApplication::setOrganizationName(QStringLiteral("Quillforge"));
    QCoreApplication::setOrganizationDomain(QStringLiteral("quillforge.app"));
    QCoreApplication::setApplicationName(QStringLiteral("Quillforge"));
    QCoreApplication::setApplicationVersion(QString::fromLatin1(release::version));
    QGuiApplication::setApplicationDisplayName(QStringLiteral("Quillforge"));
    QGuiApplication::setDesktopFileName(QString::fromLatin1(release::applicationId));
}

std::optional<int> answerCommandLine(int argc, char* argv[])
{
    if (!asksForAnswer(argc, argv))
        return std::nullopt;
    const QCoreApplication console(argc, argv);
    describeApplication();
    QCommandLineParser parser;
    describeOptions(parser);
    if (!parser.parse(QCoreApplication::arguments())) {
        std::fprintf(stderr, "%s\n", qUtf8Printable(commandLineProblem(QCoreApplication::arguments())));
        return 1;
    }
    // Qt's showHelp() and showVersion() end the process from inside; printing here lets the
    // caller return normally.
    if (parser.isSet(QStringLiteral("version"))) {
        std::printf("Quillforge %s\n", release::version);
        return 0;
    }
    std::printf("%s", qUtf8Printable(parser.helpText()));
    return 0;
}

QString commandLineProblem(const QStringList& arguments)
{
    QCommandLineParser parser;
    describeOptions(parser);
    const QString program = QStringLiteral("quillforge");
    const QString hint =
        QCoreApplication::translate("CommandLine", "Run \"%1 --help\" to see the options.").arg(program);
    if (!parser.parse(arguments))
        return QStringLiteral("%1: %2\n%3").arg(program, parser.errorText(), hint);
    if (!parser.positionalArguments().isEmpty()) {
        return QStringLiteral("%1: %2\n%3")
            .arg(program,
                 QCoreApplication::translate("CommandLine", "Unexpected argument \"%1\": Quillforge takes no files.")
                     .arg(parser.positionalArguments().constFirst()),
                 hint);
    }
    return {};
}

QString versionDetails()
{
    return QStringLiteral("Quillforge %1 (Qt %2)")
        .arg(QString::fromLatin1(release::version), QString::fromLatin1(qVersion()));
}

} // namespace qf
