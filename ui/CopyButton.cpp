#include "CopyButton.h"

#include "Theme.h"

#include <QClipboard>
#include <QGuiApplication>

namespace qf::ui {

namespace {

Button::Style buttonStyle(CopyButton::CopyButtonStyle style)
{
    return style == CopyButton::CopyButtonStyle::bordered ? Button::Style::bordered : Button::Style::borderless;
}

} // namespace

qreal CopyButton::symbolSize(CopyButtonStyle style)
{
    // The size of the caption text style, or of caption 2 for the small one.
    return (style == CopyButtonStyle::small ? Theme::caption2() : Theme::caption()).pixelSize();
}

CopyButton::CopyButton(const QString& text, CopyButtonStyle style, std::function<void()> onCopy, QWidget* parent)
    : Button(QString(), buttonStyle(style), Size::regular, parent),
      m_text(text),
      m_copyStyle(style),
      m_onCopy(std::move(onCopy))
{
    setObjectName(QStringLiteral("copyButton"));
    setAccessibleName(tr("Copy"));
    setAccessibleDescription(text);
    setToolTip(tr("Copy"));
    setLeadingSymbol(QStringLiteral("doc.on.clipboard"), symbolSize(style));
    if (style == CopyButtonStyle::bordered)
        setContentPadding(8, 4);
    else
        setContentTint(Tint(Role::secondary));
    connect(this, &QAbstractButton::clicked, this, &CopyButton::copy);
}

void CopyButton::copy()
{
    QClipboard* clipboard = QGuiApplication::clipboard();
    clipboard->clear();
    clipboard->setText(m_text);
    if (m_onCopy)
        m_onCopy();
}

Button* CopyButton::makeCopyLogButton()
{
    auto* button = new Button(tr("Copy Log"), Button::Style::plain);
    button->setObjectName(QStringLiteral("copyLogButton"));
    button->setTitleFont(Theme::caption());
    button->setLeadingSymbol(QStringLiteral("doc.on.clipboard"), 10);
    button->setSpacing(4);
    button->setToolTip(tr("Copy the whole log"));
    return button;
}

} // namespace qf::ui
