#pragma once

#include "Motion.h"

#include <QWidget>

namespace qf::ui {

// Shows or hides a piece of content by growing to the content's height or shrinking to
// nothing, so that what follows moves along with it. Collapsed, the content is hidden: nobody
// can tab into it or read it. With animations off every change lands at once.
class Expander : public QWidget {
    Q_OBJECT

public:
    // `content` becomes the expander's child. The change follows `curve` over `durationMs`.
    Expander(QWidget* content, int durationMs, const QEasingCurve& curve, QWidget* parent = nullptr);

    QWidget* content() const { return m_content; }
    bool isExpanded() const { return m_reveal.target() > 0.5; }
    // How far open it is, from 0 (collapsed) to 1 (expanded).
    qreal openness() const { return m_reveal.value(); }
    void setExpanded(bool expanded, bool animated = true);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;

Q_SIGNALS:
    // The expander has just grown or shrunk a little (every animation frame).
    void openingChanged();

protected:
    void resizeEvent(QResizeEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    int contentHeight(int width) const;
    void apply(qreal openness);

    QWidget* m_content;
    motion::Transition m_reveal;
};

} // namespace qf::ui
