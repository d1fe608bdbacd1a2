// Command lines, one argument per line: either options within their limits or one clear error.

#include "ErroreComando.h"
#include "Opzioni.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* byte, std::size_t quanti)
{
    std::vector<std::string> argomenti(1);
    for (std::size_t i = 0; i < quanti; ++i) {
        if (byte[i] == '\n') argomenti.emplace_back();
        else if (byte[i] != 0) argomenti.back().push_back(static_cast<char>(byte[i])); // as in argv
    }
    try {
        const cli::Opzioni opzioni = cli::LeggiOpzioni(argomenti);
        if (opzioni.Taglie && (*opzioni.Taglie < 1 || *opzioni.Taglie > (1LL << 53))) std::abort();
        if (opzioni.Lavori < 1 || opzioni.Lavori > 256) std::abort();
    } catch (const cli::ErroreComando& errore) {
        if (std::strlen(errore.what()) < 5) std::abort();
    }
    return 0;
}
