#pragma once

#include "Button.h"
#include "Theme.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

namespace qf {

namespace ui {
class ActivityIndicator;
class IconTile;
class Label;
class SymbolView;
} // namespace ui

// The pieces the dashboard's sheets (removal, update) are built from, so that they look alike.

// The header: a round state icon holding a spinner and a symbol (one shows at a time), the
// title and the description below it.
struct SheetHeader {
    QVBoxLayout* layout;
    ui::IconTile* icon;
    ui::ActivityIndicator* spinner;
    ui::SymbolView* symbol;
    ui::Label* title;
    ui::Label* description;
};
SheetHeader makeSheetHeader(const ui::Tint& iconFill, const QString& symbol, qreal symbolSize,
                            const ui::Tint& symbolTint);

// The orange error row ("errorRow") with its message label ("errorMessage"); the warning sign
// sits at `signAlignment` beside the message.
struct SheetErrorRow {
    QWidget* row;
    ui::Label* message;
};
SheetErrorRow makeSheetErrorRow(Qt::Alignment signAlignment);

// A row with `widget` inset by the sheets' side padding.
QHBoxLayout* sheetPadded(QWidget* widget);

// A large button of the sheets' button row.
ui::Button* sheetButton(const QString& title, ui::Button::Style style, const char* objectName);

} // namespace qf
