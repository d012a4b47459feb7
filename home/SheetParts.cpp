#include "SheetParts.h"

#include "ActivityIndicator.h"
#include "IconTile.h"
#include "Label.h"
#include "Layout.h"
#include "RoundedCard.h"
#include "Symbol.h"

namespace qf {

using namespace ui;

SheetHeader makeSheetHeader(const Tint& iconFill, const QString& symbol, qreal symbolSize, const Tint& symbolTint)
{
    SheetHeader header{};
    header.layout = vstack(14);
    header.icon = new IconTile(QSize(64, 64), Shape::circle(), iconFill);
    header.icon->setObjectName(QStringLiteral("sheetStateIcon"));
    auto* iconContent = vstack(header.icon, 0);
    header.spinner = new ActivityIndicator(22, Tint(Role::secondary));
    header.symbol = new SymbolView(symbol, symbolSize, symbolTint);
    header.symbol->setObjectName(QStringLiteral("sheetSymbol"));
    iconContent->addWidget(header.spinner, 0, Qt::AlignCenter);
    iconContent->addWidget(header.symbol, 0, Qt::AlignCenter);
    header.layout->addWidget(header.icon, 0, Qt::AlignHCenter);
    header.title = new Label(QString(), Theme::font(18, QFont::Bold));
    header.title->setObjectName(QStringLiteral("sheetTitle"));
    header.title->setAlignment(Qt::AlignHCenter);
    header.layout->addWidget(header.title, 0, Qt::AlignHCenter);
    header.description = new Label(QString(), Theme::font(13), Tint(Role::secondary));
    header.description->setObjectName(QStringLiteral("sheetDescription"));
    header.description->setAlignment(Qt::AlignHCenter);
    header.description->setWrapping(true);
    auto* descriptionRow = hstack(0, sides(16));
    descriptionRow->addWidget(header.description);
    header.layout->addLayout(descriptionRow);
    return header;
}

SheetErrorRow makeSheetErrorRow(Qt::Alignment signAlignment)
{
    auto* card = new RoundedCard;
    card->setObjectName(QStringLiteral("errorRow"));
    card->setCornerRadius(8);
    card->setFill(Tint(Role::orange, 0.10));
    auto* layout = hstack(card, 8, around(spacing::boxPadding));
    layout->addWidget(new SymbolView(QStringLiteral("exclamationmark.triangle.fill"), 13, Tint(Role::orange)), 0,
                      signAlignment);
    auto* message = new Label(QString(), Theme::font(12), Tint(Role::secondary));
    message->setObjectName(QStringLiteral("errorMessage"));
    message->setWrapping(true);
    message->setTextInteractionFlags(Qt::TextSelectableByMouse);
    layout->addWidget(message, 1, Qt::AlignVCenter);
    return {card, message};
}

QHBoxLayout* sheetPadded(QWidget* widget)
{
    auto* row = hstack(0, sides(spacing::sheetSide));
    row->addWidget(widget);
    return row;
}

Button* sheetButton(const QString& title, Button::Style style, const char* objectName)
{
    auto* button = new Button(title, style, Button::Size::large);
    button->setObjectName(QString::fromLatin1(objectName));
    button->setMinimumLabelWidth(72);
    return button;
}

} // namespace qf
