#pragma once

#include "Button.h"
#include "RoundedCard.h"

#include <QTimer>
#include <functional>

class QEasingCurve;
class QVBoxLayout;

namespace qf {

namespace ui {
class Expander;
class SymbolView;
} // namespace ui

// Copies a text to the clipboard and then calls `onCopy`. Icon only ("doc.on.clipboard");
// the small style draws a smaller glyph, and only the bordered style draws button chrome.
class CopyButton : public ui::Button {
    Q_OBJECT

public:
    enum class CopyButtonStyle { regular, small, bordered };

    CopyButton(const QString& text, CopyButtonStyle style, std::function<void()> onCopy = {},
               QWidget* parent = nullptr);

    QString copyText() const { return m_text; }
    CopyButtonStyle copyStyle() const { return m_copyStyle; }
    // Point size of the clipboard symbol for a style.
    static qreal symbolSize(CopyButtonStyle style);

private:
    void copy();

    QString m_text;
    CopyButtonStyle m_copyStyle;
    std::function<void()> m_onCopy;
};

// The confirmation pill a screen shows after a copy.
class CopiedToast : public ui::RoundedCard {
    Q_OBJECT

public:
    explicit CopiedToast(QWidget* parent = nullptr);
};

// Shows the copied toast over `host`, centred `bottomPadding` points above its bottom edge: it
// slides up and fades in with the spring, and 1.5 s after it appeared slides down and fades
// out. A copy while it shows changes nothing: it still leaves 1.5 s after it first appeared.
class CopiedToastPresenter : public QObject {
    Q_OBJECT

public:
    CopiedToastPresenter(QWidget* host, int bottomPadding);

    // Shows the toast for `visibleMs`; while it shows, another copy changes nothing.
    void present();
    bool isShowing() const { return m_showing; }
    CopiedToast* toast() const { return m_toast; }
    // Runs while the toast shows and hides it when it fires.
    const QTimer& hideTimer() const { return m_hide; }

    static constexpr int visibleMs = 1500;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void place();
    void apply(qreal shown);

    QWidget* m_host;
    int m_bottomPadding;
    CopiedToast* m_toast;
    bool m_showing = false;
    QTimer m_hide;
    ui::motion::Transition m_presence;
};

// A card that opens and closes: its header is one plain button across the card (a symbol, a
// title, then a chevron pointing up while open and down while closed) and its body shows below
// it only while open. Pressing the header emits `toggled`; the owner decides what it does.
class DisclosureCard : public ui::RoundedCard {
    Q_OBJECT

public:
    DisclosureCard(const QString& symbol, const ui::Tint& symbolTint, const QString& title, QWidget* parent = nullptr);

    bool isExpanded() const;
    void setExpanded(bool expanded, bool animated = true);
    ui::RowButton* header() const { return m_header; }

Q_SIGNALS:
    void toggled();

protected:
    // Sets the body, `spacing` points below the header, opening and closing along `curve`.
    // Call once, from the constructor.
    void setBody(QWidget* body, int spacing, int durationMs, const QEasingCurve& curve);

private:
    ui::RowButton* m_header;
    ui::SymbolView* m_chevron;
    ui::Expander* m_body = nullptr;
};

// The titled icon header of a dashboard section.
class SectionHeader : public QWidget {
    Q_OBJECT

public:
    SectionHeader(const QString& title, const QString& icon, const ui::Tint& iconColor, QWidget* parent = nullptr);

    QString title() const { return m_title; }
    QString icon() const { return m_icon; }

private:
    QString m_title;
    QString m_icon;
};

} // namespace qf
