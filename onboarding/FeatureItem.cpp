#include "FeatureItem.h"

#include "IconTile.h"
#include "Label.h"
#include "Layout.h"
#include "Symbol.h"

namespace qf {

FeatureItem::FeatureItem(const QString& icon, const ui::Tint& iconColor, const QString& title,
                         const QString& description, QWidget* parent)
    : ui::RoundedCard(parent), m_icon(icon), m_title(title), m_description(description)
{
    using namespace ui;
    setObjectName(QStringLiteral("featureItem"));
    setAccessibleName(title);
    setAccessibleDescription(description);
    setCornerRadius(14);
    setFill(Tint(Role::controlBackground));
    setShadow(ShadowStyle{Tint(Role::black, 0.05), 8, {0, 4}});

    auto* row = hstack(this, 16, around(spacing::cardPadding));
    auto* tile = new IconTile(QSize(48, 48), Shape::rounded(12), iconColor.withOpacity(0.12));
    tile->setObjectName(QStringLiteral("featureIcon"));
    tile->setSymbol(icon, 20, iconColor, int(SymbolWeight::semibold));
    row->addWidget(tile, 0, Qt::AlignVCenter);

    // Centred by stretches rather than by alignment: an aligned layout keeps its one-line
    // size hint and would cut a description that wraps onto a second line.
    auto* column = vstack(4);
    column->addStretch(1);
    auto* titleLabel = new Label(title, Theme::font(15, QFont::DemiBold));
    titleLabel->setObjectName(QStringLiteral("featureTitle"));
    titleLabel->setWrapping(true);
    auto* descriptionLabel = new Label(description, Theme::font(13), Tint(Role::secondary));
    descriptionLabel->setObjectName(QStringLiteral("featureDescription"));
    descriptionLabel->setWrapping(true, 2);
    column->addWidget(titleLabel);
    column->addWidget(descriptionLabel);
    column->addStretch(1);
    row->addLayout(column, 1);
}

} // namespace qf
