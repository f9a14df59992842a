// The settings file, which is also what a profile is: read, written, and read again it must be the same.

#include "Fuzz.h"
#include "app/SettingsRecord.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    Fuzz::instance().folder.write("save.json", inputOf(data, size));
    SettingsRecord first;
    if (!first.loadFromFile("save.json"))
        return 0;
    SettingsRecord second;
    if (!first.saveToFile("first.json") || !second.loadFromFile("first.json") || !second.saveToFile("second.json")
        || Fuzz::instance().folder.read("first.json") != Fuzz::instance().folder.read("second.json"))
        std::abort();
    return 0;
}
