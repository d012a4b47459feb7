#include "CopiedToast.h"
#include "Symbol.h"
#include "TestSupport.h"

#include <QLabel>

using namespace qf;
using namespace qf::ui;

TEST(CopiedToast, ShowsTheConfirmation)
{
    CopiedToast toast;
    EXPECT_EQ(test::child<QLabel>(&toast, QStringLiteral("copiedToastText"))->text(),
              QStringLiteral("Copied to clipboard"));
    auto* symbol = toast.findChild<ui::SymbolView*>();
    ASSERT_NE(symbol, nullptr);
    EXPECT_EQ(symbol->name(), QStringLiteral("checkmark.circle.fill"));
    EXPECT_EQ(toast.shape().kind, ui::Shape::capsule);
    ASSERT_TRUE(toast.shadow().has_value());
    EXPECT_DOUBLE_EQ(toast.shadow()->color.opacity, 0.15);
}
