#include "AboutDialog.h"
#include "CommandLine.h"
#include "FakePlatform.h"
#include "InstallationState.h"
#include "Language.h"
#include "MainWindow.h"
#include "Preferences.h"
#include "QuillforgeVersion.h"
#include "Services.h"
#include "TestMachine.h"
#include "TestSupport.h"

#include <QAbstractButton>
#include <QBuffer>
#include <QClipboard>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QLabel>
#include <QMap>
#include <QProcess>
#include <QSettings>
#include <QTemporaryDir>
#include <QXmlStreamReader>
#include <QtEndian>

#include <sys/time.h>

using namespace qf;

namespace {

const QString version = QString::fromLatin1(release::version);

QByteArray readFile(const QString& path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return file.readAll();
}

// A property list's top-level dictionary: each key with its string value, "true"/"false"
// for Booleans, the strings of an array joined by commas.
QMap<QString, QString> readPropertyList(const QString& path)
{
    QMap<QString, QString> entries;
    QXmlStreamReader xml(readFile(path));
    QString key;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        const auto name = xml.name();
        if (name == QLatin1String("plist") || name == QLatin1String("dict"))
            continue;
        if (name == QLatin1String("key")) {
            key = xml.readElementText();
        } else if (name == QLatin1String("true") || name == QLatin1String("false")) {
            entries.insert(key, name.toString());
        } else if (name == QLatin1String("array")) {
            QStringList strings;
            while (xml.readNextStartElement())
                strings << xml.readElementText();
            entries.insert(key, strings.join(QLatin1Char(',')));
        } else {
            entries.insert(key, xml.readElementText());
        }
    }
    EXPECT_FALSE(xml.hasError()) << path.toStdString() << ": " << xml.errorString().toStdString();
    return entries;
}

struct AppRun {
    int exitCode = -1;
    QString output;
    QString errors;
};

// `program` (the built application unless named), started with `arguments`, no display and
// `environment`'s variables (an empty value leaves one out).
AppRun runApp(const QStringList& arguments, const QMap<QString, QString>& environment = {},
              const QString& program = QStringLiteral(QF_APP_BINARY), int limitMs = 20000)
{
    QProcess process;
    QProcessEnvironment started = QProcessEnvironment::systemEnvironment();
    for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
        started.remove(QString::fromLatin1(name));
    for (auto it = environment.cbegin(); it != environment.cend(); ++it) {
        if (it.value().isEmpty())
            started.remove(it.key());
        else
            started.insert(it.key(), it.value());
    }
    process.setProcessEnvironment(started);
    process.start(program, arguments);
    EXPECT_TRUE(process.waitForFinished(limitMs));
    return {process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
            QString::fromUtf8(process.readAllStandardOutput()), QString::fromUtf8(process.readAllStandardError())};
}

const QMap<QString, QString> kOffscreen{{QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen")}};

} // namespace

TEST(Release, TheOneVersionReachesEveryPlaceItIsShown)
{
    ASSERT_FALSE(version.isEmpty());
    const QString generated = QStringLiteral(QF_GENERATED_DIR);

    // `quillforge --version`, and what a person copies from the about window for support.
    EXPECT_EQ(runApp({QStringLiteral("--version")}).output, QStringLiteral("Quillforge %1\n").arg(version));
    EXPECT_TRUE(versionDetails().startsWith(QStringLiteral("Quillforge %1 (Qt ").arg(version)));
    test::FakePlatform platform;
    platform.osCheck.details = QStringLiteral("Debian GNU/Linux 12 (bookworm)");
    AboutDialog about(platform);
    EXPECT_EQ(test::child<QLabel>(&about, QStringLiteral("aboutVersion"))->text(),
              QStringLiteral("Version %1").arg(version));
    EXPECT_TRUE(about.versionDetails().endsWith(QStringLiteral(", Debian GNU/Linux 12 (bookworm)")));

    // The bundle's Info.plist, the AppStream release, the manual pages and the package changelog.
    const auto plist = readPropertyList(generated + QStringLiteral("/Info.plist"));
    EXPECT_EQ(plist.value(QStringLiteral("CFBundleShortVersionString")), version);
    EXPECT_EQ(plist.value(QStringLiteral("CFBundleVersion")), version);
    const QString metainfo =
        QString::fromUtf8(readFile(generated + QStringLiteral("/app.quillforge.Quillforge.metainfo.xml")));
    EXPECT_TRUE(metainfo.contains(
        QStringLiteral("<release version=\"%1\" date=\"%2\">").arg(version, QString::fromLatin1(release::date))));
    for (const char* page : {"/quillforge.1", "/quillforge-probe.1"})
        EXPECT_TRUE(readFile(generated + QString::fromLatin1(page))
                        .contains(QByteArray("\"Quillforge " + QByteArray(release::version) + '"')));
    EXPECT_TRUE(readFile(generated + QStringLiteral("/changelog"))
                    .startsWith(QByteArray("quillforge (" + QByteArray(release::version) + ')')));

    // Nothing was left for a later substitution to fill in.
    for (const QString& file :
         {QStringLiteral("/Info.plist"), QStringLiteral("/app.quillforge.Quillforge.metainfo.xml")}) {
        const QByteArray text = readFile(generated + file);
        EXPECT_FALSE(text.contains('@') || text.contains("${")) << file.toStdString();
    }
}

// Quillforge is MIT-licensed: the licence file, the package's copyright file (which Debian
// wants to hold every licence with its text), the AppStream metainfo, the bundle and the about
// window all say so; the icons keep their own notice.
TEST(Release, TheLicenceIsMITWhereverItIsNamed)
{
    const QString source = QStringLiteral(QF_SOURCE_DIR);
    const QString licence = QString::fromUtf8(readFile(source + QStringLiteral("/LICENSE")));
    EXPECT_TRUE(licence.startsWith(QStringLiteral("MIT License\n\nCopyright (c) 2026 The Quillforge developers\n\n")))
        << licence.left(80).toStdString();
    const qsizetype permission = licence.indexOf(QStringLiteral("Permission is hereby granted"));
    ASSERT_GT(permission, 0);
    const QString text = licence.mid(permission);
    QString icons = QString::fromUtf8(readFile(source + QStringLiteral("/resources/icons/LICENSE")));
    icons.remove(QLatin1Char('\r'));
    EXPECT_TRUE(icons.contains(QStringLiteral("Copyright (c) 2023 Phosphor Icons")));
    EXPECT_EQ(icons.mid(icons.indexOf(QStringLiteral("Permission is hereby granted"))), text);

    // The copyright file's paragraphs: the Files paragraphs name the licence, one paragraph of
    // its own holds the text, blank lines as " .".
    QString copyright = QString::fromUtf8(readFile(source + QStringLiteral("/resources/linux/copyright")));
    ASSERT_TRUE(copyright.endsWith(QLatin1Char('\n')));
    copyright.chop(1);
    const QStringList paragraphs = copyright.split(QStringLiteral("\n\n"));
    ASSERT_EQ(paragraphs.size(), 4);
    EXPECT_EQ(paragraphs[1], QStringLiteral("Files: *\nCopyright: 2026 The Quillforge developers\nLicense: Expat"));
    EXPECT_EQ(paragraphs[2],
              QStringLiteral("Files: resources/icons/*\nCopyright: 2023 Phosphor Icons\nLicense: Expat"));
    QStringList lines = paragraphs[3].split(QLatin1Char('\n'));
    EXPECT_EQ(lines.takeFirst(), QStringLiteral("License: Expat"));
    for (QString& line : lines) {
        EXPECT_TRUE(line.startsWith(QLatin1Char(' ')) && line.trimmed() != QString()) << line.toStdString();
        line = line == QStringLiteral(" .") ? QString() : line.mid(1);
    }
    EXPECT_EQ(QString(lines.join(QLatin1Char('\n')) + QLatin1Char('\n')), text);

    const QString generated = QStringLiteral(QF_GENERATED_DIR);
    const QString metainfo =
        QString::fromUtf8(readFile(generated + QStringLiteral("/app.quillforge.Quillforge.metainfo.xml")));
    EXPECT_TRUE(metainfo.contains(QStringLiteral("<project_license>MIT</project_license>")));
    EXPECT_EQ(
        readPropertyList(generated + QStringLiteral("/Info.plist")).value(QStringLiteral("NSHumanReadableCopyright")),
        QStringLiteral("\u00a9 2026 The Quillforge developers. Released under the MIT licence."));

    test::FakePlatform platform;
    const AboutDialog about(platform);
    const QString credits = test::child<QLabel>(&about, QStringLiteral("aboutCredits"))->text();
    EXPECT_TRUE(credits.startsWith(QStringLiteral("Released under the MIT licence.")) &&
                credits.contains(QString::fromLatin1(qVersion())) && credits.contains(QStringLiteral("Phosphor")))
        << credits.toStdString();
}

TEST(Release, VersionAndHelpAnswerWithoutAWindowAndUnknownOptionsAreRefused)
{
    // No display is set: a launch that tried to open a window could not even start.
    const AppRun help = runApp({QStringLiteral("--help")});
    EXPECT_EQ(help.exitCode, 0);
    for (const char* option : {"--help", "--version"})
        EXPECT_TRUE(help.output.contains(QString::fromLatin1(option))) << help.output.toStdString();
    EXPECT_TRUE(help.output.contains(QStringLiteral("Claude Code, Gemini CLI or Codex")));

    const AppRun shortForm = runApp({QStringLiteral("-v")});
    EXPECT_EQ(shortForm.exitCode, 0);
    EXPECT_EQ(shortForm.output, QStringLiteral("Quillforge %1\n").arg(version));

    // Refused with where to look, with a display and without one (before Qt would need it),
    // also beside Qt's own options.
    for (const bool display : {true, false}) {
        const AppRun unknown = runApp({QStringLiteral("--frobnicate")},
                                      display ? kOffscreen : QMap<QString, QString>());
        EXPECT_EQ(unknown.exitCode, 1) << display;
        EXPECT_TRUE(unknown.errors.contains(QStringLiteral("frobnicate"))) << unknown.errors.toStdString();
        EXPECT_TRUE(unknown.errors.contains(QStringLiteral("quillforge --help")));
    }
    const AppRun stray =
        runApp({QStringLiteral("-platform"), QStringLiteral("offscreen"), QStringLiteral("notes.txt")});
    EXPECT_EQ(stray.exitCode, 1);
    EXPECT_TRUE(stray.errors.contains(QStringLiteral("notes.txt"))) << stray.errors.toStdString();
    const AppRun helpBesideQt = runApp({QStringLiteral("--style=Fusion"), QStringLiteral("-h")});
    EXPECT_EQ(helpBesideQt.exitCode, 0);
    EXPECT_TRUE(helpBesideQt.output.contains(QStringLiteral("--version")));
    EXPECT_FALSE(commandLineProblem({QStringLiteral("quillforge"), QStringLiteral("notes.txt")}).isEmpty());
    EXPECT_TRUE(commandLineProblem({QStringLiteral("quillforge")}).isEmpty());
}

TEST(Release, ALaunchClearsWhatAStoppedRunLeftBehind)
{
    // A home and a temporary folder of its own; an installation that was killed left its
    // staging folder and its download an hour ago.
    QTemporaryDir root;
    ASSERT_TRUE(root.isValid());
    const QString home = root.filePath(QStringLiteral("home"));
    const QString staging = home + QStringLiteral("/.local/.quillforge-staging-Ab12Cd");
    const QString download = root.filePath(QStringLiteral("tmp/quillforge-node-Ef34Gh"));
    test::writeFile(staging + QStringLiteral("/bin/node"), "node");
    test::writeFile(download + QStringLiteral("/node.tar.gz"), "archive");
    const QString settings = home + QStringLiteral("/.config/Quillforge/Quillforge.conf");
    test::writeFile(settings, "[General]\nhasCompletedOnboarding=false\n");
    QDir().mkpath(root.filePath(QStringLiteral("run")));
    QFile::setPermissions(root.filePath(QStringLiteral("run")),
                          QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
    const qint64 hourAgo = QDateTime::currentSecsSinceEpoch() - 3600;
    for (const QString& folder : {staging, download}) {
        const struct timeval times[2] = {{static_cast<time_t>(hourAgo), 0}, {static_cast<time_t>(hourAgo), 0}};
        ASSERT_EQ(::utimes(QFile::encodeName(folder).constData(), times), 0);
    }

    const AppRun app = runApp({},
                              {{QStringLiteral("HOME"), home},
                               {QStringLiteral("XDG_CONFIG_HOME"), home + QStringLiteral("/.config")},
                               {QStringLiteral("XDG_RUNTIME_DIR"), root.filePath(QStringLiteral("run"))},
                               {QStringLiteral("TMPDIR"), root.filePath(QStringLiteral("tmp"))},
                               {QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen")},
                               {QStringLiteral("QUILLFORGE_REPORT_FIRST_FRAME"), QStringLiteral("1")}},
                              QStringLiteral(QF_APP_BINARY), 30000);
    EXPECT_EQ(app.exitCode, 0) << app.output.toStdString();
    EXPECT_TRUE(app.output.contains(QStringLiteral("first-frame"))) << app.output.toStdString();
    EXPECT_FALSE(QFileInfo::exists(staging));
    EXPECT_FALSE(QFileInfo::exists(download));
    EXPECT_TRUE(QFileInfo(home + QStringLiteral("/.local")).isDir());
}

TEST(Release, TheMacBundleDescribesItselfCompletely)
{
    const auto plist = readPropertyList(QStringLiteral(QF_GENERATED_DIR "/Info.plist"));
    EXPECT_EQ(plist.value(QStringLiteral("CFBundleIdentifier")), QString::fromLatin1(release::applicationId));
    EXPECT_EQ(plist.value(QStringLiteral("CFBundleExecutable")), QStringLiteral("Quillforge"));
    EXPECT_TRUE(QFileInfo::exists(QStringLiteral(QF_ICON_DIR "/") + plist.value(QStringLiteral("CFBundleIconFile"))));
    // The system offers Quillforge in each language it speaks.
    QStringList languages{QStringLiteral("en")};
    for (QString language : language::available())
        languages << language.replace(QStringLiteral("pt_BR"), QStringLiteral("pt-BR"))
                         .replace(QStringLiteral("zh_CN"), QStringLiteral("zh-Hans"));
    EXPECT_EQ(plist.value(QStringLiteral("CFBundleLocalizations")), languages.join(QLatin1Char(',')));
    // Without this text macOS refuses the Apple events that open Terminal.
    const QString why = plist.value(QStringLiteral("NSAppleEventsUsageDescription"));
    EXPECT_TRUE(why.contains(QStringLiteral("Terminal")) && why.contains(QStringLiteral("System Events")))
        << why.toStdString();

    // The hardened runtime gets exactly one exception: sending Apple events.
    const auto entitlements =
        readPropertyList(QStringLiteral(QF_SOURCE_DIR "/resources/macos/Quillforge.entitlements"));
    EXPECT_EQ(entitlements.keys(), QStringList{QStringLiteral("com.apple.security.automation.apple-events")});
    EXPECT_EQ(entitlements.value(QStringLiteral("com.apple.security.automation.apple-events")), QStringLiteral("true"));
}

TEST(Release, TheIconsHaveEverySizeTheyClaim)
{
    const QString icons = QStringLiteral(QF_ICON_DIR);
    for (const int size : {16, 22, 24, 32, 48, 64, 128, 256, 512}) {
        const QImage png(QStringLiteral("%1/hicolor/%2x%2/apps/app.quillforge.Quillforge.png").arg(icons).arg(size));
        EXPECT_EQ(png.size(), QSize(size, size));
        EXPECT_TRUE(test::hasVisiblePixels(png));
    }

    // The .icns: a header with the whole length, then typed PNG images of Apple's sizes.
    const QByteArray icns = readFile(icons + QStringLiteral("/Quillforge.icns"));
    ASSERT_GT(icns.size(), 8);
    EXPECT_EQ(icns.left(4), QByteArray("icns"));
    EXPECT_EQ(qFromBigEndian<quint32>(icns.constData() + 4), quint32(icns.size()));
    const QMap<QByteArray, int> expected = {{"icp4", 16},  {"icp5", 32},  {"icp6", 64},   {"ic07", 128},
                                            {"ic08", 256}, {"ic09", 512}, {"ic10", 1024}, {"ic11", 32},
                                            {"ic12", 64},  {"ic13", 256}, {"ic14", 512}};
    QMap<QByteArray, int> found;
    for (qsizetype offset = 8; offset + 8 <= icns.size();) {
        const QByteArray type = icns.mid(offset, 4);
        const quint32 length = qFromBigEndian<quint32>(icns.constData() + offset + 4);
        ASSERT_GE(length, 8u);
        ASSERT_LE(offset + qsizetype(length), icns.size());
        const QImage image = QImage::fromData(icns.mid(offset + 8, length - 8), "PNG");
        found.insert(type, image.width());
        EXPECT_EQ(image.width(), image.height()) << type.toStdString();
        offset += length;
    }
    EXPECT_EQ(found, expected);

    // The desktop entry names the icon and the program the package installs.
    const QString entry =
        QString::fromUtf8(readFile(QStringLiteral(QF_SOURCE_DIR "/resources/linux/app.quillforge.Quillforge.desktop")));
    EXPECT_TRUE(entry.contains(QStringLiteral("\nExec=quillforge\n")));
    EXPECT_TRUE(entry.contains(QStringLiteral("\nIcon=app.quillforge.Quillforge\n")));
}

TEST(Release, TheDashboardOpensTheAboutWindowWhereTheSystemHasNoApplicationMenuAndComesToTheFront)
{
    test::clearPreferences();
    Preferences::setHasCompletedOnboarding(true);
    // The dashboard looks at the machine: a sandbox of its own, whose commands end with the test.
    test::TestMachine machine;
    test::FakePlatform& platform = machine.platform;
    InstallationState state;
    MainWindow window(state, machine.services);
    window.show();

    auto* about = test::child<QAbstractButton>(window.contentView(), QStringLiteral("aboutButton"));
    ASSERT_NE(about, nullptr);
    EXPECT_EQ(about->accessibleName(), QStringLiteral("About Quillforge"));
    about->click();
    about->click(); // one window, however often it is asked for
    ASSERT_NE(window.aboutDialog(), nullptr);
    EXPECT_EQ(window.findChildren<AboutDialog*>().size(), 1);
    EXPECT_TRUE(window.aboutDialog()->isVisible());
    EXPECT_TRUE(window.aboutDialog()->isModal() || window.aboutDialog()->windowModality() == Qt::WindowModal);

    test::child<QAbstractButton>(window.aboutDialog(), QStringLiteral("aboutCopyDetails"))->click();
    EXPECT_TRUE(QGuiApplication::clipboard()->text().startsWith(QStringLiteral("Quillforge %1").arg(version)));
    test::child<QAbstractButton>(window.aboutDialog(), QStringLiteral("aboutWebsite"))->click();
    EXPECT_EQ(platform.openedURLs.value(0), QUrl(QStringLiteral("https://quillforge.app")));
    test::child<QAbstractButton>(window.aboutDialog(), QStringLiteral("aboutClose"))->click();
    test::settle();
    EXPECT_EQ(window.aboutDialog(), nullptr);

    // A second launch brings a minimised window back.
    window.showMinimized();
    test::settle();
    window.bringToFront();
    EXPECT_FALSE(window.isMinimized());
    EXPECT_TRUE(window.isVisible());

    // A Mac keeps it in the application menu, so the dashboard shows no button for it.
    test::TestMachine macMachine;
    macMachine.platform.applicationMenu = true;
    InstallationState macState;
    MainWindow macWindow(macState, macMachine.services);
    EXPECT_EQ(macWindow.contentView()->findChild<QWidget*>(QStringLiteral("aboutButton")), nullptr);
}

TEST(Release, TheMacPackageStepsSignNotariseOnlyWithCredentialsAndMakeADiskImage)
{
    const auto dryRun = [](QMap<QString, QString> credentials) {
        for (const char* name : {"QUILLFORGE_SIGN_IDENTITY", "QUILLFORGE_NOTARY_PROFILE", "APPLE_ID", "APPLE_TEAM_ID",
                                 "APPLE_APP_PASSWORD"})
            credentials.insert(QString::fromLatin1(name), credentials.value(QString::fromLatin1(name)));
        const AppRun run = runApp(
            {QStringLiteral(QF_SOURCE_DIR "/scripts/package"), QStringLiteral("--dry-run"), QStringLiteral("--macos")},
            credentials, QStringLiteral("bash"));
        EXPECT_EQ(run.exitCode, 0) << run.errors.toStdString();
        return run.output;
    };
    // Without credentials: signed ad hoc with the hardened runtime, not notarised, and still a
    // disk image of this version.
    const QString plain = dryRun({});
    EXPECT_TRUE(plain.contains(QStringLiteral("--options runtime")) && plain.contains(QStringLiteral(" --sign - ")))
        << plain.toStdString();
    EXPECT_FALSE(plain.contains(QStringLiteral("notarytool")));
    EXPECT_TRUE(plain.contains(QStringLiteral("Quillforge-%1.dmg").arg(version)));

    // With a Developer ID and a notary profile: signed with it; the app and the image notarised
    // and stapled.
    const QString full =
        dryRun({{QStringLiteral("QUILLFORGE_SIGN_IDENTITY"), QStringLiteral("Developer ID Application: Quillforge")},
                {QStringLiteral("QUILLFORGE_NOTARY_PROFILE"), QStringLiteral("quillforge")}});
    EXPECT_TRUE(full.contains(QStringLiteral("--sign Developer ID Application: Quillforge "))) << full.toStdString();
    EXPECT_EQ(full.count(QStringLiteral("notarytool submit")), 2);
    EXPECT_EQ(full.count(QStringLiteral("stapler staple")), 2);

    // Credentials without a Developer ID cannot notarise: nothing is sent to Apple.
    EXPECT_FALSE(dryRun({{QStringLiteral("QUILLFORGE_NOTARY_PROFILE"), QStringLiteral("quillforge")}})
                     .contains(QStringLiteral("notarytool")));
}

// The catalogues' check, on one with each kind of fault: an unfinished text, a placeholder
// lost, a command name translated; and on one without.
TEST(Release, TheTranslationCheckFindsUnfinishedTextsLostPlaceholdersAndTranslatedNames)
{
    const auto check = [](const QByteArray& messages) {
        QTemporaryDir folder;
        const QString catalogue = folder.filePath(QStringLiteral("quillforge_de.ts"));
        test::writeFile(catalogue, "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n<!DOCTYPE TS>\n"
                                   "<TS version=\"2.1\" language=\"de\"><context><name>qf::HomeView</name>" +
                                       messages + "</context></TS>\n");
        return runApp(
            {QStringLiteral(QF_SOURCE_DIR "/scripts/check-translations"), QStringLiteral("--catalogue"), catalogue}, {},
            QStringLiteral("python3"));
    };
    const AppRun broken = check("<message><source>Install %1</source><translation>Installieren</translation></message>"
                                "<message><source>Run npm</source><translation>Paketmanager starten</translation>"
                                "</message><message><source>Back</source>"
                                "<translation type=\"unfinished\"></translation></message>");
    EXPECT_EQ(broken.exitCode, 1);
    EXPECT_TRUE(broken.output.contains(QStringLiteral("\"Install %1\": placeholders none instead of %1")))
        << broken.output.toStdString();
    EXPECT_TRUE(broken.output.contains(QStringLiteral("\"Run npm\": \"npm\" must stay as it is")));
    EXPECT_TRUE(broken.output.contains(QStringLiteral("\"Back\": unfinished")));

    const AppRun whole = check("<message><source>Install %1</source><translation>%1 installieren</translation>"
                               "</message>");
    EXPECT_EQ(whole.exitCode, 0) << whole.output.toStdString();
}
