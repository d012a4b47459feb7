#pragma once

#include "ContentView.h"
#include "InstallationController.h"

#include <QDialog>
#include <QPointer>
#include <QWidget>

#include <optional>

namespace qf {

class InstallationState;
class Services;

// The one main window: at least 550 x 450, opening over the screen's usable area (its frame
// included), on the window background, holding the content view.
class MainWindow : public QWidget {
    Q_OBJECT

public:
    // Without a factory the window shows the application's screens, built with `services`.
    MainWindow(InstallationState& state, Services& services, ScreenFactory factory = {}, QWidget* parent = nullptr,
               ContentView::FirstScreen firstScreen = ContentView::FirstScreen::atOnce);

    ContentView* contentView() const { return m_content; }
    InstallationController& installationController() { return m_installation; }
    bool isConfigured() const { return m_configured; }

    // Shows the window in front of the others, unminimised, with the keyboard focus.
    void bringToFront();
    // "About Quillforge", over the window; one at a time.
    void showAbout();
    QDialog* aboutDialog() const { return m_about; }

    static constexpr int minimumWidth = 550;
    static constexpr int minimumHeight = 450;

protected:
    bool event(QEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    void configure();
    // Fills the usable area of the screen, leaving room for the frame around the window.
    void fitToScreen();

    Services& m_services;
    // Outlives every screen, so an installation goes on when its screen goes away.
    InstallationController m_installation;
    ContentView* m_content;
    bool m_configured = false;
    // The frame the window was fitted with before the window system said which it is.
    std::optional<QMargins> m_assumedFrame;
    QPointer<QDialog> m_about;
};

// The screen of each step, built fresh each time the step is entered.
QWidget* makeScreen(InstallationStep step, InstallationState& state, Services& services,
                    InstallationController& installation);

} // namespace qf
