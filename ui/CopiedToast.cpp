#include "CopiedToast.h"

#include "Label.h"
#include "Layout.h"
#include "Symbol.h"

#include <QEvent>

namespace qf::ui {

namespace {

// Between the pill's edges and the check mark and text.
constexpr QMargins kToastPadding(16, 10, 16, 10);

} // namespace

CopiedToast::CopiedToast(QWidget* parent) : RoundedCard(parent)
{
    setObjectName(QStringLiteral("copiedToast"));
    setShape(Shape::pill());
    setFill(Tint(Role::controlBackground));
    setShadow(ShadowStyle{Tint(Role::black, 0.15), 10, {0, 4}});
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);

    auto* row = hstack(this, 8, kToastPadding);
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
      m_presence(this, motion::springDurationMs, motion::spring(), [this](qreal shown) { apply(shown); })
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
    motion::applyLook(m_toast, motion::Look{0.0, {0, qreal(travel)}, 1.0}, shown);
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

} // namespace qf::ui
