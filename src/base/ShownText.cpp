#include "base/ShownText.h"

namespace {

bool isHidden(const QString& text, int place)
{
    const QChar character = text.at(place);
    constexpr ushort nonJoiner = 0x200C;
    constexpr ushort joiner = 0x200D;
    constexpr ushort firstBeyondAscii = 0x80;
    switch (character.category()) {
    case QChar::Other_Format:
        return (character.unicode() != nonJoiner && character.unicode() != joiner) || place == 0
            || text.at(place - 1).unicode() < firstBeyondAscii;
    case QChar::Other_Control:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
        return true;
    default:
        return false;
    }
}

} // namespace

bool hasHidden(const QString& text)
{
    for (int i = 0; i < text.size(); ++i) {
        if (isHidden(text, i))
            return true;
    }
    return false;
}

QString shownText(const QString& text, int longest)
{
    const QString gap = QStringLiteral("...");
    const int half = (longest - static_cast<int>(gap.size())) / 2;
    const QString part = longest > 0 && text.size() > longest ? text.left(half) + gap + text.right(half) : text;
    constexpr int widest = 40; // characters of a word in a box
    constexpr ushort openBox = 0x2423; // the sign for a blank
    QString shown;
    int width = 0;
    for (int i = 0; i < part.size(); ++i) {
        const bool isBlank = part.at(i).category() == QChar::Separator_Space;
        const bool isWordEnd = part.at(i) == QLatin1Char(' ') && i > 0 && part.at(i - 1) != QLatin1Char(' ');
        if (longest > 0 && width == widest) {
            shown += QLatin1Char('\n');
            width = 0;
        }
        width = isWordEnd ? 0 : width + 1;
        if (isHidden(part, i))
            shown += QChar(QChar::ReplacementCharacter);
        else
            shown += isBlank && !isWordEnd ? QChar(openBox) : part.at(i);
    }
    return shown;
}
