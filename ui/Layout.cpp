#include "Layout.h"

#include "RoundedCard.h"

#include <QEvent>
#include <QScrollBar>

#include <algorithm>

namespace qf::ui {

QWidget* divider(int padding) { return divider(padding, padding); }

QWidget* divider(int above, int below)
{
    auto* holder = new QWidget;
    auto* layout = vstack(holder, 0, QMargins(0, above, 0, below));
    auto* line = new RoundedCard;
    line->setCornerRadius(0);
    line->setFill(Tint(Role::separator));
    line->setFixedHeight(1);
    layout->addWidget(line);
    return holder;
}

QVBoxLayout* vstack(QWidget* owner, int spacing, QMargins padding)
{
    auto* layout = new QVBoxLayout(owner);
    layout->setSpacing(spacing);
    layout->setContentsMargins(padding);
    return layout;
}

QHBoxLayout* hstack(QWidget* owner, int spacing, QMargins padding)
{
    auto* layout = new QHBoxLayout(owner);
    layout->setSpacing(spacing);
    layout->setContentsMargins(padding);
    return layout;
}

QRect centredSpan(const QRect& room, int maximumWidth, qreal centre)
{
    if (room.width() <= maximumWidth)
        return room;
    const int left = std::clamp(qRound(centre - maximumWidth / 2.0), room.left(), room.right() + 1 - maximumWidth);
    return {left, room.top(), maximumWidth, room.height()};
}

CentredColumn* centredColumn(QWidget* owner, QWidget* centredOn, int spacing, QMargins padding)
{
    auto* layout = new CentredColumn(owner, centredOn);
    layout->setSpacing(spacing);
    layout->setContentsMargins(padding);
    return layout;
}

CentredRow* centredRow(QWidget* owner, QWidget* centredOn, int spacing, QMargins padding)
{
    auto* layout = new CentredRow(owner, centredOn);
    layout->setSpacing(spacing);
    layout->setContentsMargins(padding);
    return layout;
}

BarRow* barRow(QWidget* owner, QWidget* centredOn, int spacing, QMargins padding)
{
    auto* layout = new BarRow(owner, centredOn);
    layout->setSpacing(spacing);
    layout->setContentsMargins(padding);
    return layout;
}

QList<BarRow::Line> BarRow::lines(int width) const
{
    const QMargins margins = contentsMargins();
    const int room = std::min(width, maximumWidth()) - margins.left() - margins.right();
    QList<Line> found(1);
    int used = 0;
    bool afterStretch = false;
    for (int i = 0; i < count(); ++i) {
        QLayoutItem* item = itemAt(i);
        if (item->spacerItem()) {
            afterStretch = true;
            continue;
        }
        if (item->isEmpty())
            continue; // a hidden button
        const QSize wanted = item->sizeHint();
        if (!found.last().items.isEmpty() && used + spacing() + wanted.width() > room) {
            found.append(Line{});
            used = 0;
        }
        Line& line = found.last();
        used += (line.items.isEmpty() ? 0 : spacing()) + wanted.width();
        line.items << item;
        line.trailing << afterStretch;
        line.height = std::max(line.height, wanted.height());
    }
    return found;
}

QSize BarRow::minimumSize() const
{
    // As narrow as its widest button: the rest goes onto lines of their own.
    int widest = 0;
    for (int i = 0; i < count(); ++i) {
        if (!itemAt(i)->isEmpty())
            widest = std::max(widest, itemAt(i)->minimumSize().width());
    }
    const QMargins margins = contentsMargins();
    return {widest + margins.left() + margins.right(), CentredRow::minimumSize().height()};
}

int BarRow::heightForWidth(int width) const
{
    if (fitsOneLine(width))
        return sizeHint().height();
    const QList<Line> all = lines(width);
    int height = contentsMargins().top() + contentsMargins().bottom() + spacing() * int(all.size() - 1);
    for (const Line& line : all)
        height += line.height;
    return height;
}

void BarRow::setGeometry(const QRect& room)
{
    // The row keeps its room; where the buttons do not fit one line they are placed again below.
    CentredRow::setGeometry(room);
    if (fitsOneLine(room.width()))
        return;
    const QRect span = centredSpan(room, maximumWidth(), centre(room)).marginsRemoved(contentsMargins());
    int top = span.top();
    for (const Line& line : lines(room.width())) {
        int left = span.left();
        int right = span.right() + 1;
        // The leading buttons from the left in order; the trailing ones in order, ending at the right.
        int trailingWidth = 0;
        for (qsizetype i = 0; i < line.items.size(); ++i) {
            if (line.trailing[i])
                trailingWidth += line.items[i]->sizeHint().width() + spacing();
        }
        int trailingLeft = right - std::max(0, trailingWidth - spacing());
        for (qsizetype i = 0; i < line.items.size(); ++i) {
            QLayoutItem* item = line.items[i];
            const int width = std::min(item->sizeHint().width(), span.width());
            int& x = line.trailing[i] ? trailingLeft : left;
            item->setGeometry(QRect(std::max(x, span.left()), top + (line.height - item->sizeHint().height()) / 2,
                                    width, item->sizeHint().height()));
            x += width + spacing();
        }
        top += line.height + spacing();
    }
}

QVBoxLayout* vstack(int spacing, QMargins padding) { return vstack(nullptr, spacing, padding); }
QHBoxLayout* hstack(int spacing, QMargins padding) { return hstack(nullptr, spacing, padding); }

namespace {

void applySlimStyle(QScrollBar* bar)
{
    bar->setStyleSheet(
        QStringLiteral("QScrollBar:vertical { background: transparent; width: 11px; margin: 2px 2px 2px 0; }"
                       "QScrollBar::handle:vertical { background: rgba(128, 128, 128, 0.55); border-radius: 3px;"
                       "  min-height: 32px; margin: 0 1px 0 2px; }"
                       "QScrollBar::handle:vertical:hover { background: rgba(128, 128, 128, 0.8); }"
                       "QScrollBar::add-line:vertical, QScrollBar::sub-line:vertical { height: 0; }"
                       "QScrollBar::add-page:vertical, QScrollBar::sub-page:vertical { background: transparent; }"));
}

// Gives a scroll bar its style the first time it is about to show.
class SlimOnShow : public QObject {
public:
    explicit SlimOnShow(QScrollBar* bar) : QObject(bar), m_bar(bar) { bar->installEventFilter(this); }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (watched == m_bar && event->type() == QEvent::Show) {
            m_bar->removeEventFilter(this);
            applySlimStyle(m_bar);
            deleteLater();
        }
        return QObject::eventFilter(watched, event);
    }

private:
    QScrollBar* m_bar;
};

} // namespace

void makeSlim(QScrollBar* bar)
{
    // A style sheet brings a style of its own, which takes time to make: a bar gets it when it
    // first shows, so a screen that never scrolls never pays for it.
    if (bar->isVisible())
        applySlimStyle(bar);
    else
        new SlimOnShow(bar);
}

ScrollView::ScrollView(QWidget* parent) : QScrollArea(parent), m_content(new QWidget)
{
    setFrameShape(QFrame::NoFrame);
    // The controls inside take the keyboard; the view itself is no stop on the way.
    setFocusPolicy(Qt::NoFocus);
    setWidgetResizable(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    setAutoFillBackground(false);
    viewport()->setAutoFillBackground(false);
    m_content->setAutoFillBackground(false);
    setWidget(m_content);
    makeSlim(verticalScrollBar());
}

} // namespace qf::ui
