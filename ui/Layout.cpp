#include "Layout.h"

#include "RoundedCard.h"

#include <QScrollBar>

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

QVBoxLayout* vstack(int spacing, QMargins padding) { return vstack(nullptr, spacing, padding); }
QHBoxLayout* hstack(int spacing, QMargins padding) { return hstack(nullptr, spacing, padding); }

void makeSlim(QScrollBar* bar)
{
    bar->setStyleSheet(
        QStringLiteral("QScrollBar:vertical { background: transparent; width: 11px; margin: 2px 2px 2px 0; }"
                       "QScrollBar::handle:vertical { background: rgba(128, 128, 128, 0.55); border-radius: 3px;"
                       "  min-height: 32px; margin: 0 1px 0 2px; }"
                       "QScrollBar::handle:vertical:hover { background: rgba(128, 128, 128, 0.8); }"
                       "QScrollBar::add-line:vertical, QScrollBar::sub-line:vertical { height: 0; }"
                       "QScrollBar::add-page:vertical, QScrollBar::sub-page:vertical { background: transparent; }"));
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
