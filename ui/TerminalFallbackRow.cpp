#include "TerminalFallbackRow.h"

#include "CopyButton.h"
#include "Label.h"
#include "Layout.h"
#include "Symbol.h"

namespace qf::ui {

namespace {

// Between the row's edges and its symbol, texts and line.
constexpr QMargins kRowPadding(14, 12, 14, 12);
// Between the code box's edges and the line.
constexpr QMargins kLinePadding(8, 4, 8, 4);

} // namespace

TerminalFallbackRow::TerminalFallbackRow(const QString& line, std::function<void()> onCopy, QWidget* parent)
    : TerminalFallbackRow(tr("No terminal window could be opened"), tr("Open a terminal yourself and type this line:"),
                          line, std::move(onCopy), parent)
{
}

TerminalFallbackRow::TerminalFallbackRow(const QString& title, const QString& hintText, const QString& line,
                                         std::function<void()> onCopy, QWidget* parent)
    : RoundedCard(parent), m_firstTitle(title), m_firstHint(hintText)
{
    setObjectName(QStringLiteral("terminalFallback"));
    setCornerRadius(10);
    setFill(Tint(Role::orange, 0.08));
    setStroke(Tint(Role::orange, 0.3), 1);
    setAccessibleName(title);
    setAccessibleDescription(line);

    auto* row = hstack(this, 12, kRowPadding);
    row->addWidget(new SymbolView(QStringLiteral("exclamationmark.triangle.fill"), 15, Tint(Role::orange)), 0,
                   Qt::AlignTop);
    auto* column = vstack(6);
    m_title = new Label(title, Theme::font(12, QFont::DemiBold));
    m_title->setObjectName(QStringLiteral("terminalFallbackTitle"));
    m_title->setWrapping(true);
    column->addWidget(m_title);
    m_hint = new Label(hintText, Theme::caption(), Tint(Role::secondary));
    m_hint->setObjectName(QStringLiteral("terminalFallbackHint"));
    m_hint->setWrapping(true);
    column->addWidget(m_hint);

    auto* codeRow = hstack(8);
    auto* code = roundedCard(QStringLiteral("codeBox"), 6, Tint(Role::textBackground));
    auto* text = new Label(line, Theme::font(12, QFont::Normal, FontDesign::monospaced));
    text->setObjectName(QStringLiteral("terminalFallbackLine"));
    text->setTextInteractionFlags(Qt::TextSelectableByMouse);
    // As wide as the line, wrapping only where the window is too narrow for it.
    text->setWrapping(true, 4);
    hstack(code, 0, kLinePadding)->addWidget(text);
    code->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Preferred);
    codeRow->addWidget(code, 1);
    auto* copy = new CopyButton(line, CopyButton::CopyButtonStyle::regular, std::move(onCopy));
    copy->setAccessibleName(tr("Copy the line to type"));
    codeRow->addWidget(copy, 0, Qt::AlignVCenter);
    codeRow->addStretch(0);
    column->addLayout(codeRow);
    row->addLayout(column, 1);
}

void TerminalFallbackRow::setMessage(const QString& title, const QString& hint)
{
    m_title->setText(title.isEmpty() ? m_firstTitle : title);
    m_hint->setText(hint.isEmpty() ? m_firstHint : hint);
    setAccessibleName(m_title->text());
}

} // namespace qf::ui
