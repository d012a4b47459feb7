#include "ActivityIndicator.h"

#include "Motion.h"

#include <QPainter>
#include <QVariantAnimation>

#include <cmath>

namespace qf::ui {

namespace {

constexpr int kSpokes = 12;

} // namespace

ActivityIndicator::ActivityIndicator(qreal diameter, const Tint& tint, QWidget* parent)
    : QWidget(parent), m_diameter(diameter), m_tint(tint)
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setAccessibleName(tr("In progress"));
}

bool ActivityIndicator::isSpinning() const { return m_turn && m_turn->state() == QAbstractAnimation::Running; }

QSize ActivityIndicator::sizeHint() const
{
    const int side = qCeil(m_diameter);
    return {side, side};
}

void ActivityIndicator::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    if (!motion::enabled() || m_turn)
        return;
    auto* turn = new QVariantAnimation(this);
    turn->setStartValue(0);
    turn->setEndValue(kSpokes);
    turn->setDuration(1000);
    turn->setLoopCount(-1);
    connect(turn, &QVariantAnimation::valueChanged, this, [this](const QVariant& value) {
        const int phase = value.toInt() % kSpokes;
        if (phase != m_phase) {
            m_phase = phase;
            update();
        }
    });
    m_turn = turn;
    turn->start(QAbstractAnimation::DeleteWhenStopped);
}

void ActivityIndicator::hideEvent(QHideEvent* event)
{
    QWidget::hideEvent(event);
    if (m_turn)
        m_turn->stop();
}

void ActivityIndicator::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QPointF centre = QRectF(rect()).center();
    const qreal outer = m_diameter / 2.0;
    const qreal inner = outer * 0.45;
    const qreal width = std::max<qreal>(1.5, m_diameter * 0.09);
    const QColor base = m_tint.resolve();
    painter.translate(centre);
    for (int i = 0; i < kSpokes; ++i) {
        // The spoke at the phase is darkest; the ones behind it fade out.
        const int age = (m_phase - i + kSpokes) % kSpokes;
        QColor color = base;
        color.setAlphaF(float(base.alphaF() * (1.0 - 0.75 * age / (kSpokes - 1.0))));
        QPen pen(color, width, Qt::SolidLine, Qt::RoundCap);
        painter.setPen(pen);
        const qreal angle = 2.0 * M_PI * i / kSpokes - M_PI / 2.0;
        const QPointF direction(std::cos(angle), std::sin(angle));
        painter.drawLine(direction * (inner + width / 2.0), direction * (outer - width / 2.0));
    }
}

} // namespace qf::ui
