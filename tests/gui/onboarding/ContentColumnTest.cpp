#include "FlowWindowTest.h"
#include "HomeView.h"
#include "Layout.h"
#include "RoundedCard.h"

#include <QAbstractButton>
#include <QLabel>
#include <QScrollBar>

using namespace qf;

namespace {

class ContentColumnTest : public test::FlowWindowTest {
protected:
    // The screen of `step` for Claude Code in a window of `size`, with its work done.
    void show(InstallationStep step, QSize size)
    {
        open(step, CLITool::claudeCode, size);
        if (auto* home = qobject_cast<HomeView*>(screen())) {
            ASSERT_TRUE(QTest::qWaitFor([home] { return !home->isLoading(); }, 20000));
        }
        if (step == InstallationStep::systemCheck)
            waitForCheck();
        if (step == InstallationStep::installation)
            waitForInstallation();
        test::settle();
    }

    // What a person reads or uses on the screen: its text, buttons and cards, in the window's
    // coordinates. The backdrop and the bars span the window on purpose; of a bar only its
    // buttons count.
    struct Content {
        QRect all;   // everything together
        QRect cards; // the cards
        QRect bars;  // the buttons of the bars
        QStringList outside;
    };
    Content content(const QRect& column) const
    {
        Content found;
        const auto inBar = [](const QWidget* widget) {
            for (const QWidget* at = widget; at; at = at->parentWidget()) {
                if (at->objectName() == QLatin1String("bottomBar") || at->objectName() == QLatin1String("topBar"))
                    return true;
            }
            return false;
        };
        for (QWidget* widget : screen()->findChildren<QWidget*>()) {
            if (!widget->isVisible() || widget->objectName() == QLatin1String("homeBackdrop"))
                continue;
            const bool button = qobject_cast<QAbstractButton*>(widget) != nullptr;
            const bool bar = inBar(widget);
            if (!button && (bar || !(qobject_cast<QLabel*>(widget) || qobject_cast<ui::RoundedCard*>(widget))))
                continue;
            const QRect place(widget->mapTo(window.get(), QPoint(0, 0)), widget->size());
            found.all |= place;
            if (bar)
                found.bars |= place;
            else if (qobject_cast<ui::RoundedCard*>(widget))
                found.cards |= place;
            if (place.left() < column.left() || place.right() > column.right())
                found.outside << QStringLiteral("%1 %2 at %3..%4")
                                     .arg(QLatin1String(widget->metaObject()->className()), widget->objectName())
                                     .arg(place.left())
                                     .arg(place.right());
        }
        return found;
    }
};

const InstallationStep kScreens[] = {
    InstallationStep::onboarding,   InstallationStep::home,        InstallationStep::welcome,
    InstallationStep::accountSetup, InstallationStep::systemCheck, InstallationStep::installation,
    InstallationStep::apiKey,       InstallationStep::completion,  InstallationStep::terminal,
};

} // namespace

TEST_F(ContentColumnTest, OnAWideWindowEveryScreenKeepsToACentredColumn)
{
    const QSize size(1440, 900);
    const int width = ui::maximumContentWidth;
    const QRect column((size.width() - width) / 2, 0, width, size.height());
    for (InstallationStep step : kScreens) {
        SCOPED_TRACE(caseName(step).toStdString());
        show(step, size);
        const Content found = content(column);
        EXPECT_TRUE(found.outside.isEmpty()) << found.outside.join(QStringLiteral("\n")).toStdString();
        // As far from the column's left edge as from its right one, and filling it, bar and all.
        EXPECT_NEAR(found.all.left() - column.left(), column.right() - found.all.right(), 1);
        EXPECT_LE(found.all.left() - column.left(), 40);
        if (!found.bars.isNull()) {
            EXPECT_EQ(found.bars.right(), found.cards.right()); // the bar's last button ends where the cards do
        }
    }
}

TEST_F(ContentColumnTest, OnTheSmallestWindowTheColumnTakesTheWholeWidth)
{
    const QSize size(MainWindow::minimumWidth, MainWindow::minimumHeight);
    const QRect window(QPoint(0, 0), size);
    const int scrollBar = 11;
    for (InstallationStep step : kScreens) {
        SCOPED_TRACE(caseName(step).toStdString());
        show(step, size);
        const Content found = content(window);
        EXPECT_TRUE(found.outside.isEmpty()) << found.outside.join(QStringLiteral("\n")).toStdString();
        // The screens' own margins from the window's sides, and no more.
        EXPECT_LE(found.all.left(), 40);
        EXPECT_GE(found.all.right(), size.width() - 1 - 40 - scrollBar);
    }
}
