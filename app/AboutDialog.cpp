#include "AboutDialog.h"

#include "CommandLine.h"
#include "Platform.h"
#include "QuillforgeVersion.h"

#include "Button.h"
#include "CopyButton.h"
#include "FocusRing.h"
#include "ImageView.h"
#include "Label.h"
#include "Layout.h"
#include "WindowChrome.h"

#include <QLayout>
#include <QUrl>

namespace qf {

using namespace ui;

namespace {

// Between the window's edges and its column.
constexpr QMargins kPadding(32, 28, 32, 24);

} // namespace

AboutDialog::AboutDialog(Platform& platform, QWidget* parent)
    : QDialog(parent, ui::sheetWindowFlags(platform)),
      m_details(QStringLiteral("%1, %2").arg(qf::versionDetails(), platform.checkOperatingSystem().details))
{
    setObjectName(QStringLiteral("aboutDialog"));
    setWindowModality(Qt::WindowModal);
    ui::attachSheet(this, platform);
    setWindowTitle(tr("About Quillforge"));
    setFixedWidth(380);
    ui::FocusRing::attach(this);

    auto* column = vstack(this, 6, kPadding);
    auto* logo = new ImageView(QStringLiteral("QuillforgeLogo"), 72);
    logo->setAccessibleName(tr("Quillforge"));
    column->addWidget(logo, 0, Qt::AlignHCenter);
    column->addSpacing(6);

    auto* name = new Label(tr("Quillforge"), Theme::font(20, QFont::Bold, FontDesign::rounded));
    name->setObjectName(QStringLiteral("aboutName"));
    column->addWidget(name, 0, Qt::AlignHCenter);
    auto* version = new Label(tr("Version %1").arg(QString::fromLatin1(release::version)), Theme::callout(),
                              Tint(Role::secondary));
    version->setObjectName(QStringLiteral("aboutVersion"));
    version->setTextInteractionFlags(Qt::TextSelectableByMouse);
    column->addWidget(version, 0, Qt::AlignHCenter);
    column->addSpacing(8);

    auto* summary = new Label(tr("Gets an AI coding assistant running on your computer, no terminal experience "
                                 "needed."),
                              Theme::body());
    summary->setWrapping(true);
    summary->setAlignment(Qt::AlignHCenter);
    column->addWidget(summary);

    auto* website = new Button(QStringLiteral("quillforge.app"), Button::Style::link);
    website->setObjectName(QStringLiteral("aboutWebsite"));
    website->setAccessibleName(tr("Open the Quillforge website"));
    // The platform outlives every window of the application.
    connect(website, &QAbstractButton::clicked, this,
            [&platform] { platform.openURL(QUrl(QString::fromLatin1(release::homepage))); });
    column->addWidget(website, 0, Qt::AlignHCenter);
    column->addSpacing(6);

    auto* credits = new Label(
        tr("Released under the MIT licence. Built with Qt %1, with icons from Phosphor (also MIT).")
            .arg(QString::fromLatin1(qVersion())),
        Theme::caption(), Tint(Role::secondary));
    credits->setObjectName(QStringLiteral("aboutCredits"));
    credits->setWrapping(true);
    credits->setAlignment(Qt::AlignHCenter);
    column->addWidget(credits);
    column->addSpacing(14);

    auto* buttons = hstack(10);
    auto* copy = new CopyButton(m_details, CopyButton::CopyButtonStyle::bordered);
    copy->setObjectName(QStringLiteral("aboutCopyDetails"));
    copy->setTitle(tr("Copy Version Details"));
    copy->setAccessibleName(tr("Copy Version Details"));
    buttons->addWidget(copy);
    buttons->addStretch(1);
    auto* close = new Button(tr("Close"), Button::Style::prominent);
    close->setObjectName(QStringLiteral("aboutClose"));
    connect(close, &QAbstractButton::clicked, this, &QDialog::accept);
    buttons->addWidget(close);
    column->addLayout(buttons);
    close->setFocus();
    // Fixed in both directions: nothing in it grows.
    const int height = layout()->hasHeightForWidth() ? layout()->heightForWidth(width()) : sizeHint().height();
    setFixedHeight(height);
}

} // namespace qf
