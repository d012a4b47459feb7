#include "MainWindow.h"

#include "APIKeyView.h"
#include "AccountSetupView.h"
#include "CompletionView.h"
#include "HomeView.h"
#include "InstallationState.h"
#include "InstallationView.h"
#include "OnboardingView.h"
#include "Services.h"
#include "SystemCheckView.h"
#include "TerminalScreenView.h"
#include "WelcomeView.h"

namespace qf {

QWidget* makeScreen(InstallationStep step, InstallationState& state, Services& services,
                    InstallationController& installation)
{
    switch (step) {
    case InstallationStep::onboarding: return new OnboardingView(state);
    case InstallationStep::home: return new HomeView(state, services);
    case InstallationStep::welcome: return new WelcomeView(state, services.platform);
    case InstallationStep::accountSetup: return new AccountSetupView(state, services.platform);
    case InstallationStep::systemCheck: return new SystemCheckView(state, services.detector, services.platform);
    case InstallationStep::installation: return new InstallationView(state, installation, services.platform);
    case InstallationStep::apiKey:
        return new APIKeyView(state, services.keys, services.platform, services.detector.shellProfilePath());
    case InstallationStep::completion: return new CompletionView(state, services.terminal);
    case InstallationStep::terminal: return new TerminalScreenView(state, services.terminal, services.platform);
    }
    Q_UNREACHABLE();
}

} // namespace qf
