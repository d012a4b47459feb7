#include "IconTile.h"
#include "SectionHeader.h"
#include "TestSupport.h"

#include <QLabel>

using namespace qf;

TEST(SectionHeader, ShowsTitleAndTintedIcon)
{
    SectionHeader header(QStringLiteral("Development Environment"), QStringLiteral("wrench.and.screwdriver"),
                         ui::Tint(ui::Role::orange));
    EXPECT_EQ(test::child<QLabel>(&header, QStringLiteral("sectionHeaderTitle"))->text(),
              QStringLiteral("Development Environment"));
    auto* tile = header.findChild<ui::IconTile*>();
    ASSERT_NE(tile, nullptr);
    EXPECT_EQ(tile->symbolName(), QStringLiteral("wrench.and.screwdriver"));
    EXPECT_EQ(tile->sizeHint(), QSize(28, 28));
}
