#include "TerminalScreenView.h"

#include "FlowScreen.h"
#include "InstallationState.h"
#include "Platform.h"
#include "TerminalLauncher.h"
#include "ToolLaunch.h"

#include "CopiedToast.h"
#include "FocusOrder.h"
#include "Label.h"
#include "Layout.h"
#include "RoundedCard.h"
#include "Symbol.h"
#include "TerminalFallbackRow.h"

#include <QPainter>

namespace qf {

using namespace ui;

namespace {

constexpr int kCardWidth = 400;
// Above and below the screen's content.
constexpr QMargins kTerminalScreenPadding(0, 24, 0, 24);
// Between the quick tips card's edges and its rows.
constexpr QMargins kTipsPadding(16, 14, 16, 16);

Button* backToHomeButton(InstallationState& state, QWidget* context)
{
    auto* back = new Button(TerminalScreenView::tr("Back to Home"), Button::Style::prominent, Button::Size::large);
    back->setObjectName(QStringLiteral("backToHomeButton"));
    QObject::connect(back, &QAbstractButton::clicked, context, [&state] {
        state.reset();
        state.setCurrentStep(InstallationStep::home);
    });
    return back;
}

// At most `width` points wide, centred in its row.
QHBoxLayout* centredAtMost(QWidget* widget, int width)
{
    widget->setMaximumWidth(width);
    auto* row = hstack(0, sides(spacing::screenSide));
    row->addStretch(1);
    row->addWidget(widget, 100);
    row->addStretch(1);
    return row;
}

} // namespace

TerminalLaunchedView::TerminalLaunchedView(InstallationState& state, CLITool tool, ToolLaunch& launch,
                                           const SystemWording& wording, QWidget* parent)
    : QWidget(parent), m_tool(tool), m_launch(launch), m_wording(wording)
{
    setObjectName(QStringLiteral("terminalLaunchedView"));
    auto* root = vstack(this, 0);
    m_scroll = new ScrollView;
    root->addWidget(m_scroll);
    auto* column = centredColumn(m_scroll->content(), this, 12, kTerminalScreenPadding);
    column->addStretch(1);

    column->addWidget(new SymbolView(QStringLiteral("terminal.fill"), 48, Tint(tool.brandColor())), 0,
                      Qt::AlignHCenter);
    column->addSpacing(4);
    m_title = flow::centredText(QString(), Theme::font(17, QFont::DemiBold));
    m_title->setObjectName(QStringLiteral("terminalTitle"));
    m_title->setContentsMargins(sides(spacing::screenSide));
    column->addWidget(m_title);
    m_subtitle = flow::centredText(wording.switchToTerminal.arg(tool.displayName()), Theme::body(),
                                   Tint(Role::secondary));
    m_subtitle->setObjectName(QStringLiteral("terminalSubtitle"));
    m_subtitle->setContentsMargins(sides(spacing::screenSide));
    column->addWidget(m_subtitle);

    m_fallback = new TerminalFallbackRow(launch.typedLine(), [this] { m_toast->present(); });
    column->addLayout(centredAtMost(m_fallback, kCardWidth));

    column->addSpacing(8);
    auto* buttons = hstack(12);
    buttons->addStretch(1);
    auto* again = new Button(tr("Open Terminal Again"), Button::Style::bordered, Button::Size::large);
    again->setObjectName(QStringLiteral("openAgainButton"));
    connect(again, &QAbstractButton::clicked, &launch, &ToolLaunch::open);
    buttons->addWidget(again);
    buttons->addWidget(backToHomeButton(state, this));
    buttons->addStretch(1);
    column->addLayout(buttons);
    column->addSpacing(12);

    // The first three example commands.
    auto* tips = roundedCard(QStringLiteral("quickTipsCard"), 8);
    auto* tipsColumn = vstack(tips, 10, kTipsPadding);
    tipsColumn->addWidget(new Label(tr("Quick Tips"), Theme::headline()));
    const QList<ExampleCommand>& examples = tool.exampleCommands();
    for (qsizetype i = 0; i < std::min<qsizetype>(3, examples.size()); ++i) {
        auto* row = hstack(8);
        row->addWidget(new SymbolView(QStringLiteral("chevron.right"), 10, Tint(Role::secondary)), 0, Qt::AlignVCenter);
        auto* command = new Label(examples[i].command, Theme::font(13, QFont::Normal, FontDesign::monospaced));
        command->setObjectName(QStringLiteral("tipCommand"));
        command->setTextInteractionFlags(Qt::TextSelectableByMouse);
        command->setWrapping(true);
        row->addWidget(command, 1);
        tipsColumn->addLayout(row);
    }
    column->addLayout(centredAtMost(tips, kCardWidth));
    column->addStretch(1);

    m_toast = new CopiedToastPresenter(this, 32);
    connect(&launch, &ToolLaunch::failedChanged, this, &TerminalLaunchedView::render);
    render();
}

void TerminalLaunchedView::render()
{
    const bool failed = m_launch.failed();
    // Without a window the title does not claim one.
    m_title->setText(failed ? tr("Start %1 in a terminal").arg(m_tool.displayName())
                            : m_wording.toolLaunchedTitle.arg(m_tool.displayName()));
    m_subtitle->setVisible(!failed);
    m_fallback->setVisible(failed);
    const bool notAllowed = m_launch.notAllowed();
    m_fallback->setMessage(notAllowed ? m_wording.terminalNotAllowedTitle : QString(),
                           notAllowed ? m_wording.terminalNotAllowedHint : QString());
    setAccessibleName(m_title->text());
    m_scroll->setAccessibleName(m_title->text());
}

TerminalScreenView::TerminalScreenView(InstallationState& state, TerminalLauncher& terminal, const Platform& platform,
                                       QWidget* parent)
    : QWidget(parent)
{
    setObjectName(QStringLiteral("terminalScreenView"));
    auto* root = vstack(this, 0);
    if (const std::optional<CLITool> tool = state.selectedTool()) {
        m_launch = new ToolLaunch(terminal, tool->commandName(), this);
        root->addWidget(new TerminalLaunchedView(state, *tool, *m_launch, platform.wording()));
        return;
    }
    setAccessibleName(tr("No tool selected"));
    root->addStretch(1);
    auto* none = flow::centredText(tr("No tool selected"), Theme::font(17, QFont::DemiBold));
    none->setObjectName(QStringLiteral("noToolTitle"));
    root->addWidget(none);
    root->addSpacing(16);
    root->addWidget(backToHomeButton(state, this), 0, Qt::AlignHCenter);
    root->addStretch(1);
}

void TerminalScreenView::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    if (!m_appeared) {
        m_appeared = true;
        focusUnlessTaken(this, findChild<QWidget*>(QStringLiteral("backToHomeButton")));
    }
    if (m_launch && !m_hasLaunched) {
        m_hasLaunched = true;
        m_launch->open();
    }
}

void TerminalScreenView::paintEvent(QPaintEvent*)
{
    QPainter(this).fillRect(rect(), Theme::color(Role::windowBackground));
}

} // namespace qf
