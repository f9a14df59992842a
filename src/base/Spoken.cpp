#include "base/Spoken.h"

#include "base/ListComboBox.h"

#include <QAccessibleWidget>
#include <QMessageBox>

namespace {

QString sentences(QStringList texts)
{
    texts.removeAll({});
    return texts.join(QLatin1String(". "));
}

class ListInterface : public QAccessibleWidget
{
public:
    explicit ListInterface(ListComboBox& list)
        : QAccessibleWidget(&list, QAccessible::ComboBox)
        , m_list(list)
    {
    }

    [[nodiscard]] QString text(QAccessible::Text kind) const override
    {
        if (kind == QAccessible::Value)
            return m_list.currentText();
        if (kind == QAccessible::Description)
            return sentences(m_list.told() + QStringList {m_list.accessibleDescription()});
        return QAccessibleWidget::text(kind);
    }

    [[nodiscard]] QStringList actionNames() const override
    {
        return QStringList {showMenuAction()} + QAccessibleWidget::actionNames();
    }

    void doAction(const QString& name) override
    {
        if (name == showMenuAction())
            m_list.showPopup();
        else
            QAccessibleWidget::doAction(name);
    }

private:
    ListComboBox& m_list;
};

class BoxInterface : public QAccessibleWidget
{
public:
    explicit BoxInterface(QMessageBox& box)
        : QAccessibleWidget(&box, QAccessible::AlertMessage)
        , m_box(box)
    {
    }

    [[nodiscard]] QString text(QAccessible::Text kind) const override
    {
        if (kind == QAccessible::Description)
            return sentences({m_box.text(), m_box.informativeText()});
        return QAccessibleWidget::text(kind);
    }

private:
    QMessageBox& m_box;
};

QAccessibleInterface* makeInterface(const QString&, QObject* object)
{
    if (auto* list = qobject_cast<ListComboBox*>(object))
        return new ListInterface(*list);
    if (auto* box = qobject_cast<QMessageBox*>(object))
        return new BoxInterface(*box);
    return nullptr;
}

} // namespace

Spoken::Spoken()
{
    QAccessible::installFactory(makeInterface);
}
