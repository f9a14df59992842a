#pragma once

#include <QGroupBox>

#include <initializer_list>

class QHBoxLayout;

/// A box around widgets in one row, which are read out to who cannot see them by its title. Owned, with them, by the
/// view that it stands in.
class RowBox : public QGroupBox
{
public:
    /// The box becomes the parent of @p widgets, which stand from left to right.
    RowBox(const QString& title, std::initializer_list<QWidget*> widgets, QWidget* parent);

    /// As narrow as title and row allow: the toolkit adds what nothing is drawn in, and counts "&&" as two letters.
    [[nodiscard]] QSize minimumSizeHint() const override;
    [[nodiscard]] QSize sizeHint() const override;

    /// The layout of the row.
    [[nodiscard]] QHBoxLayout* row() const { return m_row; }

private:
    QHBoxLayout* m_row;
};
