#include "avrdude/ExtraArguments.h"

#include <algorithm>

namespace {

// The options of avrdude up to 8.x, from its main.c and its manual.
const QLatin1String alone("?ADFNOVenqrstuvy");
const QLatin1String withValue("BCEPTUYbcilpx");
const QLatin1String harmless("?ADFNVenqrsuvyBEPYbcipx"); // left: -C, -T, -U, -l and -t name files, -O makes one

} // namespace

ExtraArguments::ExtraArguments(const QString& text)
{
    const QStringList arguments = text.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    for (auto argument = arguments.begin(); argument != arguments.end(); ++argument) {
        Group group {{*argument}, {}};
        const QString letters = argument->startsWith(QLatin1Char('-')) ? argument->mid(1) : QString();
        for (int i = 0; i < letters.size(); ++i) {
            group.options += {letters.at(i), QStringLiteral("")};
            if (alone.contains(letters.at(i)))
                continue;
            QString& value = group.options.last().value;
            value = letters.mid(i + 1);
            if (value.isEmpty() && withValue.contains(letters.at(i)) && std::next(argument) != arguments.end()) {
                value = *++argument;
                group.arguments += value;
            }
            break;
        }
        m_groups += group;
    }
}

QStringList ExtraArguments::list() const
{
    return where([](const Group&) { return true; });
}

bool ExtraArguments::has(char letter) const
{
    return !value(letter).isNull();
}

QString ExtraArguments::value(char letter) const
{
    QString found;
    for (const Group& group : m_groups) {
        for (const Option& option : group.options) {
            if (option.letter == QLatin1Char(letter))
                found = option.value;
        }
    }
    return found;
}

QStringList ExtraArguments::furtherThan(const ExtraArguments& own) const
{
    return where([&own](const Group& group) { return !own.covers(group); });
}

QStringList ExtraArguments::reachingFiles(const ExtraArguments& own) const
{
    return where([&own](const Group& group) { return !own.leavesFilesTo(group); });
}

QStringList ExtraArguments::reachingNoFiles(const ExtraArguments& own) const
{
    return where([&own](const Group& group) { return own.leavesFilesTo(group); });
}

QStringList ExtraArguments::where(const std::function<bool(const Group&)>& isWanted) const
{
    QStringList found;
    for (const Group& group : m_groups) {
        if (isWanted(group))
            found += group.arguments;
    }
    return found;
}

bool ExtraArguments::covers(const Group& group) const
{
    return group.options.isEmpty()
        ? list().contains(group.arguments.constFirst())
        : std::all_of(group.options.begin(), group.options.end(), [this](const Option& one) { return covers(one); });
}

bool ExtraArguments::covers(const Option& option) const
{
    return std::any_of(m_groups.begin(), m_groups.end(),
                       [&option](const Group& group) { return group.options.contains(option); });
}

bool ExtraArguments::leavesFilesTo(const Group& group) const
{
    return std::all_of(group.options.begin(), group.options.end(),
                       [this](const Option& one) { return harmless.contains(one.letter) || covers(one); });
}
