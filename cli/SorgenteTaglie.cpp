// Opens the shoe file and warns about it; how its lines are read: FileMazzi.cpp.
#include "SorgenteTaglie.h"

#include "Avanzamento.h"
#include "ErroreComando.h"
#include "Numeri.h"
#include "RigaErrore.h"
#include "Segnali.h"

#include <cstddef>
#include <string>

namespace cli {

namespace {

[[noreturn]] void InterrompiPrima()
{
    Interrompi("nessuna taglia giocata");
}

std::unique_ptr<FileMazzi> Apri(const Opzioni& opzioni)
{
    auto file = std::make_unique<FileMazzi>(opzioni.Mazzi);
    if (!file->Leggi(opzioni.Taglie, InterruzioneChiesta)) InterrompiPrima();
    if (opzioni.Taglie && file->Quante() < *opzioni.Taglie) {
        throw ErroreRuntime(NumeroErrore::ChiamataNonValida,
                            "contiene " + QuanteTaglie(file->Quante()) + ", ne servono " +
                                TestoNumero(*opzioni.Taglie),
                            opzioni.Mazzi);
    }
    return file;
}

std::unique_ptr<FileMazzi> ApriSeDato(const Opzioni& opzioni)
{
    if (opzioni.Mazzi.empty()) return nullptr;
    return OppureRifiuta([&opzioni] { return Apri(opzioni); });
}

} // namespace

SorgenteTaglie::SorgenteTaglie(const Opzioni& opzioni)
    : m_seme(opzioni.Seme)
    , m_file(ApriSeDato(opzioni))
    , m_quante(m_file ? m_file->Quante() : opzioni.Taglie.value_or(1))
{
}

std::function<void(std::int64_t)> SorgenteTaglie::Preparazione() const
{
    if (m_file) {
        return [&file = *m_file](std::int64_t taglia) {
            const auto indice = static_cast<std::size_t>(taglia) - 1;
            modCarte::ImpostaMazzo(OppureRifiuta([&] { return file.Mazzo(indice); }));
        };
    }
    if (m_seme) {
        return [seme = *m_seme](std::int64_t taglia) {
            modCarte::AvviaSeme(seme, static_cast<std::uint64_t>(taglia));
            modCarte::MescolaMazzo();
        };
    }
    return [](std::int64_t) { modCarte::MescolaMazzo(); };
}

// No refusal: whoever repeats shoes by intention may know what the figures then mean.
void SorgenteTaglie::AvvisaRipetizioni()
{
    if (!m_file) return;
    const auto numero = [](std::size_t n) { return TestoNumero(static_cast<std::int64_t>(n)); };
    const auto ripetute =
        OppureRifiuta([this] { return m_file->Ripetizioni(InterruzioneChiesta); });
    if (InterruzioneChiesta()) InterrompiPrima();
    if (!ripetute) return;
    const std::string quante = ripetute->Quante == 1
                                   ? "1 taglia ne ripete un'altra"
                                   : numero(ripetute->Quante) + " taglie ne ripetono altre";
    ScriviErrore({m_file->Percorso(), ": avviso: ", quante, " (la ", numero(ripetute->Prima + 1),
                  " è uguale alla ", numero(ripetute->Come + 1),
                  "); errori e intervalli valgono per taglie indipendenti"});
}

void SorgenteTaglie::AvvisaCambiamento() const
{
    if (!m_file || !m_file->Cambiato()) return;
    ScriviErrore(
        {m_file->Percorso(),
         ": avviso: è stato modificato durante la corsa; sono giocate le taglie di prima"});
}

} // namespace cli
