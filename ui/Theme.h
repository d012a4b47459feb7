#pragma once

#include "Platform.h"

#include <QColor>
#include <QFont>
#include <QPalette>

#include <optional>

class QApplication;

namespace qf::ui {

// Colour roles of the system look. Every colour on screen is one of these, at some opacity,
// resolved at paint time so that a change to dark mode re-colours everything.
enum class Role {
    windowBackground,  // the window and screen backgrounds
    controlBackground, // cards, bars, toasts
    textBackground,    // code and command boxes
    primary,           // primary text
    secondary,         // secondary text
    tertiary,          // tertiary text
    separator,
    accent,
    blue,
    green,
    orange,
    red,
    purple,
    yellow,
    black,
    white,
    clear,
};

// A colour as the design names it: a role (or a fixed colour such as a tool's brand colour)
// at an opacity.
struct Tint {
    Role role = Role::primary;
    qreal opacity = 1.0;
    std::optional<QColor> fixed;

    constexpr Tint() = default;
    constexpr Tint(Role r, qreal o = 1.0) : role(r), opacity(o) {}
    Tint(const QColor& color, qreal o = 1.0) : opacity(o), fixed(color) {}

    Tint withOpacity(qreal o) const
    {
        Tint copy = *this;
        copy.opacity = o;
        return copy;
    }
    QColor resolve() const;
    bool isClear() const { return !fixed && role == Role::clear; }

    friend bool operator==(const Tint&, const Tint&) = default;
};

// The colour `t` of the way from `a` to `b` (0: `a` itself, 1: `b` itself).
Tint mix(const Tint& a, const Tint& b, qreal t);

enum class FontDesign { standard, rounded, monospaced };

namespace Theme {

// Dark mode is read from the palette: a dark window background means dark mode.
bool isDark();
bool isDark(const QPalette& palette);
QColor color(Role role);

// Sizes are points, that is logical pixels.
QFont font(qreal pointSize, QFont::Weight weight = QFont::Normal, FontDesign design = FontDesign::standard);

// The system text styles.
QFont title();       // 22
QFont title2();      // 17
QFont headline();    // 13 semibold
QFont body();        // 13
QFont callout();     // 12
QFont subheadline(); // 11
QFont caption();     // 10
QFont caption2();    // 10

// Gives the application the look the platform asks for: the system's own, or the same palette
// roles drawn by Qt's Fusion style (light or dark as the platform prefers, else as the
// desktop's palette is) with the platform's preferred fonts first.
void applyApplicationLook(QApplication& app, const ApplicationLook& look);

// The palettes used where the platform has none of its own.
QPalette lightPalette();
QPalette darkPalette();

} // namespace Theme
} // namespace qf::ui
