#pragma once

#include "CLITool.h"
#include "Errors.h"

#include <QDialog>

#include <functional>
#include <memory>
#include <optional>

namespace qf {

class LogBook;
class LogFile;
class ToolUpdater;
struct UpdateOutcome;

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
//   updating  the spinner and the live log with "Copy Log"; nothing to press, the update
//             runs to its end
//   complete  "Update Complete" with the version the tool now reports, and "Done" (which
//             reloads the dashboard)
//   failed    "Update Failed", the reason (and whether the version before still works), the
//             log, "Cancel" and "Try Again"; when a newer Node.js is what is missing, "Install
//             Node.js and Update" instead, the installer's way to Node.js
// A cancelled password dialog goes back to the confirmation. Escape acts as "Cancel" whenever
// "Cancel" is shown. Each run's whole log also goes to a file of the log book.
class UpdateSheet : public QDialog {
    Q_OBJECT

public:
    enum class Phase { confirm, updating, complete, failed };

    UpdateSheet(CLITool tool, std::optional<QString> currentVersion, QString newVersion, ToolUpdater& updater,
                const LogBook& logs, std::function<void()> onComplete, Qt::WindowFlags flags, QWidget* parent);
    ~UpdateSheet() override;

    CLITool tool() const { return m_tool; }
    Phase phase() const { return m_phase; }
    const std::optional<QString>& errorMessage() const { return m_errorMessage; }
    // Whether the failure is a Node.js too old for the new version.
    bool needsNewerNode() const { return m_needsNode; }
    QString output() const { return m_output; }
    // The button of the state the sheet is in, which has the focus as the state begins.
    ui::Button* mainButton() const;

    void reject() override;

private:
    void start(bool installNodeFirst);
    void finished(const Result<UpdateOutcome>& result);
    void append(const QString& text);
    void render();

    CLITool m_tool;
    std::optional<QString> m_current;
    QString m_new;
    ToolUpdater& m_updater;
    const LogBook& m_logs;
    std::shared_ptr<LogFile> m_logFile;
    std::function<void()> m_onComplete;
    Phase m_phase = Phase::confirm;
    std::optional<QString> m_errorMessage;
    bool m_needsNode = false;
    // The version the tool reported once updated.
    QString m_verified;
    // The whole log of the newest run, for "Copy Log".
    QString m_output;

    ui::IconTile* m_icon;
    ui::ActivityIndicator* m_spinner;
    ui::SymbolView* m_symbol;
    ui::Label* m_title;
    ui::Label* m_description;
    QWidget* m_logSection;
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
