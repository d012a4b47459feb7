#pragma once

#include "Motion.h"
#include "Symbol.h"
#include "Theme.h"

#include <QAbstractButton>

class QHBoxLayout;

namespace qf::ui {

class ActivityIndicator;

// The push button of the design, drawn the same on every platform:
//  - prominent: filled with the tint (the accent by default), white content;
//  - tinted: the tint at 10% behind content in the tint, 18% while the pointer is over it;
//  - bordered: a light raised surface with primary content;
//  - plain / borderless: content only, in the tint;
//  - link: accent-coloured content with a pointing-hand cursor.
// Content is an optional leading symbol, the title and an optional trailing symbol. A title is
// written in the text shade of its colour (`Theme::textColor`), and a prominent fill is dark
// enough for white text; a symbol alone keeps the bright colour. Whatever its content, a button
// is at least `minimumTarget` points wide and high, so that it is easy to hit.
class Button : public QAbstractButton {
    Q_OBJECT

public:
    enum class Style { prominent, tinted, bordered, plain, borderless, link };
    enum class Size { regular, large };

    static constexpr int minimumTarget = 24;

    Button(const QString& title, Style style, Size size = Size::regular, QWidget* parent = nullptr);

    Style style() const { return m_style; }
    Size controlSize() const { return m_size; }

    // The words on the button, which are also what screen readers say unless the button was
    // given a name of its own (an icon's "About Node.js").
    void setTitle(const QString& title);
    // Only through the title: the size and the spoken name follow it.
    void setText(const QString& title) { setTitle(title); }
    QString title() const;
    void setTitleFont(const QFont& font);
    void setLeadingSymbol(const QString& name, qreal pointSize, SymbolWeight weight = SymbolWeight::regular);
    void setTrailingSymbol(const QString& name, qreal pointSize, SymbolWeight weight = SymbolWeight::regular);
    QString leadingSymbol() const { return m_leading.name; }
    QString trailingSymbol() const { return m_trailing.name; }
    // Fill of a prominent button, content colour of the plain, borderless and link styles.
    void setTint(const Tint& tint);
    // Overrides the content colour of every style.
    void setContentTint(const Tint& tint);
    void setSpacing(int spacing);
    // The content area (symbols and title) is exactly this wide, or at least this wide.
    void setLabelWidth(int width);
    void setMinimumLabelWidth(int width);
    void setContentPadding(int horizontal, int vertical);
    // Corner radius of the filled styles (by default 8 for large buttons, 6 otherwise).
    void setCornerRadius(qreal radius);
    // A small spinning indicator in place of the content, the button keeping its size.
    void setShowsActivity(bool shows);
    bool showsActivity() const;
    // Draws the whole button at this opacity (for fading it in and out).
    void setOpacity(qreal opacity);
    qreal opacity() const { return m_opacity; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

    // The colours the content and the fill are drawn in now (the fill is clear for the plain,
    // borderless and link styles).
    QColor contentColor() const;
    QColor backgroundColor() const;

protected:
    void paintEvent(QPaintEvent* event) override;
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    struct SymbolPart {
        QString name;
        qreal pointSize = 0;
        SymbolWeight weight = SymbolWeight::regular;
    };

    int naturalContentWidth() const;
    int contentWidth() const;
    int controlHeight() const;
    int horizontalPadding() const;
    qreal cornerRadius() const;
    bool isFilled() const
    {
        return m_style == Style::prominent || m_style == Style::tinted || m_style == Style::bordered;
    }

    Style m_style;
    Size m_size;
    QFont m_font;
    SymbolPart m_leading;
    SymbolPart m_trailing;
    Tint m_tint = Tint(Role::accent);
    std::optional<Tint> m_contentTint;
    int m_spacing = 6;
    int m_labelWidth = -1;
    int m_minimumLabelWidth = 0;
    int m_hPadding = -1;
    int m_vPadding = -1;
    qreal m_cornerRadius = -1;
    qreal m_opacity = 1.0;
    ActivityIndicator* m_activity = nullptr;
    // The pointer's presence, eased in and out for the tinted style.
    motion::Transition m_hover;
};

} // namespace qf::ui

namespace qf::ui {

// A plain button whose content is a row of widgets (symbols, labels, space) laid out by the
// caller, for headers that open and close something: the whole row takes the click and the
// keyboard, the widgets in it only show. Like every button it is at least 24 points high.
class RowButton : public QAbstractButton {
    Q_OBJECT

public:
    explicit RowButton(QWidget* parent = nullptr);

    // Adds a widget to the row; it no longer takes the pointer itself.
    void addWidget(QWidget* widget, int stretch = 0, Qt::Alignment alignment = {});
    void addStretch(int stretch = 1);
    void setPadding(QMargins padding);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QHBoxLayout* m_row;
};

} // namespace qf::ui
