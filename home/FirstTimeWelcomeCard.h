#pragma once

#include "RoundedCard.h"

namespace qf {

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
};

} // namespace qf
