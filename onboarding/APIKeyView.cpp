#include "APIKeyView.h"

#include "APIKeyStore.h"
#include "InstallationState.h"
#include "Platform.h"

#include "IconTile.h"
#include "Label.h"
#include "Layout.h"
#include "RoundedCard.h"
#include "Symbol.h"
#include "TextField.h"

#include <QCoro/QCoroTask>
#include <QDir>
#include <QTimer>

namespace qf {

using namespace ui;

namespace {

// A card of the screen: a rounded panel on the control background with its content inside.
QVBoxLayout* card(QVBoxLayout* column, const QString& objectName)
{
    auto* panel = roundedCard(objectName, 12);
    column->addWidget(panel);
    return vstack(panel, 12, around(spacing::cardPadding));
}

} // namespace

APIKeyView::APIKeyView(InstallationState& state, APIKeyStore& keys, Platform& platform, const QString& profilePath,
                       QWidget* parent)
    : FlowScreen(QStringLiteral("apiKeyView"), tr("Set Up API Key"), parent), m_state(state), m_keys(keys)
{
    QVBoxLayout* column = makeColumn(20, 32);
    if (const std::optional<CLITool> tool = m_state.selectedTool())
        buildContent(*tool, platform, profilePath, column);
    column->addStretch(1);

    m_skip = new Button(tr("Skip for Now"), Button::Style::bordered, Button::Size::large);
    m_skip->setObjectName(QStringLiteral("skipButton"));
    connect(m_skip, &QAbstractButton::clicked, this, [this] { m_state.goToNextStep(); });
    bottomBar()->addWidget(m_skip);
    bottomBar()->addStretch(1);
    m_save = flow::mainButton(tr("Save & Continue"), QStringLiteral("saveButton"));
    connect(m_save, &QAbstractButton::clicked, this, [this] {
        if (m_savedNotice)
            m_state.goToNextStep();
        else
            save();
    });
    bottomBar()->addWidget(m_save);
    setDefaultButton(m_save);
    render();
}

void APIKeyView::buildContent(CLITool tool, Platform& platform, const QString& profile, QVBoxLayout* column)
{
    const QColor brand = tool.brandColor();

    auto* header = vstack(12, sides(spacing::screenSide));
    auto* badge = new IconTile(QSize(56, 56), Shape::rounded(14), Tint(brand, 0.15));
    badge->setSymbol(QStringLiteral("key.fill"), 24, Tint(brand));
    header->addWidget(badge, 0, Qt::AlignHCenter);
    auto* title = flow::centredText(tr("Set Up API Key"), Theme::font(22, QFont::Bold));
    title->setObjectName(QStringLiteral("apiKeyTitle"));
    header->addWidget(title);
    header->addWidget(flow::centredText(tr("Get your API key to start using %1").arg(tool.displayName()), Theme::body(),
                                        Tint(Role::secondary)));
    column->addLayout(header);

    auto* cards = vstack(16, sides(spacing::screenSide));

    // Step 1: where the key comes from.
    QVBoxLayout* first = card(cards, QStringLiteral("getKeyCard"));
    first->addWidget(new Label(tr("Step 1: Get your API key"), Theme::headline()));
    auto* explanation = new Label(tr("Click the button below to open %1's console where you can create or copy your "
                                     "API key.")
                                      .arg(tool.provider()),
                                  Theme::callout());
    explanation->setWrapping(true);
    first->addWidget(explanation);
    auto* console = new Button(tr("Open %1 Console").arg(tool.provider()), Button::Style::bordered);
    console->setObjectName(QStringLiteral("openConsoleButton"));
    console->setTrailingSymbol(QStringLiteral("arrow.up.right.square"), 12);
    connect(console, &QAbstractButton::clicked, this, [&platform, tool] { platform.openURL(tool.apiKeyURL()); });
    first->addWidget(console, 0, Qt::AlignLeft);

    // Step 2: the key itself.
    QVBoxLayout* second = card(cards, QStringLiteral("pasteKeyCard"));
    second->addWidget(new Label(tr("Step 2: Paste your API key"), Theme::headline()));
    auto* fieldRow = hstack(8);
    m_field = new TextField(tr("Paste your API key here"));
    m_field->setObjectName(QStringLiteral("apiKeyField"));
    m_field->setAccessibleName(tr("API key"));
    m_field->setSecure(true);
    connect(m_field, &QLineEdit::textChanged, this, [this] {
        m_saveError.reset();
        render();
    });
    fieldRow->addWidget(m_field, 1);
    m_eye = new Button(QString(), Button::Style::borderless);
    m_eye->setObjectName(QStringLiteral("showKeyButton"));
    m_eye->setContentTint(Tint(Role::secondary));
    connect(m_eye, &QAbstractButton::clicked, this, [this] {
        m_showKey = !m_showKey;
        render();
    });
    fieldRow->addWidget(m_eye, 0, Qt::AlignVCenter);
    second->addLayout(fieldRow);

    // Why the last save failed, until the key is edited.
    m_errorRow = new QWidget;
    m_errorRow->setObjectName(QStringLiteral("saveErrorRow"));
    auto* errorLine = hstack(m_errorRow, 6);
    errorLine->addWidget(new SymbolView(QStringLiteral("exclamationmark.triangle.fill"), 10, Tint(Role::red)), 0,
                         Qt::AlignTop);
    m_errorText = new Label(QString(), Theme::caption(), Tint(Role::red));
    m_errorText->setObjectName(QStringLiteral("saveError"));
    m_errorText->setWrapping(true);
    m_errorText->setTextInteractionFlags(Qt::TextSelectableByMouse);
    errorLine->addWidget(m_errorText, 1);
    second->addWidget(m_errorRow);

    // What the user should know about a save that worked.
    m_noticeRow = new QWidget;
    m_noticeRow->setObjectName(QStringLiteral("savedNoticeRow"));
    auto* noticeLine = hstack(m_noticeRow, 6);
    noticeLine->addWidget(new SymbolView(QStringLiteral("info.circle"), 10, Tint(Role::blue)), 0, Qt::AlignTop);
    m_noticeText = new Label(QString(), Theme::caption());
    m_noticeText->setObjectName(QStringLiteral("savedNotice"));
    m_noticeText->setWrapping(true);
    m_noticeText->setTextInteractionFlags(Qt::TextSelectableByMouse);
    noticeLine->addWidget(m_noticeText, 1);
    second->addWidget(m_noticeRow);

    auto* caption = m_caption = new Label(tr("This will be saved to your shell profile (%1) as %2")
                                              .arg(APIKeyStore::displayedPath(profile), tool.apiKeyEnvVar()),
                                          Theme::caption(), Tint(Role::secondary));
    caption->setObjectName(QStringLiteral("profileCaption"));
    caption->setWrapping(true);
    second->addWidget(caption);
    column->addLayout(cards);
}

QWidget* APIKeyView::mainControl() const
{
    if (m_field)
        return m_field;
    return defaultButton();
}

void APIKeyView::save()
{
    const std::optional<CLITool> tool = m_state.selectedTool();
    if (!tool || !m_field || m_isSaving)
        return;
    // Blanks and line breaks around a pasted key are no part of it; a field of nothing else
    // has nothing to save.
    const QString key = APIKeyStore::cleanedKey(m_field->text());
    if (key.isEmpty())
        return;
    m_isSaving = true;
    m_saveError.reset();
    render();
    QCoro::connect(m_keys.save(key, *tool), this, [this, key](const Result<QString>& saved) {
        m_isSaving = false;
        if (saved) {
            m_state.setApiKey(key);
            // Skipped meanwhile: the key is stored, and the user has gone on already.
            if (m_state.currentStep() != InstallationStep::apiKey)
                return;
            if (saved.value().isEmpty()) {
                m_state.goToNextStep();
                return;
            }
            // Read before going on.
            m_savedNotice = saved.value();
            render();
            return;
        }
        const QString reason = saved.error().errorDescription();
        m_state.setErrorMessage(reason);
        m_saveError = reason;
        render();
        // In a small window the reason may lie below what shows: bring it into view once laid out.
        QTimer::singleShot(0, this, [this] {
            if (m_errorRow->isVisible())
                scrollView()->ensureWidgetVisible(m_errorRow, 0, 24);
        });
    });
}

void APIKeyView::render()
{
    const bool hasField = m_field != nullptr;
    if (hasField) {
        m_field->setSecure(!m_showKey);
        m_field->setReadOnly(m_isSaving);
        m_eye->setLeadingSymbol(m_showKey ? QStringLiteral("eye.slash") : QStringLiteral("eye"), 13);
        m_eye->setAccessibleName(m_showKey ? tr("Hide key") : tr("Show key"));
        m_eye->setToolTip(m_eye->accessibleName());
        m_errorRow->setVisible(m_saveError.has_value());
        m_errorText->setText(m_saveError.value_or(QString()));
        m_noticeRow->setVisible(m_savedNotice.has_value());
        m_noticeText->setText(m_savedNotice.value_or(QString()));
        // Once saved, the notice says where; "will be saved" no longer holds.
        m_caption->setVisible(!m_savedNotice);
        m_field->setReadOnly(m_isSaving || m_savedNotice);
    }
    m_save->setText(m_savedNotice ? tr("Continue") : tr("Save & Continue"));
    m_save->setEnabled(hasField && !APIKeyStore::cleanedKey(m_field->text()).isEmpty() && !m_isSaving);
    m_save->setShowsActivity(m_isSaving);
    m_save->setAccessibleDescription(m_isSaving ? tr("Saving") : QString());
    // "Skip for Now" stays available while a save runs: the save then only stores the key.
    m_skip->setVisible(!m_savedNotice);
}

} // namespace qf
