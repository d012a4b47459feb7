#include "CompletionView.h"

#include "FlowScreen.h"
#include "InstallationState.h"
#include "TerminalLauncher.h"
#include "ToolLaunch.h"

#include "CopiedToast.h"
#include "CopyButton.h"
#include "FocusOrder.h"
#include "IconTile.h"
#include "Label.h"
#include "Layout.h"
#include "RoundedCard.h"
#include "Surface.h"
#include "Symbol.h"
#include "TerminalFallbackRow.h"

#include <QPainter>
#include <QScrollBar>

#include <utility>

namespace qf {

using namespace ui;

namespace {

// Above and below a command row.
constexpr QMargins kCommandRowPadding(0, 4, 0, 4);
// Between a code box's edges and its command: a command row's, and the smaller one of a step.
constexpr QMargins kCommandPadding(8, 4, 8, 4);
constexpr QMargins kStepCommandPadding(6, 3, 6, 3);
// "Try asking" in from the left, lined up with the steps' titles after the badge and its gap.
constexpr QMargins kTryAskingIndent(32, 0, 0, 0);
// Under the screen's content.
constexpr QMargins kCompletionPadding(0, 0, 0, 24);

// Code in a box on the text background: commands to copy.
RoundedCard* codeBox(const QString& code, const QFont& font, QMargins padding, qreal radius)
{
    auto* box = roundedCard(QStringLiteral("codeBox"), radius, Tint(Role::textBackground));
    box->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Preferred);
    auto* text = new Label(code, font);
    text->setObjectName(QStringLiteral("code"));
    text->setTextInteractionFlags(Qt::TextSelectableByMouse);
    // As wide as the command on one line; a long one wraps rather than widening the screen
    // past a small window.
    text->setWrapping(true, 4);
    hstack(box, 0, padding)->addWidget(text);
    return box;
}

// A card's place in the column: full width, the screen's side padding in from the sides.
QHBoxLayout* inset(QWidget* card)
{
    auto* row = hstack(0, sides(spacing::screenSide));
    row->addWidget(card);
    return row;
}

} // namespace

CommandRow::CommandRow(const QString& command, const QString& description, std::function<void()> onCopy,
                       QWidget* parent)
    : QWidget(parent), m_command(command)
{
    setObjectName(QStringLiteral("commandRow"));
    auto* column = vstack(this, 4, kCommandRowPadding);
    auto* row = hstack(6);
    row->addWidget(codeBox(command, Theme::font(10, QFont::Normal, FontDesign::monospaced), kCommandPadding, 4));
    row->addStretch(1);
    auto* copy = new CopyButton(command, CopyButton::CopyButtonStyle::small, std::move(onCopy));
    copy->setAccessibleName(tr("Copy %1").arg(command));
    row->addWidget(copy, 0, Qt::AlignVCenter);
    column->addLayout(row);
    auto* text = new Label(description, Theme::caption(), Tint(Role::secondary));
    text->setObjectName(QStringLiteral("commandDescription"));
    text->setWrapping(true);
    column->addWidget(text);
}

CommonCommandsCard::CommonCommandsCard(CLITool tool, const std::function<void()>& onCopy, QWidget* parent)
    : DisclosureCard(QStringLiteral("command.square.fill"), Tint(Role::purple), tr("Common Commands"), parent)
{
    setObjectName(QStringLiteral("commonCommandsCard"));
    setFill(Tint(Role::controlBackground));
    header()->setObjectName(QStringLiteral("commonCommandsHeader"));
    auto* body = new QWidget;
    auto* list = vstack(body, 8);
    for (const ExampleCommand& example : tool.exampleCommands())
        list->addWidget(new CommandRow(example.command, example.description, onCopy));
    setBody(body, 12, motion::defaultDurationMs, motion::easeInOut());
    connect(this, &DisclosureCard::toggled, this, [this] { setExpanded(!isExpanded()); });
}

QList<CommandRow*> CommonCommandsCard::rows() const { return findChildren<CommandRow*>(); }

StepRow::StepRow(int number, const QString& title, const std::optional<QString>& command, std::function<void()> onCopy,
                 QWidget* parent)
    : QWidget(parent), m_number(number), m_command(command)
{
    setObjectName(QStringLiteral("stepRow.%1").arg(number));
    auto* row = hstack(this, 12);
    auto* badge = new IconTile(QSize(24, 24), Shape::circle(), Tint(Role::accent, 0.15));
    badge->setText(QString::number(number), Theme::font(10, QFont::Bold), Tint(Role::accent));
    row->addWidget(badge, 0, Qt::AlignTop);
    auto* column = vstack(4);
    auto* heading = new Label(title, Theme::font(11, QFont::Bold));
    heading->setObjectName(QStringLiteral("stepTitle"));
    heading->setWrapping(true);
    column->addWidget(heading);
    if (command) {
        auto* commandRow = hstack(6);
        commandRow->addWidget(
            codeBox(*command, Theme::font(10, QFont::Normal, FontDesign::monospaced), kStepCommandPadding, 4), 1);
        auto* copy = new CopyButton(*command, CopyButton::CopyButtonStyle::small, std::move(onCopy));
        copy->setAccessibleName(tr("Copy %1").arg(*command));
        commandRow->addWidget(copy, 0, Qt::AlignVCenter);
        commandRow->addStretch(0);
        column->addLayout(commandRow);
    }
    row->addLayout(column, 1);
}

FirstProjectTipsCard::FirstProjectTipsCard(const std::function<void()>& onCopy, QWidget* parent)
    : DisclosureCard(QStringLiteral("star.fill"), Tint(Role::yellow), tr("Your First Project"), parent)
{
    setObjectName(QStringLiteral("firstProjectCard"));
    setFill(Tint(Role::yellow, 0.05));
    setStroke(Tint(Role::yellow, 0.2), 1);
    header()->setObjectName(QStringLiteral("firstProjectHeader"));
    auto* body = new QWidget;
    auto* list = vstack(body, 16);
    list->addWidget(new StepRow(
        1, tr("Create a project folder"),
        QStringLiteral("mkdir -p ~/Developer/my-first-project && cd ~/Developer/my-first-project"), onCopy));
    list->addWidget(
        new StepRow(2, tr("Initialize git (optional but recommended)"), QStringLiteral("git init"), onCopy));
    list->addWidget(new StepRow(3, tr("Start your AI assistant"), std::nullopt, onCopy));
    auto* ask = new Label(tr("Try asking: \"Help me build a simple todo list app\""), Theme::caption(),
                          Tint(Role::secondary));
    ask->setObjectName(QStringLiteral("tryAsking"));
    ask->setWrapping(true);
    ask->setContentsMargins(kTryAskingIndent);
    list->addWidget(ask);
    setBody(body, 12, motion::defaultDurationMs, motion::easeInOut());
    setExpanded(true, false);
    connect(this, &DisclosureCard::toggled, this, [this] { setExpanded(!isExpanded()); });
}

QList<StepRow*> FirstProjectTipsCard::steps() const { return findChildren<StepRow*>(); }

CompletionView::CompletionView(InstallationState& state, TerminalLauncher& terminal, QWidget* parent)
    : QWidget(parent), m_state(state), m_wording(terminal.wording())
{
    setObjectName(QStringLiteral("completionView"));
    const std::optional<CLITool> tool = m_state.selectedTool();
    setAccessibleName(tr("Ready to use"));
    auto* root = vstack(this, 0);

    // The bar at the top: back to the dashboard, and the tool in a terminal window.
    auto* bar = new RoundedCard;
    bar->setObjectName(QStringLiteral("topBar"));
    bar->setShape(Shape::rounded(0));
    bar->setFill(Tint(Role::controlBackground));
    auto* barColumn = vstack(bar, 0);
    // Its buttons keep to the content's column below.
    auto* barHolder = new QWidget;
    auto* barRow = centredRow(barHolder, this, 16,
                              sides(spacing::screenSide, spacing::barPadding, spacing::barPadding));
    auto* home = new Button(tr("Home"), Button::Style::bordered, Button::Size::large);
    home->setObjectName(QStringLiteral("homeButton"));
    home->setLeadingSymbol(QStringLiteral("chevron.left"), 12, SymbolWeight::semibold);
    home->setSpacing(6);
    home->setLabelWidth(80);
    connect(home, &QAbstractButton::clicked, this, [this] {
        m_state.reset();
        m_state.setCurrentStep(InstallationStep::home);
    });
    barRow->addWidget(home);
    barRow->addStretch(1);
    m_main = home;
    if (tool) {
        m_launch = new ToolLaunch(terminal, tool->commandName(), this);
        auto* open = new Button(tr("Open in Terminal"), Button::Style::prominent, Button::Size::large);
        open->setObjectName(QStringLiteral("openInTerminalButton"));
        open->setTint(Tint(tool->brandColor()));
        open->setLeadingSymbol(QStringLiteral("terminal.fill"), 13);
        open->setSpacing(8);
        open->setMinimumLabelWidth(160);
        connect(open, &QAbstractButton::clicked, m_launch, &ToolLaunch::open);
        barRow->addWidget(open);
        m_main = open;
    }
    barColumn->addWidget(barHolder);
    barColumn->addWidget(divider());
    root->addWidget(bar);

    m_scroll = new ScrollView;
    m_scroll->setObjectName(QStringLiteral("completionScroll"));
    m_scroll->setAccessibleName(accessibleName());
    auto* column = centredColumn(m_scroll->content(), this, 24, kCompletionPadding);
    if (tool) {
        // Shown when a terminal window could not be opened, where the button that tried is.
        m_fallback = new TerminalFallbackRow(m_launch->typedLine(), [this] { m_toast->present(); });
        auto* fallbackRow = hstack(0, sides(spacing::screenSide, 16));
        fallbackRow->addWidget(m_fallback);
        column->addLayout(fallbackRow);
        buildContent(*tool, column);
        connect(m_launch, &ToolLaunch::failedChanged, this, [this] {
            render();
            if (m_launch->failed())
                m_scroll->verticalScrollBar()->setValue(0);
        });
    }
    column->addStretch(1);
    root->addWidget(m_scroll, 1);

    m_toast = new CopiedToastPresenter(this, 32);
    render();
}

void CompletionView::buildContent(CLITool tool, QVBoxLayout* column)
{
    const QColor brand = tool.brandColor();
    const auto onCopy = [this] { m_toast->present(); };

    // The tool's logo and the good news.
    auto* header = vstack(16, sides(spacing::screenSide, 24));
    header->addWidget(flow::toolLogo(tool, 72, 16, 12, 6), 0, Qt::AlignHCenter);
    auto* titles = vstack(6);
    const bool opened = m_state.isOpeningExistingTool();
    auto* title = flow::centredText(opened ? tool.displayName() : tr("You're All Set!"), Theme::font(22, QFont::Bold));
    title->setObjectName(QStringLiteral("completionTitle"));
    titles->addWidget(title);
    auto* subtitle = flow::centredText(opened ? tr("Ready to use")
                                              : tr("%1 is installed and ready to use").arg(tool.displayName()),
                                       Theme::body(), Tint(Role::secondary));
    subtitle->setObjectName(QStringLiteral("completionSubtitle"));
    titles->addWidget(subtitle);
    header->addLayout(titles);
    column->addLayout(header);
    // What the installation left for the user to know, before anything else.
    if (!m_state.caveats().isEmpty() && !opened)
        column->addLayout(inset(flow::caveatCard(m_state.caveats())));

    // Quick start: the command to try, and how signing in works.
    auto* quickStart = roundedCard(QStringLiteral("quickStartCard"), 12);
    auto* quick = vstack(quickStart, 12, around(spacing::cardPadding));
    quick->addWidget(new Label(tr("Quick Start"), Theme::headline()));
    auto* tryColumn = vstack(8);
    tryColumn->addWidget(new Label(tr("Open Terminal and try:"), Theme::callout(), Tint(Role::secondary)));
    auto* tryBox = roundedCard(QStringLiteral("tryCommandBox"), 8, Tint(Role::textBackground));
    auto* tryRow = hstack(tryBox, 8, around(spacing::boxPadding));
    auto* tryText = new Label(tool.tryCommand(), Theme::font(13, QFont::Normal, FontDesign::monospaced));
    tryText->setObjectName(QStringLiteral("tryCommand"));
    tryText->setTextInteractionFlags(Qt::TextSelectableByMouse);
    tryRow->addWidget(tryText, 1);
    auto* copyTry = new CopyButton(tool.tryCommand(), CopyButton::CopyButtonStyle::regular, onCopy);
    copyTry->setObjectName(QStringLiteral("copyTryCommand"));
    copyTry->setAccessibleName(tr("Copy %1").arg(tool.tryCommand()));
    tryRow->addWidget(copyTry, 0, Qt::AlignVCenter);
    tryColumn->addWidget(tryBox);
    quick->addLayout(tryColumn);

    auto* signIn = roundedCard(QStringLiteral("signInRow"), 8, Tint(brand, 0.1));
    auto* signInRow = hstack(signIn, 8, around(spacing::boxPadding));
    signInRow->addWidget(new SymbolView(QStringLiteral("person.circle.fill"), 13, Tint(brand)), 0, Qt::AlignTop);
    // Once a key is saved, that is how the tool signs in.
    const bool keySaved = !m_state.apiKey().isEmpty();
    auto* note = new Label(keySaved ? tr("Your API key is saved: new terminal windows give it to %1 as %2.")
                                          .arg(tool.displayName(), tool.apiKeyEnvVar())
                                    : tool.signInNote(),
                           Theme::callout(), Tint(Role::secondary));
    note->setObjectName(QStringLiteral("signInNote"));
    note->setWrapping(true);
    signInRow->addWidget(note, 1);
    quick->addWidget(signIn);

    // Where a key is stored instead of signing in.
    auto* useKey = new Button(keySaved ? tr("Change API Key") : tr("Use an API Key Instead"), Button::Style::link);
    useKey->setObjectName(QStringLiteral("useAPIKeyButton"));
    useKey->setTitleFont(Theme::callout());
    useKey->setTrailingSymbol(QStringLiteral("chevron.right"), 9, SymbolWeight::semibold);
    useKey->setSpacing(3);
    connect(useKey, &QAbstractButton::clicked, this, [this] { m_state.setCurrentStep(InstallationStep::apiKey); });
    quick->addWidget(useKey, 0, Qt::AlignLeft);
    column->addLayout(inset(quickStart));

    column->addLayout(inset(new CommonCommandsCard(tool, onCopy)));
    column->addLayout(inset(new FirstProjectTipsCard(onCopy)));
}

void CompletionView::render()
{
    if (m_fallback) {
        m_fallback->setVisible(m_launch->failed());
        // Refused by the system: where to allow it.
        const bool notAllowed = m_launch->notAllowed();
        m_fallback->setMessage(notAllowed ? m_wording.terminalNotAllowedTitle : QString(),
                               notAllowed ? m_wording.terminalNotAllowedHint : QString());
    }
}

void CompletionView::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    if (!std::exchange(m_appeared, true))
        focusUnlessTaken(this, m_main);
}

void CompletionView::paintEvent(QPaintEvent*) { QPainter(this).fillRect(rect(), Theme::color(Role::windowBackground)); }

} // namespace qf
