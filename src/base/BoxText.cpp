#include "base/BoxText.h"

#include <QTextDocument>

QString boxText(const QString& text)
{
    return Qt::mightBeRichText(text) ? Qt::convertFromPlainText(text, Qt::WhiteSpacePre) : text;
}
