#pragma once

#include <QAbstractAnimation>
#include <QPointer>
#include <QWidget>

namespace qf {

class InstallationState;

namespace ui {
class Button;
}

// The first screen a new user sees: the logo, a welcome, three features and "Get Started",
// which remembers that the introduction was seen and moves on to the Home dashboard.
class OnboardingView : public QWidget {
    Q_OBJECT

public:
    explicit OnboardingView(InstallationState& state, QWidget* parent = nullptr);

    // Becomes true once, when the screen is first shown; the elements then move to their
    // final look in one 0.6 s ease-out animation that starts after 0.1 s.
    bool animateIn() const { return m_animateIn; }
    QAbstractAnimation* entranceAnimation() const { return m_entrance; }

    static constexpr int entranceDelayMs = 100;
    static constexpr int entranceDurationMs = 600;

protected:
    void showEvent(QShowEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void getStarted();
    void render(qreal progress);

    InstallationState& m_state;
    bool m_animateIn = false;
    QPointer<QAbstractAnimation> m_entrance;
    QWidget* m_logo = nullptr;
    QWidget* m_titleBlock = nullptr;
    QList<QWidget*> m_rows;
    QWidget* m_buttonRow = nullptr;
    ui::Button* m_getStarted = nullptr;
};

} // namespace qf
