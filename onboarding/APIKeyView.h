#pragma once

#include "FlowScreen.h"

#include <optional>

namespace qf {

class InstallationState;
class Platform;
class APIKeyStore;
class Platform;
class APIKeyStore;

namespace ui {
class Label;
class TextField;
} // namespace ui

// Stores the chosen tool's API key in the user's shell profile: where to get a key (the maker's
// console), a field to paste it into (masked unless the eye button shows it) and "Save &
// Continue", or "Skip for Now". Both lead on to the completion screen. A save that fails
// stays here with its reason under the field; editing the key clears it. A save the user
// should know more about (a profile line that computes the key was kept) shows that under
// the field, and "Continue" leads on.
class APIKeyView : public FlowScreen {
    Q_OBJECT

public:
    APIKeyView(InstallationState& state, APIKeyStore& keys, Platform& platform, const QString& profilePath,
               QWidget* parent = nullptr);

    bool isSaving() const { return m_isSaving; }
    bool showKey() const { return m_showKey; }
    ui::TextField* keyField() const { return m_field; }

protected:
    // The key field, where a visit starts: ready for the paste.
    QWidget* mainControl() const override;

private:
    void buildContent(CLITool tool, Platform& platform, const QString& profile, QVBoxLayout* column);
    void save();
    void render();

    InstallationState& m_state;
    APIKeyStore& m_keys;
    bool m_isSaving = false;
    bool m_showKey = false;
    std::optional<QString> m_saveError;
    std::optional<QString> m_savedNotice;

    ui::TextField* m_field = nullptr;
    ui::Button* m_eye = nullptr;
    QWidget* m_errorRow = nullptr;
    ui::Label* m_errorText = nullptr;
    QWidget* m_noticeRow = nullptr;
    ui::Label* m_noticeText = nullptr;
    ui::Label* m_caption = nullptr;
    ui::Button* m_skip;
    ui::Button* m_save;
};

} // namespace qf
