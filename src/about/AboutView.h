#pragma once

#include <QWidget>

class QTextEdit;

/// The About tab: product and version, who made it, and what changed in which version.
/// Its colours are for a light ground, which it brings along where the desktop's is dark.
class AboutView : public QWidget
{
    Q_OBJECT

public:
    explicit AboutView(QWidget* parent = nullptr);

protected:
    void changeEvent(QEvent* event) override;

private:
    void keepReadable();

    QTextEdit* m_versions = nullptr;
};
