#include "UpdateSheet.h"

#include "SheetParts.h"

#include "BoundedLog.h"
#include "ToolUpdater.h"

#include "ActivityIndicator.h"
#include "Button.h"
#include "CopyButton.h"
#include "FocusOrder.h"
#include "FocusRing.h"
#include "IconTile.h"
#include "Label.h"
#include "Layout.h"
#include "LogView.h"
#include "RoundedCard.h"

#include <QClipboard>
#include <QGuiApplication>

namespace qf {

using namespace ui;

namespace {

constexpr int kUpdateSheetWidth = 440;
constexpr int kSheetHeight = 340;
// Above and below the sheet's content.
constexpr QMargins kUpdateColumnPadding(0, 24, 0, 24);

} // namespace

UpdateSheet::UpdateSheet(CLITool tool, std::optional<QString> currentVersion, QString newVersion, ToolUpdater& updater,
                         const LogBook& logs, std::function<void()> onComplete, Qt::WindowFlags flags, QWidget* parent)
    : QDialog(parent, flags),
      m_tool(tool),
      m_current(std::move(currentVersion)),
      m_new(std::move(newVersion)),
      m_updater(updater),
      m_run(new OperationRun(logs, OperationRun::Declined::asksAgain, this)),
      m_onComplete(std::move(onComplete))
{
    setObjectName(QStringLiteral("updateSheet"));
    connect(m_run, &OperationRun::phaseChanged, this, &UpdateSheet::render);
    connect(m_run, &OperationRun::outputAppended, this, &UpdateSheet::append);
    setWindowModality(Qt::WindowModal);
    setWindowTitle(tr("Update %1").arg(tool.displayName()));
    FocusRing::attach(this);
    setFixedSize(kUpdateSheetWidth, kSheetHeight);

    auto* column = vstack(this, 20, kUpdateColumnPadding);
    column->addStretch(1);

    // Header: the state icon, the title and what is about to happen.
    const SheetHeader header = makeSheetHeader(Tint(Role::accent, 0.12), QStringLiteral("arrow.down.circle"), 28,
                                               Tint(Role::accent));
    m_icon = header.icon;
    m_spinner = header.spinner;
    m_symbol = header.symbol;
    m_title = header.title;
    m_description = header.description;
    column->addLayout(header.layout);

    // The live log behind "Details", with a way to copy all of it.
    m_logSection = new QWidget;
    m_logSection->setObjectName(QStringLiteral("logSection"));
    auto* logColumn = vstack(m_logSection, 6);
    auto* logHeader = hstack(8);
    m_details = new Button(tr("Details"), Button::Style::plain);
    m_details->setObjectName(QStringLiteral("detailsButton"));
    m_details->setTitleFont(Theme::font(13, QFont::DemiBold));
    m_details->setSpacing(6);
    connect(m_details, &QAbstractButton::clicked, this, [this] {
        m_showLog = !m_showLog;
        render();
        if (m_showLog)
            m_log->scrollToEnd();
    });
    logHeader->addWidget(m_details, 0, Qt::AlignVCenter);
    logHeader->addStretch(1);
    Button* copyLog = CopyButton::makeCopyLogButton();
    connect(copyLog, &QAbstractButton::clicked, this, [this] { QGuiApplication::clipboard()->setText(m_output); });
    logHeader->addWidget(copyLog);
    logColumn->addLayout(logHeader);
    m_log = new LogView;
    m_log->setObjectName(QStringLiteral("logView"));
    m_log->setFixedHeight(110);
    m_log->setLimit(BoundedLog::kDefaultLimit, BoundedLog::cutNotice());
    logColumn->addWidget(m_log);
    column->addLayout(sheetPadded(m_logSection));

    // The error row.
    const SheetErrorRow error = makeSheetErrorRow(Qt::AlignTop);
    m_errorRow = error.row;
    m_error = error.message;
    column->addLayout(sheetPadded(m_errorRow));

    // The buttons.
    auto* buttons = hstack(12, sides(spacing::sheetSide));
    buttons->addStretch(1);
    m_cancel = sheetButton(tr("Cancel"), Button::Style::bordered, "cancelButton");
    connect(m_cancel, &QAbstractButton::clicked, this, [this] {
        // While the update runs, "Cancel" stops it; otherwise it closes the sheet.
        if (m_run->isRunning())
            m_run->cancel();
        else
            QDialog::reject();
    });
    m_update = sheetButton(tr("Update"), Button::Style::prominent, "updateButton");
    connect(m_update, &QAbstractButton::clicked, this, [this] { start(false); });
    m_retry = sheetButton(tr("Try Again"), Button::Style::prominent, "tryAgainButton");
    connect(m_retry, &QAbstractButton::clicked, this, [this] { start(false); });
    m_installNode = sheetButton(tr("Install Node.js and Update"), Button::Style::prominent, "installNodeButton");
    connect(m_installNode, &QAbstractButton::clicked, this, [this] { start(true); });
    m_done = sheetButton(tr("Done"), Button::Style::prominent, "doneButton");
    connect(m_done, &QAbstractButton::clicked, this, [this] {
        if (m_onComplete)
            m_onComplete();
        accept();
    });
    for (Button* button : {m_cancel, m_update, m_retry, m_installNode, m_done})
        buttons->addWidget(button);
    buttons->addStretch(1);
    column->addLayout(buttons);
    column->addStretch(1);
    orderTabChain(this);
    render();
}

UpdateSheet::~UpdateSheet() = default;

Button* UpdateSheet::mainButton() const
{
    for (Button* button : {m_done, m_update, m_installNode, m_retry, m_cancel}) {
        if (button->isVisibleTo(this))
            return button;
    }
    return nullptr;
}

Button* UpdateSheet::defaultButton() const { return m_cancel->isVisibleTo(this) ? m_cancel : mainButton(); }

void UpdateSheet::reject()
{
    // Escape and the window's close button act as "Cancel", and only while it closes the sheet.
    if (m_cancel->isVisibleTo(this) && !m_run->isRunning())
        QDialog::reject();
}

bool UpdateSheet::needsNewerNode() const
{
    const std::optional<ServiceError>& error = m_run->error();
    return m_run->phase() == Phase::failed && error && error->requiredNodeMajor() > 0;
}

void UpdateSheet::start(bool installNodeFirst)
{
    m_output.clear();
    m_log->clear();
    m_run->begin(QStringLiteral("Update ") + m_tool.displayName()); // the log file's name stays English
    // The update may outlive the sheet (the window closes): its output then goes to the log
    // file only.
    auto task = installNodeFirst ? m_updater.installNodeThenUpdate(m_tool, m_run->sink(), m_run->cancellation())
                                 : m_updater.update(m_tool, m_run->sink(), m_run->cancellation());
    m_run->follow<UpdateOutcome>(std::move(task),
                                 [this](const UpdateOutcome& outcome) { m_verified = outcome.newVersion; });
}

void UpdateSheet::append(const QString& text)
{
    const bool wasEmpty = m_output.isEmpty();
    m_output += text;
    m_log->append(text);
    if (wasEmpty)
        render();
}

void UpdateSheet::render()
{
    const QString name = m_tool.displayName();
    const QWidget* focused = focusWidget();
    const bool focusOnButton = !focused || (qobject_cast<const Button*>(focused) != nullptr && focused != m_details);

    const Phase phase = m_run->phase();
    const bool complete = phase == Phase::complete;
    const bool failed = phase == Phase::failed;
    const bool updating = phase == Phase::running;
    const bool needsNode = needsNewerNode();
    const std::optional<QString> errorMessage = m_run->errorMessage();
    m_icon->setFill(complete               ? Tint(Role::green, 0.15)
                    : failed && !needsNode ? Tint(Role::orange, 0.12)
                                           : Tint(Role::accent, 0.12));
    m_spinner->setVisible(updating);
    m_symbol->setVisible(!updating);
    if (complete) {
        m_symbol->setName(QStringLiteral("checkmark"));
        m_symbol->setWeight(SymbolWeight::bold);
        m_symbol->setTint(Tint(Role::green));
    } else if (failed && needsNode) {
        m_symbol->setName(QStringLiteral("info.circle"));
        m_symbol->setWeight(SymbolWeight::regular);
        m_symbol->setTint(Tint(Role::accent));
    } else if (failed) {
        m_symbol->setName(QStringLiteral("exclamationmark"));
        m_symbol->setWeight(SymbolWeight::bold);
        m_symbol->setTint(Tint(Role::orange));
    } else {
        m_symbol->setName(QStringLiteral("arrow.down.circle"));
        m_symbol->setWeight(SymbolWeight::regular);
        m_symbol->setTint(Tint(Role::accent));
    }

    const std::optional<ServiceError>& runError = m_run->error();
    const bool stopped = runError.has_value() && runError->isCancelled();
    switch (phase) {
    case Phase::ready:
        m_title->setText(tr("Update %1?").arg(name));
        m_description->setText(
            m_current ? tr("%1 goes from version %2 to %3. You stay signed in, and your settings stay as they are.")
                            .arg(name, *m_current, m_new)
                      : tr("%1 is updated to version %2. You stay signed in, and your settings stay as they are.")
                            .arg(name, m_new));
        break;
    case Phase::running:
        m_title->setText(tr("Updating %1...").arg(name));
        m_description->setText(tr("This usually takes less than a minute."));
        break;
    case Phase::complete:
        m_title->setText(tr("Update Complete"));
        m_description->setText(tr("%1 %2 is installed and starts as before.").arg(name, m_verified));
        break;
    case Phase::failed:
        // An older Node.js is not a failure of the update, only what has to come first.
        m_title->setText(needsNode ? tr("A Newer Node.js Is Needed")
                         : stopped ? tr("Update Stopped")
                                   : tr("Update Failed"));
        break;
    }
    m_description->setVisible(!failed);

    // An update refused for an older Node.js ran nothing: its log would only repeat the
    // sentence the sheet shows.
    m_logSection->setVisible(m_run->hasOutput() && phase != Phase::ready && !(failed && needsNode));
    m_details->setLeadingSymbol(m_showLog ? QStringLiteral("chevron.down") : QStringLiteral("chevron.right"), 10,
                                SymbolWeight::bold);
    m_details->setAccessibleDescription(m_showLog ? tr("Shown") : tr("Hidden"));
    m_log->setVisible(m_showLog);
    m_errorRow->setVisible(errorMessage.has_value());
    m_error->setText(errorMessage.value_or(QString()));

    m_cancel->setVisible(!complete);
    m_update->setVisible(phase == Phase::ready);
    m_retry->setVisible(failed && !needsNode);
    m_installNode->setVisible(failed && needsNode);
    m_done->setVisible(complete);
    if (Button* first = defaultButton(); first && (focusOnButton || !focusWidget()->isVisibleTo(this)))
        first->setFocus(Qt::OtherFocusReason);

    // The sheet keeps its size unless its content needs more room; nothing is ever cut off.
    layout()->activate();
    const int needed = layout()->hasHeightForWidth() ? layout()->totalHeightForWidth(kUpdateSheetWidth)
                                                     : layout()->totalSizeHint().height();
    setFixedSize(kUpdateSheetWidth, std::max(kSheetHeight, needed));
}

} // namespace qf
