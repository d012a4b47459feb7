#include "ContentView.h"

#include "FocusOrder.h"
#include "InstallationState.h"
#include "Motion.h"
#include "StartupProbe.h"

#include <QPainter>
#include <QResizeEvent>

namespace qf {

namespace {

// A picture of the previous screen, fading out above the new one. It lets every click
// through to the new screen.
class FadeOverlay : public QWidget {
public:
    FadeOverlay(const QPixmap& picture, QWidget* parent) : QWidget(parent), m_picture(picture)
    {
        setObjectName(QStringLiteral("screenTransition"));
        setAttribute(Qt::WA_TransparentForMouseEvents);
        setFocusPolicy(Qt::NoFocus);
    }

    void setOpacity(qreal opacity)
    {
        m_opacity = opacity;
        update();
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        painter.setOpacity(m_opacity);
        painter.drawPixmap(0, 0, m_picture);
    }

private:
    QPixmap m_picture;
    qreal m_opacity = 1.0;
};

} // namespace

ContentView::ContentView(InstallationState& state, ScreenFactory factory, QWidget* parent, FirstScreen firstScreen)
    : QWidget(parent), m_state(state), m_factory(std::move(factory))
{
    setObjectName(QStringLiteral("contentView"));
    connect(&m_state, &InstallationState::currentStepChanged, this, [this] { showStep(m_state.currentStep()); });
    if (firstScreen == FirstScreen::atOnce) {
        showStep(m_state.currentStep());
        return;
    }
    QPointer<ContentView> guard(this);
    afterFirstFrame(window(), [guard] {
        if (guard && !guard->m_screen)
            guard->showStep(guard->m_state.currentStep());
    });
}

void ContentView::showStep(InstallationStep step)
{
    QPixmap previous;
    if (m_screen && isVisible() && ui::motion::enabled())
        previous = grab(); // includes a transition still running, so quick changes blend smoothly

    if (m_overlay)
        delete m_overlay.data();
    if (m_screen) {
        // The old screen may be in the middle of handling the click that changed the step:
        // hide it now and delete it once control has returned to the event loop.
        m_screen->hide();
        m_screen->deleteLater();
    }

    m_shownStep = step;
    m_screen = m_factory(step, m_state);
    m_screen->setParent(this);
    m_screen->setGeometry(rect());
    // Tab reads the new screen as it is laid out: top to bottom, its bottom bar last.
    ui::orderTabChain(m_screen);
    m_screen->show();

    if (previous.isNull())
        return;
    auto* overlay = new FadeOverlay(previous, this);
    overlay->setGeometry(rect());
    overlay->show();
    overlay->raise();
    m_overlay = overlay;
    QPointer<FadeOverlay> guard(overlay);
    ui::motion::animate(overlay, transitionDurationMs, ui::motion::easeInOut(), [guard](qreal progress) {
        if (!guard)
            return;
        guard->setOpacity(1.0 - progress);
        if (progress >= 1.0)
            guard->deleteLater();
    });
}

void ContentView::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    if (m_screen)
        m_screen->setGeometry(rect());
    if (m_overlay)
        m_overlay->setGeometry(rect());
}

} // namespace qf
