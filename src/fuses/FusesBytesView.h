#pragma once

#include <QWidget>

class QVBoxLayout;

/// Holds the editors of the fuse bytes one below the other, at the top. Belongs to the scroll area of the Fuses tab.
class FusesBytesView : public QWidget
{
    Q_OBJECT

public:
    explicit FusesBytesView(QWidget* parent = nullptr);

    /// The layout that the editors go into.
    [[nodiscard]] QVBoxLayout* editors() const { return m_editors; }

signals:
    /// The editors came into sight.
    void shown();

protected:
    void showEvent(QShowEvent* event) override;

private:
    QVBoxLayout* m_editors;
};
