#pragma once

#include "CLITool.h"
#include "OperationRun.h"

#include <QDialog>

#include <functional>
#include <optional>

namespace qf {

class LogBook;
class ToolUpdater;

namespace ui {
class ActivityIndicator;
class Button;
class IconTile;
class Label;
class LogView;
class SymbolView;
} // namespace ui

// Confirms and follows the update of one AI tool, a window-modal sheet of the main window like
// the removal sheets. The states:
//   confirm   "Update <tool>?", the current and the new version, "Cancel" and "Update"
//   updating  the spinner, the live log behind "Details" with "Copy Log", and "Cancel", which
//             stops the update
//   complete  "Update Complete" with the version the tool now reports, and "Done" (which
//             reloads the dashboard)
//   failed    "Update Failed" (or "Update Stopped"), the reason (and whether the version before
//             still works), the log, "Cancel" and "Try Again"; when a newer Node.js is what is
//             missing, "Install Node.js and Update" instead, the installer's way to Node.js
// A cancelled password dialog goes back to the confirmation. Replacing the tool is never the
// default: while "Update", "Try Again" or "Install Node.js and Update" is offered, "Cancel"
// has the focus, so Return or Space on the opened sheet changes nothing. Escape acts as
// "Cancel" whenever "Cancel" closes the sheet; it never stops an update. The update itself is
// an OperationRun (the confirmation is its `ready`); each run's whole log also goes to a file
// of the log book.
class UpdateSheet : public QDialog {
    Q_OBJECT

public:
    using Phase = OperationRun::Phase;

    UpdateSheet(CLITool tool, std::optional<QString> currentVersion, QString newVersion, ToolUpdater& updater,
                const LogBook& logs, std::function<void()> onComplete, Qt::WindowFlags flags, QWidget* parent);
    ~UpdateSheet() override;

    CLITool tool() const { return m_tool; }
    Phase phase() const { return m_run->phase(); }
    std::optional<QString> errorMessage() const { return m_run->errorMessage(); }
    // Whether the failure is a Node.js too old for the new version.
    bool needsNewerNode() const;
    QString output() const { return m_output; }
    // Whether the log is open below "Details".
    bool showsLog() const { return m_showLog; }
    // The button of the state the sheet is in.
    ui::Button* mainButton() const;
    // The button that has the focus as the state begins: "Cancel" wherever it is offered
    // (beside a button that replaces the tool), "Done" once complete.
    ui::Button* defaultButton() const;

    void reject() override;

private:
    void start(bool installNodeFirst);
    void append(const QString& text);
    void render();

    CLITool m_tool;
    std::optional<QString> m_current;
    QString m_new;
    ToolUpdater& m_updater;
    OperationRun* m_run;
    std::function<void()> m_onComplete;
    // The version the tool reported once updated.
    QString m_verified;
    // The whole log of the newest run, for "Copy Log".
    QString m_output;
    bool m_showLog = false;

    ui::IconTile* m_icon;
    ui::ActivityIndicator* m_spinner;
    ui::SymbolView* m_symbol;
    ui::Label* m_title;
    ui::Label* m_description;
    QWidget* m_logSection;
    ui::Button* m_details;
    ui::LogView* m_log;
    QWidget* m_errorRow;
    ui::Label* m_error;
    ui::Button* m_cancel;
    ui::Button* m_update;
    ui::Button* m_retry;
    ui::Button* m_installNode;
    ui::Button* m_done;
};

} // namespace qf
