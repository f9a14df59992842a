#include "mcu/description/SignatureIndex.h"

#include "base/JsonFile.h"
#include "mcu/description/BytesModel.h"

#include <QJsonObject>

SignatureIndex::Mcu SignatureIndex::find(const QString& signature)
{
    if (!m_isBuilt)
        build();
    return m_mcus.value(signature);
}

void SignatureIndex::build()
{
    m_isBuilt = true;
    const auto files = jsonFiles(BytesModel::folder());
    for (const QFileInfo& info : files) {
        const QJsonObject description = JsonFile::read(info.filePath()).document.object();
        const QString signature = description.value(QLatin1String("signature")).toString();
        const Mcu mcu {
            description.value(QLatin1String("mcu")).toString(),
            description.value(QLatin1String("id")).toString(),
        };
        if (!signature.isEmpty() && !mcu.name.isEmpty() && !mcu.id.isEmpty())
            m_mcus.insert(signature, mcu);
    }
}

QStringList SignatureIndex::namesOf(const QString& signature)
{
    QStringList names;
    const auto files = jsonFiles(BytesModel::folder());
    for (const QFileInfo& info : files) {
        const QJsonObject description = JsonFile::read(info.filePath()).document.object();
        if (description.value(QLatin1String("signature")).toString() == signature)
            names += info.baseName();
    }
    names.sort();
    return names;
}
