#pragma once

#include "CLITool.h"
#include "FlowScreen.h"

#include "DisclosureCard.h"
#include "Motion.h"
#include "RoundedCard.h"

namespace qf {

class InstallationState;
class Platform;

namespace ui {
class Expander;
class Label;
class SymbolView;
} // namespace ui

// One line of the explainer: a blue symbol beside a bold title and a description that wraps
// onto as many lines as it needs.
class FeatureRow : public QWidget {
    Q_OBJECT

public:
    FeatureRow(const QString& icon, const QString& title, const QString& description, QWidget* parent = nullptr);
};

// "New to AI Coding?": a header that opens and closes a short explanation with four feature
// rows. The screen owns whether it is open; the header asks it to change with `toggled()`.
class WhatIsAICodingCard : public ui::DisclosureCard {
    Q_OBJECT

public:
    explicit WhatIsAICodingCard(QWidget* parent = nullptr);
};

// A tool to choose: logo, name, vendor and description; selected, it shows a check mark, a
// stroke in the tool's colour and, below a divider, the tool's features and "Learn more".
// The whole card is one control: a click or Space chooses it, the arrow keys go to the card
// before or after it. Screen readers meet it as a radio button, checked while its tool is the
// chosen one, that their press action chooses.
class ToolCard : public ui::RoundedCard {
    Q_OBJECT

public:
    ToolCard(CLITool tool, Platform& platform, QWidget* parent = nullptr);

    CLITool tool() const { return m_tool; }
    bool isSelected() const { return m_selected; }
    void setSelected(bool selected, bool animated = true);
    // As a click does: asks for this card's tool to be the chosen one.
    void choose() { Q_EMIT tapped(); }

Q_SIGNALS:
    void tapped();
    // An arrow key asks for the card `step` places before (-1) or after (+1) this one.
    void stepRequested(int step);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    CLITool m_tool;
    bool m_selected = false;
    bool m_pressed = false;
    ui::SymbolView* m_check;
    ui::Expander* m_details;
    ui::motion::Transition m_stroke;
};

// The tool choice: the logo, the explainer for newcomers and one card per tool; "Continue"
// is enabled once a tool is chosen and moves on to the account screen.
class WelcomeView : public FlowScreen {
    Q_OBJECT

public:
    WelcomeView(InstallationState& state, Platform& platform, QWidget* parent = nullptr);

    bool showsWhatIsAI() const { return m_showWhatIsAI; }
    const QList<ToolCard*>& toolCards() const { return m_cards; }

protected:
    // The chosen tool's card, or the first card while none is chosen.
    QWidget* mainControl() const override;

private:
    void render(bool animated);

    InstallationState& m_state;
    bool m_showWhatIsAI = false;
    WhatIsAICodingCard* m_explainer;
    QList<ToolCard*> m_cards;
    ui::Button* m_continue;
};

} // namespace qf
