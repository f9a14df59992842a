#pragma once

#include <QWidget>

/// The buttons in the corner of the tab bar that open the project's pages in the system's browser. Belongs to the main
/// window.
class SocialLinksWidget : public QWidget
{
    Q_OBJECT

public:
    explicit SocialLinksWidget(QWidget* parent = nullptr);

public slots:
    // A page that cannot be opened is not told: nothing on the bench depends on it.
    void onTelegramClicked();
    void onYoutubeClicked();
    void onWebsiteClicked();
};
