#include "CopyButton.h"
#include "TestSupport.h"
#include "Theme.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QTest>

using namespace qf;
using namespace qf::ui;

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
    EXPECT_EQ(clipboardText(), seenDuringCallback);

    // An empty text is copied too (the clipboard empties); no callback is needed.
    CopyButton empty(QString(), CopyButton::CopyButtonStyle::small);
    empty.click();
    EXPECT_TRUE(clipboardText().isEmpty());
}

TEST(CopyButton, StylesDifferInSizeAndChrome)
{
    using Style = CopyButton::CopyButtonStyle;
    CopyButton regular(QStringLiteral("x"), Style::regular);
    CopyButton small(QStringLiteral("x"), Style::small);
    CopyButton bordered(QStringLiteral("x"), Style::bordered);
    // The glyph is as large as the caption text beside it (caption 2 for the small style).
    EXPECT_EQ(CopyButton::symbolSize(Style::regular), Theme::caption().pixelSize());
    EXPECT_EQ(CopyButton::symbolSize(Style::small), Theme::caption2().pixelSize());
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
