#pragma once

#include "Theme.h"

#include <QWidget>

namespace qf {

// The titled icon header of a dashboard section.
class SectionHeader : public QWidget {
    Q_OBJECT

public:
    SectionHeader(const QString& title, const QString& icon, const ui::Tint& iconColor, QWidget* parent = nullptr);

    QString title() const { return m_title; }
    QString icon() const { return m_icon; }

private:
    QString m_title;
    QString m_icon;
};

} // namespace qf
