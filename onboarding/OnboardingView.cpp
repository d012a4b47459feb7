#include "OnboardingView.h"

#include "FeatureItem.h"
#include "InstallationState.h"
#include "Preferences.h"

#include "Button.h"
#include "FocusOrder.h"
#include "ImageView.h"
#include "Label.h"
#include "Layout.h"
#include "Motion.h"

#include <QAbstractAnimation>
#include <QLinearGradient>
#include <QPainter>

namespace qf {

namespace {

// The looks of the animated elements before the entrance animation.
const ui::motion::Look kLogoOut{0.0, {0, 0}, 0.8};
const ui::motion::Look kTitleOut{0.0, {0, 10}, 1.0};
const ui::motion::Look kRowOut{0.0, {0, 20}, 1.0};

// Above the content.
constexpr QMargins kIntroductionPadding(0, 60, 0, 0);
// Around "Get Started", inside its animated row: above it, and under it to the window's edge.
constexpr QMargins kButtonRowPadding(0, 20, 0, 60);

} // namespace

OnboardingView::OnboardingView(InstallationState& state, QWidget* parent) : QWidget(parent), m_state(state)
{
    using namespace ui;
    setObjectName(QStringLiteral("onboardingView"));

    auto* root = vstack(this, 0);
    auto* scroll = new ScrollView;
    scroll->setObjectName(QStringLiteral("onboardingScroll"));
    root->addWidget(scroll);

    // Every animated element is a direct child of the scroll content, so that while it rises
    // into place it is never clipped by a smaller container; the stacks are plain layouts.
    auto* stack = centredColumn(scroll->content(), this, 40, kIntroductionPadding);

    // Header: logo and title block.
    auto* header = vstack(16);
    auto* logo = new ImageView(QStringLiteral("QuillforgeLogo"), 100);
    logo->setObjectName(QStringLiteral("quillforgeLogo"));
    logo->setAccessibleName(tr("Quillforge"));
    SurfaceEffect::of(logo)->setShadow(ShadowStyle{Tint(Role::accent, 0.3), 20, {0, 10}}, Shape::opaquePixels());
    header->addWidget(logo, 0, Qt::AlignHCenter);
    m_logo = logo;

    m_titleBlock = new QWidget;
    m_titleBlock->setObjectName(QStringLiteral("onboardingTitleBlock"));
    auto* titleLayout = vstack(m_titleBlock, 8);
    auto* title = new Label(tr("Welcome to Quillforge"), Theme::font(28, QFont::Bold, FontDesign::rounded));
    title->setObjectName(QStringLiteral("onboardingTitle"));
    title->setAlignment(Qt::AlignHCenter);
    title->setWrapping(true); // longer words in a narrow window
    auto* subtitle = new Label(tr("Get started with AI-powered coding in minutes"), Theme::font(15),
                               Tint(Role::secondary));
    subtitle->setObjectName(QStringLiteral("onboardingSubtitle"));
    subtitle->setAlignment(Qt::AlignHCenter);
    subtitle->setWrapping(true);
    titleLayout->addWidget(title, 0, Qt::AlignHCenter);
    titleLayout->addWidget(subtitle, 0, Qt::AlignHCenter);
    header->addWidget(m_titleBlock, 0, Qt::AlignHCenter);
    stack->addLayout(header);

    // Feature list.
    auto* features = vstack(16, sides(40));
    struct Feature {
        const char* icon;
        Role color;
        QString title;
        QString description;
    };
    const Feature rows[] = {
        {"sparkles", Role::purple, tr("AI Coding Assistants"),
         tr("Install Claude Code, Gemini CLI, or Codex with one click")},
        {"wrench.and.screwdriver", Role::orange, tr("Automatic Setup"),
         tr("We handle the dev environment so you can focus on building")},
        {"checkmark.seal", Role::green, tr("Beginner Friendly"),
         tr("No experience needed - just describe what you want to build")},
    };
    for (const Feature& feature : rows) {
        auto* item = new FeatureItem(QString::fromLatin1(feature.icon), Tint(feature.color), feature.title,
                                     feature.description);
        features->addWidget(item);
        m_rows << item;
    }
    stack->addLayout(features);

    // "Get Started", with its padding inside the animated row.
    m_buttonRow = new QWidget;
    m_buttonRow->setObjectName(QStringLiteral("getStartedRow"));
    auto* buttonLayout = hstack(m_buttonRow, 0, kButtonRowPadding);
    auto* button = new Button(tr("Get Started"), Button::Style::prominent, Button::Size::large);
    button->setObjectName(QStringLiteral("getStartedButton"));
    button->setTitleFont(Theme::font(13, QFont::DemiBold));
    button->setTrailingSymbol(QStringLiteral("arrow.right"), 14, SymbolWeight::semibold);
    button->setSpacing(8);
    button->setLabelWidth(160);
    buttonLayout->addWidget(button, 0, Qt::AlignHCenter);
    connect(button, &Button::clicked, this, &OnboardingView::getStarted);
    m_getStarted = button;
    stack->addWidget(m_buttonRow);
    stack->addStretch(1);

    render(0.0);
}

void OnboardingView::render(qreal progress)
{
    using ui::motion::applyLook;
    applyLook(m_logo, kLogoOut, progress);
    applyLook(m_titleBlock, kTitleOut, progress);
    for (QWidget* row : std::as_const(m_rows))
        applyLook(row, kRowOut, progress);
    applyLook(m_buttonRow, kRowOut, progress);
}

void OnboardingView::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    if (m_animateIn)
        return;
    m_animateIn = true;
    // Return and Space press "Get Started" from the first moment.
    ui::focusUnlessTaken(this, m_getStarted);
    m_entrance = ui::motion::animate(
        this, entranceDurationMs, ui::motion::easeOut(), [this](qreal progress) { render(progress); }, entranceDelayMs);
}

void OnboardingView::paintEvent(QPaintEvent*)
{
    using namespace ui;
    QPainter painter(this);
    painter.fillRect(rect(), Theme::color(Role::windowBackground));
    QLinearGradient wash(0, 0, 0, height());
    wash.setColorAt(0, Tint(Role::accent, 0.0).resolve());
    wash.setColorAt(1, Tint(Role::accent, 0.05).resolve());
    painter.fillRect(rect(), wash);
}

void OnboardingView::getStarted()
{
    Preferences::setHasCompletedOnboarding(true);
    m_state.setCurrentStep(InstallationStep::home);
}

} // namespace qf
