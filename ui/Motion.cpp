#include "Motion.h"

#include "Surface.h"

#include <QPauseAnimation>
#include <QSequentialAnimationGroup>
#include <QVariantAnimation>
#include <QWidget>
#include <algorithm>

#include <cmath>
#include <memory>

namespace qf::ui::motion {

namespace {

bool g_enabled = true;

QEasingCurve bezier(qreal x1, qreal y1, qreal x2, qreal y2)
{
    QEasingCurve curve(QEasingCurve::BezierSpline);
    curve.addCubicBezierSegment(QPointF(x1, y1), QPointF(x2, y2), QPointF(1.0, 1.0));
    return curve;
}

// Position of a damped spring released at 0 towards 1, with time normalised to the
// animation's duration.
qreal springProgress(qreal t)
{
    constexpr qreal response = 0.3;
    constexpr qreal damping = 0.825;
    constexpr qreal duration = springDurationMs / 1000.0;
    if (t >= 1.0)
        return 1.0;
    const qreal omega = 2.0 * M_PI / response;
    const qreal decay = damping * omega;
    const qreal omegaD = omega * std::sqrt(1.0 - damping * damping);
    const qreal seconds = t * duration;
    return 1.0 -
           std::exp(-decay * seconds) * (std::cos(omegaD * seconds) + decay / omegaD * std::sin(omegaD * seconds));
}

} // namespace

bool enabled() { return g_enabled; }
void setEnabled(bool on) { g_enabled = on; }

QEasingCurve easeOut() { return bezier(0.0, 0.0, 0.58, 1.0); }
QEasingCurve easeIn() { return bezier(0.42, 0.0, 1.0, 1.0); }
QEasingCurve easeInOut() { return bezier(0.42, 0.0, 0.58, 1.0); }

QEasingCurve spring()
{
    QEasingCurve curve;
    curve.setCustomType(&springProgress);
    return curve;
}

QAbstractAnimation* animate(QObject* context, int durationMs, const QEasingCurve& curve,
                            std::function<void(qreal)> apply, int delayMs)
{
    if (!g_enabled || durationMs <= 0) {
        apply(1.0);
        return nullptr;
    }
    auto* tween = new QVariantAnimation;
    tween->setStartValue(0.0);
    tween->setEndValue(1.0);
    tween->setDuration(durationMs);
    tween->setEasingCurve(curve);
    auto step = std::make_shared<std::function<void(qreal)>>(std::move(apply));
    QObject::connect(tween, &QVariantAnimation::valueChanged, context,
                     [step](const QVariant& value) { (*step)(value.toReal()); });
    // A curve may stop a hair short of its end; the last step is always the end itself.
    QObject::connect(tween, &QAbstractAnimation::finished, context, [step] { (*step)(1.0); });

    QAbstractAnimation* animation = tween;
    if (delayMs > 0) {
        auto* group = new QSequentialAnimationGroup;
        group->addPause(delayMs);
        group->addAnimation(tween);
        animation = group;
    }
    animation->setParent(context);
    animation->start(QAbstractAnimation::DeleteWhenStopped);
    return animation;
}

void applyLook(QWidget* widget, const Look& out, qreal progress)
{
    SurfaceEffect* effect = SurfaceEffect::of(widget);
    const qreal rest = 1.0 - progress;
    effect->setOpacity(std::clamp(out.opacity + (1.0 - out.opacity) * progress, 0.0, 1.0));
    effect->setOffset(out.offset * rest);
    effect->setScale(out.scale + (1.0 - out.scale) * progress);
}

Transition::Transition(QObject* owner, int durationMs, QEasingCurve curve, std::function<void(qreal)> onChange)
    : m_owner(owner), m_durationMs(durationMs), m_curve(std::move(curve)), m_onChange(std::move(onChange))
{
}

Transition::~Transition() { delete m_running.data(); }

void Transition::setTarget(qreal target, bool animated)
{
    if (qFuzzyCompare(target + 1.0, m_target + 1.0) && (m_running || qFuzzyCompare(m_value + 1.0, target + 1.0)))
        return;
    m_target = target;
    if (m_running)
        m_running->stop();
    if (!animated || !g_enabled || m_durationMs <= 0) {
        step(target);
        return;
    }
    auto* tween = new QVariantAnimation(m_owner);
    tween->setStartValue(m_value);
    tween->setEndValue(target);
    tween->setDuration(m_durationMs);
    tween->setEasingCurve(m_curve);
    QObject::connect(tween, &QVariantAnimation::valueChanged, m_owner,
                     [this](const QVariant& value) { step(value.toReal()); });
    QObject::connect(tween, &QAbstractAnimation::finished, m_owner, [this, target] { step(target); });
    m_running = tween;
    tween->start(QAbstractAnimation::DeleteWhenStopped);
}

void Transition::step(qreal value)
{
    m_value = value;
    m_onChange(value);
}

} // namespace qf::ui::motion
