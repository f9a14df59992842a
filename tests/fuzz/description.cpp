// The description of a microcontroller: loaded, shown in the Fuses tab, and changed there.

#include "Fuzz.h"
#include "avrdude/Avrdude.h"
#include "fuses/FuseRequests.h"
#include "fuses/FusesByteModel.h"
#include "mcu/BytesModel.h"
#include "mcu/SignatureIndex.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    SignatureIndex index;
    const bool isJson = Fuzz::instance().writeJson("mcu/X.json", inputOf(data, size));
    index.build();
    if (!isJson)
        return 0;
    Avrdude avrdude(nullptr, nullptr);
    BytesModel(avrdude).load("X");
    FuseBytes& bytes = avrdude.settings().fusesBytes;
    for (int i = 0; i < bytes.size(); ++i) {
        FusesByteModel model(bytes, i);
        model.setByte(0xA5);
        model.setBit(7, true);
        if (bytes[i].currentValue > 0xFF)
            std::abort();
    }
    if (FuseRequests::write(bytes).isEmpty()) // the lock byte's argument is always there
        std::abort();
    return 0;
}
