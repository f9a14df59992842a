#include "about/SocialLinksWidget.h"

#include "base/ProductInfo.h"

#include <QDesktopServices>
#include <QHBoxLayout>
#include <QIcon>
#include <QToolButton>
#include <QUrl>

SocialLinksWidget::SocialLinksWidget(QWidget* parent)
    : QWidget(parent)
{
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 5, 0);
    layout->setSpacing(0);
    layout->addStretch();
    const auto addButton = [this, layout](const QString& icon, const QString& toolTip,
                                          void (SocialLinksWidget::*onClicked)()) {
        auto* button = new QToolButton(this);
        button->setIcon(QIcon(icon));
        button->setIconSize(QSize(20, 20));
        button->setToolTip(toolTip);
        button->setAccessibleName(toolTip);
        button->setAutoRaise(true);
        button->setCursor(Qt::PointingHandCursor);
        connect(button, &QToolButton::clicked, this, onClicked);
        layout->addWidget(button);
    };
    addButton(QStringLiteral(":/icons/site.png"), QStringLiteral("Website"), &SocialLinksWidget::onWebsiteClicked);
    addButton(QStringLiteral(":/icons/telegram.png"), QStringLiteral("Telegram"),
              &SocialLinksWidget::onTelegramClicked);
    addButton(QStringLiteral(":/icons/youtube.png"), QStringLiteral("YouTube"), &SocialLinksWidget::onYoutubeClicked);
}

void SocialLinksWidget::onTelegramClicked()
{
    QDesktopServices::openUrl(QUrl(ProductInfo::telegram));
}

void SocialLinksWidget::onYoutubeClicked()
{
    QDesktopServices::openUrl(QUrl(ProductInfo::youtube));
}

void SocialLinksWidget::onWebsiteClicked()
{
    QDesktopServices::openUrl(QUrl(ProductInfo::website));
}
