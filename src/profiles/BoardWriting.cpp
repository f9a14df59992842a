#include "profiles/BoardWriting.h"

#include "base/JsonFile.h"
#include "profiles/ProfilesPresenter.h"

#include <QCoreApplication>

namespace {

QString say(const char* sentence)
{
    return QCoreApplication::translate("BoardWriting", sentence);
}

} // namespace

QString BoardWriting::begin()
{
    if (!production.boardLog.isEmpty()) {
        record = std::make_unique<BoardLog>();
        if (!record->open(production.boardLog))
            return say(QT_TRANSLATE_NOOP("BoardWriting", "The record of the boards cannot be written: %1"))
                .arg(fullPath(production.boardLog));
    }
    if (production.serial) {
        // In the work folder: avrdude takes such a name on every system.
        numberFile = std::make_unique<QTemporaryFile>(QStringLiteral("number-XXXXXX.hex"));
        const QByteArray content = production.serial->intelHex();
        const bool isWritten =
            numberFile->open() && numberFile->write(content) == content.size() && numberFile->flush();
        numberFile->close();
        const QString file = ProfilesPresenter::profileFile(profile);
        if (!isWritten || !production.serial->take(file))
            return say(QT_TRANSLATE_NOOP("BoardWriting", "The next number cannot be saved in the profile: %1"))
                .arg(fullPath(file));
    }
    isOpen = true;
    time.start();
    return {};
}

QStringList BoardWriting::end(bool isGood, const QString& message)
{
    isOpen = false;
    line.milliseconds = time.elapsed();
    numberFile.reset();
    QStringList remarks;
    if (production.serial && isGood)
        line.serialNumber = QString::number(production.serial->next);
    else if (production.serial && !production.serial->giveBack(ProfilesPresenter::profileFile(profile)))
        remarks +=
            say(QT_TRANSLATE_NOOP("BoardWriting", "The number %1 will be left out.")).arg(production.serial->next);
    line.profile = profile;
    for (const auto& [area, name] :
         {std::pair(Area::Flash, "FLASH"), {Area::Eeprom, "EEPROM"}, {Area::Fuses, "FUSES"}}) {
        if (sent.contains(area))
            line.areas += QLatin1String(name);
        if (area != Area::Fuses)
            line.files += sent.value(area, {QString(), QString()});
    }
    line.verdict = isGood ? QStringLiteral("good") : QStringLiteral("failed");
    line.message = message;
    isRecorded = !record || record->append(line);
    record.reset();
    if (!isRecorded)
        remarks += missingLine();
    return remarks;
}

QString BoardWriting::missingLine() const
{
    return say(QT_TRANSLATE_NOOP("BoardWriting", "The line of this board is missing in %1.")).arg(production.boardLog);
}
