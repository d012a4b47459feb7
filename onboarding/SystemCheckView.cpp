#include "SystemCheckView.h"

#include "InstallationState.h"
#include "Platform.h"
#include "SystemDetector.h"

#include "ActivityIndicator.h"
#include "Expander.h"
#include "FocusOrder.h"
#include "IconTile.h"
#include "Label.h"
#include "Layout.h"
#include "Symbol.h"
#include "TerminalFallbackRow.h"

#include <QCoro/QCoroTask>
#include <QLocale>
#include <QPointer>
#include <QTimer>

namespace qf {

using namespace ui;

QString RequirementRow::statusWord(const RequirementStatus& status)
{
    if (status.isMet)
        return tr("Ready");
    if (status.requirement.isInstalledBySetup())
        return tr("Will be installed for you");
    switch (static_cast<SystemRequirement::Case>(status.requirement)) {
    case SystemRequirement::diskSpace: return tr("Not enough space");
    case SystemRequirement::git: return tr("Not installed");
    case SystemRequirement::macOSVersion:
    case SystemRequirement::nodeJS: break;
    }
    return tr("Not supported");
}

RequirementRow::RequirementRow(const RequirementStatus& status, const SystemWording& wording, const QString& note,
                               std::function<void()> fix, QWidget* parent)
    : RoundedCard(parent), m_isMet(status.isMet)
{
    const QString title = status.requirement.title(wording);
    setObjectName(QStringLiteral("requirementRow.") + status.id());
    setAccessibleName(title);
    setCornerRadius(12);
    setFill(Tint(Role::controlBackground));
    // Green when met, orange for what setup installs itself, red for what blocks it.
    const bool blocking = !status.isMet && !status.requirement.isInstalledBySetup();
    const Tint mark(status.isMet ? Role::green : blocking ? Role::red : Role::orange);
    auto* column = vstack(this, 0, around(spacing::cardPadding));

    auto* row = hstack(12);
    auto* circle = new IconTile(QSize(36, 36), Shape::circle(), mark.withOpacity(0.15));
    circle->setObjectName(QStringLiteral("requirementMark"));
    circle->setSymbol(status.isMet ? QStringLiteral("checkmark") : QStringLiteral("exclamationmark"), 14, mark,
                      int(SymbolWeight::bold));
    row->addWidget(circle, 0, Qt::AlignVCenter);
    auto* text = vstack(2);
    auto* titleLabel = new Label(title, Theme::headline());
    titleLabel->setObjectName(QStringLiteral("requirementTitle"));
    titleLabel->setWrapping(true);
    text->addWidget(titleLabel);
    auto* details = new Label(status.details, Theme::caption(), blocking ? mark : Tint(Role::secondary));
    details->setObjectName(QStringLiteral("requirementDetails"));
    details->setWrapping(true);
    text->addWidget(details);
    row->addLayout(text);

    m_help = new Button(QString(), Button::Style::plain);
    m_help->setObjectName(QStringLiteral("helpButton"));
    m_help->setAccessibleName(tr("About %1").arg(title));
    m_help->setToolTip(tr("What is this?"));
    m_help->setLeadingSymbol(QStringLiteral("questionmark.circle"), 10);
    m_help->setContentTint(Tint(Role::secondary));
    connect(m_help, &QAbstractButton::clicked, this, [this] {
        m_showHelp = !m_showHelp;
        render(true);
    });
    row->addWidget(m_help, 0, Qt::AlignVCenter);
    row->addStretch(1);
    auto* word = new Label(statusWord(status), Theme::caption(), mark);
    word->setObjectName(QStringLiteral("requirementStatus"));
    row->addWidget(word, 0, Qt::AlignVCenter);
    if (blocking && fix) {
        m_fix = new Button(tr("Install"), Button::Style::bordered);
        m_fix->setObjectName(QStringLiteral("requirementFixButton"));
        m_fix->setAccessibleName(tr("Install %1").arg(title));
        connect(m_fix, &QAbstractButton::clicked, this, std::move(fix));
        row->addWidget(m_fix, 0, Qt::AlignVCenter);
    }
    column->addLayout(row);
    setAccessibleDescription(status.details + QStringLiteral(", ") + word->text());

    // The explanation, and the remedy when something has to change.
    auto* help = new QWidget;
    help->setObjectName(QStringLiteral("requirementHelp"));
    auto* helpColumn = vstack(help, 6);
    helpColumn->addWidget(divider(8));
    QString helpText = status.requirement.helpText(wording);
    if (!note.isEmpty())
        helpText += QLatin1Char(' ') + note;
    auto* explanation = new Label(helpText, Theme::caption(), Tint(Role::secondary));
    explanation->setObjectName(QStringLiteral("requirementExplanation"));
    explanation->setWrapping(true);
    helpColumn->addWidget(explanation);
    if (!status.isMet) {
        // What setup installs itself needs nothing from the user.
        const QString remedyText = status.requirement.isInstalledBySetup()
                                       ? tr("Quillforge installs it for you as part of the setup.")
                                       : status.requirement.fixSuggestion(wording);
        auto* remedy = hstack(6);
        remedy->addWidget(new SymbolView(QStringLiteral("hammer"), 10, mark), 0, Qt::AlignTop);
        auto* fix = new Label(remedyText, Theme::caption(), mark);
        fix->setObjectName(QStringLiteral("requirementFix"));
        fix->setWrapping(true);
        remedy->addWidget(fix, 1);
        helpColumn->addLayout(remedy);
    }
    m_helpArea = new Expander(help, motion::defaultDurationMs, motion::easeInOut());
    column->addWidget(m_helpArea);
    render(false);
}

void RequirementRow::render(bool animated)
{
    m_helpArea->setExpanded(m_showHelp, animated);
    m_help->setAccessibleDescription(m_showHelp ? tr("Expanded") : tr("Collapsed"));
}

SystemCheckView::SystemCheckView(InstallationState& state, SystemDetector& detector, Platform& platform,
                                 QWidget* parent)
    : FlowScreen(QStringLiteral("systemCheckView"), tr("System Check"), parent),
      m_state(state),
      m_detector(detector),
      m_platform(platform)
{
    QVBoxLayout* column = makeColumn(24, 32);
    const std::optional<CLITool> tool = m_state.selectedTool();
    if (tool) {
        auto* header = vstack(12);
        auto* tile = new ToolTile;
        tile->present(*tool, ToolTile::Content::symbol);
        header->addWidget(tile, 0, Qt::AlignHCenter);
        auto* title = flow::centredText(tr("System Check"), Theme::font(17, QFont::Bold));
        title->setObjectName(QStringLiteral("systemCheckTitle"));
        header->addWidget(title);
        auto* subtitle = flow::centredText(tr("Checking requirements for %1").arg(tool->displayName()), Theme::body(),
                                           Tint(Role::secondary));
        header->addWidget(subtitle);
        column->addLayout(header);
    }

    // Checking.
    m_checking = new QWidget;
    m_checking->setObjectName(QStringLiteral("checkingRow"));
    // The spinner and its line, 16 apart, with room around both.
    auto* checking = vstack(m_checking, 16, around(32));
    auto* spinner = new ActivityIndicator(24);
    checking->addWidget(spinner, 0, Qt::AlignHCenter);
    auto* checkingText = flow::centredText(tr("Checking system requirements..."), Theme::body(), Tint(Role::secondary));
    checking->addWidget(checkingText);
    column->addWidget(m_checking);

    // Already installed.
    m_installed = new QWidget;
    m_installed->setObjectName(QStringLiteral("alreadyInstalled"));
    auto* installed = vstack(m_installed, 12, around(20));
    installed->addWidget(new SymbolView(QStringLiteral("checkmark.circle.fill"), 40, Tint(Role::green)), 0,
                         Qt::AlignHCenter);
    m_installedTitle = flow::centredText(QString(), Theme::headline());
    m_installedTitle->setObjectName(QStringLiteral("alreadyInstalledTitle"));
    installed->addWidget(m_installedTitle);
    m_installedVersionLabel = flow::centredText(QString(), Theme::body(), Tint(Role::secondary));
    m_installedVersionLabel->setObjectName(QStringLiteral("installedVersion"));
    installed->addWidget(m_installedVersionLabel);
    auto* ready = flow::centredText(tr("You're ready to use it in Terminal."), Theme::body(), Tint(Role::secondary));
    installed->addWidget(ready);
    column->addWidget(m_installed);

    // The requirements, one card each, the screen's side padding from the sides.
    m_requirementList = new QWidget;
    m_requirementList->setObjectName(QStringLiteral("requirementList"));
    vstack(m_requirementList, 16, sides(spacing::screenSide));
    column->addWidget(m_requirementList);

    // Why "Install" is not available, and a way to look again once it is fixed.
    m_blocked = new QWidget;
    m_blocked->setObjectName(QStringLiteral("blockedNotice"));
    auto* blocked = hstack(m_blocked, 8, sides(spacing::screenSide));
    blocked->addWidget(new SymbolView(QStringLiteral("exclamationmark.triangle.fill"), 12, Tint(Role::red)), 0,
                       Qt::AlignTop);
    m_blockedText = new Label(QString(), Theme::callout());
    m_blockedText->setObjectName(QStringLiteral("blockedReason"));
    m_blockedText->setWrapping(true);
    blocked->addWidget(m_blockedText, 1);
    auto* again = new Button(tr("Check Again"), Button::Style::bordered);
    again->setObjectName(QStringLiteral("checkAgainButton"));
    connect(again, &QAbstractButton::clicked, this, &SystemCheckView::startCheck);
    blocked->addWidget(again, 0, Qt::AlignTop);
    column->addWidget(m_blocked);
    m_installerSlot = vstack(0, sides(spacing::screenSide));
    column->addLayout(m_installerSlot);
    column->addStretch(1);

    addBackToHome(m_state);
    m_main = flow::mainButton(QString(), QStringLiteral("mainButton"));
    connect(m_main, &QAbstractButton::clicked, this, [this] {
        if (m_toolAlreadyInstalled)
            m_state.setCurrentStep(InstallationStep::terminal);
        else if (m_state.canProceed())
            m_state.goToNextStep();
    });
    bottomBar()->addWidget(m_main);
    setDefaultButton(m_main);

    connect(&m_state, &InstallationState::requirementsChanged, this, [this] {
        rebuildRequirementRows();
        render();
    });
    rebuildRequirementRows();
    render();
}

QList<RequirementRow*> SystemCheckView::requirementRows() const
{
    return m_requirementList->findChildren<RequirementRow*>(Qt::FindDirectChildrenOnly);
}

void SystemCheckView::startCheck()
{
    const std::optional<CLITool> tool = m_state.selectedTool();
    if (!tool)
        return;
    m_isChecking = true;
    // A new look replaces what the last one offered.
    delete m_installerFallback;
    m_installerFallback = nullptr;
    render();
    QCoro::connect(m_detector.checkForTool(*tool), this, [this](const ToolCheck& check) {
        if (check.isInstalled) {
            m_installedVersion = check.version;
            m_toolAlreadyInstalled = true;
            m_state.setToolAlreadyInstalled(true);
        } else {
            m_state.setRequirements(check.requirements);
        }
        m_isChecking = false;
        render();
        focusMainControl();
        Q_EMIT checkFinished();
    });
}

void SystemCheckView::rebuildRequirementRows()
{
    qDeleteAll(requirementRows());
    const SystemWording& wording = m_platform.wording();
    const std::optional<CLITool> tool = m_state.selectedTool();
    for (const RequirementStatus& status : m_state.requirements()) {
        // The Node.js row says which version the chosen tool needs.
        const QString note = tool && status.requirement == SystemRequirement::nodeJS
                                 ? tool->nodeRequirementNote(status.nodeMajorNeeded)
                                 : QString();
        // Git comes with the system's developer tools, whose installer the row offers.
        std::function<void()> fix;
        if (status.requirement == SystemRequirement::git)
            fix = [this] { startDeveloperToolsInstaller(); };
        m_requirementList->layout()->addWidget(new RequirementRow(status, wording, note, std::move(fix)));
    }
    // The rows come after the bottom bar was made; Tab still reads them first.
    orderTabChain(this);
}

void SystemCheckView::startDeveloperToolsInstaller()
{
    delete m_installerFallback;
    m_installerFallback = nullptr;
    const QString line = m_platform.developerToolsItem().installLine;
    m_platform.startDeveloperToolsInstaller([screen = QPointer(this), line](TerminalAnswer answer) {
        if (!screen || answer == TerminalAnswer::opened || line.isEmpty())
            return;
        delete screen->m_installerFallback;
        screen->m_installerFallback = new TerminalFallbackRow(
            tr("The installer could not be started"), tr("Open a terminal yourself and type this line:"), line, {});
        screen->m_installerFallback->setObjectName(QStringLiteral("installerFallback"));
        screen->m_installerSlot->addWidget(screen->m_installerFallback);
        screen->m_installerFallback->show();
        orderTabChain(screen);
        // Below the requirements a small window may not show it: bring it into view once laid out.
        QTimer::singleShot(0, screen->m_installerFallback, [screen] {
            if (screen && screen->m_installerFallback)
                screen->scrollView()->ensureWidgetVisible(screen->m_installerFallback, 0, 24);
        });
    });
}

QWidget* SystemCheckView::mainControl() const
{
    if (m_main->isEnabled() || m_isChecking)
        return m_main;
    // Blocked: the first thing to do is the fix a row offers, else reading why.
    const QList<RequirementRow*> rows = requirementRows();
    for (RequirementRow* row : rows) {
        if (!row->isMet())
            return row->fixButton() ? static_cast<QWidget*>(row->fixButton()) : row->helpButton();
    }
    return rows.isEmpty() ? nullptr : rows.first()->helpButton();
}

void SystemCheckView::render()
{
    const std::optional<CLITool> tool = m_state.selectedTool();
    const bool installed = !m_isChecking && m_toolAlreadyInstalled;
    m_checking->setVisible(m_isChecking);
    m_installed->setVisible(installed);
    m_requirementList->setVisible(!m_isChecking && !m_toolAlreadyInstalled);

    m_installedTitle->setText(tr("%1 is already installed!").arg(tool ? tool->displayName() : tr("Tool")));
    m_installedVersionLabel->setVisible(m_installedVersion.has_value());
    m_installedVersionLabel->setText(tr("Version: %1").arg(m_installedVersion.value_or(QString())));

    if (m_toolAlreadyInstalled) {
        m_main->setTitle(tr("Open Terminal"));
        m_main->setEnabled(true);
    } else {
        // Nothing is installed before the check has said what the machine needs.
        const bool canProceed = m_state.canProceed();
        m_main->setTitle(canProceed ? tr("Install") : tr("Requirements Not Met"));
        m_main->setEnabled(canProceed && !m_isChecking);
    }
    QStringList blocking;
    for (const RequirementStatus& status : m_state.requirements()) {
        if (!status.isMet && !status.requirement.isInstalledBySetup())
            blocking << status.requirement.title(m_platform.wording()) + QStringLiteral(" (") + status.details +
                            QLatin1Char(')');
    }
    const bool blocked = !m_isChecking && !m_toolAlreadyInstalled && !blocking.isEmpty();
    m_blocked->setVisible(blocked);
    m_blockedText->setText(
        blocked ? tr("Install is not available until this is fixed: %1.").arg(QLocale().createSeparatedList(blocking))
                : QString());
}

} // namespace qf
