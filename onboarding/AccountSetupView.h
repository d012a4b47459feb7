#pragma once

#include "FlowScreen.h"

namespace qf {

class InstallationState;
class Platform;

// One numbered step of getting an account: the number in a tinted circle, a line down to the
// next step's circle (except after the last), a title and a description that wraps.
class AccountSetupStepRow : public QWidget {
    Q_OBJECT

public:
    AccountSetupStepRow(int stepNumber, const QString& title, const QString& description, bool isLast,
                        const QColor& accentColor, QWidget* parent = nullptr);

    int stepNumber() const { return m_stepNumber; }
    bool isLast() const { return m_isLast; }
    // The line to the next step, or null for the last step.
    QWidget* connector() const { return m_connector; }

private:
    int m_stepNumber;
    bool m_isLast;
    QWidget* m_connector = nullptr;
};

// What account the chosen tool needs and how to get one, before anything is installed: the
// tool's logo, the numbered steps (which rise into place one after another when the screen
// appears) and the price. "Create Account" opens the sign-up page; "I Have an Account" moves
// on to the system check.
class AccountSetupView : public FlowScreen {
    Q_OBJECT

public:
    AccountSetupView(InstallationState& state, Platform& platform, QWidget* parent = nullptr);

    // Becomes true once, when the screen is first shown.
    bool animateSteps() const { return m_animateSteps; }
    const QList<AccountSetupStepRow*>& stepRows() const { return m_rows; }

    static constexpr int stepDurationMs = 400;
    static constexpr int stepDelayMs = 100;

protected:
    void appeared() override;

private:
    void buildContent(CLITool tool, Platform& platform, QVBoxLayout* column);

    InstallationState& m_state;
    bool m_animateSteps = false;
    QList<AccountSetupStepRow*> m_rows;
};

} // namespace qf
