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
    makeSlim(m_text->verticalScrollBar());

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

bool LogView::isFollowing() const
{
    const QScrollBar* bar = m_text->verticalScrollBar();
    return bar->value() >= bar->maximum();
}

void LogView::append(const QString& text)
{
    if (text.isEmpty())
        return;
    const bool follow = isFollowing();
    QScrollBar* bar = m_text->verticalScrollBar();
    const int kept = bar->value();
    QTextCursor cursor(m_text->document());
    cursor.movePosition(QTextCursor::End);
    cursor.insertText(text);
    if (follow)
        bar->setValue(bar->maximum());
    else
        bar->setValue(kept);
}

void LogView::clear() { m_text->clear(); }

QString LogView::text() const { return m_text->toPlainText(); }

bool LogView::isEmpty() const { return m_text->document()->isEmpty(); }

} // namespace qf::ui
