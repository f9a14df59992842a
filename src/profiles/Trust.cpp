#include "profiles/Trust.h"

#include "app/record/SettingsRecord.h"
#include "avrdude/ExtraArguments.h"
#include "base/Box.h"
#include "base/ShownText.h"
#include "settings/SettingsModel.h"

#include <QCoreApplication>

namespace {

constexpr int longestShown = 200; // characters

QString say(const char* sentence)
{
    return QCoreApplication::translate("Trust", sentence);
}

bool isAccepted(QWidget* parent, const char* what, const QStringList& facts, const char* question)
{
    return Box::ask(parent, QStringLiteral("Profiles"), say(what),
                    facts.join(QLatin1Char('\n')) + QLatin1String("\n\n") + say(question));
}

} // namespace

void Trust::settle(QWidget* parent, SettingsRecord& profile, const SettingsRecord& present)
{
    const auto fact = [](const char* text, const QString& value) {
        return say(text).arg(shownText(value, longestShown));
    };
    if (profile.avrdude != present.avrdude && profile.avrdude != SettingsRecord().avrdude
        && !isAccepted(
            parent, QT_TRANSLATE_NOOP("Trust", "The profile wants another program to be run."),
            {fact(QT_TRANSLATE_NOOP("Trust", "In the profile: %1"), profile.avrdude),
             fact(QT_TRANSLATE_NOOP("Trust", "In use: %1"), present.avrdude)},
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
            {fact(QT_TRANSLATE_NOOP("Trust", "In the profile: %1"), reaching)},
            QT_TRANSLATE_NOOP("Trust", "Do you want to use them?")))
        profile.arguments = arguments.reachingNoFiles(own).join(QLatin1Char(' '));
}
