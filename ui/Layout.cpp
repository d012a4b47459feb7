#include "Layout.h"

#include <QScrollBar>

namespace qf::ui {

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

QVBoxLayout* vstack(int spacing, QMargins padding) { return vstack(nullptr, spacing, padding); }
QHBoxLayout* hstack(int spacing, QMargins padding) { return hstack(nullptr, spacing, padding); }

ScrollView::ScrollView(QWidget* parent) : QScrollArea(parent), m_content(new QWidget)
{
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    setAutoFillBackground(false);
    viewport()->setAutoFillBackground(false);
    m_content->setAutoFillBackground(false);
    setWidget(m_content);
}

} // namespace qf::ui
