#include "Theme.h"

#include <algorithm>
#include <array>
#include <cmath>

#include <QApplication>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QHash>
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

namespace {

qreal linear(qreal channel) { return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4); }

QColor opaque(QColor color)
{
    color.setAlpha(255);
    return color;
}

QColor translucent(QColor color, qreal alpha)
{
    color.setAlphaF(float(color.alphaF() * alpha));
    return color;
}

QColor towards(const QColor& from, const QColor& to, qreal t)
{
    const auto channel = [t](int a, int b) { return qRound(a + (b - a) * t); };
    return QColor(channel(from.red(), to.red()), channel(from.green(), to.green()), channel(from.blue(), to.blue()));
}

// As dark as any tinted surface of the design (up to 10% of a bright colour) makes a light page,
// or as light as it makes a dark one: the bright colours lighten a dark page more than they
// darken a light one.
QColor anyTintOver(bool dark) { return dark ? QColor(255, 255, 255, 26) : QColor(0, 0, 0, 16); }

// What text and the focus ring are measured against in the current appearance.
std::array<QColor, 3> pageBackgrounds()
{
    const QPalette palette = QGuiApplication::palette();
    return {opaque(palette.color(QPalette::Window)), opaque(palette.color(QPalette::Base)),
            opaque(palette.color(QPalette::AlternateBase))};
}

// Shades are asked for on every paint: each is worked out once per colour, fill and palette.
struct ShadeKey {
    int kind;
    QRgb color;
    QRgb fill;
    QRgb window;
    QRgb base;
    QRgb alternate;
    friend bool operator==(const ShadeKey&, const ShadeKey&) = default;
};

size_t qHash(const ShadeKey& key, size_t seed = 0)
{
    return qHashMulti(seed, key.kind, key.color, key.fill, key.window, key.base, key.alternate);
}

template <typename Make>
QColor cachedShade(int kind, const QColor& color, const QColor& fill, Make&& make)
{
    static QHash<ShadeKey, QColor> cache;
    const auto pages = pageBackgrounds();
    const ShadeKey key{kind, color.rgba(), fill.rgba(), pages[0].rgba(), pages[1].rgba(), pages[2].rgba()};
    if (const auto found = cache.constFind(key); found != cache.constEnd())
        return found.value();
    if (cache.size() > 4096)
        cache.clear();
    const QColor shade = make(pages);
    cache.insert(key, shade);
    return shade;
}

} // namespace

qreal relativeLuminance(const QColor& color)
{
    const QColor rgb = color.toRgb();
    return 0.2126 * linear(rgb.redF()) + 0.7152 * linear(rgb.greenF()) + 0.0722 * linear(rgb.blueF());
}

QColor composite(const QColor& over, const QColor& under)
{
    const qreal alpha = over.alphaF();
    const auto channel = [alpha](int top, int bottom) { return qRound(top * alpha + bottom * (1.0 - alpha)); };
    return QColor(channel(over.red(), under.red()), channel(over.green(), under.green()),
                  channel(over.blue(), under.blue()));
}

qreal contrastRatio(const QColor& foreground, const QColor& background)
{
    const QColor under = opaque(background);
    const qreal a = relativeLuminance(composite(foreground, under));
    const qreal b = relativeLuminance(under);
    return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

QColor shadeReaching(const QColor& color, const QColor& background, qreal ratio, bool lighter)
{
    const auto reaches = [&](const QColor& candidate) { return contrastRatio(candidate, background) >= ratio; };
    if (reaches(color))
        return color;
    QColor shade = color;
    for (int alpha = color.alpha() + 1; alpha <= 255; ++alpha) {
        shade.setAlpha(alpha);
        if (reaches(shade))
            return shade;
    }
    const QColor end = lighter ? QColor(Qt::white) : QColor(Qt::black);
    for (int step = 1; step < 100; ++step) {
        const QColor candidate = towards(shade, end, step / 100.0);
        if (reaches(candidate))
            return candidate;
    }
    return end;
}

QColor textColor(const QColor& color)
{
    return cachedShade(0, color, QColor(), [&color](const std::array<QColor, 3>& pages) {
        const bool lighter = isDark();
        // A pill of the text's own colour, and any tinted surface of the design.
        const QColor ownTint = translucent(color, 0.12);
        const QColor anyTint = anyTintOver(lighter);
        QColor shade = color;
        for (const QColor& page : pages) {
            for (const QColor& behind : {page, composite(ownTint, page), composite(anyTint, page)})
                shade = shadeReaching(shade, behind, smallTextContrast, lighter);
        }
        return shade;
    });
}

QColor textColor(const QColor& color, const QColor& fill)
{
    return cachedShade(1, color, fill, [&color, &fill](const std::array<QColor, 3>& pages) {
        const bool lighter = isDark();
        // The fill may lie on a tinted surface too (a numbered badge on the tips card).
        const QColor anyTint = anyTintOver(lighter);
        QColor shade = color;
        for (const QColor& page : pages) {
            for (const QColor& under : {page, composite(anyTint, page)})
                shade = shadeReaching(shade, composite(fill, under), smallTextContrast, lighter);
        }
        return shade;
    });
}

QColor fillBehindWhiteText(const QColor& color)
{
    return shadeReaching(opaque(color), QColor(Qt::white), smallTextContrast, false);
}

QColor focusRingColor()
{
    const QColor accent = opaque(QGuiApplication::palette().color(QPalette::Highlight));
    return cachedShade(2, accent, QColor(), [&accent](const std::array<QColor, 3>& pages) {
        const bool lighter = isDark();
        // Prominent fills are as light as white text on them allows, or a little darker.
        const QColor lightestFill = QColor(118, 118, 118);
        const QColor darkerFill = QColor(108, 108, 108);
        QColor ring = accent;
        for (const QColor& behind :
             {pages[0], pages[1], pages[2], fillBehindWhiteText(accent), lightestFill, darkerFill})
            ring = shadeReaching(ring, behind, nonTextContrast, lighter);
        return ring;
    });
}

} // namespace Theme
} // namespace qf::ui
