#include "MainWindow.h"

#include "AccountSetupView.h"
#include "HomeView.h"
#include "InstallationState.h"
#include "InstallationView.h"
#include "OnboardingView.h"
#include "Services.h"
#include "SystemCheckView.h"
#include "WelcomeView.h"

#include "Label.h"
#include "Layout.h"
#include "Theme.h"

#include <QPainter>

namespace qf {

namespace {

// Stands in for a screen that is not built yet, naming its step.
class PlaceholderScreen : public QWidget {
public:
    explicit PlaceholderScreen(InstallationStep step)
    {
        using namespace ui;
        setObjectName(QStringLiteral("placeholder.%1").arg(caseName(step)));
        auto* column = vstack(this, 8);
        column->addStretch(1);
        auto* title = new Label(caseName(step), Theme::title2());
        title->setObjectName(QStringLiteral("placeholderTitle"));
        title->setAlignment(Qt::AlignHCenter);
        auto* note = new Label(QStringLiteral("This screen is not built yet."), Theme::body(), Tint(Role::secondary));
        note->setAlignment(Qt::AlignHCenter);
        column->addWidget(title);
        column->addWidget(note);
        column->addStretch(1);
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter(this).fillRect(rect(), ui::Theme::color(ui::Role::windowBackground));
    }
};

} // namespace

QWidget* makeScreen(InstallationStep step, InstallationState& state, Services& services,
                    InstallationController& installation)
{
    switch (step) {
    case InstallationStep::onboarding: return new OnboardingView(state);
    case InstallationStep::home: return new HomeView(state, services);
    case InstallationStep::welcome: return new WelcomeView(state, services.platform);
    case InstallationStep::accountSetup: return new AccountSetupView(state, services.platform);
    case InstallationStep::systemCheck: return new SystemCheckView(state, services);
    case InstallationStep::installation: return new InstallationView(state, installation);
    default: return new PlaceholderScreen(step);
    }
}

} // namespace qf
