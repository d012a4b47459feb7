#include "Theme.h"

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
    if (opacity < 1.0)
        base.setAlphaF(float(base.alphaF() * opacity));
    return base;
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

QPalette lightPalette()
{
    QPalette p;
    const QColor text(0, 0, 0, 217);
    p.setColor(QPalette::Window, QColor(236, 236, 236));
    p.setColor(QPalette::WindowText, text);
    p.setColor(QPalette::Base, QColor(255, 255, 255));
    p.setColor(QPalette::AlternateBase, QColor(244, 244, 246));
    p.setColor(QPalette::Text, text);
    p.setColor(QPalette::PlaceholderText, QColor(0, 0, 0, 64));
    p.setColor(QPalette::Button, QColor(255, 255, 255));
    p.setColor(QPalette::ButtonText, text);
    p.setColor(QPalette::Highlight, QColor::fromRgb(kBlue.light));
    p.setColor(QPalette::HighlightedText, Qt::white);
    p.setColor(QPalette::Link, QColor::fromRgb(kBlue.light));
    p.setColor(QPalette::ToolTipBase, QColor(255, 255, 255));
    p.setColor(QPalette::ToolTipText, text);
    p.setColor(QPalette::Light, QColor(255, 255, 255));
    p.setColor(QPalette::Midlight, QColor(245, 245, 245));
    p.setColor(QPalette::Mid, QColor(190, 190, 190));
    p.setColor(QPalette::Dark, QColor(160, 160, 160));
    p.setColor(QPalette::Shadow, QColor(0, 0, 0, 60));
    p.setColor(QPalette::Disabled, QPalette::WindowText, QColor(0, 0, 0, 64));
    p.setColor(QPalette::Disabled, QPalette::Text, QColor(0, 0, 0, 64));
    p.setColor(QPalette::Disabled, QPalette::ButtonText, QColor(0, 0, 0, 64));
    return p;
}

QPalette darkPalette()
{
    QPalette p;
    const QColor text(255, 255, 255, 217);
    p.setColor(QPalette::Window, QColor(40, 40, 42));
    p.setColor(QPalette::WindowText, text);
    p.setColor(QPalette::Base, QColor(28, 28, 30));
    p.setColor(QPalette::AlternateBase, QColor(20, 20, 22));
    p.setColor(QPalette::Text, text);
    p.setColor(QPalette::PlaceholderText, QColor(255, 255, 255, 64));
    p.setColor(QPalette::Button, QColor(58, 58, 60));
    p.setColor(QPalette::ButtonText, text);
    p.setColor(QPalette::Highlight, QColor::fromRgb(kBlue.dark));
    p.setColor(QPalette::HighlightedText, Qt::white);
    p.setColor(QPalette::Link, QColor::fromRgb(kBlue.dark));
    p.setColor(QPalette::ToolTipBase, QColor(50, 50, 52));
    p.setColor(QPalette::ToolTipText, text);
    p.setColor(QPalette::Light, QColor(80, 80, 82));
    p.setColor(QPalette::Midlight, QColor(64, 64, 66));
    p.setColor(QPalette::Mid, QColor(48, 48, 50));
    p.setColor(QPalette::Dark, QColor(20, 20, 22));
    p.setColor(QPalette::Shadow, QColor(0, 0, 0, 120));
    p.setColor(QPalette::Disabled, QPalette::WindowText, QColor(255, 255, 255, 64));
    p.setColor(QPalette::Disabled, QPalette::Text, QColor(255, 255, 255, 64));
    p.setColor(QPalette::Disabled, QPalette::ButtonText, QColor(255, 255, 255, 64));
    return p;
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
