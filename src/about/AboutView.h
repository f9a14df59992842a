#pragma once

#include <QWidget>

/// The About tab: product and version, who made it, and what changed in which version.
class AboutView : public QWidget
{
    Q_OBJECT

public:
    explicit AboutView(QWidget* parent = nullptr);
};
