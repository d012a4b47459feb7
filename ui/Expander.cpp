#include "Expander.h"

#include <QEvent>
#include <QLayout>

#include <cmath>

namespace qf::ui {

Expander::Expander(QWidget* content, int durationMs, const QEasingCurve& curve, QWidget* parent)
    : QWidget(parent), m_content(content), m_reveal(this, durationMs, curve, [this](qreal value) { apply(value); })
{
    m_content->setParent(this);
    m_content->hide();
    m_content->installEventFilter(this);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
}

void Expander::setExpanded(bool expanded, bool animated)
{
    // The content is laid out at its full height from the first frame; only the window onto
    // it grows.
    if (expanded) {
        m_content->show();
        m_content->setGeometry(0, 0, width(), contentHeight(width()));
    }
    m_reveal.setTarget(expanded ? 1.0 : 0.0, animated);
}

void Expander::apply(qreal openness)
{
    m_content->setVisible(openness > 0.0 || m_reveal.target() > 0.0);
    updateGeometry();
    Q_EMIT openingChanged();
}

int Expander::contentHeight(int width) const
{
    if (m_content->hasHeightForWidth())
        return m_content->heightForWidth(width);
    return m_content->sizeHint().height();
}

int Expander::heightForWidth(int width) const
{
    const qreal openness = m_reveal.value();
    if (openness <= 0.0)
        return 0;
    return int(std::lround(openness * contentHeight(width)));
}

QSize Expander::sizeHint() const
{
    const QSize content = m_content->sizeHint();
    return {content.width(), heightForWidth(content.width())};
}

QSize Expander::minimumSizeHint() const
{
    const QSize content = m_content->minimumSizeHint();
    return {content.width(), heightForWidth(width() > 0 ? width() : content.width())};
}

void Expander::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    m_content->setGeometry(0, 0, width(), contentHeight(width()));
}

bool Expander::eventFilter(QObject* watched, QEvent* event)
{
    // Content that changes its size while open (a label that gets longer) takes the room it needs.
    if (watched == m_content && event->type() == QEvent::LayoutRequest) {
        m_content->setGeometry(0, 0, width(), contentHeight(width()));
        updateGeometry();
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace qf::ui
