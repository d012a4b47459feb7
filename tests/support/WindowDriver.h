#pragma once

#include "ContentView.h"
#include "InstallationState.h"
#include "MainWindow.h"
#include "SystemCheckView.h"
#include "TestSupport.h"

#include <QAbstractButton>
#include <QTest>

#include <memory>

namespace qf::test {

// The real window with the real screens, as a person drives it: opened on a step, its current
// screen, its buttons, and the waits for its longer work. For test programs that link the app.
class WindowDriver {
protected:
    // The window on `step` with `tool` chosen, as the dashboard's "Install" does, at `size`.
    void showWindow(Services& services, InstallationStep step, std::optional<CLITool> tool, QSize size)
    {
        window.reset();
        state.setSelectedTool(tool);
        state.setCurrentStep(step);
        window = std::make_unique<MainWindow>(state, services);
        window->show();
        QApplication::setActiveWindow(window.get());
        // The window takes its first size from the screen once shown; this one comes after.
        settle();
        window->resize(size);
        settle();
    }
    QWidget* screen() const { return window->contentView()->currentScreen(); }
    template <typename T>
    T* screenAs() const
    {
        auto* shown = qobject_cast<T*>(screen());
        EXPECT_NE(shown, nullptr) << "on " << screen()->objectName().toStdString();
        return shown;
    }
    void click(const char* name) const
    {
        auto* target = child<QAbstractButton>(screen(), QLatin1String(name));
        ASSERT_TRUE(target && target->isVisible() && target->isEnabled()) << name;
        target->click();
        settle();
    }
    void waitForCheck() const
    {
        auto* check = screenAs<SystemCheckView>();
        ASSERT_TRUE(QTest::qWaitFor([check] { return !check->isChecking(); }, 20000));
        settle();
    }
    InstallationController& controller() const { return window->installationController(); }
    void waitForInstallation() const
    {
        // The screen's attempt may wait for an earlier run before it starts its own.
        ASSERT_TRUE(
            QTest::qWaitFor([this] { return !controller().isInstalling() && !controller().isRunning(); }, 30000));
        settle();
    }

    InstallationState state;
    std::unique_ptr<MainWindow> window;
};

} // namespace qf::test
