#pragma once

#include <QList>
#include <QObject>
#include <QPointer>
#include <QRect>

class QWidget;

namespace qf::ui {

class FocusRingView;

// The keyboard focus ring of one window. It is drawn outside the focused control, a gap away
// from its edge and following its corners, in `Theme::focusRingColor()`: so it stands out from
// the control's own fill (a prominent button's accent) and from what lies around it alike. It
// shows while the control has the focus and the window was last moved through by keyboard; a
// text field shows it whenever it has the focus. Controls draw no ring of their own.
class FocusRing : public QObject {
    Q_OBJECT

public:
    static constexpr int gap = 2;
    static constexpr int width = 2;

    // Gives `window` its ring, which lives as long as the window.
    static FocusRing* attach(QWidget* window);
    // The ring of `window`, if it has one.
    static FocusRing* of(const QWidget* window);

    // What the ring is drawn around now, or null while it shows nowhere.
    QWidget* shownAround() const;
    // Where the ring is drawn, in the window's coordinates (empty while it shows nowhere).
    QRect geometryInWindow() const;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    explicit FocusRing(QWidget* window);
    void focusMoved(QWidget* now);
    void follow(QWidget* control);
    void unwatch();
    void place();

    QWidget* m_window;
    QPointer<QWidget> m_control;
    QPointer<QWidget> m_around;
    QPointer<FocusRingView> m_view;
    QList<QPointer<QWidget>> m_watched;
};

// Whether `widget` shows the focus ring now.
bool showsFocusRing(const QWidget* widget);
// The corner radius of a control's edge, which its ring follows (4 when none is set).
void setFocusRingRadius(QWidget* control, qreal radius);
qreal focusRingRadius(const QWidget* control);
// Draws the ring of `focusable` around `around` (a text view around the box it sits in).
void setFocusRingTarget(QWidget* focusable, QWidget* around);

} // namespace qf::ui
