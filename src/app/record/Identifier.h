#pragma once

#include "base/JsonFile.h"

#include <QString>

#include <algorithm>

/// Whether avrdude could know a part or a memory by @p id: it has letters and digits of ASCII, "_", "-" and "." alone,
/// or nothing, at most 64, and is no name of a device. With anything else it may mean more than a name, to avrdude or
/// as part of the name of a file.
[[nodiscard]] inline bool isIdentifier(const QString& id)
{
    constexpr int longest = 64; // characters; avrdude 7.1 has room for 1023, and takes a longer one for a file
    return id.size() <= longest && !isDeviceName(id) && std::all_of(id.begin(), id.end(), [](QChar character) {
               return (character.unicode() < 0x80 && character.isLetterOrNumber())
                   || QLatin1String("_-.").contains(character);
           });
}
