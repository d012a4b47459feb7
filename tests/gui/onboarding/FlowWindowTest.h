#pragma once

#include "ContentView.h"
#include "InstallationState.h"
#include "InstallationView.h"
#include "MainWindow.h"
#include "SystemCheckView.h"
#include "TestMachine.h"
#include "TestSupport.h"

#include <QLabel>
#include <QTest>

#include <memory>

namespace qf::test {

// The real window with the real screens, working on a sandboxed machine with fake programs.
class FlowWindowTest : public ::testing::Test, protected TestMachine {
protected:
    void SetUp() override { clearPreferences(); }

    // The window on `step`, with `tool` chosen as the dashboard's "Install" does.
    void open(InstallationStep step, std::optional<CLITool> tool, QSize size = {900, 700})
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
    ui::Button* button(const char* name) const { return child<ui::Button>(screen(), QLatin1String(name)); }
    void click(const char* name) const
    {
        auto* target = child<QAbstractButton>(screen(), QLatin1String(name));
        ASSERT_TRUE(target && target->isVisible() && target->isEnabled()) << name;
        target->click();
        settle();
    }
    QString text(const char* name) const { return child<QLabel>(screen(), QLatin1String(name))->text(); }

    void waitForCheck() const
    {
        auto* check = screenAs<SystemCheckView>();
        ASSERT_TRUE(QTest::qWaitFor([check] { return !check->isChecking(); }, 20000));
    }
    InstallationController& controller() const { return window->installationController(); }
    void waitForInstallation() const
    {
        // The screen's attempt may wait for an earlier run before it starts its own.
        ASSERT_TRUE(
            QTest::qWaitFor([this] { return !controller().isInstalling() && !controller().isRunning(); }, 20000));
        settle();
    }
    SetupStep step(SetupStepType type) const
    {
        for (SetupStepRow* row : screenAs<InstallationView>()->progressView()->rows()) {
            if (row->step().type == type)
                return row->step();
        }
        ADD_FAILURE() << "no row for " << type.rawValue().toStdString();
        return {type};
    }
    static bool shows(const QWidget* widget) { return widget && widget->isVisible(); }

    InstallationState state;
    std::unique_ptr<MainWindow> window;
};

} // namespace qf::test
