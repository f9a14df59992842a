#pragma once

#include <QWidget>

#include <memory>

class QCheckBox;
class QComboBox;
class QPushButton;

/// The list of profiles and the button that writes the ticked areas. Owned by the Profiles tab.
class ProgrammingView : public QWidget
{
    Q_OBJECT

public:
    explicit ProgrammingView(QWidget* parent = nullptr);
    ~ProgrammingView() override;

    [[nodiscard]] QComboBox* profiles() const { return m_profiles; }
    [[nodiscard]] QPushButton* writeButton() const { return m_write; }

private:
    QComboBox* m_profiles;
    QPushButton* m_write;
    std::unique_ptr<QCheckBox> m_externalButton; ///< deliberately on no panel and without effect
};
