#pragma once

#include "Theme.h"

#include <QFont>
#include <QWidget>

namespace qf::ui {

// A small capsule with a text on the text's colour at low opacity: status badges and pills. The
// text is written in the shade of its colour that reads on the capsule.
class Badge : public QWidget {
    Q_OBJECT

public:
    Badge(const QString& text, const Tint& textTint, const Tint& fill, QWidget* parent = nullptr);

    void setText(const QString& text);
    QString text() const { return m_text; }
    void setFont(const QFont& font);
    void setPadding(int horizontal, int vertical);
    // The colour the text is written in: the text tint's text shade on the fill.
    QColor textColor() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString m_text;
    Tint m_textTint;
    Tint m_fill;
    QFont m_font;
    int m_hPadding = 8;
    int m_vPadding = 3;
};

} // namespace qf::ui
