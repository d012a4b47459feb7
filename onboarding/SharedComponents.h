#pragma once

#include "Button.h"
#include "RoundedCard.h"

#include <functional>

namespace qf {

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
