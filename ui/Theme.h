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

// Contrast as WCAG 2 measures it. A colour with some transparency counts as what it shows over
// `background`.
qreal relativeLuminance(const QColor& color);
qreal contrastRatio(const QColor& foreground, const QColor& background);
QColor composite(const QColor& over, const QColor& under);

// Text below 18 points stands 4.5:1 from what lies behind it; larger text, symbols, control
// edges and the focus ring 3:1.
inline constexpr qreal smallTextContrast = 4.5;
inline constexpr qreal largeTextContrast = 3.0;
inline constexpr qreal nonTextContrast = 3.0;

// The shade of `color` that stands `ratio` from `background`: `color` itself when it does, else
// the same hue made more opaque, then darker (or lighter, with `lighter`) step by step.
QColor shadeReaching(const QColor& color, const QColor& background, qreal ratio, bool lighter);

// The shade of `color` in which text is written: darker in the light appearance, lighter in the
// dark one, until it stands 4.5:1 from every background text lies on (the window, the cards, the
// code boxes), from those under a pill of the text's own colour (12%) and from those under a
// tinted surface of any colour up to 10%. Bright colours stay for symbols and fills; text asks
// for its shade here.
QColor textColor(const QColor& color);
// The same for text on `fill` (which may be translucent) laid over those backgrounds.
QColor textColor(const QColor& color, const QColor& fill);
// The fill behind white text (a prominent button): `color`, or a darker shade where white on it
// would not stand 4.5:1 from it.
QColor fillBehindWhiteText(const QColor& color);
// The keyboard focus ring: the accent's hue, dark in the light appearance and light in the dark
// one, standing 3:1 from the backgrounds and from the fill of a prominent button.
QColor focusRingColor();

} // namespace Theme
} // namespace qf::ui
