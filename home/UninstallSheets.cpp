#include "UninstallSheets.h"

#include "SheetParts.h"

#include "BoundedLog.h"
#include "SupportTools.h"
#include "ToolRemover.h"

#include "ActivityIndicator.h"
#include "Button.h"
#include "FocusOrder.h"
#include "FocusRing.h"
#include "IconTile.h"
#include "Label.h"
#include "Layout.h"
#include "LogView.h"
#include "RoundedCard.h"

namespace qf {

using namespace ui;

namespace {

constexpr int kSheetWidth = 420;
// Above and below a sheet's content.
constexpr QMargins kRemovalColumnPadding(0, 24, 0, 24);

} // namespace

// MARK: RemovalSheet

RemovalSheet::RemovalSheet(const QString& name, const LogBook& logs, std::function<void()> onComplete,
                           Qt::WindowFlags flags, int height, QWidget* parent)
    : QDialog(parent, flags),
      m_run(new OperationRun(logs, OperationRun::Declined::fails, this)),
      m_name(name),
      m_onComplete(std::move(onComplete)),
      m_minimumHeight(height)
{
    connect(m_run, &OperationRun::phaseChanged, this, [this] {
        if (m_run->phase() == OperationRun::Phase::failed)
            m_showOutput = true; // the log opens by itself
        render();
    });
    connect(m_run, &OperationRun::outputAppended, this, &RemovalSheet::showOutput);
    setWindowModality(Qt::WindowModal);
    setWindowTitle(tr("Uninstall %1").arg(name));
    FocusRing::attach(this);
    setFixedSize(kSheetWidth, height);

    auto* column = vstack(this, 24, kRemovalColumnPadding);
    column->addStretch(1);

    // Header: the state icon, the title and what is about to happen.
    const SheetHeader header = makeSheetHeader(Tint(Role::red, 0.12), QStringLiteral("trash"), 26, Tint(Role::red));
    m_icon = header.icon;
    m_spinner = header.spinner;
    m_symbol = header.symbol;
    m_title = header.title;
    m_description = header.description;
    column->addLayout(header.layout);

    // The log, behind "Details" or always open.
    m_logSection = new QWidget;
    auto* logColumn = vstack(m_logSection, 8);
    m_details = new Button(tr("Details"), Button::Style::plain);
    m_details->setObjectName(QStringLiteral("detailsButton"));
    m_details->setTitleFont(Theme::font(13, QFont::DemiBold));
    m_details->setSpacing(6);
    connect(m_details, &QAbstractButton::clicked, this, [this] { setDetailsShown(!m_showOutput); });
    logColumn->addWidget(m_details, 0, Qt::AlignLeft);
    m_log = new LogView;
    m_log->setFixedHeight(90);
    m_log->setLimit(BoundedLog::kDefaultLimit, BoundedLog::cutNotice());
    logColumn->addWidget(m_log);
    column->addLayout(sheetPadded(m_logSection));

    // The error row.
    const SheetErrorRow error = makeSheetErrorRow(Qt::AlignVCenter);
    m_errorRow = error.row;
    m_error = error.message;
    column->addLayout(sheetPadded(m_errorRow));

    // The buttons.
    auto* buttons = hstack(12, sides(spacing::sheetSide));
    buttons->addStretch(1);
    m_cancel = sheetButton(tr("Cancel"), Button::Style::bordered, "cancelButton");
    connect(m_cancel, &QAbstractButton::clicked, this, [this] {
        if (stopsOnCancel())
            m_run->cancel();
        else
            QDialog::reject();
    });
    m_uninstall = sheetButton(tr("Uninstall"), Button::Style::prominent, "uninstallButton");
    m_uninstall->setTint(Tint(Role::red));
    connect(m_uninstall, &QAbstractButton::clicked, this, [this] { start(); });
    m_done = sheetButton(tr("Done"), Button::Style::prominent, "doneButton");
    connect(m_done, &QAbstractButton::clicked, this, [this] { completeAndClose(); });
    m_ok = sheetButton(tr("OK"), Button::Style::prominent, "okButton");
    connect(m_ok, &QAbstractButton::clicked, this, [this] { accept(); });
    for (Button* button : {m_cancel, m_uninstall, m_done, m_ok})
        buttons->addWidget(button);
    buttons->addStretch(1);
    column->addLayout(buttons);
    column->addStretch(1);
    orderTabChain(this);
}

QString RemovalSheet::output() const { return m_log->text(); }

ui::Button* RemovalSheet::mainButton() const
{
    for (Button* button : {m_done, m_uninstall, m_ok, m_cancel}) {
        if (button->isVisibleTo(this))
            return button;
    }
    return nullptr;
}

ui::Button* RemovalSheet::defaultButton() const { return m_uninstall->isVisibleTo(this) ? m_cancel : mainButton(); }

void RemovalSheet::setDetailsShown(bool shown)
{
    m_showOutput = shown;
    render();
}

void RemovalSheet::reject()
{
    // Escape and the window's close button act as "Cancel", and only while it closes the sheet.
    if (m_cancel->isVisibleTo(this) && !stopsOnCancel())
        QDialog::reject();
}

bool RemovalSheet::stopsOnCancel() const { return isUninstalling() && !canLeaveWhileRunning(); }

void RemovalSheet::completeAndClose()
{
    if (m_onComplete)
        m_onComplete();
    accept();
}

void RemovalSheet::start()
{
    if (!hasCommand())
        return;
    m_log->clear();
    m_run->begin(QStringLiteral("Uninstall ") + m_name);
    performUninstall();
}

void RemovalSheet::showOutput(const QString& text)
{
    const bool wasEmpty = m_log->isEmpty();
    m_log->append(text);
    if (wasEmpty)
        render();
}

void RemovalSheet::render()
{
    const bool uninstalling = isUninstalling();
    const bool complete = uninstallComplete();
    const bool confirming = !uninstalling && !complete;
    const std::optional<QString> errorMessage = m_run->errorMessage();
    // The focus moves on with the default button of each state, unless it is on the log or
    // its "Details".
    const QWidget* focused = focusWidget();
    const bool focusOnMain = !focused || focused == m_uninstall || focused == m_done || focused == m_ok ||
                             focused == m_cancel;

    // Only a removal looks like one: a sheet with just a note is information.
    const bool removal = hasCommand();
    m_icon->setFill(complete ? Tint(Role::green, 0.15) : removal ? Tint(Role::red, 0.12) : Tint(Role::blue, 0.12));
    m_spinner->setVisible(uninstalling);
    m_symbol->setVisible(!uninstalling);
    if (complete) {
        m_symbol->setName(QStringLiteral("checkmark"));
        m_symbol->setPointSize(28);
        m_symbol->setWeight(SymbolWeight::bold);
        m_symbol->setTint(Tint(Role::green));
    } else if (removal) {
        m_symbol->setName(QStringLiteral("trash"));
        m_symbol->setPointSize(26);
        m_symbol->setWeight(SymbolWeight::regular);
        m_symbol->setTint(Tint(Role::red));
    } else {
        m_symbol->setName(QStringLiteral("info.circle"));
        m_symbol->setPointSize(26);
        m_symbol->setWeight(SymbolWeight::regular);
        m_symbol->setTint(Tint(Role::blue));
    }
    m_title->setText(complete ? tr("Uninstall Complete") : tr("Uninstall %1?").arg(m_name));
    m_description->setText(description());
    m_description->setVisible(confirming);

    const bool hasOutput = m_run->hasOutput();
    m_logSection->setVisible(hasOutput);
    m_details->setVisible(isLogCollapsible());
    m_details->setLeadingSymbol(m_showOutput ? QStringLiteral("chevron.down") : QStringLiteral("chevron.right"), 10,
                                SymbolWeight::bold);
    m_details->setAccessibleDescription(m_showOutput ? tr("Shown") : tr("Hidden"));
    m_log->setVisible(!isLogCollapsible() || m_showOutput);

    m_errorRow->setVisible(errorMessage.has_value());
    m_error->setText(errorMessage.value_or(QString()));

    m_uninstall->setVisible(hasCommand() && confirming);
    m_done->setVisible(complete);
    // "OK" acknowledges a note; with nothing to say there is nothing to acknowledge.
    m_ok->setVisible(!hasCommand() && confirming && !description().isEmpty());
    if (Button* first = defaultButton(); first && (focusOnMain || !focusWidget() || !focusWidget()->isVisibleTo(this)))
        first->setFocus(Qt::OtherFocusReason);

    // The sheet keeps its size unless its content needs more room; nothing is ever cut off.
    layout()->activate();
    const int needed = layout()->hasHeightForWidth() ? layout()->totalHeightForWidth(kSheetWidth)
                                                     : layout()->totalSizeHint().height();
    setFixedSize(kSheetWidth, std::max(m_minimumHeight, needed));
}

// MARK: UninstallSheet

UninstallSheet::UninstallSheet(CLITool tool, ToolRemover& remover, const LogBook& logs,
                               std::function<void()> onComplete, Qt::WindowFlags flags, QWidget* parent)
    : RemovalSheet(tool.displayName(), logs, std::move(onComplete), flags, 360, parent),
      m_tool(tool),
      m_remover(remover)
{
    setObjectName(QStringLiteral("uninstallSheet"));
    render();
}

void UninstallSheet::performUninstall()
{
    run()->follow(m_remover.uninstall(m_tool, run()->sink(), run()->cancellation()));
}

// MARK: SystemToolUninstallSheet

SystemToolUninstallSheet::SystemToolUninstallSheet(const SystemTool& tool, SupportTools& supportTools,
                                                   const LogBook& logs, std::function<void()> onComplete,
                                                   Qt::WindowFlags flags, QWidget* parent)
    : RemovalSheet(tool.name, logs, std::move(onComplete), flags, 340, parent),
      m_tool(tool),
      m_supportTools(supportTools)
{
    setObjectName(QStringLiteral("systemToolUninstallSheet"));
    render();
}

QString SystemToolUninstallSheet::description() const
{
    if (m_tool.uninstallNote)
        return *m_tool.uninstallNote;
    if (m_tool.uninstallCommand)
        return tr("This will remove %1 from your system.").arg(m_tool.name);
    return QString();
}

void SystemToolUninstallSheet::performUninstall()
{
    // The removal may outlive the sheet ("Cancel" stays while it runs): its output then goes
    // to the log file only, and the next load of the dashboard shows what it did.
    run()->follow(m_supportTools.remove(m_tool, run()->sink()));
}

} // namespace qf
