#pragma once

#include <QString>

/// @p text from elsewhere as one line that shows what it is: what cannot be seen, or would turn the order of letters
/// around, becomes a replacement character. Of more than @p longest characters the middle is left out; 0 leaves all.
[[nodiscard]] QString shownText(const QString& text, int longest = 0);
