#pragma once

#include "CLITool.h"
#include "Layout.h"
#include "SystemToolAction.h"
#include "ToolUpdateInfo.h"

#include <QList>
#include <QPointer>
#include <QVBoxLayout>
#include <QWidget>

#include <optional>

namespace qf {

class AIToolCard;
class DashboardCard;
class FirstTimeWelcomeCard;
class InstallationState;
class RemovalSheet;
class SectionHeader;
class Services;
class SystemToolCard;
class UpdateCheckScheduler;
class UpdateSheet;

namespace ui {
class Button;
class Label;
class ScrollView;
} // namespace ui

// The dashboard of returning users: which AI tools and supporting items this machine has,
// with one click to open, install, create or remove each. It loads when it first appears,
// again after a removal or an update is done and after the projects folder was created. Once
// loaded, it asks in the background whether the installed AI tools have newer versions (at
// most once a day, unless "Check for Updates" is pressed) and offers each update on its card.
class HomeView : public QWidget {
    Q_OBJECT

public:
    HomeView(InstallationState& state, Services& services, QWidget* parent = nullptr);

    // Looks at the machine afresh; the lists give way to "Checking your setup..." meanwhile.
    // A load started while another runs wins: the older one's results are dropped.
    void loadData();

    bool isLoading() const { return m_isLoading; }
    // The most the content column spans: wide enough for every tool's description whole.
    int contentWidth() const { return m_column->maximumWidth(); }
    bool isFirstTimeUser() const { return m_isFirstTimeUser; }
    const QList<CLITool>& installedTools() const { return m_installedTools; }
    const QList<SystemTool>& systemTools() const { return m_systemTools; }
    const std::optional<QString>& hoveredKey() const { return m_hoveredKey; }
    // The open removal sheet, if any.
    RemovalSheet* sheet() const;
    // The open update sheet, if any.
    UpdateSheet* updateSheet() const;

    // Asks whether the installed AI tools have newer versions; `force` asks the registry even
    // when it was asked today, and says so when nothing newer is found. Forced while a check
    // runs, it asks again once that check has ended.
    void checkForUpdates(bool force);
    bool isCheckingForUpdates() const;
    const QList<ToolUpdateInfo>& updates() const;

    static constexpr int listAppearMs = 300;

Q_SIGNALS:
    // The newest load's results are on screen.
    void loadFinished();
    // The newest check for updates is on screen.
    void updatesChecked();
    // "About Quillforge" was pressed (on systems whose application menu does not hold it).
    void aboutRequested();

protected:
    void showEvent(QShowEvent* event) override;
    bool event(QEvent* event) override;

private:
    // Shows, above the items, what to do when an item's action could not run.
    void showActionFallback(const ActionFallback& fallback);

    void render();
    void appear();
    void renderSheets();
    void hoverChanged(const QString& key, bool inside);
    void openTool(CLITool tool);
    void installTool(CLITool tool);
    void updateTool(CLITool tool);
    // The focus goes back to what opened a sheet once it closed (after the reload "Done" asks
    // for): to that control, or to its card's first control when the removal took it away.
    void returnFocus();

    // The first thing a visit offers: the first action of the lists.
    QWidget* mainControl() const;

    InstallationState& m_state;
    Services& m_services;

    QList<CLITool> m_installedTools;
    QList<SystemTool> m_systemTools;
    bool m_isLoading = true;
    bool m_isFirstTimeUser = false;
    std::optional<CLITool> m_toolToUninstall;
    std::optional<CLITool> m_toolToUpdate;
    UpdateCheckScheduler* m_updateChecks;
    std::optional<SystemTool> m_systemToolToUninstall;
    std::optional<QString> m_hoveredKey;
    bool m_appeared = false;
    // The window was in the background since the last load: the user may have changed a
    // start-up file meanwhile.
    bool m_wasInactive = false;
    int m_loadGeneration = 0;

    ui::ScrollView* m_scroll;
    ui::CentredColumn* m_column;
    QWidget* m_loadingRow;
    FirstTimeWelcomeCard* m_welcome;
    QList<SystemToolCard*> m_systemCards;
    QList<AIToolCard*> m_aiCards;
    QList<SectionHeader*> m_sectionHeaders;
    QPointer<RemovalSheet> m_aiSheet;
    QPointer<RemovalSheet> m_systemSheet;
    QPointer<UpdateSheet> m_updateSheet;
    ui::Button* m_checkUpdates;
    ui::Label* m_updateStatusLabel;
    QHBoxLayout* m_fallbackRow = nullptr;
    QPointer<QWidget> m_fallback;
    QPointer<QWidget> m_sheetOpener;
    QPointer<DashboardCard> m_sheetCard;
    bool m_returnFocusAfterLoad = false;
};

} // namespace qf
