#include "FakePlatform.h"
#include "Label.h"
#include "RoundedCard.h"
#include "TestSupport.h"
#include "WelcomeView.h"

#include <QTest>

#include <algorithm>
#include <climits>

using namespace qf;

TEST(ToolCard, TheChosenCardsDividerHasTwelvePointsOnBothSides)
{
    test::FakePlatform platform;
    ToolCard card(CLITool::claudeCode, platform);
    card.resize(560, 400);
    card.setSelected(true, false);
    card.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&card));
    QWidget* details = test::child(&card, QStringLiteral("toolDetails"));
    ASSERT_TRUE(details->isVisible());

    ui::RoundedCard* line = nullptr;
    for (auto* candidate : details->findChildren<ui::RoundedCard*>())
        if (candidate->height() == 1)
            line = candidate;
    ASSERT_NE(line, nullptr);
    const QRect lineRect(line->mapTo(&card, QPoint()), line->size());
    // Above: the bottom of the top row, whichever of its parts reaches lowest.
    int topRowBottom = 0;
    for (auto* part : card.findChildren<QWidget*>()) {
        if (part == details || details->isAncestorOf(part) || part->isAncestorOf(details) || !part->isVisible())
            continue;
        topRowBottom = std::max(topRowBottom, part->mapTo(&card, QPoint(0, part->height())).y());
    }
    EXPECT_EQ(lineRect.top() - topRowBottom, 12);
    // Below: the first feature.
    int firstFeatureTop = INT_MAX;
    for (auto* label : details->findChildren<ui::Label*>())
        firstFeatureTop = std::min(firstFeatureTop, label->mapTo(&card, QPoint()).y());
    EXPECT_EQ(firstFeatureTop - (lineRect.bottom() + 1), 12);
}
