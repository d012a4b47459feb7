#pragma once

#include "CLITool.h"
#include "RoundedCard.h"

#include <QList>

namespace qf {

namespace ui {
class Label;
}

// One numbered row of the welcome card: a number on an accent circle, a title, a description.
class WelcomeStep : public QWidget {
    Q_OBJECT

public:
    WelcomeStep(int number, const QString& title, const QString& description, QWidget* parent = nullptr);
};

// The card a user without any AI tool sees first: a greeting, three first steps and a tip.
// `developerToolsName` is what the dashboard calls this system's developer tools.
class FirstTimeWelcomeCard : public ui::RoundedCard {
    Q_OBJECT

public:
    explicit FirstTimeWelcomeCard(const QString& developerToolsName, QWidget* parent = nullptr);

    // The tip suits what the machine has: the developer tools or not, and the AI tools found.
    void setMachine(bool hasDeveloperTools, const QList<CLITool>& installedTools);
    // The tip's text (inline Markdown) for such a machine: where to start, what comes next, or
    // how to start a tool that is there already.
    static QString tipText(const QString& developerToolsName, bool hasDeveloperTools,
                           const QList<CLITool>& installedTools);

private:
    QString m_developerToolsName;
    ui::Label* m_tip;
};

} // namespace qf
