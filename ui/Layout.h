#pragma once

#include <QBoxLayout>
#include <QPointer>
#include <QScrollArea>

#include <algorithm>

class QScrollBar;

// The spacings the design names, in points.
namespace qf::ui::spacing {

// Between the window's edges and the content of a screen of the install flow.
inline constexpr int screenSide = 24;
// Between the window's edges and the dashboard's header, sections and cards.
inline constexpr int dashboardSide = 28;
// Between a removal sheet's edges and its log, error row and buttons.
inline constexpr int sheetSide = 28;
// Above and below the buttons of a screen's bottom bar.
inline constexpr int barPadding = 16;
// Between a card's edges and its content.
inline constexpr int cardPadding = 16;
// Between the edges of a small box (a command to try, a note, an error) and its content.
inline constexpr int boxPadding = 12;

} // namespace qf::ui::spacing

namespace qf::ui {

// `side` points of room left and right, `above` and `below` points over and under.
constexpr QMargins sides(int side, int above = 0, int below = 0) { return {side, above, side, below}; }
// `padding` points of room on every side.
constexpr QMargins around(int padding) { return {padding, padding, padding, padding}; }

// Stacks as the design describes them: spacing between children and padding around them.
QVBoxLayout* vstack(QWidget* owner, int spacing, QMargins padding = {});
QHBoxLayout* hstack(QWidget* owner, int spacing, QMargins padding = {});
QVBoxLayout* vstack(int spacing, QMargins padding = {});
QHBoxLayout* hstack(int spacing, QMargins padding = {});

// The most a screen's content spans, padding included: on a wide window it stays a centred
// column, so that a label and its button are never half a screen apart.
inline constexpr int maximumContentWidth = 720;

// Where a column at most `maximumWidth` wide goes in `room`: all of it when it is narrower,
// otherwise centred on `centre` (a position in the room's coordinates) as far as it fits.
QRect centredSpan(const QRect& room, int maximumWidth, qreal centre);

// A stack (QVBoxLayout or QHBoxLayout) that spans at most `maximumWidth` points and is centred
// in the room it is given; in less room it takes all of it, padding and all. With `centredOn`,
// a widget that holds the layout's own, it is centred on that widget instead: a column inside
// a scroll view then lines up with the one in a bar below it whether or not the scroll bar
// takes room. Children are plain layout items, so nothing clips their shadows.
template <typename Box>
class Centred : public Box {
public:
    explicit Centred(QWidget* owner, QWidget* centredOn = nullptr, int maximumWidth = maximumContentWidth)
        : Box(owner), m_centredOn(centredOn), m_maximumWidth(maximumWidth)
    {
    }

    int maximumWidth() const { return m_maximumWidth; }
    void setMaximumWidth(int maximumWidth)
    {
        m_maximumWidth = maximumWidth;
        this->invalidate();
    }

    void setGeometry(const QRect& room) override { Box::setGeometry(centredSpan(room, m_maximumWidth, centre(room))); }
    int heightForWidth(int width) const override { return Box::heightForWidth(std::min(width, m_maximumWidth)); }
    int minimumHeightForWidth(int width) const override
    {
        return Box::minimumHeightForWidth(std::min(width, m_maximumWidth));
    }

protected:
    qreal centre(const QRect& room) const
    {
        const QWidget* owner = this->parentWidget();
        if (!m_centredOn || !owner || (owner != m_centredOn && !m_centredOn->isAncestorOf(owner)))
            return (room.left() + room.right() + 1) / 2.0;
        const int origin = owner == m_centredOn ? 0 : owner->mapFrom(m_centredOn.data(), QPoint(0, 0)).x();
        return origin + m_centredOn->width() / 2.0;
    }

    QPointer<QWidget> m_centredOn;
    int m_maximumWidth;
};

using CentredColumn = Centred<QVBoxLayout>;
using CentredRow = Centred<QHBoxLayout>;

// The row of a bar's buttons: one centred row while they fit, and where they do not (long
// words in a narrow window) as many lines as they need, each as full as it can be, in order.
// What comes before the row's stretch keeps to the left, what comes after it to the right, so
// the main button stays last and at the right.
class BarRow : public CentredRow {
public:
    using CentredRow::CentredRow;

    QSize minimumSize() const override;
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;
    int minimumHeightForWidth(int width) const override { return heightForWidth(width); }
    void setGeometry(const QRect& room) override;

private:
    struct Line {
        QList<QLayoutItem*> items;
        QList<bool> trailing;
        int height = 0;
    };
    bool fitsOneLine(int width) const { return width >= sizeHint().width(); }
    QList<Line> lines(int width) const;
};

// A centred column or row of `spacing` with `padding`, laid into `owner`.
CentredColumn* centredColumn(QWidget* owner, QWidget* centredOn, int spacing, QMargins padding = {});
CentredRow* centredRow(QWidget* owner, QWidget* centredOn, int spacing, QMargins padding = {});
BarRow* barRow(QWidget* owner, QWidget* centredOn, int spacing, QMargins padding = {});

// A one-point line in the separator colour, `padding` points of room above and below it.
QWidget* divider(int padding = 0);
// The same line with its own room above and below.
QWidget* divider(int above, int below);

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
