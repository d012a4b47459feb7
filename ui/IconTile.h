#pragma once

#include "Paint.h"
#include "Surface.h"
#include "Theme.h"

#include <QFont>
#include <QWidget>

#include <optional>

namespace qf::ui {

class ActivityIndicator;

// A tinted tile or circle with a symbol or a short text centred on it: feature icons, step
// numbers, section-header icons.
class IconTile : public QWidget {
    Q_OBJECT

public:
    IconTile(QSize size, const Shape& shape, const Tint& fill, QWidget* parent = nullptr);

    void setSymbol(const QString& name, qreal pointSize, const Tint& tint, int weight = 0);
    // The symbol coloured with a gradient from `top` to `bottom` instead of one tint.
    void setSymbolGradient(const Tint& top, const Tint& bottom);
    void setText(const QString& text, const QFont& font, const Tint& tint);
    void setFill(const Tint& fill);
    void setGradientFill(const Tint& start, const Tint& end, QPointF from = {0, 0}, QPointF to = {1, 1});
    // An outline inside the shape (none at width 0).
    void setStroke(const Tint& stroke, qreal width);
    // A spinning activity indicator of `diameter` points in the middle of the tile, in place of
    // the symbol or text, while `shows` is true.
    void setShowsActivity(bool shows, qreal diameter = 20);
    bool showsActivity() const;

    QString symbolName() const { return m_symbol; }
    QString text() const { return m_text; }
    // The colour the text is written in: the content tint's text shade on the fill.
    QColor textColor() const;
    QSize sizeHint() const override { return m_size; }
    QSize minimumSizeHint() const override { return m_size; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QSize m_size;
    Shape m_shape;
    Paint m_fill;
    std::optional<Paint> m_symbolPaint;
    QString m_symbol;
    qreal m_symbolSize = 14;
    int m_symbolWeight = 0;
    QString m_text;
    QFont m_font;
    Tint m_contentTint = Tint(Role::primary);
    Tint m_stroke = Tint(Role::clear);
    qreal m_strokeWidth = 0;
    ActivityIndicator* m_activity = nullptr;
};

} // namespace qf::ui
