#pragma once

#include "Button.h"
#include "CLITool.h"
#include "IconTile.h"

#include <QPointer>
#include <QWidget>

class QBoxLayout;
class QHBoxLayout;
class QVBoxLayout;

namespace qf {

class InstallationState;

namespace ui {
class Label;
class ScrollView;
} // namespace ui

// The frame the screens of the install flow share: on the window background, content that
// scrolls above a bottom bar that stays where it is, however small the window. Return presses
// the screen's main button while it is shown and enabled, wherever the focus is. The screen
// starts with the focus on its main control, and gives it the focus as soon as it can take it
// while no other control of the screen has it.
class FlowScreen : public QWidget {
    Q_OBJECT

public:
    ui::ScrollView* scrollView() const { return m_scroll; }
    // The button Return presses, if any.
    ui::Button* defaultButton() const { return m_default; }

protected:
    // `title` names the screen for screen readers.
    FlowScreen(const QString& objectName, const QString& title, QWidget* parent = nullptr);

    // The scrolling column: content `spacing` apart, with `topPadding` above it, at most
    // `ui::maximumContentWidth` wide and centred on the screen.
    QVBoxLayout* makeColumn(int spacing, int topPadding);
    // The bottom bar: the screen's side padding from the sides of the content's column, the bar's
    // padding above and below.
    QHBoxLayout* bottomBar() const { return m_bar; }
    void setDefaultButton(ui::Button* button) { m_default = button; }
    // A bordered "Back" at the start of the bottom bar that ends the attempt and returns to
    // the dashboard, then the space that pushes what follows to the end.
    ui::Button* addBackToHome(InstallationState& state);
    // Called once, when the screen is first shown: where a screen starts its work.
    virtual void appeared() {}
    // The control a visit starts on: the main button by default.
    virtual QWidget* mainControl() const { return m_default; }
    // Gives the main control the focus, unless another control of the screen has it. Screens
    // call it when their main control may have become available.
    void focusMainControl();

    void showEvent(QShowEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void pressDefaultButton();

    ui::ScrollView* m_scroll;
    QHBoxLayout* m_bar;
    QPointer<ui::Button> m_default;
    bool m_appeared = false;
};

// The buttons of the flow's bars.
namespace flow {
// Filled with the accent, large, semibold title.
ui::Button* mainButton(const QString& title, const QString& objectName);
// "Back" with a chevron before it, in the given style.
ui::Button* backButton(ui::Button::Style style);
// The tool's logo, `side` points square with rounded corners, casting a shadow in its brand
// colour at 30% that reaches `shadowRadius` points and falls `shadowDrop` points.
QWidget* toolLogo(CLITool tool, int side, qreal cornerRadius, qreal shadowRadius, qreal shadowDrop);
// Centred text that wraps onto as many lines as it needs.
ui::Label* centredText(const QString& text, const QFont& font, const ui::Tint& tint = ui::Tint(ui::Role::primary));
// What a finished installation left for the user to know, one warning row each, on an orange
// card named "caveats"; hidden while `caveats` is empty.
QWidget* caveatCard(const QStringList& caveats);
} // namespace flow

// The tool's tile at the top of the system check and the installation: its symbol on its
// brand colour, or a spinner while something runs, or a green check mark once done.
class ToolTile : public ui::IconTile {
    Q_OBJECT

public:
    enum class Content { symbol, spinner, checkmark };

    explicit ToolTile(QWidget* parent = nullptr);
    void present(CLITool tool, Content content);
    Content content() const { return m_content; }

private:
    Content m_content = Content::symbol;
};

} // namespace qf
