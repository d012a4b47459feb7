#pragma once

#include "CLITool.h"
#include "SystemTool.h"

#include "Badge.h"
#include "Button.h"
#include "Motion.h"
#include "RoundedCard.h"

#include <functional>
#include <optional>

namespace qf {

namespace ui {
class IconTile;
class ImageView;
class Label;
} // namespace ui

// A state or a version on a coloured pill: the colour's text on the colour at 12%.
class StatusBadge : public ui::Badge {
    Q_OBJECT

public:
    StatusBadge(const QString& text, const ui::Tint& color, QWidget* parent = nullptr);
};

// The compact icon-and-label button of the cards: tinted (the colour at 10%, 18% under the
// pointer) or, when primary, filled with the colour and white content. Without a title it
// shows its icon alone; its owner then names it for screen readers.
class ActionButton : public ui::Button {
    Q_OBJECT

public:
    ActionButton(const std::optional<QString>& title, const QString& icon, const ui::Tint& color, bool isCompact,
                 bool isPrimary, std::function<void()> action, QWidget* parent = nullptr);

    void setIcon(const QString& icon);

private:
    qreal m_iconSize;
};

// What the cards of the dashboard share: the rounded surface, hover reported to the dashboard
// (which decides which card counts as hovered and says so back with `setHovered`), and the
// remove button that shows while the card is hovered or the focus is within it, fading in and
// out. The card itself takes no focus; its buttons do, the remove button included whenever the
// card offers removal (unseen until the focus reaches it), so Tab and screen readers find it.
class DashboardCard : public ui::RoundedCard {
    Q_OBJECT

public:
    ~DashboardCard() override;

    // Called with true when the pointer enters the card and false when it leaves.
    std::function<void(bool)> onHoverChanged;

    bool isHovered() const { return m_hovered; }
    void setHovered(bool hovered);
    bool hasFocusWithin() const { return m_focusWithin; }
    // The remove button, when the card shows one now (null otherwise).
    ui::Button* removeButton() const;

protected:
    explicit DashboardCard(QWidget* parent = nullptr);

    // The small round remove button, named "Remove " + `itemName` for screen readers.
    ui::Button* makeRemoveButton(const QString& itemName, std::function<void()> onUninstall);
    // Whether the card offers removal at all (installed, and not the projects folder).
    virtual bool canRemove() const = 0;
    // Draws the card for a hover between 0 (resting) and 1 (hovered).
    virtual void renderHover(qreal progress) = 0;
    // Shows or fades the remove button, as hover, focus and `canRemove()` say.
    void renderRemoveButton();
    qreal hoverProgress() const { return m_hover.value(); }

    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    void focusMoved();

    bool m_hovered = false;
    bool m_focusWithin = false;
    bool m_removeShown = false;
    QMetaObject::Connection m_focusWatch;
    ui::Button* m_remove = nullptr;
    ui::motion::Transition m_hover;
    ui::motion::Transition m_removeOpacity;
};

// The card of one AI tool: logo, name, "Installed" with the installed version, description,
// and "Open" (with the remove button beside it) or "Install". An installed tool with a newer
// version published shows "Update available: <version>" and an "Update" button before "Open".
class AIToolCard : public DashboardCard {
    Q_OBJECT

public:
    AIToolCard(CLITool tool, std::function<void()> onOpen, std::function<void()> onInstall,
               std::function<void()> onUninstall, std::function<void()> onUpdate, QWidget* parent = nullptr);

    CLITool tool() const { return m_tool; }
    bool isInstalled() const { return m_installed; }
    void setInstalled(bool installed);
    // The version the tool reports, and the newer one it may be updated to (nothing: none
    // known); both only shown while the tool is installed.
    void setVersions(const std::optional<QString>& installed, const std::optional<QString>& update);
    const std::optional<QString>& availableUpdate() const { return m_update; }
    // How wide the card must be for its description to show whole beside the most actions it
    // ever shows (update, open, remove), measured from the texts in their fonts.
    int widthShowingAll() const;

protected:
    bool canRemove() const override { return m_installed; }
    void renderHover(qreal progress) override;

private:
    void render();

    CLITool m_tool;
    bool m_installed = false;
    std::optional<QString> m_version;
    std::optional<QString> m_update;
    ui::ImageView* m_logo;
    StatusBadge* m_badge;
    StatusBadge* m_versionBadge;
    StatusBadge* m_updateBadge;
    ui::Label* m_description;
    ui::Button* m_remove;
    ActionButton* m_updateButton;
    ActionButton* m_open;
    ActionButton* m_install;
};

// The card of one supporting item: step number, name, "Optional", version, description, and
// the item's action ("Create" or "Open" for the projects folder, "Install" for missing
// developer tools) with the remove button beside it. Both actions are called with the item
// as the card shows it now.
class SystemToolCard : public DashboardCard {
    Q_OBJECT

public:
    using Action = std::function<void(const SystemTool&)>;

    SystemToolCard(const SystemTool& tool, Action onAction, Action onUninstall, QWidget* parent = nullptr);

    const SystemTool& tool() const { return m_tool; }
    void setTool(const SystemTool& tool);
    // The action button, when the item has one now (null otherwise).
    ActionButton* actionButton() const { return m_action->isHidden() ? nullptr : m_action; }

protected:
    bool canRemove() const override;
    void renderHover(qreal progress) override;

private:
    void render();

    SystemTool m_tool;
    ui::IconTile* m_step;
    ui::Label* m_name;
    ui::Badge* m_optional;
    StatusBadge* m_version;
    // A missing item says so in words, not by colour alone, and what happens to it next.
    StatusBadge* m_missing;
    ui::Label* m_description;
    ui::Label* m_nextStep;
    ActionButton* m_action;
};

} // namespace qf
