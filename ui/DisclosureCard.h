#pragma once

#include "Button.h"
#include "RoundedCard.h"

class QEasingCurve;

namespace qf::ui {

class Expander;
class SymbolView;

// A card that opens and closes: its header is one plain button across the card (a symbol, a
// title, then a chevron pointing up while open and down while closed) and its body shows below
// it only while open. Pressing the header emits `toggled`; the owner decides what it does.
class DisclosureCard : public RoundedCard {
    Q_OBJECT

public:
    DisclosureCard(const QString& symbol, const Tint& symbolTint, const QString& title, QWidget* parent = nullptr);

    bool isExpanded() const;
    void setExpanded(bool expanded, bool animated = true);
    RowButton* header() const { return m_header; }

Q_SIGNALS:
    void toggled();

protected:
    // Sets the body, `spacing` points below the header, opening and closing along `curve`.
    // Call once, from the constructor.
    void setBody(QWidget* body, int spacing, int durationMs, const QEasingCurve& curve);

private:
    RowButton* m_header;
    SymbolView* m_chevron;
    Expander* m_body = nullptr;
};

} // namespace qf::ui
