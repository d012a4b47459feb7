#include "CLITool.h"
#include "TestSupport.h"
#include "Theme.h"

#include <QApplication>

#include <gtest/gtest.h>

using namespace qf;
using namespace qf::ui;

namespace {

std::string describe(const QColor& color) { return color.name(QColor::HexArgb).toStdString(); }

// The backgrounds text is written on: the window, the cards and the code boxes, and those with
// the tinted surfaces of the design laid over them (explainer, tips, warnings, sign-in rows).
QList<QColor> textBackgrounds()
{
    QList<QColor> pages{Theme::color(Role::windowBackground), Theme::color(Role::controlBackground),
                        Theme::color(Role::textBackground)};
    QList<Tint> fills{Tint(Role::blue, 0.05),   Tint(Role::yellow, 0.05), Tint(Role::yellow, 0.08),
                      Tint(Role::orange, 0.08), Tint(Role::orange, 0.10), Tint(Role::red, 0.08)};
    for (CLITool tool : CLITool::allCases())
        fills << Tint(tool.brandColor(), 0.1);
    QList<QColor> backgrounds = pages;
    for (const QColor& page : pages) {
        for (const Tint& fill : fills)
            backgrounds << Theme::composite(fill.resolve(), page);
    }
    return backgrounds;
}

// Every colour the design writes text in.
QList<QColor> textRoles()
{
    QList<QColor> roles;
    for (Role role : {Role::primary, Role::secondary, Role::tertiary, Role::accent, Role::blue, Role::green,
                      Role::orange, Role::red, Role::purple, Role::yellow})
        roles << Theme::color(role);
    for (CLITool tool : CLITool::allCases())
        roles << tool.brandColor();
    return roles;
}

} // namespace

TEST(Contrast, MeasuresAsWCAGDoes)
{
    EXPECT_DOUBLE_EQ(Theme::relativeLuminance(Qt::white), 1.0);
    EXPECT_DOUBLE_EQ(Theme::relativeLuminance(Qt::black), 0.0);
    EXPECT_NEAR(Theme::contrastRatio(Qt::black, Qt::white), 21.0, 1e-9);
    EXPECT_NEAR(Theme::contrastRatio(Qt::white, Qt::black), 21.0, 1e-9);
    // The grey at the threshold for small text on white, just above and just below it.
    EXPECT_NEAR(Theme::contrastRatio(QColor(0x76, 0x76, 0x76), Qt::white), 4.54, 0.01);
    EXPECT_NEAR(Theme::contrastRatio(QColor(0x77, 0x77, 0x77), Qt::white), 4.48, 0.01);
    // Pure green weighs most, pure blue least.
    EXPECT_NEAR(Theme::relativeLuminance(QColor(0, 255, 0)), 0.7152, 1e-4);
    EXPECT_NEAR(Theme::relativeLuminance(QColor(0, 0, 255)), 0.0722, 1e-4);
    // Translucent text counts as what it shows: black at half opacity on white is mid grey.
    EXPECT_NEAR(Theme::contrastRatio(QColor(0, 0, 0, 128), Qt::white),
                Theme::contrastRatio(QColor(127, 127, 127), Qt::white), 0.05);
}

TEST(Contrast, EveryTextRoleReadsOnEveryBackgroundOfBothAppearances)
{
    test::inBothAppearances([] {
        const QList<QColor> backgrounds = textBackgrounds();
        for (const QColor& role : textRoles()) {
            const QColor text = Theme::textColor(role);
            QColor pill = role; // "Optional", "Ready": a pill of the text's own colour
            pill.setAlphaF(float(role.alphaF() * 0.12));
            QList<QColor> behind = backgrounds;
            for (Role page : {Role::windowBackground, Role::controlBackground})
                behind << Theme::composite(pill, Theme::color(page));
            for (const QColor& background : behind) {
                EXPECT_GE(Theme::contrastRatio(text, background), Theme::smallTextContrast)
                    << describe(role) << " written as " << describe(text) << " on " << describe(background);
            }
            // On a pill of its own colour (badges) and on a tinted button under the pointer.
            for (const qreal strength : {0.12, 0.18}) {
                QColor fill = role;
                fill.setAlphaF(float(role.alphaF() * strength));
                const QColor onFill = Theme::textColor(role, fill);
                for (const QColor& page :
                     {Theme::color(Role::windowBackground), Theme::color(Role::controlBackground)}) {
                    EXPECT_GE(Theme::contrastRatio(onFill, Theme::composite(fill, page)), Theme::smallTextContrast)
                        << describe(role) << " on itself at " << strength;
                }
            }
        }
    });
}

TEST(Contrast, TextKeepsItsHueAndOnlyWhatNeedsItChanges)
{
    test::inBothAppearances([] {
        // Primary text reads already: it stays as it is.
        EXPECT_EQ(Theme::textColor(Theme::color(Role::primary)), Theme::color(Role::primary));
        for (Role role : {Role::green, Role::orange, Role::red, Role::blue, Role::purple}) {
            const QColor bright = Theme::color(role);
            const QColor text = Theme::textColor(bright);
            EXPECT_NEAR(text.hsvHueF(), bright.hsvHueF(), 0.03) << describe(bright) << " became " << describe(text);
            // Darker on light backgrounds, lighter on dark ones: never the other way.
            if (Theme::isDark()) {
                EXPECT_GE(Theme::relativeLuminance(text), Theme::relativeLuminance(bright));
            } else {
                EXPECT_LE(Theme::relativeLuminance(text), Theme::relativeLuminance(bright));
            }
        }
        // The bright colour stays for symbols and fills; only text takes the shade.
        if (!Theme::isDark()) {
            EXPECT_NE(Theme::textColor(Theme::color(Role::green)), Theme::color(Role::green));
        }
    });
}

TEST(Contrast, WhiteReadsOnEveryProminentFillAndTheFocusRingStandsOut)
{
    test::inBothAppearances([] {
        QList<QColor> fills{Theme::color(Role::accent), Theme::color(Role::red), Theme::color(Role::green)};
        for (CLITool tool : CLITool::allCases())
            fills << tool.brandColor();
        const QColor ring = Theme::focusRingColor();
        for (const QColor& bright : fills) {
            const QColor fill = Theme::fillBehindWhiteText(bright);
            EXPECT_GE(Theme::contrastRatio(Qt::white, fill), Theme::smallTextContrast) << describe(bright);
            // The ring lies a gap outside the control, but stands out from its fill all the same.
            EXPECT_GE(Theme::contrastRatio(ring, fill), Theme::nonTextContrast)
                << "ring " << describe(ring) << " by " << describe(fill);
        }
        for (Role page : {Role::windowBackground, Role::controlBackground, Role::textBackground}) {
            EXPECT_GE(Theme::contrastRatio(ring, Theme::color(page)), Theme::nonTextContrast)
                << "ring " << describe(ring) << " on " << describe(Theme::color(page));
        }
        // The ring is the accent's hue, not a grey.
        EXPECT_NEAR(ring.hsvHueF(), Theme::color(Role::accent).hsvHueF(), 0.03);
    });
}
