#pragma once

#include "base/JsonFile.h"
#include "support/BoxAnswerer.h"
#include "support/WorkFolder.h"

#include <QApplication>

/// What every harness starts with: an application without a screen, a working folder, and a hand that closes boxes.
/// Made by the first input, and there for all.
struct Fuzz {
    static Fuzz& instance()
    {
        static Fuzz fuzz;
        return fuzz;
    }

    /// Writes the input to @p path. Returns whether it is JSON, which the readers of JSON files turn away with a box.
    bool writeJson(const QString& path, const QByteArray& input) const
    {
        folder.write(path, input);
        return JsonFile::read(path).state == JsonFile::State::Parsed;
    }

    int argc = 1;
    char name[5] = "fuzz";
    char* argv[2] = {name, nullptr};
    bool silenced = (qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {}), true);
    QApplication application {argc, argv};
    WorkFolder folder;
    BoxAnswerer boxes;
};

/// The input of one run of a harness.
inline QByteArray inputOf(const std::uint8_t* data, std::size_t size)
{
    return {reinterpret_cast<const char*>(data), static_cast<int>(size)};
}
