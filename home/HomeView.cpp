#include "HomeView.h"

#include "DashboardLoad.h"
#include "FirstTimeWelcomeCard.h"
#include "InstallationState.h"
#include "SectionHeader.h"
#include "Services.h"
#include "ToolCards.h"
#include "UninstallSheets.h"
#include "UpdateCheckScheduler.h"
#include "UpdateSheet.h"

#include "ActivityIndicator.h"
#include "Button.h"
#include "FocusOrder.h"
#include "ImageView.h"
#include "Label.h"
#include "Layout.h"
#include "Motion.h"
#include "RoundedCard.h"
#include "Surface.h"
#include "TerminalFallbackRow.h"
#include "WindowChrome.h"

#include <QCoro/QCoroTask>

#include <algorithm>
#include <utility>

namespace qf {

using namespace ui;

namespace {

// Under the dashboard's last section.
constexpr QMargins kContentPadding(0, 0, 0, 32);

// The hover key of a supporting item's card.
QString systemKey(const SystemTool& tool) { return QStringLiteral("sys-") + tool.key; }

// A section of the dashboard: its header above a stack of cards.
void addSection(QVBoxLayout* parent, SectionHeader* header, QLayout* cards)
{
    auto* section = vstack(16, sides(spacing::dashboardSide));
    section->addWidget(header);
    section->addLayout(cards);
    parent->addLayout(section);
}

} // namespace

HomeView::HomeView(InstallationState& state, Services& services, QWidget* parent)
    : QWidget(parent), m_state(state), m_services(services)
{
    setObjectName(QStringLiteral("homeView"));
    m_updateChecks = new UpdateCheckScheduler(
        [&checker = services.updateChecker](QList<CLITool> tools, bool force) {
            return checker.check(std::move(tools), force);
        },
        [this]() -> std::optional<QList<CLITool>> {
            if (m_isLoading)
                return std::nullopt;
            return m_installedTools;
        },
        this);
    connect(m_updateChecks, &UpdateCheckScheduler::changed, this, &HomeView::render);
    connect(m_updateChecks, &UpdateCheckScheduler::checked, this, &HomeView::updatesChecked);

    // Behind everything, the window's colour fading very slightly towards the bottom.
    auto* backdrop = new RoundedCard;
    backdrop->setObjectName(QStringLiteral("homeBackdrop"));
    backdrop->setCornerRadius(0);
    backdrop->setGradientFill(Tint(Role::windowBackground), Tint(Role::windowBackground, 0.95));
    vstack(this, 0)->addWidget(backdrop);
    m_scroll = new ScrollView;
    m_scroll->setObjectName(QStringLiteral("homeScroll"));
    m_scroll->setAccessibleName(tr("Your AI Coding Assistants"));
    vstack(backdrop, 0)->addWidget(m_scroll);
    // The content keeps to a centred column; the backdrop spans the window.
    auto* column = m_column = centredColumn(m_scroll->content(), this, 32, kContentPadding);

    // Header: the logo and name, and what this screen is.
    auto* header = vstack(8, sides(spacing::dashboardSide, 20));
    auto* brand = hstack(10);
    // Where the system has no application menu, "About Quillforge" sits at the header's end;
    // a space as wide on the other side keeps the name centred.
    Button* about = nullptr;
    if (!services.platform.hasApplicationMenu()) {
        about = new Button(QString(), Button::Style::borderless);
        about->setObjectName(QStringLiteral("aboutButton"));
        about->setAccessibleName(tr("About Quillforge"));
        about->setToolTip(tr("About Quillforge"));
        about->setLeadingSymbol(QStringLiteral("info.circle"), 16);
        about->setContentTint(Tint(Role::secondary));
        connect(about, &QAbstractButton::clicked, this, &HomeView::aboutRequested);
        brand->addSpacing(about->sizeHint().width());
    }
    brand->addStretch(1);
    auto* logo = new ImageView(QStringLiteral("QuillforgeLogo"), 36);
    logo->setAccessibleName(tr("Quillforge"));
    brand->addWidget(logo, 0, Qt::AlignVCenter);
    auto* name = new Label(tr("Quillforge"), Theme::font(24, QFont::Bold, FontDesign::rounded));
    name->setObjectName(QStringLiteral("homeTitle"));
    brand->addWidget(name, 0, Qt::AlignVCenter);
    brand->addStretch(1);
    if (about)
        brand->addWidget(about, 0, Qt::AlignTop);
    header->addLayout(brand);
    auto* subtitle = new Label(tr("Your AI Coding Assistants"), Theme::font(13, QFont::Medium, FontDesign::rounded),
                               Tint(Role::secondary));
    subtitle->setObjectName(QStringLiteral("homeSubtitle"));
    header->addWidget(subtitle, 0, Qt::AlignHCenter);
    column->addLayout(header);

    // While loading: a spinner and what is going on.
    m_loadingRow = new QWidget;
    m_loadingRow->setObjectName(QStringLiteral("loadingRow"));
    auto* loading = vstack(m_loadingRow, 16, around(60));
    loading->addWidget(new ActivityIndicator(24, Tint(Role::accent)), 0, Qt::AlignHCenter);
    auto* checking = new Label(tr("Checking your setup..."), Theme::font(13, QFont::Medium), Tint(Role::tertiary));
    checking->setObjectName(QStringLiteral("loadingText"));
    loading->addWidget(checking, 0, Qt::AlignHCenter);
    column->addWidget(m_loadingRow);

    // The lists. Cards are children of the scroll content itself, held in place by plain
    // layouts, so that their shadows and hover growth are never cut off by a smaller box.
    auto* lists = vstack(32);
    m_welcome = new FirstTimeWelcomeCard(services.platform.developerToolsItem().name);
    auto* welcomeRow = hstack(0, sides(spacing::dashboardSide));
    welcomeRow->addWidget(m_welcome);
    lists->addLayout(welcomeRow);

    // What to do instead when an item's action could not run.
    m_fallbackRow = hstack(0, sides(spacing::dashboardSide));
    lists->addLayout(m_fallbackRow);

    // One card per supporting item of the catalogue; a load fills in what it finds.
    auto* systemCards = vstack(8);
    for (const SystemTool& tool : services.supportTools.catalogue()) {
        auto* card = new SystemToolCard(
            tool,
            [this](const SystemTool& item) {
                handleSystemToolAction(
                    item, m_services.platform, [this] { loadData(); },
                    [this](const ActionFallback& fallback) { showActionFallback(fallback); });
            },
            [this](const SystemTool& item) {
                m_systemToolToUninstall = item;
                renderSheets();
            });
        card->onHoverChanged = [this, key = systemKey(tool)](bool inside) { hoverChanged(key, inside); };
        systemCards->addWidget(card);
        m_systemCards << card;
    }
    m_sectionHeaders << new SectionHeader(tr("Development Environment"), QStringLiteral("wrench.and.screwdriver"),
                                          Tint(Role::orange));
    addSection(lists, m_sectionHeaders.last(), systemCards);

    auto* aiCards = vstack(10);
    for (CLITool tool : CLITool::allCases()) {
        auto* card = new AIToolCard(
            tool, [this, tool] { openTool(tool); }, [this, tool] { installTool(tool); },
            [this, tool] {
                m_toolToUninstall = tool;
                renderSheets();
            },
            [this, tool] { updateTool(tool); });
        card->onHoverChanged = [this, key = tool.rawValue()](bool inside) { hoverChanged(key, inside); };
        aiCards->addWidget(card);
        m_aiCards << card;
    }
    // The column grows with the window until every tool's description shows whole beside its
    // actions, and no further: labels stay near what they label.
    int widest = 0;
    for (const AIToolCard* card : std::as_const(m_aiCards))
        widest = std::max(widest, card->widthShowingAll());
    const int needed = widest + 2 * spacing::dashboardSide + kContentPadding.left() + kContentPadding.right();
    // An even width centres without a half point to round either way.
    m_column->setMaximumWidth(std::max(ui::maximumContentWidth, (needed + 1) / 2 * 2));
    m_sectionHeaders << new SectionHeader(tr("AI Assistants"), QStringLiteral("sparkles"), Tint(Role::purple));
    // Beside the header, at its end: what a check for updates found, and the way to check now.
    auto* updateRow = hstack(10);
    m_updateStatusLabel = new Label(QString(), Theme::font(12), Tint(Role::secondary));
    m_updateStatusLabel->setObjectName(QStringLiteral("updateStatus"));
    m_updateStatusLabel->setWrapping(true);
    m_updateStatusLabel->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    updateRow->addWidget(m_updateStatusLabel, 1, Qt::AlignVCenter);
    m_checkUpdates = new Button(tr("Check for Updates"), Button::Style::plain);
    m_checkUpdates->setObjectName(QStringLiteral("checkForUpdatesButton"));
    m_checkUpdates->setTitleFont(Theme::font(12, QFont::Medium));
    m_checkUpdates->setContentTint(Tint(Role::accent));
    connect(m_checkUpdates, &QAbstractButton::clicked, this, [this] { checkForUpdates(true); });
    updateRow->addWidget(m_checkUpdates, 0, Qt::AlignVCenter);
    auto* aiHeader = hstack(12);
    aiHeader->addWidget(m_sectionHeaders.last(), 0, Qt::AlignVCenter);
    aiHeader->addLayout(updateRow, 1);
    auto* aiSection = vstack(16, sides(spacing::dashboardSide));
    aiSection->addLayout(aiHeader);
    aiSection->addLayout(aiCards);
    lists->addLayout(aiSection);
    column->addLayout(lists);
    column->addStretch(1);

    render();
}

void HomeView::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    if (m_appeared)
        return;
    m_appeared = true;
    loadData();
    // The dashboard holds the focus until its first action shows.
    focusUnlessTaken(this, mainControl());
}

bool HomeView::event(QEvent* event)
{
    // Its window went to the background (the event reaches the window's visible children).
    if (event->type() == QEvent::WindowDeactivate)
        m_wasInactive = true;
    return QWidget::event(event);
}

void HomeView::loadData()
{
    if (std::exchange(m_wasInactive, false))
        m_services.runner.invalidateEnvironment();
    m_isLoading = true;
    render();
    const int generation = ++m_loadGeneration;
    QCoro::connect(loadDashboard(m_services.detector, m_services.supportTools), this,
                   [this, generation](DashboardSnapshot snapshot) {
                       if (generation != m_loadGeneration)
                           return; // a newer load is on its way and will say what is there
                       m_installedTools = std::move(snapshot.installedTools);
                       m_systemTools = std::move(snapshot.systemTools);
                       m_isFirstTimeUser = m_installedTools.isEmpty();
                       m_isLoading = false;
                       render();
                       appear();
                       if (std::exchange(m_returnFocusAfterLoad, false))
                           returnFocus();
                       focusUnlessTaken(this, mainControl());
                       Q_EMIT loadFinished();
                       checkForUpdates(false);
                   });
}

void HomeView::checkForUpdates(bool force) { m_updateChecks->check(force); }

bool HomeView::isCheckingForUpdates() const { return m_updateChecks->isChecking(); }

const QList<ToolUpdateInfo>& HomeView::updates() const { return m_updateChecks->updates(); }

void HomeView::appear()
{
    // The lists come in with a short fade, each card on its own surface (a fading container
    // would have to draw the cards' shadows and motion a second time); the welcome card also
    // comes down a little.
    QList<QPointer<QWidget>> items{m_welcome};
    for (SectionHeader* header : std::as_const(m_sectionHeaders))
        items << header;
    for (SystemToolCard* card : std::as_const(m_systemCards))
        items << card;
    for (AIToolCard* card : std::as_const(m_aiCards))
        items << card;
    const QPointer<QWidget> welcome = m_welcome;
    motion::animate(this, listAppearMs, motion::easeOut(), [items, welcome](qreal progress) {
        for (const QPointer<QWidget>& item : items) {
            if (item)
                SurfaceEffect::of(item)->setOpacity(progress);
        }
        if (welcome)
            SurfaceEffect::of(welcome)->setOffset(QPointF(0, -16 * (1.0 - progress)));
    });
}

void HomeView::render()
{
    m_loadingRow->setVisible(m_isLoading);
    m_welcome->setVisible(!m_isLoading && m_isFirstTimeUser);
    const bool hasDeveloperTools = std::any_of(
        m_systemTools.cbegin(), m_systemTools.cend(),
        [](const SystemTool& tool) { return tool.id == SystemToolID::developerTools && tool.isInstalled; });
    m_welcome->setMachine(hasDeveloperTools, m_installedTools);
    for (SectionHeader* header : std::as_const(m_sectionHeaders))
        header->setVisible(!m_isLoading);
    for (AIToolCard* card : std::as_const(m_aiCards))
        card->setVisible(!m_isLoading);

    for (SystemToolCard* card : std::as_const(m_systemCards)) {
        const auto found = std::find_if(m_systemTools.cbegin(), m_systemTools.cend(),
                                        [card](const SystemTool& tool) { return tool.key == card->tool().key; });
        card->setVisible(!m_isLoading && found != m_systemTools.cend());
        if (found != m_systemTools.cend())
            card->setTool(*found);
        card->setHovered(m_hoveredKey == systemKey(card->tool()));
    }
    const QList<ToolUpdateInfo>& versions = m_updateChecks->updates();
    for (AIToolCard* card : std::as_const(m_aiCards)) {
        card->setInstalled(m_installedTools.contains(card->tool()));
        const auto info = std::find_if(versions.cbegin(), versions.cend(),
                                       [card](const ToolUpdateInfo& update) { return update.tool == card->tool(); });
        if (info == versions.cend())
            card->setVersions(std::nullopt, std::nullopt);
        else
            card->setVersions(info->installedVersion,
                              info->updateAvailable() ? info->latestVersion : std::optional<QString>());
        card->setHovered(m_hoveredKey == card->tool().rawValue());
    }
    m_checkUpdates->setVisible(!m_isLoading && !m_installedTools.isEmpty());
    // What the newest check someone asked for has to say: all up to date, or that it could not
    // ask.
    QString updateStatus;
    switch (m_updateChecks->status()) {
    case UpdateCheckScheduler::Status::none: break;
    case UpdateCheckScheduler::Status::checking: updateStatus = tr("Checking for updates..."); break;
    case UpdateCheckScheduler::Status::upToDate: updateStatus = tr("Everything is up to date."); break;
    case UpdateCheckScheduler::Status::couldNotCheck:
        updateStatus = tr("Could not check for updates. Check that you are online.");
        break;
    }
    m_updateStatusLabel->setVisible(!m_isLoading && !updateStatus.isEmpty());
    m_updateStatusLabel->setText(updateStatus);
}

void HomeView::hoverChanged(const QString& key, bool inside)
{
    if (inside)
        m_hoveredKey = key;
    else if (m_hoveredKey == key)
        m_hoveredKey.reset();
    render();
}

void HomeView::openTool(CLITool tool)
{
    m_state.setSelectedTool(tool);
    m_state.setIsOpeningExistingTool(true);
    m_state.setCurrentStep(InstallationStep::completion);
}

void HomeView::installTool(CLITool tool)
{
    m_state.setSelectedTool(tool);
    m_state.setCurrentStep(InstallationStep::accountSetup);
}

void HomeView::updateTool(CLITool tool)
{
    m_toolToUpdate = tool;
    renderSheets();
}

void HomeView::returnFocus()
{
    const auto canTake = [](const QWidget* control) {
        return control && control->isVisible() && control->isEnabled() && (control->focusPolicy() & Qt::TabFocus);
    };
    QWidget* target = m_sheetOpener;
    if (!canTake(target) && m_sheetCard) {
        target = nullptr;
        for (QWidget* control : controlsInReadingOrder(m_sheetCard)) {
            if (canTake(control)) {
                target = control;
                break;
            }
        }
    }
    if (canTake(target))
        target->setFocus(Qt::OtherFocusReason);
}

QWidget* HomeView::mainControl() const
{
    if (m_isLoading)
        return nullptr;
    for (QWidget* control : controlsInReadingOrder(m_scroll->content())) {
        if (qobject_cast<ActionButton*>(control) && control->isVisible() && control->isEnabled())
            return control;
    }
    return nullptr;
}

RemovalSheet* HomeView::sheet() const { return m_aiSheet ? m_aiSheet.data() : m_systemSheet.data(); }

UpdateSheet* HomeView::updateSheet() const { return m_updateSheet; }

void HomeView::renderSheets()
{
    // A sheet shows while its field holds an item; closing it, by any means, clears the field.
    const auto present = [this](QDialog* sheet, auto& field) {
        m_sheetOpener = window()->focusWidget();
        m_sheetCard = nullptr;
        for (QWidget* up = m_sheetOpener; up && !m_sheetCard; up = up->parentWidget())
            m_sheetCard = qobject_cast<DashboardCard*>(up);
        connect(sheet, &QDialog::finished, this, [this, sheet, &field] {
            field.reset();
            sheet->deleteLater();
            // "Done" has started a reload, which hides the cards for a moment.
            if (m_isLoading)
                m_returnFocusAfterLoad = true;
            else
                returnFocus();
        });
        ui::attachSheet(sheet, m_services.platform);
        sheet->open();
    };
    const Qt::WindowFlags flags = ui::sheetWindowFlags(m_services.platform);
    // "Done" reloads the dashboard, if it is still there.
    const auto reload = [self = QPointer<HomeView>(this)] {
        if (self)
            self->loadData();
    };
    if (m_toolToUninstall && !m_aiSheet) {
        m_aiSheet = new UninstallSheet(*m_toolToUninstall, m_services.remover, m_services.logs, reload, flags,
                                       window());
        present(m_aiSheet, m_toolToUninstall);
    }
    if (m_systemToolToUninstall && !m_systemSheet) {
        m_systemSheet = new SystemToolUninstallSheet(*m_systemToolToUninstall, m_services.supportTools, m_services.logs,
                                                     reload, flags, window());
        present(m_systemSheet, m_systemToolToUninstall);
    }
    if (m_toolToUpdate && !m_updateSheet) {
        const CLITool tool = *m_toolToUpdate;
        const QList<ToolUpdateInfo>& versions = m_updateChecks->updates();
        const auto info = std::find_if(versions.cbegin(), versions.cend(),
                                       [tool](const ToolUpdateInfo& update) { return update.tool == tool; });
        const std::optional<QString> latest = info == versions.cend() ? std::nullopt : info->latestVersion;
        if (!latest) {
            m_toolToUpdate.reset();
            return;
        }
        m_updateSheet = new UpdateSheet(tool, info->installedVersion, *latest, m_services.updater, m_services.logs,
                                        reload, flags, window());
        present(m_updateSheet, m_toolToUpdate);
    }
}

void HomeView::showActionFallback(const ActionFallback& fallback)
{
    delete m_fallback;
    m_fallback = new TerminalFallbackRow(fallback.title, fallback.hint, fallback.copyText, {});
    m_fallbackRow->addWidget(m_fallback);
    m_fallback->show();
    // Its copy button is read where it shows, before the cards below it.
    ui::orderTabChain(this);
}

} // namespace qf
