#pragma once

#include <QString>

/// Whether a person who sees @p text cannot know all that is in it: a character has no shape, breaks the line or turns
/// the order of letters around. Joiners are fine where scripts and pictures need them.
[[nodiscard]] bool hasHidden(const QString& text);

/// @p text from elsewhere as it is to be shown by itself: such characters are replaced, and all blanks but single ones
/// are marks that can be seen. Of more than @p longest characters the middle is left out, and words that are too long
/// for a box are broken; 0 leaves all as it is.
[[nodiscard]] QString shownText(const QString& text, int longest = 0);
