#pragma once

#include "Theme.h"

#include <QPointer>
#include <QWidget>

class QVariantAnimation;

namespace qf::ui {

// The spinning indicator of work whose length is not known: twelve spokes that fade around a
// circle, turning once a second while the indicator is visible (still when animations are off).
class ActivityIndicator : public QWidget {
    Q_OBJECT

public:
    // `diameter` in points; 20 is the regular size, scaled as the design says (1.2 -> 24).
    explicit ActivityIndicator(qreal diameter = 20, const Tint& tint = Tint(Role::secondary),
                               QWidget* parent = nullptr);

    bool isSpinning() const;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    qreal m_diameter;
    Tint m_tint;
    int m_phase = 0;
    QPointer<QVariantAnimation> m_turn;
};

} // namespace qf::ui
