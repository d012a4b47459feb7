#pragma once

#include "RoundedCard.h"

class QPlainTextEdit;

namespace qf::ui {

// A command's log: read-only monospaced text on the text-background colour in a rounded box.
// Text is only ever added at the end, chunk by chunk, exactly as received. The newest line stays
// in view, unless the reader has scrolled up to read; scrolling back to the end follows again.
// With a limit, the oldest lines give way once the text passes it, and a notice at the top
// says so.
class LogView : public RoundedCard {
    Q_OBJECT

public:
    explicit LogView(QWidget* parent = nullptr);

    void setPadding(int padding);
    // Keeps at most `characters` of text (a notice line included), cutting the oldest lines to
    // well below that when the text grows past it; `notice` becomes the first line then.
    void setLimit(qsizetype characters, const QString& notice);
    void setTextFont(const QFont& font);
    // Shows the newest line and follows again from there.
    void scrollToEnd();

    void append(const QString& text);
    void clear();
    QString text() const;
    bool isEmpty() const;
    // Whether the newest line is in view.
    bool isFollowing() const;
    // Whether older text was cut since the log was last cleared.
    bool wasCut() const { return m_cut; }

    QPlainTextEdit* textView() const { return m_text; }

protected:
    void changeEvent(QEvent* event) override;

private:
    void applyColors();
    void followEnd();
    // Cuts the oldest lines when the text is past the limit; answers how many lines went.
    int cutToLimit();

    QPlainTextEdit* m_text;
    // Whether the newest line is to stay in view: true until the reader scrolls up, and again
    // once they scroll back to the end.
    bool m_follow = true;
    bool m_following = false; // moving to the end ourselves
    qsizetype m_limit = 0;    // none
    QString m_notice;
    bool m_cut = false;
};

} // namespace qf::ui
