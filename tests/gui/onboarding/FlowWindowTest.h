#pragma once

#include "ContentView.h"
#include "InstallationState.h"
#include "InstallationView.h"
#include "MainWindow.h"
#include "SystemCheckView.h"
#include "TestMachine.h"
#include "TestSupport.h"
#include "WindowDriver.h"

#include <QLabel>
#include <QTest>

#include <memory>

namespace qf::test {

// The real window with the real screens, working on a sandboxed machine with fake programs.
class FlowWindowTest : public ::testing::Test, protected TestMachine, protected WindowDriver {
protected:
    void SetUp() override { clearPreferences(); }

    // The window on `step`, with `tool` chosen as the dashboard's "Install" does.
    void open(InstallationStep step, std::optional<CLITool> tool, QSize size = {900, 700})
    {
        showWindow(services, step, tool, size);
    }
    ui::Button* button(const char* name) const { return child<ui::Button>(screen(), QLatin1String(name)); }
    QString text(const char* name) const { return textIn(screen(), name); }

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
    bool showsChild(const char* name) const { return shows(child<QWidget>(screen(), QLatin1String(name))); }
    // The text of the label `name` inside `parent`.
    static QString textIn(const QWidget* parent, const char* name)
    {
        return child<QLabel>(parent, QLatin1String(name))->text();
    }
};

} // namespace qf::test
