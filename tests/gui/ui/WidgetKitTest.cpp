#include "ActivityIndicator.h"
#include "Button.h"
#include "CLITool.h"
#include "ImageView.h"
#include "Label.h"
#include "LogView.h"
#include "Motion.h"
#include "RoundedCard.h"
#include "TestSupport.h"
#include "Theme.h"

#include <QAbstractAnimation>
#include <QAccessible>
#include <QHBoxLayout>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <QTextBlock>

using namespace qf;
using namespace qf::ui;

TEST(Theme, RolesFollowThePalette)
{
    const QPalette saved = QApplication::palette();
    QApplication::setPalette(Theme::lightPalette());
    EXPECT_FALSE(Theme::isDark());
    const QColor lightCard = Theme::color(Role::controlBackground);
    const QColor lightGreen = Theme::color(Role::green);

    QApplication::setPalette(Theme::darkPalette());
    EXPECT_TRUE(Theme::isDark());
    EXPECT_NE(Theme::color(Role::controlBackground), lightCard);
    EXPECT_NE(Theme::color(Role::green), lightGreen);
    // Secondary text is the primary text, fainter.
    EXPECT_LT(Theme::color(Role::secondary).alpha(), Theme::color(Role::primary).alpha());
    EXPECT_EQ(Tint(Role::accent, 0.05).resolve().alpha(), qRound(Theme::color(Role::accent).alpha() * 0.05));

    QApplication::setPalette(saved);
}

TEST(Theme, FontsArePointsInPixelsInThePlatformsFamilies)
{
    EXPECT_EQ(Theme::font(13).pixelSize(), 13); // a point is a logical pixel everywhere
    EXPECT_EQ(Theme::headline().weight(), QFont::DemiBold);
    EXPECT_TRUE(QFontInfo(Theme::font(12, QFont::Normal, FontDesign::monospaced)).fixedPitch());

    // A look of our own: the platform's families first, its light or dark choice honoured.
    const QPalette savedPalette = QApplication::palette();
    const QFont savedFont = QApplication::font();
    auto& app = *qobject_cast<QApplication*>(QCoreApplication::instance());
    Theme::applyApplicationLook(app,
                                {.nativeStyle = false, .prefersDark = true, .fontFamilies = {QStringLiteral("Inter")}});
    EXPECT_TRUE(Theme::isDark());
    EXPECT_EQ(Theme::body().families().value(0), QStringLiteral("Inter"));
    Theme::applyApplicationLook(app, {.nativeStyle = false, .prefersDark = false, .fontFamilies = {}});
    EXPECT_FALSE(Theme::isDark());
    QApplication::setPalette(savedPalette);
    QApplication::setFont(savedFont);
}

TEST(Label, LineLimitCapsTheHeight)
{
    Label label(QStringLiteral("one two three four five six seven eight nine ten eleven twelve thirteen fourteen"),
                Theme::font(13));
    label.setWrapping(true, 2);
    const int line = QFontMetrics(label.font()).lineSpacing();
    EXPECT_EQ(label.heightForWidth(60), 2 * line);
    EXPECT_EQ(label.heightForWidth(4000), line);
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

TEST(Button, ReportsClicksAndNamesItself)
{
    Button button(QStringLiteral("Get Started"), Button::Style::prominent, Button::Size::large);
    const auto spoken = [&button] { return QAccessible::queryAccessibleInterface(&button)->text(QAccessible::Name); };
    EXPECT_EQ(spoken(), QStringLiteral("Get Started"));
    // The spoken name and the size follow a new title however it is set; "&" is a character.
    const int wide = button.sizeHint().width();
    button.setText(QStringLiteral("Save & Continue"));
    EXPECT_EQ(spoken(), QStringLiteral("Save & Continue"));
    EXPECT_EQ(button.title(), QStringLiteral("Save & Continue"));
    EXPECT_TRUE(button.shortcut().isEmpty());
    button.setTitle(QStringLiteral("Go"));
    EXPECT_EQ(spoken(), QStringLiteral("Go"));
    EXPECT_LT(button.sizeHint().width(), wide);
    button.setTitle(QStringLiteral("Get Started"));
    button.setLabelWidth(160);
    EXPECT_EQ(button.sizeHint().width(), 160 + 2 * 14);
    EXPECT_GE(button.sizeHint().height(), 28);

    QSignalSpy clicks(&button, &QAbstractButton::clicked);
    button.resize(button.sizeHint());
    button.show();
    QTest::mouseClick(&button, Qt::LeftButton);
    EXPECT_EQ(clicks.count(), 1);
    QTest::keyClick(&button, Qt::Key_Return);
    (void)QTest::qWaitFor([&] { return clicks.count() == 2; }, 2000); // animateClick releases after a moment
    EXPECT_EQ(clicks.count(), 2);
    button.setEnabled(false);
    QTest::mouseClick(&button, Qt::LeftButton);
    EXPECT_EQ(clicks.count(), 2);
}

TEST(ImageView, EveryLogoIsASquareAsset)
{
    QStringList expected = {QStringLiteral("QuillforgeLogo")};
    for (CLITool tool : CLITool::allCases())
        expected << tool.logoImageName();
    for (const QString& name : expected) {
        ASSERT_TRUE(ImageView::assetExists(name)) << name.toStdString();
        ImageView view(name, 64);
        EXPECT_EQ(view.sizeHint(), QSize(64, 64)) << name.toStdString();
        QImage canvas(64, 64, QImage::Format_ARGB32_Premultiplied);
        canvas.fill(Qt::transparent);
        view.render(&canvas, QPoint(), QRegion(), QWidget::DrawChildren);
        EXPECT_GT(qAlpha(canvas.pixel(32, 32)), 200) << name.toStdString();
    }
}

TEST(Motion, WithAnimationsOffChangesLandAtOnce)
{
    QObject context;
    qreal last = -1;
    EXPECT_EQ(motion::animate(&context, 300, motion::easeOut(), [&](qreal p) { last = p; }), nullptr);
    EXPECT_EQ(last, 1.0);

    test::AnimationsOn on;
    last = -1;
    QAbstractAnimation* running = motion::animate(
        &context, 300, motion::easeOut(), [&](qreal p) { last = p; }, 100);
    ASSERT_NE(running, nullptr);
    EXPECT_EQ(running->totalDuration(), 400);
    running->setCurrentTime(400);
    EXPECT_DOUBLE_EQ(last, 1.0);
}

TEST(Motion, CurvesStartAndEndInPlace)
{
    for (const QEasingCurve& curve : {motion::easeOut(), motion::easeIn(), motion::easeInOut(), motion::spring()}) {
        EXPECT_NEAR(curve.valueForProgress(0.0), 0.0, 1e-6);
        EXPECT_NEAR(curve.valueForProgress(1.0), 1.0, 1e-6);
    }
    // Ease-out is ahead of linear at the start, ease-in behind it.
    EXPECT_GT(motion::easeOut().valueForProgress(0.25), 0.25);
    EXPECT_LT(motion::easeIn().valueForProgress(0.25), 0.25);
    // The spring settles without a visible overshoot.
    for (qreal t = 0; t <= 1.0; t += 0.05)
        EXPECT_LT(motion::spring().valueForProgress(t), 1.02);
}

TEST(RoundedCard, PaintsItsFillInsideItsShape)
{
    RoundedCard card;
    card.setCornerRadius(12);
    card.setFill(Tint(QColor(Qt::red)));
    card.resize(100, 60);
    QImage canvas(100, 60, QImage::Format_ARGB32_Premultiplied);
    canvas.fill(Qt::transparent);
    card.render(&canvas, QPoint(), QRegion(), QWidget::DrawChildren);
    EXPECT_EQ(QColor(canvas.pixel(50, 30)), QColor(Qt::red));
    EXPECT_EQ(qAlpha(canvas.pixel(0, 0)), 0);
}

TEST(Button, TextIsNeverCutAtItsOwnWidth)
{
    // Widths of shaped text are fractional; a button as wide as it asks shows its whole title.
    for (const char* title : {"Details", "Install", "Open", "Uninstall", "Create"}) {
        Button button(QString::fromLatin1(title), Button::Style::plain);
        button.setTitleFont(Theme::font(13, QFont::DemiBold));
        button.setLeadingSymbol(QStringLiteral("chevron.right"), 10, SymbolWeight::bold);
        const int textRoom = button.sizeHint().width() - Symbol::boxSize(10) - 6;
        EXPECT_GE(qreal(textRoom), QFontMetricsF(Theme::font(13, QFont::DemiBold)).horizontalAdvance(button.title()))
            << title;
    }
}

TEST(Button, ActivityTakesThePlaceOfTheContent)
{
    Button button(QStringLiteral("Save & Continue"), Button::Style::plain, Button::Size::large);
    const QSize size = button.sizeHint();
    button.resize(size);
    const auto contentShows = [&button] {
        QImage canvas(button.size(), QImage::Format_ARGB32_Premultiplied);
        canvas.fill(Qt::transparent);
        button.render(&canvas, QPoint(), QRegion(), {}); // the button alone, not the spinner
        return test::hasVisiblePixels(canvas);
    };
    EXPECT_TRUE(contentShows());

    button.setShowsActivity(true);
    EXPECT_TRUE(button.showsActivity());
    EXPECT_EQ(button.sizeHint(), size);
    EXPECT_FALSE(contentShows());
    auto* spinner = button.findChild<ActivityIndicator*>();
    ASSERT_NE(spinner, nullptr);
    EXPECT_FALSE(spinner->isHidden());
    EXPECT_LE((spinner->geometry().center() - button.rect().center()).manhattanLength(), 2);

    button.setShowsActivity(false);
    EXPECT_TRUE(spinner->isHidden());
    EXPECT_TRUE(contentShows());
}

TEST(LogView, FollowsTheNewestLineUnlessTheReaderScrolledUp)
{
    LogView log;
    log.resize(300, 90);
    log.show();
    QString expected;
    for (int i = 0; i < 50; ++i) {
        const QString line = QStringLiteral("line %1\n").arg(i);
        log.append(line);
        expected += line;
    }
    EXPECT_EQ(log.text(), expected); // every character, as it came
    EXPECT_TRUE(log.isFollowing());

    QScrollBar* bar = log.textView()->verticalScrollBar();
    bar->setValue(0); // the reader goes back up
    log.append(QStringLiteral("more\n"));
    EXPECT_EQ(bar->value(), 0);
    bar->setValue(bar->maximum()); // and down again: it follows once more
    log.append(QStringLiteral("last\n"));
    EXPECT_TRUE(log.isFollowing());
    EXPECT_TRUE(log.text().endsWith(QStringLiteral("more\nlast\n")));

    log.clear();
    EXPECT_TRUE(log.isEmpty());
}

TEST(LogView, ALimitedLogKeepsItsNewestLinesAndTheReadersPlace)
{
    LogView log;
    log.resize(300, 90);
    log.show();
    const QString notice = QStringLiteral("Earlier output was cut.");
    log.setLimit(4000, notice);
    QString everything;
    const auto add = [&](int from, int to) {
        for (int i = from; i < to; ++i) {
            // Lines split across appends, as reads split them.
            const QString line = QStringLiteral("line %1 of the log\n").arg(i, 4, 10, QLatin1Char('0'));
            log.append(line.left(7));
            log.append(line.mid(7));
            everything += line;
        }
    };
    add(0, 180);
    EXPECT_FALSE(log.wasCut());
    EXPECT_EQ(log.text(), everything);

    add(180, 230);
    ASSERT_TRUE(log.wasCut());
    QString shown = log.text();
    EXPECT_LE(shown.size(), 4000);
    ASSERT_TRUE(shown.startsWith(notice + QLatin1Char('\n')));
    QString kept = shown.sliced(notice.size() + 1);
    EXPECT_TRUE(everything.endsWith(kept));
    EXPECT_TRUE(kept.startsWith(QStringLiteral("line "))); // whole lines only
    EXPECT_TRUE(log.isFollowing());

    // A reader who scrolled up keeps reading the same line while the oldest ones go.
    QPlainTextEdit* text = log.textView();
    text->verticalScrollBar()->setValue(text->verticalScrollBar()->maximum() / 2);
    const QString read = text->cursorForPosition(QPoint(2, 2)).block().text();
    const auto firstKept = [&log, &notice] {
        return log.text().sliced(notice.size() + 1).section(QLatin1Char('\n'), 0, 0);
    };
    const QString oldest = firstKept();
    int next = 230;
    while (firstKept() == oldest && next < 400) {
        add(next, next + 1);
        ++next;
    }
    ASSERT_NE(firstKept(), oldest) << "no second cut";
    EXPECT_EQ(text->cursorForPosition(QPoint(2, 2)).block().text(), read);
    EXPECT_FALSE(log.isFollowing());
    shown = log.text();
    EXPECT_LE(shown.size(), 4000);
    EXPECT_EQ(shown.count(notice), 1);
    EXPECT_TRUE(everything.endsWith(shown.sliced(notice.size() + 1)));

    log.clear();
    EXPECT_FALSE(log.wasCut());
}

TEST(Motion, ATransitionTurnsBackFromWhereItIs)
{
    QObject owner;
    QList<qreal> steps;
    motion::Transition transition(&owner, 200, motion::easeInOut(), [&](qreal value) { steps << value; });
    transition.setTarget(1.0); // animations are off: straight there
    EXPECT_EQ(steps, QList<qreal>{1.0});

    test::AnimationsOn on;
    transition.setTarget(0.0);
    ASSERT_TRUE(QTest::qWaitFor([&] { return transition.value() < 0.9 && transition.value() > 0.1; }, 2000));
    const qreal turn = transition.value();
    steps.clear();
    transition.setTarget(1.0);
    ASSERT_TRUE(QTest::qWaitFor([&] { return transition.value() == 1.0; }, 2000));
    ASSERT_FALSE(steps.isEmpty());
    EXPECT_GE(steps.first(), turn - 0.05); // no jump back to the far end
    EXPECT_EQ(steps.last(), 1.0);          // and it lands exactly
}
