#pragma once

#include "FlowScreen.h"
#include "RoundedCard.h"
#include "SetupModel.h"

namespace qf {

class InstallationController;
class InstallationState;
class Platform;

namespace ui {
class CopiedToastPresenter;
class IconTile;
class Label;
class LogView;
class SymbolView;
} // namespace ui

// One setup step: its status icon (an empty ring, a spinner, a check mark, an arrow or a
// cross), its title and details, and its status in the status's colour.
class SetupStepRow : public ui::RoundedCard {
    Q_OBJECT

public:
    explicit SetupStepRow(const SetupStep& step, QWidget* parent = nullptr);

    const SetupStep& step() const { return m_step; }
    void setStep(const SetupStep& step);

private:
    SetupStep m_step;
    ui::IconTile* m_icon;
    ui::Label* m_title;
    ui::Label* m_details;
    ui::Label* m_status;
};

// The steps of an installation, one row each, in list order.
class SetupProgressView : public QWidget {
    Q_OBJECT

public:
    explicit SetupProgressView(QWidget* parent = nullptr);

    void setSteps(const QList<SetupStep>& steps);
    QList<SetupStepRow*> rows() const;
};

// The installation: starts a run for the chosen tool as soon as it appears and shows the steps
// with their live status, the log behind "Details" (with "Copy Log", which copies the whole
// log even when only its newest part is shown), and at the end either "Installation Complete!"
// with "Continue" (and what the run left to know) or the error with "Try Again" and "Show Log File". The run itself
// belongs to the controller, so leaving the screen never stops it; "Cancel", which has the focus while the run goes
// on, does: the screen then says what of the run stays, with "Try Again".
class InstallationView : public FlowScreen {
    Q_OBJECT

public:
    InstallationView(InstallationState& state, InstallationController& controller, Platform& platform,
                     QWidget* parent = nullptr);

    bool showDetails() const { return m_showDetails; }
    SetupProgressView* progressView() const { return m_progress; }
    ui::LogView* logView() const { return m_log; }
    ui::CopiedToastPresenter* toastPresenter() const { return m_toast; }

protected:
    void appeared() override { start(); }
    QWidget* mainControl() const override;

private:
    void start();
    void render();
    // Brings the log up to the state's output: appends what is new, starts over when the
    // output was cleared or replaced.
    void syncLog();
    void setShowDetails(bool show);
    void copyLog();
    void copyText(const QString& text);
    // The current run's log file, when one could be made.
    QString logFilePath() const;

    InstallationState& m_state;
    InstallationController& m_controller;
    Platform& m_platform;
    bool m_showDetails = false;
    // How far the log on screen has followed the state's: its generation and length.
    int m_shownGeneration = 0;
    qint64 m_shownLength = 0;

    ToolTile* m_tile = nullptr;
    ui::Label* m_title = nullptr;
    ui::Label* m_subtitle = nullptr;
    SetupProgressView* m_progress;
    QWidget* m_logSection;
    ui::RowButton* m_detailsToggle;
    ui::SymbolView* m_detailsChevron;
    ui::LogView* m_log;
    ui::RoundedCard* m_errorCard;
    ui::Label* m_errorTitle;
    ui::Label* m_errorText;
    QVBoxLayout* m_caveatRow;
    QWidget* m_caveats = nullptr;
    // Where no file manager answered "Show Log File": the file's path, to copy.
    QVBoxLayout* m_logPathRow;
    QWidget* m_logPath = nullptr;
    ui::Button* m_back;
    ui::Button* m_showLogFile;
    ui::Button* m_cancel;
    ui::Button* m_main;
    ui::CopiedToastPresenter* m_toast;

    void showLogPath(const QString& path);
};

} // namespace qf
