#include "ToolVersion.h"

#include <gtest/gtest.h>

using namespace qf;

namespace {

QString read(const QString& output)
{
    const std::optional<ToolVersion> version = readToolVersion(output);
    return version ? version->text() : QStringLiteral("<none>");
}

} // namespace

TEST(ToolVersion, ReadsWhatRealToolsPrint)
{
    EXPECT_EQ(read(QStringLiteral("2.1.330 (Claude Code)\n")), QStringLiteral("2.1.330"));
    EXPECT_EQ(read(QStringLiteral("codex-cli 0.169.0")), QStringLiteral("0.169.0"));
    EXPECT_EQ(read(QStringLiteral("0.61.0")), QStringLiteral("0.61.0"));
    EXPECT_EQ(read(QStringLiteral("v20.10.0\n")), QStringLiteral("20.10.0"));
    EXPECT_EQ(read(QStringLiteral("0.62.0-preview.1")), QStringLiteral("0.62.0-preview.1"));
    EXPECT_EQ(read(QStringLiteral("0.61.0-nightly.20260909.ged2ac40df")),
              QStringLiteral("0.61.0-nightly.20260909.ged2ac40df"));
    EXPECT_EQ(read(QStringLiteral("1.4.2+build.7")), QStringLiteral("1.4.2"));
    EXPECT_EQ(parseToolVersion(QStringLiteral("0.62.0-preview.1")), QVersionNumber(0, 62, 0));
}

TEST(ToolVersion, NoiseAroundTheVersionIsNotTakenForIt)
{
    // Node's deprecation warning, a notice naming another version, colour codes, Windows line
    // ends: the version is the line that is a version.
    EXPECT_EQ(read(QStringLiteral("(node:48213) [DEP0040] DeprecationWarning: The `punycode` module is deprecated.\n"
                                  "(Use `node --trace-deprecation ...` to show where the warning was created)\n"
                                  "0.61.0\n")),
              QStringLiteral("0.61.0"));
    EXPECT_EQ(read(QStringLiteral("Warning: Node.js 18.19.0 is no longer supported.\ncodex-cli 0.169.0\n")),
              QStringLiteral("0.169.0"));
    EXPECT_EQ(read(QStringLiteral("2.1.330 (Claude Code)\nUpdate available: 2.1.332, run claude update\n")),
              QStringLiteral("2.1.330"));
    EXPECT_EQ(read(QStringLiteral("\x1b[32m0.61.0\x1b[0m\r\n")), QStringLiteral("0.61.0"));
    // Without a line of its own, the last version mentioned counts.
    EXPECT_EQ(read(QStringLiteral("Codex CLI version 0.169.0 (research preview)")), QStringLiteral("0.169.0"));
    EXPECT_EQ(read(QStringLiteral("the version is 0.61.0.")), QStringLiteral("0.61.0"));

    for (const char* unreadable : {"", "zsh: command not found: gemini", "(node:1234) Warning: x86_64 build 20",
                                   "version 7", "error: unknown option '--version'", "1.2.3abc"})
        EXPECT_FALSE(readToolVersion(QString::fromUtf8(unreadable))) << unreadable;
}

TEST(ToolVersion, OnlyANewerPublishedVersionIsAnUpdate)
{
    EXPECT_TRUE(isNewerVersion(QStringLiteral("2.1.332"), QStringLiteral("2.1.330 (Claude Code)")));
    EXPECT_TRUE(isNewerVersion(QStringLiteral("0.170.0"), QStringLiteral("codex-cli 0.169.0")));
    EXPECT_TRUE(isNewerVersion(QStringLiteral("1.10.0"), QStringLiteral("1.9.9"))); // numbers, not text
    EXPECT_FALSE(isNewerVersion(QStringLiteral("2.1.330"), QStringLiteral("2.1.330 (Claude Code)")));
    EXPECT_FALSE(isNewerVersion(QStringLiteral("1.2"), QStringLiteral("1.2.0")));
    EXPECT_FALSE(isNewerVersion(QStringLiteral("0.61.0"), QStringLiteral("0.62.0")));
    // Pre-releases: before their own release, after the release before.
    EXPECT_TRUE(isNewerVersion(QStringLiteral("0.62.0"), QStringLiteral("0.62.0-preview.1")));
    EXPECT_FALSE(isNewerVersion(QStringLiteral("0.61.0"), QStringLiteral("0.62.0-preview.1")));
    EXPECT_TRUE(isNewerVersion(QStringLiteral("0.62.0-preview.10"), QStringLiteral("0.62.0-preview.2")));
    EXPECT_TRUE(isNewerVersion(QStringLiteral("0.62.0-rc.1"), QStringLiteral("0.62.0-preview.3")));
    EXPECT_TRUE(isNewerVersion(QStringLiteral("0.62.0-preview.1"), QStringLiteral("0.62.0-preview")));
    // What cannot be read is never offered.
    EXPECT_FALSE(isNewerVersion(QStringLiteral("2.1.332"), QStringLiteral("command not found")));
    EXPECT_FALSE(isNewerVersion(QString(), QStringLiteral("2.1.330")));
}

TEST(ToolVersion, NodeRequirementOfAPackage)
{
    // As the three packages declare it, and the other shapes npm allows.
    EXPECT_EQ(minimumNodeMajor(QStringLiteral(">=22.0.0")), 22);
    EXPECT_EQ(minimumNodeMajor(QStringLiteral(">=20")), 20);
    EXPECT_EQ(minimumNodeMajor(QStringLiteral(">= 16")), 16);
    EXPECT_EQ(minimumNodeMajor(QStringLiteral("^20.17.0 || >=22.9.0")), 20);
    EXPECT_EQ(minimumNodeMajor(QStringLiteral(">=18.17.0 <23")), 18);
    EXPECT_EQ(minimumNodeMajor(QStringLiteral("20.x")), 20);
    EXPECT_EQ(minimumNodeMajor(QStringLiteral("18 - 22")), 18);
    for (const char* none : {"", "*", "<22", "x", ">=20 || *"})
        EXPECT_EQ(minimumNodeMajor(QString::fromUtf8(none)), 0) << none;
}
