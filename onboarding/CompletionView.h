#pragma once

#include "CLITool.h"

#include "DisclosureCard.h"

#include <QWidget>

#include <functional>
#include <optional>

class QVBoxLayout;

namespace qf {

struct SystemWording;

namespace ui {
class CopiedToastPresenter;
class ScrollView;
class TerminalFallbackRow;
} // namespace ui

class InstallationState;
class TerminalLauncher;
class ToolLaunch;

// One of a tool's common commands: the command in a code box with a copy button, and what it
// does below it.
class CommandRow : public QWidget {
    Q_OBJECT

public:
    CommandRow(const QString& command, const QString& description, std::function<void()> onCopy,
               QWidget* parent = nullptr);

    QString command() const { return m_command; }

private:
    QString m_command;
};

// The tool's common commands, behind a header that opens and closes the list. It starts closed.
class CommonCommandsCard : public ui::DisclosureCard {
    Q_OBJECT

public:
    CommonCommandsCard(CLITool tool, const std::function<void()>& onCopy, QWidget* parent = nullptr);

    QList<CommandRow*> rows() const;
};

// A numbered step of the first project: its number in a badge, its title and, when it has
// one, its command in a code box with a copy button.
class StepRow : public QWidget {
    Q_OBJECT

public:
    StepRow(int number, const QString& title, const std::optional<QString>& command, std::function<void()> onCopy,
            QWidget* parent = nullptr);

    int number() const { return m_number; }
    const std::optional<QString>& command() const { return m_command; }

private:
    int m_number;
    std::optional<QString> m_command;
};

// Three steps to a first project, behind a header that opens and closes them. It starts open.
class FirstProjectTipsCard : public ui::DisclosureCard {
    Q_OBJECT

public:
    explicit FirstProjectTipsCard(const std::function<void()>& onCopy, QWidget* parent = nullptr);

    QList<StepRow*> steps() const;
};

// The tool is ready: how to start it, its common commands and the first project's steps, with
// "Home" and "Open in Terminal" in a bar at the top. Every copy shows the copied toast. When a
// terminal window could not be opened, a row under the bar gives the line to type instead.
class CompletionView : public QWidget {
    Q_OBJECT

public:
    CompletionView(InstallationState& state, TerminalLauncher& terminal, QWidget* parent = nullptr);

    ui::CopiedToastPresenter* toastPresenter() const { return m_toast; }
    ToolLaunch* launch() const { return m_launch; }

protected:
    void showEvent(QShowEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void buildContent(CLITool tool, QVBoxLayout* column);
    void render();

    InstallationState& m_state;
    // Where a visit starts: "Open in Terminal", or "Home" without a tool.
    QWidget* m_main = nullptr;
    bool m_appeared = false;
    ToolLaunch* m_launch = nullptr;
    ui::ScrollView* m_scroll = nullptr;
    ui::TerminalFallbackRow* m_fallback = nullptr;
    const SystemWording& m_wording;
    ui::CopiedToastPresenter* m_toast = nullptr;
};

} // namespace qf
