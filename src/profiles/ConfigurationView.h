#pragma once

#include <QWidget>

class QLineEdit;
class QPushButton;

/// Name and description of a profile, and the buttons that add and remove one. Owned by the Profiles tab.
class ConfigurationView : public QWidget
{
    Q_OBJECT

public:
    explicit ConfigurationView(QWidget* parent = nullptr);

    [[nodiscard]] QLineEdit* name() const { return m_name; }
    [[nodiscard]] QLineEdit* description() const { return m_description; }
    [[nodiscard]] QPushButton* addButton() const { return m_add; }
    [[nodiscard]] QPushButton* removeButton() const { return m_remove; }

private:
    QLineEdit* m_name;
    QLineEdit* m_description;
    QPushButton* m_add;
    QPushButton* m_remove;
};
