#include "FirstTimeWelcomeCard.h"
#include "HomeView.h"
#include "InstallationState.h"
#include "PlatformBackends.h"
#include "TestMachine.h"
#include "TestSupport.h"
#include "ToolCards.h"
#include "UninstallSheets.h"

#include "Badge.h"
#include "IconTile.h"
#include "Label.h"

#include <QAbstractButton>
#include <QDir>
#include <QEnterEvent>
#include <QFileInfo>
#include <QLabel>
#include <QTest>

#include <memory>

using namespace qf;

namespace {

class HomeTest : public ::testing::Test, protected test::TestMachine {
protected:
    void SetUp() override { test::clearPreferences(); }

    // The dashboard on screen, with its first load finished.
    std::unique_ptr<HomeView> showHome()
    {
        auto view = std::make_unique<HomeView>(state, services);
        view->resize(900, 1400);
        view->show();
        EXPECT_TRUE(view->isLoading()); // the progress row shows at once
        waitForLoad(*view);
        return view;
    }
    static void waitForLoad(HomeView& view)
    {
        EXPECT_TRUE(QTest::qWaitFor([&] { return !view.isLoading(); }, 20000)) << "the load did not finish";
    }
    static AIToolCard* card(HomeView& view, CLITool tool)
    {
        return test::child<AIToolCard>(&view, QStringLiteral("aiToolCard.") + tool.rawValue());
    }
    static SystemToolCard* card(HomeView& view, const char* key)
    {
        return test::child<SystemToolCard>(&view, QStringLiteral("systemToolCard.") + QLatin1String(key));
    }
    static QWidget* part(QWidget* parent, const char* name) { return test::child(parent, QLatin1String(name)); }
    static QString label(QWidget* parent, const char* name)
    {
        return test::child<QLabel>(parent, QLatin1String(name))->text();
    }
    static void hover(QWidget* widget, bool inside)
    {
        QEnterEvent enter(QPointF(4, 4), QPointF(4, 4), QPointF(4, 4));
        QEvent leave(QEvent::Leave);
        QCoreApplication::sendEvent(widget, inside ? static_cast<QEvent*>(&enter) : &leave);
    }
    static bool shows(const QWidget* widget) { return widget && widget->isVisible(); }

    InstallationState state;
};

} // namespace

TEST_F(HomeTest, AFirstTimeUserIsWelcomedAndOfferedEveryTool)
{
    auto view = showHome();
    EXPECT_TRUE(view->isFirstTimeUser());
    EXPECT_TRUE(shows(part(view.get(), "firstTimeWelcomeCard")));
    EXPECT_FALSE(shows(part(view.get(), "loadingRow")));
    for (CLITool tool : CLITool::allCases()) {
        EXPECT_TRUE(shows(part(card(*view, tool), "installButton")));
        EXPECT_FALSE(shows(part(card(*view, tool), "openButton")));
        EXPECT_FALSE(shows(part(card(*view, tool), "statusBadge")));
    }
    // Every supporting item is listed in catalogue order, nothing found in the empty sandbox.
    QStringList keys;
    for (const SystemTool& tool : view->systemTools())
        keys << tool.key;
    EXPECT_EQ(keys, (QStringList{QStringLiteral("xcode"), QStringLiteral("developer"), QStringLiteral("homebrew"),
                                 QStringLiteral("node")}));
    // What is missing says so in words, not by colour alone, and what happens to it next.
    SystemToolCard* node = card(*view, "node");
    EXPECT_TRUE(shows(part(node, "missingBadge")));
    EXPECT_EQ(label(node, "itemNextStep"), QStringLiteral("Installed for you with Gemini CLI or Codex"));
    EXPECT_EQ(node->accessibleDescription(),
              QStringLiteral("Not installed, Optional, Installed for you with Gemini CLI or Codex"));
    EXPECT_TRUE(shows(part(card(*view, "xcode"), "missingBadge")));
    EXPECT_FALSE(shows(part(card(*view, "xcode"), "itemNextStep"))); // it has its own "Install"

    // "Install" moves on to the account screen for that tool.
    test::child<QAbstractButton>(card(*view, CLITool::geminiCLI), QStringLiteral("installButton"))->click();
    EXPECT_EQ(state.selectedTool(), CLITool::geminiCLI);
    EXPECT_FALSE(state.isOpeningExistingTool());
    EXPECT_EQ(state.currentStep(), InstallationStep::accountSetup);

    // A missing projects folder is created, and the reload offers to open it.
    SystemToolCard* folder = card(*view, "developer");
    EXPECT_EQ(folder->actionButton()->title(), QStringLiteral("Create"));
    EXPECT_EQ(folder->actionButton()->accessibleName(), QStringLiteral("Create Developer Folder"));
    folder->actionButton()->click();
    EXPECT_TRUE(QFileInfo(sandbox.path(QStringLiteral("Developer"))).isDir());
    EXPECT_TRUE(view->isLoading());
    waitForLoad(*view);
    EXPECT_EQ(card(*view, "developer")->actionButton()->title(), QStringLiteral("Open"));

    // The welcome card's tip follows what the dashboard found.
    const auto tip = [&view] { return label(view.get(), "welcomeTipText"); };
    EXPECT_EQ(tip(), QStringLiteral("New to this? Start with **Xcode CLI Tools**, then try **Claude Code**."));
    EXPECT_EQ(test::child(view.get(), QStringLiteral("welcomeTipText"))->accessibleName(),
              QStringLiteral("New to this? Start with Xcode CLI Tools, then try Claude Code."));
    sandbox.installFakes({"xcode-select"});
    view->loadData();
    waitForLoad(*view);
    EXPECT_EQ(tip(),
              QStringLiteral("New to this? **Xcode CLI Tools** is already set up, so start with **Claude Code**."));
    EXPECT_EQ(FirstTimeWelcomeCard::tipText(QString(), false, {CLITool::geminiCLI, CLITool::codex}),
              QStringLiteral("**Gemini CLI** is ready: press **Open** on its card to start it."));
}

TEST_F(HomeTest, InstalledToolsAndItemsShowTheirState)
{
    sandbox.installFakes({"claude", "gemini", "codex", "xcode-select", "brew", "node"});
    QDir().mkpath(sandbox.path(QStringLiteral("Developer")));
    auto view = showHome();

    EXPECT_FALSE(view->isFirstTimeUser());
    EXPECT_FALSE(shows(part(view.get(), "firstTimeWelcomeCard")));
    for (CLITool tool : CLITool::allCases()) {
        AIToolCard* aiCard = card(*view, tool);
        EXPECT_TRUE(shows(part(aiCard, "openButton")));
        EXPECT_FALSE(shows(part(aiCard, "installButton")));
        EXPECT_EQ(test::child<ui::Badge>(aiCard, QStringLiteral("statusBadge"))->text(), QStringLiteral("Installed"));
        EXPECT_EQ(aiCard->accessibleDescription(), QStringLiteral("Installed"));
    }

    // Versions as detected; the Command Line Tools without Xcode give none, and say they are ready.
    const auto version = [&view](const char* key) {
        return test::child<ui::Badge>(card(*view, key), QStringLiteral("versionBadge"))->text();
    };
    EXPECT_EQ(version("homebrew"), QStringLiteral("4.2.0"));
    EXPECT_EQ(version("xcode"), QStringLiteral("Ready"));
    EXPECT_EQ(card(*view, "node")->accessibleDescription(), QStringLiteral("Installed, v20.10.0, Optional"));
    EXPECT_FALSE(shows(part(card(*view, "node"), "missingBadge")));
    EXPECT_FALSE(shows(part(card(*view, "node"), "itemNextStep")));
    // The projects folder offers "Open"; installed developer tools and the optional items none.
    EXPECT_EQ(card(*view, "developer")->actionButton()->accessibleName(), QStringLiteral("Open Developer Folder"));
    EXPECT_EQ(card(*view, "xcode")->actionButton(), nullptr);
    EXPECT_EQ(card(*view, "homebrew")->actionButton(), nullptr);

    // "Open" on an installed tool goes to its completion screen.
    test::child<QAbstractButton>(card(*view, CLITool::claudeCode), QStringLiteral("openButton"))->click();
    EXPECT_EQ(state.selectedTool(), CLITool::claudeCode);
    EXPECT_TRUE(state.isOpeningExistingTool());
    EXPECT_EQ(state.currentStep(), InstallationStep::completion);
}

// Hover and focus show a card's remove button without moving anything on the card; Qt draws an
// effect inside another one in the wrong place (the cards' logos once landed on their titles),
// so no widget with an effect may lie inside another one with an effect.
TEST_F(HomeTest, RemoveButtonsShowWhileHoveredOrFocusedAndMoveNothing)
{
    sandbox.installFakes({"claude", "brew"});
    auto view = showHome();
    AIToolCard* claude = card(*view, CLITool::claudeCode);
    AIToolCard* codex = card(*view, CLITool::codex);
    auto* remove = test::child<ui::Button>(claude, QStringLiteral("removeButton"));
    EXPECT_EQ(remove->accessibleName(), QStringLiteral("Remove Claude Code"));
    EXPECT_EQ(claude->removeButton(), nullptr);
    EXPECT_EQ(remove->opacity(), 0.0);

    hover(claude, true);
    EXPECT_EQ(view->hoveredKey(), QStringLiteral("claudeCode"));
    EXPECT_TRUE(claude->isHovered());
    EXPECT_EQ(claude->removeButton(), remove);
    EXPECT_EQ(remove->opacity(), 1.0);
    int withEffect = 0;
    for (QWidget* widget : view->findChildren<QWidget*>()) {
        withEffect += widget->graphicsEffect() != nullptr;
        for (QWidget* parent = widget->parentWidget(); widget->graphicsEffect() && parent != view.get();
             parent = parent->parentWidget())
            EXPECT_EQ(parent->graphicsEffect(), nullptr)
                << widget->objectName().toStdString() << " inside " << parent->objectName().toStdString();
    }
    EXPECT_GE(withEffect, 9); // the cards, the welcome card and the section headers
    // The pointer moves on to the next card: only one card is hovered at a time.
    hover(claude, false);
    hover(codex, true);
    EXPECT_EQ(view->hoveredKey(), QStringLiteral("codex"));
    EXPECT_FALSE(claude->isHovered());
    EXPECT_EQ(claude->removeButton(), nullptr);
    EXPECT_EQ(remove->opacity(), 0.0);
    // A missing tool offers no removal, hovered or not.
    EXPECT_FALSE(shows(part(codex, "removeButton")));
    hover(codex, false);
    EXPECT_EQ(view->hoveredKey(), std::nullopt);

    // System cards use their own keys; the projects folder never offers removal.
    SystemToolCard* homebrew = card(*view, "homebrew");
    hover(homebrew, true);
    EXPECT_EQ(view->hoveredKey(), QStringLiteral("sys-homebrew"));
    EXPECT_TRUE(shows(homebrew->removeButton()));
    hover(homebrew, false);
    SystemToolCard* folder = card(*view, "developer");
    hover(folder, true);
    EXPECT_EQ(folder->removeButton(), nullptr);
    hover(folder, false);

    // Where each part of a card lies, and where its text is drawn there (the box around its
    // dark pixels, with the cards' own effects), stay the same as the card is hovered.
    const auto seen = [&view](const QWidget* shown) {
        const QRect place(shown->mapTo(view.get(), QPoint(0, 0)), shown->size());
        const QImage image = view->grab(place).toImage();
        QRect ink;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                if (qGray(image.pixel(x, y)) < 170)
                    ink |= QRect(x, y, 1, 1);
            }
        }
        return std::pair{place, ink};
    };
    for (const auto& [hovered, names] :
         {std::pair<DashboardCard*, QList<const char*>>{claude, {"openButton", "toolName", "toolDescription"}},
          {homebrew, {"itemName", "itemDescription"}}}) {
        SCOPED_TRACE(hovered->objectName().toStdString());
        test::settle();
        QList<std::pair<QRect, QRect>> before;
        for (const char* name : names)
            before << seen(part(hovered, name));
        const QRect removePlace = part(hovered, "removeButton")->geometry();
        hover(hovered, true);
        test::settle();
        ASSERT_TRUE(part(hovered, "removeButton")->isVisible());
        EXPECT_EQ(part(hovered, "removeButton")->geometry(), removePlace); // it appears where its room was kept
        for (qsizetype i = 0; i < names.size(); ++i) {
            const auto [place, ink] = seen(part(hovered, names[i]));
            EXPECT_EQ(place, before[i].first) << names[i];
            EXPECT_FALSE(ink.isEmpty()) << names[i];
            EXPECT_EQ(ink, before[i].second) << names[i];
        }
        hover(hovered, false);
    }

    // Keyboard users: the cards are no stops of their own. Focus on a card's button shows its
    // remove button, which Tab then reaches; a card with nothing else to do is reached by its
    // remove button alone.
    view->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(view.get()));
    for (DashboardCard* any : view->findChildren<DashboardCard*>())
        EXPECT_EQ(any->focusPolicy() & Qt::TabFocus, 0) << any->objectName().toStdString();
    part(claude, "openButton")->setFocus(Qt::TabFocusReason);
    EXPECT_TRUE(claude->hasFocusWithin());
    EXPECT_EQ(claude->removeButton(), remove);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), remove);
    // Tab follows the order on screen: from Claude Code's remove button on to Gemini CLI.
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), part(card(*view, CLITool::geminiCLI), "installButton"));
    EXPECT_EQ(claude->removeButton(), nullptr);
    // Homebrew offers nothing but its removal: Tab from the projects folder's "Create" reaches it.
    ASSERT_EQ(homebrew->actionButton(), nullptr);
    folder->actionButton()->setFocus(Qt::TabFocusReason);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), part(homebrew, "removeButton"));
    EXPECT_TRUE(shows(homebrew->removeButton()));
}

TEST_F(HomeTest, InAWideWindowEveryDescriptionShowsWholeInAColumnNearItsActions)
{
    sandbox.installFakes({"gemini"});
    auto view = showHome();
    for (const int width : {1280, 1440}) {
        view->resize(width, 900);
        test::settle();
        for (CLITool tool : CLITool::allCases()) {
            const auto* description = test::child<ui::Label>(card(*view, tool), QStringLiteral("toolDescription"));
            EXPECT_GE(description->width(), QFontMetrics(description->font()).horizontalAdvance(description->text()))
                << tool.rawValue().toStdString() << " at " << width;
        }
    }
    // Wider than the other screens' column only as far as the descriptions need.
    EXPECT_GT(view->contentWidth(), ui::maximumContentWidth);
    EXPECT_LT(view->contentWidth(), 1280 - 2 * 11);
    EXPECT_LE(test::child(view.get(), QStringLiteral("aiToolCard.codex"))->width(), view->contentWidth());
}

TEST_F(HomeTest, WithoutHomebrewInTheSetupTheStepsAreNumberedWithoutIt)
{
    // As on Linux: Homebrew is not offered even when one is there.
    platform.homebrew = false;
    platform.developerTools = LinuxPlatform::gitToolsItem();
    sandbox.installFakes({"brew", "git"});
    auto view = showHome();
    EXPECT_EQ(view->findChild<SystemToolCard*>(QStringLiteral("systemToolCard.homebrew")), nullptr);
    QStringList steps;
    for (const SystemToolCard* item : view->findChildren<SystemToolCard*>()) {
        if (item->isVisible())
            steps << item->tool().key + QLatin1Char(' ') +
                         test::child<ui::IconTile>(item, QStringLiteral("stepNumber"))->text();
    }
    EXPECT_EQ(steps, (QStringList{QStringLiteral("git 1"), QStringLiteral("developer 2"), QStringLiteral("node 3")}));
}

TEST_F(HomeTest, AnActionThatCannotRunSaysSoWithWhatToDoInstead)
{
    auto view = showHome();
    EXPECT_EQ(view->findChild<QWidget*>(QStringLiteral("terminalFallback")), nullptr);
    // No terminal for the developer tools' installer: the line to type, with a copy button.
    platform.terminalOpens = false;
    card(*view, "xcode")->actionButton()->click();
    EXPECT_EQ(platform.installersStarted, 1);
    EXPECT_EQ(state.currentStep(), InstallationStep::onboarding); // nothing else changes
    ASSERT_TRUE(shows(part(view.get(), "terminalFallback")));
    EXPECT_EQ(label(view.get(), "terminalFallbackLine"), QStringLiteral("xcode-select --install"));
    auto* copy = view->findChild<QAbstractButton*>(QStringLiteral("copyButton"));
    ASSERT_NE(copy, nullptr);
    // Tab reads it where it shows: from its copy button on to the cards below it.
    QApplication::setActiveWindow(view->window());
    copy->setFocus(Qt::TabFocusReason);
    QTest::keyClick(copy, Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), card(*view, "xcode")->actionButton());

    // No file manager for the projects folder: its path, replacing the notice before.
    platform.fileManagerAnswers = false;
    card(*view, "developer")->actionButton()->click();
    test::settle();
    EXPECT_EQ(view->findChildren<QWidget*>(QStringLiteral("terminalFallback")).size(), 1);
    EXPECT_EQ(label(view.get(), "terminalFallbackLine"), sandbox.path(QStringLiteral("Developer")));
}

TEST_F(HomeTest, TheNewestLoadWins)
{
    // The first load sees Claude Code and answers quickly; the second, started while the first
    // runs, sees no Claude Code and answers slowly. The dashboard ends with the second.
    sandbox.installFakes({"brew"});
    sandbox.installFakeAt(QStringLiteral("claude"), sandbox.path(QStringLiteral("first/.local/bin/claude")));
    QDir().mkpath(sandbox.path(QStringLiteral("second")));
    sandbox.setEnv("HOME", sandbox.path(QStringLiteral("first")).toUtf8());
    auto view = showHome();
    ASSERT_EQ(view->installedTools(), QList<CLITool>{CLITool::claudeCode});

    view->loadData();
    sandbox.setEnv("HOME", sandbox.path(QStringLiteral("second")).toUtf8());
    sandbox.setEnv("FAKE_BREW_DELAY", "0.5");
    view->loadData();
    waitForLoad(*view);
    EXPECT_TRUE(view->installedTools().isEmpty());
    EXPECT_TRUE(view->isFirstTimeUser());
}

// The dashboard inside a window, as in the application. The environment of commands is read
// from the login shell once for the dashboard's loads, and again after the window was
// inactive, where a start-up file may have changed.
TEST_F(HomeTest, TheDashboardReadsTheStartupFilesAgainAfterTheWindowWasInactive)
{
    const QByteArray counting = "echo read >> \"$HOME/startup-reads\"\n";
    const auto startupReads = [this] { return sandbox.readFile(QStringLiteral("startup-reads")).count("read\n"); };
    sandbox.installFakes({"claude", "node", "npm"});
    sandbox.writeFile(QStringLiteral(".zprofile"), counting);
    QWidget window;
    auto* view = new HomeView(state, services, &window);
    view->resize(900, 1400);
    window.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    waitForLoad(*view);
    EXPECT_EQ(startupReads(), 1);

    // A reload while the window stayed in front uses what was read.
    view->loadData();
    waitForLoad(*view);
    EXPECT_EQ(startupReads(), 1);

    // The user was in another window, where a start-up file may have changed.
    sandbox.writeFile(QStringLiteral(".zprofile"), counting + "export QF_EDITED=yes\n");
    QWidget elsewhere;
    elsewhere.show();
    elsewhere.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&elsewhere));
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    view->loadData();
    waitForLoad(*view);
    EXPECT_EQ(startupReads(), 2);
    EXPECT_EQ(services.runner.commandEnvironment().value(QStringLiteral("QF_EDITED")), QStringLiteral("yes"));

    // As when "Install" moves on: the dashboard is deleted inside the window while the button
    // keeps the focus. The focus leaves as the cards' children go, and no card half torn down
    // may hear of it.
    auto* install = part(card(*view, CLITool::codex), "installButton");
    install->setFocus(Qt::MouseFocusReason);
    ASSERT_TRUE(install->hasFocus());
    delete view;
    EXPECT_EQ(QApplication::focusWidget(), nullptr);
}
