#pragma once

#include <functional>

#include "FlowScreen.h"
#include "RoundedCard.h"
#include "SetupModel.h"

#include <QVBoxLayout>

#include <optional>

namespace qf {

class InstallationState;
class Platform;
class SystemDetector;

namespace ui {
class Expander;
class Label;
} // namespace ui

// One requirement and its state: a green check mark or an orange exclamation mark, the title
// and what was found, "Ready" or "Will install", and a help button that opens an explanation
// (with the remedy, when the requirement is not met).
class RequirementRow : public ui::RoundedCard {
    Q_OBJECT

public:
    // `note` follows the requirement's explanation (what the chosen tool needs of it).
    // `fix` (when given) is offered as a button while the requirement is not met.
    RequirementRow(const RequirementStatus& status, const SystemWording& wording, const QString& note = QString(),
                   std::function<void()> fix = {}, QWidget* parent = nullptr);

    // The word beside a requirement: "Ready"; "Will be installed for you" for what setup
    // installs itself; otherwise what is wrong.
    static QString statusWord(const RequirementStatus& status);

    bool showsHelp() const { return m_showHelp; }
    bool isMet() const { return m_isMet; }
    ui::Button* helpButton() const { return m_help; }
    // The button that fixes the requirement, when the row offers one.
    ui::Button* fixButton() const { return m_fix; }

private:
    void render(bool animated);

    bool m_showHelp = false;
    bool m_isMet;
    ui::Button* m_help;
    ui::Button* m_fix = nullptr;
    ui::Expander* m_helpArea;
};

// Whether the machine is ready for the chosen tool. On appearing it looks for the tool: found,
// it says so and offers to open it in the terminal; not found, it lists the requirements and
// offers the installation when nothing blocks it.
class SystemCheckView : public FlowScreen {
    Q_OBJECT

public:
    SystemCheckView(InstallationState& state, SystemDetector& detector, Platform& platform, QWidget* parent = nullptr);

    bool isChecking() const { return m_isChecking; }
    bool toolAlreadyInstalled() const { return m_toolAlreadyInstalled; }
    const std::optional<QString>& installedVersion() const { return m_installedVersion; }
    QList<RequirementRow*> requirementRows() const;

Q_SIGNALS:
    // The check has finished and its result is on screen.
    void checkFinished();

protected:
    void appeared() override { startCheck(); }
    // The main button once the check allows it; when requirements are not met, the help of the
    // first one that is not.
    QWidget* mainControl() const override;

private:
    void startCheck();
    // Starts the system's installer for the developer tools (which bring git); where it cannot
    // start, the screen shows the line to type instead.
    void startDeveloperToolsInstaller();
    void render();
    void rebuildRequirementRows();

    InstallationState& m_state;
    SystemDetector& m_detector;
    Platform& m_platform;
    bool m_isChecking = false;
    bool m_toolAlreadyInstalled = false;
    std::optional<QString> m_installedVersion;

    QWidget* m_checking;
    QWidget* m_installed;
    ui::Label* m_installedTitle;
    ui::Label* m_installedVersionLabel;
    QWidget* m_requirementList;
    QWidget* m_blocked;
    ui::Label* m_blockedText;
    // Where the developer tools' installer could not be started: the line to type instead.
    QWidget* m_installerFallback = nullptr;
    QVBoxLayout* m_installerSlot = nullptr;
    ui::Button* m_main;
};

} // namespace qf
