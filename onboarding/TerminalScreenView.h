#pragma once

#include "CLITool.h"

#include <QWidget>

namespace qf {

class InstallationState;
class Platform;
class TerminalLauncher;
class ToolLaunch;
struct SystemWording;

namespace ui {
class CopiedToastPresenter;
class Label;
class ScrollView;
class TerminalFallbackRow;
} // namespace ui

// The tool started in a terminal window: says so and where to look, opens another window on
// request, shows the first three example commands and leads back to the dashboard. When no
// window could be opened it says so instead, with the line to type by hand.
class TerminalLaunchedView : public QWidget {
    Q_OBJECT

public:
    TerminalLaunchedView(InstallationState& state, CLITool tool, ToolLaunch& launch, const SystemWording& wording,
                         QWidget* parent = nullptr);

private:
    void render();

    CLITool m_tool;
    ToolLaunch& m_launch;
    const SystemWording& m_wording;
    ui::ScrollView* m_scroll;
    ui::Label* m_title;
    ui::Label* m_subtitle;
    ui::TerminalFallbackRow* m_fallback;
    ui::CopiedToastPresenter* m_toast;
};

// The terminal step: the chosen tool launched in ~/Developer once, the first time its content
// appears (drawing it again launches nothing), or "No tool selected" without a tool.
class TerminalScreenView : public QWidget {
    Q_OBJECT

public:
    TerminalScreenView(InstallationState& state, TerminalLauncher& terminal, const Platform& platform,
                       QWidget* parent = nullptr);

    bool hasLaunched() const { return m_hasLaunched; }
    ToolLaunch* launch() const { return m_launch; }

protected:
    void showEvent(QShowEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    ToolLaunch* m_launch = nullptr;
    bool m_hasLaunched = false;
    bool m_appeared = false;
};

} // namespace qf
