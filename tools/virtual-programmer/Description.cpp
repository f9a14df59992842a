#include "Description.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QRegularExpression>

QJsonObject readDescription(const QString& name, const QStringList& folders)
{
    for (const QString& folder : folders) {
        // Without regard to the letter case; a pattern in the name finds nothing.
        const QStringList files = QDir(folder).entryList({QStringLiteral("*.json")}, QDir::Files);
        const auto index = files.indexOf(QRegularExpression(
            QRegularExpression::anchoredPattern(QRegularExpression::escape(name) + QStringLiteral("\\.json")),
            QRegularExpression::CaseInsensitiveOption));
        QFile file(folder + QLatin1Char('/') + files.value(index));
        if (index >= 0 && file.open(QIODevice::ReadOnly))
            return QJsonDocument::fromJson(file.readAll()).object();
    }
    return {};
}
