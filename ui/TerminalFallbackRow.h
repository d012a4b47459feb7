#pragma once

#include "RoundedCard.h"

#include <functional>

namespace qf::ui {

class Label;

// Says that no terminal window could be opened and shows the line to type in one, with a
// button that copies it.
class TerminalFallbackRow : public RoundedCard {
    Q_OBJECT

public:
    TerminalFallbackRow(const QString& line, std::function<void()> onCopy, QWidget* parent = nullptr);
    // The same for any action that could not run: what happened, what to do, what to copy.
    TerminalFallbackRow(const QString& title, const QString& hint, const QString& line, std::function<void()> onCopy,
                        QWidget* parent = nullptr);

    // Says something else happened, with other advice; the line stays. Empty texts bring back
    // the first ones.
    void setMessage(const QString& title, const QString& hint);

private:
    QString m_firstTitle;
    QString m_firstHint;
    Label* m_title = nullptr;
    Label* m_hint = nullptr;
};

} // namespace qf::ui
