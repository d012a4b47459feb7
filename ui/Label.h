#pragma once

#include "Theme.h"

#include <QHash>
#include <QLabel>

namespace qf::ui {

// Text in one of the design's fonts and colour roles, written in the role's text shade (see
// `Theme::textColor`). Wrapping text may be limited to a number of lines; the last visible line
// then ends in an ellipsis.
class Label : public QLabel {
    Q_OBJECT

public:
    Label(const QString& text, const QFont& font, const Tint& tint = Tint(Role::primary), QWidget* parent = nullptr);

    void setTint(const Tint& tint);
    const Tint& tint() const { return m_tint; }
    // Wraps at word boundaries; 0 lines means as many as the text needs.
    void setWrapping(bool wrap, int maximumLines = 0);
    int maximumLines() const { return m_maximumLines; }

    bool hasHeightForWidth() const override;
    int heightForWidth(int width) const override;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void applyTint();
    int lineCount(int width) const;
    void forgetMeasuresOfOldText() const;

    Tint m_tint;
    int m_maximumLines = 0;
    bool m_applying = false;
    // Layouts ask for the height at the same few widths over and over; shaping the text each
    // time would dominate the cost of showing a screen.
    mutable QString m_measuredText;
    mutable QFont m_measuredFont;
    mutable QHash<int, int> m_lineCounts;
    mutable QSize m_oneLine;
    mutable QMargins m_oneLineMargins;
};

} // namespace qf::ui
