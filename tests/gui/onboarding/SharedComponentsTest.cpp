#include "FakePlatform.h"
#include "SharedComponents.h"
#include "TestSupport.h"
#include "WelcomeView.h"

#include "Label.h"
#include "RoundedCard.h"
#include "Theme.h"

#include <QClipboard>
#include <QHBoxLayout>
#include <QTest>

#include <algorithm>
#include <climits>

using namespace qf;

namespace {

QString clipboardText() { return QGuiApplication::clipboard()->text(); }

} // namespace

TEST(CopyButton, PutsTheTextOnTheClipboardBeforeCallingBack)
{
    QGuiApplication::clipboard()->setText(QStringLiteral("something older"));
    QString seenDuringCallback = QStringLiteral("<not called>");
    int calls = 0;
    CopyButton button(QStringLiteral("claude \"explain this code\""), CopyButton::CopyButtonStyle::regular, [&] {
        ++calls;
        seenDuringCallback = clipboardText();
    });
    button.resize(button.sizeHint());
    button.show();
    QTest::mouseClick(&button, Qt::LeftButton);

    EXPECT_EQ(calls, 1);
    EXPECT_EQ(seenDuringCallback, QStringLiteral("claude \"explain this code\""));
    EXPECT_EQ(clipboardText(), QStringLiteral("claude \"explain this code\""));
}

TEST(CopyButton, CopiesAnEmptyTextAndWorksWithoutACallback)
{
    QGuiApplication::clipboard()->setText(QStringLiteral("previous"));
    QString seen = QStringLiteral("<not called>");
    CopyButton empty(QString(), CopyButton::CopyButtonStyle::small, [&] { seen = clipboardText(); });
    empty.click();
    EXPECT_TRUE(seen.isEmpty());
    EXPECT_TRUE(clipboardText().isEmpty());

    CopyButton plain(QStringLiteral("git init"), CopyButton::CopyButtonStyle::bordered);
    plain.click();
    EXPECT_EQ(clipboardText(), QStringLiteral("git init"));
}

TEST(CopyButton, StylesDifferInSizeAndChrome)
{
    using Style = CopyButton::CopyButtonStyle;
    CopyButton regular(QStringLiteral("x"), Style::regular);
    CopyButton small(QStringLiteral("x"), Style::small);
    CopyButton bordered(QStringLiteral("x"), Style::bordered);
    EXPECT_LT(CopyButton::symbolSize(Style::small), CopyButton::symbolSize(Style::regular));
    // A smaller glyph, never a smaller target.
    for (CopyButton* button : {&regular, &small, &bordered}) {
        EXPECT_GE(button->sizeHint().width(), ui::Button::minimumTarget);
        EXPECT_GE(button->sizeHint().height(), ui::Button::minimumTarget);
    }
    EXPECT_EQ(regular.leadingSymbol(), QStringLiteral("doc.on.clipboard"));
    EXPECT_EQ(regular.accessibleName(), QStringLiteral("Copy"));

    // Only the bordered style paints a surface behind the glyph.
    auto coverage = [](CopyButton& button) {
        button.resize(button.sizeHint());
        QImage canvas(button.size(), QImage::Format_ARGB32_Premultiplied);
        canvas.fill(Qt::transparent);
        button.render(&canvas, QPoint(), QRegion(), QWidget::DrawChildren);
        int painted = 0;
        for (int y = 0; y < canvas.height(); ++y)
            for (int x = 0; x < canvas.width(); ++x)
                painted += qAlpha(canvas.pixel(x, y)) > 0;
        return double(painted) / (canvas.width() * canvas.height());
    };
    EXPECT_LT(coverage(regular), 0.7);
    EXPECT_LT(coverage(small), 0.7);
    EXPECT_GT(coverage(bordered), 0.9);
}

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

TEST(Label, AShortWrappingTextCentredBetweenStretchesStaysOnOneLine)
{
    QWidget row;
    auto* layout = new QHBoxLayout(&row);
    layout->addStretch(1);
    auto* label = new ui::Label(QStringLiteral("Free tier available, Pro plan for more usage"), ui::Theme::caption());
    label->setWrapping(true);
    layout->addWidget(label);
    layout->addStretch(1);
    row.resize(900, 200);
    row.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&row));
    const int lineSpacing = QFontMetrics(label->font()).lineSpacing();
    EXPECT_LT(label->heightForWidth(label->width()), 2 * lineSpacing) << "one line";
    EXPECT_GE(label->width(), QFontMetrics(label->font()).horizontalAdvance(label->text()));

    // Narrowed, it wraps rather than running out of its row.
    row.resize(140, 200);
    QTRY_VERIFY(label->width() <= 140);
    EXPECT_GE(label->heightForWidth(label->width()), 2 * lineSpacing);
}
