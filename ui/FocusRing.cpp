#include "FocusRing.h"

#include "Surface.h"
#include "Theme.h"

#include <QApplication>
#include <QEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPainter>
#include <QScrollArea>

namespace qf::ui {

namespace {

const char* const kRingProperty = "qfFocusRing";
const char* const kRadiusProperty = "qfFocusRingRadius";
const char* const kLevelsUpProperty = "qfFocusRingLevelsUp";

// The ring reaches this far beyond its control's edge (and a point more for its soft edge).
constexpr int kReach = FocusRing::gap + FocusRing::width;
constexpr int kMargin = kReach + 1;

// The content of a scroll area: the ring of a control inside scrolls with it and is cut off
// where the content is.
bool isScrollContent(const QWidget* widget)
{
    const QWidget* viewport = widget->parentWidget();
    const auto* area = viewport ? qobject_cast<const QScrollArea*>(viewport->parentWidget()) : nullptr;
    return area && area->widget() == widget;
}

} // namespace

// Draws the ring around a rectangle of its own, which it is `kMargin` larger than.
class FocusRingView : public QWidget {
public:
    explicit FocusRingView(QWidget* parent) : QWidget(parent)
    {
        setObjectName(QStringLiteral("focusRing"));
        setAttribute(Qt::WA_TransparentForMouseEvents);
        setAttribute(Qt::WA_NoSystemBackground);
        setFocusPolicy(Qt::NoFocus);
    }

    void setRadius(qreal radius)
    {
        m_radius = radius;
        update();
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        // The stroke's middle lies half its width outside the gap.
        const qreal outset = FocusRing::gap + FocusRing::width / 2.0;
        const qreal in = kMargin - outset;
        const QRectF path = QRectF(rect()).adjusted(in, in, -in, -in);
        painter.strokePath(continuousRoundedRect(path, m_radius + outset),
                           QPen(Theme::focusRingColor(), FocusRing::width));
    }

private:
    qreal m_radius = 4;
};

FocusRing::FocusRing(QWidget* window) : QObject(window), m_window(window)
{
    setObjectName(QStringLiteral("focusRingController"));
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) { focusMoved(now); });
}

FocusRing* FocusRing::attach(QWidget* window)
{
    if (FocusRing* existing = of(window))
        return existing;
    auto* ring = new FocusRing(window);
    window->setProperty(kRingProperty, QVariant::fromValue<QObject*>(ring));
    if (QWidget* focus = window->focusWidget(); focus && focus->hasFocus())
        ring->follow(focus);
    return ring;
}

FocusRing* FocusRing::of(const QWidget* window)
{
    return window ? qobject_cast<FocusRing*>(window->property(kRingProperty).value<QObject*>()) : nullptr;
}

QWidget* FocusRing::shownAround() const { return m_view && m_view->isVisible() ? m_around.data() : nullptr; }

QRect FocusRing::geometryInWindow() const
{
    if (!shownAround())
        return {};
    const QRect ring = m_view->rect().adjusted(kMargin - kReach, kMargin - kReach, kReach - kMargin, kReach - kMargin);
    return QRect(m_view->mapTo(m_window, ring.topLeft()), ring.size());
}

void FocusRing::focusMoved(QWidget* now)
{
    if (now && now->window() == m_window) {
        follow(now);
        return;
    }
    // The focus went to another window, or nowhere.
    unwatch();
    m_control = nullptr;
    m_around = nullptr;
    if (m_view)
        m_view->hide();
}

void FocusRing::follow(QWidget* control)
{
    unwatch();
    m_control = control;
    QWidget* around = control;
    for (int up = control->property(kLevelsUpProperty).toInt(); up > 0 && around->parentWidget(); --up)
        around = around->parentWidget();
    m_around = around;
    // Anything that moves, resizes, shows or hides the control or a box it sits in moves the ring.
    for (QWidget* widget = around; widget && widget != m_window; widget = widget->parentWidget()) {
        widget->installEventFilter(this);
        m_watched << widget;
    }
    if (control != around) {
        control->installEventFilter(this);
        m_watched << control;
    }
    place();
}

void FocusRing::unwatch()
{
    for (const QPointer<QWidget>& widget : std::as_const(m_watched)) {
        if (widget)
            widget->removeEventFilter(this);
    }
    m_watched.clear();
}

bool FocusRing::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::KeyPress:
        // Tab with nowhere else to go leaves the focus where it is: the window is still being
        // moved through by keyboard, and the ring shows where the focus stays.
        if (watched == m_control) {
            const int key = static_cast<QKeyEvent*>(event)->key();
            if (key == Qt::Key_Tab || key == Qt::Key_Backtab) {
                m_window->setAttribute(Qt::WA_KeyboardFocusChange);
                place();
            }
        }
        break;
    case QEvent::Move:
    case QEvent::Resize:
    case QEvent::Show:
    case QEvent::Hide:
    case QEvent::ParentChange:
    case QEvent::ZOrderChange: place(); break;
    default: break;
    }
    return QObject::eventFilter(watched, event);
}

void FocusRing::place()
{
    if (!m_control || !m_around || !showsFocusRing(m_control) || !m_around->isVisible()) {
        if (m_view)
            m_view->hide();
        return;
    }
    // The ring sits in the nearest box that holds all of it, but never outside the scrolling
    // content the control is in, so that it scrolls with the control.
    QWidget* host = m_around->parentWidget();
    if (!host)
        return;
    QRect area = m_around->geometry().adjusted(-kMargin, -kMargin, kMargin, kMargin);
    while (!host->isWindow() && !isScrollContent(host) && !host->rect().contains(area) && host->parentWidget()) {
        area.translate(host->pos());
        host = host->parentWidget();
    }
    if (!m_view || m_view->parentWidget() != host) {
        delete m_view.data();
        m_view = new FocusRingView(host);
    }
    m_view->setRadius(focusRingRadius(m_around));
    m_view->setGeometry(area);
    m_view->raise();
    m_view->show();
}

bool showsFocusRing(const QWidget* widget)
{
    // A screen that holds the focus until its main control can take it is no control.
    if (!widget->hasFocus() || !widget->window() || widget->focusPolicy() == Qt::NoFocus)
        return false;
    if (qobject_cast<const QLineEdit*>(widget))
        return true;
    // A sheet opened from a window that is being moved through by keyboard is too.
    for (const QWidget* window = widget->window(); window;
         window = window->parentWidget() ? window->parentWidget()->window() : nullptr) {
        if (window->testAttribute(Qt::WA_KeyboardFocusChange))
            return true;
    }
    return false;
}

void setFocusRingRadius(QWidget* control, qreal radius) { control->setProperty(kRadiusProperty, radius); }

qreal focusRingRadius(const QWidget* control)
{
    const QVariant radius = control->property(kRadiusProperty);
    return radius.isValid() ? radius.toReal() : 4.0;
}

void setFocusRingTarget(QWidget* focusable, QWidget* around)
{
    Q_ASSERT(around == focusable || around->isAncestorOf(focusable));
    int levels = 0;
    for (QWidget* widget = focusable; widget && widget != around; widget = widget->parentWidget())
        ++levels;
    focusable->setProperty(kLevelsUpProperty, levels);
}

} // namespace qf::ui
