#pragma once

#include "Theme.h"

#include <QPixmap>
#include <QStringList>
#include <QWidget>

namespace qf::ui {

enum class SymbolWeight { regular, medium, semibold, bold };

// Icons by their SF Symbols name, drawn from one bundled open icon set. A symbol at point size
// S fills a square of about 1.2 S, like a symbol set in an S-point font; it is tinted at draw
// time and rendered at the screen's pixel density.
namespace Symbol {

bool exists(const QString& name);
QStringList names();

// Logical size of the square a symbol occupies at `pointSize`.
int boxSize(qreal pointSize);

// The tinted symbol, sized `boxSize(pointSize)` logical pixels, sharp at `devicePixelRatio`.
// A name that is not known gives a null pixmap.
QPixmap pixmap(const QString& name, qreal pointSize, const QColor& color, qreal devicePixelRatio,
               SymbolWeight weight = SymbolWeight::regular);

} // namespace Symbol

// A symbol as a widget.
class SymbolView : public QWidget {
    Q_OBJECT

public:
    explicit SymbolView(const QString& name, qreal pointSize, Tint tint = Tint(Role::primary),
                        SymbolWeight weight = SymbolWeight::regular, QWidget* parent = nullptr);

    QString name() const { return m_name; }
    qreal pointSize() const { return m_pointSize; }
    const Tint& tint() const { return m_tint; }

    void setName(const QString& name);
    void setTint(const Tint& tint);
    void setPointSize(qreal pointSize);
    void setWeight(SymbolWeight weight);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString m_name;
    qreal m_pointSize;
    Tint m_tint;
    SymbolWeight m_weight;
};

} // namespace qf::ui
