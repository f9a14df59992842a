#include "avrdude/ExtraArguments.h"

#include <algorithm>
#include <cstring>

namespace {

// The options of avrdude up to 8.x, from its main.c and its manual.
const QLatin1String alone("?ADFNOVenqrstuvy");
const QLatin1String withValue("BCEPTUYbcilpx");
const QLatin1String harmless("?ADFNVenqrsuvyBEPYbcipx"); // left: -C, -T, -U, -l and -t name files, -O makes one

bool isOneOf(const QLatin1String& letters, QChar letter)
{
    return letter.unicode() < 0x80 && std::strchr(letters.latin1(), letter.toLatin1()) && !letter.isNull();
}

} // namespace

ExtraArguments::ExtraArguments(const QString& text)
    : m_list(text.split(QLatin1Char(' '), Qt::SkipEmptyParts))
{
    for (int i = 0; i < m_list.size(); ++i) {
        const QString argument = m_list.at(i);
        if (!argument.startsWith(QLatin1Char('-')))
            continue; // avrdude passes over it
        for (int place = 1; place < argument.size(); ++place) {
            m_options += {argument.at(place), QStringLiteral(""), i};
            if (isOneOf(alone, argument.at(place)))
                continue;
            m_options.last().value = argument.mid(place + 1);
            if (m_options.last().value.isEmpty() && isOneOf(withValue, argument.at(place)) && i + 1 < m_list.size())
                m_options.last().value = m_list.at(++i);
            break;
        }
    }
}

int ExtraArguments::shared(const ExtraArguments& others) const
{
    const int count = static_cast<int>(others.m_list.size());
    return m_list.mid(0, count) == others.m_list ? count : 0;
}

bool ExtraArguments::has(char letter) const
{
    return !value(letter).isNull();
}

QString ExtraArguments::value(char letter) const
{
    const auto found = std::find_if(m_options.rbegin(), m_options.rend(),
                                    [letter](const Option& option) { return option.letter == QLatin1Char(letter); });
    return found == m_options.rend() ? QString() : found->value;
}

bool ExtraArguments::reachFiles(int first) const
{
    return std::any_of(m_options.begin(), m_options.end(), [first](const Option& option) {
        return option.argument >= first && !isOneOf(harmless, option.letter);
    });
}
