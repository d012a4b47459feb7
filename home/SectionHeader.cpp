#include "SectionHeader.h"

#include "IconTile.h"
#include "Label.h"
#include "Layout.h"
#include "Symbol.h"

namespace qf {

SectionHeader::SectionHeader(const QString& title, const QString& icon, const ui::Tint& iconColor, QWidget* parent)
    : QWidget(parent), m_title(title), m_icon(icon)
{
    using namespace ui;
    setObjectName(QStringLiteral("sectionHeader"));
    setAccessibleName(title);
    auto* row = hstack(this, 10);
    auto* tile = new IconTile(QSize(28, 28), Shape::rounded(6), iconColor.withOpacity(0.15));
    tile->setSymbol(icon, 14, iconColor, int(SymbolWeight::semibold));
    auto* label = new Label(title, Theme::font(15, QFont::DemiBold, FontDesign::rounded));
    label->setObjectName(QStringLiteral("sectionHeaderTitle"));
    row->addWidget(tile, 0, Qt::AlignVCenter);
    row->addWidget(label, 0, Qt::AlignVCenter);
    row->addStretch(1);
}

} // namespace qf
