#pragma once

#include "RoundedCard.h"

class QPlainTextEdit;

namespace qf::ui {

// A command's log: read-only monospaced text on the text-background colour in a rounded box.
// Text is only ever added at the end, chunk by chunk, exactly as received. The newest line stays
// in view, unless the reader has scrolled up to read; scrolling back to the end follows again.
class LogView : public RoundedCard {
    Q_OBJECT

public:
    explicit LogView(QWidget* parent = nullptr);

    void setPadding(int padding);
    void setTextFont(const QFont& font);
    // Shows the newest line and follows again from there.
    void scrollToEnd();

    void append(const QString& text);
    void clear();
    QString text() const;
    bool isEmpty() const;
    // Whether the newest line is in view.
    bool isFollowing() const;

    QPlainTextEdit* textView() const { return m_text; }

protected:
    void changeEvent(QEvent* event) override;

private:
    void applyColors();
    void followEnd();

    QPlainTextEdit* m_text;
    // Whether the newest line is to stay in view: true until the reader scrolls up, and again
    // once they scroll back to the end.
    bool m_follow = true;
    bool m_following = false; // moving to the end ourselves
};

} // namespace qf::ui
