// How fast the engine is, and which engine it is.
//
//   bench_taglie                  signature, shoes per second and the share of the bare loop, then
//                                 the parts one by one (options of Google Benchmark apply)
//   bench_taglie --istruzioni N   plays N shoes and nothing else, for counting instructions

#include "Ambiente.h"
#include "CorsaNuda.h"
#include "Firma.h"
#include "Stampe.h"
#include "modCarte.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <cinttypes>
#include <cstdio>
#include <cstdlib>
#include <string_view>
#include <vector>

namespace {

template <typename Funzione>
double TaglieAlSecondo(std::int64_t taglie, const Funzione& funzione)
{
    using namespace std::chrono;
    const auto inizio = steady_clock::now();
    funzione(taglie);
    return static_cast<double>(taglie) / duration<double>(steady_clock::now() - inizio).count();
}

double Mediana(std::vector<double> valori)
{
    std::sort(valori.begin(), valori.end());
    return valori[valori.size() / 2];
}

void Motore(std::int64_t taglie)
{
    for (std::int64_t i = 0; i < taglie; ++i) modCarte::SimulaTaglia();
}

void Nuda(std::int64_t taglie)
{
    benchmark::DoNotOptimize(bench::CorsaNuda(taglie));
}

// In turn, so that a slower moment of the machine hits both.
void StampaQuota()
{
    constexpr int volte = 15;
    constexpr std::int64_t taglieMotore = 8000;
    constexpr std::int64_t taglieNude = 80000;
    std::vector<double> motore;
    std::vector<double> nuda;
    std::vector<double> rapporti;
    modCarte::AvviaEntropia();
    for (int i = 0; i < volte; ++i) {
        nuda.push_back(TaglieAlSecondo(taglieNude, Nuda));
        motore.push_back(TaglieAlSecondo(taglieMotore, Motore));
        rapporti.push_back(nuda.back() / motore.back());
    }
    std::printf("motore:    %9.0f taglie al secondo\n", Mediana(motore));
    std::printf("corsa nuda:%9.0f taglie al secondo\n", Mediana(nuda));
    std::printf("quota:     1/%.1f (mediane di %d volte)\n", Mediana(rapporti), volte);
}

void BM_CorsaNuda(benchmark::State& stato)
{
    for ([[maybe_unused]] auto volta : stato) Nuda(1000);
    stato.SetItemsProcessed(stato.iterations() * 1000);
}

void BM_SimulaTaglia(benchmark::State& stato)
{
    modCarte::AvviaEntropia();
    for ([[maybe_unused]] auto volta : stato) modCarte::SimulaTaglia();
    stato.SetItemsProcessed(stato.iterations());
}

void BM_MescolaMazzo(benchmark::State& stato)
{
    modCarte::AvviaEntropia();
    for ([[maybe_unused]] auto volta : stato) modCarte::MescolaMazzo();
}

void BM_MescolaMazzoSeme(benchmark::State& stato)
{
    modCarte::AvviaSeme(1, 1);
    for ([[maybe_unused]] auto volta : stato) modCarte::MescolaMazzo();
}

void BM_GiocaTaglia(benchmark::State& stato)
{
    modCarte::AvviaSeme(1, 1);
    modCarte::MescolaMazzo();
    const auto mazzo = modCarte::Mazzo;
    for ([[maybe_unused]] auto volta : stato) {
        modCarte::ImpostaMazzo(mazzo);
        modCarte::GiocaTaglia();
    }
}

void BM_CalcolaStatistiche(benchmark::State& stato)
{
    modCarte::AvviaSeme(1, 1);
    modCarte::SimulaTaglia();
    const auto n = static_cast<std::int16_t>(modCarte::Colpi.size() - 1);
    for ([[maybe_unused]] auto volta : stato) modCarte::CalcolaStatistiche(n);
}

void BM_TotaliConFili(benchmark::State& stato)
{
    constexpr double taglie = 10000;
    Stampe::AmbienteInUso.Fili = static_cast<int>(stato.range(0));
    for ([[maybe_unused]] auto volta : stato) {
        benchmark::DoNotOptimize(Stampe::SoloTotali(taglie, {}));
    }
    Stampe::AmbienteInUso.Fili = 1;
    stato.SetItemsProcessed(stato.iterations() * static_cast<std::int64_t>(taglie));
}

BENCHMARK(BM_CorsaNuda);
BENCHMARK(BM_SimulaTaglia);
BENCHMARK(BM_MescolaMazzo);
BENCHMARK(BM_MescolaMazzoSeme);
BENCHMARK(BM_GiocaTaglia);
BENCHMARK(BM_CalcolaStatistiche);
BENCHMARK(BM_TotaliConFili)->Arg(1)->Arg(2)->UseRealTime()->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv)
{
    if (argc == 3 && std::string_view(argv[1]) == "--istruzioni") {
        modCarte::AvviaSeme(1, 1);
        Motore(std::atoll(argv[2]));
        return 0;
    }
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
    const std::uint64_t firma = aiuti::FirmaMotore();
    std::printf("firma:    %" PRIu64 "%s\n", firma,
                firma == aiuti::FirmaAttesa ? "" : "  (DIVERSA da quella attesa)");
    StampaQuota();
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
