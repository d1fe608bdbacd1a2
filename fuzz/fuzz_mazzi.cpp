// A line of a shoe file: whatever is read must be a whole shoe that the engine accepts, plays to
// its end and writes back as a line that reads as the same shoe.

#include "ErroreRuntime.h"
#include "FileMazzi.h"
#include "modCarte.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* byte, std::size_t quanti)
{
    const std::string_view riga(reinterpret_cast<const char*>(byte), quanti);
    try {
        const auto taglia = cli::LeggiTaglia(riga);
        if (!taglia) return 0;
        modCarte::ImpostaMazzo(*taglia);
        modCarte::GiocaTaglia();
        if (modCarte::FineTaglia == Falso) std::abort();
        if (cli::LeggiTaglia(cli::RigaTaglia(*taglia)) != taglia) std::abort();
    } catch (const ErroreRuntime& errore) {
        if (errore.Motivo().empty()) std::abort(); // every refusal says why
    }
    return 0;
}
