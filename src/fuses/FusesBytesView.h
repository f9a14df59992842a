#pragma once

#include <QLabel>

class QVBoxLayout;

/// Holds the editors of the fuse bytes one below the other, at the top, or says why there are none. Belongs to the
/// scroll area of the Fuses tab.
class FusesBytesView : public QWidget
{
    Q_OBJECT

public:
    explicit FusesBytesView(QWidget* parent = nullptr);

    /// The layout that the editors go into.
    [[nodiscard]] QVBoxLayout* editors() const { return m_editors; }

    /// Shows @p text in place of editors; an empty one hides it.
    void setReason(const QString& text);

signals:
    /// The editors came into sight.
    void shown();

protected:
    void showEvent(QShowEvent* event) override;

private:
    QLabel* m_reason;
    QVBoxLayout* m_editors;
};
