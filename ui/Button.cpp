#include "Button.h"

#include "ActivityIndicator.h"
#include "FocusRing.h"
#include "Surface.h"

#include <QBoxLayout>
#include <QEvent>
#include <QKeyEvent>
#include <QPainter>

#include <algorithm>

namespace qf::ui {

namespace {

// The tinted style's fill under the pointer; its title is shaded for this, its strongest fill.
constexpr qreal kTintedHoverFill = 0.18;

} // namespace

Button::Button(const QString& title, Style style, Size size, QWidget* parent)
    : QAbstractButton(parent),
      m_style(style),
      m_size(size),
      m_font(Theme::body()),
      m_hover(this, 100, motion::easeInOut(), [this](qreal) { update(); })
{
    setTitle(title);
    setAttribute(Qt::WA_Hover);
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    if (style == Style::link) {
        m_tint = Tint(Role::accent);
        setCursor(Qt::PointingHandCursor);
    } else if (style == Style::plain || style == Style::borderless) {
        m_tint = Tint(Role::primary);
    }
    setFocusRingRadius(this, cornerRadius());
}

void Button::setTitle(const QString& title)
{
    // Screen readers say the button's text unless it was given a name of its own, so the name
    // follows every change of the title; "&&" keeps a "&" a character, not a shortcut.
    QString escaped = title;
    escaped.replace(QLatin1Char('&'), QLatin1String("&&"));
    QAbstractButton::setText(escaped);
    updateGeometry();
    update();
}

QString Button::title() const
{
    QString shown = text();
    shown.replace(QLatin1String("&&"), QLatin1String("&"));
    return shown;
}

void Button::setTitleFont(const QFont& font)
{
    m_font = font;
    updateGeometry();
    update();
}

void Button::setLeadingSymbol(const QString& name, qreal pointSize, SymbolWeight weight)
{
    m_leading = {name, pointSize, weight};
    updateGeometry();
    update();
}

void Button::setTrailingSymbol(const QString& name, qreal pointSize, SymbolWeight weight)
{
    m_trailing = {name, pointSize, weight};
    updateGeometry();
    update();
}

void Button::setTint(const Tint& tint)
{
    m_tint = tint;
    update();
}

void Button::setContentTint(const Tint& tint)
{
    m_contentTint = tint;
    update();
}

void Button::setSpacing(int spacing)
{
    m_spacing = spacing;
    updateGeometry();
}

void Button::setLabelWidth(int width)
{
    m_labelWidth = width;
    updateGeometry();
}

void Button::setMinimumLabelWidth(int width)
{
    m_minimumLabelWidth = width;
    updateGeometry();
}

void Button::setContentPadding(int horizontal, int vertical)
{
    m_hPadding = horizontal;
    m_vPadding = vertical;
    updateGeometry();
}

void Button::setCornerRadius(qreal radius)
{
    m_cornerRadius = radius;
    setFocusRingRadius(this, cornerRadius());
    update();
}

void Button::setOpacity(qreal opacity)
{
    m_opacity = std::clamp<qreal>(opacity, 0.0, 1.0);
    update();
}

qreal Button::cornerRadius() const
{
    if (m_cornerRadius >= 0)
        return m_cornerRadius;
    return m_size == Size::large ? 8.0 : 6.0;
}

int Button::naturalContentWidth() const
{
    int width = 0;
    int parts = 0;
    if (!m_leading.name.isEmpty()) {
        width += Symbol::boxSize(m_leading.pointSize);
        ++parts;
    }
    if (!title().isEmpty()) {
        // Shaped text has a fractional width; rounding it down would cut the last letter.
        width += qCeil(QFontMetricsF(m_font).horizontalAdvance(title()));
        ++parts;
    }
    if (!m_trailing.name.isEmpty()) {
        width += Symbol::boxSize(m_trailing.pointSize);
        ++parts;
    }
    return width + std::max(0, parts - 1) * m_spacing;
}

int Button::contentWidth() const
{
    if (m_labelWidth >= 0)
        return m_labelWidth;
    return std::max(naturalContentWidth(), m_minimumLabelWidth);
}

int Button::horizontalPadding() const
{
    if (m_hPadding >= 0)
        return m_hPadding;
    switch (m_style) {
    case Style::prominent:
    case Style::tinted:
    case Style::bordered: return m_size == Size::large ? 14 : 10;
    case Style::plain:
    case Style::borderless:
    case Style::link: return 0;
    }
    return 0;
}

int Button::controlHeight() const
{
    const QFontMetrics metrics(m_font);
    int content = metrics.height();
    if (!m_leading.name.isEmpty())
        content = std::max(content, Symbol::boxSize(m_leading.pointSize));
    if (!m_trailing.name.isEmpty())
        content = std::max(content, Symbol::boxSize(m_trailing.pointSize));
    if (m_vPadding >= 0)
        return content + 2 * m_vPadding;
    switch (m_style) {
    case Style::prominent:
    case Style::tinted:
    case Style::bordered: return std::max(content + 8, m_size == Size::large ? 30 : 22);
    case Style::plain:
    case Style::borderless:
    case Style::link: return content + 4;
    }
    return content;
}

QSize Button::sizeHint() const
{
    return {std::max(contentWidth() + 2 * horizontalPadding(), minimumTarget),
            std::max(controlHeight(), minimumTarget)};
}

QColor Button::contentColor() const
{
    // A title is text: it takes its colour's text shade, on the fill it lies on.
    const bool titled = !title().isEmpty();
    const auto readable = [this, titled](const QColor& color) {
        if (!titled)
            return color;
        if (m_style == Style::tinted)
            return Theme::textColor(color, m_tint.withOpacity(m_tint.opacity * kTintedHoverFill).resolve());
        return Theme::textColor(color);
    };
    if (m_contentTint) {
        QColor c = readable(m_contentTint->resolve());
        if (!isEnabled())
            c.setAlphaF(c.alphaF() * 0.4f);
        return c;
    }
    if (!isEnabled())
        return Theme::color(Role::tertiary);
    switch (m_style) {
    case Style::prominent: return QColor(Qt::white);
    case Style::bordered: return Theme::color(Role::primary);
    case Style::tinted:
    case Style::plain:
    case Style::borderless:
    case Style::link: return readable(m_tint.resolve());
    }
    return Theme::color(Role::primary);
}

QColor Button::backgroundColor() const
{
    const bool dark = Theme::isDark();
    QColor fill;
    if (m_style == Style::prominent) {
        // White content: the fill is as dark as white text needs, and darkens under the pointer
        // and when pressed.
        fill = isEnabled() ? Theme::fillBehindWhiteText(m_tint.resolve()) : Tint(Role::secondary, 0.22).resolve();
        if (isEnabled() && isDown())
            fill = fill.darker(118);
        else if (isEnabled() && underMouse())
            fill = fill.darker(108);
    } else if (m_style == Style::tinted) {
        fill = m_tint.withOpacity(m_tint.opacity * (0.10 + (kTintedHoverFill - 0.10) * m_hover.value())).resolve();
        if (isDown())
            fill = m_tint.withOpacity(m_tint.opacity * 0.26).resolve();
    } else if (m_style == Style::bordered) {
        fill = dark ? QColor(255, 255, 255, 34) : QColor(255, 255, 255);
        if (isDown())
            fill = dark ? QColor(255, 255, 255, 60) : QColor(232, 232, 234);
        else if (underMouse())
            fill = dark ? QColor(255, 255, 255, 44) : QColor(248, 248, 250);
    }
    return fill;
}

void Button::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setOpacity(m_opacity);
    const QRectF bounds = QRectF(rect());
    const qreal radius = cornerRadius();
    const bool dark = Theme::isDark();

    if (isFilled()) {
        const QPainterPath path = continuousRoundedRect(bounds.adjusted(0.5, 0.5, -0.5, -0.5), radius);
        if (m_style == Style::bordered && !dark) {
            // A hairline edge with a slightly darker bottom, like a raised macOS button.
            painter.fillPath(continuousRoundedRect(bounds.adjusted(0, 0, 0, 0), radius), QColor(0, 0, 0, 38));
            painter.fillPath(continuousRoundedRect(bounds.adjusted(0.5, 0.5, -0.5, -1.0), radius - 0.5),
                             backgroundColor());
        } else {
            painter.fillPath(path, backgroundColor());
        }
    }

    if (showsActivity())
        return;

    // Content, centred.
    QColor content = contentColor();
    if ((m_style == Style::plain || m_style == Style::borderless || m_style == Style::link) && isDown())
        content.setAlphaF(content.alphaF() * 0.55f);
    const int width = contentWidth();
    const int natural = naturalContentWidth();
    const QFontMetricsF metrics(m_font);
    const qreal contentLeft = (bounds.width() - width) / 2.0;
    qreal x = contentLeft + std::max(0, width - natural) / 2.0;
    const qreal centreY = bounds.height() / 2.0;

    auto drawSymbol = [&](const SymbolPart& part) {
        const QPixmap icon = Symbol::pixmap(part.name, part.pointSize, content, devicePixelRatioF(), part.weight);
        const QSizeF logical = icon.deviceIndependentSize();
        painter.drawPixmap(QPointF(x, centreY - logical.height() / 2.0), icon);
        x += Symbol::boxSize(part.pointSize) + m_spacing;
    };
    if (!m_leading.name.isEmpty())
        drawSymbol(m_leading);
    if (!title().isEmpty()) {
        painter.setFont(m_font);
        painter.setPen(content);
        const QString shown = metrics.elidedText(title(), Qt::ElideRight, std::max<qreal>(0.0, bounds.width() - x));
        const qreal baseline = centreY + (metrics.ascent() - metrics.descent()) / 2.0;
        painter.drawText(QPointF(x, baseline), shown);
        x += metrics.horizontalAdvance(title()) + m_spacing;
    }
    if (!m_trailing.name.isEmpty())
        drawSymbol(m_trailing);
}

void Button::keyPressEvent(QKeyEvent* event)
{
    // Return and Enter press a focused button, as Space does.
    if ((event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) && event->modifiers() == Qt::NoModifier) {
        animateClick();
        return;
    }
    QAbstractButton::keyPressEvent(event);
}

void Button::setShowsActivity(bool shows)
{
    if (shows == showsActivity())
        return;
    if (shows && !m_activity) {
        m_activity = new ActivityIndicator(m_size == Size::large ? 14 : 11, Tint(Role::secondary), this);
        m_activity->setAttribute(Qt::WA_TransparentForMouseEvents);
    }
    if (m_activity) {
        m_activity->resize(m_activity->sizeHint());
        m_activity->move((width() - m_activity->width()) / 2, (height() - m_activity->height()) / 2);
        m_activity->setVisible(shows);
    }
    update();
}

bool Button::showsActivity() const { return m_activity && !m_activity->isHidden(); }

void Button::resizeEvent(QResizeEvent* event)
{
    QAbstractButton::resizeEvent(event);
    if (m_activity)
        m_activity->move((width() - m_activity->width()) / 2, (height() - m_activity->height()) / 2);
}

bool Button::event(QEvent* event)
{
    switch (event->type()) {
    case QEvent::HoverEnter:
    case QEvent::HoverLeave:
        if (m_style == Style::tinted)
            m_hover.setTarget(event->type() == QEvent::HoverEnter ? 1.0 : 0.0);
        update();
        break;
    case QEvent::EnabledChange:
    case QEvent::PaletteChange: update(); break;
    default: break;
    }
    return QAbstractButton::event(event);
}

} // namespace qf::ui

namespace qf::ui {

RowButton::RowButton(QWidget* parent) : QAbstractButton(parent), m_row(new QHBoxLayout(this))
{
    m_row->setContentsMargins(0, 0, 0, 0);
    m_row->setSpacing(6);
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::PointingHandCursor);
    setMinimumHeight(Button::minimumTarget);
}

void RowButton::addWidget(QWidget* widget, int stretch, Qt::Alignment alignment)
{
    widget->setAttribute(Qt::WA_TransparentForMouseEvents);
    widget->setFocusPolicy(Qt::NoFocus);
    m_row->addWidget(widget, stretch, alignment);
}

void RowButton::addStretch(int stretch) { m_row->addStretch(stretch); }

void RowButton::setPadding(QMargins padding) { m_row->setContentsMargins(padding); }

QSize RowButton::sizeHint() const { return m_row->sizeHint().expandedTo(QSize(0, Button::minimumTarget)); }

QSize RowButton::minimumSizeHint() const { return m_row->minimumSize().expandedTo(QSize(0, Button::minimumTarget)); }

void RowButton::paintEvent(QPaintEvent*)
{
    // The widgets of the row draw themselves; the window's focus ring goes around the row.
}

} // namespace qf::ui
