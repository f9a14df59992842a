#pragma once

#include <QFileInfoList>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QString>
#include <QStringList>

#include <functional>

/// What came of reading one JSON file. Who reads decides what each outcome means to the user.
struct JsonFile {
    enum class State { NotFound, CannotOpen, ParseError, Parsed };

    State state = State::NotFound;
    QJsonDocument document; ///< null unless state is Parsed
    QString error; ///< the parser's text

    /// True when the file was there and its content could be had, JSON or not.
    [[nodiscard]] bool wasRead() const { return state == State::ParseError || state == State::Parsed; }

    /// True when the file held a JSON object; document.object() is that object.
    [[nodiscard]] bool isObject() const { return document.isObject(); }

    /// What is wrong with the file, as boxes say it, in English; null when the file was parsed. And the same
    /// translated.
    [[nodiscard]] const char* fault() const;
    [[nodiscard]] QString faultText() const;

    /// Why the file is no JSON object, in words for the log.
    [[nodiscard]] QString reason() const;

    /// Reads the file at @p path whole. Failures are told by `state`; nothing is shown or logged. What is no regular
    /// file, nor a link to one, is not opened, nor is one of more than 1 MiB, which would hold up the window.
    [[nodiscard]] static JsonFile read(const QString& path);
};

/// Writes @p content to the file at @p path, which is replaced at once or not at all. Returns false, with the old file
/// untouched, when it cannot be written whole.
[[nodiscard]] bool writeFile(const QString& path, const QByteArray& content);

/// Lets @p change an object in the file at @p path, which is replaced at once or not at all, and made if it is not
/// there. Who does so at the same time, in another window too, waits. Returns false, with the file untouched, when
/// @p change does, when what is there is no JSON object or is a link, which may lead anywhere, or when it cannot be
/// written.
[[nodiscard]] bool changeFile(const QString& path, const std::function<bool(QJsonObject& object)>& change);

/// The path of @p file, relative to the working directory, as the system's users write it whole.
[[nodiscard]] QString fullPath(const QString& file);

/// Whether Windows takes @p name, and whatever begins with it and a dot, for a device ("nul", "com1") and no file.
[[nodiscard]] bool isDeviceName(const QString& name);

/// Path of the file in @p folder for what people call @p name ("ATmega16", "Deutsch"). Null for a name with a slash or
/// a backslash and, on Windows, for that of a device: it could lead anywhere, and names come from profiles too.
[[nodiscard]] QString jsonPath(const QString& folder, const QString& name);

/// The "*.json" files in @p folder, in the order in which the file system lists them; none when there is no such
/// folder.
[[nodiscard]] QFileInfoList jsonFiles(const QString& folder);

/// Their base names: up to the first dot. Those that jsonPath() knows no file for are left out.
[[nodiscard]] QStringList jsonBaseNames(const QString& folder);

/// The list @p value as texts: numbers in digits, nested lists and objects as empty ones. Empty for what is no list.
[[nodiscard]] QStringList jsonTexts(const QJsonValue& value);

/// Other names of what the file in @p folder for @p name describes: avrdude's identifier, and what else people call it.
[[nodiscard]] QStringList otherNames(const QString& folder, const QString& name);
