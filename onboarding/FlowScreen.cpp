#include "FlowScreen.h"

#include "FocusOrder.h"
#include "ImageView.h"
#include "InstallationState.h"
#include "Label.h"
#include "Layout.h"
#include "RoundedCard.h"
#include "Surface.h"
#include "Symbol.h"
#include "Theme.h"

#include <QAbstractButton>
#include <QApplication>
#include <QPainter>
#include <QShortcut>

namespace qf {

FlowScreen::FlowScreen(const QString& objectName, const QString& title, QWidget* parent) : QWidget(parent)
{
    using namespace ui;
    setObjectName(objectName);
    setAccessibleName(title);
    auto* root = vstack(this, 0);
    m_scroll = new ScrollView;
    m_scroll->setObjectName(QStringLiteral("flowScroll"));
    m_scroll->setAccessibleName(title);
    root->addWidget(m_scroll, 1);

    auto* bar = new QWidget;
    bar->setObjectName(QStringLiteral("bottomBar"));
    // The bar's buttons keep to the content's column, however wide the window.
    m_bar = barRow(bar, this, 8, sides(spacing::screenSide, spacing::barPadding, spacing::barPadding));
    root->addWidget(bar);

    // Return belongs to the main button, as in a dialog: Space still presses a focused one.
    for (const int key : {Qt::Key_Return, Qt::Key_Enter}) {
        auto* shortcut = new QShortcut(QKeySequence(key), this);
        shortcut->setContext(Qt::WindowShortcut);
        connect(shortcut, &QShortcut::activated, this, &FlowScreen::pressDefaultButton);
    }
}

QVBoxLayout* FlowScreen::makeColumn(int spacing, int topPadding)
{
    return ui::centredColumn(m_scroll->content(), this, spacing, QMargins(0, topPadding, 0, 0));
}

ui::Button* FlowScreen::addBackToHome(InstallationState& state)
{
    // A bordered "Back" alone: the chevron belongs to the screens that step back one screen.
    auto* back = new ui::Button(tr("Back"), ui::Button::Style::bordered, ui::Button::Size::large);
    back->setObjectName(QStringLiteral("backButton"));
    connect(back, &QAbstractButton::clicked, this, [&state] {
        state.reset();
        state.setCurrentStep(InstallationStep::home);
    });
    m_bar->addWidget(back);
    m_bar->addStretch(1);
    return back;
}

void FlowScreen::pressDefaultButton()
{
    if (m_default && m_default->isVisible() && m_default->isEnabled()) {
        m_default->animateClick();
        return;
    }
    // With the main button unavailable (a blocked check), Return presses the focused button:
    // the fix the screen starts on.
    auto* focused = qobject_cast<QAbstractButton*>(QApplication::focusWidget());
    if (focused && isAncestorOf(focused) && focused->isEnabled())
        focused->animateClick();
}

void FlowScreen::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    if (!m_appeared) {
        m_appeared = true;
        appeared();
        focusMainControl();
    }
}

void FlowScreen::focusMainControl() { ui::focusUnlessTaken(this, mainControl()); }

void FlowScreen::paintEvent(QPaintEvent*)
{
    QPainter(this).fillRect(rect(), ui::Theme::color(ui::Role::windowBackground));
}

namespace {

// Between the caveats card's edges and its rows.
constexpr QMargins kCaveatsPadding(16, 14, 16, 14);

} // namespace

namespace flow {

ui::Button* mainButton(const QString& title, const QString& objectName)
{
    auto* button = new ui::Button(title, ui::Button::Style::prominent, ui::Button::Size::large);
    button->setObjectName(objectName);
    button->setTitleFont(ui::Theme::font(13, QFont::DemiBold));
    return button;
}

ui::Button* backButton(ui::Button::Style style)
{
    auto* button = new ui::Button(qf::FlowScreen::tr("Back"), style,
                                  style == ui::Button::Style::plain ? ui::Button::Size::regular
                                                                    : ui::Button::Size::large);
    button->setObjectName(QStringLiteral("backButton"));
    button->setLeadingSymbol(QStringLiteral("chevron.left"), 12, ui::SymbolWeight::semibold);
    button->setSpacing(4);
    if (style == ui::Button::Style::plain)
        button->setContentTint(ui::Tint(ui::Role::secondary));
    return button;
}

QWidget* toolLogo(CLITool tool, int side, qreal cornerRadius, qreal shadowRadius, qreal shadowDrop)
{
    using namespace ui;
    auto* logo = new ImageView(tool.logoImageName(), side);
    logo->setObjectName(QStringLiteral("toolLogo"));
    logo->setAccessibleName(tool.displayName());
    logo->setFixedImageSize(QSize(side, side));
    logo->setCornerRadius(cornerRadius);
    SurfaceEffect::of(logo)->setShadow(ShadowStyle{Tint(tool.brandColor(), 0.3), shadowRadius, {0, shadowDrop}},
                                       Shape::rounded(cornerRadius));
    return logo;
}

ui::Label* centredText(const QString& text, const QFont& font, const ui::Tint& tint)
{
    auto* label = new ui::Label(text, font, tint);
    label->setAlignment(Qt::AlignHCenter);
    label->setWrapping(true);
    return label;
}

QWidget* caveatCard(const QStringList& caveats)
{
    auto* card = ui::roundedCard(QStringLiteral("caveats"), 12, ui::Tint(ui::Role::orange, 0.08));
    card->setStroke(ui::Tint(ui::Role::orange, 0.25), 1);
    auto* rows = ui::vstack(card, 10, kCaveatsPadding);
    for (const QString& caveat : caveats) {
        auto* row = ui::hstack(8);
        row->addWidget(
            new ui::SymbolView(QStringLiteral("exclamationmark.triangle.fill"), 12, ui::Tint(ui::Role::orange)), 0,
            Qt::AlignTop);
        auto* text = new ui::Label(caveat, ui::Theme::callout());
        text->setObjectName(QStringLiteral("caveat"));
        text->setWrapping(true);
        text->setTextInteractionFlags(Qt::TextSelectableByMouse);
        row->addWidget(text, 1);
        rows->addLayout(row);
    }
    card->setAccessibleName(QCoreApplication::translate("InstallationView", "Good to know"));
    card->setAccessibleDescription(caveats.join(QLatin1Char(' ')));
    card->setVisible(!caveats.isEmpty());
    return card;
}

} // namespace flow

ToolTile::ToolTile(QWidget* parent)
    : ui::IconTile(QSize(56, 56), ui::Shape::rounded(14), ui::Tint(ui::Role::clear), parent)
{
    setObjectName(QStringLiteral("toolTile"));
}

void ToolTile::present(CLITool tool, Content content)
{
    using namespace ui;
    m_content = content;
    const QColor brand = tool.brandColor();
    setFill(Tint(brand, 0.15));
    switch (content) {
    case Content::symbol: setSymbol(tool.iconName(), 24, Tint(brand)); break;
    case Content::spinner: break;
    case Content::checkmark:
        setSymbol(QStringLiteral("checkmark"), 24, Tint(Role::green), int(SymbolWeight::bold));
        break;
    }
    setShowsActivity(content == Content::spinner);
}

} // namespace qf
