#include "LogView.h"

#include "FocusRing.h"
#include "Layout.h"

#include <QAbstractTextDocumentLayout>
#include <QEvent>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextCursor>

#include <algorithm>

namespace qf::ui {

namespace {

// Between the card's edges and the log, until its owner says otherwise (setPadding).
constexpr QMargins kLogPadding = around(10);

} // namespace

LogView::LogView(QWidget* parent) : RoundedCard(parent), m_text(new QPlainTextEdit(this))
{
    setObjectName(QStringLiteral("logView"));
    setCornerRadius(8);
    setFill(Tint(Role::textBackground));

    m_text->setObjectName(QStringLiteral("logText"));
    m_text->setReadOnly(true);
    m_text->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    m_text->setFrameShape(QFrame::NoFrame);
    m_text->setLineWrapMode(QPlainTextEdit::WidgetWidth);
    m_text->setFont(Theme::font(11, QFont::Normal, FontDesign::monospaced));
    m_text->setAccessibleName(tr("Log"));
    setFocusRingTarget(m_text, this);
    m_text->setUndoRedoEnabled(false);
    m_text->viewport()->setAutoFillBackground(false);
    m_text->setAutoFillBackground(false);
    m_text->document()->setDocumentMargin(0);
    applyColors();
    m_text->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    QScrollBar* bar = m_text->verticalScrollBar();
    makeSlim(bar);
    // The text grows, or the box is laid out anew: the end stays in view while it is followed.
    connect(bar, &QScrollBar::rangeChanged, this, [this] {
        if (m_follow)
            followEnd();
    });
    connect(bar, &QScrollBar::valueChanged, this, [this, bar](int value) {
        if (!m_following)
            m_follow = value >= bar->maximum();
    });

    auto* layout = vstack(this, 0, kLogPadding);
    layout->addWidget(m_text);
}

void LogView::applyColors()
{
    QPalette palette = m_text->palette();
    palette.setColor(QPalette::Base, Qt::transparent);
    palette.setColor(QPalette::Text, Theme::textColor(Theme::color(Role::secondary)));
    m_text->setPalette(palette);
}

void LogView::changeEvent(QEvent* event)
{
    RoundedCard::changeEvent(event);
    // A new application palette reaches a widget as a change of its own palette.
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::ApplicationPaletteChange)
        applyColors();
}

void LogView::setPadding(int padding) { layout()->setContentsMargins(padding, padding, padding, padding); }

void LogView::setLimit(qsizetype characters, const QString& notice)
{
    Q_ASSERT(characters > 8 * (notice.size() + 1));
    m_limit = characters;
    m_notice = notice;
}

void LogView::setTextFont(const QFont& font) { m_text->setFont(font); }

void LogView::scrollToEnd()
{
    m_follow = true;
    followEnd();
}

void LogView::followEnd()
{
    QScrollBar* bar = m_text->verticalScrollBar();
    const bool nested = m_following;
    m_following = true;
    bar->setValue(bar->maximum());
    m_following = nested;
}

bool LogView::isFollowing() const { return m_follow; }

void LogView::append(const QString& text)
{
    if (text.isEmpty())
        return;
    // Whatever the text view does to its scroll bar while the text grows is not the reader's doing.
    QScrollBar* bar = m_text->verticalScrollBar();
    const int kept = bar->value();
    m_following = true;
    QTextCursor cursor(m_text->document());
    cursor.movePosition(QTextCursor::End);
    cursor.insertText(text);
    const int cutLines = cutToLimit();
    bar->setValue(m_follow ? bar->maximum() : std::max(0, kept - cutLines));
    m_following = false;
}

int LogView::cutToLimit()
{
    QTextDocument* document = m_text->document();
    // The document's own last paragraph separator is not text.
    const qsizetype size = document->characterCount() - 1;
    if (m_limit <= 0 || size <= m_limit)
        return 0;
    // The text left fills the limit at most, and is cut an eighth below it (so that the next
    // cut is far off), at the first line start from there when one is near.
    const QString notice = m_notice + QLatin1Char('\n');
    const qsizetype room = m_limit - notice.size();
    const qsizetype slack = room / 8;
    const qsizetype earliest = size - room;
    const qsizetype goal = size - (room - slack);
    qsizetype start = goal;
    const QTextBlock line = document->findBlock(int(goal));
    const QTextBlock next = line.next();
    if (line.position() != goal) {
        if (next.isValid() && next.position() - goal <= slack)
            start = next.position();
        else if (line.position() >= earliest)
            start = line.position();
        else if (document->characterAt(int(goal)).isLowSurrogate())
            start = goal + 1;
    }

    // The scroll bar counts lines: what went at the top is what a reader's place moves up.
    const qreal linesBefore = document->documentLayout()->documentSize().height();
    QTextCursor cursor(document);
    cursor.setPosition(int(start), QTextCursor::KeepAnchor);
    cursor.insertText(notice);
    m_cut = true;
    return std::max(0, int(linesBefore - document->documentLayout()->documentSize().height()));
}

void LogView::clear()
{
    m_text->clear();
    m_follow = true;
    m_cut = false;
}

QString LogView::text() const { return m_text->toPlainText(); }

bool LogView::isEmpty() const { return m_text->document()->isEmpty(); }

} // namespace qf::ui
