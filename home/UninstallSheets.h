#pragma once

#include "CLITool.h"
#include "OperationRun.h"
#include "SystemTool.h"

#include <QDialog>

#include <functional>
#include <optional>

namespace qf {

class LogBook;
class SupportTools;
class ToolRemover;

namespace ui {
class ActivityIndicator;
class Button;
class IconTile;
class Label;
class LogView;
class SymbolView;
} // namespace ui

// What the two removal sheets share: a window-modal sheet of the main window with the state
// icon (a spinner while the removal runs, a check when it is done, a bin before), a title and
// a description, the log, the error row and the buttons. The states:
//   confirm       "Cancel" and "Uninstall" (or "OK" for an item that has only a note)
//   uninstalling  the spinner and "Cancel": it stops the removal, or, where the removal may be
//                 left to run, closes the sheet
//   complete      "Uninstall Complete", "Cancel" and "Done" (which reloads the dashboard)
//   failed        the error row, "Cancel" and "Uninstall" again
// Removing is never the default: while "Uninstall" is offered, "Cancel" has the focus, so
// Return or Space on the opened sheet removes nothing. Escape acts as "Cancel" whenever
// "Cancel" closes the sheet, and does nothing otherwise. The removal
// itself is an OperationRun; the log on the sheet keeps the newest part of a long one, and each
// removal's whole log goes to a file.
class RemovalSheet : public QDialog {
    Q_OBJECT

public:
    bool isUninstalling() const { return m_run->isRunning(); }
    bool uninstallComplete() const { return m_run->phase() == OperationRun::Phase::complete; }
    std::optional<QString> errorMessage() const { return m_run->errorMessage(); }
    QString output() const;
    // The button of the state the sheet is in: "Uninstall" (or "OK", or "Uninstall" again
    // after a failure), "Done" once complete, "Cancel" while a removal runs.
    ui::Button* mainButton() const;
    // The button that has the focus as the state begins: "Cancel" while "Uninstall" is
    // offered, the main button otherwise.
    ui::Button* defaultButton() const;

    void reject() override;

protected:
    RemovalSheet(const QString& name, const LogBook& logs, std::function<void()> onComplete, Qt::WindowFlags flags,
                 int height, QWidget* parent);

    // What a kind of sheet is (each subclass calls `render()` once it is made):
    // starts the removal, with `run()->sink()` as its output, for `run()` to follow;
    virtual void performUninstall() = 0;
    virtual QString description() const = 0;
    virtual bool hasCommand() const { return true; }
    // whether "Cancel" closes the sheet while the removal runs (the removal then goes on without
    // the sheet) rather than stopping the removal (through `run()->cancellation()`);
    virtual bool canLeaveWhileRunning() const { return false; }
    // whether the log is a disclosure ("Details") or always open.
    virtual bool isLogCollapsible() const { return true; }

    // The removal: a command that may outlive the sheet writes its output through its sink to
    // the removal's log file, and to the sheet while it is there.
    OperationRun* run() const { return m_run; }
    void render();

private:
    void start();
    // Whether "Cancel" now stops the removal rather than closing the sheet.
    bool stopsOnCancel() const;
    void setDetailsShown(bool shown);
    // "Done": the dashboard reloads, and the sheet closes.
    void completeAndClose();
    void showOutput(const QString& text);

    OperationRun* m_run;
    bool m_showOutput = false;
    QString m_name;
    std::function<void()> m_onComplete;
    int m_minimumHeight;
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
    ui::Button* m_uninstall;
    ui::Button* m_done;
    ui::Button* m_ok;
};

// Confirms and follows the removal of one AI tool (through the remover's `uninstall`).
class UninstallSheet : public RemovalSheet {
    Q_OBJECT

public:
    UninstallSheet(CLITool tool, ToolRemover& remover, const LogBook& logs, std::function<void()> onComplete,
                   Qt::WindowFlags flags, QWidget* parent);

    CLITool tool() const { return m_tool; }

protected:
    void performUninstall() override;
    QString description() const override { return m_tool.uninstallDescription(); }

private:
    CLITool m_tool;
    ToolRemover& m_remover;
};

// Confirms and follows the removal of one supporting item (through the supporting items'
// `remove`), with the log always open; an item without a command shows its note and "OK".
class SystemToolUninstallSheet : public RemovalSheet {
    Q_OBJECT

public:
    SystemToolUninstallSheet(const SystemTool& tool, SupportTools& supportTools, const LogBook& logs,
                             std::function<void()> onComplete, Qt::WindowFlags flags, QWidget* parent);

    const SystemTool& tool() const { return m_tool; }

protected:
    void performUninstall() override;
    QString description() const override;
    bool hasCommand() const override { return m_tool.uninstallCommand.has_value(); }
    bool canLeaveWhileRunning() const override { return true; }
    bool isLogCollapsible() const override { return false; }

private:
    SystemTool m_tool;
    SupportTools& m_supportTools;
};

} // namespace qf
