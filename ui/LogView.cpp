#include "LogView.h"

#include "Layout.h"

#include <QEvent>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QTextCursor>

namespace qf::ui {

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

    auto* layout = vstack(this, 0, QMargins(10, 10, 10, 10));
    layout->addWidget(m_text);
}

void LogView::applyColors()
{
    QPalette palette = m_text->palette();
    palette.setColor(QPalette::Base, Qt::transparent);
    palette.setColor(QPalette::Text, Theme::color(Role::secondary));
    m_text->setPalette(palette);
}

void LogView::changeEvent(QEvent* event)
{
    RoundedCard::changeEvent(event);
    if (event->type() == QEvent::ApplicationPaletteChange)
        applyColors();
}

void LogView::setPadding(int padding) { layout()->setContentsMargins(padding, padding, padding, padding); }

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
    bar->setValue(m_follow ? bar->maximum() : kept);
    m_following = false;
}

void LogView::clear()
{
    m_text->clear();
    m_follow = true;
}

QString LogView::text() const { return m_text->toPlainText(); }

bool LogView::isEmpty() const { return m_text->document()->isEmpty(); }

} // namespace qf::ui
