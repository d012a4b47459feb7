#include "CommandLine.h"

#include "QuillforgeVersion.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QGuiApplication>

#include <algorithm>
#include <cstdio>
#include <iterator>

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

// The options Qt's application object takes for itself, with whether a value follows.
struct QtOption {
    const char* name;
    bool takesValue;
};
constexpr QtOption kQtOptions[] = {
    {"platform", true},
    {"platformpluginpath", true},
    {"platformtheme", true},
    {"plugin", true},
    {"qwindowgeometry", true},
    {"qwindowicon", true},
    {"qwindowtitle", true},
    {"session", true},
    {"display", true},
    {"geometry", true},
    {"name", true},
    {"title", true},
    {"style", true},
    {"stylesheet", true},
    {"reverse", false},
    {"widgetcount", false},
    {"nograb", false},
    {"dograb", false},
    {"sync", false},
    {"visual", true},
    {"qmljsdebugger", true},
};

// `arguments` without the options Qt's application object would take out of them itself
// ("-platform offscreen", "--style=Fusion").
QStringList withoutQtOptions(const QStringList& arguments)
{
    QStringList kept;
    for (qsizetype i = 0; i < arguments.size(); ++i) {
        const QString& argument = arguments.at(i);
        if (i == 0 || !argument.startsWith(QLatin1Char('-')) || argument == QLatin1String("--")) {
            kept << argument;
            continue;
        }
        QString name = argument.mid(argument.startsWith(QLatin1String("--")) ? 2 : 1);
        const qsizetype equals = name.indexOf(QLatin1Char('='));
        const bool valueAttached = equals >= 0;
        if (valueAttached)
            name.truncate(equals);
        const auto known = std::find_if(std::begin(kQtOptions), std::end(kQtOptions),
                                        [&name](const QtOption& option) { return name == QLatin1String(option.name); });
        if (known == std::end(kQtOptions) || (valueAttached && !known->takesValue)) {
            kept << argument;
            continue;
        }
        if (known->takesValue && !valueAttached)
            ++i; // its value
    }
    return kept;
}

QStringList argumentList(int argc, char* argv[])
{
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments << QString::fromLocal8Bit(argv[i]);
    return arguments;
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
    // Only Qt's own options (or none): the window opens.
    const QStringList arguments = withoutQtOptions(argumentList(argc, argv));
    if (arguments.size() <= 1)
        return std::nullopt;
    const QCoreApplication console(argc, argv);
    describeApplication();
    QCommandLineParser parser;
    describeOptions(parser);
    if (const QString problem = commandLineProblem(arguments); !problem.isEmpty()) {
        std::fprintf(stderr, "%s\n", qUtf8Printable(problem));
        return 1;
    }
    if (!parser.parse(arguments))
        return 1;
    // Qt's showHelp() and showVersion() end the process from inside; printing here lets the
    // caller return normally.
    if (parser.isSet(QStringLiteral("version"))) {
        std::printf("Quillforge %s\n", release::version);
        return 0;
    }
    if (parser.isSet(QStringLiteral("help")) || parser.isSet(QStringLiteral("help-all"))) {
        std::printf("%s", qUtf8Printable(parser.helpText()));
        return 0;
    }
    return std::nullopt;
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
