#pragma once

#include <QJsonObject>
#include <QStringList>

/// The description of the microcontroller called `name`, in upper or lower case, in the first of `folders` that has
/// one; empty when none has.
[[nodiscard]] QJsonObject readDescription(const QString& name, const QStringList& folders);
