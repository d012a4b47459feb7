#pragma once

#include <QString>
#include <QStringList>

namespace qf::test {

// The Mac that scripts/simulated-mac made around this test program: its state and what a user
// of it would have seen. Every test starts in a Mac of its own (ctest starts each in a new one)
// with the Command Line Tools, Homebrew on Apple Silicon and macOS 14.5.
class SimulatedMac {
public:
    enum class Homebrew { appleSilicon, intel, none };

    // Whether this program runs inside a simulated Mac with the Mac's backend chosen.
    static bool inside();

    void setDeveloperTools(bool installed) const;
    // Homebrew in /opt/homebrew (Apple Silicon) or /usr/local (Intel), or none; the processor
    // follows.
    void setHomebrew(Homebrew homebrew) const;
    static QString homebrewPrefix(Homebrew homebrew);
    void setMacOS(const QString& version) const;
    // How the simulated user answers: "automation" allowed|denied, "password" typed|cancelled,
    // "installer" waits|installs.
    void answer(const char* question, const char* value) const;

    // What the user saw, in order: "EVENT\tDETAILS" lines, or the details of one kind of event.
    QStringList events() const;
    QStringList events(const QString& kind) const;
    // Waits (a bounded while) until `count` events of `kind` have happened.
    bool waitForEvents(const QString& kind, int count = 1) const;
    // Forgets what happened so far.
    void clearEvents() const;
};

} // namespace qf::test
