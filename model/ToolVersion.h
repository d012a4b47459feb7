#pragma once

#include <QString>
#include <QVersionNumber>

#include <optional>

namespace qf {

// A version as an AI tool or the npm registry states it: the numbers ("0.62.0") and, for a
// pre-release, what follows the dash ("preview.1", "nightly.20260909.ged2ac40df").
//
// Versions compare as npm compares them: by their numbers first (trailing zeros do not count:
// 1.2 equals 1.2.0), and with equal numbers a pre-release comes before its release, so
// 0.62.0-preview.1 < 0.62.0 < 0.62.1-preview.1. Two pre-releases of the same numbers compare
// part by part: numeric parts as numbers, others as text, a numeric part before a text one,
// and fewer parts before more. So a user on a preview of the next version is offered nothing
// until that version's release (or a newer one) is published as "latest"; a user on a preview
// of the published version is offered its release.
struct ToolVersion {
    QVersionNumber number;
    QString preRelease;

    // "0.62.0-preview.1", "2.1.330": the numbers as stated, and the pre-release when there is one.
    QString text() const;
    bool isPreRelease() const { return !preRelease.isEmpty(); }

    // Negative, zero or positive as `a` is older than, the same as or newer than `b`.
    static int compare(const ToolVersion& a, const ToolVersion& b);
    friend bool operator<(const ToolVersion& a, const ToolVersion& b) { return compare(a, b) < 0; }
    friend bool operator==(const ToolVersion& a, const ToolVersion& b) { return compare(a, b) == 0; }
};

// The version in what a tool's `--version` (or `npm view PACKAGE version`) printed, as real
// tools print it: "2.1.330 (Claude Code)", "codex-cli 0.169.0", "0.61.0", "v20.10.0",
// "0.62.0-preview.1". Colour codes and carriage returns are ignored. A line that is only a
// version, optionally after one word (the program's name) and before a remark in parentheses,
// wins over versions inside other lines, so a warning printed before or after ("Node.js
// 18.19.0 is deprecated") is not taken for it; without such a line, the last version in the
// output counts. A version has at least two numbers. Nothing when there is none.
std::optional<ToolVersion> readToolVersion(const QString& output);

// The numbers of the version in `output` (see readToolVersion), without any pre-release.
std::optional<QVersionNumber> parseToolVersion(const QString& output);

// Whether `published` names a newer version than `installed` (see ToolVersion for the order).
// False when either does not hold a version: what cannot be read is never offered.
bool isNewerVersion(const QString& published, const QString& installed);

// The oldest major version of Node.js that a package's "engines.node" range lets in: ">=20"
// and ">=20.0.0" give 20, "^20.17.0 || >=22.9.0" gives 20, "18.x" 18. Zero when the range sets
// no lower bound or cannot be read ("", "*", "<22").
int minimumNodeMajor(const QString& enginesRange);

} // namespace qf
