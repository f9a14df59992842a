#include "base/ShownText.h"

QString shownText(const QString& text, int longest)
{
    QString shown = text;
    for (QChar& character : shown) {
        switch (character.category()) {
        case QChar::Other_Control:
        case QChar::Other_Format:
        case QChar::Separator_Line:
        case QChar::Separator_Paragraph:
            character = QChar::ReplacementCharacter;
            break;
        default:
            break;
        }
    }
    const QString gap = QStringLiteral("...");
    const int half = (longest - static_cast<int>(gap.size())) / 2;
    return longest > 0 && shown.size() > longest ? shown.left(half) + gap + shown.right(half) : shown;
}
