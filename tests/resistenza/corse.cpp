// Reports one after the other in one process.
//
//     corse FOLDER HOW-MANY
//
// Makes HOW-MANY reports of each form in FOLDER, which must be empty and is left so. Prints for
// each form the memory held after a tenth of them and after all. Exit code 0; 1 when memory grew, a
// file stayed behind or anything failed; 2 for wrong arguments.

#include "Ambiente.h"
#include "ErroreRuntime.h"
#include "Memoria.h"
#include "Stampe.h"
#include "SuperficieTesto.h"

#include <cstdio>
#include <cstdlib>
#include <exception>
#include <filesystem>
#include <functional>
#include <stdexcept>
#include <string>

namespace {

constexpr int Guasto = 1;
constexpr int Uso = 2;

struct Forma
{
    const char* Nome;
    std::function<std::optional<Stampe::TotaliReport>(double)> Fai;
};

const Forma Forme[] = {
    {"testo", Stampe::StampaTxt},
    {"pagina", Stampe::StampaHtml},
    {"documento", Stampe::StampaPdf},
    {"testo, statistiche", [](double n) { return Stampe::StatisticheTxt(n, {}); }},
    {"pagina, statistiche", [](double n) { return Stampe::StatisticheHtml(n, {}); }},
    {"documento, statistiche", [](double n) { return Stampe::StatistichePdf(n, {}); }},
    {"video, statistiche",
     [](double n) {
         cli::SuperficieTesto schermo;
         return Stampe::StatisticheVideo(n, schermo, {});
     }},
};

// One to three shoes in turn; every second document shares its fonts.
void Fai(const Forma& forma, int numero)
{
    Stampe::AmbienteInUso.CaratteriUnici = numero % 2 != 0;
    if (!forma.Fai(1 + numero % 3)) throw std::runtime_error("un report non è finito");
}

void Ripeti(const Forma& forma, int quanti)
{
    resistenza::Memoria memoria(quanti);
    for (int i = 1; i <= quanti; ++i) {
        Fai(forma, i);
        memoria.Guarda(i);
    }
    memoria.Racconta(forma.Nome);
}

void Corse(const char* cartella, int quanti)
{
    Stampe::AmbienteInUso = Stampe::AmbienteNeutro();
    Stampe::AmbienteInUso.Cartella = std::string(cartella) + "/";
    Stampe::AmbienteInUso.Avvisa = [](const Stampe::Messaggio& messaggio) {
        throw std::runtime_error(messaggio.Testo);
    };
    for (const auto& forma : Forme) Ripeti(forma, quanti);
    Stampe::EliminaReport();
    Stampe::AmbienteInUso = {};
    resistenza::PretendiVuota(cartella);
}

} // namespace

int main(int argc, char** argv)
{
    const int quanti = argc == 3 ? std::atoi(argv[2]) : 0;
    if (quanti < 1) {
        std::fputs("corse CARTELLA QUANTI\n", stderr);
        return Uso;
    }
    try {
        Corse(argv[1], quanti);
    } catch (const std::exception& errore) {
        std::fprintf(stderr, "%s\n", errore.what());
        return Guasto;
    }
    return 0;
}
