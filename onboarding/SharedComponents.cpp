#include "SharedComponents.h"

#include "Expander.h"
#include "Label.h"
#include "Layout.h"
#include "Symbol.h"

#include <QClipboard>
#include <QEvent>
#include <QGuiApplication>
#include <QTimer>

namespace qf {

namespace {

ui::Button::Style buttonStyle(CopyButton::CopyButtonStyle style)
{
    return style == CopyButton::CopyButtonStyle::bordered ? ui::Button::Style::bordered : ui::Button::Style::borderless;
}

} // namespace

qreal CopyButton::symbolSize(CopyButtonStyle style)
{
    // Caption-sized for the regular and bordered styles, a step smaller for the small one.
    return style == CopyButtonStyle::small ? 9.0 : 11.0;
}

CopyButton::CopyButton(const QString& text, CopyButtonStyle style, std::function<void()> onCopy, QWidget* parent)
    : ui::Button(QString(), buttonStyle(style), Size::regular, parent),
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
        setContentTint(ui::Tint(ui::Role::secondary));
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

CopiedToast::CopiedToast(QWidget* parent) : ui::RoundedCard(parent)
{
    using namespace ui;
    setObjectName(QStringLiteral("copiedToast"));
    setShape(Shape::pill());
    setFill(Tint(Role::controlBackground));
    setShadow(ShadowStyle{Tint(Role::black, 0.15), 10, {0, 4}});
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);

    auto* row = hstack(this, 8, QMargins(16, 10, 16, 10));
    auto* check = new SymbolView(QStringLiteral("checkmark.circle.fill"), 13, Tint(Role::green));
    auto* text = new Label(tr("Copied to clipboard"), Theme::font(13, QFont::Medium));
    text->setObjectName(QStringLiteral("copiedToastText"));
    row->addWidget(check, 0, Qt::AlignVCenter);
    row->addWidget(text, 0, Qt::AlignVCenter);
    setAccessibleName(text->text());
}

CopiedToastPresenter::CopiedToastPresenter(QWidget* host, int bottomPadding)
    : QObject(host),
      m_host(host),
      m_bottomPadding(bottomPadding),
      m_toast(new CopiedToast(host)),
      m_presence(this, ui::motion::springDurationMs, ui::motion::spring(), [this](qreal shown) { apply(shown); })
{
    m_toast->hide();
    host->installEventFilter(this);
    m_hide.setSingleShot(true);
    m_hide.setInterval(visibleMs);
    connect(&m_hide, &QTimer::timeout, this, [this] {
        m_showing = false;
        m_presence.setTarget(0.0);
    });
}

void CopiedToastPresenter::present()
{
    if (m_showing)
        return;
    m_showing = true;
    place();
    m_toast->raise();
    m_presence.setTarget(1.0);
    m_hide.start();
}

void CopiedToastPresenter::apply(qreal shown)
{
    // It rises from below the bottom edge as it fades in, and sinks back as it fades out.
    const int travel = m_bottomPadding + m_toast->sizeHint().height();
    ui::motion::applyLook(m_toast, ui::motion::Look{0.0, {0, qreal(travel)}, 1.0}, shown);
    m_toast->setVisible(shown > 0.0 || m_presence.target() > 0.0);
}

void CopiedToastPresenter::place()
{
    const QSize size = m_toast->sizeHint();
    m_toast->setGeometry(
        QRect(QPoint((m_host->width() - size.width()) / 2, m_host->height() - m_bottomPadding - size.height()), size));
}

bool CopiedToastPresenter::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_host && event->type() == QEvent::Resize)
        place();
    return QObject::eventFilter(watched, event);
}

namespace {

// The header keeps this much room around its content for the focus ring; the card's padding
// gives it back, so everything sits 16 points from the card's edges.
constexpr int kRingRoom = 4;

} // namespace

DisclosureCard::DisclosureCard(const QString& symbol, const ui::Tint& symbolTint, const QString& title, QWidget* parent)
    : RoundedCard(parent)
{
    using namespace ui;
    setCornerRadius(12);
    auto* column = vstack(this, 0, QMargins(16 - kRingRoom, 16 - kRingRoom, 16 - kRingRoom, 16));
    m_header = new RowButton;
    m_header->setPadding(QMargins(kRingRoom, kRingRoom, kRingRoom, kRingRoom));
    m_header->setAccessibleName(title);
    m_header->addWidget(new SymbolView(symbol, 13, symbolTint), 0, Qt::AlignVCenter);
    m_header->addWidget(new Label(title, Theme::headline()), 0, Qt::AlignVCenter);
    m_header->addStretch(1);
    m_chevron = new SymbolView(QStringLiteral("chevron.down"), 10, Tint(Role::secondary));
    m_header->addWidget(m_chevron, 0, Qt::AlignVCenter);
    connect(m_header, &QAbstractButton::clicked, this, &DisclosureCard::toggled);
    column->addWidget(m_header);
}

void DisclosureCard::setBody(QWidget* body, int spacing, int durationMs, const QEasingCurve& curve)
{
    using namespace ui;
    Q_ASSERT(!m_body);
    auto* room = new QWidget;
    vstack(room, 0, QMargins(kRingRoom, spacing - kRingRoom, kRingRoom, 0))->addWidget(body);
    m_body = new Expander(room, durationMs, curve);
    layout()->addWidget(m_body);
    setExpanded(false, false);
}

bool DisclosureCard::isExpanded() const { return m_body && m_body->isExpanded(); }

void DisclosureCard::setExpanded(bool expanded, bool animated)
{
    m_chevron->setName(expanded ? QStringLiteral("chevron.up") : QStringLiteral("chevron.down"));
    m_header->setAccessibleDescription(expanded ? tr("Expanded") : tr("Collapsed"));
    if (m_body)
        m_body->setExpanded(expanded, animated);
}

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
