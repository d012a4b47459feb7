#include "Label.h"

#include <QEvent>
#include <QPainter>
#include <QTextLayout>

namespace qf::ui {

Label::Label(const QString& text, const QFont& font, const Tint& tint, QWidget* parent)
    : QLabel(text, parent), m_tint(tint)
{
    setFont(font);
    setTextFormat(Qt::PlainText);
    applyTint();
}

void Label::setTint(const Tint& tint)
{
    m_tint = tint;
    applyTint();
}

void Label::applyTint()
{
    if (m_applying)
        return;
    m_applying = true;
    QPalette p = palette();
    const QColor color = Theme::textColor(m_tint.resolve());
    if (p.color(QPalette::WindowText) != color || p.color(QPalette::Text) != color) {
        p.setColor(QPalette::WindowText, color);
        p.setColor(QPalette::Text, color);
        setPalette(p);
    }
    m_applying = false;
}

void Label::changeEvent(QEvent* event)
{
    QLabel::changeEvent(event);
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::ApplicationPaletteChange)
        applyTint();
}

void Label::setWrapping(bool wrap, int maximumLines)
{
    setWordWrap(wrap);
    m_maximumLines = wrap ? std::max(0, maximumLines) : 0;
    if (wrap) {
        QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Minimum);
        policy.setHeightForWidth(true);
        setSizePolicy(policy);
    }
    updateGeometry();
    update();
}

void Label::forgetMeasuresOfOldText() const
{
    if (m_measuredText != text() || m_measuredFont != font()) {
        m_measuredText = text();
        m_measuredFont = font();
        m_lineCounts.clear();
        m_oneLine = QSize();
    }
}

int Label::lineCount(int width) const
{
    forgetMeasuresOfOldText();
    if (const auto cached = m_lineCounts.constFind(width); cached != m_lineCounts.constEnd())
        return cached.value();

    QTextLayout layout(text(), font());
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(option);
    int lines = 0;
    layout.beginLayout();
    while (true) {
        QTextLine line = layout.createLine();
        if (!line.isValid())
            break;
        line.setLineWidth(std::max(1, width));
        ++lines;
    }
    layout.endLayout();
    lines = std::max(1, lines);
    if (m_lineCounts.size() > 32)
        m_lineCounts.clear();
    m_lineCounts.insert(width, lines);
    return lines;
}

bool Label::hasHeightForWidth() const { return wordWrap(); }

int Label::heightForWidth(int width) const
{
    if (m_maximumLines == 0)
        return QLabel::heightForWidth(width);
    const QMargins m = contentsMargins();
    const int lines = std::min(lineCount(width - m.left() - m.right()), m_maximumLines);
    return lines * QFontMetrics(font()).lineSpacing() + m.top() + m.bottom();
}

QSize Label::sizeHint() const
{
    // A wrapping plain text prefers one line too: Qt's own guess for wrapped text is a narrow
    // block, which breaks a short line that sits centred between stretches.
    if (m_maximumLines == 0 && (!wordWrap() || textFormat() == Qt::RichText || Qt::mightBeRichText(text())))
        return QLabel::sizeHint();
    // Prefer one line, as wide as the text wants, and let the layout narrow it. Layouts ask
    // again and again; the text is measured once.
    forgetMeasuresOfOldText();
    const QMargins m = contentsMargins();
    if (!m_oneLine.isValid() || m_oneLineMargins != m) {
        const int wide = QFontMetrics(font()).horizontalAdvance(text()) + 1 + m.left() + m.right();
        m_oneLine = QSize(wide, heightForWidth(wide));
        m_oneLineMargins = m;
    }
    return m_oneLine;
}

QSize Label::minimumSizeHint() const
{
    if (!wordWrap())
        return QLabel::minimumSizeHint();
    const QFontMetrics metrics(font());
    return {metrics.averageCharWidth() * 8, metrics.lineSpacing()};
}

void Label::paintEvent(QPaintEvent* event)
{
    if (m_maximumLines == 0) {
        QLabel::paintEvent(event);
        return;
    }
    QPainter painter(this);
    painter.setPen(palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::WindowText));
    const QRect area = contentsRect();
    const QFontMetrics metrics(font());

    QTextLayout layout(text(), font());
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(option);
    layout.beginLayout();
    qreal y = 0;
    int shown = 0;
    while (shown < m_maximumLines) {
        QTextLine line = layout.createLine();
        if (!line.isValid())
            break;
        line.setLineWidth(area.width());
        line.setPosition(QPointF(0, y));
        y += metrics.lineSpacing();
        ++shown;
    }
    layout.endLayout();

    for (int i = 0; i < layout.lineCount(); ++i) {
        const QTextLine line = layout.lineAt(i);
        const bool last = i == layout.lineCount() - 1;
        const bool truncated = last && line.textStart() + line.textLength() < text().size();
        const qreal top = area.top() + line.y();
        if (truncated) {
            const QString rest = text().mid(line.textStart());
            const QString elided = metrics.elidedText(rest.simplified(), Qt::ElideRight, area.width());
            painter.drawText(QPointF(area.left(), top + metrics.ascent()), elided);
        } else {
            line.draw(&painter, QPointF(area.left(), area.top()));
        }
    }
}

} // namespace qf::ui
