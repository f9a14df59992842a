#pragma once

#include <QLabel>

/// A line of text that makes nothing wider. Of one that is longer than there is room a part is left out, and the
/// tooltip has all of it. Owned by the view that it stands in.
class ElidedLabel : public QLabel
{
    Q_OBJECT

public:
    /// @p mode tells which part is left out.
    ElidedLabel(Qt::TextElideMode mode, QWidget* parent);

    void showLine(const QString& line);

    [[nodiscard]] QSize sizeHint() const override; ///< of the whole line
    [[nodiscard]] QSize minimumSizeHint() const override; ///< without any width

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void fit();

    const Qt::TextElideMode m_mode;
    QString m_line;
};
