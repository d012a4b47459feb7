#include "FocusOrder.h"

#include <QLayout>
#include <QScrollArea>
#include <QSet>
#include <QWidget>

namespace qf::ui {

namespace {

class ReadingOrder {
public:
    explicit ReadingOrder(const QWidget* root) : m_root(root) {}

    void visit(QWidget* widget)
    {
        if (m_seen.contains(widget))
            return;
        m_seen.insert(widget);
        if (widget != m_root && widget->isWindow())
            return;
        if (widget != m_root && (widget->focusPolicy() & Qt::TabFocus) && !widget->focusProxy())
            controls << widget;
        if (auto* area = qobject_cast<QAbstractScrollArea*>(widget)) {
            // A text view's own parts are not controls of their own.
            if (auto* scroll = qobject_cast<QScrollArea*>(area); scroll && scroll->widget())
                visit(scroll->widget());
            return;
        }
        if (QLayout* layout = widget->layout())
            visit(layout);
        for (QObject* child : widget->children()) {
            if (child->isWidgetType())
                visit(static_cast<QWidget*>(child));
        }
    }

    QList<QWidget*> controls;

private:
    void visit(QLayout* layout)
    {
        for (int i = 0; i < layout->count(); ++i) {
            QLayoutItem* item = layout->itemAt(i);
            if (QWidget* widget = item->widget())
                visit(widget);
            else if (QLayout* inner = item->layout())
                visit(inner);
        }
    }

    const QWidget* m_root;
    QSet<const QWidget*> m_seen;
};

} // namespace

QList<QWidget*> controlsInReadingOrder(const QWidget* root)
{
    ReadingOrder order(root);
    order.visit(const_cast<QWidget*>(root));
    return order.controls;
}

void orderTabChain(const QWidget* root)
{
    const QList<QWidget*> controls = controlsInReadingOrder(root);
    for (qsizetype i = 1; i < controls.size(); ++i)
        QWidget::setTabOrder(controls[i - 1], controls[i]);
}

bool focusUnlessTaken(QWidget* screen, QWidget* control)
{
    if (!screen->isVisible())
        return false; // a screen still being built: it asks again once it shows
    QWidget* current = screen->window()->focusWidget();
    if (current && current != control && current != screen && screen->isAncestorOf(current) && current->isVisible() &&
        (current->focusPolicy() & Qt::TabFocus))
        return false;
    if (!control || !control->isVisible() || !control->isEnabled() || !(control->focusPolicy() & Qt::TabFocus)) {
        if (current != screen)
            screen->setFocus(Qt::OtherFocusReason);
        return false;
    }
    control->setFocus(Qt::OtherFocusReason);
    return screen->window()->focusWidget() == control;
}

} // namespace qf::ui
