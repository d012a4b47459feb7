#include "WelcomeView.h"

#include "InstallationState.h"
#include "Platform.h"

#include "Expander.h"
#include "ImageView.h"
#include "Label.h"
#include "Layout.h"
#include "Symbol.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QKeyEvent>
#include <QMouseEvent>

namespace qf {

using namespace ui;

namespace {

// Above the reassurance under the features.
constexpr QMargins kReassurancePadding(0, 4, 0, 0);
// Above a tool's "Learn more" link, under its features.
constexpr QMargins kLearnMorePadding(0, 4, 0, 0);

// Selection and the explainer open and close with the design's spring.
Expander* springExpander(QWidget* content) { return new Expander(content, motion::springDurationMs, motion::spring()); }

// A tool card as screen readers meet it: one radio button of the tool choice.
class ToolCardAccessible : public QAccessibleWidget {
public:
    explicit ToolCardAccessible(ToolCard* card) : QAccessibleWidget(card, QAccessible::RadioButton) {}

    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.checkable = true;
        state.checked = card()->isSelected();
        return state;
    }

    QStringList actionNames() const override
    {
        QStringList names = QAccessibleWidget::actionNames();
        names.prepend(pressAction());
        return names;
    }

    void doAction(const QString& action) override
    {
        if (action == pressAction() || action == toggleAction()) {
            card()->choose();
            return;
        }
        QAccessibleWidget::doAction(action);
    }

private:
    ToolCard* card() const { return static_cast<ToolCard*>(widget()); }
};

QAccessibleInterface* toolCardAccessible(const QString& className, QObject* object)
{
    if (className == QLatin1String(ToolCard::staticMetaObject.className()) && qobject_cast<ToolCard*>(object))
        return new ToolCardAccessible(static_cast<ToolCard*>(object));
    return nullptr;
}

} // namespace

FeatureRow::FeatureRow(const QString& icon, const QString& title, const QString& description, QWidget* parent)
    : QWidget(parent)
{
    setObjectName(QStringLiteral("featureRow"));
    setAccessibleName(title);
    setAccessibleDescription(description);
    auto* row = hstack(this, 12);
    auto* symbol = new SymbolView(icon, 16, Tint(Role::blue));
    symbol->setFixedWidth(24);
    row->addWidget(symbol, 0, Qt::AlignTop);
    auto* column = vstack(2);
    column->addWidget(new Label(title, Theme::font(11, QFont::Bold)));
    auto* text = new Label(description, Theme::caption(), Tint(Role::secondary));
    text->setWrapping(true);
    column->addWidget(text);
    row->addLayout(column, 1);
}

WhatIsAICodingCard::WhatIsAICodingCard(QWidget* parent)
    : DisclosureCard(QStringLiteral("questionmark.circle.fill"), Tint(Role::blue), tr("New to AI Coding?"), parent)
{
    setObjectName(QStringLiteral("whatIsAICodingCard"));
    setFill(Tint(Role::blue, 0.05));
    setStroke(Tint(Role::blue, 0.2), 1);
    header()->setObjectName(QStringLiteral("whatIsAIHeader"));

    auto* body = new QWidget;
    body->setObjectName(QStringLiteral("whatIsAIBody"));
    auto* bodyColumn = vstack(body, 12);
    auto* intro = new Label(tr("AI coding assistants are tools that help you write, understand, and debug code using "
                               "artificial intelligence."),
                            Theme::callout(), Tint(Role::secondary));
    intro->setWrapping(true);
    bodyColumn->addWidget(intro);
    struct Feature {
        const char* icon;
        QString title;
        QString description;
    };
    const Feature features[] = {
        {"bubble.left.and.text.bubble.right", tr("Conversational"),
         tr("Describe what you want in plain English and the AI writes the code")},
        {"doc.text.magnifyingglass", tr("Code Understanding"),
         tr("Ask questions about any codebase and get clear explanations")},
        {"wrench.and.screwdriver", tr("Debugging Help"),
         tr("Paste error messages and get solutions, not just explanations")},
        {"graduationcap", tr("Learning Partner"),
         tr("Perfect for learning new languages or frameworks at your own pace")},
    };
    for (const Feature& feature : features)
        bodyColumn->addWidget(new FeatureRow(QString::fromLatin1(feature.icon), feature.title, feature.description));
    auto* reassurance = new Label(
        tr("No prior coding experience? That's okay! AI assistants can help you learn as you build."), Theme::caption(),
        Tint(Role::secondary));
    reassurance->setWrapping(true);
    reassurance->setContentsMargins(kReassurancePadding);
    bodyColumn->addWidget(reassurance);
    setBody(body, 12, motion::springDurationMs, motion::spring());
}

ToolCard::ToolCard(CLITool tool, Platform& platform, QWidget* parent)
    : RoundedCard(parent),
      m_tool(tool),
      m_stroke(this, motion::springDurationMs, motion::spring(),
               [this](qreal value) { setStroke(Tint(m_tool.brandColor(), value), 2); })
{
    static const bool accessible = [] {
        QAccessible::installFactory(toolCardAccessible);
        return true;
    }();
    Q_UNUSED(accessible);
    setObjectName(QStringLiteral("toolCard.") + tool.rawValue());
    setAccessibleName(tool.displayName());
    setAccessibleDescription(tool.toolDescription());
    setCornerRadius(12);
    setFill(Tint(Role::controlBackground));
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::PointingHandCursor);
    auto* column = vstack(this, 0, around(spacing::cardPadding));

    auto* top = hstack(16);
    auto* logo = new ImageView(tool.logoImageName(), 44);
    logo->setFixedImageSize(QSize(44, 44));
    logo->setCornerRadius(10);
    top->addWidget(logo, 0, Qt::AlignVCenter);
    auto* text = vstack(4);
    auto* nameRow = hstack(8);
    auto* name = new Label(tool.displayName(), Theme::headline());
    name->setObjectName(QStringLiteral("toolName"));
    nameRow->addWidget(name, 0, Qt::AlignBaseline);
    nameRow->addWidget(new Label(tr("by %1").arg(tool.provider()), Theme::caption(), Tint(Role::secondary)), 0,
                       Qt::AlignBaseline);
    nameRow->addStretch(1);
    text->addLayout(nameRow);
    auto* description = new Label(tool.toolDescription(), Theme::caption(), Tint(Role::secondary));
    description->setWrapping(true, 2);
    text->addWidget(description);
    top->addLayout(text, 1);
    m_check = new SymbolView(QStringLiteral("checkmark.circle.fill"), 17, Tint(tool.brandColor()));
    m_check->setObjectName(QStringLiteral("selectedMark"));
    top->addWidget(m_check, 0, Qt::AlignVCenter);
    column->addLayout(top);

    // What the tool does, and where to read more, while it is the chosen one.
    auto* details = new QWidget;
    details->setObjectName(QStringLiteral("toolDetails"));
    auto* detailsColumn = vstack(details, 8);
    // 12 points on both sides of the line; below it the stack's own spacing makes up part.
    detailsColumn->addWidget(divider(12, 12 - 8));
    for (const QString& feature : tool.features()) {
        auto* row = hstack(8);
        row->addWidget(new SymbolView(QStringLiteral("checkmark.circle.fill"), 10, Tint(Role::green)), 0,
                       Qt::AlignVCenter);
        auto* line = new Label(feature, Theme::caption(), Tint(Role::secondary));
        line->setWrapping(true);
        row->addWidget(line, 1);
        detailsColumn->addLayout(row);
    }
    auto* learnMore = new Button(tr("Learn more"), Button::Style::link);
    learnMore->setObjectName(QStringLiteral("learnMoreButton"));
    learnMore->setAccessibleName(tr("Learn more about %1").arg(tool.displayName()));
    learnMore->setTitleFont(Theme::caption());
    learnMore->setTrailingSymbol(QStringLiteral("arrow.up.right"), 10);
    learnMore->setSpacing(4);
    learnMore->setContentPadding(0, 0);
    connect(learnMore, &QAbstractButton::clicked, this, [&platform, tool] { platform.openURL(tool.docsURL()); });
    auto* learnRow = hstack(0, kLearnMorePadding);
    learnRow->addWidget(learnMore);
    learnRow->addStretch(1);
    detailsColumn->addLayout(learnRow);
    m_details = springExpander(details);
    column->addWidget(m_details);

    setSelected(false, false);
}

void ToolCard::setSelected(bool selected, bool animated)
{
    const bool changed = selected != m_selected;
    m_selected = selected;
    m_check->setVisible(selected);
    m_details->setExpanded(selected, animated);
    m_stroke.setTarget(selected ? 1.0 : 0.0, animated);
    if (changed && QAccessible::isActive()) {
        QAccessible::State checked;
        checked.checked = true;
        QAccessibleStateChangeEvent event(this, checked);
        QAccessible::updateAccessibility(&event);
    }
}

void ToolCard::mousePressEvent(QMouseEvent* event)
{
    m_pressed = event->button() == Qt::LeftButton;
    RoundedCard::mousePressEvent(event);
}

void ToolCard::mouseReleaseEvent(QMouseEvent* event)
{
    const bool click = m_pressed && event->button() == Qt::LeftButton && rect().contains(event->position().toPoint());
    m_pressed = false;
    if (click)
        Q_EMIT tapped();
    RoundedCard::mouseReleaseEvent(event);
}

void ToolCard::keyPressEvent(QKeyEvent* event)
{
    if (event->modifiers() == Qt::NoModifier || event->modifiers() == Qt::KeypadModifier) {
        switch (event->key()) {
        case Qt::Key_Space: Q_EMIT tapped(); return;
        case Qt::Key_Up:
        case Qt::Key_Left: Q_EMIT stepRequested(-1); return;
        case Qt::Key_Down:
        case Qt::Key_Right: Q_EMIT stepRequested(1); return;
        default: break;
        }
    }
    RoundedCard::keyPressEvent(event);
}

WelcomeView::WelcomeView(InstallationState& state, Platform& platform, QWidget* parent)
    : FlowScreen(QStringLiteral("welcomeView"), tr("Choose a Tool"), parent), m_state(state)
{
    QVBoxLayout* column = makeColumn(24, 24);

    auto* header = vstack(12);
    auto* logo = new ImageView(QStringLiteral("QuillforgeLogo"), 80);
    logo->setObjectName(QStringLiteral("quillforgeLogo"));
    logo->setAccessibleName(tr("Quillforge"));
    header->addWidget(logo, 0, Qt::AlignHCenter);
    auto* subtitle = flow::centredText(tr("Set up AI coding assistants the easy way"), Theme::body(),
                                       Tint(Role::secondary));
    header->addWidget(subtitle);
    column->addLayout(header);

    m_explainer = new WhatIsAICodingCard;
    connect(m_explainer, &WhatIsAICodingCard::toggled, this, [this] {
        m_showWhatIsAI = !m_showWhatIsAI;
        render(true);
    });
    auto* explainerRow = vstack(0, sides(spacing::screenSide));
    explainerRow->addWidget(m_explainer);
    column->addLayout(explainerRow);

    auto* list = vstack(12, sides(spacing::screenSide, 0, 24));
    list->addWidget(new Label(tr("Choose a tool to install:"), Theme::headline()));
    for (CLITool tool : CLITool::allCases()) {
        auto* card = new ToolCard(tool, platform);
        // Tapping the chosen card again keeps it chosen.
        connect(card, &ToolCard::tapped, this, [this, tool] { m_state.setSelectedTool(tool); });
        // As in a group of radio buttons, an arrow key moves to the next choice and makes it.
        connect(card, &ToolCard::stepRequested, this, [this, card](int step) {
            const qsizetype index = m_cards.indexOf(card) + step;
            if (index < 0 || index >= m_cards.size())
                return;
            // Moved by keyboard: the focus ring shows where the focus went.
            window()->setAttribute(Qt::WA_KeyboardFocusChange);
            m_cards[index]->setFocus(Qt::OtherFocusReason);
            m_cards[index]->choose();
        });
        list->addWidget(card);
        m_cards << card;
    }
    column->addLayout(list);
    column->addStretch(1);

    bottomBar()->addStretch(1);
    m_continue = flow::mainButton(tr("Continue"), QStringLiteral("continueButton"));
    m_continue->setLabelWidth(120);
    connect(m_continue, &QAbstractButton::clicked, this, [this] { m_state.goToNextStep(); });
    bottomBar()->addWidget(m_continue);
    setDefaultButton(m_continue);

    connect(&m_state, &InstallationState::selectedToolChanged, this, [this] { render(true); });
    render(false);
}

QWidget* WelcomeView::mainControl() const
{
    for (ToolCard* card : m_cards) {
        if (card->isSelected())
            return card;
    }
    return m_cards.value(0);
}

void WelcomeView::render(bool animated)
{
    const std::optional<CLITool> selected = m_state.selectedTool();
    for (ToolCard* card : std::as_const(m_cards))
        card->setSelected(selected && *selected == card->tool(), animated);
    m_explainer->setExpanded(m_showWhatIsAI, animated);
    m_continue->setEnabled(selected.has_value());
}

} // namespace qf
