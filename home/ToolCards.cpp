#include "ToolCards.h"

#include "IconTile.h"
#include "ImageView.h"
#include "Label.h"
#include "Layout.h"
#include "Surface.h"

#include <QApplication>
#include <QBoxLayout>
#include <QEnterEvent>
#include <QFontMetricsF>
#include <QtMath>

namespace qf {

using namespace ui;

namespace {

constexpr int kHoverMs = 150;

} // namespace

// MARK: StatusBadge

StatusBadge::StatusBadge(const QString& text, const Tint& color, QWidget* parent)
    : Badge(text, color, color.withOpacity(color.opacity * 0.12), parent)
{
    setObjectName(QStringLiteral("statusBadge"));
}

// MARK: ActionButton

ActionButton::ActionButton(const std::optional<QString>& title, const QString& icon, const Tint& color, bool isCompact,
                           bool isPrimary, std::function<void()> action, QWidget* parent)
    : Button(title.value_or(QString()), isPrimary ? Style::prominent : Style::tinted, Size::regular, parent),
      m_iconSize(isCompact ? 11 : 12)
{
    setObjectName(QStringLiteral("actionButton"));
    setTint(color);
    setCornerRadius(8);
    setIcon(icon);
    setTitleFont(Theme::font(12, QFont::Medium));
    setSpacing(5);
    setContentPadding(isCompact ? 8 : 12, 7);
    connect(this, &QAbstractButton::clicked, this, [action = std::move(action)] {
        if (action)
            action();
    });
}

void ActionButton::setIcon(const QString& icon) { setLeadingSymbol(icon, m_iconSize, SymbolWeight::medium); }

// MARK: DashboardCard

DashboardCard::DashboardCard(QWidget* parent)
    : RoundedCard(parent),
      m_hover(this, kHoverMs, motion::easeInOut(), [this](qreal progress) { renderHover(progress); }),
      m_removeOpacity(this, kHoverMs, motion::easeInOut(), [this](qreal opacity) {
          if (m_remove)
              m_remove->setOpacity(opacity);
      })
{
    // The card is no stop of its own: Tab goes to its buttons.
    setAttribute(Qt::WA_Hover);
    m_focusWatch = connect(qApp, &QApplication::focusChanged, this, [this] { focusMoved(); });
}

DashboardCard::~DashboardCard()
{
    // Destroying the card's children moves the focus away from them; by then the card is no
    // longer a card, so it must not hear of it.
    disconnect(m_focusWatch);
}

void DashboardCard::setHovered(bool hovered)
{
    if (hovered == m_hovered)
        return;
    m_hovered = hovered;
    m_hover.setTarget(hovered ? 1.0 : 0.0);
    renderRemoveButton();
}

ui::Button* DashboardCard::removeButton() const { return m_remove && m_removeShown ? m_remove : nullptr; }

ui::Button* DashboardCard::makeRemoveButton(const QString& itemName, std::function<void()> onUninstall)
{
    auto* remove = new Button(QString(), Button::Style::plain);
    remove->setObjectName(QStringLiteral("removeButton"));
    remove->setLeadingSymbol(QStringLiteral("xmark.circle.fill"), 16);
    remove->setContentTint(Tint(Role::secondary));
    remove->setAccessibleName(tr("Remove %1").arg(itemName));
    remove->setToolTip(remove->accessibleName());
    // Its place is kept while it is hidden, so that nothing beside it moves as it comes and goes.
    QSizePolicy policy = remove->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    remove->setSizePolicy(policy);
    remove->hide();
    connect(remove, &QAbstractButton::clicked, this, [onUninstall = std::move(onUninstall)] {
        if (onUninstall)
            onUninstall();
    });
    m_remove = remove;
    return remove;
}

void DashboardCard::renderRemoveButton()
{
    if (!m_remove)
        return;
    // Wherever removal is offered the button is there for the keyboard and screen readers; it
    // shows (fades in) while the card is hovered or the focus is on it or beside it.
    const bool offered = canRemove();
    const bool show = offered && (m_hovered || m_focusWithin);
    if (offered && !m_remove->isVisible()) {
        m_remove->setOpacity(0.0);
        m_removeOpacity.setTarget(0.0, false);
    }
    m_remove->setVisible(offered);
    m_removeShown = show;
    m_removeOpacity.setTarget(show ? 1.0 : 0.0);
}

void DashboardCard::focusMoved()
{
    const QWidget* focus = QApplication::focusWidget();
    const bool within = focus && (focus == this || isAncestorOf(focus));
    if (within == m_focusWithin)
        return;
    m_focusWithin = within;
    renderRemoveButton();
}

void DashboardCard::enterEvent(QEnterEvent* event)
{
    RoundedCard::enterEvent(event);
    if (onHoverChanged)
        onHoverChanged(true);
    else
        setHovered(true);
}

void DashboardCard::leaveEvent(QEvent* event)
{
    RoundedCard::leaveEvent(event);
    if (onHoverChanged)
        onHoverChanged(false);
    else
        setHovered(false);
}

// MARK: AIToolCard

AIToolCard::AIToolCard(CLITool tool, std::function<void()> onOpen, std::function<void()> onInstall,
                       std::function<void()> onUninstall, std::function<void()> onUpdate, QWidget* parent)
    : DashboardCard(parent), m_tool(tool)
{
    setObjectName(QStringLiteral("aiToolCard.") + tool.rawValue());
    setCornerRadius(14);
    setFill(Tint(Role::controlBackground));
    setAccessibleName(tool.displayName());

    auto* row = hstack(this, 14, around(14));

    m_logo = new ImageView(tool.logoImageName(), 40);
    m_logo->setObjectName(QStringLiteral("toolLogo"));
    m_logo->setFixedImageSize(QSize(40, 40));
    m_logo->setCornerRadius(10);
    row->addWidget(m_logo, 0, Qt::AlignVCenter);

    auto* text = vstack(4);
    auto* title = hstack(8);
    auto* name = new Label(tool.displayName(), Theme::font(14, QFont::DemiBold));
    name->setObjectName(QStringLiteral("toolName"));
    name->setWrapping(true); // beside a long badge in a narrow window
    title->addWidget(name, 0, Qt::AlignVCenter);
    m_badge = new StatusBadge(tr("Installed"), Tint(Role::green));
    title->addWidget(m_badge, 0, Qt::AlignVCenter);
    m_versionBadge = new StatusBadge(QString(), Tint(Role::secondary));
    m_versionBadge->setObjectName(QStringLiteral("versionBadge"));
    title->addWidget(m_versionBadge, 0, Qt::AlignVCenter);
    title->addStretch(1);
    text->addLayout(title);
    auto* description = m_description = new Label(tool.toolDescription(), Theme::font(12), Tint(Role::secondary));
    description->setObjectName(QStringLiteral("toolDescription"));
    description->setWrapping(true, 1);
    text->addWidget(description);
    // A newer version is told on a line of its own, so that the description keeps its room.
    m_updateBadge = new StatusBadge(QString(), Tint(Role::accent));
    m_updateBadge->setObjectName(QStringLiteral("updateBadge"));
    text->addWidget(m_updateBadge, 0, Qt::AlignLeft);
    row->addLayout(text, 1);

    auto* buttons = hstack(8);
    m_updateButton = new ActionButton(tr("Update"), QStringLiteral("arrow.down.circle"), Tint(Role::accent), false,
                                      false, std::move(onUpdate));
    m_updateButton->setObjectName(QStringLiteral("updateButton"));
    m_updateButton->setAccessibleName(tr("Update %1").arg(tool.displayName()));
    m_open = new ActionButton(tr("Open"), QStringLiteral("terminal"), Tint(tool.brandColor()), false, false,
                              std::move(onOpen));
    m_open->setObjectName(QStringLiteral("openButton"));
    m_open->setAccessibleName(tr("Open %1").arg(tool.displayName()));
    ui::Button* remove = m_remove = makeRemoveButton(tool.displayName(), std::move(onUninstall));
    m_install = new ActionButton(tr("Install"), QStringLiteral("arrow.down.circle"), Tint(Role::accent), false, false,
                                 std::move(onInstall));
    m_install->setObjectName(QStringLiteral("installButton"));
    m_install->setAccessibleName(tr("Install %1").arg(tool.displayName()));
    // "Update" when there is one, "Open" or "Install", then the remove button's place: the
    // actions of every card line up at the end.
    buttons->addWidget(m_updateButton, 0, Qt::AlignVCenter);
    buttons->addWidget(m_open, 0, Qt::AlignVCenter);
    buttons->addWidget(m_install, 0, Qt::AlignVCenter);
    buttons->addWidget(remove, 0, Qt::AlignVCenter);
    row->addLayout(buttons);

    render();
}

void AIToolCard::setInstalled(bool installed)
{
    if (installed == m_installed)
        return;
    m_installed = installed;
    render();
}

void AIToolCard::setVersions(const std::optional<QString>& installed, const std::optional<QString>& update)
{
    if (installed == m_version && update == m_update)
        return;
    m_version = installed;
    m_update = update;
    render();
}

void AIToolCard::render()
{
    const bool hasVersion = m_installed && m_version && !m_version->isEmpty();
    const bool hasUpdate = m_installed && m_update.has_value();
    m_badge->setVisible(m_installed);
    m_versionBadge->setVisible(hasVersion);
    m_versionBadge->setText(m_version.value_or(QString()));
    m_updateBadge->setVisible(hasUpdate);
    m_updateBadge->setText(tr("Update available: %1").arg(m_update.value_or(QString())));
    m_updateButton->setVisible(hasUpdate);
    m_open->setVisible(m_installed);
    m_install->setVisible(!m_installed);
    QStringList state{m_installed ? tr("Installed") : tr("Not installed")};
    if (hasVersion)
        state << *m_version;
    if (hasUpdate)
        state << tr("Update available: %1").arg(*m_update);
    setAccessibleDescription(state.join(QStringLiteral(", ")));
    renderRemoveButton();
    renderHover(hoverProgress());
}

void AIToolCard::renderHover(qreal progress)
{
    const QColor brand = m_tool.brandColor();
    setShadow(
        mix(ShadowStyle{Tint(Role::black, 0.06), 6, {0, 2}}, ShadowStyle{Tint(brand, 0.15), 12, {0, 4}}, progress));
    if (m_installed)
        setStroke(Tint(brand, 0.25 + 0.25 * progress), 1.5);
    else
        setStroke(Tint(Role::clear), 0);
    setChildShadow(m_logo, ShadowStyle{Tint(brand, 0.3), 4 + 4 * progress, {0, 2}}, Shape::rounded(10));
}

int AIToolCard::widthShowingAll() const
{
    const auto* row = qobject_cast<const QBoxLayout*>(layout());
    const auto* buttons = row ? qobject_cast<const QBoxLayout*>(row->itemAt(row->count() - 1)->layout()) : nullptr;
    if (!row || !buttons)
        return 0;
    const QMargins margins = row->contentsMargins();
    const int text = qCeil(QFontMetricsF(m_description->font()).horizontalAdvance(m_description->text()));
    const int actions = m_updateButton->sizeHint().width() + m_open->sizeHint().width() + m_remove->sizeHint().width() +
                        2 * buttons->spacing();
    return margins.left() + m_logo->sizeHint().width() + row->spacing() + text + row->spacing() + actions +
           margins.right();
}

// MARK: SystemToolCard

SystemToolCard::SystemToolCard(const SystemTool& tool, Action onAction, Action onUninstall, QWidget* parent)
    : DashboardCard(parent), m_tool(tool)
{
    setObjectName(QStringLiteral("systemToolCard.") + tool.key);
    setCornerRadius(12);
    setFill(Tint(Role::controlBackground));

    auto* row = hstack(this, 12, around(12));
    m_step = new IconTile(QSize(28, 28), Shape::circle(), Tint(Role::orange, 0.15));
    m_step->setObjectName(QStringLiteral("stepNumber"));
    row->addWidget(m_step, 0, Qt::AlignVCenter);

    auto* text = vstack(3);
    auto* title = hstack(8);
    m_name = new Label(QString(), Theme::font(13, QFont::DemiBold));
    m_name->setObjectName(QStringLiteral("itemName"));
    title->addWidget(m_name, 0, Qt::AlignVCenter);
    m_optional = new Badge(tr("Optional"), Tint(Role::secondary), Tint(Role::secondary, 0.12));
    m_optional->setObjectName(QStringLiteral("optionalBadge"));
    m_optional->setFont(Theme::font(9, QFont::DemiBold));
    m_optional->setPadding(6, 2);
    title->addWidget(m_optional, 0, Qt::AlignVCenter);
    m_version = new StatusBadge(QString(), Tint(Role::green));
    m_version->setObjectName(QStringLiteral("versionBadge"));
    title->addWidget(m_version, 0, Qt::AlignVCenter);
    m_missing = new StatusBadge(tr("Not installed"), Tint(Role::orange));
    m_missing->setObjectName(QStringLiteral("missingBadge"));
    title->addWidget(m_missing, 0, Qt::AlignVCenter);
    title->addStretch(1);
    text->addLayout(title);
    m_description = new Label(QString(), Theme::font(11), Tint(Role::secondary));
    m_description->setObjectName(QStringLiteral("itemDescription"));
    m_description->setWrapping(true);
    text->addWidget(m_description);
    m_nextStep = new Label(tr("Installed for you with Gemini CLI or Codex"), Theme::font(11), Tint(Role::secondary));
    m_nextStep->setObjectName(QStringLiteral("itemNextStep"));
    m_nextStep->setWrapping(true);
    text->addWidget(m_nextStep);
    row->addLayout(text, 1);

    // The item's action (its title and icon follow the item), then the remove button.
    auto* buttons = hstack(8);
    m_action = new ActionButton(QString(), QString(), Tint(Role::accent), false, false,
                                [this, onAction = std::move(onAction)] {
                                    if (onAction)
                                        onAction(m_tool);
                                });
    m_action->setAccessibleName(tool.name); // named for what it acts on until it has an action
    buttons->addWidget(m_action, 0, Qt::AlignVCenter);
    buttons->addWidget(makeRemoveButton(tool.name,
                                        [this, onUninstall = std::move(onUninstall)] {
                                            if (onUninstall)
                                                onUninstall(m_tool);
                                        }),
                       0, Qt::AlignVCenter);
    row->addLayout(buttons);

    render();
}

void SystemToolCard::setTool(const SystemTool& tool)
{
    if (tool == m_tool)
        return;
    m_tool = tool;
    render();
}

bool SystemToolCard::canRemove() const
{
    // Node.js is offered for removal only as a copy Quillforge can remove; its sheet would have
    // nothing else to say.
    if (m_tool.id == SystemToolID::node && !m_tool.uninstallCommand)
        return false;
    return m_tool.isInstalled && m_tool.id != SystemToolID::developerFolder;
}

void SystemToolCard::render()
{
    const bool installed = m_tool.isInstalled;
    const Tint stepColor(installed ? Role::green : Role::orange);
    m_step->setVisible(m_tool.stepNumber.has_value());
    m_step->setFill(stepColor.withOpacity(0.15));
    m_step->setText(m_tool.stepNumber ? QString::number(*m_tool.stepNumber) : QString(),
                    Theme::font(13, QFont::Bold, FontDesign::rounded), stepColor);
    m_name->setText(m_tool.name);
    m_optional->setVisible(m_tool.isOptional);
    m_version->setVisible(installed);
    m_version->setText(m_tool.version.value_or(tr("Ready")));
    m_description->setText(m_tool.description);
    // Homebrew and Node.js come with the setup of a tool that needs them; the projects folder
    // and the developer tools have a button of their own.
    const bool comesWithSetup = !installed && (m_tool.id == SystemToolID::homebrew || m_tool.id == SystemToolID::node);
    m_missing->setVisible(!installed && m_tool.id != SystemToolID::developerFolder);
    m_nextStep->setVisible(comesWithSetup);

    QStringList state{installed ? tr("Installed") : tr("Not installed")};
    if (installed && m_tool.version && !m_tool.version->isEmpty())
        state << *m_tool.version;
    if (m_tool.isOptional)
        state << tr("Optional");
    if (comesWithSetup)
        state << m_nextStep->text();
    setAccessibleName(m_tool.name);
    setAccessibleDescription(state.join(QStringLiteral(", ")));

    // The item's own action: the projects folder always has one, missing developer tools too.
    const auto offer = [this](const QString& title, const char* icon) {
        m_action->setTitle(title);
        m_action->setIcon(QString::fromLatin1(icon));
        m_action->setAccessibleName(tr("%1 %2", "an action and the item it acts on").arg(title, m_tool.name));
        m_action->show();
    };
    if (m_tool.id == SystemToolID::developerFolder && installed)
        offer(tr("Open"), "folder");
    else if (m_tool.id == SystemToolID::developerFolder)
        offer(tr("Create"), "folder.badge.plus");
    else if (m_tool.id == SystemToolID::developerTools && !installed)
        offer(tr("Install"), "arrow.down.circle");
    else
        m_action->hide();
    renderRemoveButton();
    renderHover(hoverProgress());
}

void SystemToolCard::renderHover(qreal progress)
{
    setShadow(mix(ShadowStyle{Tint(Role::black, 0.04), 4, {0, 1}}, ShadowStyle{Tint(Role::orange, 0.10), 8, {0, 2}},
                  progress));
    if (m_tool.isInstalled)
        setStroke(Tint(Role::green, 0.15 + 0.15 * progress), 1);
    else
        setStroke(Tint(Role::clear), 0);
}

} // namespace qf
