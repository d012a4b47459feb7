#pragma once

#include "SetupModel.h"

#include <QPointer>
#include <QWidget>

#include <functional>

namespace qf {

class InstallationState;

// Builds the screen for a step. Every call makes a new screen, so each visit starts fresh.
using ScreenFactory = std::function<QWidget*(InstallationStep, InstallationState&)>;

// The window's content: exactly one screen, the one of the current step. On every step change
// the old screen is replaced by a freshly built one at once, and a picture of the old screen
// fades out on top of it over 0.3 s (ease-in-out), so the new screen is live immediately.
class ContentView : public QWidget {
    Q_OBJECT

public:
    // When the first screen is built: at once, or once the window has painted its first frame
    // (the window then appears on its plain background a little sooner, and the screen, whose
    // elements fade in anyway, follows in the next frame).
    enum class FirstScreen { atOnce, afterFirstFrame };

    ContentView(InstallationState& state, ScreenFactory factory, QWidget* parent = nullptr,
                FirstScreen firstScreen = FirstScreen::atOnce);

    // Nothing only while a deferred first screen waits for the first frame.
    QWidget* currentScreen() const { return m_screen; }
    InstallationStep shownStep() const { return m_shownStep; }
    // The fading picture of the previous screen while a change animates.
    QWidget* transitionOverlay() const { return m_overlay; }

    static constexpr int transitionDurationMs = 300;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void showStep(InstallationStep step);

    InstallationState& m_state;
    ScreenFactory m_factory;
    QPointer<QWidget> m_screen;
    QPointer<QWidget> m_overlay;
    InstallationStep m_shownStep = InstallationStep::onboarding;
};

} // namespace qf
