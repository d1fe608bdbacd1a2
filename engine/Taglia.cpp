// One whole shoe: shuffled, dealt into Colpi and counted. A single coup is dealt in Colpo.cpp, the
// counting stands in Statistiche.cpp.

#include "modCarte.h"

#include "ErroreRuntime.h"
#include "Numeri.h"

#include <cstddef>

namespace modCarte {

constinit thread_local Registro Colpi;

namespace {

// Finds n, the number of the record that runs out of cards.
std::int16_t PassataDiConteggio()
{
    std::string scartato;
    while (FineTaglia == Falso) GiocaColpo(scartato);
    return Intero16(NumeroColpo);
}

// An array of empty texts with indices 0 to n; the texts keep the memory of the last shoe's.
void SvuotaColpi(std::vector<std::string>& colpi, std::int16_t n)
{
    if (n < 0) throw ErroreRuntime(NumeroErrore::IndiceFuoriIntervallo);
    colpi.resize(static_cast<std::size_t>(n) + 1);
    for (auto& record : colpi) record.clear();
}

} // namespace

std::string CarteAnnullate()
{
    std::string record = "0";
    for (std::size_t i = 0; i < NumeroCarteAnnullate; ++i) {
        record.append(",").append(TestoCarta(Mazzo[i]));
    }
    return record;
}

// The shoe is dealt twice on purpose: the first pass only finds n, so that Colpi has its size
// before any record is stored, and a shoe that fails to be dealt leaves the records of the last one
// alone.
void GiocaTaglia()
{
    auto& colpi = Colpi.Lista();
    const std::int16_t n = PassataDiConteggio();
    SvuotaColpi(colpi, n);

    NumeroColpo = 1;
    Posizione = NumeroCarteAnnullate;
    FineTaglia = Falso;

    colpi[0] = CarteAnnullate();
    for (int i = 1; i <= n; ++i) GiocaColpo(colpi[static_cast<std::size_t>(i)]);
    CalcolaStatistiche(n);
}

void SimulaTaglia()
{
    MescolaMazzo();
    GiocaTaglia();
}

} // namespace modCarte
