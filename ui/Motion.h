#pragma once

#include <QEasingCurve>
#include <QPointF>

#include <functional>

#include <QObject>
#include <QPointer>

class QAbstractAnimation;
class QVariantAnimation;
class QWidget;

namespace qf::ui::motion {

// One switch for every animation of the app. Tests turn animations off; every change then
// lands at its final look at once.
bool enabled();
void setEnabled(bool on);

// The curves of the design, as cubic Béziers where the design names one.
QEasingCurve easeOut();   // (0, 0, 0.58, 1)
QEasingCurve easeIn();    // (0.42, 0, 1, 1)
QEasingCurve easeInOut(); // (0.42, 0, 0.58, 1)
// A critically damped-looking spring: response 0.3 s, damping fraction 0.825.
QEasingCurve spring();

inline constexpr int defaultDurationMs = 350; // the platform's default animation
inline constexpr int springDurationMs = 450;  // until the spring has settled

// Runs `apply(progress)` with progress rising from 0 to 1 along `curve` over `durationMs`,
// after `delayMs`. The animation belongs to `context` and stops with it. With animations off,
// `apply(1.0)` runs at once and nothing is returned.
QAbstractAnimation* animate(QObject* context, int durationMs, const QEasingCurve& curve,
                            std::function<void(qreal)> apply, int delayMs = 0);

// The look of a widget between "out" and "in": opacity, offset and scale interpolate from
// their out values to identity as `progress` goes from 0 to 1.
struct Look {
    qreal opacity = 0.0;
    QPointF offset;
    qreal scale = 1.0;
};
void applyLook(QWidget* widget, const Look& out, qreal progress);

// A value between 0 and 1 that moves to each new target along `curve` over `durationMs`,
// starting from wherever it is (so quick back-and-forth changes never jump), and reports every
// step to `onChange`. With animations off, or when asked not to animate, it jumps at once.
class Transition {
public:
    Transition(QObject* owner, int durationMs, QEasingCurve curve, std::function<void(qreal)> onChange);
    ~Transition();
    Transition(const Transition&) = delete;
    Transition& operator=(const Transition&) = delete;

    qreal value() const { return m_value; }
    qreal target() const { return m_target; }
    void setTarget(qreal target, bool animated = true);

private:
    void step(qreal value);

    QObject* m_owner;
    int m_durationMs;
    QEasingCurve m_curve;
    std::function<void(qreal)> m_onChange;
    QPointer<QVariantAnimation> m_running;
    qreal m_value = 0.0;
    qreal m_target = 0.0;
};

} // namespace qf::ui::motion
