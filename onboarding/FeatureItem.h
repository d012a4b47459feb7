#pragma once

#include "RoundedCard.h"

namespace qf {

// One row of the introduction: a tinted icon tile, a title and a two-line description on a
// card.
class FeatureItem : public ui::RoundedCard {
    Q_OBJECT

public:
    FeatureItem(const QString& icon, const ui::Tint& iconColor, const QString& title, const QString& description,
                QWidget* parent = nullptr);

    QString icon() const { return m_icon; }
    QString title() const { return m_title; }
    QString description() const { return m_description; }

private:
    QString m_icon;
    QString m_title;
    QString m_description;
};

} // namespace qf
