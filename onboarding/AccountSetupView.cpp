#include "AccountSetupView.h"

#include "InstallationState.h"
#include "Platform.h"

#include "IconTile.h"
#include "Label.h"
#include "Layout.h"
#include "Motion.h"
#include "RoundedCard.h"
#include "Surface.h"
#include "Symbol.h"

namespace qf {

using namespace ui;

namespace {

// How a step row looks before the entrance: invisible, 10 points lower.
const motion::Look kStepOut{0.0, {0, 10}, 1.0};
// Between a step's texts and the next step.
constexpr int kStepGap = 20;

} // namespace

AccountSetupStepRow::AccountSetupStepRow(int stepNumber, const QString& title, const QString& description, bool isLast,
                                         const QColor& accentColor, QWidget* parent)
    : QWidget(parent), m_stepNumber(stepNumber), m_isLast(isLast)
{
    setObjectName(QStringLiteral("accountStep.%1").arg(stepNumber));
    setAccessibleName(tr("Step %1: %2").arg(stepNumber).arg(title));
    setAccessibleDescription(description);
    auto* row = hstack(this, 16);

    // The marker: the number, and the line that runs down to the next number.
    auto* marker = vstack(0);
    auto* circle = new IconTile(QSize(32, 32), Shape::circle(), Tint(accentColor, 0.15));
    circle->setObjectName(QStringLiteral("stepNumber"));
    circle->setText(QString::number(stepNumber), Theme::font(14, QFont::Bold, FontDesign::rounded), Tint(accentColor));
    marker->addWidget(circle, 0, Qt::AlignHCenter);
    if (!isLast) {
        auto* line = new RoundedCard;
        line->setObjectName(QStringLiteral("stepConnector"));
        line->setCornerRadius(0);
        line->setFill(Tint(accentColor, 0.2));
        line->setFixedWidth(2);
        line->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
        marker->addWidget(line, 1, Qt::AlignHCenter);
        m_connector = line;
    } else {
        marker->addStretch(1);
    }
    auto* markerBox = new QWidget;
    markerBox->setFixedWidth(32);
    markerBox->setLayout(marker);
    row->addWidget(markerBox);

    auto* text = vstack(4, QMargins(0, 0, 0, isLast ? 0 : kStepGap));
    auto* titleLabel = new Label(title, Theme::headline());
    titleLabel->setObjectName(QStringLiteral("stepTitle"));
    titleLabel->setWrapping(true);
    text->addWidget(titleLabel);
    auto* descriptionLabel = new Label(description, Theme::subheadline(), Tint(Role::secondary));
    descriptionLabel->setObjectName(QStringLiteral("stepDescription"));
    descriptionLabel->setWrapping(true);
    text->addWidget(descriptionLabel);
    row->addLayout(text, 1);
}

AccountSetupView::AccountSetupView(InstallationState& state, Platform& platform, QWidget* parent)
    : FlowScreen(QStringLiteral("accountSetupView"), tr("Account"), parent), m_state(state)
{
    QVBoxLayout* column = makeColumn(24, 24);
    const std::optional<CLITool> tool = m_state.selectedTool();
    if (tool)
        buildContent(*tool, platform, column);
    column->addStretch(1);

    auto* back = flow::backButton(Button::Style::plain);
    connect(back, &QAbstractButton::clicked, this, [this] { m_state.goToPreviousStep(); });
    bottomBar()->addWidget(back);
    bottomBar()->addStretch(1);
    if (tool) {
        auto* createAccount = new Button(tr("Create Account"), Button::Style::bordered, Button::Size::large);
        createAccount->setObjectName(QStringLiteral("createAccountButton"));
        createAccount->setTrailingSymbol(QStringLiteral("arrow.up.right"), 11, SymbolWeight::semibold);
        createAccount->setSpacing(6);
        const QUrl signUp = tool->signUpURL();
        connect(createAccount, &QAbstractButton::clicked, this, [&platform, signUp] { platform.openURL(signUp); });
        bottomBar()->addWidget(createAccount);
    }
    auto* haveAccount = flow::mainButton(tr("I Have an Account"), QStringLiteral("haveAccountButton"));
    connect(haveAccount, &QAbstractButton::clicked, this, [this] { m_state.goToNextStep(); });
    bottomBar()->addWidget(haveAccount);
    setDefaultButton(haveAccount);
}

void AccountSetupView::buildContent(CLITool tool, Platform& platform, QVBoxLayout* column)
{
    const QColor brand = tool.brandColor();

    auto* header = vstack(16, sides(spacing::screenSide));
    header->addWidget(flow::toolLogo(tool, 64, 14, 10, 5), 0, Qt::AlignHCenter);
    auto* titles = vstack(8);
    auto* title = flow::centredText(tr("Before you install %1").arg(tool.displayName()), Theme::font(17, QFont::Bold));
    title->setObjectName(QStringLiteral("accountTitle"));
    titles->addWidget(title);
    auto* requirement = flow::centredText(tool.accountRequirement(), Theme::subheadline(), Tint(Role::secondary));
    requirement->setObjectName(QStringLiteral("accountRequirement"));
    titles->addWidget(requirement);
    header->addLayout(titles);
    column->addLayout(header);

    // The steps card. Each row fades and rises on its own, inside the card's padding.
    auto* card = roundedCard(QStringLiteral("accountStepsCard"), 16);
    auto* steps = vstack(card, 0, around(20));
    const QList<AccountSetupStep>& entries = tool.accountSetupSteps(platform.wording());
    for (qsizetype i = 0; i < entries.size(); ++i) {
        auto* row = new AccountSetupStepRow(int(i) + 1, entries[i].title, entries[i].description,
                                            i == entries.size() - 1, brand);
        motion::applyLook(row, kStepOut, 0.0);
        steps->addWidget(row);
        m_rows << row;
    }
    auto* cardRow = vstack(0, sides(spacing::screenSide));
    cardRow->addWidget(card);
    column->addLayout(cardRow);

    // The pricing line sits centred under the steps.
    auto* pricing = hstack(8, sides(spacing::screenSide));
    pricing->addStretch(1);
    pricing->addWidget(new SymbolView(QStringLiteral("creditcard"), 12, Tint(Role::secondary)), 0, Qt::AlignVCenter);
    auto* price = new Label(tool.pricingInfo(), Theme::caption(), Tint(Role::secondary));
    price->setObjectName(QStringLiteral("pricingInfo"));
    price->setWrapping(true);
    pricing->addWidget(price, 0);
    pricing->addStretch(1);
    column->addLayout(pricing);
}

void AccountSetupView::appeared()
{
    m_animateSteps = true;
    // One row after another: each eases out over 0.4 s, 0.1 s after the one before.
    // Each animation belongs to its row and ends with it.
    for (qsizetype i = 0; i < m_rows.size(); ++i) {
        QWidget* row = m_rows[i];
        motion::animate(
            row, stepDurationMs, motion::easeOut(),
            [row](qreal progress) { motion::applyLook(row, kStepOut, progress); }, int(i) * stepDelayMs);
    }
}

} // namespace qf
