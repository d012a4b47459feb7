// Every screen of the application, once in a large window and once in the smallest one, with
// everything a person relies on checked at each stop: the keyboard's way through it, that every
// text stands out from what is behind it, that the content keeps to its column and that every
// control has a name.
#include "FlowWindowTest.h"

#include "Badge.h"
#include "Button.h"
#include "FocusRing.h"
#include "HomeView.h"
#include "IconTile.h"
#include "Label.h"
#include "Layout.h"
#include "Preferences.h"
#include "RoundedCard.h"
#include "SystemCheckView.h"
#include "Theme.h"
#include "ToolCards.h"
#include "UninstallSheets.h"
#include "WelcomeView.h"

#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QAccessible>
#include <QHash>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTest>
#include <QTextDocument>
#include <QTextLayout>
#include <QTranslator>

#include <algorithm>
#include <cmath>
#include <functional>

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
        for (int x = near.left(); x <= near.right(); ++x)
            changed += ui::Theme::contrastRatio(before.pixelColor(x, y), after.pixelColor(x, y)) >=
                       ui::Theme::nonTextContrast;
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

// Every stop of `window`: each one reached and each a named control a person can hit; where
// nothing scrolls (so places and pictures compare), each showing where the focus is, and all
// in reading order.
void sweep(QWidget* window, bool nothingScrolls = true)
{
    QWidget* start = QApplication::focusWidget();
    ASSERT_NE(start, nullptr);
    const QList<QWidget*> stops = tabRound();
    ASSERT_EQ(QApplication::focusWidget(), start) << "Tab does not come round to where it began";

    // Every control that shows is reached, and nothing else is.
    for (QWidget* control : test::focusableControls(window)) {
        if (control->isVisible() && control->isEnabled()) {
            EXPECT_TRUE(stops.contains(control)) << "never reached: " << describe(control);
        }
    }

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

    if (!nothingScrolls)
        return;

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
        if (!widget->isVisible() || widget->visibleRegion().isEmpty())
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

// What lies behind a text: the colour most of the part of its box that shows.
QColor backgroundOf(const QImage& picture, const QWidget* widget)
{
    const QRect shown = widget->visibleRegion().boundingRect();
    const QRect box = QRect(widget->mapTo(widget->window(), shown.topLeft()), shown.size()).intersected(picture.rect());
    QHash<QRgb, int> counts;
    for (int y = box.top(); y <= box.bottom(); ++y) {
        for (int x = box.left(); x <= box.right(); ++x)
            ++counts[picture.pixel(x, y)];
    }
    return QColor::fromRgb(std::max_element(counts.cbegin(), counts.cend()).key()); // the most counted
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

// A text widget on screen: its place in the window and the layer it lies in.
struct ShownText {
    const QWidget* widget;
    QRect place;
    const QWidget* layer;
};

// The screen's top or bottom bar that holds `widget`, if one does.
const QWidget* barOf(const QWidget* widget)
{
    for (const QWidget* at = widget; at; at = at->parentWidget()) {
        if (at->objectName() == QLatin1String("bottomBar") || at->objectName() == QLatin1String("topBar"))
            return at;
    }
    return nullptr;
}

// The bars float over what scrolls beneath them; texts are compared within one layer.
const QWidget* layerOf(const QWidget* widget)
{
    if (const QWidget* bar = barOf(widget))
        return bar;
    for (const QWidget* at = widget; at; at = at->parentWidget()) {
        if (qobject_cast<const QAbstractScrollArea*>(at) || at->isWindow())
            return at;
    }
    return nullptr;
}

// Whether `widget` keeps its text whole in the room it was given: a wrapping label is tall
// enough for every line, a line of text, a button or a badge as wide as its text.
bool holdsItsText(const QWidget* widget, QString* text, bool everyLine)
{
    if (const auto* label = qobject_cast<const QLabel*>(widget)) {
        *text = label->text();
        const auto* limited = qobject_cast<const ui::Label*>(label);
        if (text->isEmpty() || (!everyLine && limited && limited->maximumLines() > 0))
            return true;
        const QRect room = label->contentsRect();
        if (!label->wordWrap())
            return room.width() >=
                   label->sizeHint().width() - label->contentsMargins().left() - label->contentsMargins().right() - 1;
        if (label->textFormat() == Qt::RichText || Qt::mightBeRichText(*text)) {
            QTextDocument document;
            document.setDocumentMargin(0);
            document.setDefaultFont(label->font());
            document.setHtml(*text);
            document.setTextWidth(room.width());
            return std::ceil(document.size().height()) <= room.height() + 1;
        }
        QTextLayout layout(*text, label->font());
        QTextOption option;
        option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
        layout.setTextOption(option);
        layout.beginLayout();
        int lines = 0;
        for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
            line.setLineWidth(room.width());
            ++lines;
            if (line.naturalTextWidth() > room.width() + 1)
                return false; // one word wider than the label
        }
        layout.endLayout();
        return lines * QFontMetrics(label->font()).lineSpacing() <= room.height() + 1;
    }
    if (const auto* button = qobject_cast<const ui::Button*>(widget)) {
        *text = button->title();
        return text->isEmpty() || button->width() >= button->sizeHint().width();
    }
    if (const auto* badge = qobject_cast<const ui::Badge*>(widget)) {
        *text = badge->text();
        return text->isEmpty() || badge->width() >= badge->sizeHint().width();
    }
    return true;
}

// Every text in `root` shows whole: none is cut by the room it was given or by what holds it,
// and no two overlap. Only what scrolls may lie beyond the part that shows, and only where
// `everyLine` is false may a text limited to a few lines end in an ellipsis.
void expectWholeTexts(const QWidget* root, bool everyLine)
{
    QList<ShownText> shown;
    for (QWidget* widget : root->findChildren<QWidget*>()) {
        if (!widget->isVisibleTo(root->window()))
            continue;
        QString text;
        if (!(qobject_cast<QLabel*>(widget) || qobject_cast<ui::Button*>(widget) || qobject_cast<ui::Badge*>(widget)))
            continue;
        EXPECT_TRUE(holdsItsText(widget, &text, everyLine))
            << describe(widget) << " cuts \"" << text.toStdString() << "\" at " << widget->width() << "x"
            << widget->height() << " (wants " << widget->sizeHint().width() << ") in "
            << describe(widget->parentWidget()) << " visible " << widget->isVisible();
        if (text.isEmpty())
            continue;
        // Each holder up to the first that scrolls has room for it.
        QRect place = widget->rect();
        for (const QWidget* at = widget; at->parentWidget() && !at->isWindow(); at = at->parentWidget()) {
            const QWidget* holder = at->parentWidget();
            if (qobject_cast<const QAbstractScrollArea*>(holder->parentWidget()))
                break; // the viewport: what scrolls may lie beyond it
            place.translate(at->pos());
            EXPECT_TRUE(holder->rect().contains(place))
                << describe(widget) << " \"" << text.toStdString() << "\" lies beyond " << describe(holder) << ": "
                << place.x() << "," << place.y() << " " << place.width() << "x" << place.height() << " in "
                << holder->width() << "x" << holder->height();
        }
        shown << ShownText{widget, QRect(widget->mapTo(widget->window(), QPoint(0, 0)), widget->size()),
                           layerOf(widget)};
    }
    for (qsizetype i = 0; i < shown.size(); ++i) {
        for (qsizetype j = i + 1; j < shown.size(); ++j) {
            const ShownText& one = shown[i];
            const ShownText& other = shown[j];
            if (one.layer != other.layer || one.widget->isAncestorOf(other.widget) ||
                other.widget->isAncestorOf(one.widget))
                continue;
            EXPECT_FALSE(one.place.intersects(other.place))
                << describe(one.widget) << " \"" << one.widget->property("text").toString().left(30).toStdString()
                << "\" at " << one.place.x() << "," << one.place.y() << " " << one.place.width() << "x"
                << one.place.height() << " overlaps " << describe(other.widget) << " at " << other.place.x() << ","
                << other.place.y() << " " << other.place.width() << "x" << other.place.height();
        }
    }
}

// A screen reader says what a button shows: each titled button's name is its title, or holds
// its words where the name says more than the title can ("Install" on a card: "Install Codex";
// in German "Installieren" and "Codex installieren").
void expectNamesSayTheLabels(const QWidget* root)
{
    for (ui::Button* button : root->findChildren<ui::Button*>()) {
        if (!button->isVisibleTo(root) || button->title().isEmpty())
            continue;
        const QString name = QAccessible::queryAccessibleInterface(button)->text(QAccessible::Name);
        const QStringList words = button->title().split(QLatin1Char(' '), Qt::SkipEmptyParts);
        EXPECT_TRUE(std::all_of(words.cbegin(), words.cend(),
                                [&name](const QString& word) { return name.contains(word, Qt::CaseInsensitive); }))
            << describe(button) << " says \"" << name.toStdString() << "\" but shows \""
            << button->title().toStdString() << "\"";
    }
}

class ScreenTour;

// One screen in one of its states, as a person meets it: its name, how the window is brought
// there and the control the focus starts on.
struct ScreenVisit {
    const char* name;
    std::function<void(ScreenTour&)> arrive;
    const char* mainControl;
};

// Large enough that nothing scrolls and wider than the content column; and the smallest window.
const QSize kLarge(1440, 1700);
const QSize kSmallest(MainWindow::minimumWidth, MainWindow::minimumHeight);

// Every screen of the application in the states that show the most, on a machine of its own
// for each visit, in a window of `size()`.
class ScreenTour : public test::FlowWindowTest {
public:
    static const QList<ScreenVisit>& tour();

protected:
    virtual QSize size() const = 0;
    // The window on `step` with `fakes` installed, once the screen's own work is done.
    void go(InstallationStep step, std::optional<CLITool> tool, std::initializer_list<const char*> fakes = {})
    {
        sandbox.installFakes(fakes);
        open(step, tool, size());
        if (step == InstallationStep::home) {
            auto* home = screenAs<HomeView>();
            ASSERT_TRUE(QTest::qWaitFor([home] { return !home->isLoading(); }, 20000));
            test::settle();
        } else if (step == InstallationStep::systemCheck) {
            waitForCheck();
        } else if (step == InstallationStep::installation) {
            waitForInstallation();
        }
    }
    void press(const char* name)
    {
        auto* target = test::child<QAbstractButton>(screen(), QLatin1String(name));
        ASSERT_TRUE(target);
        target->click();
        test::settle();
    }

    // What a person reads or uses on the screen (its text, buttons and cards, in the window's
    // coordinates) lies within `column`. The backdrop and the bars span the window on purpose;
    // of a bar only its buttons count, each whole.
    struct Content {
        QRect all;   // everything together
        QRect cards; // the cards
        QRect bars;  // the buttons of the bars
    };
    Content expectWithin(const QRect& column) const
    {
        Content found;
        for (QWidget* widget : screen()->findChildren<QWidget*>()) {
            if (!widget->isVisible() || widget->objectName() == QLatin1String("homeBackdrop"))
                continue;
            const bool button = qobject_cast<QAbstractButton*>(widget) != nullptr;
            const bool bar = barOf(widget) != nullptr;
            if (!button && (bar || !(qobject_cast<QLabel*>(widget) || qobject_cast<ui::RoundedCard*>(widget))))
                continue;
            const QRect place(widget->mapTo(window.get(), QPoint(0, 0)), widget->size());
            found.all |= place;
            if (bar) {
                found.bars |= place;
                EXPECT_GE(widget->width(), widget->sizeHint().width()) << describe(widget) << " is cut";
            } else if (qobject_cast<ui::RoundedCard*>(widget))
                found.cards |= place;
            EXPECT_TRUE(place.left() >= column.left() && place.right() <= column.right())
                << describe(widget) << " at " << place.left() << ".." << place.right();
        }
        return found;
    }

    // The content keeps to the window: the bottom bar as tall as it needs, nothing forcing what
    // scrolls wider than its view.
    Content expectInsideTheWindow() const
    {
        const Content found = expectWithin(QRect(QPoint(0, 0), size()));
        if (const QWidget* bar = screen()->findChild<QWidget*>(QStringLiteral("bottomBar"))) {
            EXPECT_GE(bar->height(), bar->sizeHint().height());
        }
        for (ui::ScrollView* scroll : screen()->findChildren<ui::ScrollView*>())
            EXPECT_LE(scroll->content()->minimumSizeHint().width(), scroll->viewport()->width());
        return found;
    }

    // The content keeps to a centred column in a large window and to the whole width of the
    // smallest one; there the bottom bar stays whole and nothing is wider than the window.
    void expectTheColumn() const
    {
        if (size() == kLarge) {
            // The dashboard's column is as wide as its longest description needs.
            const auto* home = qobject_cast<const HomeView*>(screen());
            const int width = home ? home->contentWidth() : ui::maximumContentWidth;
            const QRect column((size().width() - width) / 2, 0, width, size().height());
            const Content found = expectWithin(column);
            // As far from the column's left edge as from its right one, and filling it, bar and all.
            EXPECT_NEAR(found.all.left() - column.left(), column.right() - found.all.right(), 1);
            EXPECT_LE(found.all.left() - column.left(), 40);
            if (!found.bars.isNull() && !found.cards.isNull()) {
                EXPECT_EQ(found.bars.right(), found.cards.right()); // the bar's last button ends where the cards do
            }
            return;
        }
        const int scrollBar = 11;
        const Content found = expectInsideTheWindow();
        // The screens' own margins from the window's sides, and no more.
        EXPECT_LE(found.all.left(), 40);
        EXPECT_GE(found.all.right(), size().width() - 1 - 40 - scrollBar);
        if (const QWidget* bar = screen()->findChild<QWidget*>(QStringLiteral("bottomBar"))) {
            EXPECT_EQ(bar->geometry().bottom(), screen()->rect().bottom());
        }
    }
};

} // namespace

const QList<ScreenVisit>& ScreenTour::tour()
{
    using Step = InstallationStep;
    static const QList<ScreenVisit> visits = {
        {"Onboarding",
         [](ScreenTour& t) {
             Preferences::setHasCompletedOnboarding(false);
             t.go(Step::onboarding, std::nullopt);
         },
         "getStartedButton"},
        {"FirstDashboard", [](ScreenTour& t) { t.go(Step::home, std::nullopt); }, "actionButton"},
        {"DashboardWithTools",
         [](ScreenTour& t) {
             t.go(Step::home, std::nullopt, {"claude", "brew", "node"});
         },
         "actionButton"},
        {"ToolChoice", [](ScreenTour& t) { t.go(Step::welcome, std::nullopt); }, "toolCard.claudeCode"},
        {"ToolChosen",
         [](ScreenTour& t) {
             t.go(Step::welcome, CLITool::codex);
             t.press("whatIsAIHeader");
         },
         "toolCard.codex"},
        {"Account", [](ScreenTour& t) { t.go(Step::accountSetup, CLITool::claudeCode); }, "haveAccountButton"},
        {"CheckWithNodeToCome",
         [](ScreenTour& t) {
             t.go(Step::systemCheck, CLITool::geminiCLI, {"git"});
             test::child<RequirementRow>(t.screen(), QStringLiteral("requirementRow.nodeJS"))->helpButton()->click();
             test::settle();
         },
         "mainButton"},
        {"CheckWithTooLittleSpace",
         [](ScreenTour& t) {
             t.platform.diskSpace = DiskSpace{100 * 1024 * 1024, {}};
             t.go(Step::systemCheck, CLITool::geminiCLI);
         },
         "helpButton"},
        {"CheckFindsTheTool", [](ScreenTour& t) { t.go(Step::systemCheck, CLITool::claudeCode, {"claude"}); },
         "mainButton"},
        {"InstallationFailed",
         [](ScreenTour& t) {
             t.sandbox.setEnv("FAKE_NPM_FAIL", "1");
             t.go(Step::installation, CLITool::geminiCLI, {"git", "npm", "node"});
             t.press("detailsButton");
         },
         "mainButton"},
        {"InstallationComplete",
         [](ScreenTour& t) {
             t.go(Step::installation, CLITool::claudeCode, {"git", "curl"});
         },
         "mainButton"},
        {"APIKey", [](ScreenTour& t) { t.go(Step::apiKey, CLITool::claudeCode); }, "apiKeyField"},
        {"ReadyWithoutWindow",
         [](ScreenTour& t) {
             t.platform.terminalOpens = false;
             t.go(Step::completion, CLITool::claudeCode);
             t.press("commonCommandsHeader");
             t.press("openInTerminalButton");
         },
         "openInTerminalButton"},
        {"TerminalWithoutWindow",
         [](ScreenTour& t) {
             t.platform.terminalOpens = false;
             t.go(Step::terminal, CLITool::codex);
         },
         "backToHomeButton"},
    };
    return visits;
}

namespace {

// The tour in English, in a large window and in the smallest one.
class EnglishTour : public ScreenTour, public ::testing::WithParamInterface<std::tuple<int, bool>> {
public:
    static std::string visitName(const ::testing::TestParamInfo<std::tuple<int, bool>>& info)
    {
        return std::string(tour().at(std::get<0>(info.param)).name) + (std::get<1>(info.param) ? "Smallest" : "Large");
    }

protected:
    QSize size() const override { return std::get<1>(GetParam()) ? kSmallest : kLarge; }
};

// The tour in another language: a pseudo-translation where every text is at least 40% longer
// than its English (as German and French run) with accented letters, and Japanese, which breaks
// its lines between characters. At 1280x800, the smallest wide window, and at the smallest one.
enum class TourLanguage { longer, japanese };
const QSize kWide(1280, 800);

class TranslatedTour : public ScreenTour, public ::testing::WithParamInterface<std::tuple<int, TourLanguage, bool>> {
public:
    static std::string visitName(const ::testing::TestParamInfo<std::tuple<int, TourLanguage, bool>>& info)
    {
        return std::string(tour().at(std::get<0>(info.param)).name) +
               (std::get<1>(info.param) == TourLanguage::longer ? "Longer" : "Japanese") +
               (std::get<2>(info.param) ? "Smallest" : "Wide");
    }

protected:
    QSize size() const override { return std::get<2>(GetParam()) ? kSmallest : kWide; }
    void SetUp() override
    {
        ScreenTour::SetUp();
        const QString catalogue = std::get<1>(GetParam()) == TourLanguage::longer
                                      ? QStringLiteral(QF_PSEUDO_CATALOGUE)
                                      : QStringLiteral(QF_CATALOGUE_DIR "/quillforge_ja.qm");
        ASSERT_TRUE(translator.load(catalogue)) << catalogue.toStdString();
        QCoreApplication::installTranslator(&translator);
    }
    void TearDown() override
    {
        window.reset(); // its screens were built in the language; nothing of them outlives it
        QCoreApplication::removeTranslator(&translator);
        ScreenTour::TearDown();
    }

    QTranslator translator;
};

} // namespace

TEST_P(EnglishTour, EveryScreenIsUsableByKeyboardReadableAndKeepsToItsColumn)
{
    const ScreenVisit& stop = tour().at(std::get<0>(GetParam()));
    stop.arrive(*this);
    ASSERT_FALSE(HasFatalFailure());
    SCOPED_TRACE(stop.name);

    // Every control, shown or not yet, has a name for screen readers and one for tests.
    for (QWidget* control : test::focusableControls(screen())) {
        EXPECT_FALSE(QAccessible::queryAccessibleInterface(control)->text(QAccessible::Name).trimmed().isEmpty())
            << describe(control);
        EXPECT_FALSE(control->objectName().isEmpty()) << describe(control);
    }
    expectTheColumn();
    expectWholeTexts(window.get(), size() == kLarge);
    expectNamesSayTheLabels(window.get());

    QWidget* focus = QApplication::focusWidget();
    ASSERT_NE(focus, nullptr) << "nothing has the focus";
    EXPECT_EQ(focus->objectName().toStdString(), stop.mainControl) << describe(focus);
    EXPECT_TRUE(screen()->isAncestorOf(focus));
    sweep(window.get(), size() == kLarge);

    test::inBothAppearances([this] { expectReadable(window.get()); });
}

INSTANTIATE_TEST_SUITE_P(EveryScreen, EnglishTour,
                         ::testing::Combine(::testing::Range(0, int(ScreenTour::tour().size())), ::testing::Bool()),
                         EnglishTour::visitName);

// In every language every text shows whole and the screen keeps to the window; the keyboard's
// way and the contrast do not change with the words.
TEST_P(TranslatedTour, EveryTextShowsWholeAndKeepsToTheWindow)
{
    const ScreenVisit& stop = tour().at(std::get<0>(GetParam()));
    stop.arrive(*this);
    ASSERT_FALSE(HasFatalFailure());
    SCOPED_TRACE(stop.name);
    // The screen speaks the language: its title is not English.
    const bool longer = std::get<1>(GetParam()) == TourLanguage::longer;
    const QList<ui::Label*> labels = screen()->findChildren<ui::Label*>();
    EXPECT_TRUE(std::any_of(labels.cbegin(), labels.cend(), [longer](const ui::Label* label) {
        const QString& text = label->text();
        const auto doubledVowel = [&text] {
            return std::any_of(text.cbegin(), text.cend(), [&text](const QChar& c) {
                return QStringLiteral("åéîöû").contains(c) && text.contains(QString(2, c));
            });
        };
        return label->isVisible() && (longer ? doubledVowel() : std::any_of(text.cbegin(), text.cend(), [](QChar c) {
                   return c.unicode() >= 0x3040;
               }));
    }));

    EXPECT_FALSE(expectInsideTheWindow().all.isNull());
    expectWholeTexts(window.get(), size() == kWide);
    expectNamesSayTheLabels(window.get());
}

INSTANTIATE_TEST_SUITE_P(EveryLanguage, TranslatedTour,
                         ::testing::Combine(::testing::Range(0, int(ScreenTour::tour().size())),
                                            ::testing::Values(TourLanguage::longer, TourLanguage::japanese),
                                            ::testing::Bool()),
                         TranslatedTour::visitName);

namespace {

using KeyboardTest = test::FlowWindowTest;

} // namespace

// The dashboard while it looks stands out; its removal sheet, opened by keyboard, starts on
// "Cancel", is walked like a screen, stands out asking and done, and gives the focus back.
TEST_F(KeyboardTest, ARemovalSheetStartsOnCancelStandsOutAndGivesTheFocusBack)
{
    sandbox.installFakes({"gemini", "npm"});
    platform.npmPrograms = {sandbox.binDirectory() + QStringLiteral("/npm")};
    open(InstallationStep::home, std::nullopt, {1000, 1700});
    auto* home = screenAs<HomeView>();
    const auto loaded = [home] { return QTest::qWaitFor([home] { return !home->isLoading(); }, 20000); };
    ASSERT_TRUE(loaded());

    // "Checking your setup..." shows while a load runs; it is measured before the load can end.
    home->loadData();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    auto* checking = test::child<ui::Label>(home, QStringLiteral("loadingText"));
    ASSERT_TRUE(shows(checking));
    const QPalette saved = QApplication::palette();
    for (const bool dark : {false, true}) {
        SCOPED_TRACE(dark ? "dark" : "light");
        QApplication::setPalette(dark ? ui::Theme::darkPalette() : ui::Theme::lightPalette());
        QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
        const QImage picture = window->grab().toImage();
        EXPECT_GE(
            ui::Theme::contrastRatio(checking->palette().color(QPalette::WindowText), backgroundOf(picture, checking)),
            ui::Theme::smallTextContrast);
    }
    QApplication::setPalette(saved);
    ASSERT_TRUE(loaded());
    test::settle();

    AIToolCard* gemini = test::child<AIToolCard>(home, QStringLiteral("aiToolCard.geminiCLI"));
    auto* remove = test::child<QWidget>(gemini, QStringLiteral("removeButton"));
    for (int i = 0; i < 60 && QApplication::focusWidget() != remove; ++i) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        test::settle();
    }
    ASSERT_EQ(QApplication::focusWidget(), remove);
    const auto openSheet = [home, remove] {
        QTest::keyClick(remove, Qt::Key_Space);
        EXPECT_TRUE(QTest::qWaitFor([home] { return home->sheet() && home->sheet()->isVisible(); }, 5000));
        if (home->sheet())
            QApplication::setActiveWindow(home->sheet());
        test::settle();
        return home->sheet();
    };

    // Space opens the sheet on "Cancel" (removing is never the default), showing where the
    // focus is before any Tab; Tab reads it like a screen. Escape closes it, nothing reloads,
    // and the focus is back on the button that opened it.
    RemovalSheet* sheet = openSheet();
    ASSERT_NE(sheet, nullptr);
    EXPECT_EQ(QApplication::focusWidget(), test::child<QWidget>(sheet, QStringLiteral("cancelButton")));
    EXPECT_TRUE(ui::showsFocusRing(QApplication::focusWidget()));
    EXPECT_FALSE(test::child(sheet, QStringLiteral("detailsButton"))->isVisible()); // no output yet
    sweep(sheet);
    test::inBothAppearances([sheet] { expectReadable(sheet); });
    QTest::keyClick(sheet, Qt::Key_Escape);
    test::settle();
    QApplication::setActiveWindow(window.get());
    test::settle();
    EXPECT_EQ(home->sheet(), nullptr);
    EXPECT_FALSE(home->isLoading());
    EXPECT_EQ(QApplication::focusWidget(), remove);

    // Return on the opened sheet presses "Cancel" too: nothing is removed.
    sheet = openSheet();
    ASSERT_NE(sheet, nullptr);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    ASSERT_TRUE(QTest::qWaitFor([home] { return !home->sheet(); }, 5000));
    QApplication::setActiveWindow(window.get());
    test::settle();
    EXPECT_FALSE(home->isLoading());
    EXPECT_TRUE(home->installedTools().contains(CLITool::geminiCLI));
    EXPECT_EQ(QApplication::focusWidget(), remove);

    // Through to the end by keyboard: Tab to "Uninstall" and Return; "Done" has the focus once
    // the removal is complete, and the sheet with its log (behind "Details") stands out; the
    // dashboard reloads without Gemini CLI, and the focus lands on its card's "Install".
    sheet = openSheet();
    ASSERT_NE(sheet, nullptr);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    ASSERT_EQ(QApplication::focusWidget(), test::child<QWidget>(sheet, QStringLiteral("uninstallButton")));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    ASSERT_TRUE(QTest::qWaitFor([sheet] { return sheet->uninstallComplete(); }, 20000));
    auto* done = test::child<QWidget>(sheet, QStringLiteral("doneButton"));
    EXPECT_EQ(QApplication::focusWidget(), done);
    // The log is behind "Details".
    EXPECT_FALSE(test::child(sheet, QStringLiteral("logView"))->isVisible());
    test::child<QAbstractButton>(sheet, QStringLiteral("detailsButton"))->click();
    EXPECT_TRUE(test::child(sheet, QStringLiteral("logView"))->isVisible());
    test::inBothAppearances([sheet] { expectReadable(sheet); });
    QTest::keyClick(done, Qt::Key_Return);
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
