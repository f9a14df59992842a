#include "fuses/SettingsMenu.h"

#include <QCoreApplication>

namespace {

/// What a menu shows as @p text: an ampersand is one.
QString plain(QString text)
{
    return text.replace(QLatin1Char('&'), QLatin1String("&&"));
}

} // namespace

SettingsMenu::SettingsMenu(const QVector<FuseMeanings::Setting>& settings, QWidget* parent)
    : QMenu(parent)
{
    connect(this, &QMenu::aboutToHide, this, &QObject::deleteLater);
    constexpr int most = 16; // that are taken in at a glance
    QHash<QString, QMenu*> groups;
    for (const FuseMeanings::Setting& setting : settings) {
        QMenu* menu = this;
        QString text = setting.meaning;
        if (settings.size() > most && text.contains(QLatin1Char(';'))) {
            const QString group = text.section(QLatin1Char(';'), 0, 0);
            if (!groups.contains(group))
                groups.insert(group, addMenu(plain(group)));
            menu = groups.value(group);
            text = text.section(QLatin1Char(';'), 1).trimmed();
        }
        if (setting.isFactory)
            text +=
                QLatin1String(" (") + QCoreApplication::translate("FuseMeanings", "Factory setting") + QLatin1Char(')');
        QAction* action = menu->addAction(plain(text) + QLatin1Char('\t') + setting.digits);
        action->setCheckable(true);
        action->setChecked(setting.isPresent);
        if (setting.isPresent && menu != this) {
            menu->menuAction()->setCheckable(true);
            menu->menuAction()->setChecked(true);
        }
        connect(action, &QAction::triggered, this, [this, value = setting.value] { emit chosen(value); });
    }
}
