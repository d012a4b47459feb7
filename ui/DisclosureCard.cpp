#include "DisclosureCard.h"

#include "Expander.h"
#include "Label.h"
#include "Layout.h"
#include "Symbol.h"

namespace qf::ui {

namespace {

// The header keeps this much room around its content for the focus ring; the card's padding
// gives it back, so everything sits a card's padding in from its edges.
constexpr int kRingRoom = 4;

} // namespace

DisclosureCard::DisclosureCard(const QString& symbol, const Tint& symbolTint, const QString& title, QWidget* parent)
    : RoundedCard(parent)
{
    setCornerRadius(12);
    auto* column = vstack(this, 0, around(spacing::cardPadding) - QMargins(kRingRoom, kRingRoom, kRingRoom, 0));
    m_header = new RowButton;
    m_header->setPadding(around(kRingRoom));
    m_header->setAccessibleName(title);
    m_header->addWidget(new SymbolView(symbol, 13, symbolTint), 0, Qt::AlignVCenter);
    m_header->addWidget(new Label(title, Theme::headline()), 0, Qt::AlignVCenter);
    m_header->addStretch(1);
    m_chevron = new SymbolView(QStringLiteral("chevron.down"), 10, Tint(Role::secondary));
    m_header->addWidget(m_chevron, 0, Qt::AlignVCenter);
    connect(m_header, &QAbstractButton::clicked, this, &DisclosureCard::toggled);
    column->addWidget(m_header);
}

void DisclosureCard::setBody(QWidget* body, int spacing, int durationMs, const QEasingCurve& curve)
{
    Q_ASSERT(!m_body);
    auto* room = new QWidget;
    vstack(room, 0, QMargins(kRingRoom, spacing - kRingRoom, kRingRoom, 0))->addWidget(body);
    m_body = new Expander(room, durationMs, curve);
    layout()->addWidget(m_body);
    setExpanded(false, false);
}

bool DisclosureCard::isExpanded() const { return m_body && m_body->isExpanded(); }

void DisclosureCard::setExpanded(bool expanded, bool animated)
{
    m_chevron->setName(expanded ? QStringLiteral("chevron.up") : QStringLiteral("chevron.down"));
    m_header->setAccessibleDescription(expanded ? tr("Expanded") : tr("Collapsed"));
    if (m_body)
        m_body->setExpanded(expanded, animated);
}

} // namespace qf::ui
