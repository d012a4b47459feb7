#include "FirstTimeWelcomeCard.h"

#include "IconTile.h"
#include "Label.h"
#include "Layout.h"
#include "Symbol.h"

namespace qf {

using namespace ui;

WelcomeStep::WelcomeStep(int number, const QString& title, const QString& description, QWidget* parent)
    : QWidget(parent)
{
    setObjectName(QStringLiteral("welcomeStep"));
    setAccessibleName(QStringLiteral("%1. %2").arg(number).arg(title));
    setAccessibleDescription(description);
    auto* row = hstack(this, 14);
    auto* circle = new IconTile(QSize(28, 28), Shape::circle(), Tint(Role::accent, 0.12));
    circle->setText(QString::number(number), Theme::font(13, QFont::Bold, FontDesign::rounded), Tint(Role::accent));
    row->addWidget(circle, 0, Qt::AlignTop);
    auto* text = vstack(3);
    auto* titleLabel = new Label(title, Theme::font(13, QFont::DemiBold));
    titleLabel->setObjectName(QStringLiteral("welcomeStepTitle"));
    auto* descriptionLabel = new Label(description, Theme::font(12), Tint(Role::secondary));
    descriptionLabel->setObjectName(QStringLiteral("welcomeStepDescription"));
    descriptionLabel->setWrapping(true);
    text->addWidget(titleLabel);
    text->addWidget(descriptionLabel);
    row->addLayout(text, 1);
}

FirstTimeWelcomeCard::FirstTimeWelcomeCard(const QString& developerToolsName, QWidget* parent)
    : RoundedCard(parent), m_developerToolsName(developerToolsName)
{
    setObjectName(QStringLiteral("firstTimeWelcomeCard"));
    setCornerRadius(18);
    setFill(Tint(Role::controlBackground));
    setShadow(ShadowStyle{Tint(Role::green, 0.10), 20, {0, 8}});
    setGradientStroke(Tint(Role::green, 0.30), Tint(Role::green, 0.10), 1.5, {0, 0}, {1, 1});

    auto* column = vstack(this, 20, around(22));

    // Greeting.
    auto* header = hstack(14);
    auto* wave = new IconTile(QSize(52, 52), Shape::circle(), Tint(Role::green, 0.2));
    wave->setGradientFill(Tint(Role::green, 0.20), Tint(Role::green, 0.10), {0, 0}, {1, 1});
    wave->setSymbol(QStringLiteral("hand.wave.fill"), 24, Tint(Role::green));
    wave->setSymbolGradient(Tint(Role::green), Tint(Role::green, 0.8));
    header->addWidget(wave, 0, Qt::AlignVCenter);
    auto* greeting = vstack(4);
    auto* title = new Label(tr("Welcome to Quillforge!"), Theme::font(18, QFont::Bold));
    title->setObjectName(QStringLiteral("welcomeTitle"));
    auto* subtitle = new Label(tr("Let's get you started with AI-powered coding"), Theme::font(13),
                               Tint(Role::secondary));
    subtitle->setObjectName(QStringLiteral("welcomeSubtitle"));
    subtitle->setWrapping(true);
    greeting->addWidget(title);
    greeting->addWidget(subtitle);
    header->addLayout(greeting, 1);
    column->addLayout(header);
    setAccessibleName(title->text());

    column->addWidget(divider(4));

    // The first steps.
    auto* steps = vstack(14);
    steps->addWidget(new WelcomeStep(1, tr("Set up your dev environment"),
                                     tr("Install %1 and create a project folder").arg(developerToolsName)));
    steps->addWidget(new WelcomeStep(2, tr("Install an AI assistant"), tr("Choose Claude Code, Gemini CLI, or Codex")));
    steps->addWidget(new WelcomeStep(3, tr("Start building"), tr("Describe what you want in plain English")));
    column->addLayout(steps);

    // The tip, on a yellow wash.
    auto* tip = new RoundedCard;
    tip->setObjectName(QStringLiteral("welcomeTip"));
    tip->setCornerRadius(10);
    tip->setFill(Tint(Role::yellow, 0.08));
    auto* tipRow = hstack(tip, 10, around(14));
    tipRow->addWidget(new SymbolView(QStringLiteral("lightbulb.fill"), 14, Tint(Role::yellow)), 0, Qt::AlignVCenter);
    m_tip = new Label(QString(), Theme::font(12), Tint(Role::secondary));
    m_tip->setObjectName(QStringLiteral("welcomeTipText"));
    m_tip->setTextFormat(Qt::MarkdownText);
    m_tip->setWrapping(true);
    tipRow->addWidget(m_tip, 1, Qt::AlignVCenter);
    column->addWidget(tip);
    setMachine(false, {});
}

void FirstTimeWelcomeCard::setMachine(bool hasDeveloperTools, const QList<CLITool>& installedTools)
{
    const QString tip = tipText(m_developerToolsName, hasDeveloperTools, installedTools);
    m_tip->setText(tip);
    // A screen reader reads the words, not the marks that make them bold.
    m_tip->setAccessibleName(QString(tip).remove(QStringLiteral("**")));
}

QString FirstTimeWelcomeCard::tipText(const QString& developerToolsName, bool hasDeveloperTools,
                                      const QList<CLITool>& installedTools)
{
    if (!installedTools.isEmpty())
        return tr("**%1** is ready: press **Open** on its card to start it.").arg(installedTools.first().displayName());
    if (hasDeveloperTools)
        return tr("New to this? **%1** is already set up, so start with **Claude Code**.").arg(developerToolsName);
    return tr("New to this? Start with **%1**, then try **Claude Code**.").arg(developerToolsName);
}

} // namespace qf
