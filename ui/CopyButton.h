#pragma once

#include "Button.h"

#include <functional>

namespace qf::ui {

// Copies a text to the clipboard and then calls `onCopy`. Icon only ("doc.on.clipboard");
// the small style draws a smaller glyph, and only the bordered style draws button chrome.
class CopyButton : public Button {
    Q_OBJECT

public:
    enum class CopyButtonStyle { regular, small, bordered };

    CopyButton(const QString& text, CopyButtonStyle style, std::function<void()> onCopy = {},
               QWidget* parent = nullptr);

    QString copyText() const { return m_text; }
    CopyButtonStyle copyStyle() const { return m_copyStyle; }
    // Point size of the clipboard symbol for a style.
    static qreal symbolSize(CopyButtonStyle style);
    // The small "Copy Log" text button ("copyLogButton") above a log; its owner decides what
    // a click copies.
    static Button* makeCopyLogButton();

private:
    void copy();

    QString m_text;
    CopyButtonStyle m_copyStyle;
    std::function<void()> m_onCopy;
};

} // namespace qf::ui
