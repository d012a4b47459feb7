// The dashboard offers a newer version of an installed AI tool on its card and runs the update
// in a sheet: the badge, the controls' names, the quiet check offline, and the sheet's states.
#include "HomeView.h"
#include "InstallationState.h"
#include "LogFile.h"
#include "TestMachine.h"
#include "TestSupport.h"
#include "ToolCards.h"
#include "UpdateSheet.h"

#include "Badge.h"
#include "Label.h"

#include <QDir>
#include <QFile>
#include <QTest>
#include <QWindow>

#include <memory>

using namespace qf;

namespace {

class UpdateFlowTest : public ::testing::Test, protected test::TestMachine {
protected:
    void SetUp() override
    {
        test::clearPreferences();
        sandbox.installFakes({"npm", "node"});
        // Gemini CLI 0.60.0 in ~/.local, where the installer puts it when npm's folder is not
        // the user's; 0.61.0 is published and runs on Node.js 20.
        sandbox.installFakeAt(QStringLiteral("gemini"), sandbox.path(QStringLiteral(".local/bin/gemini")));
        QDir().mkpath(sandbox.path(QStringLiteral(".local/lib/node_modules/@google/gemini-cli")));
        sandbox.setEnv("FAKE_TOOL_VERSION", "0.60.0");
        sandbox.setEnv("FAKE_NPM_LATEST", "0.61.0");
        sandbox.setEnv("FAKE_NPM_ENGINES", ">=20");
    }

    // The dashboard on screen, its load and its quiet check for updates done.
    std::unique_ptr<HomeView> showHome()
    {
        auto view = std::make_unique<HomeView>(state, services);
        view->resize(900, 1400);
        view->show();
        waitForCheck(*view);
        return view;
    }
    static void waitForCheck(HomeView& view)
    {
        EXPECT_TRUE(QTest::qWaitFor(
            [&] { return !view.isLoading() && !view.isCheckingForUpdates() && !view.updates().isEmpty(); }, 20000))
            << "the check for updates did not finish";
    }
    static void waitForPhaseChange(UpdateSheet& sheet)
    {
        EXPECT_TRUE(QTest::qWaitFor([&] { return sheet.phase() != UpdateSheet::Phase::running; }, 20000));
    }
    static AIToolCard* geminiCard(HomeView& view)
    {
        return test::child<AIToolCard>(&view, QStringLiteral("aiToolCard.") + CLITool(CLITool::geminiCLI).rawValue());
    }
    static bool shown(const QWidget* parent, const char* name)
    {
        const auto* widget = parent->findChild<QWidget*>(QString::fromLatin1(name));
        return widget && widget->isVisibleTo(parent->window());
    }
    static QString text(const QWidget* parent, const char* name)
    {
        if (const auto* badge = parent->findChild<ui::Badge*>(QString::fromLatin1(name)))
            return badge->text();
        const auto* label = test::child<QLabel>(parent, QString::fromLatin1(name));
        return label ? label->text() : QString();
    }
    static void press(const QWidget* parent, const char* name)
    {
        auto* button = test::child<QAbstractButton>(parent, QString::fromLatin1(name));
        ASSERT_NE(button, nullptr);
        ASSERT_TRUE(button->isVisibleTo(parent->window())) << name;
        button->click();
    }
    QString npmCalls() const { return QString::fromUtf8(sandbox.readState("npm-env.log")); }

    InstallationState state;
};

} // namespace

TEST_F(UpdateFlowTest, ANewerVersionIsOfferedOnTheCardAndUpdatedWhereTheToolWasInstalled)
{
    auto view = showHome();
    AIToolCard* card = geminiCard(*view);
    ASSERT_NE(card, nullptr);
    EXPECT_EQ(text(card, "versionBadge"), QStringLiteral("0.60.0"));
    EXPECT_TRUE(shown(card, "updateBadge"));
    EXPECT_EQ(text(card, "updateBadge"), QStringLiteral("Update available: 0.61.0"));
    EXPECT_EQ(test::child(card, QStringLiteral("updateButton"))->accessibleName(), QStringLiteral("Update Gemini CLI"));
    EXPECT_TRUE(card->accessibleDescription().contains(QStringLiteral("Update available: 0.61.0")));
    // The news has a line of its own: in a wide window the description still shows whole.
    view->resize(1280, 900);
    test::settle();
    const auto* description = test::child<ui::Label>(card, QStringLiteral("toolDescription"));
    EXPECT_GE(description->width(), QFontMetrics(description->font()).horizontalAdvance(description->text()));
    // A tool that is not installed has nothing to update.
    const auto* claude = test::child<AIToolCard>(view.get(), QStringLiteral("aiToolCard.claudeCode"));
    EXPECT_FALSE(shown(claude, "updateButton"));
    EXPECT_FALSE(shown(claude, "updateBadge"));

    // Confirm: from which version to which.
    press(card, "updateButton");
    UpdateSheet* sheet = view->updateSheet();
    ASSERT_NE(sheet, nullptr);
    EXPECT_EQ(text(sheet, "sheetTitle"), QStringLiteral("Update Gemini CLI?"));
    EXPECT_TRUE(text(sheet, "sheetDescription").contains(QStringLiteral("from version 0.60.0 to 0.61.0")));
    EXPECT_EQ(sheet->mainButton()->objectName(), QStringLiteral("updateButton"));

    // A failure says the old version still works, with the log, and offers to try again.
    sandbox.setEnv("FAKE_NPM_FAIL", "1");
    press(sheet, "updateButton");
    waitForPhaseChange(*sheet);
    ASSERT_EQ(sheet->phase(), UpdateSheet::Phase::failed);
    EXPECT_EQ(text(sheet, "sheetTitle"), QStringLiteral("Update Failed"));
    ASSERT_TRUE(sheet->errorMessage().has_value());
    EXPECT_TRUE(sheet->errorMessage()->endsWith(QStringLiteral("Gemini CLI 0.60.0 still works.")));
    EXPECT_TRUE(shown(sheet, "errorRow"));
    EXPECT_TRUE(shown(sheet, "logSection"));
    EXPECT_EQ(sheet->mainButton()->objectName(), QStringLiteral("tryAgainButton"));
    EXPECT_TRUE(shown(sheet, "cancelButton"));
    EXPECT_EQ(sheet->defaultButton()->objectName(), QStringLiteral("cancelButton"));

    // The update runs in ~/.local, where the tool is, and is checked by running the tool.
    sandbox.setEnv("FAKE_NPM_FAIL", "");
    press(sheet, "tryAgainButton");
    EXPECT_FALSE(sheet->errorMessage().has_value());
    EXPECT_EQ(sheet->phase(), UpdateSheet::Phase::running);
    waitForPhaseChange(*sheet);
    ASSERT_EQ(sheet->phase(), UpdateSheet::Phase::complete) << sheet->errorMessage().value_or(QString()).toStdString();
    EXPECT_EQ(text(sheet, "sheetTitle"), QStringLiteral("Update Complete"));
    EXPECT_TRUE(text(sheet, "sheetDescription").startsWith(QStringLiteral("Gemini CLI 0.61.0 ")));
    EXPECT_TRUE(npmCalls().contains(QStringLiteral("install -g @google/gemini-cli@0.61.0 with npm_config_prefix=") +
                                    sandbox.path(QStringLiteral(".local"))));
    EXPECT_FALSE(sheet->output().isEmpty());
    EXPECT_TRUE(shown(sheet, "copyLogButton"));

    // "Done" reloads: the card shows the new version and no badge.
    press(sheet, "doneButton");
    waitForCheck(*view);
    EXPECT_FALSE(shown(card, "updateBadge"));
    EXPECT_FALSE(shown(card, "updateButton"));
    EXPECT_EQ(text(card, "versionBadge"), QStringLiteral("0.61.0"));
}

TEST_F(UpdateFlowTest, OfflineTheCheckShowsNothingUntilAskedThenSaysItCouldNotAsk)
{
    sandbox.setEnv("FAKE_NPM_OFFLINE", "1");
    auto view = showHome();
    AIToolCard* card = geminiCard(*view);
    EXPECT_EQ(text(card, "versionBadge"), QStringLiteral("0.60.0"));
    EXPECT_FALSE(shown(card, "updateBadge"));
    EXPECT_FALSE(shown(view.get(), "updateStatus"));
    EXPECT_EQ(view->findChild<QWidget*>(QStringLiteral("errorCard")), nullptr);

    press(view.get(), "checkForUpdatesButton");
    waitForCheck(*view);
    EXPECT_EQ(text(view.get(), "updateStatus"),
              QStringLiteral("Could not check for updates. Check that you are online."));
    EXPECT_TRUE(shown(view.get(), "updateStatus"));

    // Online again, with nothing newer than what is installed.
    sandbox.setEnv("FAKE_NPM_OFFLINE", "");
    sandbox.setEnv("FAKE_NPM_LATEST", "0.60.0");
    press(view.get(), "checkForUpdatesButton");
    waitForCheck(*view);
    EXPECT_EQ(text(view.get(), "updateStatus"), QStringLiteral("Everything is up to date."));
    EXPECT_FALSE(shown(card, "updateBadge"));
}

TEST_F(UpdateFlowTest, AnUpdateNeedingANewerNodeOffersTheNodeRouteInsteadOfTryingAgain)
{
    sandbox.setEnv("FAKE_NPM_ENGINES", ">=22.0.0");
    auto view = showHome();
    press(geminiCard(*view), "updateButton");
    UpdateSheet* sheet = view->updateSheet();
    ASSERT_NE(sheet, nullptr);
    press(sheet, "updateButton");
    waitForPhaseChange(*sheet);
    ASSERT_EQ(sheet->phase(), UpdateSheet::Phase::failed);
    EXPECT_TRUE(sheet->needsNewerNode());
    EXPECT_EQ(text(sheet, "sheetTitle"), QStringLiteral("A Newer Node.js Is Needed"));
    EXPECT_TRUE(sheet->errorMessage()->contains(QStringLiteral("Node.js 22")));
    EXPECT_FALSE(shown(sheet, "logSection")); // it would say the same sentence again
    EXPECT_EQ(sheet->mainButton()->objectName(), QStringLiteral("installNodeButton"));
    EXPECT_FALSE(shown(sheet, "tryAgainButton"));
}

TEST_F(UpdateFlowTest, CancelStopsTheUpdateWithItsCommandAndTryAgainUpdates)
{
    sandbox.setEnv("FAKE_NPM_SCRIPT", "echo $$ > \"$FAKE_STATE/npm.pid\"; exec sleep 600");
    auto view = showHome();
    press(geminiCard(*view), "updateButton");
    UpdateSheet* sheet = view->updateSheet();
    ASSERT_NE(sheet, nullptr);
    press(sheet, "updateButton");
    ASSERT_TRUE(QTest::qWaitFor([this] { return !sandbox.readState("npm.pid").isEmpty(); }, 20000));
    const long long npm = sandbox.readState("npm.pid").trimmed().toLongLong();
    // The log waits behind "Details"; "Cancel" is the button of the running update.
    EXPECT_TRUE(shown(sheet, "logSection"));
    EXPECT_FALSE(shown(sheet, "logView"));
    EXPECT_EQ(sheet->mainButton()->objectName(), QStringLiteral("cancelButton"));
    EXPECT_EQ(sheet->focusWidget(), sheet->mainButton());
    press(sheet, "detailsButton");
    EXPECT_TRUE(shown(sheet, "logView"));

    press(sheet, "cancelButton");
    waitForPhaseChange(*sheet);
    EXPECT_TRUE(QTest::qWaitFor([npm] { return test::processEnded(npm); }, 5000)) << "npm outlived the cancel";
    ASSERT_EQ(sheet->phase(), UpdateSheet::Phase::failed);
    EXPECT_EQ(text(sheet, "sheetTitle"), QStringLiteral("Update Stopped"));
    EXPECT_EQ(sheet->errorMessage(), QStringLiteral("The update was stopped. Nothing was changed."));
    EXPECT_TRUE(sheet->output().endsWith(QStringLiteral("\nCancelled by the user\n")));
    const QStringList files = LogBook::logFiles(platform.logs);
    ASSERT_EQ(files.size(), 1);
    QFile file(platform.logs + QLatin1Char('/') + files.first());
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_TRUE(file.readAll().endsWith("\nCancelled by the user\n"));

    sandbox.setEnv("FAKE_NPM_SCRIPT", "");
    press(sheet, "tryAgainButton");
    waitForPhaseChange(*sheet);
    EXPECT_EQ(sheet->phase(), UpdateSheet::Phase::complete) << sheet->errorMessage().value_or(QString()).toStdString();
}

// A sheet of the window that the system does not attach itself is a window-modal dialog in
// front of it, with nothing to minimise or maximise, kept centred over it as it moves or
// resizes. It opens on "Cancel", so Return updates nothing; Escape closes it.
TEST_F(UpdateFlowTest, ASheetOpensOnCancelAndStaysCentredOverItsWindow)
{
    auto view = showHome();
    AIToolCard* card = geminiCard(*view);
    press(card, "updateButton");
    UpdateSheet* sheet = view->updateSheet();
    ASSERT_NE(sheet, nullptr);
    test::settle();
    // The window manager is told which buttons it has rather than left to give it its own.
    const Qt::WindowFlags flags = sheet->windowFlags();
    EXPECT_EQ(sheet->windowType(), Qt::Dialog);
    EXPECT_TRUE(flags.testFlags(Qt::CustomizeWindowHint | Qt::WindowCloseButtonHint));
    EXPECT_FALSE(flags & (Qt::WindowMinimizeButtonHint | Qt::WindowMaximizeButtonHint));
    EXPECT_EQ(sheet->windowModality(), Qt::WindowModal);
    ASSERT_NE(sheet->windowHandle(), nullptr);
    EXPECT_EQ(sheet->windowHandle()->transientParent(), view->windowHandle());
    const auto centred = [&] { return sheet->geometry().center() == view->geometry().center(); };
    EXPECT_TRUE(centred());
    view->move(view->pos() + QPoint(120, 80));
    test::settle();
    EXPECT_TRUE(centred());
    view->resize(1000, 1200);
    test::settle();
    EXPECT_TRUE(centred());

    EXPECT_EQ(sheet->focusWidget(), test::child<QWidget>(sheet, QStringLiteral("cancelButton")));
    QTest::keyClick(sheet->focusWidget(), Qt::Key_Return);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !view->updateSheet(); }, 5000));
    EXPECT_FALSE(npmCalls().contains(QStringLiteral("install -g")));

    press(card, "updateButton");
    ASSERT_NE(view->updateSheet(), nullptr);
    QTest::keyClick(view->updateSheet(), Qt::Key_Escape);
    test::settle();
    EXPECT_EQ(view->updateSheet(), nullptr);
}
