#include "TextField.h"

#include "FocusRing.h"
#include "Surface.h"
#include "Theme.h"

#include <QEvent>
#include <QPainter>

namespace qf::ui {

namespace {

constexpr int kHeight = 28;
constexpr qreal kRadius = 6;

} // namespace

TextField::TextField(const QString& placeholder, QWidget* parent) : QLineEdit(parent)
{
    setPlaceholderText(placeholder);
    setFrame(false);
    setFont(Theme::body());
    setTextMargins(8, 0, 8, 0);
    setAttribute(Qt::WA_MacShowFocusRect, false);
    setFocusRingRadius(this, kRadius);
    applyColours();
}

void TextField::setSecure(bool secure)
{
    setEchoMode(secure ? QLineEdit::Password : QLineEdit::Normal);
    // A secret never reaches the input method's suggestions or memory.
    Qt::InputMethodHints hints = inputMethodHints() & ~(Qt::ImhSensitiveData | Qt::ImhNoPredictiveText);
    if (secure)
        hints |= Qt::ImhSensitiveData | Qt::ImhNoPredictiveText;
    setInputMethodHints(hints);
}

QSize TextField::sizeHint() const { return {QLineEdit::sizeHint().width(), kHeight}; }

QSize TextField::minimumSizeHint() const { return {QLineEdit::minimumSizeHint().width(), kHeight}; }

void TextField::paintEvent(QPaintEvent* event)
{
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        const QRectF bounds = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
        const QPainterPath shape = continuousRoundedRect(bounds, kRadius);
        painter.fillPath(shape, Theme::color(Role::textBackground));
        painter.strokePath(shape, QPen(Tint(Role::separator).resolve(), 1));
    }
    QLineEdit::paintEvent(event);
}

void TextField::changeEvent(QEvent* event)
{
    QLineEdit::changeEvent(event);
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::ApplicationPaletteChange) {
        // Only the colours this field sets itself; anything else follows the application.
        if (palette().color(QPalette::Text) != Theme::color(Role::primary))
            applyColours();
    }
}

void TextField::applyColours()
{
    QPalette colours = palette();
    // The field paints its own background; the style draws only the text.
    colours.setColor(QPalette::Base, Qt::transparent);
    colours.setColor(QPalette::Text, Theme::color(Role::primary));
    colours.setColor(QPalette::PlaceholderText, Theme::textColor(Theme::color(Role::tertiary)));
    setPalette(colours);
}

} // namespace qf::ui
