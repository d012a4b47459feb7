#include "ScreenTour.h"

#include "Button.h"
#include "FocusRing.h"
#include "HomeView.h"
#include "Theme.h"
#include "ToolCards.h"
#include "UninstallSheets.h"
#include "WelcomeView.h"

#include <QAccessible>
#include <QTest>

using namespace qf;

namespace {

QRect inWindow(const QWidget* widget) { return {widget->mapTo(widget->window(), QPoint(0, 0)), widget->size()}; }

std::string describe(const QWidget* widget)
{
    return QStringLiteral("%1 %2 \"%3\"")
        .arg(QString::fromLatin1(widget->metaObject()->className()), widget->objectName(), widget->accessibleName())
        .toStdString();
}

// How many pixels near `area` changed between two pictures by at least the contrast a focus
// indicator needs. Near: where a ring around the control's box (a text view's) would be.
int strongChanges(const QImage& before, const QImage& after, const QRect& area)
{
    const QRect near = area.adjusted(-20, -20, 20, 20).intersected(before.rect());
    int changed = 0;
    for (int y = near.top(); y <= near.bottom(); ++y) {
        for (int x = near.left(); x <= near.right(); ++x) {
            const QColor a = before.pixelColor(x, y);
            const QColor b = after.pixelColor(x, y);
            changed += ui::Theme::contrastRatio(a, b) >= ui::Theme::nonTextContrast;
        }
    }
    return changed;
}

// Whether `next` may come after `previous` when reading: further down, or on the same line
// further along.
bool readsAfter(const QRect& previous, const QRect& next)
{
    const bool sameLine = next.top() <= previous.bottom() && previous.top() <= next.bottom();
    return sameLine ? next.left() > previous.left() : next.top() > previous.bottom();
}

// What Tab visits, starting from the focus: every control once, until it comes round again.
QList<QWidget*> tabRound()
{
    QWidget* start = QApplication::focusWidget();
    QList<QWidget*> stops{start};
    for (int i = 0; i < 80 && start; ++i) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        test::settle();
        QWidget* now = QApplication::focusWidget();
        if (!now || now == start || stops.contains(now))
            break;
        stops << now;
    }
    return stops;
}

// Every stop of `window`: each one reached, each a named control a person can hit, each
// showing where the focus is, and all in reading order.
void sweep(QWidget* window)
{
    QWidget* start = QApplication::focusWidget();
    ASSERT_NE(start, nullptr);
    const QList<QWidget*> stops = tabRound();
    ASSERT_EQ(QApplication::focusWidget(), start) << "Tab does not come round to where it began";

    // Every control that shows is reached, and nothing else is.
    QList<QWidget*> controls;
    for (QWidget* widget : window->findChildren<QWidget*>()) {
        if ((widget->focusPolicy() & Qt::TabFocus) && widget->isVisible() && widget->isEnabled())
            controls << widget;
    }
    for (QWidget* control : controls)
        EXPECT_TRUE(stops.contains(control)) << "never reached: " << describe(control);

    // A stop is a control with a name, at least 24 by 24 points.
    for (QWidget* stop : stops) {
        QAccessibleInterface* readable = QAccessible::queryAccessibleInterface(stop);
        ASSERT_NE(readable, nullptr);
        const QAccessible::Role role = readable->role();
        EXPECT_TRUE(role == QAccessible::PushButton || role == QAccessible::RadioButton ||
                    role == QAccessible::CheckBox || role == QAccessible::EditableText)
            << describe(stop) << " is role " << role;
        EXPECT_FALSE(readable->text(QAccessible::Name).trimmed().isEmpty()) << describe(stop);
        EXPECT_GE(stop->width(), ui::Button::minimumTarget) << describe(stop);
        EXPECT_GE(stop->height(), ui::Button::minimumTarget) << describe(stop);
    }

    // Top to bottom and along each line; the bottom bar, lowest, comes last. Tab goes round,
    // so the round is read from its first stop on the page.
    QList<QRect> places;
    for (QWidget* stop : stops)
        places << inWindow(stop);
    qsizetype first = 0;
    for (qsizetype i = 1; i < places.size(); ++i) {
        if (readsAfter(places[i], places[first]))
            first = i;
    }
    for (qsizetype i = 1; i < stops.size(); ++i) {
        const qsizetype previous = (first + i - 1) % stops.size();
        const qsizetype next = (first + i) % stops.size();
        EXPECT_TRUE(readsAfter(places[previous], places[next]))
            << describe(stops[next]) << " at (" << places[next].x() << ", " << places[next].y() << ") follows "
            << describe(stops[previous]) << " at (" << places[previous].x() << ", " << places[previous].y() << ")";
    }

    // Each stop shows that it has the focus: a ring standing 3:1 from what was there before,
    // at least all the way round the control.
    QList<QImage> focused;
    for (QWidget* stop : stops) {
        EXPECT_EQ(QApplication::focusWidget(), stop);
        focused << window->grab().toImage();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        test::settle();
    }
    start->clearFocus();
    test::settle();
    const QImage unfocused = window->grab().toImage();
    for (qsizetype i = 0; i < stops.size(); ++i) {
        const QRect area = inWindow(stops[i]);
        EXPECT_GE(strongChanges(unfocused, focused[i], area), 2 * (area.width() + area.height()))
            << "no focus indicator on " << describe(stops[i]);
    }
    start->setFocus(Qt::OtherFocusReason);
    test::settle();
}

class KeyboardTour : public test::ScreenTour {};

} // namespace

TEST_P(KeyboardTour, StartsOnTheMainControlAndTabReadsTheScreenInOrder)
{
    const test::ScreenVisit& visit = arrive();
    ASSERT_FALSE(HasFatalFailure());
    QWidget* focus = QApplication::focusWidget();
    ASSERT_NE(focus, nullptr) << "nothing has the focus";
    EXPECT_EQ(focus->objectName().toStdString(), visit.mainControl) << describe(focus);
    EXPECT_TRUE(screen()->isAncestorOf(focus));
    sweep(window.get());
}

INSTANTIATE_TEST_SUITE_P(EveryScreen, KeyboardTour, ::testing::Range(0, test::ScreenTour::visits),
                         test::ScreenTour::visitName);

namespace {

class KeyboardTest : public test::FlowWindowTest {
protected:
    // Tab from wherever the focus is until it reaches `target`.
    static void tabTo(const QWidget* target)
    {
        for (int i = 0; i < 60 && QApplication::focusWidget() != target; ++i) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            test::settle();
        }
        ASSERT_EQ(QApplication::focusWidget(), target);
    }
    HomeView* openDashboard()
    {
        open(InstallationStep::home, std::nullopt, {1000, 1700});
        auto* home = screenAs<HomeView>();
        EXPECT_TRUE(QTest::qWaitFor([home] { return !home->isLoading(); }, 20000));
        test::settle();
        return home;
    }
    RemovalSheet* waitForSheet(HomeView* home)
    {
        EXPECT_TRUE(QTest::qWaitFor([home] { return home->sheet() && home->sheet()->isVisible(); }, 5000));
        RemovalSheet* sheet = home->sheet();
        if (sheet) {
            QApplication::setActiveWindow(sheet);
            test::settle();
        }
        return sheet;
    }
};

} // namespace

TEST_F(KeyboardTest, ARemovalSheetStartsOnItsMainButtonAndGivesTheFocusBack)
{
    sandbox.installFakes({"gemini", "npm"});
    platform.npmPrograms = {sandbox.binDirectory() + QStringLiteral("/npm")};
    HomeView* home = openDashboard();
    AIToolCard* gemini = test::child<AIToolCard>(home, QStringLiteral("aiToolCard.geminiCLI"));
    auto* remove = test::child<QWidget>(gemini, QStringLiteral("removeButton"));
    tabTo(remove);

    // Space opens the sheet on "Uninstall", which Tab reads like a screen; Escape closes it and
    // the focus is back on the button that opened it.
    QTest::keyClick(remove, Qt::Key_Space);
    RemovalSheet* sheet = waitForSheet(home);
    ASSERT_NE(sheet, nullptr);
    EXPECT_EQ(QApplication::focusWidget(), test::child<QWidget>(sheet, QStringLiteral("uninstallButton")));
    // Opened by keyboard, it shows where the focus is before any Tab.
    EXPECT_TRUE(ui::showsFocusRing(QApplication::focusWidget()));
    sweep(sheet);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    test::settle();
    QApplication::setActiveWindow(window.get());
    test::settle();
    EXPECT_EQ(home->sheet(), nullptr);
    EXPECT_EQ(QApplication::focusWidget(), remove);

    // Through to the end by keyboard: "Done" has the focus once the removal is complete; the
    // dashboard reloads without Gemini CLI, and the focus lands on its card's "Install".
    QTest::keyClick(remove, Qt::Key_Space);
    sheet = waitForSheet(home);
    ASSERT_NE(sheet, nullptr);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    ASSERT_TRUE(QTest::qWaitFor([sheet] { return sheet->uninstallComplete(); }, 20000));
    EXPECT_EQ(QApplication::focusWidget(), test::child<QWidget>(sheet, QStringLiteral("doneButton")));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    ASSERT_TRUE(QTest::qWaitFor([home] { return !home->sheet() && !home->isLoading(); }, 20000));
    QApplication::setActiveWindow(window.get());
    test::settle();
    EXPECT_FALSE(home->installedTools().contains(CLITool::geminiCLI));
    EXPECT_EQ(QApplication::focusWidget(), test::child<QWidget>(gemini, QStringLiteral("installButton")));
}

TEST_F(KeyboardTest, ToolCardsAreRadioButtonsOfOneChoice)
{
    open(InstallationStep::welcome, std::nullopt);
    const QList<ToolCard*> cards = screenAs<WelcomeView>()->toolCards();
    ASSERT_EQ(cards.size(), 3);
    const auto checked = [&cards] {
        QList<bool> states;
        for (ToolCard* card : cards)
            states << QAccessible::queryAccessibleInterface(card)->state().checked;
        return states;
    };

    for (ToolCard* card : cards) {
        QAccessibleInterface* readable = QAccessible::queryAccessibleInterface(card);
        ASSERT_NE(readable, nullptr);
        EXPECT_EQ(readable->role(), QAccessible::RadioButton);
        EXPECT_TRUE(readable->state().checkable);
        EXPECT_TRUE(readable->state().focusable);
        EXPECT_EQ(readable->text(QAccessible::Name), card->tool().displayName());
        EXPECT_EQ(readable->text(QAccessible::Description), card->tool().toolDescription());
        ASSERT_NE(readable->actionInterface(), nullptr);
        EXPECT_TRUE(readable->actionInterface()->actionNames().contains(QAccessibleActionInterface::pressAction()));
    }
    EXPECT_EQ(checked(), (QList<bool>{false, false, false}));

    // A screen reader's press chooses the tool, as a click does.
    QAccessible::queryAccessibleInterface(cards[1])->actionInterface()->doAction(
        QAccessibleActionInterface::pressAction());
    EXPECT_EQ(state.selectedTool(), CLITool::geminiCLI);
    EXPECT_EQ(checked(), (QList<bool>{false, true, false}));
    EXPECT_TRUE(button("continueButton")->isEnabled());

    // The arrow keys move through the choice and make it; they stop at either end.
    cards[1]->setFocus(Qt::TabFocusReason);
    QTest::keyClick(cards[1], Qt::Key_Down);
    EXPECT_EQ(QApplication::focusWidget(), cards[2]);
    EXPECT_EQ(checked(), (QList<bool>{false, false, true}));
    QTest::keyClick(cards[2], Qt::Key_Down);
    EXPECT_EQ(QApplication::focusWidget(), cards[2]);
    QTest::keyClick(cards[2], Qt::Key_Up);
    QTest::keyClick(cards[1], Qt::Key_Up);
    EXPECT_EQ(QApplication::focusWidget(), cards[0]);
    EXPECT_EQ(state.selectedTool(), CLITool::claudeCode);
    EXPECT_EQ(checked(), (QList<bool>{true, false, false}));
}

TEST_F(KeyboardTest, TheTypedLinesCopyButtonSaysWhatItCopies)
{
    platform.terminalOpens = false;
    open(InstallationStep::terminal, CLITool::codex);
    auto* fallback = test::child(screen(), QStringLiteral("terminalFallback"));
    ASSERT_TRUE(shows(fallback));
    auto* copy = test::child<QWidget>(fallback, QStringLiteral("copyButton"));
    EXPECT_EQ(copy->accessibleName(), QStringLiteral("Copy the line to type"));
    EXPECT_EQ(copy->accessibleDescription(),
              test::child<QLabel>(fallback, QStringLiteral("terminalFallbackLine"))->text());
}
