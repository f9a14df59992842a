#pragma once

#include <QString>

/// The text for a message box or tooltip that shows @p text as it stands, whatever was typed into it: "<b>" in a name
/// is four characters, and no markup.
[[nodiscard]] QString boxText(const QString& text);
