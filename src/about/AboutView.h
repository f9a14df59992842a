#pragma once

#include <QWidget>

class QTextEdit;

/// The About tab: product and version, who made it, and what changed in which version.
/// Its colours are for a light ground, which it brings along where the desktop's is dark. Belongs to the main window.
class AboutView : public QWidget
{
    Q_OBJECT

public:
    /// @p guide is the path of the guide that was installed with the program: the label with the terms of use ends in a
    /// link to it. Where there is no such file, it has no link.
    explicit AboutView(QWidget* parent = nullptr, const QString& guide = {});

    /// None: it is smaller than any other tab, and to ask its labels would load their fonts before anybody looks.
    [[nodiscard]] QSize sizeHint() const override { return {}; }
    [[nodiscard]] QSize minimumSizeHint() const override { return {}; }

protected:
    void changeEvent(QEvent* event) override;

private:
    void keepReadable();

    QTextEdit* m_versions = nullptr;
};
