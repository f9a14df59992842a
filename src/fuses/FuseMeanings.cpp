#include "fuses/FuseMeanings.h"

#include "app/record/SettingsRecord.h"
#include "base/JsonFile.h"
#include "mcu/description/BytesModel.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QStringList>

#include <algorithm>
#include <array>
#include <tuple>

namespace {

QJsonObject readMeanings(const QString& file)
{
    return JsonFile::read(BytesModel::folder() + QStringLiteral("/meanings/") + file).document.object();
}

bool isIn(quint32 bits, std::size_t number)
{
    return (bits >> number & 1U) != 0;
}

/// Those of @p bits that @p byte has.
quint32 existing(const FuseByte& byte, quint32 bits)
{
    bits &= 0xFF;
    for (std::size_t i = 0; i < byte.fuseBits.size(); ++i) {
        if (!byte.fuseBits[i].isUsed())
            bits &= ~(1U << i);
    }
    return bits;
}

/// The names of @p bits as datasheets write them: "SUT1..0 CKSEL3..0".
QString namesOf(const FuseByte& byte, quint32 bits)
{
    static const QRegularExpression number(QStringLiteral("\\d+$"));
    QStringList names;
    QString stem;
    for (std::size_t i = byte.fuseBits.size(); i-- > 0;) {
        if (!isIn(bits, i))
            continue;
        const QString name = byte.fuseBits[i].name;
        const QString digits = number.match(name).captured();
        if (!names.isEmpty() && !digits.isEmpty() && name.chopped(digits.size()) == stem)
            names.last() = names.last().section(QStringLiteral(".."), 0, 0) + QStringLiteral("..") + digits;
        else
            names.append(name);
        stem = name.chopped(digits.size());
    }
    return names.join(QLatin1Char(' '));
}

/// What @p value has in @p bits, digit by digit.
QString digitsOf(quint32 value, quint32 bits)
{
    QString digits;
    for (std::size_t i = std::tuple_size_v<decltype(FuseByte::fuseBits)>; i-- > 0;) {
        if (isIn(bits, i))
            digits += isIn(value, i) ? QLatin1Char('1') : QLatin1Char('0');
    }
    return digits;
}

/// The number that @p value has in @p bits, counted from their lowest.
quint32 numberIn(quint32 value, quint32 bits)
{
    for (value &= bits; bits != 0 && !isIn(bits, 0); bits >>= 1U)
        value >>= 1U;
    return value;
}

/// What a setting does to the programmer that was used so far, and how the chip comes back.
struct Warning {
    const char* settings; ///< pattern for the field's name, a colon and the symbol
    const char* text;
};

// Fields that begin with "safe" lock nobody out: PDI works without the reset pin, and a part that knows high-voltage
// programming only gets its clock from there.
constexpr std::array<Warning, 12> lockOuts = {{
    {"^rstdisbl:gpio",
     QT_TRANSLATE_NOOP(
         "FuseMeanings",
         "The reset pin becomes an ordinary pin: an ISP or TPI programmer will no longer be able to reach "
         "the chip.\nThe way back: a high-voltage programmer.")},
    {"^dwen:dw_enabled",
     QT_TRANSLATE_NOOP("FuseMeanings",
                       "The reset pin becomes the debugger's: an ISP programmer will no longer be able to reach the "
                       "chip.\nThe way back: a debugger with debugWIRE, or a high-voltage programmer.")},
    {"^spien:isp_disabled",
     QT_TRANSLATE_NOOP("FuseMeanings",
                       "An ISP programmer will no longer be able to reach the chip.\n"
                       "The way back: JTAG, if the chip has it, or a high-voltage programmer.")},
    {"^jtagen:jtag_disabled",
     QT_TRANSLATE_NOOP("FuseMeanings",
                       "A JTAG programmer will no longer be able to reach the chip.\n"
                       "The way back: ISP, PDI with an ATxmega, or a high-voltage programmer.")},
    {"^updi_rstpincfg:(gpio|rst)$",
     QT_TRANSLATE_NOOP("FuseMeanings",
                       "The UPDI pin gets another purpose: an ordinary UPDI programmer will no longer be able to reach "
                       "the chip.\nThe way back: a programmer with high-voltage UPDI.")},
    {"^updipincfg:gpio$",
     QT_TRANSLATE_NOOP("FuseMeanings",
                       "The UPDI pin gets another purpose: an ordinary UPDI programmer will no longer be able to reach "
                       "the chip.\nThe way back: a programmer with high-voltage UPDI for this family, which gives the "
                       "reset pin a little more than the supply. 12 V destroy it.")},
    {"^(sut_)?cksel:extlofxtal(?!res)",
     QT_TRANSLATE_NOOP(
         "FuseMeanings",
         "Without its crystal the chip will not answer, and with it only at a speed below 8 kHz (1 kHz with "
         "CKDIV8).\nThe way back: connect a crystal of 32.768 kHz, or feed a clock into its clock pin, and "
         "choose a lower speed; or use a high-voltage programmer.")},
    {"^(sut_)?cksel:.*(128|32)khz",
     QT_TRANSLATE_NOOP("FuseMeanings",
                       "So slow a chip will answer only at a speed below a quarter of its clock.\n"
                       "The way back: choose a lower speed.")},
    {"^((sut_)?cksel|rcen):.*(ext|xosc|cres|fsosc|tosc)",
     QT_TRANSLATE_NOOP("FuseMeanings",
                       "Without this clock on its pins the chip will not answer.\n"
                       "The way back: feed a clock into its clock pin (a crystal helps only where the setting names "
                       "one), or use a high-voltage programmer.")},
    {"^((sut_)?cksel|updi_rstpincfg):$",
     QT_TRANSLATE_NOOP("FuseMeanings",
                       "This setting is reserved: the chip may no longer answer.\n"
                       "The way back: a high-voltage programmer.")},
    {"^lb:(prog_ver_disabled|rwlock)",
     QT_TRANSLATE_NOOP("FuseMeanings",
                       "A programmer will no longer be able to read the chip or write to it.\n"
                       "The way back: Erase all.")},
    {"^lb:(prog_disabled|wlock)",
     QT_TRANSLATE_NOOP("FuseMeanings",
                       "A programmer will no longer be able to write to the chip.\n"
                       "The way back: Erase all.")},
}};

/// @p text, which the files beside the descriptions say, in the user's language. Between semicolons stand phrases; each
/// is translated with its numbers where that language puts them, or stays English.
QString translated(const QString& text)
{
    static const QRegularExpression number(QStringLiteral("(?<![\\w.-])(0x[0-9a-f]+|\\d+(\\.\\d+)?K?)(?!\\w)"));
    const QString separator = QStringLiteral("; ");
    QStringList phrases = text.split(separator);
    for (QString& phrase : phrases) {
        QStringList numbers;
        QString source;
        decltype(phrase.size()) end = 0;
        for (auto matches = number.globalMatch(phrase); matches.hasNext();) {
            const auto match = matches.next();
            numbers += match.captured();
            source += phrase.mid(end, match.capturedStart() - end) + QLatin1Char('%') + QString::number(numbers.size());
            end = match.capturedEnd();
        }
        source += phrase.mid(end);
        phrase = QCoreApplication::translate("FuseMeanings", source.toUtf8());
        for (const QString& one : qAsConst(numbers))
            phrase = phrase.arg(one);
    }
    return phrases.join(separator);
}

/// The warning for @p setting, a field's name, a colon and the symbol; empty for most.
QString warningFor(const QString& setting)
{
    const auto* const found = std::find_if(lockOuts.begin(), lockOuts.end(), [&setting](const Warning& warning) {
        return setting.contains(QRegularExpression(QLatin1String(warning.settings)));
    });
    return found == lockOuts.end() ? QString() : QCoreApplication::translate("FuseMeanings", found->text);
}

} // namespace

void FuseMeanings::load(const SettingsRecord& settings)
{
    clear();
    m_isLoaded = true;
    const QJsonObject description = BytesModel::description(settings);
    m_flashSize = std::max(0, description.value(QLatin1String("flash")).toInt());
    const auto factory = BytesModel::fuseBytes(description);
    for (const FuseByte& byte : factory)
        m_factoryValues.insert(byte.id, byte.defaultValue);
    const QJsonObject symbols = readMeanings(QStringLiteral("fields.json"));
    const QJsonObject words = readMeanings(QStringLiteral("words.json"));
    const QJsonArray bytes = description.value(QLatin1String("FuseBytes")).toArray();
    for (const QJsonValue& byte : bytes) {
        QVector<Field> fields;
        const QJsonObject listed = byte[QLatin1String("fields")].toObject();
        for (auto field = listed.begin(); field != listed.end(); ++field) {
            const QString key = field.value().toString(); // the name, and what tells the field from its namesakes
            const QString name = key.section(QLatin1Char(' '), 0, 0);
            const QString text = words[QLatin1String("fields")][name].toString();
            if (symbols.contains(key) && !text.isEmpty())
                fields.append({field.key().toUInt(nullptr, 16) & 0xFF, name, text, symbols.value(key).toObject()});
        }
        std::sort(fields.begin(), fields.end(), [](const Field& a, const Field& b) { return a.bits > b.bits; });
        m_fields.insert(byte[QLatin1String("id")].toString(), fields);
    }
    m_words = words.value(QLatin1String("symbols")).toObject();
    const QJsonArray rules = words.value(QLatin1String("rules")).toArray();
    for (const QJsonValue& rule : rules)
        m_rules.append({QRegularExpression(rule[0].toString()), rule[1].toString()});
}

void FuseMeanings::clear()
{
    *this = {};
}

quint32 FuseMeanings::changed(const FuseByte& byte) const
{
    return existing(byte, byte.currentValue ^ factoryValue(byte));
}

quint32 FuseMeanings::factoryValue(const FuseByte& byte) const
{
    return m_factoryValues.value(byte.id, byte.defaultValue);
}

QVector<FuseMeanings::Text> FuseMeanings::of(const FuseByte& byte) const
{
    QVector<Text> texts;
    const auto fields = m_fields.value(byte.id);
    for (const Field& field : fields) {
        if (const quint32 bits = existing(byte, field.bits))
            texts.append({bits, textOf(field, byte)});
    }
    return texts;
}

QVector<FuseMeanings::Setting> FuseMeanings::settings(const FuseByte& byte, int number) const
{
    const auto fields = m_fields.value(byte.id);
    const auto field = std::find_if(fields.begin(), fields.end(), [number](const Field& one) {
        return isIn(one.bits, static_cast<std::size_t>(number)) && !one.isNumber();
    });
    QVector<Setting> found;
    if (field == fields.end())
        return found;
    const quint32 bits = existing(byte, field->bits);
    quint32 changeable = bits;
    for (std::size_t i = 0; i < byte.fuseBits.size(); ++i) {
        if (!byte.fuseBits[i].enabled)
            changeable &= ~(1U << i);
    }
    for (quint32 part = 0; part <= field->bits; ++part) {
        const quint32 value = (byte.currentValue & ~field->bits) | part;
        const QString symbol = symbolOf(*field, value);
        if ((part & ~field->bits) != 0 || ((value ^ byte.currentValue) & ~changeable) != 0 || symbol.isEmpty())
            continue;
        const Setting setting {value, digitsOf(value, bits), meaningOf(field->name, symbol), value == byte.currentValue,
                               ((value ^ factoryValue(byte)) & bits) == 0};
        const auto same = std::find_if(found.begin(), found.end(),
                                       [&setting](const Setting& one) { return one.meaning == setting.meaning; });
        if (same == found.end())
            found.append(setting);
        else if (setting.isPresent || (setting.isFactory && !same->isPresent))
            *same = setting;
    }
    return found;
}

QStringList FuseMeanings::warnings(const SettingsRecord& settings, const QVector<FusesOnChip>& known)
{
    FuseMeanings meanings;
    meanings.load(settings);
    QStringList lines;
    for (const FuseByte& byte : settings.fusesBytes) {
        const auto fields = meanings.m_fields.value(byte.id);
        for (const Field& field : fields) {
            const QString warning = meanings.warningOf(field, byte).replace(QLatin1Char('\n'), QLatin1Char(' '));
            const bool isKnown = std::any_of(known.begin(), known.end(), [&](const FusesOnChip& chip) {
                return chip.has(settings.mcuId, byte, existing(byte, field.bits));
            });
            if (!warning.isEmpty() && !isKnown)
                lines += byte.name + QStringLiteral(": ") + warning;
        }
    }
    return lines;
}

bool FuseMeanings::Field::isNumber() const
{
    return symbols.isEmpty() || symbols.value(QLatin1String("*")).isDouble();
}

QString FuseMeanings::symbolOf(const Field& field, quint32 value) const
{
    const quint32 number = numberIn(value, field.bits);
    const QJsonValue own = field.symbols.value(QString::number(number));
    const QJsonValue others = field.symbols.value(QLatin1String("*"));
    if (own.isUndefined())
        return others.isDouble() ? sectionSymbol(others.toInt() * static_cast<int>(number)) : others.toString();
    return own.isDouble() ? sectionSymbol(own.toInt()) : own.toString();
}

QString FuseMeanings::warningOf(const Field& field, const FuseByte& byte) const
{
    // What the chip was delivered with locks nobody out, whatever the start-up time.
    const QString symbol = symbolOf(field, byte.currentValue);
    const auto clock = [&](const QString& one) { return meaningOf(field.name, one).section(QLatin1Char(';'), 0, 0); };
    const bool isFactory = clock(symbol) == clock(symbolOf(field, factoryValue(byte)));
    return isFactory ? QString() : warningFor(field.name + QLatin1Char(':') + symbol);
}

QString FuseMeanings::textOf(const Field& field, const FuseByte& byte) const
{
    const quint32 bits = existing(byte, field.bits);
    const auto setting = [&](quint32 value) {
        const QString text = field.isNumber() ? QString::number(numberIn(value, field.bits)) : digitsOf(value, bits);
        return field.symbols.isEmpty() ? text
                                       : text + QStringLiteral(": ") + meaningOf(field.name, symbolOf(field, value));
    };
    QStringList lines {translated(field.text),
                       namesOf(byte, bits) + QStringLiteral(" = ") + setting(byte.currentValue)};
    if ((changed(byte) & bits) != 0) {
        lines += QCoreApplication::translate("FuseMeanings", "Factory setting") + QStringLiteral(" = ")
            + setting(factoryValue(byte));
        const QString warning = warningOf(field, byte);
        if (!warning.isEmpty())
            lines += warning;
    }
    return lines.join(QLatin1Char('\n')).replace(QLatin1Char('\n'), QLatin1String("\n    "));
}

QString FuseMeanings::meaningOf(const QString& field, QString symbol) const
{
    const QJsonValue ofField = m_words.value(field + QLatin1Char(':') + symbol);
    const QJsonValue words = ofField.isString() ? ofField : m_words.value(symbol);
    if (words.isString())
        return translated(words.toString());
    for (const auto& [pattern, replacement] : m_rules)
        symbol.replace(pattern, replacement);
    return translated(symbol);
}

QString FuseMeanings::sectionSymbol(int bytes) const
{
    if (bytes > 0)
        return QStringLiteral("to_%1b").arg(bytes);
    const QString size = QStringLiteral("%1b_%2w").arg(-bytes).arg(-bytes / 2);
    return m_flashSize + bytes < 0 ? size : size + QStringLiteral("_0x%1").arg(m_flashSize + bytes, 0, 16);
}
