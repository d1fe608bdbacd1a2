// Where every error of the command is caught and shown; what it does stands in Corsa.cpp.
#include "Comando.h"

#include "Aiuto.h"
#include "Corsa.h"
#include "ErroreComando.h"
#include "ErroreRuntime.h"
#include "Opzioni.h"
#include "RigaErrore.h"
#include "Segnali.h"
#include "UscitaStandard.h"

#include <cstdlib>
#include <exception>
#include <new>
#include <string>
#include <string_view>
#include <vector>

namespace cli {

namespace {

constexpr std::string_view MemoriaEsaurita = "memoria: esaurita";
constexpr std::string_view GuastoInterno = "guasto interno: ";

// The results, for standard output.
std::string FaiComando(const std::vector<std::string>& argomenti)
{
    const Opzioni opzioni = LeggiOpzioni(argomenti);
    if (opzioni.Aiuto) return TestoAiuto();
    if (opzioni.Versione) return TestoVersione();
    return EseguiCorsa(opzioni);
}

void ScriviRisultati(const std::string& testo)
{
    if (!testo.empty()) ScriviInUscita(testo);
}

// Runs where std::terminate() is called. No exception in flight: there was no room for one.
[[noreturn]] void FinisciDiColpo() noexcept
{
    try {
        if (std::current_exception() != nullptr) throw;
        ScriviErrore({MemoriaEsaurita});
    } catch (const std::bad_alloc&) {
        ScriviErrore({MemoriaEsaurita});
    } catch (...) {
        ScriviErrore({GuastoInterno, "fine improvvisa"});
    }
    std::_Exit(UscitaInterna);
}

} // namespace

void PreparaFineImprovvisa() noexcept
{
    std::set_terminate(FinisciDiColpo);
}

int EseguiComando(std::span<const char* const> argomenti) noexcept
{
    try {
        AscoltaInterruzioni();
        ScriviRisultati(FaiComando({argomenti.begin(), argomenti.end()}));
        return UscitaFatto;
    } catch (const NessunoLegge& errore) {
        FinisciDiTubo();
        ScriviErrore({errore.what()});
        return errore.CodiceUscita();
    } catch (const ErroreComando& errore) {
        ScriviErrore({errore.what()});
        return errore.CodiceUscita();
    } catch (const ErroreRuntime& errore) {
        const bool memoria = errore.Numero() == NumeroErrore::MemoriaEsaurita;
        ScriviErrore({memoria ? MemoriaEsaurita : errore.what()});
        return UscitaPer(errore.Numero());
    } catch (const std::bad_alloc&) {
        ScriviErrore({MemoriaEsaurita});
    } catch (const std::exception& errore) {
        ScriviErrore({GuastoInterno, errore.what()});
    }
    return UscitaInterna;
}

} // namespace cli
