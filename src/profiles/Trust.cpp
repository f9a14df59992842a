#include "profiles/Trust.h"

#include "app/record/SettingsRecord.h"
#include "avrdude/ExtraArguments.h"
#include "base/Box.h"
#include "base/ShownText.h"
#include "settings/SettingsModel.h"

#include <QAbstractButton>
#include <QCoreApplication>
#include <QVector>

#include <utility>

namespace {

struct Fact {
    const char* label;
    QString value;
};

QString say(const char* sentence)
{
    return QCoreApplication::translate("Trust", sentence);
}

/// Asks with two sentences and what they are about. A language file may come from a stranger, too: so the facts stand
/// apart from all translations, and what a translation says is also there in English.
bool isAccepted(QWidget* parent, const char* what, const QVector<Fact>& facts, const char* question)
{
    constexpr int longestShown = 160; // characters
    QStringList below;
    for (const Fact& fact : facts)
        below += say(fact.label) + QLatin1String(" \"") + shownText(fact.value, longestShown) + QLatin1Char('"');
    below += QString();
    below += say(question);
    const QString english = QLatin1String(what) + QLatin1Char(' ') + QLatin1String(question);
    if (say(what) + QLatin1Char(' ') + say(question) != english)
        below += {QString(), english};

    Box box(QMessageBox::Question, QStringLiteral("Profiles"), say(what), below.join(QLatin1Char('\n')),
            QMessageBox::Yes | QMessageBox::No, parent);
    for (const auto& [button, name] : {std::pair(QMessageBox::Yes, "Yes"), {QMessageBox::No, "No"}}) {
        QAbstractButton* widget = box.button(button);
        if (widget->text().remove(QLatin1Char('&')) != QLatin1String(name))
            widget->setText(QLatin1String(name) + QLatin1String(" / ") + widget->text());
    }
    box.setDefaultButton(QMessageBox::No);
    return box.exec() == QMessageBox::Yes;
}

} // namespace

void Trust::settle(QWidget* parent, SettingsRecord& profile, const SettingsRecord& present)
{
    if (profile.avrdude != present.avrdude && profile.avrdude != SettingsRecord().avrdude
        && !isAccepted(
            parent, QT_TRANSLATE_NOOP("Trust", "The profile wants another program to be run."),
            {{QT_TRANSLATE_NOOP("Trust", "In the profile:"), profile.avrdude},
             {QT_TRANSLATE_NOOP("Trust", "In use:"), present.avrdude}},
            QT_TRANSLATE_NOOP(
                "Trust",
                "A program can do whatever you can. Do you want the one of the profile to be run from now on?")))
        profile.avrdude = present.avrdude;
    if (profile.arguments == present.arguments)
        return;
    const ExtraArguments arguments(profile.arguments);
    const ExtraArguments own(SettingsModel::programmerEntry(profile.programmer.name).arguments);
    const QString reaching = arguments.reachingFiles(own).join(QLatin1Char(' '));
    if (!reaching.isEmpty()
        && !isAccepted(
            parent, QT_TRANSLATE_NOOP("Trust", "The profile has arguments with which avrdude may read or write files."),
            {{QT_TRANSLATE_NOOP("Trust", "In the profile:"), reaching}},
            QT_TRANSLATE_NOOP("Trust", "Do you want to use them?")))
        profile.arguments = arguments.reachingNoFiles(own).join(QLatin1Char(' '));
}
