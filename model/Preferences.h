#pragma once

#include "CLITool.h"

#include <QDateTime>
#include <QString>

#include <optional>

namespace qf {

// What the newest check of the registry found for one AI tool, and when it was made.
struct RememberedUpdateCheck {
    QDateTime checkedAt; // UTC
    QString latestVersion;
    // The oldest major version of Node.js that version runs on; 0 when it names none.
    int requiredNodeMajor = 0;

    friend bool operator==(const RememberedUpdateCheck&, const RememberedUpdateCheck&) = default;
};

// What Quillforge remembers between launches: whether the introduction was completed, and
// per AI tool the newest check for a newer version. Stored in the platform's native
// preferences (the user-defaults domain on macOS).
class Preferences {
public:
    static inline const QString hasCompletedOnboardingKey = QStringLiteral("hasCompletedOnboarding");

    // Absent means false.
    static bool hasCompletedOnboarding();
    // Written to disk at once, not at exit.
    static void setHasCompletedOnboarding(bool value);

    // The newest successful check for `tool`; nothing when there was none (or it was
    // forgotten, or what is stored cannot be read).
    static std::optional<RememberedUpdateCheck> updateCheck(CLITool tool);
    // Written to disk at once.
    static void setUpdateCheck(CLITool tool, const RememberedUpdateCheck& check);
    static void forgetUpdateCheck(CLITool tool);

    // Points the preferences at an INI file of their own (tests never touch the real ones).
    // An empty path returns to the native store.
    static void useFile(const QString& iniPath);
};

} // namespace qf
