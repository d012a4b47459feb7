#include "Theme.h"

#include <algorithm>

#include <QApplication>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QStyleFactory>

namespace qf::ui {

namespace {

struct Pair {
    QRgb light;
    QRgb dark;
};

// The system accent colours, as macOS draws them in light and dark mode.
constexpr Pair kBlue{qRgb(0, 122, 255), qRgb(10, 132, 255)};
constexpr Pair kGreen{qRgb(40, 205, 65), qRgb(50, 215, 75)};
constexpr Pair kOrange{qRgb(255, 149, 0), qRgb(255, 159, 10)};
constexpr Pair kRed{qRgb(255, 59, 48), qRgb(255, 69, 58)};
constexpr Pair kPurple{qRgb(175, 82, 222), qRgb(191, 90, 242)};
constexpr Pair kYellow{qRgb(255, 204, 0), qRgb(255, 214, 10)};

QColor pick(const Pair& pair, bool dark) { return QColor::fromRgb(dark ? pair.dark : pair.light); }

QColor withAlpha(QColor color, qreal alpha)
{
    color.setAlphaF(float(color.alphaF() * alpha));
    return color;
}

// The families tried first for ordinary text, as the platform asked for them.
QStringList& standardFamilies()
{
    static QStringList families;
    return families;
}

} // namespace

QColor Tint::resolve() const
{
    QColor base = fixed ? *fixed : Theme::color(role);
    // Springs overshoot: an opacity a little below 0 or above 1 is the nearest end.
    if (opacity < 1.0)
        base.setAlphaF(float(base.alphaF() * std::max<qreal>(opacity, 0.0)));
    return base;
}

Tint mix(const Tint& a, const Tint& b, qreal t)
{
    if (t <= 0.0)
        return a;
    if (t >= 1.0)
        return b;
    const QColor from = a.resolve();
    const QColor to = b.resolve();
    const auto lerp = [t](float x, float y) { return x + (y - x) * float(t); };
    return Tint(QColor::fromRgbF(lerp(from.redF(), to.redF()), lerp(from.greenF(), to.greenF()),
                                 lerp(from.blueF(), to.blueF()), lerp(from.alphaF(), to.alphaF())));
}

namespace Theme {

bool isDark(const QPalette& palette) { return palette.color(QPalette::Window).lightness() < 128; }

bool isDark() { return isDark(QGuiApplication::palette()); }

QColor color(Role role)
{
    const QPalette palette = QGuiApplication::palette();
    const bool dark = isDark(palette);
    const QColor text = palette.color(QPalette::WindowText);
    switch (role) {
    case Role::windowBackground: return palette.color(QPalette::Window);
    case Role::controlBackground: return palette.color(QPalette::Base);
    case Role::textBackground: return palette.color(QPalette::AlternateBase);
    case Role::primary: return text;
    case Role::secondary: return withAlpha(text, dark ? 0.62 : 0.56);
    case Role::tertiary: return withAlpha(text, dark ? 0.32 : 0.30);
    case Role::separator: return withAlpha(text, dark ? 0.16 : 0.12);
    case Role::accent: return palette.color(QPalette::Highlight);
    case Role::blue: return pick(kBlue, dark);
    case Role::green: return pick(kGreen, dark);
    case Role::orange: return pick(kOrange, dark);
    case Role::red: return pick(kRed, dark);
    case Role::purple: return pick(kPurple, dark);
    case Role::yellow: return pick(kYellow, dark);
    case Role::black: return QColor(Qt::black);
    case Role::white: return QColor(Qt::white);
    case Role::clear: return QColor(Qt::transparent);
    }
    return text;
}

QFont font(qreal pointSize, QFont::Weight weight, FontDesign design)
{
    QFont f = QGuiApplication::font();
    QStringList families;
    switch (design) {
    case FontDesign::standard: families = standardFamilies(); break;
    case FontDesign::rounded:
        families = {QStringLiteral("SF Pro Rounded"), QStringLiteral("Nunito"), QStringLiteral("Varela Round")};
        families += standardFamilies();
        break;
    case FontDesign::monospaced:
        families = {QStringLiteral("SF Mono"), QStringLiteral("Menlo"), QStringLiteral("JetBrains Mono"),
                    QStringLiteral("DejaVu Sans Mono")};
        families += QFontDatabase::systemFont(QFontDatabase::FixedFont).families();
        f.setStyleHint(QFont::Monospace);
        break;
    }
    if (!families.isEmpty()) {
        families += QGuiApplication::font().families();
        f.setFamilies(families);
    }
    f.setPixelSize(qMax(1, qRound(pointSize)));
    f.setWeight(weight);
    return f;
}

QFont title() { return font(22); }
QFont title2() { return font(17); }
QFont headline() { return font(13, QFont::DemiBold); }
QFont body() { return font(13); }
QFont callout() { return font(12); }
QFont subheadline() { return font(11); }
QFont caption() { return font(10); }
QFont caption2() { return font(10); }

namespace {

// The colours of one appearance; the rest of a palette follows from them.
struct PaletteColors {
    QColor text; // primary text; faint text is the same colour at 1/4 of full opacity
    QColor window;
    QColor base;      // cards and fields
    QColor alternate; // code and command boxes
    QColor button;
    QColor toolTip;
    QColor light, midlight, mid, dark, shadow;
    QRgb accent;
};

QPalette paletteFrom(const PaletteColors& c)
{
    QPalette p;
    QColor faint = c.text;
    faint.setAlpha(64);
    for (QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText})
        p.setColor(role, c.text);
    p.setColor(QPalette::Window, c.window);
    p.setColor(QPalette::Base, c.base);
    p.setColor(QPalette::AlternateBase, c.alternate);
    p.setColor(QPalette::PlaceholderText, faint);
    p.setColor(QPalette::Button, c.button);
    p.setColor(QPalette::Highlight, QColor::fromRgb(c.accent));
    p.setColor(QPalette::HighlightedText, Qt::white);
    p.setColor(QPalette::Link, QColor::fromRgb(c.accent));
    p.setColor(QPalette::ToolTipBase, c.toolTip);
    p.setColor(QPalette::Light, c.light);
    p.setColor(QPalette::Midlight, c.midlight);
    p.setColor(QPalette::Mid, c.mid);
    p.setColor(QPalette::Dark, c.dark);
    p.setColor(QPalette::Shadow, c.shadow);
    for (QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        p.setColor(QPalette::Disabled, role, faint);
    return p;
}

} // namespace

QPalette lightPalette()
{
    return paletteFrom({.text = QColor(0, 0, 0, 217),
                        .window = QColor(236, 236, 236),
                        .base = QColor(255, 255, 255),
                        .alternate = QColor(244, 244, 246),
                        .button = QColor(255, 255, 255),
                        .toolTip = QColor(255, 255, 255),
                        .light = QColor(255, 255, 255),
                        .midlight = QColor(245, 245, 245),
                        .mid = QColor(190, 190, 190),
                        .dark = QColor(160, 160, 160),
                        .shadow = QColor(0, 0, 0, 60),
                        .accent = kBlue.light});
}

QPalette darkPalette()
{
    return paletteFrom({.text = QColor(255, 255, 255, 217),
                        .window = QColor(40, 40, 42),
                        .base = QColor(28, 28, 30),
                        .alternate = QColor(20, 20, 22),
                        .button = QColor(58, 58, 60),
                        .toolTip = QColor(50, 50, 52),
                        .light = QColor(80, 80, 82),
                        .midlight = QColor(64, 64, 66),
                        .mid = QColor(48, 48, 50),
                        .dark = QColor(20, 20, 22),
                        .shadow = QColor(0, 0, 0, 120),
                        .accent = kBlue.dark});
}

void applyApplicationLook(QApplication& app, const ApplicationLook& look)
{
    standardFamilies() = look.fontFamilies;
    if (look.nativeStyle)
        return;

    if (QStyle* style = QStyleFactory::create(QStringLiteral("Fusion")))
        app.setStyle(style);
    const bool dark = look.prefersDark.value_or(isDark(app.palette()));
    app.setPalette(dark ? darkPalette() : lightPalette());

    QFont base = app.font();
    QStringList families = look.fontFamilies;
    families += base.families();
    base.setFamilies(families);
    base.setPixelSize(13);
    app.setFont(base);
}

} // namespace Theme
} // namespace qf::ui
