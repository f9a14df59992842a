// A programmer's catalogue entry: picked in the settings panel.

#include "Fuzz.h"
#include "avrdude/Avrdude.h"
#include "settings/SettingsModel.h"
#include "settings/SettingsPresenter.h"
#include "settings/SettingsView.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (!Fuzz::instance().writeJson("programmer/X.json", inputOf(data, size)))
        return 0;
    static Avrdude avrdude(nullptr, nullptr);
    static SettingsModel model;
    static SettingsView view;
    static SettingsPresenter presenter(avrdude, model, view);
    presenter.loadProgrammer("X");
    return 0;
}
