#pragma once

#include <QJsonDocument>
#include <QString>
#include <QStringList>

/// What came of reading one JSON file. Who reads decides what each outcome means to the user.
struct JsonFile {
    enum class State { CannotOpen, ParseError, Parsed };

    State state = State::CannotOpen;
    QJsonDocument document; ///< null unless state is Parsed
    QString error; ///< the parser's text

    /// True when the file held a JSON object; document.object() is that object.
    [[nodiscard]] bool isObject() const { return state == State::Parsed && document.isObject(); }

    /// Reads the file at @p path whole. Failures are told by `state`; nothing is shown or logged.
    [[nodiscard]] static JsonFile read(const QString& path);
};

/// Base names (up to the first dot) of the "*.json" files in @p folder, in the order in which the file system lists
/// them. Empty when the folder does not exist.
[[nodiscard]] QStringList jsonBaseNames(const QString& folder);
