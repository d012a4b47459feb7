#include "SimulatedMac.h"

#include "TestSupport.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTest>

#include <gtest/gtest.h>

namespace qf::test {

namespace {

const QString kState = QStringLiteral("/var/simulated-mac");
const QString kDeveloperTools = QStringLiteral("/Library/Developer/CommandLineTools");

} // namespace

bool SimulatedMac::inside()
{
    return qEnvironmentVariable("QUILLFORGE_PLATFORM") == QLatin1String("macos") &&
           QFileInfo(kState + QStringLiteral("/events")).exists();
}

void SimulatedMac::setDeveloperTools(bool installed) const
{
    if (installed)
        QDir().mkpath(kDeveloperTools + QStringLiteral("/usr/bin"));
    else
        QDir(kDeveloperTools).removeRecursively();
}

QString SimulatedMac::homebrewPrefix(Homebrew homebrew)
{
    switch (homebrew) {
    case Homebrew::appleSilicon: return QStringLiteral("/opt/homebrew");
    case Homebrew::intel: return QStringLiteral("/usr/local");
    case Homebrew::none: break;
    }
    return {};
}

void SimulatedMac::setHomebrew(Homebrew homebrew) const
{
    for (const Homebrew other : {Homebrew::appleSilicon, Homebrew::intel}) {
        const QString prefix = homebrewPrefix(other);
        QFile::remove(prefix + QStringLiteral("/bin/brew"));
        QDir(prefix + QStringLiteral("/Cellar")).removeRecursively();
    }
    answer("arch", homebrew == Homebrew::intel ? "x86_64" : "arm64");
    if (homebrew == Homebrew::none)
        return;
    const QString brew = homebrewPrefix(homebrew) + QStringLiteral("/bin/brew");
    QDir().mkpath(QFileInfo(brew).absolutePath());
    ASSERT_TRUE(QFile::copy(QStringLiteral(QF_FIXTURES_DIR "/mac/brew"), brew));
    QFile::setPermissions(brew, QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner |
                                    QFileDevice::ReadOther | QFileDevice::ExeOther);
}

void SimulatedMac::setMacOS(const QString& version) const
{
    writeFile(QStringLiteral("/System/Library/CoreServices/SystemVersion.plist"),
              QStringLiteral("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\">\n<dict>\n"
                             "\t<key>ProductName</key>\n\t<string>macOS</string>\n"
                             "\t<key>ProductVersion</key>\n\t<string>%1</string>\n</dict>\n</plist>\n")
                  .arg(version)
                  .toUtf8());
}

void SimulatedMac::answer(const char* question, const char* value) const
{
    writeFile(kState + QLatin1Char('/') + QLatin1String(question), QByteArray(value) + '\n');
}

QStringList SimulatedMac::events() const
{
    QFile file(kState + QStringLiteral("/events"));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
}

QStringList SimulatedMac::events(const QString& kind) const
{
    QStringList details;
    const QString prefix = kind + QLatin1Char('\t');
    for (const QString& line : events()) {
        if (line.startsWith(prefix))
            details << line.mid(prefix.size());
    }
    return details;
}

bool SimulatedMac::waitForEvents(const QString& kind, int count) const
{
    return QTest::qWaitFor([&] { return events(kind).size() >= count; }, 10000);
}

void SimulatedMac::clearEvents() const { writeFile(kState + QStringLiteral("/events"), {}); }

} // namespace qf::test
