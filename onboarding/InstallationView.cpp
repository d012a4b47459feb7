#include "InstallationView.h"

#include "InstallationController.h"
#include "InstallationState.h"
#include "LogFile.h"
#include "Platform.h"

#include "CopiedToast.h"
#include "CopyButton.h"
#include "IconTile.h"
#include "Label.h"
#include "Layout.h"
#include "LogView.h"
#include "Symbol.h"
#include "TerminalFallbackRow.h"

#include <QClipboard>
#include <QCoro/QCoroTask>
#include <QGuiApplication>
#include <QLayout>
#include <QPointer>
#include <QTimer>

namespace qf {

using namespace ui;

namespace {

// Between a setup step's row edges and its icon, texts and status.
constexpr QMargins kStepRowPadding(12, 10, 12, 10);

Tint statusTint(StatusColorRole role)
{
    switch (role) {
    case StatusColorRole::secondary: return Tint(Role::secondary);
    case StatusColorRole::blue: return Tint(Role::blue);
    case StatusColorRole::green: return Tint(Role::green);
    case StatusColorRole::red: return Tint(Role::red);
    }
    Q_UNREACHABLE();
}

// The status icon of a step, drawn on its 32-point circle.
void presentStatus(IconTile* icon, const SetupStepStatus& status)
{
    icon->setShowsActivity(status.kind() == SetupStepStatus::inProgress, 14);
    icon->setStroke(Tint(Role::clear), 0);
    switch (status.kind()) {
    case SetupStepStatus::pending:
        icon->setFill(Tint(Role::clear));
        icon->setStroke(Tint(Role::secondary, 0.3), 2);
        icon->setSymbol(QString(), 14, Tint(Role::secondary));
        break;
    case SetupStepStatus::inProgress:
        icon->setFill(Tint(Role::blue, 0.1));
        icon->setSymbol(QString(), 14, Tint(Role::blue));
        break;
    case SetupStepStatus::completed:
        icon->setFill(Tint(Role::green, 0.1));
        icon->setSymbol(QStringLiteral("checkmark"), 14, Tint(Role::green), int(SymbolWeight::bold));
        break;
    case SetupStepStatus::skipped:
        icon->setFill(Tint(Role::secondary, 0.1));
        icon->setSymbol(QStringLiteral("arrow.right"), 12, Tint(Role::secondary), int(SymbolWeight::medium));
        break;
    case SetupStepStatus::failed:
        icon->setFill(Tint(Role::red, 0.1));
        icon->setSymbol(QStringLiteral("xmark"), 14, Tint(Role::red), int(SymbolWeight::bold));
        break;
    }
}

Tint titleTint(const SetupStepStatus& status)
{
    switch (status.kind()) {
    case SetupStepStatus::inProgress:
    case SetupStepStatus::completed: return Tint(Role::primary);
    case SetupStepStatus::failed: return Tint(Role::red);
    case SetupStepStatus::pending:
    case SetupStepStatus::skipped: return Tint(Role::secondary);
    }
    Q_UNREACHABLE();
}

} // namespace

SetupStepRow::SetupStepRow(const SetupStep& step, QWidget* parent) : RoundedCard(parent), m_step(step)
{
    setObjectName(QStringLiteral("setupStepRow.") + step.id());
    setCornerRadius(10);
    setFill(Tint(Role::controlBackground));
    auto* row = hstack(this, 12, kStepRowPadding);
    m_icon = new IconTile(QSize(32, 32), Shape::circle(), Tint(Role::clear));
    m_icon->setObjectName(QStringLiteral("stepIcon"));
    row->addWidget(m_icon, 0, Qt::AlignVCenter);
    auto* text = vstack(2);
    text->addStretch(1);
    m_title = new Label(step.type.title(), Theme::font(12, QFont::Medium));
    m_title->setObjectName(QStringLiteral("stepTitle"));
    text->addWidget(m_title);
    m_details = new Label(QString(), Theme::caption());
    m_details->setObjectName(QStringLiteral("stepDetails"));
    m_details->setWrapping(true, 2);
    text->addWidget(m_details);
    text->addStretch(1);
    row->addLayout(text, 1);
    m_status = new Label(QString(), Theme::caption());
    m_status->setObjectName(QStringLiteral("stepStatus"));
    row->addWidget(m_status, 0, Qt::AlignVCenter);
    setStep(step);
}

void SetupStepRow::setStep(const SetupStep& step)
{
    m_step = step;
    presentStatus(m_icon, step.status);
    m_title->setTint(titleTint(step.status));
    m_details->setText(step.details.value_or(QString()));
    m_details->setVisible(step.details.has_value() && !step.details->isEmpty());
    m_status->setText(step.status.label());
    m_status->setTint(statusTint(step.status.colorRole()));
    setAccessibleName(step.type.title());
    setAccessibleDescription(step.status.label());
}

SetupProgressView::SetupProgressView(QWidget* parent) : QWidget(parent)
{
    setObjectName(QStringLiteral("setupProgressView"));
    vstack(this, 8);
}

QList<SetupStepRow*> SetupProgressView::rows() const { return findChildren<SetupStepRow*>(Qt::FindDirectChildrenOnly); }

void SetupProgressView::setSteps(const QList<SetupStep>& steps)
{
    // Rows are identified by their step: the same steps keep their rows (and spinners).
    const QList<SetupStepRow*> current = rows();
    bool sameSteps = current.size() == steps.size();
    for (qsizetype i = 0; sameSteps && i < steps.size(); ++i)
        sameSteps = current[i]->step().type == steps[i].type;
    if (sameSteps) {
        for (qsizetype i = 0; i < steps.size(); ++i) {
            if (!(current[i]->step() == steps[i]))
                current[i]->setStep(steps[i]);
        }
        return;
    }
    qDeleteAll(current);
    for (const SetupStep& step : steps)
        layout()->addWidget(new SetupStepRow(step, this));
}

InstallationView::InstallationView(InstallationState& state, InstallationController& controller, Platform& platform,
                                   QWidget* parent)
    : FlowScreen(QStringLiteral("installationView"), tr("Installation"), parent),
      m_state(state),
      m_controller(controller),
      m_platform(platform)
{
    QVBoxLayout* column = makeColumn(24, 32);
    if (const std::optional<CLITool> tool = m_state.selectedTool()) {
        auto* header = vstack(12, sides(spacing::screenSide));
        m_tile = new ToolTile;
        header->addWidget(m_tile, 0, Qt::AlignHCenter);
        m_title = flow::centredText(QString(), Theme::font(17, QFont::Bold));
        m_title->setObjectName(QStringLiteral("installationTitle"));
        header->addWidget(m_title);
        m_subtitle = flow::centredText(tr("Preparing your development environment..."), Theme::body(),
                                       Tint(Role::secondary));
        m_subtitle->setObjectName(QStringLiteral("installationSubtitle"));
        header->addWidget(m_subtitle);
        column->addLayout(header);
    }

    m_progress = new SetupProgressView;
    auto* progressRow = vstack(0, sides(spacing::screenSide));
    progressRow->addWidget(m_progress);
    column->addLayout(progressRow);

    // The log, behind "Details", with a way to copy all of it.
    m_logSection = new QWidget;
    m_logSection->setObjectName(QStringLiteral("logSection"));
    auto* logColumn = vstack(m_logSection, 8, sides(spacing::screenSide));
    auto* logHeader = hstack(12);
    m_detailsToggle = new RowButton;
    m_detailsToggle->setObjectName(QStringLiteral("detailsButton"));
    m_detailsToggle->setAccessibleName(tr("Details"));
    m_detailsChevron = new SymbolView(QStringLiteral("chevron.right"), 10, Tint(Role::secondary));
    m_detailsToggle->addWidget(m_detailsChevron, 0, Qt::AlignVCenter);
    m_detailsToggle->addWidget(new Label(tr("Details"), Theme::headline()), 0, Qt::AlignVCenter);
    m_detailsToggle->addStretch(1);
    connect(m_detailsToggle, &QAbstractButton::clicked, this, [this] { setShowDetails(!m_showDetails); });
    logHeader->addWidget(m_detailsToggle, 1);
    Button* copyLog = CopyButton::makeCopyLogButton();
    connect(copyLog, &QAbstractButton::clicked, this, &InstallationView::copyLog);
    logHeader->addWidget(copyLog, 0, Qt::AlignVCenter);
    logColumn->addLayout(logHeader);
    m_log = new LogView;
    m_log->setPadding(12);
    m_log->setTextFont(Theme::font(10, QFont::Normal, FontDesign::monospaced));
    m_log->setMinimumHeight(100);
    m_log->setMaximumHeight(200);
    m_log->setLimit(m_state.installationLog().limit(), BoundedLog::cutNotice());
    m_log->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    m_log->hide();
    logColumn->addWidget(m_log);
    column->addWidget(m_logSection);

    // What went wrong.
    m_errorCard = roundedCard(QStringLiteral("errorCard"), 12, Tint(Role::red, 0.08));
    m_errorCard->setAccessibleName(tr("Installation Failed"));
    m_errorCard->setStroke(Tint(Role::red, 0.2), 1);
    auto* errorColumn = vstack(m_errorCard, 12, around(20));
    errorColumn->addWidget(new SymbolView(QStringLiteral("exclamationmark.triangle.fill"), 22, Tint(Role::red)), 0,
                           Qt::AlignHCenter);
    m_errorTitle = flow::centredText(tr("Installation Failed"), Theme::headline());
    m_errorTitle->setObjectName(QStringLiteral("errorTitle"));
    errorColumn->addWidget(m_errorTitle);
    m_errorText = flow::centredText(QString(), Theme::caption());
    m_errorText->setObjectName(QStringLiteral("errorMessage"));
    m_errorText->setTextInteractionFlags(Qt::TextSelectableByMouse);
    errorColumn->addWidget(m_errorText);
    auto* errorRow = vstack(0, sides(spacing::screenSide));
    errorRow->addWidget(m_errorCard);
    column->addLayout(errorRow);
    m_logPathRow = vstack(0, sides(spacing::screenSide));
    column->addLayout(m_logPathRow);
    m_caveatRow = vstack(0, sides(spacing::screenSide));
    column->addLayout(m_caveatRow);
    column->addStretch(1);

    m_back = addBackToHome(m_state);
    m_showLogFile = new Button(tr("Show Log File"), Button::Style::bordered, Button::Size::large);
    m_showLogFile->setObjectName(QStringLiteral("showLogFileButton"));
    connect(m_showLogFile, &QAbstractButton::clicked, this, [this] {
        if (const QString path = logFilePath(); !path.isEmpty())
            m_platform.revealFile(path, [self = QPointer(this), path](bool shown) {
                if (self && !shown)
                    self->showLogPath(path);
            });
    });
    bottomBar()->addWidget(m_showLogFile);
    // Stops the run going on, with every command it started.
    m_cancel = new Button(tr("Cancel"), Button::Style::bordered, Button::Size::large);
    m_cancel->setObjectName(QStringLiteral("cancelButton"));
    connect(m_cancel, &QAbstractButton::clicked, this, [this] { m_controller.cancelInstallation(); });
    bottomBar()->addWidget(m_cancel);
    m_main = flow::mainButton(QString(), QStringLiteral("mainButton"));
    connect(m_main, &QAbstractButton::clicked, this, [this] {
        if (m_controller.installationComplete())
            m_state.setCurrentStep(InstallationStep::completion);
        else if (m_state.errorMessage())
            start();
    });
    bottomBar()->addWidget(m_main);
    setDefaultButton(m_main);

    m_toast = new CopiedToastPresenter(scrollView(), 16);

    const auto rerender = [this] { render(); };
    connect(&m_state, &InstallationState::setupStepsChanged, this, rerender);
    connect(&m_state, &InstallationState::errorMessageChanged, this, rerender);
    connect(&m_state, &InstallationState::caveatsChanged, this, [this] {
        // One card for what the run left to know, rebuilt when that changes.
        delete m_caveats;
        m_caveats = flow::caveatCard(m_state.caveats());
        m_caveatRow->addWidget(m_caveats);
        render();
    });
    connect(&m_state, &InstallationState::installationOutputChanged, this, [this] {
        syncLog();
        m_logSection->setVisible(!m_state.installationOutput().isEmpty());
    });
    connect(&m_controller, &InstallationController::isInstallingChanged, this, rerender);
    connect(&m_controller, &InstallationController::installationCompleteChanged, this, rerender);
    syncLog();
    render();
}

void InstallationView::start()
{
    // The run belongs to the controller; this screen only watches it.
    QCoro::connect(m_controller.startInstallation(), this, [] {});
}

QWidget* InstallationView::mainControl() const
{
    return m_controller.isInstalling() ? m_cancel : FlowScreen::mainControl();
}

void InstallationView::render()
{
    const bool installing = m_controller.isInstalling();
    const bool complete = m_controller.installationComplete();
    const std::optional<QString>& error = m_state.errorMessage();

    if (const std::optional<CLITool> tool = m_state.selectedTool(); tool && m_tile) {
        m_tile->present(*tool, installing ? ToolTile::Content::spinner
                               : complete ? ToolTile::Content::checkmark
                                          : ToolTile::Content::symbol);
        m_title->setText(complete ? tr("Installation Complete!") : tr("Setting up %1").arg(tool->displayName()));
        m_subtitle->setVisible(installing);
    }

    m_progress->setSteps(m_state.setupSteps());
    m_progress->setVisible(!m_state.setupSteps().isEmpty());
    m_logSection->setVisible(!m_state.installationOutput().isEmpty());
    m_detailsChevron->setName(m_showDetails ? QStringLiteral("chevron.down") : QStringLiteral("chevron.right"));
    m_detailsToggle->setAccessibleDescription(m_showDetails ? tr("Expanded") : tr("Collapsed"));
    m_log->setVisible(m_showDetails);

    // What went wrong, or what to know about a result, may lie below what a small window shows:
    // it is brought into view when it appears.
    QWidget* appearing = nullptr;
    if (error.has_value() && m_errorCard->isHidden())
        appearing = m_errorCard;
    m_errorCard->setVisible(error.has_value());
    if (m_caveats) {
        const bool caveats = complete && !m_state.caveats().isEmpty();
        if (caveats && m_caveats->isHidden())
            appearing = m_caveats;
        m_caveats->setVisible(caveats);
    }
    if (appearing) {
        QTimer::singleShot(0, appearing, [this, appearing] {
            if (!appearing->isVisible())
                return;
            // Laid out first, so that the place scrolled to is its final one.
            if (QLayout* layout = scrollView()->content()->layout())
                layout->activate();
            scrollView()->ensureWidgetVisible(appearing, 0, 24);
        });
    }
    const bool stopped = m_controller.wasCancelled();
    m_errorTitle->setText(stopped ? tr("Installation Stopped") : tr("Installation Failed"));
    m_errorCard->setAccessibleName(m_errorTitle->text());
    m_errorText->setText(error.value_or(QString()));
    m_errorCard->setAccessibleDescription(error.value_or(QString()));

    m_back->setVisible(!installing);
    m_showLogFile->setVisible(error.has_value() && !installing && !logFilePath().isEmpty());
    if (m_logPath)
        m_logPath->setVisible(m_showLogFile->isVisibleTo(this));
    // "Cancel" hands the focus back to the screen before it goes, so that it moves on to the
    // main button rather than to the next control in line.
    if (!installing && window()->focusWidget() == m_cancel)
        setFocus(Qt::OtherFocusReason);
    m_cancel->setVisible(installing);
    m_main->setVisible(complete || error.has_value());
    m_main->setTitle(complete ? tr("Continue") : tr("Try Again"));
    focusMainControl();
}

void InstallationView::syncLog()
{
    const BoundedLog& log = m_state.installationLog();
    if (log.generation() != m_shownGeneration || log.totalLength() < m_shownLength) {
        m_log->clear();
        m_shownGeneration = log.generation();
        m_shownLength = 0;
    }
    const qint64 fresh = log.totalLength() - m_shownLength;
    if (fresh <= 0)
        return;
    const QStringView kept = QStringView(log.text()).sliced(log.noticeLength());
    if (fresh > kept.size()) {
        // More arrived than the state keeps (the screen came late to a long log): what is
        // kept, with its notice, replaces what was shown.
        m_log->clear();
        m_log->append(log.text());
    } else {
        m_log->append(kept.last(fresh).toString());
    }
    m_shownLength = log.totalLength();
}

void InstallationView::setShowDetails(bool show)
{
    m_showDetails = show;
    render();
    // Opened again, the log shows the newest line.
    if (show)
        m_log->scrollToEnd();
}

QString InstallationView::logFilePath() const
{
    const std::shared_ptr<const LogFile> file = m_controller.logFile();
    return file ? file->path() : QString();
}

void InstallationView::copyLog()
{
    // Only the newest part of a long log is kept here; its file has all of it.
    const std::shared_ptr<const LogFile> file = m_controller.logFile();
    if (!m_state.installationLog().wasCut() || !file || !file->isWhole()) {
        copyText(m_state.installationOutput());
        return;
    }
    QCoro::connect(file->readWhole(), this, [this](const std::optional<QString>& whole) {
        copyText(whole.value_or(m_state.installationOutput()));
    });
}

void InstallationView::copyText(const QString& text)
{
    QClipboard* clipboard = QGuiApplication::clipboard();
    clipboard->clear();
    clipboard->setText(text);
    m_toast->present();
}

void InstallationView::showLogPath(const QString& path)
{
    delete m_logPath;
    m_logPath = new TerminalFallbackRow(tr("The log file could not be shown"),
                                        tr("No file manager answered. The log file is here:"), path,
                                        [this] { m_toast->present(); });
    m_logPath->setObjectName(QStringLiteral("logFilePath"));
    m_logPathRow->addWidget(m_logPath);
    render();
    QTimer::singleShot(0, m_logPath, [this] {
        if (QLayout* layout = scrollView()->content()->layout())
            layout->activate();
        scrollView()->ensureWidgetVisible(m_logPath, 0, 24);
    });
}

} // namespace qf
