#pragma once

#include <QString>

namespace qf {

// The one thing Quillforge remembers between launches: whether the introduction was
// completed. Stored in the platform's native preferences (the user-defaults domain on macOS).
class Preferences {
public:
    static inline const QString hasCompletedOnboardingKey = QStringLiteral("hasCompletedOnboarding");

    // Absent means false.
    static bool hasCompletedOnboarding();
    // Written to disk at once, not at exit.
    static void setHasCompletedOnboarding(bool value);

    // Points the preferences at an INI file of their own (tests never touch the real ones).
    // An empty path returns to the native store.
    static void useFile(const QString& iniPath);
};

} // namespace qf
