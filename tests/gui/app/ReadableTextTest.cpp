#include "ScreenTour.h"

#include "Badge.h"
#include "Button.h"
#include "IconTile.h"
#include "Label.h"
#include "RoundedCard.h"
#include "Theme.h"
#include "ToolCards.h"
#include "UninstallSheets.h"

#include <QHash>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTest>

using namespace qf;

namespace {

// A text as it is drawn: the widget, the colour its letters are written in and how large they are.
struct DrawnText {
    const QWidget* widget;
    QString text;
    QColor color;
    int pixelSize;
};

QList<DrawnText> textsIn(const QWidget* window)
{
    QList<DrawnText> texts;
    for (QWidget* widget : window->findChildren<QWidget*>()) {
        if (!widget->isVisible() || widget->width() <= 0 || widget->height() <= 0)
            continue;
        if (auto* label = qobject_cast<ui::Label*>(widget); label && !label->text().isEmpty()) {
            texts << DrawnText{label, label->text(), label->palette().color(QPalette::WindowText),
                               label->font().pixelSize()};
        } else if (auto* badge = qobject_cast<ui::Badge*>(widget); badge && !badge->text().isEmpty()) {
            texts << DrawnText{badge, badge->text(), badge->textColor(), 10};
        } else if (auto* tile = qobject_cast<ui::IconTile*>(widget); tile && !tile->text().isEmpty()) {
            texts << DrawnText{tile, tile->text(), tile->textColor(), 13};
        } else if (auto* button = qobject_cast<ui::Button*>(widget);
                   button && !button->title().isEmpty() && button->isEnabled() && !button->showsActivity()) {
            texts << DrawnText{button, button->title(), button->contentColor(), 13};
        } else if (auto* log = qobject_cast<QPlainTextEdit*>(widget); log && !log->toPlainText().isEmpty()) {
            texts << DrawnText{log, log->toPlainText().left(40), log->palette().color(QPalette::Text),
                               log->font().pixelSize()};
        } else if (auto* field = qobject_cast<QLineEdit*>(widget)) {
            const bool empty = field->text().isEmpty();
            texts << DrawnText{field, empty ? field->placeholderText() : field->text(),
                               field->palette().color(empty ? QPalette::PlaceholderText : QPalette::Text),
                               field->font().pixelSize()};
        }
    }
    return texts;
}

// What lies behind a text: the colour most of its box shows.
QColor backgroundOf(const QImage& picture, const QWidget* widget)
{
    const QRect box = QRect(widget->mapTo(widget->window(), QPoint(0, 0)), widget->size()).intersected(picture.rect());
    QHash<QRgb, int> counts;
    for (int y = box.top(); y <= box.bottom(); ++y) {
        for (int x = box.left(); x <= box.right(); ++x)
            ++counts[picture.pixel(x, y)];
    }
    QRgb most = 0;
    int best = -1;
    for (auto it = counts.cbegin(); it != counts.cend(); ++it) {
        if (it.value() > best) {
            best = it.value();
            most = it.key();
        }
    }
    return QColor::fromRgb(most);
}

// Every text shown in `window` stands out from what is behind it: 4.5:1 below 18 points, 3:1 above.
void expectReadable(QWidget* window)
{
    if (QWidget* focus = window->focusWidget())
        focus->clearFocus(); // the focus ring is no background
    test::settle();
    const QImage picture = window->grab().toImage();
    const QList<DrawnText> texts = textsIn(window);
    EXPECT_FALSE(texts.isEmpty());
    for (const DrawnText& text : texts) {
        const QColor behind = backgroundOf(picture, text.widget);
        const qreal needed = text.pixelSize >= 18 ? ui::Theme::largeTextContrast : ui::Theme::smallTextContrast;
        EXPECT_GE(ui::Theme::contrastRatio(text.color, behind), needed)
            << text.widget->objectName().toStdString() << " \"" << text.text.toStdString() << "\" in "
            << text.color.name(QColor::HexArgb).toStdString() << " on " << behind.name().toStdString();
    }
}

// The light appearance, then the dark one, with the window re-coloured in between.
template <typename Check>
void inBothAppearances(Check&& check)
{
    const QPalette saved = QApplication::palette();
    for (const bool dark : {false, true}) {
        SCOPED_TRACE(dark ? "dark" : "light");
        QApplication::setPalette(dark ? ui::Theme::darkPalette() : ui::Theme::lightPalette());
        test::settle();
        check();
    }
    QApplication::setPalette(saved);
    test::settle();
}

class ReadableTour : public test::ScreenTour {};

} // namespace

TEST_P(ReadableTour, EveryTextStandsOutInBothAppearances)
{
    arrive();
    ASSERT_FALSE(HasFatalFailure());
    inBothAppearances([this] { expectReadable(window.get()); });
}

INSTANTIATE_TEST_SUITE_P(EveryScreen, ReadableTour, ::testing::Range(0, test::ScreenTour::visits),
                         test::ScreenTour::visitName);

namespace {

class ReadableTextTest : public test::FlowWindowTest {};

} // namespace

TEST_F(ReadableTextTest, TheDashboardWhileItLooksAndTheRemovalSheetStandOut)
{
    sandbox.installFakes({"gemini", "npm"});
    platform.npmPrograms = {sandbox.binDirectory() + QStringLiteral("/npm")};
    open(InstallationStep::home, std::nullopt, {1000, 1400});
    auto* home = screenAs<HomeView>();
    ASSERT_TRUE(QTest::qWaitFor([home] { return !home->isLoading(); }, 20000));

    // "Checking your setup..." shows while a load runs; it is measured before the load can end.
    home->loadData();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    ASSERT_TRUE(shows(test::child(home, QStringLiteral("loadingText"))));
    const QPalette saved = QApplication::palette();
    for (const bool dark : {false, true}) {
        SCOPED_TRACE(dark ? "dark" : "light");
        QApplication::setPalette(dark ? ui::Theme::darkPalette() : ui::Theme::lightPalette());
        QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
        const QImage picture = window->grab().toImage();
        auto* checking = test::child<ui::Label>(home, QStringLiteral("loadingText"));
        EXPECT_GE(
            ui::Theme::contrastRatio(checking->palette().color(QPalette::WindowText), backgroundOf(picture, checking)),
            ui::Theme::smallTextContrast);
    }
    QApplication::setPalette(saved);
    ASSERT_TRUE(QTest::qWaitFor([home] { return !home->isLoading(); }, 20000));
    test::settle();

    // The removal sheet, asking and then done with its log.
    auto* gemini = test::child<AIToolCard>(home, QStringLiteral("aiToolCard.geminiCLI"));
    test::child<QAbstractButton>(gemini, QStringLiteral("removeButton"))->click();
    RemovalSheet* sheet = home->sheet();
    ASSERT_NE(sheet, nullptr);
    test::settle();
    inBothAppearances([sheet] { expectReadable(sheet); });
    test::child<QAbstractButton>(sheet, QStringLiteral("uninstallButton"))->click();
    ASSERT_TRUE(QTest::qWaitFor([sheet] { return sheet->uninstallComplete(); }, 20000));
    test::child<QAbstractButton>(sheet, QStringLiteral("detailsButton"))->click();
    inBothAppearances([sheet] { expectReadable(sheet); });
    sheet->reject();
    test::settle();
}
