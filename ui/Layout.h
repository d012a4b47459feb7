#pragma once

#include <QBoxLayout>
#include <QScrollArea>

class QScrollBar;

namespace qf::ui {

// Stacks as the design describes them: spacing between children and padding around them.
QVBoxLayout* vstack(QWidget* owner, int spacing, QMargins padding = {});
QHBoxLayout* hstack(QWidget* owner, int spacing, QMargins padding = {});
QVBoxLayout* vstack(int spacing, QMargins padding = {});
QHBoxLayout* hstack(int spacing, QMargins padding = {});

// A one-point line in the separator colour, `padding` points of room above and below it.
QWidget* divider(int padding = 0);

// A slim bar in the spirit of macOS's scroll indicators instead of a bar with arrows.
void makeSlim(QScrollBar* bar);

// A vertical scroll view with a transparent background, no frame and the content as wide as
// the view. The content widget is created here; lay children into it. The view takes no
// keyboard focus: Tab goes from control to control inside it, and brings each into view.
class ScrollView : public QScrollArea {
    Q_OBJECT

public:
    explicit ScrollView(QWidget* parent = nullptr);
    QWidget* content() const { return m_content; }

    // A scroll view takes the room its screen gives it; asking the content for its size
    // would lay the whole screen out just to throw the answer away.
    QSize sizeHint() const override { return {320, 240}; }

private:
    QWidget* m_content;
};

} // namespace qf::ui
